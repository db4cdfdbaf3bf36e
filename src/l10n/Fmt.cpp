#include "l10n/Fmt.h"

#include "settings/Settings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

namespace Fmt {

QString fixed(double v, int decimals)
{
    if (!std::isfinite(v))
        v = 0;
    decimals = std::max(decimals, 0);
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
        return QStringLiteral("0");
    return QString::fromLatin1(buf, qsizetype(res.ptr - buf));
}

QString bytes(double v, int decimals)
{
    static const char *const units[] = {"B", "KB", "MB", "GB", "TB", "PB"};
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
    return fixed(scaled, decimals) + u' ' + QLatin1String(units[unit]);
}

QString percent(double v, int decimals)
{
    return fixed(v * 100, decimals) + u'%';
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
