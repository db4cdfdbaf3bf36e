#include "sampling/BatteryMonitor.h"

#include "sampling/Plausible.h"
#include "sampling/SysFs.h"

using namespace Qt::StringLiterals;

#include <cmath>

namespace {

// The largest figures a battery of a portable machine (or a UPS reporting
// through the same class) can give, in the units of the files.
constexpr double maxEnergy = 1e10;       // µWh: 10 kWh
constexpr double maxCharge = 1e9;        // µAh: 1000 Ah
constexpr double maxPower = 1e10;        // µW: 10 kW
constexpr double maxCurrent = 1e9;       // µA: 1000 A
constexpr double maxVoltage = 1e8;       // µV: 100 V
constexpr double maxPercent = 150;       // capacity, %; some gauges overshoot 100
constexpr double maxCycles = 100000;     // cells wear out after a few thousand
constexpr double maxTenthsCelsius = 1e4; // before the temperature's own range

// Minutes for `amount` at `rate` (µWh at µW, or µAh at µA); -1 when the rate
// gives no useful estimate.
int minutes(double amount, double rate)
{
    if (!(rate > 0) || !(amount >= 0))
        return -1;
    const double m = std::floor(amount / rate * 60.0);
    return m <= BatteryMonitor::longestEstimate ? int(m) : -1;
}

} // namespace

BatteryMonitor::BatteryMonitor(SystemRoots roots)
    : m_roots(std::move(roots))
{
}

void BatteryMonitor::readBattery(const QString &dir, BatterySample &s, QString &status) const
{
    // A figure no battery could report (a damaged snapshot, a driver's
    // all-ones "unknown") counts as missing. Rates may carry a sign.
    const auto value = [&dir](QLatin1StringView name, double limit, bool signedRate = false) -> std::optional<double> {
        const std::optional<qint64> v = SysFs::readLong(dir + u'/' + name);
        if (!v)
            return std::nullopt;
        const double d = double(*v);
        if (std::abs(d) > limit || (d < 0 && !signedRate))
            return std::nullopt;
        return d;
    };
    status = SysFs::readLine(dir + "/status"_L1).value_or(QString());

    const auto energyNow = value("energy_now"_L1, maxEnergy);
    const auto energyFull = value("energy_full"_L1, maxEnergy);
    const auto energyDesign = value("energy_full_design"_L1, maxEnergy);
    const auto chargeNow = value("charge_now"_L1, maxCharge);
    const auto chargeFull = value("charge_full"_L1, maxCharge);
    const auto chargeDesign = value("charge_full_design"_L1, maxCharge);

    s = BatterySample{};
    s.present = true;
    if (energyNow && energyFull && *energyFull > 0)
        s.charge = *energyNow / *energyFull;
    else if (chargeNow && chargeFull && *chargeFull > 0)
        s.charge = *chargeNow / *chargeFull;
    else if (const auto capacity = value("capacity"_L1, maxPercent))
        s.charge = *capacity / 100.0;

    s.isCharging = status == "Charging"_L1;

    // Time estimates from one family only: energy with power, or charge
    // with current. Some drivers sign the rate by direction.
    std::optional<double> now, full, rate;
    if (energyNow && energyFull) {
        if (const auto power = value("power_now"_L1, maxPower, true)) {
            now = energyNow;
            full = energyFull;
            rate = std::abs(*power);
        }
    }
    if (!rate && chargeNow && chargeFull) {
        if (const auto current = value("current_now"_L1, maxCurrent, true)) {
            now = chargeNow;
            full = chargeFull;
            rate = std::abs(*current);
        }
    }
    s.timeToEmpty = rate && status == "Discharging"_L1 ? minutes(*now, *rate) : -1;
    s.timeToFull = rate && s.isCharging ? minutes(std::max(*full - *now, 0.0), *rate) : -1;

    s.cycleCount = int(value("cycle_count"_L1, maxCycles).value_or(0));
    if (const auto temp = value("temp"_L1, maxTenthsCelsius, true); temp && Plausible::celsius(*temp / 10.0))
        s.temperature = *temp / 10.0;

    if (energyFull && energyDesign && *energyDesign >= 1)
        s.health = std::min(*energyFull / *energyDesign, 1.0);
    else if (chargeFull && chargeDesign && *chargeDesign >= 1)
        s.health = std::min(*chargeFull / *chargeDesign, 1.0);

    // Capacities in mAh; one beyond any battery (energy over a nonsense
    // voltage) is left at 0.
    const auto mAh = [](double value) { return value <= maxCharge / 1000.0 ? int(std::lround(value)) : 0; };
    if (chargeDesign || chargeFull) {
        s.designCapacity = mAh(chargeDesign.value_or(0) / 1000.0);
        s.maxCapacity = mAh(chargeFull.value_or(0) / 1000.0);
    } else if (energyDesign || energyFull) {
        double volts = value("voltage_min_design"_L1, maxVoltage).value_or(0);
        if (!(volts > 0))
            volts = value("voltage_now"_L1, maxVoltage).value_or(0);
        if (volts > 0) {
            // µWh / µV is Ah.
            s.designCapacity = mAh(energyDesign.value_or(0) / volts * 1000.0);
            s.maxCapacity = mAh(energyFull.value_or(0) / volts * 1000.0);
        }
    }
}

BatterySample BatteryMonitor::read()
{
    BatterySample sample;
    const QString base = m_roots.sys + "/class/power_supply/"_L1;
    bool externalSupply = false;
    bool online = false;
    QString status;

    for (const QString &name : SysFs::entries(base)) {
        const QString dir = base + name;
        const std::optional<QString> type = SysFs::readLine(dir + "/type"_L1);
        if (!type || SysFs::readLine(dir + "/scope"_L1) == "Device"_L1)
            continue;
        if (*type == "Mains"_L1 || *type == "USB"_L1) {
            externalSupply = true;
            if (SysFs::readLong(dir + "/online"_L1).value_or(0) > 0)
                online = true;
        } else if (*type == "Battery"_L1) {
            if (SysFs::readLong(dir + "/present"_L1).value_or(1) == 0)
                continue;
            readBattery(dir, sample, status);
        }
    }

    // Without any Mains or USB supply to ask, the battery's own status tells
    // whether outside power is there.
    if (!externalSupply && sample.present)
        online = status == "Charging"_L1 || status == "Full"_L1 || status == "Not charging"_L1;

    sample.isPluggedIn = online;
    if (online)
        sample.powerSource = acPower;
    else if (sample.present)
        sample.powerSource = batteryPower;
    return sample;
}
