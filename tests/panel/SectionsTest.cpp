// The module sections on given readings: the free-up action, the process
// bars, a volume's figures, the sensors' fallbacks, the battery block, and
// absurd readings that must still draw cleanly.

#include "PanelHarness.h"

#include "l10n/Fmt.h"
#include "ui/common/QmlFormat.h"
#include "ui/panel/MemoryCleanup.h"

#include <cmath>
#include <limits>

using PanelHarness::Panel;
using PanelHarness::shown;

namespace {

// A cleaner that only records its runs and finishes when told.
struct FakeCleaner {
    int runs = 0;
    std::function<void(double)> done;

    FakeCleaner()
    {
        MemoryCleanup::setRunner([this](QObject *, std::function<void(double)> completion) {
            ++runs;
            done = std::move(completion);
        });
    }
    ~FakeCleaner() { MemoryCleanup::setRunner({}); }
};

QList<QQuickItem *> visibleNamed(const Panel &p, const QString &name)
{
    QList<QQuickItem *> out = p.findAll(name);
    out.removeIf([](QQuickItem *i) { return !shown(i); });
    return out;
}

QQuickItem *child(QQuickItem *row, const QString &name)
{
    return Panel::collect(row, name).value(0);
}

QRgb colorOf(QQuickItem *item)
{
    return item->property("color").value<QColor>().rgb();
}

qreal fillWidth(QQuickItem *bar)
{
    QQuickItem *fill = child(bar, u"fill"_qs);
    return fill->isVisible() ? fill->width() : 0;
}

// Two texts on one row must not run into each other, and both stay inside
// the panel's column.
void verifyApart(QQuickItem *left, QQuickItem *right)
{
    const QRectF a = left->mapRectToScene(QRectF(QPointF(), left->size()));
    const QRectF b = right->mapRectToScene(QRectF(QPointF(), right->size()));
    QVERIFY2(a.right() <= b.left() + 0.5, qPrintable(left->property("text").toString()));
    QVERIFY(a.left() >= 14 - 0.5);
    QVERIFY(b.right() <= 300 - 14 + 0.5);
}

} // namespace

class SectionsTest : public PanelHarness::TestCase {
    Q_OBJECT

private slots:
    void freeUpRunsOnceAtATime()
    {
        FakeCleaner cleaner;
        Panel p;
        p.load();
        QQuickItem *button = p.find(u"freeUpButton"_qs);
        p.click(button);
        p.click(button);
        QCOMPARE(cleaner.runs, 1);
        QCOMPARE(p.text(p.find(u"freeUpText"_qs)), u"cleaning…"_qs);
        QVERIFY(!p.find(u"freeUpArea"_qs)->property("enabled").toBool());
        QCOMPARE(p.monitor->reaction(), Moods::freshening());

        const int readsBefore = p.samplers->memoryReads;
        cleaner.done(1.5e9);
        p.settle();
        QCOMPARE(p.samplers->memoryReads, readsBefore + 1);
        QCOMPARE(p.text(p.find(u"freeUpText"_qs)), u"Free up"_qs);
        QVERIFY(p.find(u"freeUpArea"_qs)->property("enabled").toBool());
        QTRY_VERIFY(shown(p.find(u"freedNote"_qs)));
        QCOMPARE(p.text(p.find(u"freedNote"_qs)), u"freed 1.5 GB"_qs);
        QCOMPARE(p.monitor->reaction(), Moods::muchLighter(1.5e9));

        // The note and the reaction go 3.5 s later.
        p.advance(MemoryCleanup::noteMs - 1);
        QVERIFY(p.monitor->hasReaction());
        p.advance(1);
        QVERIFY(!p.monitor->hasReaction());
        QTRY_VERIFY(!shown(p.find(u"freedNote"_qs)));

        // A second run whose reaction another party replaces: that one stays.
        p.click(button);
        QCOMPARE(cleaner.runs, 2);
        cleaner.done(0);
        p.monitor->setReaction(Moods::glovesOff());
        p.advance(MemoryCleanup::noteMs);
        QCOMPARE(p.monitor->reaction(), Moods::glovesOff());

        // A run that ends after the panel closed still tells the model.
        p.monitor->setReaction(std::nullopt);
        p.click(button);
        QCOMPARE(cleaner.runs, 3);
        p.close();
        cleaner.done(2e8);
        QCoreApplication::processEvents();
        QCOMPARE(p.monitor->reaction(), Moods::muchLighter(2e8));
        p.advance(MemoryCleanup::noteMs);
        QVERIFY(!p.monitor->hasReaction());
    }

    void processBarsScaledToTheBusiestAndVolumeFigures()
    {
        Panel p;
        p.samplers->processes = {ProcInfo(1, u"render"_qs, 250, 1), ProcInfo(2, u"compile"_qs, 100, 1),
                                 ProcInfo(3, u"browser"_qs, 20, 1)};
        for (int i = 4; i <= 10; ++i)
            p.samplers->processes << ProcInfo(i, u"idle-%1"_qs.arg(i), 1, 0);
        p.samplers->disk.volumes = {VolumeInfo{u"data"_qs, u"/data"_qs, 500e9, 125e9},
                                    VolumeInfo{u"empty"_qs, u"/empty"_qs, 0, 0}};
        p.load();
        QTRY_COMPARE(visibleNamed(p, u"processRow"_qs).size(), 6);
        const QList<QQuickItem *> rows = visibleNamed(p, u"processRow"_qs);
        QCOMPARE(p.text(child(rows[0], u"name"_qs)), u"render"_qs);
        QCOMPARE(p.text(child(rows[0], u"cpu"_qs)), u"250.0%"_qs);
        const qreal w = child(rows[0], u"bar"_qs)->width();
        QCOMPARE(fillWidth(child(rows[0], u"bar"_qs)), w);
        QVERIFY(std::abs(fillWidth(child(rows[1], u"bar"_qs)) - 0.4 * w) < 0.01);
        QVERIFY(std::abs(fillWidth(child(rows[2], u"bar"_qs)) - 0.08 * w) < 0.01);
        // Colours follow the load itself, not the bar's length.
        QCOMPARE(colorOf(child(rows[0], u"cpu"_qs)), loadColor(2.5).rgb());
        QCOMPARE(colorOf(child(rows[1], u"cpu"_qs)), loadColor(1.0).rgb());
        QCOMPARE(colorOf(child(rows[2], u"cpu"_qs)), loadColor(0.2).rgb());

        // The 500 GB volume at 75 %, and one of no capacity.
        const QList<QQuickItem *> volumes = visibleNamed(p, u"volume"_qs);
        QCOMPARE(volumes.size(), 2);
        QQuickItem *bar = child(volumes[0], u"bar"_qs);
        QCOMPARE(p.text(child(volumes[0], u"percent"_qs)), u"75%"_qs);
        QVERIFY(std::abs(fillWidth(bar) - 0.75 * bar->width()) < 0.01);
        QCOMPARE(colorOf(child(bar, u"fill"_qs)), loadColor(0.75).rgb());
        QCOMPARE(p.text(child(volumes[0], u"of"_qs)), Fmt::bytes(375e9, 1) + u" of "_qs + Fmt::bytes(500e9, 1));
        QCOMPARE(p.text(child(volumes[0], u"free"_qs)), Fmt::bytes(125e9, 1) + u" free"_qs);
        // No capacity: 0 % and an empty bar.
        QCOMPARE(p.text(child(volumes[1], u"percent"_qs)), u"0%"_qs);
        QCOMPARE(fillWidth(child(volumes[1], u"bar"_qs)), 0.0);
    }

    // Each kind of reading alone keeps "No readable sensors" away.
    void sensorsFallBackOnlyWhenNothingIsReadable_data()
    {
        QTest::addColumn<QString>("only");
        for (const char *only : {"", "fans", "cpu temperature", "power", "gpu temperature", "components"})
            QTest::newRow(*only ? only : "nothing") << QString::fromLatin1(only);
    }

    void sensorsFallBackOnlyWhenNothingIsReadable()
    {
        QFETCH(QString, only);
        Panel p;
        p.samplers->sensors = {};
        const int fans = only == u"fans" ? 2 : 0;
        const int components = only == u"components" ? 2 : 0;
        p.samplers->sensors.cpuTemp = only == u"cpu temperature" ? 48 : 0;
        p.samplers->sensors.gpuTemp = only == u"gpu temperature" ? 51 : 0;
        for (int i = 0; i < fans; ++i)
            p.samplers->sensors.fans << FanInfo{i, 1200.9 + i, 0, 0};
        for (int i = 0; i < components; ++i)
            p.samplers->sensors.components << TempComponent{i ? LocKey::compWiFi : LocKey::compSSD, 45};
        if (only == u"power")
            p.samplers->power = QmPowerReading{4, 1, 7, 1};
        p.load();
        p.advance(1000); // the power card fills a second after opening
        QCOMPARE(shown(p.find(u"noSensors"_qs)), only.isEmpty());
        QCOMPARE(visibleNamed(p, u"fan"_qs).size(), qsizetype(fans));
        QCOMPARE(visibleNamed(p, u"component"_qs).size(), qsizetype(components));
        QCOMPARE(shown(p.find(u"powerCards"_qs)), only == u"power");
        if (fans) {
            // Numbered from 1; the speed cut to whole revolutions.
            QQuickItem *first = visibleNamed(p, u"fan"_qs).first();
            QCOMPARE(first->property("label").toString(), u"Fan 1"_qs);
            QCOMPARE(first->property("value").toString(), u"1200 rpm"_qs);
        }
    }

    void batteryColoursAndStatus()
    {
        Panel p;
        p.samplers->battery.present = true;
        p.samplers->battery.charge = 0.15;
        p.samplers->battery.timeToEmpty = 75;
        p.load();
        QQuickItem *battery = p.find(u"battery"_qs);
        QVERIFY(shown(battery));
        QQuickItem *bar = child(battery, u"chargeBar"_qs);
        QCOMPARE(colorOf(child(bar, u"fill"_qs)), loadColor(0.85).rgb());
        QCOMPARE(colorOf(child(battery, u"charge"_qs)), loadColor(0.85).rgb());
        QCOMPARE(p.text(child(battery, u"status"_qs)), Fmt::minutes(75) + u" left"_qs);

        // Plugged in: a green bar, the figure keeps its load colour.
        p.samplers->battery.isPluggedIn = true;
        p.monitor->sampleSlow();
        p.settle();
        QVERIFY(colorOf(child(bar, u"fill"_qs)) != loadColor(0.85).rgb());
        QCOMPARE(colorOf(child(battery, u"charge"_qs)), loadColor(0.85).rgb());
        QCOMPARE(p.text(child(battery, u"status"_qs)), u"Plugged in"_qs);
        p.samplers->battery.isCharging = true;
        p.samplers->battery.timeToFull = 40;
        p.monitor->sampleSlow();
        p.settle();
        QCOMPARE(p.text(child(battery, u"status"_qs)), u"Charging · "_qs + Fmt::minutes(40));
    }

    void optionalRowsStepAside()
    {
        Panel p;
        p.samplers->cpu.perCore = {};
        p.samplers->memory.swapTotal = 0;
        p.samplers->sensors.gpuTemp = 0;
        p.samplers->gpu = GPUSample{true, 0.62, 0};
        p.load();
        QVERIFY(!shown(p.find(u"coresLabel"_qs)));
        QVERIFY(!shown(p.find(u"coreBars"_qs)));
        QVERIFY(shown(p.find(u"cpuChart"_qs)));
        // Without swap the right half is empty and Free keeps the left.
        QQuickItem *row = p.find(u"freeSwapRow"_qs);
        const QList<QQuickItem *> halves = row->childItems();
        QCOMPARE(halves.size(), 2);
        QVERIFY(shown(halves[0]) && halves[0]->x() == 0);
        QVERIFY(!shown(halves[1]));
        // A GPU without a temperature: its usage alone.
        QQuickItem *card = p.find(u"gpuCard"_qs);
        QVERIFY(shown(card));
        QCOMPARE(p.text(child(card, u"value"_qs)), u"62%"_qs);
        QVERIFY(!shown(child(card, u"temp"_qs)));
    }

    // Absurd readings draw without warnings, overlaps or a crash.
    void absurdReadings()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        Panel p;
        p.samplers->cpu = CPUSample{nan, -0.5, 7, nan, {nan, -1, 5, 0.5}};
        p.samplers->memory = MemorySample{-16e9, nan, 1e300, -1, nan, -5, 9, nan, -2};
        p.samplers->network.downRate = -1e9;
        p.samplers->network.upRate = nan;
        p.samplers->network.totalIn = 1e300;
        p.samplers->network.primaryInterface = QString(u"x"_qs).repeated(300);
        p.samplers->processes = {ProcInfo(1, QString(u"a"_qs).repeated(500), 10000, 1), ProcInfo(2, u"neg"_qs, -40, 0),
                                 ProcInfo(3, u"nan"_qs, nan, nan), ProcInfo(4, QString(), 5, 1)};
        p.samplers->disk.volumes.clear();
        for (int i = 0; i < 200; ++i)
            p.samplers->disk.volumes << VolumeInfo{QString(u"volume-with-a-long-name-%1"_qs).arg(i).repeated(3),
                                                   u"/v/%1"_qs.arg(i), i % 3 == 0 ? 0.0 : 1e12 * i,
                                                   i % 5 == 0 ? -1e12 : 3e11};
        p.samplers->disk.volumes << VolumeInfo{u"nan"_qs, u"/nan"_qs, nan, nan};
        p.samplers->sensors.cpuTemp = -40;
        p.samplers->sensors.fans.clear();
        p.samplers->sensors.gpuTemp = 1e6;
        for (int i = 0; i < 64; ++i)
            p.samplers->sensors.fans << FanInfo{i, i % 2 ? -300.0 : 1e12, 0, 0};
        p.samplers->sensors.components = {TempComponent{LocKey::compSSD, nan}, TempComponent{LocKey::compWiFi, -273}};
        p.samplers->gpu = GPUSample{true, 55, -3};
        p.samplers->power = QmPowerReading{-5, nan, 1e9, 1};
        p.samplers->battery = BatterySample{true, 3.5, true, true, -10, 1 << 30, -5, nan};
        p.load();
        for (int i = 0; i < 5; ++i) {
            p.monitor->tick();
            p.advance(1000);
        }
        QTRY_COMPARE(visibleNamed(p, u"processRow"_qs).size(), 4);
        for (QQuickItem *row : visibleNamed(p, u"processRow"_qs))
            verifyApart(child(row, u"name"_qs), child(row, u"cpu"_qs));
        QCOMPARE(fillWidth(child(visibleNamed(p, u"processRow"_qs).first(), u"bar"_qs)),
                 child(visibleNamed(p, u"processRow"_qs).first(), u"bar"_qs)->width());
        const QList<QQuickItem *> volumes = visibleNamed(p, u"volume"_qs);
        QCOMPARE(volumes.size(), 201);
        for (QQuickItem *volume : volumes) {
            verifyApart(child(volume, u"name"_qs), child(volume, u"free"_qs));
            verifyApart(child(volume, u"of"_qs), child(volume, u"percent"_qs));
        }
        QCOMPARE(visibleNamed(p, u"fan"_qs).size(), 64);

        // Every part of the long column still paints, to the very end.
        auto *scroller = p.find(u"scroller"_qs);
        scroller->setProperty("contentY", scroller->property("contentHeight").toReal() - scroller->height());
        p.settle();
        p.find(u"cpuChart"_qs)->setProperty("expanded", true);
        QTest::qWait(300);
        p.settle();
    }
};

SULK_TEST(SectionsTest)
#include "SectionsTest.moc"
