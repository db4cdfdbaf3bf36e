#include "model/SystemMonitor.h"

// The mood and roast state of the model lives here.

#include <QPointer>

#include <algorithm>

namespace {

// Used share of the startup volume ("/"), else of the first one.
double startupDiskShare(const QList<VolumeInfo> &volumes)
{
    if (volumes.isEmpty())
        return 0;
    const auto root = std::find_if(volumes.begin(), volumes.end(),
                                   [](const VolumeInfo &v) { return v.path == QLatin1String("/"); });
    return (root != volumes.end() ? *root : volumes.first()).usedShare();
}

} // namespace

MoodInputs SystemMonitor::moodInputs() const
{
    MoodInputs in;
    const QList<double> recent = m_cpuHistory.newest(5);
    if (recent.isEmpty()) {
        in.cpu = m_cpu.total;
    } else {
        double sum = 0;
        for (double v : recent)
            sum += v;
        in.cpu = sum / double(recent.size());
    }
    in.memory = m_memory.pressure;
    in.temp = m_sensors.machineTemp();
    in.swap = m_memory.swapUsed;
    in.netDown = m_network.downRate;
    in.netUp = m_network.upRate;
    in.disk = startupDiskShare(m_disk.volumes);
    in.hotCores = int(std::count_if(m_cpu.perCore.begin(), m_cpu.perCore.end(), [](double v) { return v >= 0.8; }));
    in.cores = int(m_cpu.perCore.size());
    in.hasBattery = m_battery.present;
    in.battery = m_battery.charge;
    in.charging = m_battery.isCharging || m_battery.isPluggedIn;
    return in;
}

void SystemMonitor::updateMood()
{
    offerMood(m_moodEngine.mood(moodInputs(), m_scheduler.now()));
}

void SystemMonitor::offerMood(const Mood &next)
{
    if (next == m_mood)
        return;
    m_mood = next;
    emit moodChanged();
}

void SystemMonitor::setReaction(const std::optional<Mood> &reaction)
{
    if (reaction == m_reaction)
        return;
    m_reaction = reaction;
    emit reactionChanged();
}

RoastReadings SystemMonitor::roastReadings() const
{
    RoastReadings r;
    r.cpu = m_cpu.total;
    r.memory = m_memory.pressure;
    r.netDown = m_network.downRate;
    r.netUp = m_network.upRate;
    for (const VolumeInfo &v : m_disk.volumes)
        r.maxDiskUsage = std::max(r.maxDiskUsage, v.usedShare());
    r.temp = m_sensors.machineTemp();
    if (!m_processes.isEmpty())
        r.topProcess = RoastReadings::Process{m_processes.first().name(), m_processes.first().cpu()};
    return r;
}

void SystemMonitor::roast(RoastTopic topic)
{
    const std::optional<RoastEvent> next = Roasts::event(topic, roastReadings());
    if (next != m_roastEvent) {
        m_roastEvent = next;
        emit roastEventChanged();
    }
    const int token = ++m_roastToken;
    QPointer<SystemMonitor> weak(this);
    m_scheduler.after(roastLifetimeMs, this, [weak, token] {
        if (!weak || weak->m_roastToken != token || !weak->m_roastEvent)
            return;
        weak->m_roastEvent.reset();
        emit weak->roastEventChanged();
    });
}
