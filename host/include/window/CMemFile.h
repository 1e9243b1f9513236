#pragma once

#include <vector>

// A file in memory.
class CMemFile {
public:
    CMemFile() = default;
    // Reads and overwrites a buffer that stays the caller's; it doesn't grow.
    CMemFile(unsigned char* data, unsigned size);

    [[nodiscard]] unsigned long GetLength() const;
    unsigned Read(void* target, unsigned count);        // how many came
    unsigned Write(const void* source, unsigned count); // how many went
    void SeekToBegin() { m_position = 0; }

    // The content, and the file is empty then. Own content is new memory that the caller releases
    // with delete[], null when there is none; an attached buffer comes back as it is.
    unsigned char* Detach();

private:
    unsigned char* m_attached = nullptr;
    unsigned m_attachedSize = 0;
    std::vector<unsigned char> m_own;
    unsigned long m_position = 0;
};
