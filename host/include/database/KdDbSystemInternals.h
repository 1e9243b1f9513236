#pragma once

class KdDbMline;
class KdDbMlineImp;

// The way from an object of the interface to its implementation object.
class KdDbSystemInternals {
public:
    // Null for null. Works for a multiline outside any database too.
    static KdDbMlineImp* getImpObject(const KdDbMline* mline);
};
