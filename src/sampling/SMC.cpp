#include "sampling/SMC.h"

SMC::SMC(SystemRoots roots)
    : m_roots(std::move(roots))
{
}

SMC &SMC::shared()
{
    static SMC instance;
    return instance;
}

std::optional<double> SMC::readValue(const QString &)
{
    return std::nullopt;
}

QList<FanInfo> SMC::fans()
{
    return {};
}
