#pragma once
// Launch at login: an XDG autostart entry, $XDG_CONFIG_HOME/autostart/sulkbox.desktop,
// that starts the `sulkbox` launcher when the user logs in. Turning it off
// deletes the entry. The state lives in that file alone; the "launchAtLogin"
// setting only mirrors it.

#include <QByteArray>
#include <QString>

namespace LoginItem {

// Where the entry lives for this user, following XDG_CONFIG_HOME as it is now.
QString entryPath();

// Whether the entry is there and would start sulkbox: a regular file that
// the user has not switched off (Hidden=true or X-GNOME-Autostart-enabled=false).
bool isEnabled();

// Writes or deletes the entry. Nothing happens when it is already in the
// asked state. A failure writes one line, "Qm login item error: " and the
// reason, and nothing else happens.
void set(bool enabled);

// The program the entry starts: the launcher named by SULKBOX_LAUNCHER when
// that is an absolute path to an executable, else the running executable.
QString launcherPath();

// The entry's text for a given program.
QByteArray entryContents(const QString &program);

// One argument of an Exec line, quoted as the desktop entry format asks.
QString quoteExecArgument(const QString &argument);

} // namespace LoginItem
