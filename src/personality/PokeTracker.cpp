#include "personality/PokeTracker.h"

#include "model/SystemMonitor.h"
#include "personality/Quips.h"

#include <QPointer>

PokeTracker::PokeTracker(SystemMonitor &monitor, Scheduler &scheduler, LanguageSource language, QObject *parent)
    : QObject(parent)
    , m_monitor(monitor)
    , m_scheduler(scheduler)
    , m_language(language ? std::move(language) : LanguageSource([] { return Localizer::shared().concrete(); }))
{
}

void PokeTracker::poke(const Mood &shown)
{
    emit bounced();
    const QDateTime now = m_scheduler.now();
    m_pokeTimes.removeIf([&now](const QDateTime &t) { return t.msecsTo(now) >= windowMs; });
    m_pokeTimes.append(now);

    MoodKind quipKind = shown.kind();
    if (m_pokeTimes.size() >= pokesToAnnoy) {
        m_pokeTimes.clear();
        const Mood annoyed = Moods::stopPoking();
        m_monitor.setReaction(annoyed);
        // Tied to the monitor, not to this tracker: the reaction must end
        // even if the banner is gone by then.
        QPointer<SystemMonitor> monitor(&m_monitor);
        m_scheduler.after(annoyedMs, &m_monitor, [monitor, annoyed] {
            if (monitor && monitor->reaction() && *monitor->reaction() == annoyed)
                monitor->setReaction(std::nullopt);
        });
        quipKind = annoyed.kind();
    }

    setQuip(Quips::random(quipKind, m_language()));
    const int id = ++m_quipID;
    emit quipIDChanged();
    QPointer<PokeTracker> self(this);
    m_scheduler.after(quipMs, this, [self, id] {
        if (self && self->m_quipID == id)
            self->setQuip(std::nullopt);
    });
}

void PokeTracker::clearQuip()
{
    setQuip(std::nullopt);
}

void PokeTracker::setQuip(const std::optional<QString> &quip)
{
    if (quip == m_quip)
        return;
    m_quip = quip;
    emit quipChanged();
}
