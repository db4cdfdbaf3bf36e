<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en_US">
<context>
    <name>LocKey</name>
    <message>
        <extracomment>memory</extracomment>
        <source>Memory</source>
        <translation>หน่วยความจำ</translation>
    </message>
    <message>
        <extracomment>network</extracomment>
        <source>Network</source>
        <translation>เครือข่าย</translation>
    </message>
    <message>
        <extracomment>disk</extracomment>
        <source>Disk</source>
        <translation>ดิสก์</translation>
    </message>
    <message>
        <extracomment>sensors</extracomment>
        <source>Sensors</source>
        <translation>เซ็นเซอร์</translation>
    </message>
    <message>
        <extracomment>userLabel</extracomment>
        <source>User</source>
        <translation>ผู้ใช้</translation>
    </message>
    <message>
        <extracomment>systemLabel</extracomment>
        <source>System</source>
        <translation>ระบบ</translation>
    </message>
    <message>
        <extracomment>coresCount</extracomment>
        <source>Cores (%@)</source>
        <translation>คอร์ (%@)</translation>
    </message>
    <message>
        <extracomment>used</extracomment>
        <source>Used</source>
        <translation>ใช้งาน</translation>
    </message>
    <message>
        <extracomment>wired</extracomment>
        <source>Wired</source>
        <translation>ตรึงไว้</translation>
    </message>
    <message>
        <extracomment>compr</extracomment>
        <source>Compr.</source>
        <translation>บีบอัด</translation>
    </message>
    <message>
        <extracomment>cached</extracomment>
        <source>Cached</source>
        <translation>แคช</translation>
    </message>
    <message>
        <extracomment>free</extracomment>
        <source>Free</source>
        <translation>ว่าง</translation>
    </message>
    <message>
        <extracomment>swap</extracomment>
        <source>Swap</source>
        <translation>สว็อป</translation>
    </message>
    <message>
        <extracomment>installedFmt</extracomment>
        <source>%@ installed</source>
        <translation>ทั้งหมด %@</translation>
    </message>
    <message>
        <extracomment>freeUp</extracomment>
        <source>Free up</source>
        <translation>เคลียร์แรม</translation>
    </message>
    <message>
        <extracomment>cleaning</extracomment>
        <source>cleaning…</source>
        <translation>กำลังเคลียร์…</translation>
    </message>
    <message>
        <extracomment>freedFmt</extracomment>
        <source>freed %@</source>
        <translation>เคลียร์ไป %@</translation>
    </message>
    <message>
        <extracomment>freshening</extracomment>
        <source>freshening up…</source>
        <translation>ขอสดชื่นแป๊บ…</translation>
    </message>
    <message>
        <extracomment>muchLighter</extracomment>
        <source>much lighter!</source>
        <translation>โล่งขึ้นเยอะ!</translation>
    </message>
    <message>
        <extracomment>download</extracomment>
        <source>Download</source>
        <translation>ดาวน์โหลด</translation>
    </message>
    <message>
        <extracomment>upload</extracomment>
        <source>Upload</source>
        <translation>อัปโหลด</translation>
    </message>
    <message>
        <extracomment>read</extracomment>
        <source>Read</source>
        <translation>อ่าน</translation>
    </message>
    <message>
        <extracomment>write</extracomment>
        <source>Write</source>
        <translation>เขียน</translation>
    </message>
    <message>
        <extracomment>inLabel</extracomment>
        <source>In</source>
        <translation>ขาเข้า</translation>
    </message>
    <message>
        <extracomment>outLabel</extracomment>
        <source>Out</source>
        <translation>ขาออก</translation>
    </message>
    <message>
        <extracomment>volumesFmt</extracomment>
        <source>%@ volumes</source>
        <translation>%@ ไดรฟ์</translation>
    </message>
    <message>
        <extracomment>freeFmt</extracomment>
        <source>%@ free</source>
        <translation>ว่าง %@</translation>
    </message>
    <message>
        <extracomment>ofFmt</extracomment>
        <source>%@ of %@</source>
        <translation>%@ / %@</translation>
    </message>
    <message>
        <extracomment>fans</extracomment>
        <source>Fans</source>
        <translation>พัดลม</translation>
    </message>
    <message>
        <extracomment>fanFmt</extracomment>
        <source>Fan %@</source>
        <translation>พัดลม %@</translation>
    </message>
    <message>
        <extracomment>temperatures</extracomment>
        <source>Temperatures</source>
        <translation>อุณหภูมิ</translation>
    </message>
    <message>
        <extracomment>health</extracomment>
        <source>Health</source>
        <translation>สุขภาพแบต</translation>
    </message>
    <message>
        <extracomment>cycles</extracomment>
        <source>Cycles</source>
        <translation>รอบชาร์จ</translation>
    </message>
    <message>
        <extracomment>rpmFmt</extracomment>
        <source>%@ rpm</source>
        <translation>%@ รอบ/นาที</translation>
    </message>
    <message>
        <extracomment>noSensors</extracomment>
        <source>No readable sensors on this computer.</source>
        <translation>ไม่พบเซ็นเซอร์ที่อ่านค่าได้ในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <extracomment>charging</extracomment>
        <source>Charging</source>
        <translation>กำลังชาร์จ</translation>
    </message>
    <message>
        <extracomment>chargingToFull</extracomment>
        <source>Charging · %@</source>
        <translation>กำลังชาร์จ · อีก %@ เต็ม</translation>
    </message>
    <message>
        <extracomment>pluggedIn</extracomment>
        <source>Plugged in</source>
        <translation>เสียบปลั๊กอยู่</translation>
    </message>
    <message>
        <extracomment>timeLeft</extracomment>
        <source>%@ left</source>
        <translation>เหลือ %@</translation>
    </message>
    <message>
        <extracomment>onBattery</extracomment>
        <source>On battery</source>
        <translation>ใช้แบตเตอรี่</translation>
    </message>
    <message>
        <extracomment>activityMonitor</extracomment>
        <source>System Monitor</source>
        <translation>ตัวตรวจสอบระบบ</translation>
    </message>
    <message>
        <extracomment>quit</extracomment>
        <source>Quit</source>
        <translation>ออก</translation>
    </message>
    <message>
        <extracomment>yourMac</extracomment>
        <source>Your computer</source>
        <translation>คอมของคุณ</translation>
    </message>
    <message>
        <extracomment>general</extracomment>
        <source>General</source>
        <translation>ทั่วไป</translation>
    </message>
    <message>
        <extracomment>launchAtLogin</extracomment>
        <source>Launch at login</source>
        <translation>เปิดเมื่อเข้าสู่ระบบ</translation>
    </message>
    <message>
        <extracomment>refreshEvery</extracomment>
        <source>Refresh every</source>
        <translation>รีเฟรชทุก</translation>
    </message>
    <message>
        <extracomment>sec1</extracomment>
        <source>1 second</source>
        <translation>1 วินาที</translation>
    </message>
    <message>
        <extracomment>sec2</extracomment>
        <source>2 seconds</source>
        <translation>2 วินาที</translation>
    </message>
    <message>
        <extracomment>sec5</extracomment>
        <source>5 seconds</source>
        <translation>5 วินาที</translation>
    </message>
    <message>
        <extracomment>temperature</extracomment>
        <source>Temperature</source>
        <translation>หน่วยอุณหภูมิ</translation>
    </message>
    <message>
        <extracomment>celsius</extracomment>
        <source>Celsius (°C)</source>
        <translation>เซลเซียส (°C)</translation>
    </message>
    <message>
        <extracomment>fahrenheit</extracomment>
        <source>Fahrenheit (°F)</source>
        <translation>ฟาเรนไฮต์ (°F)</translation>
    </message>
    <message>
        <extracomment>personality</extracomment>
        <source>Personality</source>
        <translation>บุคลิก</translation>
    </message>
    <message>
        <extracomment>showMood</extracomment>
        <source>Show mood in the top bar</source>
        <translation>แสดงอารมณ์ที่แถบด้านบน</translation>
    </message>
    <message>
        <extracomment>petName</extracomment>
        <source>Pet name (optional)</source>
        <translation>ชื่อเล่น (ไม่บังคับ)</translation>
    </message>
    <message>
        <extracomment>petPlaceholder</extracomment>
        <source>e.g. Pixel</source>
        <translation>เช่น น้องพิกเซล</translation>
    </message>
    <message>
        <extracomment>petHint</extracomment>
        <source>Shown above the mood in the panel.</source>
        <translation>แสดงไว้เหนืออารมณ์ในแผง</translation>
    </message>
    <message>
        <extracomment>savageMode</extracomment>
        <source>Savage Mode</source>
        <translation>โหมดปากร้าย</translation>
    </message>
    <message>
        <extracomment>savageModeHint</extracomment>
        <source>Click a module and it roasts you. Not for the sensitive.</source>
        <translation>คลิกโมดูลไหนก็โดนแซะ ไม่เหมาะกับคนใจบาง</translation>
    </message>
    <message>
        <extracomment>modulesInPanel</extracomment>
        <source>Modules in panel</source>
        <translation>โมดูลในแผง</translation>
    </message>
    <message>
        <extracomment>language</extracomment>
        <source>Language</source>
        <translation>ภาษา</translation>
    </message>
    <message>
        <extracomment>autoLanguage</extracomment>
        <source>Auto (System)</source>
        <translation>อัตโนมัติ (ระบบ)</translation>
    </message>
    <message>
        <extracomment>about</extracomment>
        <source>About</source>
        <translation>เกี่ยวกับ</translation>
    </message>
    <message>
        <extracomment>versionFmt</extracomment>
        <source>Version %@</source>
        <translation>เวอร์ชัน %@</translation>
    </message>
    <message>
        <extracomment>tagline</extracomment>
        <source>Your computer, with feelings.</source>
        <translation>คอมของคุณ ที่มีความรู้สึก</translation>
    </message>
    <message>
        <extracomment>checkForUpdates</extracomment>
        <source>Check for Updates…</source>
        <translation>ตรวจหาอัปเดต…</translation>
    </message>
    <message>
        <extracomment>autoUpdate</extracomment>
        <source>Check for updates automatically</source>
        <translation>ตรวจหาอัปเดตอัตโนมัติ</translation>
    </message>
    <message>
        <extracomment>processes</extracomment>
        <source>Processes</source>
        <translation>โปรเซส</translation>
    </message>
    <message>
        <extracomment>topProcesses</extracomment>
        <source>Top Processes</source>
        <translation>โปรเซสอันดับต้นๆ</translation>
    </message>
    <message>
        <extracomment>last60s</extracomment>
        <source>last 60s</source>
        <translation>60 วินาทีล่าสุด</translation>
    </message>
    <message>
        <extracomment>peakFmt</extracomment>
        <source>peak %@</source>
        <translation>สูงสุด %@</translation>
    </message>
    <message>
        <extracomment>power</extracomment>
        <source>Power</source>
        <translation>กำลังไฟ</translation>
    </message>
    <message>
        <extracomment>totalLabel</extracomment>
        <source>Total</source>
        <translation>รวม</translation>
    </message>
    <message>
        <extracomment>compBattery</extracomment>
        <source>Battery</source>
        <translation>แบตเตอรี่</translation>
    </message>
    <message>
        <extracomment>justWokeUp</extracomment>
        <source>just woke up</source>
        <translation>เพิ่งตื่น</translation>
    </message>
    <message>
        <extracomment>soHot</extracomment>
        <source>so hot!</source>
        <translation>ร้อนจัง!</translation>
    </message>
    <message>
        <extracomment>runningLow</extracomment>
        <source>running low</source>
        <translation>ใกล้หมดแรง</translation>
    </message>
    <message>
        <extracomment>memoryFull</extracomment>
        <source>memory full</source>
        <translation>ความจำเต็ม</translation>
    </message>
    <message>
        <extracomment>swappingHard</extracomment>
        <source>swapping hard</source>
        <translation>สว็อปหนักมาก</translation>
    </message>
    <message>
        <extracomment>phew</extracomment>
        <source>phew…</source>
        <translation>เฮ้อ…</translation>
    </message>
    <message>
        <extracomment>allCoresBlazing</extracomment>
        <source>all cores blazing</source>
        <translation>ทุกคอร์ลุกเป็นไฟ</translation>
    </message>
    <message>
        <extracomment>workingHard</extracomment>
        <source>working hard</source>
        <translation>ปั่นงานยิกๆ</translation>
    </message>
    <message>
        <extracomment>gobblingData</extracomment>
        <source>gobbling data</source>
        <translation>สวาปามข้อมูล</translation>
    </message>
    <message>
        <extracomment>dataFeast</extracomment>
        <source>data feast!</source>
        <translation>บุฟเฟต์ข้อมูล!</translation>
    </message>
    <message>
        <extracomment>beamingUp</extracomment>
        <source>beaming up</source>
        <translation>อัปโหลดรัวๆ</translation>
    </message>
    <message>
        <extracomment>warmingUp</extracomment>
        <source>warming up</source>
        <translation>เริ่มอุ่นแล้ว</translation>
    </message>
    <message>
        <extracomment>refueling</extracomment>
        <source>refueling</source>
        <translation>กำลังเติมพลัง</translation>
    </message>
    <message>
        <extracomment>cruising</extracomment>
        <source>cruising</source>
        <translation>ไปได้สวย</translation>
    </message>
    <message>
        <extracomment>almostPacked</extracomment>
        <source>almost packed</source>
        <translation>ใกล้เต็มแล้ว</translation>
    </message>
    <message>
        <extracomment>sleepy</extracomment>
        <source>sleepy</source>
        <translation>ง่วงจัง</translation>
    </message>
    <message>
        <extracomment>dozingOff</extracomment>
        <source>dozing off</source>
        <translation>สัปหงก</translation>
    </message>
    <message>
        <extracomment>allChill</extracomment>
        <source>all chill</source>
        <translation>ชิลสุดๆ</translation>
    </message>
    <message>
        <extracomment>peaceful</extracomment>
        <source>peaceful</source>
        <translation>สงบสุข</translation>
    </message>
    <message>
        <extracomment>wakingUp</extracomment>
        <source>waking up</source>
        <translation>กำลังตื่น</translation>
    </message>
    <message>
        <extracomment>stopPoking</extracomment>
        <source>hey, stop poking!</source>
        <translation>หยุดจิ้มได้แล้ว!</translation>
    </message>
    <message>
        <extracomment>glovesOff</extracomment>
        <source>gloves off!</source>
        <translation>ไม่ออมมือแล้วนะ!</translation>
    </message>
    <message>
        <extracomment>beingNice</extracomment>
        <source>being nice again</source>
        <translation>กลับมาใจดีแล้ว</translation>
    </message>
    <message>
        <extracomment>reasonStartingUp</extracomment>
        <source>starting up</source>
        <translation>กำลังเริ่มระบบ</translation>
    </message>
    <message>
        <extracomment>reasonFromHeat</extracomment>
        <source>from %@ heat</source>
        <translation>เพราะร้อน %@</translation>
    </message>
    <message>
        <extracomment>reasonFromBattery</extracomment>
        <source>from %@ battery</source>
        <translation>เพราะแบต %@</translation>
    </message>
    <message>
        <extracomment>reasonFromMemory</extracomment>
        <source>from %@ memory use</source>
        <translation>เพราะใช้หน่วยความจำ %@</translation>
    </message>
    <message>
        <extracomment>reasonFromSwap</extracomment>
        <source>from %@ swap</source>
        <translation>เพราะสว็อป %@</translation>
    </message>
    <message>
        <extracomment>reasonJustCooled</extracomment>
        <source>just cooled down</source>
        <translation>เพิ่งเย็นลง</translation>
    </message>
    <message>
        <extracomment>reasonFromCores</extracomment>
        <source>from %@ cores maxed</source>
        <translation>เพราะคอร์เต็มพิกัด %@</translation>
    </message>
    <message>
        <extracomment>reasonFromCPU</extracomment>
        <source>from %@ CPU load</source>
        <translation>เพราะโหลด CPU %@</translation>
    </message>
    <message>
        <extracomment>reasonFromDown</extracomment>
        <source>from %@ down</source>
        <translation>เพราะดาวน์โหลด %@</translation>
    </message>
    <message>
        <extracomment>reasonFromUp</extracomment>
        <source>from %@ up</source>
        <translation>เพราะอัปโหลด %@</translation>
    </message>
    <message>
        <extracomment>reasonFromWarmth</extracomment>
        <source>from %@ warmth</source>
        <translation>เพราะอุ่น %@</translation>
    </message>
    <message>
        <extracomment>reasonBarelyLoad</extracomment>
        <source>barely any load</source>
        <translation>แทบไม่มีโหลด</translation>
    </message>
    <message>
        <extracomment>reasonStartupDiskFull</extracomment>
        <source>system disk %@ full</source>
        <translation>ดิสก์ระบบเต็ม %@</translation>
    </message>
    <message>
        <extracomment>reasonIdleNight</extracomment>
        <source>idle · late night</source>
        <translation>ว่าง · ดึกแล้ว</translation>
    </message>
    <message>
        <extracomment>reasonIdleWhile</extracomment>
        <source>idle for a while</source>
        <translation>ว่างมาสักพัก</translation>
    </message>
    <message>
        <extracomment>reasonLightLoad</extracomment>
        <source>light load</source>
        <translation>โหลดเบาๆ</translation>
    </message>
    <message>
        <extracomment>reasonPokedTooMuch</extracomment>
        <source>poked way too much</source>
        <translation>โดนจิ้มถี่เกินไป</translation>
    </message>
    <message>
        <extracomment>reasonSavageOn</extracomment>
        <source>savage mode on</source>
        <translation>เปิดโหมดปากร้าย</translation>
    </message>
    <message>
        <extracomment>reasonSavageOff</extracomment>
        <source>savage mode off</source>
        <translation>ปิดโหมดปากร้าย</translation>
    </message>
    <message>
        <extracomment>holNewYear</extracomment>
        <source>happy new year!</source>
        <translation>สวัสดีปีใหม่!</translation>
    </message>
    <message>
        <extracomment>holValentines</extracomment>
        <source>happy valentine’s</source>
        <translation>สุขสันต์วันวาเลนไทน์</translation>
    </message>
    <message>
        <extracomment>holHalloween</extracomment>
        <source>happy halloween</source>
        <translation>สุขสันต์วันฮาโลวีน</translation>
    </message>
    <message>
        <extracomment>holChristmas</extracomment>
        <source>merry christmas</source>
        <translation>เมอร์รี่คริสต์มาส</translation>
    </message>
    <message>
        <extracomment>holSpring</extracomment>
        <source>happy spring festival</source>
        <translation>สุขสันต์วันตรุษจีน</translation>
    </message>
    <message>
        <extracomment>holDragonBoat</extracomment>
        <source>happy dragon boat</source>
        <translation>เทศกาลบ๊ะจ่าง</translation>
    </message>
    <message>
        <extracomment>holMidAutumn</extracomment>
        <source>happy mid-autumn</source>
        <translation>วันไหว้พระจันทร์</translation>
    </message>
    <message>
        <extracomment>holCheer</extracomment>
        <source>let’s celebrate</source>
        <translation>มาฉลองกัน</translation>
    </message>
    <message>
        <extracomment>prefsTitle</extracomment>
        <source>Preferences</source>
        <translation>การตั้งค่า</translation>
    </message>
    <message>
        <extracomment>updatesFromDistro</extracomment>
        <source>Updates come from your distribution’s package manager.</source>
        <translation>อัปเดตมาจากตัวจัดการแพ็กเกจของดิสทริบิวชันที่คุณใช้</translation>
    </message>
    <message>
        <extracomment>updateTitle</extracomment>
        <source>Software Update</source>
        <translation>อัปเดตซอฟต์แวร์</translation>
    </message>
    <message>
        <extracomment>checkingForUpdates</extracomment>
        <source>Checking for updates…</source>
        <translation>กำลังตรวจหาอัปเดต…</translation>
    </message>
    <message>
        <extracomment>upToDate</extracomment>
        <source>You’re up to date!</source>
        <translation>เป็นเวอร์ชันล่าสุดแล้ว!</translation>
    </message>
    <message>
        <extracomment>upToDateFmt</extracomment>
        <source>sulkbox %@ is the newest version available.</source>
        <translation>sulkbox %@ คือเวอร์ชันใหม่ล่าสุดแล้ว</translation>
    </message>
    <message>
        <extracomment>updateAvailable</extracomment>
        <source>A new version of sulkbox is available!</source>
        <translation>sulkbox มีเวอร์ชันใหม่แล้ว!</translation>
    </message>
    <message>
        <extracomment>updateAvailableFmt</extracomment>
        <source>sulkbox %@ is ready to download.</source>
        <translation>sulkbox %@ พร้อมให้ดาวน์โหลดแล้ว</translation>
    </message>
    <message>
        <extracomment>youHaveFmt</extracomment>
        <source>You have %@.</source>
        <translation>เวอร์ชันที่คุณใช้อยู่คือ %@</translation>
    </message>
    <message>
        <extracomment>releaseNotes</extracomment>
        <source>Release Notes</source>
        <translation>บันทึกประจำรุ่น</translation>
    </message>
    <message>
        <extracomment>openDownloadPage</extracomment>
        <source>Open Download Page</source>
        <translation>เปิดหน้าดาวน์โหลด</translation>
    </message>
    <message>
        <extracomment>notNow</extracomment>
        <source>Not Now</source>
        <translation>ไว้ทีหลัง</translation>
    </message>
    <message>
        <extracomment>ok</extracomment>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
    <message>
        <extracomment>updateFailed</extracomment>
        <source>Couldn’t check for updates</source>
        <translation>ตรวจหาอัปเดตไม่ได้</translation>
    </message>
    <message>
        <extracomment>updateErrorOffline</extracomment>
        <source>The update server could not be reached. Check your internet connection and try again.</source>
        <translation>ติดต่อเซิร์ฟเวอร์อัปเดตไม่ได้ ลองตรวจการเชื่อมต่ออินเทอร์เน็ตแล้วลองใหม่อีกครั้ง</translation>
    </message>
    <message>
        <extracomment>updateErrorTimeout</extracomment>
        <source>The update server took too long to answer. Try again later.</source>
        <translation>เซิร์ฟเวอร์อัปเดตตอบกลับช้าเกินไป ลองใหม่ภายหลัง</translation>
    </message>
    <message>
        <extracomment>updateErrorServerFmt</extracomment>
        <source>The update server answered with an error (%@). Try again later.</source>
        <translation>เซิร์ฟเวอร์อัปเดตแจ้งข้อผิดพลาด (%@) ลองใหม่ภายหลัง</translation>
    </message>
    <message>
        <extracomment>updateErrorBadFeed</extracomment>
        <source>The update server sent something that isn’t an update feed.</source>
        <translation>ข้อมูลที่ได้จากเซิร์ฟเวอร์อัปเดตไม่ใช่ข้อมูลอัปเดต</translation>
    </message>
    <message>
        <extracomment>openPanel</extracomment>
        <source>Open panel</source>
        <translation>เปิดแผง</translation>
    </message>
    <message>
        <extracomment>openPreferences</extracomment>
        <source>Preferences…</source>
        <translation>การตั้งค่า…</translation>
    </message>
</context>
</TS>
