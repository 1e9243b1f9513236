#include "CKdExtensionModule.h"

#include "resourceLibrary.h"

bool CKdExtensionModule::AttachInstance(HINSTANCE module) {
    if (m_attached) {
        return false;
    }
    m_attached = true;
    m_defaultResourceHandle = AfxGetResourceHandle();
    m_moduleResourceHandle = module;
    return m_attached;
}

void CKdExtensionModule::DetachInstance() {
    m_attached = false;
}
