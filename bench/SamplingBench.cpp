// The fast tick and the process list on this machine, as the model runs
// them. Budgets: the hidden fast sample (processor, memory, network) well
// under 50 us; one process list under 3 ms at about 300 processes.

#include "Bench.h"

#include "sampling/DiskMonitor.h"
#include "sampling/LinuxSamplers.h"
#include "sampling/ProcessMonitor.h"

#include <QDir>
#include <QFile>

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

// Live processes (zombies of an earlier run excluded: they are on their way
// out).
int processCount()
{
    int n = 0;
    for (const QString &name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool ok = false;
        name.toInt(&ok);
        if (!ok)
            continue;
        QFile stat(QStringLiteral("/proc/%1/stat").arg(name));
        if (!stat.open(QIODevice::ReadOnly))
            continue;
        const QByteArray line = stat.readAll();
        const qsizetype close = line.lastIndexOf(')');
        n += close > 0 && line.mid(close + 2, 1) != "Z" ? 1 : 0;
    }
    return n;
}

// Idle children that bring the machine up to `target` processes. They die
// with the benchmark. Counted a few times over, since the children of an
// earlier run may still be on their way out.
void fillProcessTable(int target)
{
    for (int round = 0; round < 5; ++round) {
        for (int missing = target - processCount(); missing > 0; --missing) {
            const pid_t pid = fork();
            if (pid == 0) {
                prctl(PR_SET_PDEATHSIG, SIGKILL);
                for (;;)
                    pause();
            }
            if (pid < 0)
                return;
        }
        usleep(100 * 1000);
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
