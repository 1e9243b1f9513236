#include "LoadLocalCmdStr.h"

#include "moduleObjects.h"

CStdStr<wchar_t> LoadLocalCmdStr(unsigned int number) {
    CStdStr<wchar_t> text;
    text.LoadStringW(hResModule, number);
    return text;
}
