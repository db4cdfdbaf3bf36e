#pragma once
// The busiest processes by their recent CPU share, from /proc/[pid]/stat.
// Keeps the previous counters between calls; calls must not overlap.

#include "model/Records.h"
#include "sampling/SystemRoots.h"

#include <QList>

#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

class ProcessMonitor {
public:
    struct Options {
        // Monotonic seconds; default: CLOCK_MONOTONIC.
        std::function<double()> clock;
        // Pauses the calling thread; default: a real sleep.
        std::function<void(double seconds)> sleep;
    };

    explicit ProcessMonitor(SystemRoots roots = {});
    ProcessMonitor(SystemRoots roots, Options options);

    // At most `limit` processes, busiest first. cpu is the share of one core
    // in percent since the previous call (so it can pass 100); when there is
    // no recent previous call, the list is measured over a short pause of its
    // own. Blocks for that pause: call it off the main thread.
    QList<ProcInfo> topByCPU(int limit);

    // Processes seen by the last call.
    int lastProcessCount() const { return m_lastCount; }

    // Length of the pause that stands in for a missing previous call.
    static constexpr double baselinePause = 0.25;

private:
    struct Entry {
        int pid = 0;
        quint64 ticks = 0;     // utime + stime
        quint64 startTime = 0; // clock ticks after boot
        quint64 rssPages = 0;
        char name[64] = {};
        int nameLength = 0;
    };
    struct Previous {
        quint64 ticks = 0;
        quint64 startTime = 0;
    };

    bool scan(std::vector<Entry> &out);
    void remember(const std::vector<Entry> &entries, double time);
    double memTotalBytes();
    std::optional<double> uptimeTicks();

    SystemRoots m_roots;
    Options m_options;
    double m_clockTicks = 100;
    double m_pageSize = 4096;
    double m_memTotal = 0;

    std::unordered_map<int, Previous> m_prev;
    double m_prevTime = -1;         // monotonic seconds of the previous scan
    double m_prevUptimeTicks = -1;  // system uptime then, in clock ticks
    double m_lastGap = 0;
    int m_lastCount = 0;
    std::vector<Entry> m_entries;
    QByteArray m_buffer;
};
