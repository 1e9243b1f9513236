#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <type_traits>

namespace orvex {

// The physical room of one VoVector block. It starts as zero values of T throughout. Throws
// std::bad_alloc when memory is exhausted.
template <class T, bool isPlain = std::is_arithmetic_v<T>>
class VoVectorItems {
public:
    explicit VoVectorItems(unsigned physical) : m_items(std::make_unique<T[]>(physical)) {}

    [[nodiscard]] T* get() const { return m_items.get(); }

    void resize(unsigned logical, unsigned /*oldPhysical*/, unsigned physical) {
        auto fresh = std::make_unique<T[]>(physical);
        std::move(m_items.get(), m_items.get() + std::min(logical, physical), fresh.get());
        m_items = std::move(fresh);
    }
    void copyFrom(const VoVectorItems& other, unsigned logical, unsigned /*physical*/) {
        std::copy(other.get(), other.get() + logical, get());
    }
    void clear(unsigned first, unsigned last) { std::fill(get() + first, get() + last, T()); }

private:
    std::unique_ptr<T[]> m_items;
};

// Numbers lie in memory of the C heap, which can often grow a block where it stands, so that a
// large array that grows by small steps isn't copied at each of them. What was written after the
// logical end moves along.
template <class T>
class VoVectorItems<T, true> {
public:
    explicit VoVectorItems(unsigned physical)
        : m_items(physical > 0 ? static_cast<T*>(std::calloc(physical, sizeof(T))) : nullptr) {
        if (physical > 0 && m_items == nullptr) {
            throw std::bad_alloc();
        }
    }

    [[nodiscard]] T* get() const { return m_items.get(); }

    void resize(unsigned /*logical*/, unsigned oldPhysical, unsigned physical) {
        if (physical == 0) {
            m_items.reset();
            return;
        }
        auto* const moved = static_cast<T*>(
            std::realloc(m_items.get(), static_cast<std::size_t>(physical) * sizeof(T)));
        if (moved == nullptr) {
            throw std::bad_alloc();
        }
        (void)m_items.release();
        m_items.reset(moved);
        if (physical > oldPhysical) {
            clear(oldPhysical, physical);
        }
    }
    void copyFrom(const VoVectorItems& other, unsigned /*logical*/, unsigned physical) {
        std::copy(other.get(), other.get() + physical, get());
    }
    void clear(unsigned first, unsigned last) { std::fill(get() + first, get() + last, T()); }

private:
    struct Free {
        void operator()(T* items) const { std::free(items); }
    };

    std::unique_ptr<T[], Free> m_items;
};

} // namespace orvex
