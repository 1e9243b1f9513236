// The verb convert: the other form of the drawing format.

#include "AtomicFile.h"
#include "batchFiles.h"
#include "verbs.h"

namespace orvex {

std::optional<Failure> convertDrawing(const ConvertCall& call) {
    const auto drawing = openDrawing(call.drawing);
    if (!drawing) {
        return drawing.failure();
    }
    return withMemory(FailureCause::unwritableOutput, call.output, [&]() -> std::optional<Failure> {
        const auto converted = convertBytes((*drawing)->bytes(), call.form);
        if (!converted) {
            Failure failure = converted.failure();
            failure.file = call.drawing;
            return failure;
        }
        printWarnings(call.drawing, converted->warnings);
        return saveFile(call.output, converted->bytes);
    });
}

} // namespace orvex
