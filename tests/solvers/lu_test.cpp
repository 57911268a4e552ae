// LU decomposition against the elimination in plain scalar code, bit for bit: factors, row orders, statuses, and what
// every failure leaves.
#include <cmath>
#include <limits>
#include <numeric>

#include "solvers/lu_cores.hpp"
#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

template <class T>
constexpr T kInfinity = std::numeric_limits<T>::infinity();
template <class T>
constexpr T kNaN = std::numeric_limits<T>::quiet_NaN();

bool unrolled(int n) { return n >= 3 && n <= 6; }
template <class T>
T limit(int n) {
  if (sizeof(T) == 4) return unrolled(n) ? T(0x1p-125) : T(0x1p-23);
  return unrolled(n) ? T(0x1p-1021) : T(0x1p-52);
}

/// Orders 1, 2, 7 and up: everything happens in d.
template <class T>
ZelStatus eliminate_in_core(const T* a, int* p, T* d, int n) {
  std::copy(a, a + n * n, d);
  std::iota(p, p + n, 0);
  const auto at = [&](int i, int j) -> T& { return d[p[i] * n + j]; };
  for (int k = 0; k < n - 1; ++k) {
    T best = std::abs(at(k, k));
    int r = k;
    for (int i = k + 1; i < n; ++i)
      if (std::abs(at(i, k)) > best) best = std::abs(at(i, k)), r = i;
    if (limit<T>(1) >= best) return zelStsSingular;
    std::swap(p[k], p[r]);
    const T inverse = 1 / at(k, k);
    for (int i = k + 1; i < n; ++i) at(i, k) = at(i, k) * inverse;
    for (int i = k + 1; i < n; ++i)
      for (int j = k + 1; j < n; ++j) at(i, j) = at(i, j) - at(k, j) * at(i, k);
  }
  return std::abs(at(n - 1, n - 1)) <= limit<T>(1) ? zelStsSingular : zelStsOk;
}

/// Orders 3 to 6: a working copy, and rows of d as they are finished.
template <class T>
ZelStatus eliminate_unrolled(const T* a, int* p, T* d, int n) {
  std::vector<T> w(a, a + n * n);
  std::iota(p, p + n, 0);
  const auto at = [&](int i, int j) -> T& { return w[p[i] * n + j]; };
  for (int k = 0; k < n; ++k) {
    int r = k;
    for (int i = k + 1; i < n; ++i)
      if (std::abs(at(i, k)) > std::abs(at(r, k))) r = i;
    std::swap(p[k], p[r]);
    if (limit<T>(3) > std::abs(at(k, k))) return zelStsSingular;
    std::copy(&at(k, 0), &at(k, 0) + n, d + p[k] * n);
    const T inverse = 1 / at(k, k);
    for (int i = k + 1; i < n; ++i) {
      at(i, k) = k == n - 2 ? at(i, k) / at(k, k) : at(i, k) * inverse;
      for (int j = k + 1; j < n; ++j) at(i, j) = at(i, j) - at(k, j) * at(i, k);
    }
  }
  return zelStsOk;
}

template <class T>
ZelStatus decompose(int n, Data<T>& d, int first, int count) {
  for (int k = first; k < first + count; ++k) {
    const auto eliminate = unrolled(n) ? eliminate_unrolled<T> : eliminate_in_core<T>;
    const ZelStatus status = eliminate(&d.operands[0][k * n * n], &d.indices["pDstIndex"][k * n], &d.operands[1][k * n * n], n);
    if (status != zelStsOk) return status;
  }
  return zelStsOk;
}

/// Destinations hold -99 before a call, index arrays -7.
template <class T>
Data<T> with_destinations(std::vector<T> matrices, int n, int count) {
  Data<T> d;
  d.operands = {std::move(matrices), std::vector<T>(std::size_t(n * n * count), T(-99))};
  d.indices["pDstIndex"].assign(std::size_t(n * count), -7);
  return d;
}

template <class T>
void check(const Function& f, int n, int count, const std::vector<T>& matrices, const Memory& memory, int in_place = -1,
           const std::vector<int>& teams = {}) {
  const auto model = [n](const Road&, Data<T>& d, int first, int stretch) { return decompose(n, d, first, stretch); };
  expect_model(f, {{{"widthHeight", n}, {"count", count}}}, memory, with_destinations(matrices, n, count), model, in_place,
               teams);
}

/// Mostly well-behaved; some with equal magnitudes, NaNs, infinities, columns that vanish or turn up smaller than the
/// limits.
template <class T>
std::vector<T> assorted(int n, int count, Random& random) {
  std::vector<T> all;
  for (int k = 0; k < count; ++k) {
    std::vector<T> a = random.uniforms<T>(n * n);
    const int kind = random.below(14), row = random.below(n), column = random.below(n);
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j) {
        T& x = a[i * n + j];
        if (kind < 3) x = T(random.below(5) - 2);
        if (kind == 3 && j == column && i >= row) x = kNaN<T>;
        if (kind == 4 && i == row && j == column) x = random.below(2) ? kInfinity<T> : -kInfinity<T>;
        if (kind == 5 && j == column) x = 0;
        if (kind == 6 && j == column) x *= limit<T>(n);
        if (kind == 7) x = std::ldexp(x, random.below(200) - 100);
      }
    all.insert(all.end(), a.begin(), a.end());
  }
  return all;
}

struct LUDecomp : FunctionTest {
  const bool array = f.array();
};

constexpr int kOrders[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 33};

TEST_P(LUDecomp, EveryOrderInEveryMemory) {
  typed([&](auto t) {
    Random random(1);
    for (const int n : kOrders)
      for (const Memory& memory : memories())
        for (int turn = 0; turn < (n < 9 ? 4 : 1) && !HasFailure(); ++turn) {
          const int count = array ? 1 + random.below(n < 9 ? 13 : 3) : 1;
          const auto matrices = assorted<decltype(t)>(n, count, random);
          check(f, n, count, matrices, memory);
          check(f, n, count, matrices, memory, 0);
        }
  });
}

TEST_P(LUDecomp, Teams) {
  if (!array) return;
  typed([&](auto t) {
    Random random(2);
    for (const int n : {2, 3, 4, 7})
      for (int count = 1; count <= 13; ++count)
        check(f, n, count, assorted<decltype(t)>(n, count, random), memories()[std::size_t(random.next()) % memories().size()],
              -1, {1, 2, 3, 5});
  });
}

/// A = P L U with U's diagonal 4, but `pivot` in row s, and |L| <= 1/2, all of it dyadic: the pivots come out exactly.
template <class T>
std::vector<T> with_pivot(int n, int s, T pivot, Random& random) {
  std::vector<T> a(std::size_t(n * n));
  const auto rows = random.permutation(n);
  const std::vector<int> numbers = [&] {
    std::vector<int> v(std::size_t(n * n));
    for (int& x : v) x = random.below(5) - 2;
    return v;
  }();
  const auto lower = [&](int i, int j) { return i == j ? T(1) : i < j ? T(0) : T(numbers[i * n + j]) / 4; };
  const auto upper = [&](int i, int j) {
    if (j == s) return i == s ? pivot : T(0);
    return i == j ? T(4) : i > j ? T(0) : T(numbers[i * n + j]);
  };
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j)
      for (int m = 0; m < n; ++m) a[rows[i] * n + j] += lower(i, m) * upper(m, j);
  return a;
}

// The limit, its neighbours on both sides and zero, as the pivot of every step of the object at every place of an
// array.
TEST_P(LUDecomp, LimitAtEveryStepOfEveryObject) {
  typed([&](auto t) {
    using T = decltype(t);
    Random random(3);
    const int count = array ? 9 : 1;
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 8})
      for (int step = 0; step < n; ++step)
        for (const T pivot : {std::nextafter(limit<T>(n), T(0)), limit<T>(n), std::nextafter(limit<T>(n), T(1)), T(0)}) {
          const bool singular = pivot < limit<T>(n) || (pivot == limit<T>(n) && !unrolled(n));
          for (int place = 0; place < count && !HasFailure(); ++place) {
            std::vector<T> matrices;
            for (int k = 0; k < count; ++k) {
              const auto a = with_pivot(n, step, k == place ? (random.below(2) ? pivot : -pivot) : T(4), random);
              matrices.insert(matrices.end(), a.begin(), a.end());
            }
            Data<T> d = with_destinations(matrices, n, count);
            ASSERT_EQ(decompose(n, d, 0, count), singular ? zelStsSingular : zelStsOk);
            const std::size_t turn = random.next() % memories().size();
            check(f, n, count, matrices, memories()[turn], turn % 4 == 0 ? 0 : -1,
                  array && place % 4 == 0 && step == n / 2 ? std::vector{2, 5} : std::vector<int>());
          }
        }
  });
}

// The cores take the arguments of the kernels of `m` and so run in their place. They know every order, 3 to 6 too.

template <class A>
A argument(const Value& v) {
  if constexpr (std::is_pointer_v<A>) return static_cast<A>(v.p);
  else return v.i;
}
template <auto core>
struct Unpacked;
template <class... A, ZelStatus (*core)(A...)>
struct Unpacked<core> {
  static ZelStatus call(const Value* v) { return call(v, std::index_sequence_for<A...>()); }
  template <std::size_t... i>
  static ZelStatus call(const Value* v, std::index_sequence<i...>) {
    return core(argument<A>(v[i])...);
  }
};
const std::map<std::string_view, Call> kCores = {
    {"p8_ownzelmLUDecomp_m_32f", {"32f_S_com", Unpacked<p8_ownzelmLUDecomp_m_32f_S_com>::call}},
    {"p8_ownzelmLUDecomp_m_32f_S2", {"32f_S2_com", Unpacked<p8_ownzelmLUDecomp_m_32f_S2_com>::call}},
    {"p8_ownzelmLUDecomp_m_32f_P", {"32f_P_com", Unpacked<p8_ownzelmLUDecomp_m_32f_P_com>::call}},
    {"p8_ownzelmLUDecomp_m_64f", {"64f_S_com", Unpacked<p8_ownzelmLUDecomp_m_64f_S_com>::call}},
    {"p8_ownzelmLUDecomp_m_64f_S2", {"64f_S2_com", Unpacked<p8_ownzelmLUDecomp_m_64f_S2_com>::call}},
    {"p8_ownzelmLUDecomp_m_64f_P", {"64f_P_com", Unpacked<p8_ownzelmLUDecomp_m_64f_P_com>::call}},
};

TEST_P(LUDecomp, Cores) {
  if (array) return;
  typed([&](auto t) {
    using T = decltype(t);
    Random random(4);
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 27})
      for (const Memory& memory : memories()) {
        Scene scene(f, {{{"widthHeight", n}}}, memory);
        for (Road road : scene.roads({})) {
          if (!road.direct) continue;
          road.call = &kCores.at(road.kernel->symbol);
          Data<T> got = with_destinations(assorted<T>(n, 1, random), n, 1), want = got;
          EXPECT_EQ(scene.run(road, got),
                    eliminate_in_core(want.operands[0].data(), want.indices["pDstIndex"].data(), want.operands[1].data(), n))
              << scene.describe(road);
          EXPECT_EQ(difference(got, want, false), "") << scene.describe(road);
        }
      }
  });
}

INSTANTIATE_TEST_SUITE_P(All, LUDecomp, testing::ValuesIn(family("LUDecomp", "")), FunctionTest::name);

// Small cases worked by hand.

struct Result {
  ZelStatus status;
  std::vector<int> index;
  std::vector<float> d;
  bool operator==(const Result&) const = default;
};
void PrintTo(const Result& r, std::ostream* out) {
  *out << r.status << " " << testing::PrintToString(r.index) << " " << testing::PrintToString(r.d);
}

Result decomposed(const std::vector<float>& a, int n) {
  Result r{zelStsOk, std::vector<int>(std::size_t(n), -7), std::vector<float>(a.size(), -99)};
  r.status = zelmLUDecomp_m_32f(a.data(), n * 4, 4, r.index.data(), r.d.data(), n * 4, 4, n);
  return r;
}

TEST(LUKnownAnswers, SmallPivotsOfTheTwoPaths) {
  EXPECT_EQ(decomposed({1e-8f}, 1), (Result{zelStsSingular, {0}, {1e-8f}}));
  EXPECT_EQ(decomposed({1e-10f, 0, 0, 1e-10f}, 2), (Result{zelStsSingular, {0, 1}, {1e-10f, 0, 0, 1e-10f}}));
  const std::vector<float> diagonal = {1e-10f, 0, 0, 0, 1e-10f, 0, 0, 0, 1e-10f};
  EXPECT_EQ(decomposed(diagonal, 3), (Result{zelStsOk, {0, 1, 2}, diagonal}));
}

TEST(LUKnownAnswers, ZeroMatrixTouchesNothingButTheIndex) {
  EXPECT_EQ(decomposed(std::vector<float>(9, 0), 3), (Result{zelStsSingular, {0, 1, 2}, std::vector<float>(9, -99)}));
}

TEST(LUKnownAnswers, FirstOfEqualMagnitudesIsThePivot) {
  EXPECT_EQ(decomposed({2, 1, 0, -2, 1, 0, 2, 1, 1}, 3).index, (std::vector{0, 1, 2}));
  EXPECT_EQ(decomposed({1, 0, 0, 3, 3, 0, -3, 0, 2}, 3),
            (Result{zelStsOk, {1, 2, 0}, {1.f / 3, -(1.f / 3), 2.f / 3, 3, 3, 0, -1, 3, 2}}));
}

TEST(LUKnownAnswers, DisplacedRowGoesToThePlaceOfThePivot) {
  const Result r = decomposed({1, 5, 0, 3, 0, 0, -3, 1, 1}, 3);
  EXPECT_EQ(r.status, zelStsOk);
  EXPECT_EQ(r.index, (std::vector{1, 0, 2}));
  EXPECT_EQ(std::vector(r.d.begin() + 3, r.d.begin() + 6), (std::vector{3.f, 0.f, 0.f}));
}

TEST(LUKnownAnswers, FailureAtTheSecondStepLeavesTheFirstRow) {
  // Column 1 vanishes behind the first pivot, which stands in row 2.
  EXPECT_EQ(decomposed({1, 1, 5, 1, 1, 6, 2, 2, 7}, 3),
            (Result{zelStsSingular, {2, 1, 0}, {-99, -99, -99, -99, -99, -99, 2, 2, 7}}));
}

TEST(LUKnownAnswers, NaNColumnPassesTheCore) {
  EXPECT_EQ(decomposed({kNaN<float>, 1, kNaN<float>, 2}, 2).status, zelStsOk);
  EXPECT_EQ(decomposed({1, kNaN<float>, kNaN<float>, 2}, 2).index, (std::vector{0, 1}));
}

TEST(LUKnownAnswers, OverlappingRowsAreCopiedElementByElement) {
  // One element further on, rising copies spread the first element over the whole matrix.
  constexpr int n = 33;
  std::vector<float> a(n * n + 1, 7), want(n * n + 1, 0);
  a[0] = 2;
  std::fill(want.begin(), want.begin() + n + 1, 2.f);
  for (int i = 1; i < n; ++i) want[i * n + 1] = 1;
  int index[n];
  EXPECT_EQ(zelmLUDecomp_m_32f(a.data(), n * 4, 4, index, a.data() + 1, n * 4, 4, n), zelStsSingular);
  EXPECT_EQ(a, want);
}

}  // namespace
}  // namespace zelm::test
