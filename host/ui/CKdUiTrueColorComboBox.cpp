#include "CKdUiTrueColorComboBox.h"

#include "DrawingChoices.h"
#include "MRUComboBox.h"
#include "samplePictures.h"

#include <QSignalBlocker>

#include <algorithm>
#include <vector>

namespace orvex {

// The colours of the entries, in their order; the chooser's entry behind them has none.
class ColourList {
public:
    static constexpr int kFirstRecent = 9; // by layer, by block, 1 to 7
    static constexpr int kMostRecent = 8;

    ColourList() {
        constexpr std::uint16_t kLastPlain = 7;
        constexpr std::uint16_t kByLayer = 256;
        add(kByLayer);
        for (std::uint16_t index = 0; index <= kLastPlain; ++index) {
            add(index); // 0 is by block
        }
    }

    [[nodiscard]] int count() const { return static_cast<int>(m_colours.size()); }
    [[nodiscard]] const KdCmColor& at(int index) const { return m_colours[index]; }
    [[nodiscard]] bool has(int index) const { return index >= 0 && index < count(); }

    void insert(int index, const KdCmColor& colour) {
        m_colours.insert(m_colours.begin() + index, colour);
    }
    void remove(int index) { m_colours.erase(m_colours.begin() + index); }

private:
    void add(std::uint16_t index) {
        KdCmColor colour;
        colour.setColorIndex(index);
        m_colours.push_back(colour);
    }

    std::vector<KdCmColor> m_colours;
};

} // namespace orvex

using orvex::ColourList;

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

QString nameOf(const KdCmColor& colour) {
    const orvex::DrawingChoices& drawing = *orvex::drawingChoices();
    switch (colour.colorMethod()) {
    case KdCmColor::byLayer:
        return QString::fromStdWString(drawing.byLayerName());
    case KdCmColor::byBlock:
        return QString::fromStdWString(drawing.byBlockName());
    default:
        return QString::fromStdWString(colour.colorNameForDisplay());
    }
}

void insertEntry(QComboBox& combo, int index, const KdCmColor& colour) {
    combo.insertItem(index,
                     orvex::colourSwatch(colour.rgb(), combo.palette().color(QPalette::Text)),
                     nameOf(colour));
}

} // namespace

CKdUiTrueColorComboBox::CKdUiTrueColorComboBox() : m_colours(std::make_shared<ColourList>()) {}

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
    for (int index = 0; index < m_colours->count(); ++index) {
        insertEntry(*combo, index, m_colours->at(index));
    }
    // Only a box that asks before it tells can have an entry that isn't a colour.
    if (auto* const asking = qobject_cast<VOUI::MRUComboBox*>(combo)) {
        combo->addItem("More Colors...");
        const std::weak_ptr<ColourList> alive = m_colours;
        asking->setChooser([this, alive](int index) { return alive.expired() || choose(index); });
    }
    combo->setCurrentIndex(-1);
}

void CKdUiTrueColorComboBox::GetCurrentItemColor(KdCmColor& colour) const {
    if (const int index = GetCurSel(); m_colours->has(index)) {
        colour = m_colours->at(index);
    }
}

int CKdUiTrueColorComboBox::FindItemByColor(const KdCmColor& colour) const {
    if (comboOf(*this) == nullptr) {
        return -1;
    }
    for (int index = 0; index < m_colours->count(); ++index) {
        if (isSame(m_colours->at(index), colour)) {
            return index;
        }
    }
    return -1;
}

int CKdUiTrueColorComboBox::AddColorToMRU(const KdCmColor& colour) {
    QComboBox* const combo = comboOf(*this);
    if (combo == nullptr) {
        return -1;
    }
    if (const int known = FindItemByColor(colour); known >= 0) {
        return known;
    }
    const QSignalBlocker silent(combo);
    m_colours->insert(ColourList::kFirstRecent, colour);
    insertEntry(*combo, ColourList::kFirstRecent, colour);
    if (m_colours->count() > ColourList::kFirstRecent + ColourList::kMostRecent) {
        // The oldest goes, unless it is the one that is shown.
        int oldest = m_colours->count() - 1;
        oldest -= oldest == combo->currentIndex() ? 1 : 0;
        m_colours->remove(oldest);
        combo->removeItem(oldest);
    }
    return ColourList::kFirstRecent;
}

// The user took an entry. False when nothing came of it.
bool CKdUiTrueColorComboBox::choose(int index) {
    auto* const combo = qobject_cast<VOUI::MRUComboBox*>(GetSafeHwnd());
    if (combo == nullptr || m_colours->has(index)) {
        return true;
    }
    SetCurSel(m_colours->has(combo->indexBefore()) ? combo->indexBefore() : -1);
    KdCmColor before;
    GetCurrentItemColor(before);
    const auto chosen = orvex::drawingChoices()->askColour(before);
    if (!chosen) {
        return false;
    }
    SetCurSel(AddColorToMRU(*chosen));
    return true;
}
