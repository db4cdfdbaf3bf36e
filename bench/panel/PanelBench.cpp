// What the open panel costs on the live machine: the real readers, the real
// one-second timer, the panel in a window of its own drawn by the software
// renderer (as the desktop process draws it).
//
//   sulkbox_panel_bench [--seconds N]
//
// Three phases of N seconds (default 60): hidden before the panel was ever
// opened, open, and hidden again after closing. For each it prints the
// process's CPU time as a share of one core and its resident memory. The
// two seconds after opening and after closing (first drawing, tearing the
// modules down) are reported on their own.

#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "sampling/LinuxSamplers.h"
#include "settings/AppSettings.h"
#include "ui/common/DesktopActions.h"
#include "ui/common/QmlHost.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QTimer>

#include <sys/resource.h>

#include <cstdio>
#include <memory>

namespace {

double cpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec)
        + double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

// Resident set size in MB, from /proc/self/status.
double rssMB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toDouble() / 1024.0;
    }
    return 0;
}

// Runs the event loop for `seconds` and reports what it cost.
void phase(const char *name, int seconds)
{
    const double cpu0 = cpuSeconds();
    QElapsedTimer wall;
    wall.start();
    QEventLoop loop;
    QTimer::singleShot(seconds * 1000, &loop, &QEventLoop::quit);
    loop.exec();
    const double cpu = cpuSeconds() - cpu0;
    const double elapsed = double(wall.elapsed()) / 1000.0;
    std::printf("%-28s CPU %6.3f s over %5.1f s = %5.2f %% of one core, RSS %5.1f MB\n", name, cpu, elapsed,
                100.0 * cpu / elapsed, rssMB());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickStyle::setStyle(QStringLiteral("Fusion"));
    QGuiApplication app(argc, argv);
    int seconds = 60;
    const QStringList args = app.arguments();
    const qsizetype at = args.indexOf(QStringLiteral("--seconds"));
    if (at >= 0 && at + 1 < args.size())
        seconds = std::max(1, args[at + 1].toInt());

    SystemMonitor monitor(std::make_shared<LinuxSamplers>());
    DesktopActions actions;
    QmlHost::configure(&monitor, &AppSettings::shared(), &Localizer::shared(), &actions);
    std::printf("platform %s, refresh every %.1f s, %d s per phase\n", qPrintable(QGuiApplication::platformName()),
                monitor.currentInterval(), seconds);
    std::printf("%-28s RSS %5.1f MB\n", "start", rssMB());

    phase("hidden, never opened", seconds);

    // Opening as the desktop process does: the engine on first use, the
    // panel in a frameless window, then the model told.
    QElapsedTimer opening;
    opening.start();
    QQuickWindow window;
    window.setFlags(Qt::FramelessWindowHint | Qt::Tool);
    QQmlComponent component(&QmlHost::engine(), QUrl(QStringLiteral("qrc:/sulkbox/qml/Panel.qml")));
    std::unique_ptr<QObject> object(component.beginCreate(QmlHost::engine().rootContext()));
    auto *root = qobject_cast<QQuickItem *>(object.get());
    if (!root) {
        std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
        return 1;
    }
    root->setParentItem(window.contentItem());
    component.completeCreate();
    QObject::connect(root, &QQuickItem::implicitHeightChanged, &window,
                     [&] { window.resize(300, int(root->implicitHeight())); });
    window.resize(300, int(root->implicitHeight()));
    window.show();
    monitor.setPanelVisible(true);
    QCoreApplication::processEvents();
    std::printf("%-28s %.0f ms\n", "first opening", double(opening.nsecsElapsed()) / 1e6);
    phase("opened, first 2 s", 2);
    phase("open", seconds);

    window.hide();
    monitor.setPanelVisible(false);
    phase("closed, first 2 s", 2);
    phase("hidden again", seconds);

    opening.restart();
    window.show();
    monitor.setPanelVisible(true);
    QCoreApplication::processEvents();
    std::printf("%-28s %.0f ms\n", "second opening", double(opening.nsecsElapsed()) / 1e6);
    window.hide();
    monitor.setPanelVisible(false);
    object.reset();
    QmlHost::reset();
    return 0;
}
