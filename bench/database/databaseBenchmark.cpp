// What objects cost: a command on one of many, a look-up by handle, and the memory of multilines
// that were opened.

#include "BlockList.h"
#include "ChangeLog.h"
#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "KdDbMline.h"
#include "MlineContent.h"
#include "ObjectTable.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <cstdint>
#include <memory>

namespace {

using orvex::DatabaseCore;
using orvex::ObjectKind;

// Gives walls of four vertices and two elements.
class Walls final : public orvex::ObjectSource {
public:
    [[nodiscard]] std::unique_ptr<KdDbObject> load(const KdDbStub& /*stub*/) override {
        constexpr unsigned kVertices = 4;
        constexpr unsigned kElements = 2;
        auto content = std::make_shared<orvex::MlineContent>();
        content->vertices.resize(kVertices);
        std::vector<std::uint32_t> counts;
        std::vector<double> values;
        for (unsigned i = 0; i < kVertices * kElements; ++i) {
            counts.insert(counts.end(), {2, 0});
            values.insert(values.end(), {0.5, 0.0});
        }
        content->lists.assignFlat(kElements, std::move(counts), std::move(values));
        auto mline = std::make_unique<KdDbMline>();
        mline->setContent(content);
        return mline;
    }
    [[nodiscard]] orvex::EntityShape shapeOf(const KdDbStub& /*stub*/) const override { return {}; }
};

void fill(DatabaseCore& core, std::int64_t count) {
    core.objects().setSource(std::make_shared<Walls>());
    for (std::int64_t i = 0; i < count; ++i) {
        core.blocks().appendEntity(core.blocks().modelSpace(),
                                   core.objects().addStub(ObjectKind::mline,
                                                          static_cast<std::uint64_t>(0x100 + i), 1,
                                                          nullptr));
    }
}

void commandOnOneOf(benchmark::State& state) {
    KdDbDatabase database(false);
    DatabaseCore& core = database.core();
    fill(core, state.range(0));
    KdDbStub& stub = core.objects().stubs()[core.objects().stubs().size() / 2];
    double scale = 1.0;
    for ([[maybe_unused]] const auto _ : state) {
        core.changes().beginCommand();
        auto* const mline = static_cast<KdDbMline*>(core.open(stub, true));
        mline->setScale(scale += 1.0);
        core.changes().endCommand();
        core.changes().undo();
    }
}
BENCHMARK(commandOnOneOf)->Arg(1'000)->Arg(100'000)->Arg(1'000'000);

void commandOnAll(benchmark::State& state) {
    KdDbDatabase database(false);
    DatabaseCore& core = database.core();
    fill(core, state.range(0));
    double scale = 1.0;
    for ([[maybe_unused]] const auto _ : state) {
        core.changes().beginCommand();
        scale += 1.0;
        for (KdDbStub& stub : core.objects().stubs()) {
            static_cast<KdDbMline*>(core.open(stub, true))->setScale(scale);
        }
        core.changes().endCommand();
        core.changes().undo();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(commandOnAll)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void findHandle(benchmark::State& state) {
    KdDbDatabase database(false);
    DatabaseCore& core = database.core();
    fill(core, state.range(0));
    std::uint64_t handle = 0;
    for ([[maybe_unused]] const auto _ : state) {
        handle = (handle + 7919) % static_cast<std::uint64_t>(state.range(0));
        benchmark::DoNotOptimize(core.objects().findHandle(0x100 + handle));
    }
}
BENCHMARK(findHandle)->Arg(1'000)->Arg(1'000'000);

void openAll(benchmark::State& state) {
    double stubBytes = 0.0;
    double objectBytes = 0.0;
    const auto count = static_cast<double>(state.range(0));
    for ([[maybe_unused]] const auto _ : state) {
        const auto before = mallinfo2().uordblks;
        KdDbDatabase database(false);
        DatabaseCore& core = database.core();
        fill(core, state.range(0));
        const auto filled = mallinfo2().uordblks;
        for (KdDbStub& stub : core.objects().stubs()) {
            benchmark::DoNotOptimize(core.open(stub, false));
            core.close(stub);
        }
        stubBytes = static_cast<double>(filled - before) / count;
        objectBytes = static_cast<double>(mallinfo2().uordblks - filled) / count;
    }
    state.counters["bytes/stub"] = stubBytes;
    state.counters["bytes/object"] = objectBytes;
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(openAll)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

} // namespace
