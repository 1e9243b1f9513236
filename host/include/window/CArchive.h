#pragma once

class CMemFile;

// A one-way passage into or out of a file, which has to outlive it.
class CArchive {
public:
    enum Mode : unsigned { store = 0, load = 1 };

    // The size of the buffer is taken for the interface's sake: a file in memory needs none.
    CArchive(CMemFile* file, unsigned mode, int bufferSize = 4096);

    [[nodiscard]] bool IsStoring() const { return m_mode == store; }
    [[nodiscard]] bool IsLoading() const { return m_mode == load; }

    // 0 in the other mode, and when closed.
    unsigned Read(void* target, unsigned count);
    unsigned Write(const void* source, unsigned count);
    void Close() { m_file = nullptr; }

private:
    CMemFile* m_file;
    unsigned m_mode;
};
