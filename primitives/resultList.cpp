#include "resultList.h"

short gx_Associate(resbuf* list, short type, resbuf** out) {
    // A list that was tied into a ring ends when the runner meets the walker at half its speed.
    const resbuf* walker = list;
    bool walks = false;
    for (resbuf* entry = list; entry != nullptr;) {
        if (entry->restype == type) {
            *out = entry;
            return 0;
        }
        entry = entry->rbnext;
        walker = walks ? walker->rbnext : walker;
        walks = !walks;
        if (entry == walker) {
            return -1;
        }
    }
    return -1;
}
