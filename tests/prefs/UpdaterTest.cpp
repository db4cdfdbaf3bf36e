// Update checks against a feed server on 127.0.0.1: reading the feed,
// comparing versions, every way the server can fail, and the once-a-day rule
// of automatic checks on a hand-moved clock.

#include "FeedServer.h"

#include "common/TestSupport.h"

#include "app/desktop/Appcast.h"
#include "app/desktop/Updater.h"
#include "model/Scheduler.h"
#include "settings/AppSettings.h"
#include "settings/Settings.h"

#include <QElapsedTimer>
#include <QFile>
#include <QNetworkProxy>
#include <QSignalSpy>
#include <QTest>

namespace {

QByteArray feedWith(const QList<QByteArray> &shortVersions)
{
    QByteArray items;
    for (const QByteArray &v : shortVersions)
        items += "<item><title>sulkbox " + v + "</title>"
                 "<link>https://example.org/sulkbox/" + v + "</link>"
                 "<description><![CDATA[<p>Release <b>" + v + "</b></p>]]></description>"
                 "<enclosure url=\"https://example.org/sulkbox-" + v + ".tar.gz\" length=\"1000\""
                 " type=\"application/gzip\" sparkle:version=\"" + v + ".7\""
                 " sparkle:shortVersionString=\"" + v + "\"/></item>";
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
           "<rss version=\"2.0\" xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\">"
           "<channel><title>sulkbox</title>" + items + "</channel></rss>";
}

} // namespace

class UpdaterTest : public QObject {
    Q_OBJECT

    struct Check {
        Updater::Result result;
        bool userInitiated = false;
        qint64 ms = 0;
    };

    // A feed server, a hand-moved clock and an updater of build 1.9 that
    // reads the server's `path`.
    struct Rig {
        FeedServer server;
        ManualScheduler clock;
        Updater updater{clock};

        explicit Rig(const QString &path = u"/appcast.xml"_qs)
        {
            updater.setCurrentVersion(u"1.9"_qs);
            AppSettings::shared().setUpdateFeedURL(server.url(path).toString());
        }

        // Runs one check the user asked for and waits for its result.
        Check check()
        {
            QSignalSpy done(&updater, &Updater::finished);
            QElapsedTimer elapsed;
            elapsed.start();
            updater.checkForUpdates();
            if (done.isEmpty())
                done.wait(20000);
            Check c;
            c.ms = elapsed.elapsed();
            if (done.size() != 1) {
                qWarning("expected one result, got %d", int(done.size()));
                return c;
            }
            c.result = done.first().at(0).value<Updater::Result>();
            c.userInitiated = done.first().at(1).toBool();
            return c;
        }
    };

private slots:
    void initTestCase() { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }
    void init() { TestSupport::clearSettings(); }
    void cleanup() { TestSupport::clearSettings(); }

    void readsItemsWhereverTheFieldsSit()
    {
        QFile file(TestSupport::fixture(u"updates/mixed.xml"_qs));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const auto items = Appcast::parse(file.readAll());
        QVERIFY(items);
        QCOMPARE(items->size(), 2);
        const AppcastItem &one = items->at(0);
        QCOMPARE(one.version, u"41"_qs);
        QCOMPARE(one.displayVersion(), u"1.1"_qs);
        QCOMPARE(one.notesPage(), QUrl(u"https://example.org/notes/1.1"_qs));
        QCOMPARE(one.notes, u"• Faster & calmer\n• Quieter fans\n\nThanks!"_qs);
        // No page of its own: the browser goes to the file.
        QCOMPARE(one.downloadPage(), QUrl(u"https://example.org/1.1.tar.gz"_qs));
        const AppcastItem &two = items->at(1);
        QCOMPARE(two.displayVersion(), u"42"_qs);
        // A script address from the feed never reaches the browser.
        QCOMPARE(two.downloadPage(), QUrl(u"https://example.org/1.2.tar.gz"_qs));
        QVERIFY(!two.notesPage().isValid());

        // A prefix the feed forgot to declare still reads.
        const auto loose = Appcast::parse(
            "<rss version=\"2.0\"><channel><item><enclosure sparkle:shortVersionString=\"2.0\"/></item></channel></rss>");
        QVERIFY(loose);
        QCOMPARE(loose->value(0).displayVersion(), u"2.0"_qs);
    }

    void refusesWhatIsNotAFeed_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("html") << QByteArray("<!DOCTYPE html><html><body>Hello</body></html>");
        QTest::newRow("cut off") << feedWith({"1.0"}).left(120);
        QTest::newRow("garbage after items") << feedWith({"1.0"}) + "<oops>";
    }

    void refusesWhatIsNotAFeed()
    {
        QFETCH(QByteArray, data);
        QVERIFY(!Appcast::parse(data));
    }

    void versionsComparePartByPart_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<int>("order");
        QTest::newRow("1.10 > 1.9") << u"1.10"_qs << u"1.9"_qs << 1;
        QTest::newRow("missing part is zero") << u"1.2"_qs << u"1.2.0"_qs << 0;
        QTest::newRow("longer wins") << u"1.2.1"_qs << u"1.2"_qs << 1;
        QTest::newRow("leading v") << u"v2.0"_qs << u"2.0"_qs << 0;
        QTest::newRow("leading zeros") << u"1.02"_qs << u"1.2"_qs << 0;
        QTest::newRow("huge numbers") << u"1.12345678901234567890"_qs << u"1.9"_qs << 1;
        QTest::newRow("pre-release first") << u"1.2-beta"_qs << u"1.2"_qs << -1;
        QTest::newRow("pre-release numbers") << u"1.2-beta.10"_qs << u"1.2-beta.2"_qs << 1;
        QTest::newRow("alpha before beta") << u"1.2-alpha"_qs << u"1.2-beta"_qs << -1;
        QTest::newRow("pre-release of newer") << u"1.3-rc1"_qs << u"1.2"_qs << 1;
        QTest::newRow("build metadata ignored") << u"1.2+git42"_qs << u"1.2"_qs << 0;
        QTest::newRow("suffix before release") << u"1.2rc1"_qs << u"1.2"_qs << -1;
        QTest::newRow("empty is lowest") << QString() << u"0.1"_qs << -1;
    }

    void versionsComparePartByPart()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(int, order);
        QCOMPARE(Appcast::compareVersions(a, b), order);
        QCOMPARE(Appcast::compareVersions(b, a), -order);
    }

    void comparesTheNewestReleaseWithThisBuild_data()
    {
        QTest::addColumn<QByteArray>("feed");
        QTest::addColumn<Updater::Outcome>("outcome");
        QTest::addColumn<QString>("shown");
        // The newest is the highest, wherever the feed lists it.
        QTest::newRow("newer") << feedWith({"1.9", "1.10", "1.2"}) << Updater::Outcome::available << u"1.10"_qs;
        QTest::newRow("equal") << feedWith({"1.9"}) << Updater::Outcome::upToDate << u"1.9"_qs;
        QTest::newRow("older") << feedWith({"1.8", "0.9"}) << Updater::Outcome::upToDate << u"1.8"_qs;
    }

    void comparesTheNewestReleaseWithThisBuild()
    {
        QFETCH(QByteArray, feed);
        QFETCH(Updater::Outcome, outcome);
        QFETCH(QString, shown);
        Rig rig;
        rig.server.serve(u"/appcast.xml"_qs, feed);
        const Check c = rig.check();
        QCOMPARE(c.result.outcome, outcome);
        QCOMPARE(c.result.failure, Updater::Failure::none);
        QCOMPARE(c.result.item.displayVersion(), shown);
        QCOMPARE(rig.server.hits(u"/appcast.xml"_qs), 1);
        // A check the user asked for counts as the day's check.
        QCOMPARE(rig.updater.lastCheck(), rig.clock.now());
    }

    // Each way a server fails, told apart. The unreachable server is the
    // update window's "offline" case.
    void failuresSayWhatWentWrong_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<Updater::Failure>("failure");
        QTest::addColumn<int>("status");
        QTest::newRow("404") << u"/missing.xml"_qs << Updater::Failure::serverError << 404;
        QTest::newRow("malformed") << u"/malformed.xml"_qs << Updater::Failure::badFeed << 200;
        QTest::newRow("a feed without releases") << u"/empty.xml"_qs << Updater::Failure::badFeed << 200;
        QTest::newRow("redirect loop") << u"/loop"_qs << Updater::Failure::serverError << 302;
        QTest::newRow("no answer") << u"/silent"_qs << Updater::Failure::timedOut << 0;
    }

    void failuresSayWhatWentWrong()
    {
        QFETCH(QString, path);
        QFETCH(Updater::Failure, failure);
        QFETCH(int, status);
        Rig rig(path);
        rig.server.serve(u"/malformed.xml"_qs, feedWith({"2.0"}).replace("</channel>", "</chanel>"));
        rig.server.serve(u"/empty.xml"_qs, "<rss version=\"2.0\"><channel><title>t</title></channel></rss>");
        rig.server.redirect(u"/loop"_qs, u"/loop2"_qs);
        rig.server.redirect(u"/loop2"_qs, u"/loop"_qs);
        rig.server.silent(u"/silent"_qs);
        rig.updater.setLimits(Updater::defaultMaxBytes, 400, Updater::defaultMaxRedirects);

        const Check c = rig.check();
        QCOMPARE(c.result.outcome, Updater::Outcome::failed);
        QCOMPARE(c.result.failure, failure);
        QCOMPARE(c.result.httpStatus, status);
        QVERIFY2(c.ms < 5000, qPrintable(QString::number(c.ms)));
        // The loop is cut after a few rounds, not after Qt's default fifty.
        QVERIFY(rig.server.totalHits() <= 2 * (Updater::defaultMaxRedirects + 1));
        if (failure == Updater::Failure::timedOut)
            QVERIFY2(c.ms >= 350, qPrintable(QString::number(c.ms)));
    }

    void followsARedirect()
    {
        Rig rig;
        rig.server.serve(u"/new/appcast.xml"_qs, feedWith({"3.0"}));
        rig.server.redirect(u"/appcast.xml"_qs, rig.server.url(u"/new/appcast.xml"_qs).toString());
        const Check c = rig.check();
        QCOMPARE(c.result.outcome, Updater::Outcome::available);
        QCOMPARE(c.result.item.displayVersion(), u"3.0"_qs);
        QCOMPARE(rig.server.hits(u"/appcast.xml"_qs), 1);
        QCOMPARE(rig.server.hits(u"/new/appcast.xml"_qs), 1);
    }

    void hugeAnswersAreCutOff_data()
    {
        QTest::addColumn<bool>("announced");
        QTest::newRow("announced length") << true;
        QTest::newRow("endless stream") << false;
    }

    void hugeAnswersAreCutOff()
    {
        QFETCH(bool, announced);
        Rig rig;
        // A real feed with a few megabytes of notes: valid, but not something
        // an update check reads.
        if (announced)
            rig.server.serve(u"/appcast.xml"_qs, feedWith({"9.0"}).replace("Release", QByteArray(3 << 20, 'x')));
        else
            rig.server.endless(u"/appcast.xml"_qs);
        rig.updater.setLimits(256 * 1024, 20000, Updater::defaultMaxRedirects);
        const Check c = rig.check();
        QCOMPARE(c.result.failure, Updater::Failure::badFeed);
        QVERIFY2(c.ms < 10000, qPrintable(QString::number(c.ms)));
        QVERIFY2(rig.server.endlessBytesSent() < 16 << 20, qPrintable(QString::number(rig.server.endlessBytesSent())));
    }

    void feedAddress()
    {
        ManualScheduler clock;
        Updater updater(clock);
        // The build here sets no feed: distribution packages.
        QCOMPARE(Updater::builtInFeed(), QString());
        QVERIFY(!updater.configured());
        for (const QString &bad : {u"ftp://example.org/feed"_qs, u"file:///etc/passwd"_qs, u"not a url"_qs,
                                   u"https://"_qs})
        {
            AppSettings::shared().setUpdateFeedURL(bad);
            QVERIFY2(!updater.configured(), qPrintable(bad));
        }
        AppSettings::shared().setUpdateFeedURL(u" https://example.org/appcast.xml "_qs);
        QCOMPARE(updater.feedUrl(), QUrl(u"https://example.org/appcast.xml"_qs));

        AppSettings::shared().setUpdateFeedURL(QString());
        QSignalSpy done(&updater, &Updater::finished);
        updater.checkForUpdates();
        QCOMPARE(done.size(), 1);
        QCOMPARE(done.first().at(0).value<Updater::Result>().failure, Updater::Failure::notConfigured);
        QVERIFY(!updater.lastCheck().isValid());
    }

    void automaticChecksRunOnceADay()
    {
        FeedServer server;
        server.serve(u"/appcast.xml"_qs, feedWith({"0.1"}));
        AppSettings::shared().setUpdateFeedURL(server.url(u"/appcast.xml"_qs).toString());
        const QString path = u"/appcast.xml"_qs;
        ManualScheduler clock(QDateTime(QDate(2026, 3, 10), QTime(9, 0), Qt::UTC));
        {
            Updater updater(clock);
            updater.setStartDelay(5000);

            // Off: nothing, ever.
            updater.start();
            clock.advance(3 * Updater::checkIntervalMs);
            QTest::qWait(50);
            QCOMPARE(server.hits(path), 0);

            // Turned on: the first check comes at once, then one a day.
            AppSettings::shared().setAutomaticUpdateChecks(true);
            clock.advance(0);
            QTRY_COMPARE(server.hits(path), 1);
            QTRY_COMPARE(updater.lastCheck(), clock.now());

            clock.advance(Updater::checkIntervalMs - 60 * 1000);
            QTest::qWait(50);
            QCOMPARE(server.hits(path), 1);
            clock.advance(60 * 1000);
            QTRY_COMPARE(server.hits(path), 2);
            QTRY_VERIFY(!updater.checking());
        }
        // A restart six hours later remembers the day.
        clock.advance(6 * 3600 * 1000);
        {
            Updater updater(clock);
            updater.setStartDelay(5000);
            updater.start();
            clock.advance(5000);
            clock.advance(17 * 3600 * 1000);
            QTest::qWait(50);
            QCOMPARE(server.hits(path), 2);
            clock.advance(3600 * 1000);
            QTRY_COMPARE(server.hits(path), 3);
            QTRY_VERIFY(!updater.checking());

            // Turned off: no more checks.
            AppSettings::shared().setAutomaticUpdateChecks(false);
            clock.advance(3 * Updater::checkIntervalMs);
            QTest::qWait(50);
            QCOMPARE(server.hits(path), 3);
        }
    }

    void automaticChecksAfterStartWaitAndSurviveAClockSetBack()
    {
        Rig rig;
        rig.server.serve(u"/appcast.xml"_qs, feedWith({"0.1"}));
        AppSettings::shared().setAutomaticUpdateChecks(true);
        // The last check is stamped in the future: the clock was set back since.
        AppSettings::shared().setLastUpdateCheck(rig.clock.now().addYears(1).toString(Qt::ISODate));
        rig.updater.setStartDelay(5000);
        rig.updater.start();
        rig.clock.advance(4000);
        QTest::qWait(50);
        QCOMPARE(rig.server.hits(u"/appcast.xml"_qs), 0); // start-up is not slowed
        rig.clock.advance(1000);
        QTRY_COMPARE(rig.server.hits(u"/appcast.xml"_qs), 1);
        QTRY_COMPARE(rig.updater.lastCheck(), rig.clock.now());
    }

    void aManualCheckDuringAQuietOneGetsItsResult()
    {
        Rig rig;
        rig.server.silent(u"/appcast.xml"_qs);
        AppSettings::shared().setAutomaticUpdateChecks(true);
        rig.updater.setLimits(Updater::defaultMaxBytes, 500, Updater::defaultMaxRedirects);
        rig.updater.setStartDelay(0);
        QSignalSpy done(&rig.updater, &Updater::finished);
        rig.updater.start();
        rig.clock.advance(0);
        QTRY_COMPARE(rig.server.hits(u"/appcast.xml"_qs), 1);
        QVERIFY(rig.updater.checking());
        rig.updater.checkForUpdates(); // joins the check under way
        QTRY_COMPARE(done.size(), 1);
        QCOMPARE(done.first().at(1).toBool(), true);
        QCOMPARE(rig.server.hits(u"/appcast.xml"_qs), 1);
    }
};

SULK_TEST(UpdaterTest)
#include "UpdaterTest.moc"
