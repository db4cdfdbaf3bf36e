// Where the panel window goes for the points tray hosts give.

#include "common/TestSupport.h"

#include "ui/tray/PanelWindow.h"

#include <QTest>

class PanelPlacementTest : public QObject {
    Q_OBJECT
private slots:
    // A 300 × 500 window.
    void placement_data()
    {
        QTest::addColumn<QPoint>("anchor");
        QTest::addColumn<QRect>("available");
        QTest::addColumn<QPoint>("topLeft");
        const QRect underTopBar(0, 32, 1920, 1048);
        // A click in a top bar: just under the bar, centred on the click.
        QTest::newRow("top bar") << QPoint(1000, 12) << underTopBar << QPoint(850, 36);
        // Near the right edge: kept on the screen with its margin.
        QTest::newRow("right edge") << QPoint(1900, 12) << underTopBar << QPoint(1616, 36);
        QTest::newRow("left edge") << QPoint(20, 12) << underTopBar << QPoint(4, 36);
        // A point already below the bar hangs the window below it.
        QTest::newRow("below bar") << QPoint(1000, 100) << underTopBar << QPoint(850, 106);
        // A bottom panel: the window stands above the click.
        const QRect aboveBottomPanel(0, 0, 1920, 1040);
        QTest::newRow("bottom panel") << QPoint(1000, 1060) << aboveBottomPanel << QPoint(850, 536);
        // A second screen to the right of the first.
        QTest::newRow("second screen") << QPoint(3800, 10) << QRect(1920, 28, 1920, 1052) << QPoint(3536, 32);
        // Taller than the free area: the top stays on screen.
        QTest::newRow("too tall") << QPoint(500, 10) << QRect(0, 32, 1024, 400) << QPoint(350, 36);
    }

    void placement()
    {
        QFETCH(QPoint, anchor);
        QFETCH(QRect, available);
        QFETCH(QPoint, topLeft);
        QCOMPARE(PanelPlacement::place(anchor, QSize(300, 500), available), topLeft);
    }

    void pointsThatCannotStandForTheItem()
    {
        const QList<QRect> screens = {QRect(0, 0, 1920, 1080), QRect(1920, 0, 1280, 1024)};
        QVERIFY(PanelPlacement::usable(QPoint(1700, 12), screens));
        QVERIFY(PanelPlacement::usable(QPoint(2000, 1000), screens));
        QVERIFY(PanelPlacement::usable(QPoint(10, 1060), screens)); // a bottom-left panel
        // Relative to the host's own widget (waybar), or no point at all.
        QVERIFY(!PanelPlacement::usable(QPoint(12, 9), screens));
        QVERIFY(!PanelPlacement::usable(QPoint(0, 0), screens));
        QVERIFY(!PanelPlacement::usable(QPoint(1925, 5), screens)); // the second screen's corner too
        // Off every screen.
        QVERIFY(!PanelPlacement::usable(QPoint(-5, 400), screens));
        QVERIFY(!PanelPlacement::usable(QPoint(3300, 10), screens));
        QVERIFY(!PanelPlacement::usable(QPoint(500, 500), {}));
    }
};

SULK_TEST(PanelPlacementTest)
#include "PanelPlacementTest.moc"
