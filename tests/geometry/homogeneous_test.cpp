// Points by a homogeneous matrix, column vectors: both kernels and the driver against the formula, each in its order.
#include <cfloat>
#include <cmath>

#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

ZelStatus model(bool in_pairs, Data<float>& d, int first, int n) {
  const auto m = [&](int r, int c) { return d.operands[0][std::size_t(4 * r + c)]; };
  ZelStatus status = zelStsOk;
  for (int k = first; k < first + n; ++k) {
    const float *const p = &d.operands[1][std::size_t(3 * k)], x = p[0], y = p[1], z = p[2];
    float* const to = &d.operands[2][std::size_t(3 * k)];
    float sum[4];
    for (int r = 0; r < 4; ++r)
      sum[r] = in_pairs ? (x * m(r, 0) + y * m(r, 1)) + (z * m(r, 2) + m(r, 3))
               : r < 3  ? x * m(r, 0) + m(r, 3) + y * m(r, 1) + z * m(r, 2)
                        : m(3, 0) * x + m(3, 1) * y + m(3, 2) * z + m(3, 3);
    const bool good = std::fabs(sum[3]) > FLT_MIN;
    if (!good) status = zelStsDivideByZero;
    const float inverse = 1.0f / sum[3];
    for (int r = 0; r < 3; ++r) to[r] = good ? sum[r] * inverse : FLT_MAX;
  }
  return status;
}

void check(int count, const Memory& memory, int bad_in, const std::vector<int>& teams, int in_place = -1) {
  const Function& f = function("zelmAffineTransform3DH_mva_32f");
  Random random{std::uint32_t(count)};
  Data<float> data;
  data.operands = {random.uniforms<float>(16), random.uniforms<float>(3 * count), std::vector<float>(3 * std::size_t(count))};
  std::vector<float>&m = data.operands[0], &points = data.operands[1];
  for (std::size_t c = 0; c < 4; ++c) m[12 + c] = c < 2 ? 1.f : 0.f;  // w = x + y
  for (int k = 0; k < count; ++k)
    if (bad_in > 0 && random.below(bad_in) == 0) {
      const float values[] = {0, FLT_MIN, -FLT_MIN, NAN, std::nextafter(FLT_MIN, 1.f), INFINITY};
      points[std::size_t(3 * k)] = values[random.below(6)];
      points[std::size_t(3 * k + 1)] = 0;
    }
  const auto run = [&](const Road& road, Data<float>& d, int first, int n) {
    return model(road.kernel->contiguous, d, first, n);
  };
  expect_model<float>(f, {{{"count", count}}}, memory, data, run, in_place, teams);
}

TEST(Homogeneous, EveryRoad) {
  for (const int count : {1, 2, 3, 4, 5, 7, 8, 9, 13, 17, 64, 130, 131, 200})
    for (const Memory& memory : memories())
      for (const int bad_in : {0, 3, 20}) check(count, memory, bad_in, count > 3 ? std::vector{2, 3} : std::vector<int>{});
}

TEST(Homogeneous, InPlace) {
  for (const int count : {1, 4, 6, 33})
    for (const Memory& memory : memories()) check(count, memory, 5, {}, 1);
}

TEST(Homogeneous, StatusStaysAndOthersAreDone) {
  const float m[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 1, 0};
  const float p[9] = {2, 4, 2, 1, 1, 0, 3, 6, 3};
  float d[9];
  EXPECT_EQ(zelmAffineTransform3DH_mva_32f(m, 16, 4, p, 12, 4, d, 12, 4, 3), zelStsDivideByZero);
  EXPECT_EQ(std::vector<float>(d, d + 9),
            (std::vector<float>{1, 2, 1, FLT_MAX, FLT_MAX, FLT_MAX, 3 * (1.f / 3), 6 * (1.f / 3), 3 * (1.f / 3)}));
}

}  // namespace
}  // namespace zelm::test
