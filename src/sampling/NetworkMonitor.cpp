#include "sampling/NetworkMonitor.h"

NetworkMonitor::NetworkMonitor(SystemRoots roots)
    : m_roots(std::move(roots))
{
}

NetworkSample NetworkMonitor::read(bool)
{
    return {};
}
