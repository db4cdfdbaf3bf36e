#pragma once
// The desktop's own system monitor, opened from the panel's footer. It is
// found by its desktop-file id in the XDG application folders, the current
// desktop's own first; where none is installed nothing happens.

#include <QString>
#include <QStringList>

namespace SystemMonitorApp {

// The ids to try, in order, for a desktop named as in XDG_CURRENT_DESKTOP.
QStringList candidateIds(const QString &currentDesktop);

// The first candidate's desktop file that exists and may be shown, searched
// in XDG_DATA_HOME and XDG_DATA_DIRS; empty when there is none.
QString findDesktopFile(const QStringList &ids);

// The program and arguments of a desktop file's Exec line, field codes
// removed and quoting undone; empty when the entry can't be started (no
// Exec, a TryExec that isn't there, Hidden, not an application).
QStringList commandOf(const QString &desktopFilePath);

// Starts the desktop's system monitor, detached. False when none was found
// or it could not be started.
bool open();

} // namespace SystemMonitorApp
