// companion/zelcore.cpp: thread count, processor features and cache size for the library, in a shared library of its
// own, so that a program can replace it.

#include "zelcore.h"

#include <omp.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <limits>

#include "companion/companion.hpp"

namespace {

constexpr int kFeatureSse42 = 128;
constexpr int kNullPointer = -8;  // zelStsNullPointer

std::atomic<int> chosen_threads{0};  // below 1: none chosen

}  // namespace

extern "C" {

void zelSetNumThreads(int numThreads) { chosen_threads.store(numThreads, std::memory_order_relaxed); }

int zelGetNumThreads() { return ownGetNumThreads(); }

int ownGetNumThreads() {
  const int chosen = chosen_threads.load(std::memory_order_relaxed);
  const int threads = chosen >= 1 ? chosen : omp_get_max_threads();
  // Whoever called from inside a team has already divided the work. The runtime is asked last: it takes longer than adding a
  // few hundred elements.
  return threads > 1 && omp_in_parallel() ? 1 : threads;
}

int ownGetFeature(int mask, int /*reserved*/) { return mask == kFeatureSse42 && __builtin_cpu_supports("sse4.2"); }

int zelGetMaxCacheSizeB(int* pSizeByte) {
  if (!pSizeByte) return kNullPointer;
  long largest = 0;
  for (const int level : {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE, _SC_LEVEL4_CACHE_SIZE}) {
    largest = std::max(largest, sysconf(level));
  }
  *pSizeByte = static_cast<int>(std::min(largest, static_cast<long>(std::numeric_limits<int>::max())));
  return 0;
}
}
