#pragma once
// Temperatures and fans from /sys/class/hwmon and the thermal zones, with
// the SMC for fans and a CPU fallback on Apple hardware.

#include "model/Records.h"
#include "sampling/SMC.h"
#include "sampling/SystemRoots.h"

class SensorMonitor {
public:
    SensorMonitor(SystemRoots roots, SMC &smc);

    SensorSample read();

private:
    SystemRoots m_roots;
    SMC &m_smc;
};
