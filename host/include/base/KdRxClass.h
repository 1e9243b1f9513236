#pragma once

// A class of the host's object model, known by its address.
class KdRxClass {
public:
    constexpr KdRxClass(const wchar_t* name, const KdRxClass* parent)
        : m_name(name), m_parent(parent) {}

    [[nodiscard]] const wchar_t* name() const { return m_name; }

    // True for the class itself too.
    [[nodiscard]] bool isDerivedFrom(const KdRxClass* ancestor) const {
        for (const KdRxClass* each = this; each != nullptr; each = each->m_parent) {
            if (each == ancestor) {
                return true;
            }
        }
        return false;
    }

private:
    const wchar_t* m_name;
    const KdRxClass* m_parent;
};
