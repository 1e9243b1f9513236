// The verb export: plain entities in place of multilines.

#include "DatabaseCore.h"
#include "DrawingExport.h"
#include "MlineExploder.h"
#include "batchFiles.h"
#include "verbs.h"

#include <CLI/CLI.hpp>

namespace orvex {

namespace {

class ExportVerb final : public Verb {
public:
    ExportVerb()
        : Verb({"export", "Save a drawing with plain entities in place of its multilines",
                "Where to save the result", true}) {}

    void addOptions(CLI::App& options) override {
        options
            .add_option_function<std::string>(
                "--as",
                [this](const std::string& word) {
                    m_form = word == "lines" ? ExportForm::lines : ExportForm::blocks;
                },
                "lines, or blocks ORVEX_<handle> with an insert for each multiline")
            ->default_str("lines")
            ->check(CLI::IsMember({"lines", "blocks"}));
    }

    std::optional<Failure> carryOut(const DrawingTask& task, Counts& counts) override {
        const auto drawing = openDrawing(task.drawing);
        if (!drawing) {
            return drawing.failure();
        }
        AtomicFile target = resultFile(*task.output);
        auto failure = withMemory(FailureCause::unwritableOutput, target.path(),
                                  [&] { return save(**drawing, target, counts); });
        printWarnings(task.drawing, (*drawing)->savingWarnings());
        return failure;
    }

private:
    std::optional<Failure> save(DrawingFile& drawing, AtomicFile& target, Counts& counts) const {
        MlineExploder exploder(drawing.database().core());
        std::size_t exported = 0;
        const MlineExport how{m_form, [&](const MlineContent& mline) {
                                  auto parts = exploder.explode(mline);
                                  exported += parts ? 1 : 0;
                                  return parts;
                              }};
        auto failure = drawing.saveExported(target, how);
        counts = {{"multilines", exported}};
        return failure;
    }

    ExportForm m_form = ExportForm::lines;
};

} // namespace

std::unique_ptr<Verb> makeExportVerb() {
    return std::make_unique<ExportVerb>();
}

} // namespace orvex
