#pragma once

#include <cstddef>
#include <vector>

// The host's plain array, handed around by value.
template <class T>
class KdArray {
public:
    using value_type = T;
    using const_iterator = typename std::vector<T>::const_iterator;

    KdArray() = default;

    void append(const T& value) { m_items.push_back(value); }
    void removeAll() { m_items.clear(); }
    void reserve(int count) { m_items.reserve(count > 0 ? static_cast<std::size_t>(count) : 0); }

    [[nodiscard]] int length() const { return static_cast<int>(m_items.size()); }
    [[nodiscard]] bool isEmpty() const { return m_items.empty(); }

    // The index has to be one of the array's.
    [[nodiscard]] const T& operator[](int index) const {
        return m_items.at(static_cast<std::size_t>(index));
    }
    [[nodiscard]] T& operator[](int index) { return m_items.at(static_cast<std::size_t>(index)); }

    [[nodiscard]] auto begin() const { return m_items.begin(); }
    [[nodiscard]] auto end() const { return m_items.end(); }

private:
    std::vector<T> m_items;
};
