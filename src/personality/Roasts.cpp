#include "personality/Roasts.h"

#include "l10n/Fmt.h"
#include "personality/Content.h"

#include <QMetaEnum>
#include <QRandomGenerator>

#include <algorithm>

const QList<RoastTopic> &allRoastTopics()
{
    static const QList<RoastTopic> topics = {RoastTopic::cpu,     RoastTopic::memory,  RoastTopic::network,
                                             RoastTopic::disk,    RoastTopic::sensors, RoastTopic::processes};
    return topics;
}

QString roastTopicName(RoastTopic topic)
{
    return QString::fromLatin1(QMetaEnum::fromType<RoastTopic>().valueToKey(int(topic)));
}

namespace Roasts {

namespace {

const QString placeholder = QStringLiteral("%@");

} // namespace

QString Key::name() const
{
    return roastTopicName(topic) + (notable ? QStringLiteral("/notable") : QStringLiteral("/plain"))
        + (savage ? QStringLiteral("/savage") : QStringLiteral("/gentle"));
}

const QList<Key> &allKeys()
{
    static const QList<Key> keys = [] {
        QList<Key> list;
        for (RoastTopic topic : allRoastTopics())
            for (bool notable : {false, true})
                for (bool savage : {false, true})
                    list.append(Key{topic, notable, savage});
        return list;
    }();
    return keys;
}

const Pools &pools()
{
    static const Pools table = [] {
        Pools built;
        const auto &files = PersonalityContent::files();
        for (const Key &key : allKeys()) {
            QHash<AppLanguage, QStringList> byLanguage;
            const QString name = key.name();
            for (auto it = files.begin(); it != files.end(); ++it) {
                const auto list = it.value().roasts.constFind(name);
                if (list != it.value().roasts.constEnd())
                    byLanguage.insert(it.key(), *list);
            }
            built.insert(key, byLanguage);
        }
        return built;
    }();
    return table;
}

RoastEvent event(RoastTopic topic, const RoastReadings &r)
{
    RoastEvent ev;
    ev.topic = topic;
    switch (topic) {
    case RoastTopic::cpu:
        ev.notable = r.cpu >= 0.55;
        ev.arg = Fmt::percent(r.cpu, 0);
        break;
    case RoastTopic::memory:
        ev.notable = r.memory >= 0.75;
        ev.arg = Fmt::percent(r.memory, 0);
        break;
    case RoastTopic::network:
        ev.notable = r.netDown + r.netUp >= 3'000'000.0;
        ev.arg = Fmt::rate(std::max(r.netDown, r.netUp));
        break;
    case RoastTopic::disk:
        ev.notable = r.maxDiskUsage >= 0.85;
        ev.arg = Fmt::percent(r.maxDiskUsage, 0);
        break;
    case RoastTopic::sensors:
        ev.notable = r.temp >= 70;
        if (r.temp > 0)
            ev.arg = Fmt::temp(r.temp);
        break;
    case RoastTopic::processes:
        if (r.topProcess && r.topProcess->cpu >= 1.0) {
            ev.arg = r.topProcess->name;
            ev.notable = r.topProcess->cpu >= 50.0;
        }
        break;
    }
    ev.seed = int(QRandomGenerator::global()->bounded(10000));
    return ev;
}

QString line(const Pools &pools, RoastTopic topic, bool notable, bool savage, AppLanguage lang,
             const std::optional<QString> &arg, int seed)
{
    static const QHash<AppLanguage, QStringList> none;
    const auto entry = pools.constFind(Key{topic, notable, savage});
    const auto &byLanguage = entry != pools.constEnd() ? *entry : none;

    QStringList lines;
    if (auto it = byLanguage.constFind(lang); it != byLanguage.constEnd())
        lines = *it;
    else if (auto en = byLanguage.constFind(AppLanguage::en); en != byLanguage.constEnd())
        lines = *en;
    else
        lines = {QStringLiteral("\u2026")};
    if (lines.isEmpty())
        lines = {QStringLiteral("\u2026")};

    QStringList candidates = lines;
    if (!arg) {
        candidates.removeIf([](const QString &l) { return l.contains(placeholder); });
        if (candidates.isEmpty())
            candidates = lines;
    }
    const qsizetype count = candidates.size();
    const qsizetype index = seed >= 0 ? seed % count : (count - (-qint64(seed)) % count) % count;
    const QString &chosen = candidates.at(index);
    if (arg && chosen.contains(placeholder))
        return Localizer::fill(chosen, {*arg});
    return chosen;
}

QString line(RoastTopic topic, bool notable, bool savage, AppLanguage lang, const std::optional<QString> &arg,
             int seed)
{
    return line(pools(), topic, notable, savage, lang, arg, seed);
}

} // namespace Roasts
