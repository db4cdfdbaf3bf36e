#pragma once
// The desktop actions QML can ask for, as the context property `app`. The
// desktop process connects the signals to the real thing (the preferences
// window, the system monitor, quitting); tests watch them with QSignalSpy.

#include <QObject>

class DesktopActions : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    Q_INVOKABLE void openPreferences() { emit preferencesRequested(); }
    Q_INVOKABLE void openSystemMonitor() { emit systemMonitorRequested(); }
    Q_INVOKABLE void quit() { emit quitRequested(); }

signals:
    void preferencesRequested();
    void systemMonitorRequested();
    void quitRequested();
};
