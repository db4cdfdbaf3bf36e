// The holiday calendar: Gregorian fixed days, the three lunar festivals on
// their published dates, the one-day cache and local midnight.

#include "common/TestSupport.h"

#include "personality/Holidays.h"
#include "personality/LunarRules.h"

#include <QScopeGuard>
#include <QTest>

#include <ctime>
#include <memory>
#include <thread>
#include <vector>

namespace {

// Gregorian dates of the Spring Festival (1/1), the Dragon Boat Festival
// (5/5) and the Mid-Autumn Festival (8/15), year by year, as published in
// the public-holiday lists of Hong Kong and mainland China and the Hong Kong
// Observatory's Gregorian-Lunar conversion tables.
struct LunarYear {
    int year;
    int springMonth, springDay;
    int dragonMonth, dragonDay;
    int autumnMonth, autumnDay;
};

const LunarYear kPublished[] = {
    {2000, 2, 5, 6, 6, 9, 12},   {2001, 1, 24, 6, 25, 10, 1}, {2002, 2, 12, 6, 15, 9, 21},
    {2003, 2, 1, 6, 4, 9, 11},   {2004, 1, 22, 6, 22, 9, 28}, {2005, 2, 9, 6, 11, 9, 18},
    {2006, 1, 29, 5, 31, 10, 6}, {2007, 2, 18, 6, 19, 9, 25}, {2008, 2, 7, 6, 8, 9, 14},
    {2009, 1, 26, 5, 28, 10, 3}, {2010, 2, 14, 6, 16, 9, 22}, {2011, 2, 3, 6, 6, 9, 12},
    {2012, 1, 23, 6, 23, 9, 30}, {2013, 2, 10, 6, 12, 9, 19}, {2014, 1, 31, 6, 2, 9, 8},
    {2015, 2, 19, 6, 20, 9, 27}, {2016, 2, 8, 6, 9, 9, 15},   {2017, 1, 28, 5, 30, 10, 4},
    {2018, 2, 16, 6, 18, 9, 24}, {2019, 2, 5, 6, 7, 9, 13},   {2020, 1, 25, 6, 25, 10, 1},
    {2021, 2, 12, 6, 14, 9, 21}, {2022, 2, 1, 6, 3, 9, 10},   {2023, 1, 22, 6, 22, 9, 29},
    {2024, 2, 10, 6, 10, 9, 17}, {2025, 1, 29, 5, 31, 10, 6}, {2026, 2, 17, 6, 19, 9, 25},
    {2027, 2, 6, 6, 9, 9, 15},   {2028, 1, 26, 5, 28, 10, 3}, {2029, 2, 13, 6, 16, 9, 22},
    {2030, 2, 3, 6, 5, 9, 12},   {2031, 1, 23, 6, 24, 10, 1}, {2032, 2, 11, 6, 12, 9, 19},
    {2033, 1, 31, 6, 1, 9, 8},   {2034, 2, 19, 6, 20, 9, 27}, {2035, 2, 8, 6, 10, 9, 16},
    {2036, 1, 28, 5, 30, 10, 4}, {2037, 2, 15, 6, 18, 9, 24}, {2038, 2, 4, 6, 7, 9, 13},
    {2039, 1, 24, 5, 27, 10, 2}, {2040, 2, 12, 6, 14, 9, 20},
};

QDateTime noon(int y, int m, int d)
{
    return QDateTime(QDate(y, m, d), QTime(12, 0));
}

std::optional<LocKey> phraseOn(const QDateTime &when)
{
    const auto greeting = Holidays::compute(when);
    return greeting ? std::optional<LocKey>(greeting->phrase) : std::nullopt;
}

// Moves the local time zone to `zone` until the returned guard goes.
auto inZone(const char *zone)
{
    const bool hadTZ = qEnvironmentVariableIsSet("TZ");
    const QByteArray oldTZ = qgetenv("TZ");
    qputenv("TZ", zone);
    tzset();
    return qScopeGuard([hadTZ, oldTZ] {
        hadTZ ? qputenv("TZ", oldTZ) : qunsetenv("TZ");
        tzset();
    });
}

std::optional<LocKey> lunarPhrase(Holidays::Festival f)
{
    using F = Holidays::Festival;
    if (f == F::none)
        return std::nullopt;
    return f == F::springFestival ? LocKey::holSpring : f == F::dragonBoat ? LocKey::holDragonBoat : LocKey::holMidAutumn;
}

} // namespace

class HolidaysTest : public QObject {
    Q_OBJECT

private slots:
    void firstUseFromOtherThreads()
    {
        std::vector<std::thread> threads;
        std::vector<std::optional<Holidays::Greeting>> results(4);
        for (int i = 0; i < 4; ++i)
            threads.emplace_back([&results, i] { results[i] = Holidays::compute(noon(2025, 10, 6)); });
        std::optional<Holidays::Greeting> cached;
        std::thread worker([&cached] { cached = Holidays::today(noon(2025, 5, 31)); });
        worker.join();
        for (auto &t : threads)
            t.join();
        for (const auto &r : results)
            QCOMPARE(r ? r->phrase : LocKey::empty, LocKey::holMidAutumn);
        QCOMPARE(cached ? cached->phrase : LocKey::empty, LocKey::holDragonBoat);
    }

    void lunarFestivalsOnPublishedDates()
    {
        for (const LunarYear &y : kPublished) {
            const QByteArray where = QByteArray::number(y.year);
            const QList<QPair<QDateTime, LocKey>> festivals = {
                {noon(y.year, y.springMonth, y.springDay), LocKey::holSpring},
                {noon(y.year, y.dragonMonth, y.dragonDay), LocKey::holDragonBoat},
                {noon(y.year, y.autumnMonth, y.autumnDay), LocKey::holMidAutumn}};
            for (const auto &[day, phrase] : festivals) {
                // 14 February 2010 is both; Valentine's Day wins (tested below).
                if (day.date() != QDate(2010, 2, 14))
                    QVERIFY2(phraseOn(day) == phrase, where.constData());
                // Not a day early or late.
                for (int shift : {-1, 1})
                    QVERIFY2(phraseOn(day.addDays(shift)) != phrase, where.constData());
            }
        }
    }

    void tableAgreesWithTheCalendarAtItsEdgesAndBeyond()
    {
        // The build's table ends somewhere in these years; past it every
        // day is asked of a calendar made for the purpose. Either way the
        // answer is the calendar's (Gregorian days win).
        Holidays::LunarRules calendar;
        QVERIFY(calendar.valid());
        const QSet<LocKey> gregorian{LocKey::holNewYear, LocKey::holValentines, LocKey::holHalloween,
                                     LocKey::holChristmas};
        int festivals = 0;
        for (const int year : {1969, 1970, 2169, 2170, 2400}) {
            for (QDate day(year, 1, 1); day.year() == year; day = day.addDays(1)) {
                const auto phrase = phraseOn(QDateTime(day, QTime(12, 0)));
                const auto lunar = lunarPhrase(calendar.festival(year, day.month(), day.day()));
                festivals += lunar.has_value();
                if (!phrase || !gregorian.contains(*phrase))
                    QVERIFY2(phrase == lunar, qPrintable(day.toString(Qt::ISODate)));
            }
        }
        QVERIFY(festivals >= 15);
    }

    void daysFollowTheZonesMidnightAcrossDaylightSaving()
    {
        // Brazil's clocks jumped from 00:00 to 01:00 on 4 November 2018, the
        // Dragon Boat Festival fell on 18 June 2018, and Christmas Eve on a
        // normal midnight.
        const auto saoPaulo = inZone("America/Sao_Paulo");
        const QDateTime before(QDate(2018, 11, 3), QTime(23, 30));
        const QDateTime after = before.addSecs(3600); // 01:30 on the 4th
        QCOMPARE(after.date(), QDate(2018, 11, 4));
        QCOMPARE(Holidays::today(before), std::nullopt);
        QCOMPARE(Holidays::today(after), std::nullopt);
        QCOMPARE(Holidays::today(QDateTime(QDate(2018, 6, 17), QTime(23, 59, 59))), std::nullopt);
        QCOMPARE(Holidays::today(QDateTime(QDate(2018, 6, 18), QTime(0, 0)))->phrase, LocKey::holDragonBoat);
        QCOMPARE(Holidays::today(QDateTime(QDate(2018, 6, 18), QTime(23, 59, 59)))->phrase, LocKey::holDragonBoat);
        QCOMPARE(Holidays::today(QDateTime(QDate(2018, 6, 19), QTime(0, 0))), std::nullopt);
        const QDateTime eve(QDate(2018, 12, 24), QTime(0, 0));
        QCOMPARE(Holidays::today(eve.addSecs(-1)), std::nullopt);
        QCOMPARE(Holidays::today(eve)->phrase, LocKey::holChristmas);
    }

    void gregorianHolidays()
    {
        QCOMPARE(phraseOn(noon(2026, 1, 1)), std::optional<LocKey>(LocKey::holNewYear));
        QCOMPARE(phraseOn(noon(2026, 2, 14)), std::optional<LocKey>(LocKey::holValentines));
        QCOMPARE(phraseOn(noon(2026, 10, 31)), std::optional<LocKey>(LocKey::holHalloween));
        QCOMPARE(phraseOn(noon(2026, 12, 24)), std::optional<LocKey>(LocKey::holChristmas));
        QCOMPARE(phraseOn(noon(2026, 12, 25)), std::optional<LocKey>(LocKey::holChristmas));
        QCOMPARE(phraseOn(noon(2026, 12, 26)), std::nullopt);
        QCOMPARE(phraseOn(noon(2026, 3, 10)), std::nullopt);
        // 14 February 2010 was also the first day of the lunar year.
        QCOMPARE(phraseOn(noon(2010, 2, 14)), std::optional<LocKey>(LocKey::holValentines));
    }

    void cacheRunsTheRulesOncePerDay()
    {
        const quint64 before = Holidays::computeCount();
        QCOMPARE(Holidays::today(noon(2026, 3, 11)), std::nullopt);
        QCOMPARE(Holidays::today(QDateTime(QDate(2026, 3, 11), QTime(23, 59))), std::nullopt);
        QCOMPARE(Holidays::computeCount(), before + 1);

        // Two days in turn are both answered correctly.
        QCOMPARE(Holidays::today(noon(2026, 12, 25))->phrase, LocKey::holChristmas);
        QCOMPARE(Holidays::today(noon(2026, 3, 11)), std::nullopt);
        QCOMPARE(Holidays::today(noon(2026, 12, 24))->phrase, LocKey::holChristmas);
        QCOMPARE(Holidays::computeCount(), before + 4);
    }

    void newYearStartsAtLocalMidnight()
    {
        const auto tokyo = inZone("Asia/Tokyo");
        const QDateTime beforeMidnight(QDate(2025, 12, 31), QTime(23, 59, 59));
        const QDateTime atMidnight(QDate(2026, 1, 1), QTime(0, 0));
        QCOMPARE(beforeMidnight.offsetFromUtc(), 9 * 3600);
        QCOMPARE(Holidays::today(beforeMidnight), std::nullopt);
        QCOMPARE(Holidays::today(atMidnight)->phrase, LocKey::holNewYear);

        // The same instants seen from UTC: still 31 December there.
        const QDateTime utc(QDate(2025, 12, 31), QTime(15, 0), Qt::UTC);
        QCOMPARE(Holidays::today(utc)->phrase, LocKey::holNewYear);
        QCOMPARE(Holidays::today(utc.addSecs(-1)), std::nullopt);
    }
};

SULK_TEST(HolidaysTest)
#include "HolidaysTest.moc"
