#include "sampling/LinuxSamplers.h"

namespace {
bool isLiveRoot(const SystemRoots &roots)
{
    return roots.live && roots.proc == u"/proc" && roots.sys == u"/sys";
}
} // namespace

LinuxSamplers::LinuxSamplers(SystemRoots roots)
    : m_roots(roots)
    , m_ownSMC(isLiveRoot(roots) ? nullptr : std::make_unique<SMC>(roots))
    , m_cpu(roots)
    , m_memory(roots)
    , m_network(roots)
    , m_disk(roots)
    , m_battery(roots)
    , m_sensors(roots, m_ownSMC ? *m_ownSMC : SMC::shared())
    , m_gpu(roots)
    , m_power(roots)
    , m_processes(roots)
{
}

QString LinuxSamplers::cpuBrand() { return CPUMonitor::brandString(m_roots); }
CPUSample LinuxSamplers::readCPU() { return m_cpu.read(); }
MemorySample LinuxSamplers::readMemory() { return m_memory.read(); }
NetworkSample LinuxSamplers::readNetwork(bool refreshAddress) { return m_network.read(refreshAddress); }
DiskSample LinuxSamplers::readDisk() { return m_disk.read(); }
void LinuxSamplers::clearDiskBaseline() { m_disk.clearBaseline(); }
BatterySample LinuxSamplers::readBattery() { return m_battery.read(); }
SensorSample LinuxSamplers::readSensors() { return m_sensors.read(); }
GPUSample LinuxSamplers::readGPU() { return m_gpu.read(); }
QmPowerReading LinuxSamplers::readPower() { return m_power.read(); }
void LinuxSamplers::resetPower() { m_power.reset(); }

QList<ProcInfo> LinuxSamplers::topProcesses(int limit)
{
    QMutexLocker lock(&m_processLock);
    return m_processes.topByCPU(limit);
}
