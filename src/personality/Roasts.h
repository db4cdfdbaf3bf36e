#pragma once
// Comments on one panel module when its header is tapped: gentle or savage,
// plain or notable (the reading is over the topic's threshold), sometimes
// quoting the reading through a "%@" placeholder.

#include "l10n/Localizer.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace RoastTopics {
Q_NAMESPACE
enum class RoastTopic { cpu, memory, network, disk, sensors, processes };
Q_ENUM_NS(RoastTopic)
} // namespace RoastTopics

using RoastTopic = RoastTopics::RoastTopic;

const QList<RoastTopic> &allRoastTopics();
QString roastTopicName(RoastTopic topic);

struct RoastReadings {
    struct Process {
        QString name;
        double cpu = 0; // percent of one core, as the process list gives it
        bool operator==(const Process &) const = default;
    };

    double cpu = 0;
    double memory = 0;
    double netDown = 0;
    double netUp = 0;
    double maxDiskUsage = 0;
    double temp = 0; // °C; 0 or below is unknown
    std::optional<Process> topProcess;

    bool operator==(const RoastReadings &) const = default;
};

class RoastEvent {
    Q_GADGET
    Q_PROPERTY(RoastTopic topic MEMBER topic)
    Q_PROPERTY(bool notable MEMBER notable)
    Q_PROPERTY(bool hasArg READ hasArg)
    Q_PROPERTY(QString arg READ argText)
    Q_PROPERTY(int seed MEMBER seed)
public:
    RoastTopic topic = RoastTopic::cpu;
    bool notable = false;
    std::optional<QString> arg;
    int seed = 0; // 0…9999, picks the line

    bool hasArg() const { return arg.has_value(); }
    QString argText() const { return arg.value_or(QString()); }

    bool operator==(const RoastEvent &) const = default;
};

namespace Roasts {

struct Key {
    RoastTopic topic = RoastTopic::cpu;
    bool notable = false;
    bool savage = false;

    bool operator==(const Key &) const = default;
    // "cpu/notable/savage", as in the content files.
    QString name() const;
};

inline size_t qHash(const Key &key, size_t seed = 0)
{
    return ::qHash((int(key.topic) << 2) | (int(key.notable) << 1) | int(key.savage), seed);
}

// All 24 keys.
const QList<Key> &allKeys();

using Pools = QHash<Key, QHash<AppLanguage, QStringList>>;

// The process-wide table, built from the content files on first use.
const Pools &pools();

// A new event for a tap on `topic`, with a fresh random seed.
RoastEvent event(RoastTopic topic, const RoastReadings &readings);

// The line to show for an event, in Savage Mode or not, in `lang`. The same
// arguments always give the same line.
QString line(RoastTopic topic, bool notable, bool savage, AppLanguage lang, const std::optional<QString> &arg,
             int seed);
QString line(const Pools &pools, RoastTopic topic, bool notable, bool savage, AppLanguage lang,
             const std::optional<QString> &arg, int seed);

} // namespace Roasts
