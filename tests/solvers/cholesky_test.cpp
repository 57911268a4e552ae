// Cholesky decomposition and solution against plain scalar code, bit for bit: factors, statuses, what every failure leaves, and
// the orders of the sums.
#include "solvers/cholesky.hpp"

#include <xmmintrin.h>

#include <cmath>
#include <limits>

#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

constexpr int kOrders[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 17, 33};
bool fixed(int n) { return n >= 3 && n <= 6; }

/// What a kernel's name says about it.
struct Rules {
  explicit Rules(const std::string& kernel) : name(kernel) {}
  bool ends(std::string_view end) const { return std::string_view(name).ends_with(end); }
  bool has(std::string_view part) const { return name.find(part) != name.npos; }
  bool groups(int n) const { return ends("Decomp_ma_32f") && fixed(n); }
  bool split() const { return ends("Decomp_m_32f") || ends("Decomp_ma_32f") || ends("Decomp_ma_32f_L"); }
  bool split_rows() const { return ends("BackSubst_mv_32f"); }
  bool held(int n) const { return ends("_P") && n == 3; }
  double limit(int n) const {
    if (held(n)) return std::ldexp(1.0, -23);
    return ends("Decomp_ma_64f_S2") && (n < 3 || n > 5) ? std::ldexp(1.0, -52) : 0;
  }
  std::string name;
};

float reciprocal_root(float d, bool of_four) {
  const float r = _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(d)));
  if (of_four) return r * (3 - r * r * d) * 0.5f;
  return r * -0.5f * (d * r * r - 3);
}
double reciprocal_root(double d, bool) { return 1 / std::sqrt(d); }

/// first - sum of a(k) b(k) over k < terms; `lead`: terms before the lanes, -1 for no lanes.
template <class T, class Term>
T residual(T first, int terms, int lead, Term term) {
  int k = 0;
  if (lead >= 0 && terms - lead >= 8) {
    T lanes[8] = {};
    for (; k < lead; ++k) first -= term(k);
    lanes[0] = first;
    for (; k + 8 <= terms; k += 8)
      for (int l = 0; l < 8; ++l) lanes[l] -= term(k + l);
    for (int l = 0; l < 4; ++l) lanes[l] += lanes[l + 4];
    first = (lanes[0] + lanes[2]) + (lanes[1] + lanes[3]);
  }
  for (; k < terms; ++k) first -= term(k);
  return first;
}

/// Row i of F from that of A; false if its pivot fails, which then is not written.
template <class T>
bool factor_row(const Rules& rules, bool of_four, const T* a, T* f, int n, int i) {
  T pivot = 0;
  for (int j = 0; j <= i; ++j) {
    const T s = residual(a[i * n + j], j, rules.split() ? 0 : -1, [&](int k) { return f[i * n + k] * f[j * n + k]; });
    if (j < i) f[i * n + j] = s * f[j * n + j];
    else pivot = s;
  }
  if (pivot <= T(rules.limit(n))) return false;
  f[i * n + i] = reciprocal_root(pivot, of_four);
  return true;
}

/// `group` objects, of which all stop at the first row that fails in one. Returns the finished rows.
template <class T>
int factor(const Rules& rules, const T* a, T* d, int n, int group) {
  for (int i = 0; i < n; ++i) {
    bool passed = true;
    const std::vector<T> before(d, d + n * n * group);
    for (int k = 0; k < group; ++k) passed &= factor_row(rules, rules.groups(n), a + k * n * n, d + k * n * n, n, i);
    if (passed) continue;
    if (group > 1) std::copy(before.begin(), before.end(), d);  // nothing of an unfinished row
    return i;
  }
  return n;
}

template <class T>
ZelStatus decompose(const Rules& rules, Data<T>& data, int n, int first, int count) {
  for (int k = first, group; k < first + count; k += group) {
    group = rules.groups(n) && first + count - k >= 4 ? 4 : 1;
    T* const d = &data.operands[1][k * n * n];
    const std::vector<T> before(d, d + group * n * n);
    const int rows = factor(rules, &data.operands[0][k * n * n], d, n, group);
    if (rows < 2 && rules.held(n)) std::copy(before.begin(), before.end(), d);
    if (rows < n) return zelStsNotPositiveDefinite;
  }
  return zelStsOk;
}

/// L L^T with L's diagonal 1/2, 1 or 2 and few bits elsewhere, but `pivot` under the root of row s: exact up to there. Above the
/// diagonal stands what must not matter.
template <class T>
std::vector<T> with_pivot(int n, int s, T pivot, Random& random) {
  std::vector<T> l(n * n), a(n * n, std::numeric_limits<T>::quiet_NaN());
  for (int i = 0; i < n; ++i)
    for (int j = 0; j <= i; ++j) l[i * n + j] = i == j ? std::ldexp(T(1), random.below(3) - 1) : T(random.below(5) - 2) / 4;
  for (int i = 0; i < n; ++i)
    for (int j = 0; j <= i; ++j) {
      T& x = a[i * n + j] = 0;
      for (int k = 0; k <= j; ++k) x += (i == s && k == s) ? pivot : i == s ? 0 : l[i * n + k] * l[j * n + k];
    }
  return a;
}

template <class T>
std::vector<T> random_positive(int n, Random& random) {
  std::vector<T> a = random.uniforms<T>(n * n);
  for (int i = 0; i < n; ++i) a[i * n + i] = T(n) / 2 + 1 + a[i * n + i];
  return a;
}

/// The same number everywhere.
template <class T>
std::vector<T> filled(int n) {
  return std::vector<T>(std::size_t(n), T(-99));
}

template <class T>
void check(const Function& f, int n, int count, const std::vector<T>& matrices, const Memory& memory, int in_place = -1,
           const std::vector<int>& teams = {}) {
  const auto model = [n](const Road& road, Data<T>& d, int first, int stretch) {
    return decompose(Rules(road.kernel->symbol), d, n, first, stretch);
  };
  expect_model(f, {{{"widthHeight", n}, {"count", count}}}, memory, Data<T>{{matrices, filled<T>(n * n * count)}, {}, {}, {}},
               model, in_place, teams);
}

struct CholeskyDecomp : FunctionTest {};

TEST_P(CholeskyDecomp, EveryOrderInEveryMemory) {
  typed([&](auto t) {
    using T = decltype(t);
    Random random(1);
    for (const int n : kOrders)
      for (const Memory& memory : memories())
        for (int turn = 0; turn < (n < 9 ? 3 : 1) && !HasFailure(); ++turn) {
          const int count = f.array() ? 1 + random.below(n < 9 ? 13 : 3) : 1;
          std::vector<T> matrices;
          for (int k = 0; k < count; ++k) {
            auto a = random_positive<T>(n, random);
            const int odd = random.below(12 + count), i = random.below(n), j = random.below(i + 1);
            if (odd == 0) a[i * n + i] = -a[i * n + i];
            if (odd == 1) a[i * n + j] = std::numeric_limits<T>::quiet_NaN();
            if (odd == 2) a[i * n + j] = std::numeric_limits<T>::infinity();
            if (odd == 3) a[i * n + i] = std::numeric_limits<T>::denorm_min();
            matrices.insert(matrices.end(), a.begin(), a.end());
          }
          check(f, n, count, matrices, memory, turn - 1, n < 8 ? std::vector{1, 2, 3} : std::vector<int>());
        }
  });
}

// The limit and its neighbours as the pivot of every row of the object at every place of an array.
TEST_P(CholeskyDecomp, LimitAtEveryRowOfEveryObject) {
  typed([&](auto t) {
    using T = decltype(t);
    Random random(2);
    const int count = f.array() ? 11 : 1;
    const T e23 = T(0x1p-23), e52 = T(0x1p-52), nan = std::numeric_limits<T>::quiet_NaN();
    for (const int n : {1, 2, 3, 4, 5, 6, 7})
      for (int row = 0; row < n; ++row)
        for (const T pivot : {T(-1), T(-0.0), T(0), std::numeric_limits<T>::denorm_min(), e52, std::nextafter(e52, T(1)), e23,
                              std::nextafter(e23, T(1)), nan})
          for (int place = 0; place < count && !HasFailure(); ++place) {
            std::vector<T> matrices;
            for (int k = 0; k < count; ++k) {
              // Behind the failing object others may fail at other rows: in a group of four the earliest row counts.
              const bool other = k > place && random.below(3) == 0;
              const auto a = k == place ? with_pivot(n, row, pivot, random)
                                        : with_pivot(n, random.below(n), other ? T(0) : T(0.25), random);
              matrices.insert(matrices.end(), a.begin(), a.end());
            }
            check(f, n, count, matrices, memories()[random.next() % memories().size()], place % 3 == 0 ? 0 : -1,
                  place % 4 == 0 ? std::vector{2, 5} : std::vector<int>());
          }
  });
}

INSTANTIATE_TEST_SUITE_P(All, CholeskyDecomp, testing::ValuesIn(family("CholeskyDecomp", "")), FunctionTest::name);

TEST(CholeskyDecompElements, PointersAboveTheDiagonalAreNotRead) {
  constexpr int n = 4, count = 9;
  float a[n * n][count], d[n * n][count];
  const float* from[n * n] = {};
  float* to[n * n] = {};
  for (int i = 0; i < n; ++i)
    for (int j = 0; j <= i; ++j) {
      from[i * n + j] = a[i * n + j];
      to[i * n + j] = d[i * n + j];
      for (float& x : a[i * n + j]) x = i == j ? 4 : 0;
    }
  ASSERT_EQ(zelmCholeskyDecomp_ma_32f_P(from, 0, 4, to, 0, 4, n, count), zelStsOk);
  ASSERT_EQ(zelmCholeskyBackSubst_mava_32f_P(to, 0, 4, from + 12, 0, 4, to + 12, 0, 4, n, count), zelStsOk);
  for (int k = 0; k < count; ++k) {
    EXPECT_NEAR(d[0][k], 0.5, 1e-6);
    EXPECT_NEAR(d[15][k], 1, 1e-6);
  }
}

// Solution

template <class T>
void substitute(const Rules& rules, const T* f, const T* b, T* x, int n, std::uintptr_t x_address) {
  const int lead = !rules.split_rows() || x_address % 4 ? -1 : int((16 - x_address % 16) / 4 % 4);
  std::vector<T> y(b, b + n);
  for (int i = 0; i < n; ++i) y[i] = residual(y[i], i, lead, [&](int j) { return f[i * n + j] * y[j]; }) * f[i * n + i];
  for (int i = n - 1; i >= 0; --i)
    y[i] = residual(y[i], n - 1 - i, -1, [&](int j) { return f[(i + 1 + j) * n + i] * y[i + 1 + j]; }) * f[i * n + i];
  std::copy(y.begin(), y.end(), x);
}

struct CholeskyBackSubst : FunctionTest {
  /// Factors hold zeros, infinities and NaNs now and then, and NaNs above the diagonal always.
  template <class T>
  void check_solution(int n, int vectors, const Memory& memory, Random& random, int in_place = -1,
                      const std::vector<int>& teams = {}) const {
    const bool many = f.form == "mava";
    const int count = f.form == "mv" ? 1 : vectors;
    std::vector<T> factors;
    for (int k = 0; k < (many ? count : 1); ++k) {
      auto a = random.uniforms<T>(n * n);
      for (int i = 0; i < n; ++i)
        for (int j = i + 1; j < n; ++j) a[i * n + j] = std::numeric_limits<T>::quiet_NaN();
      const int i = random.below(n), odd = random.below(16);
      if (odd == 0) a[i * n + i] = 0;
      if (odd == 1) a[i * n + i] = std::numeric_limits<T>::infinity();
      factors.insert(factors.end(), a.begin(), a.end());
    }
    const auto model = [&](const Road& road, Data<T>& d, int first, int stretch) {
      for (int k = first; k < first + stretch; ++k)
        substitute(Rules(road.kernel->symbol), &d.operands[0][many ? k * n * n : 0], &d.operands[1][k * n],
                   &d.operands[2][k * n], n, road.scene->address(2, k));
      return zelStsOk;
    };
    expect_model(f, {{{"widthHeight", n}, {"count", count}}}, memory,
                 Data<T>{{factors, random.uniforms<T>(n * count), filled<T>(n * count)}, {}, {}, {}}, model, in_place, teams);
  }
};

TEST_P(CholeskyBackSubst, EveryOrderInEveryMemory) {
  typed([&](auto t) {
    Random random(3);
    for (const int n : kOrders)
      for (const Memory& memory : memories())
        for (int turn = 0; turn < (n < 9 ? 3 : 1) && !HasFailure(); ++turn)
          check_solution<decltype(t)>(n, random.objects(turn && fixed(n)), memory, random, turn == 1 && fixed(n) ? 1 : -1,
                                      n < 8 ? std::vector{1, 3} : std::vector<int>());
  });
}

// The sums of a single system depend on where the solution lies.
TEST_P(CholeskyBackSubst, EveryAlignmentOfTheSolution) {
  typed([&](auto t) {
    Random random(4);
    for (const int n : {8, 9, 10, 12, 17, 33})
      for (int offset = 0; offset < 16; ++offset)
        check_solution<decltype(t)>(n, 2, {Place{}, Place{}, Place{Spread::tight, offset}, Place{}}, random);
  });
}

INSTANTIATE_TEST_SUITE_P(All, CholeskyBackSubst, testing::ValuesIn(family("CholeskyBackSubst", "")), FunctionTest::name);

// The four-object kernels by their own names.
TEST(CholeskyFourObjects, ReportTheLanesThatFailed) {
  std::vector<float> a, d(9 * 9, -99);
  for (int k = 0; k < 9; ++k)
    for (const float x : {4.f, 0.f, 0.f, 2.f, 5.f, 0.f, 0.f, 0.f, 1.f}) a.push_back(x);
  EXPECT_EQ(p8_CholoDec_32f_V8(a.data(), 36, 12, d.data(), 36, 12, 3, 9), 0);
  for (int e = 0; e < 9; ++e) EXPECT_NEAR(d[8 * 9 + e], (std::vector{0.5, -99., -99., 1., 0.5, -99., 0., 0., 1.})[e], 2e-6);
  std::vector<float> x(9 * 3, 4), spaced(9 * 6, 4);
  p8_CholBackSubst_32f_V8(d.data(), 12, x.data(), 12, x.data(), 12, 3, 9);
  p8_CholBackSubst_32f_S2_V8(d.data(), 12, 4, spaced.data(), 24, 8, spaced.data(), 24, 8, 3, 9);
  for (int k = 0; k < 9; ++k)
    for (int i = 0; i < 3; ++i) {
      EXPECT_NEAR(x[k * 3 + i], (std::vector{0.75, 0.5, 4.})[i], 4e-6);
      EXPECT_EQ(spaced[k * 6 + i * 2], x[k * 3 + i]);
    }
  a[5 * 9] = a[7 * 9] = -1;
  EXPECT_EQ(p8_CholoDec_32f_V8(a.data(), 36, 12, d.data(), 36, 12, 3, 9), 0b1010);
  a[5 * 9] = a[7 * 9] = 4;
  a[8 * 9] = 0;
  EXPECT_NE(p8_CholoDec_32f_V8(a.data(), 36, 12, d.data(), 36, 12, 3, 9), 0);
}

/// Solutions of 64 MiB and more go past the caches. They are those of the same systems in several calls. `each`: a matrix for each.
TEST(SolutionsStreamed, LargeResultsAreThoseOfSmallOnes) {
  const auto check_large = []<class T>(T diagonal, int n, auto solve, bool each = false) {
    const int objects = (64 << 20) / (n * int(sizeof(T))) + 7;
    const std::size_t square = std::size_t(n * n), next = each ? square : 0;
    std::vector<T> a(square * (each ? objects : 1), T(0.25)), got(std::size_t(n) * objects + 1), want(got.size());
    for (std::size_t e = 0; e < a.size(); ++e)
      if (e % square % std::size_t(n + 1) == 0) a[e] = diagonal + T(e % 11);
    const std::vector<T> b = Random(1).uniforms<T>(n * objects);
    const int row = n * int(sizeof(T));
    use_threads(1);
    EXPECT_EQ(solve(a.data(), row, b.data(), got.data(), objects), zelStsOk);
    for (int first = 0; first < objects; first += 1 << 20)
      solve(&a[first * next], row, &b[std::size_t(first) * n], &want[std::size_t(first) * n],
            std::min(1 << 20, objects - first));
    EXPECT_TRUE(got == want) << n;
  };
  check_large(2.f, 3, [](auto* a, int row, auto* b, auto* x, int count) {
    return zelmCholeskyBackSubst_mva_32f(a, row, 4, b, row, 4, x, row, 4, 3, count);
  });
  check_large(
      2.f, 3,
      [](auto* a, int row, auto* b, auto* x, int count) {
        return zelmCholeskyBackSubst_mava_32f(a, 3 * row, row, 4, b, row, 4, x, row, 4, 3, count);
      },
      true);
  check_large(2., 3, [](auto* a, int row, auto* b, auto* x, int count) {
    return zelmCholeskyBackSubst_mva_64f(a, row, 8, b, row, 8, x, row, 8, 3, count);
  });
  check_large(2.f, 4, [](auto* a, int row, auto* b, auto* x, int count) {
    const int order[] = {2, 0, 3, 1};
    return zelmLUBackSubst_mva_32f(a, row, 4, order, b, row, 4, x, row, 4, 4, count);
  });
  check_large(2., 6, [](auto* a, int row, auto* b, auto* x, int count) {
    double buffer[6];
    return zelmQRBackSubst_mva_64f(a, row, 8, buffer, b, row, 8, x, row, 8, 6, 6, count);
  });
}

TEST(CholeskyKnownAnswers, SmallFirstElement) {
  const float a[9] = {1e-10f, 0, 0, 0, 1, 0, 0, 0, 1};
  float d[9];
  const float* from[9];
  float* to[9];
  for (int e = 0; e < 9; ++e) from[e] = a + e, to[e] = d + e;
  EXPECT_EQ(zelmCholeskyDecomp_m_32f(a, 12, 4, d, 12, 4, 3), zelStsOk);
  EXPECT_NEAR(d[0], 1e5f, 0.1f);
  EXPECT_EQ(zelmCholeskyDecomp_m_32f_P(from, 0, to, 0, 3), zelStsNotPositiveDefinite);
}

}  // namespace
}  // namespace zelm::test
