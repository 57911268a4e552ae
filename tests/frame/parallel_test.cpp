// The division of arrays among threads. All suites here are named *Parallel*: they also run under ThreadSanitizer.
#include "frame/parallel.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <numeric>
#include <set>
#include <thread>

#include "frame/interpose.hpp"
#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

TEST(ParallelDivision, SevenObjectsOnThreeThreads) {
  const int expected[3][2] = {{0, 3}, {3, 2}, {5, 2}};
  for (int t = 0; t < 3; ++t) {
    const auto s = parallel::stretch_of(t, 7 / 3, 7 % 3);
    EXPECT_EQ(s.first, expected[t][0]);
    EXPECT_EQ(s.count, expected[t][1]);
  }
}

TEST(ParallelDivision, StretchesFollowEachOtherAndDifferByOneAtMost) {
  for (int team = 1; team <= 33; ++team)
    for (int count = 0; count <= 70; ++count) {
      int next = 0;
      for (int t = 0; t < team; ++t) {
        const auto s = parallel::stretch_of(t, count / team, count % team);
        ASSERT_EQ(s.first, next) << count << " on " << team;
        ASSERT_EQ(s.count, count / team + (t < count % team));
        next += s.count;
      }
      ASSERT_EQ(next, count);
    }
  // The last stretch of the longest array, whose product with the team stays in range.
  EXPECT_EQ(parallel::stretch_of(63, INT_MAX / 64, INT_MAX % 64).first, INT_MAX / 64 * 63 + 63);
}

/// What the kernel was called with. Stretches of one call touch different elements, so no lock is needed for `times`.
struct Log {
  explicit Log(int count) : times(std::size_t(count)) {}
  void add(int first, int n, void* scratch = nullptr) {
    for (int k = first; k < first + n; ++k) ++times[std::size_t(k)];
    const std::lock_guard hold(lock);
    stretches.insert({first, n});
    scratches.insert(scratch);
    threads.insert(std::this_thread::get_id());
  }
  bool each_once() const {
    return std::all_of(times.begin(), times.end(), [](int n) { return n == 1; });
  }
  std::vector<int> times;
  std::set<std::pair<int, int>> stretches;
  std::set<void*> scratches;
  std::set<std::thread::id> threads;
  std::mutex lock;
};

using Stretches = std::set<std::pair<int, int>>;

TEST(ParallelDivision, EveryThreadTakesOneStretch) {
  const Threads three({3});
  Log log(7);
  EXPECT_EQ(parallel::divide(7, [&](int first, int n) { return log.add(first, n), zelStsSingular; }), zelStsOk);
  EXPECT_EQ(log.stretches, (Stretches{{0, 3}, {3, 2}, {5, 2}}));
  EXPECT_EQ(log.threads.size(), 3u);
  Log equal(3);
  parallel::divide(3, [&](int first, int n) { return equal.add(first, n), zelStsOk; });
  EXPECT_EQ(equal.stretches, (Stretches{{0, 1}, {1, 1}, {2, 1}}));
}

TEST(ParallelDivision, FewerObjectsThanThreadsOrOneThreadStaySerial) {
  for (const auto& [threads, count] : {std::pair(4, 3), {1, 100}, {0, 5}, {-2, 5}}) {
    const Threads set({threads});
    Log log(count);
    char buffer;
    const auto kernel = [&](int first, int n, void* scratch = nullptr) { return log.add(first, n, scratch), zelStsSingular; };
    EXPECT_EQ(parallel::divide(count, kernel), zelStsSingular);  // the kernel's status, handed through
    EXPECT_EQ(parallel::divide_merging(count, kernel), zelStsSingular);
    EXPECT_EQ(log.scratches, std::set<void*>{nullptr});
    EXPECT_EQ(parallel::divide_with_scratch(count, &buffer, 8, kernel), zelStsSingular);
    EXPECT_EQ(log.scratches, (std::set<void*>{nullptr, &buffer}));
    EXPECT_EQ(log.stretches, (Stretches{{0, count}}));
    EXPECT_EQ(log.threads, std::set{std::this_thread::get_id()});
    EXPECT_EQ(imports.blocks, 0);
  }
}

/// The number of threads is read two or three times, and may change in between.
TEST(ParallelDivision, SurvivesAChangeOfTheNumberOfThreads) {
  for (const auto& answers : std::vector<std::vector<int>>{
           {2, 8, 8}, {8, 2, 2}, {3, 1, 1}, {2, 0, -1}, {2, 3, 8}, {4, 2, 8}, {2, 8, 1}, {2, 2, 0}, {5, 4, 3}})
    for (const int count : {5, 8, 9}) {
      for (const bool merging : {false, true}) {
        const Threads set(answers);
        Log log(count);
        const auto kernel = [&](int first, int n) { return log.add(first, n), zelStsOk; };
        EXPECT_EQ(merging ? parallel::divide_merging(count, kernel) : parallel::divide(count, kernel), zelStsOk);
        EXPECT_TRUE(log.each_once());
      }
      const Threads set(answers);
      constexpr std::size_t bytes = 40;
      Log log(count);
      char callers[bytes];
      std::memset(callers, 0x77, bytes);
      const auto status = parallel::divide_with_scratch(count, callers, bytes, [&](int first, int n, void* scratch) {
        std::memset(scratch, first, bytes);
        log.add(first, n, scratch);
        for (std::size_t i = 0; i < bytes; ++i) EXPECT_EQ(static_cast<char*>(scratch)[i], char(first));  // nobody else's
        return zelStsOk;
      });
      EXPECT_EQ(status, zelStsOk);
      EXPECT_TRUE(log.each_once());
      if (count < answers[0]) continue;  // serial
      EXPECT_EQ(imports.blocks, 1);
      EXPECT_EQ(imports.freed, 1);
      EXPECT_EQ(log.scratches.size(), log.stretches.size());
      char* const block = static_cast<char*>(imports.block.load());
      for (void* s : log.scratches) {
        const std::size_t offset = std::size_t(static_cast<char*>(s) - block);
        EXPECT_TRUE(offset % bytes == 0 && offset + bytes <= imports.block_bytes) << offset;
      }
      EXPECT_EQ(std::count(callers, callers + bytes, 0x77), long(bytes));
    }
}

TEST(ParallelDivision, ScratchIsOneSliceForEachThread) {
  const Threads three({3});
  Log log(7);
  parallel::divide_with_scratch(7, nullptr, 100, [&](int first, int n, void* s) { return log.add(first, n, s), zelStsOk; });
  char* const block = static_cast<char*>(imports.block.load());
  EXPECT_EQ(imports.block_bytes, 300u);
  EXPECT_EQ(log.scratches, (std::set<void*>{block, block + 100, block + 200}));
  EXPECT_EQ(imports.freed, 1);
}

TEST(ParallelDivision, AFailureIsKeptAndTheOtherStretchesAreDone) {
  for (const int failing : {0, 3, 5}) {
    const Threads three({3});
    Log log(7);
    const auto kernel = [&](int first, int n, void* = nullptr) -> ZelStatus {
      log.add(first, n);
      return first == failing ? zelStsSingular : zelStsOk;
    };
    EXPECT_EQ(parallel::divide_merging(7, kernel), zelStsSingular);
    EXPECT_TRUE(log.each_once());
    EXPECT_EQ(parallel::divide_with_scratch(7, nullptr, 8, kernel), zelStsSingular);
  }
  ZelStatus status = zelStsOk;
  for (const ZelStatus arrived :
       {ZelStatus(zelStsOk), ZelStatus(zelStsSingular), ZelStatus(zelStsOk), ZelStatus(zelStsFailure)})
    parallel::merge(status, arrived);
  EXPECT_EQ(status, zelStsSingular) << "the first failure to arrive";
}

/// Inside an active region the runtime declines to fork, and the team of one takes everything.
TEST(ParallelDivision, GoesTheSameWayWhereTheRuntimeDoesNotFork) {
  const Threads four({4});
  Log logs[2] = {Log(9), Log(9)};
#pragma omp parallel num_threads(2)
  {
    Log& log = logs[omp_get_thread_num()];
    parallel::divide_merging(9, [&](int first, int n) { return log.add(first, n), zelStsOk; });
  }
  for (const Log& log : logs) EXPECT_EQ(log.stretches, (Stretches{{0, 9}}));
}

/// Whole functions, several callers at once, against one thread.
TEST(ParallelCalls, GiveTheBitsOfOneThread) {
  constexpr int n = 3, count = 501, size = n * n * count;
  Random random(1);
  const auto a = random.uniforms<float>(size), b = random.uniforms<float>(size);
  struct Result {
    std::vector<float> sum = std::vector<float>(size), factors = sum;
    std::vector<int> index = std::vector<int>(n * count);
    bool operator==(const Result&) const = default;
  };
  const auto compute = [&] {
    Result r;
    EXPECT_EQ(zelmAdd_mama_32f(a.data(), 36, 12, 4, b.data(), 36, 12, 4, r.sum.data(), 36, 12, 4, n, n, count), zelStsOk);
    EXPECT_EQ(zelmLUDecomp_ma_32f(a.data(), 36, 12, 4, r.index.data(), r.factors.data(), 36, 12, 4, n, count), zelStsOk);
    return r;
  };
  Threads set({1});
  const Result serial = compute();
  Threads::set({4});
  std::vector<std::thread> callers;
  for (int c = 0; c < 2; ++c)
    callers.emplace_back([&] {
      for (int turn = 0; turn < 5; ++turn) EXPECT_TRUE(compute() == serial);
    });
  for (std::thread& t : callers) t.join();
  EXPECT_GT(imports.asked, 0);
}

}  // namespace
}  // namespace zelm::test
