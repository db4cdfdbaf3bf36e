#pragma once
// A tiny benchmark harness: each section measures the thread CPU time of one
// operation over many iterations and prints the median.

#include <QString>

#include <functional>

namespace Bench {

struct Section {
    QString name;
    // Runs once before timing (priming readers and the like).
    std::function<void()> setup;
    // The operation measured; returns an extra figure to print (or empty).
    std::function<QString()> run;
    int iterations = 1000;
    // Long runs (the soak) run only when the filter names them.
    bool onlyWhenNamed = false;
};

void add(Section section);

// Thread CPU time in nanoseconds.
qint64 threadCpuNs();

} // namespace Bench

#define SULK_BENCH(id, ...) static const bool sulkBench_##id = (Bench::add(__VA_ARGS__), true);
