#pragma once
// What every QML view of the desktop face receives, as root-context
// properties of its engine:
//   monitor      SystemMonitor*   the one model
//   appSettings  AppSettings*     every setting, observable and writable
//   loc          Localizer*       loc.text(LocKey.x, [args]) and the language
//   app          QObject*         the desktop actions (open preferences, quit…)
// Tests give a view the same four with fakes behind them.

#include <QString>

class QObject;
class QQmlContext;
class Localizer;
class SystemMonitor;
class AppSettings;

namespace DesktopContext {

void install(QQmlContext *context, SystemMonitor *monitor, AppSettings *settings, Localizer *loc, QObject *app);

} // namespace DesktopContext
