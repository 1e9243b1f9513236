#include "ResourceLibraries.h"

#include <QFile>
#include <QResource>

namespace orvex {

namespace {

QByteArray readEntry(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

ResourceLibraries::ResourceLibraries() = default;
ResourceLibraries::~ResourceLibraries() = default;

ResourceLibraries& ResourceLibraries::instance() {
    static ResourceLibraries libraries;
    return libraries;
}

bool ResourceLibraries::load(Library& library) {
    const QString file = QString::fromStdString(library.path);
    // Several libraries have a table of texts, so each is read under a root of its own first.
    const QString privateRoot = QStringLiteral("/orvex-texts");
    if (!QResource::registerResource(file, privateRoot)) {
        return false;
    }
    const QByteArray texts = readEntry(QStringLiteral(":/orvex-texts/texts.txt"));
    QResource::unregisterResource(file, privateRoot);
    if (!QResource::registerResource(file)) {
        return false;
    }
    library.texts = parseTextTable({texts.constData(), static_cast<std::size_t>(texts.size())});
    return true;
}

HINSTANCE ResourceLibraries::open(const std::string& path) {
    Library* library = nullptr;
    for (const auto& each : m_libraries) {
        if (each->path == path) {
            library = each.get();
        }
    }
    if (library == nullptr) {
        auto fresh = std::make_unique<Library>();
        fresh->path = path;
        m_libraries.push_back(std::move(fresh));
        library = m_libraries.back().get();
    }
    if (library->openings == 0 && !load(*library)) {
        return nullptr;
    }
    ++library->openings;
    return reinterpret_cast<HINSTANCE>(library);
}

bool ResourceLibraries::release(HINSTANCE handle) {
    Library* const library = find(handle);
    if (library == nullptr || library->openings == 0) {
        return false;
    }
    if (--library->openings == 0) {
        QResource::unregisterResource(QString::fromStdString(library->path));
        library->texts.clear();
    }
    return true;
}

const std::wstring* ResourceLibraries::text(HINSTANCE handle, unsigned number) const {
    const Library* const library = find(handle != nullptr ? handle : m_current);
    if (library == nullptr) {
        return nullptr;
    }
    const auto found = library->texts.find(number);
    return found == library->texts.end() ? nullptr : &found->second;
}

ResourceLibraries::Library* ResourceLibraries::find(HINSTANCE handle) const {
    // Handles come from anywhere, so they are compared and never followed.
    for (const auto& each : m_libraries) {
        if (reinterpret_cast<HINSTANCE>(each.get()) == handle) {
            return each.get();
        }
    }
    return nullptr;
}

} // namespace orvex
