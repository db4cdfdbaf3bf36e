<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>LocKey</name>
    <message>
        <extracomment>memory</extracomment>
        <source>Memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>network</extracomment>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>disk</extracomment>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>sensors</extracomment>
        <source>Sensors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>userLabel</extracomment>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>systemLabel</extracomment>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>coresCount</extracomment>
        <source>Cores (%@)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>used</extracomment>
        <source>Used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>wired</extracomment>
        <source>Wired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>compr</extracomment>
        <source>Compr.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>cached</extracomment>
        <source>Cached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>free</extracomment>
        <source>Free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>swap</extracomment>
        <source>Swap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>installedFmt</extracomment>
        <source>%@ installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>freeUp</extracomment>
        <source>Free up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>cleaning</extracomment>
        <source>cleaning…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>freedFmt</extracomment>
        <source>freed %@</source>
        <translation>%@ 정리됨</translation>
    </message>
    <message>
        <extracomment>freshening</extracomment>
        <source>freshening up…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>muchLighter</extracomment>
        <source>much lighter!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>download</extracomment>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>upload</extracomment>
        <source>Upload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>read</extracomment>
        <source>Read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>write</extracomment>
        <source>Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>inLabel</extracomment>
        <source>In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>outLabel</extracomment>
        <source>Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>volumesFmt</extracomment>
        <source>%@ volumes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>freeFmt</extracomment>
        <source>%@ free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>ofFmt</extracomment>
        <source>%@ of %@</source>
        <translation>%@ / %@</translation>
    </message>
    <message>
        <extracomment>fans</extracomment>
        <source>Fans</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>fanFmt</extracomment>
        <source>Fan %@</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>temperatures</extracomment>
        <source>Temperatures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>health</extracomment>
        <source>Health</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>cycles</extracomment>
        <source>Cycles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>rpmFmt</extracomment>
        <source>%@ rpm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>noSensors</extracomment>
        <source>No readable sensors on this Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>charging</extracomment>
        <source>Charging</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>chargingToFull</extracomment>
        <source>Charging · %@</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>pluggedIn</extracomment>
        <source>Plugged in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>timeLeft</extracomment>
        <source>%@ left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>onBattery</extracomment>
        <source>On battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>activityMonitor</extracomment>
        <source>Activity Monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>quit</extracomment>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>yourMac</extracomment>
        <source>Your Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>general</extracomment>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>launchAtLogin</extracomment>
        <source>Launch at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>refreshEvery</extracomment>
        <source>Refresh every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>sec1</extracomment>
        <source>1 second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>sec2</extracomment>
        <source>2 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>sec5</extracomment>
        <source>5 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>temperature</extracomment>
        <source>Temperature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>celsius</extracomment>
        <source>Celsius (°C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>fahrenheit</extracomment>
        <source>Fahrenheit (°F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>personality</extracomment>
        <source>Personality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>showMood</extracomment>
        <source>Show mood in menu bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>petName</extracomment>
        <source>Pet name (optional)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>petPlaceholder</extracomment>
        <source>e.g. Pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>petHint</extracomment>
        <source>Shown above the mood in the panel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>savageMode</extracomment>
        <source>Savage Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>savageModeHint</extracomment>
        <source>Tap a module and it roasts you. Not for the sensitive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>modulesInPanel</extracomment>
        <source>Modules in panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>language</extracomment>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>autoLanguage</extracomment>
        <source>Auto (System)</source>
        <translation>자동 (시스템)</translation>
    </message>
    <message>
        <extracomment>about</extracomment>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>versionFmt</extracomment>
        <source>Version %@</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>tagline</extracomment>
        <source>Your Mac, with feelings.</source>
        <translation>감정이 있는 당신의 Mac.</translation>
    </message>
    <message>
        <extracomment>checkForUpdates</extracomment>
        <source>Check for Updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>autoUpdate</extracomment>
        <source>Check for updates automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>processes</extracomment>
        <source>Processes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>topProcesses</extracomment>
        <source>Top Processes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>last60s</extracomment>
        <source>last 60s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>peakFmt</extracomment>
        <source>peak %@</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>power</extracomment>
        <source>Power</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>totalLabel</extracomment>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>compBattery</extracomment>
        <source>Battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>justWokeUp</extracomment>
        <source>just woke up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>soHot</extracomment>
        <source>so hot!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>runningLow</extracomment>
        <source>running low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>memoryFull</extracomment>
        <source>memory full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>swappingHard</extracomment>
        <source>swapping hard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>phew</extracomment>
        <source>phew…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>allCoresBlazing</extracomment>
        <source>all cores blazing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>workingHard</extracomment>
        <source>working hard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>gobblingData</extracomment>
        <source>gobbling data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>dataFeast</extracomment>
        <source>data feast!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>beamingUp</extracomment>
        <source>beaming up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>warmingUp</extracomment>
        <source>warming up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>refueling</extracomment>
        <source>refueling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>cruising</extracomment>
        <source>cruising</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>almostPacked</extracomment>
        <source>almost packed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>sleepy</extracomment>
        <source>sleepy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>dozingOff</extracomment>
        <source>dozing off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>allChill</extracomment>
        <source>all chill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>peaceful</extracomment>
        <source>peaceful</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>wakingUp</extracomment>
        <source>waking up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>stopPoking</extracomment>
        <source>hey, stop poking!</source>
        <translation>그만 찔러!</translation>
    </message>
    <message>
        <extracomment>glovesOff</extracomment>
        <source>gloves off!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>beingNice</extracomment>
        <source>being nice again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonStartingUp</extracomment>
        <source>starting up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonFromHeat</extracomment>
        <source>from %@ heat</source>
        <translation>%@ 고온</translation>
    </message>
    <message>
        <extracomment>reasonFromBattery</extracomment>
        <source>from %@ battery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonFromMemory</extracomment>
        <source>from %@ memory use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonFromSwap</extracomment>
        <source>from %@ swap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonJustCooled</extracomment>
        <source>just cooled down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonFromCores</extracomment>
        <source>from %@ cores maxed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonFromCPU</extracomment>
        <source>from %@ CPU load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonFromDown</extracomment>
        <source>from %@ down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonFromUp</extracomment>
        <source>from %@ up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonFromWarmth</extracomment>
        <source>from %@ warmth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonBarelyLoad</extracomment>
        <source>barely any load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonStartupDiskFull</extracomment>
        <source>startup disk %@ full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonIdleNight</extracomment>
        <source>idle · late night</source>
        <translation>유휴 · 늦은 밤</translation>
    </message>
    <message>
        <extracomment>reasonIdleWhile</extracomment>
        <source>idle for a while</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonLightLoad</extracomment>
        <source>light load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonPokedTooMuch</extracomment>
        <source>poked way too much</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonSavageOn</extracomment>
        <source>savage mode on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>reasonSavageOff</extracomment>
        <source>savage mode off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>holNewYear</extracomment>
        <source>happy new year!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>holValentines</extracomment>
        <source>happy valentine’s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>holHalloween</extracomment>
        <source>happy halloween</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>holChristmas</extracomment>
        <source>merry christmas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>holSpring</extracomment>
        <source>happy spring festival</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>holDragonBoat</extracomment>
        <source>happy dragon boat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>holMidAutumn</extracomment>
        <source>happy mid-autumn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <extracomment>holCheer</extracomment>
        <source>let’s celebrate</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
