// Settings of the earlier identity come over once, key by key, without
// overwriting anything, and a damaged or strange old file never stops the
// start.

#include "common/TestSupport.h"

#include "app/desktop/PreferencesMigration.h"
#include "settings/AppSettings.h"
#include "settings/Settings.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

QVariantMap legacyFrom(const QByteArray &ini, QTemporaryDir &dir)
{
    const QString path = dir.filePath(QStringLiteral("SystemMonitor.conf"));
    TestSupport::writeFile(path, ini);
    return PreferencesMigration::readLegacy(path).value_or(QVariantMap{{u"unreadable"_qs, true}});
}

} // namespace

class PreferencesMigrationTest : public QObject {
    Q_OBJECT

private slots:
    void init() { TestSupport::clearSettings(); }
    void cleanup()
    {
        TestSupport::clearSettings();
        QFile::remove(PreferencesMigration::legacyFilePath());
    }

    void firstStartWithoutLegacySettingsOnlyMarksTheMigration()
    {
        QTemporaryDir dir;
        QSettings target(dir.filePath(u"new.conf"_qs), QSettings::IniFormat);
        QVERIFY(!PreferencesMigration::readLegacy(dir.filePath(u"absent.conf"_qs)));
        QCOMPARE(PreferencesMigration::migrate(std::nullopt, target), false);
        QCOMPARE(target.allKeys(), QStringList{u"migratedFromLegacyBundleID"_qs});
        QCOMPARE(target.value(u"migratedFromLegacyBundleID"_qs).toBool(), true);
    }

    void everyKeyComesOverWhereTheNewStoreHasNone()
    {
        QTemporaryDir dir;
        const QVariantMap legacy = legacyFrom("[General]\nrefreshInterval=2\nlaunchAtLogin=true\npetName=Rex\n"
                                              "lastSeenVersion=0.9\nfolder=C:\\\\\n[window]\nx=12\n",
                                              dir);
        QSettings target(dir.filePath(u"new.conf"_qs), QSettings::IniFormat);
        target.setValue(u"petName"_qs, u"Max"_qs);

        QCOMPARE(PreferencesMigration::migrate(legacy, target), true);
        QCOMPARE(target.value(u"refreshInterval"_qs).toString(), u"2"_qs);
        QCOMPARE(target.value(u"petName"_qs).toString(), u"Max"_qs);
        QCOMPARE(target.value(u"lastSeenVersion"_qs).toString(), u"0.9"_qs);
        QCOMPARE(target.value(u"folder"_qs).toString(), u"C:\\"_qs);
        QCOMPARE(target.value(u"window/x"_qs).toString(), u"12"_qs);
        QCOMPARE(target.value(u"launchAtLogin"_qs).toString(), u"true"_qs);

        // The second start does nothing, whatever the old file says now.
        const QVariantMap changed = legacyFrom("refreshInterval=5\nsavageMode=true\nlaunchAtLogin=true\n", dir);
        QCOMPARE(PreferencesMigration::migrate(changed, target), false);
        QCOMPARE(target.value(u"refreshInterval"_qs).toString(), u"2"_qs);
        QVERIFY(!target.contains(u"savageMode"_qs));
    }

    void launchAtLoginCountsOnlyAsAFlag_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<bool>("asked");
        QTest::newRow("true") << QByteArray("launchAtLogin=true") << true;
        QTest::newRow("True") << QByteArray("launchAtLogin=True") << true;
        QTest::newRow("false") << QByteArray("launchAtLogin=false") << false;
        QTest::newRow("number") << QByteArray("launchAtLogin=1") << false;
        QTest::newRow("list") << QByteArray("launchAtLogin=true, false") << false;
    }

    void launchAtLoginCountsOnlyAsAFlag()
    {
        QFETCH(QByteArray, line);
        QFETCH(bool, asked);
        QTemporaryDir dir;
        QSettings target(dir.filePath(u"new.conf"_qs), QSettings::IniFormat);
        QCOMPARE(PreferencesMigration::migrate(legacyFrom(line + '\n', dir), target), asked);
    }

    void damagedOldFileGivesWhatCanBeRead()
    {
        QTemporaryDir dir;
        QByteArray ini("refreshInterval=3\n");
        ini += QByteArray("\x00\x01\xff\xfe garbage without equals\n", 27);
        ini += "[unterminated\n=no key\n\\x\\y=\\\n";
        ini += "petName=Rex\n";
        const QVariantMap legacy = legacyFrom(ini, dir);
        QVERIFY(!legacy.contains(u"unreadable"_qs));
        QCOMPARE(legacy.value(u"refreshInterval"_qs).toString(), u"3"_qs);
        QCOMPARE(legacy.value(u"petName"_qs).toString(), u"Rex"_qs);

        QSettings target(dir.filePath(u"new.conf"_qs), QSettings::IniFormat);
        QCOMPARE(PreferencesMigration::migrate(legacy, target), false);
        QCOMPARE(target.value(u"refreshInterval"_qs).toString(), u"3"_qs);
        QCOMPARE(target.value(u"petName"_qs).toString(), u"Rex"_qs);
        QCOMPARE(target.value(u"migratedFromLegacyBundleID"_qs).toBool(), true);
    }

    void specialFilesAreNeverOpened()
    {
        QTemporaryDir dir;
        // A FIFO would block a reader until someone writes to it.
        const QString fifo = dir.filePath(u"fifo.conf"_qs);
        QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!PreferencesMigration::readLegacy(fifo));
        QVERIFY(clock.elapsed() < 2000);

        QVERIFY(QDir(dir.path()).mkdir(u"folder.conf"_qs));
        QVERIFY(!PreferencesMigration::readLegacy(dir.filePath(u"folder.conf"_qs)));

        const QString huge = dir.filePath(u"huge.conf"_qs);
        TestSupport::writeFile(huge, "refreshInterval=2\n" + QByteArray(2 << 20, '#'));
        QVERIFY(!PreferencesMigration::readLegacy(huge));
    }

    // The start-up step on the real store, from the earlier identity's file:
    // the readers see the old values at once, and launch at login is asked for.
    void runFeedsTheSettingsAndTheLoginItem()
    {
        QCOMPARE(PreferencesMigration::legacyFilePath(),
                 TestSupport::settingsFolder() + QStringLiteral("/com.qm/SystemMonitor.conf"));
        TestSupport::writeFile(PreferencesMigration::legacyFilePath(),
                               "refreshInterval=2\nlaunchAtLogin=true\nmoodEnabled=false\n");
        QList<bool> loginCalls;
        PreferencesMigration::run([&](bool on) { loginCalls.append(on); });
        QCOMPARE(loginCalls, QList<bool>{true});
        QCOMPARE(Settings::number(Settings::Key::refreshInterval), 2.0);
        QCOMPARE(AppSettings::shared().moodEnabled(), false);
        QCOMPARE(AppSettings::shared().migratedFromLegacyBundleID(), true);

        // Once only.
        PreferencesMigration::run([&](bool on) { loginCalls.append(on); });
        QCOMPARE(loginCalls.size(), 1);
    }
};

SULK_TEST(PreferencesMigrationTest)
#include "PreferencesMigrationTest.moc"
