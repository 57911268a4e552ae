// Vectors of fixed size against their formulas, bit for bit, with the destination beside the sources and in each of them.
#include <cmath>

#include "geometry/fixed.hpp"

namespace zelm::test {
namespace {

using E = Elements;

float dot(int n, const E& a, const E& b) {
  float sum = a[0] * b[0];
  for (int i = 1; i < n; ++i) sum = sum + a[i] * b[i];
  return sum;
}
float length(int n, const E& a) { return float(std::sqrt(double(dot(n, a, a)))); }

float hermite(float p0, float t0, float p1, float t1, float s) {
  const float s2 = s * s, s3 = s2 * s;
  const float hA = float(double(s) - double(s2) - double(s2) + double(s3));
  const float hB = float(double(s3) - 3.0 * double(s2) + double(s3));
  const float hC = float(double(s3) - double(s2));
  return (p0 - p1) * hB + ((p0 + t0 * hA) + t1 * hC);
}

/// A formula on N elements: sources, constants, destination.
using Formula = void (*)(int n, const E* s, const float* c, E d);
struct Operation {
  const char* name;
  int sources, constants;
  bool scalar;  // one float comes out
  Formula formula;
};

const Operation kOperations[] = {
    {"Add", 2, 0, false,
     [](int n, const E* s, const float*, E d) {
       for (int i = 0; i < n; ++i) d[i] = s[0][i] + s[1][i];
     }},
    {"Sub", 2, 0, false,
     [](int n, const E* s, const float*, E d) {
       for (int i = 0; i < n; ++i) d[i] = s[0][i] - s[1][i];
     }},
    {"MulC", 1, 1, false,
     [](int n, const E* s, const float* c, E d) {
       for (int i = 0; i < n; ++i) d[i] = s[0][i] * c[0];
     }},
    {"Min", 2, 0, false,
     [](int n, const E* s, const float*, E d) {
       for (int i = 0; i < n; ++i) d[i] = s[0][i] < s[1][i] ? float(s[0][i]) : float(s[1][i]);
     }},
    {"Max", 2, 0, false,
     [](int n, const E* s, const float*, E d) {
       for (int i = 0; i < n; ++i) d[i] = s[0][i] > s[1][i] ? float(s[0][i]) : float(s[1][i]);
     }},
    {"LenSqr", 1, 0, true, [](int n, const E* s, const float*, E d) { d[0] = dot(n, s[0], s[0]); }},
    {"Len", 1, 0, true, [](int n, const E* s, const float*, E d) { d[0] = length(n, s[0]); }},
    {"Normalize", 1, 0, false,
     [](int n, const E* s, const float*, E d) {
       const float len = length(n, s[0]);
       for (int i = 0; i < n; ++i) d[i] = s[0][i] / len;
     }},
    {"DotProduct", 2, 0, true, [](int n, const E* s, const float*, E d) { d[0] = dot(n, s[0], s[1]); }},
    {"BaryCentric", 3, 2, false,
     [](int n, const E* s, const float* c, E d) {
       for (int i = 0; i < n; ++i) d[i] = (s[1][i] - s[0][i]) * c[0] + s[0][i] + (s[2][i] - s[0][i]) * c[1];
     }},
    {"InterpolationLinear", 2, 1, false,
     [](int n, const E* s, const float* c, E d) {
       for (int i = 0; i < n; ++i) d[i] = s[0][i] + (s[1][i] - s[0][i]) * c[0];
     }},
    {"Hermite", 4, 1, false,
     [](int n, const E* s, const float* c, E d) {
       for (int i = 0; i < n; ++i) d[i] = hermite(s[0][i], s[1][i], s[2][i], s[3][i], c[0]);
     }},
    {"InterpolationCatmullRom", 4, 1, false,
     [](int n, const E* s, const float* c, E d) {
       for (int i = 0; i < n; ++i)
         d[i] = hermite(s[1][i], (s[2][i] - s[0][i]) * 0.5f, s[2][i], (s[3][i] - s[1][i]) * 0.5f, c[0]);
     }},
};

/// Of two elements of each of two vectors.
float minor(const E& b, const E& c, int i, int j) { return b[i] * c[j] - b[j] * c[i]; }

/// Each element of these is stored before the next is computed.
const Operation kCrossProducts[] = {
    {"CrossProduct", 2, 0, true, [](int, const E* s, const float*, E d) { d[0] = s[0][0] * s[1][1] - s[0][1] * s[1][0]; }},
    {"CrossProduct", 2, 0, false,
     [](int, const E* s, const float*, E d) {
       d[0] = s[0][1] * s[1][2] - s[0][2] * s[1][1];
       d[1] = s[0][2] * s[1][0] - s[0][0] * s[1][2];
       d[2] = s[0][0] * s[1][1] - s[0][1] * s[1][0];
     }},
    {"CrossProduct", 3, 0, false,
     [](int, const E* s, const float*, E d) {
       const E &a = s[0], &b = s[1], &c = s[2];
       d[0] = minor(b, c, 2, 3) * a[1] - minor(b, c, 1, 3) * a[2] + minor(b, c, 1, 2) * a[3];
       d[1] = 0.f - (minor(b, c, 2, 3) * a[0] - minor(b, c, 0, 3) * a[2] + minor(b, c, 0, 2) * a[3]);
       d[2] = minor(b, c, 1, 3) * a[0] - minor(b, c, 0, 3) * a[1] + minor(b, c, 0, 1) * a[3];
       d[3] = 0.f - (minor(b, c, 1, 2) * a[0] - minor(b, c, 0, 2) * a[1] + minor(b, c, 0, 1) * a[2]);
     }},
};

void check(const Operation& op, int n) {
  Random random{std::uint32_t(n)};
  const std::string name = "zelm" + std::string(op.name) + "_v" + std::to_string(n) + "_32f";
  for (int turn = 0; turn < 300 && !testing::Test::HasFailure(); ++turn) {
    std::vector<Span> spans(std::size_t(op.sources), floats(n));
    const int of = turn % (op.sources + 2);  // the source that the destination is; from `sources` on none
    spans.push_back(of < op.sources ? in_place(of) : floats(op.scalar ? 1 : n));
    std::vector<double> constants;
    float c[2];
    numbers(random, turn % 3 == 0)(c, 2, 0);
    if (turn % 10 == 0) c[0] = float(turn / 10 % 2);  // the ends of curves
    for (int i = 0; i < op.constants; ++i) constants.push_back(c[i]);
    expect_same(name, spans, constants, turn, numbers(random, turn % 4 == 0), [&](const std::vector<E>& p) {
      op.formula(n, p.data(), c, p.back());
      return zelStsOk;
    });
  }
}

TEST(Vec, FollowsItsFormula) {
  for (const Operation& op : kOperations)
    for (const int n : {2, 3, 4}) check(op, n);
  for (int n = 2; n <= 4; ++n) check(kCrossProducts[n - 2], n);
}

TEST(Vec, KnownAnswers) {
  const auto call = [](const char* name, std::vector<std::vector<float>> sources, std::vector<double> constants = {}) {
    std::vector<float> d(6, 77);
    std::vector<Value> values;
    for (auto& s : sources) values.push_back({.p = s.data()});
    for (const double c : constants) values.push_back({.x = c});
    values.push_back({.p = d.data()});
    EXPECT_EQ(find(name).call(values.data()), zelStsOk);
    return d;
  };
  using V = std::vector<float>;
  EXPECT_EQ(call("zelmCrossProduct_v2_32f", {{1, 2}, {3, 5}}), (V{-1, 77, 77, 77, 77, 77}));
  EXPECT_EQ(call("zelmCrossProduct_v3_32f", {{1, 0, 0}, {0, 1, 0}}), (V{0, 0, 1, 77, 77, 77}));
  EXPECT_EQ(call("zelmCrossProduct_v4_32f", {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}}), (V{0, 0, 0, -1, 77, 77}));
  EXPECT_EQ(call("zelmLen_v3_32f", {{2, 3, 6}})[0], 7);
  EXPECT_EQ(call("zelmLen_v2_32f", {{1.85e19f, 0}})[0], INFINITY);
  EXPECT_EQ(call("zelmNormalize_v2_32f", {{3, 4}}), (V{.6f, .8f, 77, 77, 77, 77}));
  for (const float x : call("zelmNormalize_v3_32f", {{0, 0, 0}})) EXPECT_TRUE(x != x || x == 77);
  EXPECT_EQ(call("zelmMin_v2_32f", {{NAN, -0.f}, {1, 0.f}})[0], 1);
  EXPECT_TRUE(std::isnan(call("zelmMin_v2_32f", {{1, 1}, {NAN, 1}})[0]));
  EXPECT_FALSE(std::signbit(call("zelmMin_v2_32f", {{1, -0.f}, {1, 0.f}})[1]));
  const V p0 = {.1f, .2f}, p1 = {.3f, .7f}, t = {5, 6};
  EXPECT_EQ(call("zelmHermite_v2_32f", {p0, t, p1, t}, {0})[0], .1f);
  EXPECT_EQ(call("zelmHermite_v2_32f", {p0, t, p1, t}, {1})[1], .2f - (.2f - .7f));
  EXPECT_EQ(call("zelmInterpolationCatmullRom_v2_32f", {t, p0, p1, t}, {0})[1], .2f);
  EXPECT_EQ(call("zelmBaryCentric_v2_32f", {p0, p1, t}, {0, 1})[0], .1f + (5 - .1f));
}

}  // namespace
}  // namespace zelm::test
