#include "DatabaseCore.h"
#include "DrawingFile.h"
#include "Scene.h"
#include "TestPaths.h"

#include <gtest/gtest.h>

namespace orvex::testing {
namespace {

struct PlanPick {
    const char* what;
    PlanPoint point;
    std::uint64_t handle; // 0: nothing is found
};

// The walls are told in samples/README.md, lengths in millimetres.
TEST(FloorplanPick, findsTheWallsAsTheyAreDrawn) {
    auto opened = DrawingFile::open((sourceDir() / "samples" / "floorplan.dxf").string());
    ASSERT_TRUE(opened);
    KdDbDatabase& database = (*opened)->database();
    Scene scene(database);
    const PlanPick picks[] = {
        {"spine, left face", {2000, 5320}, 0x7B},
        {"spine, between its faces", {2000, 5200}, 0},
        {"partition, right face", {4657.5, 1500}, 0x7C},
        {"utility before its gap", {11700, 2957.5}, 0x87},
        {"utility in its gap from 400 to 1285", {12400, 2957.5}, 0},
        {"niche where element 0 has a gap", {9062.5, 3962.5}, 0},
        {"niche there, element 2", {9062.5, 3837.5}, 0x88},
        {"old wall, on a layer that is off", {9242.5, 3000}, 0},
        {"grid, on a frozen layer", {15000, 5200}, 0},
        {"terrace on its fill", {13880, 9500}, 0},
        {"overhead, at another height, mid line", {7300, -3700}, 0xA6},
        {"shaft, segment that closes the chain", {7670, 9200}, 0x83},
        {"mirrored, its chain's right side", {14000, 10800}, 0xA5},
    };
    for (const PlanPick& each : picks) {
        const KdDbStub* found = scene.pick(each.point, 8.0);
        EXPECT_EQ(found != nullptr ? found->handle : 0, each.handle) << each.what;
    }
    // What was only looked at isn't kept in memory.
    for (const KdDbStub* stub : database.core().modelSpace().entities) {
        EXPECT_EQ(stub->object, nullptr);
    }
}

} // namespace
} // namespace orvex::testing
