#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace orvex {

// The host's text and Qt's.

inline QString toQt(const std::wstring& text) {
    return QString::fromStdWString(text);
}

inline std::wstring toWide(const QString& text) {
    return text.toStdWString();
}

inline QStringList toQt(const std::vector<std::wstring>& texts) {
    QStringList list;
    for (const std::wstring& text : texts) {
        list << toQt(text);
    }
    return list;
}

} // namespace orvex
