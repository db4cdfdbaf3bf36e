#pragma once
// Seven holidays on two calendars: New Year, Valentine's Day, Halloween and
// Christmas on the Gregorian one; Mid-Autumn, Dragon Boat and Spring
// Festival on the Chinese lunisolar one. Days run from local midnight to
// local midnight in the system's time zone (TZ, else /etc/localtime).
//
// The lunar festivals come from a table of their Gregorian dates that the
// build works out with ICU (LunarRules), so a lookup never builds an ICU
// calendar, whose code and data would stay resident for the whole run.

#include "l10n/LocKey.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace Holidays {

struct Greeting {
    QString emoji;
    LocKey phrase;
    LocKey reason; // holCheer for every holiday

    bool operator==(const Greeting &) const = default;
};

// The greeting for the calendar day of `date`. Remembers the last day asked
// for, so the rules run once per day however often this is called. Main
// thread only.
std::optional<Greeting> today(const QDateTime &date);

// The rules without the cache. Safe from any thread.
std::optional<Greeting> compute(const QDateTime &date);

// How often `compute` has run its rules (for tests of the cache).
quint64 computeCount();

} // namespace Holidays
