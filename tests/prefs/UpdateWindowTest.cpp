// The update result window: what the user reads after "Check for Updates…"
// in each outcome, the buttons that send the browser to the release, and
// the quiet automatic check that only speaks of a newer version.

#include "FeedServer.h"
#include "PrefsRig.h"

#include "common/TestSupport.h"

#include <QDesktopServices>

using namespace QuickDriver;

namespace {

QByteArray feed(const QByteArray &version, const QByteArray &link = "https://example.org/sulkbox/download")
{
    return "<rss version=\"2.0\" xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel>"
           "<item><title>sulkbox</title><link>" + link + "</link>"
           "<sparkle:releaseNotesLink>https://example.org/sulkbox/notes</sparkle:releaseNotesLink>"
           "<description><![CDATA[<ul><li>Calmer fans</li></ul>]]></description>"
           "<enclosure url=\"https://example.org/sulkbox.tar.gz\" sparkle:shortVersionString=\"" + version + "\"/>"
           "</item></channel></rss>";
}

} // namespace

// Stands in for the browser.
class Browser : public QObject {
    Q_OBJECT
public:
    QList<QUrl> opened;
public slots:
    void open(const QUrl &url) { opened.append(url); }
};

class UpdateWindowTest : public QObject {
    Q_OBJECT

    // This build is 1.0; a feed that has not answered in half a second has
    // failed.
    struct Rig : PrefsRig {
        FeedServer server;

        Rig()
        {
            updater->setCurrentVersion(u"1.0"_qs);
            updater->setLimits(Updater::defaultMaxBytes, 500, Updater::defaultMaxRedirects);
        }
        void feedAt(const QString &path) { AppSettings::shared().setUpdateFeedURL(server.url(path).toString()); }

        // Clicks "Check for Updates…" in the preferences window and waits
        // for the result window to show `state`.
        QQuickWindow *checkFromPreferences(const QString &state)
        {
            QQuickWindow *w = openPreferences();
            if (!w)
                return nullptr;
            click(w, u"checkForUpdatesButton"_qs);
            if (!QTest::qWaitFor([&] { return updates->state() == state && updates->isShowing(); }, 10000))
                qWarning("no %s result, state %s", qPrintable(state), qPrintable(updates->state()));
            QQuickWindow *result = updates->window();
            if (result && !QTest::qWaitForWindowExposed(result))
                return nullptr;
            return result;
        }
    };

    static QString text(QQuickWindow *w, const QString &name)
    {
        QQuickItem *item = find(w, name);
        return item && item->isVisible() ? item->property("text").toString() : QString();
    }

    Browser m_browser;

private slots:
    void initTestCase()
    {
        PrefsRig::setUpCase();
        QDesktopServices::setUrlHandler(u"https"_qs, &m_browser, "open");
        QDesktopServices::setUrlHandler(u"http"_qs, &m_browser, "open");
    }
    void cleanupTestCase()
    {
        QDesktopServices::unsetUrlHandler(u"https"_qs);
        QDesktopServices::unsetUrlHandler(u"http"_qs);
    }
    void init()
    {
        TestSupport::clearSettings();
        Localizer::shared().setLanguage(AppLanguage::en);
        m_browser.opened.clear();
    }
    void cleanup()
    {
        TestSupport::resetSettings();
        QML_CLEAN();
    }

    void aNewerVersionOffersItsPage()
    {
        Rig rig;
        rig.server.serve(u"/appcast.xml"_qs, feed("1.1"));
        rig.feedAt(u"/appcast.xml"_qs);
        QQuickWindow *w = rig.checkFromPreferences(u"available"_qs);
        QVERIFY(w);
        QCOMPARE(text(w, u"updateHeading"_qs), u"A new version of sulkbox is available!"_qs);
        QCOMPARE(text(w, u"updateMessage"_qs), u"sulkbox 1.1 is ready to download.\nYou have 1.0."_qs);
        QVERIFY(shown(find(w, u"updateNotes"_qs)));
        QCOMPARE(rig.updates->notes(), u"• Calmer fans"_qs);

        click(w, u"releaseNotesButton"_qs);
        QCOMPARE(m_browser.opened, (QList<QUrl>{QUrl(u"https://example.org/sulkbox/notes"_qs)}));
        QVERIFY(w->isVisible());
        click(w, u"downloadButton"_qs);
        QCOMPARE(m_browser.opened.last(), QUrl(u"https://example.org/sulkbox/download"_qs));
        QTRY_VERIFY(!w->isVisible());
        // Only pages were opened: nothing was fetched besides the feed.
        QCOMPARE(rig.server.totalHits(), 1);
    }

    void upToDateAndFailuresInPlainWords_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("heading");
        QTest::addColumn<QString>("message");
        QTest::newRow("same version") << u"/same.xml"_qs << u"upToDate"_qs << u"You’re up to date!"_qs
                                      << u"sulkbox 1.0 is the newest version available."_qs;
        QTest::newRow("404") << u"/gone.xml"_qs << u"failed"_qs << u"Couldn’t check for updates"_qs
                             << u"The update server answered with an error (HTTP\u00a0404). Try again later."_qs;
        QTest::newRow("not a feed") << u"/page.html"_qs << u"failed"_qs << u"Couldn’t check for updates"_qs
                                    << u"The update server sent something that isn’t an update feed."_qs;
        QTest::newRow("no answer") << u"/silent.xml"_qs << u"failed"_qs << u"Couldn’t check for updates"_qs
                                   << u"The update server took too long to answer. Try again later."_qs;
        QTest::newRow("offline") << u"closed"_qs << u"failed"_qs << u"Couldn’t check for updates"_qs
                                 << u"The update server could not be reached. Check your internet connection and try again."_qs;
    }

    void upToDateAndFailuresInPlainWords()
    {
        QFETCH(QString, path);
        QFETCH(QString, state);
        QFETCH(QString, heading);
        QFETCH(QString, message);
        Rig rig;
        rig.server.serve(u"/same.xml"_qs, feed("1.0.0"));
        rig.server.serve(u"/page.html"_qs, "<html><body>Downloads</body></html>");
        rig.server.silent(u"/silent.xml"_qs);
        if (path == u"closed") {
            QTcpServer closed;
            QVERIFY(closed.listen(QHostAddress::LocalHost, 0));
            AppSettings::shared().setUpdateFeedURL(u"http://127.0.0.1:%1/x.xml"_qs.arg(closed.serverPort()));
        } else {
            rig.feedAt(path);
        }
        QQuickWindow *w = rig.checkFromPreferences(state);
        QVERIFY(w);
        QCOMPARE(text(w, u"updateHeading"_qs), heading);
        QCOMPARE(text(w, u"updateMessage"_qs), message);
        QVERIFY(!shown(find(w, u"downloadButton"_qs)));
        QVERIFY(!shown(find(w, u"releaseNotesButton"_qs)));
        QCOMPARE(text(w, u"dismissButton"_qs), u"OK"_qs);
        click(w, u"dismissButton"_qs);
        QTRY_VERIFY(!w->isVisible());
        QVERIFY(m_browser.opened.isEmpty());
    }

    void automaticChecksSpeakOnlyOfNewerVersions()
    {
        Rig rig;
        rig.server.serve(u"/same.xml"_qs, feed("1.0"));
        rig.server.serve(u"/newer.xml"_qs, feed("2.0"));
        rig.server.serve(u"/gone.xml"_qs, "", 404);
        AppSettings::shared().setAutomaticUpdateChecks(true);
        rig.updater->setStartDelay(0);
        rig.updater->start();
        // Up to date, then a failure: silence.
        for (const QString &path : {u"/same.xml"_qs, u"/gone.xml"_qs}) {
            rig.feedAt(path);
            rig.clock.advance(Updater::checkIntervalMs);
            QTRY_COMPARE(rig.server.hits(path), 1);
            QTRY_VERIFY(!rig.updater->checking());
            QTest::qWait(20);
            QVERIFY2(!rig.updates->isShowing(), qPrintable(path));
        }
        QVERIFY(!QmlHost::exists()); // nothing was even drawn
        // A newer version: the window comes up by itself.
        rig.feedAt(u"/newer.xml"_qs);
        rig.clock.advance(Updater::checkIntervalMs);
        QTRY_VERIFY(rig.updates->isShowing());
        QCOMPARE(rig.updates->state(), u"available"_qs);
        QCOMPARE(text(rig.updates->window(), u"updateHeading"_qs), u"A new version of sulkbox is available!"_qs);
        QVERIFY(m_browser.opened.isEmpty());
    }
};

SULK_TEST(UpdateWindowTest)
#include "UpdateWindowTest.moc"
