#pragma once

#include "KdDbObjectId.h"
#include "Status.h"

#include <memory>

class KdDbBlockTable;
class KdDbDictionary;

namespace orvex {
class DatabaseCore;
}

// The objects of one drawing. Objects keep their addresses until the database is deleted, which may
// happen with objects still open in it.
class KdDbDatabase {
public:
    // With `buildDefaults` it holds what every drawing has: the tables with their fixed entries,
    // model and paper space, and the style STANDARD. Without, it is empty. The second argument
    // says that no document goes with it.
    explicit KdDbDatabase(bool buildDefaults = true, bool noDocument = false);
    ~KdDbDatabase();
    KdDbDatabase(const KdDbDatabase&) = delete;
    KdDbDatabase& operator=(const KdDbDatabase&) = delete;

    // Always there, if empty.
    [[nodiscard]] KdDbObjectId linetypeTableId() const;
    [[nodiscard]] KdDbObjectId layerTableId() const;
    [[nodiscard]] KdDbObjectId blockTableId() const;

    // Open the object for the caller; null on failure.
    Status getBlockTable(KdDbBlockTable*& table, int mode) const;
    Status getMLStyleDictionary(KdDbDictionary*& dictionary, int mode) const;

    [[nodiscard]] KdDbObjectId clayer() const;   // current layer
    [[nodiscard]] KdDbObjectId cmlstyle() const; // current multiline style
    void setMeasurement(int measurement);        // 0 imperial, 1 metric

    // The host's own view of it.
    [[nodiscard]] orvex::DatabaseCore& core() const { return *m_core; }

private:
    std::unique_ptr<orvex::DatabaseCore> m_core;
};
