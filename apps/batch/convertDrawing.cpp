// The verb convert: the other form of the drawing format.

#include "DrawingConversion.h"
#include "batchFiles.h"
#include "verbs.h"

#include <CLI/CLI.hpp>

namespace orvex {

namespace {

class ConvertVerb final : public Verb {
public:
    ConvertVerb()
        : Verb({"convert", "Write the text or the binary form of a drawing",
                "Where to save the result", true}) {}

    void addOptions(CLI::App& options) override {
        options
            .add_option_function<std::string>(
                "--to",
                [this](const std::string& word) {
                    m_form = word == "text" ? DrawingForm::text : DrawingForm::binary;
                },
                "text or binary")
            ->required()
            ->check(CLI::IsMember({"text", "binary"}));
    }

    std::optional<Failure> carryOut(const DrawingTask& task, Counts& /*counts*/) override {
        const auto drawing = openDrawing(task.drawing);
        if (!drawing) {
            return drawing.failure();
        }
        return withMemory(FailureCause::unwritableOutput, *task.output,
                          [&] { return save((*drawing)->bytes(), task); });
    }

private:
    [[nodiscard]] std::optional<Failure> save(std::string bytes, const DrawingTask& task) const {
        const auto converted = convertBytes(std::move(bytes), m_form);
        if (!converted) {
            Failure failure = converted.failure();
            failure.file = inputName(task.drawing);
            return failure;
        }
        printWarnings(task.drawing, converted->warnings);
        AtomicFile target = resultFile(*task.output);
        return saveFile(target, converted->bytes);
    }

    DrawingForm m_form = DrawingForm::text;
};

} // namespace

std::unique_ptr<Verb> makeConvertVerb() {
    return std::make_unique<ConvertVerb>();
}

} // namespace orvex
