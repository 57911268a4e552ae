// The general eigenproblem. Values, statuses and real right vectors against the method in plain scalar code, bit for bit; every
// memory layout and every side against one call on one tight matrix; and small cases worked by hand.
#include <algorithm>
#include <cmath>
#include <limits>

#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

/// Schur form by the plain method on H(i, j), rows and columns from 1 on, H the transposed source.
template <class T>
struct Schur {
  int n;
  std::vector<T> h, q, re, im;  // h, q column by column
  const T eps = std::numeric_limits<T>::epsilon(), safe = 2 * std::numeric_limits<T>::min(), safe2 = 2 * safe;

  Schur(const T* a, int order) : n(order), h(a, a + n * n), q(h.size()), re(std::size_t(n), T(-7)), im(re) {
    for (int i = 1; i <= n; ++i) Q(i, i) = 1;
  }
  T& H(int i, int j) { return h[std::size_t((j - 1) * n + i - 1)]; }
  T& Q(int i, int j) { return q[std::size_t((j - 1) * n + i - 1)]; }

  T norm(T a, T b) const {
    const T w = std::max(std::abs(a), std::abs(b)), z = std::min(std::abs(a), std::abs(b));
    const T r = z < safe ? w : T(w * std::sqrt(double(z * z / (w * w) + 1)));
    return r < safe ? safe2 : r;
  }
  /// v = (alpha, x ...) becomes (beta, scaled x ...); returns tau.
  T reflector(std::vector<T>& v) const {
    T sum = 0;
    for (std::size_t i = 1; i < v.size(); ++i) sum += v[i] * v[i];
    if (std::sqrt(sum) < safe) return 0;
    const T alpha = v[0], r = norm(alpha, std::sqrt(sum)), beta = 0 - (alpha < 0 ? -r : r), scale = 1 / (0 - (beta - alpha));
    for (T& x : v) x *= scale;
    v[0] = beta;
    return (beta - alpha) / beta;
  }
  /// Rows or columns from, ..., from + size(v) - 1 times I - tau (1, v1 ...) (1, v1 ...)^T.
  template <class At>
  void reflect(At at, int from, int first, int last, const std::vector<T>& v, T tau, bool scale_sum) {
    for (int j = first; j <= last; ++j) {
      T sum = at(from, j);
      for (int m = 1; m < int(v.size()); ++m) sum += v[m] * at(from + m, j);
      for (int m = 0; m < int(v.size()); ++m) {
        const T x = m == 0 ? T(1) : v[m];
        at(from + m, j) -= scale_sum ? (tau * sum) * x : sum * (tau * x);
      }
    }
  }

  ZelStatus solve() {
    const auto row = [&](int i, int j) -> T& { return H(i, j); };
    const auto column = [&](int i, int j) -> T& { return H(j, i); };
    const auto column_of_q = [&](int i, int j) -> T& { return Q(j, i); };
    for (int k = 1; k <= n - 2; ++k) {
      std::vector<T> v(&H(k + 1, k), &H(k + 1, k) + n - k);
      const T tau = reflector(v);
      if (tau == 0) continue;
      H(k + 1, k) = v[0];
      reflect(column, k + 1, 1, n, v, tau, true);
      reflect(row, k + 1, k + 1, n, v, tau, true);
      reflect(column_of_q, k + 1, 1, n, v, tau, true);
    }
    for (int k = 1; k <= n - 2; ++k)
      for (int i = k + 2; i <= n; ++i) H(i, k) = 0;

    int budget = 30 * n;
    for (int i = n; i > 0;) {
      int l = 1, its = 0;
      while (budget > 0 && its < budget) {
        int k = i;
        while (k > l && !(eps >= std::abs(H(k, k - 1)))) --k;
        l = k;
        if (l > 1) H(l, l - 1) = 0;
        if (l >= i - 1) break;
        T h44 = H(i, i), h33 = H(i - 1, i - 1), h43h34 = H(i, i - 1) * H(i - 1, i);
        if (its == 10 || its == 20) {
          const T s = std::abs(H(i, i - 1)) + std::abs(H(i - 1, i - 2));
          h44 = T(0.75) * s + H(i, i), h33 = h44, h43h34 = T(-0.4375) * s * s;
        } else {
          T disc = ((h33 - h44) * T(0.5)) * ((h33 - h44) * T(0.5)) + h43h34;
          if (disc > 0) {
            disc = std::sqrt(disc);
            const T ave = (h44 + h33) * T(0.5), t = ave + (ave < 0 ? -disc : disc);
            h44 = std::abs(h33) - std::abs(h44) > 0 ? (h44 * h33 - h43h34) / t : t;
            h33 = h44, h43h34 = 0;
          }
        }
        T q1, q2, q3;
        int m = i - 2;
        for (;; --m) {
          const T h11 = H(m, m), h22 = H(m + 1, m + 1), h44s = h44 - h11, h33s = h33 - h11;
          q1 = (h33s * h44s - h43h34) / H(m + 1, m) + H(m, m + 1), q2 = h22 - h11 - h44s - h33s, q3 = H(m + 2, m + 1);
          const auto size = [](T x) { return std::abs(double(x)); };
          const double s = size(q1) + size(q2) + size(q3);
          q1 = T(q1 / s), q2 = T(q2 / s), q3 = T(q3 / s);
          if (m == l) break;
          if (size(q1) * eps * (size(h11) + size(h22) + size(H(m - 1, m - 1))) >= (size(q2) + size(q3)) * size(H(m, m - 1)))
            break;
        }
        for (int r = m; r <= i - 1; ++r) {
          const int nr = std::min(3, i - r + 1);
          std::vector<T> v = {q1, q2, q3};
          if (r > m) v.assign(&H(r, r - 1), &H(r, r - 1) + nr);
          v.resize(std::size_t(nr));
          const T tau = reflector(v);
          if (r > m) {
            H(r, r - 1) = v[0];
            for (int c = 1; c < nr; ++c) H(r + c, r - 1) = 0;
          } else if (m > l) {
            H(m, m - 1) = H(m, m - 1) * (1 - tau);
          }
          if (tau == 0) continue;
          reflect(row, r, r, n, v, tau, false);
          reflect(column, r, 1, std::min(r + 3, i), v, tau, false);
          reflect(column_of_q, r, 1, n, v, tau, false);
        }
        ++its;
      }
      if (l < i - 1) return zelStsNoConvergence;
      if (l == i) re[i - 1] = H(i, i), im[i - 1] = 0;
      else block(i);
      i = l - 1;
      budget -= its;
    }
    return zelStsOk;
  }

  void block(int i) {
    T &a = H(i - 1, i - 1), &b = H(i - 1, i), &c = H(i, i - 1), &d = H(i, i), wi = 0, cs = 1, sn = 0;
    const auto turn_on = [&](T cs1, T sn1) {
      const T t = cs * cs1 - sn * sn1;
      sn = cs * sn1 + sn * cs1, cs = t;
    };
    const T temp = a - d, p = temp * T(0.5), bcmax = std::max(std::abs(b), std::abs(c));
    const T bcmis = std::min(std::abs(b), std::abs(c)) * (std::signbit(b) == std::signbit(c) ? 1 : -1);
    const T scale = std::max(std::abs(p), bcmax), z = (p / scale) * p + (bcmax / scale) * bcmis;
    if (safe >= std::abs(c)) {
    } else if (safe >= std::abs(b)) {
      std::swap(a, d), b = 0 - c, c = 0, cs = 0, sn = 1;
    } else if (safe >= std::abs(temp)) {
      wi = T(std::sqrt(double(std::abs(b))) * std::sqrt(double(std::abs(c))));
    } else if (z >= 4 * eps) {
      const T root = T(std::sqrt(double(scale)) * std::sqrt(double(z))), zz = p + (p > 0 ? root : -root), tau = norm(c, zz);
      a = d + zz, d = d - bcmis * (bcmax / zz), cs = zz / tau, sn = c / tau, b = b - c, c = 0;
    } else {
      const T sigma = b + c, tau = norm(sigma, temp);
      cs = std::sqrt((std::abs(sigma) / tau + 1) * T(0.5)), sn = (0 - p) / (tau * cs);
      if (sigma < 0) sn = -sn;
      const T aa = a * cs + b * sn, bb = b * cs - a * sn, cc = c * cs + d * sn, dd = d * cs - c * sn;
      b = bb * cs + dd * sn, c = cc * cs - aa * sn, a = d = ((dd + aa) * cs + (cc - bb) * sn) * T(0.5);
      const bool same = std::signbit(b) == std::signbit(c), large_b = std::abs(b) > safe, large_c = std::abs(c) > safe;
      const T sab = std::sqrt(std::abs(b)), sac = std::sqrt(std::abs(c)), r = 1 / std::sqrt(std::abs(b + c));
      if (large_b && large_c && !same) {
        wi = T(std::sqrt(double(std::abs(b))) * std::sqrt(double(std::abs(c))));
      } else if (large_b && large_c) {
        const T w = b >= 0 ? p : 0 - p;
        a = a + w, d = d - w, b = b - c, c = 0;
        turn_on(sab * r, sac * r);
      } else {
        if (large_c) turn_on(0, 1);
        b = 0 - c, c = 0;
      }
    }
    re[i - 2] = a, im[i - 2] = wi, re[i - 1] = d, im[i - 1] = 0 - wi;
    const auto turn = [&](T& x, T& y) {
      const T was = x;
      x = cs * was + sn * y, y = cs * y - sn * was;
    };
    for (int j = i + 1; j <= n; ++j) turn(H(i - 1, j), H(i, j));
    for (int r = 1; r < i - 1; ++r) turn(H(r, i - 1), H(r, i));
    for (int r = 1; r <= n; ++r) turn(Q(r, i - 1), Q(r, i));
  }

  /// The right vector of a real value, or an empty one where a 2 x 2 system is too small.
  std::vector<T> vector(int ki) {
    const auto t = [&](int i, int j) { return H(i + 1, j + 1); };
    const T smlnum = safe * (n / eps), bignum = (1 - eps) / smlnum, big2 = 1 / safe2, wr = re[ki];
    const T smini = std::max(std::max(std::abs(wr) * eps, smlnum), safe2);
    const auto colnorm = [&](int j) {
      T sum = 0;
      for (int i = 0; i < j; ++i) sum += std::abs(t(i, j));
      return sum;
    };
    std::vector<T> work(std::size_t(ki + 1), 1);
    for (int k = 0; k < ki; ++k) work[k] = 0 - t(k, ki);
    const auto rescale = [&](T scale) {
      if (std::abs(scale - 1) > safe)
        for (T& x : work) x *= scale;
    };
    for (int j = ki - 1; j >= 0; --j) {
      if (j == 0 || !(std::abs(t(j, j - 1)) > safe)) {
        T c = t(j, j) - wr, scale = 1;
        if (smini > std::abs(c)) c = smini;
        const T cn = std::abs(c), bn = std::abs(work[j]);
        if (1 > cn && bn > 1 && bn > cn * big2) scale = 1 / bn;
        T x = (work[j] * scale) / c;
        const T xn = std::abs(x);
        if (xn > 1 && colnorm(j) > bignum / xn) x = x / xn, scale = scale / xn;
        rescale(scale);
        work[j] = x;
        for (int k = 0; k < j; ++k) work[k] -= x * t(k, j);
        continue;
      }
      const T c[] = {t(j - 1, j - 1) - wr, t(j, j - 1), t(j - 1, j), t(j, j) - wr};
      const int m = int(std::max_element(c, c + 4, [](T x, T y) { return std::abs(x) < std::abs(y); }) - c);
      const T cmax = std::abs(c[m]);
      if (smini > cmax) return {};
      // Row m of the table: m ^ 0, m ^ 1, m ^ 2, m ^ 3.
      const T u11r = 1 / c[m], l21 = c[m ^ 1] * u11r, u12 = c[m ^ 2];
      T u22 = c[m ^ 3] - u12 * l21, br1 = work[j - 1], br2 = work[j], scale = 1;
      if (smini > std::abs(u22)) u22 = smini;
      if (m == 1 || m == 3) std::swap(br1, br2);
      br2 = br2 - l21 * br1;
      const T bbnd = std::max(std::abs(br1 * (u22 * u11r)), std::abs(br2));
      if (bbnd > 1 && 1 > std::abs(u22) && bbnd > std::abs(u22) * big2) scale = 1 / bbnd;
      T x2 = (br2 * scale) / u22, x1 = (br1 * scale - u12 * x2) * u11r, xn = std::max(std::abs(x1), std::abs(x2));
      if (m >= 2) std::swap(x1, x2);
      if (xn > 1 && cmax > 1 && xn > big2 / cmax) {
        const T s = cmax / big2;
        x1 *= s, x2 *= s, xn *= s, scale *= s;
      }
      if (xn > 1 && std::max(colnorm(j - 1), colnorm(j)) > bignum / xn) x1 /= xn, x2 /= xn, scale /= xn;
      rescale(scale);
      work[j - 1] = x1, work[j] = x2;
      for (int k = 0; k < j - 1; ++k) work[k] = work[k] - x1 * t(k, j - 1) - x2 * t(k, j);
      --j;
    }
    std::vector<T> x(std::size_t(n), 0);
    T emax = 0, sum = 0;
    for (int i = 0; i < n; ++i) {
      x[i] = work[ki] * Q(i + 1, ki + 1);
      for (int k = 0; k < ki; ++k) x[i] += work[k] * Q(i + 1, k + 1);
      emax = std::max(emax, std::abs(x[i]));
    }
    for (T& e : x) e *= 1 / emax;
    for (const T e : x) sum += e * e;
    for (T& e : x) e *= 1 / std::sqrt(sum);
    return x;
  }
};

/// Well-behaved, with equal or vanishing elements, triangular, in blocks, graded, or with a NaN.
template <class T>
std::vector<T> assorted(int n, Random& random) {
  std::vector<T> a = random.uniforms<T>(n * n);
  const int kind = random.below(14), row = random.below(n), column = random.below(n);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) {
      T& x = a[i * n + j];
      if (kind == 0) x = T(random.below(5) - 2);
      if (kind == 1 && i > j) x = 0;
      if (kind == 2 && i < j) x = 0;
      if (kind == 3 && random.below(2)) x = 0;
      if (kind == 4 && i / 2 > j / 2) x = 0;
      if (kind == 5) x = std::ldexp(x, i - j);
      if (kind == 6) x = T(i == (j + 1) % n);
      if (kind == 7 && i == row && j == column && random.below(3) == 0) x = std::numeric_limits<T>::quiet_NaN();
      if (kind == 8 && i < j) x = a[j * n + i];
      if (kind == 9) x = std::ldexp(x, sizeof(T) == 4 ? -26 : -54);
      if (kind == 10) x = std::ldexp(x, i % 2 ? -20 : 20);
      if (kind == 11 && j == (i + 1) % n) x += 40;  // far from normal
    }
  return a;
}

struct General : FunctionTest {
  const bool array = f.array();
  const std::string_view operation = f.row->operation;

  template <class T>
  Data<T> data(std::vector<T> matrices, int n, int count) const {
    Data<T> d;
    d.operands = {std::move(matrices)};
    while (d.operands.size() < f.operands.size()) d.operands.emplace_back(std::size_t(n * n * count), T(-99));
    for (const char* name : {"pDstValuesRe", "pDstValuesIm"}) d.arrays[name].assign(std::size_t(n * count), T(-7));
    d.arrays["pBuffer"].assign(std::size_t(n * ((operation == "EigenValues" ? 1 : 3) * n + 5)), T(-55));
    return d;
  }

  /// The family's function for one matrix, on tight memory.
  template <class T>
  ZelStatus one(Data<T>& d, int n, int k) const {
    const std::string name = "zelm" + std::string(operation) + (sizeof(T) == 4 ? "_m_32f" : "_m_64f");
    std::vector<T> buffer(std::size_t(n * (3 * n + 5)));
    std::vector<Value> v;
    const auto add_pointer = [&](T* p) { v.emplace_back().p = p; };
    const auto add_number = [&](int i) { v.emplace_back().i = i; };
    for (auto& operand : d.operands) {
      add_pointer(&operand[std::size_t(k * n * n)]);
      add_number(n * int(sizeof(T)));
      add_number(int(sizeof(T)));
    }
    for (const char* array_name : {"pDstValuesRe", "pDstValuesIm"}) add_pointer(&d.arrays[array_name][std::size_t(k * n)]);
    add_number(n);
    add_pointer(buffer.data());
    return find(name).call(v.data());
  }

  template <class T>
  bool vectors_found(const Data<T>& d, std::size_t k, std::size_t n) const {
    return d.operands.size() == 1 || d.operands[1][k * n * n] != T(-99);
  }
  template <class T>
  void check(int n, const std::vector<T>& matrices, const Memory& memory, int in_place = -1,
             const std::vector<int>& teams = {}) const {
    const int count = int(matrices.size()) / (n * n);
    const auto model = [&](const Road&, Data<T>& d, int first, int stretch) {
      for (int k = first; k < first + stretch; ++k) {
        Data<T> apart = d;  // one() must not see its source change
        const ZelStatus status = one(apart, n, k);
        d.arrays = apart.arrays;
        for (std::size_t o = 1; o < d.operands.size(); ++o) d.operands[o] = apart.operands[o];
        if (status != zelStsOk || !vectors_found(d, std::size_t(k), std::size_t(n))) return status;
      }
      return ZelStatus(zelStsOk);
    };
    expect_model(f, {{{"widthHeight", n}, {"count", count}}}, memory, data(matrices, n, count), model, in_place, teams);
  }
  template <class T>
  std::vector<T> matrices(int n, int count, Random& random) const {
    std::vector<T> all;
    for (int k = 0; k < count; ++k) {
      const std::vector<T> a = assorted<T>(n, random);
      all.insert(all.end(), a.begin(), a.end());
    }
    return all;
  }
};

TEST_P(General, EveryOrderInEveryMemory) {
  typed([&](auto t) {
    Random random(1);
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 12})
      for (const Memory& memory : memories())
        for (int turn = 0; turn < 3 && !HasFailure(); ++turn) {
          const auto all = matrices<decltype(t)>(n, array ? 1 + random.below(9) : 1, random);
          check(n, all, memory);
          if (f.operands.size() == 2 && turn == 0) check(n, all, memory, 0);
        }
  });
}

TEST_P(General, Teams) {
  if (!array) return;
  typed([&](auto t) {
    Random random(2);
    for (const int n : {2, 3, 6})
      for (int count = 1; count <= 17; count += 2)
        check(n, matrices<decltype(t)>(n, count, random), memories()[std::size_t(random.next()) % memories().size()], -1,
              {1, 2, 3, 5});
  });
}

// Values and statuses of every family, and what a failure leaves in them; real vectors of the right side.
TEST_P(General, PlainMethod) {
  if (array || f.layout == "P") return;
  typed([&](auto t) {
    using T = decltype(t);
    Random random(3);
    const bool has_right = operation == "EigenValuesVectors" || operation == "EigenValuesVectorsRight";
    int real_vectors = 0, failures = 0;
    for (int turn = 0; turn < 4000 && !HasFailure(); ++turn) {
      const int n = turn % 9 + 1;
      const std::vector<T> a = assorted<T>(n, random);
      Data<T> d = data(a, n, 1);
      Schur<T> s(a.data(), n);
      const ZelStatus expected = s.solve(), status = one(d, n, 0);
      failures += expected != zelStsOk;
      // Vectors of NaNs have no largest element, and a 2 x 2 system may be too small.
      const bool nan = std::any_of(a.begin(), a.end(), [](T x) { return x != x; });
      if (status != zelStsFailure && !(nan && status == zelStsNoConvergence)) EXPECT_EQ(status, expected) << "turn " << turn;
      Data<T> want = d;
      want.arrays["pDstValuesRe"] = s.re;
      want.arrays["pDstValuesIm"] = s.im;
      if (expected != zelStsOk || !vectors_found(d, 0, std::size_t(n))) {
        for (std::size_t o = 1; o < d.operands.size(); ++o) want.operands[o].assign(a.size(), T(-99));
      } else if (has_right) {
        for (int j = 0; j < n; ++j) {
          if (s.im[j] != 0) continue;
          const std::vector<T> x = s.vector(j);
          ASSERT_EQ(int(x.size()), n);
          for (int i = 0; i < n; ++i) want.operands[1][i * n + j] = x[i];
          ++real_vectors;
        }
      }
      EXPECT_EQ(difference(d, want, false), "") << "order " << n << ", turn " << turn;
    }
    EXPECT_GT(failures, 10);
    EXPECT_TRUE(!has_right || real_vectors > 4000);
  });
}

std::vector<const Function*> all_families() {
  std::vector<const Function*> all;
  for (const char* o : {"EigenValues", "EigenValuesVectors", "EigenValuesVectorsLeft", "EigenValuesVectorsRight"})
    for (const Function* f : family(o, "")) all.push_back(f);
  return all;
}
INSTANTIATE_TEST_SUITE_P(All, General, testing::ValuesIn(all_families()), FunctionTest::name);

// Small cases worked by hand.

struct Result {
  ZelStatus status;
  std::vector<float> re, im, x, u;
};
Result solved(const std::vector<float>& a, int n, int count = 1) {
  const auto n_of = [&](int elements) { return std::vector<float>(std::size_t(elements), -9); };
  Result r{zelStsOk, n_of(n * count), n_of(n * count), n_of(n * n * count), n_of(n * n * count)};
  std::vector<float> buffer = n_of(n * (3 * n + 5));
  const int row = n * 4, matrix = n * row;
  r.status = zelmEigenValuesVectors_ma_32f(a.data(), matrix, row, 4, r.x.data(), matrix, row, 4, r.u.data(), matrix, row, 4,
                                           r.re.data(), r.im.data(), n, count, buffer.data());
  return r;
}

TEST(GeneralKnownAnswers, ValuesStayWhereTheyAre) {
  const Result r = solved({1, 0, 0, 0, 2, 0, 0, 0, 3}, 3);
  EXPECT_EQ(r.re, (std::vector<float>{1, 2, 3}));
  EXPECT_EQ(r.im, (std::vector<float>{0, 0, 0}));
  EXPECT_EQ(r.x, (std::vector<float>{1, 0, 0, 0, 1, 0, 0, 0, 1}));
  EXPECT_EQ(r.u, r.x);
  EXPECT_EQ(solved({1, 0, 0, 5, 2, 0, 6, 7, 3}, 3).re, (std::vector<float>{1, 2, 3}));
}

TEST(GeneralKnownAnswers, PairsOfOrderTwo) {
  Result r = solved({0, -1, 1, 0}, 2);  // a rotation
  EXPECT_EQ(r.re, (std::vector<float>{0, 0}));
  EXPECT_EQ(r.im, (std::vector<float>{1, -1}));
  EXPECT_EQ(r.x[1] * r.x[3], 0) << "the largest element is real";
  r = solved({1, 2, 3, 1}, 2);  // equal diagonal elements: complex, whatever the signs
  EXPECT_EQ(r.re, (std::vector<float>{1, 1}));
  EXPECT_EQ(r.im, (std::vector<float>{std::sqrt(6.f), -std::sqrt(6.f)}));
}

TEST(GeneralKnownAnswers, TinyMatricesAreDiagonal) {
  const Result r = solved({3e-9f, 1e-9f, 1e-9f, 1e-9f, 2e-9f, 1e-9f, 1e-9f, 1e-9f, 1e-9f}, 3);
  EXPECT_EQ(r.status, zelStsOk);
  EXPECT_EQ(r.re[0], 3e-9f);
}

TEST(GeneralKnownAnswers, BufferSizes) {
  int size = 0;
  EXPECT_EQ(zelmEigenValuesGetBufSize_32f(3, &size), zelStsOk);
  EXPECT_EQ(size, 96);
  zelmEigenValuesGetBufSize_64f(3, &size);
  EXPECT_EQ(size, 192);
  zelmEigenValuesVectorsGetBufSize_32f(3, &size);
  EXPECT_EQ(size, 168);
  zelmEigenValuesVectorsGetBufSize_64f(4, &size);
  EXPECT_EQ(size, 544);
  EXPECT_EQ(zelmEigenValuesGetBufSize_32f(0, &size), zelStsBadSize);
  EXPECT_EQ(zelmEigenValuesGetBufSize_32f(0, nullptr), zelStsNullPointer);
}

}  // namespace
}  // namespace zelm::test
