#include "common/TestSupport.h"

#include "settings/Settings.h"
#include "l10n/Localizer.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

namespace {

int placeholders(const QString &text)
{
    return int(text.count(QStringLiteral("%@")));
}

const QList<AppLanguage> translated = {AppLanguage::zhHans, AppLanguage::zhHant, AppLanguage::ja,
                                       AppLanguage::ko, AppLanguage::th};

// Words of the other platform that Linux wording replaces, in any of the six
// languages: the Mac, its menu bar, startup disk and Activity Monitor.
const QRegularExpression &macWords()
{
    static const QRegularExpression re(
        u"\\bMac\\b|macOS|menu bar|startup disk|Activity Monitor|菜单栏|選單列|メニューバー|메뉴 막대|แถบเมนู"
        u"|启动盘|開機磁碟|起動ディスク|시동 디스크|ดิสก์เริ่มระบบ|活动监视器|活動監視器|アクティビティモニタ|활성 상태 보기"_qs);
    return re;
}

const QSet<LocKey> keysWithoutRow = {LocKey::gpuUsage, LocKey::compSSD, LocKey::compWiFi, LocKey::empty};

} // namespace

class LocKeyTest : public QObject {
    Q_OBJECT
private slots:
    void keysHaveDistinctTexts()
    {
        QSet<QString> texts;
        for (LocKey key : allLocKeys()) {
            texts.insert(rawValue(key));
            QVERIFY2(!rawValue(key).contains(macWords()), qPrintable(keyName(key)));
            // Only the of-format takes two figures.
            QVERIFY2(placeholders(rawValue(key)) <= 1 || key == LocKey::ofFmt, qPrintable(keyName(key)));
        }
        QCOMPARE(texts.size(), locKeyCount);
        QCOMPARE(locKeyFromRaw(QStringLiteral("Cores (%@)")), std::optional<LocKey>(LocKey::coresCount));
        QVERIFY(!locKeyFromRaw(QStringLiteral("nope")).has_value());
    }
};

class TranslationTableTest : public QObject {
    Q_OBJECT
private slots:
    void everyRowHoldsTheFiveLanguages()
    {
        for (LocKey key : allLocKeys()) {
            if (keysWithoutRow.contains(key)) {
                for (AppLanguage lang : translated)
                    QVERIFY2(!Localizer::tableText(key, lang), qPrintable(keyName(key)));
                continue;
            }
            for (AppLanguage lang : translated) {
                const auto text = Localizer::tableText(key, lang);
                const QString where = keyName(key) + u'/' + languageRawText(lang);
                // Present, one line, and with the English placeholders.
                QVERIFY2(text && !text->trimmed().isEmpty() && !text->contains(u'\n')
                             && placeholders(*text) == placeholders(rawValue(key)),
                         qPrintable(where));
                // This runs on Linux desktops: no text may name the Mac or its parts.
                QVERIFY2(!text->contains(macWords()), qPrintable(where + u": "_qs + *text));
                // Chinese prose writes its ellipsis as a pair; a command that opens
                // more ("Check for Updates…", "Preferences…") keeps the single one of menus.
                if ((lang == AppLanguage::zhHans || lang == AppLanguage::zhHant) && key != LocKey::checkForUpdates
                    && key != LocKey::openPreferences)
                    QVERIFY2(!text->contains(QRegularExpression(u"(?<!\u2026)\u2026(?!\u2026)"_qs)),
                             qPrintable(where + u": "_qs + *text));
            }
            QVERIFY(!Localizer::tableText(key, AppLanguage::en));
            QVERIFY(!Localizer::tableText(key, AppLanguage::system));
        }
    }

    void fixedRowsAreVerbatim_data()
    {
        QTest::addColumn<LocKey>("key");
        QTest::addColumn<QStringList>("texts"); // zhHans, zhHant, ja, ko, th
        QTest::newRow("tagline") << LocKey::tagline
                                 << QStringList{u"让你的电脑有点小情绪。"_qs, u"讓你的電腦有點小情緒。"_qs,
                                                u"感情を持ったパソコン。"_qs, u"감정이 있는 내 컴퓨터."_qs,
                                                u"คอมของคุณ ที่มีความรู้สึก"_qs};
        QTest::newRow("activityMonitor") << LocKey::activityMonitor
                                         << QStringList{u"系统监视器"_qs, u"系統監視器"_qs, u"システムモニター"_qs,
                                                        u"시스템 모니터"_qs, u"ตัวตรวจสอบระบบ"_qs};
        QTest::newRow("ofFmt") << LocKey::ofFmt
                               << QStringList{u"%@ / %@"_qs, u"%@ / %@"_qs, u"%@ / %@"_qs, u"%@ / %@"_qs,
                                              u"%@ / %@"_qs};
    }

    void fixedRowsAreVerbatim()
    {
        QFETCH(LocKey, key);
        QFETCH(QStringList, texts);
        for (int i = 0; i < translated.size(); ++i)
            QCOMPARE(Localizer::tableText(key, translated[i]).value_or(QString()), texts[i]);
    }
};

class LocalizerTest : public QObject {
    Q_OBJECT
private slots:
    void init() { TestSupport::resetSettings(); }
    void cleanup() { TestSupport::resetSettings(); }

    void keysWithoutRowFallBackToEnglish()
    {
        for (AppLanguage lang : concreteLanguages()) {
            Localizer::shared().setLanguage(lang);
            QCOMPARE(Localizer::shared().t(LocKey::gpuUsage), QStringLiteral("GPU"));
            QCOMPARE(Localizer::shared().t(LocKey::compWiFi), QStringLiteral("Wi-Fi"));
            QCOMPARE(Localizer::shared().t(LocKey::empty), QString());
        }
    }

    void argumentsFillInOrder()
    {
        Localizer &loc = Localizer::shared();
        loc.setLanguage(AppLanguage::en);
        QCOMPARE(loc.t(LocKey::ofFmt, {u"12 GB"_qs, u"16 GB"_qs}), u"12 GB of 16 GB"_qs);
        QCOMPARE(loc.t(LocKey::freedFmt, {u"1.2 GB"_qs}), u"freed 1.2 GB"_qs);
        QCOMPARE(loc.t(LocKey::tagline), u"Your computer, with feelings."_qs);
        // Without arguments the text stays as written.
        QCOMPARE(loc.t(LocKey::freedFmt), u"freed %@"_qs);
        loc.setLanguage(AppLanguage::ja);
        QCOMPARE(loc.t(LocKey::freedFmt, {u"1.2 GB"_qs}), u"1.2 GB 解放"_qs);
        // An argument that itself holds "%@" is not filled again.
        QCOMPARE(Localizer::fill(u"%@ and %@"_qs, {u"%@"_qs, u"x"_qs}), u"%@ and x"_qs);
        QCOMPARE(Localizer::fill(u"100%@"_qs, {u"!"_qs}), u"100!"_qs);
    }

    void languageIsPersisted()
    {
        Localizer &loc = Localizer::shared();
        QSignalSpy spy(&loc, &Localizer::languageChanged);
        loc.setLanguage(AppLanguage::ko);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(Settings::text(Settings::Key::appLanguage), u"ko"_qs);
        QCOMPARE(loc.concrete(), AppLanguage::ko);

        Settings::set(Settings::Key::appLanguage, u"fr"_qs);
        loc.reload();
        QCOMPARE(loc.language(), AppLanguage::system);
        QCOMPARE(loc.concrete(), Localizer::systemLanguage());
    }

    // The system's preferred languages, first first: only the first counts.
    void preferredLanguages_data()
    {
        QTest::addColumn<QStringList>("preferred");
        QTest::addColumn<AppLanguage>("lang");
        QTest::newRow("zh-Hant-TW") << QStringList{u"zh-Hant-TW"_qs, u"en"_qs} << AppLanguage::zhHant;
        QTest::newRow("zh-Hans-CN") << QStringList{u"zh-Hans-CN"_qs} << AppLanguage::zhHans;
        QTest::newRow("zh-CN") << QStringList{u"zh-CN"_qs} << AppLanguage::zhHans;
        QTest::newRow("zh-HK") << QStringList{u"zh-HK"_qs} << AppLanguage::zhHans;
        QTest::newRow("ja-JP") << QStringList{u"ja-JP"_qs} << AppLanguage::ja;
        QTest::newRow("ko") << QStringList{u"ko"_qs} << AppLanguage::ko;
        QTest::newRow("th-TH") << QStringList{u"th-TH"_qs} << AppLanguage::th;
        QTest::newRow("none") << QStringList{} << AppLanguage::en;
        QTest::newRow("de first") << QStringList{u"de"_qs, u"de-Latn-DE"_qs, u"ja"_qs, u"ja-JP"_qs} << AppLanguage::en;
        // One preference spelled again with its script, as Qt reports zh_TW.
        QTest::newRow("zh-TW with script")
            << QStringList{u"zh-TW"_qs, u"zh-Hant-TW"_qs, u"en"_qs} << AppLanguage::zhHant;
        QTest::newRow("ja with script") << QStringList{u"ja-JP"_qs, u"ja-Jpan-JP"_qs, u"zh-Hant-TW"_qs}
                                        << AppLanguage::ja;
    }

    void preferredLanguages()
    {
        QFETCH(QStringList, preferred);
        QFETCH(AppLanguage, lang);
        QCOMPARE(Localizer::languageForPreferred(preferred), lang);
    }

    void systemLanguageFollowsALocaleChange()
    {
        Localizer &loc = Localizer::shared();
        QCOMPARE(loc.language(), AppLanguage::system);
        const AppLanguage before = loc.concrete();
        QStringList preferred{u"ko-KR"_qs, u"en-US"_qs};
        Localizer::setPreferredLanguagesSource([&preferred] { return preferred; });
        auto restore = qScopeGuard([&loc] {
            Localizer::setPreferredLanguagesSource({});
            loc.systemLocaleChanged();
        });
        QCOMPARE(Localizer::systemLanguage(), AppLanguage::ko);

        // Lookups keep the language resolved before, until the application
        // hears of the change.
        QSignalSpy spy(&loc, &Localizer::languageChanged);
        QCOMPARE(loc.concrete(), before);
        QEvent change(QEvent::LocaleChange);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
        QCOMPARE(loc.concrete(), AppLanguage::ko);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(loc.t(LocKey::memory), Localizer::tableText(LocKey::memory, AppLanguage::ko).value());
        // The same preference again announces nothing.
        QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
        QCOMPARE(spy.count(), 1);

        // A chosen language stays whatever the system prefers; going back
        // to automatic asks the system again.
        loc.setLanguage(AppLanguage::ja);
        preferred = {u"zh-TW"_qs, u"zh-Hant-TW"_qs};
        QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
        QCOMPARE(loc.concrete(), AppLanguage::ja);
        loc.setLanguage(AppLanguage::system);
        QCOMPARE(loc.concrete(), AppLanguage::zhHant);
        QCOMPARE(loc.t(LocKey::memory), Localizer::tableText(LocKey::memory, AppLanguage::zhHant).value());
    }
};

SULK_TEST(LocKeyTest)
SULK_TEST(TranslationTableTest)
SULK_TEST(LocalizerTest)

#include "LocalizerTest.moc"
