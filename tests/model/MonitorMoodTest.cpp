// The model's mood and roast state: what the engine is fed, when `mood`,
// `reaction` and `roastEvent` announce a change, and the roast's expiry.

#include "common/TestSupport.h"
#include "common/FakeSamplers.h"

#include "settings/Settings.h"
#include "model/SystemMonitor.h"
#include "personality/MoodPrint.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

VolumeInfo volume(const QString &path, double total, double free)
{
    return {path, path, total, free};
}

struct Rig {
    explicit Rig(const QDateTime &start = QDateTime(QDate(2026, 3, 10), QTime(14, 0)))
        : scheduler(start)
    {
    }
    std::shared_ptr<FakeSamplers> samplers = std::make_shared<FakeSamplers>();
    ManualScheduler scheduler;
    std::unique_ptr<SystemMonitor> monitor;

    SystemMonitor &make()
    {
        monitor = std::make_unique<SystemMonitor>(samplers, scheduler);
        return *monitor;
    }
    // Moves past the start-up greeting and ticks once.
    void settle()
    {
        scheduler.advance(10'000);
        monitor->tick();
    }
};

} // namespace

class MonitorMoodTest : public QObject {
    Q_OBJECT

private slots:
    void init() { TestSupport::clearSettings(); }
    void cleanupTestCase() { TestSupport::clearSettings(); }

    void greetingRunsOnTheSchedulerClock()
    {
        Rig rig;
        rig.samplers->sensors.cpuTemp = 95;
        SystemMonitor &m = rig.make();
        QCOMPARE(m.moodEngine().launch(), rig.scheduler.now());
        QCOMPARE(m.mood(), Moods::justWokeUp());
        rig.scheduler.advance(8000);
        m.tick();
        QCOMPARE(m.mood(), Moods::soHot(95));
    }

    void moodIsReplacedOnlyWhenItDiffers()
    {
        Rig rig;
        SystemMonitor &m = rig.make();
        rig.settle();
        QCOMPARE(m.mood(), Moods::allChill());
        QSignalSpy spy(&m, &SystemMonitor::moodChanged);
        m.tick();
        m.tick();
        QCOMPARE(spy.count(), 0);

        // The same mood in another colour and kind: nobody is told, and the
        // stored value keeps its own tint.
        const Mood current = m.mood();
        m.offerMood(Mood(current.emoji(), current.phraseKey(), current.reasonKey(), current.reasonArg(),
                         MoodKind::festive, tintColor(Tint::purple)));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(m.mood().tint(), current.tint());
        QCOMPARE(m.mood().kind(), MoodKind::calm);

        rig.samplers->sensors.cpuTemp = 91;
        m.sampleSlow(); // sensors are a slow reading
        m.tick();
        QCOMPARE(spy.count(), 1);
        Settings::set(Settings::Key::useFahrenheit, true);
        m.tick();
        QCOMPARE(spy.count(), 2);
        QCOMPARE(m.mood().reasonArg(), std::optional<QString>(QStringLiteral("196°F")));
    }

    void cpuInputIsTheMeanOfTheNewestFive()
    {
        Rig rig;
        rig.samplers->cpu.total = 0.1;
        SystemMonitor &m = rig.make(); // one history value
        QCOMPARE(m.moodInputs().cpu, 0.1);
        rig.samplers->cpu.total = 0.2;
        m.tick();
        rig.samplers->cpu.total = 0.6;
        m.tick();
        QCOMPARE(m.moodInputs().cpu, 0.3);
        for (double v : {0.5, 0.6, 0.7, 0.8, 0.9}) {
            rig.samplers->cpu.total = v;
            m.tick();
        }
        QVERIFY(qAbs(m.moodInputs().cpu - 0.7) < 1e-12);
    }

    void diskInputPrefersTheRootVolume()
    {
        Rig rig;
        rig.samplers->disk.volumes = {volume(QStringLiteral("/data"), 100, 10), volume(QStringLiteral("/"), 100, 50)};
        SystemMonitor &m = rig.make();
        m.setPanelVisible(true); // disks are read while the panel is open
        QCOMPARE(m.moodInputs().disk, 0.5);

        rig.samplers->disk.volumes = {volume(QStringLiteral("/data"), 100, 10), volume(QStringLiteral("/mnt"), 100, 0)};
        m.tick();
        QCOMPARE(m.moodInputs().disk, 0.9);

        rig.samplers->disk.volumes = {};
        m.tick();
        QCOMPARE(m.moodInputs().disk, 0.0);
    }

    // The recorded bar lines (cli) carry every other input through a mood;
    // these are the ones they leave at no boundary.
    void coreTemperatureAndChargeInputs()
    {
        Rig rig;
        auto &s = *rig.samplers;
        s.cpu.perCore = {0.8, 0.79, 1.0, 0.1};
        s.sensors.hottest = 66; // no processor temperature: the hottest sensor stands in
        s.battery.present = true;
        s.battery.isPluggedIn = true; // plugged in but not charging still counts
        const MoodInputs in = rig.make().moodInputs();
        QCOMPARE(in.hotCores, 2);
        QCOMPARE(in.cores, 4);
        QCOMPARE(in.temp, 66.0);
        QVERIFY(in.hasBattery && in.charging);
    }

    void holidayReadsTheSchedulerClock()
    {
        Rig rig(QDateTime(QDate(2026, 12, 25), QTime(10, 0)));
        rig.samplers->cpu.total = 0.3;
        rig.samplers->sensors.cpuTemp = 50;
        SystemMonitor &m = rig.make();
        rig.settle();
        QCOMPARE(m.mood().phraseKey(), LocKey::holChristmas);
        QCOMPARE(m.mood().kind(), MoodKind::festive);
    }

    void reactionNotifiesOnlyOnDifference()
    {
        Rig rig;
        SystemMonitor &m = rig.make();
        QSignalSpy spy(&m, &SystemMonitor::reactionChanged);
        const Mood savage = Moods::glovesOff();
        m.setReaction(savage);
        m.setReaction(Mood(savage.emoji(), savage.phraseKey(), savage.reasonKey(), savage.reasonArg(),
                           MoodKind::annoyed, tintColor(Tint::green)));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(m.reaction()->tint(), tintColor(Tint::purple));
        QCOMPARE(m.reactionOrMood(), savage);
        m.setReaction(Moods::beingNice());
        m.setReaction(std::nullopt);
        m.setReaction(std::nullopt);
        QCOMPARE(spy.count(), 3);
        QCOMPARE(m.reactionOrMood(), m.mood());
    }

    void roastsThreeSecondsApartClearAtEight()
    {
        Rig rig;
        SystemMonitor &m = rig.make();
        QSignalSpy spy(&m, &SystemMonitor::roastEventChanged);
        m.roast(RoastTopic::cpu);
        QVERIFY(m.roastEvent());
        rig.scheduler.advance(3000);
        m.roast(RoastTopic::memory);
        QCOMPARE(m.roastEvent()->topic, RoastTopic::memory);
        QCOMPARE(m.roastToken(), 2);
        rig.scheduler.advance(2000); // the first roast's expiry: not its roast any more
        QVERIFY(m.roastEvent());
        rig.scheduler.advance(2999);
        QVERIFY(m.roastEvent());
        const int beforeExpiry = int(spy.count());
        rig.scheduler.advance(1);
        QVERIFY(!m.roastEvent());
        QCOMPARE(spy.count(), beforeExpiry + 1);
    }

    void roastReadingsFromTheLatestSamples()
    {
        Rig rig;
        auto &s = *rig.samplers;
        s.cpu.total = 0.42;
        s.memory.pressure = 0.8;
        s.network.downRate = 2e6;
        s.network.upRate = 1e6;
        s.disk.volumes = {volume(QStringLiteral("/"), 100, 60), volume(QStringLiteral("/big"), 100, 5)};
        s.sensors.cpuTemp = 0;
        s.sensors.hottest = 71;
        s.processes = {ProcInfo(7, QStringLiteral("ffmpeg"), 180.0, 2.0), ProcInfo(8, QStringLiteral("sh"), 1, 0)};
        SystemMonitor &m = rig.make();
        m.setPanelVisible(true); // starts the process list; it arrives through the event loop

        RoastReadings r = m.roastReadings();
        QCOMPARE(r.cpu, 0.42);
        QCOMPARE(r.memory, 0.8);
        QCOMPARE(r.netDown, 2e6);
        QCOMPARE(r.netUp, 1e6);
        QCOMPARE(r.maxDiskUsage, 0.95);
        QCOMPARE(r.temp, 71.0);
        QVERIFY(!r.topProcess); // no process list yet

        QTRY_VERIFY(!m.processes().isEmpty());
        r = m.roastReadings();
        QVERIFY(r.topProcess);
        QCOMPARE(r.topProcess->name, QStringLiteral("ffmpeg"));
        QCOMPARE(r.topProcess->cpu, 180.0);
        m.roast(RoastTopic::processes);
        QVERIFY(m.roastEvent()->notable);
        QCOMPARE(m.roastEvent()->arg, std::optional<QString>(QStringLiteral("ffmpeg")));
    }
};

SULK_TEST(MonitorMoodTest)
#include "MonitorMoodTest.moc"
