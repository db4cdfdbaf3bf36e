#include "ui/tray/DBusMenu.h"

#include "l10n/Localizer.h"

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>

namespace {

// Menu labels mark mnemonics with '_'; ours have none, so a literal one is doubled.
QString menuLabel(const QString &text)
{
    return QString(text).replace(u'_', QStringLiteral("__"));
}

} // namespace

class DBusMenuAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    explicit DBusMenuAdaptor(DBusMenu *menu)
        : QDBusAbstractAdaptor(menu)
        , m_menu(menu)
    {
        connect(menu, &DBusMenu::layoutUpdated, this,
                [this](quint32 revision, int parent) { emit LayoutUpdated(revision, parent); });
    }

    uint version() const { return 3; }
    // All six interface languages run left to right.
    QString textDirection() const { return QStringLiteral("ltr"); }
    QString status() const { return QStringLiteral("normal"); }
    QStringList iconThemePath() const { return {}; }

public slots:
    uint GetLayout(int parentId, int recursionDepth, const QStringList &propertyNames, MenuLayoutNode &layout)
    {
        const auto node = m_menu->layout(parentId, recursionDepth, propertyNames);
        if (!node)
            m_menu->failCall(QStringLiteral("no menu item %1").arg(parentId));
        else
            layout = *node;
        return m_menu->revision();
    }

    QList<MenuItemProperties> GetGroupProperties(const QList<int> &ids, const QStringList &propertyNames)
    {
        QList<MenuItemProperties> result;
        for (int id : ids)
            if (const auto props = m_menu->properties(id, propertyNames))
                result.append({id, *props});
        return result;
    }

    QDBusVariant GetProperty(int id, const QString &name)
    {
        const auto props = m_menu->properties(id, {name});
        if (!props || !props->contains(name)) {
            m_menu->failCall(QStringLiteral("no property %1 on menu item %2").arg(name).arg(id));
            return QDBusVariant(QVariant(QString()));
        }
        return QDBusVariant(props->value(name));
    }

    void Event(int id, const QString &eventId, const QDBusVariant &data, uint timestamp)
    {
        Q_UNUSED(data);
        Q_UNUSED(timestamp);
        if (!m_menu->event(id, eventId))
            m_menu->failCall(QStringLiteral("no menu item %1").arg(id));
    }

    QList<int> EventGroup(const QList<MenuEvent> &events)
    {
        QList<int> unknown;
        for (const MenuEvent &e : events)
            if (!m_menu->event(e.id, e.eventId))
                unknown.append(e.id);
        return unknown;
    }

    bool AboutToShow(int id)
    {
        Q_UNUSED(id);
        return false; // the menu never changes when it is about to open
    }

    QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &idErrors)
    {
        idErrors.clear();
        for (int id : ids)
            if (!m_menu->properties(id, {}))
                idErrors.append(id);
        return {};
    }

signals:
    void ItemsPropertiesUpdated(const QList<MenuItemProperties> &updatedProps,
                                const QList<MenuItemPropertyNames> &removedProps);
    void LayoutUpdated(uint revision, int parent);
    void ItemActivationRequested(int id, uint timestamp);

private:
    DBusMenu *m_menu;
};

DBusMenu::DBusMenu(Localizer &loc, QObject *parent)
    : QObject(parent)
    , m_loc(loc)
{
    DBusTypes::registerAll();
    new DBusMenuAdaptor(this);
    connect(&loc, &Localizer::languageChanged, this, [this] {
        ++m_revision;
        emit layoutUpdated(m_revision, rootId);
    });
}

bool DBusMenu::exportOn(QDBusConnection bus, const QString &path)
{
    return bus.registerObject(path, this, QDBusConnection::ExportAdaptors);
}

QList<int> DBusMenu::childIds(int id) const
{
    if (id == rootId)
        return {int(Action::openPanel), int(Action::preferences), separatorId, int(Action::quit)};
    return {};
}

QVariantMap DBusMenu::allProperties(int id) const
{
    switch (id) {
    case rootId:
        return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    case int(Action::openPanel):
        return {{QStringLiteral("label"), menuLabel(m_loc.t(LocKey::openPanel))}};
    case int(Action::preferences):
        return {{QStringLiteral("label"), menuLabel(m_loc.t(LocKey::openPreferences))}};
    case separatorId:
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    case int(Action::quit):
        return {{QStringLiteral("label"), menuLabel(m_loc.t(LocKey::quit))}};
    }
    return {};
}

std::optional<QVariantMap> DBusMenu::properties(int id, const QStringList &names) const
{
    if (id != rootId && !childIds(rootId).contains(id))
        return std::nullopt;
    QVariantMap all = allProperties(id);
    if (names.isEmpty())
        return all;
    QVariantMap picked;
    for (const QString &name : names)
        if (all.contains(name))
            picked.insert(name, all.value(name));
    return picked;
}

std::optional<MenuLayoutNode> DBusMenu::layout(int parentId, int depth, const QStringList &names) const
{
    const auto props = properties(parentId, names);
    if (!props)
        return std::nullopt;
    MenuLayoutNode node{parentId, *props, {}};
    if (depth != 0)
        for (int child : childIds(parentId))
            if (const auto sub = layout(child, depth < 0 ? -1 : depth - 1, names))
                node.children.append(*sub);
    return node;
}

bool DBusMenu::event(int id, const QString &eventId)
{
    if (!properties(id, {}))
        return false;
    if (eventId == u"clicked" && id != rootId && id != separatorId)
        emit triggered(Action(id));
    return true;
}

void DBusMenu::failCall(const QString &message)
{
    if (calledFromDBus())
        sendErrorReply(QDBusError::InvalidArgs, message);
}

#include "DBusMenu.moc"
