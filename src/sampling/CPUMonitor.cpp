#include "sampling/CPUMonitor.h"

CPUMonitor::CPUMonitor(SystemRoots roots)
    : m_roots(std::move(roots))
{
}

CPUSample CPUMonitor::read()
{
    return {};
}

QString CPUMonitor::brandString(const SystemRoots &)
{
    return QStringLiteral("CPU");
}
