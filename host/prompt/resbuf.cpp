#include "resbuf.h"

#include "hostHeap.h"
#include "promptStatus.h"

int kdutRelRb(resbuf* list) {
    while (list != nullptr) {
        resbuf* const next = list->rbnext;
        if (list->restype == kResultText) {
            rvex_free(list->resval.rstring);
        }
        delete list;
        list = next;
    }
    return kPromptNormal;
}
