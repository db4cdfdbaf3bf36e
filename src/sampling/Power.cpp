#include "sampling/Power.h"

PowerMeter::PowerMeter(SystemRoots roots)
    : m_roots(std::move(roots))
{
}

QmPowerReading PowerMeter::read()
{
    return {};
}

void PowerMeter::reset()
{
}

namespace {
PowerMeter &sharedMeter()
{
    static PowerMeter meter;
    return meter;
}
} // namespace

QmPowerReading QmReadPower()
{
    return sharedMeter().read();
}

void QmResetPower()
{
    sharedMeter().reset();
}
