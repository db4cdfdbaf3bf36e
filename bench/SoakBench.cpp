// A day-and-more of ticks, fast: one million ticks of the model over the
// laptop tree on a clock moved by hand (no sleeping), the panel opened and
// closed now and then, with resident memory printed every 100,000 ticks.
// After the first 100,000 (warm-up: caches, the first holiday lookup, the
// thread pool) it must stay flat within 1 MB.
//
//   sulkbox_bench soak

#include "Bench.h"

#include "model/Scheduler.h"
#include "model/SystemMonitor.h"
#include "sampling/LinuxSamplers.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int ticks = 1'000'000;
constexpr int reportEvery = 100'000;
constexpr int panelEvery = 25'000; // ticks between opening and closing the panel

double residentMiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
    }
    return -1;
}

QString soak()
{
    const QString tree = QStringLiteral(SULK_FIXTURES "/laptop");
    // Ten minutes before midnight, so the run crosses a dozen of them.
    ManualScheduler clock(QDateTime(QDate(2026, 2, 16), QTime(23, 50), Qt::UTC));
    SystemMonitor monitor(std::make_shared<LinuxSamplers>(SystemRoots::underPrefix(tree)), clock);
    monitor.stop(); // the hand-moved clock drives every tick

    std::printf("%10s %10s %12s\n", "ticks", "RSS MiB", "ticks/s");
    QElapsedTimer wall;
    wall.start();
    qint64 lastMs = 0;
    double low = 1e9, high = 0;
    for (int i = 1; i <= ticks; ++i) {
        clock.advance(1000);
        monitor.tick();
        if (i % panelEvery == 0)
            monitor.setPanelVisible(!monitor.panelVisible());
        if (i % 1000 == 0)
            QCoreApplication::processEvents(); // the process lists coming back
        if (i % reportEvery == 0) {
            const double rss = residentMiB();
            const qint64 ms = wall.elapsed();
            std::printf("%10d %10.2f %12.0f\n", i, rss, reportEvery / std::max((ms - lastMs) / 1000.0, 1e-3));
            std::fflush(stdout);
            lastMs = ms;
            if (i > reportEvery) {
                low = std::min(low, rss);
                high = std::max(high, rss);
            }
        }
    }
    // The readings were real all along.
    if (!(monitor.memory().total > 0) || monitor.sensors().temperatures.isEmpty() || !monitor.battery().present)
        return QStringLiteral("the fixture gave no readings!");
    return QStringLiteral("RSS after warm-up %1-%2 MiB: spread %3 kB")
        .arg(low, 0, 'f', 2)
        .arg(high, 0, 'f', 2)
        .arg((high - low) * 1024, 0, 'f', 0);
}

} // namespace

SULK_BENCH(soak, {QStringLiteral("soak"), {}, soak, 1, true})
