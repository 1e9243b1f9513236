#include "variableText.h"

#include "hostHeap.h"
#include "hostText.h"
#include "promptStatus.h"
#include "systemVariables.h"
#include "textCodec.h"
#include "typedAnswer.h"
#include "typedPoint.h"
#include "variableTable.h"

#include <array>
#include <charconv>
#include <cmath>

namespace orvex {

namespace {

std::wstring realText(double value) {
    std::array<char, 32> buffer{};
    char* const end = std::to_chars(buffer.begin(), buffer.end(), value).ptr;
    return {buffer.begin(), end};
}

// Nothing for a text that is no value of the row's type.
std::optional<resbuf> parseValue(const VariableRow& row, const std::wstring& text) {
    resbuf value;
    value.restype = row.type;
    if (row.type == kResultText) {
        return kdutNewString(text.c_str(), value.resval.rstring) == Status::done
                   ? std::optional(value)
                   : std::nullopt;
    }
    if (row.type == kResultPoint) {
        const PointReading reading = readPoint(text, {});
        const auto* const typed = std::get_if<TypedPoint>(&reading);
        if (typed == nullptr || typed->handle || text.find(L'@') != std::wstring::npos) {
            return std::nullopt;
        }
        value.resval.rpoint[0] = typed->point.x;
        value.resval.rpoint[1] = typed->point.y;
        value.resval.rpoint[2] = typed->point.z;
        return value;
    }
    const std::optional<double> number = parseReal(text);
    if (!number) {
        return std::nullopt;
    }
    value.restype = kResultReal; // a short takes it where nothing is lost
    value.resval.rreal = *number;
    return value;
}

Failure refusal(const std::wstring& reason) {
    return {FailureCause::unplayableScript, {}, 0, narrow(reason)};
}

} // namespace

std::optional<std::wstring> variableText(const std::wstring& name) {
    resbuf value;
    if (kdedGetVar(name.c_str(), &value) != kPromptNormal) {
        return std::nullopt;
    }
    switch (value.restype) {
    case kResultShort:
        return std::to_wstring(value.resval.rint);
    case kResultReal:
        return realText(value.resval.rreal);
    case kResultPoint:
        return realText(value.resval.rpoint[0]) + L',' + realText(value.resval.rpoint[1]) + L',' +
               realText(value.resval.rpoint[2]);
    case kResultText: {
        std::wstring text = value.resval.rstring;
        rvex_free(value.resval.rstring);
        return text;
    }
    default:
        return std::nullopt;
    }
}

std::optional<Failure> setVariableText(const std::wstring& name, const std::wstring& text) {
    const VariableRow* const row = findVariable(name);
    if (row == nullptr) {
        return refusal(wideHostText("there is no variable '%1'", {name}));
    }
    std::optional<resbuf> value = parseValue(*row, text);
    if (value) {
        const int status = kdedSetVar(name.c_str(), &*value);
        if (value->restype == kResultText) {
            rvex_free(value->resval.rstring);
        }
        if (status == kPromptNormal) {
            return std::nullopt;
        }
    }
    return refusal(wideHostText("'%1' is no value for %2", {text, name}));
}

} // namespace orvex
