// How long it takes to find out that no multiline of a drawing has a style, which the style manager
// asks at each selection. Arguments: entities, how many of ten are multilines.

#include "DatabaseCore.h"
#include "DrawingFile.h"
#include "KdDocument.h"
#include "ObjectTable.h"
#include "styleNames.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr int kStyles = 5;

std::string style(int number) {
    const std::string name = "STYLE" + std::to_string(number);
    return "0\nMLINESTYLE\n5\n2" + std::to_string(number) + "\n330\n1F\n100\nAcDbMlineStyle\n2\n" +
           name +
           "\n70\n0\n3\n\n62\n256\n51\n90.0\n52\n90.0\n71\n2\n49\n0.5\n62\n256\n6\nBYLAYER\n49\n-0."
           "5\n"
           "62\n256\n6\nBYLAYER\n";
}

void addMline(std::string& text, std::int64_t number) {
    const std::string style = std::to_string(number % kStyles);
    const std::string y = std::to_string(number);
    text += "0\nMLINE\n5\n";
    text += std::to_string(100000000 + number); // digits make handles, too
    text += "\n100\nAcDbEntity\n8\n0\n100\nAcDbMline\n2\nSTYLE" + style + "\n340\n2" + style +
            "\n40\n1.0\n70\n0\n71\n1\n72\n2\n73\n2\n10\n0.0\n20\n" + y + "\n30\n0.0\n";
    for (const char* const x : {"0.0", "90.0"}) {
        text += "11\n";
        text += x;
        text += "\n21\n" + y +
                "\n31\n0.0\n12\n1.0\n22\n0.0\n32\n0.0\n13\n0.0\n23\n1.0\n33\n0.0\n"
                "74\n2\n41\n0.5\n41\n0.0\n75\n0\n74\n2\n41\n-0.5\n41\n0.0\n75\n0\n";
    }
}

void addLine(std::string& text, std::int64_t number) {
    text += "0\nLINE\n5\n";
    text += std::to_string(100000000 + number);
    text += "\n100\nAcDbEntity\n8\n0\n100\nAcDbLine\n10\n0.0\n20\n0.0\n30\n0.0\n11\n1.0\n21\n";
    text += std::to_string(number) + "\n31\n0.0\n";
}

std::string drawing(std::int64_t entities, std::int64_t mlinesOfTen) {
    std::string text = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1032\n0\nENDSEC\n"
                       "0\nSECTION\n2\nENTITIES\n";
    for (std::int64_t i = 0; i < entities; ++i) {
        if (i % 10 < mlinesOfTen) {
            addMline(text, i);
        } else {
            addLine(text, i);
        }
    }
    text +=
        "0\nENDSEC\n0\nSECTION\n2\nOBJECTS\n0\nDICTIONARY\n5\nC\n330\n0\n100\nAcDbDictionary\n3\n"
        "ACAD_MLINESTYLE\n350\n1F\n0\nDICTIONARY\n5\n1F\n330\nC\n100\nAcDbDictionary\n";
    for (int i = 0; i < kStyles; ++i) {
        text += "3\nSTYLE" + std::to_string(i) + "\n350\n2" + std::to_string(i) + "\n";
    }
    for (int i = 0; i < kStyles; ++i) {
        text += style(i);
    }
    return text + "0\nENDSEC\n0\nEOF\n";
}

class OpenDrawing {
public:
    explicit OpenDrawing(const benchmark::State& state)
        : m_file(
              std::move(*orvex::DrawingFile::openBytes(drawing(state.range(0), state.range(1))))),
          m_document(&m_file->database()), m_before(orvex::setCurrentDocument(&m_document)) {}
    ~OpenDrawing() { orvex::setCurrentDocument(m_before); }
    OpenDrawing(const OpenDrawing&) = delete;
    OpenDrawing& operator=(const OpenDrawing&) = delete;

    [[nodiscard]] orvex::DatabaseCore& core() { return m_file->database().core(); }

private:
    std::unique_ptr<orvex::DrawingFile> m_file;
    KdDocument m_document;
    KdDocument* m_before;
};

void firstWalk(benchmark::State& state) {
    for ([[maybe_unused]] const auto _ : state) {
        state.PauseTiming();
        {
            OpenDrawing drawing(state);
            state.ResumeTiming();
            if (mledit::isStyleUsed(L"NONE")) {
                state.SkipWithError("no multiline has this style");
            }
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void laterWalks(benchmark::State& state) {
    OpenDrawing drawing(state);
    // In use are all but the one that is asked for.
    if (mledit::isStyleUsed(L"STYLE0") != (state.range(1) > 0)) {
        state.SkipWithError("the multilines have no styles");
    }
    for ([[maybe_unused]] const auto _ : state) {
        benchmark::DoNotOptimize(mledit::isStyleUsed(L"NONE"));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// Once every entity is an object, as a view makes them, and a change may be anywhere.
void walksOverObjects(benchmark::State& state) {
    OpenDrawing drawing(state);
    for (KdDbStub& stub : drawing.core().objects().stubs()) {
        if (drawing.core().load(stub) != nullptr) {
            drawing.core().aboutToChange(stub);
        }
    }
    for ([[maybe_unused]] const auto _ : state) {
        benchmark::DoNotOptimize(mledit::isStyleUsed(L"NONE"));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

constexpr std::int64_t kMillion = 1'000'000;
BENCHMARK(firstWalk)
    ->Args({kMillion, 2})
    ->Args({kMillion, 10})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);
BENCHMARK(laterWalks)->Args({kMillion, 2})->Args({kMillion, 10})->Unit(benchmark::kMillisecond);
BENCHMARK(walksOverObjects)
    ->Args({kMillion, 2})
    ->Args({kMillion, 10})
    ->Unit(benchmark::kMillisecond);

} // namespace
