#include "app/desktop/SingleInstance.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

class DesktopServiceAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "io.github.sulkbox.Desktop")
public:
    explicit DesktopServiceAdaptor(SingleInstance *owner)
        : QDBusAbstractAdaptor(owner)
        , m_owner(owner)
    {
    }

public slots:
    void OpenPanel() { emit m_owner->openPanelRequested(); }

private:
    SingleInstance *m_owner;
};

SingleInstance::SingleInstance(QDBusConnection bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
{
    new DesktopServiceAdaptor(this);
}

SingleInstance::~SingleInstance()
{
    if (m_owner)
        m_bus.unregisterService(serviceName);
    if (m_exported)
        m_bus.unregisterObject(objectPath);
}

SingleInstance::Claim SingleInstance::claim()
{
    if (!m_bus.isConnected())
        return Claim::failed;
    // The object first, so a second start that sees the name can call it.
    if (!m_exported)
        m_exported = m_bus.registerObject(objectPath, this, QDBusConnection::ExportAdaptors);
    if (!m_exported)
        return Claim::failed;
    const auto reply = m_bus.interface()->registerService(serviceName, QDBusConnectionInterface::DontQueueService,
                                                          QDBusConnectionInterface::DontAllowReplacement);
    if (reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered) {
        m_owner = true;
        return Claim::owner;
    }
    return m_bus.interface()->isServiceRegistered(serviceName).value() ? Claim::alreadyRunning : Claim::failed;
}

bool SingleInstance::askToOpenPanel(QString *error)
{
    const QDBusMessage call = QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName,
                                                             QStringLiteral("OpenPanel"));
    const QDBusMessage reply = m_bus.call(call, QDBus::Block, 5000);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return true;
    if (error)
        *error = reply.errorMessage();
    return false;
}

#include "SingleInstance.moc"
