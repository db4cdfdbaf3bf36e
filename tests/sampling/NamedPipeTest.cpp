// A named pipe where a reader expects a file must not stall it: opening one
// for reading waits for a writer unless it is opened without blocking.

#include "FastReaderScratch.h"
#include "common/TestSupport.h"

#include "sampling/DiskMonitor.h"
#include "sampling/ProcessMonitor.h"

#include <QTest>

#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

class NamedPipeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namedPipesNeverBlockAReader()
    {
        ScratchTree tree;
        QVERIFY(tree.write(QStringLiteral("proc/uptime"), "100.00 50.00\n"));
        QVERIFY(tree.write(QStringLiteral("proc/meminfo"), "MemTotal: 1000000 kB\n"));
        QVERIFY(tree.write(QStringLiteral("proc/1/stat"), "1 (init) S 0 1 1 0 -1 0 0 0 0 0 5 1 0 0 20 0 1 0 10 1000 "
                                                          "300 0 0 0 0 0 0 0 0 0 0 0 0 17 0 0 0 0 0 0\n"));
        QVERIFY(QDir().mkpath(tree.path(QStringLiteral("proc/2"))));
        QVERIFY(QDir().mkpath(tree.path(QStringLiteral("proc/self"))));
        const QStringList pipes{tree.path(QStringLiteral("proc/2/stat")), tree.path(QStringLiteral("proc/self/mountinfo"))};
        for (const QString &pipe : pipes)
            QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        const SystemRoots roots{tree.path(QStringLiteral("proc")), tree.path(QStringLiteral("sys")), true};

        // The readers run on a thread of their own; should one block, the
        // pipes get a writer, which lets it go, and the test fails.
        auto done = std::make_shared<std::atomic<bool>>(false);
        auto listed = std::make_shared<std::atomic<int>>(-1);
        std::thread worker([roots, done, listed] {
            ProcessMonitor::Options o;
            o.sleep = [](double) {};
            ProcessMonitor processes(roots, o);
            listed->store(int(processes.topByCPU(6).size()));
            DiskMonitor::Options d;
            d.statOffThread = false;
            d.stat = [](const QString &) { return std::optional<DiskMonitor::FsFigures>(); };
            DiskMonitor disk(roots, d);
            disk.read();
            done->store(true);
        });
        const bool finished = QTest::qWaitFor([&] { return done->load(); }, 10000);
        while (!done->load()) {
            for (const QString &pipe : pipes) {
                const int fd = ::open(QFile::encodeName(pipe).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
                if (fd >= 0)
                    ::close(fd);
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        worker.join();
        QVERIFY2(finished, "a reader waited on a named pipe");
        QCOMPARE(listed->load(), 1);
    }
};

SULK_TEST(NamedPipeTest)
#include "NamedPipeTest.moc"
