#include "sampling/MemoryMonitor.h"

MemoryMonitor::MemoryMonitor(SystemRoots roots)
    : m_roots(std::move(roots))
{
}

MemorySample MemoryMonitor::read()
{
    return {};
}

namespace MemoryCleaner {

void freeUp(QObject *context, std::function<void(double)> completion, SystemRoots)
{
    QMetaObject::invokeMethod(context, [completion] { completion(0); }, Qt::QueuedConnection);
}

} // namespace MemoryCleaner
