#include "common/TestSupport.h"
#include "common/FakeSamplers.h"

#include "settings/Settings.h"
#include "model/SystemMonitor.h"

#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>

#include <memory>

namespace {

struct Rig {
    std::shared_ptr<FakeSamplers> fake = std::make_shared<FakeSamplers>();
    ManualScheduler clock;
    std::unique_ptr<SystemMonitor> monitor;

    Rig() { monitor = std::make_unique<SystemMonitor>(fake, clock); }
    void ticks(int n)
    {
        for (int i = 0; i < n; ++i)
            monitor->tick();
    }
};

} // namespace

class SystemMonitorTest : public QObject {
    Q_OBJECT
private slots:
    void init() { TestSupport::clearSettings(); }

    void slowSamplesEveryNinthTickHiddenAndEveryThirdOpen_data()
    {
        QTest::addColumn<bool>("open");
        QTest::addColumn<int>("ticks");
        QTest::addColumn<QList<int>>("slow");
        QTest::newRow("hidden") << false << 27 << QList<int>{9, 18, 27};
        QTest::newRow("open") << true << 9 << QList<int>{3, 6, 9};
    }

    void slowSamplesEveryNinthTickHiddenAndEveryThirdOpen()
    {
        QFETCH(bool, open);
        QFETCH(int, ticks);
        QFETCH(QList<int>, slow);
        Rig rig;
        rig.monitor->setPanelVisible(open); // opening samples at once, slowTick still 0
        QList<int> slowTicks;
        for (int t = 1; t <= ticks; ++t) {
            const int before = rig.fake->sensorReads;
            rig.monitor->tick();
            if (rig.fake->sensorReads > before)
                slowTicks.append(t);
        }
        QCOMPARE(slowTicks, slow);
        // One sample at construction (the open-panel readers only once opened).
        QCOMPARE(rig.fake->cpuReads, 1 + int(open) + ticks);
        QCOMPARE(rig.fake->batteryReads, 1 + int(open) + 3);
        QCOMPARE(rig.fake->gpuReads, open ? 1 + 3 : 0);
        QCOMPARE(rig.fake->powerReads, open ? 1 + 3 : 0);
    }

    void openingLateInTheHiddenCycleMakesTheNextTickSlow_data()
    {
        QTest::addColumn<int>("hiddenTicks");
        QTest::addColumn<bool>("nextIsSlow");
        QTest::newRow("1") << 1 << false;
        QTest::newRow("2") << 2 << true; // reaches 3 on that tick
    }

    void openingLateInTheHiddenCycleMakesTheNextTickSlow()
    {
        QFETCH(int, hiddenTicks);
        QFETCH(bool, nextIsSlow);
        Rig rig;
        rig.ticks(hiddenTicks);
        QCOMPARE(rig.monitor->slowTick(), hiddenTicks);
        rig.monitor->setPanelVisible(true);
        QCOMPARE(rig.monitor->slowTick(), hiddenTicks); // not reset by opening
        const int before = rig.fake->sensorReads;
        rig.monitor->tick();
        QCOMPARE(rig.fake->sensorReads > before, nextIsSlow);
    }

    void intervalClamping_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<double>("interval");
        QTest::newRow("absent") << QVariant() << 1.0;
        QTest::newRow("0.2") << QVariant(0.2) << 0.5;
        QTest::newRow("0.5") << QVariant(0.5) << 0.5;
        QTest::newRow("0.7") << QVariant(0.7) << 0.7;
        QTest::newRow("30") << QVariant(30.0) << 10.0;
        QTest::newRow("zero") << QVariant(0.0) << 1.0;
        QTest::newRow("text") << QVariant(QStringLiteral("fast please")) << 1.0;
        QTest::newRow("nan") << QVariant(QStringLiteral("nan")) << 1.0;
    }

    void intervalClamping()
    {
        QFETCH(QVariant, stored);
        QFETCH(double, interval);
        if (stored.isValid())
            Settings::set(Settings::Key::refreshInterval, stored);
        Rig rig;
        QCOMPARE(rig.monitor->currentInterval(), interval);
        QVERIFY(rig.monitor->timerActive());
        QCOMPARE(rig.monitor->timerIntervalMs(), int(interval * 1000));
    }

    void changedIntervalRearmsAtTheNextTick()
    {
        Rig rig;
        QCOMPARE(rig.monitor->timerIntervalMs(), 1000);
        Settings::set(Settings::Key::refreshInterval, 5.0);
        QCOMPARE(rig.monitor->timerIntervalMs(), 1000); // not before the tick
        const int before = rig.fake->cpuReads;
        rig.monitor->tick();
        QCOMPARE(rig.monitor->currentInterval(), 5.0);
        QCOMPARE(rig.monitor->timerIntervalMs(), 5000);
        QVERIFY(rig.monitor->timerActive());
        QCOMPARE(rig.fake->cpuReads, before + 1); // that tick still samples
    }

    void historiesKeepTheNewestSixty()
    {
        Rig rig;
        // Every tick assigns and announces, changed or not.
        QSignalSpy cpuSpy(rig.monitor.get(), &SystemMonitor::cpuChanged);
        QSignalSpy historySpy(rig.monitor.get(), &SystemMonitor::cpuHistoryChanged);
        rig.ticks(2);
        QCOMPARE(cpuSpy.count(), 2);
        QCOMPARE(historySpy.count(), 2);
        for (int i = 1; i <= 61; ++i) {
            rig.fake->cpu.total = i / 100.0;
            rig.fake->network.downRate = i;
            rig.monitor->tick();
        }
        // The construction sample came first and has been pushed out too.
        const QList<double> cpu = rig.monitor->cpuHistory().ordered();
        QCOMPARE(cpu.size(), 60);
        QCOMPARE(cpu.first(), 0.02); // the construction's reading and the three after it are gone
        QCOMPARE(cpu.last(), 0.61);
        QCOMPARE(rig.monitor->netDownHistory().ordered().last(), 61.0);
        QCOMPARE(rig.monitor->netUpHistory().ordered().size(), 60);
    }

    void diskHistoriesOnlyTakeRatedReadings()
    {
        Rig rig;
        rig.fake->disk.hasRate = true;
        rig.fake->disk.readRate = 100;
        rig.fake->disk.writeRate = 50;
        rig.ticks(2); // hidden: disk not read at all
        QCOMPARE(rig.fake->diskReads, 0);
        QVERIFY(rig.monitor->diskReadHistory().ordered().isEmpty());

        rig.monitor->setPanelVisible(true);
        QCOMPARE(rig.monitor->diskReadHistory().ordered(), QList<double>{100});
        rig.fake->disk.hasRate = false;
        rig.fake->disk.volumes = {VolumeInfo{QStringLiteral("Data"), QStringLiteral("/data"), 10, 5}};
        QSignalSpy readSpy(rig.monitor.get(), &SystemMonitor::diskReadHistoryChanged);
        rig.monitor->tick();
        QCOMPARE(readSpy.count(), 0);
        QCOMPARE(rig.monitor->diskReadHistory().ordered(), QList<double>{100});
        QCOMPARE(rig.monitor->diskWriteHistory().ordered(), QList<double>{50});
        QCOMPARE(rig.monitor->disk().volumes.size(), 1); // volumes still update
    }

    void panelSwitching()
    {
        Rig rig;
        rig.fake->gpu.hasUsage = true;
        rig.fake->gpu.usage = 0.4;
        rig.fake->sensors.gpuTemp = 61;
        rig.monitor->setPanelVisible(true);
        rig.monitor->setPanelVisible(true);
        QCOMPARE(rig.fake->cpuReads, 2);
        QCOMPARE(rig.fake->diskReads, 1);
        QCOMPARE(rig.fake->gpuReads, 1);
        QCOMPARE(rig.fake->powerReads, 1);
        QCOMPARE(rig.fake->addressRefreshes, (QList<bool>{false, true}));
        // The GPU card carries the sensors' GPU temperature.
        QCOMPARE(rig.monitor->gpu().temp, 61.0);
        QCOMPARE(rig.monitor->gpu().usage, 0.4);

        rig.monitor->setPanelVisible(false);
        rig.monitor->setPanelVisible(false);
        QCOMPARE(rig.fake->diskBaselineClears, 1);
        QCOMPARE(rig.fake->powerResets, 1);
        rig.monitor->tick();
        QCOMPARE(rig.fake->addressRefreshes.last(), false);
        QCOMPARE(rig.fake->diskReads, 1);
    }

    void powerIsReadAgainOneSecondAfterOpening()
    {
        Rig rig;
        rig.fake->power = {3, 1, 5, 1};
        rig.monitor->setPanelVisible(true);
        QCOMPARE(rig.fake->powerReads, 1);
        QVERIFY(rig.monitor->power().ok);
        QCOMPARE(rig.monitor->power().total, 5.0);
        rig.fake->power = {2, 0.5, 3, 1};
        rig.clock.advance(999);
        QCOMPARE(rig.fake->powerReads, 1);
        rig.clock.advance(1);
        QCOMPARE(rig.fake->powerReads, 2);
        QCOMPARE(rig.monitor->power().total, 3.0);
        rig.fake->power = {9, 9, 9, 0};
        rig.ticks(3);
        QCOMPARE(rig.monitor->power().total, 3.0); // an invalid reading is ignored

        // Closed again before the second: no late reading.
        rig.monitor->setPanelVisible(false);
        rig.monitor->setPanelVisible(true);
        rig.monitor->setPanelVisible(false);
        const int reads = rig.fake->powerReads;
        rig.clock.advance(2000);
        QCOMPARE(rig.fake->powerReads, reads);
    }

    void processListArrivesOnTheMainThread()
    {
        Rig rig;
        for (int i = 0; i < 7; ++i)
            rig.fake->processes.append(ProcInfo(10 + i, QString(QChar(u'a' + i)), 50 - i, i + 1));
        rig.monitor->setPanelVisible(true);
        QTRY_COMPARE(rig.monitor->processes().size(), 6);
        QCOMPARE(rig.monitor->processes().first().name(), QStringLiteral("a"));

        // Hidden: the list stays as it was.
        rig.monitor->setPanelVisible(false);
        rig.fake->processes.clear();
        rig.ticks(18);
        QCoreApplication::processEvents();
        QCOMPARE(rig.monitor->processes().size(), 6);
    }

    void lateProcessListAfterTheMonitorIsGone()
    {
        Rig rig;
        rig.fake->blockProcesses = true;
        rig.fake->processes = {ProcInfo(1, QStringLiteral("late"), 99, 1)};
        QPointer<SystemMonitor> watch(rig.monitor.get());
        rig.monitor->setPanelVisible(true);
        QVERIFY(rig.fake->entered.tryAcquire(1, 5000));
        rig.monitor.reset();
        rig.fake->release.release();
        QVERIFY(QThreadPool::globalInstance()->waitForDone(5000));
        QCoreApplication::processEvents();
        QVERIFY(watch.isNull());
        QCOMPARE(rig.fake->processCalls.load(), 1);
    }

    void processListsNeverOverlap()
    {
        Rig rig;
        rig.fake->blockProcesses = true;
        rig.monitor->setPanelVisible(true);
        QVERIFY(rig.fake->entered.tryAcquire(1, 5000));
        rig.ticks(6); // two more slow ticks while the first list still runs
        QCOMPARE(rig.fake->processCalls.load(), 1);
        rig.fake->release.release();
        QVERIFY(QThreadPool::globalInstance()->waitForDone(5000));
        rig.fake->blockProcesses = false;
        rig.ticks(3);
        QVERIFY(QThreadPool::globalInstance()->waitForDone(5000));
        QCOMPARE(rig.fake->processCalls.load(), 2);
    }
};

SULK_TEST(SystemMonitorTest)

#include "SystemMonitorTest.moc"
