// `sulkbox status` measures its rates over exactly one refresh interval: one
// baseline, one sample, nothing in between. The machine here is a scratch
// tree whose counters grow at known steady rates in steps of a few
// milliseconds, as the kernel's do; each file is replaced under its reader
// just before it reads it. Over a whole interval the steps make an error of
// at most 1 %; over the sliver a racing timer leaves, many times that.

#include "common/TestSupport.h"

#include "app/Cli.h"
#include "model/SystemMonitor.h"
#include "sampling/CPUMonitor.h"
#include "sampling/DiskMonitor.h"
#include "sampling/NetworkMonitor.h"
#include "settings/Settings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <chrono>
#include <cmath>

namespace {

// The counters' step, and what each grows by per step.
constexpr double stepSeconds = 0.004;
constexpr quint64 userTicks = 25, idleTicks = 75;          // 25 % busy on every CPU
constexpr quint64 rxBytes = 5000, txBytes = 2500;          // 1.25 MB/s down, 625 kB/s up
constexpr quint64 readSectors = 16, writtenSectors = 8;    // 2,048,000 B/s read, 1,024,000 B/s written

class SteadyMachine : public EmptySamplers {
public:
    explicit SteadyMachine(const QString &root)
        : m_root(root)
        , m_start(std::chrono::steady_clock::now())
    {
        // Physical devices have a device link; a plain file stands for one.
        write(QStringLiteral("sys/class/net/eth0/device"), {});
        write(QStringLiteral("sys/block/nvme0n1/device"), {});
        const SystemRoots roots = SystemRoots::underPrefix(root);
        m_cpu = std::make_unique<CPUMonitor>(roots);
        m_network = std::make_unique<NetworkMonitor>(roots);
        // The readers' clocks tell the moment their file was written, so a
        // test process that is put aside between writing and reading (a
        // busy machine) cannot skew the rates; what remains is the steps.
        m_network->setClock([this] { return m_writtenAt; });
        DiskMonitor::Options options;
        options.clock = [this] { return m_writtenAt; };
        options.statOffThread = false;
        m_disk = std::make_unique<DiskMonitor>(roots, options);
    }

    CPUSample readCPU() override
    {
        const quint64 n = steps();
        const QByteArray cpu = QByteArray::number(n * userTicks) + " 0 0 " + QByteArray::number(n * idleTicks)
            + " 0 0 0 0 0 0\n";
        QByteArray text = "cpu  0 0 0 0 0 0 0 0 0 0\n";
        for (int i = 0; i < 4; ++i)
            text += "cpu" + QByteArray::number(i) + ' ' + cpu;
        write(QStringLiteral("proc/stat"), text + "intr 0\n");
        return m_cpu->read();
    }

    NetworkSample readNetwork(bool refresh) override
    {
        const quint64 n = steps();
        write(QStringLiteral("proc/net/dev"),
              "Inter-|   Receive |  Transmit\n face |bytes packets|bytes packets\n  eth0: "
                  + QByteArray::number(n * rxBytes) + " 1 0 0 0 0 0 0 " + QByteArray::number(n * txBytes)
                  + " 1 0 0 0 0 0 0\n");
        return m_network->read(refresh);
    }

    DiskSample readDisk() override
    {
        const quint64 n = steps();
        write(QStringLiteral("proc/diskstats"), " 259 0 nvme0n1 1 0 " + QByteArray::number(n * readSectors)
                                                   + " 1 1 0 " + QByteArray::number(n * writtenSectors)
                                                   + " 1 0 1 1 0 0 0 0\n");
        return m_disk->read();
    }

    void clearDiskBaseline() override { m_disk->clearBaseline(); }

private:
    // Steps since the start, counted from a baseline far from zero; notes
    // the moment for the readers' clocks.
    quint64 steps()
    {
        m_writtenAt = std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
        return 100000 + quint64(std::floor(m_writtenAt / stepSeconds));
    }

    // Replaces the file whole, as a snapshot tool would.
    void write(const QString &relative, const QByteArray &data) const
    {
        const QString path = m_root + u'/' + relative;
        QDir().mkpath(QFileInfo(path).path());
        QFile f(path + QStringLiteral(".new"));
        QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QCOMPARE(f.write(data), data.size());
        f.close();
        QVERIFY(::rename(QFile::encodeName(f.fileName()).constData(), QFile::encodeName(path).constData()) == 0);
    }

    QString m_root;
    std::chrono::steady_clock::time_point m_start;
    double m_writtenAt = 0;
    std::unique_ptr<CPUMonitor> m_cpu;
    std::unique_ptr<NetworkMonitor> m_network;
    std::unique_ptr<DiskMonitor> m_disk;
};

bool near(double value, double expected)
{
    return std::abs(value - expected) <= 0.02 * expected;
}

} // namespace

class StatusIntervalTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { TestSupport::clearSettings(); }
    void cleanup() { TestSupport::clearSettings(); }

    void everyRunMeasuresOneWholeInterval()
    {
        Settings::set(Settings::Key::refreshInterval, 0.5);
        QStringList misses;
        for (int run = 0; run < 40; ++run) {
            QTemporaryDir root;
            const auto monitor = Cli::measure(std::make_shared<SteadyMachine>(root.path()));
            const double cpu = monitor->cpu().total;
            const NetworkSample &net = monitor->network();
            const DiskSample &disk = monitor->disk();
            const bool ok = near(cpu, 0.25) && near(net.downRate, rxBytes / stepSeconds)
                && near(net.upRate, txBytes / stepSeconds) && disk.hasRate
                && near(disk.readRate, readSectors * 512 / stepSeconds)
                && near(disk.writeRate, writtenSectors * 512 / stepSeconds);
            if (!ok)
                misses << u"run %1: cpu %2, down %3, up %4, read %5, write %6"_qs.arg(run).arg(cpu).arg(net.downRate)
                              .arg(net.upRate).arg(disk.readRate).arg(disk.writeRate);
        }
        QVERIFY2(misses.isEmpty(), qPrintable(u"%1 of 40 runs off by more than 2 %:\n"_qs.arg(misses.size()) + misses.join(u'\n')));
    }
};

SULK_TEST(StatusIntervalTest)
#include "StatusIntervalTest.moc"
