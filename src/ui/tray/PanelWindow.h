#pragma once
// The window the panel drops down in: a frameless Qt Quick window (a tool
// window that stays on top) placed at the point the tray host gave, kept on
// the screen's free area. It closes on a second click on the item, on Escape
// and when it loses focus. Where no tray host runs it is an ordinary window
// instead, so the monitor stays usable.
//
// The model hears setPanelVisible(true) once per opening and (false) once per
// closing. The QML engine is made on the first opening, never before.

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRect>
#include <QSize>
#include <QUrl>

class SystemMonitor;

namespace PanelPlacement {

// Whether a point from the tray host can stand for where the item is. Hosts
// that give points relative to their own widget, and menu activations, give
// points in a screen's top-left corner, where no tray item sits, or none at
// all; those mean "wherever the pointer is".
bool usable(QPoint point, const QList<QRect> &screens);

// The top-left corner of a `size` window hanging from `anchor`: below it
// when the anchor is in the upper half of the free area (a top bar), above
// it otherwise (a bottom panel), centred on it across, and kept inside
// `available` with a small margin.
QPoint place(QPoint anchor, QSize size, QRect available);

} // namespace PanelPlacement

class PanelWindow : public QObject {
    Q_OBJECT
public:
    enum class Style { dropDown, window };
    Q_ENUM(Style)

    // A click on the item within this time after the window closed on
    // losing focus is the click that took the focus: it leaves it closed.
    static constexpr int refocusGraceMs = 500;

    explicit PanelWindow(SystemMonitor &monitor, QObject *parent = nullptr);
    ~PanelWindow() override;

    // Where the content comes from (tests load their own).
    void setSource(const QUrl &source) { m_source = source; }

    // A click on the tray item at `at`: closes the window when it is open,
    // opens it there otherwise (at the pointer when `at` cannot be used).
    void toggle(QPoint at);
    // Opens as a drop-down at the pointer (the menu, a second start).
    void openAtPointer();
    // Opens as an ordinary window, centred on the primary screen.
    void openAsWindow();
    void close();

    bool isOpen() const { return m_open; }
    Style style() const { return m_style; }
    QQuickWindow *window() const { return m_window; }
    QQuickItem *content() const { return m_content; }

signals:
    void openChanged(bool open);
    // The ordinary window was closed from its title bar.
    void windowClosedByUser();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool ensureWindow();
    void openDropDown(QPoint anchor);
    void show(Style style);
    void fitToContent();
    void activeChanged();
    void setOpen(bool open);

    SystemMonitor &m_monitor;
    QUrl m_source{QStringLiteral("qrc:/sulkbox/qml/Panel.qml")};
    // Made on the first opening, owned here.
    QQuickWindow *m_window = nullptr;
    QQuickItem *m_content = nullptr;
    Style m_style = Style::dropDown;
    QPoint m_anchor;
    bool m_open = false;
    bool m_wasActive = false;
    QElapsedTimer m_closedByFocus;
};
