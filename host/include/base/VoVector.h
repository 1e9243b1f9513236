#pragma once

#include "VoVectorItems.h"
#include "crashRecorder.h"

#include <algorithm>
#include <memory>
#include <utility>

// Growth of an ordinary array: room for twice as much, at least for what is wanted.
struct VoVectorDefaultGrowPolicy {
    [[nodiscard]] unsigned growCount(unsigned /*logical*/, unsigned physical,
                                     unsigned wanted) const {
        if (wanted <= physical) {
            return physical;
        }
        constexpr unsigned kHalf = ~0U / 2;
        const unsigned doubled = physical > kHalf ? wanted : physical * 2;
        return std::max({doubled, wanted, 4U});
    }
};

// The host's array: counted, copied on the first write, so that copies are cheap and a change to
// one is never seen in another, nested ones included. New elements and all physical room hold the
// zero value of T. A bad index is reported to the crash recorder and goes on with a harmless zero
// element. For one thread only.
template <class T, class Policy = VoVectorDefaultGrowPolicy>
class VoVector {
public:
    using value_type = T;
    using const_iterator = const T*;

    VoVector() = default;
    explicit VoVector(unsigned size) { resize(size); }
    VoVector(const VoVector& other) : m_block(other.m_block), m_policy(other.m_policy) { share(); }
    // A copy of what a pointer handed out by the host points to; null gives an empty array.
    explicit VoVector(const VoVector* other) {
        if (other != nullptr) {
            *this = *other;
        }
    }
    VoVector(VoVector&& other) noexcept
        : m_block(std::exchange(other.m_block, nullptr)), m_policy(other.m_policy) {}
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): the copy is taken before anything goes.
    VoVector& operator=(const VoVector& other) {
        VoVector copy(other);
        swap(copy);
        return *this;
    }
    VoVector& operator=(VoVector&& other) noexcept {
        swap(other);
        return *this;
    }
    ~VoVector() { release(); }

    void swap(VoVector& other) noexcept {
        std::swap(m_block, other.m_block);
        std::swap(m_policy, other.m_policy);
    }

    [[nodiscard]] unsigned size() const { return m_block != nullptr ? m_block->logical : 0; }
    [[nodiscard]] unsigned length() const { return size(); }
    [[nodiscard]] unsigned physicalLength() const {
        return m_block != nullptr ? m_block->physical : 0;
    }
    [[nodiscard]] bool isEmpty() const { return size() == 0; }

    [[nodiscard]] const T& at(int index) const {
        return isIndex(index) ? m_block->items.get()[static_cast<unsigned>(index)] : badElement();
    }
    [[nodiscard]] T& at(int index) {
        if (!isIndex(index)) {
            return badElement();
        }
        makeUnique(m_block->physical);
        return m_block->items.get()[static_cast<unsigned>(index)];
    }
    const T& operator[](int index) const { return at(index); }
    T& operator[](int index) { return at(index); }

    void setAt(int index, const T& value) {
        if (!isIndex(index)) {
            orvex::reportBadAccess(L"Invalid array index!");
            return;
        }
        T copy(value); // the value may be one of our own
        at(index) = std::move(copy);
    }
    void append(const T& value) {
        T copy(value);
        const unsigned old = size();
        setLogicalLength(old + 1);
        m_block->items.get()[old] = std::move(copy);
    }
    void resize(unsigned count) { setLogicalLength(count); }
    void clear() { setLogicalLength(0); }

    // Elements that go are set back to zero, those that come are zero.
    void setLogicalLength(unsigned count) {
        const unsigned old = size();
        if (count == old) {
            return;
        }
        makeUnique(count > physicalLength() ? m_policy.growCount(old, physicalLength(), count)
                                            : physicalLength());
        if (count < old) {
            m_block->items.clear(count, old);
        }
        m_block->logical = count;
    }
    // Room for that many elements; cuts the array when it is longer.
    void setPhysicalLength(unsigned count) {
        if (count == physicalLength()) {
            return;
        }
        if (count < size()) {
            setLogicalLength(count);
        }
        reallocate(count);
    }

    [[nodiscard]] const T* data() const {
        return m_block != nullptr ? m_block->items.get() : nullptr;
    }
    // For writing: the array is made this object's alone first. Good up to the physical length.
    [[nodiscard]] T* data() {
        if (m_block == nullptr) {
            return nullptr;
        }
        makeUnique(m_block->physical);
        return m_block->items.get();
    }
    [[nodiscard]] const T* begin() const { return data(); }
    [[nodiscard]] const T* end() const { return data() + size(); }

    [[nodiscard]] const Policy& policy() const { return m_policy; }

    // Values are compared; two that share one block are equal at once.
    friend bool operator==(const VoVector& a, const VoVector& b) {
        return a.m_block == b.m_block || std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

private:
    struct Block {
        explicit Block(unsigned room) : physical(room), items(room) {}

        unsigned references = 1;
        unsigned logical = 0;
        unsigned physical = 0;
        orvex::VoVectorItems<T> items;
    };

    [[nodiscard]] bool isIndex(int index) const {
        return index >= 0 && static_cast<unsigned>(index) < size();
    }
    // A fresh zero each time: what somebody wrote to it must not show in the next bad read.
    static T& badElement() {
        orvex::reportBadAccess(L"Invalid array index!");
        static T element{};
        element = T();
        return element;
    }
    void share() {
        if (m_block != nullptr) {
            ++m_block->references;
        }
    }
    void release() {
        if (m_block != nullptr && --m_block->references == 0) {
            delete m_block;
        }
        m_block = nullptr;
    }
    void makeUnique(unsigned physical) {
        if (m_block == nullptr || m_block->references > 1 || m_block->physical != physical) {
            reallocate(physical);
        }
    }
    void reallocate(unsigned physical) {
        if (m_block != nullptr && m_block->references == 1) {
            m_block->items.resize(m_block->logical, m_block->physical, physical);
            m_block->physical = physical;
            return;
        }
        auto fresh = std::make_unique<Block>(physical);
        if (m_block != nullptr) {
            fresh->items.copyFrom(m_block->items, m_block->logical,
                                  std::min(m_block->physical, physical));
            fresh->logical = m_block->logical;
        }
        release();
        m_block = fresh.release();
    }

    Block* m_block = nullptr; // owned together with all copies that share it
    [[no_unique_address]] Policy m_policy{};
};
