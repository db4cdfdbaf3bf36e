#pragma once
// The tray item's menu, exported as a com.canonical.dbusmenu object: "Open
// panel" first (hosts such as GNOME's open the menu on a click and activate
// the item only on a double click), then "Preferences…" and "Quit", in the
// interface language. The host draws it; choices come back as `triggered`.

#include "ui/tray/DBusTypes.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>

class Localizer;

class DBusMenu : public QObject, protected QDBusContext {
    Q_OBJECT
public:
    enum class Action { openPanel = 1, preferences = 2, quit = 4 };
    Q_ENUM(Action)

    static constexpr int rootId = 0;
    static constexpr int separatorId = 3;

    explicit DBusMenu(Localizer &loc, QObject *parent = nullptr);

    // Exports the menu at `path` on `bus`.
    bool exportOn(QDBusConnection bus, const QString &path);

    quint32 revision() const { return m_revision; }

    // The layout below `parentId`, `depth` levels deep (-1: all), with the
    // named properties (none named: all). Unknown ids give nothing.
    std::optional<MenuLayoutNode> layout(int parentId, int depth, const QStringList &names) const;
    std::optional<QVariantMap> properties(int id, const QStringList &names) const;

    // Called through the bus: a "clicked" event on an item.
    bool event(int id, const QString &eventId);
    using QObject::event;

    // For the adaptor: reports a D-Bus error for the current call.
    void failCall(const QString &message);

signals:
    void triggered(DBusMenu::Action action);
    void layoutUpdated(quint32 revision, int parent);

private:
    QList<int> childIds(int id) const;
    QVariantMap allProperties(int id) const;

    Localizer &m_loc;
    quint32 m_revision = 1;
};
