#include "DrawingChoices.h"

#include <QApplication>
#include <QColorDialog>
#include <QCoreApplication>

#include <utility>

namespace orvex {

namespace {

DrawingChoices* s_choices = nullptr;

// Puts colours of the palette where Qt's dialog shows its basic colours.
void offerPalette() {
    constexpr int kPlaces = 48;
    constexpr int kPlain = 9; // the colours 1 to 9
    constexpr int kStep = 10; // then one of each hue
    constexpr int kLast = 255;
    constexpr int kFirstGrey = 250;
    int place = 0;
    for (int index = 1; index <= kLast && place < kPlaces;) {
        QColorDialog::setStandardColor(place++, paletteRgb(static_cast<std::uint16_t>(index)));
        index += index <= kPlain || index >= kFirstGrey ? 1 : kStep;
    }
}

KdCmColor fromRgb(std::uint32_t rgb) {
    KdCmColor color;
    const std::uint16_t index = nearestPaletteIndex(rgb);
    if (paletteRgb(index) == rgb) {
        color.setColorIndex(index);
    } else {
        color.setColor(std::uint32_t{KdCmColor::byColor} << 24U | rgb);
    }
    return color;
}

} // namespace

std::optional<KdCmColor> DrawingChoices::askColor(const KdCmColor& before) const {
    offerPalette();
    const QColor chosen = QColorDialog::getColor(
        QColor(before.rgb()), QApplication::activeWindow(),
        QCoreApplication::translate("orvex", "Select Color"), QColorDialog::DontUseNativeDialog);
    if (!chosen.isValid()) {
        return std::nullopt;
    }
    return fromRgb(chosen.rgb() & kRgbBits);
}

DrawingChoices* setDrawingChoices(DrawingChoices* choices) {
    return std::exchange(s_choices, choices);
}

DrawingChoices* drawingChoices() {
    static DrawingChoices reservedOnly;
    return s_choices != nullptr ? s_choices : &reservedOnly;
}

} // namespace orvex
