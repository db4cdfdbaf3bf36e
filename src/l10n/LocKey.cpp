#include "l10n/LocKey.h"

#include <QHash>
#include <QMetaEnum>

namespace {

constexpr const char16_t *englishTexts[locKeyCount] = {
    u"Memory", // memory
    u"Network", // network
    u"Disk", // disk
    u"Sensors", // sensors
    u"User", // userLabel
    u"System", // systemLabel
    u"Cores (%@)", // coresCount
    u"Used", // used
    u"Wired", // wired
    u"Compr.", // compr
    u"Cached", // cached
    u"Free", // free
    u"Swap", // swap
    u"%@ installed", // installedFmt
    u"Free up", // freeUp
    u"cleaning…", // cleaning
    u"freed %@", // freedFmt
    u"freshening up…", // freshening
    u"much lighter!", // muchLighter
    u"Download", // download
    u"Upload", // upload
    u"Read", // read
    u"Write", // write
    u"In", // inLabel
    u"Out", // outLabel
    u"%@ volumes", // volumesFmt
    u"%@ free", // freeFmt
    u"%@ of %@", // ofFmt
    u"Fans", // fans
    u"Fan %@", // fanFmt
    u"Temperatures", // temperatures
    u"Health", // health
    u"Cycles", // cycles
    u"%@ rpm", // rpmFmt
    u"No readable sensors on this computer.", // noSensors
    u"Charging", // charging
    u"Charging · %@", // chargingToFull
    u"Plugged in", // pluggedIn
    u"%@ left", // timeLeft
    u"On battery", // onBattery
    u"System Monitor", // activityMonitor
    u"Quit", // quit
    u"Your computer", // yourMac
    u"General", // general
    u"Launch at login", // launchAtLogin
    u"Refresh every", // refreshEvery
    u"1 second", // sec1
    u"2 seconds", // sec2
    u"5 seconds", // sec5
    u"Temperature", // temperature
    u"Celsius (°C)", // celsius
    u"Fahrenheit (°F)", // fahrenheit
    u"Personality", // personality
    u"Show mood in the top bar", // showMood
    u"Pet name (optional)", // petName
    u"e.g. Pixel", // petPlaceholder
    u"Shown above the mood in the panel.", // petHint
    u"Savage Mode", // savageMode
    u"Click a module and it roasts you. Not for the sensitive.", // savageModeHint
    u"Modules in panel", // modulesInPanel
    u"Language", // language
    u"Auto (System)", // autoLanguage
    u"About", // about
    u"Version %@", // versionFmt
    u"Your computer, with feelings.", // tagline
    u"Check for Updates…", // checkForUpdates
    u"Check for updates automatically", // autoUpdate
    u"Processes", // processes
    u"Top Processes", // topProcesses
    u"last 60s", // last60s
    u"peak %@", // peakFmt
    u"GPU", // gpuUsage
    u"Power", // power
    u"Total", // totalLabel
    u"SSD", // compSSD
    u"Wi-Fi", // compWiFi
    u"Battery", // compBattery
    u"just woke up", // justWokeUp
    u"so hot!", // soHot
    u"running low", // runningLow
    u"memory full", // memoryFull
    u"swapping hard", // swappingHard
    u"phew…", // phew
    u"all cores blazing", // allCoresBlazing
    u"working hard", // workingHard
    u"gobbling data", // gobblingData
    u"data feast!", // dataFeast
    u"beaming up", // beamingUp
    u"warming up", // warmingUp
    u"refueling", // refueling
    u"cruising", // cruising
    u"almost packed", // almostPacked
    u"sleepy", // sleepy
    u"dozing off", // dozingOff
    u"all chill", // allChill
    u"peaceful", // peaceful
    u"waking up", // wakingUp
    u"hey, stop poking!", // stopPoking
    u"gloves off!", // glovesOff
    u"being nice again", // beingNice
    u"starting up", // reasonStartingUp
    u"from %@ heat", // reasonFromHeat
    u"from %@ battery", // reasonFromBattery
    u"from %@ memory use", // reasonFromMemory
    u"from %@ swap", // reasonFromSwap
    u"just cooled down", // reasonJustCooled
    u"from %@ cores maxed", // reasonFromCores
    u"from %@ CPU load", // reasonFromCPU
    u"from %@ down", // reasonFromDown
    u"from %@ up", // reasonFromUp
    u"from %@ warmth", // reasonFromWarmth
    u"barely any load", // reasonBarelyLoad
    u"system disk %@ full", // reasonStartupDiskFull
    u"idle · late night", // reasonIdleNight
    u"idle for a while", // reasonIdleWhile
    u"light load", // reasonLightLoad
    u"poked way too much", // reasonPokedTooMuch
    u"savage mode on", // reasonSavageOn
    u"savage mode off", // reasonSavageOff
    u"happy new year!", // holNewYear
    u"happy valentine’s", // holValentines
    u"happy halloween", // holHalloween
    u"merry christmas", // holChristmas
    u"happy spring festival", // holSpring
    u"happy dragon boat", // holDragonBoat
    u"happy mid-autumn", // holMidAutumn
    u"let’s celebrate", // holCheer
    u"", // empty
    u"Preferences", // prefsTitle
    u"Updates come from your distribution’s package manager.", // updatesFromDistro
    u"Software Update", // updateTitle
    u"Checking for updates…", // checkingForUpdates
    u"You’re up to date!", // upToDate
    u"sulkbox %@ is the newest version available.", // upToDateFmt
    u"A new version of sulkbox is available!", // updateAvailable
    u"sulkbox %@ is ready to download.", // updateAvailableFmt
    u"You have %@.", // youHaveFmt
    u"Release Notes", // releaseNotes
    u"Open Download Page", // openDownloadPage
    u"Not Now", // notNow
    u"OK", // ok
    u"Couldn’t check for updates", // updateFailed
    u"The update server could not be reached. Check your internet connection and try again.", // updateErrorOffline
    u"The update server took too long to answer. Try again later.", // updateErrorTimeout
    u"The update server answered with an error (%@). Try again later.", // updateErrorServerFmt
    u"The update server sent something that isn’t an update feed.", // updateErrorBadFeed
    u"Open panel", // openPanel
    u"Preferences…", // openPreferences
};

} // namespace

const std::array<LocKey, locKeyCount> &allLocKeys()
{
    static const auto keys = [] {
        std::array<LocKey, locKeyCount> all{};
        for (int i = 0; i < locKeyCount; ++i)
            all[i] = static_cast<LocKey>(i);
        return all;
    }();
    return keys;
}

QString rawValue(LocKey key)
{
    const int i = static_cast<int>(key);
    if (i < 0 || i >= locKeyCount)
        return {};
    return QString::fromUtf16(englishTexts[i]);
}

QString keyName(LocKey key)
{
    return QString::fromLatin1(QMetaEnum::fromType<LocKey>().valueToKey(static_cast<int>(key)));
}

std::optional<LocKey> locKeyFromRaw(const QString &raw)
{
    static const QHash<QString, LocKey> byRaw = [] {
        QHash<QString, LocKey> map;
        for (LocKey key : allLocKeys())
            map.insert(rawValue(key), key);
        return map;
    }();
    const auto it = byRaw.constFind(raw);
    if (it == byRaw.constEnd())
        return std::nullopt;
    return *it;
}
