#include "common/TestSupport.h"

#include "model/Records.h"
#include "model/RingBuffer.h"

#include <QTest>

class RingBufferTest : public QObject {
    Q_OBJECT
private slots:
    void freshBufferHandsOutNothing()
    {
        RingBuffer buffer(60);
        QVERIFY(buffer.ordered().isEmpty());
        QCOMPARE(buffer.values().size(), 60);
        QVERIFY(!buffer.filled());
    }

    void fillsAndWraps()
    {
        RingBuffer buffer(60);
        for (int i = 1; i <= 59; ++i)
            buffer.append(i);
        QCOMPARE(buffer.ordered().size(), 59);
        QVERIFY(!buffer.filled());
        buffer.append(60);
        QVERIFY(buffer.filled());
        QCOMPARE(buffer.head(), 0);
        QCOMPARE(buffer.ordered().first(), 1.0);
        QCOMPARE(buffer.ordered().last(), 60.0);

        buffer.append(61);
        const QList<double> ordered = buffer.ordered();
        QCOMPARE(ordered.size(), 60);
        for (int i = 0; i < 60; ++i)
            QCOMPARE(ordered[i], double(i + 2));
    }

    void capacityOneKeepsTheLastValue()
    {
        RingBuffer buffer(1);
        buffer.append(3);
        QVERIFY(buffer.filled());
        buffer.append(7);
        QCOMPARE(buffer.ordered(), QList<double>{7});
    }

    void newestTakesTheTail()
    {
        RingBuffer buffer(4);
        QVERIFY(buffer.newest(5).isEmpty());
        buffer.append(1);
        buffer.append(2);
        QCOMPARE(buffer.newest(5), (QList<double>{1, 2}));
        for (double v : {3.0, 4.0, 5.0, 6.0})
            buffer.append(v);
        QCOMPARE(buffer.newest(3), (QList<double>{4, 5, 6}));
        QCOMPARE(buffer.newest(9), buffer.ordered());
    }

    void copiesAreIndependent()
    {
        RingBuffer a(3);
        a.append(1);
        RingBuffer b = a;
        b.append(2);
        QCOMPARE(a.ordered().size(), 1);
        QCOMPARE(b.ordered().size(), 2);
    }
};

class RecordsTest : public QObject {
    Q_OBJECT
private slots:
    void emptyValues()
    {
        const CPUSample cpu;
        QCOMPARE(cpu.idle, 1.0);
        QCOMPARE(cpu.perCore.size(), 0);
        QCOMPARE(NetworkSample().primaryInterface, QStringLiteral("\u2014"));
        QCOMPARE(BatterySample().powerSource, QStringLiteral("\u2014"));
        QVERIFY(!PowerSample().ok);
        QVERIFY(!DiskSample().hasRate);
    }

    void volumeUsedShare()
    {
        QCOMPARE((VolumeInfo{QStringLiteral("Data"), QStringLiteral("/a"), 0, 0}.usedShare()), 0.0);
        QCOMPARE((VolumeInfo{QStringLiteral("Data"), QStringLiteral("/a"), 100, 150}.usedShare()), 0.0);
        QCOMPARE((VolumeInfo{QStringLiteral("Data"), QStringLiteral("/a"), 200, 50}.usedShare()), 0.75);
        QCOMPARE((VolumeInfo{QStringLiteral("Data"), QStringLiteral("/a"), -5, 0}.usedShare()), 0.0);
    }

    void volumeIdentities()
    {
        const VolumeInfo a{QStringLiteral("Data"), QStringLiteral("/a"), 1, 1};
        const VolumeInfo b{QStringLiteral("Data"), QStringLiteral("/b"), 1, 1};
        QCOMPARE(a.identity(), QStringLiteral("Data/a"));
        QVERIFY(a.identity() != b.identity());
    }

    void pressureIsCapped()
    {
        MemorySample m;
        m.total = 100;
        m.used = 150;
        m.deriveFreeAndPressure();
        QCOMPARE(m.pressure, 1.0);
        QCOMPARE(m.free, 0.0);
        m.total = 0;
        m.deriveFreeAndPressure();
        QCOMPARE(m.pressure, 0.0);
    }

    void componentIdentityIsTheEnglishText()
    {
        QCOMPARE((TempComponent{LocKey::compWiFi, 40}.identity()), QStringLiteral("Wi-Fi"));
    }
};

SULK_TEST(RingBufferTest)
SULK_TEST(RecordsTest)

#include "RingBufferTest.moc"
