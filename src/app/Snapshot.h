#pragma once
// `sulkbox capture FILE.tar.gz`: the /proc and /sys files the readers read on
// this machine, and nothing else, packed to replay with `--root`.

#include "sampling/SystemRoots.h"

#include <QString>

namespace Snapshot {

// Reads the machine under `roots` once, as an open panel would, and packs
// every shareable file it read into `file` (a .tar.gz). Returns the exit
// status.
int capture(const QString &file, const SystemRoots &roots = {});

} // namespace Snapshot
