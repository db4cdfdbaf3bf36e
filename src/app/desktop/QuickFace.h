#pragma once
// The Qt Quick half of the desktop face: the panel window, the preferences
// window and the one QML engine they share. The desktop process loads it on
// the first opening of either (sulkbox-desktop from the module
// libsulkbox_quick.so next to it), so a face whose panel is never opened
// never maps Qt Quick or QML at all.

#include "app/desktop/Updater.h"

#include <QObject>
#include <QPoint>
#include <QString>
#include <QUrl>

class AppSettings;
class Localizer;
class QWindow;
class SystemMonitor;

class QuickFace : public QObject {
    Q_OBJECT
public:
    struct Context {
        SystemMonitor *monitor = nullptr;
        AppSettings *settings = nullptr;
        Localizer *loc = nullptr;
        QUrl panelSource;
    };

    using QObject::QObject;

    // The panel window: a click on the tray item at `at` (opens there, or
    // closes an open panel), an opening at the pointer, an opening as an
    // ordinary window (no tray host), closing.
    virtual void togglePanel(QPoint at) = 0;
    virtual void openPanelAtPointer() = 0;
    virtual void openPanelAsWindow() = 0;
    virtual void closePanel() = 0;
    virtual bool panelOpen() const = 0;
    virtual bool panelIsWindow() const = 0;
    virtual QWindow *panelWindow() const = 0;

    // The preferences window: made on first call, raised when already open.
    virtual void openPreferences() = 0;
    // Shows an update check's result that arrived before this half was loaded.
    virtual void reportUpdate(const Updater::Result &result, bool userInitiated) = 0;

signals:
    void panelOpenChanged(bool open);
    // The ordinary window was closed from its title bar.
    void panelWindowClosedByUser();
    // What the views ask the desktop process for.
    void preferencesRequested();
    void systemMonitorRequested();
    void quitRequested();
};

// The module's entry point.
extern "C" QuickFace *sulkbox_create_quick_face(const QuickFace::Context &context, QObject *parent);

namespace QuickFaceLoader {

// Loads the Qt Quick half and makes its face; null (with `error` set) when
// it cannot be loaded.
QuickFace *load(const QuickFace::Context &context, QObject *parent, QString *error);

} // namespace QuickFaceLoader
