#pragma once
// Plain value records, one per data source. Units are fixed system-wide:
// shares are fractions 0..1 (ProcInfo alone carries percentages), sizes are
// bytes, rates bytes per second, temperatures °C, fans RPM, power watts,
// battery times whole minutes with -1 for unknown.

#include <QList>
#include <QMetaType>
#include <QString>

#include "l10n/LocKey.h"

#include <algorithm>

namespace Records {
// The em dash shown for every unknown text value.
inline const QString unknownText = QStringLiteral("\u2014");
} // namespace Records

struct CPUSample {
    Q_GADGET
    Q_PROPERTY(double total MEMBER total)
    Q_PROPERTY(double user MEMBER user)
    Q_PROPERTY(double system MEMBER system)
    Q_PROPERTY(double idle MEMBER idle)
    Q_PROPERTY(QList<double> perCore MEMBER perCore)
public:
    double total = 0;
    double user = 0;
    double system = 0;
    double idle = 1.0; // an empty reading is wholly idle
    QList<double> perCore;

    bool operator==(const CPUSample &) const = default;
};

struct MemorySample {
    Q_GADGET
    Q_PROPERTY(double total MEMBER total)
    Q_PROPERTY(double used MEMBER used)
    Q_PROPERTY(double wired MEMBER wired)
    Q_PROPERTY(double compressed MEMBER compressed)
    Q_PROPERTY(double cached MEMBER cached)
    Q_PROPERTY(double free MEMBER free)
    Q_PROPERTY(double pressure MEMBER pressure)
    Q_PROPERTY(double swapUsed MEMBER swapUsed)
    Q_PROPERTY(double swapTotal MEMBER swapTotal)
public:
    double total = 0;
    double used = 0;
    double wired = 0;
    double compressed = 0;
    double cached = 0;
    double free = 0;
    double pressure = 0;
    double swapUsed = 0;
    double swapTotal = 0;

    // Fills `free` and `pressure` from `total` and `used`.
    void deriveFreeAndPressure()
    {
        free = std::max(total - used, 0.0);
        pressure = total > 0 ? std::min(used / total, 1.0) : 0.0;
    }

    bool operator==(const MemorySample &) const = default;
};

struct NetworkSample {
    Q_GADGET
    Q_PROPERTY(double downRate MEMBER downRate)
    Q_PROPERTY(double upRate MEMBER upRate)
    Q_PROPERTY(double totalIn MEMBER totalIn)
    Q_PROPERTY(double totalOut MEMBER totalOut)
    Q_PROPERTY(QString primaryInterface MEMBER primaryInterface)
    Q_PROPERTY(QString ipv4 MEMBER ipv4)
public:
    double downRate = 0;
    double upRate = 0;
    double totalIn = 0;
    double totalOut = 0;
    QString primaryInterface = Records::unknownText;
    QString ipv4 = Records::unknownText;

    bool operator==(const NetworkSample &) const = default;
};

struct VolumeInfo {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString path MEMBER path)
    Q_PROPERTY(double total MEMBER total)
    Q_PROPERTY(double free MEMBER free)
    Q_PROPERTY(QString identity READ identity)
    Q_PROPERTY(double usedShare READ usedShare)
public:
    QString name;
    QString path;
    double total = 0;
    double free = 0;

    QString identity() const { return name + path; }
    // (total - free) / total, never below 0; 0 for a volume without capacity.
    double usedShare() const { return total > 0 ? std::max(total - free, 0.0) / total : 0.0; }

    bool operator==(const VolumeInfo &) const = default;
};

struct DiskSample {
    Q_GADGET
    Q_PROPERTY(QList<VolumeInfo> volumes MEMBER volumes)
    Q_PROPERTY(double readRate MEMBER readRate)
    Q_PROPERTY(double writeRate MEMBER writeRate)
    Q_PROPERTY(bool hasRate MEMBER hasRate)
public:
    QList<VolumeInfo> volumes; // largest first
    double readRate = 0;
    double writeRate = 0;
    bool hasRate = false;

    bool operator==(const DiskSample &) const = default;
};

struct BatterySample {
    Q_GADGET
    Q_PROPERTY(bool present MEMBER present)
    Q_PROPERTY(double charge MEMBER charge)
    Q_PROPERTY(bool isCharging MEMBER isCharging)
    Q_PROPERTY(bool isPluggedIn MEMBER isPluggedIn)
    Q_PROPERTY(int timeToEmpty MEMBER timeToEmpty)
    Q_PROPERTY(int timeToFull MEMBER timeToFull)
    Q_PROPERTY(int cycleCount MEMBER cycleCount)
    Q_PROPERTY(double health MEMBER health)
    Q_PROPERTY(double temperature MEMBER temperature)
    Q_PROPERTY(int designCapacity MEMBER designCapacity)
    Q_PROPERTY(int maxCapacity MEMBER maxCapacity)
    Q_PROPERTY(QString powerSource MEMBER powerSource)
public:
    bool present = false;
    double charge = 0;
    bool isCharging = false;
    bool isPluggedIn = false;
    int timeToEmpty = 0;
    int timeToFull = 0;
    int cycleCount = 0;
    double health = 0;
    double temperature = 0;
    int designCapacity = 0;
    int maxCapacity = 0;
    QString powerSource = Records::unknownText;

    bool operator==(const BatterySample &) const = default;
};

struct TempReading {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(double celsius MEMBER celsius)
public:
    QString name; // also the identity
    double celsius = 0;

    bool operator==(const TempReading &) const = default;
};

struct TempComponent {
    Q_GADGET
    Q_PROPERTY(LocKey key MEMBER key)
    Q_PROPERTY(double celsius MEMBER celsius)
    Q_PROPERTY(QString identity READ identity)
public:
    LocKey key = LocKey::compSSD; // compSSD, compWiFi or compBattery
    double celsius = 0;

    QString identity() const { return rawValue(key); }

    bool operator==(const TempComponent &) const = default;
};

struct FanInfo {
    Q_GADGET
    Q_PROPERTY(int index MEMBER index)
    Q_PROPERTY(double current MEMBER current)
    Q_PROPERTY(double min MEMBER min)
    Q_PROPERTY(double max MEMBER max)
public:
    int index = 0; // also the identity
    double current = 0;
    double min = 0;
    double max = 0;

    bool operator==(const FanInfo &) const = default;
};

struct SensorSample {
    Q_GADGET
    Q_PROPERTY(QList<TempReading> temperatures MEMBER temperatures)
    Q_PROPERTY(QList<TempComponent> components MEMBER components)
    Q_PROPERTY(QList<FanInfo> fans MEMBER fans)
    Q_PROPERTY(double cpuTemp MEMBER cpuTemp)
    Q_PROPERTY(double gpuTemp MEMBER gpuTemp)
    Q_PROPERTY(double hottest MEMBER hottest)
public:
    QList<TempReading> temperatures; // hottest first
    QList<TempComponent> components; // SSD, Wi-Fi, battery; only those above 0
    QList<FanInfo> fans;
    double cpuTemp = 0;
    double gpuTemp = 0;
    double hottest = 0;

    // The one temperature that stands for the machine: the CPU's when known.
    double machineTemp() const { return cpuTemp > 0 ? cpuTemp : hottest; }

    bool operator==(const SensorSample &) const = default;
};

struct GPUSample {
    Q_GADGET
    Q_PROPERTY(bool hasUsage MEMBER hasUsage)
    Q_PROPERTY(double usage MEMBER usage)
    Q_PROPERTY(double temp MEMBER temp)
public:
    bool hasUsage = false;
    double usage = 0;
    double temp = 0;

    bool operator==(const GPUSample &) const = default;
};

struct PowerSample {
    Q_GADGET
    Q_PROPERTY(bool ok MEMBER ok)
    Q_PROPERTY(double cpu MEMBER cpu)
    Q_PROPERTY(double gpu MEMBER gpu)
    Q_PROPERTY(double total MEMBER total)
public:
    bool ok = false;
    double cpu = 0;
    double gpu = 0;
    double total = 0;

    bool operator==(const PowerSample &) const = default;
};

// The low-level power reading; `ok` is 1 when the three figures are real.
struct QmPowerReading {
    double cpu = 0;
    double gpu = 0;
    double total = 0;
    int ok = 0;

    bool operator==(const QmPowerReading &) const = default;
};

struct ProcInfo {
    Q_GADGET
    Q_PROPERTY(int id READ pid)
    Q_PROPERTY(QString name READ procName)
    Q_PROPERTY(double cpu READ cpuPercent)
    Q_PROPERTY(double mem READ memPercent)
public:
    ProcInfo() = default;
    ProcInfo(int id, QString name, double cpu, double mem)
        : m_id(id), m_name(std::move(name)), m_cpu(cpu), m_mem(mem) {}

    // Fixed when the row is made. cpu is percent of one core (may exceed
    // 100), mem percent of physical memory.
    int id() const { return m_id; }
    const QString &name() const { return m_name; }
    double cpu() const { return m_cpu; }
    double mem() const { return m_mem; }

    bool operator==(const ProcInfo &) const = default;

private:
    int pid() const { return m_id; }
    QString procName() const { return m_name; }
    double cpuPercent() const { return m_cpu; }
    double memPercent() const { return m_mem; }

    int m_id = 0;
    QString m_name;
    double m_cpu = 0;
    double m_mem = 0;
};
