// The line type files beside the programs, found and read by a session as an installation does.

#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "DrawingFile.h"
#include "KdDbDatabase.h"
#include "KdDbLinetypeTable.h"
#include "ModuleLoader.h"
#include "Session.h"
#include "TestPaths.h"
#include "kddbObjects.h"
#include "textCodec.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace {

class SupportLinetypes : public testing::Test {
protected:
    SupportLinetypes() {
        orvex::SessionSetup setup;
        setup.drawing = orvex::DrawingFile::create();
        m_session = std::make_unique<orvex::Session>(std::move(setup), m_modules);
    }

    KdDbDatabase& database() { return m_session->database(); }

    std::vector<double> dashes(const wchar_t* file, const std::wstring& name) {
        KdDbObjectId id;
        kddbLoadLinetypeFromFile(file, name.c_str(), id, &database(), 1);
        KdDbLinetypeTableRecord* record = nullptr;
        kddbOpenObject(record, id, kForRead);
        if (record == nullptr) {
            return {};
        }
        std::vector<double> found = record->dashes();
        record->close();
        return found;
    }

    orvex::ModuleLoader m_modules;
    std::unique_ptr<orvex::Session> m_session;
};

TEST_F(SupportLinetypes, comeInThreeSizesInInchesAndMillimetres) {
    const struct {
        const wchar_t* name;
        std::vector<double> inches;
    } types[] = {
        {L"BORDER", {0.5, -0.25, 0.5, -0.25, 0.0, -0.25}},
        {L"CENTER", {1.25, -0.25, 0.25, -0.25}},
        {L"DASHDOT", {0.5, -0.25, 0.0, -0.25}},
        {L"DASHED", {0.5, -0.25}},
        {L"DIVIDE", {0.5, -0.25, 0.0, -0.25, 0.0, -0.25}},
        {L"DOT", {0.0, -0.25}},
        {L"HIDDEN", {0.25, -0.125}},
        {L"PHANTOM", {1.25, -0.25, 0.25, -0.25, 0.25, -0.25}},
    };
    const struct {
        const wchar_t* file;
        double unit;
    } files[] = {{L"orvex.lin", 1.0}, {L"orvexiso.lin", 25.4}};
    const struct {
        const wchar_t* ending;
        double factor;
    } sizes[] = {{L"", 1.0}, {L"2", 0.5}, {L"X2", 2.0}};
    for (const auto& [file, unit] : files) {
        for (const auto& type : types) {
            for (const auto& [ending, factor] : sizes) {
                std::vector<testing::Matcher<double>> wanted;
                for (const double dash : type.inches) {
                    wanted.emplace_back(testing::DoubleNear(dash * unit * factor, 1e-9));
                }
                // A drawing keeps the first definition of a name, so every file gets a fresh one.
                database().core().changes().beginCommand();
                EXPECT_THAT(dashes(file, std::wstring(type.name) + ending),
                            testing::ElementsAreArray(wanted))
                    << orvex::narrow(file) << ' ' << orvex::narrow(type.name);
                database().core().changes().endCommand();
                database().core().changes().undo();
            }
        }
    }
    EXPECT_THAT(dashes(L"orvex.lin", L"NOWHERE"), testing::IsEmpty());
}

} // namespace
