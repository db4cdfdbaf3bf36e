#pragma once
// The machine's battery and power source from /sys/class/power_supply.

#include "model/Records.h"
#include "sampling/SystemRoots.h"

class BatteryMonitor {
public:
    explicit BatteryMonitor(SystemRoots roots = {});

    BatterySample read();

private:
    SystemRoots m_roots;
};
