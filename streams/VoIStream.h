#pragma once

#include "KdGeMatrix2d.h"
#include "KdGeMatrix3d.h"
#include "KdGePoint2d.h"
#include "KdGePoint3d.h"
#include "KdGeScale.h"
#include "KdGeVector2d.h"
#include "KdGeVector3d.h"
#include "VoStream.h"

#pragma GCC visibility push(default)

// Values read from a stream, each as its memory image. A value that the stream doesn't hold any
// more stays as it was.
class VoIStream : public virtual VoStream {
public:
    virtual void readBytes(void* target, unsigned count) = 0;

    virtual void readInt8(std::int8_t& value);
    virtual void readInt16(std::int16_t& value);
    virtual void readInt32(std::int32_t& value);
    virtual void readInt64(std::int64_t& value);
    virtual void readUInt8(std::uint8_t& value);
    virtual void readUInt16(std::uint16_t& value);
    virtual void readUInt32(std::uint32_t& value);
    virtual void readUInt64(std::uint64_t& value);
    virtual void readChar(char& value);
    virtual void readWChar(wchar_t& value);
    virtual void readBool(bool& value); // any bit set is true
    virtual void readFloat(float& value);
    virtual void readDouble(double& value);
    virtual void readAddress(void*& value);
    virtual void readPoint2d(KdGePoint2d& value);
    virtual void readPoint3d(KdGePoint3d& value);
    virtual void readVector2d(KdGeVector2d& value);
    virtual void readVector3d(KdGeVector3d& value);
    virtual void readMatrix2d(KdGeMatrix2d& value);
    virtual void readMatrix3d(KdGeMatrix3d& value);
    virtual void readScale2d(KdGeScale2d& value);
    virtual void readScale3d(KdGeScale3d& value);

    // A count and the text; the caller owns it and gives it back with free. Null for no characters
    // and for a count that is negative or more than the stream has left.
    virtual void readRawStr(char*& text);
    // Two bytes a character whatever the size of wchar_t, so that of a text with larger ones the
    // first half comes back; zeros follow it up to the count.
    virtual void readRawStr(wchar_t*& text);
};

#pragma GCC visibility pop
