#include "personality/Quips.h"

#include "personality/Content.h"

#include <QRandomGenerator>

namespace Quips {

const Pools &pools()
{
    static const Pools table = [] {
        Pools built;
        const auto &files = PersonalityContent::files();
        for (MoodKind kind : allMoodKinds()) {
            QHash<AppLanguage, QStringList> byLanguage;
            const QString name = moodKindName(kind);
            for (auto it = files.begin(); it != files.end(); ++it) {
                const auto list = it.value().quips.constFind(name);
                if (list != it.value().quips.constEnd())
                    byLanguage.insert(it.key(), *list);
            }
            built.insert(kind, byLanguage);
        }
        return built;
    }();
    return table;
}

QStringList lines(const Pools &pools, MoodKind kind, AppLanguage lang)
{
    auto entry = pools.constFind(kind);
    if (entry == pools.constEnd())
        entry = pools.constFind(MoodKind::calm);
    if (entry == pools.constEnd())
        return {};
    const auto list = entry->constFind(lang);
    if (list != entry->constEnd())
        return *list;
    return entry->value(AppLanguage::en);
}

QString random(const Pools &pools, MoodKind kind, AppLanguage lang)
{
    const QStringList candidates = lines(pools, kind, lang);
    if (candidates.isEmpty())
        return QStringLiteral("\u2026");
    return candidates.at(int(QRandomGenerator::global()->bounded(quint32(candidates.size()))));
}

QString random(MoodKind kind, AppLanguage lang)
{
    return random(pools(), kind, lang);
}

} // namespace Quips
