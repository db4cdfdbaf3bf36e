// The chart items' geometry, the icon set, and the expandable chart in the
// panel.

#include "PanelHarness.h"

#include "ui/panel/BarsView.h"
#include "ui/panel/Icon.h"
#include "ui/panel/Sparkline.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>
#include <limits>

using PanelHarness::Panel;
using PanelHarness::shown;

class ChartsTest : public PanelHarness::TestCase {
    Q_OBJECT

private slots:
    void sparklinePointsAndBars()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        // One value: a flat line across at its height.
        QCOMPARE(Sparkline::points({0.5}, 1, 100, 40), QList<QPointF>({{0, 20}, {100, 20}}));
        // Zeros without a maximum: the bound floors at 0.0001, the line lies
        // on the bottom edge.
        QCOMPARE(Sparkline::points({0, 0}, 0, 100, 40), QList<QPointF>({{0, 40}, {100, 40}}));
        QVERIFY(Sparkline::points({}, 1, 100, 40).isEmpty());
        // Scaled to its own peak; over the maximum stays on the top edge;
        // negative and not-a-number readings on the bottom.
        QCOMPARE(Sparkline::points({1, 2, 4}, 0, 100, 40), QList<QPointF>({{0, 30}, {50, 20}, {100, 0}}));
        QCOMPARE(Sparkline::points({3, -1, nan}, 1, 100, 40), QList<QPointF>({{0, 0}, {50, 40}, {100, 40}}));
        QCOMPARE(Sparkline::upperBound({nan, 2}, 0), 2.0);
        QCOMPARE(Sparkline::upperBound({}, 0), 1.0);

        // Core bars never vanish.
        const QList<QRectF> zeros = BarsView::bars(QList<qreal>(8, 0.0), 100, 30, 2);
        QCOMPARE(zeros.size(), 8);
        for (const QRectF &bar : zeros) {
            QCOMPARE(bar.height(), BarsView::minBarHeight);
            QCOMPARE(bar.bottom(), 30.0);
        }
        QCOMPARE(zeros.first().left(), 0.0);
        QVERIFY(std::abs(zeros.last().right() - 100) < 1e-9);
        QVERIFY(std::abs(zeros[1].left() - zeros[0].right() - 2) < 1e-9);

        const QList<QRectF> loads = BarsView::bars({1.7, 0.5, -3, std::nan("")}, 100, 30, 2);
        QCOMPARE(loads[0].height(), 30.0);
        QCOMPARE(loads[1].height(), 15.0);
        QCOMPARE(loads[2].height(), BarsView::minBarHeight);
        QCOMPARE(loads[3].height(), BarsView::minBarHeight);

        // More bars than points of width: the gaps give way, nothing
        // overlaps or leaves the row.
        const QList<QRectF> many = BarsView::bars(QList<qreal>(256, 0.5), 272, 30, 2);
        QCOMPARE(many.size(), 256);
        for (qsizetype i = 1; i < many.size(); ++i)
            QVERIFY(many[i].left() >= many[i - 1].right() - 1e-9);
        QVERIFY(many.last().right() <= 272 + 1e-9);
        QVERIFY(many.first().width() > 0);
    }

    // Every icon draws, in the one colour asked for.
    void iconsDrawInTheirColour()
    {
        const QStringList files = QDir(u":/sulkbox/icons"_qs).entryList({u"*.svg"_qs}, QDir::Files);
        QVERIFY(files.size() >= 15);
        const QColor tint(200, 30, 90);
        for (const QString &file : files) {
            const QString name = QFileInfo(file).completeBaseName();
            if (name == u"sulkbox")
                continue;
            const QImage image = Icon::render(name, 32, tint);
            QVERIFY2(!image.isNull(), qPrintable(name));
            int inked = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QColor c = QColor::fromRgba(image.pixel(x, y));
                    if (c.alpha() == 255) {
                        ++inked;
                        QVERIFY2(c.rgb() == tint.rgb(), qPrintable(name));
                    }
                }
            }
            QVERIFY2(inked > 20, qPrintable(name));
        }
        QVERIFY(Icon::render(u"no-such-icon"_qs, 32, tint).isNull());
    }

    void chartExpandsOnClick()
    {
        Panel p;
        p.samplers->network.downRate = 0;
        p.load();
        QQuickItem *chart = p.find(u"cpuChart"_qs);
        QQuickItem *plot = p.find(u"plot"_qs);
        QCOMPARE(plot->height(), 44.0);
        p.click(plot, {3, plot->height() - 3});
        QVERIFY(chart->property("expanded").toBool());
        QTRY_VERIFY(std::abs(plot->height() - 108) < 0.5);
        QTRY_COMPARE(chart->property("progress").toReal(), 1.0);
        QQuickItem *peak = Panel::collect(chart, u"peak"_qs).value(0);
        QVERIFY(shown(peak));
        QCOMPARE(p.text(peak), u"peak 23%"_qs);
        p.click(plot, {3, 3});
        QTRY_COMPARE(plot->height(), 44.0);
        QTRY_VERIFY(!shown(peak));

        // A rate chart of an empty history: an empty plot, and a peak of nothing.
        QQuickItem *rate = p.findAll(u"rateChart"_qs).value(0);
        QVERIFY(rate);
        rate->setProperty("values", QVariant::fromValue(QList<qreal>{}));
        rate->setProperty("expanded", true);
        QQuickItem *nothing = Panel::collect(rate, u"peak"_qs).value(0);
        QTRY_VERIFY(shown(nothing));
        QCOMPARE(p.text(nothing), u"peak 0.0 B/s"_qs);
    }
};

SULK_TEST(ChartsTest)
#include "ChartsTest.moc"
