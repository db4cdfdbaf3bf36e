#pragma once
// What every QML view of the desktop face receives, as root-context
// properties of its engine:
//   monitor      SystemMonitor*   the one model
//   appSettings  AppSettings*     every setting, observable and writable
//   loc          Localizer*       the language (loc.language, loc.concrete)
//   texts        QmlTexts*        every text by key name: texts.memory
//   fmt          QmlFormat*       fmt.bytes, fmt.percent, fmt.temp, fmt.loadColor…
//   app          DesktopActions*  open preferences, system monitor, quit
// Tests give a view the same with fakes behind the model.

#include <QString>

class QObject;
class QQmlContext;
class Localizer;
class SystemMonitor;
class AppSettings;
class DesktopActions;

namespace DesktopContext {

void install(QQmlContext *context, SystemMonitor *monitor, AppSettings *settings, Localizer *loc,
             DesktopActions *app);

} // namespace DesktopContext
