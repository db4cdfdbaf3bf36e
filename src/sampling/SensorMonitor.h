#pragma once
// Temperatures and fans from /sys/class/hwmon (thermal zones on machines
// whose hwmon has no temperatures), the system battery's own temperature,
// NVIDIA's management library on the live machine, and the SMC for fans and
// a CPU fallback on Apple hardware.
//
// The hwmon layout (which chips, which *_input files, their labels) is
// walked once and again only every `rediscoverEvery` reads or after a read
// failed; in between a reading opens just the *_input files.

#include "model/Records.h"
#include "sampling/Nvml.h"
#include "sampling/SMC.h"
#include "sampling/SystemRoots.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

class SensorMonitor {
public:
    SensorMonitor(SystemRoots roots, SMC &smc);

    SensorSample read();

    // Where NVIDIA temperatures come from; by default the management
    // library when the roots are live and something else has opened it,
    // none otherwise.
    void setNvidiaSource(nvml::Source source) { m_nvidia = std::move(source); }

    // The classes a reading's name belongs to (bits of SensorClass); a
    // reading belongs to a class when its name contains one of the class's
    // patterns, ignoring case.
    enum SensorClass : quint8 { cpuClass = 1, gpuClass = 2, ssdClass = 4, wifiClass = 8, batteryClass = 16 };
    static quint8 classify(const QString &name);

    static constexpr int rediscoverEvery = 40;
    // After a failed read, the soonest (in reads) the tree is walked again.
    static constexpr int retryAfter = 5;

private:
    struct TempSource {
        QByteArray path;
        QString name;
        double scale = 0.001;
        quint8 classes = 0;
        // A graphics card that the kernel has put to sleep is skipped rather
        // than woken by reading its sensors.
        QString runtimeStatus;
    };
    struct FanSource {
        QByteArray input;
        double min = 0;
        double max = 0;
        QString runtimeStatus;
    };

    void discover();
    bool isAsleep(const QString &runtimeStatus) const;

    SystemRoots m_roots;
    SMC &m_smc;
    nvml::Source m_nvidia;
    QList<TempSource> m_temps;
    QList<FanSource> m_fans;
    QHash<QString, quint8> m_nvidiaClasses;
    int m_readsSinceDiscovery = 0;
    bool m_stale = false;
    bool m_discovered = false;
};
