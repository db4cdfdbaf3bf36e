// When a roast is notable and what it quotes.

#include "common/TestSupport.h"

#include "settings/Settings.h"
#include "personality/Roasts.h"

#include <QSet>
#include <QTest>

namespace {

RoastReadings withProcess(const QString &name, double cpu)
{
    RoastReadings r;
    r.topProcess = RoastReadings::Process{name, cpu};
    return r;
}

} // namespace

class RoastsTest : public QObject {
    Q_OBJECT

private slots:
    void init() { TestSupport::clearSettings(); }
    void cleanupTestCase() { TestSupport::clearSettings(); }

    void cpuAndMemoryThresholds()
    {
        RoastReadings r;
        r.cpu = 0.55;
        RoastEvent e = Roasts::event(RoastTopic::cpu, r);
        QVERIFY(e.notable);
        QCOMPARE(e.arg, std::optional<QString>(QStringLiteral("55%")));
        r.cpu = 0.549;
        e = Roasts::event(RoastTopic::cpu, r);
        QVERIFY(!e.notable);
        QCOMPARE(e.arg, std::optional<QString>(QStringLiteral("55%")));

        r.memory = 0.75;
        QVERIFY(Roasts::event(RoastTopic::memory, r).notable);
        r.memory = 0.7499;
        e = Roasts::event(RoastTopic::memory, r);
        QVERIFY(!e.notable);
        QCOMPARE(e.topic, RoastTopic::memory);
        QCOMPARE(e.arg, std::optional<QString>(QStringLiteral("75%")));
    }

    void networkCountsBothDirections()
    {
        RoastReadings r;
        r.netDown = 2'000'000;
        r.netUp = 1'000'000;
        RoastEvent e = Roasts::event(RoastTopic::network, r);
        QVERIFY(e.notable);
        QCOMPARE(e.arg, std::optional<QString>(QStringLiteral("2.0 MB/s")));
        r.netDown = 1'999'999;
        e = Roasts::event(RoastTopic::network, r);
        QVERIFY(!e.notable);
        r.netUp = 2'500'000;
        QCOMPARE(Roasts::event(RoastTopic::network, r).arg, std::optional<QString>(QStringLiteral("2.5 MB/s")));
    }

    void diskUsesTheFullestVolume()
    {
        RoastReadings r;
        r.maxDiskUsage = 0.85;
        RoastEvent e = Roasts::event(RoastTopic::disk, r);
        QVERIFY(e.notable);
        QCOMPARE(e.arg, std::optional<QString>(QStringLiteral("85%")));
        r.maxDiskUsage = 0.8499;
        QVERIFY(!Roasts::event(RoastTopic::disk, r).notable);
    }

    void sensorsQuoteOnlyAKnownTemperature()
    {
        Settings::set(Settings::Key::useFahrenheit, true);
        RoastReadings r;
        r.temp = 70;
        RoastEvent e = Roasts::event(RoastTopic::sensors, r);
        QVERIFY(e.notable);
        QCOMPARE(e.arg, std::optional<QString>(QStringLiteral("158°F")));

        r.temp = 0;
        e = Roasts::event(RoastTopic::sensors, r);
        QVERIFY(!e.notable);
        QVERIFY(!e.arg);
    }

    void processesNeedABusyTopProcess()
    {
        RoastEvent e = Roasts::event(RoastTopic::processes, RoastReadings{});
        QVERIFY(!e.notable);
        QVERIFY(!e.arg);

        e = Roasts::event(RoastTopic::processes, withProcess(QStringLiteral("Finder"), 0.5));
        QVERIFY(!e.notable);
        QVERIFY(!e.arg);

        e = Roasts::event(RoastTopic::processes, withProcess(QStringLiteral("Finder"), 1.0));
        QVERIFY(!e.notable);
        QCOMPARE(e.arg, std::optional<QString>(QStringLiteral("Finder")));
        // The plain lists have no placeholder, so the name is not shown.
        const QString plain = Roasts::line(e.topic, e.notable, false, AppLanguage::en, e.arg, e.seed);
        QVERIFY(!plain.contains(QStringLiteral("Finder")));

        e = Roasts::event(RoastTopic::processes, withProcess(QStringLiteral("ffmpeg"), 50.0));
        QVERIFY(e.notable);
        for (bool savage : {false, true})
            for (int seed = 0; seed < 4; ++seed)
                QVERIFY(Roasts::line(e.topic, true, savage, AppLanguage::en, e.arg, seed)
                            .contains(QStringLiteral("ffmpeg")));
    }

    void seedsAreFreshAndInRange()
    {
        QSet<int> seeds;
        for (int i = 0; i < 50; ++i) {
            const RoastEvent e = Roasts::event(RoastTopic::cpu, RoastReadings{});
            QVERIFY(e.seed >= 0 && e.seed <= 9999);
            seeds.insert(e.seed);
        }
        QVERIFY(seeds.size() > 1);
    }
};

SULK_TEST(RoastsTest)
#include "RoastsTest.moc"
