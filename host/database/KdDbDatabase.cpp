#include "KdDbDatabase.h"

#include "DatabaseCore.h"
#include "KdDbBlockTable.h"
#include "KdDbDictionary.h"
#include "ObjectTable.h"
#include "WellKnownObjects.h"
#include "kddbObjects.h"

KdDbDatabase::KdDbDatabase(bool buildDefaults, bool /*noDocument*/)
    : m_core(std::make_unique<orvex::DatabaseCore>(this)) {
    if (buildDefaults) {
        m_core->wellKnown().completeDefaults();
        for (KdDbStub& stub : m_core->objects().stubs()) {
            m_core->objects().ensureHandle(stub);
        }
    }
}

KdDbDatabase::~KdDbDatabase() = default;

KdDbObjectId KdDbDatabase::linetypeTableId() const {
    m_core->wellKnown().completeTables();
    return KdDbObjectId(m_core->wellKnown().linetypeTable);
}

KdDbObjectId KdDbDatabase::layerTableId() const {
    m_core->wellKnown().completeTables();
    return KdDbObjectId(m_core->wellKnown().layerTable);
}

KdDbObjectId KdDbDatabase::blockTableId() const {
    m_core->wellKnown().completeTables();
    return KdDbObjectId(m_core->wellKnown().blockTable);
}

Status KdDbDatabase::getBlockTable(KdDbBlockTable*& table, int mode) const {
    return kddbOpenObject(table, blockTableId(), mode);
}

Status KdDbDatabase::getMLStyleDictionary(KdDbDictionary*& dictionary, int mode) const {
    return kddbOpenObject(dictionary, KdDbObjectId(m_core->wellKnown().styleDictionary), mode);
}

KdDbObjectId KdDbDatabase::clayer() const {
    KdDbStub* const layer = m_core->wellKnown().findLayer(m_core->variables().text("CLAYER"));
    return KdDbObjectId(layer != nullptr ? layer : m_core->wellKnown().findLayer(L"0"));
}

KdDbObjectId KdDbDatabase::cmlstyle() const {
    KdDbStub* const style = m_core->wellKnown().findStyle(m_core->variables().text("CMLSTYLE"));
    return KdDbObjectId(style != nullptr ? style : m_core->wellKnown().findStyle(L"STANDARD"));
}

void KdDbDatabase::setMeasurement(int measurement) {
    m_core->setVariable("MEASUREMENT", measurement);
}
