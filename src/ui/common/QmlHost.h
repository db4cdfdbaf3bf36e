#pragma once
// The one QML engine of the desktop face. The panel and the preferences
// window share it, so QML types and the context are loaded once. It is made
// on first use (the first time the panel or the preferences window opens),
// never at start-up, and kept for the rest of the run.

class QQmlEngine;
class Localizer;
class SystemMonitor;
class AppSettings;
class DesktopActions;

namespace QmlHost {

// What the engine's context will hold; call once before engine().
void configure(SystemMonitor *monitor, AppSettings *settings, Localizer *loc, DesktopActions *actions);

// The engine, created with the context on first call.
QQmlEngine &engine();

// Whether engine() has been called yet.
bool exists();

// Drops the engine (tests, and the end of the run).
void reset();

} // namespace QmlHost
