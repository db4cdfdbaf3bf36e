// /proc/net/dev and /proc/net/route with the interfaces' device links, over
// two snapshots a second apart, then once more counting chosen interfaces.

#include "FuzzTree.h"

#include "sampling/NetworkMonitor.h"

namespace {

void check(const NetworkSample &s)
{
    for (const double v : {s.downRate, s.upRate, s.totalIn, s.totalOut})
        FUZZ_CHECK(fuzz::finite(v) && v >= 0);
    FUZZ_CHECK(fuzz::printable(s.primaryInterface));
    FUZZ_CHECK(fuzz::printable(s.ipv4));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::Tree tree(data, size);
    NetworkMonitor network(tree.snapshot());
    double now = 1000;
    network.setClock([&now] { return now; });
    network.setAddressSource([] {
        return NetworkMonitor::AddressList{{QStringLiteral("eth0"), QStringLiteral("10.0.0.2")},
                                           {QStringLiteral("wlan0"), QStringLiteral("192.168.1.9")}};
    });
    check(network.read(true));
    tree.next();
    now += 1;
    check(network.read(false));
    network.setCountedInterfaces({QStringLiteral("eth0"), QStringLiteral("lo")});
    now += 1;
    check(network.read(true));
    return 0;
}
