#include "dictionarySearch.h"

#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbDictionary.h"
#include "KdDocument.h"
#include "Opened.h"
#include "WellKnownObjects.h"
#include "kddbObjects.h"
#include "promptStatus.h"

int kddbNamedObjDict(long* name) {
    KdDocument* const document = curDoc();
    if (name == nullptr || document == nullptr || document->database() == nullptr) {
        return kPromptError;
    }
    KdDbStub* const root = document->database()->core().wellKnown().rootDictionary;
    if (root == nullptr) {
        return kPromptError;
    }
    kddbGetEntityName(name, KdDbObjectId(root));
    return kPromptNormal;
}

resbuf* kddbDictSearch(const long* dictionary, const wchar_t* key, int /*next*/) {
    if (dictionary == nullptr || key == nullptr) {
        return nullptr;
    }
    KdDbObjectId id;
    kddbGetObjectId(id, dictionary);
    KdDbObjectId entry;
    if (const orvex::Opened<KdDbDictionary> opened(id, kForRead); opened) {
        opened->getAt(key, entry);
    }
    if (entry.isNull()) {
        return nullptr;
    }
    auto* const result = new resbuf;
    result->restype = kResultObjectName;
    kddbGetEntityName(result->resval.rlname, entry);
    return result;
}
