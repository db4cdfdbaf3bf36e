#pragma once
// The real panel in a window of its own, over a model fed by fake samplers
// and a hand-moved clock, as the desktop process would host it: the shared
// QML context, the software renderer, the panel opened through the model.

#include "common/FakeSamplers.h"
#include "common/QmlWarnings.h"
#include "common/TestSupport.h"

#include "l10n/Localizer.h"
#include "model/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "ui/common/DesktopActions.h"
#include "ui/common/DesktopContext.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QTest>

#include <memory>

namespace PanelHarness {

// The panel tests' frame: QML warnings fail the test, the software
// renderer, and the settings and texts reset around every test. A test class
// that needs more in cleanup() declares its own and calls this one.
class TestCase : public QObject {
    Q_OBJECT

protected slots:
    void initTestCase()
    {
        QmlWarnings::catchAll();
        // Once per test executable, before any window exists.
        static const bool rendering = (QQuickWindow::setGraphicsApi(QSGRendererInterface::Software),
                                       QQuickStyle::setStyle(QStringLiteral("Fusion")), true);
        Q_UNUSED(rendering);
    }
    void init() { TestSupport::resetSettings(); }
    void cleanup()
    {
        TestSupport::resetSettings();
        QML_CLEAN();
    }
};

struct Panel {
    ManualScheduler scheduler;
    std::shared_ptr<FakeSamplers> samplers = std::make_shared<FakeSamplers>();
    std::unique_ptr<SystemMonitor> monitor;
    DesktopActions actions;
    std::unique_ptr<QQmlEngine> engine;
    std::unique_ptr<QQuickWindow> window;
    QQuickItem *root = nullptr;

    // The fake readings start as an ordinary machine; a test changes them
    // before load().
    Panel()
    {
        samplers->cpu.total = 0.23;
        samplers->cpu.user = 0.15;
        samplers->cpu.system = 0.08;
        samplers->cpu.perCore = {0.1, 0.3, 0.2, 0.4};
        samplers->memory.total = 16e9;
        samplers->memory.used = 8e9;
        samplers->memory.wired = 2e9;
        samplers->memory.cached = 4e9;
        samplers->memory.deriveFreeAndPressure();
        samplers->memory.swapTotal = 2e9;
        samplers->memory.swapUsed = 1e8;
        samplers->network.primaryInterface = QStringLiteral("eth0");
        samplers->network.ipv4 = QStringLiteral("192.168.1.20");
        samplers->network.downRate = 1.2e6;
        samplers->disk.volumes = {VolumeInfo{QStringLiteral("system"), QStringLiteral("/"), 500e9, 200e9}};
        samplers->sensors.cpuTemp = 55;
        samplers->sensors.fans = {FanInfo{0, 1800, 1000, 5000}};
        samplers->processes = {ProcInfo(10, QStringLiteral("compositor"), 12.5, 2),
                               ProcInfo(11, QStringLiteral("editor"), 4, 1)};
    }

    // Builds the model from the fake readings and loads the panel, open.
    void load(bool open = true)
    {
        monitor = std::make_unique<SystemMonitor>(samplers, scheduler);
        engine = std::make_unique<QQmlEngine>();
        DesktopContext::install(engine->rootContext(), monitor.get(), &AppSettings::shared(), &Localizer::shared(),
                                &actions);
        window = std::make_unique<QQuickWindow>();
        QQmlComponent component(engine.get(), QUrl(QStringLiteral("qrc:/sulkbox/qml/Panel.qml")));
        QObject *object = component.beginCreate(engine->rootContext());
        if (!object) {
            qWarning("%s", qPrintable(component.errorString()));
            return;
        }
        root = qobject_cast<QQuickItem *>(object);
        root->setParentItem(window->contentItem());
        component.completeCreate();
        window->resize(300, int(root->implicitHeight()));
        QObject::connect(root, &QQuickItem::implicitHeightChanged, window.get(),
                         [this] { window->resize(300, int(root->implicitHeight())); });
        window->show();
        if (open)
            monitor->setPanelVisible(true);
        settle();
    }

    // Lets layout and painting catch up (a synchronous render).
    void settle()
    {
        QCoreApplication::processEvents();
        window->grabWindow();
        QCoreApplication::processEvents();
    }

    // Moves the model's clock, running what falls due.
    void advance(qint64 ms)
    {
        scheduler.advance(ms);
        settle();
    }

    // By object name, through objects and the item tree (repeated rows are
    // children of their parent item only).
    template <typename T = QQuickItem>
    T *find(const QString &name) const
    {
        if (!root)
            return nullptr;
        if (T *found = root->findChild<T *>(name))
            return found;
        const QList<QQuickItem *> items = findAll(name);
        return items.isEmpty() ? nullptr : qobject_cast<T *>(items.first());
    }

    QList<QQuickItem *> findAll(const QString &name) const { return collect(root, name); }

    // Every item at or below `item` with that object name.
    static QList<QQuickItem *> collect(QQuickItem *item, const QString &name)
    {
        QList<QQuickItem *> out;
        if (item && item->objectName() == name)
            out << item;
        for (QQuickItem *child : item ? item->childItems() : QList<QQuickItem *>())
            out << collect(child, name);
        return out;
    }

    static QPoint scenePoint(QQuickItem *item, QPointF local) { return item->mapToScene(local).toPoint(); }

    void click(QQuickItem *item, QPointF local)
    {
        QTest::mouseClick(window.get(), Qt::LeftButton, {}, scenePoint(item, local));
        settle();
    }
    void click(QQuickItem *item) { click(item, QPointF(item->width() / 2, item->height() / 2)); }

    void hover(QQuickItem *item, QPointF local)
    {
        QTest::mouseMove(window.get(), scenePoint(item, local));
        settle();
    }

    QString text(QQuickItem *item) const
    {
        return item ? item->property("text").toString() : QString();
    }

    void close()
    {
        monitor->setPanelVisible(false);
        window->hide();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    ~Panel()
    {
        // The view goes before the model it observes.
        delete root;
        window.reset();
        engine.reset();
    }
};

// Every item below `item` whose class name starts with `className`.
inline QList<QQuickItem *> itemsOfClass(QQuickItem *item, const char *className)
{
    QList<QQuickItem *> out;
    if (!item)
        return out;
    if (QByteArray(item->metaObject()->className()).startsWith(className))
        out << item;
    for (QQuickItem *child : item->childItems())
        out << itemsOfClass(child, className);
    return out;
}

// Whether an item and all its ancestors are visible.
inline bool shown(const QQuickItem *item)
{
    for (; item; item = item->parentItem()) {
        if (!item->isVisible() || item->opacity() <= 0)
            return false;
    }
    return true;
}

} // namespace PanelHarness
