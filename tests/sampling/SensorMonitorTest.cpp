#include "common/TestSupport.h"

#include "sampling/SensorMonitor.h"

#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

namespace {

using TestSupport::fixtureRoots;
using TestSupport::writeFile;

// A reading of the sensors under `roots`.
SensorSample readAt(const SystemRoots &roots)
{
    SMC smc(roots);
    return SensorMonitor(roots, smc).read();
}

// A writable copy of a fixture tree, for readings that change.
QString copyOf(const QTemporaryDir &tmp, const QString &name)
{
    TestSupport::copyTree(TestSupport::fixture(name), tmp.path());
    return tmp.path();
}

QStringList names(const SensorSample &s)
{
    QStringList out;
    for (const TempReading &r : s.temperatures)
        out << r.name;
    return out;
}

double celsiusOf(const SensorSample &s, const QString &name)
{
    for (const TempReading &r : s.temperatures)
        if (r.name == name)
            return r.celsius;
    return -1;
}

double component(const SensorSample &s, LocKey key)
{
    for (const TempComponent &c : s.components)
        if (c.key == key)
            return c.celsius;
    return 0;
}

} // namespace

class SensorMonitorTest : public QObject {
    Q_OBJECT
private slots:
    void laptop()
    {
        const SystemRoots roots = fixtureRoots(QStringLiteral("laptop"));
        SMC smc(roots);
        SensorMonitor monitor(roots, smc);
        const SensorSample s = monitor.read();

        // Hottest first; the second nvme drive's Composite replaces the
        // first's; the zero GPU sensor, the battery's own hwmon copy and the
        // thermal zones (hwmon has temperatures here) are left out.
        QCOMPARE(names(s), QStringList({
            QStringLiteral("coretemp Core 1"), QStringLiteral("coretemp Package id 0"),
            QStringLiteral("coretemp Core 0"), QStringLiteral("thinkpad CPU"),
            QStringLiteral("pch_cannonlake temp1"), QStringLiteral("nvme Sensor 1"),
            QStringLiteral("acpitz temp1"), QStringLiteral("iwlwifi_1 temp1"),
            QStringLiteral("jc42 temp1"), QStringLiteral("nvme Composite"),
            QStringLiteral("BAT0 battery")}));
        QCOMPARE(celsiusOf(s, QStringLiteral("nvme Composite")), 36.85);
        QCOMPARE(s.hottest, 64.0);
        QCOMPARE(s.cpuTemp, 61.0); // coretemp package and cores, thinkpad CPU
        QCOMPARE(s.gpuTemp, 0.0);
        QCOMPARE(s.components.size(), 3);
        QCOMPARE(component(s, LocKey::compSSD), (45.85 + 36.85) / 2);
        QCOMPARE(component(s, LocKey::compWiFi), 41.0);
        QCOMPARE(component(s, LocKey::compBattery), 29.8);
        QCOMPARE(s.fans, (QList<FanInfo>{{0, 2760, 0, 0}}));

        // The cached layout gives the same reading.
        QCOMPARE(monitor.read(), s);
    }

    void amdDesktop()
    {
        const SensorSample s = readAt(fixtureRoots(QStringLiteral("amd-desktop")));

        QVERIFY(!names(s).contains(QStringLiteral("nct6775 AUXTIN0"))); // -62 °C
        QCOMPARE(s.cpuTemp, (68.25 + 60.5 + 58.0 + 45.5) / 4); // k10temp and the board's CPUTIN
        QCOMPARE(s.gpuTemp, (55.0 + 61.0 + 70.0) / 3);
        QCOMPARE(s.hottest, 70.0);
        QCOMPARE(s.components.size(), 1);
        QCOMPARE(component(s, LocKey::compSSD), 41.85);
        QCOMPARE(s.fans, (QList<FanInfo>{{0, 1200, 0, 3300}, {1, 820, 300, 0},
                                         {2, 1105, 0, 0}, {3, 640, 200, 2000}}));
    }

    void intelMacTakesFansFromTheSmc()
    {
        const SensorSample s = readAt(fixtureRoots(QStringLiteral("intel-mac")));

        // applesmc keeps its files on the platform device (hwmon1/device).
        QCOMPARE(celsiusOf(s, QStringLiteral("applesmc TC0P")), 47.5);
        QCOMPARE(s.cpuTemp, (55.0 + 53.0 + 54.0 + 47.5) / 4);
        QCOMPARE(s.gpuTemp, 52.25);
        QCOMPARE(component(s, LocKey::compSSD), 36.0);
        QCOMPARE(component(s, LocKey::compWiFi), 44.0);
        QCOMPARE(component(s, LocKey::compBattery), 30.25);
        QCOMPARE(s.fans, (QList<FanInfo>{{0, 2000, 1300, 6200}, {1, 2100, 1300, 6200}}));
    }

    void smcStandsInForAMissingCpuFigure()
    {
        SMC mac(fixtureRoots(QStringLiteral("intel-mac")));
        SensorMonitor monitor(fixtureRoots(QStringLiteral("vm")), mac);
        const SensorSample s = monitor.read();
        QVERIFY(s.temperatures.isEmpty());
        QCOMPARE(s.hottest, 0.0);
        QCOMPARE(s.cpuTemp, 47.5);
        QCOMPARE(s.fans.size(), 2);
    }

    void thermalZonesWhereHwmonHasNothing()
    {
        const SensorSample s = readAt(fixtureRoots(QStringLiteral("arm-board")));
        QCOMPARE(names(s), QStringList({QStringLiteral("cpu_thermal"), QStringLiteral("gpu_thermal")}));
        QCOMPARE(s.cpuTemp, 49.0); // the later zone of the same name stands
        QCOMPARE(s.gpuTemp, 45.0);
        QVERIFY(s.fans.isEmpty());
    }

    void emptyWhereThereIsNothing()
    {
        for (const char *name : {"vm", "no-such-tree"})
            QCOMPARE(readAt(fixtureRoots(QString::fromLatin1(name))), SensorSample{});
    }

    void nvidiaTemperatureCountsAsGpu()
    {
        const SystemRoots roots = fixtureRoots(QStringLiteral("laptop"));
        SMC smc(roots);
        SensorMonitor monitor(roots, smc);
        monitor.setNvidiaSource([] {
            nvml::NvmlReading r;
            r.ok = r.hasTemp = true;
            r.tempC = 71;
            nvml::NvmlReading mute; // a board that answers nothing
            return std::vector<nvml::NvmlReading>{r, mute};
        });
        const SensorSample s = monitor.read();
        QCOMPARE(s.temperatures.first().name, QStringLiteral("nvidia GPU 0"));
        QCOMPARE(s.gpuTemp, 71.0);
        QCOMPARE(s.hottest, 71.0);
        QVERIFY(!names(s).contains(QStringLiteral("nvidia GPU 1")));
    }

    void followsChangesAndDropsImplausibleValues()
    {
        QTemporaryDir tmp;
        const QString root = copyOf(tmp, QStringLiteral("laptop"));
        const SystemRoots roots = SystemRoots::underPrefix(root);
        SMC smc(roots);
        SensorMonitor monitor(roots, smc);
        QCOMPARE(monitor.read().cpuTemp, 61.0);

        const QString hwmon = root + QStringLiteral("/sys/class/hwmon/");
        writeFile(hwmon + QStringLiteral("hwmon2/temp3_input"), "250000\n"); // 250 °C
        writeFile(hwmon + QStringLiteral("hwmon4/temp1_input"), "not a number\n");
        SensorSample s = monitor.read();
        QVERIFY(!names(s).contains(QStringLiteral("coretemp Core 1")));
        QVERIFY(s.components.size() == 2 && component(s, LocKey::compWiFi) == 0);
        QCOMPARE(s.cpuTemp, (62.0 + 60.0 + 58.0) / 3);
        QCOMPARE(s.hottest, 62.0);

        // A chip that goes away (module unloaded) drops out; the readers do
        // not stumble over the stale layout in between.
        std::filesystem::remove_all((hwmon + QStringLiteral("hwmon2")).toStdString());
        for (int i = 0; i < SensorMonitor::retryAfter + 1; ++i)
            s = monitor.read();
        QVERIFY(!names(s).join(u',').contains(QStringLiteral("coretemp")));
        QCOMPARE(s.cpuTemp, 58.0);

        // A new chip shows up after the next walk.
        std::filesystem::create_directories((hwmon + QStringLiteral("hwmon10")).toStdString());
        writeFile(hwmon + QStringLiteral("hwmon10/name"), "k10temp\n");
        writeFile(hwmon + QStringLiteral("hwmon10/temp1_label"), "Tctl\n");
        writeFile(hwmon + QStringLiteral("hwmon10/temp1_input"), "70000\n");
        for (int i = 0; i < SensorMonitor::rediscoverEvery; ++i)
            s = monitor.read();
        QCOMPARE(celsiusOf(s, QStringLiteral("k10temp Tctl")), 70.0);
    }

    void absurdFanSpeedsAreLeftOut()
    {
        // hwmon: a speed no fan turns at is no reading; limits likewise.
        QTemporaryDir tmp;
        const QString root = copyOf(tmp, QStringLiteral("amd-desktop"));
        const QString hwmon = root + QStringLiteral("/sys/class/hwmon/");
        writeFile(hwmon + QStringLiteral("hwmon1/fan1_input"), "9223372036854775807\n");
        writeFile(hwmon + QStringLiteral("hwmon2/fan3_max"), "4000000000\n");
        SensorSample s = readAt(SystemRoots::underPrefix(root));
        QCOMPARE(s.fans, (QList<FanInfo>{{1, 820, 300, 0}, {2, 1105, 0, 0}, {3, 640, 200, 0}}));

        // The controller: such a speed reads as 0, like an unreadable one.
        QTemporaryDir mac;
        const QString macRoot = copyOf(mac, QStringLiteral("intel-mac"));
        const QString key = macRoot + QStringLiteral("/sys/devices/platform/applesmc.768/keys/5/");
        writeFile(key + QStringLiteral("type"), "flt \n");
        writeFile(key + QStringLiteral("data"), QByteArray::fromHex("f9021550")); // 1e10
        s = readAt(SystemRoots::underPrefix(macRoot));
        QCOMPARE(s.fans, (QList<FanInfo>{{0, 2000, 1300, 6200}, {1, 0, 1300, 6200}}));
    }

    void sleepingGraphicsCardIsNotWoken()
    {
        QTemporaryDir tmp;
        const QString root = copyOf(tmp, QStringLiteral("amd-desktop"));
        writeFile(root + QStringLiteral("/sys/class/hwmon/hwmon1/device/power/runtime_status"), "suspended\n");
        const SensorSample s = readAt(SystemRoots::underPrefix(root));
        QCOMPARE(s.gpuTemp, 0.0);
        QVERIFY(!names(s).join(u',').contains(QStringLiteral("amdgpu")));
        // Its fan is left out too; the others keep their numbers.
        QCOMPARE(s.fans.size(), 3);
        QCOMPARE(s.fans.first().index, 1);
    }
};

SULK_TEST(SensorMonitorTest)
#include "SensorMonitorTest.moc"
