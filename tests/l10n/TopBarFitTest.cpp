// Every phrase the top-bar label can show (moods, reactions, holiday
// greetings), in every language, fits the label's width budget when drawn
// with the fonts the desktop uses: a translation that runs long fails here
// instead of in the bar.

#include "common/TestSupport.h"

#include "l10n/Localizer.h"
#include "personality/Holidays.h"
#include "personality/Mood.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QSet>
#include <QTest>
#include <QTimeZone>

namespace {

// The label's text size in device-independent pixels and its weight.
constexpr int labelPixelSize = 11;
constexpr QFont::Weight labelWeight = QFont::Medium;
// The budget, in advances of one CJK ideograph at that size.
constexpr int budgetIdeographs = 16;

struct Phrase {
    QString emoji;
    LocKey key;
};

// Every mood and reaction of the catalogue, with figures that make each one.
QList<Phrase> moodPhrases()
{
    const QList<Mood> moods = {
        Mood::placeholder(),         Moods::justWokeUp(),        Moods::soHot(95),
        Moods::runningLow(0.08),     Moods::memoryFull(0.92),    Moods::swappingHard(3e9),
        Moods::phew(),               Moods::allCoresBlazing(8, 8), Moods::workingHard(0.8),
        Moods::dataFeast(2e7),       Moods::gobblingData(6e6),   Moods::beamingUp(6e6),
        Moods::warmingUp(75),        Moods::refueling(0.5),      Moods::cruisingLoad(0.3),
        Moods::cruisingWarmth(55),   Moods::almostPacked(0.95),  Moods::sleepy(),
        Moods::dozingOff(),          Moods::allChill(),          Moods::peaceful(),
        Moods::stopPoking(),         Moods::glovesOff(),         Moods::beingNice(),
        Moods::freshening(),         Moods::muchLighter(1.2e9),
    };
    QList<Phrase> phrases;
    for (const Mood &m : moods)
        phrases.append({m.emoji(), m.phraseKey()});
    return phrases;
}

// Every greeting the calendar gives over two years (both lunar festivals move).
QList<Phrase> greetingPhrases()
{
    QList<Phrase> phrases;
    QSet<QString> seen;
    const QDateTime start(QDate(2026, 1, 1), QTime(12, 0), QTimeZone::utc());
    for (int day = 0; day < 2 * 366; ++day) {
        if (const auto g = Holidays::compute(start.addDays(day))) {
            const QString id = g->emoji + keyName(g->phrase);
            if (!seen.contains(id)) {
                seen.insert(id);
                phrases.append({g->emoji, g->phrase});
            }
        }
    }
    return phrases;
}

// The Noto CJK face for the language's own glyph forms.
QString cjkFamily(AppLanguage lang)
{
    switch (lang) {
    case AppLanguage::zhHant: return QStringLiteral("Noto Sans CJK TC");
    case AppLanguage::ja: return QStringLiteral("Noto Sans CJK JP");
    case AppLanguage::ko: return QStringLiteral("Noto Sans CJK KR");
    default: return QStringLiteral("Noto Sans CJK SC");
    }
}

// The desktop's UI font at the label's size, then the faces that fill in
// what it lacks: CJK, Thai and colour emoji.
QFont labelFont(AppLanguage lang)
{
    QFont font = QGuiApplication::font();
    font.setFamilies({font.family(), cjkFamily(lang), QStringLiteral("Noto Sans Thai"),
                      QStringLiteral("Noto Color Emoji")});
    font.setPixelSize(labelPixelSize);
    font.setWeight(labelWeight);
    return font;
}

} // namespace

class TopBarFitTest : public QObject {
    Q_OBJECT
private slots:
    void init() { TestSupport::resetSettings(); }
    void cleanup() { TestSupport::resetSettings(); }

    void theDesktopFontsAreInstalled()
    {
        const QStringList families = QFontDatabase::families();
        const QList<std::pair<QString, const char *>> needed = {
            {u"Noto Color Emoji"_qs, "fonts-noto-color-emoji"},
            {u"Noto Sans CJK SC"_qs, "fonts-noto-cjk"},
            {u"Noto Sans Thai"_qs, "fonts-noto-core"},
        };
        for (const auto &[family, package] : needed)
            QVERIFY2(families.contains(family),
                     qPrintable(family + u" is missing: install "_qs + QLatin1String(package) + u" (scripts/deps.sh)"_qs));
    }

    void everyPhraseIsMeasured()
    {
        // A mood or holiday added later joins the measurement by itself; this
        // makes sure none is left out now.
        QSet<LocKey> keys;
        for (const Phrase &p : moodPhrases() + greetingPhrases())
            keys.insert(p.key);
        for (int k = int(LocKey::justWokeUp); k <= int(LocKey::beingNice); ++k)
            QVERIFY2(keys.contains(LocKey(k)), qPrintable(keyName(LocKey(k))));
        for (int k = int(LocKey::holNewYear); k < int(LocKey::holCheer); ++k)
            QVERIFY2(keys.contains(LocKey(k)), qPrintable(keyName(LocKey(k))));
        QVERIFY(keys.contains(LocKey::freshening));
        QVERIFY(keys.contains(LocKey::muchLighter));
    }

    void everyPhraseFitsTheBudget_data()
    {
        QTest::addColumn<AppLanguage>("lang");
        for (AppLanguage lang : concreteLanguages())
            QTest::newRow(languageRawText(lang).toLatin1().constData()) << lang;
    }

    void everyPhraseFitsTheBudget()
    {
        QFETCH(AppLanguage, lang);
        Localizer::shared().setLanguage(lang);
        const QFontMetricsF metrics(labelFont(lang));
        const qreal ideograph = metrics.horizontalAdvance(QStringLiteral("中"));
        // An ideograph is one em; anything else means the CJK face is missing.
        QVERIFY2(ideograph > labelPixelSize * 0.9 && ideograph < labelPixelSize * 1.1, qPrintable(QString::number(ideograph)));
        const qreal budget = budgetIdeographs * ideograph;

        QStringList tooWide;
        for (const Phrase &p : moodPhrases() + greetingPhrases()) {
            const QString text = p.emoji + u' ' + Localizer::shared().t(p.key);
            const qreal width = metrics.horizontalAdvance(text);
            if (width > budget)
                tooWide.append(QStringLiteral("%1 \"%2\": %3 ideographs wide")
                                   .arg(keyName(p.key), text, QString::number(width / ideograph, 'f', 1)));
        }
        QVERIFY2(tooWide.isEmpty(), qPrintable(tooWide.join(u"; ")));
    }
};

SULK_TEST(TopBarFitTest)

#include "TopBarFitTest.moc"
