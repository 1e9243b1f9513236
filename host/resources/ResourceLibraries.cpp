#include "ResourceLibraries.h"

#include "readFile.h"
#include "resourceFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QResource>
#include <QTranslator>

namespace orvex {

namespace {

constexpr std::uint64_t kLargestLibrary = 256UL << 20;

const uchar* bytesOf(const QByteArray& library) {
    return reinterpret_cast<const uchar*>(library.constData());
}

QByteArray readEntry(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// Does nothing in a program without an application of Qt's, which shows no captions.
class ResourceLibraries::Captions {
public:
    explicit Captions(QByteArray compiled) : m_compiled(std::move(compiled)) {
        const auto* const bytes = reinterpret_cast<const uchar*>(m_compiled.constData());
        if (QCoreApplication::instance() != nullptr &&
            m_translator.load(bytes, m_compiled.size())) {
            QCoreApplication::installTranslator(&m_translator); // removed by its destructor
        }
    }

private:
    QByteArray m_compiled; // read by the translator
    QTranslator m_translator;
};

ResourceLibraries::ResourceLibraries() = default;
ResourceLibraries::~ResourceLibraries() = default;

ResourceLibraries& ResourceLibraries::instance() {
    static ResourceLibraries libraries;
    return libraries;
}

bool ResourceLibraries::refuse(const Library& library, const std::string& why) {
    m_refusal = locatedText(library.path, 0, why);
    return false;
}

// Qt is given the bytes that were checked: the file may change, or be cut, under its reader.
bool ResourceLibraries::load(Library& library) {
    const auto read = readRegularFile(library.path, {}, kLargestLibrary);
    if (!read) {
        return refuse(library, read.failure().text);
    }
    if (const auto fault = findFaultOfResourceFile(*read)) {
        return refuse(library, "the file is damaged: " + *fault);
    }
    library.bytes = QByteArray(read->data(), static_cast<int>(read->size()));
    // Several libraries have these entries, so each is read under a root of its own first.
    const QString privateRoot = QStringLiteral("/orvex-texts");
    if (!QResource::registerResource(bytesOf(library.bytes), privateRoot)) {
        return refuse(library, "the file is compressed in a way that can't be read here");
    }
    const QByteArray texts = readEntry(QStringLiteral(":/orvex-texts/texts.txt"));
    QByteArray captions = readEntry(QStringLiteral(":/orvex-texts/captions.qm"));
    QResource::unregisterResource(bytesOf(library.bytes), privateRoot);
    QResource::registerResource(bytesOf(library.bytes));
    library.texts = parseTextTable({texts.constData(), static_cast<std::size_t>(texts.size())});
    if (!captions.isEmpty()) {
        library.captions = std::make_unique<Captions>(std::move(captions));
    }
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
        if (!QResource::unregisterResource(bytesOf(library->bytes))) {
            m_stillUsed.push_back(library->bytes);
        }
        library->bytes.clear();
        library->texts.clear();
        library->captions.reset();
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
