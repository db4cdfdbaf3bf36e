#include "sampling/GPUMonitor.h"

#include "sampling/SysFs.h"

using namespace Qt::StringLiterals;

#include <algorithm>

GPUMonitor::GPUMonitor(SystemRoots roots)
    : m_roots(std::move(roots))
{
    if (m_roots.live)
        m_nvidia = nvml::Nvml::sharedSource();
}

GPUSample GPUMonitor::read()
{
    GPUSample sample;
    bool sawSleeping = false;
    const QString drm = m_roots.sys + "/class/drm/"_L1;
    for (const QString &card : SysFs::entries(drm)) {
        // card0, card1 …; connectors such as card0-DP-1 have no statistics.
        if (SysFs::indexedName(card, QLatin1StringView("card"), QLatin1StringView("")) < 0)
            continue;
        const QString device = drm + card + "/device/"_L1;
        const QString busyFile = device + "gpu_busy_percent"_L1;
        if (!SysFs::exists(busyFile))
            continue;
        // Reading a sleeping card would wake it. Asleep it is idle, which
        // counts only when no awake card has a figure.
        if (SysFs::readLine(device + "power/runtime_status"_L1) == "suspended"_L1) {
            sawSleeping = true;
            continue;
        }
        if (const std::optional<qint64> busy = SysFs::readLong(busyFile)) {
            sample.hasUsage = true;
            sample.usage = std::clamp(double(*busy) / 100.0, 0.0, 1.0);
            return sample;
        }
    }
    if (m_nvidia) {
        for (const nvml::NvmlReading &board : m_nvidia()) {
            if (board.hasUtil) {
                sample.hasUsage = true;
                sample.usage = std::clamp(board.util01, 0.0, 1.0);
                return sample;
            }
        }
    }
    if (sawSleeping) {
        sample.hasUsage = true;
        sample.usage = 0;
    }
    return sample;
}
