#include "app/desktop/DesktopApp.h"

#include "app/desktop/LoginItem.h"
#include "app/desktop/PreferencesMigration.h"
#include "app/desktop/QuickFace.h"
#include "app/desktop/SystemMonitorApp.h"
#include "app/desktop/Updater.h"
#include "l10n/Localizer.h"
#include "model/Scheduler.h"
#include "model/SystemMonitor.h"
#include "sampling/LinuxSamplers.h"
#include "settings/AppSettings.h"
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

    // 3. The update controller runs from start-up. A newer version found
    // before any window was opened loads the Quick half to say so; once it
    // is loaded, its update window follows the updater itself.
    startUpdateController();
    connect(&Updater::shared(), &Updater::finished, this, [this](const Updater::Result &result, bool userInitiated) {
        if (m_face || userInitiated || result.outcome != Updater::Outcome::available)
            return;
        if (QuickFace *face = quickFace())
            face->reportUpdate(result, userInitiated);
    });

    // 4. The localizer.
    m_loc = &Localizer::shared();

    // 5. The tray item.
    m_item = new StatusNotifierItem(*m_monitor, *m_loc, *m_settings, m_options.bus, this);
    connect(m_item, &StatusNotifierItem::activated, this, &DesktopApp::toggle);
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
    // The windows and the item go before the model they read.
    delete m_item;
    delete m_face;
}

QuickFace *DesktopApp::quickFace()
{
    if (m_face || m_faceFailed)
        return m_face;
    QString error;
    m_face = QuickFaceLoader::load({m_monitor.get(), m_settings, m_loc, m_options.panelSource}, this, &error);
    if (!m_face) {
        m_faceFailed = true;
        std::fprintf(stderr, "sulkbox: the panel cannot be shown: %s\n", qPrintable(error));
        return nullptr;
    }
    connect(m_face, &QuickFace::preferencesRequested, this, &DesktopApp::openPreferences);
    connect(m_face, &QuickFace::systemMonitorRequested, this, &DesktopApp::openSystemMonitor);
    connect(m_face, &QuickFace::quitRequested, this, &DesktopApp::quit);
    connect(m_face, &QuickFace::panelWindowClosedByUser, this, [this] {
        // Without a tray item nothing would be left to reach the monitor by.
        if (!m_item->hostPresent())
            quit();
    });
    return m_face;
}

void DesktopApp::checkForHost()
{
    if (m_item->hostPresent())
        return;
    m_withoutHost = true;
    std::fprintf(stderr, "sulkbox: no tray host is running, so the panel opens as a window; "
                         "on GNOME, the AppIndicator extension (gnome-shell-extension-appindicator) provides one\n");
    emit trayHostMissing();
    if (QuickFace *face = quickFace())
        face->openPanelAsWindow();
}

void DesktopApp::toggle(QPoint at)
{
    if (QuickFace *face = quickFace())
        face->togglePanel(at);
}

void DesktopApp::openPanel()
{
    QuickFace *face = quickFace();
    if (!face)
        return;
    if (m_withoutHost)
        face->openPanelAsWindow();
    else
        face->openPanelAtPointer();
}

void DesktopApp::quit()
{
    if (m_face)
        m_face->closePanel();
    QCoreApplication::quit();
}

void DesktopApp::openPreferences()
{
    if (QuickFace *face = quickFace())
        face->openPreferences();
}

void DesktopApp::openSystemMonitor()
{
    // None installed: nothing happens.
    SystemMonitorApp::open();
}

void DesktopApp::registerLoginItem(bool on)
{
    LoginItem::set(on);
}

void DesktopApp::startUpdateController()
{
    Updater &updater = Updater::shared();
    updater.start();
}
