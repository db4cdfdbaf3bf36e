#pragma once
// The model's samplers on Linux: one reader per source over the given roots.

#include "model/Samplers.h"
#include "sampling/BatteryMonitor.h"
#include "sampling/CPUMonitor.h"
#include "sampling/DiskMonitor.h"
#include "sampling/GPUMonitor.h"
#include "sampling/MemoryMonitor.h"
#include "sampling/NetworkMonitor.h"
#include "sampling/Power.h"
#include "sampling/ProcessMonitor.h"
#include "sampling/SMC.h"
#include "sampling/SensorMonitor.h"
#include "sampling/SystemRoots.h"

#include <QMutex>

#include <functional>
#include <memory>

class LinuxSamplers : public Samplers {
public:
    explicit LinuxSamplers(SystemRoots roots = {});

    const SystemRoots &roots() const { return m_roots; }

    // The steady clock (seconds) that network rates divide by; a simulated
    // run hands in its own.
    void setRateClock(std::function<double()> clock) { m_network.setClock(std::move(clock)); }

    QString cpuBrand() override;
    CPUSample readCPU() override;
    MemorySample readMemory() override;
    NetworkSample readNetwork(bool refreshAddress) override;
    DiskSample readDisk() override;
    void clearDiskBaseline() override;
    BatterySample readBattery() override;
    SensorSample readSensors() override;
    GPUSample readGPU() override;
    QmPowerReading readPower() override;
    void resetPower() override;
    QList<ProcInfo> topProcesses(int limit) override;

private:
    SystemRoots m_roots;
    std::unique_ptr<SMC> m_ownSMC; // for roots other than the live ones
    CPUMonitor m_cpu;
    MemoryMonitor m_memory;
    NetworkMonitor m_network;
    DiskMonitor m_disk;
    BatteryMonitor m_battery;
    SensorMonitor m_sensors;
    GPUMonitor m_gpu;
    PowerMeter m_power;
    QMutex m_processLock;
    ProcessMonitor m_processes;
};
