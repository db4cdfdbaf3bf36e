#include "ui/tray/PanelWindow.h"

#include "model/SystemMonitor.h"
#include "ui/common/QmlHost.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPalette>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QtMath>

#include <algorithm>
#include <cstdio>

namespace PanelPlacement {

namespace {
constexpr int cornerSize = 48; // no tray item sits this close to a screen's top-left corner
constexpr int gap = 6;         // between the anchor and the window
constexpr int margin = 4;      // between the window and the screen's edge
} // namespace

bool usable(QPoint point, const QList<QRect> &screens)
{
    for (const QRect &screen : screens) {
        if (!screen.contains(point))
            continue;
        const QPoint local = point - screen.topLeft();
        return local.x() >= cornerSize || local.y() >= cornerSize;
    }
    return false;
}

QPoint place(QPoint anchor, QSize size, QRect available)
{
    int x = anchor.x() - size.width() / 2;
    int y;
    if (anchor.y() <= available.center().y())
        y = std::max(anchor.y() + gap, available.top() + margin);
    else
        y = std::min(anchor.y() - gap, available.bottom() - margin) - size.height() + 1;

    const int left = available.left() + margin;
    const int right = available.right() - margin - size.width() + 1;
    x = std::max(left, std::min(x, right));
    const int top = available.top() + margin;
    const int bottom = available.bottom() - margin - size.height() + 1;
    y = std::max(top, std::min(y, bottom)); // too tall: the top stays on screen
    return {x, y};
}

} // namespace PanelPlacement

namespace {

QList<QRect> screenRects()
{
    QList<QRect> rects;
    for (QScreen *screen : QGuiApplication::screens())
        rects.append(screen->geometry());
    return rects;
}

QScreen *screenAt(QPoint point)
{
    if (QScreen *screen = QGuiApplication::screenAt(point))
        return screen;
    return QGuiApplication::primaryScreen();
}

} // namespace

PanelWindow::PanelWindow(SystemMonitor &monitor, QObject *parent)
    : QObject(parent)
    , m_monitor(monitor)
{
}

PanelWindow::~PanelWindow()
{
    if (m_open)
        m_monitor.setPanelVisible(false);
    if (m_window) {
        // The window sends events while it goes; they are no longer ours.
        m_window->removeEventFilter(this);
        disconnect(m_window, nullptr, this, nullptr);
    }
    if (m_content)
        disconnect(m_content, nullptr, this, nullptr);
    delete m_content;
    delete m_window;
}

bool PanelWindow::ensureWindow()
{
    if (m_window && m_content)
        return true;

    QQmlEngine &engine = QmlHost::engine();
    QQmlComponent component(&engine, m_source);
    QObject *object = component.create(engine.rootContext());
    auto *item = qobject_cast<QQuickItem *>(object);
    if (!item) {
        std::fprintf(stderr, "sulkbox: the panel cannot be shown: %s\n",
                     qPrintable(component.errorString().trimmed()));
        delete object;
        return false;
    }

    auto *window = new QQuickWindow;
    window->setTitle(QStringLiteral("sulkbox"));
    window->setColor(QGuiApplication::palette().color(QPalette::Window));
    window->installEventFilter(this);
    item->setParentItem(window->contentItem());
    connect(item, &QQuickItem::implicitHeightChanged, this, &PanelWindow::fitToContent);
    connect(item, &QQuickItem::widthChanged, this, &PanelWindow::fitToContent);
    connect(window, &QWindow::activeChanged, this, &PanelWindow::activeChanged);
    m_window = window;
    m_content = item;
    return true;
}

void PanelWindow::toggle(QPoint at)
{
    if (m_open) {
        close();
        return;
    }
    if (m_closedByFocus.isValid() && m_closedByFocus.elapsed() < refocusGraceMs) {
        m_closedByFocus.invalidate();
        return;
    }
    openDropDown(PanelPlacement::usable(at, screenRects()) ? at : QCursor::pos());
}

void PanelWindow::openAtPointer()
{
    if (m_open) {
        m_window->raise();
        m_window->requestActivate();
        return;
    }
    openDropDown(QCursor::pos());
}

void PanelWindow::openDropDown(QPoint anchor)
{
    m_anchor = anchor;
    show(Style::dropDown);
}

void PanelWindow::openAsWindow()
{
    if (m_open) {
        m_window->raise();
        m_window->requestActivate();
        return;
    }
    show(Style::window);
}

void PanelWindow::show(Style style)
{
    if (!ensureWindow())
        return;
    m_style = style;
    if (style == Style::dropDown)
        m_window->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    else
        m_window->setFlags(Qt::Window);
    m_wasActive = false;
    m_closedByFocus.invalidate();
    fitToContent();
    if (style == Style::window) {
        const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
        m_window->setPosition(area.center() - QPoint(m_window->width() / 2, m_window->height() / 2));
    }
    // The model hears of it first, so the panel opens on fresh figures.
    setOpen(true);
    m_window->show();
    m_window->requestActivate();
    // A window hidden while it had the focus can still count as active when
    // it shows again, and then no change of focus announces it: losing the
    // focus later must close it all the same.
    if (m_window->isActive())
        m_wasActive = true;
}

void PanelWindow::fitToContent()
{
    if (!m_window || !m_content)
        return;
    const QSize size(qMax(1, qCeil(m_content->width())), qMax(1, qCeil(m_content->implicitHeight())));
    m_content->setHeight(size.height());
    if (m_style == Style::dropDown) {
        const QRect area = screenAt(m_anchor)->availableGeometry();
        m_window->setGeometry(QRect(PanelPlacement::place(m_anchor, size, area), size));
    } else {
        m_window->resize(size);
    }
    // Both styles keep the content's size: the panel is laid out for it.
    m_window->setMinimumSize(size);
    m_window->setMaximumSize(size);
}

void PanelWindow::close()
{
    if (!m_open)
        return;
    m_window->hide();
    setOpen(false);
}

void PanelWindow::setOpen(bool open)
{
    if (open == m_open)
        return;
    m_open = open;
    m_monitor.setPanelVisible(open);
    emit openChanged(open);
}

void PanelWindow::activeChanged()
{
    if (!m_open || m_style != Style::dropDown)
        return;
    if (m_window->isActive()) {
        m_wasActive = true;
        return;
    }
    if (m_wasActive) {
        close();
        m_closedByFocus.start();
    }
}

bool PanelWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window) {
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            close();
            return true;
        }
        if (event->type() == QEvent::Close && m_open) {
            // The title bar's close button (or the window manager) closes it.
            setOpen(false);
            if (m_style == Style::window)
                emit windowClosedByUser();
        }
    }
    return QObject::eventFilter(watched, event);
}
