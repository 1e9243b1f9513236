#include "hostText.h"

#include <QCoreApplication>

namespace orvex {

namespace {

// What a value has in it is no place of another one.
template <class Text>
Text filled(const Text& pattern, std::initializer_list<Text> values) {
    Text result;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const std::size_t value = pattern[i] == '%' && i + 1 < pattern.size()
                                      ? static_cast<std::size_t>(pattern[i + 1] - '1')
                                      : values.size();
        if (value < values.size()) {
            result += values.begin()[value];
            ++i;
        } else {
            result += pattern[i];
        }
    }
    return result;
}

} // namespace

std::string hostText(const char* english, std::initializer_list<std::string> values) {
    return filled(QCoreApplication::translate("orvex", english).toStdString(), values);
}

std::wstring wideHostText(const char* english, std::initializer_list<std::wstring> values) {
    return filled(QCoreApplication::translate("orvex", english).toStdWString(), values);
}

std::string filledText(const std::string& text, std::initializer_list<std::string> values) {
    return filled(text, values);
}

std::wstring filledText(const std::wstring& text, std::initializer_list<std::wstring> values) {
    return filled(text, values);
}

} // namespace orvex
