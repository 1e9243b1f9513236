#include "partlyDrawnText.h"

#include <QString>

#include <algorithm>

namespace orvex {

std::string partlyDrawnText(const std::vector<std::uint64_t>& handles) {
    constexpr std::size_t kMostNamed = 5;
    const std::size_t named = std::min(handles.size(), kMostNamed);
    QString text = QStringLiteral("blocks repeat too often to be drawn in full, in the insert");
    text += handles.size() > 1 ? QStringLiteral("s") : QString();
    for (std::size_t i = 0; i < named; ++i) {
        text += (i > 0 ? ", #" : " #") + QString::number(handles[i], 16).toUpper();
    }
    if (handles.size() > named) {
        text += QStringLiteral(" and %1 more").arg(handles.size() - named);
    }
    return text.toStdString();
}

} // namespace orvex
