#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbMline.h"
#include "ObjectTable.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <random>

namespace {

using orvex::DatabaseCore;
using orvex::HeaderHandle;
using orvex::ObjectKind;

KdDbStub& add(DatabaseCore& core, std::uint64_t handle) {
    return core.objects().addStub(ObjectKind::opaque, handle, 1, nullptr);
}

TEST(Handles, findWhatAPlainMapFinds) {
    std::mt19937 random(5);
    for (int round = 0; round < 20; ++round) {
        KdDbDatabase database(false);
        DatabaseCore& core = database.core();
        std::map<std::uint64_t, KdDbStub*> model;
        for (int i = 0; i < 300; ++i) {
            const std::uint64_t handle =
                random() % 2 == 0 ? static_cast<unsigned>(i) : random() % 400;
            KdDbStub& stub = add(core, handle);
            if (handle != 0) {
                model.try_emplace(handle, &stub); // the first of several has it
            }
            stub.erased = random() % 10 == 0; // which undo may take back
            if (random() % 20 == 0) {
                const std::uint64_t wanted = random() % 400;
                const auto found = model.find(wanted);
                ASSERT_EQ(core.objects().findHandle(wanted),
                          found != model.end() ? found->second : nullptr);
            }
        }
        for (const auto& [handle, stub] : model) {
            ASSERT_EQ(core.objects().findHandle(handle), stub);
        }
        EXPECT_EQ(core.objects().findHandle(0), nullptr);
    }
}

TEST(Handles, theNextIsAboveTheSeedAndAllHandlesWhileThereIsRoom) {
    KdDbDatabase database(false);
    DatabaseCore& core = database.core();
    core.loadVariable("HANDSEED", HeaderHandle{0x100});
    add(core, 0x50);
    EXPECT_EQ(core.objects().takeHandle(), 0x100U);
    add(core, 0x200); // above what the header says
    EXPECT_EQ(core.objects().takeHandle(), 0x201U);
    EXPECT_EQ(std::get<HeaderHandle>(*core.variables().find("HANDSEED")).value, 0x202U);

    KdDbDatabase full(false);
    add(full.core(), std::numeric_limits<std::uint64_t>::max());
    add(full.core(), 5);
    full.core().loadVariable("HANDSEED", HeaderHandle{5});
    EXPECT_EQ(full.core().objects().takeHandle(), 6U);
    EXPECT_EQ(full.core().objects().takeHandle(), 7U);
}

TEST(Handles, theFirstLookUpFindsTheLiveOneOfThoseThatHadAHandle) {
    KdDbDatabase database;
    DatabaseCore& core = database.core();
    const auto make = [&core]() -> KdDbStub& {
        core.changes().beginCommand();
        KdDbStub& stub = core.adopt(std::make_unique<KdDbMline>(), ObjectKind::mline, nullptr);
        core.changes().endCommand();
        return stub;
    };
    const std::uint64_t handle = make().handle;
    core.changes().undo();
    KdDbStub& live = make();
    ASSERT_EQ(live.handle, handle);
    EXPECT_EQ(core.objects().findHandle(handle), &live);
}

TEST(Handles, aHandleGivenAgainLeadsToTheLiveObject) {
    KdDbDatabase database;
    DatabaseCore& core = database.core();
    std::uint64_t handle = 0;
    for (int round = 0; round < 3; ++round) {
        core.changes().beginCommand();
        KdDbStub& stub = core.adopt(std::make_unique<KdDbMline>(), ObjectKind::mline, nullptr);
        ASSERT_TRUE(core.changes().endCommand());
        handle = round == 0 ? stub.handle : handle;
        EXPECT_EQ(stub.handle, handle);
        EXPECT_EQ(core.objects().findHandle(handle), &stub);
        ASSERT_TRUE(core.changes().undo());
        EXPECT_TRUE(stub.erased);
    }
    // A handle that was written to a file isn't given again.
    core.changes().beginCommand();
    KdDbStub& made = core.adopt(std::make_unique<KdDbMline>(), ObjectKind::mline, nullptr);
    core.changes().endCommand();
    KdDbStub& unwritten = add(core, 0);
    EXPECT_EQ(core.objects().ensureHandle(unwritten), made.handle + 1);
    core.changes().undo();
    EXPECT_GT(core.objects().takeHandle(), unwritten.handle);
}

} // namespace
