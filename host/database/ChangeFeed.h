#pragma once

#include <cstdint>
#include <vector>

struct KdDbStub;

namespace orvex {

class ChangeLog;
class DatabaseCore;

// Collects which objects were changed, made, erased or brought back, each once until it is taken.
// Views settle what they derive from objects when they are asked next, never per setter. A feed
// may outlive its database and is empty from then on. A database serves up to eight at a time;
// more are refused by std::length_error.
class ChangeFeed {
public:
    explicit ChangeFeed(DatabaseCore& core);
    ~ChangeFeed();
    ChangeFeed(const ChangeFeed&) = delete;
    ChangeFeed& operator=(const ChangeFeed&) = delete;

    // What changed since the last call. An object that goes on changing is told again.
    [[nodiscard]] std::vector<KdDbStub*> take();
    [[nodiscard]] bool isEmpty() const { return m_pending.empty(); }

private:
    friend class ChangeLog;
    ChangeLog* m_log; // null once the database is gone
    std::uint8_t m_bit = 0;
    std::vector<KdDbStub*> m_pending;
};

} // namespace orvex
