#pragma once

#include <string>

namespace orvex {

// The host's root folder with "/" at its end: ORVEX_ROOT where that is set, else where the
// programs' data lie.
std::wstring rootFolder();

// A file of the support path by bare name ("orvex.lin"); empty when there is none.
std::wstring findSupportFile(const std::wstring& name);

} // namespace orvex

// The root folder as dialogs ask for it.
class KdDbHostApplicationServices {
public:
    [[nodiscard]] const wchar_t* rootFolder() const; // ends in "/"
};
KdDbHostApplicationServices* kddbHostApplicationServices();
