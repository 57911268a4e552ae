// Determinants against cofactor expansions and eliminations in plain scalar code, bit for bit, in the precision and the order
// that each kernel has; limits of the elimination; errors beside Eigen's.
#include <Eigen/LU>
#include <cmath>
#include <limits>
#include <numeric>

#include "solvers/determinant_kernels.hpp"
#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

/// 2 n^3 times the smallest normal number.
template <class T>
T limit(int n) {
  return T(2 * n * n * n) * std::numeric_limits<T>::min();
}

/// Along the first row, by definition.
template <class V>
V expanded(const std::vector<V>& a, int n) {
  if (n == 1) return a[0];
  V sum = 0;
  for (int c = 0; c < n; ++c) {
    std::vector<V> minor;
    for (int e = n; e < n * n; ++e)
      if (e % n != c) minor.push_back(a[e]);
    const V term = a[c] * expanded(minor, n - 1);
    sum = c == 0 ? term : c % 2 ? sum - term : sum + term;
  }
  return sum;
}

template <class T>
T in_extended(const T* p, int n) {
  const std::vector<long double> a(p, p + n * n);
  const auto at = [&](int i, int j) { return a[i * 3 + j]; };
  if (n > 3) return T(expanded(a, n));
  if (sizeof(T) == 4)
    return T((at(2, 0) * at(1, 2) - at(1, 0) * at(2, 2)) * at(0, 1) + (at(2, 1) * at(1, 0) - at(2, 0) * at(1, 1)) * at(0, 2) +
             (at(1, 1) * at(2, 2) - at(1, 2) * at(2, 1)) * at(0, 0));
  return T((at(1, 2) * at(0, 1) - at(1, 1) * at(0, 2)) * at(2, 0) + (at(1, 1) * at(2, 2) - at(1, 2) * at(2, 1)) * at(0, 0) +
           (at(2, 1) * at(0, 2) - at(0, 1) * at(2, 2)) * at(1, 0));
}

template <class T>
T in_element_type(const T* p, int n) {
  const auto at = [&](int i, int j) { return p[i * 3 + j]; };
  if (n > 3) return expanded(std::vector<T>(p, p + n * n), n);
  return (at(0, 0) * at(1, 1) - at(0, 1) * at(1, 0)) * at(2, 2) - (at(0, 0) * at(1, 2) - at(1, 0) * at(0, 2)) * at(2, 1) +
         (at(0, 1) * at(1, 2) - at(1, 1) * at(0, 2)) * at(2, 0);
}

template <class T>
T eliminated(const T* p, int n) {
  std::vector<T> a(p, p + n * n);
  T det = 1, sign = 1;
  for (int k = 0; k < n - 1; ++k) {
    int r = k;
    for (int i = k + 1; i < n; ++i)
      if (std::abs(a[i * n + k]) > std::abs(a[r * n + k])) r = i;
    if (r != k) {
      std::swap_ranges(&a[r * n], &a[r * n] + n, &a[k * n]);
      sign = -sign;
    }
    const T pivot = a[k * n + k];
    if (limit<T>(n) > std::abs(pivot)) return 0;
    for (int i = k + 1; i < n; ++i) {
      const T m = a[i * n + k] / pivot;
      for (int j = k + 1; j < n; ++j) a[i * n + j] = a[i * n + j] - m * a[k * n + j];
    }
    det = det * pivot;
  }
  const T last = a[n * n - 1];
  return std::abs(last) > limit<T>(n) ? det * (last * sign) : T(0);
}

/// What the kernel behind a road computes for object k of a stretch.
template <class T>
T determinant(const Road& road, const T* a, int n, int k, int stretch) {
  if (n < 3 || n > 6) return eliminated(a, n);
  const std::string& kernel = road.kernel->symbol;
  const bool contiguous = road.kernel->contiguous, array32 = kernel == "p8_ownzelmDet_ma_32f";
  if (!contiguous || (array32 && n == 3)) return in_element_type(a, n);
  const auto& s = road.scene->strides(0);
  const bool pairs = array32 && n == 4 && (road.scene->address(0, 0) | unsigned(s[0]) | unsigned(s[1])) % 16 == 0;
  return pairs && k < stretch / 2 * 2 ? in_element_type(a, n) : in_extended(a, n);
}

template <class T>
void check(const Function& f, int n, int count, const std::vector<T>& matrices, const Memory& memory,
           const std::vector<int>& teams = {}) {
  const auto model = [n](const Road& road, Data<T>& d, int first, int stretch) {
    for (int k = 0; k < stretch; ++k)
      d.arrays["pDst"][first + k] = determinant(road, &d.operands[0][(first + k) * n * n], n, k, stretch);
    return zelStsOk;
  };
  Data<T> d;
  d.operands = {matrices};
  d.arrays["pDst"].assign(std::size_t(count), T(-99));
  d.indices["pBuffer"].assign(n * n * sizeof(T) / 4 + n, -7);
  expect_model(f, {{{"widthHeight", n}, {"count", count}}}, memory, d, model, -1, teams);
}

/// Random ones, small whole numbers (equal magnitudes, singular ones), NaNs, infinities, zero columns, all magnitudes.
template <class T>
std::vector<T> assorted(int n, int count, Random& random) {
  std::vector<T> all;
  for (int k = 0; k < count; ++k) {
    const int kind = random.below(12), row = random.below(n), column = random.below(n);
    const T special = random.below(2) ? std::numeric_limits<T>::quiet_NaN() : std::numeric_limits<T>::infinity();
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j) {
        T x = random.uniform<T>();
        if (kind < 3) x = T(random.below(5) - 2);
        if (kind == 3 && i == row && j == column) x = special;
        if (kind == 4 && j == column) x = 0;
        if (kind == 5) x = std::ldexp(x, random.below(200) - 100);
        if (kind == 6 && j == column) x *= limit<T>(n);
        all.push_back(x);
      }
  }
  return all;
}

struct Det : FunctionTest {};

TEST_P(Det, EveryOrderInEveryMemory) {
  typed([&](auto t) {
    Random random(1);
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 33})
      for (const Memory& memory : memories())
        for (int turn = 0; turn < (n < 9 ? 6 : 1) && !HasFailure(); ++turn) {
          const int count = f.array() ? 1 + random.below(n < 9 ? 13 : 3) : 1;
          check(f, n, count, assorted<decltype(t)>(n, count, random), memory);
        }
  });
}

TEST_P(Det, Teams) {
  if (!f.array()) return;
  typed([&](auto t) {
    Random random(2);
    for (const int n : {2, 3, 4, 6, 7})
      for (const int count : {1, 2, 5, 11, 23})
        for (const int memory : {0, 2, 9})
          check(f, n, count, assorted<decltype(t)>(n, count, random), memories()[memory], {2, 3, 5});
  });
}

/// An upper triangle of ones with `pivot` at one place of the diagonal: the pivots come out exactly.
TEST_P(Det, LimitAtEveryStep) {
  typed([&](auto t) {
    using T = decltype(t);
    const int count = f.array() ? 3 : 1;
    for (const int n : {1, 2, 7, 8})
      for (int step = 0; step < n; ++step)
        for (const T pivot : {std::nextafter(limit<T>(n), T(0)), limit<T>(n), std::nextafter(limit<T>(n), T(1))}) {
          std::vector<T> a(n * n * count, 0);
          for (int k = 0; k < count; ++k)
            for (int i = 0; i < n; ++i)
              for (int j = i; j < n; ++j) a[(k * n + i) * n + j] = i == j && i == step && k < 2 ? -pivot : T(1);
          const bool zero = step == n - 1 ? pivot <= limit<T>(n) : pivot < limit<T>(n);
          ASSERT_EQ(eliminated(a.data(), n), zero ? T(0) : -pivot);
          check(f, n, count, a, memories()[0]);
        }
  });
}

INSTANTIATE_TEST_SUITE_P(All, Det, testing::ValuesIn(family("Det", "determinant")), FunctionTest::name);

float determinant_of(const std::vector<float>& a, int n) {
  std::vector<int> buffer(n * n + n);
  float det = -99;
  EXPECT_EQ(zelmDet_m_32f(a.data(), n * 4, 4, n, buffer.data(), &det), zelStsOk);
  return det;
}

TEST(DetKnownAnswers, SmallCases) {
  EXPECT_EQ(determinant_of({3}, 1), 3);
  EXPECT_EQ(determinant_of({0x1p-125f}, 1), 0);
  EXPECT_EQ(determinant_of({0, 1, 1, 0}, 2), -1);
  EXPECT_EQ(determinant_of({2, 1, -2, 3}, 2), 8);
  EXPECT_EQ(determinant_of({1, 2, 3, 1, 2, 3, 4, 5, 6}, 3), 0);
  EXPECT_EQ(determinant_of({0, 0, 2, 0, 3, 0, 0, 0, 0, 5, 0, 0, 0, 0, 0, 7}, 4), 210);
}

/// 2 n^3 is a number of 32 bits: at order 1024 it is negative, and nothing is below it.
TEST(DetKnownAnswers, LimitWraps) {
  for (const int n : {1023, 1024}) {
    std::vector<float> a(n * n);
    for (int i = 0; i < n; ++i) a[i * n + i] = i == n - 1 ? 0x1p-126f : 1;
    EXPECT_EQ(determinant_of(a, n), n == 1023 ? 0 : 0x1p-126f);
  }
}

/// 1 + 2^-30 + ... is lost where an intermediate product is rounded to float.
TEST(DetKnownAnswers, OneRoundingInExtendedPrecision) {
  const float h = 1 + 0x1p-15f;
  EXPECT_EQ(determinant_of({h, 1, 0, 1, h, 0, 0, 0, 1}, 3), 0x1p-14f + 0x1p-30f);
  std::vector<float> a(36);
  for (int i = 0; i < 6; ++i) a[i * 7] = i < 2 ? h : 1;
  a[1] = a[6] = 1;
  EXPECT_EQ(determinant_of(a, 6), 0x1p-14f + 0x1p-30f);
}

/// Halfway between two floats, and 2^-62 off, which no double shows: beside easy ones, at every place of an array.
TEST(DetKnownAnswers, HalfwayCasesOfExtendedPrecision) {
  const struct {
    float product, det;
  } cases[] = {{0x1p-31f, 1 + 0x1p-11f}, {0, 1 + 0x1p-11f}, {-0x1p-31f, 1 + 0x1p-11f + 0x1p-23f}};
  for (const int n : {4, 5, 6})
    for (const auto& c : cases)
      for (int place = 0; place < 9; ++place) {
        std::vector<float> a(n * n * 9), want(9, 1);
        for (int e = 0; e < n * n * 9; ++e) a[e] = e % (n * n) % (n + 1) == 0;
        float* const hard = &a[place * n * n];
        hard[0] = hard[n + 1] = 1 + 0x1p-12f;
        hard[1] = 0x1p-31f;
        hard[n] = c.product;
        want[place] = c.det;
        const float* list[9];
        for (int k = 0; k < 9; ++k) list[k] = &a[k * n * n];
        std::vector<float> det(9);
        float buffer[42];
        EXPECT_EQ(zelmDet_ma_32f_L(list, 0, n * 4, 4, n, buffer, det.data(), 9), zelStsOk);
        EXPECT_EQ(det, want) << n << " " << place;
      }
}

// Errors

/// k roundings on the way to each product: |error| <= k u / (1 - k u) times the permanent of |A|, which is at most the product
/// of the rows' sums.
template <class T>
void check_errors(const std::string& type, int n) {
  using M = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
  using Exact = Eigen::Matrix<long double, Eigen::Dynamic, Eigen::Dynamic>;
  Random random(3);
  const long double u = std::numeric_limits<T>::epsilon() / 2.0L;
  long double ours = 0, eigens = 0;
  for (int turn = 0; turn < 100; ++turn) {
    M a(n, n);
    for (T& x : a.reshaped()) x = random.uniform<T>();
    if (turn % 3 == 1)
      for (int i = 0; i < n; ++i) a.row(i) *= std::ldexp(T(1), random.below(16) - 8);
    if (turn % 3 == 2 && n > 1) a.col(n - 1) = a.leftCols(n - 1).rowwise().mean() + a.col(n - 1) * T(0x1p-10);
    const Exact e = a.template cast<long double>();
    const long double exact = n <= 6 ? expanded(std::vector<long double>(a.data(), a.data() + n * n), n) : e.determinant();
    const long double bound = e.cwiseAbs().rowwise().sum().prod() * u;
    Data<T> d{
        {{a.data(), a.data() + n * n}}, {{"pBuffer", std::vector<int>(n * n * 2 + n)}}, {{"pDst", std::vector<T>(1)}}, {}};
    for (const int memory : {0, 8}) {  // contiguous and not
      Scene scene(function("zelmDet_ma_" + type), {{{"widthHeight", n}, {"count", 1}}}, memories()[memory]);
      ASSERT_EQ(scene.run(scene.roads({})[0], d), zelStsOk);
      ours = std::max(ours, std::abs(d.arrays["pDst"][0] - exact) / bound);
    }
    eigens = std::max(eigens, std::abs(a.determinant() - exact) / bound);
  }
  // Closed forms: n - 1 products and as many sums of up to n terms. Elimination: theorem 9.3, growth 2^(n-1) at the very worst.
  EXPECT_LE(ours, n <= 6 ? n * (n + 1) / 2 : n * n) << type << " order " << n;
  EXPECT_LE(eigens, n * n) << "the bound does not hold";
  EXPECT_LE(ours, 2 + 8 * eigens) << type << " order " << n;
}

TEST(DetAccuracy, ErrorsBesideEigens) {
  for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 12}) {
    check_errors<float>("32f", n);
    check_errors<double>("64f", n);
  }
}

}  // namespace
}  // namespace zelm::test
