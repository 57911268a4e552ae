// Arrays beyond 2 GiB, and beyond the caches.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <functional>

#include "frame/interpose.hpp"
#include "internals.hpp"
#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

/// Ten objects half a GiB apart, of which only the pages with elements are ever touched.
TEST(LargeArray, IsReachedSeriallyAndByADriver) {
  if (sizeof(void*) == 4) GTEST_SKIP() << "no such arrays in 32 bits";
  constexpr int stride0 = 1 << 29, count = 10, n = 3;
  constexpr std::size_t bytes = std::size_t(stride0) * count;
  void* const memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  ASSERT_NE(memory, MAP_FAILED);
  char* const base = static_cast<char*>(memory);
  const auto source = [&](int k) { return reinterpret_cast<double*>(base + std::ptrdiff_t(k) * stride0); };
  double* const destination = reinterpret_cast<double*>(base + 1024);
  double b[n * n];
  const double* from[n * n];
  const double* single[n * n];
  double* to[n * n];
  for (int e = 0; e < n * n; ++e) {
    b[e] = e;
    from[e] = source(0) + e;
    single[e] = b + e;
    to[e] = destination + e;
  }
  const auto mam = [&](auto f) { return f(source(0), stride0, 24, 8, b, 24, 8, destination, stride0, 24, 8, n, n, count); };
  const auto mam_p = [&](auto f) { return f(from, 0, stride0, single, 0, to, 0, stride0, n, n, count); };
  const std::function<ZelStatus()> roads[] = {
      [&] { return mam(zelmAdd_mam_64f); },
      [&] { return mam(p8_ownOMP_zelmAdd_mam_64f); },
      [&] { return mam(p8_ownzelmAdd_mam_64f_S2); },
      [&] { return mam_p(zelmAdd_mam_64f_P); },
      [&] { return mam_p(p8_ownOMP_zelmAdd_mam_64f_P); },
  };
  const Threads two({2});
  for (std::size_t road = 0; road < std::size(roads); ++road) {
    for (int k = 0; k < count; ++k)
      for (int e = 0; e < n * n; ++e) source(k)[e] = 100.0 * double(road) + 10 * k + e, source(k)[128 + e] = -1;
    EXPECT_EQ(roads[road](), zelStsOk) << road;
    for (int k = 0; k < count; ++k)
      for (int e = 0; e < n * n; ++e) ASSERT_EQ(source(k)[128 + e], source(k)[e] + e) << road << ", object " << k;
  }
  EXPECT_EQ(imports.asked, 4) << "each driver asks twice";
  munmap(memory, bytes);
}

/// Where stores may go past the caches: the whole array in one call against the same in calls for 1000 objects.
TEST(LargeArray, BeyondTheCachesEqualsManySmallOnes) {
  const Threads one({1});
  constexpr std::size_t bytes = (64u << 20) + 4096;
  std::vector<std::uint32_t> sources(bytes / 4 + 16), whole(bytes / 4 + 4), parts(whole);
  Random random(1);
  for (auto& word : sources) word = random.next() & 0xbf7fffff;  // as floats and doubles below 2
  const struct {
    std::string name;
    int n;
  } calls[] = {{"Add_mama_32f", 4},    {"Sub_mam_64f", 4},         {"Add_tam_32f", 6},         {"Mul_vac_32f", 5},
               {"Add_vca_32f", 3},     {"Saxpy_vav_64f", 5},       {"LComb_vava_32f", 7},      {"Copy_ma_64f_SS", 5},
               {"Extract_ta_32f", 4},  {"LoadIdentity_ma_32f", 4}, {"LoadIdentity_ma_64f", 3}, {"Transpose_ma_32f", 4},
               {"Transpose_ma_64f", 6}};
  for (const auto& [name, order] : calls) {
    const int n = order;
    const Function& f = function("zelm" + name);
    const int E = f.element_size(), row = n * E, size = f.operands[0].matrix ? n * row : row, count = int(bytes / size);
    const auto call = [&](std::vector<std::uint32_t>& result, int first, int objects) {
      std::vector<Value> values;
      for (const catalog::Argument& a : f.arguments) {
        const bool array = a.operand < 0 || f.operands[a.operand].array,
                   constants = a.operand >= 0 && f.operands[a.operand].constants;
        Value v;
        if (a.kind == catalog::Kind::pointer) {
          char* const start = reinterpret_cast<char*>(a.source ? &sources[8 * std::size_t(a.operand)] : result.data());
          v.p = start + (array ? std::ptrdiff_t(first) * (constants ? E : size) : 0);
        } else if (a.kind == catalog::Kind::stride) {
          v.i = a.level == 2 || constants ? E : a.level == 1 ? row : size;
        } else if (a.kind == catalog::Kind::value) {
          v.x = .75;
        } else {
          v.i = a.kind == catalog::Kind::count ? objects : n;
        }
        values.push_back(v);
      }
      EXPECT_EQ(find(f.exported()).call(values.data()), zelStsOk);
    };
    call(whole, 0, count);
    for (int k = 0; k < count; k += 1000) call(parts, k, std::min(1000, count - k));
    EXPECT_TRUE(whole == parts) << name << ' ' << n;
  }
}

}  // namespace
}  // namespace zelm::test
