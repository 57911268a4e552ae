// Matrix functions and transforms of fixed size against their formulas, bit for bit: single vectors, and arrays at any distance and
// alignment, beside their sources and in them.
#include <immintrin.h>

#include <Eigen/Dense>
#include <cmath>

#include "frame/interpose.hpp"
#include "geometry/fixed.hpp"
#include "internals.hpp"
#include "solvers/inverse_kernels.hpp"
#include "zelm.h"

extern "C" {
ZelStatus p8_zelmMul_v3_32f(const float*, const float*, float*);
ZelStatus p8_ownMulMat_32f(const float*, const float*, float*);
ZelStatus p8_own3dConvert64f32f_16(const double*, float*);
}

namespace zelm::test {
namespace {

using M = std::array<float, 16>;
using E = Elements;

M product(const M& a, const M& b) {
  M d;
  for (std::size_t r = 0; r < 16; r += 4)
    for (std::size_t c = 0; c < 4; ++c)
      d[r + c] = a[r] * b[c] + a[r + 1] * b[4 + c] + a[r + 2] * b[8 + c] + a[r + 3] * b[12 + c];
  return d;
}

// Matrices

TEST(M4, ProductsAndTransposes) {
  Random random(3);
  for (int turn = 0; turn < 200; ++turn) {
    const Fill fill = numbers(random, turn % 4 == 0);
    const Span d = turn % 3 < 2 ? in_place(turn % 3) : floats(16);
    expect_same("zelmMul_mm4x4_32f", {floats(16), floats(16), d}, {}, turn, fill, [](const std::vector<E>& p) {
      const M m = product(p[0].copy<16>(), p[1].copy<16>());
      for (int e = 0; e < 16; ++e) p[2][e] = m[std::size_t(e)];
      return zelStsOk;
    });
    expect_same("zelmMulTranspose_m4_32f", {floats(16), floats(16), d}, {}, turn, fill, [](const std::vector<E>& p) {
      const M m = product(p[0].copy<16>(), p[1].copy<16>());
      for (int e = 0; e < 16; ++e) p[2][4 * (e % 4) + e / 4] = m[std::size_t(e)];
      return zelStsOk;
    });
    expect_same("zelmTranspose_m4_32f", {floats(16), turn % 2 ? in_place(0) : floats(16)}, {}, turn, fill,
                [](const std::vector<E>& p) {
                  const M m = p[0].copy<16>();
                  for (int e = 0; e < 16; ++e) p[1][4 * (e % 4) + e / 4] = m[std::size_t(e)];
                  return zelStsOk;
                });
    expect_same("zelmDet_m4_32f", {floats(16), floats(1)}, {}, turn, fill, [](const std::vector<E>& p) {
      const auto m = [&](int i, int j) { return p[0][8 + i] * p[0][12 + j] - p[0][8 + j] * p[0][12 + i]; };
      const E a = p[0], b = p[0].moved(16);
      const float t0 = (m(2, 3) * b[1] - m(1, 3) * b[2] + m(1, 2) * b[3]) * a[0];
      const float t1 = (m(2, 3) * b[0] - m(0, 3) * b[2] + m(0, 2) * b[3]) * a[1];
      const float t2 = (m(1, 3) * b[0] - m(0, 3) * b[1] + m(0, 1) * b[3]) * a[2];
      const float t3 = (m(1, 2) * b[0] - m(0, 2) * b[1] + m(0, 1) * b[2]) * a[3];
      p[1][0] = (t0 - t1) + (t2 - t3);
      return zelStsOk;
    });
  }
}

TEST(M4, ProductRefusesNull) {
  M m{};
  EXPECT_EQ(zelmMul_mm4x4_32f(nullptr, m.data(), m.data()), zelStsNullPointer);
  EXPECT_EQ(zelmMul_mm4x4_32f(m.data(), nullptr, m.data()), zelStsNullPointer);
  EXPECT_EQ(zelmMul_mm4x4_32f(m.data(), m.data(), nullptr), zelStsNullPointer);
}

M diagonal(float x) { return {x, 0, 0, 0, 0, x, 0, 0, 0, 0, x, 0, 0, 0, 0, x}; }

/// Of small integers all cofactors and the determinant are exact, whatever the order: the reciprocal alone rounds.
TEST(M4, InverseOfIntegersToTheBit) {
  Random random(5);
  for (int turn = 0; turn < 300; ++turn) {
    const Fill integers = [&](float* all, int n, int) {
      for (int i = 0; i < n; ++i)
        all[i] = float((1 + random.below(9)) * (random.below(2) ? 1 : -1));  // a zero would have a sign of its own
    };
    const Model model = [&](const std::vector<E>& p) {
      Eigen::Matrix4d a;
      for (int e = 0; e < 16; ++e) a(e / 4, e % 4) = p[0][e];
      const auto cofactor = [&](int i, int j) {
        const auto at = [&](int r, int c) { return a(r + (r >= i), c + (c >= j)); };
        double sum = 0;
        for (int c = 0; c < 3; ++c)
          sum += at(0, c) * (at(1, (c + 1) % 3) * at(2, (c + 2) % 3) - at(1, (c + 2) % 3) * at(2, (c + 1) % 3));
        return (i + j) % 2 ? -sum : sum;
      };
      const float det =
          float(a(0, 0) * cofactor(0, 0) + a(1, 0) * cofactor(1, 0) + a(2, 0) * cofactor(2, 0) + a(3, 0) * cofactor(3, 0));
      if (det == 0) {
        p[1][0] = 0;
        return zelStsSingular;
      }
      p[1][0] = det;
      const float r0 = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(det)));
      const float r = r0 + r0 - det * (r0 * r0);
      for (int e = 0; e < 16; ++e) p[2][e] = float(cofactor(e % 4, e / 4)) * r;
      return zelStsOk;
    };
    expect_same("zelmInvert_m4_32f", {floats(16), floats(1), turn % 2 ? in_place(0) : floats(16)}, {}, turn, integers, model);
  }
}

TEST(M4, InverseOfAnything) {
  Random random(9);
  for (int turn = 0; turn < 200; ++turn) {
    Eigen::Matrix<float, 4, 4, Eigen::RowMajor> a, inverse;
    for (int e = 0; e < 16; ++e) a(e / 4, e % 4) = random.uniform<float>();
    float det;
    ASSERT_EQ(zelmInvert_m4_32f(a.data(), &det, inverse.data()), zelStsOk);
    const Eigen::Matrix4d exact = a.cast<double>().inverse();
    const double condition = exact.norm() * a.norm();
    EXPECT_LT((inverse.cast<double>() - exact).norm(), 1e-6 * condition * exact.norm());
    EXPECT_NEAR(det, a.cast<double>().determinant(), 2e-6);
  }
}

TEST(M4, InverseAtTheLimit) {
  const float canary = 3;
  M d;
  float det = 5;
  const auto invert = [&](const M& m) {
    d.fill(canary);
    return zelmInvert_m4_32f(m.data(), &det, d.data());
  };
  EXPECT_EQ(invert(diagonal(0)), zelStsSingular);
  EXPECT_EQ(det, 0);
  EXPECT_EQ(d[0], canary);
  EXPECT_EQ(invert(diagonal(1e-4f)), zelStsOk);
  EXPECT_EQ(invert(diagonal(1e-10f)), zelStsSingular);
  for (const float sign : {1.f, -1.f}) {
    M m = diagonal(1);
    m[0] = sign * 0x1p-119f;
    EXPECT_EQ(invert(m), zelStsOk);
    EXPECT_EQ(det, m[0]);
    m[0] = std::nextafter(m[0], 0.f);
    EXPECT_EQ(invert(m), zelStsSingular);
    EXPECT_EQ(det, 0);
    EXPECT_EQ(zelmInvert_m4_32f(m.data(), nullptr, d.data()), zelStsSingular);
  }
  EXPECT_EQ(invert(diagonal(NAN)), zelStsOk);
  for (const float x : d) EXPECT_TRUE(x != x);
  EXPECT_EQ(zelmInvert_m4_32f(diagonal(4).data(), nullptr, d.data()), zelStsOk);
  EXPECT_NEAR(d[5], .25f, 1e-7f);
}

// Vectors

using Formula = void (*)(const M& m, const E& s, E d);
struct Transform {
  const char* name;
  int in, out;
  Formula formula;
};

const Transform kTransforms[] = {
    {"AffineTransform_m4v2", 2, 4,
     [](const M& m, const E& s, E d) {
       const float x = s[0], y = s[1];
       for (std::size_t c = 0; c < 4; ++c) d[int(c)] = m[12 + c] + m[c] * x + m[4 + c] * y;
     }},
    {"AffineTransform_m4v3", 3, 4,
     [](const M& m, const E& s, E d) {
       const float x = s[0], y = s[1], z = s[2];
       for (std::size_t c = 0; c < 4; ++c) d[int(c)] = m[12 + c] + m[c] * x + m[4 + c] * y + m[8 + c] * z;
     }},
    {"AffineTransform_m4v4", 4, 4,
     [](const M& m, const E& s, E d) {
       const float x = s[0], y = s[1], z = s[2], w = s[3];
       for (std::size_t c = 0; c < 4; ++c) d[int(c)] = (m[c] * x + m[4 + c] * y) + (m[8 + c] * z + m[12 + c] * w);
     }},
    {"AffineTransformCoord_m4v2", 2, 2,
     [](const M& m, const E& s, E d) {
       const float x = s[0], y = s[1], w = m[3] * x + m[15] + m[7] * y;
       for (std::size_t c = 0; c < 2; ++c) d[int(c)] = (m[c] * x + m[12 + c] + m[4 + c] * y) / w;
     }},
    {"AffineTransformCoord_m4v3", 3, 3,
     [](const M& m, const E& s, E d) {
       const float x = s[0], y = s[1], z = s[2], w = m[15] + m[11] * z + (m[3] * x + m[7] * y);
       for (std::size_t c = 0; c < 3; ++c) d[int(c)] = (m[12 + c] + m[8 + c] * z + (m[c] * x + m[4 + c] * y)) / w;
     }},
    {"AffineTransformNormal_m4v2", 2, 2,
     [](const M& m, const E& s, E d) {
       const float x = s[0], y = s[1];
       for (std::size_t c = 0; c < 2; ++c) d[int(c)] = m[c] * x + m[4 + c] * y;
     }},
    {"AffineTransformNormal_m4v3", 3, 3,
     [](const M& m, const E& s, E d) {
       const float x = s[0], y = s[1], z = s[2];
       for (std::size_t c = 0; c < 3; ++c) d[int(c)] = m[c] * x + m[4 + c] * y + m[8 + c] * z;
     }},
};

/// One after the other.
void each(const Transform& t, const M& m, const E& s, int src_stride, const E& d, int dst_stride, int count) {
  for (int k = 0; k < count; ++k)
    t.formula(m, s.moved(std::ptrdiff_t(k) * src_stride), d.moved(std::ptrdiff_t(k) * dst_stride));
}

/// An array of `count` vectors of n floats.
Span array(int n, int stride, int count) {
  const int far = stride * std::max(count - 1, 0);
  return {std::abs(far) + 4 * n, far < 0 ? -far : 0};
}

struct Strides {
  int src, dst;
};
std::vector<Strides> strides(int in, int out) {
  const int s = 4 * in, d = 4 * out;
  return {{s, d}, {s, d + 4}, {16, 16}, {s + 1, d + 3}, {-s, -d}, {-s, d}, {0, d}, {s, 0}, {s + 8, 7}, {-32, -5}, {s, -d}};
}

/// True if no part of an element is written over another. Which NaN a sum of two passes on is the compiler's choice, and parts of it
/// would come out as another number.
bool whole(Strides s, const Span& destination) { return s.src % 4 == 0 && s.dst % 4 == 0 && destination.shift % 4 == 0; }

/// Calls body(turn, strides, count, spans of source and destination): beside each other, in place, and overlapping.
template <class Body>
void for_arrays(int in, int out, Body body) {
  int turn = 0;
  for (const Strides& s : strides(in, out))
    for (const int count : {1, 2, 3, 4, 5, 7, 8, 13, 33}) {
      const Span source = array(in, s.src, count);
      body(++turn, s, count, source, array(out, s.dst, count));
      if (in == out && s.src == s.dst && s.src != 0) body(++turn, s, count, source, Span{0, source.origin, 0, 0});
      if (s.src > 0 && s.dst > 0 && in == out) {  // results fall into sources that are still to be read, or that were
        const int room = (std::max(s.src, s.dst)) * (count + 2) + 4 * out;
        body(++turn, s, count, Span{room, 0}, Span{0, 0, 0, s.dst});
        body(++turn, s, count, Span{room, s.src}, Span{0, 0, 0, 0});
        body(++turn, s, count, Span{room, 0}, Span{0, 0, 0, 5});
      }
    }
}

TEST(Transform, SingleVectors) {
  Random random(11);
  for (const Transform& t : kTransforms)
    for (int turn = 0; turn < 120; ++turn)
      expect_same("zelm" + std::string(t.name) + "_32f",
                  {floats(16), floats(t.in), t.in == t.out && turn % 2 ? in_place(1) : floats(t.out)}, {}, turn,
                  numbers(random, turn % 4 == 0), [&](const std::vector<E>& p) {
                    t.formula(p[0].copy<16>(), p[1], p[2]);
                    return zelStsOk;
                  });
}

TEST(Transform, Arrays) {
  Random random(12);
  for (const Transform& t : kTransforms)
    for_arrays(t.in, t.out, [&](int turn, Strides s, int count, Span source, Span destination) {
      if (destination.of == 0) destination.of = 1;
      expect_same("zelm" + std::string(t.name) + "a_32f", {floats(16), source, destination},
                  {double(s.src), double(s.dst), double(count)}, turn, numbers(random, turn % 4 == 0 && whole(s, destination)),
                  [&](const std::vector<E>& p) {
                    each(t, p[0].copy<16>(), p[1], s.src, p[2], s.dst, count);
                    return zelStsOk;
                  });
    });
}

/// The matrix is read before the first vector, wherever the results go.
TEST(Transform, ArrayOverItsMatrix) {
  Random random(13);
  for (const Transform& t : kTransforms)
    expect_same("zelm" + std::string(t.name) + "a_32f", {floats(64), floats(3 * 12), {0, 0, 0, 8}}, {4. * t.in, 4. * t.out, 9},
                0, numbers(random, false), [&](const std::vector<E>& p) {
                  each(t, p[0].copy<16>(), p[1], 4 * t.in, p[2], 4 * t.out, 9);
                  return zelStsOk;
                });
}

// Screen

struct View {
  M projection, view, world;
  float width, height, min_z, max_z;
  View(const std::vector<E>& p, const std::vector<double>& n)
      : projection(p[0].copy<16>()),
        view(p[1].copy<16>()),
        world(p[2].copy<16>()),
        width(float(n[0])),
        height(float(n[1])),
        min_z(float(n[2])),
        max_z(float(n[3])) {}
};

void project(const View& v, const E& s, E d) {
  const float x = s[0], y = s[1], z = s[2];
  M p1{}, p2{}, p3{};
  const M &W = v.world, &V = v.view, &P = v.projection;
  for (std::size_t c = 0; c < 4; ++c) p1[c] = W[12 + c] + W[8 + c] * z + (W[c] * x + W[4 + c] * y);
  for (std::size_t c = 0; c < 4; ++c) p2[c] = V[c] * p1[0] + V[4 + c] * p1[1] + (V[8 + c] * p1[2] + V[12 + c] * p1[3]);
  for (std::size_t c = 0; c < 4; ++c) p3[c] = P[c] * p2[0] + P[4 + c] * p2[1] + (P[8 + c] * p2[2] + P[12 + c] * p2[3]);
  const float nx = p3[0] / p3[3], ny = p3[1] / p3[3], nz = p3[2] / p3[3];
  d[0] = v.width * 0.5f + (v.width * 0.5f) * nx;
  d[1] = v.height * 0.5f + (0.f - v.height * 0.5f) * ny;
  d[2] = v.min_z + (v.max_z - v.min_z) * nz;
}

void project_by(const M& t, const View& v, const E& s, E d) {
  const float x = s[0], y = s[1], z = s[2], w = z * t[11] + t[15] + (x * t[3] + y * t[7]);
  float n[3];
  for (std::size_t c = 0; c < 3; ++c) n[c] = (z * t[8 + c] + t[12 + c] + (x * t[c] + y * t[4 + c])) / w;
  d[0] = n[0] * (v.width * 0.5f) + v.width * 0.5f;
  d[1] = n[1] * (0.f - v.height * 0.5f) + v.height * 0.5f;
  d[2] = n[2] * (v.max_z - v.min_z) + v.min_z;
}

std::array<float, 3> normalized(const View& v, const E& s) {
  return {(2.f * s[0]) / v.width - 1.f, (-2.f * s[1]) / v.height + 1.f, (s[2] - v.min_z) / (v.max_z - v.min_z)};
}

/// The inversion itself is the solvers', and is tested there.
ZelStatus inverse_view(const View& v, M& to) {
  const M t = product(product(v.world, v.view), v.projection);
  double wide[16], inverse[16];
  for (std::size_t e = 0; e < 16; ++e) wide[e] = t[e];
  if (const ZelStatus status = p8_ownzelmInvert_m_64f_4x4(wide, 32, inverse, 32); status != zelStsOk) return status;
  for (std::size_t e = 0; e < 16; ++e) to[e] = float(inverse[e]);
  return zelStsOk;
}

const Transform& kCoord = kTransforms[4];

TEST(Screen, SinglePoints) {
  Random random(14);
  for (int turn = 0; turn < 200; ++turn) {
    const bool special = turn % 4 == 0, singular = turn % 5 == 0;
    const std::vector<double> port = {turn % 7 == 0 ? 0. : 640, 480, random.uniform<float>(), random.uniform<float>()};
    const Span d = turn % 2 ? in_place(3) : floats(3);
    expect_same("zelmProject_m4v3_32f", {floats(16), floats(16), floats(16), floats(3), d}, port, turn,
                numbers(random, special), [&](const std::vector<E>& p) {
                  project(View(p, port), p[3], p[4]);
                  return zelStsOk;
                });
    const Fill fill = [&](float* all, int n, int span) {
      if (singular && span == 1) std::fill_n(all, n, 0.f);
      else numbers(random, special && !singular)(all, n, span);
    };
    expect_same("zelmUnproject_m4v3_32f", {floats(16), floats(16), floats(16), floats(3), d}, port, turn, fill,
                [&](const std::vector<E>& p) -> ZelStatus {
                  const View v(p, port);
                  const auto n = normalized(v, p[3]);
                  for (int j = 0; j < 3; ++j) p[4][j] = n[std::size_t(j)];
                  M m;
                  if (const ZelStatus status = inverse_view(v, m); status != zelStsOk) return status;
                  kCoord.formula(m, p[4], p[4]);
                  return zelStsOk;
                });
  }
}

TEST(Screen, Arrays) {
  Random random(15);
  for_arrays(3, 3, [&](int turn, Strides s, int count, Span source, Span destination) {
    if (destination.of == 0) destination.of = 3;
    const std::vector<double> port = {640, 480, .25, .75};
    const std::vector<double> all = {double(s.src), 640, 480, .25, .75, double(s.dst), double(count)};
    const std::vector<Span> spans = {floats(16), floats(16), floats(16), source, destination};
    expect_same("zelmProject_m4v3a_32f", spans, all, turn, numbers(random, turn % 4 == 0 && whole(s, destination)),
                [&](const std::vector<E>& p) {
                  const View v(p, port);
                  const M t = product(v.world, product(v.view, v.projection));
                  for (int k = 0; k < count; ++k) project_by(t, v, p[3].moved(k * s.src), p[4].moved(k * s.dst));
                  return zelStsOk;
                });
    expect_same("zelmUnproject_m4v3a_32f", spans, all, turn, numbers(random, false), [&](const std::vector<E>& p) -> ZelStatus {
      const View v(p, port);
      M m;
      if (const ZelStatus status = inverse_view(v, m); status != zelStsOk) return status;
      for (int k = 0; k < count; ++k) {
        std::vector<unsigned char> bytes(12);
        std::vector<unsigned char*> log;
        E n(bytes.data(), &log);
        const auto point = normalized(v, p[3].moved(k * s.src));
        for (int j = 0; j < 3; ++j) n[j] = point[std::size_t(j)];
        kCoord.formula(m, n, p[4].moved(k * s.dst));
      }
      return zelStsOk;
    });
  });
}

TEST(Screen, YPointsDownAndThereAndBack) {
  const M one = diagonal(1);
  const float up[3] = {0, 1, .5f}, down[3] = {0, -1, .5f};
  float d[3];
  zelmProject_m4v3_32f(one.data(), one.data(), one.data(), up, 800, 600, 0, 1, d);
  EXPECT_EQ(std::vector<float>(d, d + 3), (std::vector<float>{400, 0, .5f}));
  zelmProject_m4v3_32f(one.data(), one.data(), one.data(), down, 800, 600, 0, 1, d);
  EXPECT_EQ(d[1], 600);

  M projection, view, world;
  const float eye[3] = {3, 4, 5}, at[3] = {0, 0, 1}, z[3] = {0, 0, 1};
  zelmPerspectiveFovRH_m4_32f(1, 1.25f, .5f, 50, projection.data());
  zelmLookAtRH_m4_32f(eye, at, z, view.data());
  zelmRotationZ_m4_32f(.4f, world.data());
  Random random(16);
  for (int turn = 0; turn < 50; ++turn) {
    const auto point = random.uniforms<float>(3);
    float screen[3], screens[3], back[3], backs[3];
    zelmProject_m4v3_32f(projection.data(), view.data(), world.data(), point.data(), 800, 600, 0, 1, screen);
    zelmProject_m4v3a_32f(projection.data(), view.data(), world.data(), point.data(), 12, 800, 600, 0, 1, screens, 12, 1);
    EXPECT_EQ(zelmUnproject_m4v3_32f(projection.data(), view.data(), world.data(), screen, 800, 600, 0, 1, back), zelStsOk);
    EXPECT_EQ(zelmUnproject_m4v3a_32f(projection.data(), view.data(), world.data(), screen, 12, 800, 600, 0, 1, backs, 12, 1),
              zelStsOk);
    for (std::size_t j = 0; j < 3; ++j) {
      EXPECT_NEAR(screens[j], screen[j], 1e-3f);
      EXPECT_NEAR(back[j], point[j], 1e-3f);
      EXPECT_NEAR(backs[j], back[j], 1e-5f);
    }
  }
}

TEST(Screen, SingularAndEmptyArrays) {
  const M zero{}, one = diagonal(1);
  const float s[3] = {1, 2, 3};
  for (const int count : {2, 0, -1}) {
    float d[6] = {7, 7, 7, 7, 7, 7};
    EXPECT_EQ(zelmUnproject_m4v3a_32f(one.data(), zero.data(), one.data(), s, 0, 8, 6, 0, 1, d, 12, count), zelStsSingular);
    EXPECT_EQ(d[0], 7);
    if (count > 0) continue;
    EXPECT_EQ(zelmUnproject_m4v3a_32f(one.data(), one.data(), one.data(), s, 0, 8, 6, 0, 1, d, 12, count), zelStsOk);
    EXPECT_EQ(zelmProject_m4v3a_32f(one.data(), one.data(), one.data(), s, 0, 8, 6, 0, 1, d, 12, count), zelStsOk);
    for (const auto f : {zelmAffineTransform_m4v2a_32f, zelmAffineTransform_m4v3a_32f, zelmAffineTransform_m4v4a_32f,
                         zelmAffineTransformCoord_m4v2a_32f, zelmAffineTransformCoord_m4v3a_32f,
                         zelmAffineTransformNormal_m4v2a_32f, zelmAffineTransformNormal_m4v3a_32f})
      EXPECT_EQ(f(one.data(), s, 12, d, 12, count), zelStsOk);
    EXPECT_EQ(d[0], 7);
  }
}

TEST(Companions, HaveTheirNames) {
  const float a[3] = {1, 2, 3}, b[3] = {4, 5, 6};
  float dot = 0;
  EXPECT_EQ(p8_zelmMul_v3_32f(a, b, &dot), zelStsOk);
  EXPECT_EQ(dot, 32);
  M m = diagonal(2), twice = diagonal(3);
  p8_ownMulMat_32f(m.data(), twice.data(), twice.data());
  EXPECT_EQ(twice, diagonal(6));
  double wide[16];
  std::fill_n(wide, 16, 1 / 3.);
  p8_own3dConvert64f32f_16(wide, m.data());
  for (const float x : m) EXPECT_EQ(x, float(1 / 3.));
}

/// Results far larger than any cache go past it.
TEST(Transform, LargeArraysAreTheSame) {
  if (sizeof(void*) == 4) GTEST_SKIP() << "memory";
  const int count = (80 << 20) / 12 + 3;
  const auto size = std::size_t(count);
  std::vector<float> s(3 * size), d(4 * size), want(4);
  Random random(17);
  for (float& x : s) x = random.uniform<float>();
  const M m = {1, .1f, .2f, .3f, .4f, 1, .5f, .6f, .7f, .8f, 1, .9f, .1f, .2f, .3f, 5};
  const auto same = [&](int n, auto one) {
    for (int k = 0; k < count; k += k < count - 20 ? 1 + random.below(2000) : 1) {
      one(&s[3 * std::size_t(k)], want.data());
      ASSERT_EQ(std::memcmp(&d[std::size_t(n) * std::size_t(k)], want.data(), 4 * std::size_t(n)), 0) << k;
    }
  };
  zelmAffineTransform_m4v3a_32f(m.data(), s.data(), 12, d.data(), 16, count);
  same(4, [&](const float* p, float* r) { zelmAffineTransform_m4v3_32f(m.data(), p, r); });
  zelmAffineTransformCoord_m4v3a_32f(m.data(), s.data(), 12, d.data(), 12, count);
  same(3, [&](const float* p, float* r) { zelmAffineTransformCoord_m4v3_32f(m.data(), p, r); });
}

}  // namespace
}  // namespace zelm::test
