// Text the kernel hands over (processor names, sensor labels, interface and
// process names, mount points) can carry terminal control sequences: a
// process may rename itself to one, a label or a snapshot may be damaged.
// What the readers return is printed as it stands by `sulkbox status`.

#include "FastReaderScratch.h"
#include "common/TestSupport.h"

#include "sampling/CPUMonitor.h"
#include "sampling/DiskMonitor.h"
#include "sampling/NetworkMonitor.h"
#include "sampling/ProcessMonitor.h"
#include "sampling/SMC.h"
#include "sampling/SensorMonitor.h"

#include <QRegularExpression>
#include <QTest>

// Fails on any C0 or C1 control character in `text`.
#define VERIFY_PRINTABLE(text)                                                                                \
    QVERIFY2(!QString(text).contains(QRegularExpression(QStringLiteral("[\\x{0}-\\x{1f}\\x{7f}-\\x{9f}]"))), \
             qPrintable(QString(text).toUtf8().toPercentEncoding()))

class KernelTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void controlCharactersNeverLeaveAReader()
    {
        ScratchTree tree;
        // "\x1b]0;…\x07" retitles a terminal; "\x1b[2J" clears it; 0x9b is
        // the one-byte CSI (written as UTF-8, as a name would carry it).
        QVERIFY(tree.write(QStringLiteral("proc/cpuinfo"), "model name\t: Fast\x1b[2J CPU\x07 @ 3 GHz\n"));
        QVERIFY(tree.write(QStringLiteral("sys/class/hwmon/hwmon0/name"), "chip\x1b]0;pwned\x07\n"));
        QVERIFY(tree.write(QStringLiteral("sys/class/hwmon/hwmon0/temp1_label"), "Core \x1b[31m0\r\n"));
        QVERIFY(tree.write(QStringLiteral("sys/class/hwmon/hwmon0/temp1_input"), "50000\n"));
        QVERIFY(tree.write(QStringLiteral("sys/class/power_supply/BAT\x1b[8m0/type"), "Battery\n"));
        QVERIFY(tree.write(QStringLiteral("sys/class/power_supply/BAT\x1b[8m0/temp"), "300\n"));
        QVERIFY(tree.write(QStringLiteral("proc/net/dev"),
                           "Inter-|   Receive |  Transmit\n face |bytes packets|bytes packets\n"
                           "eth\x1b[1m0: 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16\n"));
        QVERIFY(tree.write(QStringLiteral("proc/net/route"),
                           "Iface\tDestination\tGateway\tFlags\tRefCnt\tUse\tMetric\tMask\tMTU\tWindow\tIRTT\n"
                           "eth\x1b[1m0\t00000000\t0100A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n"));
        QVERIFY(tree.write(QStringLiteral("proc/1/stat"),
                           "1 (evil\x1b[2J\xc2\x9b\x7fname) S 0 1 1 0 -1 0 0 0 0 0 500 100 0 0 20 0 1 0 10 1000 "
                           "300 18446744073709551615 0 0 0 0 0 0 0 0 0 0 0 0 17 0 0 0 0 0 0\n"));
        QVERIFY(tree.write(QStringLiteral("proc/uptime"), "100.00 50.00\n"));
        QVERIFY(tree.write(QStringLiteral("proc/meminfo"), "MemTotal: 1000000 kB\n"));
        QVERIFY(tree.write(QStringLiteral("proc/filesystems"), "\text4\n"));
        QVERIFY(tree.write(QStringLiteral("proc/self/mountinfo"),
                           "30 1 8:2 / /mnt/usb\\033[31m rw,relatime shared:1 - ext4 /dev/sdb1 rw\n"));
        const SystemRoots roots{tree.path(QStringLiteral("proc")), tree.path(QStringLiteral("sys")), true};

        VERIFY_PRINTABLE(CPUMonitor::brandString(roots));

        SMC smc(roots);
        SensorMonitor sensors(roots, smc);
        const SensorSample s = sensors.read();
        QCOMPARE(s.temperatures.size(), 2);
        for (const TempReading &t : s.temperatures)
            VERIFY_PRINTABLE(t.name);

        NetworkMonitor network(roots);
        network.setAddressSource([] {
            return NetworkMonitor::AddressList{{QStringLiteral("eth\x1b[1m0"), QStringLiteral("192.168.0.2")}};
        });
        const NetworkSample n = network.read(true);
        QVERIFY(n.primaryInterface.startsWith(u"eth"));
        VERIFY_PRINTABLE(n.primaryInterface);
        QCOMPARE(n.ipv4, QStringLiteral("192.168.0.2")); // found by its raw name

        ProcessMonitor::Options o;
        o.sleep = [](double) {};
        ProcessMonitor processes(roots, o);
        const QList<ProcInfo> top = processes.topByCPU(6);
        QCOMPARE(top.size(), 1);
        QVERIFY(top[0].name().startsWith(u"evil"));
        VERIFY_PRINTABLE(top[0].name());

        DiskMonitor::Options d;
        d.statOffThread = false;
        QString asked;
        d.stat = [&asked](const QString &path) -> std::optional<DiskMonitor::FsFigures> {
            asked = path;
            return DiskMonitor::FsFigures{1e9, 5e8, false};
        };
        DiskMonitor disk(roots, d);
        const DiskSample v = disk.read();
        QCOMPARE(v.volumes.size(), 1);
        QCOMPARE(asked, QStringLiteral("/mnt/usb\x1b[31m")); // the real path is still the one asked
        VERIFY_PRINTABLE(v.volumes[0].name);
        VERIFY_PRINTABLE(v.volumes[0].path);
    }
};

SULK_TEST(KernelTextTest)
#include "KernelTextTest.moc"
