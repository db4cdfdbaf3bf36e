// The slow tick's battery, sensor and power readings over the laptop tree
// (ten hwmon chips, three power supplies, six powercap zones). Together they
// should stay around a millisecond.

#include "Bench.h"

#include "sampling/BatteryMonitor.h"
#include "sampling/Power.h"
#include "sampling/SMC.h"
#include "sampling/SensorMonitor.h"


#include <memory>

namespace {

struct SlowReaders {
    SystemRoots roots;
    SMC smc;
    BatteryMonitor battery;
    SensorMonitor sensors;
    PowerMeter power;

    explicit SlowReaders(const SystemRoots &r)
        : roots(r), smc(r), battery(r), sensors(r, smc), power(r)
    {
    }
};

SlowReaders &readers()
{
    static const QString tree = QStringLiteral(SULK_FIXTURES "/laptop");
    static SlowReaders instance(SystemRoots::underPrefix(tree));
    return instance;
}

} // namespace

SULK_BENCH(slowBattery, {QStringLiteral("slow: battery"), [] { readers().battery.read(); },
                         [] { return readers().battery.read().present ? QString() : QStringLiteral("no battery!"); }, 2000})

SULK_BENCH(slowSensors, {QStringLiteral("slow: sensors"), [] { readers().sensors.read(); },
                         [] { return QStringLiteral("%1 readings").arg(readers().sensors.read().temperatures.size()); }, 2000})

SULK_BENCH(slowSensorsWalk, {QStringLiteral("slow: sensors, walking the tree"), {},
                             [] {
                                 SMC smc(readers().roots);
                                 SensorMonitor fresh(readers().roots, smc);
                                 fresh.read();
                                 return QString();
                             }, 500})

SULK_BENCH(slowPower, {QStringLiteral("slow: power"), [] { readers().power.read(); },
                       [] { readers().power.read(); return QString(); }, 2000})

SULK_BENCH(slowAll, {QStringLiteral("slow: battery+sensors+power"), [] { readers(); },
                     [] {
                         SlowReaders &r = readers();
                         r.battery.read();
                         r.sensors.read();
                         r.power.read();
                         return QString();
                     }, 2000})
