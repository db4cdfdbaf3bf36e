// The number and text readers every /proc and /sys reader is built on.

#include "FastReaderScratch.h"
#include "common/TestSupport.h"
#include "sampling/SysFs.h"

#include <QTest>

#include <limits>
#include <optional>

Q_DECLARE_METATYPE(std::optional<qint64>)
Q_DECLARE_METATYPE(std::optional<quint64>)

class SysFsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void signedNumbersOutsideTheirRangeAreRefused_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<std::optional<qint64>>("expected");
        constexpr qint64 max = std::numeric_limits<qint64>::max();
        constexpr qint64 min = std::numeric_limits<qint64>::min();
        QTest::newRow("largest") << QByteArray("9223372036854775807\n") << std::optional<qint64>(max);
        QTest::newRow("smallest") << QByteArray("-9223372036854775808\n") << std::optional<qint64>(min);
        QTest::newRow("one past the largest") << QByteArray("9223372036854775808") << std::optional<qint64>();
        QTest::newRow("one below the smallest") << QByteArray("-9223372036854775809") << std::optional<qint64>();
        // The kernel's "unknown" for an unsigned 64-bit attribute.
        QTest::newRow("all ones") << QByteArray("18446744073709551615\n") << std::optional<qint64>();
        QTest::newRow("twenty nines") << QByteArray("99999999999999999999") << std::optional<qint64>();
        QTest::newRow("leading zeros") << QByteArray("  000000000000000000000042 \n") << std::optional<qint64>(42);
        QTest::newRow("sign alone") << QByteArray("-\n") << std::optional<qint64>();
    }

    void signedNumbersOutsideTheirRangeAreRefused()
    {
        QFETCH(QByteArray, text);
        QFETCH(std::optional<qint64>, expected);
        ScratchTree tree;
        QVERIFY(tree.write(QStringLiteral("value"), text));
        QCOMPARE(SysFs::readLong(tree.path(QStringLiteral("value"))), expected);
    }

    void unsignedNumbersNeverWrap_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<std::optional<quint64>>("expected");
        QTest::newRow("largest") << QByteArray("18446744073709551615")
                                 << std::optional<quint64>(std::numeric_limits<quint64>::max());
        QTest::newRow("2^64") << QByteArray("18446744073709551616") << std::optional<quint64>();
        QTest::newRow("ten times too large") << QByteArray("184467440737095516150") << std::optional<quint64>();
        QTest::newRow("zero") << QByteArray(" 0") << std::optional<quint64>(0);
    }

    void unsignedNumbersNeverWrap()
    {
        QFETCH(QByteArray, text);
        QFETCH(std::optional<quint64>, expected);
        QCOMPARE(SysFs::parseUnsigned(text.constBegin(), text.constEnd()), expected);
    }
};

SULK_TEST(SysFsTest)
#include "SysFsTest.moc"
