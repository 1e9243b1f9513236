#include "SessionFixture.h"

#include "JoinReport.h"

namespace {

using orvex::JoinReport;
using orvex::PlaceResult;

TEST_F(SessionFixture, joiningShowsWhatItWouldDoBeforeItDoesItAndIsOneStep) {
    play("MLINE\nS\n10\n0,0\n200,0\n\nMLINE\n50,-80\n50,80\n\nMLINE\n150,90\n150,2\n\n");
    const std::string before = m_session->drawing().bytes();
    std::vector<JoinReport> reports;
    std::vector<bool> touched;
    m_session->setJoinWatcher([&](const JoinReport& report) {
        reports.push_back(report);
        touched.push_back(m_session->drawing().bytes() != before);
    });

    play("MLJOIN\n\nCross\nNone\n\n");
    // At the first question, after the option, and when all is done.
    ASSERT_EQ(reports.size(), 3U);
    EXPECT_EQ(touched, (std::vector<bool>{false, false, true}));
    const auto resultsOf = [](const JoinReport& report) {
        std::vector<PlaceResult> results;
        for (const auto& place : report.places) {
            results.push_back(place.result);
        }
        return results;
    };
    using enum PlaceResult;
    EXPECT_THAT(resultsOf(reports[0]), testing::UnorderedElementsAre(planned, planned));
    EXPECT_THAT(resultsOf(reports[1]), testing::UnorderedElementsAre(unasked, planned));
    EXPECT_THAT(resultsOf(reports[2]), testing::UnorderedElementsAre(unasked, joined));
    EXPECT_TRUE(reports[2].isPlayed && !reports[1].isPlayed);
    EXPECT_EQ(reports[2].mlines.size(), 3U);

    play("U\n");
    EXPECT_EQ(m_session->drawing().bytes(), before);
    play("MLJOIN\n\n*CANCEL*\n");
    EXPECT_EQ(m_session->drawing().bytes(), before);
}

} // namespace
