#include "sampling/GPUMonitor.h"

GPUMonitor::GPUMonitor(SystemRoots roots)
    : m_roots(std::move(roots))
{
}

GPUSample GPUMonitor::read()
{
    return {};
}
