#pragma once
// Processor load from the per-CPU lines of /proc/stat.

#include "model/Records.h"
#include "sampling/SysFs.h"
#include "sampling/SystemRoots.h"

#include <QByteArray>

#include <vector>

class CPUMonitor {
public:
    explicit CPUMonitor(SystemRoots roots = {});

    // Load since the previous successful reading. The first reading (and the
    // first after the set of online CPUs changed) only primes: idle 1.0 and
    // one 0 per CPU. An unreadable /proc/stat gives the empty record and
    // keeps the previous counters.
    CPUSample read();
    int coreCount() const { return m_coreCount; }

    // "model name" from /proc/cpuinfo, else the device-tree model, else "CPU".
    static QString brandString(const SystemRoots &roots = {});

private:
    // One CPU's cumulative counters, in USER_HZ ticks. Guest time is already
    // inside user and nice, so it is not kept.
    struct Counters {
        int id = -1;
        quint64 user = 0;
        quint64 nice = 0;
        quint64 system = 0;
        quint64 idle = 0;
        quint64 iowait = 0;
        quint64 irq = 0;
        quint64 softirq = 0;
        quint64 steal = 0;
    };

    bool parse(std::vector<Counters> &out) const;

    SystemRoots m_roots;
    SysFs::KeptFile m_stat;
    QByteArray m_buffer;
    std::vector<Counters> m_previous;
    std::vector<Counters> m_current;
    bool m_primed = false;
    int m_coreCount = 0;
};
