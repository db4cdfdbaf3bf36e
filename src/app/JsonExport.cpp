#include "app/JsonExport.h"

#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "ui/MenuBarLabel.h"

#include <QJsonArray>
#include <QMetaProperty>
#include <QSequentialIterable>

#include <cstring>

namespace JsonExport {

namespace {

QJsonObject gadget(const QMetaObject *meta, const void *object)
{
    QJsonObject out;
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty p = meta->property(i);
        out.insert(QString::fromLatin1(p.name()), value(p.readOnGadget(object)));
    }
    return out;
}

} // namespace

QJsonValue value(const QVariant &v)
{
    const QMetaType type = v.metaType();
    if (const QMetaObject *meta = type.metaObject(); meta && (type.flags() & QMetaType::IsGadget))
        return gadget(meta, v.constData());
    if (type.flags() & QMetaType::IsEnumeration) {
        if (const QMetaObject *scope = type.metaObject()) {
            const char *name = type.name();
            const char *shortName = std::strrchr(name, ':');
            const int index = scope->indexOfEnumerator(shortName ? shortName + 1 : name);
            if (index >= 0)
                return QString::fromLatin1(scope->enumerator(index).valueToKey(v.toInt()));
        }
        return v.toInt();
    }
    switch (type.id()) {
    case QMetaType::Bool: return v.toBool();
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double: return v.toDouble();
    case QMetaType::QString: return v.toString();
    default: break;
    }
    if (v.canConvert<QVariantList>() && type.id() != QMetaType::QString) {
        QJsonArray array;
        const QSequentialIterable items = v.value<QSequentialIterable>();
        for (const QVariant &item : items)
            array.append(value(item));
        return array;
    }
    return QJsonValue::fromVariant(v);
}

QJsonObject monitor(const SystemMonitor &monitor, const Mood &mood, const Localizer &loc)
{
    QJsonObject out;
    out.insert(u"cpuBrand"_qs, monitor.cpuBrand());
    for (const char *name : {"cpu", "memory", "network", "disk", "battery", "sensors", "gpu", "power",
                             "processes", "cpuHistory", "netDownHistory", "netUpHistory"})
        out.insert(QString::fromLatin1(name), value(monitor.property(name)));
    QJsonObject m = value(QVariant::fromValue(mood)).toObject();
    m.insert(u"phrase"_qs, MenuBarLabel::phrase(mood, loc));
    m.insert(u"reason"_qs, MenuBarLabel::reason(mood, loc));
    out.insert(u"mood"_qs, m);
    out.insert(u"language"_qs, languageRawText(loc.concrete()));
    return out;
}

} // namespace JsonExport
