// Inverses against plain scalar code, bit for bit: cofactors by either reciprocal, column pivoting, adjugates; statuses, limits
// and what every failure leaves; errors beside Eigen's.
#include <Eigen/LU>
#include <bit>
#include <cmath>
#include <limits>
#include <numeric>

#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

template <class T>
constexpr T kNaN = std::numeric_limits<T>::quiet_NaN();

/// 2 n^3 times the smallest normal number.
template <class T>
T limit(int n) {
  return T(2 * n * n * n) * std::numeric_limits<T>::min();
}

// Models

/// The minor of some rows and columns by Laplace's expansion with the first p rows apart; the parts are expanded by their last
/// row above, by their first one below. The first positive term begins the sum.
template <class T>
T minor(const T* a, int n, const std::vector<int>& rows, unsigned columns, int p, bool negative = false) {
  if (rows.size() == 1) return a[rows[0] * n + std::countr_zero(columns)];
  const std::vector<int> upper(rows.begin(), rows.begin() + p), lower(rows.begin() + p, rows.end());
  std::vector<std::pair<bool, T>> terms;
  for (unsigned s = 0; s < 1u << n; ++s) {
    if (std::popcount(s) != p || (s & columns) != s) continue;
    int inversions = 0;
    for (int c = 0; c < n; ++c)
      if (s >> c & 1) inversions += std::popcount(columns & ~s & ((1u << c) - 1));
    terms.push_back({(inversions % 2 == 1) != negative, minor(a, n, upper, s, p - 1) * minor(a, n, lower, columns & ~s, 1)});
  }
  const auto first = std::find_if(terms.begin(), terms.end(), [](const auto& t) { return !t.first; });
  std::rotate(terms.begin(), first, first + 1);
  T sum = terms[0].second;
  for (std::size_t t = 1; t < terms.size(); ++t) sum = terms[t].first ? sum - terms[t].second : sum + terms[t].second;
  return sum;
}

template <class T>
T cofactor(const T* a, int n, int i, int j) {
  std::vector<int> rows;
  for (int r = 0; r < n; ++r)
    if (r != i) rows.push_back(r);
  return minor(a, n, rows, ((1u << n) - 1) & ~(1u << j), i < 2 ? 1 : i >= n - 2 ? n - 2 : i, (i + j) % 2 == 1);
}

float newton(float x) {
  const float r = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x)));
  return r + r - x * r * r;
}

template <class T>
bool by_cofactors(const T* a, T* d, int n, T smallest, bool newtons) {
  T det = 0;
  for (int i = 0; i < n; ++i) {
    const T term = a[i * n] * cofactor(a, n, i, 0);
    det = i == 0 ? term : det + term;
  }
  if (smallest > std::abs(det)) return false;
  const T r = newtons ? T(newton(float(det))) : 1 / det;
  std::vector<T> x(n * n);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) x[j * n + i] = cofactor(a, n, i, j) * r;
  std::copy(x.begin(), x.end(), d);
  return true;
}

/// The contiguous float kernels of orders 5 and 6.
bool by_pivoting(const float* a, float* d, int n) {
  std::vector<float> w(a, a + n * n), x(n * n), r(n);
  std::vector<int> p(n);
  std::iota(p.begin(), p.end(), 0);
  const auto at = [&](auto& m, int i, int j) -> float& { return m[i * n + j]; };
  const int steps = n - 4;
  const auto leave = [&](int rows) { return std::copy(w.begin(), w.begin() + rows * n, d), false; };
  for (int k = 0; k < steps; ++k) {
    int c = k;
    for (int j = k + 1; j < n; ++j) {
      const float x_j = std::abs(at(w, k, j)), best = std::abs(at(w, k, c));
      if (n == 5 && j == 4 ? x_j > best : x_j >= best) c = j;
    }
    if (limit<float>(n) > std::abs(at(w, k, c))) return leave(k + 1);
    std::swap(p[k], p[c]);
    for (int i = 0; i < n; ++i) std::swap(at(w, i, k), at(w, i, c));
    r[k] = newton(at(w, k, k));
    for (int i = k + 1; i < n; ++i)
      for (int j = k + 1; j < n; ++j) at(w, i, j) = at(w, i, j) - at(w, i, k) * r[k] * at(w, k, j);
  }
  float block[16];
  for (int e = 0; e < 16; ++e) block[e] = at(w, steps + e / 4, steps + e % 4);
  if (!by_cofactors(block, block, 4, limit<float>(n), true)) return leave(steps);
  for (int e = 0; e < 16; ++e) at(x, steps + e / 4, steps + e % 4) = block[e];
  for (int k = steps - 1; k >= 0; --k) {
    const auto sum = [&](auto term) {
      float s = term(k + 1);
      for (int j = k + 2; j < n; ++j) s = s + term(j);
      return s;
    };
    for (int i = k + 1; i < n; ++i) {
      at(x, i, k) = -sum([&](int j) { return at(x, i, j) * at(w, j, k); }) * r[k];
      at(x, k, i) = sum([&](int j) { return -r[k] * at(w, k, j) * at(x, j, i); });
    }
    at(x, k, k) = r[k] + sum([&](int j) { return -at(x, k, j) * at(w, j, k); }) * r[k];
  }
  for (int i = 0; i < n; ++i) std::copy(&at(x, i, 0), &at(x, i, 0) + n, d + p[i] * n);
  return true;
}

template <class T>
struct Eliminated {
  T sign = 1, product = 1, last;
  bool stopped = false;
};

template <class T>
Eliminated<T> eliminate(std::vector<T> a, int n, T smallest) {
  Eliminated<T> e;
  for (int k = 0; k < n - 1; ++k) {
    int r = k;
    for (int i = k + 1; i < n; ++i)
      if (std::abs(a[i * n + k]) > std::abs(a[r * n + k])) r = i;
    if (r != k) {
      std::swap_ranges(&a[r * n], &a[r * n] + n, &a[k * n]);
      e.sign = -e.sign;
    }
    if (smallest > std::abs(a[k * n + k])) {
      e.stopped = true;
      break;
    }
    const T inverse = 1 / a[k * n + k];
    for (int i = k + 1; i < n; ++i) {
      const T m = a[i * n + k] * inverse;
      for (int j = k + 1; j < n; ++j) a[i * n + j] = a[i * n + j] - m * a[k * n + j];
    }
    e.product = e.product * a[k * n + k];
  }
  e.last = a[n * n - 1];
  return e;
}

template <class T>
bool adjugate(const T* a, T* d, int n) {
  const T L = limit<T>(n);
  const auto whole = eliminate(std::vector<T>(a, a + n * n), n, L);
  const T det = whole.sign * whole.last * whole.product;
  if (whole.stopped || L >= std::abs(det)) return false;
  const T inverse = 1 / det;
  for (int r = 0; r < n; ++r)
    for (int c = 0; c < n; ++c) {
      std::vector<T> rest;
      for (int e = 0; e < n * n; ++e)
        if (e / n != r && e % n != c) rest.push_back(a[e]);
      auto e = eliminate(rest, n - 1, L);
      if (e.stopped) e.product = L;
      const T v = std::abs(e.last) > L ? e.last * e.sign * e.product : L;
      d[c * n + r] = v * inverse * T((r + c) % 2 ? -1 : 1);
    }
  return true;
}

template <class T>
bool invert(const Road& road, const T* a, T* d, int n) {
  const bool contiguous = road.kernel->contiguous, single = sizeof(T) == 4;
  if (n == 1) {
    if (!(std::abs(a[0]) > limit<T>(1))) return false;
    d[0] = 1 / a[0];
    return true;
  }
  if (n == 2 || n > 6) return adjugate(a, d, n);
  if constexpr (sizeof(T) == 4)
    if (contiguous && n >= 5) return by_pivoting(a, d, n);
  const T smallest = contiguous && !single && n <= 4 ? 2 * limit<T>(n) : limit<T>(n);
  return by_cofactors(a, d, n, smallest, single && contiguous && (n == 4 || road.kernel->symbol != "p8_ownzelmInvert_ma_32f"));
}

template <class T>
ZelStatus invert_all(const Road& road, int n, Data<T>& d, int first, int count) {
  bool pairs = n == 4 && road.kernel->symbol == "p8_ownzelmInvert_ma_32f";
  for (const int o : {0, 1}) {
    const auto& s = road.scene->strides(o);
    pairs = pairs && (road.scene->address(o, 0) | unsigned(s[0])) % 16 == 0 && s[1] == 16;
  }
  for (int k = first; k < first + count;) {
    const int unit = pairs && k + 1 < first + count ? 2 : 1;
    T* const dst = &d.operands[1][k * n * n];
    std::vector<T> out(dst, dst + unit * n * n);
    bool good = true;
    for (int u = 0; u < unit; ++u) good &= invert(road, &d.operands[0][(k + u) * n * n], &out[u * n * n], n);
    if (good || unit == 1) std::copy(out.begin(), out.end(), dst);
    if (!good) return zelStsSingular;
    k += unit;
  }
  return zelStsOk;
}

template <class T>
void check(const Function& f, int n, int count, const std::vector<T>& matrices, const Memory& memory, int in_place = -1,
           const std::vector<int>& teams = {}) {
  Data<T> d;
  d.operands = {matrices, std::vector<T>(matrices.size(), T(-99))};
  d.indices["pBuffer"].assign(n * n * sizeof(T) / 4 + n, -7);
  const auto model = [n](const Road& road, Data<T>& data, int first, int stretch) {
    return invert_all(road, n, data, first, stretch);
  };
  const Sizes sizes = {{{"widthHeight", n}, {"count", count}}};
  if (n > 1) return expect_model(f, sizes, memory, d, model, in_place, teams);
  // The entry answers order 1 itself: no kernel and no driver ever sees it.
  Scene scene(f, sizes, memory, in_place);
  if (in_place >= 0) d.operands[1] = d.operands[0];
  const Road road = scene.roads({})[0];
  Data<T> got = d, want = d;
  EXPECT_EQ(scene.run(road, got), invert_all(road, n, want, 0, count)) << scene.describe(road);
  EXPECT_EQ(difference(got, want, false), "") << scene.describe(road);
}

/// Mostly regular ones; with small whole numbers (equal magnitudes, singular matrices), NaNs, infinities, zero columns, scaled
/// ones.
template <class T>
std::vector<T> assorted(int n, int count, int odd, Random& random) {
  std::vector<T> all;
  for (int k = 0; k < count; ++k) {
    const int kind = random.below(odd), row = random.below(n), column = random.below(n);
    const T special = random.below(2) ? kNaN<T> : std::numeric_limits<T>::infinity();
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j) {
        T x = random.uniform<T>();
        if (kind < 3) x = T(random.below(5) - 2);
        if (kind == 3 && i == row && j == column) x = special;
        if (kind == 4 && j == column) x = 0;
        if (kind == 5) x = std::ldexp(x, random.below(40) - 20);
        if (kind == 6 && j == column) x *= limit<T>(n);
        if (kind == 7 && i == row) x *= limit<T>(n);
        all.push_back(x);
      }
  }
  return all;
}

struct Invert : FunctionTest {};

TEST_P(Invert, EveryOrderInEveryMemory) {
  typed([&](auto t) {
    Random random(1);
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 12})
      for (const Memory& memory : memories())
        for (int turn = 0; turn < (n < 6 ? 6 : n < 8 ? 2 : 1) && !HasFailure(); ++turn) {
          const int count = f.array() ? 1 + random.below(n < 7 ? 13 : 2) : 1;
          const auto matrices = assorted<decltype(t)>(n, count, turn % 2 ? 400 : 20, random);
          check(f, n, count, matrices, memory);
          if (n == 1 || (n >= 3 && n <= 6)) check(f, n, count, matrices, memory, 0);
        }
  });
}

TEST_P(Invert, Teams) {
  if (!f.array()) return;
  typed([&](auto t) {
    Random random(2);
    for (const int n : {2, 3, 4, 5, 7})
      for (const int count : {1, 2, 5, 11, 23})
        for (const int memory : {0, 2, 9})
          check(f, n, count, assorted<decltype(t)>(n, count, count > 5 ? 1000 : 20, random), memories()[memory], -1, {2, 3, 5});
  });
}

/// Permuted ones with `pivot` among them: a determinant, and a pivot, of exactly that magnitude, in every object.
TEST_P(Invert, LimitOfEveryObject) {
  typed([&](auto t) {
    using T = decltype(t);
    Random random(3);
    const int count = f.array() ? 9 : 1;
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 8})
      for (const T L : {limit<T>(n), 2 * limit<T>(n)})
        for (const T pivot : {std::nextafter(L, T(0)), L, std::nextafter(L, T(1))})
          for (int place = 0; place < count && !HasFailure(); ++place) {
            std::vector<T> a(n * n * count, 0);
            for (int k = 0; k < count; ++k) {
              const auto p = random.permutation(n);
              const int small = random.below(n);
              for (int i = 0; i < n; ++i)
                a[(k * n + i) * n + p[i]] = k != place ? T(1 + random.below(2)) : i == small ? -pivot : T(1);
            }
            const auto& memory = memories()[random.next() % memories().size()];
            check(f, n, count, a, memory, n > 2 && n < 7 && place % 3 == 0 ? 0 : -1);
          }
  });
}

INSTANTIATE_TEST_SUITE_P(All, Invert, testing::ValuesIn(family("Invert", "inverse")), FunctionTest::name);

// Cases by hand

template <class T>
struct Result {
  ZelStatus status;
  std::vector<T> d;
  bool operator==(const Result&) const = default;
};
template <class T>
void PrintTo(const Result<T>& r, std::ostream* out) {
  *out << r.status << " " << testing::PrintToString(r.d);
}

template <class T, class Call>
Result<T> inverted(Call call, const std::vector<T>& a, int n, int element = 1) {
  std::vector<T> s(a.size() * element), d(a.size() * element, -99), out;
  for (std::size_t e = 0; e < a.size(); ++e) s[e * element] = a[e];
  std::vector<double> buffer(n * n + n);
  const int E = sizeof(T) * element;
  const ZelStatus status = call(s.data(), n * E, E, buffer.data(), d.data(), n * E, E, n);
  for (std::size_t e = 0; e < a.size(); ++e) out.push_back(d[e * element]);
  return {status, out};
}
constexpr auto m32 = zelmInvert_m_32f;
constexpr auto m64 = zelmInvert_m_64f;

std::vector<float> diagonal(const std::vector<float>& values, float other = 0) {
  const std::size_t n = values.size();
  std::vector<float> a(n * n, other);
  for (std::size_t i = 0; i < n; ++i) a[i * n + i] = values[i];
  return a;
}

TEST(InvertKnownAnswers, OrderOne) {
  EXPECT_EQ(inverted<float>(m32, {2}, 1), (Result<float>{zelStsOk, {0.5f}}));
  for (const float x : {0.f, 0x1p-125f, -0x1p-125f, kNaN<float>})
    EXPECT_EQ(inverted<float>(m32, {x}, 1), (Result<float>{zelStsSingular, {-99}}));
  float a[] = {2, 4, 0, 5}, buffer[2];
  EXPECT_EQ(zelmInvert_ma_32f(a, 4, 4, 4, buffer, a, 4, 4, 4, 1, 4), zelStsSingular);
  EXPECT_EQ(std::vector(a, a + 4), (std::vector{0.5f, 0.25f, 0.f, 5.f}));
}

TEST(InvertKnownAnswers, VanishingMinorsComeOutAsTheLimit) {
  const float L = -(16 * 0x1p-126f) / 8;
  EXPECT_EQ(inverted<float>(m32, {2, 0, 0, 4}, 2), (Result<float>{zelStsOk, {0.5f, L, L, 0.25f}}));
  const auto identity = inverted<float>(m32, diagonal({1, 1, 1, 1, 1, 1, 1}), 7);
  for (int e = 0; e < 49; ++e) EXPECT_EQ(std::abs(identity.d[e]), e % 8 ? 686 * 0x1p-126f : 1) << e;
  // A last element of the minor below the limit counts as the limit, whatever its sign.
  EXPECT_EQ(inverted<float>(m32, {2, -0x1p-126f, 0, 4}, 2).d[1], L);
}

TEST(InvertKnownAnswers, LimitsOfTheKernels) {
  EXPECT_EQ(inverted<float>(m32, diagonal({1e-36f, 1, 1}), 3).status, zelStsOk);
  EXPECT_EQ(inverted<float>(m32, diagonal({1e-37f, 1, 1}), 3), (Result<float>{zelStsSingular, std::vector<float>(9, -99)}));
  const std::vector<double> a = {2e-306, 0, 0, 0, 1, 0, 0, 0, 1};
  EXPECT_EQ(inverted<double>(m64, a, 3), (Result<double>{zelStsSingular, std::vector<double>(9, -99)}));
  EXPECT_EQ(inverted<double>(m64, a, 3, 2).status, zelStsOk);
  // A pivot of the limit passes, a determinant of it does not.
  EXPECT_EQ(inverted<float>(m32, {16 * 0x1p-126f, 0, 0, 1}, 2).status, zelStsSingular);
  EXPECT_EQ(inverted<float>(m32, {16 * 0x1p-126f, 0, 0, 2}, 2).status, zelStsOk);
}

TEST(InvertKnownAnswers, NaNsGoThrough) {
  for (const int n : {2, 3, 4, 5, 6, 7}) {
    std::vector<float> a = diagonal(std::vector<float>(n, 1));
    a[n * n - 1] = kNaN<float>;
    EXPECT_EQ(inverted<float>(m32, a, n).status, zelStsOk) << n;
  }
}

TEST(InvertKnownAnswers, AlignedPairFailsTogether) {
  for (const int offset : {0, 1}) {
    alignas(16) float a[3 * 16 + 1] = {}, d[3 * 16 + 1];
    float buffer[20];
    std::fill(std::begin(d), std::end(d), -99.f);
    for (const int e : {0, 5, 10, 15, 32, 37, 42, 47}) a[offset + e] = 1;
    EXPECT_EQ(zelmInvert_ma_32f(a + offset, 64, 16, 4, buffer, d + offset, 64, 16, 4, 4, 3), zelStsSingular);
    EXPECT_NEAR(d[offset], offset ? 1 : -99, 1e-6);
    EXPECT_EQ(d[offset + 16], -99);
    EXPECT_EQ(d[offset + 32], -99);
  }
}

TEST(InvertKnownAnswers, PivotingFailuresLeaveWorkingRows) {
  for (const int n : {5, 6}) {
    std::vector<float> a = diagonal(std::vector<float>(n, 1)), untouched(n * (n - 1), -99);
    a[n * n - 1] = 0;  // found at the determinant
    auto r = inverted<float>(m32, a, n);
    EXPECT_EQ(r.status, zelStsSingular);
    EXPECT_EQ(r.d[0], 1);
    EXPECT_EQ(std::vector(r.d.begin() + n * (n - 4), r.d.end()), std::vector<float>(4 * n, -99));
    a[0] = 0, a[1] = 1e-38f, a[n + 2] = 2;  // found at the first pivot, ahead of any exchange
    r = inverted<float>(m32, a, n);
    EXPECT_EQ(r.status, zelStsSingular);
    EXPECT_EQ(r.d[0], 0);
    EXPECT_EQ(r.d[1], 1e-38f);
    EXPECT_EQ(std::vector(r.d.begin() + n, r.d.end()), untouched);
  }
}

// Errors

template <class T>
using Matrix = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
using Exact = Matrix<long double>;

Exact without(const Exact& a, int r, int c) {
  const auto n = a.rows();
  Exact m(n - 1, n - 1);
  for (int i = 0; i < n - 1; ++i)
    for (int j = 0; j < n - 1; ++j) m(i, j) = a(i + (i >= r), j + (j >= c));
  return m;
}
long double permanent(const Exact& a) {
  if (a.rows() == 0) return 1;
  long double sum = 0;
  for (int j = 0; j < a.cols(); ++j) sum += a(0, j) * permanent(without(a, 0, j));
  return sum;
}

/// |X - 1/A| against its bound. Closed forms: a cofactor, or det, has an error of at most gamma(k) times the permanent of its
/// magnitudes. Adjugate: each elimination gives the determinant of a matrix changed by gamma(n) ||A||, and the second-order
/// minors by which that changes a cofactor are those of order 2 of the inverse (Jacobi's identity): c n^3 u ||A|| ||1/A||^2.
template <class T>
Exact bound(const Exact& a, const Exact& inverse) {
  const int n = int(a.rows());
  const long double u = std::numeric_limits<T>::epsilon() / 2.0L;
  if (n == 2 || n > 6) {
    const long double size = inverse.cwiseAbs().maxCoeff();
    return Exact::Constant(n, n, 8 * n * n * n * u * a.cwiseAbs().maxCoeff() * size * size);
  }
  const long double k = 4 * (n * (n + 1) / 2 + 8), det = std::abs(a.determinant());
  const long double relative = k * u * permanent(a.cwiseAbs()) / det;
  if (relative > 0.5) return Exact::Constant(n, n, std::numeric_limits<long double>::infinity());
  Exact b(n, n);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j)
      b(i, j) = (k * u * permanent(without(a, j, i).cwiseAbs()) / det + std::abs(inverse(i, j)) * relative) / (1 - relative);
  return b;
}

template <class T>
void check_errors(const std::string& type, int n) {
  Random random(4);
  long double ours = 0, our_residual = 0, eigen_residual = 0;
  for (int turn = 0; turn < 60; ++turn) {
    Matrix<T> a(n, n);
    for (T& x : a.reshaped()) x = random.uniform<T>();
    if (turn % 3 == 1)
      for (int i = 0; i < n; ++i) a.row(i) *= std::ldexp(T(1), random.below(8) - 4);
    if (turn % 3 == 2 && n > 1) a.col(n - 1) = a.leftCols(n - 1).rowwise().mean() + a.col(n - 1) * T(0x1p-6);
    const Exact exact = a.template cast<long double>(), inverse = exact.fullPivLu().inverse(), b = bound<T>(exact, inverse);
    const Matrix<T> eigen = a.inverse();
    const auto residual = [&](const Exact& x) {
      return (exact * x - Exact::Identity(n, n)).cwiseAbs().maxCoeff() / (exact.cwiseAbs() * inverse.cwiseAbs()).maxCoeff();
    };
    for (const std::string form : {"m_", "ma_"})
      for (const int memory : {0, 8}) {  // contiguous and not
        Data<T> d{
            {{a.data(), a.data() + n * n}, std::vector<T>(n * n)}, {{"pBuffer", std::vector<int>(n * n * 2 + n)}}, {}, {}};
        Scene scene(function("zelmInvert_" + form + type), {{{"widthHeight", n}, {"count", 1}}}, memories()[memory]);
        ASSERT_EQ(scene.run(scene.roads({})[0], d), zelStsOk);
        const Exact x = Eigen::Map<const Matrix<T>>(d.operands[1].data(), n, n).template cast<long double>();
        for (int e = 0; e < n * n; ++e)
          ours = std::max(ours, std::abs(x.reshaped()[e] - inverse.reshaped()[e]) / b.reshaped()[e]);
        our_residual = std::max(our_residual, residual(x));
      }
    eigen_residual = std::max(eigen_residual, residual(eigen.template cast<long double>()));
  }
  EXPECT_LE(ours, 1) << type << " order " << n;
  // Cofactors bound the error of the inverse, not the residual; on these matrices that costs some bits against elimination.
  EXPECT_LE(our_residual, 200 * eigen_residual + 8 * std::numeric_limits<T>::epsilon()) << type << " order " << n;
  testing::Test::RecordProperty(type + std::to_string(n), std::to_string(double(our_residual / eigen_residual)));
}

TEST(InvertAccuracy, ErrorsBesideEigens) {
  for (const int n : {2, 3, 4, 5, 6, 7, 8, 12}) {
    check_errors<float>("32f", n);
    check_errors<double>("64f", n);
  }
}

}  // namespace
}  // namespace zelm::test
