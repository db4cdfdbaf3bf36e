#pragma once
// Finding and clicking items of a real Qt Quick window, as a user would:
// by object name, scrolled into view first, clicked at their centre.

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QtQuickTest/quicktest.h>

#include <functional>

namespace QuickDriver {

inline void collect(QQuickItem *item, const std::function<bool(QQuickItem *)> &match, QList<QQuickItem *> &out)
{
    if (!item)
        return;
    if (match(item))
        out.append(item);
    for (QQuickItem *child : item->childItems())
        collect(child, match, out);
}

// Every item of the window (popups included) that `match` accepts.
inline QList<QQuickItem *> findAll(QQuickWindow *window, const std::function<bool(QQuickItem *)> &match)
{
    QList<QQuickItem *> out;
    collect(window->contentItem(), match, out);
    return out;
}

inline QQuickItem *find(QQuickWindow *window, const QString &name)
{
    const auto all = findAll(window, [&](QQuickItem *i) { return i->objectName() == name; });
    return all.isEmpty() ? nullptr : all.first();
}

// Whether the item and every parent are visible.
inline bool shown(QQuickItem *item)
{
    return item && item->isVisible() && item->opacity() > 0;
}

// Scrolls the item into view when the window knows how, then clicks it.
inline void click(QQuickWindow *window, QQuickItem *item)
{
    QVERIFY(item);
    QVERIFY2(shown(item), qPrintable(item->objectName() + QStringLiteral(" is hidden")));
    // Layouts place their items when polished, before the next frame.
    QVERIFY(QQuickTest::qWaitForPolish(window));
    const int reveal = window->metaObject()->indexOfMethod("reveal(QVariant)");
    if (reveal >= 0) {
        QMetaObject::invokeMethod(window, "reveal", Q_ARG(QVariant, QVariant::fromValue<QObject *>(item)));
        QVERIFY(QQuickTest::qWaitForPolish(window));
    }
    // A window that sizes itself to its content gets its new size a moment
    // after the content changed.
    const auto centre = [item] { return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)); };
    QTRY_VERIFY2(window->contentItem()->contains(window->contentItem()->mapFromScene(centre())),
                 qPrintable(item->objectName() + QStringLiteral(" is outside the window")));
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, centre().toPoint());
}

inline void click(QQuickWindow *window, const QString &name)
{
    QQuickItem *item = find(window, name);
    QVERIFY2(item, qPrintable(name + QStringLiteral(" not found")));
    click(window, item);
}

// Opens a picker and clicks its choice `index`.
inline void choose(QQuickWindow *window, const QString &picker, int index)
{
    click(window, picker);
    if (QTest::currentTestFailed())
        return;
    const QString name = picker + QStringLiteral("Choice") + QString::number(index);
    QTRY_VERIFY2(shown(find(window, name)), qPrintable(name));
    // The popup's list may need a moment to place its delegates.
    QTest::qWait(20);
    click(window, name);
}

// The scene graph deletes the textures of a destroyed window's images at the
// next frame it renders. After the last window of a test is gone, one frame
// of an empty window lets it do so, so nothing is left for the leak checker.
inline void flushSceneGraph()
{
    QQuickWindow flush;
    flush.resize(8, 8);
    flush.show();
    if (QTest::qWaitForWindowExposed(&flush)) {
        flush.contentItem()->update();
        QTest::qWait(20);
    }
}

} // namespace QuickDriver
