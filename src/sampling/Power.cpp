#include "sampling/Power.h"

#include "sampling/Plausible.h"
#include "sampling/SysFs.h"

using namespace Qt::StringLiterals;

#include <chrono>

namespace {

double monotonicSeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

PowerMeter::PowerMeter(SystemRoots roots)
    : m_roots(std::move(roots))
    , m_clock(monotonicSeconds)
{
    if (m_roots.live)
        m_nvidia = nvml::Nvml::sharedSource();
}

void PowerMeter::discover()
{
    m_zones.clear();
    m_boards.clear();
    m_hasCore = false;
    m_discovered = true;

    // intel-rapl:0 (a package) and intel-rapl:0:0 (its parts); AMD's
    // counters appear under the same names. intel-rapl-mmio:* repeats the
    // package counters and is left out.
    const QString powercap = m_roots.sys + "/class/powercap/"_L1;
    for (const QString &entry : SysFs::entries(powercap)) {
        if (!entry.startsWith(u"intel-rapl:"))
            continue;
        const QString dir = powercap + entry;
        const QString name = SysFs::readLine(dir + "/name"_L1).value_or(QString());
        Kind kind;
        if (name.startsWith(u"package"))
            kind = Kind::package;
        else if (name == "core"_L1)
            kind = Kind::core;
        else if (name == "uncore"_L1)
            kind = Kind::uncore;
        else if (name == "dram"_L1)
            kind = Kind::dram;
        else
            continue; // psys and anything newer: not part of the package sum
        const double range = double(std::max<qint64>(SysFs::readLong(dir + "/max_energy_range_uj"_L1).value_or(0), 0));
        m_zones.append({kind, SysFs::native(dir + "/energy_uj"_L1), range});
        m_hasCore = m_hasCore || kind == Kind::core;
    }

    // Discrete amdgpu boards report their power; an APU's amdgpu reports the
    // whole chip's, which the package counter already holds. Only boards
    // with a power cap are discrete cards.
    const QString hwmon = m_roots.sys + "/class/hwmon/"_L1;
    for (const QString &entry : SysFs::entries(hwmon)) {
        const QString dir = hwmon + entry;
        if (SysFs::readLine(dir + "/name"_L1) != "amdgpu"_L1 || !SysFs::exists(dir + "/power1_cap"_L1))
            continue;
        QString file = dir + "/power1_average"_L1;
        if (!SysFs::exists(file))
            file = dir + "/power1_input"_L1;
        if (SysFs::exists(file))
            m_boards.append({SysFs::native(file), dir + "/device/power/runtime_status"_L1});
    }
}

double PowerMeter::boardWatts(const std::vector<nvml::NvmlReading> &nvidia, double dt) const
{
    double watts = 0;
    for (size_t i = 0; i < nvidia.size(); ++i) {
        const nvml::NvmlReading &now = nvidia[i];
        const nvml::NvmlReading *before = i < m_prevNvidia.size() ? &m_prevNvidia[i] : nullptr;
        const double fromCounter = now.hasEnergy && before && before->hasEnergy && now.energyJ >= before->energyJ
            ? (now.energyJ - before->energyJ) / dt
            : -1;
        if (Plausible::watts(fromCounter))
            watts += fromCounter;
        else if (now.hasPower && Plausible::watts(now.powerW))
            watts += now.powerW;
    }
    for (const Board &board : m_boards) {
        if (SysFs::readLine(board.runtimeStatus) == "suspended"_L1)
            continue;
        const std::optional<qint64> microwatts = SysFs::readLong(board.power);
        if (microwatts && Plausible::watts(double(*microwatts) / 1e6))
            watts += double(*microwatts) / 1e6;
    }
    return watts;
}

QmPowerReading PowerMeter::read()
{
    if (!m_discovered)
        discover();
    const double now = m_clock();

    std::vector<double> counters;
    counters.reserve(size_t(m_zones.size()));
    bool readable = !m_zones.isEmpty();
    for (const Zone &zone : std::as_const(m_zones)) {
        const std::optional<qint64> uj = SysFs::readLong(zone.energy);
        if (!uj || *uj < 0) {
            readable = false;
            break;
        }
        counters.push_back(double(*uj));
    }
    const std::vector<nvml::NvmlReading> nvidia = m_nvidia ? m_nvidia() : std::vector<nvml::NvmlReading>{};

    QmPowerReading result;
    const double dt = now - m_prevTime;
    if (readable && m_primed && dt > 0 && dt <= maxInterval && counters.size() == m_prevCounters.size()) {
        double package = 0, core = 0, uncore = 0, dram = 0;
        bool valid = true;
        for (size_t i = 0; i < counters.size() && valid; ++i) {
            double delta = counters[i] - m_prevCounters[i];
            if (delta < 0) {
                // Wrapped, if the counter was close enough to the top of its
                // range to have run past it in this interval; otherwise it
                // was reset, and the reading starts over from here.
                const double range = m_zones[qsizetype(i)].range;
                if (range > 0 && m_prevCounters[i] <= range)
                    delta = range - m_prevCounters[i] + counters[i];
                else
                    valid = false;
            }
            // Also refuses a wrap that would take more energy than the zone
            // can draw, and a counter that leapt forward.
            if (!Plausible::watts(delta * 1e-6 / dt))
                valid = false;
            const double joules = delta * 1e-6;
            switch (m_zones[qsizetype(i)].kind) {
            case Kind::package: package += joules; break;
            case Kind::core: core += joules; break;
            case Kind::uncore: uncore += joules; break;
            case Kind::dram: dram += joules; break;
            }
        }
        if (valid) {
            const double boards = boardWatts(nvidia, dt);
            result.cpu = (m_hasCore ? core : package) / dt;
            result.gpu = uncore / dt + boards;
            result.total = (package + dram) / dt + boards;
            result.ok = 1;
        }
    }

    if (readable) {
        m_prevCounters = std::move(counters);
        m_prevNvidia = nvidia;
        m_prevTime = now;
        m_primed = true;
    } else {
        // Look for the zones again next time; they may have been granted
        // or come back.
        m_primed = false;
        m_prevTime = 0;
        m_discovered = false;
    }
    return result;
}

void PowerMeter::reset()
{
    m_primed = false;
    m_prevTime = 0;
    m_prevCounters.clear();
    m_prevNvidia.clear();
    m_discovered = false;
}

namespace {
PowerMeter &sharedMeter()
{
    static PowerMeter meter;
    return meter;
}
} // namespace

QmPowerReading QmReadPower()
{
    return sharedMeter().read();
}

void QmResetPower()
{
    sharedMeter().reset();
}
