#pragma once
// The only number-to-text rules of the system. printf-style fixed decimals
// with "." as the decimal mark whatever the user's locale, no grouping.

#include <QString>

namespace Fmt {

// Base-1000 units B, KB, MB, GB, TB, PB; the unit is chosen before rounding.
QString bytes(double v, int decimals);
// Bytes per second: bytes with the given decimals, then "/s".
QString rate(double bytesPerSecond, int decimals = 1);
// A fraction 0..1 as a percentage, not clamped.
QString percent(double v, int decimals);
// Below 1 W in milliwatts, else watts with one decimal.
QString watts(double v);
// °C, or °F when "useFahrenheit" is on (read on every call).
QString temp(double celsius);
// "45m", "1h 5m"; "—" below one minute.
QString minutes(int m);

// `v` with exactly `decimals` decimals (any count from 0 up, as printf
// takes it), rounded as printf rounds.
QString fixed(double v, int decimals);

} // namespace Fmt
