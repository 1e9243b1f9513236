#pragma once

#include "resbuf.h"

#include <span>
#include <string_view>

namespace orvex {

// Where the value of a system variable lives.
enum class VariableHome {
    header,     // the open drawing; undone and saved with it
    session,    // this run of the program
    viewHeight, // the active view
    viewCenter, //
    lastPoint,  // this run, kept in world coordinates, read and set in the user's
    fixed,      // one value for ever, which may be set but not changed
};

// What a text has to name.
enum class NamedThing { any, style, layer, linetype };

struct VariableRow {
    std::string_view name;
    ResultType type = kResultNone; // short, real, point or text
    VariableHome home = VariableHome::header;
    double low = 0.0; // of shorts and reals; a real's bounds are not values of it
    double high = 0.0;
    NamedThing named = NamedThing::any;
    double fixed[3] = {0.0, 0.0, 0.0};
};

std::span<const VariableRow> variableTable();

// Null for an unknown name. Names ignore case.
const VariableRow* findVariable(std::wstring_view name);

} // namespace orvex
