#pragma once
// The busiest processes by their recent CPU share, from /proc/[pid]/stat.
// Keeps the previous counters between calls; calls must not overlap.

#include "model/Records.h"
#include "sampling/SystemRoots.h"

#include <QList>

class ProcessMonitor {
public:
    explicit ProcessMonitor(SystemRoots roots = {});

    QList<ProcInfo> topByCPU(int limit);

private:
    SystemRoots m_roots;
};
