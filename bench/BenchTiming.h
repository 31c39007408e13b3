#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <ctime>
#include <vector>

// The figures every benchmark prints: medians of runs, wall time in milliseconds, and the
// process's CPU time, which other work on a shared machine does not inflate.
namespace BenchTiming {

inline double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

inline double ms(const QElapsedTimer& t) { return double(t.nsecsElapsed()) / 1e6; }

inline double cpuMs()
{
    timespec ts{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
    return double(ts.tv_sec) * 1e3 + double(ts.tv_nsec) / 1e6;
}

} // namespace BenchTiming
