#pragma once

#include "HeaderVariables.h"
#include "KdDbStub.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvex {

class ObjectContent;

// What commands changed, so that whole commands can be taken back. During a command it keeps what
// each object and variable was before its first change; at the end what turns out the same as
// before is dropped, and the rest becomes a step. Contents share memory with the objects until
// either side changes.
class UndoLog {
public:
    // About as much memory as all steps may hold. The oldest go first; the latest always stays.
    static constexpr std::size_t kMemoryLimit = std::size_t{64} << 20U;

    explicit UndoLog(DatabaseCore& core) : m_core(core) {}

    void begin();
    // Before an object changes; only the first time in a command counts.
    void keep(KdDbStub& stub);
    // After an object was made.
    void keepMade(KdDbStub& stub);
    void keepVariable(std::string_view name);
    // True when it made a step.
    bool end();

    // Takes the last step back; false when there is none.
    bool undo();
    [[nodiscard]] std::size_t depth() const { return m_steps.size(); }

private:
    struct Image {
        KdDbStub* stub = nullptr;
        std::shared_ptr<const ObjectContent> content; // null for one that wasn't in memory
        bool erased = false;
    };
    struct Step {
        std::vector<Image> images; // in the order of first changes
        std::map<std::string, std::optional<HeaderValue>, std::less<>> variables;
        std::uint64_t highestHandle = 0;
        std::size_t memory = 0; // bytes, about
    };
    void keepImage(Image image);
    [[nodiscard]] bool isAsBefore(const Image& image) const;
    [[nodiscard]] bool isAsBefore(std::string_view name,
                                  const std::optional<HeaderValue>& value) const;
    void dropWhatIsAsBefore(Step& step) const;
    void restoreVariables(const Step& step);
    void keepWithinLimit();

    DatabaseCore& m_core;
    Step m_current;
    std::unordered_map<const KdDbStub*, std::size_t> m_places; // of stubs in m_current.images
    std::deque<Step> m_steps;
    std::size_t m_memory = 0;
};

} // namespace orvex
