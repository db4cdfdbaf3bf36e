// A stand-in tray host for benchmarks: owns org.kde.StatusNotifierWatcher on
// the session bus with a host registered, and keeps it until killed.

#include "common/FakeWatcher.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    FakeWatcher watcher;
    if (!watcher.owned()) {
        std::fprintf(stderr, "traywatcher: org.kde.StatusNotifierWatcher is taken\n");
        return 1;
    }
    QObject::connect(&watcher, &FakeWatcher::itemRegistered, [](const QString &item) {
        std::printf("%s\n", qPrintable(item));
        std::fflush(stdout);
    });
    return app.exec();
}
