#include "common/TestSupport.h"

#include "sampling/SMC.h"
#include "sampling/SensorMonitor.h"
#include "sampling/SysFs.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <filesystem>

namespace {

using TestSupport::fixtureRoots;
using TestSupport::writeFile;

QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

// An applesmc device alone under a temporary root.
struct SmcTree {
    QTemporaryDir tmp;
    QString dir = tmp.path() + QStringLiteral("/sys/devices/platform/applesmc.768/");
    SmcTree() { writeFile(dir + QStringLiteral("name"), "applesmc\n"); }
    void file(const char *name, const QByteArray &text) { writeFile(dir + QLatin1StringView(name), text); }
    // One key of a captured table: keys/<index>/{name,type,data}.
    void key(int index, const char *name, const char *type, const QByteArray &data)
    {
        const QString key = dir + QStringLiteral("keys/%1/").arg(index);
        writeFile(key + QStringLiteral("name"), QByteArray(name) + '\n');
        writeFile(key + QStringLiteral("type"), QByteArray(type) + '\n');
        writeFile(key + QStringLiteral("data"), data);
    }
    SystemRoots roots() const { return SystemRoots::underPrefix(tmp.path()); }
};

// Counts the files and folders the readers touch while it lives.
struct AccessCounter {
    static inline int count = 0;
    AccessCounter()
    {
        count = 0;
        SysFs::setRecorder([](const char *) { ++count; });
    }
    ~AccessCounter() { SysFs::setRecorder(nullptr); }
};

} // namespace

class SmcTest : public QObject {
    Q_OBJECT
private slots:
    void decodesEachType_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<double>("expected");

        QTest::newRow("sp78 47.5") << "sp78" << hex("2f80") << 47.5;
        QTest::newRow("sp78 negative") << "sp78" << hex("ff00") << -1.0;
        QTest::newRow("fpe2 drops the fraction bits") << "fpe2" << hex("1f43") << 2000.0;
        QTest::newRow("flt little-endian") << "flt " << hex("00002040") << 2.5;
        QTest::newRow("ui8 with blank") << "ui8 " << hex("03") << 3.0;
        QTest::newRow("ui8 three characters") << "ui8" << hex("03") << 3.0;
        QTest::newRow("ui32 big-endian") << "ui32" << hex("00000100") << 256.0;
        // Unknown types: a plausible float, else the first byte.
        QTest::newRow("unknown, float 2.5") << "{alv" << hex("00002040") << 2.5;
        QTest::newRow("unknown, float 3e7 too big") << "{alv" << hex("c0e1e44b") << 192.0;
        QTest::newRow("unknown, negative float") << "si16" << hex("000020c0") << 0.0;
        QTest::newRow("unknown, NaN") << "ch8*" << hex("0700c07f") << 7.0;
    }

    void decodesEachType()
    {
        QFETCH(QString, type);
        QFETCH(QByteArray, bytes);
        QFETCH(double, expected);
        const std::optional<double> v = SMC::decode(type, bytes);
        QVERIFY(v.has_value());
        QCOMPARE(*v, expected);
    }

    void nonFiniteOrShortValuesAreAbsent_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("flt NaN") << "flt " << hex("0000c07f");
        QTest::newRow("flt infinity") << "flt " << hex("0000807f");
        QTest::newRow("flt minus infinity") << "flt " << hex("000080ff");
        QTest::newRow("sp78 one byte") << "sp78" << hex("2f");
        QTest::newRow("flt three bytes") << "flt " << hex("000020");
        QTest::newRow("ui8 empty") << "ui8 " << QByteArray();
        QTest::newRow("unknown empty") << "{alv" << QByteArray();
    }

    void nonFiniteOrShortValuesAreAbsent()
    {
        QFETCH(QString, type);
        QFETCH(QByteArray, bytes);
        QCOMPARE(SMC::decode(type, bytes), std::optional<double>());
    }

    void nonFiniteKeysNeverReachTheSensors()
    {
        SmcTree tree;
        tree.key(0, "F0Ac", "flt ", hex("0000807f"));
        tree.key(1, "F0Mn", "flt ", hex("0000c07f"));
        tree.key(2, "F0Mx", "flt ", hex("00c0da45")); // 7000
        tree.key(3, "FNum", "ui8 ", hex("01"));
        tree.key(4, "TC0P", "flt ", hex("0000807f"));
        SMC smc(tree.roots());
        const SensorSample s = SensorMonitor(tree.roots(), smc).read();
        QCOMPARE(s.cpuTemp, 0.0);
        for (const FanInfo &f : s.fans) {
            QVERIFY(std::isfinite(f.current));
            QVERIFY(std::isfinite(f.min));
            QVERIFY(std::isfinite(f.max));
        }
    }

    void codesAndTypeNames()
    {
        QCOMPARE(SMC::fourCharCode(QStringLiteral("TC0P")), 0x54433050u);
        QCOMPARE(SMC::fourCharCode(QStringLiteral("ab")), 0x6162u);
        QCOMPARE(SMC::fourCharCode(QString()), 0u);
        QCOMPARE(SMC::fourCharCode(QStringLiteral("F0AcXYZ")), SMC::fourCharCode(QStringLiteral("F0Ac")));
        QCOMPARE(SMC::typeString(0x73703738), QStringLiteral("sp78"));
        QCOMPARE(SMC::typeString(0x80414243), QString());
        // A three-letter code decodes with a leading NUL and still names ui8.
        QCOMPARE(SMC::decode(SMC::typeString(SMC::fourCharCode(QStringLiteral("ui8"))), hex("09")), 9.0);
    }

    void readsTheIntelMacKeyTable()
    {
        SMC smc(fixtureRoots(QStringLiteral("intel-mac")));
        QVERIFY(smc.isOpen());
        QCOMPARE(smc.readValue(QStringLiteral("TC0P")), 47.5);
        QCOMPARE(smc.readValue(QStringLiteral("TG0P")), 52.25);
        QCOMPARE(smc.readValue(QStringLiteral("#KEY")), 12.0);
        QCOMPARE(smc.readValue(QStringLiteral("FNum")), 2.0);
        QCOMPARE(smc.readValue(QStringLiteral("PSTR")), 2.5);
        QCOMPARE(smc.readValue(QStringLiteral("ALV0")), 1.0); // unknown type, float out of range
        // Not in the table: the driver's temperature attributes answer.
        QCOMPARE(smc.readValue(QStringLiteral("TA0P")), 31.0);
        QVERIFY(!smc.readValue(QStringLiteral("ZZZZ")));
        QVERIFY(!smc.readValue(QString()));
    }

    void attributesAloneStillGiveFansAndTemperatures()
    {
        // What a user without root sees on the live machine: no key table.
        QTemporaryDir tmp;
        TestSupport::copyTree(TestSupport::fixture(QStringLiteral("intel-mac")), tmp.path());
        std::filesystem::remove_all((tmp.path() + QStringLiteral("/sys/devices/platform/applesmc.768/keys")).toStdString());

        SMC smc(SystemRoots::underPrefix(tmp.path()));
        QVERIFY(smc.isOpen());
        QCOMPARE(smc.readValue(QStringLiteral("TC0P")), 47.5);
        QCOMPARE(smc.readValue(QStringLiteral("FNum")), 2.0);
        QCOMPARE(smc.fans(), (QList<FanInfo>{{0, 2000, 1300, 6200}, {1, 2100, 1300, 6200}}));
        QVERIFY(!smc.readValue(QStringLiteral("PSTR")));
    }

    void closedWithoutTheDriver()
    {
        for (const char *name : {"vm", "laptop", "amd-desktop", "no-such-tree"}) {
            SMC smc(fixtureRoots(QString::fromLatin1(name)));
            QVERIFY2(!smc.isOpen(), name);
            QVERIFY(!smc.readValue(QStringLiteral("TC0P")));
            QVERIFY(smc.fans().isEmpty());
        }
    }

    void sparseTableIsIndexedOnce()
    {
        // A captured table with only its first and last index: a key that
        // is not there must not cost a probe of every index in between.
        SmcTree tree;
        tree.key(0, "#KEY", "ui32", hex("00000002"));
        tree.key(65535, "TC0P", "sp78", hex("2f80"));
        SMC smc(tree.roots());
        QVERIFY(smc.isOpen());

        AccessCounter accesses;
        QCOMPARE(smc.readValue(QStringLiteral("TC0P")), 47.5);
        QVERIFY(!smc.readValue(QStringLiteral("TG0P")));
        QVERIFY(!smc.readValue(QStringLiteral("ZZZZ")));
        QVERIFY(smc.fans().isEmpty());
        QVERIFY2(AccessCounter::count < 50, qPrintable(QString::number(AccessCounter::count)));
    }

    void fansAreThoseThatExist()
    {
        // One stray attribute with a huge index must neither invent fans
        // nor hide the real one.
        SmcTree files;
        files.file("fan1_input", "1800\n");
        files.file("fan1_min", "1200\n");
        files.file("fan1_max", "6000\n");
        files.file("fan999999_input", "0\n");
        QCOMPARE(SMC(files.roots()).fans(), (QList<FanInfo>{{0, 1800, 1200, 6000}}));

        // A table whose fan count runs past the fans it describes: only the
        // described ones, by their own index.
        SmcTree table;
        table.key(0, "F0Ac", "fpe2", hex("1f40")); // 2000
        table.key(1, "F2Ac", "fpe2", hex("2580")); // 2400
        table.key(2, "FNum", "ui8 ", hex("ff"));
        QCOMPARE(SMC(table.roots()).fans(), (QList<FanInfo>{{0, 2000, 0, 0}, {2, 2400, 0, 0}}));

        // The count still bounds them.
        table.key(2, "FNum", "ui8 ", hex("01"));
        QCOMPARE(SMC(table.roots()).fans().size(), 1);
    }

    void damagedTableGivesAbsentValues()
    {
        SmcTree tree;
        tree.file("key_count", "garbage\n");
        tree.file("keys/2/name", "TG0P\n"); // no type, no data
        tree.key(3, "ZZ", "\xff\xfe", hex("05"));
        SMC smc(tree.roots());
        QVERIFY(smc.isOpen());
        QVERIFY(!smc.readValue(QStringLiteral("TG0P")));
        QCOMPARE(smc.readValue(QStringLiteral("ZZ")), 5.0); // odd type name: first byte
        QVERIFY(smc.fans().isEmpty());
    }
};

SULK_TEST(SmcTest)
#include "SmcTest.moc"
