// The Qt Quick half's face: the panel window, the QML engine's context and
// the actions its views ask for.

#include "app/desktop/QuickFace.h"
#include "ui/common/DesktopActions.h"
#include "ui/common/QmlHost.h"
#include "ui/prefs/PreferencesWindow.h"
#include "ui/prefs/UpdateWindow.h"
#include "ui/tray/PanelWindow.h"

#include <QQuickStyle>
#include <QQuickWindow>

namespace {

class QuickFaceImpl : public QuickFace {
public:
    QuickFaceImpl(const Context &context, QObject *parent)
        : QuickFace(parent)
        , m_actions(new DesktopActions(this))
        , m_panel(new PanelWindow(*context.monitor, this))
        , m_monitor(context.monitor)
    {
        // From now on the update window follows the updater's results itself.
        UpdateWindow::shared();
        QmlHost::configure(context.monitor, context.settings, context.loc, m_actions);
        m_panel->setSource(context.panelSource);
        connect(m_actions, &DesktopActions::preferencesRequested, this, &QuickFace::preferencesRequested);
        connect(m_actions, &DesktopActions::systemMonitorRequested, this, &QuickFace::systemMonitorRequested);
        connect(m_actions, &DesktopActions::quitRequested, this, &QuickFace::quitRequested);
        connect(m_panel, &PanelWindow::openChanged, this, &QuickFace::panelOpenChanged);
        connect(m_panel, &PanelWindow::windowClosedByUser, this, &QuickFace::panelWindowClosedByUser);
    }

    ~QuickFaceImpl() override
    {
        // The windows and their items go before the engine they came from.
        delete m_prefs;
        delete m_panel;
        UpdateWindow::shared().discardWindow();
        QmlHost::reset();
    }

    void togglePanel(QPoint at) override { m_panel->toggle(at); }
    void openPanelAtPointer() override { m_panel->openAtPointer(); }
    void openPanelAsWindow() override { m_panel->openAsWindow(); }
    void closePanel() override { m_panel->close(); }
    bool panelOpen() const override { return m_panel->isOpen(); }
    bool panelIsWindow() const override { return m_panel->style() == PanelWindow::Style::window; }
    QWindow *panelWindow() const override { return m_panel->window(); }

    void openPreferences() override
    {
        if (!m_prefs)
            m_prefs = new PreferencesWindow(*m_monitor, UpdateWindow::shared(), this);
        m_prefs->open();
    }

    void reportUpdate(const Updater::Result &result, bool userInitiated) override
    {
        UpdateWindow::shared().report(result, userInitiated);
    }

private:
    DesktopActions *m_actions;
    PanelWindow *m_panel;
    SystemMonitor *m_monitor;
    PreferencesWindow *m_prefs = nullptr;
};

} // namespace

extern "C" Q_DECL_EXPORT QuickFace *sulkbox_create_quick_face(const QuickFace::Context &context, QObject *parent)
{
    // Before the first window: the software renderer draws colour emoji, CJK
    // and Thai correctly and costs far less memory than OpenGL.
    static const bool once = [] {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        QQuickStyle::setStyle(QStringLiteral("Fusion"));
        return true;
    }();
    Q_UNUSED(once);
    return new QuickFaceImpl(context, parent);
}
