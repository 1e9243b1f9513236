#include "applicationProfile.h"

#include <QByteArray>
#include <QSettings>
#include <QString>

namespace orvex {

namespace {

// Opened for each access: what is set is on disk at once, and nothing is left to the end of the
// process.
class Settings : public QSettings {
public:
    Settings() : QSettings(IniFormat, UserScope, "orvex", "orvex") {}
};

QString entryName(const std::wstring& section, const std::wstring& key) {
    return QString::fromStdWString(section) + '/' + QString::fromStdWString(key);
}

} // namespace

ApplicationProfile& ApplicationProfile::instance() {
    static ApplicationProfile profile;
    return profile;
}

int ApplicationProfile::integer(const std::wstring& section, const std::wstring& key,
                                int fallback) const {
    const QVariant value = Settings().value(entryName(section, key));
    bool isInteger = false;
    const int number = value.toInt(&isInteger);
    return isInteger ? number : fallback;
}

void ApplicationProfile::setInteger(const std::wstring& section, const std::wstring& key,
                                    int value) {
    Settings().setValue(entryName(section, key), value);
}

std::wstring ApplicationProfile::text(const std::wstring& section, const std::wstring& key,
                                      const std::wstring& fallback) const {
    const QVariant value = Settings().value(entryName(section, key));
    return value.type() == QVariant::String ? value.toString().toStdWString() : fallback;
}

void ApplicationProfile::setText(const std::wstring& section, const std::wstring& key,
                                 const std::wstring& value) {
    Settings().setValue(entryName(section, key), QString::fromStdWString(value));
}

std::vector<unsigned char> ApplicationProfile::bytes(const std::wstring& section,
                                                     const std::wstring& key) const {
    const QVariant value = Settings().value(entryName(section, key));
    if (value.type() != QVariant::ByteArray) {
        return {};
    }
    const QByteArray bytes = value.toByteArray();
    return {bytes.begin(), bytes.end()};
}

void ApplicationProfile::setBytes(const std::wstring& section, const std::wstring& key,
                                  const std::vector<unsigned char>& value) {
    const QByteArray bytes(reinterpret_cast<const char*>(value.data()),
                           static_cast<int>(value.size()));
    Settings().setValue(entryName(section, key), bytes);
}

} // namespace orvex
