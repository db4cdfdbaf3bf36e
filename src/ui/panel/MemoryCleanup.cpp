#include "ui/panel/MemoryCleanup.h"

#include "l10n/Fmt.h"
#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "personality/Mood.h"
#include "sampling/MemoryMonitor.h"

namespace {

MemoryCleanup::Runner &runner()
{
    static MemoryCleanup::Runner r;
    return r;
}

} // namespace

MemoryCleanup::MemoryCleanup(QObject *parent)
    : QObject(parent)
{
}

void MemoryCleanup::setRunner(Runner r)
{
    runner() = std::move(r);
}

void MemoryCleanup::setMonitor(SystemMonitor *monitor)
{
    if (monitor == m_monitor)
        return;
    m_monitor = monitor;
    emit monitorChanged();
}

void MemoryCleanup::clean()
{
    if (m_cleaning || !m_monitor)
        return;
    ++m_run;
    setFreedText({});
    setCleaning(true);
    m_monitor->setReaction(Moods::freshening());

    QPointer<MemoryCleanup> self(this);
    QPointer<SystemMonitor> monitor(m_monitor);
    auto done = [self, monitor](double freed) {
        if (self) {
            self->finish(freed);
        } else if (monitor) {
            // The panel is gone; the model still learns what happened.
            monitor->sampleFast();
            monitor->updateMood();
            const Mood lighter = Moods::muchLighter(freed);
            monitor->setReaction(lighter);
            monitor->scheduler().after(noteMs, monitor, [monitor, lighter] {
                if (monitor && monitor->reaction() == lighter)
                    monitor->setReaction(std::nullopt);
            });
        }
    };
    // The model is the context: the run outlives a closed panel.
    if (runner())
        runner()(m_monitor, done);
    else
        MemoryCleaner::freeUp(m_monitor, done);
}

void MemoryCleanup::finish(double freed)
{
    setCleaning(false);
    if (!m_monitor)
        return;
    SystemMonitor *monitor = m_monitor;
    monitor->sampleFast();
    monitor->updateMood();
    const QString amount = Fmt::bytes(freed, 1);
    setFreedText(Localizer::shared().t(LocKey::freedFmt, {amount}));
    const Mood lighter = Moods::muchLighter(freed);
    monitor->setReaction(lighter);

    const int run = m_run;
    QPointer<MemoryCleanup> self(this);
    QPointer<SystemMonitor> guard(monitor);
    monitor->scheduler().after(noteMs, monitor, [self, guard, lighter, run] {
        if (self && self->m_run == run)
            self->setFreedText({});
        // Another party's reaction set meanwhile stays.
        if (guard && guard->reaction() == lighter)
            guard->setReaction(std::nullopt);
    });
}

void MemoryCleanup::setCleaning(bool cleaning)
{
    if (cleaning == m_cleaning)
        return;
    m_cleaning = cleaning;
    emit cleaningChanged();
}

void MemoryCleanup::setFreedText(const QString &text)
{
    if (text == m_freedText)
        return;
    m_freedText = text;
    emit freedTextChanged();
}
