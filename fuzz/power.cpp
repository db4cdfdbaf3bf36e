// Package power from the powercap zones and discrete amdgpu boards, read
// three times a second apart over two snapshots.

#include "FuzzTree.h"

#include "sampling/Power.h"

namespace {

void check(const QmPowerReading &r)
{
    FUZZ_CHECK(r.ok == 0 || r.ok == 1);
    for (const double w : {r.cpu, r.gpu, r.total})
        FUZZ_CHECK(fuzz::finite(w) && w >= 0);
    if (!r.ok)
        FUZZ_CHECK(r.cpu == 0 && r.gpu == 0 && r.total == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::Tree tree(data, size);
    PowerMeter meter(tree.snapshot());
    double now = 50;
    meter.setClock([&now] { return now; });
    check(meter.read());
    tree.next();
    now += 1;
    check(meter.read());
    now += 1;
    check(meter.read());
    meter.reset();
    check(meter.read());
    return 0;
}
