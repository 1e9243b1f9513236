#pragma once

#include <QString>
#include <QStringList>

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
        return list[static_cast<decltype(list.size())>(below(static_cast<int>(list.size())))];
    }
    QString of(const char* words) {
        const QStringList all = QString::fromLatin1(words).split('|');
        return all[below(all.size())];
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace orvex::testing
