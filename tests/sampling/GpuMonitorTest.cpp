#include "common/TestSupport.h"

#include "sampling/GPUMonitor.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

using TestSupport::fixtureRoots;
using TestSupport::writeFile;

nvml::Source nvidiaAt(double util)
{
    return [util] {
        nvml::NvmlReading r;
        r.ok = r.hasUtil = true;
        r.util01 = util;
        return std::vector<nvml::NvmlReading>{r};
    };
}

} // namespace

class GpuMonitorTest : public QObject {
    Q_OBJECT
private slots:
    void amdgpuBusyPercent()
    {
        const GPUSample g = GPUMonitor(fixtureRoots(QStringLiteral("amd-desktop"))).read();
        QVERIFY(g.hasUsage);
        QCOMPARE(g.usage, 0.37);
        QCOMPARE(g.temp, 0.0);
    }

    void noFigureWithoutACardThatReportsOne()
    {
        for (const char *name : {"laptop", "vm", "no-such-tree"})
            QCOMPARE(GPUMonitor(fixtureRoots(QString::fromLatin1(name))).read(), GPUSample{});
    }

    void cardsInOrderClampedAndSleeping()
    {
        QTemporaryDir tmp;
        const QString drm = tmp.path() + QStringLiteral("/sys/class/drm/");
        writeFile(drm + QStringLiteral("card1/device/gpu_busy_percent"), "120\n");
        writeFile(drm + QStringLiteral("card1-HDMI-A-1/status"), "connected\n");
        GPUMonitor monitor(SystemRoots::underPrefix(tmp.path()));
        QCOMPARE(monitor.read().usage, 1.0);

        // A sleeping card (an idle laptop's discrete GPU) is not read; an
        // awake one, even later in order or NVIDIA's, is preferred.
        writeFile(drm + QStringLiteral("card0/device/gpu_busy_percent"), "90\n");
        writeFile(drm + QStringLiteral("card0/device/power/runtime_status"), "suspended\n");
        QCOMPARE(monitor.read().usage, 1.0);
        writeFile(drm + QStringLiteral("card1/device/gpu_busy_percent"), "garbage\n");
        monitor.setNvidiaSource(nvidiaAt(0.25));
        QCOMPARE(monitor.read().usage, 0.25);
        monitor.setNvidiaSource({});
        const GPUSample idle = monitor.read();
        QVERIFY(idle.hasUsage);
        QCOMPARE(idle.usage, 0.0);
    }
};

SULK_TEST(GpuMonitorTest)
#include "GpuMonitorTest.moc"
