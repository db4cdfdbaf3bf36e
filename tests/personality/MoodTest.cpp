// The mood value: its equality rule, the start-up value, the tints and the
// catalogue's formatting of reason arguments.

#include "common/TestSupport.h"

#include "settings/Settings.h"
#include "personality/Mood.h"
#include "personality/MoodPrint.h"

#include <QSet>
#include <QTest>

#include <cmath>

namespace {

double channel(int c)
{
    const double v = c / 255.0;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

double luminance(const Rgb &c)
{
    return 0.2126 * channel(c.red()) + 0.7152 * channel(c.green()) + 0.0722 * channel(c.blue());
}

double contrast(const Rgb &a, const Rgb &b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

} // namespace

class MoodTest : public QObject {
    Q_OBJECT

private slots:
    void init() { TestSupport::clearSettings(); }
    void cleanupTestCase() { TestSupport::clearSettings(); }

    void equalityIgnoresOnlyKindAndTint()
    {
        const Mood base = Moods::allChill();
        QVERIFY(base == Mood(base.emoji(), base.phraseKey(), base.reasonKey(), base.reasonArg(), MoodKind::festive,
                             tintColor(Tint::purple)));
        QVERIFY(base != Mood(QStringLiteral("x"), base.phraseKey(), base.reasonKey(), std::nullopt, base.kind(),
                             base.tint()));
        QVERIFY(base != Mood(base.emoji(), LocKey::peaceful, base.reasonKey(), std::nullopt, base.kind(),
                             base.tint()));
        // Absent and empty arguments are different.
        QVERIFY(base != Mood(base.emoji(), base.phraseKey(), base.reasonKey(), QString(), base.kind(),
                             base.tint()));
        QVERIFY(Moods::cruisingLoad(0.6) != Moods::cruisingWarmth(70));
        QVERIFY(Moods::soHot(91) != Moods::soHot(92));
        QVERIFY(Moods::soHot(91.2) == Moods::soHot(90.8));
        // The placeholder has the greeting's face but not its phrase: the
        // first engine run is a change.
        QVERIFY(Mood::placeholder() != Moods::justWokeUp());
    }

    void kindNamesRoundTrip()
    {
        for (MoodKind kind : allMoodKinds())
            QCOMPARE(moodKindFromName(moodKindName(kind)), std::optional<MoodKind>(kind));
        QVERIFY(!moodKindFromName(QStringLiteral("grumpy")));
    }

    void tintsReadOnLightAndDarkPanels()
    {
        const Rgb light{255, 255, 255};
        const Rgb dark{30, 30, 30};
        QSet<QString> seen;
        for (Tint t : {Tint::green, Tint::red, Tint::orange, Tint::blue, Tint::yellow, Tint::pink, Tint::purple}) {
            const Rgb c = tintColor(t);
            QVERIFY2(contrast(c, light) >= 3.0, qPrintable(c.name()));
            QVERIFY2(contrast(c, dark) >= 3.0, qPrintable(c.name()));
            seen.insert(c.name());
        }
        QCOMPARE(seen.size(), 7);
        // Colour names as CSS and the bars read them: two lowercase hex
        // digits per channel, leading zeros kept.
        QCOMPARE((Rgb{0x0a, 0xff, 0x80}.name()), QStringLiteral("#0aff80"));
        QCOMPARE((Rgb{0, 0, 0}.name()), QStringLiteral("#000000"));
    }

    void catalogueFormatsArguments()
    {
        // The moods the recorded bar lines (cli) never quote, and one figure
        // of each other kind where those lines show no edge.
        const QList<QPair<Mood, QString>> cases = {
            {Moods::runningLow(0.07), u"7%"_qs},          {Moods::workingHard(0.85), u"85%"_qs},
            {Moods::almostPacked(0.95), u"95%"_qs},       {Moods::muchLighter(1.5e9), u"1.5 GB"_qs},
            {Moods::swappingHard(2.345e9), u"2.3 GB"_qs}, {Moods::gobblingData(5.25e6), u"5.2 MB/s"_qs},
            {Moods::allCoresBlazing(12, 16), u"12/16"_qs}, {Moods::warmingUp(80), u"80°"_qs},
        };
        for (const auto &[mood, arg] : cases)
            QCOMPARE(mood.reasonArg(), std::optional<QString>(arg));
        Settings::set(Settings::Key::useFahrenheit, true);
        QCOMPARE(Moods::warmingUp(80).reasonArg(), std::optional<QString>(u"176°F"_qs));
    }
};

SULK_TEST(MoodTest)
#include "MoodTest.moc"
