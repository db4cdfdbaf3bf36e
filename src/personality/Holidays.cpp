#include "personality/Holidays.h"

#include <unicode/calendar.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <atomic>
#include <memory>

namespace Holidays {

namespace {

std::atomic<quint64> g_computeCount{0};

struct Day {
    int year = 0;
    int month = 0;
    int day = 0;
    bool operator==(const Day &) const = default;
};

std::unique_ptr<icu::Calendar> makeCalendar(const char *locale)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> cal(icu::Calendar::createInstance(icu::Locale(locale), status));
    if (U_FAILURE(status))
        return nullptr;
    return cal;
}

// The two calendars and the one-day cache, made on first use (a function
// static, so a first use from any thread is safe). After that only the main
// thread touches them.
struct Shared {
    std::unique_ptr<icu::Calendar> gregorian = makeCalendar("en@calendar=gregorian");
    std::unique_ptr<icu::Calendar> chinese = makeCalendar("zh@calendar=chinese");
    std::optional<Day> cachedDay;
    std::optional<Greeting> cachedGreeting;
    // The cached day as an instant range [dayStart, dayEnd), so lookups
    // within the day need no calendar work at all.
    UDate dayStart = 0;
    UDate dayEnd = 0;
};

Shared &shared()
{
    static Shared instance;
    return instance;
}

bool monthAndDay(icu::Calendar &cal, UDate when, int &month, int &day)
{
    UErrorCode status = U_ZERO_ERROR;
    cal.setTime(when, status);
    month = cal.get(UCAL_MONTH, status) + 1;
    day = cal.get(UCAL_DATE, status);
    return U_SUCCESS(status);
}

// ICU's lunar calendar starts these two years a day away from the published
// calendars: the new moon falls within minutes of midnight in China (6
// February 2027 at 23:56, 3 February 2030 at 00:07), closer than its moon
// tables can tell apart. The published day wins; every other festival from
// 2000 to 2040 agrees with ICU.
struct NewYearFix {
    int year;
    int month, day;       // the published Spring Festival
    int icuMonth, icuDay; // the day ICU calls lunar 1/1
};
constexpr NewYearFix kNewYearFixes[] = {{2027, 2, 6, 2, 7}, {2030, 2, 3, 2, 2}};

Greeting greeting(const char16_t *emoji, LocKey phrase)
{
    return Greeting{QString::fromUtf16(emoji), phrase, LocKey::holCheer};
}

std::optional<Greeting> rules(icu::Calendar *gregorian, icu::Calendar *chinese, UDate when)
{
    ++g_computeCount;
    int m = 0;
    int d = 0;
    if (!gregorian || !monthAndDay(*gregorian, when, m, d))
        return std::nullopt;
    if (m == 1 && d == 1)
        return greeting(u"\U0001F973", LocKey::holNewYear);
    if (m == 2 && d == 14)
        return greeting(u"\U0001F970", LocKey::holValentines);
    if (m == 10 && d == 31)
        return greeting(u"\U0001F383", LocKey::holHalloween);
    if (m == 12 && (d == 24 || d == 25))
        return greeting(u"\U0001F384", LocKey::holChristmas);

    UErrorCode status = U_ZERO_ERROR;
    const int year = gregorian->get(UCAL_EXTENDED_YEAR, status);
    for (const NewYearFix &fix : kNewYearFixes) {
        if (year != fix.year)
            continue;
        if (m == fix.month && d == fix.day)
            return greeting(u"\U0001F9E7", LocKey::holSpring);
        if (m == fix.icuMonth && d == fix.icuDay)
            return std::nullopt;
    }

    // The lunar month number alone; a leap month counts as its namesake.
    if (!chinese || !monthAndDay(*chinese, when, m, d))
        return std::nullopt;
    if (m == 8 && d == 15)
        return greeting(u"\U0001F96E", LocKey::holMidAutumn);
    if (m == 5 && d == 5)
        return greeting(u"\U0001F409", LocKey::holDragonBoat);
    if (m == 1 && d == 1)
        return greeting(u"\U0001F9E7", LocKey::holSpring);
    return std::nullopt;
}

// Keeps the shared calendars in ICU's current default zone (tests move it).
// Checked whenever a lookup leaves the cached day.
void followDefaultZone(Shared &s)
{
    if (!s.gregorian || !s.chinese)
        return;
    std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createDefault());
    if (!zone || *zone == s.gregorian->getTimeZone())
        return;
    s.gregorian->setTimeZone(*zone);
    s.chinese->setTimeZone(*zone);
    s.cachedDay.reset();
    s.cachedGreeting.reset();
    s.dayStart = s.dayEnd = 0;
}

} // namespace

std::optional<Greeting> compute(const QDateTime &date)
{
    if (!date.isValid())
        return std::nullopt;
    // Own calendars, so this never races the cached path.
    auto gregorian = makeCalendar("en@calendar=gregorian");
    auto chinese = makeCalendar("zh@calendar=chinese");
    return rules(gregorian.get(), chinese.get(), UDate(date.toMSecsSinceEpoch()));
}

std::optional<Greeting> today(const QDateTime &date)
{
    if (!date.isValid())
        return std::nullopt;
    Shared &s = shared();
    if (!s.gregorian)
        return std::nullopt;
    const UDate when = UDate(date.toMSecsSinceEpoch());
    if (s.cachedDay && when >= s.dayStart && when < s.dayEnd)
        return s.cachedGreeting;

    followDefaultZone(s);
    UErrorCode status = U_ZERO_ERROR;
    icu::Calendar &cal = *s.gregorian;
    cal.setTime(when, status);
    const Day day{cal.get(UCAL_EXTENDED_YEAR, status), cal.get(UCAL_MONTH, status) + 1,
                  cal.get(UCAL_DATE, status)};
    if (U_FAILURE(status))
        return std::nullopt;
    if (!(s.cachedDay && *s.cachedDay == day)) {
        s.cachedGreeting = rules(s.gregorian.get(), s.chinese.get(), when);
        s.cachedDay = day;
    }

    // Local midnight before and after `when`.
    cal.setTime(when, status);
    cal.set(UCAL_HOUR_OF_DAY, 0);
    cal.set(UCAL_MINUTE, 0);
    cal.set(UCAL_SECOND, 0);
    cal.set(UCAL_MILLISECOND, 0);
    const UDate start = cal.getTime(status);
    cal.add(UCAL_DATE, 1, status);
    const UDate end = cal.getTime(status);
    if (U_SUCCESS(status) && start <= when && when < end) {
        s.dayStart = start;
        s.dayEnd = end;
    } else {
        s.dayStart = s.dayEnd = 0;
    }
    return s.cachedGreeting;
}

quint64 computeCount()
{
    return g_computeCount.load();
}

} // namespace Holidays
