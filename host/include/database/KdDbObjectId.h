#pragma once

#include <functional>

struct KdDbStub;

// Names an object of an open drawing, whether the object is in memory or not. Starts null. The
// stub that it points to keeps its address for the life of the database.
class KdDbObjectId {
public:
    KdDbObjectId() = default;
    explicit KdDbObjectId(KdDbStub* stub) : m_stub(stub) {}

    [[nodiscard]] bool isNull() const { return m_stub == nullptr; }
    // True when it names an object that isn't erased.
    [[nodiscard]] bool isValid() const;
    [[nodiscard]] KdDbStub* stub() const { return m_stub; }

    friend bool operator==(KdDbObjectId, KdDbObjectId) = default;

private:
    KdDbStub* m_stub = nullptr;
};

static_assert(sizeof(KdDbObjectId) == 8);

template <>
struct std::hash<KdDbObjectId> {
    std::size_t operator()(KdDbObjectId id) const noexcept {
        return std::hash<KdDbStub*>()(id.stub());
    }
};
