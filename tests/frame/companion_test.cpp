// The companion library: thread count, processor features, cache size.
#include "companion/companion.hpp"

#include <cpuid.h>
#include <gtest/gtest.h>
#include <sched.h>

#include <cstdlib>
#include <fstream>

#include "zelcore.h"

namespace zelm::test {
namespace {

TEST(Companion, NumberOfThreads) {
  zelSetNumThreads(0);
  const int usual = zelGetNumThreads();
  EXPECT_GE(usual, 1);
  zelSetNumThreads(5);
  EXPECT_EQ(zelGetNumThreads(), 5);
  EXPECT_EQ(ownGetNumThreads(), 5);
  int inside[2] = {}, alone = 0;
#pragma omp parallel num_threads(2)
  {
#pragma omp critical(companion_test)
    ++inside[zelGetNumThreads() != 1];
  }
#pragma omp parallel num_threads(1)
  alone = zelGetNumThreads();
  EXPECT_EQ(inside[0], 2);
  EXPECT_EQ(inside[1], 0);
  EXPECT_EQ(alone, 5) << "a team of one is no active region";
  for (const int none : {0, -7}) {
    zelSetNumThreads(3);
    zelSetNumThreads(none);
    EXPECT_EQ(zelGetNumThreads(), usual);
  }
}

/// Each is a process of its own: the OpenMP runtime looks at its surroundings once.
TEST(CompanionDeathTest, DefaultIsWhatOpenMPWouldUse) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto report = [] { std::_Exit(zelGetNumThreads()); };
  setenv("OMP_NUM_THREADS", "7", 1);
  EXPECT_EXIT(report(), testing::ExitedWithCode(7), "");
  unsetenv("OMP_NUM_THREADS");
  cpu_set_t all, one;
  ASSERT_EQ(sched_getaffinity(0, sizeof all, &all), 0);
  CPU_ZERO(&one);
  CPU_SET(sched_getcpu(), &one);
  EXPECT_EXIT(report(), testing::ExitedWithCode(CPU_COUNT(&all)), "");
  ASSERT_EQ(sched_setaffinity(0, sizeof one, &one), 0);
  EXPECT_EXIT(report(), testing::ExitedWithCode(1), "");
  sched_setaffinity(0, sizeof all, &all);
}

TEST(Companion, Features) {
  unsigned a, b, c, d;
  ASSERT_TRUE(__get_cpuid(1, &a, &b, &c, &d));
  EXPECT_EQ(ownGetFeature(128, 0) != 0, (c & bit_SSE4_2) != 0);
  EXPECT_EQ(ownGetFeature(64, 0), 0);
}

TEST(Companion, LargestCache) {
  EXPECT_EQ(zelGetMaxCacheSizeB(nullptr), -8);
  long largest = 0;  // in KiB, as the kernel tells it
  for (int i = 0; i < 8; ++i) {
    long size = 0;
    std::ifstream("/sys/devices/system/cpu/cpu0/cache/index" + std::to_string(i) + "/size") >> size;
    largest = std::max(largest, size);
  }
  int bytes = -1;
  EXPECT_EQ(zelGetMaxCacheSizeB(&bytes), 0);
  if (largest > 0 && bytes > 0) EXPECT_EQ(bytes, largest * 1024);
  EXPECT_TRUE(bytes == 0 || (bytes >= 32 << 10 && bytes <= 1 << 30)) << bytes;
}

}  // namespace
}  // namespace zelm::test
