#pragma once
// Mounted volumes (mountinfo + statvfs) and whole-disk read/write rates
// (/proc/diskstats).

#include "model/Records.h"
#include "sampling/SystemRoots.h"

class DiskMonitor {
public:
    explicit DiskMonitor(SystemRoots roots = {});

    DiskSample read();
    // Forgets the baseline time: the next read only primes the counters.
    void clearBaseline() { m_prevTime = 0; }

private:
    SystemRoots m_roots;
    double m_prevTime = 0;
};
