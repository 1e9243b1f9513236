#pragma once

// Whether the first line below a line "2" in a library is the name, after one character. It
// reads the file's bytes four at a time as characters, so it recognises nothing in a library as it
// is written.
#pragma GCC visibility push(default)
bool FindStyleName(wchar_t* path, wchar_t* name);
#pragma GCC visibility pop
