#pragma once

#include "KdDbStub.h"

#include <string>
#include <string_view>

namespace orvex {

class DatabaseCore;

// The dictionaries and tables that every drawing has, and what is found in them by name.
class WellKnownObjects {
public:
    explicit WellKnownObjects(DatabaseCore& core) : m_core(core) {}

    // Null where the drawing has none and none was made.
    KdDbStub* rootDictionary = nullptr;
    KdDbStub* styleDictionary = nullptr;
    KdDbStub* layerTable = nullptr;
    KdDbStub* linetypeTable = nullptr;
    KdDbStub* blockTable = nullptr;

    // Makes in memory whatever of these is missing, the style STANDARD included. None of it counts
    // as a change: it is written once something that is written refers to it, and has no handle
    // until then.
    void completeDefaults();
    // The three tables, empty where they are missing; no change either.
    void completeTables();

    // By the key in the dictionary of styles, else by the style's own name; ignores case. Null
    // where the entry's object isn't there or is no style.
    [[nodiscard]] KdDbStub* findStyle(std::wstring_view name) const;
    // The name that finds the style again: its own, or its key where that finds another one.
    [[nodiscard]] std::wstring nameOfStyle(KdDbStub& style) const;
    [[nodiscard]] KdDbStub* findLayer(std::wstring_view name) const;
    [[nodiscard]] KdDbStub* findLinetype(std::wstring_view name) const;

private:
    DatabaseCore& m_core;
};

} // namespace orvex
