// The quip and roast texts of all six languages: completeness, line counts,
// placeholders, and the lookup rules with their fallbacks.

#include "common/TestSupport.h"

#include "personality/Content.h"
#include "personality/Quips.h"
#include "personality/Roasts.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

namespace {

bool threeLineLanguage(AppLanguage lang)
{
    return lang == AppLanguage::ja || lang == AppLanguage::ko || lang == AppLanguage::th;
}

int placeholders(const QString &line)
{
    return int(line.count(QStringLiteral("%@")));
}

const QRegularExpression &loneEllipsis()
{
    static const QRegularExpression re(u"(?<!\u2026)\u2026(?!\u2026)"_qs);
    return re;
}

} // namespace

class ContentTest : public QObject {
    Q_OBJECT

private slots:
    void everyLanguageIsComplete_data()
    {
        QTest::addColumn<AppLanguage>("lang");
        for (AppLanguage lang : concreteLanguages())
            QTest::newRow(languageRawText(lang).toLatin1().constData()) << lang;
    }

    // Each language's file is well formed and has every list at its length,
    // with placeholders only where a figure or a name is quoted.
    void everyLanguageIsComplete()
    {
        QFETCH(AppLanguage, lang);
        QFile file(QStringLiteral(":/personality/content/%1.json").arg(languageRawText(lang)));
        QVERIFY2(file.open(QIODevice::ReadOnly), "the language file is not embedded");
        QJsonParseError error{};
        const QJsonDocument doc = QJsonDocument::fromJson(file.readAll(), &error);
        QCOMPARE(error.error, QJsonParseError::NoError);
        // Every entry is a real line: a string with something in it, and
        // no half-width/full-width mix-up of the placeholder.
        for (const char *section : {"quips", "roasts"}) {
            const QJsonObject lists = doc.object().value(QLatin1String(section)).toObject();
            QVERIFY(!lists.isEmpty());
            for (auto it = lists.begin(); it != lists.end(); ++it) {
                QVERIFY2(it.value().isArray(), qPrintable(it.key()));
                for (const QJsonValue &v : it.value().toArray()) {
                    QVERIFY2(v.isString() && !v.toString().trimmed().isEmpty(), qPrintable(it.key()));
                    const QString line = v.toString();
                    QVERIFY2(line == line.trimmed(), qPrintable(line));
                    for (const char16_t *bad : {u"\uFF05@", u"%\uFF20", u"\uFF05\uFF20", u"% @"})
                        QVERIFY2(!line.contains(QString::fromUtf16(bad)), qPrintable(line));
                    // Chinese prose writes its ellipsis as a pair (……), never alone.
                    if (lang == AppLanguage::zhHans || lang == AppLanguage::zhHant)
                        QVERIFY2(!line.contains(loneEllipsis()), qPrintable(line));
                }
            }
        }

        // As many lines per kind as English has, at least three; the
        // three-line languages keep three annoyed ones.
        int total = 0;
        for (MoodKind kind : allMoodKinds()) {
            const QStringList lines = Quips::pools().value(kind).value(lang);
            const qsizetype english = Quips::pools().value(kind).value(AppLanguage::en).size();
            const qsizetype expected = kind == MoodKind::annoyed && threeLineLanguage(lang) ? 3 : english;
            QVERIFY2(lines.size() == expected && expected >= 3, qPrintable(moodKindName(kind)));
            for (const QString &line : lines)
                QVERIFY2(placeholders(line) == 0, qPrintable(line));
            total += int(lines.size());
        }
        QCOMPARE(total, threeLineLanguage(lang) ? 54 : 55);

        const int perKey = threeLineLanguage(lang) ? 3 : 4;
        for (const Roasts::Key &key : Roasts::allKeys()) {
            const QStringList lines = Roasts::pools().value(key).value(lang);
            const QByteArray where = key.name().toLatin1();
            QVERIFY2(lines.size() == perKey, where.constData());
            int withPlaceholder = 0;
            for (const QString &line : lines) {
                QVERIFY2(placeholders(line) <= 1, qPrintable(line));
                withPlaceholder += placeholders(line);
            }
            const int expected = !key.notable ? 0 : key.topic == RoastTopic::processes ? perKey : 1;
            QVERIFY2(withPlaceholder == expected, where.constData());
        }
    }

    void roastLineBySeedAndFallback()
    {
        QCOMPARE(Roasts::line(RoastTopic::cpu, false, false, AppLanguage::en, std::nullopt, 9999),
                 QStringLiteral("Plenty of horsepower to spare."));
        const QStringList japanese = Roasts::pools().value({RoastTopic::cpu, false, false}).value(AppLanguage::ja);
        QVERIFY(!japanese.isEmpty());
        QCOMPARE(Roasts::line(RoastTopic::cpu, false, false, AppLanguage::ja, std::nullopt, 9999), japanese.first());

        const std::optional<QString> pct = QStringLiteral("72%");
        QCOMPARE(Roasts::line(RoastTopic::cpu, true, false, AppLanguage::en, pct, 4),
                 QStringLiteral("Running at 72%, keeping busy."));
        QCOMPARE(Roasts::line(RoastTopic::cpu, true, false, AppLanguage::en, pct, 5),
                 QStringLiteral("A bit of a workout right now."));

        // Fallbacks, on a pool of our own.
        Roasts::Pools pools;
        const Roasts::Key key{RoastTopic::disk, true, false};
        pools[key][AppLanguage::en] = {QStringLiteral("A %@"), QStringLiteral("B")};
        pools[key][AppLanguage::ko] = {};
        QCOMPARE(Roasts::line(pools, RoastTopic::disk, true, false, AppLanguage::th, QStringLiteral("9%"), 0),
                 QStringLiteral("A 9%"));
        // Without an argument only "B" is a candidate, whatever the seed.
        QCOMPARE(Roasts::line(pools, RoastTopic::disk, true, false, AppLanguage::en, std::nullopt, 0),
                 QStringLiteral("B"));
        // Only placeholder lines and no argument: the line as written.
        pools[key][AppLanguage::en] = {QStringLiteral("A %@")};
        QCOMPARE(Roasts::line(pools, RoastTopic::disk, true, false, AppLanguage::en, std::nullopt, 3),
                 QStringLiteral("A %@"));
        // A key with no lists at all, and an empty list.
        QCOMPARE(Roasts::line(pools, RoastTopic::cpu, false, false, AppLanguage::en, std::nullopt, 7),
                 QStringLiteral("\u2026"));
        QCOMPARE(Roasts::line(pools, RoastTopic::disk, true, false, AppLanguage::ko, std::nullopt, 7),
                 QStringLiteral("\u2026"));
    }

    void quipLookupFallsBack()
    {
        Quips::Pools pools;
        pools[MoodKind::hot][AppLanguage::en] = {QStringLiteral("hot")};
        pools[MoodKind::hot][AppLanguage::ja] = {};
        pools[MoodKind::calm][AppLanguage::en] = {QStringLiteral("calm")};
        QCOMPARE(Quips::random(pools, MoodKind::hot, AppLanguage::zhHant), QStringLiteral("hot"));
        QCOMPARE(Quips::random(pools, MoodKind::hot, AppLanguage::ja), QStringLiteral("\u2026"));
        QCOMPARE(Quips::random(pools, MoodKind::idle, AppLanguage::en), QStringLiteral("calm"));
        QCOMPARE(Quips::random(Quips::Pools{}, MoodKind::idle, AppLanguage::en), QStringLiteral("\u2026"));
    }

    void randomQuipComesFromThePool()
    {
        const QStringList pool = Quips::pools().value(MoodKind::busy).value(AppLanguage::en);
        QSet<QString> seen;
        for (int i = 0; i < 200; ++i) {
            const QString quip = Quips::random(MoodKind::busy, AppLanguage::en);
            QVERIFY(pool.contains(quip));
            seen.insert(quip);
        }
        QCOMPARE(seen.size(), pool.size());
    }

    void damagedFileGivesNothing()
    {
        QVERIFY(!PersonalityContent::parse("{ not json"));
        QVERIFY(!PersonalityContent::parse("[1, 2]"));
        const auto partial = PersonalityContent::parse(R"({"quips": {"hot": ["a", 3, "", "b"], "calm": "x"}})");
        QVERIFY(partial);
        QCOMPARE(partial->quips.value(QStringLiteral("hot")), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
        QVERIFY(!partial->quips.contains(QStringLiteral("calm")));
        QVERIFY(partial->roasts.isEmpty());
    }
};

SULK_TEST(ContentTest)
#include "ContentTest.moc"
