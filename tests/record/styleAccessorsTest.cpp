#include "styleAccessors.h"

#include "KdDbDatabase.h"
#include "KdDbLinetypeTable.h"
#include "KdDbMlineStyle.h"
#include "KdDocument.h"
#include "kddbObjects.h"
#include "supportFiles.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

class StyleAccessors : public testing::Test {
protected:
    KdDbDatabase database;
    KdDocument document{&database};
    KdDocument* before = orvex::setCurrentDocument(&document);
    KdDbMlineStyle style;

    StyleAccessors() {
        style.initMlineStyle();
        SetNumElements(&style, 3);
        const double offsets[] = {1, 2, 3};
        SetElemOffset(&style, offsets, 3);
    }
    ~StyleAccessors() override {
        orvex::setSupportFileFinder(nullptr);
        orvex::setCurrentDocument(before);
    }

    std::pair<KdCmColor, KdDbObjectId> element(int i) const {
        double offset = 0.0;
        std::pair<KdCmColor, KdDbObjectId> found;
        style.getElementAt(i, offset, found.first, found.second);
        return found;
    }
    KdCmColor color(int i) const { return element(i).first; }
    std::wstring linetype(int i) const {
        KdDbLinetypeTableRecord* record = nullptr;
        kddbOpenObject(record, element(i).second, kForRead);
        return record != nullptr ? record->name() : L"";
    }
    void addLinetype(const std::wstring& name) {
        KdDbLinetypeTable* table = nullptr;
        kddbOpenObject(table, database.linetypeTableId(), kForWrite);
        auto record = std::make_unique<KdDbLinetypeTableRecord>();
        record->setName(name.c_str());
        KdDbObjectId id;
        table->add(id, record.release());
        table->close();
    }
    std::vector<double> offsets(int count) const {
        std::vector<double> all(static_cast<std::size_t>(count), 99.0);
        GetElemOffset(&style, all.data(), count);
        return all;
    }
};

using Offsets = std::vector<double>;

TEST_F(StyleAccessors, elementsAreAddedAndRemovedAtTheFront) {
    EXPECT_EQ(SetNumElements(&style, 2), 1);
    EXPECT_EQ(offsets(2), (Offsets{2, 3}));
    SetNumElements(&style, 4);
    EXPECT_EQ(offsets(5), (Offsets{0.5, 0.5, 2, 3, 0})) << "0.0 past the last element";
    EXPECT_EQ(color(0).color(), 192U);
    const double one[] = {7};
    SetElemOffset(&style, one, 1);
    EXPECT_EQ(offsets(3), (Offsets{7, 0, 0}));
    EXPECT_EQ(SetNumElements(&style, -3), 1);
    EXPECT_EQ(style.numElements(), 0);
}

TEST_F(StyleAccessors, colorIndicesAreClampedInTheCallersArrayToo) {
    int indices[] = {300, -1};
    SetElemColor(&style, indices, 2);
    EXPECT_EQ(indices[0], 256);
    EXPECT_EQ(indices[1], 256);
    int good[] = {5, 0};
    SetElemColor(&style, good, 2);
    EXPECT_EQ(color(0).colorIndex(), 5);
    EXPECT_EQ(color(1).colorIndex(), 0);
    EXPECT_EQ(color(2).colorIndex(), 256) << "beyond the array";
    EXPECT_EQ(offsets(3), (Offsets{1, 2, 3})) << "the other attributes stay";
}

TEST_F(StyleAccessors, trueColorsAndNamesStartFromTheStoredColor) {
    int indices[] = {5, 6, 7};
    SetElemColor(&style, indices, 3);
    const unsigned rgb[] = {0x102030, 0x1000000, 0xFFFFFF};
    SetElemRgb(&style, rgb, 3);
    EXPECT_EQ(color(0).color(), 0xC2102030U);
    EXPECT_EQ(color(1).colorIndex(), 6) << "a value above 0xFFFFFF is none";
    EXPECT_EQ(color(2).color(), 0xC2FFFFFFU);

    wchar_t valid[] = L"book$red";
    wchar_t invalid[] = L"$x";
    wchar_t* names[] = {valid, valid, invalid};
    SetElemName(&style, names, 3);
    EXPECT_STREQ(color(0).bookName(), L"book");
    EXPECT_STREQ(color(0).colorName(), L"red");
    EXPECT_EQ(color(0).color(), 0xC2102030U);
    EXPECT_FALSE(color(2).hasColorName());
    names[0] = nullptr;
    SetElemName(&style, names, 2);
    EXPECT_TRUE(color(0).hasColorName()) << "without a first name nothing changes";
    names[0] = valid;
    names[1] = nullptr;
    SetElemName(&style, names, 2);
    EXPECT_FALSE(color(1).hasColorName()) << "a null entry clears";
}

TEST_F(StyleAccessors, linetypesComeFromTheDrawingOrTheFileOfItsMeasurement) {
    static std::vector<std::wstring> asked;
    asked.clear();
    orvex::setSupportFileFinder([](const std::wstring& file) {
        asked.push_back(file);
        return std::wstring();
    });
    wchar_t byLayer[] = L"bylayer";
    wchar_t unknown[] = L"Nowhere";
    wchar_t* names[] = {byLayer, nullptr, unknown};
    EXPECT_EQ(SetElemLtype(&style, names, 0, &database), 1) << "the count doesn't matter";
    EXPECT_EQ(linetype(0), L"ByLayer");
    EXPECT_EQ(linetype(1), L"");
    EXPECT_EQ(linetype(2), L"Continuous") << "what can't be found";
    EXPECT_EQ(SetElemLtype(&style, names, 3, nullptr), 1);
    EXPECT_EQ(SetElemLtype(&style, nullptr, 3, &database), 1);
    database.setMeasurement(1);
    SetElemLtype(&style, names, 3, &database);
    EXPECT_EQ(asked, (std::vector<std::wstring>{L"orvex.lin", L"orvexiso.lin"}));
    std::wstring longest(2048, L'x');
    addLinetype(longest);
    names[0] = longest.data();
    SetElemLtype(&style, names, 3, &database);
    EXPECT_EQ(linetype(0), longest);
    EXPECT_EQ(offsets(3), (Offsets{1, 2, 3}));
}

TEST_F(StyleAccessors, refuseANullStyle) {
    double offset = 9.0;
    int color = 9;
    const unsigned rgb = 9;
    wchar_t text[] = L"a$b";
    wchar_t* name = text;
    EXPECT_EQ(SetNumElements(nullptr, 2), 0);
    EXPECT_EQ(SetElemLtype(nullptr, &name, 1, &database), 0);
    EXPECT_EQ(SetElemOffset(nullptr, &offset, 1), 0);
    EXPECT_EQ(GetElemOffset(nullptr, &offset, 1), 0);
    EXPECT_EQ(SetElemColor(nullptr, &color, 1), 0);
    EXPECT_EQ(SetElemRgb(nullptr, &rgb, 1), 0);
    EXPECT_EQ(SetElemName(nullptr, &name, 1), 0);
    EXPECT_EQ(SetFlag(static_cast<KdDbMlineStyle*>(nullptr), 1), 0);
    EXPECT_EQ(offset, 9.0);
}

TEST_F(StyleAccessors, writesEachFlagForItself) {
    using Style = KdDbMlineStyle;
    const std::pair<int, bool (Style::*)() const> flags[] = {
        {1, &Style::filled},          {2, &Style::showMiters},     {16, &Style::startSquareCap},
        {32, &Style::startInnerArcs}, {64, &Style::startRoundCap}, {256, &Style::endSquareCap},
        {512, &Style::endInnerArcs},  {1024, &Style::endRoundCap},
    };
    for (const auto& [bit, ignored] : flags) {
        EXPECT_EQ(SetFlag(&style, bit), 1);
        for (const auto& [other, isSet] : flags) {
            EXPECT_EQ((style.*isSet)(), other == bit) << other << " of " << bit;
        }
    }
}

TEST(ColorBookName, hasAtMostOneMarkInside) {
    EXPECT_TRUE(IsColorBookNameValid(L"a$b"));
    EXPECT_TRUE(IsColorBookNameValid(L"ab"));
    for (const wchar_t* name : {L"$ab", L"ab$", L"a$b$c", L"a$$b", L"$", L""}) {
        EXPECT_FALSE(IsColorBookNameValid(name));
    }
    EXPECT_FALSE(IsColorBookNameValid(nullptr));
}

} // namespace
