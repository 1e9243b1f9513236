#include "ChangeFeed.h"
#include "DatabaseCore.h"
#include "FlatSource.h"
#include "KdDbDatabase.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <stdexcept>
#include <vector>

namespace {

using orvex::ChangeFeed;
using orvex::DatabaseCore;
using orvex::ObjectKind;
using Stubs = std::vector<KdDbStub*>;

KdDbMline& makeMline(DatabaseCore& core) {
    return static_cast<KdDbMline&>(
        *core.adopt(std::make_unique<KdDbMline>(), ObjectKind::mline, nullptr).object);
}

TEST(ChangeFeed, tellsEachObjectOnceTillItIsTaken) {
    KdDbDatabase database;
    DatabaseCore& core = database.core();
    ChangeFeed feed(core);
    KdDbMline& a = makeMline(core);
    KdDbMline& b = makeMline(core);
    EXPECT_EQ(feed.take(), (Stubs{a.objectId().stub(), b.objectId().stub()}));
    EXPECT_TRUE(feed.isEmpty());
    b.setScale(2.0);
    b.setScale(3.0);
    a.appendSeg({});
    b.setClosedMline(true);
    EXPECT_EQ(feed.take(), (Stubs{b.objectId().stub(), a.objectId().stub()}));
    b.setScale(4.0);
    EXPECT_EQ(feed.take(), Stubs{b.objectId().stub()});
    b.erase();
    EXPECT_EQ(feed.take(), Stubs{b.objectId().stub()});
    EXPECT_EQ(feed.take(), Stubs{});
}

TEST(ChangeFeed, feedsDontTakeFromEachOther) {
    KdDbDatabase database;
    DatabaseCore& core = database.core();
    KdDbMline& mline = makeMline(core);
    const Stubs told{mline.objectId().stub()};
    std::array<std::unique_ptr<ChangeFeed>, 8> feeds;
    for (auto& feed : feeds) {
        feed = std::make_unique<ChangeFeed>(core);
    }
    EXPECT_THROW(ChangeFeed{core}, std::length_error);
    mline.setScale(2.0);
    EXPECT_EQ(feeds[3]->take(), told);
    mline.setScale(3.0);
    EXPECT_EQ(feeds[3]->take(), told);
    feeds[5].reset(); // with something still to tell
    feeds[5] = std::make_unique<ChangeFeed>(core);
    EXPECT_TRUE(feeds[5]->isEmpty());
    mline.setScale(4.0);
    for (const auto& feed : feeds) {
        EXPECT_EQ(feed->take(), told);
    }
}

TEST(ChangeFeed, outlivesItsDatabase) {
    auto database = std::make_unique<KdDbDatabase>();
    ChangeFeed feed(database->core());
    makeMline(database->core());
    database.reset();
    EXPECT_TRUE(feed.take().empty());
}

} // namespace
