#include "sampling/DiskMonitor.h"

DiskMonitor::DiskMonitor(SystemRoots roots)
    : m_roots(std::move(roots))
{
}

DiskSample DiskMonitor::read()
{
    return {};
}
