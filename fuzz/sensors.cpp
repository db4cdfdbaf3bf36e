// Temperatures and fans: hwmon chips (and their parent devices), thermal
// zones, battery temperatures, the applesmc driver's attributes and key
// table, and the graphics card's busy figure; over two snapshots.

#include "FuzzTree.h"

#include "sampling/GPUMonitor.h"
#include "sampling/Plausible.h"
#include "sampling/SMC.h"
#include "sampling/SensorMonitor.h"

namespace {

void check(const SensorSample &s)
{
    for (const TempReading &t : s.temperatures) {
        FUZZ_CHECK(Plausible::celsius(t.celsius));
        FUZZ_CHECK(fuzz::printable(t.name));
    }
    for (const double c : {s.hottest, s.cpuTemp, s.gpuTemp})
        FUZZ_CHECK(fuzz::finite(c) && c >= 0);
    for (const TempComponent &c : s.components)
        FUZZ_CHECK(Plausible::celsius(c.celsius));
    for (const FanInfo &f : s.fans)
        FUZZ_CHECK(Plausible::fanRpm(f.current) && Plausible::fanRpm(f.min) && Plausible::fanRpm(f.max));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    fuzz::Tree tree(data, size);
    const SystemRoots roots = tree.snapshot();
    SMC smc(roots);
    for (const char *key : {"TC0P", "FNum", "F0Ac", "#KEY", "PSTR"}) {
        if (const std::optional<double> v = smc.readValue(QString::fromLatin1(key)))
            FUZZ_CHECK(fuzz::finite(*v));
    }
    FUZZ_CHECK(smc.fans().size() <= SMC::maxFans);

    SensorMonitor sensors(roots, smc);
    check(sensors.read());
    tree.next();
    for (int i = 0; i < SensorMonitor::retryAfter + 1; ++i)
        check(sensors.read());

    const GPUSample gpu = GPUMonitor(roots).read();
    FUZZ_CHECK(gpu.usage >= 0 && gpu.usage <= 1);
    return 0;
}
