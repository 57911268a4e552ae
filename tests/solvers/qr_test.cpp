// QR decomposition and least-squares solution against plain scalar code, bit for bit: factors, statuses, what every failure
// leaves, and the order of additions in the orders that have code of their own.
#include <cmath>
#include <limits>

#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

// Squares around the known orders, tall matrices, vectors, and sizes beyond what lanes hold.
constexpr std::pair<int, int> kShapes[] = {{1, 1}, {1, 2}, {1, 5},  {2, 2},  {2, 3},   {3, 3},  {3, 4},
                                           {3, 7}, {4, 4}, {4, 6},  {5, 5},  {5, 6},   {6, 6},  {6, 9},
                                           {7, 7}, {8, 8}, {6, 25}, {9, 11}, {23, 23}, {33, 34}};
bool known(int w, int h) { return w == h && w >= 3 && w <= 6; }
int reflections(int w, int h) { return w == h ? w - 1 : w; }

template <class T>
ZelStatus factor(T* d, int w, int h) {
  const auto at = [&](int i, int j) -> T& { return d[i * w + j]; };
  for (int k = 0; k < reflections(w, h); ++k) {
    T q = 0, n = 1;
    for (int i = k; i < h; ++i) q += at(i, k) * at(i, k);
    if (std::numeric_limits<T>::epsilon() > std::abs(q)) return zelStsDivideByZero;
    const T a = at(k, k), s = a > 0 ? std::sqrt(q) : 0 - std::sqrt(q), u = 1 / (a + s);
    std::vector<T> v(std::size_t(h), T(1));
    for (int i = k + 1; i < h; ++i) v[i] = at(i, k) * u;
    for (int i = k + 1; i < h; ++i) n += v[i] * v[i];
    for (int j = k; j < w; ++j) {
      T p = at(k, j);
      for (int i = k + 1; i < h; ++i) p += at(i, j) * v[i];
      const T c = p * (-2 / n);
      for (int i = k; i < h; ++i) at(i, j) += v[i] * c;
    }
    for (int i = k + 1; i < h; ++i) at(i, k) = v[i];
  }
  return zelStsOk;
}

template <class T>
void solve(const T* d, const T* b, T* x, int w, int h) {
  const auto at = [&](int i, int j) { return d[i * w + j]; };
  std::vector<T> y(b, b + h), late(std::size_t(w), T(0));
  for (int k = 0; k < reflections(w, h); ++k) {
    T n = 1, p = y[k];
    for (int i = k + 1; i < h; ++i) n += at(i, k) * at(i, k), p += at(i, k) * y[i];
    const T c = (-2 / n) * p;
    if (known(w, h) && k > 0) late[k] = c;
    else y[k] += c;
    for (int i = k + 1; i < h; ++i) y[i] += c * at(i, k);
  }
  for (int i = w - 1; i >= 0; --i) {
    for (int j = i + 1; j < w; ++j) y[i] -= at(i, j) * x[j];
    if (known(w, h) && i > 0 && i < w - 1) y[i] += late[i];
    x[i] = y[i] / at(i, i);
  }
}

template <class T>
constexpr T kNaN = std::numeric_limits<T>::quiet_NaN();

template <class T>
std::vector<T> filled(int n) {
  return std::vector<T>(std::size_t(n), T(-99));
}

Sizes sizes(int w, int h, int count) { return {{{"width", w}, {"height", h}, {"count", count}}}; }

struct QRDecomp : FunctionTest {
  template <class T>
  void check(int w, int h, int count, const std::vector<T>& matrices, const Memory& memory, int in_place,
             const std::vector<int>& teams = {}) const {
    const auto model = [=](const Road&, Data<T>& d, int first, int stretch) -> ZelStatus {
      for (int k = first; k < first + stretch; ++k) {
        std::copy_n(&d.operands[0][k * w * h], w * h, &d.operands[1][k * w * h]);
        if (const ZelStatus status = factor(&d.operands[1][k * w * h], w, h)) return status;
      }
      return zelStsOk;
    };
    expect_model(f, sizes(w, h, count), memory,
                 Data<T>{{matrices, filled<T>(w * h * count)}, {}, {{"pBuffer", filled<T>(h)}}, {}}, model, in_place, teams);
  }
};

TEST_P(QRDecomp, EveryShapeInEveryMemory) {
  typed([&](auto t) {
    using T = decltype(t);
    Random random(1);
    for (const auto& [w, h] : kShapes)
      for (const Memory& memory : memories())
        for (int turn = 0; turn < (w < 9 ? 3 : 1) && !HasFailure(); ++turn) {
          const int count = f.array() ? 1 + random.below(w < 9 ? 13 : 3) : 1;
          std::vector<T> matrices = random.uniforms<T>(w * h * count);
          for (int k = 0; k < count; ++k) {
            T* const a = &matrices[k * w * h];
            const int odd = random.below(12 + count), column = random.below(w);
            for (int i = 0; i < h; ++i) {
              if (odd == 0) a[i * w + column] = 0;
              if (odd == 1) a[i * w + column] = i % 2 ? kNaN<T> : T(1);
              if (odd == 2) a[i * w + column] = i == column ? std::numeric_limits<T>::infinity() : T(1);
              if (odd == 3) a[i * w + column] = column > 0 ? a[i * w + column - 1] : T(0);
            }
            if (odd == 4) a[column * w + column] = T(-0.0);
          }
          check(w, h, count, matrices, memory, turn - 1, w < 8 ? std::vector{1, 2, 3} : std::vector<int>());
        }
  });
}

// The squared norm at the limit and beside it, in every column of the object at every place of an array. Columns before are so
// simple that the tail stays what it is; the last column of a square matrix is not looked at.
TEST_P(QRDecomp, LimitInEveryColumnOfEveryObject) {
  typed([&](auto t) {
    using T = decltype(t);
    Random random(2);
    const T limit = std::numeric_limits<T>::epsilon();
    const int power = std::numeric_limits<T>::digits - 1;  // limit = 2^-power
    const T root = std::ldexp(T(1), -(power + 1) / 2);     // its square is the limit, or half of it
    const bool even = root * root == limit;
    const int count = f.array() ? 9 : 1;
    for (const auto& [w, h] : kShapes) {
      if (w > 7) continue;
      for (int column = 0; column < w; ++column)
        for (const int kind : {0, 1, 2})  // below, at, above
          for (int place = 0; place < count && !HasFailure(); ++place) {
            const int tail = h - column;
            if (kind == 1 && !even && tail < 2) continue;
            std::vector<T> matrices;
            for (int k = 0; k < count; ++k) {
              std::vector<T> a(std::size_t(w * h));
              for (int j = 0; j < w; ++j) a[j * w + j] = T(random.below(2) ? 2 : -2);
              if (k == place) {
                T* const x = &a[column * w + column];
                *x = root;
                if (!even && tail > 1) x[w] = root;
                if (kind == 0) *x = std::nextafter(root, T(0));
                if (kind == 2) *x = std::nextafter(root, T(1));
              }
              matrices.insert(matrices.end(), a.begin(), a.end());
            }
            check(w, h, count, matrices, memories()[random.next() % memories().size()], place % 3 == 0 ? 0 : -1,
                  place % 4 == 0 ? std::vector<int>{2, 5} : std::vector<int>());
          }
    }
  });
}

INSTANTIATE_TEST_SUITE_P(All, QRDecomp, testing::ValuesIn(family("QRDecomp", "")), FunctionTest::name);

struct QRBackSubst : FunctionTest {};

TEST_P(QRBackSubst, EveryShapeInEveryMemory) {
  typed([&](auto t) {
    using T = decltype(t);
    Random random(3);
    const bool many = f.form == "mava", one = f.form == "mv";
    for (const auto& [w, h] : kShapes)
      for (const Memory& memory : memories())
        for (int turn = 0; turn < (w < 9 ? 3 : 1) && !HasFailure(); ++turn) {
          const int width = w, height = h, count = one ? 1 : random.objects(turn && w < 7);
          std::vector<T> factors = random.uniforms<T>(w * h * (many ? count : 1));
          if (random.below(8) == 0) factors[random.below(int(factors.size()))] = random.below(2) ? T(0) : kNaN<T>;
          const auto model = [&](const Road&, Data<T>& d, int first, int stretch) {
            for (int k = first; k < first + stretch; ++k)
              solve(&d.operands[0][many ? k * width * height : 0], &d.operands[1][k * height], &d.operands[2][k * width], width,
                    height);
            return zelStsOk;
          };
          // Of a square system the solution may take the place of the right-hand side.
          expect_model(
              f, sizes(w, h, count), memory,
              Data<T>{{factors, random.uniforms<T>(h * count), filled<T>(w * count)}, {}, {{"pBuffer", filled<T>(h)}}, {}},
              model, turn == 1 && w == h ? 1 : -1, w < 8 ? std::vector{1, 3} : std::vector<int>());
        }
  });
}

INSTANTIATE_TEST_SUITE_P(All, QRBackSubst, testing::ValuesIn(family("QRBackSubst", "")), FunctionTest::name);

// Small cases worked by hand.

TEST(QRKnownAnswers, OneElement) {
  float a = 0, d = 7, buffer[3], b = 1, x = 0;
  EXPECT_EQ(zelmQRDecomp_m_32f(&a, 4, 4, buffer, &d, 4, 4, 1, 1), zelStsOk);
  EXPECT_EQ(d, 0);
  EXPECT_EQ(zelmQRBackSubst_mv_32f(&d, 4, 4, buffer, &b, 4, &x, 4, 1, 1), zelStsOk);
  EXPECT_EQ(x, std::numeric_limits<float>::infinity());
}

TEST(QRKnownAnswers, SmallColumnFailsInFloatOnly) {
  const float a[] = {1e-4f, 1e-4f};
  const double wide[] = {1e-4, 1e-4};
  float d[2], buffer[2];
  double wide_d[2], wide_buffer[2];
  EXPECT_EQ(zelmQRDecomp_m_32f(a, 4, 4, buffer, d, 4, 4, 1, 2), zelStsDivideByZero);
  EXPECT_EQ(d[1], a[1]) << "the copy stands";
  EXPECT_EQ(zelmQRDecomp_m_64f(wide, 8, 8, wide_buffer, wide_d, 8, 8, 1, 2), zelStsOk);
}

TEST(QRKnownAnswers, ReflectionOfThreeFour) {
  // (3, 4) has norm 5: v = (1, 4 / 8), and the first row of R is (-5, -(3 * 2 + 4 * 1) / 5).
  const double a[] = {3, 2, 4, 1};
  double d[4], buffer[2];
  ASSERT_EQ(zelmQRDecomp_m_64f(a, 16, 8, buffer, d, 16, 8, 2, 2), zelStsOk);
  const double want[] = {-5, -2, 0.5, -1};
  for (int e = 0; e < 4; ++e) EXPECT_NEAR(d[e], want[e], 1e-15);
}

TEST(QRKnownAnswers, LeastSquaresLine) {
  // Through (0, 1), (1, 2), (2, 2): 7 / 6 + x / 2.
  const double a[] = {1, 0, 1, 1, 1, 2}, b[] = {1, 2, 2};
  double d[6], buffer[3], x[2];
  ASSERT_EQ(zelmQRDecomp_m_64f(a, 16, 8, buffer, d, 16, 8, 2, 3), zelStsOk);
  ASSERT_EQ(zelmQRBackSubst_mv_64f(d, 16, 8, buffer, b, 8, x, 8, 2, 3), zelStsOk);
  EXPECT_NEAR(x[0], 7.0 / 6, 1e-15);
  EXPECT_NEAR(x[1], 0.5, 1e-15);
}

TEST(QRKnownAnswers, LastPivotOfASquareIsNotLookedAt) {
  const float a[] = {1, 2, 3, 0, 1, 4, 0, 0, 0};
  float d[9], buffer[3];
  EXPECT_EQ(zelmQRDecomp_m_32f(a, 12, 4, buffer, d, 12, 4, 3, 3), zelStsOk);
  EXPECT_EQ(d[8], 0);
}

// A caller's buffer is not touched where the order is known, and where a team runs.
TEST(QRBuffer, StaysAsItIs) {
  std::vector<float> factors(36, 1), b(6, 1), x(6), buffer(6, -99);
  for (int n = 3; n <= 6; ++n) zelmQRBackSubst_mv_32f(factors.data(), n * 4, 4, buffer.data(), b.data(), 4, x.data(), 4, n, n);
  EXPECT_EQ(buffer, filled<float>(6));
}

}  // namespace
}  // namespace zelm::test
