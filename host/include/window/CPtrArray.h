#pragma once

#include <vector>

// An array of pointers, which it doesn't own.
class CPtrArray {
public:
    int Add(void* pointer) { // its index
        m_pointers.push_back(pointer);
        return GetSize() - 1;
    }
    [[nodiscard]] void* GetAt(int index) const { // null outside
        return index >= 0 && index < GetSize() ? m_pointers[index] : nullptr;
    }
    [[nodiscard]] int GetSize() const { return static_cast<int>(m_pointers.size()); }
    void RemoveAll() { m_pointers.clear(); }

private:
    std::vector<void*> m_pointers;
};
