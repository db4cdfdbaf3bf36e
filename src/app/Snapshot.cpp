#include "app/Snapshot.h"

#include <cstdio>

namespace Snapshot {

int capture(const QString &)
{
    std::fprintf(stderr, "sulkbox: capture is not available yet\n");
    return 1;
}

} // namespace Snapshot
