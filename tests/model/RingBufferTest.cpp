#include "common/TestSupport.h"

#include "model/Records.h"
#include "model/RingBuffer.h"

#include <QTest>

class RingBufferTest : public QObject {
    Q_OBJECT
private slots:
    void fillsAndWraps()
    {
        RingBuffer buffer(60);
        QVERIFY(buffer.ordered().isEmpty());
        for (int i = 1; i <= 59; ++i)
            buffer.append(i);
        QCOMPARE(buffer.ordered().size(), 59);
        QVERIFY(!buffer.filled());
        buffer.append(60);
        QVERIFY(buffer.filled());
        QCOMPARE(buffer.ordered().first(), 1.0);
        QCOMPARE(buffer.ordered().last(), 60.0);

        buffer.append(61);
        const QList<double> ordered = buffer.ordered();
        QCOMPARE(ordered.size(), 60);
        for (int i = 0; i < 60; ++i)
            QCOMPARE(ordered[i], double(i + 2));

        RingBuffer one(1);
        one.append(3);
        QVERIFY(one.filled());
        one.append(7);
        QCOMPARE(one.ordered(), QList<double>{7});
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
};

class RecordsTest : public QObject {
    Q_OBJECT
private slots:
    void volumeUsedShare()
    {
        QCOMPARE((VolumeInfo{u"Data"_qs, u"/a"_qs, 0, 0}.usedShare()), 0.0);
        QCOMPARE((VolumeInfo{u"Data"_qs, u"/a"_qs, 100, 150}.usedShare()), 0.0);
        QCOMPARE((VolumeInfo{u"Data"_qs, u"/a"_qs, 200, 50}.usedShare()), 0.75);
        QCOMPARE((VolumeInfo{u"Data"_qs, u"/a"_qs, -5, 0}.usedShare()), 0.0);
    }

    void identities()
    {
        // Two volumes of one name are told apart by their mount point; a
        // component by its English text, whatever the language.
        QVERIFY((VolumeInfo{u"Data"_qs, u"/a"_qs, 1, 1}.identity()) != (VolumeInfo{u"Data"_qs, u"/b"_qs, 1, 1}.identity()));
        QCOMPARE((TempComponent{LocKey::compWiFi, 40}.identity()), u"Wi-Fi"_qs);
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
};

SULK_TEST(RingBufferTest)
SULK_TEST(RecordsTest)

#include "RingBufferTest.moc"
