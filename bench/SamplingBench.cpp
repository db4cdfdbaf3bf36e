// The fast tick and the process list on this machine, as the model runs
// them. Budgets: the hidden fast sample (processor, memory, network) well
// under 50 us; one process list under 3 ms at about 300 processes.

#include "Bench.h"

#include "sampling/DiskMonitor.h"
#include "sampling/LinuxSamplers.h"
#include "sampling/ProcessMonitor.h"

#include <QDir>

#include <csignal>
#include <memory>

#include <sys/prctl.h>
#include <unistd.h>

namespace {

LinuxSamplers &samplers()
{
    static LinuxSamplers instance;
    return instance;
}

ProcessMonitor &processes()
{
    static ProcessMonitor instance;
    return instance;
}

int processCount()
{
    int n = 0;
    for (const QString &name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool ok = false;
        name.toInt(&ok);
        n += ok ? 1 : 0;
    }
    return n;
}

// Idle children that bring the machine up to `target` processes. They die
// with the benchmark.
void fillProcessTable(int target)
{
    for (int missing = target - processCount(); missing > 0; --missing) {
        const pid_t pid = fork();
        if (pid == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            for (;;)
                pause();
        }
        if (pid < 0)
            break;
    }
}

DiskMonitor &inlineDisk()
{
    static DiskMonitor instance(SystemRoots{}, [] {
        DiskMonitor::Options o;
        o.statOffThread = false;
        return o;
    }());
    return instance;
}

QString processNote()
{
    return QStringLiteral("%1 processes").arg(processes().lastProcessCount());
}

} // namespace

SULK_BENCH(fastHidden, {QStringLiteral("fast: hidden (cpu+mem+net)"),
                        [] {
                            samplers().readCPU();
                            samplers().readMemory();
                            samplers().readNetwork(false);
                        },
                        [] {
                            LinuxSamplers &s = samplers();
                            s.readCPU();
                            s.readMemory();
                            s.readNetwork(false);
                            return QString();
                        },
                        5000})

SULK_BENCH(fastVisible, {QStringLiteral("fast: visible (+disk, address)"),
                         [] {
                             samplers().readDisk();
                             samplers().readNetwork(true);
                         },
                         [] {
                             LinuxSamplers &s = samplers();
                             s.readCPU();
                             s.readMemory();
                             s.readNetwork(true);
                             const DiskSample disk = s.readDisk();
                             return QStringLiteral("%1 volumes").arg(disk.volumes.size());
                         },
                         5000})

SULK_BENCH(diskOnly, {QStringLiteral("disk: read"), [] { samplers().readDisk(); },
                      [] {
                          samplers().readDisk();
                          return QString();
                      },
                      5000})

// The same reading with statvfs done on this thread, so its cost shows in
// the figure (the model's reader hands it to a worker thread).
SULK_BENCH(diskInline, {QStringLiteral("disk: read, statvfs inline"), [] { inlineDisk().read(); },
                        [] {
                            inlineDisk().read();
                            return QString();
                        },
                        5000})

SULK_BENCH(processList, {QStringLiteral("process list (top 6)"), [] { processes().topByCPU(6); },
                         [] {
                             processes().topByCPU(6);
                             return processNote();
                         },
                         1000})

SULK_BENCH(processList300, {QStringLiteral("process list (top 6), ~300 procs"),
                            [] {
                                fillProcessTable(300);
                                processes().topByCPU(6);
                            },
                            [] {
                                processes().topByCPU(6);
                                return processNote();
                            },
                            1000})
