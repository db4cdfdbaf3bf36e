#include "ui/prefs/PreferencesWindow.h"

#include "app/desktop/AppVersion.h"
#include "app/desktop/LoginItem.h"
#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "personality/Mood.h"
#include "settings/AppSettings.h"
#include "ui/prefs/PrefsQml.h"
#include "ui/prefs/UpdateWindow.h"

#include <QFile>
#include <QImageReader>
#include <QQmlContext>
#include <QQuickWindow>

PreferencesWindow::PreferencesWindow(SystemMonitor &monitor, UpdateWindow &updates, QObject *parent)
    : QObject(parent)
    , m_monitor(monitor)
    , m_updates(updates)
{
    connect(&Localizer::shared(), &Localizer::languageChanged, this, &PreferencesWindow::languageNamesChanged);
    connect(&updates.updater(), &Updater::configuredChanged, this, &PreferencesWindow::updatesConfiguredChanged);
}

PreferencesWindow::~PreferencesWindow()
{
    delete m_window;
}

QQuickWindow *PreferencesWindow::window() const
{
    return m_window;
}

void PreferencesWindow::open()
{
    if (!m_window) {
        m_context = PrefsQml::makeContext(QStringLiteral("prefs"), this);
        m_window = PrefsQml::createWindow(QStringLiteral("qrc:/sulkbox/qml/Preferences.qml"), m_context);
        if (!m_window)
            return;
    }
    if (!m_window->isVisible())
        syncLoginItem();
    PrefsQml::present(m_window);
}

void PreferencesWindow::syncLoginItem()
{
    // The entry may have been added or removed elsewhere (by hand, by the
    // desktop's own settings): the switch shows what is really there.
    const bool there = LoginItem::isEnabled();
    if (AppSettings::shared().launchAtLogin() != there)
        setLaunchAtLogin(there);
}

QString PreferencesWindow::versionText() const
{
    return AppVersion::text();
}

QString PreferencesWindow::applicationIconSource()
{
    static const QString source = [] {
        const bool svg = QImageReader::supportedImageFormats().contains("svg");
        return svg && QFile::exists(QStringLiteral(":/sulkbox/icons/sulkbox.svg"))
            ? QStringLiteral("qrc:/sulkbox/icons/sulkbox.svg")
            : QString();
    }();
    return source;
}

QString PreferencesWindow::iconSource() const
{
    return applicationIconSource();
}

QStringList PreferencesWindow::languageNames() const
{
    QStringList names;
    for (AppLanguage lang : allAppLanguages())
        names << Localizer::shared().pickerName(lang);
    return names;
}

bool PreferencesWindow::updatesConfigured() const
{
    return m_updates.updater().configured();
}

void PreferencesWindow::setLaunchAtLogin(bool on)
{
    AppSettings::shared().setLaunchAtLogin(on);
    LoginItem::set(on);
}

void PreferencesWindow::setSavageMode(bool on)
{
    AppSettings::shared().setSavageMode(on);
    const Mood reaction = on ? Moods::glovesOff() : Moods::beingNice();
    m_monitor.setReaction(reaction);
    // Cleared only if it is still ours: switching back within the 4 s puts
    // up another reaction, which keeps its own full time.
    SystemMonitor *monitor = &m_monitor;
    m_monitor.scheduler().after(savageReactionMs, monitor, [monitor, reaction] {
        if (monitor->reaction() && *monitor->reaction() == reaction)
            monitor->setReaction(std::nullopt);
    });
}

void PreferencesWindow::setLanguage(int index)
{
    const auto &all = allAppLanguages();
    if (index >= 0 && index < all.size())
        Localizer::shared().setLanguage(all[index]);
}

void PreferencesWindow::checkForUpdates()
{
    m_updates.checkNow();
}
