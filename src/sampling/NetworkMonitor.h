#pragma once
// Network rates and totals from the 64-bit per-interface byte counters of
// the physical interfaces; the primary interface is the one with the default
// route.

#include "model/Records.h"
#include "sampling/SystemRoots.h"

class NetworkMonitor {
public:
    explicit NetworkMonitor(SystemRoots roots = {});

    NetworkSample read(bool refreshAddress);

private:
    SystemRoots m_roots;
};
