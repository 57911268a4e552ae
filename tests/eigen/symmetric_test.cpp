// The symmetric eigenproblem against the method in plain scalar code, one matrix at a time, both directions of the sweeps written
// out: values, vectors and statuses bit for bit, and what every failure leaves.
#include <cmath>
#include <limits>

#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

/// One matrix; S: what the sweeps compute with.
template <class T, class S>
struct Model {
  const catalog::Kernel& kernel;
  bool vectors, array;
  int n;
  const T* source;
  T *values, *z;
  const T eps = std::numeric_limits<T>::epsilon();
  std::vector<T> a{source, source + n* n};

  bool named(const char* ending) const {
    const std::string &s = kernel.symbol, e = ending;
    return s.size() > e.size() && s.compare(s.size() - e.size(), e.size(), e) == 0;
  }
  T& A(int i, int j) { return a[std::size_t(i * n + j)]; }
  T& Z(int i, int j) { return z[i * n + j]; }
  T& d(int i) { return A(i, i); }
  T& e(int i) { return A(i, i - 1); }

  ZelStatus solve() {
    if (n == 1) {
      values[0] = a[0];
      if (vectors) z[0] = 1;
      return zelStsOk;
    }
    if (n == 2) return pair();
    if (vectors)
      for (int i = 0; i < n * n; ++i) z[i] = i % (n + 1) == 0;
    for (int k = 0; k < n - 2; ++k) reflect(k);
    S prod = 1;
    const bool ascending = std::abs(d(n - 1)) > std::abs(d(0));
    if (!(ascending ? ascend() : descend(prod))) return zelStsNoConvergence;
    if (ascending)
      for (int i = 0; i < n; ++i) values[i] = d(i), prod = prod * S(d(i));
    const bool singular = S(eps) >= std::abs(prod);
    const bool sorted_first = vectors && !array && !named("m_32f_S2");
    if (singular && !sorted_first) return zelStsSingular;
    for (int i = 0; i < n - 1; ++i) {
      int j = i;
      for (int m = i + 1; m < n; ++m)
        if (values[m] > values[j]) j = m;
      std::swap(values[i], values[j]);
      for (int k = 0; vectors && k < n; ++k) std::swap(Z(k, i), Z(k, j));
    }
    return singular ? zelStsSingular : zelStsOk;
  }

  ZelStatus pair() {
    const T p = a[0], b = a[1], r = a[3], det = r * p - b * b;
    if ((named("ValuesSym_ma_32f") ? T(0x1p-52) : eps) >= std::abs(det)) return zelStsSingular;
    const T sum = p + r, diff = p - r, q = 2 * b, root = std::sqrt(diff * diff + q * q);
    int sign1 = 1, sign2 = 1;
    if (sum > eps) values[0] = T(0.5) * (sum + root), values[1] = (p * r - b * b) / values[0];
    else if (sum < -eps) sign1 = -1, values[0] = T(0.5) * (sum - root), values[1] = (p * r - b * b) / values[0];
    else values[0] = T(0.5) * root, values[1] = T(-0.5) * root;
    if (!vectors) return zelStsOk;
    T w = diff + root, u, v;
    if (diff < -eps) w = diff - root, sign2 = -1;
    if (std::abs(w) > std::abs(q)) {
      const T t = (0 - q) / w;
      u = T(1 / std::sqrt(double(t * t + 1))), v = t * u;
    } else if (eps >= std::abs(q)) {
      u = 0, v = 1;
    } else {
      const T t = (0 - w) / q;
      v = T(1 / std::sqrt(double(t * t + 1))), u = t * v;
    }
    if (sign1 != sign2) z[0] = v, z[2] = u, z[1] = 0 - u, z[3] = v;
    else z[0] = 0 - u, z[2] = v, z[1] = 0 - v, z[3] = 0 - u;
    return zelStsOk;
  }

  void reflect(int k) {
    T* const u = values;
    const T x0 = A(k + 1, k);
    T sum = x0 * x0;
    for (int i = k + 2; i < n; ++i) u[i] = A(i, k), sum += u[i] * u[i];
    if (array && eps >= sum) {
      u[k + 1] = x0;
      return;
    }
    const T alpha = std::sqrt(sum);
    T H;
    if (x0 > eps) u[k + 1] = x0 + alpha, H = 2 * (sum + x0 * alpha);
    else if (std::abs(x0) <= eps) u[k + 1] = alpha, H = sum + sum;
    else u[k + 1] = x0 - alpha, H = 2 * (sum - x0 * alpha);
    if (eps >= H) return;
    if ((vectors || named("_ma_32f") || named("_ma_64f") || named("_L")) && eps >= std::abs(0 - (x0 - alpha))) return;
    const T beta = 2 / H;
    std::vector<T> w(std::size_t(n), 0);
    for (int j = k; j < n; ++j) {
      for (int i = k + 1; i < n; ++i) w[j] = i == k + 1 ? u[i] * A(i, j) : w[j] + u[i] * A(i, j);
      for (int i = k + 1; i < n; ++i) A(i, j) -= u[i] * (beta * w[j]);
    }
    const auto from_the_right = [&](T* row) {
      T s = row[k + 1] * u[k + 1];
      for (int j = k + 2; j < n; ++j) s += row[j] * u[j];
      for (int j = k + 1; j < n; ++j) row[j] -= (beta * s) * u[j];
    };
    for (int i = k; i < n; ++i) from_the_right(&A(i, 0));
    for (int i = 0; vectors && i < n; ++i) from_the_right(&Z(i, 0));
  }

  // Of the shift, the ratio and its square are of the matrix's type.
  S shift(int l, int m, int beside, T el) {
    const T g = (d(beside) - d(l)) / (2 * el);
    const S r = std::sqrt(S(T(g * g + 1)));
    return (S(d(m)) - S(d(l))) + S(el) / (g > eps ? S(g) + r : S(g) - r);
  }

  bool descend(S& prod) {
    for (int l = n - 1; l >= 0; --l)
      for (int it = 0;; ++it) {
        int m = 0;
        for (int i = l; i >= 1 && m == 0; --i)
          if (eps >= std::abs(e(i)) * T(0.5)) m = i, values[m] = d(m), prod = prod * S(d(m));
        if (m == l) break;
        if (it == 30) return false;
        S g = shift(l, m, l - 1, e(l)), s = 1, c = 1, p = 0, t = 0;
        bool ended = false;
        for (int i = m; i < l && !ended; ++i) {
          const S f = s * S(e(i + 1)), b = c * S(e(i + 1)), r = std::sqrt(f * f + g * g);
          if (i != m) e(i) = T(r);
          if (S(eps) >= std::abs(r)) {
            d(i) = T(S(d(i)) - p), e(m + 1) = 0;
            ended = true;
            continue;
          }
          c = g / r, s = f / r, g = S(d(i)) - p, t = (S(d(i + 1)) - g) * s + 2 * c * b, p = s * t, d(i) = T(g + p),
          g = c * t - b;
          for (int k = 0; vectors && k < n; ++k) {
            const S x = Z(k, i), y = Z(k, i + 1);
            Z(k, i) = T(c * x + s * y), Z(k, i + 1) = T(c * y - s * x);
          }
        }
        if (!ended && std::abs(t) > S(eps)) d(l) = T(S(d(l)) - p), e(l) = T(g);
      }
    values[0] = d(0);
    prod = prod * S(d(0));
    return true;
  }

  bool ascend() {
    for (int l = 0; l < n; ++l)
      for (int it = 0;; ++it) {
        int m = l;
        while (m < n - 1 && !(eps >= std::abs(e(m + 1)) * T(0.5))) ++m;
        if (m == l) break;
        if (it == 30) return false;
        S g = shift(l, m, l + 1, e(l + 1)), s = 1, c = 1, p = 0, t = 0;
        bool ended = false;
        for (int i = m - 1; i >= l && !ended; --i) {
          const S f = s * S(e(i + 1)), b = c * S(e(i + 1)), r = std::sqrt(f * f + g * g);
          if (i != m - 1) e(i + 2) = T(r);
          if (S(eps) >= std::abs(r)) {
            d(i + 1) = T(S(d(i + 1)) - p), e(m) = 0;
            ended = true;
            continue;
          }
          c = g / r, s = f / r, g = S(d(i + 1)) - p, t = (S(d(i)) - g) * s + 2 * c * b, p = s * t, d(i + 1) = T(g + p),
          g = c * t - b;
          for (int k = 0; vectors && k < n; ++k) {
            const S x = Z(k, i), y = Z(k, i + 1);
            Z(k, i) = T(c * x - s * y), Z(k, i + 1) = T(s * x + c * y);
          }
        }
        if (!ended && std::abs(t) > S(eps)) d(l) = T(S(d(l)) - p), e(l + 1) = T(g);
      }
    return true;
  }
};

/// Mostly well-behaved and symmetric; some with equal values, small or vanishing elements, NaNs, and of different sizes.
template <class T>
std::vector<T> assorted(int n, Random& random) {
  std::vector<T> a = random.uniforms<T>(n * n);
  const int kind = random.below(16), row = random.below(n);
  const T eps = std::numeric_limits<T>::epsilon();
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) {
      T& x = a[i * n + j];
      if (kind == 0) continue;  // not symmetric
      x = i > j ? a[j * n + i] : x;
      if (i < j && random.below(4) == 0 && kind < 4) x = random.below(2) ? T(0) : 2 * eps * x;
      if (kind == 4) x = i == j ? T(random.below(3) + 1) : T(random.below(3) - 1);
      if (kind == 5) x = i == j ? T(random.below(5) - 2) : T(0);
      if (kind == 6 && random.below(3) == 0) x = std::ldexp(x, -random.below(30));
      if (kind == 7 && (i == row || j == row)) x *= std::ldexp(eps, 1);
      if (kind == 8) x = std::ldexp(x, random.below(2) ? 20 : -40);
      if (kind == 9 && i == row && j == row && random.below(4) == 0) x = std::numeric_limits<T>::quiet_NaN();
      if (kind == 10) x = T(i == j) + x * std::sqrt(eps);
      if (kind == 11) x = T(1);
    }
  for (int i = 0; kind > 3 && i < n; ++i)
    for (int j = 0; j < i; ++j) a[i * n + j] = a[j * n + i];
  return a;
}

struct Symmetric : FunctionTest {
  const bool array = f.array(), vectors = f.row->operation == "EigenValuesVectorsSym";
  const std::string_view values = vectors ? "pDstValues" : "pDst";

  template <class T>
  Data<T> data(std::vector<T> matrices, int n, int count) const {
    Data<T> d;
    d.operands = {std::move(matrices)};
    if (vectors) d.operands.emplace_back(std::size_t(n * n * count), T(-99));
    d.arrays[values].assign(std::size_t(n * count), T(-77));
    d.arrays["pBuffer"].assign(std::size_t(n * n), T(-55));
    return d;
  }
  template <class T>
  ZelStatus model(const Road& road, int n, Data<T>& d, int first, int count) const {
    for (int k = first; k < first + count; ++k) {
      const T* const a = &d.operands[0][std::size_t(k * n * n)];
      T *const v = &d.arrays[values][std::size_t(k * n)], *const z = vectors ? &d.operands[1][std::size_t(k * n * n)] : nullptr;
      const ZelStatus status = array && vectors ? Model<T, double>{*road.kernel, vectors, array, n, a, v, z}.solve()
                                                : Model<T, T>{*road.kernel, vectors, array, n, a, v, z}.solve();
      if (status != zelStsOk) return status;
    }
    return zelStsOk;
  }
  template <class T>
  void check(int n, const std::vector<T>& matrices, const Memory& memory, int in_place = -1,
             const std::vector<int>& teams = {}) const {
    const int count = int(matrices.size()) / (n * n);
    expect_model(
        f, {{{"widthHeight", n}, {"count", count}}}, memory, data(matrices, n, count),
        [&](const Road& road, Data<T>& d, int first, int stretch) { return model(road, n, d, first, stretch); }, in_place,
        teams);
  }
  template <class T>
  std::vector<T> matrices(int n, int count, Random& random) const {
    std::vector<T> all;
    for (int k = 0; k < count; ++k) {
      // Most arrays are to come through: what fails ends them.
      std::vector<T> a;
      Data<T> one;
      const Road road = {nullptr, &f.kernels[0], true, 1, nullptr};
      do {
        a = assorted<T>(n, random);
        one = data(a, n, 1);
      } while (model(road, n, one, 0, 1) != zelStsOk && random.below(10) > 0);
      all.insert(all.end(), a.begin(), a.end());
    }
    return all;
  }
};

TEST_P(Symmetric, EveryOrderInEveryMemory) {
  typed([&](auto t) {
    Random random(1);
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 12, 16, 17, 27})
      for (const Memory& memory : memories())
        for (int turn = 0; turn < (n < 9 ? 6 : 1) && !HasFailure(); ++turn) {
          const auto all = matrices<decltype(t)>(n, array ? 1 + random.below(n < 9 ? 21 : 9) : 1, random);
          check(n, all, memory);
          if (vectors) check(n, all, memory, 0);
        }
  });
}

TEST_P(Symmetric, Teams) {
  if (!array) return;
  typed([&](auto t) {
    Random random(2);
    for (const int n : {2, 3, 6, 9})
      for (int count = 1; count <= 23; count += 2)
        check(n, matrices<decltype(t)>(n, count, random), memories()[std::size_t(random.next()) % memories().size()], -1,
              {1, 2, 3, 5});
  });
}

// At the limits of order 2, of the search, of the reduction and of the product: the limit itself and its neighbours.
TEST_P(Symmetric, Limits) {
  typed([&](auto t) {
    using T = decltype(t);
    const T eps = std::numeric_limits<T>::epsilon(), root = std::sqrt(eps);
    for (const T limit : {eps, T(0x1p-52), 2 * eps, root, root / 2, eps / 2})
      for (const T x : {std::nextafter(limit, T(0)), limit, std::nextafter(limit, T(1)), -limit}) {
        const Memory& tight = memories()[0];
        check<T>(2, {1, 0, 0, x}, tight);
        check<T>(2, {T(0.5), x, x, T(0.5)}, tight);
        check<T>(2, {1 + x, 0, 0, -1}, tight);
        for (const T y : {T(0), x, T(1)}) {
          check<T>(3, {3, x, y, x, 2, x, y, x, 1}, tight);
          check<T>(3, {1, y, x, y, 2, x, x, x, 3}, tight);
          check<T>(3, {1, y, 0, y, 1, 0, 0, 0, x}, tight);
          check<T>(4, {1, x, y, x, x, 2, x, y, y, x, 3, y, x, y, y, 4}, tight);
        }
      }
  });
}

std::vector<const Function*> both_families() {
  std::vector<const Function*> all = family("EigenValuesSym", ""), vectors = family("EigenValuesVectorsSym", "");
  all.insert(all.end(), vectors.begin(), vectors.end());
  return all;
}
INSTANTIATE_TEST_SUITE_P(All, Symmetric, testing::ValuesIn(both_families()), FunctionTest::name);

// Small cases worked by hand.

struct Result {
  ZelStatus status;
  std::vector<float> values, z;
  bool operator==(const Result&) const = default;
};
void PrintTo(const Result& r, std::ostream* out) {
  *out << r.status << " " << testing::PrintToString(r.values) << " " << testing::PrintToString(r.z);
}
Result solved(const std::vector<float>& a, int n, int count = 1) {
  Result r{zelStsOk, std::vector<float>(std::size_t(n * count), -7), std::vector<float>(a.size(), -9)};
  std::vector<float> buffer(std::size_t(n * n));
  const int row = n * 4, matrix = n * row;
  r.status = count > 1
                 ? zelmEigenValuesVectorsSym_ma_32f(a.data(), matrix, row, 4, buffer.data(), r.z.data(), matrix, row, 4,
                                                    r.values.data(), n, count)
                 : zelmEigenValuesVectorsSym_m_32f(a.data(), row, 4, buffer.data(), r.z.data(), row, 4, r.values.data(), n);
  return r;
}

TEST(SymmetricKnownAnswers, ClosedForms) {
  EXPECT_EQ(solved({0}, 1), (Result{zelStsOk, {0}, {1}}));
  EXPECT_EQ(solved({1, 0, 0, 0}, 2), (Result{zelStsSingular, {-7, -7}, {-9, -9, -9, -9}}));
  EXPECT_EQ(solved({-1, 0, 0, -3}, 2).values, (std::vector<float>{-3, -1}));
  EXPECT_EQ(solved({0, 1, 7, 0}, 2).values, (std::vector<float>{1, -1}));
}

TEST(SymmetricKnownAnswers, DiagonalMatrices) {
  EXPECT_EQ(solved({1, 0, 0, 0, 2, 0, 0, 0, 3}, 3), (Result{zelStsOk, {3, 2, 1}, {0, 0, 1, 0, 1, 0, 1, 0, 0}}));
  // Singular: one matrix is sorted, those of an array are not, and it ends there.
  const std::vector<float> singular = {1, 0, 0, 0, 2, 0, 0, 0, 0};
  EXPECT_EQ(solved(singular, 3), (Result{zelStsSingular, {2, 1, 0}, {0, 1, 0, 1, 0, 0, 0, 0, 1}}));
  std::vector<float> three = {4, 0, 0, 0, 5, 0, 0, 0, 6};
  three.insert(three.end(), singular.begin(), singular.end());
  three.insert(three.end(), 9, 1);
  const Result r = solved(three, 3, 3);
  EXPECT_EQ(r.status, zelStsSingular);
  EXPECT_EQ(r.values, (std::vector<float>{6, 5, 4, 1, 2, 0, -7, -7, -7}));
  EXPECT_EQ(std::vector(r.z.begin() + 9, r.z.end()),
            (std::vector<float>{1, 0, 0, 0, 1, 0, 0, 0, 1, -9, -9, -9, -9, -9, -9, -9, -9, -9}));
}

TEST(SymmetricKnownAnswers, NaNsDoNotConverge) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(solved({1, nan, 0, nan, 1, 1, 0, 1, 1}, 3).status, zelStsNoConvergence);
}

}  // namespace
}  // namespace zelm::test
