#pragma once

#include <algorithm>
#include <ctime>

// CPU time of this thread: unlike wall time it does not count the time the thread waits
// for a core on a busy machine.
inline double benchCpuMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

// The best CPU time of \a repeats runs of \a run, which prepares and measures itself
// through the callable it is given: run(measure) calls measure(work) once.
template <typename Run> double benchBestOf(int repeats, Run run)
{
    double best = 1e300;
    for (int i = 0; i < repeats; ++i) {
        run([&best](auto work) {
            const double start = benchCpuMilliseconds();
            work();
            best = std::min(best, benchCpuMilliseconds() - start);
        });
    }
    return best;
}
