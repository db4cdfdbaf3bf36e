<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>LocKey</name>
    <message>
        <extracomment>memory</extracomment>
        <source>Memory</source>
        <translation>記憶體</translation>
    </message>
    <message>
        <extracomment>network</extracomment>
        <source>Network</source>
        <translation>網路</translation>
    </message>
    <message>
        <extracomment>disk</extracomment>
        <source>Disk</source>
        <translation>磁碟</translation>
    </message>
    <message>
        <extracomment>sensors</extracomment>
        <source>Sensors</source>
        <translation>感測器</translation>
    </message>
    <message>
        <extracomment>userLabel</extracomment>
        <source>User</source>
        <translation>使用者</translation>
    </message>
    <message>
        <extracomment>systemLabel</extracomment>
        <source>System</source>
        <translation>系統</translation>
    </message>
    <message>
        <extracomment>coresCount</extracomment>
        <source>Cores (%@)</source>
        <translation>核心（%@）</translation>
    </message>
    <message>
        <extracomment>used</extracomment>
        <source>Used</source>
        <translation>已使用</translation>
    </message>
    <message>
        <extracomment>wired</extracomment>
        <source>Wired</source>
        <translation>鎖定</translation>
    </message>
    <message>
        <extracomment>compr</extracomment>
        <source>Compr.</source>
        <translation>已壓縮</translation>
    </message>
    <message>
        <extracomment>cached</extracomment>
        <source>Cached</source>
        <translation>快取</translation>
    </message>
    <message>
        <extracomment>free</extracomment>
        <source>Free</source>
        <translation>未使用</translation>
    </message>
    <message>
        <extracomment>swap</extracomment>
        <source>Swap</source>
        <translation>置換</translation>
    </message>
    <message>
        <extracomment>installedFmt</extracomment>
        <source>%@ installed</source>
        <translation>已安裝 %@</translation>
    </message>
    <message>
        <extracomment>freeUp</extracomment>
        <source>Free up</source>
        <translation>釋放</translation>
    </message>
    <message>
        <extracomment>cleaning</extracomment>
        <source>cleaning…</source>
        <translation>清理中……</translation>
    </message>
    <message>
        <extracomment>freedFmt</extracomment>
        <source>freed %@</source>
        <translation>釋放了 %@</translation>
    </message>
    <message>
        <extracomment>freshening</extracomment>
        <source>freshening up…</source>
        <translation>整理一下……</translation>
    </message>
    <message>
        <extracomment>muchLighter</extracomment>
        <source>much lighter!</source>
        <translation>輕鬆多了！</translation>
    </message>
    <message>
        <extracomment>download</extracomment>
        <source>Download</source>
        <translation>下載</translation>
    </message>
    <message>
        <extracomment>upload</extracomment>
        <source>Upload</source>
        <translation>上傳</translation>
    </message>
    <message>
        <extracomment>read</extracomment>
        <source>Read</source>
        <translation>讀取</translation>
    </message>
    <message>
        <extracomment>write</extracomment>
        <source>Write</source>
        <translation>寫入</translation>
    </message>
    <message>
        <extracomment>inLabel</extracomment>
        <source>In</source>
        <translation>接收</translation>
    </message>
    <message>
        <extracomment>outLabel</extracomment>
        <source>Out</source>
        <translation>傳送</translation>
    </message>
    <message>
        <extracomment>volumesFmt</extracomment>
        <source>%@ volumes</source>
        <translation>%@ 個磁碟區</translation>
    </message>
    <message>
        <extracomment>freeFmt</extracomment>
        <source>%@ free</source>
        <translation>可用 %@</translation>
    </message>
    <message>
        <extracomment>ofFmt</extracomment>
        <source>%@ of %@</source>
        <translation>%@ / %@</translation>
    </message>
    <message>
        <extracomment>fans</extracomment>
        <source>Fans</source>
        <translation>風扇</translation>
    </message>
    <message>
        <extracomment>fanFmt</extracomment>
        <source>Fan %@</source>
        <translation>風扇 %@</translation>
    </message>
    <message>
        <extracomment>temperatures</extracomment>
        <source>Temperatures</source>
        <translation>溫度</translation>
    </message>
    <message>
        <extracomment>health</extracomment>
        <source>Health</source>
        <translation>健康度</translation>
    </message>
    <message>
        <extracomment>cycles</extracomment>
        <source>Cycles</source>
        <translation>循環次數</translation>
    </message>
    <message>
        <extracomment>rpmFmt</extracomment>
        <source>%@ rpm</source>
        <translation>%@ 轉/分</translation>
    </message>
    <message>
        <extracomment>noSensors</extracomment>
        <source>No readable sensors on this computer.</source>
        <translation>這台電腦沒有可讀取的感測器。</translation>
    </message>
    <message>
        <extracomment>charging</extracomment>
        <source>Charging</source>
        <translation>充電中</translation>
    </message>
    <message>
        <extracomment>chargingToFull</extracomment>
        <source>Charging · %@</source>
        <translation>充電中 · %@ 後充飽</translation>
    </message>
    <message>
        <extracomment>pluggedIn</extracomment>
        <source>Plugged in</source>
        <translation>已接上電源</translation>
    </message>
    <message>
        <extracomment>timeLeft</extracomment>
        <source>%@ left</source>
        <translation>剩餘 %@</translation>
    </message>
    <message>
        <extracomment>onBattery</extracomment>
        <source>On battery</source>
        <translation>使用電池</translation>
    </message>
    <message>
        <extracomment>activityMonitor</extracomment>
        <source>System Monitor</source>
        <translation>系統監視器</translation>
    </message>
    <message>
        <extracomment>quit</extracomment>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <extracomment>yourMac</extracomment>
        <source>Your computer</source>
        <translation>你的電腦</translation>
    </message>
    <message>
        <extracomment>general</extracomment>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <extracomment>launchAtLogin</extracomment>
        <source>Launch at login</source>
        <translation>登入時啟動</translation>
    </message>
    <message>
        <extracomment>refreshEvery</extracomment>
        <source>Refresh every</source>
        <translation>更新間隔</translation>
    </message>
    <message>
        <extracomment>sec1</extracomment>
        <source>1 second</source>
        <translation>1 秒</translation>
    </message>
    <message>
        <extracomment>sec2</extracomment>
        <source>2 seconds</source>
        <translation>2 秒</translation>
    </message>
    <message>
        <extracomment>sec5</extracomment>
        <source>5 seconds</source>
        <translation>5 秒</translation>
    </message>
    <message>
        <extracomment>temperature</extracomment>
        <source>Temperature</source>
        <translation>溫度單位</translation>
    </message>
    <message>
        <extracomment>celsius</extracomment>
        <source>Celsius (°C)</source>
        <translation>攝氏（°C）</translation>
    </message>
    <message>
        <extracomment>fahrenheit</extracomment>
        <source>Fahrenheit (°F)</source>
        <translation>華氏（°F）</translation>
    </message>
    <message>
        <extracomment>personality</extracomment>
        <source>Personality</source>
        <translation>個性</translation>
    </message>
    <message>
        <extracomment>showMood</extracomment>
        <source>Show mood in the top bar</source>
        <translation>在頂端列顯示心情</translation>
    </message>
    <message>
        <extracomment>petName</extracomment>
        <source>Pet name (optional)</source>
        <translation>暱稱（選填）</translation>
    </message>
    <message>
        <extracomment>petPlaceholder</extracomment>
        <source>e.g. Pixel</source>
        <translation>例如：阿皮</translation>
    </message>
    <message>
        <extracomment>petHint</extracomment>
        <source>Shown above the mood in the panel.</source>
        <translation>會顯示在面板的心情上方。</translation>
    </message>
    <message>
        <extracomment>savageMode</extracomment>
        <source>Savage Mode</source>
        <translation>毒舌模式</translation>
    </message>
    <message>
        <extracomment>savageModeHint</extracomment>
        <source>Click a module and it roasts you. Not for the sensitive.</source>
        <translation>點一下模組，它就會嗆你。玻璃心慎入。</translation>
    </message>
    <message>
        <extracomment>modulesInPanel</extracomment>
        <source>Modules in panel</source>
        <translation>面板中的模組</translation>
    </message>
    <message>
        <extracomment>language</extracomment>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <extracomment>autoLanguage</extracomment>
        <source>Auto (System)</source>
        <translation>自動（跟隨系統）</translation>
    </message>
    <message>
        <extracomment>about</extracomment>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <extracomment>versionFmt</extracomment>
        <source>Version %@</source>
        <translation>版本 %@</translation>
    </message>
    <message>
        <extracomment>tagline</extracomment>
        <source>Your computer, with feelings.</source>
        <translation>讓你的電腦有點小情緒。</translation>
    </message>
    <message>
        <extracomment>checkForUpdates</extracomment>
        <source>Check for Updates…</source>
        <translation>檢查更新…</translation>
    </message>
    <message>
        <extracomment>autoUpdate</extracomment>
        <source>Check for updates automatically</source>
        <translation>自動檢查更新</translation>
    </message>
    <message>
        <extracomment>processes</extracomment>
        <source>Processes</source>
        <translation>處理程序</translation>
    </message>
    <message>
        <extracomment>topProcesses</extracomment>
        <source>Top Processes</source>
        <translation>處理程序排行</translation>
    </message>
    <message>
        <extracomment>last60s</extracomment>
        <source>last 60s</source>
        <translation>最近 60 秒</translation>
    </message>
    <message>
        <extracomment>peakFmt</extracomment>
        <source>peak %@</source>
        <translation>峰值 %@</translation>
    </message>
    <message>
        <extracomment>power</extracomment>
        <source>Power</source>
        <translation>功耗</translation>
    </message>
    <message>
        <extracomment>totalLabel</extracomment>
        <source>Total</source>
        <translation>總計</translation>
    </message>
    <message>
        <extracomment>compBattery</extracomment>
        <source>Battery</source>
        <translation>電池</translation>
    </message>
    <message>
        <extracomment>justWokeUp</extracomment>
        <source>just woke up</source>
        <translation>剛睡醒</translation>
    </message>
    <message>
        <extracomment>soHot</extracomment>
        <source>so hot!</source>
        <translation>好熱！</translation>
    </message>
    <message>
        <extracomment>runningLow</extracomment>
        <source>running low</source>
        <translation>快沒電了</translation>
    </message>
    <message>
        <extracomment>memoryFull</extracomment>
        <source>memory full</source>
        <translation>記憶體滿了</translation>
    </message>
    <message>
        <extracomment>swappingHard</extracomment>
        <source>swapping hard</source>
        <translation>瘋狂置換中</translation>
    </message>
    <message>
        <extracomment>phew</extracomment>
        <source>phew…</source>
        <translation>呼……</translation>
    </message>
    <message>
        <extracomment>allCoresBlazing</extracomment>
        <source>all cores blazing</source>
        <translation>全核火力全開</translation>
    </message>
    <message>
        <extracomment>workingHard</extracomment>
        <source>working hard</source>
        <translation>拚命工作中</translation>
    </message>
    <message>
        <extracomment>gobblingData</extracomment>
        <source>gobbling data</source>
        <translation>狂吞資料</translation>
    </message>
    <message>
        <extracomment>dataFeast</extracomment>
        <source>data feast!</source>
        <translation>資料吃到飽！</translation>
    </message>
    <message>
        <extracomment>beamingUp</extracomment>
        <source>beaming up</source>
        <translation>咻咻上傳中</translation>
    </message>
    <message>
        <extracomment>warmingUp</extracomment>
        <source>warming up</source>
        <translation>有點熱了</translation>
    </message>
    <message>
        <extracomment>refueling</extracomment>
        <source>refueling</source>
        <translation>充電補血中</translation>
    </message>
    <message>
        <extracomment>cruising</extracomment>
        <source>cruising</source>
        <translation>跑得很順</translation>
    </message>
    <message>
        <extracomment>almostPacked</extracomment>
        <source>almost packed</source>
        <translation>快塞滿了</translation>
    </message>
    <message>
        <extracomment>sleepy</extracomment>
        <source>sleepy</source>
        <translation>好睏</translation>
    </message>
    <message>
        <extracomment>dozingOff</extracomment>
        <source>dozing off</source>
        <translation>打瞌睡中</translation>
    </message>
    <message>
        <extracomment>allChill</extracomment>
        <source>all chill</source>
        <translation>悠哉悠哉</translation>
    </message>
    <message>
        <extracomment>peaceful</extracomment>
        <source>peaceful</source>
        <translation>風平浪靜</translation>
    </message>
    <message>
        <extracomment>wakingUp</extracomment>
        <source>waking up</source>
        <translation>起床中</translation>
    </message>
    <message>
        <extracomment>stopPoking</extracomment>
        <source>hey, stop poking!</source>
        <translation>別戳啦！</translation>
    </message>
    <message>
        <extracomment>glovesOff</extracomment>
        <source>gloves off!</source>
        <translation>要開嗆了！</translation>
    </message>
    <message>
        <extracomment>beingNice</extracomment>
        <source>being nice again</source>
        <translation>又變乖了</translation>
    </message>
    <message>
        <extracomment>reasonStartingUp</extracomment>
        <source>starting up</source>
        <translation>正在啟動</translation>
    </message>
    <message>
        <extracomment>reasonFromHeat</extracomment>
        <source>from %@ heat</source>
        <translation>因為 %@ 高溫</translation>
    </message>
    <message>
        <extracomment>reasonFromBattery</extracomment>
        <source>from %@ battery</source>
        <translation>因為電量 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromMemory</extracomment>
        <source>from %@ memory use</source>
        <translation>因為記憶體用量 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromSwap</extracomment>
        <source>from %@ swap</source>
        <translation>因為置換用了 %@</translation>
    </message>
    <message>
        <extracomment>reasonJustCooled</extracomment>
        <source>just cooled down</source>
        <translation>剛降溫</translation>
    </message>
    <message>
        <extracomment>reasonFromCores</extracomment>
        <source>from %@ cores maxed</source>
        <translation>因為 %@ 核心滿載</translation>
    </message>
    <message>
        <extracomment>reasonFromCPU</extracomment>
        <source>from %@ CPU load</source>
        <translation>因為 CPU 負載 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromDown</extracomment>
        <source>from %@ down</source>
        <translation>因為下載 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromUp</extracomment>
        <source>from %@ up</source>
        <translation>因為上傳 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromWarmth</extracomment>
        <source>from %@ warmth</source>
        <translation>因為溫度 %@</translation>
    </message>
    <message>
        <extracomment>reasonBarelyLoad</extracomment>
        <source>barely any load</source>
        <translation>幾乎沒有負載</translation>
    </message>
    <message>
        <extracomment>reasonStartupDiskFull</extracomment>
        <source>system disk %@ full</source>
        <translation>系統磁碟已用 %@</translation>
    </message>
    <message>
        <extracomment>reasonIdleNight</extracomment>
        <source>idle · late night</source>
        <translation>閒置 · 深夜</translation>
    </message>
    <message>
        <extracomment>reasonIdleWhile</extracomment>
        <source>idle for a while</source>
        <translation>閒置一陣子了</translation>
    </message>
    <message>
        <extracomment>reasonLightLoad</extracomment>
        <source>light load</source>
        <translation>負載很輕</translation>
    </message>
    <message>
        <extracomment>reasonPokedTooMuch</extracomment>
        <source>poked way too much</source>
        <translation>被戳太多次了</translation>
    </message>
    <message>
        <extracomment>reasonSavageOn</extracomment>
        <source>savage mode on</source>
        <translation>毒舌模式已開啟</translation>
    </message>
    <message>
        <extracomment>reasonSavageOff</extracomment>
        <source>savage mode off</source>
        <translation>毒舌模式已關閉</translation>
    </message>
    <message>
        <extracomment>holNewYear</extracomment>
        <source>happy new year!</source>
        <translation>新年快樂！</translation>
    </message>
    <message>
        <extracomment>holValentines</extracomment>
        <source>happy valentine’s</source>
        <translation>情人節快樂</translation>
    </message>
    <message>
        <extracomment>holHalloween</extracomment>
        <source>happy halloween</source>
        <translation>萬聖節快樂</translation>
    </message>
    <message>
        <extracomment>holChristmas</extracomment>
        <source>merry christmas</source>
        <translation>聖誕快樂</translation>
    </message>
    <message>
        <extracomment>holSpring</extracomment>
        <source>happy spring festival</source>
        <translation>新春快樂</translation>
    </message>
    <message>
        <extracomment>holDragonBoat</extracomment>
        <source>happy dragon boat</source>
        <translation>端午節快樂</translation>
    </message>
    <message>
        <extracomment>holMidAutumn</extracomment>
        <source>happy mid-autumn</source>
        <translation>中秋節快樂</translation>
    </message>
    <message>
        <extracomment>holCheer</extracomment>
        <source>let’s celebrate</source>
        <translation>一起慶祝吧</translation>
    </message>
    <message>
        <extracomment>prefsTitle</extracomment>
        <source>Preferences</source>
        <translation>偏好設定</translation>
    </message>
    <message>
        <extracomment>updatesFromDistro</extracomment>
        <source>Updates come from your distribution’s package manager.</source>
        <translation>更新由你的發行版套件管理程式提供。</translation>
    </message>
    <message>
        <extracomment>updateTitle</extracomment>
        <source>Software Update</source>
        <translation>軟體更新</translation>
    </message>
    <message>
        <extracomment>checkingForUpdates</extracomment>
        <source>Checking for updates…</source>
        <translation>正在檢查更新……</translation>
    </message>
    <message>
        <extracomment>upToDate</extracomment>
        <source>You’re up to date!</source>
        <translation>已是最新版本！</translation>
    </message>
    <message>
        <extracomment>upToDateFmt</extracomment>
        <source>sulkbox %@ is the newest version available.</source>
        <translation>sulkbox %@ 就是目前最新的版本。</translation>
    </message>
    <message>
        <extracomment>updateAvailable</extracomment>
        <source>A new version of sulkbox is available!</source>
        <translation>sulkbox 有新版本囉！</translation>
    </message>
    <message>
        <extracomment>updateAvailableFmt</extracomment>
        <source>sulkbox %@ is ready to download.</source>
        <translation>sulkbox %@ 已可下載。</translation>
    </message>
    <message>
        <extracomment>youHaveFmt</extracomment>
        <source>You have %@.</source>
        <translation>你目前使用的是 %@。</translation>
    </message>
    <message>
        <extracomment>releaseNotes</extracomment>
        <source>Release Notes</source>
        <translation>版本說明</translation>
    </message>
    <message>
        <extracomment>openDownloadPage</extracomment>
        <source>Open Download Page</source>
        <translation>打開下載頁面</translation>
    </message>
    <message>
        <extracomment>notNow</extracomment>
        <source>Not Now</source>
        <translation>稍後再說</translation>
    </message>
    <message>
        <extracomment>ok</extracomment>
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message>
        <extracomment>updateFailed</extracomment>
        <source>Couldn’t check for updates</source>
        <translation>無法檢查更新</translation>
    </message>
    <message>
        <extracomment>updateErrorOffline</extracomment>
        <source>The update server could not be reached. Check your internet connection and try again.</source>
        <translation>連不上更新伺服器。請檢查網路連線後再試一次。</translation>
    </message>
    <message>
        <extracomment>updateErrorTimeout</extracomment>
        <source>The update server took too long to answer. Try again later.</source>
        <translation>更新伺服器遲遲沒有回應，請稍後再試。</translation>
    </message>
    <message>
        <extracomment>updateErrorServerFmt</extracomment>
        <source>The update server answered with an error (%@). Try again later.</source>
        <translation>更新伺服器回傳了錯誤（%@），請稍後再試。</translation>
    </message>
    <message>
        <extracomment>updateErrorBadFeed</extracomment>
        <source>The update server sent something that isn’t an update feed.</source>
        <translation>更新伺服器傳來的內容不是有效的更新資訊。</translation>
    </message>
    <message>
        <extracomment>openPanel</extracomment>
        <source>Open panel</source>
        <translation>打開面板</translation>
    </message>
    <message>
        <extracomment>openPreferences</extracomment>
        <source>Preferences…</source>
        <translation>偏好設定…</translation>
    </message>
</context>
</TS>
