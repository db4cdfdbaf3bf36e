#include "ui/tray/DBusTypes.h"

#include <QDBusMetaType>

QDBusArgument &operator<<(QDBusArgument &arg, const SniPixmap &p)
{
    arg.beginStructure();
    arg << p.width << p.height << p.argb;
    arg.endStructure();
    return arg;
}

const QDBusArgument &operator>>(const QDBusArgument &arg, SniPixmap &p)
{
    arg.beginStructure();
    arg >> p.width >> p.height >> p.argb;
    arg.endStructure();
    return arg;
}

QDBusArgument &operator<<(QDBusArgument &arg, const SniToolTip &t)
{
    arg.beginStructure();
    arg << t.iconName << t.pixmaps << t.title << t.text;
    arg.endStructure();
    return arg;
}

const QDBusArgument &operator>>(const QDBusArgument &arg, SniToolTip &t)
{
    arg.beginStructure();
    arg >> t.iconName >> t.pixmaps >> t.title >> t.text;
    arg.endStructure();
    return arg;
}

QDBusArgument &operator<<(QDBusArgument &arg, const MenuLayoutNode &n)
{
    arg.beginStructure();
    arg << n.id << n.properties;
    arg.beginArray(qMetaTypeId<QDBusVariant>());
    for (const MenuLayoutNode &child : n.children)
        arg << QDBusVariant(QVariant::fromValue(child));
    arg.endArray();
    arg.endStructure();
    return arg;
}

const QDBusArgument &operator>>(const QDBusArgument &arg, MenuLayoutNode &n)
{
    arg.beginStructure();
    arg >> n.id >> n.properties;
    n.children.clear();
    arg.beginArray();
    while (!arg.atEnd()) {
        QDBusVariant v;
        arg >> v;
        const QVariant inner = v.variant();
        if (inner.canConvert<QDBusArgument>())
            n.children.append(qdbus_cast<MenuLayoutNode>(inner.value<QDBusArgument>()));
        else if (inner.canConvert<MenuLayoutNode>())
            n.children.append(inner.value<MenuLayoutNode>());
    }
    arg.endArray();
    arg.endStructure();
    return arg;
}

QDBusArgument &operator<<(QDBusArgument &arg, const MenuItemProperties &p)
{
    arg.beginStructure();
    arg << p.id << p.properties;
    arg.endStructure();
    return arg;
}

const QDBusArgument &operator>>(const QDBusArgument &arg, MenuItemProperties &p)
{
    arg.beginStructure();
    arg >> p.id >> p.properties;
    arg.endStructure();
    return arg;
}

QDBusArgument &operator<<(QDBusArgument &arg, const MenuItemPropertyNames &p)
{
    arg.beginStructure();
    arg << p.id << p.names;
    arg.endStructure();
    return arg;
}

const QDBusArgument &operator>>(const QDBusArgument &arg, MenuItemPropertyNames &p)
{
    arg.beginStructure();
    arg >> p.id >> p.names;
    arg.endStructure();
    return arg;
}

QDBusArgument &operator<<(QDBusArgument &arg, const MenuEvent &e)
{
    arg.beginStructure();
    arg << e.id << e.eventId << e.data << e.timestamp;
    arg.endStructure();
    return arg;
}

const QDBusArgument &operator>>(const QDBusArgument &arg, MenuEvent &e)
{
    arg.beginStructure();
    arg >> e.id >> e.eventId >> e.data >> e.timestamp;
    arg.endStructure();
    return arg;
}

namespace DBusTypes {

void registerAll()
{
    static const bool done = [] {
        qDBusRegisterMetaType<SniPixmap>();
        qDBusRegisterMetaType<QList<SniPixmap>>();
        qDBusRegisterMetaType<SniToolTip>();
        qDBusRegisterMetaType<MenuLayoutNode>();
        qDBusRegisterMetaType<MenuItemProperties>();
        qDBusRegisterMetaType<QList<MenuItemProperties>>();
        qDBusRegisterMetaType<MenuItemPropertyNames>();
        qDBusRegisterMetaType<QList<MenuItemPropertyNames>>();
        qDBusRegisterMetaType<MenuEvent>();
        qDBusRegisterMetaType<QList<MenuEvent>>();
        qDBusRegisterMetaType<QList<qint32>>();
        return true;
    }();
    Q_UNUSED(done);
}

} // namespace DBusTypes
