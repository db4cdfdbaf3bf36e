// The top-process list over three fixture snapshots of /proc (t0, t1 two
// seconds later, t2 three seconds after that), and once on this machine
// against a process that is known to be busy.

#include "common/TestSupport.h"

#include "sampling/ProcessMonitor.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

namespace {

// A root whose proc folder is a link that the fake sleep moves from one
// snapshot to the next, with a clock that the test moves by hand.
struct Snapshots {
    QTemporaryDir dir;
    std::shared_ptr<double> now = std::make_shared<double>(100.0);
    std::shared_ptr<int> sleeps = std::make_shared<int>(0);
    std::shared_ptr<int> step = std::make_shared<int>(0);

    QString link() const { return dir.path() + QStringLiteral("/proc"); }

    void show(int snapshot)
    {
        *step = snapshot;
        QFile::remove(link());
        QVERIFY(QFile::link(TestSupport::fixture(QStringLiteral("procs/t%1/proc").arg(snapshot)), link()));
    }

    ProcessMonitor monitor()
    {
        show(0);
        ProcessMonitor::Options o;
        o.clock = [now = now] { return *now; };
        // The pause that stands in for a previous call: the machine moves on
        // to the next snapshot, two seconds later.
        o.sleep = [this](double) {
            ++*sleeps;
            *now += 2.0;
            show(*step + 1);
        };
        return ProcessMonitor({link(), dir.path() + QStringLiteral("/sys"), true}, o);
    }
};

QList<int> ids(const QList<ProcInfo> &list)
{
    QList<int> out;
    for (const ProcInfo &p : list)
        out << p.id();
    return out;
}

const ProcInfo *find(const QList<ProcInfo> &list, int pid)
{
    for (const ProcInfo &p : list)
        if (p.id() == pid)
            return &p;
    return nullptr;
}

double clockTicks()
{
    return double(sysconf(_SC_CLK_TCK));
}

} // namespace

class ProcessMonitorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void firstListMeasuresOverItsOwnPause()
    {
        Snapshots snaps;
        ProcessMonitor monitor = snaps.monitor();
        const QList<ProcInfo> top = monitor.topByCPU(6);
        QCOMPARE(*snaps.sleeps, 1);

        // Ticks over the two seconds: Web Content 350, firefox 200, the
        // compiler that took over pid 4242 80 (it started in the interval,
        // so all its time counts), "tricky) (name" 40, the kworker 6,
        // systemd 2.
        QCOMPARE(ids(top), (QList<int>{1388, 1204, 4242, 2203, 3001, 1}));
        const double perTick = 100.0 / clockTicks() / 2.0;
        QCOMPARE(top[0].cpu(), 350 * perTick);
        QCOMPARE(top[2].cpu(), 80 * perTick);
        QCOMPARE(top[3].cpu(), 40 * perTick);

        QCOMPARE(top[0].name(), QStringLiteral("Web Content"));
        QCOMPARE(top[2].name(), QStringLiteral("cc1plus"));
        QCOMPARE(top[3].name(), QStringLiteral("tricky) (name"));
        QCOMPARE(top[4].name(), QStringLiteral("kworker/u16:3-e"));

        // Resident pages over MemTotal (16318504 kB).
        const double page = double(sysconf(_SC_PAGESIZE));
        QCOMPARE(top[1].mem(), 150000 * page / (16318504.0 * 1024) * 100);

        // 9 readable processes; the vanished one, the damaged ones and
        // "self" are skipped. The one first seen at t1 although it started
        // long before has no baseline: no share rather than a made-up one.
        QCOMPARE(monitor.lastProcessCount(), 9);
        Snapshots again;
        const QList<ProcInfo> all = again.monitor().topByCPU(100);
        QCOMPARE(all.size(), 9);
        QVERIFY(find(all, 6100) && find(all, 6100)->cpu() == 0.0);
        for (int skipped : {6000, 6001, 6002, 6003, 9999})
            QVERIFY(!find(all, skipped));
    }

    void laterListsUseThePreviousCall()
    {
        Snapshots snaps;
        ProcessMonitor monitor = snaps.monitor();
        monitor.topByCPU(6);

        // Three seconds on: Web Content 600 ticks, the compiler 150, and the
        // process first seen at t1 (started long before, so it had no
        // baseline then) 10. The rest were idle and follow by memory.
        *snaps.now += 3.0;
        snaps.show(2);
        const QList<ProcInfo> top = monitor.topByCPU(4);
        QCOMPARE(*snaps.sleeps, 1);
        QCOMPARE(ids(top), (QList<int>{1388, 4242, 6100, 1204}));
        const double perTick = 100.0 / clockTicks() / 3.0;
        QCOMPARE(top[0].cpu(), 600 * perTick);
        QVERIFY(top[0].cpu() > 100); // several threads: more than one core
        QCOMPARE(top[2].cpu(), 10 * perTick);
        QCOMPARE(top[3].cpu(), 0.0);

        // A long pause (the panel was closed) makes the next list take a
        // fresh baseline instead of averaging over minutes.
        *snaps.now += 600.0;
        snaps.show(1);
        monitor.topByCPU(6);
        QCOMPARE(*snaps.sleeps, 2);
    }

    void emptyWhenThereIsNothingToList()
    {
        // Not the live machine: no processes of another machine's snapshot.
        const QString t0 = TestSupport::fixture(QStringLiteral("procs/t0/proc"));
        int sleeps = 0;
        ProcessMonitor::Options o;
        o.sleep = [&](double) { ++sleeps; };
        ProcessMonitor snapshot({t0, QString(), false}, o);
        QVERIFY(snapshot.topByCPU(6).isEmpty());
        QCOMPARE(sleeps, 0);

        ProcessMonitor missing({QStringLiteral("/nonexistent/proc"), QString(), true}, o);
        QVERIFY(missing.topByCPU(6).isEmpty());
        QCOMPARE(missing.lastProcessCount(), 0);

        ProcessMonitor live({t0, QString(), true}, o);
        QVERIFY(live.topByCPU(0).isEmpty());
        QVERIFY(live.topByCPU(-3).isEmpty());
        QCOMPARE(live.topByCPU(2).size(), 2);
    }

    void busyProcessOnThisMachineShowsItsRecentShare()
    {
        QProcess burner;
        burner.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("while :; do :; done")});
        QVERIFY(burner.waitForStarted());
        const int pid = int(burner.processId());

        ProcessMonitor monitor;
        monitor.topByCPU(1000);
        QTest::qWait(600);
        const QList<ProcInfo> all = monitor.topByCPU(1000);
        burner.kill();
        burner.waitForFinished();

        QVERIFY(all.size() > 3);
        const ProcInfo *busy = find(all, pid);
        QVERIFY(busy);
        QCOMPARE(busy->name(), QStringLiteral("sh"));
        // A spinning shell gets most of a core even on a busy machine; a
        // lifetime average or a wrong field would not.
        QVERIFY2(busy->cpu() > 25 && busy->cpu() <= 110, qPrintable(QString::number(busy->cpu())));
        QVERIFY(busy->mem() > 0 && busy->mem() < 5);
        for (qsizetype i = 1; i < all.size(); ++i)
            QVERIFY(all[i - 1].cpu() >= all[i].cpu());
        QVERIFY(find(all, int(QCoreApplication::applicationPid())));
    }
};

SULK_TEST(ProcessMonitorTest)
#include "ProcessMonitorTest.moc"
