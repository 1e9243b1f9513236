#include "CArchive.h"

#include "CMemFile.h"

CArchive::CArchive(CMemFile* file, unsigned mode, int /*bufferSize*/)
    : m_file(file), m_mode(mode) {}

unsigned CArchive::Read(void* target, unsigned count) {
    return m_file != nullptr && IsLoading() ? m_file->Read(target, count) : 0;
}

unsigned CArchive::Write(const void* source, unsigned count) {
    return m_file != nullptr && IsStoring() ? m_file->Write(source, count) : 0;
}
