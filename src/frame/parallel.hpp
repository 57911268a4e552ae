// parallel.hpp: divides an array of objects among the threads of a team, one stretch of consecutive objects each.
#pragma once
#include <omp.h>

#include <algorithm>
#include <cstddef>

#include "companion/companion.hpp"
#include "zelm_types.h"

namespace zelm::parallel {

struct Stretch {
  int first, count;
};

/// Thread t of a team gets count / team objects; the first count % team threads take one more.
inline Stretch stretch_of(int t, int chunk, int rem) {
  if (t < rem) return {(chunk + 1) * t, chunk + 1};
  return {(chunk + 1) * rem + (t - rem) * chunk, chunk};
}

/// Calls body(first object, number of objects, thread) on every thread of a team of at most `team`. What the runtime gives
/// counts, not what was asked for: it may decline to fork, or the setting may have changed since it was last read.
template <class Body>
void run(int team, int count, Body body) {
  int chunk = 0, rem = 0;
#pragma omp parallel num_threads(team)
  {
#pragma omp master
    {
      const int threads = omp_get_num_threads();
      chunk = count / threads;
      rem = count % threads;
    }
#pragma omp barrier
    const int t = omp_get_thread_num();
    const Stretch s = stretch_of(t, chunk, rem);
    if (s.count > 0) body(s.first, s.count, t);
  }
}

inline bool serial(int count) {
  const int threads = ownGetNumThreads();
  return threads <= 1 || count < threads;
}

/// Keeps the first failure that arrives. One unnamed critical section serves all calls of the process: it is held for a few
/// instructions once per thread and call.
inline void merge(ZelStatus& status, ZelStatus arrived) {
#pragma omp critical
  if (status == zelStsOk) status = arrived;
}

// The regions stand apart from the drivers: what a region shares lives in memory from its function's start, and a driver that
// stays serial should not put its arguments there.

template <class Kernel>
__attribute__((noinline)) void fork(int count, Kernel kernel) {
  run(std::max(ownGetNumThreads(), 1), count, [&](int first, int n, int) { kernel(first, n); });
}

template <class Kernel>
__attribute__((noinline)) ZelStatus fork_merging(int count, Kernel kernel) {
  ZelStatus status = zelStsOk;
  run(std::max(ownGetNumThreads(), 1), count, [&](int first, int n, int) { merge(status, kernel(first, n)); });
  return status;
}

/// The team is never larger than the block of scratch was sized for.
template <class Kernel>
__attribute__((noinline)) ZelStatus fork_with_scratch(int count, std::size_t bytes, Kernel kernel) {
  const int team = std::max(ownGetNumThreads(), 1);
  char* const block = static_cast<char*>(kmpc_malloc(bytes * std::size_t(team)));
  ZelStatus status = zelStsOk;
  run(std::clamp(ownGetNumThreads(), 1, team), count,
      [&](int first, int n, int t) { merge(status, kernel(first, n, static_cast<void*>(block + bytes * std::size_t(t)))); });
  kmpc_free(block);
  return status;
}

/// The driver of families whose kernels cannot fail.
template <class Kernel>
ZelStatus divide(int count, Kernel kernel) {
  if (serial(count)) return kernel(0, count);
  fork(count, kernel);
  return zelStsOk;
}

/// The driver of families that report: the failure that reaches the critical section first is returned.
template <class Kernel>
ZelStatus divide_merging(int count, Kernel kernel) {
  if (serial(count)) return kernel(0, count);
  return fork_merging(count, kernel);
}

/// The same with scratch: the caller's buffer where the call stays serial, else a slice for each thread out of one block of the
/// runtime's allocator.
template <class Kernel>
ZelStatus divide_with_scratch(int count, void* buffer, std::size_t bytes, Kernel kernel) {
  if (serial(count)) return kernel(0, count, buffer);
  return fork_with_scratch(count, bytes, kernel);
}

}  // namespace zelm::parallel
