<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>LocKey</name>
    <message>
        <extracomment>memory</extracomment>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <extracomment>network</extracomment>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <extracomment>disk</extracomment>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <extracomment>sensors</extracomment>
        <source>Sensors</source>
        <translation>センサー</translation>
    </message>
    <message>
        <extracomment>userLabel</extracomment>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <extracomment>systemLabel</extracomment>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <extracomment>coresCount</extracomment>
        <source>Cores (%@)</source>
        <translation>コア（%@）</translation>
    </message>
    <message>
        <extracomment>used</extracomment>
        <source>Used</source>
        <translation>使用中</translation>
    </message>
    <message>
        <extracomment>wired</extracomment>
        <source>Wired</source>
        <translation>固定</translation>
    </message>
    <message>
        <extracomment>compr</extracomment>
        <source>Compr.</source>
        <translation>圧縮</translation>
    </message>
    <message>
        <extracomment>cached</extracomment>
        <source>Cached</source>
        <translation>キャッシュ</translation>
    </message>
    <message>
        <extracomment>free</extracomment>
        <source>Free</source>
        <translation>空き</translation>
    </message>
    <message>
        <extracomment>swap</extracomment>
        <source>Swap</source>
        <translation>スワップ</translation>
    </message>
    <message>
        <extracomment>installedFmt</extracomment>
        <source>%@ installed</source>
        <translation>%@ 搭載</translation>
    </message>
    <message>
        <extracomment>freeUp</extracomment>
        <source>Free up</source>
        <translation>解放</translation>
    </message>
    <message>
        <extracomment>cleaning</extracomment>
        <source>cleaning…</source>
        <translation>解放中…</translation>
    </message>
    <message>
        <extracomment>freedFmt</extracomment>
        <source>freed %@</source>
        <translation>%@ 解放</translation>
    </message>
    <message>
        <extracomment>freshening</extracomment>
        <source>freshening up…</source>
        <translation>リフレッシュ中…</translation>
    </message>
    <message>
        <extracomment>muchLighter</extracomment>
        <source>much lighter!</source>
        <translation>すっきり！</translation>
    </message>
    <message>
        <extracomment>download</extracomment>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <extracomment>upload</extracomment>
        <source>Upload</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <extracomment>read</extracomment>
        <source>Read</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <extracomment>write</extracomment>
        <source>Write</source>
        <translation>書き込み</translation>
    </message>
    <message>
        <extracomment>inLabel</extracomment>
        <source>In</source>
        <translation>受信</translation>
    </message>
    <message>
        <extracomment>outLabel</extracomment>
        <source>Out</source>
        <translation>送信</translation>
    </message>
    <message>
        <extracomment>volumesFmt</extracomment>
        <source>%@ volumes</source>
        <translation>%@ 個のボリューム</translation>
    </message>
    <message>
        <extracomment>freeFmt</extracomment>
        <source>%@ free</source>
        <translation>空き %@</translation>
    </message>
    <message>
        <extracomment>ofFmt</extracomment>
        <source>%@ of %@</source>
        <translation>%@ / %@</translation>
    </message>
    <message>
        <extracomment>fans</extracomment>
        <source>Fans</source>
        <translation>ファン</translation>
    </message>
    <message>
        <extracomment>fanFmt</extracomment>
        <source>Fan %@</source>
        <translation>ファン %@</translation>
    </message>
    <message>
        <extracomment>temperatures</extracomment>
        <source>Temperatures</source>
        <translation>温度</translation>
    </message>
    <message>
        <extracomment>health</extracomment>
        <source>Health</source>
        <translation>最大容量</translation>
    </message>
    <message>
        <extracomment>cycles</extracomment>
        <source>Cycles</source>
        <translation>充放電回数</translation>
    </message>
    <message>
        <extracomment>rpmFmt</extracomment>
        <source>%@ rpm</source>
        <translation>%@ rpm</translation>
    </message>
    <message>
        <extracomment>noSensors</extracomment>
        <source>No readable sensors on this computer.</source>
        <translation>このパソコンには読み取れるセンサーがありません。</translation>
    </message>
    <message>
        <extracomment>charging</extracomment>
        <source>Charging</source>
        <translation>充電中</translation>
    </message>
    <message>
        <extracomment>chargingToFull</extracomment>
        <source>Charging · %@</source>
        <translation>充電中 · 満充電まで %@</translation>
    </message>
    <message>
        <extracomment>pluggedIn</extracomment>
        <source>Plugged in</source>
        <translation>電源接続中</translation>
    </message>
    <message>
        <extracomment>timeLeft</extracomment>
        <source>%@ left</source>
        <translation>残り %@</translation>
    </message>
    <message>
        <extracomment>onBattery</extracomment>
        <source>On battery</source>
        <translation>バッテリー駆動</translation>
    </message>
    <message>
        <extracomment>activityMonitor</extracomment>
        <source>System Monitor</source>
        <translation>システムモニター</translation>
    </message>
    <message>
        <extracomment>quit</extracomment>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <extracomment>yourMac</extracomment>
        <source>Your computer</source>
        <translation>このパソコン</translation>
    </message>
    <message>
        <extracomment>general</extracomment>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <extracomment>launchAtLogin</extracomment>
        <source>Launch at login</source>
        <translation>ログイン時に起動</translation>
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
        <translation>温度の単位</translation>
    </message>
    <message>
        <extracomment>celsius</extracomment>
        <source>Celsius (°C)</source>
        <translation>摂氏（°C）</translation>
    </message>
    <message>
        <extracomment>fahrenheit</extracomment>
        <source>Fahrenheit (°F)</source>
        <translation>華氏（°F）</translation>
    </message>
    <message>
        <extracomment>personality</extracomment>
        <source>Personality</source>
        <translation>性格</translation>
    </message>
    <message>
        <extracomment>showMood</extracomment>
        <source>Show mood in the top bar</source>
        <translation>トップバーに気分を表示</translation>
    </message>
    <message>
        <extracomment>petName</extracomment>
        <source>Pet name (optional)</source>
        <translation>ニックネーム（任意）</translation>
    </message>
    <message>
        <extracomment>petPlaceholder</extracomment>
        <source>e.g. Pixel</source>
        <translation>例：ポチ</translation>
    </message>
    <message>
        <extracomment>petHint</extracomment>
        <source>Shown above the mood in the panel.</source>
        <translation>パネルで、気分の上に表示される名前です。</translation>
    </message>
    <message>
        <extracomment>savageMode</extracomment>
        <source>Savage Mode</source>
        <translation>毒舌モード</translation>
    </message>
    <message>
        <extracomment>savageModeHint</extracomment>
        <source>Click a module and it roasts you. Not for the sensitive.</source>
        <translation>モジュールをクリックすると毒舌が飛んできます。打たれ弱い人にはおすすめしません。</translation>
    </message>
    <message>
        <extracomment>modulesInPanel</extracomment>
        <source>Modules in panel</source>
        <translation>パネルに表示するモジュール</translation>
    </message>
    <message>
        <extracomment>language</extracomment>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <extracomment>autoLanguage</extracomment>
        <source>Auto (System)</source>
        <translation>自動（システム）</translation>
    </message>
    <message>
        <extracomment>about</extracomment>
        <source>About</source>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <extracomment>versionFmt</extracomment>
        <source>Version %@</source>
        <translation>バージョン %@</translation>
    </message>
    <message>
        <extracomment>tagline</extracomment>
        <source>Your computer, with feelings.</source>
        <translation>感情を持ったパソコン。</translation>
    </message>
    <message>
        <extracomment>checkForUpdates</extracomment>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <extracomment>autoUpdate</extracomment>
        <source>Check for updates automatically</source>
        <translation>アップデートを自動的に確認</translation>
    </message>
    <message>
        <extracomment>processes</extracomment>
        <source>Processes</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <extracomment>topProcesses</extracomment>
        <source>Top Processes</source>
        <translation>上位プロセス</translation>
    </message>
    <message>
        <extracomment>last60s</extracomment>
        <source>last 60s</source>
        <translation>直近 60 秒</translation>
    </message>
    <message>
        <extracomment>peakFmt</extracomment>
        <source>peak %@</source>
        <translation>ピーク %@</translation>
    </message>
    <message>
        <extracomment>power</extracomment>
        <source>Power</source>
        <translation>電力</translation>
    </message>
    <message>
        <extracomment>totalLabel</extracomment>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <extracomment>compBattery</extracomment>
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message>
        <extracomment>justWokeUp</extracomment>
        <source>just woke up</source>
        <translation>寝起き</translation>
    </message>
    <message>
        <extracomment>soHot</extracomment>
        <source>so hot!</source>
        <translation>あっつい！</translation>
    </message>
    <message>
        <extracomment>runningLow</extracomment>
        <source>running low</source>
        <translation>電池ピンチ</translation>
    </message>
    <message>
        <extracomment>memoryFull</extracomment>
        <source>memory full</source>
        <translation>メモリぱんぱん</translation>
    </message>
    <message>
        <extracomment>swappingHard</extracomment>
        <source>swapping hard</source>
        <translation>スワップ地獄</translation>
    </message>
    <message>
        <extracomment>phew</extracomment>
        <source>phew…</source>
        <translation>ふぅ…</translation>
    </message>
    <message>
        <extracomment>allCoresBlazing</extracomment>
        <source>all cores blazing</source>
        <translation>全コア全開</translation>
    </message>
    <message>
        <extracomment>workingHard</extracomment>
        <source>working hard</source>
        <translation>がんばり中</translation>
    </message>
    <message>
        <extracomment>gobblingData</extracomment>
        <source>gobbling data</source>
        <translation>データもぐもぐ</translation>
    </message>
    <message>
        <extracomment>dataFeast</extracomment>
        <source>data feast!</source>
        <translation>データ祭り！</translation>
    </message>
    <message>
        <extracomment>beamingUp</extracomment>
        <source>beaming up</source>
        <translation>せっせと送信</translation>
    </message>
    <message>
        <extracomment>warmingUp</extracomment>
        <source>warming up</source>
        <translation>あったまってきた</translation>
    </message>
    <message>
        <extracomment>refueling</extracomment>
        <source>refueling</source>
        <translation>エネルギー補給中</translation>
    </message>
    <message>
        <extracomment>cruising</extracomment>
        <source>cruising</source>
        <translation>いい調子</translation>
    </message>
    <message>
        <extracomment>almostPacked</extracomment>
        <source>almost packed</source>
        <translation>ほぼ満杯</translation>
    </message>
    <message>
        <extracomment>sleepy</extracomment>
        <source>sleepy</source>
        <translation>おねむ</translation>
    </message>
    <message>
        <extracomment>dozingOff</extracomment>
        <source>dozing off</source>
        <translation>うとうと</translation>
    </message>
    <message>
        <extracomment>allChill</extracomment>
        <source>all chill</source>
        <translation>まったり</translation>
    </message>
    <message>
        <extracomment>peaceful</extracomment>
        <source>peaceful</source>
        <translation>おだやか</translation>
    </message>
    <message>
        <extracomment>wakingUp</extracomment>
        <source>waking up</source>
        <translation>おめざめ中</translation>
    </message>
    <message>
        <extracomment>stopPoking</extracomment>
        <source>hey, stop poking!</source>
        <translation>つつかないで！</translation>
    </message>
    <message>
        <extracomment>glovesOff</extracomment>
        <source>gloves off!</source>
        <translation>手加減なし！</translation>
    </message>
    <message>
        <extracomment>beingNice</extracomment>
        <source>being nice again</source>
        <translation>いい子に戻った</translation>
    </message>
    <message>
        <extracomment>reasonStartingUp</extracomment>
        <source>starting up</source>
        <translation>起動中</translation>
    </message>
    <message>
        <extracomment>reasonFromHeat</extracomment>
        <source>from %@ heat</source>
        <translation>%@ の高温</translation>
    </message>
    <message>
        <extracomment>reasonFromBattery</extracomment>
        <source>from %@ battery</source>
        <translation>バッテリー %@</translation>
    </message>
    <message>
        <extracomment>reasonFromMemory</extracomment>
        <source>from %@ memory use</source>
        <translation>メモリ使用率 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromSwap</extracomment>
        <source>from %@ swap</source>
        <translation>スワップ %@</translation>
    </message>
    <message>
        <extracomment>reasonJustCooled</extracomment>
        <source>just cooled down</source>
        <translation>やっと冷えた</translation>
    </message>
    <message>
        <extracomment>reasonFromCores</extracomment>
        <source>from %@ cores maxed</source>
        <translation>%@ コアがフル稼働</translation>
    </message>
    <message>
        <extracomment>reasonFromCPU</extracomment>
        <source>from %@ CPU load</source>
        <translation>CPU 負荷 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromDown</extracomment>
        <source>from %@ down</source>
        <translation>下り %@</translation>
    </message>
    <message>
        <extracomment>reasonFromUp</extracomment>
        <source>from %@ up</source>
        <translation>上り %@</translation>
    </message>
    <message>
        <extracomment>reasonFromWarmth</extracomment>
        <source>from %@ warmth</source>
        <translation>温度 %@</translation>
    </message>
    <message>
        <extracomment>reasonBarelyLoad</extracomment>
        <source>barely any load</source>
        <translation>負荷ほぼゼロ</translation>
    </message>
    <message>
        <extracomment>reasonStartupDiskFull</extracomment>
        <source>system disk %@ full</source>
        <translation>システムディスク使用率 %@</translation>
    </message>
    <message>
        <extracomment>reasonIdleNight</extracomment>
        <source>idle · late night</source>
        <translation>アイドル · 深夜</translation>
    </message>
    <message>
        <extracomment>reasonIdleWhile</extracomment>
        <source>idle for a while</source>
        <translation>しばらくアイドル</translation>
    </message>
    <message>
        <extracomment>reasonLightLoad</extracomment>
        <source>light load</source>
        <translation>負荷は軽め</translation>
    </message>
    <message>
        <extracomment>reasonPokedTooMuch</extracomment>
        <source>poked way too much</source>
        <translation>つつかれすぎ</translation>
    </message>
    <message>
        <extracomment>reasonSavageOn</extracomment>
        <source>savage mode on</source>
        <translation>毒舌モード オン</translation>
    </message>
    <message>
        <extracomment>reasonSavageOff</extracomment>
        <source>savage mode off</source>
        <translation>毒舌モード オフ</translation>
    </message>
    <message>
        <extracomment>holNewYear</extracomment>
        <source>happy new year!</source>
        <translation>あけおめ！</translation>
    </message>
    <message>
        <extracomment>holValentines</extracomment>
        <source>happy valentine’s</source>
        <translation>ハッピーバレンタイン</translation>
    </message>
    <message>
        <extracomment>holHalloween</extracomment>
        <source>happy halloween</source>
        <translation>ハッピーハロウィン</translation>
    </message>
    <message>
        <extracomment>holChristmas</extracomment>
        <source>merry christmas</source>
        <translation>メリークリスマス</translation>
    </message>
    <message>
        <extracomment>holSpring</extracomment>
        <source>happy spring festival</source>
        <translation>春節おめでとう</translation>
    </message>
    <message>
        <extracomment>holDragonBoat</extracomment>
        <source>happy dragon boat</source>
        <translation>端午節おめでとう</translation>
    </message>
    <message>
        <extracomment>holMidAutumn</extracomment>
        <source>happy mid-autumn</source>
        <translation>中秋の名月</translation>
    </message>
    <message>
        <extracomment>holCheer</extracomment>
        <source>let’s celebrate</source>
        <translation>お祝いしよう</translation>
    </message>
    <message>
        <extracomment>prefsTitle</extracomment>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <extracomment>updatesFromDistro</extracomment>
        <source>Updates come from your distribution’s package manager.</source>
        <translation>アップデートはディストリビューションのパッケージマネージャーから届きます。</translation>
    </message>
    <message>
        <extracomment>updateTitle</extracomment>
        <source>Software Update</source>
        <translation>ソフトウェアアップデート</translation>
    </message>
    <message>
        <extracomment>checkingForUpdates</extracomment>
        <source>Checking for updates…</source>
        <translation>アップデートを確認しています…</translation>
    </message>
    <message>
        <extracomment>upToDate</extracomment>
        <source>You’re up to date!</source>
        <translation>最新の状態です！</translation>
    </message>
    <message>
        <extracomment>upToDateFmt</extracomment>
        <source>sulkbox %@ is the newest version available.</source>
        <translation>sulkbox %@ が現在の最新バージョンです。</translation>
    </message>
    <message>
        <extracomment>updateAvailable</extracomment>
        <source>A new version of sulkbox is available!</source>
        <translation>sulkbox の新しいバージョンがあります！</translation>
    </message>
    <message>
        <extracomment>updateAvailableFmt</extracomment>
        <source>sulkbox %@ is ready to download.</source>
        <translation>sulkbox %@ をダウンロードできます。</translation>
    </message>
    <message>
        <extracomment>youHaveFmt</extracomment>
        <source>You have %@.</source>
        <translation>お使いのバージョンは %@ です。</translation>
    </message>
    <message>
        <extracomment>releaseNotes</extracomment>
        <source>Release Notes</source>
        <translation>リリースノート</translation>
    </message>
    <message>
        <extracomment>openDownloadPage</extracomment>
        <source>Open Download Page</source>
        <translation>ダウンロードページを開く</translation>
    </message>
    <message>
        <extracomment>notNow</extracomment>
        <source>Not Now</source>
        <translation>今はしない</translation>
    </message>
    <message>
        <extracomment>ok</extracomment>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <extracomment>updateFailed</extracomment>
        <source>Couldn’t check for updates</source>
        <translation>アップデートを確認できませんでした</translation>
    </message>
    <message>
        <extracomment>updateErrorOffline</extracomment>
        <source>The update server could not be reached. Check your internet connection and try again.</source>
        <translation>アップデートサーバーに接続できませんでした。インターネット接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <extracomment>updateErrorTimeout</extracomment>
        <source>The update server took too long to answer. Try again later.</source>
        <translation>アップデートサーバーからの応答がありませんでした。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <extracomment>updateErrorServerFmt</extracomment>
        <source>The update server answered with an error (%@). Try again later.</source>
        <translation>アップデートサーバーがエラーを返しました（%@）。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <extracomment>updateErrorBadFeed</extracomment>
        <source>The update server sent something that isn’t an update feed.</source>
        <translation>アップデートサーバーから届いたデータは、アップデート情報ではありませんでした。</translation>
    </message>
    <message>
        <extracomment>openPanel</extracomment>
        <source>Open panel</source>
        <translation>パネルを開く</translation>
    </message>
    <message>
        <extracomment>openPreferences</extracomment>
        <source>Preferences…</source>
        <translation>設定…</translation>
    </message>
</context>
</TS>
