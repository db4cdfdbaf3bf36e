#pragma once
// Physical memory and swap from /proc/meminfo (and zram's mm_stat), and the
// free-up action.

#include "model/Records.h"
#include "sampling/SysFs.h"
#include "sampling/SystemRoots.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <functional>
#include <vector>

// The figures agree with `free`: used = MemTotal - MemAvailable, cached is
// free's buff/cache, wired is what can never be reclaimed, compressed is the
// zswap pool plus the memory zram devices hold.
class MemoryMonitor {
public:
    explicit MemoryMonitor(SystemRoots roots = {});

    // The empty record when /proc/meminfo cannot be read or has no MemTotal.
    MemorySample read();

    // MemAvailable of the last successful reading, bytes.
    double lastAvailable() const { return m_available; }

private:
    void rescanZram();
    double zramInUse();

    SystemRoots m_roots;
    SysFs::KeptFile m_meminfo;
    QByteArray m_buffer;
    QByteArray m_zramBuffer;
    std::vector<SysFs::KeptFile> m_zramStats; // mm_stat of each zram device
    int m_readsUntilRescan = 0;
    double m_available = 0;
};

namespace MemoryCleaner {

// Starts the clean-up on a pool thread and returns at once. `completion`
// runs exactly once, on the main thread, with the bytes freed (>= 0), unless
// `context` is gone by then.
void freeUp(QObject *context, std::function<void(double freed)> completion,
            SystemRoots roots = {});

// How many bytes one clean-up allocates, given the reading taken before it
// and MemAvailable at that moment: 40 % of memory, at most what is free plus
// up to 3 GiB of cache, never more than 6 GiB, and never more than 80 % of
// MemAvailable so that the kernel never has to reach for the OOM killer.
double target(const MemorySample &before, double memAvailable);

// The block sizes that make up `target`: 256 MiB blocks and a last, smaller
// one, each a whole number of bytes.
QList<qint64> chunkSizes(double target);

} // namespace MemoryCleaner
