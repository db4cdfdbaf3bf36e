#include "sampling/SensorMonitor.h"

#include "sampling/Plausible.h"
#include "sampling/SysFs.h"

using namespace Qt::StringLiterals;

#include <algorithm>
#include <initializer_list>

namespace {

using Patterns = std::initializer_list<QLatin1StringView>;

// Apple's own sensor names first, then the Linux drivers' chip names (and
// applesmc's key prefixes, which arrive as "applesmc <key>").
const Patterns cpuPatterns{
    QLatin1StringView("CPU"), QLatin1StringView("PMU tdie"), QLatin1StringView("PMU tdev"),
    QLatin1StringView("PMU TP"), QLatin1StringView("PMU tcal"), QLatin1StringView("eCPU"),
    QLatin1StringView("pCPU"), QLatin1StringView("SOC"), QLatin1StringView("eACC"),
    QLatin1StringView("pACC"), QLatin1StringView("coretemp"), QLatin1StringView("k10temp"),
    QLatin1StringView("zenpower"), QLatin1StringView("x86_pkg_temp"), QLatin1StringView("applesmc TC")};
const Patterns gpuPatterns{
    QLatin1StringView("GPU"), QLatin1StringView("tgpu"), QLatin1StringView("TG0"),
    QLatin1StringView("PMU TG"), QLatin1StringView("amdgpu"), QLatin1StringView("radeon"),
    QLatin1StringView("nouveau"), QLatin1StringView("nvidia"), QLatin1StringView("applesmc TG")};
const Patterns ssdPatterns{
    QLatin1StringView("NAND"), QLatin1StringView("SSD"), QLatin1StringView("nvme"),
    QLatin1StringView("drivetemp"), QLatin1StringView("applesmc TH")};
const Patterns wifiPatterns{
    QLatin1StringView("wifi"), QLatin1StringView("wlan"), QLatin1StringView("Wi-Fi"),
    QLatin1StringView("ath9k"), QLatin1StringView("ath10k"), QLatin1StringView("ath11k"),
    QLatin1StringView("ath12k"), QLatin1StringView("mt7"), QLatin1StringView("rtw8"),
    QLatin1StringView("brcmfmac"), QLatin1StringView("applesmc TW")};
const Patterns batteryPatterns{
    QLatin1StringView("battery"), QLatin1StringView("gas gauge"), QLatin1StringView("applesmc TB")};

bool matches(const QString &name, const Patterns &patterns)
{
    return std::any_of(patterns.begin(), patterns.end(),
                       [&name](QLatin1StringView p) { return name.contains(p, Qt::CaseInsensitive); });
}

// Graphics drivers whose sensors would wake a sleeping card.
bool wakesOnRead(const QString &chip)
{
    return chip == "amdgpu"_L1 || chip == "radeon"_L1 || chip == "nouveau"_L1;
}


struct Entry {
    TempReading reading;
    quint8 classes = 0;
};

double average(const QList<Entry> &entries, quint8 cls)
{
    double sum = 0;
    int n = 0;
    for (const Entry &e : entries) {
        if (e.classes & cls) {
            sum += e.reading.celsius;
            ++n;
        }
    }
    return n ? sum / n : 0.0;
}

} // namespace

SensorMonitor::SensorMonitor(SystemRoots roots, SMC &smc)
    : m_roots(std::move(roots))
    , m_smc(smc)
{
    // Sensors are read with the panel closed too: NVIDIA temperatures join
    // once a GPU reading has opened the library, never before.
    if (m_roots.live)
        m_nvidia = nvml::Nvml::openedSource();
}

quint8 SensorMonitor::classify(const QString &name)
{
    quint8 c = 0;
    if (matches(name, cpuPatterns))
        c |= cpuClass;
    if (matches(name, gpuPatterns))
        c |= gpuClass;
    if (matches(name, ssdPatterns))
        c |= ssdClass;
    if (matches(name, wifiPatterns))
        c |= wifiClass;
    if (matches(name, batteryPatterns))
        c |= batteryClass;
    return c;
}

void SensorMonitor::discover()
{
    m_temps.clear();
    m_fans.clear();
    m_readsSinceDiscovery = 0;
    m_stale = false;
    m_discovered = true;

    auto addTemp = [this](const QString &path, const QString &name, double scale, const QString &status = {}) {
        m_temps.append({SysFs::native(path), name, scale, classify(name), status});
    };

    // Power supplies: the system battery's own temperature (tenths of a
    // degree). A supply may also have an hwmon chip of its own name, which
    // repeats the same figures and is skipped below.
    const QString supplies = m_roots.sys + "/class/power_supply/"_L1;
    const QStringList supplyNames = SysFs::entries(supplies);
    for (const QString &name : supplyNames) {
        const QString dir = supplies + name;
        if (SysFs::readLine(dir + "/type"_L1) != "Battery"_L1 || SysFs::readLine(dir + "/scope"_L1) == "Device"_L1)
            continue;
        if (SysFs::exists(dir + "/temp"_L1))
            addTemp(dir + "/temp"_L1, SysFs::printable(name) + " battery"_L1, 0.1);
    }

    const QString hwmon = m_roots.sys + "/class/hwmon/"_L1;
    bool hwmonHasTemps = false;
    for (const QString &entry : SysFs::entries(hwmon)) {
        const QString dir = hwmon + entry;
        QString chip = SysFs::readLine(dir + "/name"_L1).value_or(QString());
        if (chip.isEmpty())
            chip = SysFs::readLine(dir + "/device/name"_L1).value_or(QString());
        if (chip.isEmpty())
            chip = SysFs::printable(entry);
        if (supplyNames.contains(chip))
            continue;

        // Older drivers keep their files on the parent device.
        QString base = dir;
        QStringList files = SysFs::entries(base);
        const auto hasInputs = [](const QStringList &names) {
            return std::any_of(names.begin(), names.end(), [](const QString &n) {
                return n.endsWith(u"_input") && (n.startsWith(u"temp") || n.startsWith(u"fan"));
            });
        };
        if (!hasInputs(files)) {
            base = dir + "/device"_L1;
            files = SysFs::entries(base);
        }
        const QString status = wakesOnRead(chip) ? dir + "/device/power/runtime_status"_L1 : QString();

        for (const QString &file : files) {
            if (const int t = SysFs::indexedName(file, QLatin1StringView("temp"), QLatin1StringView("_input")); t >= 0) {
                QString label = SysFs::readLine(base + QStringLiteral("/temp%1_label").arg(t)).value_or(QString());
                if (label.isEmpty())
                    label = QStringLiteral("temp%1").arg(t);
                addTemp(base + u'/' + file, chip + u' ' + label, 0.001, status);
                hwmonHasTemps = true;
            } else if (const int f = SysFs::indexedName(file, QLatin1StringView("fan"), QLatin1StringView("_input")); f >= 0) {
                const QString prefix = base + QStringLiteral("/fan%1_").arg(f);
                const auto limit = [&prefix](QLatin1StringView which) {
                    return Plausible::fanRpmOrZero(double(SysFs::readLong(prefix + which).value_or(0)));
                };
                m_fans.append({SysFs::native(base + u'/' + file), limit("min"_L1), limit("max"_L1), status});
            }
        }
    }

    // Thermal zones stand in only where hwmon reports no temperature at all;
    // elsewhere they repeat what hwmon already has.
    if (!hwmonHasTemps) {
        const QString thermal = m_roots.sys + "/class/thermal/"_L1;
        for (const QString &zone : SysFs::entries(thermal)) {
            if (!zone.startsWith(u"thermal_zone"))
                continue;
            const QString type = SysFs::readLine(thermal + zone + "/type"_L1).value_or(QString());
            addTemp(thermal + zone + "/temp"_L1, type.isEmpty() ? SysFs::printable(zone) : type, 0.001);
        }
    }

    // Some drivers list inputs they cannot read (a sensor the board does not
    // wire up answers with an error); keep only those that answer now.
    m_temps.removeIf([this](const TempSource &s) { return !isAsleep(s.runtimeStatus) && !SysFs::readLong(s.path); });
    m_fans.removeIf([this](const FanSource &f) { return !isAsleep(f.runtimeStatus) && !SysFs::readLong(f.input); });
}

bool SensorMonitor::isAsleep(const QString &runtimeStatus) const
{
    return !runtimeStatus.isEmpty() && SysFs::readLine(runtimeStatus) == "suspended"_L1;
}

SensorSample SensorMonitor::read()
{
    // A failed read asks for a new walk, but not on every tick: a sensor that
    // fails now and then must not make every reading walk the tree.
    if (!m_discovered || m_readsSinceDiscovery >= rediscoverEvery || (m_stale && m_readsSinceDiscovery >= retryAfter))
        discover();
    ++m_readsSinceDiscovery;

    QList<Entry> entries;
    entries.reserve(m_temps.size() + 2);
    QHash<QString, qsizetype> byName;
    // A later reading of the same name replaces the earlier one.
    auto add = [&](const QString &name, double celsius, quint8 classes) {
        if (!Plausible::celsius(celsius))
            return;
        if (const auto it = byName.constFind(name); it != byName.cend()) {
            entries[*it].reading.celsius = celsius;
            return;
        }
        byName.insert(name, entries.size());
        entries.append({{name, celsius}, classes});
    };

    for (const TempSource &source : std::as_const(m_temps)) {
        if (isAsleep(source.runtimeStatus))
            continue;
        const std::optional<qint64> raw = SysFs::readLong(source.path);
        if (!raw) {
            m_stale = true; // gone, or the layout changed: walk again next time
            continue;
        }
        add(source.name, double(*raw) * source.scale, source.classes);
    }

    if (m_nvidia) {
        const std::vector<nvml::NvmlReading> boards = m_nvidia();
        for (size_t i = 0; i < boards.size(); ++i) {
            if (!boards[i].hasTemp)
                continue;
            const QString name = QStringLiteral("nvidia GPU %1").arg(i);
            auto it = m_nvidiaClasses.find(name);
            if (it == m_nvidiaClasses.end())
                it = m_nvidiaClasses.insert(name, classify(name));
            add(name, boards[i].tempC, *it);
        }
    }

    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry &a, const Entry &b) { return a.reading.celsius > b.reading.celsius; });

    SensorSample sample;
    sample.temperatures.reserve(entries.size());
    for (const Entry &e : std::as_const(entries))
        sample.temperatures.append(e.reading);
    sample.hottest = entries.isEmpty() ? 0.0 : entries.first().reading.celsius;

    sample.cpuTemp = average(entries, cpuClass);
    if (sample.cpuTemp == 0 && m_smc.isOpen()) {
        const std::optional<double> tc0p = m_smc.readValue(QStringLiteral("TC0P"));
        if (tc0p && *tc0p > 0)
            sample.cpuTemp = *tc0p;
    }
    sample.gpuTemp = average(entries, gpuClass);

    const std::pair<LocKey, quint8> components[] = {
        {LocKey::compSSD, ssdClass}, {LocKey::compWiFi, wifiClass}, {LocKey::compBattery, batteryClass}};
    for (const auto &[key, cls] : components) {
        const double figure = average(entries, cls);
        if (figure > 0) {
            TempComponent c;
            c.key = key;
            c.celsius = figure;
            sample.components.append(c);
        }
    }

    if (m_smc.isOpen())
        sample.fans = m_smc.fans();
    if (sample.fans.isEmpty()) {
        for (qsizetype i = 0; i < m_fans.size(); ++i) {
            if (isAsleep(m_fans[i].runtimeStatus))
                continue;
            const std::optional<qint64> rpm = SysFs::readLong(m_fans[i].input);
            if (!rpm) {
                m_stale = true;
                continue;
            }
            if (!Plausible::fanRpm(double(*rpm)))
                continue; // a stuck or confused tachometer: no reading
            FanInfo fan;
            fan.index = int(i);
            fan.current = double(*rpm);
            fan.min = m_fans[i].min;
            fan.max = m_fans[i].max;
            sample.fans.append(fan);
        }
    }
    return sample;
}
