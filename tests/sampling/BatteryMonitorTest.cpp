#include "common/TestSupport.h"

#include "sampling/BatteryMonitor.h"

#include <QTemporaryDir>
#include <QTest>

#include <initializer_list>
#include <utility>

namespace {

using TestSupport::fixtureRoots;

using Files = std::initializer_list<std::pair<const char *, const char *>>;
using Supplies = std::initializer_list<std::pair<const char *, Files>>;

// The reading over a power_supply folder that holds just these supplies.
BatterySample readSupplies(Supplies supplies)
{
    QTemporaryDir tmp;
    for (const auto &[name, files] : supplies) {
        const QString dir = tmp.path() + QStringLiteral("/sys/class/power_supply/") + QLatin1StringView(name) + u'/';
        for (const auto &[file, text] : files)
            TestSupport::writeFile(dir + QLatin1StringView(file), QByteArray(text) + '\n');
    }
    return BatteryMonitor(SystemRoots::underPrefix(tmp.path())).read();
}

// BAT0 alone.
BatterySample readBattery(Files files)
{
    return readSupplies({{"BAT0", files}});
}

} // namespace

class BatteryMonitorTest : public QObject {
    Q_OBJECT
private slots:
    void laptopOnChargeFromEnergyFiles()
    {
        const BatterySample b = BatteryMonitor(fixtureRoots(QStringLiteral("laptop"))).read();
        QVERIFY(b.present);
        // The wireless mouse (scope Device, 40 %) sorts after BAT0 and must
        // not stand in for it.
        QCOMPARE(b.charge, 42.75 / 51.3);
        QVERIFY(b.isCharging);
        QVERIFY(b.isPluggedIn);
        QCOMPARE(b.timeToFull, 33); // 8.55 Wh at 15.39 W
        QCOMPARE(b.timeToEmpty, -1);
        QCOMPARE(b.cycleCount, 123);
        QCOMPARE(b.health, 0.9);
        QCOMPARE(b.temperature, 29.8);
        QCOMPARE(b.designCapacity, 5000); // 57 Wh at 11.4 V
        QCOMPARE(b.maxCapacity, 4500);
        QCOMPARE(b.powerSource, BatteryMonitor::acPower);
    }

    void macOnBatteryFromChargeFiles()
    {
        const BatterySample b = BatteryMonitor(fixtureRoots(QStringLiteral("intel-mac"))).read();
        QVERIFY(b.present);
        QCOMPARE(b.charge, 3200000.0 / 4800000.0);
        QVERIFY(!b.isCharging);
        QVERIFY(!b.isPluggedIn); // ADP1 offline
        QCOMPARE(b.timeToEmpty, 120);
        QCOMPARE(b.timeToFull, -1);
        QCOMPARE(b.cycleCount, 412);
        QCOMPARE(b.health, 4800000.0 / 5400000.0);
        QCOMPARE(b.temperature, 0.0);
        QCOMPARE(b.designCapacity, 5400);
        QCOMPARE(b.maxCapacity, 4800);
        QCOMPARE(b.powerSource, BatteryMonitor::batteryPower);
    }

    void nothingToReadGivesTheEmptyRecord()
    {
        for (const char *name : {"vm", "amd-desktop", "no-such-tree"})
            QCOMPARE(BatteryMonitor(fixtureRoots(QString::fromLatin1(name))).read(), BatterySample{});
    }

    void desktopOnMainsHasNoBattery()
    {
        const BatterySample b =
            readSupplies({{"ADP0", {{"type", "Mains"}, {"online", "1"}}},
                          {"hidpp_battery_1", {{"type", "Battery"}, {"scope", "Device"}, {"capacity", "70"}}},
                          {"BAT1", {{"type", "Battery"}, {"present", "0"}, {"capacity", "0"}}}});
        QVERIFY(!b.present);
        QVERIFY(b.isPluggedIn);
        QCOMPARE(b.powerSource, BatteryMonitor::acPower);
        QCOMPARE(b.charge, 0.0);
        QCOMPARE(b.timeToEmpty, 0);
    }

    void timesNeverMixEnergyAndCharge()
    {
        // Energy figures with only a current: no estimate, though µWh / µA
        // would give a number.
        BatterySample b = readBattery({{"type", "Battery"}, {"status", "Discharging"}, {"energy_now", "30000000"},
                                       {"energy_full", "50000000"}, {"current_now", "1000000"}});
        QCOMPARE(b.charge, 0.6);
        QCOMPARE(b.timeToEmpty, -1);

        // Both families present: energy with power wins; a signed rate is
        // taken by size.
        QCOMPARE(readBattery({{"type", "Battery"}, {"status", "Discharging"}, {"energy_now", "30000000"},
                              {"energy_full", "50000000"}, {"power_now", "-10000000"}, {"charge_now", "2000000"},
                              {"charge_full", "4000000"}, {"current_now", "4000000"}}).timeToEmpty, 180);

        // A rate of zero, or one so small the estimate is meaningless.
        for (const char *rate : {"0", "1"}) {
            QCOMPARE(readBattery({{"type", "Battery"}, {"status", "Discharging"}, {"charge_now", "2000000"},
                                  {"charge_full", "4000000"}, {"current_now", rate}}).timeToEmpty, -1);
        }
    }

    void sparseAndDamagedBatteries()
    {
        // Only a capacity percentage: charge, nothing else.
        BatterySample b = readBattery({{"type", "Battery"}, {"status", "Discharging"}, {"capacity", "55"}});
        QVERIFY(b.present);
        QCOMPARE(b.charge, 0.55);
        QCOMPARE(b.timeToEmpty, -1);
        QCOMPARE(b.health, 0.0);
        QCOMPARE(b.designCapacity, 0);
        QCOMPARE(b.powerSource, BatteryMonitor::batteryPower);

        // Damaged energy files fall back to charge; a worn-in battery
        // reporting more than its design is capped at full health.
        b = readBattery({{"type", "Battery"}, {"status", "Unknown"}, {"energy_now", "12abc"}, {"energy_full", ""},
                         {"charge_now", "1000000"}, {"charge_full", "5200000"}, {"charge_full_design", "5000000"},
                         {"cycle_count", "-1"}});
        QCOMPARE(b.charge, 1000000.0 / 5200000.0);
        QCOMPARE(b.health, 1.0);
        QCOMPARE(b.maxCapacity, 5200);
        QCOMPARE(b.cycleCount, 0);
        QCOMPARE(b.timeToEmpty, -1);
        QCOMPARE(b.timeToFull, -1);
    }

    void absurdFiguresAreDroppedNeverWrapped()
    {
        // What a damaged snapshot or a confused driver can hold: counts past
        // 2^31, capacities of exajoules, a battery hotter than the sun.
        BatterySample b = readBattery({{"type", "Battery"}, {"status", "Discharging"}, {"capacity", "64"},
                                       {"cycle_count", "2147483648"}, {"charge_now", "18446744073709551615"},
                                       {"charge_full", "9223372036854775807"},
                                       {"charge_full_design", "4000000000000000000"}, {"current_now", "500000"},
                                       {"temp", "900000000"}});
        QVERIFY(b.present);
        QCOMPARE(b.cycleCount, 0);
        QCOMPARE(b.charge, 0.64);
        QCOMPARE(b.designCapacity, 0);
        QCOMPARE(b.maxCapacity, 0);
        QCOMPARE(b.health, 0.0);
        QCOMPARE(b.timeToEmpty, -1);
        QCOMPARE(b.temperature, 0.0);

        // Capacities from energy over a nonsense voltage would overflow.
        b = readBattery({{"type", "Battery"}, {"status", "Charging"}, {"energy_now", "25000000"},
                         {"energy_full", "50000000"}, {"energy_full_design", "57000000"}, {"voltage_min_design", "1"},
                         {"cycle_count", "9000000000"}});
        QCOMPARE(b.charge, 0.5);
        QCOMPARE(b.health, 50.0 / 57.0);
        QCOMPARE(b.designCapacity, 0);
        QCOMPARE(b.maxCapacity, 0);
        QCOMPARE(b.cycleCount, 0);

        // Plausible figures at the edges still count.
        b = readBattery({{"type", "Battery"}, {"status", "Full"}, {"charge_now", "4000000"}, {"charge_full", "4000000"},
                         {"charge_full_design", "4000000"}, {"cycle_count", "2500"}, {"temp", "455"}});
        QCOMPARE(b.cycleCount, 2500);
        QCOMPARE(b.temperature, 45.5);
        QCOMPARE(b.designCapacity, 4000);
    }

    void statusTellsAboutPowerWithoutAMainsSupply()
    {
        BatterySample b = readBattery({{"type", "Battery"}, {"status", "Full"}, {"capacity", "100"}});
        QVERIFY(b.isPluggedIn);
        QVERIFY(!b.isCharging);
        QCOMPARE(b.powerSource, BatteryMonitor::acPower);

        // With a Mains supply present its online flag decides, and an
        // offline USB-C port is not outside power.
        b = readSupplies({{"AC", {{"type", "Mains"}, {"online", "0"}}},
                          {"ucsi-source-psy-USBC000:001", {{"type", "USB"}, {"online", "0"}}},
                          {"BAT0", {{"type", "Battery"}, {"status", "Not charging"}, {"capacity", "80"}}}});
        QVERIFY(!b.isPluggedIn);
        QCOMPARE(b.powerSource, BatteryMonitor::batteryPower);

        QVERIFY(readSupplies({{"ucsi-source-psy-USBC000:001", {{"type", "USB"}, {"online", "1"}}},
                              {"BAT0", {{"type", "Battery"}, {"status", "Charging"}, {"capacity", "80"}}}})
                    .isPluggedIn);
    }
};

SULK_TEST(BatteryMonitorTest)
#include "BatteryMonitorTest.moc"
