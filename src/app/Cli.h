#pragma once
// The command-line face: `sulkbox status`, `sulkbox bar`, `sulkbox capture`.

#include <QStringList>

#include <optional>

namespace Cli {

// Whether these arguments ask for a command-line run (a command, --help,
// --version, or anything unknown) rather than the desktop face.
bool wantsCommandLine(const QStringList &arguments);

// Runs the command line; returns the exit status (2 for usage errors).
// Needs a QCoreApplication.
int run(const QStringList &arguments);

} // namespace Cli
