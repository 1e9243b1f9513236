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

// Values written to a stream, each as its memory image.
class VoOStream : public virtual VoStream {
public:
    virtual void writeBytes(const void* source, unsigned count) = 0;

    virtual void writeInt8(std::int8_t value);
    virtual void writeInt16(std::int16_t value);
    virtual void writeInt32(std::int32_t value);
    virtual void writeInt64(std::int64_t value);
    virtual void writeUInt8(std::uint8_t value);
    virtual void writeUInt16(std::uint16_t value);
    virtual void writeUInt32(std::uint32_t value);
    virtual void writeUInt64(std::uint64_t value);
    virtual void writeChar(char value);
    virtual void writeWChar(wchar_t value);
    virtual void writeBool(bool value);
    virtual void writeFloat(float value);
    virtual void writeDouble(double value);
    virtual void writeAddress(const void* value);
    virtual void writePoint2d(const KdGePoint2d& value);
    virtual void writePoint3d(const KdGePoint3d& value);
    virtual void writeVector2d(const KdGeVector2d& value);
    virtual void writeVector3d(const KdGeVector3d& value);
    virtual void writeMatrix2d(const KdGeMatrix2d& value);
    virtual void writeMatrix3d(const KdGeMatrix3d& value);
    virtual void writeScale2d(const KdGeScale2d& value);
    virtual void writeScale3d(const KdGeScale3d& value);

    // A count and the text; null is written as no characters. Of wide text two bytes a character
    // go out whatever the size of wchar_t, the first half of its memory where that is 4.
    virtual void writeRawStr(const char* text);
    virtual void writeRawStr(const wchar_t* text);
};

#pragma GCC visibility pop
