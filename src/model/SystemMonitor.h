#pragma once
// The one observable model. It owns the samplers, drives them from one
// repeating timer on the main event loop, and publishes the latest record of
// every source plus five short histories. Views observe the properties.

#include "model/Records.h"
#include "model/RingBuffer.h"
#include "model/Samplers.h"
#include "model/Scheduler.h"
#include "personality/Mood.h"
#include "personality/MoodEngine.h"
#include "personality/Roasts.h"

#include <QList>
#include <QObject>
#include <QTimer>

#include <atomic>
#include <memory>
#include <optional>

class SystemMonitor : public QObject {
    Q_OBJECT
    Q_PROPERTY(CPUSample cpu READ cpu NOTIFY cpuChanged)
    Q_PROPERTY(MemorySample memory READ memory NOTIFY memoryChanged)
    Q_PROPERTY(NetworkSample network READ network NOTIFY networkChanged)
    Q_PROPERTY(DiskSample disk READ disk NOTIFY diskChanged)
    Q_PROPERTY(BatterySample battery READ battery NOTIFY batteryChanged)
    Q_PROPERTY(SensorSample sensors READ sensors NOTIFY sensorsChanged)
    Q_PROPERTY(GPUSample gpu READ gpu NOTIFY gpuChanged)
    Q_PROPERTY(PowerSample power READ power NOTIFY powerChanged)
    Q_PROPERTY(QList<ProcInfo> processes READ processes NOTIFY processesChanged)
    Q_PROPERTY(RingBuffer cpuHistory READ cpuHistory NOTIFY cpuHistoryChanged)
    Q_PROPERTY(RingBuffer netDownHistory READ netDownHistory NOTIFY netDownHistoryChanged)
    Q_PROPERTY(RingBuffer netUpHistory READ netUpHistory NOTIFY netUpHistoryChanged)
    Q_PROPERTY(RingBuffer diskReadHistory READ diskReadHistory NOTIFY diskReadHistoryChanged)
    Q_PROPERTY(RingBuffer diskWriteHistory READ diskWriteHistory NOTIFY diskWriteHistoryChanged)
    Q_PROPERTY(QString cpuBrand READ cpuBrand CONSTANT)
    Q_PROPERTY(bool panelVisible READ panelVisible WRITE setPanelVisible NOTIFY panelVisibleChanged)
    // Mood and roast state. `reaction` and `roastEvent` are optional in C++;
    // QML reads them as a presence flag plus a value.
    Q_PROPERTY(Mood mood READ mood NOTIFY moodChanged)
    Q_PROPERTY(bool hasReaction READ hasReaction NOTIFY reactionChanged)
    Q_PROPERTY(Mood reaction READ reactionOrMood NOTIFY reactionChanged)
    Q_PROPERTY(bool hasRoastEvent READ hasRoastEvent NOTIFY roastEventChanged)
    Q_PROPERTY(RoastEvent roastEvent READ roastEventOrEmpty NOTIFY roastEventChanged)

public:
    static constexpr int historyCapacity = 60;
    static constexpr int processLimit = 6;
    static constexpr int slowTicksVisible = 3;
    static constexpr int slowTicksHidden = 9;

    // Samples once (fast, slow), computes the first mood and starts the timer.
    explicit SystemMonitor(std::shared_ptr<Samplers> samplers,
                           Scheduler &scheduler = Scheduler::system(),
                           QObject *parent = nullptr);
    ~SystemMonitor() override;

    // The tick interval for a stored "refreshInterval": not above 0 (or not
    // a number) gives 1 s, up to 0.5 gives 0.5 s, above 10 gives 10 s.
    static double clampInterval(double seconds);
    // The interval the setting asks for now.
    static double intervalFromSetting();

    void start();
    // Stops the timer: no tick comes until start(). A one-shot reading
    // (`sulkbox status`) takes its samples itself.
    void stop() { m_timer.stop(); }
    void tick();
    void sampleFast();
    void sampleSlow();
    // Package power averaged since the previous reading of it.
    void samplePower() { applyPower(m_samplers->readPower()); }
    void setPanelVisible(bool visible);
    void updateMood();

    const CPUSample &cpu() const { return m_cpu; }
    const MemorySample &memory() const { return m_memory; }
    const NetworkSample &network() const { return m_network; }
    const DiskSample &disk() const { return m_disk; }
    const BatterySample &battery() const { return m_battery; }
    const SensorSample &sensors() const { return m_sensors; }
    const GPUSample &gpu() const { return m_gpu; }
    const PowerSample &power() const { return m_power; }
    const QList<ProcInfo> &processes() const { return m_processes; }
    const RingBuffer &cpuHistory() const { return m_cpuHistory; }
    const RingBuffer &netDownHistory() const { return m_netDownHistory; }
    const RingBuffer &netUpHistory() const { return m_netUpHistory; }
    const RingBuffer &diskReadHistory() const { return m_diskReadHistory; }
    const RingBuffer &diskWriteHistory() const { return m_diskWriteHistory; }
    const QString &cpuBrand() const { return m_cpuBrand; }
    bool panelVisible() const { return m_panelVisible; }

    int slowTick() const { return m_slowTick; }
    double currentInterval() const { return m_currentInterval; }
    bool timerActive() const { return m_timer.isActive(); }
    int timerIntervalMs() const { return m_timer.interval(); }
    Scheduler &scheduler() const { return m_scheduler; }

    // --- Mood and roast state -------------------------------------------
    // The engine's latest distinct result; replaced (and announced) only
    // when it differs by Mood equality.
    const Mood &mood() const { return m_mood; }
    // Takes an engine result: replaces `mood` only when it differs.
    void offerMood(const Mood &next);
    // A short-lived mood other parts put on top (pokes, Savage Mode switch,
    // memory clean-up). The model never sets or reads it itself.
    const std::optional<Mood> &reaction() const { return m_reaction; }
    void setReaction(const std::optional<Mood> &reaction);
    bool hasReaction() const { return m_reaction.has_value(); }
    const Mood &reactionOrMood() const { return m_reaction ? *m_reaction : m_mood; }
    // The roast on show, for 5 s after the latest request.
    const std::optional<RoastEvent> &roastEvent() const { return m_roastEvent; }
    bool hasRoastEvent() const { return m_roastEvent.has_value(); }
    RoastEvent roastEventOrEmpty() const { return m_roastEvent.value_or(RoastEvent{}); }
    int roastToken() const { return m_roastToken; }
    // A new roast of `topic` from the current readings.
    Q_INVOKABLE void roast(RoastTopic topic);
    // The engine's inputs from the current readings.
    MoodInputs moodInputs() const;
    // The roast readings from the current readings.
    RoastReadings roastReadings() const;
    const MoodEngine &moodEngine() const { return m_moodEngine; }

    static constexpr int roastLifetimeMs = 5000;

signals:
    void cpuChanged();
    void memoryChanged();
    void networkChanged();
    void diskChanged();
    void batteryChanged();
    void sensorsChanged();
    void gpuChanged();
    void powerChanged();
    void processesChanged();
    void cpuHistoryChanged();
    void netDownHistoryChanged();
    void netUpHistoryChanged();
    void diskReadHistoryChanged();
    void diskWriteHistoryChanged();
    void panelVisibleChanged();
    void moodChanged();
    void reactionChanged();
    void roastEventChanged();
    // After every tick, once the mood is up to date.
    void ticked();

private:
    void applyPower(const QmPowerReading &reading);
    void startProcessList();

    std::shared_ptr<Samplers> m_samplers;
    Scheduler &m_scheduler;

    CPUSample m_cpu;
    MemorySample m_memory;
    NetworkSample m_network;
    DiskSample m_disk;
    BatterySample m_battery;
    SensorSample m_sensors;
    GPUSample m_gpu;
    PowerSample m_power;
    QList<ProcInfo> m_processes;
    RingBuffer m_cpuHistory{historyCapacity};
    RingBuffer m_netDownHistory{historyCapacity};
    RingBuffer m_netUpHistory{historyCapacity};
    RingBuffer m_diskReadHistory{historyCapacity};
    RingBuffer m_diskWriteHistory{historyCapacity};

    QString m_cpuBrand;
    QTimer m_timer;
    int m_slowTick = 0;
    double m_currentInterval = 0;
    bool m_panelVisible = false;
    // Set while a process list is being computed, so lists never overlap.
    std::shared_ptr<std::atomic<bool>> m_processJobRunning;

    // --- Mood and roast state -------------------------------------------
    Mood m_mood = Mood::placeholder();
    std::optional<Mood> m_reaction;
    std::optional<RoastEvent> m_roastEvent;
    int m_roastToken = 0;
    // Launch and last-active time from the scheduler's clock; the holiday
    // lookup reads the same clock.
    MoodEngine m_moodEngine{m_scheduler.now(), [this] { return m_scheduler.now(); }};
};
