// The preferences window, clicked like a user clicks it: every control
// writes its setting at once and the model, the top-bar label and the panel
// follow; the launch-at-login switch shows the real autostart entry; the
// About row and the update button.

#include "PrefsRig.h"

#include "common/TestSupport.h"

#include "app/desktop/AppVersion.h"
#include "app/desktop/LoginItem.h"
#include "l10n/Fmt.h"
#include "settings/Settings.h"
#include "ui/MenuBarLabel.h"

#include <QFile>
#include <QFileInfo>
#include <QQmlComponent>
#include <QSignalSpy>

#include <cmath>

using namespace QuickDriver;

namespace {

// The windows, and the label the top bar would show.
struct Rig : PrefsRig {
    QString label() const { return MenuBarLabel::text(*monitor, Localizer::shared()); }
};

QString textOf(QQuickItem *item)
{
    return item ? item->property("text").toString() : QString();
}

bool checkedOf(QQuickWindow *w, const QString &name)
{
    QQuickItem *item = find(w, name);
    return item && item->property("checked").toBool();
}

// Section headers and row labels: every visible Label text with its place.
QList<QQuickItem *> labelsWithText(QQuickWindow *w, const QStringList &texts)
{
    QList<QQuickItem *> out;
    for (const QString &t : texts) {
        const auto hits = findAll(w, [&](QQuickItem *i) {
            return i->inherits("QQuickText") && i->property("text").toString() == t && i->isVisible();
        });
        out.append(hits.isEmpty() ? nullptr : hits.first());
    }
    return out;
}

qreal sceneY(QQuickItem *item)
{
    return item ? item->mapToScene(QPointF(0, 0)).y() : -1;
}

} // namespace

class PreferencesWindowTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { PrefsRig::setUpCase(); }
    void init()
    {
        TestSupport::clearSettings();
        Localizer::shared().setLanguage(AppLanguage::en);
        QFile::remove(LoginItem::entryPath());
    }
    void cleanup()
    {
        QFile::remove(LoginItem::entryPath());
        TestSupport::resetSettings();
        QML_CLEAN();
    }

    void opensOnceMadeLazilyAndRaisedAfter()
    {
        Rig rig;
        QVERIFY(!QmlHost::exists());
        QQuickWindow *w = rig.openPreferences();
        QVERIFY(w);
        QVERIFY(QmlHost::exists());
        QCOMPARE(w->size(), QSize(380, 540));
        QCOMPARE(w->minimumSize(), w->maximumSize());
        const int windows = int(QGuiApplication::topLevelWindows().size());

        rig.prefs->open();
        QCOMPARE(rig.prefs->window(), w);
        QCOMPARE(int(QGuiApplication::topLevelWindows().size()), windows);

        w->close();
        QTRY_VERIFY(!w->isVisible());
        rig.prefs->open();
        QCOMPARE(rig.prefs->window(), w);
        QVERIFY(w->isVisible());
    }

    void sectionsAndModulesInOrder()
    {
        Rig rig;
        QQuickWindow *w = rig.openPreferences();
        QVERIFY(w);
        // The four sections top to bottom, the modules in the panel's order
        // between the third and the fourth.
        const QStringList texts = {u"General"_qs, u"Personality"_qs, u"Modules in panel"_qs, u"CPU"_qs, u"Memory"_qs,
                                   u"Processes"_qs, u"Network"_qs, u"Disk"_qs, u"Sensors"_qs, u"About"_qs};
        const auto labels = labelsWithText(w, texts);
        for (int i = 0; i < labels.size(); ++i) {
            QVERIFY2(labels[i], qPrintable(texts[i]));
            QVERIFY2(i == 0 || sceneY(labels[i - 1]) < sceneY(labels[i]), qPrintable(texts[i]));
        }
        // Each switch beside its own name.
        for (int i = 3; i < 9; ++i) {
            QQuickItem *toggle = find(w, u"show%1Switch"_qs.arg(i == 3 ? u"CPU"_qs : texts[i]));
            QVERIFY2(toggle, qPrintable(texts[i]));
            QVERIFY(std::abs(sceneY(labels[i]) + labels[i]->height() / 2 - sceneY(toggle) - toggle->height() / 2) < 4);
        }
    }

    void twoSecondsStoresTwoAndReArmsAtTheNextTick()
    {
        Rig rig;
        QQuickWindow *w = rig.openPreferences();
        QCOMPARE(rig.monitor->timerIntervalMs(), 1000);
        choose(w, u"refreshPicker"_qs, 1);
        QCOMPARE(Settings::raw(Settings::Key::refreshInterval).toDouble(), 2.0);
        QCOMPARE(find(w, u"refreshPicker"_qs)->property("displayText").toString(), u"2 seconds"_qs);
        QCOMPARE(rig.monitor->timerIntervalMs(), 1000); // the running tick is not cut short
        rig.monitor->tick();
        QCOMPARE(rig.monitor->timerIntervalMs(), 2000);
        // A value set elsewhere shows in the picker at once.
        AppSettings::shared().setRefreshInterval(5.0);
        QCOMPARE(find(w, u"refreshPicker"_qs)->property("currentIndex").toInt(), 2);
    }


    void theLanguageSwitchesTheWholeInterface()
    {
        Rig rig;
        rig.monitor->setReaction(Moods::glovesOff());
        QQuickWindow *w = rig.openPreferences();
        QQuickItem *picker = find(w, u"languagePicker"_qs);
        choose(w, u"languagePicker"_qs, 4);

        QCOMPARE(Localizer::shared().language(), AppLanguage::ja);
        QCOMPARE(Settings::text(Settings::Key::appLanguage), u"ja"_qs);
        QCOMPARE(w->title(), u"環境設定"_qs);
        QVERIFY(labelsWithText(w, {u"一般"_qs}).first());
        // Each language under its own name; "Auto" in the interface's.
        QCOMPARE(picker->property("displayText").toString(), u"日本語"_qs);
        QCOMPARE(rig.prefs->languageNames().first(), u"自動（システム）"_qs);
        QCOMPARE(rig.label(), u"😈 "_qs + Localizer::shared().t(LocKey::glovesOff));
        QVERIFY(!rig.label().contains(u"gloves"_qs));

        choose(w, u"languagePicker"_qs, 0);
        QCOMPARE(Localizer::shared().language(), AppLanguage::system);
        QCOMPARE(Settings::text(Settings::Key::appLanguage), u"system"_qs);
    }

    void fahrenheitAndShowMoodFollowEverywhere()
    {
        Rig rig;
        QQuickWindow *w = rig.openPreferences();
        QCOMPARE(Fmt::temp(50), u"50°"_qs);
        choose(w, u"temperaturePicker"_qs, 1);
        QCOMPARE(Settings::flag(Settings::Key::useFahrenheit), true);
        QCOMPARE(Fmt::temp(50), u"122°F"_qs);
        QCOMPARE(find(w, u"temperaturePicker"_qs)->property("displayText").toString(), u"Fahrenheit (°F)"_qs);

        QVERIFY(checkedOf(w, u"showMoodSwitch"_qs));
        const QString mood = rig.label();
        QVERIFY(mood.startsWith(rig.monitor->mood().emoji()));
        click(w, u"showMoodSwitch"_qs);
        QCOMPARE(Settings::flag(Settings::Key::moodEnabled), false);
        QCOMPARE(rig.label(), u"42%  31%"_qs);
        click(w, u"showMoodSwitch"_qs);
        QCOMPARE(Settings::flag(Settings::Key::moodEnabled), true);
        QCOMPARE(rig.label(), mood);
    }

    void petNameStoresEveryKeystrokeAndEmptyShowsThePlaceholder()
    {
        Rig rig;
        QQuickWindow *w = rig.openPreferences();
        QTRY_VERIFY(w->isActive());
        QQuickItem *field = find(w, u"petNameField"_qs);
        QCOMPARE(field->property("placeholderText").toString(), u"e.g. Pixel"_qs);
        click(w, field);
        QTRY_VERIFY(field->hasActiveFocus());
        QStringList seen;
        for (QChar c : u"Rex"_qs) {
            QTest::keyClick(w, c.toLatin1());
            seen << AppSettings::shared().petName();
        }
        QCOMPARE(seen, (QStringList{u"R"_qs, u"Re"_qs, u"Rex"_qs}));
        const auto placeholder = findAll(w, [&](QQuickItem *i) {
            return i->inherits("QQuickPlaceholderText") && i->parentItem() == field;
        });
        QCOMPARE(placeholder.size(), 1);
        QVERIFY(!placeholder.first()->isVisible());

        QTest::keyClick(w, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(w, Qt::Key_Backspace);
        QCOMPARE(Settings::raw(Settings::Key::petName), QVariant(QString()));
        QVERIFY(Settings::contains(Settings::Key::petName));
        QTRY_VERIFY(placeholder.first()->isVisible());
        QCOMPARE(placeholder.first()->property("text").toString(), u"e.g. Pixel"_qs);

        // A name set elsewhere shows in the field.
        AppSettings::shared().setPetName(u"Pixel"_qs);
        QCOMPARE(field->property("text").toString(), u"Pixel"_qs);
    }

    void savageModeReactionsKeepTheirFullFourSeconds()
    {
        Rig rig;
        QQuickWindow *w = rig.openPreferences();
        QVERIFY(!rig.monitor->hasReaction());
        click(w, u"savageModeSwitch"_qs);
        QCOMPARE(Settings::flag(Settings::Key::savageMode), true);
        QCOMPARE(rig.monitor->reactionOrMood(), Moods::glovesOff());
        QCOMPARE(rig.label(), u"😈 gloves off!"_qs);

        rig.clock.advance(2000);
        click(w, u"savageModeSwitch"_qs);
        QCOMPARE(Settings::flag(Settings::Key::savageMode), false);
        QCOMPARE(rig.label(), u"😇 being nice again"_qs);

        // The first timer finds another reaction and leaves it alone.
        rig.clock.advance(2000);
        QCOMPARE(rig.monitor->reactionOrMood(), Moods::beingNice());
        rig.clock.advance(1999);
        QCOMPARE(rig.monitor->reactionOrMood(), Moods::beingNice());
        rig.clock.advance(1);
        QVERIFY(!rig.monitor->hasReaction());
        QVERIFY(rig.label().startsWith(rig.monitor->mood().emoji()));

        // A reaction put up by something else in the meantime is not ours to clear.
        click(w, u"savageModeSwitch"_qs);
        rig.monitor->setReaction(Moods::stopPoking());
        rig.clock.advance(4000);
        QCOMPARE(rig.monitor->reactionOrMood(), Moods::stopPoking());
    }

    void everyModuleSwitchWritesItsOwnKeyAndAllMayBeOff()
    {
        Rig rig;
        QQuickWindow *w = rig.openPreferences();
        const QList<std::pair<QString, Settings::Key>> modules = {
            {u"showCPUSwitch"_qs, Settings::Key::showCPU},         {u"showMemorySwitch"_qs, Settings::Key::showMemory},
            {u"showProcessesSwitch"_qs, Settings::Key::showProcesses}, {u"showNetworkSwitch"_qs, Settings::Key::showNetwork},
            {u"showDiskSwitch"_qs, Settings::Key::showDisk},       {u"showSensorsSwitch"_qs, Settings::Key::showSensors},
        };
        // The real panel on the same engine, as the desktop process shows it.
        QQmlComponent component(&QmlHost::engine(), QUrl(u"qrc:/sulkbox/qml/Panel.qml"_qs));
        std::unique_ptr<QObject> panelObject(component.create());
        QVERIFY2(panelObject, qPrintable(component.errorString()));
        QQuickWindow panelWindow;
        auto *panel = qobject_cast<QQuickItem *>(panelObject.get());
        panel->setParentItem(panelWindow.contentItem());
        rig.monitor->setPanelVisible(true); // as its window does on opening
        const QStringList sections = {u"cpuModule"_qs, u"memoryModule"_qs, u"processesModule"_qs,
                                      u"networkModule"_qs, u"diskModule"_qs, u"sensorsModule"_qs};
        const auto sectionShown = [&](int i) {
            QList<QQuickItem *> found;
            collect(panel, [&](QQuickItem *item) { return item->objectName() == sections[i]; }, found);
            return !found.isEmpty() && found.first()->property("active").toBool();
        };

        QSignalSpy changed(&AppSettings::shared(), &AppSettings::changed);
        for (int i = 0; i < modules.size(); ++i) {
            changed.clear();
            click(w, modules[i].first);
            // Exactly this module's key; the panel drops exactly that section.
            QCOMPARE(changed.size(), 1);
            QCOMPARE(changed.first().first().value<Settings::Key>(), modules[i].second);
            for (int j = 0; j < modules.size(); ++j) {
                QCOMPARE(Settings::flag(modules[j].second), j > i);
                QCOMPARE(sectionShown(j), j > i);
            }
        }
        for (const auto &m : modules)
            QVERIFY(!checkedOf(w, m.first));
        // Turned back on from elsewhere (another process, the file): the
        // switches follow even after they were clicked.
        AppSettings::shared().setShowDisk(true);
        QVERIFY(checkedOf(w, u"showDiskSwitch"_qs));
        QVERIFY(sectionShown(4));
        panelObject.reset();
    }

    void launchAtLoginShowsTheRealEntry()
    {
        Rig rig;
        QQuickWindow *w = rig.openPreferences();
        QVERIFY(!checkedOf(w, u"launchAtLoginSwitch"_qs));
        click(w, u"launchAtLoginSwitch"_qs);
        QVERIFY(QFileInfo::exists(LoginItem::entryPath()));
        QCOMPARE(Settings::flag(Settings::Key::launchAtLogin), true);
        click(w, u"launchAtLoginSwitch"_qs);
        QVERIFY(!QFileInfo::exists(LoginItem::entryPath()));
        QCOMPARE(Settings::flag(Settings::Key::launchAtLogin), false);

        // Made elsewhere while the window was closed: shown on the next opening.
        w->close();
        LoginItem::set(true);
        rig.prefs->open();
        QVERIFY(checkedOf(w, u"launchAtLoginSwitch"_qs));
        QCOMPARE(Settings::flag(Settings::Key::launchAtLogin), true);
        // Deleted elsewhere: the setting follows, and the entry stays deleted.
        w->close();
        QFile::remove(LoginItem::entryPath());
        rig.prefs->open();
        QVERIFY(!checkedOf(w, u"launchAtLoginSwitch"_qs));
        QCOMPARE(Settings::flag(Settings::Key::launchAtLogin), false);
        QVERIFY(!QFileInfo::exists(LoginItem::entryPath()));
    }

    void aboutRowWithoutAFeed()
    {
        QCOMPARE(AppVersion::text(u"1.4"_qs, u"27"_qs), u"1.4 (27)"_qs);
        QCOMPARE(AppVersion::text(u"1.4"_qs, QString()), u"1.4 (—)"_qs);
        QCOMPARE(AppVersion::text(QString(), u" "_qs), u"— (—)"_qs);
        Rig rig;
        QQuickWindow *w = rig.openPreferences();
        QCOMPARE(textOf(find(w, u"versionLabel"_qs)), u"Version "_qs + AppVersion::text());
        QVERIFY(AppVersion::text().startsWith(QStringLiteral(SULKBOX_VERSION)));
        // The icon shows when the build has one; either way nothing complains.
        QCOMPARE(shown(find(w, u"appIcon"_qs)), QFile::exists(u":/sulkbox/icons/sulkbox.svg"_qs));

        QQuickItem *button = find(w, u"checkForUpdatesButton"_qs);
        QCOMPARE(textOf(button), u"Check for Updates…"_qs);
        // Icon, text and button share one centre line, on the first opening
        // and after a language change re-wraps the text.
        for (AppLanguage lang : {AppLanguage::en, AppLanguage::th}) {
            Localizer::shared().setLanguage(lang);
            QVERIFY(QQuickTest::qWaitForPolish(w));
            QQuickItem *icon = find(w, u"appIcon"_qs);
            QQuickItem *version = find(w, u"versionLabel"_qs);
            const auto centre = [](QQuickItem *i) { return sceneY(i) + i->height() / 2; };
            if (shown(icon))
                QVERIFY2(std::abs(centre(icon) - centre(button)) < 2,
                         qPrintable(u"%1 vs %2"_qs.arg(centre(icon)).arg(centre(button))));
            QVERIFY(std::abs(centre(version) - centre(button)) < 12);
        }
        Localizer::shared().setLanguage(AppLanguage::en);
        QVERIFY(!button->isEnabled());
        QVERIFY(!find(w, u"autoUpdateSwitch"_qs)->isEnabled());
        QQuickItem *hint = find(w, u"updatesFromDistroHint"_qs);
        QVERIFY(shown(hint));
        QCOMPARE(textOf(hint), u"Updates come from your distribution’s package manager."_qs);

        // A feed set while the window is open turns the check on.
        AppSettings::shared().setUpdateFeedURL(u"https://example.org/appcast.xml"_qs);
        QVERIFY(button->isEnabled());
        QVERIFY(!hint->isVisible());
        QVERIFY(find(w, u"autoUpdateSwitch"_qs)->isEnabled());
        click(w, u"autoUpdateSwitch"_qs);
        QCOMPARE(Settings::flag(Settings::Key::automaticUpdateChecks), true);
    }
};

SULK_TEST(PreferencesWindowTest)
#include "PreferencesWindowTest.moc"
