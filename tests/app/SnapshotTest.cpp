#include "common/TestSupport.h"

#include "app/Snapshot.h"
#include "sampling/LinuxSamplers.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

using TestSupport::fixtureRoots;

// Captures `roots` and unpacks the archive; returns the unpacked folder.
QString captureAndUnpack(const SystemRoots &roots, QTemporaryDir &dir)
{
    const QString archive = dir.filePath(u"snap.tar.gz"_qs);
    if (Snapshot::capture(archive, roots) != 0)
        return {};
    const QString unpacked = dir.filePath(u"snap"_qs);
    QDir().mkpath(unpacked);
    if (QProcess::execute(u"tar"_qs, {u"-xzf"_qs, archive, u"-C"_qs, unpacked}) != 0)
        return {};
    return unpacked;
}

QStringList names(const QList<TempReading> &readings)
{
    QStringList out;
    for (const TempReading &r : readings)
        out.append(r.name);
    return out;
}

} // namespace

class SnapshotTest : public QObject {
    Q_OBJECT
private slots:
    void replaysTheSlowReadersOfAFixture_data()
    {
        QTest::addColumn<QString>("fixture");
        QTest::newRow("laptop") << u"laptop"_qs;
        QTest::newRow("amd-desktop") << u"amd-desktop"_qs;
        QTest::newRow("intel-mac") << u"intel-mac"_qs;
        QTest::newRow("vm") << u"vm"_qs;
    }

    // Hardware that this test machine lacks (hwmon chips behind links,
    // batteries, fans) survives the round trip.
    void replaysTheSlowReadersOfAFixture()
    {
        QFETCH(QString, fixture);
        QTemporaryDir dir;
        const SystemRoots original = fixtureRoots(fixture);
        const QString unpacked = captureAndUnpack(original, dir);
        QVERIFY(!unpacked.isEmpty());

        LinuxSamplers before(original);
        LinuxSamplers after(SystemRoots::underPrefix(unpacked));
        const SensorSample s0 = before.readSensors();
        const SensorSample s1 = after.readSensors();
        QCOMPARE(names(s1.temperatures), names(s0.temperatures));
        QCOMPARE(s1.fans.size(), s0.fans.size());
        QCOMPARE(s1.cpuTemp, s0.cpuTemp);
        QCOMPARE(before.readBattery(), after.readBattery());
        QCOMPARE(after.cpuBrand(), before.cpuBrand());
        QCOMPARE(after.readCPU().perCore.size(), before.readCPU().perCore.size());
        QCOMPARE(after.readMemory().total, before.readMemory().total);
        QCOMPARE(after.readGPU(), before.readGPU());
    }

    void keepsOutWhatIsPersonal()
    {
        QTemporaryDir dir;
        const QString unpacked = captureAndUnpack(fixtureRoots(u"laptop"_qs), dir);
        QVERIFY(!unpacked.isEmpty());
        // The fixture has mount tables and process folders; none travel.
        QVERIFY(!QFileInfo::exists(unpacked + u"/proc/self"_qs));
        const QStringList proc = QDir(unpacked + u"/proc"_qs).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        for (const QString &e : proc)
            QVERIFY2(!e.front().isDigit(), qPrintable(e));
        QVERIFY(!QFileInfo::exists(unpacked + u"/proc/sys/kernel/hostname"_qs));
    }
};

SULK_TEST(SnapshotTest)

#include "SnapshotTest.moc"
