#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace orvex::testing {

// Chance that is the same for a seed on every platform.
class Chance {
public:
    explicit Chance(std::uint64_t seed) : m_engine(seed) {}

    // From 0 up to but not including `count`.
    int below(int count) {
        return count > 0 ? static_cast<int>(m_engine() % static_cast<std::uint64_t>(count)) : 0;
    }
    bool oneIn(int count) { return below(count) == 0; }
    double between(double low, double high) {
        return low + (high - low) * (below(1 << 20) / double(1 << 20));
    }
    template <class List>
    auto& of(List& list) {
        return list[static_cast<decltype(list.size())>(place(list))];
    }
    template <class Value, std::size_t count>
    auto& of(Value (&list)[count]) {
        return list[below(count)];
    }
    // An index of a list that isn't empty.
    template <class List>
    std::size_t place(const List& list) {
        return static_cast<std::size_t>(below(static_cast<int>(list.size())));
    }
    // Any number of up to 64 bits, small ones as often as large ones.
    std::uint64_t word() { return m_engine() >> below(64); }

private:
    std::mt19937_64 m_engine;
};

} // namespace orvex::testing
