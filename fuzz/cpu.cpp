// /proc/stat read three times over two snapshots, and the processor's name
// from /proc/cpuinfo or the device tree.

#include "FuzzTree.h"

#include "sampling/CPUMonitor.h"

namespace {

bool fraction(double v)
{
    return fuzz::finite(v) && v >= 0 && v <= 1;
}

void check(const CPUSample &s)
{
    FUZZ_CHECK(fraction(s.total) && fraction(s.user) && fraction(s.system) && fraction(s.idle));
    for (const double core : s.perCore)
        FUZZ_CHECK(fraction(core));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::Tree tree(data, size);
    CPUMonitor cpu(tree.snapshot());
    check(cpu.read());
    tree.next();
    check(cpu.read());
    check(cpu.read());
    FUZZ_CHECK(cpu.coreCount() >= 0);

    const QString brand = CPUMonitor::brandString(tree.snapshot());
    FUZZ_CHECK(!brand.isEmpty() && fuzz::printable(brand));
    return 0;
}
