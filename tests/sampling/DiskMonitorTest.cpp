// Volumes and disk rates over fixture trees: a laptop (btrfs on LUKS, USB
// disks, snaps), a server (LVM on md RAID1 over two NVMe disks) and a
// container. Capacities come from a fake statvfs so nothing here depends on
// this machine's mounts.

#include "common/TestSupport.h"

#include "sampling/DiskMonitor.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <thread>

namespace {

using TestSupport::copyTree;

constexpr double GB = 1e9;

using Figures = DiskMonitor::FsFigures;

// A statvfs stand-in: fixed figures per mount point; records what it was
// asked.
struct FakeStat {
    QHash<QString, Figures> figures;
    std::shared_ptr<QStringList> asked = std::make_shared<QStringList>();

    DiskMonitor::StatFn fn() const
    {
        return [figures = figures, asked = asked](const QString &path) -> std::optional<Figures> {
            asked->append(path);
            const auto it = figures.constFind(path);
            if (it == figures.cend())
                return std::nullopt;
            return *it;
        };
    }
};

struct Clock {
    std::shared_ptr<double> now = std::make_shared<double>(1'700'000'000.0);
    std::function<double()> fn() const
    {
        return [now = now] { return *now; };
    }
    void advance(double seconds) { *now += seconds; }
};

SystemRoots fixtureRoots(const QString &tree, bool live = true)
{
    return {TestSupport::fixture(tree + QStringLiteral("/proc")), TestSupport::fixture(tree + QStringLiteral("/sys")),
            live};
}

DiskMonitor::Options options(const FakeStat &stat, const Clock &clock = {})
{
    DiskMonitor::Options o;
    o.stat = stat.fn();
    o.clock = clock.fn();
    o.statOffThread = false;
    return o;
}

QStringList column(const DiskSample &s, QString VolumeInfo::*field)
{
    QStringList out;
    for (const VolumeInfo &v : s.volumes)
        out << v.*field;
    return out;
}
QStringList names(const DiskSample &s) { return column(s, &VolumeInfo::name); }
QStringList paths(const DiskSample &s) { return column(s, &VolumeInfo::path); }

// The laptop's four user volumes.
QHash<QString, Figures> laptopFigures()
{
    return {{QStringLiteral("/"), {1000 * GB, 400 * GB, false}},
            {QStringLiteral("/mnt/windows"), {200 * GB, 20 * GB, false}},
            {QStringLiteral("/run/media/alex/KINGSTON"), {32 * GB, 30 * GB, false}},
            {QStringLiteral("/run/media/alex/My Photos (2023)"), {2000 * GB, 150 * GB, false}}};
}

// A monitor over a writable copy of a fixture tree whose diskstats tests
// swap between readings.
struct StepRoot {
    QTemporaryDir dir;
    Clock clock;
    std::unique_ptr<DiskMonitor> monitor;
    explicit StepRoot(const QString &tree, const FakeStat &stat = {})
    {
        copyTree(TestSupport::fixture(tree), dir.path());
        monitor = std::make_unique<DiskMonitor>(
            SystemRoots{dir.path() + QStringLiteral("/proc"), dir.path() + QStringLiteral("/sys"), true},
            options(stat, clock));
    }
    void use(const QString &fixtureFile)
    {
        const QString target = dir.path() + QStringLiteral("/proc/diskstats");
        QFile::remove(target);
        QVERIFY(QFile::copy(TestSupport::fixture(fixtureFile), target));
    }
    // The reading `seconds` later, over `diskstats` when given.
    DiskSample readAfter(double seconds, const QString &diskstats = {})
    {
        if (!diskstats.isEmpty())
            use(diskstats);
        clock.advance(seconds);
        return monitor->read();
    }
};

} // namespace

class DiskMonitorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void laptopListsRealUserVolumesLargestFirst()
    {
        FakeStat stat{laptopFigures()};
        stat.figures.insert(QStringLiteral("/home"), {1000 * GB, 400 * GB, false});
        DiskMonitor monitor(fixtureRoots(QStringLiteral("laptop")), options(stat));
        const DiskSample s = monitor.read();

        // btrfs "/" and "/home" are one file system; the startup disk goes
        // by the machine's name; the escaped mount point is decoded.
        QCOMPARE(names(s), (QStringList{QStringLiteral("My Photos (2023)"), QStringLiteral("alex-laptop"),
                                        QStringLiteral("windows"), QStringLiteral("KINGSTON")}));
        QCOMPARE(paths(s), (QStringList{QStringLiteral("/run/media/alex/My Photos (2023)"), QStringLiteral("/"),
                                        QStringLiteral("/mnt/windows"), QStringLiteral("/run/media/alex/KINGSTON")}));
        QCOMPARE(s.volumes[1].total, 1000 * GB);
        QCOMPARE(s.volumes[1].free, 400 * GB);

        // Pseudo, network, FUSE, squashfs, boot and read-only mounts are
        // never even asked about.
        for (const QString &never : {QStringLiteral("/tmp"), QStringLiteral("/boot/efi"), QStringLiteral("/proc"),
                                     QStringLiteral("/home/alex/remote"), QStringLiteral("/run/user/1000/gvfs"),
                                     QStringLiteral("/var/lib/snapd/snap/core22/1122"),
                                     QStringLiteral("/run/media/alex/Ubuntu 24.04 LTS amd64")})
            QVERIFY2(!stat.asked->contains(never), qPrintable(never));
    }

    void serverWithLvmAndRaidListsEachFileSystemOnce()
    {
        FakeStat stat{{
            {QStringLiteral("/"), {50 * GB, 30 * GB, false}},
            {QStringLiteral("/home"), {500 * GB, 100 * GB, false}},
            {QStringLiteral("/srv/nfs"), {500 * GB, 100 * GB, false}},
            {QStringLiteral("/var/lib/postgresql"), {300 * GB, 10 * GB, false}},
            {QStringLiteral("/srv/media library"), {300 * GB, 250 * GB, false}},
            {QStringLiteral("/srv/scratch"), {300 * GB, 300 * GB, false}},
            {QStringLiteral("/mnt/weird\\name\ttab"), {1 * GB, 1 * GB, false}},
            {QStringLiteral("/boot"), {1 * GB, 0.8 * GB, false}},
        }};
        DiskMonitor monitor(fixtureRoots(QStringLiteral("server")), options(stat));
        const DiskSample s = monitor.read();

        // Equal sizes keep the mount table's order. The tab in a mount point
        // (asked for as it is) is shown as a space.
        QCOMPARE(paths(s), (QStringList{QStringLiteral("/home"), QStringLiteral("/var/lib/postgresql"),
                                        QStringLiteral("/srv/media library"), QStringLiteral("/srv/scratch"),
                                        QStringLiteral("/"), QStringLiteral("/mnt/weird\\name tab")}));
        QCOMPARE(names(s), (QStringList{QStringLiteral("home"), QStringLiteral("postgresql"),
                                        QStringLiteral("media library"), QStringLiteral("scratch"),
                                        QStringLiteral("db01"), QStringLiteral("weird\\name tab")}));
        QVERIFY(!stat.asked->contains(QStringLiteral("/mnt/nas")));
        QVERIFY(!stat.asked->contains(QStringLiteral("/mnt/backup copy")));
        // /media is a later bind of the whole media volume: the original
        // mount keeps its name.
        QVERIFY(!stat.asked->contains(QStringLiteral("/media")));

        // When the preferred mount of a file system cannot be read, another
        // mount of the same file system stands in.
        FakeStat noHome = stat;
        noHome.figures.remove(QStringLiteral("/home"));
        DiskMonitor second(fixtureRoots(QStringLiteral("server")), options(noHome));
        const DiskSample t = second.read();
        QCOMPARE(t.volumes.value(0).path, QStringLiteral("/srv/nfs"));
        QCOMPARE(t.volumes.value(0).name, QStringLiteral("nfs"));
        QCOMPARE(t.volumes.size(), 6);
    }

    void capacityAgreesWithDf()
    {
        // Blocks held back for root are neither used nor available to the
        // user: used is what is taken, free what the user can still write,
        // and the share df's Use%.
        const Figures f = DiskMonitor::capacityOf(4096, 1000, 300, 250, false);
        QCOMPARE(f.total, (700.0 + 250.0) * 4096);
        QCOMPARE(f.free, 250.0 * 4096);
        QCOMPARE((VolumeInfo{QString(), QString(), f.total, f.free}.usedShare()), 700.0 / 950.0);
        // More free blocks than blocks (a damaged figure): nothing used.
        QCOMPARE(DiskMonitor::capacityOf(4096, 100, 200, 50, false).total, 50.0 * 4096);

        // And on this machine, against df itself.
        QProcess df;
        df.start(QStringLiteral("df"), {QStringLiteral("-B1"), QStringLiteral("--output=used,avail"), QStringLiteral("/")});
        if (!df.waitForFinished(10000) || df.exitCode() != 0)
            QSKIP("df is not available");
        const QList<QByteArray> row = df.readAllStandardOutput().split('\n').value(1).simplified().split(' ');
        QCOMPARE(row.size(), 2);
        const double used = row[0].toDouble(), avail = row[1].toDouble();
        const std::optional<Figures> live = DiskMonitor::statVolume(QStringLiteral("/"));
        QVERIFY(live);
        // Other work on this disk may write between the two looks.
        const double slack = 0.002 * (used + avail);
        QVERIFY2(qAbs(live->free - avail) < slack, qPrintable(QStringLiteral("%1 %2").arg(live->free).arg(avail)));
        QVERIFY2(qAbs(live->total - (used + avail)) < slack,
                 qPrintable(QStringLiteral("%1 %2").arg(live->total).arg(used + avail)));
    }

    void readOnlyAndEmptyVolumes()
    {
        FakeStat stat{{
            {QStringLiteral("/"), {64 * GB, 0, true}},                                    // read-only root: kept
            {QStringLiteral("/run/media/alex/KINGSTON"), {32 * GB, 30 * GB, true}},       // write-protected: dropped
            {QStringLiteral("/mnt/windows"), {0, 0, false}},                              // no capacity: dropped
            {QStringLiteral("/run/media/alex/My Photos (2023)"), {100 * GB, 120 * GB, false}},
        }};
        DiskMonitor monitor(fixtureRoots(QStringLiteral("laptop")), options(stat));
        const DiskSample s = monitor.read();
        QCOMPARE(paths(s), (QStringList{QStringLiteral("/run/media/alex/My Photos (2023)"), QStringLiteral("/")}));

        // A root mounted read-only is a candidate; other read-only mounts
        // are not, and neither are types the kernel marks nodev. Damaged
        // lines are skipped, good ones after them kept.
        const QByteArray filesystems = "nodev\ttmpfs\n\text4\nnodev\tfuse\n";
        const QByteArray mountinfo =
            "1 0 8:2 / / ro,relatime shared:1 - ext4 /dev/sda2 ro\n"
            "2 1 8:3 / /data rw,relatime shared:2 - ext4 /dev/sda3 ro\n"
            "3 1 8:4 / /media/x ro,relatime shared:3 - ext4 /dev/sda4 rw\n"
            "4 1 0:40 / /tmp rw - tmpfs tmpfs rw\n"
            "5 1 0:41 / /net rw - fuse.sshfs host:/ rw\n"
            "6 1 8:5 / /unknown rw - zfs-like /dev/sda5 rw\n"
            "7 1 0:42 / /unknown2 rw - zfs-like pool/data rw\n"
            "garbage\n"
            "8 0 8:12 / /\n"
            "9 0 8:12 / / rw - ext4\n"
            "10 0 nodevnumber / /x rw - ext4 /dev/sda1 rw\n"
            "11 0 8:13 / relative rw - ext4 /dev/sda13 rw\n"
            "\n   \n"
            "12 1 8:1 / /ok rw shared:1 master:2 - ext4 /dev/sda1 rw\n"
            "13 1 8:9 / /trailing\\ rw - ext4 /dev/sda9 rw\n";
        QStringList points;
        for (const auto &g : DiskScan::volumeCandidates(mountinfo, filesystems))
            points << g.first().mountPoint;
        QCOMPARE(points, (QStringList{QStringLiteral("/"), QStringLiteral("/unknown"), QStringLiteral("/ok"),
                                      QStringLiteral("/trailing\\")}));
    }

    void containerHasNoDiskRatesAndSkipsBoundFiles()
    {
        // Only /data is a folder; /etc/hosts and friends are files.
        StepRoot root(QStringLiteral("container"), {{{QStringLiteral("/data"), {500 * GB, 200 * GB, false}}}});
        DiskSample s = root.monitor->read();
        QCOMPARE(names(s), QStringList{QStringLiteral("data")});
        QVERIFY(!s.hasRate);
        s = root.readAfter(2, QStringLiteral("container/later/proc/diskstats"));
        QVERIFY(!s.hasRate);
        QCOMPARE(s.readRate, 0.0);
        QCOMPARE(s.writeRate, 0.0);
    }

    void snapshotListsNoVolumesButStillMeasuresDisks()
    {
        FakeStat stat{{{QStringLiteral("/"), {1000 * GB, 400 * GB, false}}}};
        Clock clock;
        DiskMonitor monitor(fixtureRoots(QStringLiteral("laptop"), false), options(stat, clock));
        DiskSample s = monitor.read();
        QVERIFY(s.volumes.isEmpty());
        QVERIFY(stat.asked->isEmpty());
        clock.advance(1);
        s = monitor.read();
        QVERIFY(s.hasRate); // unchanged counters: rate 0, but a valid one
        QCOMPARE(s.readRate, 0.0);
    }

    void ratesCountWholePhysicalDisksOnly_data()
    {
        QTest::addColumn<QString>("tree");
        QTest::addColumn<QString>("later");
        QTest::addColumn<double>("readRate");
        QTest::addColumn<double>("writeRate");
        // nvme0n1, sda, sdb and sr0 are disks; the partitions, the LUKS
        // mapping, loop devices and zram also moved and must not count.
        QTest::newRow("laptop") << "laptop" << "laptop/later" << 24000 * 512 / 2.0 << 41000 * 512 / 2.0;
        // Two NVMe disks under md RAID1 under LVM; each write shows on the
        // disks, the RAID, the volume and the partitions.
        QTest::newRow("server") << "server" << "server/later" << 3'072'000.0 << 5'120'000.0;
        // nvme0n1's counters reset; sda and sdb moved on.
        QTest::newRow("counters reset") << "laptop" << "laptop/backwards" << 4000 * 512 / 2.0 << 1000 * 512 / 2.0;
    }

    void ratesCountWholePhysicalDisksOnly()
    {
        QFETCH(QString, tree);
        QFETCH(QString, later);
        QFETCH(double, readRate);
        QFETCH(double, writeRate);
        StepRoot root(tree);
        QVERIFY(!root.monitor->read().hasRate);
        const DiskSample s = root.readAfter(2, later + QStringLiteral("/proc/diskstats"));
        QVERIFY(s.hasRate);
        QCOMPARE(s.readRate, readRate);
        QCOMPARE(s.writeRate, writeRate);
    }

    void rateNeedsAUsableInterval()
    {
        StepRoot root(QStringLiteral("laptop"));
        root.monitor->read();
        // 31 s: no rate, but the counters are kept for the next one.
        QVERIFY(!root.readAfter(31).hasRate);
        const QString later = QStringLiteral("laptop/later/proc/diskstats");
        QCOMPARE(root.readAfter(2, later).readRate, 24000 * 512 / 2.0);

        // Same timestamp, and a clock that stepped back: no rate.
        QVERIFY(!root.readAfter(0).hasRate);
        QVERIFY(!root.readAfter(-5).hasRate);

        // A cleared baseline primes; 30 s still gives a rate.
        root.monitor->clearBaseline();
        QVERIFY(!root.readAfter(1, QStringLiteral("laptop/proc/diskstats")).hasRate);
        const DiskSample s = root.readAfter(30, later);
        QVERIFY(s.hasRate);
        QCOMPARE(s.readRate, 24000 * 512 / 30.0);
    }

    void diskLeavingAndComingBackAddsNothing()
    {
        // sdb is unplugged between two readings (gone from diskstats and
        // from /sys/block): the other disks' traffic still shows, and the
        // vanished disk's large totals do not drag the sum below zero.
        StepRoot root(QStringLiteral("laptop"));
        root.monitor->read();
        QVERIFY(QDir(root.dir.path() + QStringLiteral("/sys/block/sdb")).removeRecursively());
        DiskSample s = root.readAfter(2, QStringLiteral("laptop/unplugged/proc/diskstats"));
        QVERIFY(s.hasRate);
        QCOMPARE(s.readRate, 8000 * 512 / 2.0);
        QCOMPARE(s.writeRate, 0.0);
        // Plugged back in with its old totals: it only primes.
        copyTree(TestSupport::fixture(QStringLiteral("laptop/sys/block/sdb")),
                 root.dir.path() + QStringLiteral("/sys/block/sdb"));
        s = root.readAfter(2, QStringLiteral("laptop/later/proc/diskstats"));
        QCOMPARE(s.readRate, (12000 + 4000) * 512 / 2.0);
        QCOMPARE(s.writeRate, 40000 * 512 / 2.0);
    }

    void missingOrDamagedSourcesGiveTheEmptyRecord()
    {
        Clock clock;
        FakeStat stat{{{QStringLiteral("/"), {1, 1, false}}}};
        DiskMonitor monitor({QStringLiteral("/nonexistent/proc"), QStringLiteral("/nonexistent/sys"), true},
                            options(stat, clock));
        for (int i = 0; i < 3; ++i) {
            clock.advance(1);
            QCOMPARE(monitor.read(), DiskSample{});
        }

        // Damaged diskstats lines are skipped, good ones kept.
        const QByteArray stats = " 8 0 sda 1 2 3\n"
                                 " 8 0 sdb 1 2 x 4 5 6 7 8 9 10 11\n"
                                 " 8 0 sdc 1 2 10 4 5 6 20 8 9 10 11\n"
                                 "\n";
        const auto bytes = DiskScan::parseDiskStats(stats);
        QCOMPARE(bytes.size(), 1);
        QCOMPARE(bytes.value(QStringLiteral("sdc")).read, quint64(10 * 512));
        QCOMPARE(bytes.value(QStringLiteral("sdc")).write, quint64(20 * 512));
    }

    void mountFieldsAndLabelsAreDecoded()
    {
        QCOMPARE(DiskScan::decodeMountField("/a\\040b\\011c\\012d\\134e"), QStringLiteral("/a b\tc\nd\\e"));
        QCOMPARE(DiskScan::decodeMountField("/x\\09"), QStringLiteral("/x\\09"));   // not octal
        QCOMPARE(DiskScan::decodeMountField("/x\\04"), QStringLiteral("/x\\04"));   // cut short
        QCOMPARE(DiskScan::decodeMountField("/caf\\303\\251"), QStringLiteral("/caf\u00e9"));

        QTemporaryDir dir;
        const QString byLabel = dir.path() + QStringLiteral("/by-label");
        TestSupport::writeFile(byLabel + QStringLiteral("/not-a-link"), {});
        QVERIFY(QFile::link(QStringLiteral("/dev/sda1"), byLabel + QStringLiteral("/USB\\x20STICK")));
        QVERIFY(QFile::link(QStringLiteral("/dev/mapper/luks-3f6b2c1e"), byLabel + QStringLiteral("/fedora")));
        QVERIFY(QFile::link(QStringLiteral("/dev/sdb1"), byLabel + QStringLiteral("/Fotos\\x2fAlt")));

        QCOMPARE(DiskScan::readLabels(byLabel).size(), 3);
        DiskMonitor::Options o = options(FakeStat{laptopFigures()});
        o.labelDir = byLabel;
        DiskMonitor monitor(fixtureRoots(QStringLiteral("laptop")), o);
        QCOMPARE(names(monitor.read()), (QStringList{QStringLiteral("Fotos/Alt"), QStringLiteral("fedora"),
                                                     QStringLiteral("windows"), QStringLiteral("USB STICK")}));
    }

    void hungMountNeverHoldsUpTheTick()
    {
        // A statvfs that does not return until released.
        auto released = std::make_shared<std::atomic<bool>>(false);
        const QHash<QString, Figures> figures = laptopFigures();
        DiskMonitor::Options o;
        o.statOffThread = true;
        o.stat = [released, figures](const QString &path) -> std::optional<Figures> {
            if (path == u"/run/media/alex/KINGSTON") {
                while (!released->load())
                    std::this_thread::sleep_for(std::chrono::milliseconds(5));
            }
            return figures.value(path);
        };
        DiskMonitor monitor(fixtureRoots(QStringLiteral("laptop")), o);

        QElapsedTimer total;
        total.start();
        qint64 slowest = 0;
        bool photosSeen = false;
        while (total.elapsed() < 10000) {
            QElapsedTimer one;
            one.start();
            const DiskSample s = monitor.read();
            slowest = std::max(slowest, one.elapsed());
            QVERIFY(!paths(s).contains(QStringLiteral("/run/media/alex/KINGSTON")));
            if (paths(s).contains(QStringLiteral("/run/media/alex/My Photos (2023)"))) {
                photosSeen = true;
                QVERIFY(paths(s).contains(QStringLiteral("/")));
                break;
            }
            QTest::qWait(100);
        }
        QVERIFY2(photosSeen, "the volumes behind the hung mount never came back");
        QVERIFY2(slowest < 500, qPrintable(QString::number(slowest)));

        // Once the mount answers again it is listed.
        released->store(true);
        QTRY_VERIFY_WITH_TIMEOUT(paths(monitor.read()).contains(QStringLiteral("/run/media/alex/KINGSTON")), 5000);
    }
};

SULK_TEST(DiskMonitorTest)
#include "DiskMonitorTest.moc"
