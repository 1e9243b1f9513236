// A window that draws walls by itself, with pauses of all lengths, until it is killed:
// restlessDesk MODULE DRAWING. Prints a line for each wall before it is drawn.

#include "AutosaveDesk.h"
#include "DeskSettings.h"
#include "MainWindow.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <random>

int main(int argc, char** argv) {
    using namespace orvex;
    const QApplication application(argc, argv);
    DeskSettings().setInteger(DeskSettings::kAutosave, 1);
    ModuleLoader modules;
    MainWindow window(modules, {argv[1]});
    window.show();
    window.open(QString::fromLocal8Bit(argv[2]));
    std::mt19937 random(std::random_device{}());
    int walls = 0;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [&] {
        constexpr int kUsual = 300;  // milliseconds
        constexpr int kPause = 1500; // now and then: longer than what the autosave waits for
        std::printf("%d\n", ++walls);
        std::fflush(stdout);
        const QString y = QString::number(walls);
        window.start(QStringLiteral("MLINE"), {"-9000," + y, "-8000," + y, "", ""});
        timer.start(static_cast<int>(random() % 4 == 0 ? kPause : random() % kUsual));
    });
    timer.start(0);
    return QApplication::exec();
}
