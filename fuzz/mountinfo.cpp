// /proc/self/mountinfo with /proc/filesystems: the pure steps (the mount
// table's fields and their octal escapes) and the volume list a model sees,
// over two snapshots of the table, with labels from a by-label folder.

#include "FuzzTree.h"

#include "sampling/DiskMonitor.h"

namespace {

void check(const DiskSample &s)
{
    for (const VolumeInfo &v : s.volumes) {
        FUZZ_CHECK(fuzz::printable(v.name) && fuzz::printable(v.path));
        FUZZ_CHECK(fuzz::finite(v.total) && v.total > 0);
        FUZZ_CHECK(fuzz::finite(v.free) && v.free >= 0);
        FUZZ_CHECK(v.usedShare() >= 0 && v.usedShare() <= 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::Tree tree(data, size);
    const std::string_view mountinfo = tree.content("proc/self/mountinfo");
    const std::string_view filesystems = tree.content("proc/filesystems");
    const QByteArrayView table(mountinfo.data(), qsizetype(mountinfo.size()));
    const QList<QList<DiskScan::Mount>> groups =
        DiskScan::volumeCandidates(table, QByteArrayView(filesystems.data(), qsizetype(filesystems.size())));
    for (const QList<DiskScan::Mount> &group : groups) {
        FUZZ_CHECK(!group.isEmpty());
        for (const DiskScan::Mount &m : group)
            FUZZ_CHECK(m.mountPoint.startsWith(u'/') && m.device == group.first().device);
    }
    (void)DiskScan::decodeMountField(table);

    DiskMonitor::Options options;
    options.statOffThread = false;
    double now = 1'700'000'000;
    options.clock = [&now] { return now; };
    // Capacities that differ by mount point, some read-only.
    options.stat = [](const QString &path) -> std::optional<DiskMonitor::FsFigures> {
        if (path.size() % 11 == 0)
            return std::nullopt;
        const double total = 1e9 * double(1 + path.size() % 7);
        return DiskMonitor::FsFigures{total, total / 3, path.size() % 5 == 0};
    };
    options.labelDir = tree.root() + QStringLiteral("/dev/disk/by-label");
    DiskMonitor disk(tree.live(), options);
    check(disk.read());
    tree.next();
    now += 1;
    check(disk.read());
    return 0;
}
