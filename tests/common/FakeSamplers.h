#pragma once
// Scriptable samplers for the model's tests: each reading is a value the
// test sets, and every call is counted.

#include "model/Samplers.h"

#include <QMutex>
#include <QSemaphore>

#include <atomic>

class FakeSamplers : public Samplers {
public:
    CPUSample cpu;
    MemorySample memory;
    NetworkSample network;
    DiskSample disk;
    BatterySample battery;
    SensorSample sensors;
    GPUSample gpu;
    QmPowerReading power;
    QList<ProcInfo> processes;

    int cpuReads = 0, memoryReads = 0, networkReads = 0, diskReads = 0;
    int batteryReads = 0, sensorReads = 0, gpuReads = 0, powerReads = 0;
    int diskBaselineClears = 0, powerResets = 0;
    QList<bool> addressRefreshes;
    std::atomic<int> processCalls{0};

    // When set, topProcesses waits for `release` before returning.
    bool blockProcesses = false;
    QSemaphore entered;
    QSemaphore release;

    QString cpuBrand() override { return QStringLiteral("Fake CPU 3000"); }
    CPUSample readCPU() override { ++cpuReads; return cpu; }
    MemorySample readMemory() override { ++memoryReads; return memory; }
    NetworkSample readNetwork(bool refreshAddress) override
    {
        ++networkReads;
        addressRefreshes.append(refreshAddress);
        return network;
    }
    DiskSample readDisk() override { ++diskReads; return disk; }
    void clearDiskBaseline() override { ++diskBaselineClears; }
    BatterySample readBattery() override { ++batteryReads; return battery; }
    SensorSample readSensors() override { ++sensorReads; return sensors; }
    GPUSample readGPU() override { ++gpuReads; return gpu; }
    QmPowerReading readPower() override { ++powerReads; return power; }
    void resetPower() override { ++powerResets; }
    QList<ProcInfo> topProcesses(int limit) override
    {
        ++processCalls;
        if (blockProcesses) {
            entered.release();
            release.acquire();
        }
        return processes.mid(0, limit);
    }
};
