#pragma once
// Physical memory and swap from /proc/meminfo (and zram's mm_stat), and the
// free-up action.

#include "model/Records.h"
#include "sampling/SystemRoots.h"

#include <QObject>

#include <functional>

class MemoryMonitor {
public:
    explicit MemoryMonitor(SystemRoots roots = {});

    MemorySample read();

private:
    SystemRoots m_roots;
};

namespace MemoryCleaner {

// Starts the clean-up on a pool thread and returns at once. `completion`
// runs exactly once, on the main thread, with the bytes freed (>= 0), unless
// `context` is gone by then.
void freeUp(QObject *context, std::function<void(double freed)> completion,
            SystemRoots roots = {});

} // namespace MemoryCleaner
