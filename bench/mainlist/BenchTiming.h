#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <ctime>
#include <vector>

// The measures the benchmarks print: the median of several runs, a timer's milliseconds, and the
// CPU time of the process, which other work on a shared machine does not inflate.
namespace timing {

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

} // namespace timing
