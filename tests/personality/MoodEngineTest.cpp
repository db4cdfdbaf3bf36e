// The mood engine's rules, one group per rule, at the boundaries that
// decide between neighbouring rules.

#include "common/TestSupport.h"

#include "settings/Settings.h"
#include "personality/MoodEngine.h"
#include "personality/MoodPrint.h"

#include <QTest>

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

    void heatAtNinetyDegrees()
    {
        Subject s;
        const Mood hot = s.at(withTemp(90.0));
        QCOMPARE(hot, Moods::soHot(90.0));
        QCOMPARE(hot.reasonArg(), std::optional<QString>(QStringLiteral("90°")));
        QCOMPARE(hot.kind(), MoodKind::hot);
        QCOMPARE(s.at(withTemp(89.9)), Moods::warmingUp(89.9));
    }

    void heatFollowsTheFahrenheitSetting()
    {
        Subject s;
        const Mood celsius = s.at(withTemp(92));
        Settings::set(Settings::Key::useFahrenheit, true);
        const Mood fahrenheit = s.at(withTemp(92));
        QCOMPARE(fahrenheit.reasonArg(), std::optional<QString>(QStringLiteral("198°F")));
        QVERIFY(celsius != fahrenheit);
    }

    void lowBatteryOnlyOnBatteryPower()
    {
        Subject s;
        MoodInputs in;
        in.hasBattery = true;
        in.battery = 0.10;
        const Mood low = s.at(in);
        QCOMPARE(low, Moods::runningLow(0.10));
        QCOMPARE(low.reasonArg(), std::optional<QString>(QStringLiteral("10%")));

        in.charging = true;
        QCOMPARE(s.at(in), Moods::refueling(0.10));

        in.charging = false;
        in.battery = 0; // an unknown charge
        QCOMPARE(s.at(in), Moods::allChill());
    }

    void memoryAndSwap()
    {
        Subject s;
        MoodInputs in;
        in.memory = 0.92;
        QCOMPARE(s.at(in), Moods::memoryFull(0.92));

        in.memory = 0.85;
        in.swap = 1.9e9;
        QCOMPARE(s.at(in), Moods::allChill());
        in.swap = 2.0e9;
        const Mood swapping = s.at(in);
        QCOMPARE(swapping, Moods::swappingHard(2.0e9));
        QCOMPARE(swapping.reasonArg(), std::optional<QString>(QStringLiteral("2.0 GB")));

        in.memory = 0.79;
        QCOMPARE(s.at(in), Moods::allChill());
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

    void cooldownStartsOnlyBelowSixtyEight()
    {
        Subject s;
        s.at(withTemp(85));
        QCOMPARE(s.after(1000, withTemp(70)), Moods::cruisingWarmth(70));
        QVERIFY(s.engine.wasHot());
        QVERIFY(!s.engine.cooldownUntil());
        QCOMPARE(s.after(1000, withTemp(67)), Moods::phew());
    }

    void unknownTemperatureKeepsTheLatch()
    {
        Subject s;
        s.at(withTemp(85));
        QCOMPARE(s.after(1000, withTemp(0)), Moods::allChill());
        QVERIFY(s.engine.wasHot());
        QCOMPARE(s.after(1000, withTemp(67)), Moods::phew());
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

    void coreThresholdIsThreeQuartersTruncated()
    {
        const QList<QPair<int, int>> table = {{4, 3}, {6, 4}, {8, 6}, {10, 7}, {12, 9}, {16, 12}};
        for (const auto &[cores, threshold] : table)
            QCOMPARE(MoodEngine::coreThreshold(cores), threshold);
    }

    void allCoresBlazing()
    {
        Subject s;
        for (int cores : {4, 6, 8, 10, 12, 16}) {
            MoodInputs in;
            in.cores = cores;
            in.hotCores = MoodEngine::coreThreshold(cores);
            const Mood blazing = s.at(in);
            QCOMPARE(blazing, Moods::allCoresBlazing(in.hotCores, cores));
            in.hotCores -= 1;
            QCOMPARE(s.at(in), Moods::allChill());
        }
        MoodInputs eight;
        eight.cores = 8;
        eight.hotCores = 6;
        QCOMPARE(s.at(eight).reasonArg(), std::optional<QString>(QStringLiteral("6/8")));
    }

    void threeCoresNeverBlaze()
    {
        Subject s;
        MoodInputs in = withCPU(1.0);
        in.cores = 3;
        in.hotCores = 3;
        QCOMPARE(s.at(in), Moods::workingHard(1.0));
    }

    void processorLoad()
    {
        Subject s;
        const Mood busy = s.at(withCPU(0.85));
        QCOMPARE(busy, Moods::workingHard(0.85));
        QCOMPARE(busy.reasonArg(), std::optional<QString>(QStringLiteral("85%")));
        QCOMPARE(s.at(withCPU(0.8499)), Moods::cruisingLoad(0.8499));

        const Mood cruising = s.at(withCPU(0.55));
        QCOMPARE(cruising.phraseKey(), LocKey::cruising);
        QCOMPARE(cruising.reasonKey(), LocKey::reasonFromCPU);
        // Moderate load names the load even when the machine is warm too.
        MoodInputs warm = withCPU(0.6);
        warm.temp = 75;
        QCOMPARE(s.at(warm).reasonKey(), LocKey::reasonFromCPU);
    }

    void networkDownloadBeforeUpload()
    {
        Subject s;
        MoodInputs in;
        in.netDown = 60e6;
        in.netUp = 10e6;
        const Mood feast = s.at(in);
        QCOMPARE(feast, Moods::dataFeast(60e6));
        QCOMPARE(feast.reasonArg(), std::optional<QString>(QStringLiteral("60.0 MB/s")));
        in.netDown = 5e6;
        QCOMPARE(s.at(in), Moods::gobblingData(5e6));
        in.netDown = 4.9e6;
        QCOMPARE(s.at(in), Moods::beamingUp(10e6));
        in.netUp = 2.9e6;
        QCOMPARE(s.at(in), Moods::allChill());
    }

    void warmthOutranksCharging()
    {
        Subject s;
        MoodInputs in = withTemp(78);
        in.hasBattery = true;
        in.charging = true;
        in.battery = 0.5;
        QCOMPARE(s.at(in), Moods::warmingUp(78));
        in.temp = 50;
        QCOMPARE(s.at(in), Moods::refueling(0.5));
    }

    void chargingUntilNinetyFivePercent()
    {
        Subject s;
        MoodInputs in;
        in.hasBattery = true;
        in.charging = true;
        in.battery = 0.94;
        const Mood refuel = s.at(in);
        QCOMPARE(refuel, Moods::refueling(0.94));
        QCOMPARE(refuel.reasonArg(), std::optional<QString>(QStringLiteral("94%")));
        in.battery = 0.95;
        QCOMPARE(s.at(in), Moods::allChill());
    }

    void warmthWithoutLoad()
    {
        Subject s;
        QCOMPARE(s.at(withTemp(68)), Moods::cruisingWarmth(68));
        QCOMPARE(s.at(withTemp(67.9)), Moods::peaceful());
    }

    void startupDiskNearlyFull()
    {
        Subject s;
        MoodInputs in;
        in.disk = 0.95;
        const Mood packed = s.at(in);
        QCOMPARE(packed, Moods::almostPacked(0.95));
        QCOMPARE(packed.reasonArg(), std::optional<QString>(QStringLiteral("95%")));
        in.disk = 0.949;
        QCOMPARE(s.at(in), Moods::allChill());
    }

    void holidayUsesTheWallClockAndYieldsToLoad()
    {
        // Evaluated in March, but the wall clock says Christmas Day.
        const QDateTime christmas(QDate(2026, 12, 25), QTime(10, 0));
        MoodEngine engine(kLaunch, fixedClock(christmas));
        MoodInputs in = withCPU(0.3);
        in.temp = 50;
        const Mood festive = engine.mood(in, kLaunch.addSecs(60));
        QCOMPARE(festive.emoji(), QStringLiteral("\U0001F384"));
        QCOMPARE(festive.phraseKey(), LocKey::holChristmas);
        QCOMPARE(festive.reasonKey(), LocKey::holCheer);
        QCOMPARE(festive.kind(), MoodKind::festive);
        QVERIFY(!festive.hasReasonArg());

        in.cpu = 0.6;
        QCOMPARE(engine.mood(in, kLaunch.addSecs(61)), Moods::cruisingLoad(0.6));
    }

    void quietMeansLowLoadAndNotWarm()
    {
        Subject s;
        QCOMPARE(s.at(withCPU(0.15)), Moods::allChill());
        MoodInputs warm = withCPU(0.10);
        warm.temp = 60;
        const Mood calm = s.at(warm);
        QCOMPARE(calm, Moods::peaceful());
        QCOMPARE(calm.reasonKey(), LocKey::reasonLightLoad);
        QCOMPARE(s.at(withCPU(0.16)), Moods::peaceful());
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
