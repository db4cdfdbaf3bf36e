#pragma once
// Turns the current readings into the machine's mood: a fixed list of rules
// tried in priority order, plus three pieces of memory (the launch time,
// the last busy moment and the hot latch with its cool-down period).

#include "personality/Mood.h"

#include <QDateTime>

#include <functional>
#include <optional>

struct MoodInputs {
    double cpu = 0;       // fraction, mean of the newest up to 5 samples
    double memory = 0;    // pressure, fraction
    double temp = 0;      // °C; 0 or below is unknown
    double swap = 0;      // bytes
    double netDown = 0;   // bytes/s
    double netUp = 0;     // bytes/s
    double disk = 0;      // used share of the startup disk
    int hotCores = 0;     // logical cores at 0.8 or more
    int cores = 0;        // logical cores
    bool hasBattery = false;
    double battery = 0;   // charge, fraction
    bool charging = false; // on external power

    bool operator==(const MoodInputs &) const = default;
};

class MoodEngine {
public:
    using Clock = std::function<QDateTime()>;

    // `wallClock` is read for the holiday lookup (the real time, not the
    // evaluation time); by default the system clock.
    explicit MoodEngine(const QDateTime &launch, Clock wallClock = {});

    // Updates the engine's memory from the inputs and returns the mood for
    // `now`.
    Mood mood(const MoodInputs &in, const QDateTime &now);

    // The core count at which all cores count as blazing: 3/4 of them,
    // truncated. Only meaningful for 4 or more cores.
    static int coreThreshold(int cores);

    QDateTime launch() const { return QDateTime::fromMSecsSinceEpoch(m_launchMs); }
    QDateTime lastActive() const { return QDateTime::fromMSecsSinceEpoch(m_lastActiveMs); }
    std::optional<QDateTime> cooldownUntil() const
    {
        return m_cooldownUntilMs ? std::optional(QDateTime::fromMSecsSinceEpoch(*m_cooldownUntilMs)) : std::nullopt;
    }
    bool wasHot() const { return m_wasHot; }

    static constexpr qint64 greetingMs = 8000;
    static constexpr qint64 cooldownMs = 6000;
    static constexpr qint64 nightIdleMs = 120000;
    static constexpr qint64 longIdleMs = 600000;

private:
    Mood idleMood(const QDateTime &now, qint64 nowMs) const;

    // Instants as milliseconds since the epoch: comparing them costs nothing,
    // where local date-times would each need a time-zone conversion.
    qint64 m_launchMs;
    qint64 m_lastActiveMs;
    std::optional<qint64> m_cooldownUntilMs;
    bool m_wasHot = false;
    Clock m_wallClock;
};
