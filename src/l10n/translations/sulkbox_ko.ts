<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>LocKey</name>
    <message>
        <extracomment>memory</extracomment>
        <source>Memory</source>
        <translation>메모리</translation>
    </message>
    <message>
        <extracomment>network</extracomment>
        <source>Network</source>
        <translation>네트워크</translation>
    </message>
    <message>
        <extracomment>disk</extracomment>
        <source>Disk</source>
        <translation>디스크</translation>
    </message>
    <message>
        <extracomment>sensors</extracomment>
        <source>Sensors</source>
        <translation>센서</translation>
    </message>
    <message>
        <extracomment>userLabel</extracomment>
        <source>User</source>
        <translation>사용자</translation>
    </message>
    <message>
        <extracomment>systemLabel</extracomment>
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message>
        <extracomment>coresCount</extracomment>
        <source>Cores (%@)</source>
        <translation>코어 (%@)</translation>
    </message>
    <message>
        <extracomment>used</extracomment>
        <source>Used</source>
        <translation>사용 중</translation>
    </message>
    <message>
        <extracomment>wired</extracomment>
        <source>Wired</source>
        <translation>고정</translation>
    </message>
    <message>
        <extracomment>compr</extracomment>
        <source>Compr.</source>
        <translation>압축</translation>
    </message>
    <message>
        <extracomment>cached</extracomment>
        <source>Cached</source>
        <translation>캐시</translation>
    </message>
    <message>
        <extracomment>free</extracomment>
        <source>Free</source>
        <translation>여유</translation>
    </message>
    <message>
        <extracomment>swap</extracomment>
        <source>Swap</source>
        <translation>스왑</translation>
    </message>
    <message>
        <extracomment>installedFmt</extracomment>
        <source>%@ installed</source>
        <translation>%@ 탑재</translation>
    </message>
    <message>
        <extracomment>freeUp</extracomment>
        <source>Free up</source>
        <translation>정리하기</translation>
    </message>
    <message>
        <extracomment>cleaning</extracomment>
        <source>cleaning…</source>
        <translation>정리 중…</translation>
    </message>
    <message>
        <extracomment>freedFmt</extracomment>
        <source>freed %@</source>
        <translation>%@ 정리됨</translation>
    </message>
    <message>
        <extracomment>freshening</extracomment>
        <source>freshening up…</source>
        <translation>싹 비우는 중…</translation>
    </message>
    <message>
        <extracomment>muchLighter</extracomment>
        <source>much lighter!</source>
        <translation>훨씬 가벼워!</translation>
    </message>
    <message>
        <extracomment>download</extracomment>
        <source>Download</source>
        <translation>다운로드</translation>
    </message>
    <message>
        <extracomment>upload</extracomment>
        <source>Upload</source>
        <translation>업로드</translation>
    </message>
    <message>
        <extracomment>read</extracomment>
        <source>Read</source>
        <translation>읽기</translation>
    </message>
    <message>
        <extracomment>write</extracomment>
        <source>Write</source>
        <translation>쓰기</translation>
    </message>
    <message>
        <extracomment>inLabel</extracomment>
        <source>In</source>
        <translation>수신</translation>
    </message>
    <message>
        <extracomment>outLabel</extracomment>
        <source>Out</source>
        <translation>송신</translation>
    </message>
    <message>
        <extracomment>volumesFmt</extracomment>
        <source>%@ volumes</source>
        <translation>볼륨 %@개</translation>
    </message>
    <message>
        <extracomment>freeFmt</extracomment>
        <source>%@ free</source>
        <translation>%@ 사용 가능</translation>
    </message>
    <message>
        <extracomment>ofFmt</extracomment>
        <source>%@ of %@</source>
        <translation>%@ / %@</translation>
    </message>
    <message>
        <extracomment>fans</extracomment>
        <source>Fans</source>
        <translation>팬</translation>
    </message>
    <message>
        <extracomment>fanFmt</extracomment>
        <source>Fan %@</source>
        <translation>팬 %@</translation>
    </message>
    <message>
        <extracomment>temperatures</extracomment>
        <source>Temperatures</source>
        <translation>온도</translation>
    </message>
    <message>
        <extracomment>health</extracomment>
        <source>Health</source>
        <translation>성능 상태</translation>
    </message>
    <message>
        <extracomment>cycles</extracomment>
        <source>Cycles</source>
        <translation>사이클 수</translation>
    </message>
    <message>
        <extracomment>rpmFmt</extracomment>
        <source>%@ rpm</source>
        <translation>%@ rpm</translation>
    </message>
    <message>
        <extracomment>noSensors</extracomment>
        <source>No readable sensors on this computer.</source>
        <translation>이 컴퓨터에는 읽을 수 있는 센서가 없습니다.</translation>
    </message>
    <message>
        <extracomment>charging</extracomment>
        <source>Charging</source>
        <translation>충전 중</translation>
    </message>
    <message>
        <extracomment>chargingToFull</extracomment>
        <source>Charging · %@</source>
        <translation>충전 중 · 완충까지 %@</translation>
    </message>
    <message>
        <extracomment>pluggedIn</extracomment>
        <source>Plugged in</source>
        <translation>전원 연결됨</translation>
    </message>
    <message>
        <extracomment>timeLeft</extracomment>
        <source>%@ left</source>
        <translation>%@ 남음</translation>
    </message>
    <message>
        <extracomment>onBattery</extracomment>
        <source>On battery</source>
        <translation>배터리 사용 중</translation>
    </message>
    <message>
        <extracomment>activityMonitor</extracomment>
        <source>System Monitor</source>
        <translation>시스템 모니터</translation>
    </message>
    <message>
        <extracomment>quit</extracomment>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
    <message>
        <extracomment>yourMac</extracomment>
        <source>Your computer</source>
        <translation>내 컴퓨터</translation>
    </message>
    <message>
        <extracomment>general</extracomment>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <extracomment>launchAtLogin</extracomment>
        <source>Launch at login</source>
        <translation>로그인 시 실행</translation>
    </message>
    <message>
        <extracomment>refreshEvery</extracomment>
        <source>Refresh every</source>
        <translation>새로 고침 간격</translation>
    </message>
    <message>
        <extracomment>sec1</extracomment>
        <source>1 second</source>
        <translation>1초</translation>
    </message>
    <message>
        <extracomment>sec2</extracomment>
        <source>2 seconds</source>
        <translation>2초</translation>
    </message>
    <message>
        <extracomment>sec5</extracomment>
        <source>5 seconds</source>
        <translation>5초</translation>
    </message>
    <message>
        <extracomment>temperature</extracomment>
        <source>Temperature</source>
        <translation>온도 단위</translation>
    </message>
    <message>
        <extracomment>celsius</extracomment>
        <source>Celsius (°C)</source>
        <translation>섭씨 (°C)</translation>
    </message>
    <message>
        <extracomment>fahrenheit</extracomment>
        <source>Fahrenheit (°F)</source>
        <translation>화씨 (°F)</translation>
    </message>
    <message>
        <extracomment>personality</extracomment>
        <source>Personality</source>
        <translation>성격</translation>
    </message>
    <message>
        <extracomment>showMood</extracomment>
        <source>Show mood in the top bar</source>
        <translation>상단 표시줄에 기분 표시</translation>
    </message>
    <message>
        <extracomment>petName</extracomment>
        <source>Pet name (optional)</source>
        <translation>애칭 (선택 사항)</translation>
    </message>
    <message>
        <extracomment>petPlaceholder</extracomment>
        <source>e.g. Pixel</source>
        <translation>예: 콩이</translation>
    </message>
    <message>
        <extracomment>petHint</extracomment>
        <source>Shown above the mood in the panel.</source>
        <translation>패널에서 기분 위에 표시됩니다.</translation>
    </message>
    <message>
        <extracomment>savageMode</extracomment>
        <source>Savage Mode</source>
        <translation>독설 모드</translation>
    </message>
    <message>
        <extracomment>savageModeHint</extracomment>
        <source>Click a module and it roasts you. Not for the sensitive.</source>
        <translation>모듈을 클릭하면 독설이 날아옵니다. 마음 여린 분은 주의하세요.</translation>
    </message>
    <message>
        <extracomment>modulesInPanel</extracomment>
        <source>Modules in panel</source>
        <translation>패널에 표시할 모듈</translation>
    </message>
    <message>
        <extracomment>language</extracomment>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <extracomment>autoLanguage</extracomment>
        <source>Auto (System)</source>
        <translation>자동 (시스템)</translation>
    </message>
    <message>
        <extracomment>about</extracomment>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <extracomment>versionFmt</extracomment>
        <source>Version %@</source>
        <translation>버전 %@</translation>
    </message>
    <message>
        <extracomment>tagline</extracomment>
        <source>Your computer, with feelings.</source>
        <translation>감정이 있는 내 컴퓨터.</translation>
    </message>
    <message>
        <extracomment>checkForUpdates</extracomment>
        <source>Check for Updates…</source>
        <translation>업데이트 확인…</translation>
    </message>
    <message>
        <extracomment>autoUpdate</extracomment>
        <source>Check for updates automatically</source>
        <translation>자동으로 업데이트 확인</translation>
    </message>
    <message>
        <extracomment>processes</extracomment>
        <source>Processes</source>
        <translation>프로세스</translation>
    </message>
    <message>
        <extracomment>topProcesses</extracomment>
        <source>Top Processes</source>
        <translation>상위 프로세스</translation>
    </message>
    <message>
        <extracomment>last60s</extracomment>
        <source>last 60s</source>
        <translation>최근 60초</translation>
    </message>
    <message>
        <extracomment>peakFmt</extracomment>
        <source>peak %@</source>
        <translation>최고 %@</translation>
    </message>
    <message>
        <extracomment>power</extracomment>
        <source>Power</source>
        <translation>전력</translation>
    </message>
    <message>
        <extracomment>totalLabel</extracomment>
        <source>Total</source>
        <translation>합계</translation>
    </message>
    <message>
        <extracomment>compBattery</extracomment>
        <source>Battery</source>
        <translation>배터리</translation>
    </message>
    <message>
        <extracomment>justWokeUp</extracomment>
        <source>just woke up</source>
        <translation>막 일어났어</translation>
    </message>
    <message>
        <extracomment>soHot</extracomment>
        <source>so hot!</source>
        <translation>너무 더워!</translation>
    </message>
    <message>
        <extracomment>runningLow</extracomment>
        <source>running low</source>
        <translation>방전 직전</translation>
    </message>
    <message>
        <extracomment>memoryFull</extracomment>
        <source>memory full</source>
        <translation>메모리 꽉 찼어</translation>
    </message>
    <message>
        <extracomment>swappingHard</extracomment>
        <source>swapping hard</source>
        <translation>스왑하느라 헉헉</translation>
    </message>
    <message>
        <extracomment>phew</extracomment>
        <source>phew…</source>
        <translation>휴…</translation>
    </message>
    <message>
        <extracomment>allCoresBlazing</extracomment>
        <source>all cores blazing</source>
        <translation>코어 전부 활활</translation>
    </message>
    <message>
        <extracomment>workingHard</extracomment>
        <source>working hard</source>
        <translation>열일 중</translation>
    </message>
    <message>
        <extracomment>gobblingData</extracomment>
        <source>gobbling data</source>
        <translation>데이터 냠냠</translation>
    </message>
    <message>
        <extracomment>dataFeast</extracomment>
        <source>data feast!</source>
        <translation>데이터 잔치!</translation>
    </message>
    <message>
        <extracomment>beamingUp</extracomment>
        <source>beaming up</source>
        <translation>쭉쭉 올리는 중</translation>
    </message>
    <message>
        <extracomment>warmingUp</extracomment>
        <source>warming up</source>
        <translation>슬슬 더워져</translation>
    </message>
    <message>
        <extracomment>refueling</extracomment>
        <source>refueling</source>
        <translation>에너지 충전 중</translation>
    </message>
    <message>
        <extracomment>cruising</extracomment>
        <source>cruising</source>
        <translation>순항 중</translation>
    </message>
    <message>
        <extracomment>almostPacked</extracomment>
        <source>almost packed</source>
        <translation>거의 만석</translation>
    </message>
    <message>
        <extracomment>sleepy</extracomment>
        <source>sleepy</source>
        <translation>졸려</translation>
    </message>
    <message>
        <extracomment>dozingOff</extracomment>
        <source>dozing off</source>
        <translation>꾸벅꾸벅</translation>
    </message>
    <message>
        <extracomment>allChill</extracomment>
        <source>all chill</source>
        <translation>여유만만</translation>
    </message>
    <message>
        <extracomment>peaceful</extracomment>
        <source>peaceful</source>
        <translation>평화로워</translation>
    </message>
    <message>
        <extracomment>wakingUp</extracomment>
        <source>waking up</source>
        <translation>일어나는 중</translation>
    </message>
    <message>
        <extracomment>stopPoking</extracomment>
        <source>hey, stop poking!</source>
        <translation>그만 찔러!</translation>
    </message>
    <message>
        <extracomment>glovesOff</extracomment>
        <source>gloves off!</source>
        <translation>봐주기 없다!</translation>
    </message>
    <message>
        <extracomment>beingNice</extracomment>
        <source>being nice again</source>
        <translation>다시 순한 맛</translation>
    </message>
    <message>
        <extracomment>reasonStartingUp</extracomment>
        <source>starting up</source>
        <translation>시작하는 중</translation>
    </message>
    <message>
        <extracomment>reasonFromHeat</extracomment>
        <source>from %@ heat</source>
        <translation>%@ 고온</translation>
    </message>
    <message>
        <extracomment>reasonFromBattery</extracomment>
        <source>from %@ battery</source>
        <translation>배터리 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromMemory</extracomment>
        <source>from %@ memory use</source>
        <translation>메모리 사용률 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromSwap</extracomment>
        <source>from %@ swap</source>
        <translation>스왑 %@</translation>
    </message>
    <message>
        <extracomment>reasonJustCooled</extracomment>
        <source>just cooled down</source>
        <translation>방금 식었음</translation>
    </message>
    <message>
        <extracomment>reasonFromCores</extracomment>
        <source>from %@ cores maxed</source>
        <translation>코어 %@ 풀가동</translation>
    </message>
    <message>
        <extracomment>reasonFromCPU</extracomment>
        <source>from %@ CPU load</source>
        <translation>CPU 부하 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromDown</extracomment>
        <source>from %@ down</source>
        <translation>다운로드 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromUp</extracomment>
        <source>from %@ up</source>
        <translation>업로드 %@</translation>
    </message>
    <message>
        <extracomment>reasonFromWarmth</extracomment>
        <source>from %@ warmth</source>
        <translation>%@ 미열</translation>
    </message>
    <message>
        <extracomment>reasonBarelyLoad</extracomment>
        <source>barely any load</source>
        <translation>부하 거의 없음</translation>
    </message>
    <message>
        <extracomment>reasonStartupDiskFull</extracomment>
        <source>system disk %@ full</source>
        <translation>시스템 디스크 %@ 사용 중</translation>
    </message>
    <message>
        <extracomment>reasonIdleNight</extracomment>
        <source>idle · late night</source>
        <translation>유휴 · 늦은 밤</translation>
    </message>
    <message>
        <extracomment>reasonIdleWhile</extracomment>
        <source>idle for a while</source>
        <translation>한동안 유휴 상태</translation>
    </message>
    <message>
        <extracomment>reasonLightLoad</extracomment>
        <source>light load</source>
        <translation>부하 적음</translation>
    </message>
    <message>
        <extracomment>reasonPokedTooMuch</extracomment>
        <source>poked way too much</source>
        <translation>너무 많이 찔림</translation>
    </message>
    <message>
        <extracomment>reasonSavageOn</extracomment>
        <source>savage mode on</source>
        <translation>독설 모드 켜짐</translation>
    </message>
    <message>
        <extracomment>reasonSavageOff</extracomment>
        <source>savage mode off</source>
        <translation>독설 모드 꺼짐</translation>
    </message>
    <message>
        <extracomment>holNewYear</extracomment>
        <source>happy new year!</source>
        <translation>새해 복 많이 받아!</translation>
    </message>
    <message>
        <extracomment>holValentines</extracomment>
        <source>happy valentine’s</source>
        <translation>해피 밸런타인데이</translation>
    </message>
    <message>
        <extracomment>holHalloween</extracomment>
        <source>happy halloween</source>
        <translation>해피 핼러윈</translation>
    </message>
    <message>
        <extracomment>holChristmas</extracomment>
        <source>merry christmas</source>
        <translation>메리 크리스마스</translation>
    </message>
    <message>
        <extracomment>holSpring</extracomment>
        <source>happy spring festival</source>
        <translation>즐거운 설날</translation>
    </message>
    <message>
        <extracomment>holDragonBoat</extracomment>
        <source>happy dragon boat</source>
        <translation>즐거운 단오</translation>
    </message>
    <message>
        <extracomment>holMidAutumn</extracomment>
        <source>happy mid-autumn</source>
        <translation>풍성한 한가위</translation>
    </message>
    <message>
        <extracomment>holCheer</extracomment>
        <source>let’s celebrate</source>
        <translation>다 같이 축하하자</translation>
    </message>
    <message>
        <extracomment>prefsTitle</extracomment>
        <source>Preferences</source>
        <translation>환경설정</translation>
    </message>
    <message>
        <extracomment>updatesFromDistro</extracomment>
        <source>Updates come from your distribution’s package manager.</source>
        <translation>업데이트는 배포판의 패키지 관리자를 통해 제공됩니다.</translation>
    </message>
    <message>
        <extracomment>updateTitle</extracomment>
        <source>Software Update</source>
        <translation>소프트웨어 업데이트</translation>
    </message>
    <message>
        <extracomment>checkingForUpdates</extracomment>
        <source>Checking for updates…</source>
        <translation>업데이트 확인 중…</translation>
    </message>
    <message>
        <extracomment>upToDate</extracomment>
        <source>You’re up to date!</source>
        <translation>최신 버전입니다!</translation>
    </message>
    <message>
        <extracomment>upToDateFmt</extracomment>
        <source>sulkbox %@ is the newest version available.</source>
        <translation>sulkbox %@ 버전이 최신입니다.</translation>
    </message>
    <message>
        <extracomment>updateAvailable</extracomment>
        <source>A new version of sulkbox is available!</source>
        <translation>sulkbox 새 버전이 나왔습니다!</translation>
    </message>
    <message>
        <extracomment>updateAvailableFmt</extracomment>
        <source>sulkbox %@ is ready to download.</source>
        <translation>sulkbox %@ 버전을 내려받을 수 있습니다.</translation>
    </message>
    <message>
        <extracomment>youHaveFmt</extracomment>
        <source>You have %@.</source>
        <translation>현재 버전은 %@입니다.</translation>
    </message>
    <message>
        <extracomment>releaseNotes</extracomment>
        <source>Release Notes</source>
        <translation>릴리스 노트</translation>
    </message>
    <message>
        <extracomment>openDownloadPage</extracomment>
        <source>Open Download Page</source>
        <translation>다운로드 페이지 열기</translation>
    </message>
    <message>
        <extracomment>notNow</extracomment>
        <source>Not Now</source>
        <translation>나중에</translation>
    </message>
    <message>
        <extracomment>ok</extracomment>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <extracomment>updateFailed</extracomment>
        <source>Couldn’t check for updates</source>
        <translation>업데이트를 확인하지 못했습니다</translation>
    </message>
    <message>
        <extracomment>updateErrorOffline</extracomment>
        <source>The update server could not be reached. Check your internet connection and try again.</source>
        <translation>업데이트 서버에 연결할 수 없습니다. 인터넷 연결을 확인한 뒤 다시 시도해 주세요.</translation>
    </message>
    <message>
        <extracomment>updateErrorTimeout</extracomment>
        <source>The update server took too long to answer. Try again later.</source>
        <translation>업데이트 서버가 응답하지 않습니다. 잠시 후 다시 시도해 주세요.</translation>
    </message>
    <message>
        <extracomment>updateErrorServerFmt</extracomment>
        <source>The update server answered with an error (%@). Try again later.</source>
        <translation>업데이트 서버에서 오류가 발생했습니다(%@). 잠시 후 다시 시도해 주세요.</translation>
    </message>
    <message>
        <extracomment>updateErrorBadFeed</extracomment>
        <source>The update server sent something that isn’t an update feed.</source>
        <translation>업데이트 서버가 보낸 내용이 올바른 업데이트 정보가 아닙니다.</translation>
    </message>
    <message>
        <extracomment>openPanel</extracomment>
        <source>Open panel</source>
        <translation>패널 열기</translation>
    </message>
    <message>
        <extracomment>openPreferences</extracomment>
        <source>Preferences…</source>
        <translation>환경설정…</translation>
    </message>
</context>
</TS>
