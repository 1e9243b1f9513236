#pragma once

#include <string>
#include <vector>

namespace orvex {

// Where the application's profile is kept. A program that wants its settings to outlive it sets
// one over its own storage; until then they live in memory, so that a library on its own never
// touches the user's files. A missing key or a value of another kind reads as the default.
class ProfileStore {
public:
    virtual ~ProfileStore() = default;

    [[nodiscard]] virtual int integer(const std::wstring& section, const std::wstring& key,
                                      int fallback) const = 0;
    virtual void setInteger(const std::wstring& section, const std::wstring& key, int value) = 0;
    [[nodiscard]] virtual std::wstring text(const std::wstring& section, const std::wstring& key,
                                            const std::wstring& fallback) const = 0;
    virtual void setText(const std::wstring& section, const std::wstring& key,
                         const std::wstring& value) = 0;
    // Empty when there is none.
    [[nodiscard]] virtual std::vector<unsigned char> bytes(const std::wstring& section,
                                                           const std::wstring& key) const = 0;
    virtual void setBytes(const std::wstring& section, const std::wstring& key,
                          const std::vector<unsigned char>& value) = 0;
};

// Gives the process another store (null: a fresh one in memory) and returns the one before, null
// for the one in memory. Not owned.
ProfileStore* setProfileStore(ProfileStore* store);

} // namespace orvex
