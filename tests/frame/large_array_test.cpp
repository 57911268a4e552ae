// Arrays beyond 2 GiB: ten objects half a GiB apart, of which only the pages with elements are ever touched.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <functional>

#include "frame/interpose.hpp"
#include "internals.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

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

}  // namespace
}  // namespace zelm::test
