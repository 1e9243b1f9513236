// orvex-desk: the host with a window.

#include "DeskCall.h"
#include "DeskSettings.h"
#include "MainWindow.h"
#include "ResourceLibraries.h"
#include "deskLanguage.h"
#include "memoryEnd.h"
#include "moduleFiles.h"
#include "resourceLibrary.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <optional>

namespace orvex {

namespace {

enum ExitStatus { kDone = 0, kFailed = 1, kWrongCall = 2 };

[[gnu::constructor(101)]] void prepareForMemoryEnd() {
    sayWhenMemoryEnds("orvex-desk", kFailed);
}

void complain(const std::string& text) {
    std::fprintf(stderr, "orvex-desk: %s\n", text.c_str());
}

bool isSet(const char* variable) {
    const char* const value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

// Without one, Qt would end the process by an abort. A platform chosen by hand may need none.
bool haveDisplay() {
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("QT_QPA_PLATFORM");
}

// Qt ends the process by an abort where it can't start, which looks like a fault of the program.
void tellWhyQtStops(QtMsgType kind, const QMessageLogContext& /*context*/, const QString& text) {
    if (kind == QtFatalMsg) {
        complain(text.simplified().toStdString());
        std::_Exit(kFailed);
    }
    if (kind == QtCriticalMsg) {
        complain(text.toStdString());
    }
}

int showWindow(const DeskCall& call, int argc, char** argv) {
    if (!haveDisplay()) {
        complain("there is no display to open a window on; orvex-batch works without");
        return kFailed;
    }
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const auto before = qInstallMessageHandler(tellWhyQtStops);
    std::optional<QApplication> application;
    {
        const MemoryEndIsFinal whileItStarts; // Qt doesn't survive its own exceptions here
        application.emplace(argc, argv);
    }
    qInstallMessageHandler(before);
    QApplication::setApplicationName(QStringLiteral("orvex-desk"));
    QApplication::setApplicationVersion(QStringLiteral(ORVEX_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("orvex-desk"));
    startLanguage(DeskSettings());
    if (loadResourceDll(L"ORVEXRes.dll") != nullptr) {
        QApplication::setWindowIcon(QIcon(QStringLiteral(":/ORVEXRes/128.svg")));
    }
    if (const auto refusal = ResourceLibraries::instance().takeRefusal(); !refusal.empty()) {
        complain(refusal);
    }
    ModuleLoader modules;
    MainWindow window(modules, moduleFiles(call.module));
    window.show();
    if (call.drawing) {
        window.open(QString::fromStdString(*call.drawing));
    }
    window.offerAutosaves();
    return QApplication::exec();
}

int runProgram(int argc, char** argv) {
    const auto parsed = parseDeskCall(argc, argv);
    if (const auto* const answered = std::get_if<AnsweredDeskCall>(&parsed)) {
        if (answered->isWrong) {
            complain(answered->text + " (see orvex-desk --help)");
            return kWrongCall;
        }
        std::fputs(answered->text.c_str(), stdout);
        return kDone;
    }
    return showWindow(std::get<DeskCall>(parsed), argc, argv);
}

} // namespace

} // namespace orvex

int main(int argc, char** argv) {
    try {
        return orvex::runProgram(argc, argv);
    } catch (const std::exception& error) {
        orvex::complain(error.what());
        return orvex::kFailed;
    }
}
