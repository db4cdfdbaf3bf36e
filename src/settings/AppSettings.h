#pragma once
// Every setting of the table as an observable property, shared by the model,
// the localizer, the tray item and every QML view. A change made anywhere is
// followed at once: through this object, by another sulkbox process, or by
// hand in the file (the file is watched; nothing re-reads it on a timer).

#include "settings/Settings.h"

#include <QObject>

class QFileSystemWatcher;
class QTimer;

class AppSettings : public QObject {
    Q_OBJECT
    Q_PROPERTY(double refreshInterval READ refreshInterval WRITE setRefreshInterval NOTIFY refreshIntervalChanged)
    Q_PROPERTY(QString appLanguage READ appLanguage WRITE setAppLanguage NOTIFY appLanguageChanged)
    Q_PROPERTY(bool useFahrenheit READ useFahrenheit WRITE setUseFahrenheit NOTIFY useFahrenheitChanged)
    Q_PROPERTY(bool moodEnabled READ moodEnabled WRITE setMoodEnabled NOTIFY moodEnabledChanged)
    Q_PROPERTY(QString petName READ petName WRITE setPetName NOTIFY petNameChanged)
    Q_PROPERTY(bool savageMode READ savageMode WRITE setSavageMode NOTIFY savageModeChanged)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged)
    Q_PROPERTY(bool showCPU READ showCPU WRITE setShowCPU NOTIFY showCPUChanged)
    Q_PROPERTY(bool showMemory READ showMemory WRITE setShowMemory NOTIFY showMemoryChanged)
    Q_PROPERTY(bool showNetwork READ showNetwork WRITE setShowNetwork NOTIFY showNetworkChanged)
    Q_PROPERTY(bool showDisk READ showDisk WRITE setShowDisk NOTIFY showDiskChanged)
    Q_PROPERTY(bool showSensors READ showSensors WRITE setShowSensors NOTIFY showSensorsChanged)
    Q_PROPERTY(bool showProcesses READ showProcesses WRITE setShowProcesses NOTIFY showProcessesChanged)
    Q_PROPERTY(bool migratedFromLegacyBundleID READ migratedFromLegacyBundleID WRITE setMigratedFromLegacyBundleID NOTIFY migratedFromLegacyBundleIDChanged)
    Q_PROPERTY(bool automaticUpdateChecks READ automaticUpdateChecks WRITE setAutomaticUpdateChecks NOTIFY automaticUpdateChecksChanged)
    Q_PROPERTY(QString lastUpdateCheck READ lastUpdateCheck WRITE setLastUpdateCheck NOTIFY lastUpdateCheckChanged)
    Q_PROPERTY(QString updateFeedURL READ updateFeedURL WRITE setUpdateFeedURL NOTIFY updateFeedURLChanged)

public:
    // The one instance, created on first use on the main thread.
    static AppSettings &shared();

    double refreshInterval() const { return Settings::value(Settings::Key::refreshInterval).toDouble(); }
    void setRefreshInterval(double v) { Settings::set(Settings::Key::refreshInterval, v); }
    QString appLanguage() const { return Settings::value(Settings::Key::appLanguage).toString(); }
    void setAppLanguage(const QString &v) { Settings::set(Settings::Key::appLanguage, v); }
    bool useFahrenheit() const { return Settings::value(Settings::Key::useFahrenheit).toBool(); }
    void setUseFahrenheit(bool v) { Settings::set(Settings::Key::useFahrenheit, v); }
    bool moodEnabled() const { return Settings::value(Settings::Key::moodEnabled).toBool(); }
    void setMoodEnabled(bool v) { Settings::set(Settings::Key::moodEnabled, v); }
    QString petName() const { return Settings::value(Settings::Key::petName).toString(); }
    void setPetName(const QString &v) { Settings::set(Settings::Key::petName, v); }
    bool savageMode() const { return Settings::value(Settings::Key::savageMode).toBool(); }
    void setSavageMode(bool v) { Settings::set(Settings::Key::savageMode, v); }
    bool launchAtLogin() const { return Settings::value(Settings::Key::launchAtLogin).toBool(); }
    void setLaunchAtLogin(bool v) { Settings::set(Settings::Key::launchAtLogin, v); }
    bool showCPU() const { return Settings::value(Settings::Key::showCPU).toBool(); }
    void setShowCPU(bool v) { Settings::set(Settings::Key::showCPU, v); }
    bool showMemory() const { return Settings::value(Settings::Key::showMemory).toBool(); }
    void setShowMemory(bool v) { Settings::set(Settings::Key::showMemory, v); }
    bool showNetwork() const { return Settings::value(Settings::Key::showNetwork).toBool(); }
    void setShowNetwork(bool v) { Settings::set(Settings::Key::showNetwork, v); }
    bool showDisk() const { return Settings::value(Settings::Key::showDisk).toBool(); }
    void setShowDisk(bool v) { Settings::set(Settings::Key::showDisk, v); }
    bool showSensors() const { return Settings::value(Settings::Key::showSensors).toBool(); }
    void setShowSensors(bool v) { Settings::set(Settings::Key::showSensors, v); }
    bool showProcesses() const { return Settings::value(Settings::Key::showProcesses).toBool(); }
    void setShowProcesses(bool v) { Settings::set(Settings::Key::showProcesses, v); }
    bool migratedFromLegacyBundleID() const { return Settings::value(Settings::Key::migratedFromLegacyBundleID).toBool(); }
    void setMigratedFromLegacyBundleID(bool v) { Settings::set(Settings::Key::migratedFromLegacyBundleID, v); }
    bool automaticUpdateChecks() const { return Settings::value(Settings::Key::automaticUpdateChecks).toBool(); }
    void setAutomaticUpdateChecks(bool v) { Settings::set(Settings::Key::automaticUpdateChecks, v); }
    QString lastUpdateCheck() const { return Settings::value(Settings::Key::lastUpdateCheck).toString(); }
    void setLastUpdateCheck(const QString &v) { Settings::set(Settings::Key::lastUpdateCheck, v); }
    QString updateFeedURL() const { return Settings::value(Settings::Key::updateFeedURL).toString(); }
    void setUpdateFeedURL(const QString &v) { Settings::set(Settings::Key::updateFeedURL, v); }

    // Starts following the file on disk; the command line's one-shot runs
    // never call it.
    void watchFile();
    bool watching() const { return m_watcher != nullptr; }

    // Re-reads the file now and announces what changed.
    Q_INVOKABLE void reload();

signals:
    // Any setting changed; the key's own signal is emitted too.
    void changed(Settings::Key key);
    void refreshIntervalChanged();
    void appLanguageChanged();
    void useFahrenheitChanged();
    void moodEnabledChanged();
    void petNameChanged();
    void savageModeChanged();
    void launchAtLoginChanged();
    void showCPUChanged();
    void showMemoryChanged();
    void showNetworkChanged();
    void showDiskChanged();
    void showSensorsChanged();
    void showProcessesChanged();
    void migratedFromLegacyBundleIDChanged();
    void automaticUpdateChecksChanged();
    void lastUpdateCheckChanged();
    void updateFeedURLChanged();

private:
    AppSettings();
    void announce(Settings::Key key);
    void watchPaths();

    QFileSystemWatcher *m_watcher = nullptr;
    QTimer *m_debounce = nullptr;
};
