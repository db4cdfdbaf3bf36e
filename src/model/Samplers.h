#pragma once
// Everything the model asks of the sampling layer, behind one interface.
// The model receives an implementation at construction: the Linux readers
// in the application, fakes in tests.

#include "model/Records.h"

#include <QList>
#include <QString>

class Samplers {
public:
    virtual ~Samplers() = default;

    // Processor brand text, asked once when the model is built.
    virtual QString cpuBrand() = 0;

    // Fast readers, every tick (disk only while the panel is open).
    virtual CPUSample readCPU() = 0;
    virtual MemorySample readMemory() = 0;
    virtual NetworkSample readNetwork(bool refreshAddress) = 0;
    virtual DiskSample readDisk() = 0;
    // Forgets the disk counters' baseline time, so the next disk reading
    // only primes.
    virtual void clearDiskBaseline() = 0;

    // Slow readers.
    virtual BatterySample readBattery() = 0;
    virtual SensorSample readSensors() = 0;
    virtual GPUSample readGPU() = 0;
    virtual QmPowerReading readPower() = 0;
    virtual void resetPower() = 0;

    // Blocking; the model calls it on a pool thread, never two at a time.
    virtual QList<ProcInfo> topProcesses(int limit) = 0;
};

// Returns the empty record for everything.
class EmptySamplers : public Samplers {
public:
    QString cpuBrand() override { return QStringLiteral("CPU"); }
    CPUSample readCPU() override { return {}; }
    MemorySample readMemory() override { return {}; }
    NetworkSample readNetwork(bool) override { return {}; }
    DiskSample readDisk() override { return {}; }
    void clearDiskBaseline() override {}
    BatterySample readBattery() override { return {}; }
    SensorSample readSensors() override { return {}; }
    GPUSample readGPU() override { return {}; }
    QmPowerReading readPower() override { return {}; }
    void resetPower() override {}
    QList<ProcInfo> topProcesses(int) override { return {}; }
};
