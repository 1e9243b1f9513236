// The verb show: a drawing as a picture.

#include "Scene.h"
#include "batchFiles.h"
#include "partlyDrawnText.h"
#include "pictureWriter.h"
#include "verbs.h"

#include <QGuiApplication>

#include <cstdlib>

namespace orvex {

namespace {

// Qt warns of missing folders of the desktop and the like, which don't matter to a picture.
void ignoreWarnings(QtMsgType kind, const QMessageLogContext& /*context*/, const QString& text) {
    if (kind == QtCriticalMsg || kind == QtFatalMsg) {
        complain(text.toStdString());
    }
}

} // namespace

std::optional<Failure> showDrawing(const ShowCall& call) {
    if (auto failure = checkPicture(call.output, call.size)) {
        return failure;
    }
    const auto drawing = openDrawing(call.drawing);
    if (!drawing) {
        return drawing.failure();
    }
    qInstallMessageHandler(ignoreWarnings);
    // Fonts need an application, which needs no screen here.
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    int argc = 1;
    char name[] = "orvex-batch";
    char* argv[] = {name, nullptr};
    const QGuiApplication application(argc, argv);

    return withMemory(FailureCause::unwritableOutput, call.output, [&] {
        Scene scene((*drawing)->database());
        auto failure = writePicture(scene, call.output, call.size);
        if (const auto partlyDrawn = scene.partlyDrawn(); !failure && !partlyDrawn.empty()) {
            complain(call.drawing + ": warning: " + partlyDrawnText(partlyDrawn));
        }
        return failure;
    });
}

} // namespace orvex
