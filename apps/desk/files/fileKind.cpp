#include "fileKind.h"

#include <QCoreApplication>

#include <filesystem>

namespace orvex {

QString otherThanFile(const QString& path) {
    const auto shown = [](const char* text) { return QCoreApplication::translate("orvex", text); };
    std::error_code ignored;
    switch (std::filesystem::status(path.toStdString(), ignored).type()) {
    case std::filesystem::file_type::directory:
        return shown(QT_TRANSLATE_NOOP("orvex", "a folder"));
    case std::filesystem::file_type::fifo:
        return shown(QT_TRANSLATE_NOOP("orvex", "a pipe"));
    case std::filesystem::file_type::socket:
        return shown(QT_TRANSLATE_NOOP("orvex", "a socket"));
    case std::filesystem::file_type::block:
    case std::filesystem::file_type::character:
        return shown(QT_TRANSLATE_NOOP("orvex", "a device"));
    default:
        return {};
    }
}

} // namespace orvex
