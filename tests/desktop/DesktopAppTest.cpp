// The desktop process on a private session bus: the tray item opens and
// closes the panel window, the model hears of each opening and closing once,
// a second start opens the running one's panel, and the process copes
// without a tray host or without a bus at all.

#include "common/FakeSamplers.h"
#include "common/FakeWatcher.h"
#include "common/QmlWarnings.h"
#include "common/TestSupport.h"

#include "app/DesktopLauncher.h"
#include "app/desktop/DesktopApp.h"
#include "app/desktop/PreferencesMigration.h"
#include "app/desktop/QuickFace.h"
#include "app/desktop/SingleInstance.h"
#include "model/SystemMonitor.h"
#include "settings/Settings.h"
#include "ui/common/QmlHost.h"
#include "ui/tray/StatusNotifierItem.h"

#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <memory>

namespace {

DesktopApp::Options options(ManualScheduler &scheduler, int hostWaitMs = 60000)
{
    DesktopApp::Options o;
    auto samplers = std::make_shared<FakeSamplers>();
    samplers->cpu.total = 0.2;
    samplers->memory.pressure = 0.5;
    o.samplers = samplers;
    o.scheduler = &scheduler;
    o.hostWaitMs = hostWaitMs;
    o.setLoginItem = [](bool) {};
    return o;
}

// What a started process said on standard error, line by line.
QStringList errorLines(QProcess &p)
{
    return QString::fromUtf8(p.readAllStandardError()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

class DesktopAppTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_runtime;
    QTemporaryDir m_empty;

private slots:
    void initTestCase()
    {
        QmlWarnings::catchAll();
        // A session has its runtime folder; the started processes expect one.
        QVERIFY(m_runtime.isValid());
        QFile::setPermissions(m_runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime.path()));
    }
    void init()
    {
        TestSupport::resetSettings();
        Settings::set(Settings::Key::refreshInterval, 10.0);
    }
    void cleanup()
    {
        TestSupport::resetSettings();
        QML_CLEAN();
    }

    // The old settings come over before the model reads them.
    void startUpMigratesBeforeTheModelStarts()
    {
        TestSupport::clearSettings();
        TestSupport::writeFile(PreferencesMigration::legacyFilePath(), "refreshInterval=5\nlaunchAtLogin=true\n");
        ManualScheduler scheduler;
        DesktopApp::Options o = options(scheduler);
        QList<bool> login;
        o.setLoginItem = [&](bool on) { login.append(on); };
        DesktopApp app(o);
        QFile::remove(PreferencesMigration::legacyFilePath());
        QCOMPARE(app.monitor().timerIntervalMs(), 5000);
        QCOMPARE(login, QList<bool>{true});
        QVERIFY(!app.quickFaceLoaded());
    }

    void activateOpensAndClosesThePanel()
    {
        FakeWatcher watcher;
        ManualScheduler scheduler;
        DesktopApp app(options(scheduler));
        QTRY_VERIFY(app.item().hostPresent());
        QSignalSpy visible(&app.monitor(), &SystemMonitor::panelVisibleChanged);
        // Nothing of Qt Quick is loaded until the panel first opens.
        QVERIFY(!app.quickFaceLoaded());
        QVERIFY(!QmlHost::exists());

        const QString item = app.item().serviceName();
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        const QPoint click(screen.center().x(), screen.top() + 10);
        watcher.callItem(item, u"Activate"_qs, {click.x(), click.y()});
        QTRY_VERIFY(app.quickFaceLoaded() && app.quickFace()->panelOpen());
        QuickFace &face = *app.quickFace();
        QCOMPARE(visible.size(), 1);
        QVERIFY(app.monitor().panelVisible());
        QQmlEngine *engine = &QmlHost::engine();

        QWindow *window = face.panelWindow();
        QVERIFY(window->isVisible());
        QCOMPARE(window->width(), 300);
        QVERIFY(window->height() > 50);
        // Centred under the click (the placement itself has its own table).
        QCOMPARE(window->x(), click.x() - 150);
        QVERIFY(window->y() > click.y());
        const Qt::WindowFlags flags = window->flags();
        QVERIFY(flags.testFlag(Qt::FramelessWindowHint));
        QVERIFY(flags.testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(flags & Qt::WindowType_Mask, Qt::Tool); // a tool window, not a popup

        // A second click closes it.
        watcher.callItem(item, u"Activate"_qs, {click.x(), click.y()});
        QTRY_VERIFY(!face.panelOpen());
        QCOMPARE(visible.size(), 2);
        QVERIFY(!app.monitor().panelVisible());
        QVERIFY(!window->isVisible());

        // Reopened: the same engine; Escape closes it.
        watcher.callItem(item, u"Activate"_qs, {click.x(), click.y()});
        QTRY_VERIFY(face.panelOpen());
        QCOMPARE(&QmlHost::engine(), engine);
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(!face.panelOpen());
        QCOMPARE(visible.size(), 4);
    }

    void losingFocusClosesAndTheClickThatTookItDoesNotReopen()
    {
        FakeWatcher watcher;
        ManualScheduler scheduler;
        DesktopApp app(options(scheduler));
        QTRY_VERIFY(app.item().hostPresent());
        QSignalSpy visible(&app.monitor(), &SystemMonitor::panelVisibleChanged);
        QuickFace &face = *app.quickFace();

        // Closed once with Escape first: the window it hid may still hold
        // the focus when it opens again.
        face.togglePanel(QPoint(400, 10));
        QVERIFY(QTest::qWaitForWindowActive(face.panelWindow()));
        QTest::keyClick(face.panelWindow(), Qt::Key_Escape);
        QVERIFY(!face.panelOpen());
        face.togglePanel(QPoint(400, 10));
        QVERIFY(face.panelOpen());
        QVERIFY(QTest::qWaitForWindowActive(face.panelWindow()));

        // A click elsewhere: another window takes the focus.
        QWindow other;
        other.resize(100, 100);
        other.show();
        other.requestActivate();
        QTRY_VERIFY(!face.panelOpen());
        QCOMPARE(visible.size(), 4);
        // That click was on the item itself: its activation follows at once
        // and must not open the panel again.
        face.togglePanel(QPoint(400, 10));
        QVERIFY(!face.panelOpen());
        // A later click opens it.
        face.togglePanel(QPoint(400, 10));
        QVERIFY(face.panelOpen());
        QCOMPARE(visible.size(), 5);
    }

    // "Preferences…" opens the one preferences window, asked twice, and
    // leaves the panel closed; "Open panel" drops the panel down at the pointer.
    void menuOpensPreferencesAndThePanel()
    {
        FakeWatcher watcher;
        ManualScheduler scheduler;
        DesktopApp app(options(scheduler));
        QTRY_COMPARE(watcher.registrations.size(), 1);
        auto prefsWindows = [] {
            int n = 0;
            for (QWindow *w : QGuiApplication::topLevelWindows())
                n += w->isVisible() && w->width() == 380 && w->height() == 540;
            return n;
        };
        for (int i = 0; i < 2; ++i) {
            watcher.menuEvent(app.item().serviceName(), int(DBusMenu::Action::preferences));
            QTRY_COMPARE(prefsWindows(), 1);
        }
        QVERIFY(!app.quickFace()->panelOpen());

        watcher.menuEvent(app.item().serviceName(), int(DBusMenu::Action::openPanel));
        QTRY_VERIFY(app.quickFace()->panelOpen());
        QVERIFY(!app.quickFace()->panelIsWindow());
        QVERIFY(app.monitor().panelVisible());
    }

    void withoutTrayHostThePanelIsAnOrdinaryWindow()
    {
        ManualScheduler scheduler;
        DesktopApp app(options(scheduler, 100));
        QSignalSpy missing(&app, &DesktopApp::trayHostMissing);
        QTRY_COMPARE(missing.size(), 1);
        QVERIFY(app.withoutTrayHost());
        QuickFace &face = *app.quickFace();
        QVERIFY(face.panelOpen());
        QVERIFY(face.panelIsWindow());
        QWindow *window = face.panelWindow();
        QCOMPARE(window->flags() & Qt::WindowType_Mask, Qt::Window);
        QVERIFY(!window->flags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(app.monitor().panelVisible());

        // Closing it from its title bar tells the model once.
        QSignalSpy visible(&app.monitor(), &SystemMonitor::panelVisibleChanged);
        QSignalSpy closedByUser(&face, &QuickFace::panelWindowClosedByUser);
        window->close();
        QTRY_VERIFY(!face.panelOpen());
        QCOMPARE(visible.size(), 1);
        QCOMPARE(closedByUser.size(), 1);

        // A host that turns up later gets the item; the next opening drops down.
        FakeWatcher watcher;
        QTRY_VERIFY(app.item().hostPresent());
        QVERIFY(!app.withoutTrayHost());
        app.openPanel();
        QVERIFY(face.panelOpen());
        QVERIFY(!face.panelIsWindow());
    }

    // `sulkbox` started while this process runs the desktop face.
    void secondStartOpensTheRunningPanel()
    {
        SingleInstance instance(QDBusConnection::sessionBus());
        QCOMPARE(instance.claim(), SingleInstance::Claim::owner);
        FakeWatcher watcher;
        ManualScheduler scheduler;
        DesktopApp app(options(scheduler));
        connect(&instance, &SingleInstance::openPanelRequested, &app, &DesktopApp::openPanel);

        QProcess second;
        second.start(QStringLiteral(SULKBOX_EXE), {});
        QVERIFY(second.waitForStarted());
        // Keep serving the bus while it asks.
        QTRY_VERIFY_WITH_TIMEOUT(second.state() == QProcess::NotRunning, 20000);
        QCOMPARE(second.exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(errorLines(second), QStringList());
        QTRY_VERIFY(app.quickFaceLoaded() && app.quickFace()->panelOpen());
        QVERIFY(app.monitor().panelVisible());
    }

    void withoutTrayHostOneLineSaysSo()
    {
        // `sulkbox` execs the desktop face: same process, told where it came from.
        QProcess p;
        p.start(QStringLiteral(SULKBOX_EXE), {});
        QVERIFY(p.waitForStarted());
        QByteArray said;
        QTRY_VERIFY_WITH_TIMEOUT((said += p.readAllStandardError()).contains('\n')
                                     || p.state() == QProcess::NotRunning,
                                 20000);
        const QString exe = QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(p.processId()));
        QFile environ(QStringLiteral("/proc/%1/environ").arg(p.processId()));
        QVERIFY(environ.open(QIODevice::ReadOnly));
        const QList<QByteArray> env = environ.readAll().split('\0');
        p.terminate();
        QVERIFY(p.waitForFinished(10000));
        QCOMPARE(exe, QFileInfo(QStringLiteral(SULKBOX_DESKTOP_EXE)).canonicalFilePath());
        QVERIFY(env.contains("SULKBOX_LAUNCHER=" + QFileInfo(QStringLiteral(SULKBOX_EXE)).canonicalFilePath().toLocal8Bit()));

        const QStringList lines = QString::fromUtf8(said + p.readAllStandardError()).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.first().startsWith(u"sulkbox: no tray host"_qs));
        QVERIFY(lines.first().contains(u"AppIndicator"_qs));
    }

    void withoutSessionBusOrDisplayOneLineAndFailure_data()
    {
        QTest::addColumn<QStringList>("set");
        QTest::addColumn<QStringList>("unset");
        QTest::addColumn<QString>("says");
        QTest::newRow("bus gone") << QStringList{u"DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent/bus"_qs}
                                  << QStringList{} << u"no D-Bus session bus"_qs;
        // Nothing to fall back on either: no bus in the runtime folder, no X
        // display to start one for.
        QTest::newRow("no bus") << QStringList{u"XDG_RUNTIME_DIR="_qs + m_empty.path()}
                                << QStringList{u"DBUS_SESSION_BUS_ADDRESS"_qs, u"DISPLAY"_qs}
                                << u"no D-Bus session bus"_qs;
        QTest::newRow("no display") << QStringList{}
                                    << QStringList{u"QT_QPA_PLATFORM"_qs, u"DISPLAY"_qs, u"WAYLAND_DISPLAY"_qs}
                                    << u"no graphical session"_qs;
    }

    void withoutSessionBusOrDisplayOneLineAndFailure()
    {
        QFETCH(QStringList, set);
        QFETCH(QStringList, unset);
        QFETCH(QString, says);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const QString &name : unset)
            env.remove(name);
        for (const QString &pair : set)
            env.insert(pair.section(u'=', 0, 0), pair.section(u'=', 1));
        QProcess p;
        p.setProcessEnvironment(env);
        p.start(QStringLiteral(SULKBOX_EXE), {});
        QVERIFY(p.waitForFinished(20000));
        QCOMPARE(p.exitStatus(), QProcess::NormalExit);
        QCOMPARE(p.exitCode(), 1);
        const QStringList lines = errorLines(p);
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.first().contains(says), qPrintable(lines.first()));
    }

    void findsTheDesktopFaceNextToItOrInLibexec()
    {
        QTemporaryDir root;
        const auto executable = [&](const QString &relative) {
            TestSupport::writeFile(root.filePath(relative), "#!/bin/sh\n");
            QFile(root.filePath(relative)).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        };
        const QString launcher = root.filePath(u"bin/sulkbox"_qs);
        QCOMPARE(DesktopLauncher::find(launcher), QString());

        // Not executable: not the desktop face.
        TestSupport::writeFile(root.filePath(u"bin/sulkbox-desktop"_qs), "data");
        QCOMPARE(DesktopLauncher::find(launcher), QString());

        executable(u"libexec/sulkbox/sulkbox-desktop"_qs);
        QCOMPARE(DesktopLauncher::find(launcher), root.filePath(u"libexec/sulkbox/sulkbox-desktop"_qs));
        // The build tree's: right next to it, first.
        executable(u"bin/sulkbox-desktop"_qs);
        QCOMPARE(DesktopLauncher::find(launcher), root.filePath(u"bin/sulkbox-desktop"_qs));
    }
};

SULK_TEST(DesktopAppTest)
#include "DesktopAppTest.moc"
