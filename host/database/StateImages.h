#pragma once

#include "HeaderVariables.h"
#include "KdDbStub.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace orvex {

class ObjectContent;

// What objects, variables and the supply of handles were at some moment, as far as they changed
// since. Contents share memory with the objects until either side changes.
class StateImages {
public:
    // The moment is now.
    explicit StateImages(DatabaseCore& core);

    // Before an object or variable changes; only the first time counts.
    void keep(KdDbStub& stub);
    void keepVariable(std::string_view name);
    // After an object was made.
    void keepMade(KdDbStub& stub);
    // What changed after a later moment, which begins where this ends.
    void append(StateImages&& later);

    // Forgets what is the same now as it was then.
    void dropWhatIsAsBefore();
    // Nothing more is going to be kept.
    void finish();
    // Nothing is kept but used-up handles, which objects made and erased again leave.
    [[nodiscard]] bool isEmpty() const;

    // Makes the drawing what it was then, and keeps what it was until now instead.
    void exchange();
    // Only the variables and the supply of handles; the objects are as they were.
    void restoreVariables() const;

    [[nodiscard]] std::size_t memoryUse() const; // bytes, about
    [[nodiscard]] std::uint64_t highestHandle() const { return m_highestHandle; }
    [[nodiscard]] std::size_t countEntities() const;
    [[nodiscard]] std::size_t countMultilines() const;

private:
    struct Image {
        KdDbStub* stub = nullptr;
        std::shared_ptr<const ObjectContent> content; // null for one that wasn't in memory
        bool erased = false;
    };
    using Variables = std::map<std::string, std::optional<HeaderValue>, std::less<>>;

    static Image imageOf(KdDbStub& stub);
    [[nodiscard]] std::optional<HeaderValue> valueOf(std::string_view name) const;
    void keepImage(Image image);
    void exchangeImage(Image& image);

    DatabaseCore* m_core;
    std::vector<Image> m_images; // in the order of first changes
    std::unordered_set<const KdDbStub*> m_kept;
    Variables m_variables;
    std::uint64_t m_highestHandle;
};

} // namespace orvex
