#include "app/Settings.h"

#include <QHash>

namespace Settings {

namespace {

QHash<int, QVariant> &overrides()
{
    static QHash<int, QVariant> map;
    return map;
}

} // namespace

const QList<Entry> &all()
{
    static const QList<Entry> table = {
        {Key::refreshInterval, "refreshInterval", Type::Double, 1.0},
        {Key::appLanguage, "appLanguage", Type::Text, QStringLiteral("system")},
        {Key::useFahrenheit, "useFahrenheit", Type::Flag, false},
        {Key::moodEnabled, "moodEnabled", Type::Flag, true},
        {Key::petName, "petName", Type::Text, QString()},
        {Key::savageMode, "savageMode", Type::Flag, false},
        {Key::launchAtLogin, "launchAtLogin", Type::Flag, false},
        {Key::showCPU, "showCPU", Type::Flag, true},
        {Key::showMemory, "showMemory", Type::Flag, true},
        {Key::showNetwork, "showNetwork", Type::Flag, true},
        {Key::showDisk, "showDisk", Type::Flag, true},
        {Key::showSensors, "showSensors", Type::Flag, true},
        {Key::showProcesses, "showProcesses", Type::Flag, true},
        {Key::migratedFromLegacyBundleID, "migratedFromLegacyBundleID", Type::Flag, false},
    };
    return table;
}

const Entry &entry(Key key)
{
    return all().at(static_cast<int>(key));
}

QSettings &store()
{
    // One instance for the process; created on the main thread at first use.
    static QSettings settings(QStringLiteral("sulkbox"), QStringLiteral("sulkbox"));
    return settings;
}

QVariant raw(Key key)
{
    const auto o = overrides().constFind(static_cast<int>(key));
    if (o != overrides().constEnd())
        return *o;
    const QString name = QString::fromLatin1(entry(key).name);
    return store().contains(name) ? store().value(name) : QVariant();
}

bool contains(Key key)
{
    return raw(key).isValid();
}

bool flag(Key key)
{
    const QVariant v = raw(key);
    const bool fallback = entry(key).defaultValue.toBool();
    if (!v.isValid())
        return fallback;
    if (v.typeId() == QMetaType::Bool)
        return v.toBool();
    // QSettings hands ini values back as text.
    const QString s = v.toString().trimmed().toLower();
    if (s == u"true" || s == u"1" || s == u"yes")
        return true;
    if (s == u"false" || s == u"0" || s == u"no")
        return false;
    return fallback;
}

double number(Key key)
{
    const QVariant v = raw(key);
    if (!v.isValid())
        return entry(key).defaultValue.toDouble();
    bool ok = false;
    const double d = v.toString().trimmed().toDouble(&ok);
    if (ok)
        return d;
    const double direct = v.toDouble(&ok);
    return ok ? direct : entry(key).defaultValue.toDouble();
}

QString text(Key key)
{
    const QVariant v = raw(key);
    if (!v.isValid() || !v.canConvert<QString>())
        return entry(key).defaultValue.toString();
    return v.toString();
}

void set(Key key, const QVariant &value)
{
    overrides().remove(static_cast<int>(key));
    store().setValue(QString::fromLatin1(entry(key).name), value);
}

void remove(Key key)
{
    overrides().remove(static_cast<int>(key));
    store().remove(QString::fromLatin1(entry(key).name));
}

void overrideForThisRun(Key key, const QVariant &value)
{
    overrides().insert(static_cast<int>(key), value);
}

void clearOverrides()
{
    overrides().clear();
}

} // namespace Settings
