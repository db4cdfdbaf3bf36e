// /proc/<pid>/stat, /proc/uptime and MemTotal, as the process list reads
// them: a baseline, the pause (here the step to the second snapshot), the
// list, and a later list.

#include "FuzzTree.h"

#include "sampling/ProcessMonitor.h"

namespace {

void check(const QList<ProcInfo> &list, int limit)
{
    FUZZ_CHECK(list.size() <= limit);
    for (const ProcInfo &p : list) {
        FUZZ_CHECK(fuzz::finite(p.cpu()) && p.cpu() >= 0);
        FUZZ_CHECK(fuzz::finite(p.mem()) && p.mem() >= 0 && p.mem() <= 100);
        FUZZ_CHECK(fuzz::printable(p.name()));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::Tree tree(data, size);
    double now = 100;
    ProcessMonitor::Options options;
    options.clock = [&now] { return now; };
    options.sleep = [&](double seconds) {
        now += seconds;
        tree.next();
    };
    ProcessMonitor processes(tree.live(), options);
    check(processes.topByCPU(6), 6);
    now += 2;
    check(processes.topByCPU(100), 100);
    FUZZ_CHECK(processes.lastProcessCount() >= 0);
    return 0;
}
