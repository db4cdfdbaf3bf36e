// MemoryMonitor over fixture trees, and the memory cleaner's sizing and
// hand-back (with fake figures: nothing here allocates more than a few MiB).

#include "FastReaderScratch.h"
#include "common/TestSupport.h"
#include "sampling/MemoryMonitor.h"

#include <QCoreApplication>
#include <QTest>
#include <QThread>
#include <QThreadPool>

#include <memory>

namespace {

constexpr double GiB = 1024.0 * 1024.0 * 1024.0;

MemorySample sample(double total, double free, double cached)
{
    MemorySample s;
    s.total = total;
    s.used = total - free;
    s.cached = cached;
    s.deriveFreeAndPressure();
    return s;
}

// A small machine: 64 MiB, 8 MiB available, so a clean-up touches a few MiB.
const QByteArray smallMeminfo = "MemTotal:          65536 kB\n"
                                "MemFree:           4096 kB\n"
                                "MemAvailable:      8192 kB\n"
                                "Buffers:           1024 kB\n"
                                "Cached:            4096 kB\n"
                                "SReclaimable:      1024 kB\n";

} // namespace

class MemoryMonitorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void laptopWithZramSwap()
    {
        MemoryMonitor monitor({TestSupport::fixture("laptop/proc"), TestSupport::fixture("laptop/sys")});
        const MemorySample s = monitor.read();
        QCOMPARE(s.total, 16063860.0 * 1024);
        // What `free` calls used: MemTotal - MemAvailable.
        QCOMPARE(s.used, (16063860.0 - 9123456.0) * 1024);
        QCOMPARE(s.free, 9123456.0 * 1024);
        // free's buff/cache: Buffers + Cached + SReclaimable.
        QCOMPARE(s.cached, (412344.0 + 7012340.0 + 512000.0) * 1024);
        // Unevictable + SUnreclaim + KernelStack + PageTables.
        QCOMPARE(s.wired, (64000.0 + 180000.0 + 21000.0 + 72000.0) * 1024);
        // zram0's mem_used_total (no zswap on this machine).
        QCOMPARE(s.compressed, 125829120.0);
        QCOMPARE(s.swapTotal, 8031228.0 * 1024);
        QCOMPARE(s.swapUsed, 500000.0 * 1024);
        QCOMPARE(s.pressure, 6940404.0 / 16063860.0);
    }

    void compressedAddsZswapAndEveryZramDevice()
    {
        ScratchTree proc;
        ScratchTree sys;
        QVERIFY(proc.write("meminfo", smallMeminfo + "Zswap:             2048 kB\n"));
        QVERIFY(sys.write("block/zram0/mm_stat", "4096 1024 3000000 0 3000000 0 0 0 0\n"));
        QVERIFY(sys.write("block/zram1/mm_stat", "  8192   2048   5000000        0  5000000        0        0\n"));
        // Damaged or unreadable devices add nothing.
        QVERIFY(sys.write("block/zram2/mm_stat", "garbage\n"));
        QVERIFY(sys.write("block/zram3/mm_stat", "1 2\n"));
        QVERIFY(QDir().mkpath(sys.path("block/zram4")));
        // Not a zram device.
        QVERIFY(sys.write("block/sda/mm_stat", "1 1 999999999 0\n"));
        MemoryMonitor monitor(proc.asProc(sys.path()));
        QCOMPARE(monitor.read().compressed, 2048.0 * 1024 + 3000000 + 5000000);
    }

    void oddFiguresStayInRange()
    {
        ScratchTree proc;
        const SystemRoots roots = proc.asProc(proc.path());

        // MemAvailable above MemTotal, SwapFree above SwapTotal.
        QVERIFY(proc.write("meminfo", "MemTotal: 1000 kB\nMemAvailable: 5000 kB\nSwapTotal: 10 kB\nSwapFree: 20 kB\n"));
        MemorySample s = MemoryMonitor(roots).read();
        QCOMPARE(s.used, 0.0);
        QCOMPARE(s.free, 1000.0 * 1024);
        QCOMPARE(s.pressure, 0.0);
        QCOMPARE(s.swapUsed, 0.0);

        // A kernel without MemAvailable: free memory plus the reclaimable caches.
        QVERIFY(proc.write("meminfo", "MemTotal: 1000 kB\nMemFree: 100 kB\nBuffers: 50 kB\nCached: 200 kB\n"
                                      "SReclaimable: 50 kB\n"));
        MemoryMonitor old(roots);
        s = old.read();
        QCOMPARE(s.used, 600.0 * 1024);
        QCOMPARE(s.pressure, 0.6);
        QCOMPARE(old.lastAvailable(), 400.0 * 1024);

        // Garbage values and lines are skipped, the rest still counts.
        QVERIFY(proc.write("meminfo", "MemTotal: 2000 kB\nMemAvailable: lots kB\nno colon here\n:\n"
                                      "Cached: 12x kB\nBuffers: 100 kB\n"));
        s = MemoryMonitor(roots).read();
        QCOMPARE(s.total, 2000.0 * 1024);
        QCOMPARE(s.cached, 100.0 * 1024);
        QVERIFY(s.pressure >= 0 && s.pressure <= 1);
    }

    void keysAreMatchedWholeInAnyOrder()
    {
        ScratchTree proc;
        // Look-alikes of every length the reader knows (SwapCached is as
        // long as SUnreclaim, Zswapped starts like Zswap), the wanted keys
        // backwards, and a second MemTotal line that must not count.
        QVERIFY(proc.write("meminfo", "SwapCached:      111 kB\n"
                                      "Zswapped:        222 kB\n"
                                      "Active(file):    333 kB\n"
                                      "PageTables:        4 kB\n"
                                      "KernelStack:       3 kB\n"
                                      "SUnreclaim:        2 kB\n"
                                      "SReclaimable:     30 kB\n"
                                      "Zswap:             5 kB\n"
                                      "SwapFree:        600 kB\n"
                                      "SwapTotal:      1000 kB\n"
                                      "Unevictable:       1 kB\n"
                                      "Cached:          200 kB\n"
                                      "Buffers:          10 kB\n"
                                      "MemAvailable:   4000 kB\n"
                                      "MemFree:        1000 kB\n"
                                      "MemTotal:      10000 kB\n"
                                      "MemTotal:      99999 kB\n"));
        MemoryMonitor monitor(proc.asProc(proc.path()));
        const MemorySample s = monitor.read();
        QCOMPARE(s.total, 10000.0 * 1024);
        QCOMPARE(s.used, 6000.0 * 1024);
        QCOMPARE(s.cached, 240.0 * 1024);
        QCOMPARE(s.wired, 10.0 * 1024);
        QCOMPARE(s.compressed, 5.0 * 1024);
        QCOMPARE(s.swapUsed, 400.0 * 1024);

        // The next reading of a changed file is read afresh, not from where
        // the last one stopped.
        QVERIFY(proc.write("meminfo", "MemTotal: 8000 kB\nMemAvailable: 2000 kB\nCached: 1 kB\n"));
        const MemorySample next = monitor.read();
        QCOMPARE(next.used, 6000.0 * 1024);
        QCOMPARE(next.cached, 1.0 * 1024);
        QCOMPARE(next.swapTotal, 0.0);
    }

    void missingSourcesGiveTheEmptyRecord()
    {
        ScratchTree proc;
        const SystemRoots roots = proc.asProc(proc.path());
        QCOMPARE(MemoryMonitor(roots).read(), MemorySample{});
        for (const QByteArray &text : {QByteArray(), QByteArray("MemFree: 100 kB\n"), QByteArray("MemTotal: 0 kB\n"),
                                       QByteArray(4000, '\xff')}) {
            QVERIFY(proc.write("meminfo", text));
            MemoryMonitor monitor(roots);
            QCOMPARE(monitor.read(), MemorySample{});
            QCOMPARE(monitor.lastAvailable(), 0.0);
        }
        // Without any zram devices compressed is simply 0.
        QVERIFY(proc.write("meminfo", smallMeminfo));
        QCOMPARE(MemoryMonitor(roots).read().compressed, 0.0);
    }

    void cleanupTarget()
    {
        // 8 GiB machine, 1 GiB free, 5 GiB cached, plenty available:
        // 40 % of memory is the smaller bound.
        QCOMPARE(MemoryCleaner::target(sample(8 * GiB, 1 * GiB, 5 * GiB), 7 * GiB), 3435973836.8);
        // 64 GiB, 20 GiB free: never more than 6 GiB.
        QCOMPARE(MemoryCleaner::target(sample(64 * GiB, 20 * GiB, 10 * GiB), 30 * GiB), 6 * GiB);
        // Little free and little cache: free + cache.
        QCOMPARE(MemoryCleaner::target(sample(16 * GiB, 1 * GiB, 0.5 * GiB), 10 * GiB), 1.5 * GiB);
        // Cache counts up to 3 GiB only.
        QCOMPARE(MemoryCleaner::target(sample(16 * GiB, 0.25 * GiB, 8 * GiB), 10 * GiB), 3.25 * GiB);
        // The OOM guard: never more than 80 % of what the kernel says is
        // available, however much the other bounds would allow.
        QCOMPARE(MemoryCleaner::target(sample(16 * GiB, 2 * GiB, 8 * GiB), 2 * GiB), 1.6 * GiB);
        QCOMPARE(MemoryCleaner::target(sample(64 * GiB, 20 * GiB, 10 * GiB), 0), 0.0);

        // Nothing to do rather than a negative or meaningless amount.
        QCOMPARE(MemoryCleaner::target(MemorySample{}, 0), 0.0);
        QCOMPARE(MemoryCleaner::target(sample(8 * GiB, 1 * GiB, 1 * GiB), -5), 0.0);
        QCOMPARE(MemoryCleaner::target(sample(8 * GiB, 1 * GiB, 1 * GiB), qQNaN()), 0.0);
        MemorySample broken = sample(8 * GiB, 1 * GiB, 1 * GiB);
        broken.cached = qQNaN();
        QCOMPARE(MemoryCleaner::target(broken, 4 * GiB), 0.0);
    }

    void chunkSizes()
    {
        // The remainder comes last, cut to whole bytes.
        QCOMPARE(MemoryCleaner::chunkSizes(3435973836.8), QList<qint64>(12, 268435456) << 214748364);
        QCOMPARE(MemoryCleaner::chunkSizes(6 * GiB), QList<qint64>(24, 268435456));

        QCOMPARE(MemoryCleaner::chunkSizes(4096.9), QList<qint64>{4096});
        QVERIFY(MemoryCleaner::chunkSizes(0.9).isEmpty());
        QVERIFY(MemoryCleaner::chunkSizes(-1).isEmpty());
        QVERIFY(MemoryCleaner::chunkSizes(qQNaN()).isEmpty());
    }

    void freeUpCompletesOnceOnTheMainThread()
    {
        // Figures that did not change, or no meminfo at all: 0 is the honest
        // answer.
        for (const QByteArray &meminfo : {smallMeminfo, QByteArray()}) {
            ScratchTree proc;
            if (!meminfo.isEmpty())
                QVERIFY(proc.write("meminfo", meminfo));
            QObject context;
            QList<double> results;
            QThread *thread = nullptr;
            const auto done = [&](double bytes) {
                results.append(bytes);
                thread = QThread::currentThread();
            };
            MemoryCleaner::freeUp(&context, done, proc.asProc(proc.path()));
            QVERIFY(results.isEmpty()); // returns at once
            QTRY_COMPARE_WITH_TIMEOUT(results.size(), 1, 10000);
            QCOMPARE(thread, QCoreApplication::instance()->thread());
            QCOMPARE(results.first(), 0.0);
            QTest::qWait(300);
            QCOMPARE(results.size(), 1);
        }
    }

    void freeUpForgetsACompletionWhoseContextIsGone()
    {
        ScratchTree proc;
        QVERIFY(proc.write("meminfo", smallMeminfo));
        auto context = std::make_unique<QObject>();
        int calls = 0;
        MemoryCleaner::freeUp(context.get(), [&](double) { ++calls; }, proc.asProc(proc.path()));
        context.reset();
        // Give the pool thread time to finish and post its result.
        QThreadPool::globalInstance()->waitForDone(10000);
        QTest::qWait(100);
        QCOMPARE(calls, 0);
    }
};

SULK_TEST(MemoryMonitorTest)
#include "MemoryMonitorTest.moc"
