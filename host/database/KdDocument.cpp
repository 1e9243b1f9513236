#include "KdDocument.h"

#include <utility>

namespace {

KdDocument* theDocument = nullptr;

} // namespace

KdDocument* curDoc() {
    return theDocument;
}

namespace orvex {

KdDocument* setCurrentDocument(KdDocument* document) {
    return std::exchange(theDocument, document);
}

} // namespace orvex
