#pragma once
// The tray item: an org.kde.StatusNotifierItem on the session bus under the
// name org.kde.StatusNotifierItem-<pid>-1, object /StatusNotifierItem, with a
// com.canonical.dbusmenu menu at /MenuBar. It registers (by its object
// path) with the org.kde.StatusNotifierWatcher now and every time a watcher
// comes back.
//
// Hosts that draw labels show XAyatanaLabel (the mood, or the two loads);
// the others show the icon (the shown mood's emoji, or the two loads drawn
// small) with the phrase, reason and loads in the title and tooltip. Each
// change goes out as its signal only when the text or image really changed.

#include "ui/tray/DBusMenu.h"
#include "ui/tray/DBusTypes.h"
#include "ui/tray/TrayContent.h"

#include <QDateTime>
#include <QDBusConnection>
#include <QObject>
#include <QPoint>

class AppSettings;
class Localizer;
class QDBusServiceWatcher;
class SystemMonitor;

class StatusNotifierItem : public QObject {
    Q_OBJECT
public:
    static inline const QString objectPath = QStringLiteral("/StatusNotifierItem");
    static inline const QString menuPath = QStringLiteral("/MenuBar");
    static inline const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
    static inline const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

    StatusNotifierItem(SystemMonitor &monitor, Localizer &loc, AppSettings &settings, QDBusConnection bus,
                       QObject *parent = nullptr);
    ~StatusNotifierItem() override;

    // Takes the item's bus name, exports the item and the menu, and starts
    // following the watcher. False when the bus refused any of it.
    bool start();

    QString serviceName() const { return m_serviceName; }
    DBusMenu &menu() { return *m_menu; }

    // What the item shows on the bus now.
    const TrayContent::Texts &shown() const { return m_shown; }
    QString title() const { return m_shown.title(); }
    SniToolTip toolTip() const;
    const QList<SniPixmap> &iconPixmaps() const { return m_pixmaps; }

    // The host draws the label itself (GNOME Shell's AppIndicator
    // extension): the icon is then left blank, as the label carries the
    // emoji. Other hosts get the emoji, or the loads, as the icon.
    bool hostDrawsLabels() const { return m_hostDrawsLabels; }
    void setHostDrawsLabels(bool draws);
    // Whether the watcher process of this name is such a host.
    static bool drawsLabels(const QString &processName);

    // A watcher is on the bus and it reports a host that shows items.
    bool hostPresent() const { return m_hostPresent; }
    bool watcherPresent() const { return m_watcherPresent; }

    // Title and tooltip carry the loads; a change of the loads alone goes
    // out at most this often, so a quiet mood does not wake the host every
    // tick. Mood, reason and language changes go out at once.
    void setLoadTextIntervalMs(int ms) { m_loadTextIntervalMs = ms; }
    static constexpr int defaultLoadTextIntervalMs = 5000;

    // The token the host handed over for the next window to take focus.
    QString activationToken() const { return m_activationToken; }

    // Called through the bus.
    void activate(QPoint at) { emit activated(at); }
    void secondaryActivate(QPoint at) { emit secondaryActivated(at); }
    void setActivationToken(const QString &token) { m_activationToken = token; }

public slots:
    // Recomputes what the item shows and announces what changed.
    void refresh();

signals:
    void activated(QPoint at);
    void secondaryActivated(QPoint at);
    void hostPresentChanged(bool present);
    // The watcher accepted the item (again).
    void registered();

    // Relayed to the bus by the adaptor.
    void labelChanged(const QString &label, const QString &guide);
    void titleChanged();
    void toolTipChanged();
    void iconChanged();

private slots:
    void queryHost();

private:
    void watcherAppeared();
    void watcherGone();
    void setHostPresent(bool present);
    bool updatePixmaps();
    QString watcherProcessName() const;

    SystemMonitor &m_monitor;
    Localizer &m_loc;
    AppSettings &m_settings;
    QDBusConnection m_bus;
    QString m_serviceName;
    DBusMenu *m_menu = nullptr;
    QDBusServiceWatcher *m_watcher = nullptr;

    TrayContent::Texts m_shown;
    QList<SniPixmap> m_pixmaps;
    QString m_pixmapsKey;
    bool m_hostDrawsLabels = false;
    QDateTime m_textsPushedAt;
    int m_loadTextIntervalMs = defaultLoadTextIntervalMs;
    bool m_started = false;
    bool m_watcherPresent = false;
    bool m_hostPresent = false;
    QString m_activationToken;
};
