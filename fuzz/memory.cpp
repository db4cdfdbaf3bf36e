// /proc/meminfo and the zram devices' mm_stat, read over two snapshots.

#include "FuzzTree.h"

#include "sampling/MemoryMonitor.h"

namespace {

void check(const MemorySample &s)
{
    for (const double bytes : {s.total, s.used, s.wired, s.compressed, s.cached, s.free, s.swapUsed, s.swapTotal})
        FUZZ_CHECK(fuzz::finite(bytes) && bytes >= 0);
    FUZZ_CHECK(s.used <= s.total);
    FUZZ_CHECK(s.pressure >= 0 && s.pressure <= 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::Tree tree(data, size);
    MemoryMonitor memory(tree.snapshot());
    check(memory.read());
    FUZZ_CHECK(fuzz::finite(memory.lastAvailable()) && memory.lastAvailable() >= 0);
    tree.next();
    check(memory.read());
    return 0;
}
