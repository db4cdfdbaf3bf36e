// The panel's frame: which modules show and in what order, the dividers,
// the footer's actions, the language, the desktop's palette, and a
// closed panel that does no work.

#include "PanelHarness.h"

#include <QPalette>
#include <QWheelEvent>
#include <QSignalSpy>

#include <algorithm>

using PanelHarness::Panel;
using PanelHarness::shown;

namespace {

// The visible children of the module column, top to bottom, as module
// names and "divider".
QStringList columnOrder(const Panel &p)
{
    QQuickItem *first = p.find(u"cpuModule"_qs);
    QList<QQuickItem *> children = first->parentItem()->childItems();
    children.removeIf([](QQuickItem *i) { return !i->isVisible(); });
    std::sort(children.begin(), children.end(), [](QQuickItem *a, QQuickItem *b) { return a->y() < b->y(); });
    QStringList out;
    for (QQuickItem *child : children)
        out << (child->objectName().isEmpty() ? u"divider"_qs : child->objectName());
    return out;
}

// Turns on the modules whose "show…" setting is named, and off the rest.
void showOnly(const QStringList &settings)
{
    for (const char *key : {"showCPU", "showMemory", "showProcesses", "showNetwork", "showDisk", "showSensors"})
        AppSettings::shared().setProperty(key, settings.contains(QLatin1String(key)));
}

// Every text the panel shows right now.
QStringList visibleTexts(QQuickItem *root)
{
    QStringList out;
    for (QQuickItem *item : PanelHarness::itemsOfClass(root, "QQuickText")) {
        if (shown(item) && !item->property("text").toString().isEmpty())
            out << item->property("text").toString();
    }
    return out;
}

} // namespace

class PanelLayoutTest : public PanelHarness::TestCase {
    Q_OBJECT

private slots:
    void cleanup()
    {
        QGuiApplication::setPalette(QPalette());
        TestCase::cleanup();
    }

    void modulesInOrderWithDividersBetweenAllMayBeOff()
    {
        Panel p;
        p.load();
        QCOMPARE(p.root->width(), 300.0);
        QCOMPARE(columnOrder(p),
                 QStringList({u"cpuModule"_qs, u"divider"_qs, u"memoryModule"_qs, u"divider"_qs, u"processesModule"_qs,
                              u"divider"_qs, u"networkModule"_qs, u"divider"_qs, u"diskModule"_qs, u"divider"_qs,
                              u"sensorsModule"_qs}));

        // Only disk and sensors: no divider above the first of them.
        showOnly({u"showDisk"_qs, u"showSensors"_qs});
        p.settle();
        QCOMPARE(columnOrder(p), QStringList({u"diskModule"_qs, u"divider"_qs, u"sensorsModule"_qs}));
        QCOMPARE(p.find(u"diskModule"_qs)->y(), 12.0);
        QVERIFY(!p.find(u"cpuModule"_qs)->property("item").value<QObject *>());

        // Switched while open: the new first module loses its divider.
        AppSettings::shared().setShowDisk(false);
        p.settle();
        QCOMPARE(columnOrder(p), QStringList({u"sensorsModule"_qs}));
        AppSettings::shared().setShowProcesses(true);
        p.settle();
        QCOMPARE(columnOrder(p), QStringList({u"processesModule"_qs, u"divider"_qs, u"sensorsModule"_qs}));

        // All six off: the banner and the footer stay.
        showOnly({});
        p.settle();
        QVERIFY(columnOrder(p).isEmpty());
        auto *scroller = p.find(u"scroller"_qs);
        // Only the column's padding is left to scroll.
        QCOMPARE(scroller->property("contentHeight").toReal(), 24.0);
        QCOMPARE(scroller->height(), 500.0);
        QVERIFY(shown(p.find(u"face"_qs)));
        QVERIFY(shown(p.find(u"quitButton"_qs)));
    }

    // Escape is the desktop test's: the real panel window takes the key
    // before the panel sees it.
    void footerButtons()
    {
        Panel p;
        p.load();
        QSignalSpy monitorSpy(&p.actions, &DesktopActions::systemMonitorRequested);
        QSignalSpy prefsSpy(&p.actions, &DesktopActions::preferencesRequested);
        QSignalSpy quitSpy(&p.actions, &DesktopActions::quitRequested);

        p.click(p.find(u"systemMonitorButton"_qs));
        p.click(p.find(u"preferencesButton"_qs));
        QCOMPARE(monitorSpy.count(), 1);
        QCOMPARE(prefsSpy.count(), 1);
        QCOMPARE(quitSpy.count(), 0);
        p.click(p.find(u"quitButton"_qs));
        QCOMPARE(quitSpy.count(), 1);
    }

    void headerTapRoastsWithPointingHand()
    {
        Panel p;
        p.load();
        QQuickItem *header = p.find(u"memoryHeader"_qs);
        QVERIFY(header);
        QVERIFY(!p.monitor->hasRoastEvent());

        // Empty space inside the header, left of the figure, counts.
        const QPointF blank(header->width() * 0.6, header->height() - 2);
        p.hover(header, blank);
        QVERIFY(QGuiApplication::overrideCursor());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::PointingHandCursor);
        p.click(header, blank);
        QVERIFY(p.monitor->hasRoastEvent());
        QCOMPARE(p.monitor->roastEvent()->topic, RoastTopic::memory);

        // Leaving pops the one push.
        p.hover(p.find(u"face"_qs), {5, 5});
        QVERIFY(!QGuiApplication::overrideCursor());

        // Closing with the pointer still on a header restores the cursor.
        p.hover(p.find(u"cpuHeader"_qs), {10, 5});
        QVERIFY(QGuiApplication::overrideCursor());
        p.close();
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void scrollsByWheelAndBar()
    {
        Panel p;
        p.load();
        auto *scroller = p.find(u"scroller"_qs);
        // The column may still grow a little after the first frame: the end
        // is where it is when the bar is pressed.
        const auto range = [&] { return scroller->property("contentHeight").toReal() - scroller->height(); };
        QVERIFY(range() > 100);
        QQuickItem *bar = p.find(u"scrollIndicator"_qs);
        QVERIFY(bar->isVisible());

        const QPoint middle = p.scenePoint(scroller, {150, 250});
        QWheelEvent wheel(middle, p.window->mapToGlobal(middle), {}, {0, -240}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        // Flickable drops a wheel event that comes in the same millisecond
        // as its last movement (no velocity to work out); no hand is that fast.
        QTest::qWait(20);
        QGuiApplication::sendEvent(p.window.get(), &wheel);
        QTRY_VERIFY(scroller->property("contentY").toReal() > 0);
        QTRY_COMPARE(bar->opacity(), 1.0);

        // A press at the bottom of the bar's track scrolls to the end.
        p.click(bar, {bar->width() - 3, bar->height() - 1});
        QCOMPARE(scroller->property("contentY").toReal(), range());
        p.click(bar, {bar->width() - 3, 1});
        QCOMPARE(scroller->property("contentY").toReal(), 0.0);
    }

    void closedPanelDoesNoWork()
    {
        Panel p;
        p.load();
        QVERIFY(p.find(u"modules"_qs)->property("item").value<QObject *>());
        // Scrolled just before closing: the bar's fade-out timer is running.
        p.find(u"scroller"_qs)->setProperty("contentY", 50);
        p.close();
        // The modules are gone; the model's ticks reach only the banner.
        QVERIFY(!p.find(u"modules"_qs)->property("item").value<QObject *>());
        p.monitor->setReaction(Moods::glovesOff());
        p.monitor->roast(RoastTopic::cpu);
        p.samplers->cpu.total = 0.97;
        p.monitor->tick();
        QCoreApplication::processEvents();
        QStringList running;
        for (QObject *o : p.root->findChildren<QObject *>()) {
            if ((o->inherits("QQuickAbstractAnimation") || o->inherits("QQmlTimer")) && o->property("running").toBool())
                running << QString::fromLatin1(o->metaObject()->className());
        }
        QVERIFY2(running.isEmpty(), qPrintable(running.join(u", ")));

        // Opening again builds the modules afresh, scrolled to the top.
        p.window->show();
        p.monitor->setPanelVisible(true);
        p.settle();
        QVERIFY(p.find(u"modules"_qs)->property("item").value<QObject *>());
        QCOMPARE(p.find(u"scroller"_qs)->property("contentY").toReal(), 0.0);
    }

    // Every text of the table that differs in Japanese is gone from the
    // panel once the language switches, without reopening it.
    void languageSwitchesAtOnce()
    {
        Panel p;
        p.samplers->battery.present = true;
        p.samplers->battery.charge = 0.5;
        p.samplers->battery.cycleCount = 100;
        p.samplers->battery.health = 0.9;
        p.samplers->power = QmPowerReading{3, 1, 5, 1};
        p.samplers->sensors.components = {TempComponent{LocKey::compWiFi, 40}};
        p.samplers->disk.hasRate = true;
        p.load();
        p.find(u"cpuChart"_qs)->setProperty("expanded", true);
        QTRY_VERIFY(visibleTexts(p.root).contains(u"last 60s"_qs));
        const QStringList english = visibleTexts(p.root);
        QVERIFY(english.contains(u"Memory"_qs));

        Localizer::shared().setLanguage(AppLanguage::ja);
        auto leftovers = [&] {
            const QString japanese = visibleTexts(p.root).join(u'\n');
            QStringList out;
            if (!japanese.contains(u"メモリ"_qs))
                out << u"no Japanese"_qs;
            for (LocKey key : allLocKeys()) {
                const QString en = rawValue(key);
                if (Localizer::tableText(key, AppLanguage::ja).value_or(en) == en)
                    continue;
                // Each fixed piece of the English text, around its placeholders.
                for (const QString &piece : en.split(u"%@"_qs)) {
                    const QString word = piece.trimmed();
                    if (word.size() >= 3 && english.join(u'\n').contains(word) && japanese.contains(word))
                        out << word;
                }
            }
            return out.join(u", "_qs);
        };
        // Changed texts cross-fade, so allow the fade its time.
        QTRY_COMPARE(leftovers(), QString());
    }

    void followsTheDesktopPalette()
    {
        Panel p;
        p.load();
        auto lightness = [&] {
            QQuickItem *header = p.find(u"memoryHeader"_qs);
            QQuickItem *title = PanelHarness::itemsOfClass(header, "QQuickText").first();
            return title->property("color").value<QColor>().lightnessF();
        };
        const auto usePalette = [&](QColor window, QColor text) {
            QPalette palette;
            palette.setColor(QPalette::Window, window);
            palette.setColor(QPalette::WindowText, text);
            QGuiApplication::setPalette(palette);
            p.settle();
        };
        usePalette(QColor(0xf6, 0xf5, 0xf4), QColor(0x1e, 0x1e, 0x1e));
        QVERIFY(lightness() < 0.3);
        usePalette(QColor(0x24, 0x24, 0x24), QColor(0xf2, 0xf2, 0xf2));
        QVERIFY(lightness() > 0.7);
    }
};

SULK_TEST(PanelLayoutTest)
#include "PanelLayoutTest.moc"
