#pragma once
// The machine's battery and power source from /sys/class/power_supply.
//
// Only the system's own batteries count: type Battery, present, and not of
// scope Device (a wireless mouse or headset reports its battery here too).
// When several exist the last one in name order stands. Energy (µWh, µW) and
// charge (µAh, µA) figures are never mixed in one computation.
//
// Capacities are in mAh: charge_full_design and charge_full divided by 1000
// where the battery reports charge; where it reports only energy, the energy
// divided by voltage_min_design (its nominal voltage), else voltage_now.

#include "model/Records.h"
#include "sampling/SystemRoots.h"

class BatteryMonitor {
public:
    explicit BatteryMonitor(SystemRoots roots = {});

    BatterySample read();

    // Names of the providing source in `powerSource`.
    static inline const QString acPower = QStringLiteral("AC Power");
    static inline const QString batteryPower = QStringLiteral("Battery Power");

    // Time estimates beyond this many minutes come from a near-zero rate and
    // are reported as unknown.
    static constexpr int longestEstimate = 100 * 60;

private:
    void readBattery(const QString &dir, BatterySample &sample, QString &status) const;

    SystemRoots m_roots;
};
