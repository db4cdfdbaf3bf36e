// Pictures of the preferences window and the update result window in every
// interface language, light and dark, for people to look at:
//   prefs_gallery [output folder]      (default: ./gallery)
// writes prefs-<language>-<light|dark>.png (top of the window),
// prefs-<language>-<light|dark>-end.png (scrolled to the end),
// prefs-en-<light|dark>-languages.png (the language picker open) and
// prefs-update-<state>-<language>-<light|dark>.png. The user's settings are
// never touched: everything runs in a temporary configuration folder.

#include "../FeedServer.h"
#include "../QuickDriver.h"

#include "common/FakeSamplers.h"

#include "app/desktop/Updater.h"
#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "ui/common/DesktopActions.h"
#include "ui/common/QmlHost.h"
#include "ui/prefs/ColorScheme.h"
#include "ui/prefs/PreferencesWindow.h"
#include "ui/prefs/UpdateWindow.h"

#include <QDir>
#include <QGuiApplication>
#include <QNetworkProxy>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

namespace {

bool save(QQuickWindow *window, const QString &path)
{
    QTest::qWait(60); // let bindings, layouts and fonts settle
    const QImage image = window->grabWindow();
    if (image.isNull() || !image.save(path)) {
        std::fprintf(stderr, "could not write %s\n", qPrintable(path));
        return false;
    }
    std::printf("%s\n", qPrintable(path));
    return true;
}

QByteArray sampleFeed()
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
           "<rss version=\"2.0\" xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel>"
           "<item><title>sulkbox 1.1</title><link>https://example.org/sulkbox/1.1</link>"
           "<sparkle:releaseNotesLink>https://example.org/sulkbox/1.1/notes</sparkle:releaseNotesLink>"
           "<description><![CDATA[<ul><li>Roasts for the GPU card</li><li>Sensors on more laptops</li>"
           "<li>The panel opens faster</li><li>Fixes for Thai line breaks</li></ul>]]></description>"
           "<enclosure url=\"https://example.org/sulkbox-1.1.tar.gz\" length=\"1\" type=\"application/gzip\""
           " sparkle:version=\"110\" sparkle:shortVersionString=\"1.1\"/></item>"
           "</channel></rss>";
}

} // namespace

int main(int argc, char **argv)
{
    QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, config.path());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication app(argc, argv);
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);

    const QString out = app.arguments().size() > 1 ? app.arguments().at(1) : QStringLiteral("gallery");
    QDir().mkpath(out);

    ManualScheduler clock;
    auto samplers = std::make_shared<FakeSamplers>();
    SystemMonitor monitor(samplers, clock);
    DesktopActions actions;
    QmlHost::configure(&monitor, &AppSettings::shared(), &Localizer::shared(), &actions);

    FeedServer server;
    server.serve(QStringLiteral("/appcast.xml"), sampleFeed());
    Updater updater(clock);
    updater.setCurrentVersion(QStringLiteral("1.0"));
    UpdateWindow updates(updater);
    PreferencesWindow prefs(monitor, updates);

    bool ok = true;
    for (bool dark : {false, true}) {
        ColorScheme::shared().force(dark);
        const QString scheme = dark ? QStringLiteral("dark") : QStringLiteral("light");
        for (AppLanguage lang : concreteLanguages()) {
            Localizer::shared().setLanguage(lang);
            const QString name = languageRawText(lang);
            // No feed: the About row says where updates come from.
            AppSettings::shared().setUpdateFeedURL(QString());
            prefs.open();
            QQuickWindow *w = prefs.window();
            if (!w)
                return 1;
            QMetaObject::invokeMethod(w, "scrollToTop");
            ok &= save(w, QStringLiteral("%1/prefs-%2-%3.png").arg(out, name, scheme));
            if (lang == AppLanguage::en) {
                // The language picker open: every language in its own script.
                QObject *picker = QuickDriver::find(w, QStringLiteral("languagePicker"));
                QObject *popup = picker ? picker->property("popup").value<QObject *>() : nullptr;
                if (popup) {
                    QMetaObject::invokeMethod(popup, "open");
                    ok &= save(w, QStringLiteral("%1/prefs-%2-%3-languages.png").arg(out, name, scheme));
                    QMetaObject::invokeMethod(popup, "close");
                }
            }
            QMetaObject::invokeMethod(w, "scrollToEnd");
            ok &= save(w, QStringLiteral("%1/prefs-%2-%3-end.png").arg(out, name, scheme));

            // With a feed: each result of the update window.
            AppSettings::shared().setUpdateFeedURL(server.url(QStringLiteral("/appcast.xml")).toString());
            for (const QString &state : {QStringLiteral("available"), QStringLiteral("upToDate"),
                                         QStringLiteral("failed")}) {
                updater.setCurrentVersion(state == u"upToDate" ? QStringLiteral("1.1") : QStringLiteral("1.0"));
                if (state == u"failed")
                    AppSettings::shared().setUpdateFeedURL(server.url(QStringLiteral("/gone.xml")).toString());
                updates.checkNow();
                ok &= QTest::qWaitFor([&] { return updates.state() == state; }, 5000);
                ok &= save(updates.window(), QStringLiteral("%1/prefs-update-%2-%3-%4.png").arg(out, state, name, scheme));
                updates.close();
            }
            w->close();
        }
    }
    return ok ? 0 : 1;
}
