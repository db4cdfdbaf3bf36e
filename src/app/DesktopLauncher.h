#pragma once
// `sulkbox` without a command becomes the desktop face: it replaces itself
// with the `sulkbox-desktop` executable, so one process results. The command
// line itself never loads a GUI library.

#include <QString>

namespace DesktopLauncher {

// Where the desktop face lives for a `sulkbox` at `launcherPath`: next to it
// (the build tree), else in ../libexec/sulkbox/ (an installed tree). Empty
// when neither holds an executable file.
QString find(const QString &launcherPath);

// The absolute path of this executable.
QString selfPath(const char *argv0);

// Execs the desktop face with the given arguments (argv[0] is replaced) and
// SULKBOX_LAUNCHER set to this executable. Returns only on failure, after one
// line on standard error, with the exit status to use.
int exec(int argc, char **argv);

} // namespace DesktopLauncher
