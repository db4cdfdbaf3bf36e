#include "personality/Holidays.h"

#include "personality/LunarRules.h"

#include <algorithm>
#include <atomic>
#include <iterator>

namespace Holidays {

namespace {

struct LunarDay {
    short year;
    signed char month;
    signed char day;
    Festival festival;
};

// kLunarFirstYear, kLunarLastYear and kLunarDays: every day from the first
// to the last year on which LunarRules finds a festival, in date order.
#include "LunarFestivals.inc"

std::atomic<quint64> g_computeCount{0};

Greeting greeting(const char16_t *emoji, LocKey phrase)
{
    return Greeting{QString::fromUtf16(emoji), phrase, LocKey::holCheer};
}

// The lunar festival of a civil date: from the table built with the
// application, else from a Chinese calendar made for the one question and
// dropped again (a day outside the table's two centuries).
Festival lunarFestival(const QDate &date)
{
    const int y = date.year();
    const int m = date.month();
    const int d = date.day();
    if (y >= kLunarFirstYear && y <= kLunarLastYear) {
        const auto key = [](int year, int month, int day) { return (year * 16 + month) * 32 + day; };
        const int wanted = key(y, m, d);
        const auto it = std::lower_bound(std::begin(kLunarDays), std::end(kLunarDays), wanted,
                                         [&key](const LunarDay &e, int k) { return key(e.year, e.month, e.day) < k; });
        return it != std::end(kLunarDays) && key(it->year, it->month, it->day) == wanted ? it->festival
                                                                                           : Festival::none;
    }
    LunarRules rules;
    return rules.festival(y, m, d);
}

std::optional<Greeting> rules(const QDate &date)
{
    ++g_computeCount;
    if (!date.isValid())
        return std::nullopt;
    const int m = date.month();
    const int d = date.day();
    if (m == 1 && d == 1)
        return greeting(u"\U0001F973", LocKey::holNewYear);
    if (m == 2 && d == 14)
        return greeting(u"\U0001F970", LocKey::holValentines);
    if (m == 10 && d == 31)
        return greeting(u"\U0001F383", LocKey::holHalloween);
    if (m == 12 && (d == 24 || d == 25))
        return greeting(u"\U0001F384", LocKey::holChristmas);
    switch (lunarFestival(date)) {
    case Festival::midAutumn:
        return greeting(u"\U0001F96E", LocKey::holMidAutumn);
    case Festival::dragonBoat:
        return greeting(u"\U0001F409", LocKey::holDragonBoat);
    case Festival::springFestival:
        return greeting(u"\U0001F9E7", LocKey::holSpring);
    case Festival::none:
        break;
    }
    return std::nullopt;
}

// The one-day cache: the day last asked for, its greeting, and the instants
// [dayStart, dayEnd) it spans, so lookups within the day cost a comparison.
struct Cache {
    std::optional<QDate> day;
    std::optional<Greeting> greeting;
    qint64 dayStart = 0;
    qint64 dayEnd = 0;
};

} // namespace

std::optional<Greeting> compute(const QDateTime &date)
{
    if (!date.isValid())
        return std::nullopt;
    return rules(date.toLocalTime().date());
}

std::optional<Greeting> today(const QDateTime &date)
{
    if (!date.isValid())
        return std::nullopt;
    static Cache cache;
    const qint64 when = date.toMSecsSinceEpoch();
    if (cache.day && when >= cache.dayStart && when < cache.dayEnd)
        return cache.greeting;

    const QDate day = date.toLocalTime().date();
    if (!(cache.day && *cache.day == day)) {
        cache.greeting = rules(day);
        cache.day = day;
    }
    // Local midnight before and after `when`.
    const QDateTime start(day, QTime(0, 0));
    const QDateTime end(day.addDays(1), QTime(0, 0));
    if (start.isValid() && end.isValid() && start.toMSecsSinceEpoch() <= when && when < end.toMSecsSinceEpoch()) {
        cache.dayStart = start.toMSecsSinceEpoch();
        cache.dayEnd = end.toMSecsSinceEpoch();
    } else {
        cache.dayStart = cache.dayEnd = 0;
    }
    return cache.greeting;
}

quint64 computeCount()
{
    return g_computeCount.load();
}

} // namespace Holidays
