// Writes the lunar festivals' Gregorian dates for the years the running
// application looks up without ICU (see personality/Holidays.cpp):
//   sulkbox_lunar_table OUTPUT FIRST_YEAR LAST_YEAR

#include "personality/LunarRules.h"

#include <cstdio>
#include <cstdlib>

namespace {

int daysIn(int year, int month)
{
    static const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return days[month - 1] + (month == 2 && leap);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s OUTPUT FIRST_YEAR LAST_YEAR\n", argv[0]);
        return 2;
    }
    const int first = std::atoi(argv[2]);
    const int last = std::atoi(argv[3]);
    Holidays::LunarRules rules;
    if (!rules.valid() || first > last) {
        std::fprintf(stderr, "%s: no Chinese calendar from ICU\n", argv[0]);
        return 1;
    }
    const char *festivals[] = {"none", "springFestival", "dragonBoat", "midAutumn"};
    std::FILE *out = std::fopen(argv[1], "w");
    if (!out) {
        std::perror(argv[1]);
        return 1;
    }
    std::fprintf(out, "// Generated at build time by sulkbox_lunar_table from ICU's Chinese calendar.\n");
    std::fprintf(out, "constexpr int kLunarFirstYear = %d;\nconstexpr int kLunarLastYear = %d;\n", first, last);
    std::fprintf(out, "constexpr LunarDay kLunarDays[] = {\n");
    for (int y = first; y <= last; ++y) {
        for (int m = 1; m <= 12; ++m) {
            for (int d = 1; d <= daysIn(y, m); ++d) {
                const Holidays::Festival f = rules.festival(y, m, d);
                if (f != Holidays::Festival::none)
                    std::fprintf(out, "    {%d, %d, %d, Festival::%s},\n", y, m, d, festivals[int(f)]);
            }
        }
    }
    std::fprintf(out, "};\n");
    return std::fclose(out) == 0 ? 0 : 1;
}
