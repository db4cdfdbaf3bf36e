#pragma once
// The command-line face: `sulkbox status`, `sulkbox bar`, `sulkbox capture`.

#include <QStringList>

#include <memory>
#include <optional>

class Samplers;
class SystemMonitor;

namespace Cli {

// Whether these arguments ask for a command-line run (a command, --help,
// --version, or anything unknown) rather than the desktop face.
bool wantsCommandLine(const QStringList &arguments);

// Runs the command line; returns the exit status (2 for usage errors).
// Needs a QCoreApplication.
int run(const QStringList &arguments);

// The measurement behind `sulkbox status`: a model over `samplers`, as with
// the panel open, whose rates are measured over one refresh interval (at
// most 2 s). Runs the event loop while it waits.
std::unique_ptr<SystemMonitor> measure(std::shared_ptr<Samplers> samplers);

} // namespace Cli
