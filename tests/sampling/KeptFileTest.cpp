// SysFs::KeptFile: kernel files are read afresh through a kept descriptor,
// ordinary files are reopened, so a replaced fixture is never read stale.

#include "FastReaderScratch.h"
#include "common/TestSupport.h"
#include "sampling/SysFs.h"

#include <QTest>

class KeptFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void kernelFilesAreReadAfresh()
    {
        SysFs::KeptFile uptime(QStringLiteral("/proc/uptime"));
        QByteArray first, second;
        QVERIFY(uptime.read(first));
        QTest::qWait(30);
        QVERIFY(uptime.read(second));
        QVERIFY(!first.isEmpty());
        QVERIFY2(first != second, "the second read must not repeat the first one's contents");

        // Files the kernel hands out in several pieces arrive whole.
        SysFs::KeptFile maps(QStringLiteral("/proc/self/maps"));
        QByteArray text;
        for (int round = 0; round < 2; ++round) {
            QVERIFY(maps.read(text));
            QVERIFY(text.size() > 4096);
            QVERIFY(text.endsWith('\n'));
            QFile f(QStringLiteral("/proc/self/maps"));
            QVERIFY(f.open(QIODevice::ReadOnly));
            const QList<QByteArray> lines = f.readAll().trimmed().split('\n');
            QVERIFY(text.trimmed().endsWith(lines.last()));
        }
    }

    void ordinaryFilesAreReopened()
    {
        ScratchTree tree;
        SysFs::KeptFile file(tree.path("stat"));
        QByteArray buffer("left over");
        QVERIFY(!file.read(buffer));
        QVERIFY(buffer.isEmpty());

        QVERIFY(tree.write("stat", "one\n"));
        QVERIFY(file.read(buffer));
        QCOMPARE(buffer, QByteArray("one\n"));
        // Replaced by a new file, as a test rewriting a fixture does.
        QVERIFY(tree.remove("stat"));
        QVERIFY(tree.write("stat", "two\n"));
        QVERIFY(file.read(buffer));
        QCOMPARE(buffer, QByteArray("two\n"));
        QVERIFY(tree.remove("stat"));
        QVERIFY(!file.read(buffer));

        const QByteArray big(300000, 'x');
        QVERIFY(tree.write("big", big));
        SysFs::KeptFile bigFile(tree.path("big"));
        QVERIFY(bigFile.read(buffer));
        QCOMPARE(buffer, big);
        QVERIFY(bigFile.read(buffer, 1000));
        QCOMPARE(buffer.size(), 1000);

        // A folder in place of the file.
        QVERIFY(QDir().mkpath(tree.path("folder")));
        QVERIFY(!SysFs::KeptFile(tree.path("folder")).read(buffer));
        QVERIFY(!SysFs::KeptFile().read(buffer));
    }
};

SULK_TEST(KeptFileTest)
#include "KeptFileTest.moc"
