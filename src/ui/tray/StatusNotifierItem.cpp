#include "ui/tray/StatusNotifierItem.h"

#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "settings/AppSettings.h"

#include <QCoreApplication>
#include <QFile>
#include <QDBusAbstractAdaptor>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QtEndian>

namespace {

const QString watcherInterface = QStringLiteral("org.kde.StatusNotifierWatcher");

QList<SniPixmap> toPixmaps(const QList<QImage> &images)
{
    QList<SniPixmap> pixmaps;
    for (const QImage &source : images) {
        const QImage image = source.convertToFormat(QImage::Format_ARGB32);
        SniPixmap p{image.width(), image.height(), QByteArray()};
        p.argb.resize(qsizetype(image.width()) * image.height() * 4);
        auto *out = reinterpret_cast<quint32 *>(p.argb.data());
        for (int y = 0; y < image.height(); ++y) {
            const auto *line = reinterpret_cast<const quint32 *>(image.constScanLine(y));
            for (int x = 0; x < image.width(); ++x)
                *out++ = qToBigEndian(line[x]);
        }
        pixmaps.append(p);
    }
    return pixmaps;
}

// Tooltips may be drawn as markup by some hosts.
QString plain(const QString &text)
{
    return text.toHtmlEscaped();
}

} // namespace

class StatusNotifierItemAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconThemePath READ empty)
    Q_PROPERTY(QString IconName READ empty)
    Q_PROPERTY(QList<SniPixmap> IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName READ empty)
    Q_PROPERTY(QList<SniPixmap> OverlayIconPixmap READ noPixmaps)
    Q_PROPERTY(QString AttentionIconName READ empty)
    Q_PROPERTY(QList<SniPixmap> AttentionIconPixmap READ noPixmaps)
    Q_PROPERTY(QString AttentionMovieName READ empty)
    Q_PROPERTY(SniToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)
    Q_PROPERTY(QString XAyatanaLabel READ label)
    Q_PROPERTY(QString XAyatanaLabelGuide READ labelGuide)
    Q_PROPERTY(uint XAyatanaOrderingIndex READ orderingIndex)

public:
    explicit StatusNotifierItemAdaptor(StatusNotifierItem *item)
        : QDBusAbstractAdaptor(item)
        , m_item(item)
    {
        connect(item, &StatusNotifierItem::labelChanged, this, &StatusNotifierItemAdaptor::XAyatanaNewLabel);
        connect(item, &StatusNotifierItem::titleChanged, this, &StatusNotifierItemAdaptor::NewTitle);
        connect(item, &StatusNotifierItem::toolTipChanged, this, &StatusNotifierItemAdaptor::NewToolTip);
        connect(item, &StatusNotifierItem::iconChanged, this, &StatusNotifierItemAdaptor::NewIcon);
    }

    QString category() const { return QStringLiteral("ApplicationStatus"); }
    QString id() const { return QStringLiteral("sulkbox"); }
    QString title() const { return m_item->title(); }
    QString status() const { return QStringLiteral("Active"); }
    int windowId() const { return 0; }
    QString empty() const { return {}; }
    QList<SniPixmap> iconPixmap() const { return m_item->iconPixmaps(); }
    QList<SniPixmap> noPixmaps() const { return {}; }
    SniToolTip toolTip() const { return m_item->toolTip(); }
    bool itemIsMenu() const { return false; }
    QDBusObjectPath menu() const { return QDBusObjectPath(StatusNotifierItem::menuPath); }
    QString label() const { return m_item->shown().label; }
    QString labelGuide() const { return m_item->shown().guide; }
    uint orderingIndex() const { return 0; }

public slots:
    void Activate(int x, int y) { m_item->activate(QPoint(x, y)); }
    void SecondaryActivate(int x, int y) { m_item->secondaryActivate(QPoint(x, y)); }
    // The menu is the host's to draw from the Menu object.
    void ContextMenu(int x, int y)
    {
        Q_UNUSED(x);
        Q_UNUSED(y);
    }
    void Scroll(int delta, const QString &orientation)
    {
        Q_UNUSED(delta);
        Q_UNUSED(orientation);
    }
    void ProvideXdgActivationToken(const QString &token) { m_item->setActivationToken(token); }

signals:
    void NewTitle();
    void NewIcon();
    void NewAttentionIcon();
    void NewOverlayIcon();
    void NewToolTip();
    void NewStatus(const QString &status);
    void XAyatanaNewLabel(const QString &label, const QString &guide);

private:
    StatusNotifierItem *m_item;
};

StatusNotifierItem::StatusNotifierItem(SystemMonitor &monitor, Localizer &loc, AppSettings &settings,
                                       QDBusConnection bus, QObject *parent)
    : QObject(parent)
    , m_monitor(monitor)
    , m_loc(loc)
    , m_settings(settings)
    , m_bus(bus)
    , m_serviceName(QStringLiteral("org.kde.StatusNotifierItem-%1-1").arg(QCoreApplication::applicationPid()))
{
    DBusTypes::registerAll();
    new StatusNotifierItemAdaptor(this);
    m_menu = new DBusMenu(loc, this);

    m_shown = TrayContent::texts(m_monitor, m_loc, m_settings.moodEnabled());
    updatePixmaps();
    m_textsPushedAt = m_monitor.scheduler().now();

    connect(&m_monitor, &SystemMonitor::ticked, this, &StatusNotifierItem::refresh);
    connect(&m_monitor, &SystemMonitor::moodChanged, this, &StatusNotifierItem::refresh);
    connect(&m_monitor, &SystemMonitor::reactionChanged, this, &StatusNotifierItem::refresh);
    connect(&m_settings, &AppSettings::moodEnabledChanged, this, &StatusNotifierItem::refresh);
    connect(&m_loc, &Localizer::languageChanged, this, &StatusNotifierItem::refresh);
}

StatusNotifierItem::~StatusNotifierItem()
{
    if (m_started) {
        m_bus.unregisterObject(objectPath);
        m_bus.unregisterObject(menuPath);
        m_bus.unregisterService(m_serviceName);
    }
}

bool StatusNotifierItem::start()
{
    if (m_started)
        return true;
    if (!m_bus.isConnected())
        return false;
    if (!m_bus.registerObject(objectPath, this, QDBusConnection::ExportAdaptors))
        return false;
    if (!m_menu->exportOn(m_bus, menuPath)) {
        m_bus.unregisterObject(objectPath);
        return false;
    }
    if (!m_bus.registerService(m_serviceName)) {
        m_bus.unregisterObject(objectPath);
        m_bus.unregisterObject(menuPath);
        return false;
    }
    m_started = true;

    m_bus.connect(watcherService, watcherPath, watcherInterface, QStringLiteral("StatusNotifierHostRegistered"), this,
                  SLOT(queryHost()));
    m_bus.connect(watcherService, watcherPath, watcherInterface, QStringLiteral("StatusNotifierHostUnregistered"),
                  this, SLOT(queryHost()));

    m_watcher = new QDBusServiceWatcher(watcherService, m_bus,
                                        QDBusServiceWatcher::WatchForRegistration
                                            | QDBusServiceWatcher::WatchForUnregistration,
                                        this);
    connect(m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &StatusNotifierItem::watcherAppeared);
    connect(m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, &StatusNotifierItem::watcherGone);
    if (m_bus.interface()->isServiceRegistered(watcherService))
        watcherAppeared();
    return true;
}

void StatusNotifierItem::watcherAppeared()
{
    m_watcherPresent = true;
    setHostDrawsLabels(drawsLabels(watcherProcessName()));
    QDBusMessage call = QDBusMessage::createMethodCall(watcherService, watcherPath, watcherInterface,
                                                       QStringLiteral("RegisterStatusNotifierItem"));
    // Registered by object path (the watcher takes the caller's connection
    // with it), as every watcher accepts. Registered by bus name instead,
    // GNOME's AppIndicator extension follows the name with a second watch
    // whose first report can land while it sets the item up, and then drops
    // the item from the bar a second later.
    call << objectPath;
    auto *pending = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *w) {
        w->deleteLater();
        if (!w->isError())
            emit registered();
    });
    queryHost();
}

void StatusNotifierItem::watcherGone()
{
    m_watcherPresent = false;
    setHostPresent(false);
}

void StatusNotifierItem::queryHost()
{
    QDBusMessage get = QDBusMessage::createMethodCall(watcherService, watcherPath,
                                                      QStringLiteral("org.freedesktop.DBus.Properties"),
                                                      QStringLiteral("Get"));
    get << watcherInterface << QStringLiteral("IsStatusNotifierHostRegistered");
    auto *pending = new QDBusPendingCallWatcher(m_bus.asyncCall(get), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *w) {
        w->deleteLater();
        QDBusPendingReply<QDBusVariant> reply = *w;
        // A watcher that cannot say is taken at its word that it serves a host.
        const bool present = reply.isError() ? m_watcherPresent : reply.value().variant().toBool();
        setHostPresent(present && m_watcherPresent);
    });
}

void StatusNotifierItem::setHostPresent(bool present)
{
    if (present == m_hostPresent)
        return;
    m_hostPresent = present;
    emit hostPresentChanged(present);
}

SniToolTip StatusNotifierItem::toolTip() const
{
    // No images: hosts fetch the tooltip again on every change, and the icon
    // beside it already shows the same.
    return {QString(), {}, plain(m_shown.toolTipTitle()), plain(m_shown.toolTipText())};
}

void StatusNotifierItem::refresh()
{
    const TrayContent::Texts next = TrayContent::texts(m_monitor, m_loc, m_settings.moodEnabled());

    if (next.label != m_shown.label || next.guide != m_shown.guide) {
        m_shown.label = next.label;
        m_shown.guide = next.guide;
        emit labelChanged(m_shown.label, m_shown.guide);
    }

    if (next.iconKey != m_shown.iconKey) {
        m_shown.iconKey = next.iconKey;
        if (updatePixmaps())
            emit iconChanged();
    }

    const QDateTime now = m_monitor.scheduler().now();
    const bool moodDiffers = next.moodLine != m_shown.moodLine || next.reasonLine != m_shown.reasonLine;
    const bool loadsDue = next.loadsLine != m_shown.loadsLine
        && m_textsPushedAt.msecsTo(now) >= m_loadTextIntervalMs;
    if (moodDiffers || loadsDue) {
        m_shown.moodLine = next.moodLine;
        m_shown.reasonLine = next.reasonLine;
        m_shown.loadsLine = next.loadsLine;
        m_textsPushedAt = now;
        emit titleChanged();
        emit toolTipChanged();
    }
}

bool StatusNotifierItem::updatePixmaps()
{
    // A host that draws the label gets a blank icon: the label holds the
    // emoji already, and without any icon GNOME's extension draws "•••".
    const QString key = m_hostDrawsLabels ? QString() : m_shown.iconKey;
    if (key == m_pixmapsKey && !m_pixmaps.isEmpty())
        return false;
    m_pixmapsKey = key;
    m_pixmaps = key.isEmpty() ? QList<SniPixmap>{SniPixmap{1, 1, QByteArray(4, 0)}}
                              : toPixmaps(TrayContent::icon(key, TrayContent::iconSizes()));
    return true;
}

bool StatusNotifierItem::drawsLabels(const QString &processName)
{
    // GNOME Shell's AppIndicator extension draws XAyatanaLabel beside the icon.
    return processName == u"gnome-shell";
}

void StatusNotifierItem::setHostDrawsLabels(bool draws)
{
    if (draws == m_hostDrawsLabels)
        return;
    m_hostDrawsLabels = draws;
    if (updatePixmaps())
        emit iconChanged();
}

QString StatusNotifierItem::watcherProcessName() const
{
    const QString owner = m_bus.interface()->serviceOwner(watcherService).value();
    if (owner.isEmpty())
        return {};
    const uint pid = m_bus.interface()->servicePid(owner).value();
    if (pid == 0)
        return {};
    QFile comm(QStringLiteral("/proc/%1/comm").arg(pid));
    if (!comm.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(comm.read(64)).trimmed();
}

#include "StatusNotifierItem.moc"
