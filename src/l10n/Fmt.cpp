#include "l10n/Fmt.h"

#include "settings/Settings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <string>

namespace {

// Figures as the top bar and the panel show them (a few decimals, values
// far below 2^51) without to_chars' floating-point tables, whose pages would
// otherwise stay resident in a process that prints a figure once a second.
// The result is the one to_chars gives: `v` rounded on its exact binary
// value, ties to even. Returns false for anything it does not handle.
bool smallFixed(double v, int decimals, char *out, qsizetype &length)
{
    static constexpr double powers[] = {1, 10, 100, 1e3, 1e4, 1e5, 1e6};
    constexpr double limit = 2251799813685248.0; // 2^51
    if (decimals >= int(std::size(powers)))
        return false;
    const double scale = powers[decimals];
    const double magnitude = std::fabs(v);
    if (!(magnitude < limit / scale))
        return false;
    quint64 units = 0; // |v| rounded, in units of the last decimal
    if (magnitude >= 1e-200) {
        const double p = magnitude * scale;
        // The product's rounding error, exactly: p + err is |v| * 10^decimals.
        const double err = std::fma(magnitude, scale, -p);
        double r = std::nearbyint(p); // ties to even
        // A tie in p need not be one in the exact product.
        if (p - r == 0.5 && err > 0)
            r += 1;
        else if (p - r == -0.5 && err < 0)
            r -= 1;
        units = quint64(r);
    }
    char digits[24];
    const qsizetype n = std::to_chars(digits, digits + sizeof digits, units).ptr - digits;
    const qsizetype fraction = std::min<qsizetype>(n, decimals); // digits after the point
    char *o = out;
    if (std::signbit(v))
        *o++ = '-';
    if (n > decimals)
        o = std::copy(digits, digits + n - decimals, o);
    else
        *o++ = '0';
    if (decimals > 0) {
        *o++ = '.';
        o = std::fill_n(o, decimals - fraction, '0');
        o = std::copy(digits + n - fraction, digits + n, o);
    }
    length = o - out;
    return true;
}

// `v` as fixed() writes it with `suffix` after it, made in one allocation.
QString fixedThen(double v, int decimals, QLatin1StringView suffix)
{
    if (!std::isfinite(v))
        v = 0;
    decimals = std::max(decimals, 0);
    // smallFixed writes at most a sign, 16 digits, the point and 6 decimals.
    char quick[48];
    qsizetype quickLength = 0;
    if (suffix.size() <= 16 && smallFixed(v, decimals, quick, quickLength)) {
        std::copy(suffix.begin(), suffix.end(), quick + quickLength);
        return QString::fromLatin1(quick, quickLength + suffix.size());
    }
    // to_chars is locale-independent and rounds exactly like printf. Room for
    // the sign, the 309 integer digits of the largest double, the point and
    // every decimal asked for; on the stack for the usual few decimals.
    std::array<char, 352> small;
    std::string large;
    char *buf = small.data();
    size_t size = small.size();
    if (size_t(decimals) + 320 > size) {
        large.resize(size_t(decimals) + 320);
        buf = large.data();
        size = large.size();
    }
    const auto res = std::to_chars(buf, buf + size, v, std::chars_format::fixed, decimals);
    if (res.ec != std::errc())
        return u'0' + QString(suffix);
    return QString::fromLatin1(buf, qsizetype(res.ptr - buf)) + suffix;
}

QString bytesThen(double v, int decimals, bool perSecond)
{
    static constexpr QLatin1StringView units[] = {
        QLatin1StringView(" B"), QLatin1StringView(" KB"), QLatin1StringView(" MB"),
        QLatin1StringView(" GB"), QLatin1StringView(" TB"), QLatin1StringView(" PB")};
    static constexpr QLatin1StringView rates[] = {
        QLatin1StringView(" B/s"), QLatin1StringView(" KB/s"), QLatin1StringView(" MB/s"),
        QLatin1StringView(" GB/s"), QLatin1StringView(" TB/s"), QLatin1StringView(" PB/s")};
    if (!std::isfinite(v))
        v = 0;
    int unit = 0;
    double scaled = v;
    if (v >= 1000) {
        scaled = v / 1000;
        unit = 1;
        while (scaled >= 1000 && unit < 5) {
            scaled /= 1000;
            ++unit;
        }
    }
    return fixedThen(scaled, decimals, perSecond ? rates[unit] : units[unit]);
}

} // namespace

namespace Fmt {

QString fixed(double v, int decimals)
{
    return fixedThen(v, decimals, {});
}

QString bytes(double v, int decimals)
{
    return bytesThen(v, decimals, false);
}

QString rate(double bytesPerSecond, int decimals)
{
    return bytesThen(bytesPerSecond, decimals, true);
}

QString percent(double v, int decimals)
{
    return fixedThen(v * 100, decimals, QLatin1StringView("%"));
}

QString watts(double v)
{
    if (v < 1.0)
        return fixed(v * 1000, 0) + QStringLiteral(" mW");
    return fixed(v, 1) + QStringLiteral(" W");
}

QString temp(double celsius)
{
    if (Settings::flag(Settings::Key::useFahrenheit))
        return fixed(celsius * 9 / 5 + 32, 0) + QStringLiteral("°F");
    return fixed(celsius, 0) + QStringLiteral("°");
}

QString minutes(int m)
{
    if (m < 1)
        return QStringLiteral("\u2014");
    if (m < 60)
        return QString::number(m) + u'm';
    return QString::number(m / 60) + QStringLiteral("h ") + QString::number(m % 60) + u'm';
}

} // namespace Fmt
