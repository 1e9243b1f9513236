#pragma once

// Writes to the command line. Texts that come from a file are printed with "%ls" only. Understands
// %d, %u, %ls, %s, %f and %.Nf with a point as decimal separator.
int kdutPrintf(const wchar_t* format, ...);
