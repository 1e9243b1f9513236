#pragma once

#include "KdDbObjectId.h"
#include "kddbObjects.h"

namespace orvex {

// An object that is open for as long as this lives; nothing where it can't be opened or is of
// another class. For host code only: what the module opens it closes itself.
template <class Object>
class Opened {
public:
    Opened(KdDbObjectId id, int mode) : m_status(kddbOpenObject(m_object, id, mode)) {}
    ~Opened() {
        if (m_object != nullptr) {
            m_object->close();
        }
    }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

    explicit operator bool() const { return m_object != nullptr; }
    [[nodiscard]] Status status() const { return m_status; }
    [[nodiscard]] Object& operator*() const { return *m_object; }
    [[nodiscard]] Object* operator->() const { return m_object; }

private:
    Object* m_object = nullptr;
    Status m_status;
};

} // namespace orvex
