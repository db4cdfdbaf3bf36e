#include "common/TestSupport.h"

#include "settings/AppSettings.h"
#include "settings/Settings.h"
#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"

#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <cstdio>

class SettingsTest : public QObject {
    Q_OBJECT
private slots:
    void init() { TestSupport::clearSettings(); }
    void cleanup() { TestSupport::clearSettings(); }

    void startingUpWritesNothingAndSettingsGoToTheSulkboxFile()
    {
        ManualScheduler clock;
        SystemMonitor monitor(std::make_shared<EmptySamplers>(), clock);
        monitor.tick();
        Localizer::shared().reload();
        Localizer::shared().t(LocKey::tagline);
        Settings::store().sync();
        QVERIFY(Settings::store().allKeys().isEmpty());

        // What is set goes to sulkbox's own file.
        Settings::set(Settings::Key::petName, u"Pixel"_qs);
        Settings::store().sync();
        QCOMPARE(Settings::store().fileName(), TestSupport::settingsFolder() + u"/sulkbox/sulkbox.conf"_qs);
        QSettings reader(Settings::store().fileName(), QSettings::IniFormat);
        QCOMPARE(reader.value(u"petName"_qs).toString(), u"Pixel"_qs);
    }

    void damagedValuesFallBackToDefaults()
    {
        using Settings::Key;
        Settings::set(Key::moodEnabled, u"purple"_qs);
        Settings::set(Key::useFahrenheit, u"true"_qs);
        Settings::set(Key::showDisk, 0);
        Settings::set(Key::refreshInterval, u"soon"_qs);
        Settings::set(Key::petName, QVariantList{1, 2});
        QCOMPARE(Settings::flag(Key::moodEnabled), true);
        QCOMPARE(Settings::flag(Key::useFahrenheit), true);
        QCOMPARE(Settings::flag(Key::showDisk), false);
        QCOMPARE(Settings::number(Key::refreshInterval), 1.0);
        QCOMPARE(Settings::text(Key::petName), QString());
    }

    void aDamagedFileIsReadAndKept()
    {
        // Garbage lines in the user's file must not stop the reader, and
        // reading must not rewrite what the user saved.
        Settings::store().sync();
        const QString path = Settings::store().fileName();
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        static const char raw[] = "[General]\npetName=Rex\n\x01\x02garbage\0line\nrefreshInterval=2\n=\n[[[\n";
        const QByteArray damaged(raw, sizeof raw - 1);
        file.write(damaged);
        file.close();
        QSettings fresh(path, QSettings::IniFormat);
        QCOMPARE(fresh.value(u"petName"_qs).toString(), u"Rex"_qs);
        QCOMPARE(fresh.value(u"refreshInterval"_qs).toDouble(), 2.0);
        fresh.sync();
        QFile again(path);
        QVERIFY(again.open(QIODevice::ReadOnly));
        QCOMPARE(again.readAll(), damaged);
    }

    void changesAreAnnouncedOnce()
    {
        AppSettings &app = AppSettings::shared();
        QSignalSpy savage(&app, &AppSettings::savageModeChanged);
        QSignalSpy mood(&app, &AppSettings::moodEnabledChanged);
        QSignalSpy any(&app, &AppSettings::changed);
        app.setSavageMode(true);
        app.setSavageMode(true);
        QCOMPARE(savage.count(), 1);
        QVERIFY(app.savageMode());
        // A value that reads as the default changes nothing anyone can see.
        Settings::set(Settings::Key::moodEnabled, u"purple"_qs);
        QCOMPARE(mood.count(), 0);
        // An override is seen and announced, but never reaches the file.
        Settings::overrideForThisRun(Settings::Key::moodEnabled, false);
        QCOMPARE(mood.count(), 1);
        QVERIFY(!Settings::flag(Settings::Key::moodEnabled));
        Settings::store().sync();
        QCOMPARE(Settings::store().value(u"moodEnabled"_qs), QVariant(u"purple"_qs));
        Settings::clearOverrides();
        QVERIFY(Settings::flag(Settings::Key::moodEnabled));
        QCOMPARE(mood.count(), 2);
        QCOMPARE(any.count(), 3);
    }

    void followsTheFileWrittenElsewhere()
    {
        AppSettings &app = AppSettings::shared();
        app.watchFile();
        QVERIFY(app.watching());
        QSignalSpy mood(&app, &AppSettings::moodEnabledChanged);
        QSignalSpy pet(&app, &AppSettings::petNameChanged);
        {
            // Another sulkbox process, or a hand edit.
            QSettings other(Settings::filePath(), QSettings::IniFormat);
            other.setValue(u"moodEnabled"_qs, false);
            other.setValue(u"petName"_qs, u"Rex"_qs);
        }
        QTRY_COMPARE_WITH_TIMEOUT(mood.count(), 1, 5000);
        QCOMPARE(pet.count(), 1);
        QVERIFY(!app.moodEnabled());
        QCOMPARE(app.petName(), u"Rex"_qs);

        // The same file rewritten with the same values announces nothing.
        {
            QSettings other(Settings::filePath(), QSettings::IniFormat);
            other.setValue(u"moodEnabled"_qs, u"false"_qs);
        }
        QTest::qWait(300);
        QCOMPARE(mood.count(), 1);

        // Replaced whole, as editors save: still followed.
        const QString tmp = Settings::filePath() + u".new"_qs;
        TestSupport::writeFile(tmp, "[General]\nmoodEnabled=true\npetName=Max\n");
        QVERIFY(::rename(QFile::encodeName(tmp).constData(), QFile::encodeName(Settings::filePath()).constData()) == 0);
        QTRY_COMPARE_WITH_TIMEOUT(pet.count(), 2, 5000);
        QCOMPARE(app.petName(), u"Max"_qs);
        QVERIFY(app.moodEnabled());
    }
};

SULK_TEST(SettingsTest)

#include "SettingsTest.moc"
