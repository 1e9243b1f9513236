#include "CommandResources.h"

#include "moduleObjects.h"
#include "resourceLibrary.h"

CommandResources::CommandResources() : m_library(loadResourceDll(kResourceLibrary)) {
    if (m_library != nullptr) {
        m_before = AfxGetResourceHandle();
        AfxSetResourceHandle(m_library);
    }
}

CommandResources::~CommandResources() {
    if (m_library != nullptr) {
        AfxSetResourceHandle(m_before);
        AfxFreeLibrary(m_library);
    }
}
