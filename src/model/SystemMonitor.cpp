#include "model/SystemMonitor.h"

#include "settings/Settings.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

#include <cmath>

SystemMonitor::SystemMonitor(std::shared_ptr<Samplers> samplers, Scheduler &scheduler, QObject *parent)
    : QObject(parent)
    , m_samplers(samplers ? std::move(samplers) : std::make_shared<EmptySamplers>())
    , m_scheduler(scheduler)
    , m_processJobRunning(std::make_shared<std::atomic<bool>>(false))
{
    m_cpuBrand = m_samplers->cpuBrand();
    m_timer.setTimerType(Qt::CoarseTimer);
    connect(&m_timer, &QTimer::timeout, this, &SystemMonitor::tick);
    sampleFast();
    sampleSlow();
    updateMood();
    start();
}

SystemMonitor::~SystemMonitor() = default;

double SystemMonitor::clampInterval(double seconds)
{
    if (!(seconds > 0) || std::isnan(seconds))
        return 1.0;
    if (seconds <= 0.5)
        return 0.5;
    if (seconds > 10)
        return 10.0;
    return seconds;
}

double SystemMonitor::intervalFromSetting()
{
    return clampInterval(Settings::number(Settings::Key::refreshInterval));
}

void SystemMonitor::start()
{
    m_timer.stop();
    m_currentInterval = intervalFromSetting();
    m_timer.start(int(std::lround(m_currentInterval * 1000)));
}

void SystemMonitor::tick()
{
    if (intervalFromSetting() != m_currentInterval)
        start();
    sampleFast();
    ++m_slowTick;
    const int period = m_panelVisible ? slowTicksVisible : slowTicksHidden;
    if (m_slowTick >= period) {
        m_slowTick = 0;
        sampleSlow();
    }
    updateMood();
    emit ticked();
}

void SystemMonitor::sampleFast()
{
    m_cpu = m_samplers->readCPU();
    emit cpuChanged();
    m_memory = m_samplers->readMemory();
    emit memoryChanged();
    m_network = m_samplers->readNetwork(m_panelVisible);
    emit networkChanged();

    m_cpuHistory.append(m_cpu.total);
    emit cpuHistoryChanged();
    m_netDownHistory.append(m_network.downRate);
    emit netDownHistoryChanged();
    m_netUpHistory.append(m_network.upRate);
    emit netUpHistoryChanged();

    if (!m_panelVisible)
        return;
    m_disk = m_samplers->readDisk();
    emit diskChanged();
    if (m_disk.hasRate) {
        m_diskReadHistory.append(m_disk.readRate);
        emit diskReadHistoryChanged();
        m_diskWriteHistory.append(m_disk.writeRate);
        emit diskWriteHistoryChanged();
    }
}

void SystemMonitor::sampleSlow()
{
    m_battery = m_samplers->readBattery();
    emit batteryChanged();
    m_sensors = m_samplers->readSensors();
    emit sensorsChanged();

    if (!m_panelVisible)
        return;
    m_gpu = m_samplers->readGPU();
    m_gpu.temp = m_sensors.gpuTemp;
    emit gpuChanged();
    applyPower(m_samplers->readPower());
    startProcessList();
}

void SystemMonitor::applyPower(const QmPowerReading &reading)
{
    if (reading.ok != 1)
        return;
    m_power = PowerSample{true, reading.cpu, reading.gpu, reading.total};
    emit powerChanged();
}

void SystemMonitor::startProcessList()
{
    // One list at a time: a slow lister must not pile up work.
    if (m_processJobRunning->exchange(true))
        return;
    auto *app = QCoreApplication::instance();
    if (!app) {
        m_processJobRunning->store(false);
        return;
    }
    QPointer<SystemMonitor> weak(this);
    auto samplers = m_samplers; // the job keeps the readers alive
    auto running = m_processJobRunning;
    QThreadPool::globalInstance()->start([weak, samplers, running, app] {
        QList<ProcInfo> list = samplers->topProcesses(processLimit);
        running->store(false);
        // Only the main thread looks at `weak`.
        QMetaObject::invokeMethod(app, [weak, list = std::move(list)] {
            if (weak) {
                weak->m_processes = list;
                emit weak->processesChanged();
            }
        }, Qt::QueuedConnection);
    });
}

void SystemMonitor::setPanelVisible(bool visible)
{
    if (visible == m_panelVisible)
        return;
    m_panelVisible = visible;
    emit panelVisibleChanged();
    if (visible) {
        sampleFast();
        sampleSlow();
        updateMood();
        // The power reader needs two readings; fill the card one second in.
        m_scheduler.after(1000, this, [this] {
            if (m_panelVisible)
                applyPower(m_samplers->readPower());
        });
    } else {
        m_samplers->clearDiskBaseline();
        m_samplers->resetPower();
    }
}
