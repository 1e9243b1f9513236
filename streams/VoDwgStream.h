#pragma once

#include "CStdStr.h"
#include "KdDbHandle.h"
#include "KdDbObjectId.h"
#include "VoBitStream.h"
#include "VoHeapOp.h"

#pragma GCC visibility push(default)

// A bit stream that knows handles, object ids and texts of a drawing.
class VoDwgStream : public VoBitStream, public VoHeapOp {
public:
    // How an object refers to another one.
    enum ReferenceType : std::uint8_t {
        softPointer = 0,
        hardPointer = 1,
        softOwnership = 2,
        hardOwnership = 3,
    };

    using VoBitStream::VoBitStream;

    // A scale in space takes no bits here.
    void readScale3d(KdGeScale3d& value) override;
    void writeScale3d(const KdGeScale3d& value) override;

    virtual void readHandle(KdDbHandle& handle);
    virtual void writeHandle(const KdDbHandle& handle);

    // Ids move within a process only: the type and the address of the stub are written. Reading
    // skips both and leaves the id as it is; an address out of a stream is never followed.
    virtual void readObjectId(KdDbObjectId& id, std::uint8_t* type); // the type may be null
    virtual void writeObjectId(const KdDbObjectId& id, std::uint8_t type);
    virtual void readHardOwnershipId(KdDbObjectId& id);
    virtual void writeHardOwnershipId(const KdDbObjectId& id);
    virtual void readSoftOwnershipId(KdDbObjectId& id);
    virtual void writeSoftOwnershipId(const KdDbObjectId& id);
    virtual void readHardPointerId(KdDbObjectId& id);
    virtual void writeHardPointerId(const KdDbObjectId& id);
    virtual void readSoftPointerId(KdDbObjectId& id);
    virtual void writeSoftPointerId(const KdDbObjectId& id);

    // Two bytes a character whatever the size of wchar_t, as with raw texts. The text read lies on
    // the host's heap and belongs to the caller (kdutDelString). It is null when the count is
    // negative or more than the stream has left, and left alone when the count is 0.
    virtual void readUnicodeString(wchar_t*& text);
    virtual void writeUnicodeString(const wchar_t* text);

    // A 16-bit count and the text as UTF-8. The count of a longer text is cut, its bytes are not;
    // null is written as no characters. Reading empties the text first.
    virtual void readString(CStdStr<wchar_t>& text);
    virtual void writeString(const wchar_t* text);

    // One byte, whose low half counts the bytes that follow, and the value, highest byte first.
    // More than 8 bytes are reported as Status::badHandleCount and leave the value. The code read
    // is the whole byte; of the code the low half is written.
    void readHandleParts(std::uint8_t& code, std::uint64_t& value);
    void writeHandleParts(std::uint8_t code, std::uint64_t value);

private:
    void skipId(std::uint8_t& type);
};

#pragma GCC visibility pop
