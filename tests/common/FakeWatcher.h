#pragma once
// A tray host for tests: owns org.kde.StatusNotifierWatcher on a connection
// of its own to the session bus (as another process would), with or without
// a host registered, and records what the items it knows send. Destroying
// it drops the connection, so the name goes away as when a shell exits.

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariant>

class FakeWatcher : public QObject, protected QDBusContext {
    Q_OBJECT
public:
    explicit FakeWatcher(bool withHost = true);
    ~FakeWatcher() override;

    bool owned() const { return m_owned; }
    QDBusConnection bus() const { return m_bus; }

    // Items that registered, in order (a service may come more than once):
    // a bus name, or "<unique name></path>" for an item that gave its path.
    QStringList registrations;
    bool hostRegistered = true;

    // Starts recording the signals of the item with this bus name.
    void follow(const QString &service);
    QList<QStringList> labels; // XAyatanaNewLabel(label, guide)
    int newIcons = 0;
    int newTitles = 0;
    int newToolTips = 0;
    QList<uint> layoutRevisions; // the menu's LayoutUpdated

    // Calls a method of an object in this process through the bus (the
    // event loop keeps running meanwhile, so the object can answer).
    QDBusMessage call(const QString &service, const QString &path, const QString &interface,
                      const QString &method, const QVariantList &args = {});
    QVariant property(const QString &service, const QString &path, const QString &interface,
                      const QString &name);

    // The watcher's side of the protocol.
    void registerItem(const QString &service);
    // The unique bus name of the connection calling now.
    QString callerName() const;

signals:
    void itemRegistered(const QString &service);

private slots:
    void onLabel(const QString &label, const QString &guide) { labels.append({label, guide}); }
    void onNewIcon() { ++newIcons; }
    void onNewTitle() { ++newTitles; }
    void onNewToolTip() { ++newToolTips; }
    void onLayoutUpdated(uint revision, int parent)
    {
        Q_UNUSED(parent);
        layoutRevisions.append(revision);
    }

private:
    QString m_name;
    QDBusConnection m_bus;
    bool m_owned = false;
};
