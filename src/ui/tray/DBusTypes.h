#pragma once
// The structured values the tray item and its menu put on the bus, with their
// D-Bus marshalling. Lists are always spelled QList<T>: QtDBus matches signal
// and property signatures by type name, and a typedef silently drops them.

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariantMap>

// One image of an icon, signature (iiay): width, height and ARGB32 pixels in
// network byte order.
struct SniPixmap {
    qint32 width = 0;
    qint32 height = 0;
    QByteArray argb;
};

// The tooltip, signature (sa(iiay)ss): icon name, icon images, title, text.
struct SniToolTip {
    QString iconName;
    QList<SniPixmap> pixmaps;
    QString title;
    QString text;
};

// One node of a menu layout, signature (ia{sv}av): the children are variants
// that each hold another node.
struct MenuLayoutNode {
    qint32 id = 0;
    QVariantMap properties;
    QList<MenuLayoutNode> children;
};

// The properties of one menu item, signature (ia{sv}).
struct MenuItemProperties {
    qint32 id = 0;
    QVariantMap properties;
};

// Names of properties removed from one item, signature (ias).
struct MenuItemPropertyNames {
    qint32 id = 0;
    QStringList names;
};

// One event of a group, signature (isvu).
struct MenuEvent {
    qint32 id = 0;
    QString eventId;
    QDBusVariant data;
    quint32 timestamp = 0;
};

Q_DECLARE_METATYPE(SniPixmap)
Q_DECLARE_METATYPE(SniToolTip)
Q_DECLARE_METATYPE(MenuLayoutNode)
Q_DECLARE_METATYPE(MenuItemProperties)
Q_DECLARE_METATYPE(MenuItemPropertyNames)
Q_DECLARE_METATYPE(MenuEvent)

QDBusArgument &operator<<(QDBusArgument &arg, const SniPixmap &p);
const QDBusArgument &operator>>(const QDBusArgument &arg, SniPixmap &p);
QDBusArgument &operator<<(QDBusArgument &arg, const SniToolTip &t);
const QDBusArgument &operator>>(const QDBusArgument &arg, SniToolTip &t);
QDBusArgument &operator<<(QDBusArgument &arg, const MenuLayoutNode &n);
const QDBusArgument &operator>>(const QDBusArgument &arg, MenuLayoutNode &n);
QDBusArgument &operator<<(QDBusArgument &arg, const MenuItemProperties &p);
const QDBusArgument &operator>>(const QDBusArgument &arg, MenuItemProperties &p);
QDBusArgument &operator<<(QDBusArgument &arg, const MenuItemPropertyNames &p);
const QDBusArgument &operator>>(const QDBusArgument &arg, MenuItemPropertyNames &p);
QDBusArgument &operator<<(QDBusArgument &arg, const MenuEvent &e);
const QDBusArgument &operator>>(const QDBusArgument &arg, MenuEvent &e);

namespace DBusTypes {
// Registers every type above with QtDBus; safe to call more than once.
void registerAll();
} // namespace DBusTypes
