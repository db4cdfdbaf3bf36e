// The mood engine's rules, one group per rule, at the boundaries that
// decide between neighbouring rules.

#include "common/TestSupport.h"

#include "settings/Settings.h"
#include "personality/MoodEngine.h"
#include "personality/MoodPrint.h"

#include <QTest>

#include <functional>

namespace {

// An ordinary Tuesday afternoon, far from any holiday.
const QDateTime kLaunch(QDate(2026, 3, 10), QTime(14, 0));

MoodEngine::Clock fixedClock(const QDateTime &at)
{
    return [at] { return at; };
}

// An engine past its start-up greeting, whose wall clock sits on a day
// without a holiday.
struct Subject {
    MoodEngine engine{kLaunch, fixedClock(kLaunch)};
    QDateTime now = kLaunch.addSecs(10);

    Mood at(const MoodInputs &in) { return engine.mood(in, now); }
    Mood after(qint64 ms, const MoodInputs &in)
    {
        now = now.addMSecs(ms);
        return engine.mood(in, now);
    }
};

MoodInputs withTemp(double celsius)
{
    MoodInputs in;
    in.temp = celsius;
    return in;
}

MoodInputs withCPU(double cpu)
{
    MoodInputs in;
    in.cpu = cpu;
    return in;
}

} // namespace

Q_DECLARE_METATYPE(MoodInputs)

class MoodEngineTest : public QObject {
    Q_OBJECT

private slots:
    void init() { TestSupport::clearSettings(); }
    void cleanupTestCase() { TestSupport::clearSettings(); }

    void startupGreetingHidesEverythingForEightSeconds()
    {
        MoodEngine engine(kLaunch, fixedClock(kLaunch));
        QCOMPARE(engine.mood(withTemp(95), kLaunch.addMSecs(7900)), Moods::justWokeUp());
        QCOMPARE(engine.mood(withTemp(95), kLaunch.addMSecs(8000)), Moods::soHot(95));
    }

    void hotLatchRunsDuringTheGreeting()
    {
        MoodEngine engine(kLaunch, fixedClock(kLaunch));
        QCOMPARE(engine.mood(withTemp(85), kLaunch.addSecs(1)), Moods::justWokeUp());
        QVERIFY(engine.wasHot());
        QCOMPARE(engine.mood(withTemp(67), kLaunch.addSecs(9)), Moods::phew());
    }

    // The rules that need no history, each at the boundary that decides
    // between it and its neighbour.
    void rulesAtTheirBoundaries_data()
    {
        QTest::addColumn<MoodInputs>("inputs");
        QTest::addColumn<Mood>("expected");
        const auto row = [](const char *name, const std::function<void(MoodInputs &)> &set, const Mood &mood) {
            MoodInputs in;
            set(in);
            QTest::newRow(name) << in << mood;
        };
        row("90 degrees", [](MoodInputs &i) { i.temp = 90; }, Moods::soHot(90));
        row("89.9 degrees", [](MoodInputs &i) { i.temp = 89.9; }, Moods::warmingUp(89.9));
        row("68 degrees", [](MoodInputs &i) { i.temp = 68; }, Moods::cruisingWarmth(68));
        row("67.9 degrees", [](MoodInputs &i) { i.temp = 67.9; }, Moods::peaceful());
        row("low battery", [](MoodInputs &i) { i.hasBattery = true; i.battery = 0.1; }, Moods::runningLow(0.1));
        row("low battery charging", [](MoodInputs &i) { i.hasBattery = i.charging = true; i.battery = 0.1; },
            Moods::refueling(0.1));
        row("unknown charge", [](MoodInputs &i) { i.hasBattery = true; }, Moods::allChill());
        row("charging at 94%", [](MoodInputs &i) { i.hasBattery = i.charging = true; i.battery = 0.94; },
            Moods::refueling(0.94));
        row("charging at 95%", [](MoodInputs &i) { i.hasBattery = i.charging = true; i.battery = 0.95; },
            Moods::allChill());
        row("warmth outranks charging",
            [](MoodInputs &i) { i.temp = 78; i.hasBattery = i.charging = true; i.battery = 0.5; },
            Moods::warmingUp(78));
        row("memory full", [](MoodInputs &i) { i.memory = 0.92; }, Moods::memoryFull(0.92));
        row("swap 1.9 GB", [](MoodInputs &i) { i.memory = 0.85; i.swap = 1.9e9; }, Moods::allChill());
        row("swap 2 GB", [](MoodInputs &i) { i.memory = 0.85; i.swap = 2e9; }, Moods::swappingHard(2e9));
        row("swap with memory 79%", [](MoodInputs &i) { i.memory = 0.79; i.swap = 2e9; }, Moods::allChill());
        row("cpu 85%", [](MoodInputs &i) { i.cpu = 0.85; }, Moods::workingHard(0.85));
        row("cpu 84.99%", [](MoodInputs &i) { i.cpu = 0.8499; }, Moods::cruisingLoad(0.8499));
        // Moderate load names the load even when the machine is warm too.
        row("cpu 60% and warm", [](MoodInputs &i) { i.cpu = 0.6; i.temp = 75; }, Moods::cruisingLoad(0.6));
        row("three cores never blaze", [](MoodInputs &i) { i.cpu = 1; i.cores = i.hotCores = 3; },
            Moods::workingHard(1));
        row("download 60 MB/s", [](MoodInputs &i) { i.netDown = 60e6; i.netUp = 10e6; }, Moods::dataFeast(60e6));
        row("download 5 MB/s", [](MoodInputs &i) { i.netDown = 5e6; i.netUp = 10e6; }, Moods::gobblingData(5e6));
        row("upload 10 MB/s", [](MoodInputs &i) { i.netDown = 4.9e6; i.netUp = 10e6; }, Moods::beamingUp(10e6));
        row("upload 2.9 MB/s", [](MoodInputs &i) { i.netDown = 4.9e6; i.netUp = 2.9e6; }, Moods::allChill());
        row("disk 95%", [](MoodInputs &i) { i.disk = 0.95; }, Moods::almostPacked(0.95));
        row("disk 94.9%", [](MoodInputs &i) { i.disk = 0.949; }, Moods::allChill());
        // Quiet means low load and not warm.
        row("cpu 15%", [](MoodInputs &i) { i.cpu = 0.15; }, Moods::allChill());
        row("cpu 10% at 60 degrees", [](MoodInputs &i) { i.cpu = 0.1; i.temp = 60; }, Moods::peaceful());
        row("cpu 16%", [](MoodInputs &i) { i.cpu = 0.16; }, Moods::peaceful());
    }

    void rulesAtTheirBoundaries()
    {
        QFETCH(MoodInputs, inputs);
        QFETCH(Mood, expected);
        QCOMPARE(Subject().at(inputs), expected);
    }

    void cooldownAfterTheHotLatch()
    {
        // 85 then 67: phew from the 67 reading for 6 s.
        Subject s;
        s.at(withTemp(85));
        QCOMPARE(s.after(1000, withTemp(67)), Moods::phew());
        QCOMPARE(s.after(5999, withTemp(50)), Moods::phew());
        QCOMPARE(s.after(1, withTemp(50)), Moods::allChill());
    }

    void cooldownStartsOnlyBelowSixtyEightAndKnown()
    {
        // 68 degrees and an unknown temperature (0) both keep the latch.
        for (const auto &[celsius, mood] : {std::pair{68.0, Moods::cruisingWarmth(68)}, std::pair{0.0, Moods::allChill()}}) {
            Subject s;
            s.at(withTemp(85));
            QCOMPARE(s.after(1000, withTemp(celsius)), mood);
            QVERIFY(s.engine.wasHot() && !s.engine.cooldownUntil());
            QCOMPARE(s.after(1000, withTemp(67)), Moods::phew());
        }
    }

    void urgentMoodsOutrankTheCooldown()
    {
        Subject s;
        s.at(withTemp(85));
        MoodInputs in = withTemp(60);
        in.memory = 0.95;
        QCOMPARE(s.after(1000, in), Moods::memoryFull(0.95));
        in.memory = 0;
        QCOMPARE(s.after(1000, in), Moods::phew());
    }

    void allCoresBlazingFromThreeQuartersTruncated()
    {
        Subject s;
        const QList<QPair<int, int>> table = {{4, 3}, {6, 4}, {8, 6}, {10, 7}, {12, 9}, {16, 12}};
        for (const auto &[cores, threshold] : table) {
            QCOMPARE(MoodEngine::coreThreshold(cores), threshold);
            MoodInputs in;
            in.cores = cores;
            in.hotCores = threshold;
            QCOMPARE(s.at(in), Moods::allCoresBlazing(threshold, cores));
            in.hotCores -= 1;
            QCOMPARE(s.at(in), Moods::allChill());
        }
    }

    void holidayUsesTheWallClockAndYieldsToLoad()
    {
        // Evaluated in March, but the wall clock says Christmas Day.
        const QDateTime christmas(QDate(2026, 12, 25), QTime(10, 0));
        MoodEngine engine(kLaunch, fixedClock(christmas));
        MoodInputs in = withCPU(0.3);
        in.temp = 50;
        // The greeting's emoji and reason reach the bar too (the recorded
        // bar lines cross New Year's Eve).
        const Mood festive = engine.mood(in, kLaunch.addSecs(60));
        QCOMPARE(festive.phraseKey(), LocKey::holChristmas);
        QCOMPARE(festive.kind(), MoodKind::festive);

        in.cpu = 0.6;
        QCOMPARE(engine.mood(in, kLaunch.addSecs(61)), Moods::cruisingLoad(0.6));
    }

    void idlenessByNight()
    {
        const QDate day(2026, 3, 10);
        struct Case {
            QTime time;
            qint64 idleSeconds;
            Mood expected;
        };
        const QList<Case> cases = {
            {QTime(23, 30), 121, Moods::sleepy()},   {QTime(23, 30), 120, Moods::allChill()},
            {QTime(5, 59), 121, Moods::sleepy()},    {QTime(6, 0), 121, Moods::allChill()},
            {QTime(22, 59), 121, Moods::allChill()}, {QTime(14, 0), 601, Moods::dozingOff()},
            {QTime(14, 0), 600, Moods::allChill()},  {QTime(3, 0), 601, Moods::sleepy()},
        };
        for (const Case &c : cases) {
            const QDateTime now(day, c.time);
            const QDateTime launch = now.addSecs(-c.idleSeconds);
            MoodEngine engine(launch, fixedClock(kLaunch));
            QVERIFY2(engine.mood(MoodInputs{}, now) == c.expected, qPrintable(c.time.toString()));
        }
    }

    void onlyLoadAboveTwentyPercentCountsAsActive()
    {
        for (double load : {0.2, 0.2001}) {
            MoodEngine engine(kLaunch, fixedClock(kLaunch));
            MoodInputs warm = withCPU(load);
            warm.temp = 60; // not quiet, so the load itself decides nothing
            engine.mood(warm, kLaunch.addSecs(700));
            const Mood later = engine.mood(MoodInputs{}, kLaunch.addSecs(701));
            QCOMPARE(later, load > 0.2 ? Moods::allChill() : Moods::dozingOff());
        }
    }
};

SULK_TEST(MoodEngineTest)
#include "MoodEngineTest.moc"
