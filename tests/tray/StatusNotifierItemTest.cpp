// The tray item on a real session bus, seen from a test watcher the way a
// tray host sees it: registration, the label, the icon, the title and
// tooltip, and the menu.

#include "common/FakeSamplers.h"
#include "common/FakeWatcher.h"
#include "common/TestSupport.h"

#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "ui/MenuBarLabel.h"
#include "ui/tray/StatusNotifierItem.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

// The model with fixed readings (CPU 7.4 %, memory 42.6 %) and the item.
struct Rig {
    ManualScheduler scheduler;
    std::shared_ptr<FakeSamplers> samplers = std::make_shared<FakeSamplers>();
    std::unique_ptr<SystemMonitor> monitor;
    std::unique_ptr<StatusNotifierItem> item;

    Rig()
    {
        samplers->cpu.total = 0.074;
        samplers->memory.pressure = 0.426;
        monitor = std::make_unique<SystemMonitor>(samplers, scheduler);
        item = std::make_unique<StatusNotifierItem>(*monitor, Localizer::shared(), AppSettings::shared(),
                                                    QDBusConnection::sessionBus());
    }
    QString service() const { return item->serviceName(); }
    // How a watcher lists the item: its connection and object path.
    QString registration() const { return QDBusConnection::sessionBus().baseService() + u"/StatusNotifierItem"_qs; }

    // Starts the item with `w` present and waits until it has registered;
    // from then on `w` records what the item sends.
    bool startWith(FakeWatcher &w)
    {
        if (!item->start() || !QTest::qWaitFor([&] { return w.registrations.size() == 1; }))
            return false;
        w.follow(service());
        return true;
    }
};

template <typename T>
T fromBus(const QVariant &v)
{
    return qdbus_cast<T>(v.value<QDBusArgument>());
}

QString label(FakeWatcher &w, const Rig &rig)
{
    return w.itemProperty(rig.service(), u"XAyatanaLabel"_qs).toString();
}

QList<SniPixmap> pixmaps(FakeWatcher &w, const Rig &rig)
{
    return fromBus<QList<SniPixmap>>(w.itemProperty(rig.service(), u"IconPixmap"_qs));
}

// How many pixels are opaque, and how many of those are strongly coloured
// in the given channel (1 red, 2 green, 3 blue) against the other two. The
// bus carries each pixel as A, R, G, B bytes.
std::pair<int, int> opaqueAndTinted(const SniPixmap &p, int channel)
{
    int opaque = 0, tinted = 0;
    const auto *px = reinterpret_cast<const uchar *>(p.argb.constData());
    for (qsizetype i = 0; i + 3 < p.argb.size(); i += 4) {
        if (px[i] < 250)
            continue;
        ++opaque;
        bool dominant = true;
        for (int c = 1; c <= 3; ++c)
            dominant = dominant && (c == channel || px[i + channel] >= px[i + c] + 40);
        tinted += dominant;
    }
    return {opaque, tinted};
}

MenuLayoutNode layout(FakeWatcher &w, const Rig &rig, uint *revision = nullptr)
{
    const QDBusMessage reply = w.callMenu(rig.service(), u"GetLayout"_qs, {0, -1, QStringList()});
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().size() != 2)
        return {};
    if (revision)
        *revision = reply.arguments().at(0).toUInt();
    return qdbus_cast<MenuLayoutNode>(reply.arguments().at(1).value<QDBusArgument>());
}

QStringList menuLabels(const MenuLayoutNode &root)
{
    QStringList out;
    for (const MenuLayoutNode &child : root.children)
        out.append(child.properties.value(u"type"_qs).toString() == u"separator"
                       ? u"--"_qs
                       : child.properties.value(u"label"_qs).toString());
    return out;
}

} // namespace

class TrayItemTest : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        TestSupport::resetSettings();
        // No timer ticks of their own during a test: the test ticks.
        Settings::set(Settings::Key::refreshInterval, 10.0);
    }
    void cleanup() { TestSupport::resetSettings(); }

    void registersWithTheWatcherAndAgainWhenItReturns()
    {
        Rig rig;
        QCOMPARE(rig.service(), u"org.kde.StatusNotifierItem-%1-1"_qs.arg(QCoreApplication::applicationPid()));

        // Started before any watcher: it waits for one.
        QVERIFY(rig.item->start());
        QVERIFY(!rig.item->watcherPresent());
        QVERIFY(!rig.item->hostPresent());

        auto first = std::make_unique<FakeWatcher>();
        QVERIFY(first->owned());
        QTRY_COMPARE(first->registrations, QStringList{rig.registration()});
        QTRY_VERIFY(rig.item->hostPresent());
        QCOMPARE(first->itemProperty(rig.service(), u"Id"_qs).toString(), u"sulkbox"_qs);
        QCOMPARE(first->itemProperty(rig.service(), u"Status"_qs).toString(), u"Active"_qs);
        QCOMPARE(first->itemProperty(rig.service(), u"ItemIsMenu"_qs).toBool(), false);
        QCOMPARE(first->itemProperty(rig.service(), u"Menu"_qs).value<QDBusObjectPath>().path(), u"/MenuBar"_qs);

        // The shell restarts: the watcher goes away and a new one comes,
        // this time without a host (a watcher alone draws no item; a host
        // that turns up later is the desktop test's case).
        first.reset();
        QTRY_VERIFY(!rig.item->watcherPresent());
        QVERIFY(!rig.item->hostPresent());
        FakeWatcher second(false);
        QVERIFY(second.owned());
        QTRY_COMPARE(second.registrations, QStringList{rig.registration()});
        QTest::qWait(50);
        QVERIFY(rig.item->watcherPresent());
        QVERIFY(!rig.item->hostPresent());
    }

    void labelFollowsMoodReactionModeAndLanguage()
    {
        Rig rig;
        FakeWatcher w;
        QVERIFY(rig.startWith(w));
        Localizer &loc = Localizer::shared();

        QCOMPARE(label(w, rig), MenuBarLabel::text(*rig.monitor, loc, true));

        rig.monitor->offerMood(Moods::allChill());
        QTRY_COMPARE(w.labels.size(), 1);
        const QString chill = Moods::allChill().emoji() + u' ' + loc.t(LocKey::allChill);
        QCOMPARE(w.labels.last().first(), chill);
        QCOMPARE(label(w, rig), chill);

        // A reaction stands over the mood, emoji and phrase together.
        rig.monitor->setReaction(Moods::stopPoking());
        QTRY_COMPARE(w.labels.size(), 2);
        const QString poked = Moods::stopPoking().emoji() + u' ' + loc.t(LocKey::stopPoking);
        QCOMPARE(label(w, rig), poked);

        // Numbers mode while the reaction shows: straight to the loads.
        AppSettings::shared().setMoodEnabled(false);
        QTRY_COMPARE(w.labels.size(), 3);
        QCOMPARE(w.labels.last(), (QStringList{u"7%  43%"_qs, u"100%  100%"_qs}));
        QCOMPARE(label(w, rig), u"7%  43%"_qs);

        // A tick with the same loads changes nothing, so nothing is sent.
        rig.monitor->tick();
        QTest::qWait(100);
        QCOMPARE(w.labels.size(), 3);
        rig.samplers->cpu.total = 0.5;
        rig.monitor->tick();
        QTRY_COMPARE(w.labels.size(), 4);
        QCOMPARE(w.labels.last().first(), u"50%  43%"_qs);

        // Back to the mood: the reaction is cleared by now, the mood shows.
        rig.monitor->setReaction(std::nullopt);
        rig.monitor->offerMood(Moods::allChill());
        AppSettings::shared().setMoodEnabled(true);
        QTRY_COMPARE(w.labels.size(), 5);
        QCOMPARE(label(w, rig), chill);

        // The language changes the phrase at once.
        loc.setLanguage(AppLanguage::ja);
        QTRY_COMPARE(w.labels.size(), 6);
        QCOMPARE(label(w, rig), Moods::allChill().emoji() + u' ' + loc.t(LocKey::allChill));
        QVERIFY(label(w, rig) != chill);
    }

    void iconShowsTheEmojiOrTheLoadsUnlessTheHostDrawsLabels()
    {
        Rig rig;
        FakeWatcher w;
        QVERIFY(rig.startWith(w));
        QVERIFY(!rig.item->hostDrawsLabels()); // the test watcher is no GNOME Shell

        // Mood mode: the shown mood's emoji, in colour, at each size.
        rig.monitor->offerMood(Moods::soHot(95)); // 🥵: a red face
        QTRY_COMPARE(w.newIcons, 1);
        QList<SniPixmap> icon = pixmaps(w, rig);
        QCOMPARE(icon.size(), 3);
        for (const SniPixmap &p : icon) {
            QCOMPARE(p.width, p.height);
            QCOMPARE(p.argb.size(), qsizetype(p.width) * p.height * 4);
            const auto [opaque, red] = opaqueAndTinted(p, 1);
            QVERIFY2(opaque > p.width * p.height / 4, qPrintable(QString::number(opaque)));
            QVERIFY2(red > opaque / 3, qPrintable(QStringLiteral("%1 of %2").arg(red).arg(opaque)));
        }
        // The same emoji again (a new reason) is no new icon.
        rig.monitor->offerMood(Moods::soHot(97));
        QTRY_COMPARE(w.newTitles, 2);
        QCOMPARE(w.newIcons, 1);

        // Numbers mode: the two loads, drawn in their load colour (green at
        // 7 %): bytes on the bus are A, R, G, B.
        AppSettings::shared().setMoodEnabled(false);
        QTRY_COMPARE(w.newIcons, 2);
        icon = pixmaps(w, rig);
        QCOMPARE(icon.size(), 3);
        const auto [opaque, green] = opaqueAndTinted(icon.last(), 2);
        QVERIFY(opaque > 20);
        QVERIFY2(green > 10, qPrintable(QStringLiteral("%1 of %2").arg(green).arg(opaque)));
        rig.monitor->tick();
        QTest::qWait(100);
        QCOMPARE(w.newIcons, 2);
        rig.samplers->memory.pressure = 0.9;
        rig.monitor->tick();
        QTRY_COMPARE(w.newIcons, 3);

        // A host that draws the label gets a blank icon, which then stays
        // put while the loads change.
        rig.item->setHostDrawsLabels(true);
        QTRY_COMPARE(w.newIcons, 4);
        icon = pixmaps(w, rig);
        QCOMPARE(icon.size(), 1);
        QCOMPARE(icon.first().argb, QByteArray(icon.first().width * icon.first().height * 4, '\0'));
        rig.samplers->memory.pressure = 0.3;
        rig.monitor->tick();
        QTRY_COMPARE(w.labels.size(), 4);
        QTest::qWait(100);
        QCOMPARE(w.newIcons, 4);

        QVERIFY(StatusNotifierItem::drawsLabels(u"gnome-shell"_qs));
        QVERIFY(!StatusNotifierItem::drawsLabels(u"plasmashell"_qs));
        QVERIFY(!StatusNotifierItem::drawsLabels(QString()));
    }

    void titleAndTooltipCarryPhraseReasonAndLoads()
    {
        Rig rig;
        FakeWatcher w;
        QVERIFY(rig.startWith(w));
        rig.item->setLoadTextIntervalMs(60000);
        const Localizer &loc = Localizer::shared();

        // The loads alone wait for their interval (the mood stays: the
        // machine has just woken up)...
        const QString before = w.itemProperty(rig.service(), u"Title"_qs).toString();
        QVERIFY2(before.contains(u"CPU 7%"_qs), qPrintable(before));
        rig.samplers->cpu.total = 0.31;
        rig.monitor->tick();
        QTest::qWait(100);
        QCOMPARE(w.newTitles, 0);
        QCOMPARE(w.itemProperty(rig.service(), u"Title"_qs).toString(), before);

        // ...while a new mood goes at once, with the loads of the moment.
        rig.monitor->offerMood(Moods::soHot(95));
        // Two signals, two bus messages: the tooltip's may come a moment later.
        QTRY_COMPARE(w.newTitles, 1);
        QTRY_COMPARE(w.newToolTips, 1);
        const QString phrase = loc.t(LocKey::soHot);
        const QString reason = MenuBarLabel::reason(Moods::soHot(95), loc);
        const QString title = w.itemProperty(rig.service(), u"Title"_qs).toString();
        for (const QString &part : {phrase, reason, u"CPU 31%"_qs, u"Memory 43%"_qs})
            QVERIFY2(title.contains(part), qPrintable(title + u" lacks "_qs + part));
        const auto tip = fromBus<SniToolTip>(w.itemProperty(rig.service(), u"ToolTip"_qs));
        QCOMPARE(tip.title, Moods::soHot(95).emoji() + u' ' + phrase);
        QVERIFY(tip.text.contains(reason.toHtmlEscaped()));
        QVERIFY(tip.text.contains(u"Memory 43%"_qs));

        rig.monitor->offerMood(Moods::allChill());
        QTRY_COMPARE(w.newTitles, 2);
        rig.item->setLoadTextIntervalMs(0);
        rig.samplers->cpu.total = 0.2;
        rig.monitor->tick();
        QTRY_COMPARE(w.newTitles, 3);
        QTRY_COMPARE(w.newToolTips, 3);
        rig.monitor->tick();
        QTest::qWait(100);
        QCOMPARE(w.newTitles, 3);
    }

    void menuStartsWithOpenPanelFollowsTheLanguageAndAnswersClicks()
    {
        Rig rig;
        FakeWatcher w;
        QVERIFY(rig.startWith(w));

        uint before = 0;
        const MenuLayoutNode root = layout(w, rig, &before);
        QCOMPARE(root.id, 0);
        QCOMPARE(root.properties.value(u"children-display"_qs).toString(), u"submenu"_qs);
        QCOMPARE(menuLabels(root), (QStringList{u"Open panel"_qs, u"Preferences…"_qs, u"--"_qs, u"Quit"_qs}));

        Localizer::shared().setLanguage(AppLanguage::zhHans);
        QTRY_COMPARE(w.layoutRevisions.size(), 1);
        QVERIFY(w.layoutRevisions.first() > before);
        uint after = 0;
        QCOMPARE(menuLabels(layout(w, rig, &after)),
                 (QStringList{u"打开面板"_qs, u"偏好设置…"_qs, u"--"_qs, u"退出"_qs}));
        QCOMPARE(after, w.layoutRevisions.first());

        // Only the root's own node when no depth is asked for.
        const QDBusMessage shallow = w.callMenu(rig.service(), u"GetLayout"_qs, {0, 0, QStringList{u"label"_qs}});
        QCOMPARE(qdbus_cast<MenuLayoutNode>(shallow.arguments().at(1).value<QDBusArgument>()).children.size(), 0);

        // Clicks come back as actions; unknown entries are errors.
        QSignalSpy triggered(&rig.item->menu(), &DBusMenu::triggered);

        QDBusMessage reply = w.menuEvent(rig.service(), 1);
        QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
        QCOMPARE(triggered.size(), 1);
        QCOMPARE(triggered.at(0).at(0).value<DBusMenu::Action>(), DBusMenu::Action::openPanel);

        // Hover and open events are not choices; the separator is no choice.
        w.menuEvent(rig.service(), 4, u"hovered"_qs);
        w.menuEvent(rig.service(), 3);
        QCOMPARE(triggered.size(), 1);
        w.menuEvent(rig.service(), 4);
        QCOMPARE(triggered.size(), 2);
        QCOMPARE(triggered.at(1).at(0).value<DBusMenu::Action>(), DBusMenu::Action::quit);

        reply = w.menuEvent(rig.service(), 42);
        QCOMPARE(reply.type(), QDBusMessage::ErrorMessage);
        reply = w.callMenu(rig.service(), u"GetProperty"_qs, {42, u"label"_qs});
        QCOMPARE(reply.type(), QDBusMessage::ErrorMessage);
        reply = w.callMenu(rig.service(), u"GetLayout"_qs, {42, -1, QStringList()});
        QCOMPARE(reply.type(), QDBusMessage::ErrorMessage);

        // A host that sends events in a group hears which ids were unknown.
        const QList<MenuEvent> group = {{2, u"clicked"_qs, QDBusVariant(0), 0}, {9, u"clicked"_qs, QDBusVariant(0), 0}};
        reply = w.callMenu(rig.service(), u"EventGroup"_qs, {QVariant::fromValue(group)});
        QCOMPARE(qdbus_cast<QList<int>>(reply.arguments().first().value<QDBusArgument>()), QList<int>{9});
        QCOMPARE(triggered.size(), 3);
        QCOMPARE(triggered.at(2).at(0).value<DBusMenu::Action>(), DBusMenu::Action::preferences);
    }
};

SULK_TEST(TrayItemTest)
#include "StatusNotifierItemTest.moc"
