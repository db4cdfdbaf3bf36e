#pragma once
// The preferences window and the update result window as the desktop process
// makes them: the model on a hand-moved clock (CPU 42 %, memory 31 %), the
// shared engine's context, an updater and both windows, torn down so that
// nothing is left for the leak checker.

#include "QuickDriver.h"

#include "common/FakeSamplers.h"
#include "common/QmlWarnings.h"

#include "app/desktop/Updater.h"
#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "ui/common/DesktopActions.h"
#include "ui/common/QmlHost.h"
#include "ui/prefs/PreferencesWindow.h"
#include "ui/prefs/UpdateWindow.h"

#include <QNetworkProxy>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QTest>

#include <memory>

struct PrefsRig {
    ManualScheduler clock;
    std::shared_ptr<FakeSamplers> samplers = std::make_shared<FakeSamplers>();
    std::unique_ptr<SystemMonitor> monitor;
    DesktopActions actions;
    std::unique_ptr<Updater> updater;
    std::unique_ptr<UpdateWindow> updates;
    std::unique_ptr<PreferencesWindow> prefs;

    // Once per test class (initTestCase): the software renderer, no proxy
    // between the updater and the test's own server, QML warnings as failures.
    static void setUpCase()
    {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        QmlWarnings::catchAll();
    }

    PrefsRig()
    {
        samplers->cpu.total = 0.42;
        samplers->memory.pressure = 0.31;
        monitor = std::make_unique<SystemMonitor>(samplers, clock);
        QmlHost::configure(monitor.get(), &AppSettings::shared(), &Localizer::shared(), &actions);
        updater = std::make_unique<Updater>(clock);
        updates = std::make_unique<UpdateWindow>(*updater);
        prefs = std::make_unique<PreferencesWindow>(*monitor, *updates);
    }
    ~PrefsRig()
    {
        prefs.reset();
        updates.reset();
        QmlHost::reset();
        QuickDriver::flushSceneGraph();
    }

    // Opens the preferences window and waits until it shows.
    QQuickWindow *openPreferences()
    {
        prefs->open();
        QQuickWindow *w = prefs->window();
        if (w && !QTest::qWaitForWindowExposed(w))
            qWarning("the preferences window was not exposed");
        return w;
    }
};
