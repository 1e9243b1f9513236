#include "HICON.h"

#include "iconHandles.h"
#include "qtText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>

#include <map>
#include <memory>

namespace {

// Handles are the addresses of what is kept here. They are compared only, so one that isn't ours
// does no harm.
using Folders = std::map<QString, std::unique_ptr<QString>>;
using Icons = std::map<QString, std::unique_ptr<QIcon>>;

Folders& folders() {
    static Folders all;
    return all;
}

Icons& icons() {
    static Icons all;
    return all;
}

template <class Handle, class Map>
auto* behind(const Map& map, Handle handle) {
    typename Map::mapped_type::pointer found = nullptr;
    for (const auto& [key, value] : map) {
        if (reinterpret_cast<Handle>(value.get()) == handle) {
            found = value.get();
        }
    }
    return found;
}

} // namespace

HINSTANCE GetModuleHandleW(const wchar_t* name) {
    const QString folder = ":/" + QFileInfo(orvex::toQt(name)).completeBaseName();
    if (folder.size() <= 2 || !QDir(folder).exists()) {
        return nullptr;
    }
    auto& kept = folders()[folder];
    if (!kept) {
        kept = std::make_unique<QString>(folder);
    }
    return reinterpret_cast<HINSTANCE>(kept.get());
}

HICON LoadIconW(HINSTANCE library, unsigned number) {
    const QString* const folder = behind(folders(), library);
    if (folder == nullptr) {
        return nullptr;
    }
    for (const char* const suffix : {".png", ".svg"}) {
        const QString path = *folder + '/' + QString::number(number) + suffix;
        if (QFile::exists(path)) {
            auto& kept = icons()[path];
            if (!kept) {
                kept = std::make_unique<QIcon>(path);
            }
            return reinterpret_cast<HICON>(kept.get());
        }
    }
    return nullptr;
}

namespace orvex {

const QIcon* iconOf(HICON icon) {
    return behind(icons(), icon);
}

} // namespace orvex
