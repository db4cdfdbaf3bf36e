<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>LocKey</name>
    <message>
        <extracomment>memory</extracomment>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <extracomment>network</extracomment>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <extracomment>disk</extracomment>
        <source>Disk</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <extracomment>sensors</extracomment>
        <source>Sensors</source>
        <translation>传感器</translation>
    </message>
    <message>
        <extracomment>userLabel</extracomment>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <extracomment>systemLabel</extracomment>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <extracomment>coresCount</extracomment>
        <source>Cores (%@)</source>
        <translation>核心（%@）</translation>
    </message>
    <message>
        <extracomment>used</extracomment>
        <source>Used</source>
        <translation>已用</translation>
    </message>
    <message>
        <extracomment>wired</extracomment>
        <source>Wired</source>
        <translation>锁定</translation>
    </message>
    <message>
        <extracomment>compr</extracomment>
        <source>Compr.</source>
        <translation>压缩</translation>
    </message>
    <message>
        <extracomment>cached</extracomment>
        <source>Cached</source>
        <translation>缓存</translation>
    </message>
    <message>
        <extracomment>free</extracomment>
        <source>Free</source>
        <translation>空闲</translation>
    </message>
    <message>
        <extracomment>swap</extracomment>
        <source>Swap</source>
        <translation>交换</translation>
    </message>
    <message>
        <extracomment>installedFmt</extracomment>
        <source>%@ installed</source>
        <translation>已安装 %@</translation>
    </message>
    <message>
        <extracomment>freeUp</extracomment>
        <source>Free up</source>
        <translation>释放</translation>
    </message>
    <message>
        <extracomment>cleaning</extracomment>
        <source>cleaning…</source>
        <translation>清理中……</translation>
    </message>
    <message>
        <extracomment>freedFmt</extracomment>
        <source>freed %@</source>
        <translation>释放了 %@</translation>
    </message>
    <message>
        <extracomment>freshening</extracomment>
        <source>freshening up…</source>
        <translation>收拾一下……</translation>
    </message>
    <message>
        <extracomment>muchLighter</extracomment>
        <source>much lighter!</source>
        <translation>轻松多了！</translation>
    </message>
    <message>
        <extracomment>download</extracomment>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <extracomment>upload</extracomment>
        <source>Upload</source>
        <translation>上传</translation>
    </message>
    <message>
        <extracomment>read</extracomment>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <extracomment>write</extracomment>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <extracomment>inLabel</extracomment>
        <source>In</source>
        <translation>接收</translation>
    </message>
    <message>
        <extracomment>outLabel</extracomment>
        <source>Out</source>
        <translation>发送</translation>
    </message>
    <message>
        <extracomment>volumesFmt</extracomment>
        <source>%@ volumes</source>
        <translation>%@ 个卷</translation>
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
        <translation>风扇</translation>
    </message>
    <message>
        <extracomment>fanFmt</extracomment>
        <source>Fan %@</source>
        <translation>风扇 %@</translation>
    </message>
    <message>
        <extracomment>temperatures</extracomment>
        <source>Temperatures</source>
        <translation>温度</translation>
    </message>
    <message>
        <extracomment>health</extracomment>
        <source>Health</source>
        <translation>健康度</translation>
    </message>
    <message>
        <extracomment>cycles</extracomment>
        <source>Cycles</source>
        <translation>循环次数</translation>
    </message>
    <message>
        <extracomment>rpmFmt</extracomment>
        <source>%@ rpm</source>
        <translation>%@ 转/分</translation>
    </message>
    <message>
        <extracomment>noSensors</extracomment>
        <source>No readable sensors on this computer.</source>
        <translation>这台电脑上没有可读取的传感器。</translation>
    </message>
    <message>
        <extracomment>charging</extracomment>
        <source>Charging</source>
        <translation>充电中</translation>
    </message>
    <message>
        <extracomment>chargingToFull</extracomment>
        <source>Charging · %@</source>
        <translation>充电中 · %@ 后充满</translation>
    </message>
    <message>
        <extracomment>pluggedIn</extracomment>
        <source>Plugged in</source>
        <translation>已接通电源</translation>
    </message>
    <message>
        <extracomment>timeLeft</extracomment>
        <source>%@ left</source>
        <translation>剩余 %@</translation>
    </message>
    <message>
        <extracomment>onBattery</extracomment>
        <source>On battery</source>
        <translation>使用电池</translation>
    </message>
    <message>
        <extracomment>activityMonitor</extracomment>
        <source>System Monitor</source>
        <translation>系统监视器</translation>
    </message>
    <message>
        <extracomment>quit</extracomment>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <extracomment>yourMac</extracomment>
        <source>Your computer</source>
        <translation>你的电脑</translation>
    </message>
    <message>
        <extracomment>general</extracomment>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <extracomment>launchAtLogin</extracomment>
        <source>Launch at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <extracomment>refreshEvery</extracomment>
        <source>Refresh every</source>
        <translation>刷新间隔</translation>
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
        <translation>温度单位</translation>
    </message>
    <message>
        <extracomment>celsius</extracomment>
        <source>Celsius (°C)</source>
        <translation>摄氏度（°C）</translation>
    </message>
    <message>
        <extracomment>fahrenheit</extracomment>
        <source>Fahrenheit (°F)</source>
        <translation>华氏度（°F）</translation>
    </message>
    <message>
        <extracomment>personality</extracomment>
        <source>Personality</source>
        <translation>个性</translation>
    </message>
    <message>
        <extracomment>showMood</extracomment>
        <source>Show mood in the top bar</source>
        <translation>在顶栏显示心情</translation>
    </message>
    <message>
        <extracomment>petName</extracomment>
        <source>Pet name (optional)</source>
        <translation>昵称（可选）</translation>
    </message>
    <message>
        <extracomment>petPlaceholder</extracomment>
        <source>e.g. Pixel</source>
        <translation>例如：皮皮</translation>
    </message>
    <message>
        <extracomment>petHint</extracomment>
        <source>Shown above the mood in the panel.</source>
        <translation>显示在面板中的心情上方。</translation>
    </message>
    <message>
        <extracomment>savageMode</extracomment>
        <source>Savage Mode</source>
        <translation>毒舌模式</translation>
    </message>
    <message>
        <extracomment>savageModeHint</extracomment>
        <source>Click a module and it roasts you. Not for the sensitive.</source>
        <translation>点一下模块，它就会吐槽你。玻璃心慎入。</translation>
    </message>
    <message>
        <extracomment>modulesInPanel</extracomment>
        <source>Modules in panel</source>
        <translation>面板中的模块</translation>
    </message>
    <message>
        <extracomment>language</extracomment>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <extracomment>autoLanguage</extracomment>
        <source>Auto (System)</source>
        <translation>自动（跟随系统）</translation>
    </message>
    <message>
        <extracomment>about</extracomment>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <extracomment>versionFmt</extracomment>
        <source>Version %@</source>
        <translation>版本 %@</translation>
    </message>
    <message>
        <extracomment>tagline</extracomment>
        <source>Your computer, with feelings.</source>
        <translation>让你的电脑有点小情绪。</translation>
    </message>
    <message>
        <extracomment>checkForUpdates</extracomment>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <extracomment>autoUpdate</extracomment>
        <source>Check for updates automatically</source>
        <translation>自动检查更新</translation>
    </message>
    <message>
        <extracomment>processes</extracomment>
        <source>Processes</source>
        <translation>进程</translation>
    </message>
    <message>
        <extracomment>topProcesses</extracomment>
        <source>Top Processes</source>
        <translation>进程排行</translation>
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
        <translation>总计</translation>
    </message>
    <message>
        <extracomment>compBattery</extracomment>
        <source>Battery</source>
        <translation>电池</translation>
    </message>
    <message>
        <extracomment>justWokeUp</extracomment>
        <source>just woke up</source>
        <translation>刚睡醒</translation>
    </message>
    <message>
        <extracomment>soHot</extracomment>
        <source>so hot!</source>
        <translation>好热！</translation>
    </message>
    <message>
        <extracomment>runningLow</extracomment>
        <source>running low</source>
        <translation>快没电了</translation>
    </message>
    <message>
        <extracomment>memoryFull</extracomment>
        <source>memory full</source>
        <translation>内存满了</translation>
    </message>
    <message>
        <extracomment>swappingHard</extracomment>
        <source>swapping hard</source>
        <translation>狂用交换区</translation>
    </message>
    <message>
        <extracomment>phew</extracomment>
        <source>phew…</source>
        <translation>呼……</translation>
    </message>
    <message>
        <extracomment>allCoresBlazing</extracomment>
        <source>all cores blazing</source>
        <translation>全核狂飙</translation>
    </message>
    <message>
        <extracomment>workingHard</extracomment>
        <source>working hard</source>
        <translation>埋头苦干</translation>
    </message>
    <message>
        <extracomment>gobblingData</extracomment>
        <source>gobbling data</source>
        <translation>狂吞数据</translation>
    </message>
    <message>
        <extracomment>dataFeast</extracomment>
        <source>data feast!</source>
        <translation>数据盛宴！</translation>
    </message>
    <message>
        <extracomment>beamingUp</extracomment>
        <source>beaming up</source>
        <translation>嗖嗖上传中</translation>
    </message>
    <message>
        <extracomment>warmingUp</extracomment>
        <source>warming up</source>
        <translation>有点热了</translation>
    </message>
    <message>
        <extracomment>refueling</extracomment>
        <source>refueling</source>
        <translation>充电回血</translation>
    </message>
    <message>
        <extracomment>cruising</extracomment>
        <source>cruising</source>
        <translation>稳稳当当</translation>
    </message>
    <message>
        <extracomment>almostPacked</extracomment>
        <source>almost packed</source>
        <translation>快装满了</translation>
    </message>
    <message>
        <extracomment>sleepy</extracomment>
        <source>sleepy</source>
        <translation>好困</translation>
    </message>
    <message>
        <extracomment>dozingOff</extracomment>
        <source>dozing off</source>
        <translation>打盹中</translation>
    </message>
    <message>
        <extracomment>allChill</extracomment>
        <source>all chill</source>
        <translation>超悠闲</translation>
    </message>
    <message>
        <extracomment>peaceful</extracomment>
        <source>peaceful</source>
        <translation>岁月静好</translation>
    </message>
    <message>
        <extracomment>wakingUp</extracomment>
        <source>waking up</source>
        <translation>起床中</translation>
    </message>
    <message>
        <extracomment>stopPoking</extracomment>
        <source>hey, stop poking!</source>
        <translation>别戳啦！</translation>
    </message>
    <message>
        <extracomment>glovesOff</extracomment>
        <source>gloves off!</source>
        <translation>不装了！</translation>
    </message>
    <message>
        <extracomment>beingNice</extracomment>
        <source>being nice again</source>
        <translation>又变乖了</translation>
    </message>
    <message>
        <extracomment>reasonStartingUp</extracomment>
        <source>starting up</source>
        <translation>正在启动</translation>
    </message>
    <message>
        <extracomment>reasonFromHeat</extracomment>
        <source>from %@ heat</source>
        <translation>因为 %@ 高温</translation>
    </message>
    <message>
        <extracomment>reasonFromBattery</extracomment>
        <source>from %@ battery</source>
        <translation>因为电量 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromMemory</extracomment>
        <source>from %@ memory use</source>
        <translation>因为内存占用 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromSwap</extracomment>
        <source>from %@ swap</source>
        <translation>因为交换区占用 %@</translation>
    </message>
    <message>
        <extracomment>reasonJustCooled</extracomment>
        <source>just cooled down</source>
        <translation>刚刚降温</translation>
    </message>
    <message>
        <extracomment>reasonFromCores</extracomment>
        <source>from %@ cores maxed</source>
        <translation>因为 %@ 核心满载</translation>
    </message>
    <message>
        <extracomment>reasonFromCPU</extracomment>
        <source>from %@ CPU load</source>
        <translation>因为 CPU 负载 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromDown</extracomment>
        <source>from %@ down</source>
        <translation>因为下载 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromUp</extracomment>
        <source>from %@ up</source>
        <translation>因为上传 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromWarmth</extracomment>
        <source>from %@ warmth</source>
        <translation>因为温度 %@</translation>
    </message>
    <message>
        <extracomment>reasonBarelyLoad</extracomment>
        <source>barely any load</source>
        <translation>几乎没有负载</translation>
    </message>
    <message>
        <extracomment>reasonStartupDiskFull</extracomment>
        <source>system disk %@ full</source>
        <translation>系统盘已用 %@</translation>
    </message>
    <message>
        <extracomment>reasonIdleNight</extracomment>
        <source>idle · late night</source>
        <translation>空闲 · 深夜</translation>
    </message>
    <message>
        <extracomment>reasonIdleWhile</extracomment>
        <source>idle for a while</source>
        <translation>空闲一阵子了</translation>
    </message>
    <message>
        <extracomment>reasonLightLoad</extracomment>
        <source>light load</source>
        <translation>负载很轻</translation>
    </message>
    <message>
        <extracomment>reasonPokedTooMuch</extracomment>
        <source>poked way too much</source>
        <translation>被戳太多次了</translation>
    </message>
    <message>
        <extracomment>reasonSavageOn</extracomment>
        <source>savage mode on</source>
        <translation>毒舌模式已开启</translation>
    </message>
    <message>
        <extracomment>reasonSavageOff</extracomment>
        <source>savage mode off</source>
        <translation>毒舌模式已关闭</translation>
    </message>
    <message>
        <extracomment>holNewYear</extracomment>
        <source>happy new year!</source>
        <translation>新年快乐！</translation>
    </message>
    <message>
        <extracomment>holValentines</extracomment>
        <source>happy valentine’s</source>
        <translation>情人节快乐</translation>
    </message>
    <message>
        <extracomment>holHalloween</extracomment>
        <source>happy halloween</source>
        <translation>万圣节快乐</translation>
    </message>
    <message>
        <extracomment>holChristmas</extracomment>
        <source>merry christmas</source>
        <translation>圣诞快乐</translation>
    </message>
    <message>
        <extracomment>holSpring</extracomment>
        <source>happy spring festival</source>
        <translation>春节快乐</translation>
    </message>
    <message>
        <extracomment>holDragonBoat</extracomment>
        <source>happy dragon boat</source>
        <translation>端午安康</translation>
    </message>
    <message>
        <extracomment>holMidAutumn</extracomment>
        <source>happy mid-autumn</source>
        <translation>中秋快乐</translation>
    </message>
    <message>
        <extracomment>holCheer</extracomment>
        <source>let’s celebrate</source>
        <translation>一起庆祝吧</translation>
    </message>
    <message>
        <extracomment>prefsTitle</extracomment>
        <source>Preferences</source>
        <translation>偏好设置</translation>
    </message>
    <message>
        <extracomment>updatesFromDistro</extracomment>
        <source>Updates come from your distribution’s package manager.</source>
        <translation>更新由你的发行版软件包管理器提供。</translation>
    </message>
    <message>
        <extracomment>updateTitle</extracomment>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <extracomment>checkingForUpdates</extracomment>
        <source>Checking for updates…</source>
        <translation>正在检查更新……</translation>
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
        <translation>sulkbox 有新版本啦！</translation>
    </message>
    <message>
        <extracomment>updateAvailableFmt</extracomment>
        <source>sulkbox %@ is ready to download.</source>
        <translation>sulkbox %@ 已可下载。</translation>
    </message>
    <message>
        <extracomment>youHaveFmt</extracomment>
        <source>You have %@.</source>
        <translation>你目前使用的是 %@。</translation>
    </message>
    <message>
        <extracomment>releaseNotes</extracomment>
        <source>Release Notes</source>
        <translation>更新说明</translation>
    </message>
    <message>
        <extracomment>openDownloadPage</extracomment>
        <source>Open Download Page</source>
        <translation>打开下载页面</translation>
    </message>
    <message>
        <extracomment>notNow</extracomment>
        <source>Not Now</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <extracomment>ok</extracomment>
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message>
        <extracomment>updateFailed</extracomment>
        <source>Couldn’t check for updates</source>
        <translation>无法检查更新</translation>
    </message>
    <message>
        <extracomment>updateErrorOffline</extracomment>
        <source>The update server could not be reached. Check your internet connection and try again.</source>
        <translation>连不上更新服务器。请检查网络连接后再试一次。</translation>
    </message>
    <message>
        <extracomment>updateErrorTimeout</extracomment>
        <source>The update server took too long to answer. Try again later.</source>
        <translation>更新服务器迟迟没有回应，请稍后再试。</translation>
    </message>
    <message>
        <extracomment>updateErrorServerFmt</extracomment>
        <source>The update server answered with an error (%@). Try again later.</source>
        <translation>更新服务器返回了错误（%@），请稍后再试。</translation>
    </message>
    <message>
        <extracomment>updateErrorBadFeed</extracomment>
        <source>The update server sent something that isn’t an update feed.</source>
        <translation>更新服务器发来的内容不是有效的更新信息。</translation>
    </message>
    <message>
        <extracomment>openPanel</extracomment>
        <source>Open panel</source>
        <translation>打开面板</translation>
    </message>
    <message>
        <extracomment>openPreferences</extracomment>
        <source>Preferences…</source>
        <translation>偏好设置…</translation>
    </message>
</context>
</TS>
