#pragma once
// Package power from the RAPL energy counters (powercap), plus NVIDIA board
// power. The first reading after a reset only primes.

#include "model/Records.h"
#include "sampling/SystemRoots.h"

class PowerMeter {
public:
    explicit PowerMeter(SystemRoots roots = {});

    QmPowerReading read();
    void reset();

private:
    SystemRoots m_roots;
};

// The process-wide meter over the live /sys.
QmPowerReading QmReadPower();
void QmResetPower();
