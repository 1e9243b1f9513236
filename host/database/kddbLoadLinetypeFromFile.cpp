#include "KdDbDatabase.h"
#include "KdDbLinetypeTable.h"
#include "LinetypeFile.h"
#include "Opened.h"
#include "kddbObjects.h"
#include "supportFiles.h"
#include "textCodec.h"

#include <fstream>
#include <iterator>
#include <optional>
#include <utility>

namespace orvex {

namespace {

SupportFileFinder& supportFileFinder() {
    static SupportFileFinder finder;
    return finder;
}

std::optional<LinetypeDefinition> readDefinition(const wchar_t* file, const wchar_t* name) {
    if (supportFileFinder() == nullptr) {
        return std::nullopt;
    }
    const std::wstring path = supportFileFinder()(file);
    if (path.empty()) {
        return std::nullopt;
    }
    std::ifstream stream(narrow(path), std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    return findLinetypeDefinition(text, name);
}

} // namespace

SupportFileFinder setSupportFileFinder(SupportFileFinder finder) {
    return std::exchange(supportFileFinder(), std::move(finder));
}

} // namespace orvex

Status kddbLoadLinetypeFromFile(const wchar_t* file, const wchar_t* name, KdDbObjectId& id,
                                KdDbDatabase* database, int /*unused*/) {
    id = KdDbObjectId();
    if (file == nullptr || name == nullptr || database == nullptr) {
        return Status::invalidInput;
    }
    const orvex::Opened<KdDbLinetypeTable> table(database->linetypeTableId(), kForRead);
    if (!table) {
        return table.status();
    }
    Status status = table->getAt(name, id);
    if (status != Status::done) {
        if (const auto definition = orvex::readDefinition(file, name)) {
            auto record = std::make_unique<KdDbLinetypeTableRecord>();
            record->setName(definition->name.c_str());
            record->setComments(definition->description.c_str());
            record->setDashes(definition->dashes);
            status = table->add(id, record.get());
            if (status == Status::done) {
                static_cast<void>(record.release()); // the table's now
            }
        }
    }
    return status;
}
