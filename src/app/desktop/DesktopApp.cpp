#include "app/desktop/DesktopApp.h"

#include "app/desktop/PreferencesMigration.h"
#include "l10n/Localizer.h"
#include "model/Scheduler.h"
#include "model/SystemMonitor.h"
#include "sampling/LinuxSamplers.h"
#include "settings/AppSettings.h"
#include "ui/common/DesktopActions.h"
#include "ui/common/QmlHost.h"
#include "ui/tray/PanelWindow.h"
#include "ui/tray/StatusNotifierItem.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

DesktopApp::DesktopApp(Options options, QObject *parent)
    : QObject(parent)
    , m_options(std::move(options))
{
    // 1. Settings of the earlier identity, once.
    PreferencesMigration::run(m_options.setLoginItem ? m_options.setLoginItem : &DesktopApp::registerLoginItem);
    m_settings = &AppSettings::shared();
    m_settings->watchFile();

    // 2. The model: samples once, computes the first mood, starts its timer.
    auto samplers = m_options.samplers ? m_options.samplers : std::make_shared<LinuxSamplers>();
    Scheduler &scheduler = m_options.scheduler ? *m_options.scheduler : Scheduler::system();
    m_monitor = std::make_unique<SystemMonitor>(samplers, scheduler);

    // 3. The update controller runs from start-up.
    startUpdateController();

    // 4. The localizer.
    m_loc = &Localizer::shared();

    m_actions = new DesktopActions(this);
    connect(m_actions, &DesktopActions::preferencesRequested, this, &DesktopApp::openPreferences);
    connect(m_actions, &DesktopActions::systemMonitorRequested, this, &DesktopApp::openSystemMonitor);
    connect(m_actions, &DesktopActions::quitRequested, this, &DesktopApp::quit);
    QmlHost::configure(m_monitor.get(), m_settings, m_loc, m_actions);

    m_panel = new PanelWindow(*m_monitor, this);
    m_panel->setSource(m_options.panelSource);
    connect(m_actions, &DesktopActions::panelCloseRequested, m_panel, &PanelWindow::close);
    connect(m_panel, &PanelWindow::windowClosedByUser, this, [this] {
        // Without a tray item nothing would be left to reach the monitor by.
        if (!m_item->hostPresent())
            quit();
    });

    // 5. The tray item.
    m_item = new StatusNotifierItem(*m_monitor, *m_loc, *m_settings, m_options.bus, this);
    connect(m_item, &StatusNotifierItem::activated, m_panel, &PanelWindow::toggle);
    connect(&m_item->menu(), &DBusMenu::triggered, this, [this](DBusMenu::Action action) {
        switch (action) {
        case DBusMenu::Action::openPanel:
            openPanel();
            break;
        case DBusMenu::Action::preferences:
            openPreferences();
            break;
        case DBusMenu::Action::quit:
            quit();
            break;
        }
    });
    connect(m_item, &StatusNotifierItem::hostPresentChanged, this, [this](bool present) {
        if (present)
            m_withoutHost = false;
    });
    if (!m_item->start())
        std::fprintf(stderr, "sulkbox: the tray item could not be put on the session bus\n");
    QTimer::singleShot(m_options.hostWaitMs, this, &DesktopApp::checkForHost);
}

DesktopApp::~DesktopApp()
{
    // The window and the item go before the model they read.
    delete m_item;
    delete m_panel;
    QmlHost::reset();
}

void DesktopApp::checkForHost()
{
    if (m_item->hostPresent())
        return;
    m_withoutHost = true;
    std::fprintf(stderr, "sulkbox: no tray host is running, so the panel opens as a window; "
                         "on GNOME, the AppIndicator extension (gnome-shell-extension-appindicator) provides one\n");
    emit trayHostMissing();
    m_panel->openAsWindow();
}

void DesktopApp::openPanel()
{
    if (m_withoutHost)
        m_panel->openAsWindow();
    else
        m_panel->openAtPointer();
}

void DesktopApp::quit()
{
    m_panel->close();
    QCoreApplication::quit();
}

void DesktopApp::openPreferences()
{
    // Hook: the preferences window opens here once it exists.
}

void DesktopApp::openSystemMonitor()
{
    // Hook: the desktop's system monitor is started here.
}

void DesktopApp::registerLoginItem(bool on)
{
    // Hook: LoginItem::set(on) once launch at login exists. Until then the
    // migrated "launchAtLogin" setting stays as the old installation had it.
    Q_UNUSED(on);
}

void DesktopApp::startUpdateController()
{
    // Hook: Updater::shared() once the update check exists.
}
