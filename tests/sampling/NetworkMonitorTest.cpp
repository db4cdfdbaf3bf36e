// NetworkMonitor over fixture trees: which interfaces count, rates from the
// 64-bit counters and their quirks, and the primary interface.

#include "FastReaderScratch.h"
#include "common/TestSupport.h"
#include "sampling/NetworkMonitor.h"

#include <QTest>

#include <algorithm>
#include <limits>

#include <time.h>

namespace {

qint64 threadCpuNs()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return qint64(ts.tv_sec) * 1000000000 + ts.tv_nsec;
}

struct Counters {
    QByteArray name;
    quint64 rx;
    quint64 tx;
};

// One reading of a scripted run: seconds since the last one, the counters
// then (none: the file is left as it was), and what the reading must give.
struct Step {
    double seconds;
    QList<Counters> rows;
    double down, up, totalIn;
};

QByteArray devText(const QList<Counters> &rows)
{
    QByteArray text = "Inter-|   Receive                                                |  Transmit\n"
                      " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs "
                      "drop fifo colls carrier compressed\n";
    for (const Counters &c : rows) {
        text += c.name.rightJustified(6) + ": " + QByteArray::number(c.rx) + " 10 0 0 0 0 0 0 "
            + QByteArray::number(c.tx) + " 20 0 0 0 0 0 0\n";
    }
    return text;
}

// A line of /proc/net/route; destination and mask 0 make a default route,
// flag 1 is up.
QByteArray route(const char *iface, int flags, int metric, const char *dest = "00000000",
                 const char *mask = "00000000")
{
    return QByteArray(iface) + '\t' + dest + "\t00000000\t000" + QByteArray::number(flags) + "\t0\t0\t"
        + QByteArray::number(metric) + '\t' + mask + "\t0\t0\t0";
}

QByteArray routeText(const QList<QByteArray> &rows)
{
    QByteArray text = "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n";
    for (const QByteArray &row : rows)
        text += row + '\n';
    return text;
}

const NetworkMonitor::AddressList laptopAddresses = {
    {"lo", "127.0.0.1"}, {"docker0", "172.17.0.1"}, {"wlan0", "192.168.1.23"}, {"tun0", "10.8.0.5"}};

// A monitor over a scratch /proc with the laptop's /sys (or another), on a
// clock the test moves by hand.
struct Rig {
    ScratchTree proc;
    double now = 1000;
    NetworkMonitor monitor;

    explicit Rig(const QString &sys = TestSupport::fixture("laptop/sys"))
        : monitor(proc.asProc(sys))
    {
        monitor.setClock([this] { return now; });
        monitor.setAddressSource([] { return laptopAddresses; });
    }
    bool dev(const QList<Counters> &rows) { return proc.write("net/dev", devText(rows)); }
};

} // namespace

Q_DECLARE_METATYPE(QList<Step>)

class NetworkMonitorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readingGrowsLinearlyWithTheInterfaces()
    {
        // Thousands of veth pairs are ordinary on a container host. The work
        // of the first reading, and of one after the file changed its
        // order, must grow with the number of interfaces, not its square:
        // ten times the interfaces may cost ten times the processor time
        // (plus noise), where a quadratic lookup costs a hundred times.
        const auto cost = [](int interfaces) {
            QList<Counters> rows;
            for (int i = 0; i < interfaces; ++i)
                rows.append({"veth" + QByteArray::number(i).rightJustified(5, '0'), quint64(i), quint64(i)});
            QList<Counters> reversed(rows.crbegin(), rows.crend());
            qint64 best = std::numeric_limits<qint64>::max();
            for (int round = 0; round < 3; ++round) {
                Rig rig;
                rig.monitor.setCountedInterfaces({QStringLiteral("veth00000")});
                rig.dev(rows);
                const qint64 t0 = threadCpuNs();
                rig.monitor.read(false);
                const qint64 t1 = threadCpuNs();
                rig.dev(reversed);
                rig.now += 1;
                const qint64 t2 = threadCpuNs();
                rig.monitor.read(false);
                best = std::min(best, (t1 - t0) + (threadCpuNs() - t2));
            }
            return double(std::max<qint64>(best, 1));
        };
        cost(200); // warm up
        const double small = cost(2000);
        const double large = cost(20000);
        QVERIFY2(large / small < 30, qPrintable(QStringLiteral("2,000: %1 ms, 20,000: %2 ms")
                                                    .arg(small / 1e6).arg(large / 1e6)));
    }

    void ratesFollowTheCounters_data()
    {
        QTest::addColumn<QList<Step>>("steps");
        // Half a second: 1,000,000 bytes in (across the 4 GiB mark) and
        // 250,000 out; the virtual interfaces moved too and do not count.
        // No time passed: no rate, no division by zero. A long gap gives the
        // average over the gap.
        QTest::newRow("interval") << QList<Step>{
            {0, {{"lo", 100, 100}, {"wlan0", 4294967000, 5000}, {"docker0", 0, 0}, {"tun0", 0, 0}}, 0, 0, 4294967000},
            {0.5, {{"lo", 900100, 900100}, {"wlan0", 4295967000, 255000}, {"docker0", 1000000, 1000000},
                   {"tun0", 1000000, 0}}, 2000000, 500000, 4295967000},
            {0, {}, 0, 0, 4295967000},
            {100, {{"wlan0", 4296967000, 255000}}, 10000, 0, 4296967000}};
        // wlan0's driver was reloaded and its counters restarted; the
        // Ethernet port kept counting and still shows. Then measured from
        // the lowered counters.
        QTest::newRow("counters go back") << QList<Step>{
            {0, {{"wlan0", 5000000, 5000000}, {"enp0s31f6", 1000, 1000}}, 0, 0, 5001000},
            {1, {{"wlan0", 1000, 200}, {"enp0s31f6", 3000, 1500}}, 2000, 500, 4000},
            {1, {{"wlan0", 6000, 700}, {"enp0s31f6", 3000, 1500}}, 5000, 500, 9000}};
        // The USB Ethernet adapter is pulled: its large totals leave the sum,
        // which must not hide what wlan0 did meanwhile. Plugged in again with
        // its old counters: no burst of 900 MB.
        QTest::newRow("interface vanishes") << QList<Step>{
            {0, {{"wlan0", 10000, 10000}, {"enp0s31f6", 900000000, 900000000}}, 0, 0, 900010000},
            {1, {{"wlan0", 12000, 11000}}, 2000, 1000, 12000},
            {1, {{"wlan0", 12000, 11000}, {"enp0s31f6", 900000500, 900000000}}, 0, 0, 900012500},
            {1, {{"wlan0", 12000, 11000}, {"enp0s31f6", 900001500, 900000000}}, 1000, 0, 900013500}};
    }

    void ratesFollowTheCounters()
    {
        QFETCH(QList<Step>, steps);
        Rig rig;
        for (const Step &step : steps) {
            rig.now += step.seconds;
            if (!step.rows.isEmpty())
                QVERIFY(rig.dev(step.rows));
            const NetworkSample s = rig.monitor.read(false);
            QCOMPARE(s.downRate, step.down);
            QCOMPARE(s.upRate, step.up);
            QCOMPARE(s.totalIn, step.totalIn);
        }
    }

    void countingChosenInterfaces()
    {
        Rig rig;
        rig.monitor.setCountedInterfaces({QStringLiteral("veth3f2a1b0")});
        QVERIFY(rig.dev({{"wlan0", 100, 100}, {"veth3f2a1b0", 1000, 2000}}));
        QCOMPARE(rig.monitor.read(false).totalIn, 1000.0);
        rig.now += 2;
        QVERIFY(rig.dev({{"wlan0", 5000, 100}, {"veth3f2a1b0", 3000, 2000}}));
        QCOMPARE(rig.monitor.read(false).downRate, 1000.0);

        // Back to the physical rule, with the baseline of every interface kept.
        rig.monitor.setCountedInterfaces({});
        rig.now += 1;
        QVERIFY(rig.dev({{"wlan0", 5500, 100}, {"veth3f2a1b0", 9000, 2000}}));
        const NetworkSample s = rig.monitor.read(false);
        QCOMPARE(s.downRate, 500.0);
        QCOMPARE(s.totalIn, 5500.0);
    }

    void withoutPhysicalInterfacesEverythingButLoopbackCounts()
    {
        // A container: its eth0 is one end of a veth pair.
        ScratchTree sys;
        QVERIFY(sys.write("class/net/eth0/type", "1\n"));
        QVERIFY(sys.write("class/net/lo/type", "772\n"));
        Rig rig(sys.path());
        QVERIFY(rig.dev({{"lo", 500, 500}, {"eth0", 1000, 2000}}));
        QCOMPARE(rig.monitor.read(false).totalIn, 1000.0);
        rig.now += 1;
        QVERIFY(rig.dev({{"lo", 9500, 9500}, {"eth0", 1500, 2100}}));
        const NetworkSample s = rig.monitor.read(false);
        QCOMPARE(s.downRate, 500.0);
        QCOMPARE(s.upRate, 100.0);
    }

    void damagedOrMissingCounters()
    {
        Rig rig;
        QVERIFY(rig.dev({{"wlan0", 1000, 1000}}));
        rig.monitor.read(true);

        // Unreadable: the empty record, not the remembered interface, and the
        // baseline stays.
        QVERIFY(rig.proc.remove("net/dev"));
        rig.now += 1;
        QCOMPARE(rig.monitor.read(true), NetworkSample{});
        rig.now += 1;
        QVERIFY(rig.dev({{"wlan0", 3000, 1000}}));
        NetworkSample s = rig.monitor.read(false);
        QCOMPARE(s.downRate, 1000.0);
        QCOMPARE(s.primaryInterface, QStringLiteral("wlan0"));

        // Lines that cannot be parsed are skipped; the good ones still count.
        QVERIFY(rig.proc.write("net/dev", devText({{"wlan0", 4000, 1000}}) + "enp0s31f6: 12 x 0 0\n"
                                              + "wlan0: 999999999 0 0 0 0 0 0 0 999999999 0 0 0 0 0 0 0\n"
                                              + ": 1 2 3 4 5 6 7 8 9 10\nno colon at all\n"
                                              + QByteArray(3000, '\0')));
        rig.now += 1;
        s = rig.monitor.read(false);
        QCOMPARE(s.totalIn, 4000.0);
        QCOMPARE(s.downRate, 1000.0);
    }

    void primaryInterface()
    {
        Rig rig;
        QVERIFY(rig.dev({{"wlan0", 1, 1}, {"enp0s31f6", 1, 1}, {"tun0", 1, 1}}));
        const NetworkMonitor::AddressList addresses = {{"docker0", "172.17.0.1"},
                                                       {"enp0s31f6", "10.0.0.7"},
                                                       {"wlan0", "192.168.1.23"},
                                                       {"wlan0", "192.168.1.99"},
                                                       {"tun0", "10.8.0.5"}};
        rig.monitor.setAddressSource([&] { return addresses; });
        auto primary = [&](const QList<QByteArray> &routes) {
            rig.proc.write("net/route", routeText(routes));
            const NetworkSample s = rig.monitor.read(true);
            return std::pair(s.primaryInterface, s.ipv4);
        };
        using P = std::pair<QString, QString>;

        // The default route with the lowest metric wins; a route that is not
        // up, or a non-default one with a lower metric, does not.
        const QByteArray wlan = route("wlan0", 3, 600);
        QCOMPARE(primary({wlan, route("enp0s31f6", 3, 100), route("tun0", 2, 5),
                          route("tun0", 1, 0, "0000080A", "00FFFFFF")}),
                 P("enp0s31f6", "10.0.0.7"));
        // A VPN that takes the default route is the primary interface.
        QCOMPARE(primary({wlan, route("tun0", 1, 50)}), P("tun0", "10.8.0.5"));
        // The first address of the routed interface.
        QCOMPARE(primary({wlan}), P("wlan0", "192.168.1.23"));
        // Routed through an interface without an IPv4 address.
        QCOMPARE(primary({route("ppp0", 1, 0)}), P("ppp0", "\u2014"));
        // No default route: the first physical interface with an address
        // (docker0 comes first but is a bridge).
        QCOMPARE(primary({route("wlan0", 1, 600, "0001A8C0", "00FFFFFF"), "garbage line",
                          "x\tzz\tzz\tzz\t0\t0\t0\tzz"}),
                 P("enp0s31f6", "10.0.0.7"));
        // No route file, and nothing physical has an address.
        rig.proc.remove("net/route");
        rig.monitor.setAddressSource([] { return NetworkMonitor::AddressList{{"lo", "127.0.0.1"}}; });
        QCOMPARE(rig.monitor.read(true).primaryInterface, QStringLiteral("\u2014"));
    }

    void laptopCountsOnlyPhysicalInterfacesAndLooksUpItsAddressWhenAsked()
    {
        Rig rig;
        QVERIFY(rig.proc.copyFixture("laptop/proc/net/dev", "net/dev"));
        QVERIFY(rig.proc.copyFixture("laptop/proc/net/route", "net/route"));
        int lookups = 0;
        rig.monitor.setAddressSource([&] {
            ++lookups;
            return laptopAddresses;
        });

        // wlan0 and the unplugged Ethernet port; loopback, the docker bridge,
        // its veth and the VPN tunnel carry traffic that is counted already.
        // wlan0's receive counter is past 4 GiB.
        NetworkSample s = rig.monitor.read(false);
        QCOMPARE(s.totalIn, 9876543210.0);
        QCOMPARE(s.totalOut, 1234567890.0);
        QCOMPARE(s.downRate, 0.0);
        QCOMPARE(s.primaryInterface, QStringLiteral("\u2014"));
        QCOMPARE(s.ipv4, QStringLiteral("\u2014"));
        QCOMPARE(lookups, 0);

        s = rig.monitor.read(true);
        QCOMPARE(s.primaryInterface, QStringLiteral("wlan0"));
        QCOMPARE(s.ipv4, QStringLiteral("192.168.1.23"));
        QCOMPARE(lookups, 1);

        // The route moves away, but until the next lookup the last answer stays.
        rig.proc.write("net/route", routeText({route("enp0s31f6", 3, 100)}));
        s = rig.monitor.read(false);
        QCOMPARE(s.primaryInterface, QStringLiteral("wlan0"));
        QCOMPARE(s.ipv4, QStringLiteral("192.168.1.23"));
        QCOMPARE(lookups, 1);
        QCOMPARE(rig.monitor.read(true).primaryInterface, QStringLiteral("enp0s31f6"));

        // A captured tree has routes but no live address list to match.
        const NetworkSample snapshot =
            NetworkMonitor(SystemRoots::underPrefix(TestSupport::fixture("laptop"))).read(true);
        QCOMPARE(snapshot.primaryInterface, QStringLiteral("wlan0"));
        QCOMPARE(snapshot.ipv4, QStringLiteral("\u2014"));
        QCOMPARE(snapshot.totalOut, 1234567890.0);
    }
};

SULK_TEST(NetworkMonitorTest)
#include "NetworkMonitorTest.moc"
