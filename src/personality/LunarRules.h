#pragma once
// The three lunar festivals by ICU's Chinese calendar, with the published
// dates where the two disagree. Plain C++ and ICU, so that the build's
// table generator (src/tools) compiles this file too.

#include <unicode/uversion.h>

#include <memory>

U_NAMESPACE_BEGIN
class Calendar;
U_NAMESPACE_END

namespace Holidays {

enum class Festival : unsigned char { none, springFestival, dragonBoat, midAutumn };

// A Chinese calendar of its own. Making one loads a good deal of ICU, so the
// running application asks the table built from this instead (Holidays.cpp)
// and uses this only for dates outside the table.
class LunarRules {
public:
    LunarRules();
    ~LunarRules();
    LunarRules(const LunarRules &) = delete;
    LunarRules &operator=(const LunarRules &) = delete;

    // False when ICU could not make the calendar; festival() is then none.
    bool valid() const { return m_chinese != nullptr; }

    // The festival on the civil date year-month-day (Gregorian, month 1-12),
    // wherever that day is: the lunar date of a civil day does not depend on
    // the time zone. A leap month counts as its namesake.
    Festival festival(int year, int month, int day);

private:
    std::unique_ptr<icu::Calendar> m_chinese;
};

// Days from 1970-01-01 to the civil date (proleptic Gregorian).
long long daysFromCivil(int year, int month, int day);

} // namespace Holidays
