#include "sampling/SensorMonitor.h"

SensorMonitor::SensorMonitor(SystemRoots roots, SMC &smc)
    : m_roots(std::move(roots))
    , m_smc(smc)
{
}

SensorSample SensorMonitor::read()
{
    return {};
}
