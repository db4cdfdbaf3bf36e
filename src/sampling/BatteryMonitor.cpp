#include "sampling/BatteryMonitor.h"

BatteryMonitor::BatteryMonitor(SystemRoots roots)
    : m_roots(std::move(roots))
{
}

BatterySample BatteryMonitor::read()
{
    return {};
}
