#include "KdDbDatabase.h"

#include "DatabaseCore.h"
#include "KdDbBlockTable.h"
#include "KdDbDictionary.h"
#include "kddbObjects.h"

KdDbDatabase::KdDbDatabase(bool buildDefaults, bool /*noDocument*/)
    : m_core(std::make_unique<orvex::DatabaseCore>(this)) {
    if (buildDefaults) {
        m_core->completeDefaults();
        for (KdDbStub& stub : m_core->stubs()) {
            m_core->ensureHandle(stub);
        }
    }
}

KdDbDatabase::~KdDbDatabase() = default;

KdDbObjectId KdDbDatabase::linetypeTableId() const {
    m_core->completeTables();
    return KdDbObjectId(m_core->linetypeTable);
}

KdDbObjectId KdDbDatabase::layerTableId() const {
    m_core->completeTables();
    return KdDbObjectId(m_core->layerTable);
}

KdDbObjectId KdDbDatabase::blockTableId() const {
    m_core->completeTables();
    return KdDbObjectId(m_core->blockTable);
}

Status KdDbDatabase::getBlockTable(KdDbBlockTable*& table, int mode) const {
    return kddbOpenObject(table, blockTableId(), mode);
}

Status KdDbDatabase::getMLStyleDictionary(KdDbDictionary*& dictionary, int mode) const {
    return kddbOpenObject(dictionary, KdDbObjectId(m_core->styleDictionary), mode);
}

KdDbObjectId KdDbDatabase::clayer() const {
    KdDbStub* const layer = m_core->findLayer(m_core->variables().text("CLAYER"));
    return KdDbObjectId(layer != nullptr ? layer : m_core->findLayer(L"0"));
}

KdDbObjectId KdDbDatabase::cmlstyle() const {
    KdDbStub* const style = m_core->findStyle(m_core->variables().text("CMLSTYLE"));
    return KdDbObjectId(style != nullptr ? style : m_core->findStyle(L"STANDARD"));
}

void KdDbDatabase::setMeasurement(int measurement) {
    m_core->setVariable("MEASUREMENT", measurement);
}
