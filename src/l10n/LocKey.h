#pragma once
// Every user-visible text of the panel, the label, the preferences and the
// mood has a key. The raw value of a key is its English text, which is also
// what every other language falls back to.

#include <QObject>
#include <QString>

#include <array>
#include <optional>

namespace LocKeys {
Q_NAMESPACE

enum class LocKey {
    memory,
    network,
    disk,
    sensors,
    userLabel,
    systemLabel,
    coresCount,
    used,
    wired,
    compr,
    cached,
    free,
    swap,
    installedFmt,
    freeUp,
    cleaning,
    freedFmt,
    freshening,
    muchLighter,
    download,
    upload,
    read,
    write,
    inLabel,
    outLabel,
    volumesFmt,
    freeFmt,
    ofFmt,
    fans,
    fanFmt,
    temperatures,
    health,
    cycles,
    rpmFmt,
    noSensors,
    charging,
    chargingToFull,
    pluggedIn,
    timeLeft,
    onBattery,
    activityMonitor,
    quit,
    yourMac,
    general,
    launchAtLogin,
    refreshEvery,
    sec1,
    sec2,
    sec5,
    temperature,
    celsius,
    fahrenheit,
    personality,
    showMood,
    petName,
    petPlaceholder,
    petHint,
    savageMode,
    savageModeHint,
    modulesInPanel,
    language,
    autoLanguage,
    about,
    versionFmt,
    tagline,
    checkForUpdates,
    autoUpdate,
    processes,
    topProcesses,
    last60s,
    peakFmt,
    gpuUsage,
    power,
    totalLabel,
    compSSD,
    compWiFi,
    compBattery,
    justWokeUp,
    soHot,
    runningLow,
    memoryFull,
    swappingHard,
    phew,
    allCoresBlazing,
    workingHard,
    gobblingData,
    dataFeast,
    beamingUp,
    warmingUp,
    refueling,
    cruising,
    almostPacked,
    sleepy,
    dozingOff,
    allChill,
    peaceful,
    wakingUp,
    stopPoking,
    glovesOff,
    beingNice,
    reasonStartingUp,
    reasonFromHeat,
    reasonFromBattery,
    reasonFromMemory,
    reasonFromSwap,
    reasonJustCooled,
    reasonFromCores,
    reasonFromCPU,
    reasonFromDown,
    reasonFromUp,
    reasonFromWarmth,
    reasonBarelyLoad,
    reasonStartupDiskFull,
    reasonIdleNight,
    reasonIdleWhile,
    reasonLightLoad,
    reasonPokedTooMuch,
    reasonSavageOn,
    reasonSavageOff,
    holNewYear,
    holValentines,
    holHalloween,
    holChristmas,
    holSpring,
    holDragonBoat,
    holMidAutumn,
    holCheer,
    empty,
    prefsTitle,
    updatesFromDistro,
    updateTitle,
    checkingForUpdates,
    upToDate,
    upToDateFmt,
    updateAvailable,
    updateAvailableFmt,
    youHaveFmt,
    releaseNotes,
    openDownloadPage,
    notNow,
    ok,
    updateFailed,
    updateErrorOffline,
    updateErrorTimeout,
    updateErrorServerFmt,
    updateErrorBadFeed,
    // The tray item's menu.
    openPanel,
    openPreferences,
};
Q_ENUM_NS(LocKey)

} // namespace LocKeys

using LocKey = LocKeys::LocKey;

inline constexpr int locKeyCount = 148;

// All keys in their declared order.
const std::array<LocKey, locKeyCount> &allLocKeys();

// The English text of a key.
QString rawValue(LocKey key);

// The key's name as written in code ("freedFmt").
QString keyName(LocKey key);

// The key whose English text is `raw`, if any.
std::optional<LocKey> locKeyFromRaw(const QString &raw);
