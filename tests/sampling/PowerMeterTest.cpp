#include "common/TestSupport.h"

#include "sampling/Power.h"

#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

namespace {

// A writable copy of a fixture's /sys, a meter over it and a hand-driven clock.
struct Rig {
    QTemporaryDir tmp;
    QString sys;
    double now = 1000.0;
    std::unique_ptr<PowerMeter> meter;

    explicit Rig(const char *fixture)
    {
        TestSupport::copyTree(TestSupport::fixture(QString::fromLatin1(fixture)), tmp.path());
        sys = tmp.path() + QStringLiteral("/sys");
        meter = std::make_unique<PowerMeter>(SystemRoots::underPrefix(tmp.path()));
        meter->setClock([this] { return now; });
    }

    void set(const char *zone, qint64 microjoules)
    {
        TestSupport::writeFile(sys + QStringLiteral("/class/powercap/") + QLatin1StringView(zone) + "/energy_uj",
                               QByteArray::number(microjoules) + '\n');
    }

    QmPowerReading readAfter(double seconds)
    {
        now += seconds;
        return meter->read();
    }
};

QmPowerReading watts(double cpu, double gpu, double total)
{
    QmPowerReading r;
    r.cpu = cpu;
    r.gpu = gpu;
    r.total = total;
    r.ok = 1;
    return r;
}

// A board's reading: a momentary figure, and an energy counter when given.
nvml::NvmlReading board(double powerW, std::optional<double> energyJ = {})
{
    nvml::NvmlReading r;
    r.ok = r.hasPower = true;
    r.powerW = powerW;
    r.hasEnergy = energyJ.has_value();
    r.energyJ = energyJ.value_or(0);
    return r;
}

void compareReading(const QmPowerReading &got, const QmPowerReading &want)
{
    QCOMPARE(got.ok, want.ok);
    for (const auto field : {&QmPowerReading::cpu, &QmPowerReading::gpu, &QmPowerReading::total})
        QVERIFY2(qAbs(got.*field - want.*field) < 1e-9, qPrintable(QString::number(got.*field)));
}

} // namespace

class PowerMeterTest : public QObject {
    Q_OBJECT
private slots:
    void averagesOverTheInterval()
    {
        Rig rig("laptop");
        QCOMPARE(rig.meter->read(), QmPowerReading{}); // primes only
        rig.set("intel-rapl:0", 100000000 + 20000000);   // package +20 J
        rig.set("intel-rapl:0:0", 60000000 + 12000000);  // core +12 J
        rig.set("intel-rapl:0:1", 5000000 + 1000000);    // uncore +1 J
        rig.set("intel-rapl:0:2", 20000000 + 4000000);   // dram +4 J
        rig.set("intel-rapl:1", 900000000);              // psys: not counted
        rig.set("intel-rapl-mmio:0", 999000000);         // copy of the package: not counted
        compareReading(rig.readAfter(2.0), watts(6.0, 0.5, 12.0));
        // Nothing used since: zeros, still a valid reading.
        compareReading(rig.readAfter(1.0), watts(0, 0, 0));
    }

    void counterWrapsThroughItsRange()
    {
        Rig rig("laptop");
        const qint64 range = 262143328850;
        rig.set("intel-rapl:0", range - 1000000);
        rig.set("intel-rapl:0:0", range - 500000);
        rig.meter->read();
        rig.set("intel-rapl:0", 4000000);  // 1 J to the top, 4 J after
        rig.set("intel-rapl:0:0", 2500000); // 0.5 J + 2.5 J
        compareReading(rig.readAfter(1.0), watts(3.0, 0, 5.0));

        // A counter that goes back without a known range is not trusted.
        QFile::remove(rig.sys + QStringLiteral("/class/powercap/intel-rapl:0/max_energy_range_uj"));
        rig.meter->reset();
        rig.meter->read();
        rig.set("intel-rapl:0", 1000000);
        QCOMPARE(rig.readAfter(1.0).ok, 0);
        rig.set("intel-rapl:0", 3000000);
        compareReading(rig.readAfter(1.0), watts(0, 0, 2.0));
    }

    void counterFallingBackIsAResetNotAWrap()
    {
        // A counter far from the top of its range that falls back toward 0
        // was reset (or a snapshot was damaged); taken for a wrap it would
        // read as a quarter of a megawatt.
        Rig rig("laptop");
        rig.set("intel-rapl:0", 5000000000);
        QCOMPARE(rig.meter->read().ok, 0);
        rig.set("intel-rapl:0", 1000000);
        QCOMPARE(rig.readAfter(1.0).ok, 0);
        // Measured again from the value it fell to.
        rig.set("intel-rapl:0", 3000000);
        compareReading(rig.readAfter(1.0), watts(0, 0, 2.0));

        // A jump forward no package could draw is no reading either.
        rig.set("intel-rapl:0", 3000000 + 50000000000);
        QCOMPARE(rig.readAfter(1.0).ok, 0);
        rig.set("intel-rapl:0", 3000000 + 50000000000 + 7000000);
        compareReading(rig.readAfter(1.0), watts(0, 0, 7.0));
    }

    void amdDesktopPackageAndBoard()
    {
        // No core zone: the package stands for the CPU. The discrete card's
        // 153 W adds to the GPU and the total.
        Rig rig("amd-desktop");
        rig.meter->read();
        rig.set("intel-rapl:0", 4000000000 + 90000000);
        compareReading(rig.readAfter(1.0), watts(90.0, 153.0, 243.0));

        // A board figure no card could draw is dropped.
        TestSupport::writeFile(rig.sys + QStringLiteral("/class/hwmon/hwmon1/power1_average"), "4600000000000000000\n");
        rig.set("intel-rapl:0", 4000000000 + 180000000);
        compareReading(rig.readAfter(1.0), watts(90.0, 0, 90.0));
    }

    void intervalRule()
    {
        Rig rig("laptop");
        rig.meter->read();
        rig.set("intel-rapl:0", 130000000);
        QCOMPARE(rig.readAfter(31.0).ok, 0); // too long ago: primes again
        rig.set("intel-rapl:0", 140000000);
        compareReading(rig.readAfter(1.0), watts(0, 0, 10.0));
        rig.set("intel-rapl:0", 170000000);
        compareReading(rig.readAfter(30.0), watts(0, 0, 1.0)); // 30 s is still fine
        QCOMPARE(rig.readAfter(0.0).ok, 0);                    // no time passed
        QCOMPARE(rig.readAfter(-5.0).ok, 0);                   // clock went back
        compareReading(rig.readAfter(1.0), watts(0, 0, 0));
        // A reset makes the next reading prime.
        rig.meter->reset();
        QCOMPARE(rig.readAfter(1.0).ok, 0);
        QCOMPARE(rig.readAfter(1.0).ok, 1);
    }

    void unreadableCountersAreNotOk()
    {
        // What an ordinary user meets since kernel 5.10 (root-only counters);
        // a folder in the file's place fails to read even for root.
        Rig rig("laptop");
        const std::string file = (rig.sys + QStringLiteral("/class/powercap/intel-rapl:0:0/energy_uj")).toStdString();
        std::filesystem::remove(file);
        std::filesystem::create_directory(file);
        QCOMPARE(rig.meter->read().ok, 0);
        QCOMPARE(rig.readAfter(1.0).ok, 0);

        // Access granted later: picked up, primes, then measures.
        std::filesystem::remove(file);
        rig.set("intel-rapl:0:0", 1000);
        QCOMPARE(rig.readAfter(1.0).ok, 0);
        QCOMPARE(rig.readAfter(1.0).ok, 1);
    }

    void nvidiaBoardsAddToGpuAndTotal()
    {
        Rig rig("laptop");
        double joules = 5000, firstWatts = 999, secondWatts = 20;
        // The counter wins over the first board's momentary figure.
        rig.meter->setNvidiaSource([&] { return std::vector{board(firstWatts, joules), board(secondWatts)}; });
        rig.meter->read();
        joules += 120;
        rig.set("intel-rapl:0", 100000000 + 10000000);
        compareReading(rig.readAfter(2.0), watts(0, 60.0 + 20.0, 5.0 + 80.0));

        // Figures no board could draw, counter and momentary alike, are dropped.
        joules += 1e9;
        firstWatts = secondWatts = 1e12;
        compareReading(rig.readAfter(1.0), watts(0, 0, 0));
    }

    void noCountersNoReading()
    {
        for (const char *name : {"vm", "intel-mac"}) {
            Rig rig(name);
            QCOMPARE(rig.meter->read(), QmPowerReading{});
            QCOMPARE(rig.readAfter(1.0), QmPowerReading{});
        }
    }
};

SULK_TEST(PowerMeterTest)
#include "PowerMeterTest.moc"
