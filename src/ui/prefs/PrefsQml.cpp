#include "ui/prefs/PrefsQml.h"

#include "ui/common/QmlHost.h"
#include "ui/prefs/ColorScheme.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickWindow>

namespace PrefsQml {

QQmlContext *makeContext(const QString &name, QObject *object)
{
    QQmlEngine &engine = QmlHost::engine();
    auto *context = new QQmlContext(engine.rootContext(), object);
    context->setContextProperty(name, object);
    context->setContextProperty(QStringLiteral("scheme"), &ColorScheme::shared());
    return context;
}

QQuickWindow *createWindow(const QString &url, QQmlContext *context)
{
    QQmlComponent component(context->engine(), QUrl(url));
    QObject *object = component.create(context);
    auto *window = qobject_cast<QQuickWindow *>(object);
    if (!window) {
        qWarning("%s: %s", qPrintable(url), qPrintable(component.errorString()));
        delete object;
        return nullptr;
    }
    return window;
}

void present(QQuickWindow *window)
{
    if (!window)
        return;
    if (window->windowStates() & Qt::WindowMinimized)
        window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
    if (window->isVisible())
        window->raise(); // already open: bring it forward
    else
        window->show();
    window->requestActivate();
}

} // namespace PrefsQml
