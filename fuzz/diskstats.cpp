// /proc/diskstats and the whole disks under /sys/block, over two snapshots a
// second apart.

#include "FuzzTree.h"

#include "sampling/DiskMonitor.h"

namespace {

void check(const DiskSample &s)
{
    FUZZ_CHECK(fuzz::finite(s.readRate) && s.readRate >= 0);
    FUZZ_CHECK(fuzz::finite(s.writeRate) && s.writeRate >= 0);
    FUZZ_CHECK(s.hasRate || (s.readRate == 0 && s.writeRate == 0));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::Tree tree(data, size);
    const std::string_view stats = tree.content("proc/diskstats");
    QByteArray names;
    const auto parsed = DiskScan::parseDiskStats(QByteArrayView(stats.data(), qsizetype(stats.size())), &names);
    FUZZ_CHECK(parsed.size() <= names.count(' '));

    DiskMonitor::Options options;
    options.statOffThread = false;
    double now = 1'700'000'000;
    options.clock = [&now] { return now; };
    DiskMonitor disk(tree.snapshot(), options);
    check(disk.read());
    tree.next();
    now += 1;
    check(disk.read());
    disk.clearBaseline();
    now += 1;
    check(disk.read());
    return 0;
}
