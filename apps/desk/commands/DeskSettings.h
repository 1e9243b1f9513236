#pragma once

#include "ProfileStore.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace orvex {

// What the window remembers between runs, in the host's application profile.
class DeskSettings {
public:
    [[nodiscard]] QByteArray bytes(const wchar_t* key) const;
    void setBytes(const wchar_t* key, const QByteArray& value);
    [[nodiscard]] QString text(const wchar_t* key) const;
    void setText(const wchar_t* key, const QString& value);

    [[nodiscard]] int integer(const wchar_t* key, int fallback) const;
    void setInteger(const wchar_t* key, int value);

    static constexpr const wchar_t* kGeometry = L"Geometry";
    static constexpr const wchar_t* kState = L"State";
    static constexpr const wchar_t* kDrawingFolder = L"DrawingFolder";
    static constexpr const wchar_t* kSnap = L"Snap"; // ON or OFF
    static constexpr const wchar_t* kSnapModes = L"SnapModes";
    static constexpr const wchar_t* kSnapAperture = L"SnapAperture"; // pixels
    static constexpr const wchar_t* kAngleStep = L"AngleStep";       // degrees
    static constexpr const wchar_t* kDirection = L"Direction";       // ORTHO, POLAR or ANY
    static constexpr const wchar_t* kPictureFolder = L"PictureFolder";
    static constexpr const wchar_t* kUndoMemory = L"UndoMemory"; // MiB
    static constexpr const wchar_t* kLanguage = L"Language";     // "de"; empty for the system's
    static constexpr const wchar_t* kAutosave = L"Autosave";     // seconds; 0 for none
    static constexpr const wchar_t* kScriptFolder = L"ScriptFolder";
};

// Lets the dialogs of modules keep theirs in the same profile.
class HostProfileStore final : public ProfileStore {
public:
    HostProfileStore() : m_before(setProfileStore(this)) {}
    ~HostProfileStore() override { setProfileStore(m_before); }
    HostProfileStore(const HostProfileStore&) = delete;
    HostProfileStore& operator=(const HostProfileStore&) = delete;

    [[nodiscard]] int integer(const std::wstring& section, const std::wstring& key,
                              int fallback) const override;
    void setInteger(const std::wstring& section, const std::wstring& key, int value) override;
    [[nodiscard]] std::wstring text(const std::wstring& section, const std::wstring& key,
                                    const std::wstring& fallback) const override;
    void setText(const std::wstring& section, const std::wstring& key,
                 const std::wstring& value) override;
    [[nodiscard]] std::vector<unsigned char> bytes(const std::wstring& section,
                                                   const std::wstring& key) const override;
    void setBytes(const std::wstring& section, const std::wstring& key,
                  const std::vector<unsigned char>& value) override;

private:
    ProfileStore* m_before;
};

} // namespace orvex
