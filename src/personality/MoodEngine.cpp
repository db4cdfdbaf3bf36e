#include "personality/MoodEngine.h"

#include "personality/Holidays.h"

MoodEngine::MoodEngine(const QDateTime &launch, Clock wallClock)
    : m_launchMs(launch.toMSecsSinceEpoch())
    , m_lastActiveMs(m_launchMs)
    , m_wallClock(wallClock ? std::move(wallClock) : Clock([] { return QDateTime::currentDateTimeUtc(); }))
{
}

int MoodEngine::coreThreshold(int cores)
{
    return int(double(cores) * 0.75);
}

Mood MoodEngine::mood(const MoodInputs &in, const QDateTime &now)
{
    const qint64 nowMs = now.toMSecsSinceEpoch();
    // Bookkeeping first, whatever the rules decide below.
    if (in.cpu > 0.2)
        m_lastActiveMs = nowMs;
    const bool tempKnown = in.temp > 0;
    if (tempKnown && in.temp >= 82)
        m_wasHot = true;
    if (tempKnown && in.temp < 68 && m_wasHot) {
        m_wasHot = false;
        m_cooldownUntilMs = nowMs + cooldownMs;
    }

    if (nowMs - m_launchMs < greetingMs)
        return Moods::justWokeUp();
    if (tempKnown && in.temp >= 90)
        return Moods::soHot(in.temp);
    if (in.hasBattery && !in.charging && in.battery > 0 && in.battery <= 0.1)
        return Moods::runningLow(in.battery);
    if (in.memory >= 0.92)
        return Moods::memoryFull(in.memory);
    if (in.memory >= 0.8 && in.swap >= 2'000'000'000.0)
        return Moods::swappingHard(in.swap);
    if (m_cooldownUntilMs && nowMs < *m_cooldownUntilMs)
        return Moods::phew();
    if (in.cores >= 4 && in.hotCores >= coreThreshold(in.cores))
        return Moods::allCoresBlazing(in.hotCores, in.cores);
    if (in.cpu >= 0.85)
        return Moods::workingHard(in.cpu);
    if (in.netDown >= 50'000'000.0)
        return Moods::dataFeast(in.netDown);
    if (in.netDown >= 5'000'000.0)
        return Moods::gobblingData(in.netDown);
    if (in.netUp >= 3'000'000.0)
        return Moods::beamingUp(in.netUp);
    if (tempKnown && in.temp >= 78)
        return Moods::warmingUp(in.temp);
    if (in.hasBattery && in.charging && in.battery < 0.95)
        return Moods::refueling(in.battery);
    if (in.cpu >= 0.55)
        return Moods::cruisingLoad(in.cpu);
    if (tempKnown && in.temp >= 68)
        return Moods::cruisingWarmth(in.temp);
    if (in.disk >= 0.95)
        return Moods::almostPacked(in.disk);
    if (const auto greeting = Holidays::today(m_wallClock()))
        return Moods::festive(greeting->emoji, greeting->phrase, greeting->reason);
    const bool quiet = in.cpu <= 0.15 && !(tempKnown && in.temp >= 58);
    if (quiet)
        return idleMood(now, nowMs);
    return Moods::peaceful();
}

Mood MoodEngine::idleMood(const QDateTime &now, qint64 nowMs) const
{
    const qint64 idleMs = nowMs - m_lastActiveMs;
    // Usually already local (the system clock's time); convert otherwise.
    const int hour = (now.timeSpec() == Qt::LocalTime ? now.time() : now.toLocalTime().time()).hour();
    const bool night = hour < 6 || hour > 22;
    if (night && idleMs > nightIdleMs)
        return Moods::sleepy();
    if (idleMs > longIdleMs)
        return Moods::dozingOff();
    return Moods::allChill();
}
