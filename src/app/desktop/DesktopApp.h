#pragma once
// The desktop face: one process with the model, the tray item and the panel
// window, living until Quit. Start-up runs in this order: the settings
// migration, the model (which samples and starts its timer), the update
// controller, the localizer, then the tray item. The Qt Quick half (the
// panel and preferences windows) is loaded on its first opening.

#include "model/Samplers.h"

#include <QDBusConnection>
#include <QObject>
#include <QUrl>

#include <functional>
#include <memory>

class AppSettings;
class Localizer;
class QuickFace;
class Scheduler;
class StatusNotifierItem;
class SystemMonitor;

class DesktopApp : public QObject {
    Q_OBJECT
public:
    struct Options {
        // The live machine when empty.
        std::shared_ptr<Samplers> samplers;
        // The wall clock when null.
        Scheduler *scheduler = nullptr;
        QDBusConnection bus = QDBusConnection::sessionBus();
        // How long to wait for a tray host before the panel opens as an
        // ordinary window (a host that starts with the session may come a
        // moment after us).
        int hostWaitMs = 4000;
        // What the migration calls when the old settings asked for launch at
        // login; registerLoginItem when empty.
        std::function<void(bool)> setLoginItem;
        // The panel's content.
        QUrl panelSource{QStringLiteral("qrc:/sulkbox/qml/Panel.qml")};
    };

    explicit DesktopApp(Options options, QObject *parent = nullptr);
    ~DesktopApp() override;

    // Opens the panel: at the pointer, or as an ordinary window while no
    // tray host runs (the menu's "Open panel", a second start).
    void openPanel();
    // The panel's "Quit" and the menu's: ends the process.
    void quit();

    // --- What the menu and the views ask for --------------------------------
    // The preferences window (the menu's "Preferences…", the panel's button).
    void openPreferences();
    // The desktop's system monitor (the panel's footer).
    void openSystemMonitor();
    // Launch at login on or off: LoginItem::set(on).
    static void registerLoginItem(bool on);
    // Makes sure the update controller runs from start-up: Updater::shared().
    static void startUpdateController();

    SystemMonitor &monitor() { return *m_monitor; }
    StatusNotifierItem &item() { return *m_item; }
    // The Qt Quick half, loaded now if it is not yet; null when it cannot be.
    QuickFace *quickFace();
    // Whether it has been loaded.
    bool quickFaceLoaded() const { return m_face != nullptr; }
    // No tray host answered at start-up; the panel is an ordinary window.
    bool withoutTrayHost() const { return m_withoutHost; }

signals:
    // Emitted once when the start-up wait for a tray host ran out.
    void trayHostMissing();

private:
    void checkForHost();
    void toggle(QPoint at);

    Options m_options;
    std::unique_ptr<SystemMonitor> m_monitor;
    Localizer *m_loc = nullptr;
    AppSettings *m_settings = nullptr;
    QuickFace *m_face = nullptr;
    StatusNotifierItem *m_item = nullptr;
    bool m_withoutHost = false;
    bool m_faceFailed = false;
};
