#pragma once

#include "Status.h"

namespace orvex {

// What streams report to the crash recorder. A report stops nothing: the operation that makes it
// returns and has changed nothing.
constexpr const wchar_t* kOutOfBuffer = L"Out of stream buffer!";
constexpr const wchar_t* kEndOfBuffer = L"End of stream buffer!";
constexpr const wchar_t* kOutOfBits = L"Out of stream streamBuf!";
constexpr const wchar_t* kUnknownUInt32Code = L"Unknown flag of UINT32 val!";
constexpr const wchar_t* kUnknownDoubleCode = L"Unknown flag of double val!";
constexpr const wchar_t* kNoUInt64Form = L"No form for UINT64 val!";

// The same for a failure that has a number.
void reportStatus(Status status) noexcept;

} // namespace orvex
