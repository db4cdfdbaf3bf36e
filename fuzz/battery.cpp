// /sys/class/power_supply: the system battery and the outside supplies.

#include "FuzzTree.h"

#include "sampling/BatteryMonitor.h"
#include "sampling/Plausible.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::Tree tree(data, size);
    const BatterySample b = BatteryMonitor(tree.snapshot()).read();
    FUZZ_CHECK(fuzz::finite(b.charge) && b.charge >= 0);
    FUZZ_CHECK(b.health >= 0 && b.health <= 1);
    FUZZ_CHECK(b.temperature == 0 || Plausible::celsius(b.temperature));
    FUZZ_CHECK(b.cycleCount >= 0);
    FUZZ_CHECK(b.designCapacity >= 0 && b.maxCapacity >= 0);
    for (const int minutes : {b.timeToEmpty, b.timeToFull})
        FUZZ_CHECK(minutes >= -1 && minutes <= BatteryMonitor::longestEstimate);
    FUZZ_CHECK(b.present || b.powerSource != BatteryMonitor::batteryPower);
    FUZZ_CHECK(fuzz::printable(b.powerSource));
    tree.next();
    (void)BatteryMonitor(tree.snapshot()).read();
    return 0;
}
