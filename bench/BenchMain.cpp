// sulkbox_bench [filter] [--iterations N]: prints, per section, the median
// thread CPU time per call and the spread. `sulkbox_bench soak` runs the
// long memory soak, which a plain run leaves out.

#include "Bench.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {
std::vector<Bench::Section> &sections()
{
    static std::vector<Bench::Section> all;
    return all;
}
} // namespace

namespace Bench {

void add(Section section)
{
    sections().push_back(std::move(section));
}

qint64 threadCpuNs()
{
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return qint64(ts.tv_sec) * 1000000000 + ts.tv_nsec;
}

} // namespace Bench

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QStringList args = app.arguments().mid(1);
    int forced = 0;
    const int it = int(args.indexOf(QStringLiteral("--iterations")));
    if (it >= 0 && it + 1 < args.size()) {
        forced = args[it + 1].toInt();
        args.remove(it, 2);
    }
    const QString filter = args.value(0);

    std::printf("%-34s %12s %12s %12s %8s  %s\n", "section", "median", "p10", "p90", "iters", "note");
    for (const Bench::Section &s : sections()) {
        if (!filter.isEmpty() && !s.name.contains(filter))
            continue;
        if (s.onlyWhenNamed && filter.isEmpty())
            continue;
        if (s.setup)
            s.setup();
        const int n = forced > 0 ? forced : s.iterations;
        std::vector<qint64> times;
        times.reserve(n);
        QString note;
        for (int i = 0; i < n; ++i) {
            const qint64 t0 = Bench::threadCpuNs();
            note = s.run();
            times.push_back(Bench::threadCpuNs() - t0);
        }
        std::sort(times.begin(), times.end());
        auto us = [](qint64 ns) { return QString::number(ns / 1000.0, 'f', 1) + QStringLiteral(" us"); };
        std::printf("%-34s %12s %12s %12s %8d  %s\n", qPrintable(s.name), qPrintable(us(times[n / 2])),
                    qPrintable(us(times[n / 10])), qPrintable(us(times[n * 9 / 10])), n, qPrintable(note));
    }
    return 0;
}
