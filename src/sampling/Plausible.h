#pragma once
// The ranges a reading must fall in to be believed. Kernel files and
// captured snapshots can hold anything (an all-ones "unknown", a damaged
// value, a stuck sensor); a figure outside these ranges is left out of the
// records, never clamped and never wrapped.

#include <cmath>

namespace Plausible {

// Temperatures of chips, drives and batteries, °C (both ends excluded).
constexpr double minCelsius = 0;
constexpr double maxCelsius = 200;
inline bool celsius(double c)
{
    return c > minCelsius && c < maxCelsius;
}

// Fan speeds, rpm. The fastest small server fans run near 30,000.
constexpr double maxFanRpm = 50000;
inline bool fanRpm(double rpm)
{
    return rpm >= 0 && rpm <= maxFanRpm;
}
// A fan speed as shown: an implausible one reads as no reading, 0 rpm.
inline double fanRpmOrZero(double rpm)
{
    return fanRpm(rpm) ? rpm : 0.0;
}

// Power drawn by one package, RAPL domain or graphics board, watts. The
// largest of them stay well below a kilowatt.
constexpr double maxWatts = 2000;
inline bool watts(double w)
{
    return w >= 0 && w <= maxWatts;
}

} // namespace Plausible
