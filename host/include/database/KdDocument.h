#pragma once

class KdDbDatabase;

// The drawing that the user has open.
class KdDocument {
public:
    explicit KdDocument(KdDbDatabase* database) : m_database(database) {}

    [[nodiscard]] KdDbDatabase* database() const { return m_database; }

private:
    KdDbDatabase* m_database; // not owned
};

// The open document; null when there is none.
KdDocument* curDoc();

namespace orvex {

// Makes a document the open one (null for none) and returns the one before. Not owned.
KdDocument* setCurrentDocument(KdDocument* document);

} // namespace orvex
