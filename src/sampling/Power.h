#pragma once
// Package power from the RAPL energy counters of the powercap zones, plus
// discrete graphics boards: NVIDIA through its management library (from the
// board's energy counter, else its power figure) and amdgpu cards through
// their hwmon power figure.
//
// Zones by name: package-N is the package (the total), core the CPU cores,
// uncore the integrated GPU, dram the memory (counted in the total); psys and
// the MMIO copies of the package counters are left out. Without a core zone
// the package stands for the CPU. Counters wrap through max_energy_range_uj;
// a counter that falls back from far below the top of its range was reset
// rather than wrapped, and like any figure beyond what the hardware can
// draw it gives a reading that is not ok, after which measuring starts over.
//
// Each reading is the average since the previous one: the first after
// creation or reset() only primes, and so does one more than `maxInterval`
// seconds after its predecessor. Since kernel 5.10 the counters are readable
// by root only unless a udev rule grants access; unreadable counters give
// readings that are not ok.

#include "model/Records.h"
#include "sampling/Nvml.h"
#include "sampling/SystemRoots.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <vector>

class PowerMeter {
public:
    // Seconds on a clock that never goes back.
    using Clock = std::function<double()>;

    explicit PowerMeter(SystemRoots roots = {});

    QmPowerReading read();
    void reset();

    void setClock(Clock clock) { m_clock = std::move(clock); }
    // Where NVIDIA figures come from; by default the management library
    // when the roots are live, none otherwise.
    void setNvidiaSource(nvml::Source source) { m_nvidia = std::move(source); }

    static constexpr double maxInterval = 30.0;

private:
    enum class Kind { package, core, uncore, dram };
    struct Zone {
        Kind kind;
        QByteArray energy; // energy_uj
        double range = 0;  // max_energy_range_uj; 0 when unknown
    };
    struct Board {
        QByteArray power;      // µW
        QString runtimeStatus; // a sleeping card is not woken, and draws ~0
    };

    void discover();
    double boardWatts(const std::vector<nvml::NvmlReading> &nvidia, double dt) const;

    SystemRoots m_roots;
    Clock m_clock;
    nvml::Source m_nvidia;
    bool m_discovered = false;
    QList<Zone> m_zones;
    QList<Board> m_boards;
    bool m_hasCore = false;

    bool m_primed = false;
    double m_prevTime = 0;
    std::vector<double> m_prevCounters;
    std::vector<nvml::NvmlReading> m_prevNvidia;
};

// The process-wide meter over the live /sys. Call from one thread only.
QmPowerReading QmReadPower();
void QmResetPower();
