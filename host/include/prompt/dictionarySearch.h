#pragma once

#include "resbuf.h"

// Writes the entity name of the open drawing's root dictionary; normal or error.
int kddbNamedObjDict(long* name);

// Looks a key up in a dictionary. The list holds an item of type -1 with the entry's name; null
// for an unknown key or dictionary. Freed with kdutRelRb. `next` is taken for the interface's sake.
resbuf* kddbDictSearch(const long* dictionary, const wchar_t* key, int next);
