#include "DeskSettings.h"

#include "applicationProfile.h"
#include "qtWide.h"

namespace orvex {

namespace {

constexpr const wchar_t* kSection = L"Desk";

ApplicationProfile& profile() {
    return ApplicationProfile::instance();
}

} // namespace

QByteArray DeskSettings::bytes(const wchar_t* key) const {
    const std::vector<unsigned char> stored = profile().bytes(kSection, key);
    return {reinterpret_cast<const char*>(stored.data()), static_cast<int>(stored.size())};
}

void DeskSettings::setBytes(const wchar_t* key, const QByteArray& value) {
    profile().setBytes(kSection, key, std::vector<unsigned char>(value.begin(), value.end()));
}

QString DeskSettings::text(const wchar_t* key) const {
    return toQt(profile().text(kSection, key, L""));
}

void DeskSettings::setText(const wchar_t* key, const QString& value) {
    profile().setText(kSection, key, toWide(value));
}

int DeskSettings::integer(const wchar_t* key, int fallback) const {
    return profile().integer(kSection, key, fallback);
}

void DeskSettings::setInteger(const wchar_t* key, int value) {
    profile().setInteger(kSection, key, value);
}

int HostProfileStore::integer(const std::wstring& section, const std::wstring& key,
                              int fallback) const {
    return profile().integer(section, key, fallback);
}

void HostProfileStore::setInteger(const std::wstring& section, const std::wstring& key, int value) {
    profile().setInteger(section, key, value);
}

std::wstring HostProfileStore::text(const std::wstring& section, const std::wstring& key,
                                    const std::wstring& fallback) const {
    return profile().text(section, key, fallback);
}

void HostProfileStore::setText(const std::wstring& section, const std::wstring& key,
                               const std::wstring& value) {
    profile().setText(section, key, value);
}

std::vector<unsigned char> HostProfileStore::bytes(const std::wstring& section,
                                                   const std::wstring& key) const {
    return profile().bytes(section, key);
}

void HostProfileStore::setBytes(const std::wstring& section, const std::wstring& key,
                                const std::vector<unsigned char>& value) {
    profile().setBytes(section, key, value);
}

} // namespace orvex
