#include "CKdUiLineTypeComboBox.h"

#include "DrawingChoices.h"
#include "samplePictures.h"

#include <QComboBox>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace {

bool isReserved(const std::wstring& name) {
    constexpr std::array kReserved{L"ByLayer", L"ByBlock", L"Continuous"};
    return std::any_of(kReserved.begin(), kReserved.end(), [&name](const wchar_t* reserved) {
        return StrCmpI(name.c_str(), reserved) == 0;
    });
}

} // namespace

void CKdUiLineTypeComboBox::PreSubclassWindow() {
    CComboBox::PreSubclassWindow();
    auto* const combo = qobject_cast<QComboBox*>(GetSafeHwnd());
    if (combo == nullptr) {
        return;
    }
    const QSignalBlocker silent(combo);
    const QColor ink = combo->palette().color(QPalette::Text);
    const auto add = [combo, &ink](const std::wstring& name, const std::vector<double>& dashes) {
        combo->addItem(orvex::lineSample(dashes, ink), QString::fromStdWString(name));
    };
    const orvex::DrawingChoices& drawing = *orvex::drawingChoices();
    combo->clear();
    combo->setIconSize(orvex::kLineSampleSize);
    add(drawing.byLayerName(), {});
    add(drawing.byBlockName(), {});
    add(drawing.continuousName(), {});
    for (const orvex::LinetypeChoice& each : drawing.linetypes()) {
        if (!isReserved(each.name)) {
            add(each.name, each.dashes);
        }
    }
    combo->setCurrentIndex(-1);
}
