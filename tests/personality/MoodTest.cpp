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

    void equalityIgnoresKindAndTint()
    {
        const Mood a = Moods::allChill();
        const Mood b(a.emoji(), a.phraseKey(), a.reasonKey(), a.reasonArg(), MoodKind::festive,
                     tintColor(Tint::purple));
        QVERIFY(a == b);
    }

    void equalityComparesTheRest()
    {
        const Mood base = Moods::allChill();
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
    }

    void placeholderIsTheWakingUpFace()
    {
        const Mood &p = Mood::placeholder();
        QCOMPARE(p.emoji(), QStringLiteral("\U0001F971"));
        QCOMPARE(p.phraseKey(), LocKey::wakingUp);
        QCOMPARE(p.reasonKey(), LocKey::reasonStartingUp);
        QVERIFY(!p.hasReasonArg());
        QCOMPARE(p.kind(), MoodKind::greeting);
        QCOMPARE(p.tint(), tintColor(Tint::green));
        QCOMPARE(Mood(), p);
        // Same face, different phrase: the first engine run is a change.
        QVERIFY(p != Moods::justWokeUp());
    }

    void kindsKeepTheirNamesAndOrder()
    {
        QCOMPARE(allMoodKinds().size(), 17);
        QCOMPARE(moodKindName(MoodKind::greeting), QStringLiteral("greeting"));
        QCOMPARE(moodKindName(MoodKind::annoyed), QStringLiteral("annoyed"));
        QCOMPARE(int(MoodKind::festive), 15);
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
        QCOMPARE(Moods::runningLow(0.07).reasonArg(), std::optional<QString>(QStringLiteral("7%")));
        QCOMPARE(Moods::swappingHard(2.345e9).reasonArg(), std::optional<QString>(QStringLiteral("2.3 GB")));
        QCOMPARE(Moods::gobblingData(5.25e6).reasonArg(), std::optional<QString>(QStringLiteral("5.2 MB/s")));
        QCOMPARE(Moods::beamingUp(3e6).reasonArg(), std::optional<QString>(QStringLiteral("3.0 MB/s")));
        QCOMPARE(Moods::allCoresBlazing(12, 16).reasonArg(), std::optional<QString>(QStringLiteral("12/16")));
        QCOMPARE(Moods::muchLighter(1.5e9).reasonArg(), std::optional<QString>(QStringLiteral("1.5 GB")));
        QCOMPARE(Moods::warmingUp(80).reasonArg(), std::optional<QString>(QStringLiteral("80°")));
        Settings::set(Settings::Key::useFahrenheit, true);
        QCOMPARE(Moods::warmingUp(80).reasonArg(), std::optional<QString>(QStringLiteral("176°F")));
    }
};

SULK_TEST(MoodTest)
#include "MoodTest.moc"
