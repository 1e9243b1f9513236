#pragma once

#include <cstddef>

namespace orvex {

// All of an object but its identity, as a value. Undo keeps it, saving compares it.
class ObjectContent {
public:
    virtual ~ObjectContent() = default;

    // Bit for bit as far as the file can tell; false for another kind of content.
    [[nodiscard]] virtual bool equals(const ObjectContent& other) const = 0;

    // Bytes that would come free with it, about; what it shares with others doesn't count.
    [[nodiscard]] virtual std::size_t memoryUse() const { return 64; }
};

} // namespace orvex
