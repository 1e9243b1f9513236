#pragma once

// Questions to the user, answered by the current prompt source: a script, a window, a test. Out
// arguments are written only with the status normal; every source ends in a cancel. Each prompt
// sets ERRNO to 0 first. Points are in the current user coordinate system. Prompt texts may be
// empty; null reads as empty.

// Arms the next prompt alone with a list of keywords ("Alpha Beta"); null or "" disarms. In a
// keyword the capitals are its shortest form. `flags` is always 0: empty input stays allowed.
int kdedInitGet(int flags, const wchar_t* keywords);

// The keyword of the last prompt as its list spells it, "" when there was none. Room for 2049.
int kdedGetInput(wchar_t* keyword);

// A keyword of the armed list. Room for 2049 characters.
int kdedGetKword(const wchar_t* prompt, wchar_t* keyword);

// An entity and the point where it was picked. Nothing found: error, with ERRNO 7.
int kdedEntSel(const wchar_t* prompt, long* name, double* point);

// A point; `base` may be null, else a window draws a line from it.
int kdedGetPoint(const double* base, const wchar_t* prompt, double* point);

int kdedGetReal(const wchar_t* prompt, double* value);

// A line of text with its blanks kept inside. Room for 2049 characters.
int kdedGetString(const wchar_t* prompt, wchar_t* text);
