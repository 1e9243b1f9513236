#include "CKdUiTrueColorComboBox.h"

#include "DrawingChoices.h"
#include "MRUComboBox.h"
#include "samplePictures.h"

#include <QCoreApplication>
#include <QSignalBlocker>

#include <algorithm>
#include <vector>

namespace orvex {

// The colours of the entries, in their order; the chooser's entry after them has none.
class ColorList {
public:
    static constexpr int kFirstRecent = 9; // by layer, by block, 1 to 7
    static constexpr int kMostRecent = 8;

    ColorList() {
        constexpr std::uint16_t kLastPlain = 7;
        constexpr std::uint16_t kByLayer = 256;
        add(kByLayer);
        for (std::uint16_t index = 0; index <= kLastPlain; ++index) {
            add(index); // 0 is by block
        }
    }

    [[nodiscard]] int count() const { return static_cast<int>(m_colors.size()); }
    [[nodiscard]] const KdCmColor& at(int index) const { return m_colors[index]; }
    [[nodiscard]] bool has(int index) const { return index >= 0 && index < count(); }

    void insert(int index, const KdCmColor& color) {
        m_colors.insert(m_colors.begin() + index, color);
    }
    void remove(int index) { m_colors.erase(m_colors.begin() + index); }

private:
    void add(std::uint16_t index) {
        KdCmColor color;
        color.setColorIndex(index);
        m_colors.push_back(color);
    }

    std::vector<KdCmColor> m_colors;
};

} // namespace orvex

using orvex::ColorList;

namespace {

QComboBox* comboOf(const CWnd& window) {
    return qobject_cast<QComboBox*>(window.GetSafeHwnd());
}

// As the user sees them; what else stands beside a colour's value doesn't count.
bool isSame(const KdCmColor& a, const KdCmColor& b) {
    if (a.colorMethod() != b.colorMethod() || CStdStr(a.bookName()) != CStdStr(b.bookName()) ||
        CStdStr(a.colorName()) != CStdStr(b.colorName())) {
        return false;
    }
    return a.colorMethod() == KdCmColor::byColor ? a.rgb() == b.rgb()
                                                 : a.colorIndex() == b.colorIndex();
}

QString nameOf(const KdCmColor& color) {
    const orvex::DrawingChoices& drawing = *orvex::drawingChoices();
    switch (color.colorMethod()) {
    case KdCmColor::byLayer:
        return QString::fromStdWString(drawing.byLayerName());
    case KdCmColor::byBlock:
        return QString::fromStdWString(drawing.byBlockName());
    default:
        return QString::fromStdWString(color.colorNameForDisplay());
    }
}

void insertEntry(QComboBox& combo, int index, const KdCmColor& color) {
    combo.insertItem(index, orvex::colorSwatch(color.rgb(), combo.palette().color(QPalette::Text)),
                     nameOf(color));
}

} // namespace

CKdUiTrueColorComboBox::CKdUiTrueColorComboBox() : m_colors(std::make_shared<ColorList>()) {}

CKdUiTrueColorComboBox::~CKdUiTrueColorComboBox() = default;

void CKdUiTrueColorComboBox::PreSubclassWindow() {
    CComboBox::PreSubclassWindow();
    QComboBox* const combo = comboOf(*this);
    if (combo == nullptr) {
        return;
    }
    const QSignalBlocker silent(combo);
    combo->clear();
    combo->setIconSize(orvex::kSwatchSize);
    for (int index = 0; index < m_colors->count(); ++index) {
        insertEntry(*combo, index, m_colors->at(index));
    }
    // Only a box that asks before it notifies can have an entry that isn't a colour.
    if (auto* const asking = qobject_cast<VOUI::MRUComboBox*>(combo)) {
        combo->addItem(QCoreApplication::translate("orvex", "More Colors..."));
        const std::weak_ptr<ColorList> alive = m_colors;
        asking->setChooser([this, alive](int index) { return alive.expired() || choose(index); });
    }
    combo->setCurrentIndex(-1);
}

void CKdUiTrueColorComboBox::GetCurrentItemColor(KdCmColor& color) const {
    if (const int index = GetCurSel(); m_colors->has(index)) {
        color = m_colors->at(index);
    }
}

int CKdUiTrueColorComboBox::FindItemByColor(const KdCmColor& color) const {
    if (comboOf(*this) == nullptr) {
        return -1;
    }
    for (int index = 0; index < m_colors->count(); ++index) {
        if (isSame(m_colors->at(index), color)) {
            return index;
        }
    }
    return -1;
}

int CKdUiTrueColorComboBox::AddColorToMRU(const KdCmColor& color) {
    QComboBox* const combo = comboOf(*this);
    if (combo == nullptr) {
        return -1;
    }
    if (const int known = FindItemByColor(color); known >= 0) {
        return known;
    }
    const QSignalBlocker silent(combo);
    m_colors->insert(ColorList::kFirstRecent, color);
    insertEntry(*combo, ColorList::kFirstRecent, color);
    if (m_colors->count() > ColorList::kFirstRecent + ColorList::kMostRecent) {
        // The oldest goes, unless it is the one that is shown.
        int oldest = m_colors->count() - 1;
        oldest -= oldest == combo->currentIndex() ? 1 : 0;
        m_colors->remove(oldest);
        combo->removeItem(oldest);
    }
    return ColorList::kFirstRecent;
}

// The user took an entry. False when nothing came of it.
bool CKdUiTrueColorComboBox::choose(int index) {
    auto* const combo = qobject_cast<VOUI::MRUComboBox*>(GetSafeHwnd());
    if (combo == nullptr || m_colors->has(index)) {
        return true;
    }
    SetCurSel(m_colors->has(combo->indexBefore()) ? combo->indexBefore() : -1);
    KdCmColor before;
    GetCurrentItemColor(before);
    const auto chosen = orvex::drawingChoices()->askColor(before);
    if (!chosen) {
        return false;
    }
    SetCurSel(AddColorToMRU(*chosen));
    return true;
}
