#pragma once
// Processor load from the per-CPU lines of /proc/stat.

#include "model/Records.h"
#include "sampling/SystemRoots.h"

class CPUMonitor {
public:
    explicit CPUMonitor(SystemRoots roots = {});

    CPUSample read();
    int coreCount() const { return m_coreCount; }

    static QString brandString(const SystemRoots &roots = {});

private:
    SystemRoots m_roots;
    int m_coreCount = 0;
};
