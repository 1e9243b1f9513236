// The verb show: a drawing as a picture.

#include "Scene.h"
#include "atLine.h"
#include "openDrawing.h"
#include "pictureWriter.h"
#include "verbs.h"

#include <QGuiApplication>

#include <cstdlib>

namespace orvex {

namespace {

// Qt tells of missing folders of the desktop and the like, which are no matter of a picture.
void passOverNotes(QtMsgType kind, const QMessageLogContext& /*context*/, const QString& text) {
    if (kind == QtCriticalMsg || kind == QtFatalMsg) {
        complain(text.toStdString());
    }
}

} // namespace

std::optional<BatchFailure> showDrawing(const ShowCall& call) {
    auto opened = openDrawing(call.drawing);
    if (const auto* const failure = std::get_if<BatchFailure>(&opened)) {
        return *failure;
    }
    qInstallMessageHandler(passOverNotes);
    // Fonts need an application, which needs no screen here.
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    int argc = 1;
    char name[] = "orvex-batch";
    char* argv[] = {name, nullptr};
    const QGuiApplication application(argc, argv);

    const auto& drawing = std::get<std::unique_ptr<DrawingFile>>(opened);
    Scene scene(drawing->database());
    if (const auto error = writePicture(scene, call.output, call.width, call.height)) {
        return BatchFailure{BatchFailure::Cause::writing, atLine(call.output, 0, *error)};
    }
    return std::nullopt;
}

} // namespace orvex
