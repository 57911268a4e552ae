// rivals/bandwidth.cpp: how fast memory of a working set moves; objects of one float. Operands: two sources,
// destination.
#include <cstring>

#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

/// Partial sums enough to hide the latency of an addition in registers of any width.
void read(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using Sums = float __attribute__((vector_size(32), aligned(4)));
  constexpr int kSums = 8, kStep = kSums * sizeof(Sums) / sizeof(float);
  const float* const a = at[0].of<float>() + first;
  Sums sum[kSums] = {};
  for (std::ptrdiff_t k = 0; k + kStep <= count; k += kStep)
#pragma clang loop unroll(full)
    for (int s = 0; s < kSums; ++s) sum[s] += reinterpret_cast<const Sums*>(a + k)[s];
  Sums total = {};
  for (const Sums& s : sum) total += s;
  asm volatile("" : : "m"(total));
}

/// With ordinary stores, whatever memcpy does.
__attribute__((no_builtin("memcpy"))) void copy(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const float* __restrict a = at[0].of<float>() + first;
  float* __restrict d = at[2].of<float>() + first;
  for (std::ptrdiff_t k = 0; k < count; ++k) d[k] = a[k];
}

void triad(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const float* __restrict a = at[0].of<float>() + first, * __restrict b = at[1].of<float>() + first;
  float* __restrict d = at[2].of<float>() + first;
  for (std::ptrdiff_t k = 0; k < count; ++k) d[k] = a[k] + 3 * b[k];
}

void move(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  std::memcpy(at[2].of<float>() + first, at[0].of<float>() + first, std::size_t(count) * sizeof(float));
}

void clear(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  std::memset(at[2].of<float>() + first, 0, std::size_t(count) * sizeof(float));
}

bool enroll_bandwidth(const char* name, Loop loop) {
  enrolled().push_back({"bandwidth", "32f", 1, name, loop});
  return true;
}

const bool all = enroll_bandwidth("read", read) && enroll_bandwidth("copy", copy) && enroll_bandwidth("triad", triad) &&
                 enroll_bandwidth("memcpy", move) && enroll_bandwidth("memset", clear);

}  // namespace
}  // namespace zelm::bench::rivals
