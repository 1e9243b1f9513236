#include "ProfileStore.h"

#include "currentStore.h"

#include <map>
#include <memory>
#include <utility>
#include <variant>

namespace orvex {

namespace {

class MemoryStore : public ProfileStore {
public:
    [[nodiscard]] int integer(const std::wstring& section, const std::wstring& key,
                              int fallback) const override {
        const int* const value = find<int>(section, key);
        return value != nullptr ? *value : fallback;
    }
    void setInteger(const std::wstring& section, const std::wstring& key, int value) override {
        m_values[{section, key}] = value;
    }
    [[nodiscard]] std::wstring text(const std::wstring& section, const std::wstring& key,
                                    const std::wstring& fallback) const override {
        const auto* const value = find<std::wstring>(section, key);
        return value != nullptr ? *value : fallback;
    }
    void setText(const std::wstring& section, const std::wstring& key,
                 const std::wstring& value) override {
        m_values[{section, key}] = value;
    }
    [[nodiscard]] std::vector<unsigned char> bytes(const std::wstring& section,
                                                   const std::wstring& key) const override {
        const auto* const value = find<std::vector<unsigned char>>(section, key);
        return value != nullptr ? *value : std::vector<unsigned char>();
    }
    void setBytes(const std::wstring& section, const std::wstring& key,
                  const std::vector<unsigned char>& value) override {
        m_values[{section, key}] = value;
    }

private:
    using Value = std::variant<int, std::wstring, std::vector<unsigned char>>;

    template <class T>
    const T* find(const std::wstring& section, const std::wstring& key) const {
        const auto found = m_values.find({section, key});
        return found != m_values.end() ? std::get_if<T>(&found->second) : nullptr;
    }

    std::map<std::pair<std::wstring, std::wstring>, Value> m_values;
};

ProfileStore* s_store = nullptr;

std::unique_ptr<ProfileStore>& memoryStore() {
    static std::unique_ptr<ProfileStore> store;
    return store;
}

} // namespace

ProfileStore* setProfileStore(ProfileStore* store) {
    memoryStore().reset();
    return std::exchange(s_store, store);
}

ProfileStore& currentStore() {
    if (s_store != nullptr) {
        return *s_store;
    }
    if (!memoryStore()) {
        memoryStore() = std::make_unique<MemoryStore>();
    }
    return *memoryStore();
}

} // namespace orvex
