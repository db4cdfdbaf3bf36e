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

    void thresholdsAndQuotedFigures()
    {
        // Each topic at its threshold and just below, over a steady 1 MB/s
        // upload; the figure is quoted either way, a temperature only when
        // it is known.
        Settings::set(Settings::Key::useFahrenheit, true);
        struct Case {
            RoastTopic topic;
            double RoastReadings::*field;
            double value;
            bool notable;
            std::optional<QString> arg;
        };
        const Case cases[] = {
            {RoastTopic::cpu, &RoastReadings::cpu, 0.55, true, u"55%"_qs},
            {RoastTopic::cpu, &RoastReadings::cpu, 0.549, false, u"55%"_qs},
            {RoastTopic::memory, &RoastReadings::memory, 0.75, true, u"75%"_qs},
            {RoastTopic::memory, &RoastReadings::memory, 0.7499, false, u"75%"_qs},
            // Both directions count together; the faster one is quoted.
            {RoastTopic::network, &RoastReadings::netDown, 2e6, true, u"2.0 MB/s"_qs},
            {RoastTopic::network, &RoastReadings::netDown, 1'999'999, false, u"2.0 MB/s"_qs},
            {RoastTopic::network, &RoastReadings::netUp, 2.5e6, false, u"2.5 MB/s"_qs},
            {RoastTopic::disk, &RoastReadings::maxDiskUsage, 0.85, true, u"85%"_qs},
            {RoastTopic::disk, &RoastReadings::maxDiskUsage, 0.8499, false, u"85%"_qs},
            {RoastTopic::sensors, &RoastReadings::temp, 70, true, u"158°F"_qs},
            {RoastTopic::sensors, &RoastReadings::temp, 69.9, false, u"158°F"_qs},
            {RoastTopic::sensors, &RoastReadings::temp, 0, false, std::nullopt},
        };
        for (const Case &c : cases) {
            RoastReadings r;
            r.netUp = 1e6;
            r.*c.field = c.value;
            const RoastEvent e = Roasts::event(c.topic, r);
            QCOMPARE(e.topic, c.topic);
            QCOMPARE(e.notable, c.notable);
            QCOMPARE(e.arg, c.arg);
        }
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
