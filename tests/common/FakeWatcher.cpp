#include "common/FakeWatcher.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusVariant>

namespace {

int serial = 0;

} // namespace

class FakeWatcherAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hostRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)

public:
    explicit FakeWatcherAdaptor(FakeWatcher *watcher)
        : QDBusAbstractAdaptor(watcher)
        , m_watcher(watcher)
    {
    }

    QStringList items() const { return m_watcher->registrations; }
    bool hostRegistered() const { return m_watcher->hostRegistered; }
    int protocolVersion() const { return 0; }

public slots:
    // An item names itself by bus name, or by object path on the calling
    // connection; watchers list the latter as "<sender><path>".
    void RegisterStatusNotifierItem(const QString &service)
    {
        const QString item = service.startsWith(u'/') ? m_watcher->callerName() + service : service;
        m_watcher->registerItem(item);
        emit StatusNotifierItemRegistered(item);
    }
    void RegisterStatusNotifierHost(const QString &service) { Q_UNUSED(service); }

signals:
    void StatusNotifierItemRegistered(const QString &service);
    void StatusNotifierItemUnregistered(const QString &service);
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    FakeWatcher *m_watcher;
};

FakeWatcher::FakeWatcher(bool withHost)
    : hostRegistered(withHost)
    , m_name(QStringLiteral("fake-watcher-%1").arg(++serial))
    , m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_name))
{
    new FakeWatcherAdaptor(this);
    if (!m_bus.isConnected())
        return;
    m_bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this, QDBusConnection::ExportAdaptors);
    m_owned = m_bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
}

FakeWatcher::~FakeWatcher()
{
    m_bus.unregisterObject(QStringLiteral("/StatusNotifierWatcher"));
    QDBusConnection::disconnectFromBus(m_name);
}

QString FakeWatcher::callerName() const
{
    return calledFromDBus() ? message().service() : QString();
}

void FakeWatcher::registerItem(const QString &service)
{
    registrations.append(service);
    emit itemRegistered(service);
}

void FakeWatcher::follow(const QString &service)
{
    const QString item = QStringLiteral("/StatusNotifierItem");
    const QString sni = QStringLiteral("org.kde.StatusNotifierItem");
    m_bus.connect(service, item, sni, QStringLiteral("XAyatanaNewLabel"), this, SLOT(onLabel(QString, QString)));
    m_bus.connect(service, item, sni, QStringLiteral("NewIcon"), this, SLOT(onNewIcon()));
    m_bus.connect(service, item, sni, QStringLiteral("NewTitle"), this, SLOT(onNewTitle()));
    m_bus.connect(service, item, sni, QStringLiteral("NewToolTip"), this, SLOT(onNewToolTip()));
    m_bus.connect(service, QStringLiteral("/MenuBar"), QStringLiteral("com.canonical.dbusmenu"),
                  QStringLiteral("LayoutUpdated"), this, SLOT(onLayoutUpdated(uint, int)));
}

QDBusMessage FakeWatcher::call(const QString &service, const QString &path, const QString &interface,
                               const QString &method, const QVariantList &args)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(args);
    return m_bus.call(message, QDBus::BlockWithGui, 5000);
}

QVariant FakeWatcher::property(const QString &service, const QString &path, const QString &interface,
                               const QString &name)
{
    const QDBusMessage reply = call(service, path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                    QStringLiteral("Get"), {interface, name});
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    return reply.arguments().first().value<QDBusVariant>().variant();
}

#include "FakeWatcher.moc"
