// Builders of matrices against their formulas, bit for bit, and against what they are for.
#include <cmath>

#include "geometry/fixed.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

using M = std::array<float, 16>;

/// Elements by place, the others +0.
using Places = std::vector<std::pair<int, float>>;

/// Calls the function on 3-vectors and numbers, which the formula gets too, and compares.
void check(const std::string& name, int vectors, int constants,
           const std::function<Places(const std::vector<Elements>&, const std::vector<float>&)>& formula) {
  Random random(7);
  for (int turn = 0; turn < 120 && !testing::Test::HasFailure(); ++turn) {
    std::vector<Span> spans(std::size_t(vectors), floats(3));
    spans.push_back(floats(16));
    std::vector<float> c(static_cast<std::size_t>(constants));
    numbers(random, turn % 4 == 0)(c.data(), constants, 0);
    if (turn % 3 == 0)
      for (float& x : c) x *= 5;
    expect_same(name, spans, std::vector<double>(c.begin(), c.end()), turn, numbers(random, turn % 5 == 0),
                [&](const std::vector<Elements>& p) {
                  M m{};
                  for (const auto& [place, value] : formula(p, c)) m[std::size_t(place)] = value;
                  for (int e = 0; e < 16; ++e) p.back()[e] = m[std::size_t(e)];
                  return zelStsOk;
                });
  }
}

using C = const std::vector<float>&;
using V = const std::vector<Elements>&;

TEST(Build, SimpleMatrices) {
  check("zelmIdentity_m4_32f", 0, 0, [](V, C) { return Places{{0, 1}, {5, 1}, {10, 1}, {15, 1}}; });
  check("zelmTranslation_m4_32f", 0, 3, [](V, C c) {
    return Places{{0, 1}, {5, 1}, {10, 1}, {12, c[0]}, {13, c[1]}, {14, c[2]}, {15, 1}};
  });
  check("zelmScaling_m4_32f", 0, 3, [](V, C c) { return Places{{0, c[0]}, {5, c[1]}, {10, c[2]}, {15, 1}}; });
}

TEST(Build, Rotations) {
  check("zelmRotationX_m4_32f", 0, 1, [](V, C a) {
    const float s = sinf(a[0]), c = cosf(a[0]);
    return Places{{0, 1}, {5, c}, {6, s}, {9, 0.f - s}, {10, c}, {15, 1}};
  });
  check("zelmRotationY_m4_32f", 0, 1, [](V, C a) {
    const float s = sinf(a[0]), c = cosf(a[0]);
    return Places{{0, c}, {2, 0.f - s}, {5, 1}, {8, s}, {10, c}, {15, 1}};
  });
  check("zelmRotationZ_m4_32f", 0, 1, [](V, C a) {
    const float s = sinf(a[0]), c = cosf(a[0]);
    return Places{{0, c}, {1, s}, {4, 0.f - s}, {5, c}, {10, 1}, {15, 1}};
  });
  check("zelmRotationAxis_v3m4_32f", 1, 1, [](V p, C a) {
    const float s = sinf(a[0]), c = cosf(a[0]);
    const float n = sqrtf(p[0][0] * p[0][0] + p[0][1] * p[0][1] + p[0][2] * p[0][2]);
    const float x = p[0][0] / n, y = p[0][1] / n, z = p[0][2] / n;
    const float t = 1.f - c, tx = t * x, ty = t * y, tz = t * z;
    return Places{{0, tx * x + c},     {1, ty * x + s * z}, {2, tz * x - s * y}, {4, tx * y - s * z}, {5, ty * y + c},
                  {6, y * tz + s * x}, {8, s * y + tx * z}, {9, ty * z - s * x}, {10, c + z * tz},    {15, 1}};
  });
  check("zelmRotationYawPitchRoll_m4_32f", 0, 3, [](V, C a) {
    const float sy = sinf(a[0]), cy = cosf(a[0]), sp = sinf(a[1]), cp = cosf(a[1]), sr = sinf(a[2]), cr = cosf(a[2]);
    const float u = sy * sp, v = sp * cy;
    return Places{{0, sr * u + cy * cr}, {1, sr * cp}, {2, sr * v - sy * cr}, {4, u * cr - cy * sr}, {5, cr * cp},
                  {6, sy * sr + cr * v}, {8, sy * cp}, {9, 0.f - sp},         {10, cy * cp},         {15, 1}};
  });
}

TEST(Build, LookAt) {
  for (const bool left : {true, false})
    check(left ? "zelmLookAtLH_m4_32f" : "zelmLookAtRH_m4_32f", 3, 0, [=](V p, C) {
      using V3 = std::array<float, 3>;
      const auto normalized = [](V3 a) {
        const float len = float(std::sqrt(double(a[0] * a[0] + a[1] * a[1] + a[2] * a[2])));
        return V3{a[0] / len, a[1] / len, a[2] / len};
      };
      const auto cross = [](V3 a, V3 b) {
        return V3{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
      };
      const V3 eye = p[0].copy<3>(), at = p[1].copy<3>(), up = p[2].copy<3>();
      V3 d;
      for (std::size_t i = 0; i < 3; ++i) d[i] = left ? at[i] - eye[i] : eye[i] - at[i];
      const V3 z = normalized(d), x = normalized(cross(up, z)), y = cross(z, x);
      Places m = {{15, 1}};
      for (int axis = 0; axis < 3; ++axis) {
        const V3& a = axis == 0 ? x : axis == 1 ? y : z;
        for (int r = 0; r < 3; ++r) m.push_back({4 * r + axis, a[std::size_t(r)]});
        m.push_back({12 + axis, 0.f - (a[0] * eye[0] + a[1] * eye[1] + a[2] * eye[2])});
      }
      return m;
    });
}

TEST(Build, Projections) {
  check("zelmPerspectiveLH_m4_32f", 0, 4, [](V, C c) {
    const float w = c[0], h = c[1], zn = c[2], zf = c[3];
    return Places{{0, (zn + zn) / w}, {5, (zn + zn) / h}, {10, zf / (zf - zn)}, {11, 1}, {14, zn * zf / (0.f - (zf - zn))}};
  });
  check("zelmPerspectiveRH_m4_32f", 0, 4, [](V, C c) {
    const float w = c[0], h = c[1], zn = c[2], zf = c[3];
    return Places{{0, (zn + zn) / w}, {5, (zn + zn) / h}, {10, zf / (zn - zf)}, {11, -1}, {14, zn * zf / (zn - zf)}};
  });
  check("zelmPerspectiveFovLH_m4_32f", 0, 4, [](V, C c) {
    const float half = c[0] * 0.5f, yS = cosf(half) / sinf(half), zn = c[2], zf = c[3];
    return Places{{0, yS / c[1]}, {5, yS}, {10, zf / (zf - zn)}, {11, 1}, {14, (0.f - zn * zf) / (zf - zn)}};
  });
  check("zelmPerspectiveFovRH_m4_32f", 0, 4, [](V, C c) {
    const float half = c[0] * 0.5f, yS = cosf(half) / sinf(half), zn = c[2], zf = c[3];
    return Places{{0, yS / c[1]}, {5, yS}, {10, zf / (zn - zf)}, {11, -1}, {14, zn * zf / (zn - zf)}};
  });
  check("zelmPerspectiveOffCenterLH_m4_32f", 0, 6, [](V, C c) {
    const float l = c[0], r = c[1], b = c[2], t = c[3], zn = c[4], zf = c[5];
    return Places{{0, (zn + zn) / (r - l)},         {5, (zn + zn) / (t - b)}, {8, (l + r) / (0.f - (r - l))},
                  {9, (b + t) / (0.f - (t - b))},   {10, zf / (zf - zn)},     {11, 1},
                  {14, zn * zf / (0.f - (zf - zn))}};
  });
  check("zelmPerspectiveOffCenterRH_m4_32f", 0, 6, [](V, C c) {
    const float l = c[0], r = c[1], b = c[2], t = c[3], zn = c[4], zf = c[5];
    return Places{{0, (zn + zn) / (r - l)}, {5, (zn + zn) / (t - b)}, {8, (l + r) / (r - l)},
                  {9, (b + t) / (t - b)},   {10, zf / (zn - zf)},     {11, -1},
                  {14, zn * zf / (zn - zf)}};
  });
  for (const bool left : {true, false}) {
    const auto depth = [=](Places m, float zn, float zf) {
      m.push_back({10, left ? 1.f / (zf - zn) : 1.f / (zn - zf)});
      m.push_back({14, left ? zn / (0.f - (zf - zn)) : zn / (zn - zf)});
      m.push_back({15, 1});
      return m;
    };
    check(left ? "zelmOrthoLH_m4_32f" : "zelmOrthoRH_m4_32f", 0, 4, [=](V, C c) {
      return depth({{0, 2.f / c[0]}, {5, 2.f / c[1]}}, c[2], c[3]);
    });
    check(left ? "zelmOrthoOffCenterLH_m4_32f" : "zelmOrthoOffCenterRH_m4_32f", 0, 6, [=](V, C c) {
      const float l = c[0], r = c[1], b = c[2], t = c[3];
      return depth({{0, 2.f / (r - l)}, {5, 2.f / (t - b)}, {12, (l + r) / (0.f - (r - l))}, {13, (b + t) / (0.f - (t - b))}},
                   c[4], c[5]);
    });
  }
}

int is_identity(const M& m) {
  int result = -1;
  EXPECT_EQ(zelmIsIdentity_m4_32f(m.data(), &result), zelStsOk);
  return result;
}

TEST(Build, IsIdentityAsksForOneColumn) {
  M identity;
  zelmIdentity_m4_32f(identity.data());
  const auto with = [&](Places places, M m) {
    for (const auto& [place, value] : places) m[std::size_t(place)] = value;
    return is_identity(m);
  };
  M sevens;
  sevens.fill(7);
  sevens[0] = 1;
  EXPECT_EQ(is_identity(identity), 1);
  EXPECT_EQ(with({{0, std::nextafter(1.f, 2.f)}}, identity), 0);
  EXPECT_EQ(with({{0, NAN}}, identity), 0);
  EXPECT_EQ(with({{1, 5}}, identity), 1);
  EXPECT_EQ(with({{1, NAN}, {2, NAN}, {4, 3}}, identity), 1);
  EXPECT_EQ(with({{1, NAN}, {2, NAN}, {4, 3}, {3, 1e-30f}}, identity), 0);
  EXPECT_EQ(is_identity(sevens), 0);
  for (int column = 0; column < 4; ++column) {
    Places places;
    for (int r = 0; r < 4; ++r) places.push_back({4 * r + column, r == column ? 1.f : -0.f});
    EXPECT_EQ(with(places, sevens), 1) << column;
    places.push_back({12 + column, 2});
    EXPECT_EQ(with(places, sevens), 0) << column;
  }
}

/// Turns the point by the matrix.
std::array<float, 4> turned(const M& m, std::array<float, 3> p) {
  std::array<float, 4> d;
  zelmAffineTransform_m4v3_32f(m.data(), p.data(), d.data());
  return d;
}

TEST(Build, DocumentedDirections) {
  M yaw, pitch, roll, both, all, want;
  zelmRotationYawPitchRoll_m4_32f(.3f, -.5f, .8f, all.data());
  zelmRotationY_m4_32f(.3f, yaw.data());
  zelmRotationX_m4_32f(-.5f, pitch.data());
  zelmRotationZ_m4_32f(.8f, roll.data());
  zelmMul_mm4x4_32f(roll.data(), pitch.data(), both.data());
  zelmMul_mm4x4_32f(both.data(), yaw.data(), want.data());
  for (std::size_t e = 0; e < 16; ++e) EXPECT_NEAR(all[e], want[e], 1e-6f);
  EXPECT_NEAR(turned(yaw, {0, 0, 1})[0], sinf(.3f), 1e-6f);     // z towards x
  EXPECT_NEAR(turned(pitch, {0, 1, 0})[2], sinf(-.5f), 1e-6f);  // y towards z
  const float z_axis[3] = {0, 0, 2};
  zelmRotationAxis_v3m4_32f(z_axis, .8f, all.data());
  for (std::size_t e = 0; e < 16; ++e) EXPECT_NEAR(all[e], roll[e], 1e-6f);

  const float eye[3] = {1, 2, 3}, at[3] = {4, -1, 5}, up[3] = {0, 0, 1};
  const float distance = std::sqrt(22.f);
  for (const bool left : {true, false}) {
    M view, projection, m;
    (left ? zelmLookAtLH_m4_32f : zelmLookAtRH_m4_32f)(eye, at, up, view.data());
    EXPECT_NEAR(turned(view, {1, 2, 3})[2], 0, 1e-5f);
    EXPECT_NEAR(turned(view, {4, -1, 5})[2], left ? distance : -distance, 1e-5f);
    EXPECT_GT(turned(view, {1, 2, 4})[1], 0);  // up is up
    (left ? zelmPerspectiveFovLH_m4_32f : zelmPerspectiveFovRH_m4_32f)(1, 1.5f, distance, 10, projection.data());
    zelmMul_mm4x4_32f(view.data(), projection.data(), m.data());
    const auto p = turned(m, {4, -1, 5});  // on the near plane
    EXPECT_NEAR(p[2], 0, 1e-5f);
    EXPECT_NEAR(p[3], distance, 1e-5f);
  }
}

}  // namespace
}  // namespace zelm::test
