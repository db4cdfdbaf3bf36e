#pragma once
// `sulkbox capture FILE.tar.gz`: the /proc and /sys files the readers read on
// this machine, and nothing else, packed to replay with `--root`.

#include <QString>

namespace Snapshot {

// Returns the exit status.
int capture(const QString &file);

} // namespace Snapshot
