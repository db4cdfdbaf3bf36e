// sulkbox-desktop: the desktop face (the tray item and its panel). `sulkbox`
// without a command execs this.

#include "app/desktop/DesktopApp.h"
#include "app/desktop/SingleInstance.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QGuiApplication>

#include <cstdio>

namespace {

void say(const char *line)
{
    std::fprintf(stderr, "sulkbox: %s\n", line);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("sulkbox"));
    QCoreApplication::setOrganizationName(QStringLiteral("sulkbox"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SULKBOX_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("sulkbox"));

    // Qt's own event dispatcher: the idle ticks stay small.
    const bool ownDispatcher = qEnvironmentVariableIsEmpty("QT_NO_GLIB");
    if (ownDispatcher)
        qputenv("QT_NO_GLIB", "1");
    const bool x11 = !qEnvironmentVariableIsEmpty("DISPLAY");
    const bool wayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        if (!x11 && !wayland) {
            say("no graphical session (DISPLAY and WAYLAND_DISPLAY are unset); "
                "'sulkbox status' and 'sulkbox bar' work without one");
            return 1;
        }
        // The drop-down places itself at the tray item, which Wayland does
        // not allow a client: under Wayland it goes through Xwayland.
        if (x11)
            qputenv("QT_QPA_PLATFORM", "xcb");
    }

    QGuiApplication app(argc, argv);
    app.setQuitOnLastWindowClosed(false);
    if (ownDispatcher)
        qunsetenv("QT_NO_GLIB"); // not for the programs started from here

    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        std::fprintf(stderr,
                     "sulkbox: no D-Bus session bus (%s); the desktop face needs one for its tray item, "
                     "while 'sulkbox status' and 'sulkbox bar' work without it\n",
                     qPrintable(bus.lastError().message().isEmpty() ? QStringLiteral("not reachable")
                                                                    : bus.lastError().message()));
        return 1;
    }

    SingleInstance instance(bus);
    switch (instance.claim()) {
    case SingleInstance::Claim::owner:
        break;
    case SingleInstance::Claim::alreadyRunning: {
        QString error;
        if (instance.askToOpenPanel(&error))
            return 0;
        std::fprintf(stderr, "sulkbox: sulkbox is already running but did not answer: %s\n", qPrintable(error));
        return 1;
    }
    case SingleInstance::Claim::failed:
        say("cannot take the name io.github.sulkbox on the session bus");
        return 1;
    }

    DesktopApp desktop({});
    QObject::connect(&instance, &SingleInstance::openPanelRequested, &desktop, &DesktopApp::openPanel);
    return app.exec();
}
