#pragma once
// What the preferences window and the update result window share: loading a
// window from QML on the shared engine, in a context of its own.

#include <QString>

class QObject;
class QQmlContext;
class QQuickWindow;

namespace PrefsQml {

// A child context of the shared engine's root, holding `scheme` and
// `name` → `object`. Owned by `object`.
QQmlContext *makeContext(const QString &name, QObject *object);

// Creates the window of `url` in `context`; null (and the errors logged)
// when the QML does not load.
QQuickWindow *createWindow(const QString &url, QQmlContext *context);

// Shows and brings the window forward.
void present(QQuickWindow *window);

} // namespace PrefsQml
