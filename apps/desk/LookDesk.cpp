#include "LookDesk.h"

#include "Canvas.h"
#include "DeskSettings.h"
#include "readableColor.h"

#include <QAction>
#include <QMenu>

namespace orvex {

namespace {

constexpr const wchar_t* kKey = L"Ground";
constexpr const char* kLight = "light";

} // namespace

LookDesk::LookDesk(QMenu& menu, Canvas& canvas, DeskSettings& settings)
    : QObject(&menu), m_canvas(canvas), m_settings(settings) {
    auto* const action = menu.addAction(tr("&Light Canvas"));
    action->setObjectName(QStringLiteral("lightCanvas"));
    action->setStatusTip(tr("Show the drawing on a light ground"));
    action->setCheckable(true);
    action->setChecked(settings.text(kKey) == QLatin1String(kLight));
    setLight(action->isChecked());
    connect(action, &QAction::toggled, this, [this](bool isLight) {
        setLight(isLight);
        m_settings.setText(kKey, isLight ? QLatin1String(kLight) : QString());
    });
}

void LookDesk::setLight(bool isLight) {
    m_canvas.setGround(isLight ? kLightGround : kDarkGround);
}

} // namespace orvex
