// CPUMonitor over fixture /proc trees: priming, the busy/idle split, counter
// quirks, CPU hot-plug and the brand string.

#include "FastReaderScratch.h"
#include "common/TestSupport.h"
#include "sampling/CPUMonitor.h"

#include <QTest>

namespace {

// One /proc/stat line per CPU: id, then user nice system idle iowait irq
// softirq steal guest guest_nice.
struct Cpu {
    int id;
    QList<quint64> ticks;
};

QByteArray statText(const QList<Cpu> &cpus)
{
    QByteArray text = "cpu  1 2 3 4 5 6 7 8 0 0\n"; // the machine-wide line is not used
    for (const Cpu &c : cpus) {
        text += "cpu" + QByteArray::number(c.id);
        for (quint64 t : c.ticks)
            text += ' ' + QByteArray::number(t);
        text += '\n';
    }
    text += "intr 1234 0 0 0\nctxt 99\nbtime 1717400000\nprocesses 10\nprocs_running 1\nprocs_blocked 0\n";
    return text;
}

// A monitor over a scratch /proc/stat of `count` idle CPUs, primed.
struct Rig {
    ScratchTree proc;
    QList<Cpu> cpus;
    CPUMonitor monitor{proc.asProc(proc.path())};

    Rig(int count, quint64 idle)
    {
        for (int i = 0; i < count; ++i)
            cpus.append({i, {1000, 10, 500, idle, 20, 0, 5, 0, 0, 0}});
        next();
    }
    // The reading over `cpus` as they are now.
    CPUSample next() { return proc.write("stat", statText(cpus)) ? monitor.read() : CPUSample{}; }
};

} // namespace

class CpuMonitorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void busyTimeTakesNiceIrqSoftirqAndStealAsSystem()
    {
        Rig rig(4, 100000);

        // cpu0: user 30 (20 of them guest time, already inside user), nice 10,
        // system 5, irq 3, softirq 2, idle 50. cpu1: steal 25, idle 75.
        // cpu2: idle 60 and iowait 40, which is idle too. cpu3: idle 100.
        auto add = [&](int cpu, int field, quint64 ticks) { rig.cpus[cpu].ticks[field] += ticks; };
        add(0, 0, 30), add(0, 8, 20), add(0, 1, 10), add(0, 2, 5), add(0, 5, 3), add(0, 6, 2), add(0, 3, 50);
        add(1, 7, 25), add(1, 3, 75);
        add(2, 3, 60), add(2, 4, 40);
        add(3, 3, 100);
        const CPUSample s = rig.next();
        QCOMPARE(s.perCore, (QList<double>{0.5, 0.25, 0.0, 0.0}));
        // 400 ticks: user 30, system 10 + 5 + 3 + 2 + 25 = 45, idle 325.
        QCOMPARE(s.user, 30.0 / 400);
        QCOMPARE(s.system, 45.0 / 400);
        QCOMPARE(s.idle, 325.0 / 400);
        QCOMPARE(s.total, 75.0 / 400);
    }

    void twoHundredFiftySixCpus()
    {
        ScratchTree proc;
        QVERIFY(proc.copyFixture("cpu256/proc/stat", "stat"));
        CPUMonitor monitor(proc.asProc(proc.path()));
        // The first reading primes: one zero per CPU, wholly idle. Nothing
        // moved since: the same again, not a division by zero.
        const CPUSample first = monitor.read();
        QCOMPARE(first.perCore, QList<double>(256, 0.0));
        QCOMPARE(first.idle, 1.0);
        QCOMPARE(first.total, 0.0);
        QCOMPARE(monitor.read(), first);
        QVERIFY(proc.copyFixture("cpu256/later/proc/stat", "stat"));

        // CPU i spent its 100 ticks busy, half busy, a quarter busy (in
        // system) or idle, by i % 4.
        const CPUSample s = monitor.read();
        QCOMPARE(s.perCore.size(), 256);
        const double expected[] = {1.0, 0.5, 0.25, 0.0};
        for (int i = 0; i < 256; ++i)
            QCOMPARE(s.perCore[i], expected[i % 4]);
        QCOMPARE(s.total, 175.0 / 400);
        QCOMPARE(s.user, 150.0 / 400);
        QCOMPARE(s.system, 25.0 / 400);
        QCOMPARE(s.idle, 225.0 / 400);
        QCOMPARE(monitor.coreCount(), 256);
    }

    void countersThatGoBackwardsCountAsNoTime()
    {
        Rig rig(2, 5000);
        QList<Cpu> &cpus = rig.cpus;

        // iowait is known to step back on some kernels; a bogus user counter
        // going down must not turn into 2^64 ticks of work either.
        cpus[0].ticks[4] -= 15;
        cpus[0].ticks[3] += 100;
        cpus[1].ticks[0] -= 500;
        cpus[1].ticks[2] += 20;
        cpus[1].ticks[3] += 80;
        const CPUSample s = rig.next();
        QCOMPARE(s.perCore, (QList<double>{0.0, 0.2}));
        QCOMPARE(s.total, 0.1);
        QCOMPARE(s.idle, 0.9);
        QCOMPARE(s.user, 0.0);

        // The next interval is measured from the lowered counters.
        cpus[1].ticks[0] += 50;
        cpus[1].ticks[3] += 50;
        QCOMPARE(rig.next().perCore, (QList<double>{0.0, 0.5}));
    }

    void changedCpuSetPrimesAgain()
    {
        Rig rig(4, 1000);
        // cpu2 goes offline: its line disappears.
        rig.cpus.removeAt(2);
        CPUSample s = rig.next();
        QCOMPARE(s.perCore, QList<double>(3, 0.0));
        QCOMPARE(s.idle, 1.0);
        QCOMPARE(rig.monitor.coreCount(), 3);

        for (Cpu &c : rig.cpus)
            c.ticks[0] += 100;
        QCOMPARE(rig.next().perCore, QList<double>(3, 1.0));

        // Same count, different CPUs (cpu3 swapped for cpu7): not comparable.
        rig.cpus[2].id = 7;
        for (Cpu &c : rig.cpus)
            c.ticks[0] += 100;
        s = rig.next();
        QCOMPARE(s.perCore, QList<double>(3, 0.0));
        QCOMPARE(s.total, 0.0);
    }

    void unreadableOrDamagedStatGivesTheEmptyRecordAndKeepsTheBaseline()
    {
        Rig rig(2, 1000);

        const QList<QByteArray> damaged = {
            QByteArray(),
            "intr 1 2 3\n",
            "cpu  1 2 3 4\ncpu0 12 x 4 5\n",
            "cpu0 1 2\n",
            QByteArray(5000, '\0'),
            "cpu99999999999 1 2 3 4\n",
        };
        for (const QByteArray &text : damaged) {
            QVERIFY(rig.proc.write("stat", text));
            QCOMPARE(rig.monitor.read(), CPUSample{});
        }
        QVERIFY(rig.proc.remove("stat"));
        QCOMPARE(rig.monitor.read(), CPUSample{});
        QCOMPARE(rig.monitor.coreCount(), 2);

        // Back again: measured against the last good reading.
        for (Cpu &c : rig.cpus) {
            c.ticks[0] += 75;
            c.ticks[3] += 25;
        }
        QCOMPARE(rig.next().total, 0.75);

        CPUMonitor missing({rig.proc.path("nowhere"), rig.proc.path("nowhere")});
        QCOMPARE(missing.read(), CPUSample{});
        QCOMPARE(missing.coreCount(), 0);
    }

    void brandString()
    {
        QCOMPARE(CPUMonitor::brandString({TestSupport::fixture("laptop/proc"), TestSupport::fixture("laptop/sys")}),
                 QStringLiteral("11th Gen Intel(R) Core(TM) i7-1165G7 @ 2.80GHz"));
        // No "model name" on this arm64 board; the device tree's model is
        // NUL-terminated.
        QCOMPARE(CPUMonitor::brandString({TestSupport::fixture("cpu1/proc"), TestSupport::fixture("cpu1/sys")}),
                 QStringLiteral("Tiny Board Rev 1.2"));

        ScratchTree tree;
        const SystemRoots roots{tree.path("proc"), tree.path("sys"), true};
        QCOMPARE(CPUMonitor::brandString(roots), QStringLiteral("CPU"));
        QVERIFY(tree.write("proc/cpuinfo", "processor\t: 0\nmodel name\t:   \n"));
        QVERIFY(tree.write("proc/device-tree/model", QByteArray("\0", 1)));
        QCOMPARE(CPUMonitor::brandString(roots), QStringLiteral("CPU"));
        // Bytes that are not UTF-8 are replaced, not a reason to give up.
        QVERIFY(tree.write("proc/cpuinfo", "model name\t: Fast\xff  Chip \n"));
        QCOMPARE(CPUMonitor::brandString(roots), QStringLiteral("Fast\uFFFD Chip"));
    }
};

SULK_TEST(CpuMonitorTest)
#include "CpuMonitorTest.moc"
