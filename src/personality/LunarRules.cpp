#include "personality/LunarRules.h"

#include <unicode/calendar.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

namespace Holidays {

namespace {

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

} // namespace

long long daysFromCivil(int year, int month, int day)
{
    // Howard Hinnant's days_from_civil: years start in March, so the leap
    // day is the last day of the year.
    const long long y = (long long)year - (month <= 2);
    const long long era = (y >= 0 ? y : y - 399) / 400;
    const long long yoe = y - era * 400;
    const long long doy = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const long long doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

LunarRules::LunarRules()
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> cal(
        icu::Calendar::createInstance(icu::TimeZone::getGMT()->clone(), icu::Locale("zh@calendar=chinese"), status));
    if (U_SUCCESS(status))
        m_chinese = std::move(cal);
}

LunarRules::~LunarRules() = default;

Festival LunarRules::festival(int year, int month, int day)
{
    for (const NewYearFix &fix : kNewYearFixes) {
        if (year != fix.year)
            continue;
        if (month == fix.month && day == fix.day)
            return Festival::springFestival;
        if (month == fix.icuMonth && day == fix.icuDay)
            return Festival::none;
    }
    if (!m_chinese)
        return Festival::none;
    // Noon of that day in the calendar's zone (GMT).
    const UDate noon = (double(daysFromCivil(year, month, day)) * 86400.0 + 43200.0) * 1000.0;
    UErrorCode status = U_ZERO_ERROR;
    m_chinese->setTime(noon, status);
    const int lunarMonth = m_chinese->get(UCAL_MONTH, status) + 1;
    const int lunarDay = m_chinese->get(UCAL_DATE, status);
    if (U_FAILURE(status))
        return Festival::none;
    if (lunarMonth == 8 && lunarDay == 15)
        return Festival::midAutumn;
    if (lunarMonth == 5 && lunarDay == 5)
        return Festival::dragonBoat;
    if (lunarMonth == 1 && lunarDay == 1)
        return Festival::springFestival;
    return Festival::none;
}

} // namespace Holidays
