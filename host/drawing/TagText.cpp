#include "TagText.h"

#include "NumberText.h"
#include "handleText.h"

namespace orvex {

TagFormat TagFormat::of(std::string_view bytes, std::size_t begin) {
    TagFormat format;
    std::size_t end = bytes.find('\n', begin);
    if (end == std::string::npos) {
        return format;
    }
    if (end > begin && bytes[end - 1] == '\r') {
        format.lineEnd = "\r\n";
        --end;
    }
    format.codeWidth = end - begin;
    return format;
}

void TagText::add(int code, std::string_view value) {
    const std::string digits = std::to_string(code);
    if (digits.size() < m_format.codeWidth) {
        m_text.append(m_format.codeWidth - digits.size(), ' ');
    }
    m_text += digits;
    m_text += m_format.lineEnd;
    m_text += value;
    m_text += m_format.lineEnd;
}

void TagText::addReal(int code, double value) {
    add(code, realText(value));
}

void TagText::addHandle(int code, std::uint64_t value) {
    add(code, handleText(value));
}

void TagText::addPoint(int code, const KdGePoint3d& point) {
    addReal(code, point.x);
    addReal(code + 10, point.y);
    addReal(code + 20, point.z);
}

void TagText::addPoint(int code, const KdGeVector3d& vector) {
    addReal(code, vector.x);
    addReal(code + 10, vector.y);
    addReal(code + 20, vector.z);
}

void addFields(TagText& target, const Fields& fields) {
    for (const Field& field : fields) {
        if (field.text) {
            target.add(field.code, *field.text);
        }
    }
}

} // namespace orvex
