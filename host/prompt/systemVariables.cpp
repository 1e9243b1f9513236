#include "systemVariables.h"

#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDocument.h"
#include "PromptSession.h"
#include "WellKnownObjects.h"
#include "hostHeap.h"
#include "promptStatus.h"
#include "textCodec.h"
#include "userFrame.h"
#include "variableTable.h"

#include <cmath>
#include <optional>

namespace {

using orvex::DatabaseCore;
using orvex::HeaderValue;
using orvex::NamedThing;
using orvex::PromptSession;
using orvex::VariableHome;
using orvex::VariableRow;

DatabaseCore* openDrawing() {
    KdDocument* const document = curDoc();
    return document != nullptr && document->database() != nullptr ? &document->database()->core()
                                                                  : nullptr;
}

// A value of one of the table's types, before it is a result buffer.
using Value = HeaderValue;

int& sessionVariable(const VariableRow& row) {
    PromptSession& session = PromptSession::current();
    if (row.name == "PICKBOX") {
        return session.pickBox;
    }
    return row.name == "ERRNO" ? session.errorNumber : session.dimzin;
}

// A drawing that has a session's variable of its own keeps it.
bool isStored(const VariableRow& row) {
    const DatabaseCore* const drawing = openDrawing();
    return row.home == VariableHome::header ||
           (row.name == "DIMZIN" && drawing != nullptr && drawing->variables().has(row.name));
}

std::optional<Value> headerValue(const VariableRow& row) {
    const DatabaseCore* const drawing = openDrawing();
    if (drawing == nullptr) {
        return std::nullopt;
    }
    switch (row.type) {
    case kResultShort:
        return drawing->variables().integer(row.name);
    case kResultReal:
        return drawing->variables().real(row.name);
    case kResultPoint:
        return drawing->variables().point(row.name);
    default:
        return drawing->variables().text(row.name);
    }
}

std::optional<Value> currentValue(const VariableRow& row) {
    if (isStored(row)) {
        return headerValue(row);
    }
    const orvex::DisplayListener* const display = PromptSession::current().display;
    switch (row.home) {
    case VariableHome::session:
        return sessionVariable(row);
    case VariableHome::viewHeight:
        return display != nullptr ? std::optional<Value>(display->viewHeight()) : std::nullopt;
    case VariableHome::viewCenter:
        return display != nullptr ? std::optional<Value>(display->viewCenter()) : std::nullopt;
    case VariableHome::lastPoint:
        return orvex::worldToUser(PromptSession::current().lastPoint);
    default:
        break;
    }
    if (row.type == kResultPoint) {
        return KdGePoint3d{row.fixed[0], row.fixed[1], row.fixed[2]};
    }
    return row.type == kResultShort ? Value(static_cast<int>(row.fixed[0])) : Value(row.fixed[0]);
}

bool fillResult(const VariableRow& row, const Value& value, resbuf& result) {
    if (row.type == kResultShort) {
        const auto* const number = std::get_if<int>(&value);
        result.resval.rint = static_cast<short>(number != nullptr ? *number : 0);
    } else if (row.type == kResultReal) {
        result.resval.rreal = std::get<double>(value);
    } else if (row.type == kResultPoint) {
        const auto& point = std::get<KdGePoint3d>(value);
        result.resval.rpoint[0] = point.x;
        result.resval.rpoint[1] = point.y;
        result.resval.rpoint[2] = point.z;
    } else {
        wchar_t* copy = nullptr;
        if (kdutNewString(std::get<std::wstring>(value).c_str(), copy) != Status::done) {
            return false;
        }
        result.resval.rstring = copy;
    }
    result.restype = row.type;
    return true;
}

// The name as it is stored; nothing when it names nothing. A style is known to other programs by
// its own spelling alone.
std::optional<std::wstring> storedName(NamedThing kind, const std::wstring& name) {
    const DatabaseCore* const drawing = openDrawing();
    if (drawing == nullptr) {
        return std::nullopt;
    }
    bool isThere = true;
    switch (kind) {
    case NamedThing::style: {
        KdDbStub* const style = drawing->wellKnown().findStyle(name);
        return style != nullptr ? std::optional(drawing->wellKnown().nameOfStyle(*style))
                                : std::nullopt;
    }
    case NamedThing::layer:
        isThere = drawing->wellKnown().findLayer(name) != nullptr;
        break;
    case NamedThing::linetype: {
        const std::wstring folded = orvex::foldCase(name);
        isThere = folded == L"BYLAYER" || folded == L"BYBLOCK" ||
                  drawing->wellKnown().findLinetype(name) != nullptr;
        break;
    }
    case NamedThing::any:
        break;
    }
    return isThere ? std::optional(name) : std::nullopt;
}

std::optional<double> numberOf(const resbuf& value) {
    switch (value.restype) {
    case kResultReal:
    case kResultAngle:
        return value.resval.rreal;
    case kResultShort:
        return value.resval.rint;
    case kResultLong:
        return value.resval.rlong;
    default:
        return std::nullopt;
    }
}

// The value as the row's type; nothing where it doesn't convert without loss or isn't allowed.
std::optional<Value> acceptedValue(const VariableRow& row, const resbuf& given) {
    if (row.type == kResultText) {
        if (given.restype != kResultText || given.resval.rstring == nullptr) {
            return std::nullopt;
        }
        return storedName(row.named, given.resval.rstring);
    }
    if (row.type == kResultPoint) {
        const double* const p = given.resval.rpoint;
        const bool isPoint = given.restype == kResultPoint && std::isfinite(p[0]) &&
                             std::isfinite(p[1]) && std::isfinite(p[2]);
        return isPoint ? std::optional<Value>(KdGePoint3d{p[0], p[1], p[2]}) : std::nullopt;
    }
    const std::optional<double> number = numberOf(given);
    if (!number || !std::isfinite(*number)) {
        return std::nullopt;
    }
    if (row.type == kResultShort) {
        const bool fits = *number >= row.low && *number <= row.high &&
                          *number == std::trunc(*number) && std::abs(*number) <= 32767.0;
        return fits ? std::optional<Value>(static_cast<int>(*number)) : std::nullopt;
    }
    return *number > row.low && *number < row.high ? std::optional<Value>(*number) : std::nullopt;
}

bool store(const VariableRow& row, const Value& value) {
    if (isStored(row)) {
        DatabaseCore* const drawing = openDrawing();
        if (drawing == nullptr) {
            return false;
        }
        drawing->setVariable(row.name, value);
        return true;
    }
    orvex::DisplayListener* const display = PromptSession::current().display;
    switch (row.home) {
    case VariableHome::session:
        sessionVariable(row) = std::get<int>(value);
        return true;
    case VariableHome::viewHeight:
        if (display != nullptr) {
            display->setViewHeight(std::get<double>(value));
        }
        return display != nullptr;
    case VariableHome::viewCenter:
        if (display != nullptr) {
            display->setViewCenter(std::get<KdGePoint3d>(value));
        }
        return display != nullptr;
    case VariableHome::lastPoint:
        PromptSession::current().lastPoint = orvex::userToWorld(std::get<KdGePoint3d>(value));
        return true;
    default:
        return currentValue(row) == value;
    }
}

} // namespace

int kdedGetVar(const wchar_t* name, resbuf* result) {
    if (result == nullptr) {
        return kPromptError;
    }
    result->restype = kResultNone;
    result->resval = {.rpoint = {0.0, 0.0, 0.0}};
    const VariableRow* const row = name != nullptr ? orvex::findVariable(name) : nullptr;
    const std::optional<Value> value = row != nullptr ? currentValue(*row) : std::nullopt;
    return value && fillResult(*row, *value, *result) ? kPromptNormal : kPromptError;
}

int kdedSetVar(const wchar_t* name, const resbuf* value) {
    const VariableRow* const row = name != nullptr ? orvex::findVariable(name) : nullptr;
    if (row == nullptr || value == nullptr) {
        return kPromptError;
    }
    const std::optional<Value> accepted = acceptedValue(*row, *value);
    return accepted && store(*row, *accepted) ? kPromptNormal : kPromptError;
}
