// general_steps.hpp: the real Schur form H = Q T Q^T of a general matrix: Householder reduction to Hessenberg form, Francis'
// double-shift QR with deflation, and a closing treatment of each 2 x 2 block (Golub and Van Loan, Matrix Computations, 4th ed.,
// sections 7.4.3 and 7.5; the shifts and the start of a sweep are those of LAPACK 3.0's xHSEQR for small matrices, the blocks
// resemble its xLANV2).
//
// The limits of deflation and of the blocks are absolute: matrices are best scaled to about 1, and nothing is balanced.
#pragma once
#include <algorithm>
#include <cmath>
#include <limits>

#include "simd/many.hpp"
#include "zelm_types.h"

namespace zelm::eigen::general {

template <class T>
struct Limits {
  static constexpr T epsilon = std::numeric_limits<T>::epsilon();
  static constexpr T safe = 2 * std::numeric_limits<T>::min();  // what is below counts as zero where its size is divided by
  static constexpr T safe2 = 2 * safe;
};

/// A matrix column by column without a gap, at any address.
template <class T>
struct Columns {
  T* first;
  int n;
  ZELM_INLINE T get(int i, int j) const { return load(first + std::ptrdiff_t(j) * n + i); }
  ZELM_INLINE void put(int i, int j, T x) const { store(first + std::ptrdiff_t(j) * n + i, x); }
};

/// sqrt(a^2 + b^2) without a large square; never tiny.
template <class T>
ZELM_INLINE T length(T a, T b) {
  const T w = std::max(std::fabs(a), std::fabs(b)), z = std::min(std::fabs(a), std::fabs(b));
  const T norm = z < Limits<T>::safe ? w : w * root(z * z / (w * w) + 1);
  return norm < Limits<T>::safe ? Limits<T>::safe2 : norm;
}

/// I - tau v v^T with v = (1, x / (alpha - beta)) turns (alpha, x) into (beta, 0), xnorm being the length of x.
template <class T>
struct Reflector {
  T beta, tau, scale;
  ZELM_INLINE Reflector(T alpha, T xnorm) {
    const T norm = length(alpha, xnorm);
    beta = 0 - (alpha < 0 ? -norm : norm);
    tau = (beta - alpha) / beta;
    scale = 1 / (0 - (beta - alpha));
  }
};

/// Columns from + 1, ..., n - 1 of m, times I - tau v v^T from the right. v stands in v(from + 2), ..., behind a leading 1; w is
/// scratch.
template <class T, class V>
ZELM_INLINE void reflect_columns(Columns<T> m, int from, int n, T tau, V v, T* w) {
  for (int i = 0; i < n; ++i) store(w + i, m.get(i, from + 1));
  for (int j = from + 2; j < n; ++j) {
    const T vj = v(j);
    for (int i = 0; i < n; ++i) store(w + i, load(w + i) + vj * m.get(i, j));
  }
  for (int i = 0; i < n; ++i) {
    store(w + i, tau * load(w + i));
    m.put(i, from + 1, m.get(i, from + 1) - load(w + i));
  }
  for (int j = from + 2; j < n; ++j) {
    const T vj = v(j);
    for (int i = 0; i < n; ++i) m.put(i, j, m.get(i, j) - load(w + i) * vj);
  }
}

/// To Hessenberg form; q is multiplied by the reflections.
template <bool vectors, class T>
ZELM_INLINE void reduce(Columns<T> h, Columns<T> q, int n, T* w) {
  for (int k = 0; k < n - 2; ++k) {
    T squares = 0;
    for (int i = k + 2; i < n; ++i) squares = squares + h.get(i, k) * h.get(i, k);
    const T xnorm = root(squares);
    if (xnorm < Limits<T>::safe) continue;
    const Reflector<T> r(h.get(k + 1, k), xnorm);
    for (int i = k + 2; i < n; ++i) h.put(i, k, h.get(i, k) * r.scale);
    h.put(k + 1, k, r.beta);
    const auto v = [&](int i) { return h.get(i, k); };
    reflect_columns(h, k, n, r.tau, v, w);
    for (int j = k + 1; j < n; ++j) {
      T s = h.get(k + 1, j);
      for (int i = k + 2; i < n; ++i) s = s + v(i) * h.get(i, j);
      s = r.tau * s;
      h.put(k + 1, j, h.get(k + 1, j) - s);
      for (int i = k + 2; i < n; ++i) h.put(i, j, h.get(i, j) - s * v(i));
    }
    if constexpr (vectors) reflect_columns(q, k, n, r.tau, v, w);
  }
  for (int k = 0; k < n - 2; ++k)
    for (int i = k + 2; i < n; ++i) h.put(i, k, 0);
}

/// A 2 x 2 block, its eigenvalues a + i wi and d - i wi, and the rotation that turned it.
template <class T>
struct Pair {
  T a, b, c, d, wi = 0, cs = 1, sn = 0;

  /// Triangular where the eigenvalues are real, with equal diagonal elements where they are not: so it is meant. Equal diagonal
  /// elements count as a complex pair without a look at the signs of b and c.
  ZELM_INLINE void standardise() {
    constexpr T safe = Limits<T>::safe;
    if (safe >= std::fabs(c)) return;
    if (safe >= std::fabs(b)) {
      std::swap(a, d);
      b = 0 - c;
      c = 0;
      cs = 0;
      sn = 1;
      return;
    }
    const T temp = a - d;
    if (safe >= std::fabs(temp)) {
      wi = root(std::fabs(b)) * root(std::fabs(c));
      return;
    }
    const bool opposed = (b < 0) != (c < 0);
    const T p = temp * T(0.5), bcmax = std::max(std::fabs(b), std::fabs(c));
    const T smaller = std::min(std::fabs(b), std::fabs(c)), bcmis = opposed ? -smaller : smaller;
    const T scale = std::max(std::fabs(p), bcmax), z = (p / scale) * p + (bcmax / scale) * bcmis;
    if (z >= 4 * Limits<T>::epsilon) {
      const T radius = root(scale) * root(z), zz = p > 0 ? p + radius : p - radius;
      a = d + zz;
      d = d - bcmis * (bcmax / zz);
      const T tau = length(c, zz);
      cs = zz / tau;
      sn = c / tau;
      b = b - c;
      c = 0;
      return;
    }
    turn_to_equal_diagonal(temp, p);
  }

 private:
  ZELM_INLINE void turn_to_equal_diagonal(T temp, T p) {
    constexpr T safe = Limits<T>::safe;
    const T sigma = b + c, tau = length(sigma, temp);
    cs = root((std::fabs(sigma) / tau + 1) * T(0.5));
    sn = (0 - p) / (tau * cs);
    if (sigma < 0) sn = -sn;
    const T aa = a * cs + b * sn, bb = b * cs - a * sn, cc = c * cs + d * sn, dd = d * cs - c * sn;
    b = bb * cs + dd * sn;
    c = cc * cs - aa * sn;
    a = d = ((dd + aa) * cs + (cc - bb) * sn) * T(0.5);
    const bool real_c = std::fabs(c) > safe, real_b = std::fabs(b) > safe;
    if (real_c && real_b && (b < 0) != (c < 0)) {
      wi = root(std::fabs(b)) * root(std::fabs(c));
    } else if (real_c && real_b) {
      const T q = b < 0 ? 0 - p : p, sab = root(std::fabs(b)), sac = root(std::fabs(c)), r = 1 / root(std::fabs(b + c));
      a = a + q;
      d = d - q;
      b = b - c;
      c = 0;
      rotate_on(sab * r, sac * r);
    } else {
      b = 0 - c;
      if (real_c) rotate_on(0, 1);
      c = 0;
    }
  }
  ZELM_INLINE void rotate_on(T cs1, T sn1) {
    const T turned = cs * cs1 - sn * sn1;
    sn = cs * sn1 + sn * cs1;
    cs = turned;
  }
};

/// x, y = cs x + sn y, cs y - sn x for elements 0, ..., n - 1 of two columns or rows.
template <class Get, class T>
ZELM_INLINE void rotate(int n, T cs, T sn, Get at) {
  for (int i = 0; i < n; ++i) {
    const auto [to_x, to_y] = at(i);
    const T x = load(to_x), y = load(to_y);
    store(to_x, cs * x + sn * y);
    store(to_y, cs * y - sn * x);
  }
}

/// The Schur form of a Hessenberg matrix, or, without `vectors`, no more of it than its eigenvalues take.
template <bool vectors, class T>
struct Iteration {
  Columns<T> h, q;
  int n;
  T *re, *im;

  ZELM_INLINE ZelStatus run() {
    // Deflation makes the block smaller from its end: what one block takes of the budget the next ones do not have.
    int budget = 30 * n;
    for (int i = n - 1; i >= 0;) {
      int l = 0, its = 0;
      for (; its < budget; ++its) {
        int k = i;
        while (k > l && !(Limits<T>::epsilon >= std::fabs(h.get(k, k - 1)))) --k;
        l = k;
        if (l > 0) h.put(l, l - 1, 0);
        if (l >= i - 1) break;
        sweep(l, i, its);
      }
      if (l < i - 1) return zelStsNoConvergence;
      if (l == i) {
        store(re + i, h.get(i, i));
        store(im + i, T(0));
      } else {
        close_pair(i);
      }
      i = l - 1;
      budget -= its;
    }
    return zelStsOk;
  }

 private:
  ZELM_INLINE void close_pair(int i) {
    Pair<T> pair = {h.get(i - 1, i - 1), h.get(i - 1, i), h.get(i, i - 1), h.get(i, i)};
    pair.standardise();
    h.put(i - 1, i - 1, pair.a);
    h.put(i - 1, i, pair.b);
    h.put(i, i - 1, pair.c);
    h.put(i, i, pair.d);
    store(re + i - 1, pair.a);
    store(im + i - 1, pair.wi);
    store(re + i, pair.d);
    store(im + i, 0 - pair.wi);
    if constexpr (vectors) {
      struct Two {
        T *x, *y;
      };
      const auto columns = [&](Columns<T> m) {
        return [=](int r) { return Two{m.first + (i - 1) * m.n + r, m.first + i * m.n + r}; };
      };
      rotate(n - 1 - i, pair.cs, pair.sn, [&](int j) {
        T* const x = h.first + (i + 1 + j) * n + i - 1;
        return Two{x, x + 1};
      });
      rotate(i - 1, pair.cs, pair.sn, columns(h));
      rotate(n, pair.cs, pair.sn, columns(q));
    }
  }

  struct Shifts {
    T h44, h33, h43h34;
  };

  ZELM_INLINE Shifts shifts(int i, int its) const {
    if (its == 10 || its == 20) {
      const T s = std::fabs(h.get(i, i - 1)) + std::fabs(h.get(i - 1, i - 2)), h44 = T(0.75) * s + h.get(i, i);
      return {h44, h44, T(-0.4375) * s * s};
    }
    const T h44 = h.get(i, i), h33 = h.get(i - 1, i - 1), h43h34 = h.get(i, i - 1) * h.get(i - 1, i);
    const T half = (h33 - h44) * T(0.5), disc = half * half + h43h34;
    if (!(disc > 0)) return {h44, h33, h43h34};
    // Two real eigenvalues: the one closer to h44, twice.
    const T distance = root(disc), ave = (h44 + h33) * T(0.5), t = ave + (ave < 0 ? -distance : distance);
    const T shift = std::fabs(h33) - std::fabs(h44) > 0 ? (h44 * h33 - h43h34) / t : t;
    return {shift, shift, 0};
  }

  /// One double-shift sweep over rows l, ..., i.
  ZELM_INLINE void sweep(int l, int i, int its) {
    const Shifts s = shifts(i, its);
    T v1, v2, v3;
    int m = i - 2;
    for (;; --m) {
      const T h11 = h.get(m, m), h22 = h.get(m + 1, m + 1), h44s = s.h44 - h11, h33s = s.h33 - h11;
      v1 = (h33s * h44s - s.h43h34) / h.get(m + 1, m) + h.get(m, m + 1);
      v2 = h22 - h11 - h44s - h33s;
      v3 = h.get(m + 2, m + 1);
      const double sum = size(v1) + size(v2) + size(v3);
      v1 = T(v1 / sum);
      v2 = T(v2 / sum);
      v3 = T(v3 / sum);
      if (m == l) break;
      if (size(v1) * Limits<T>::epsilon * (size(h11) + size(h22) + size(h.get(m - 1, m - 1))) >=
          (size(v2) + size(v3)) * size(h.get(m, m - 1)))
        break;
    }
    for (int k = m; k < i; ++k) {
      const bool three = k < i - 1;
      if (k > m) {
        v1 = h.get(k, k - 1);
        v2 = h.get(k + 1, k - 1);
        v3 = three ? h.get(k + 2, k - 1) : T(0);
      }
      if (!three) v3 = 0;
      const T xnorm = root(three ? v2 * v2 + v3 * v3 : v2 * v2);
      const bool none = xnorm < Limits<T>::safe;
      T tau = 0;
      if (!none) {
        const Reflector<T> r(v1, xnorm);
        v1 = r.beta;
        tau = r.tau;
        v2 = v2 * r.scale;
        v3 = v3 * r.scale;
      }
      if (k > m) {
        h.put(k, k - 1, v1);
        h.put(k + 1, k - 1, 0);
        if (three) h.put(k + 2, k - 1, 0);
      } else if (m > l) {
        h.put(m, m - 1, h.get(m, m - 1) * (1 - tau));
      }
      if (none) continue;
      // Below row k + 3 the columns are still zero.
      const int first_row = vectors ? 0 : l, rows = std::min(k + 3, i) + 1, columns = vectors ? n : i + 1;
      if (three) reflect<3>(k, columns, first_row, rows, tau, v2, v3);
      else reflect<2>(k, columns, first_row, rows, tau, v2, v3);
    }
  }

  /// What is formed in double whatever T is.
  static ZELM_INLINE double size(T x) { return std::fabs(double(x)); }

  template <int size>
  ZELM_INLINE void reflect(int k, int columns, int first_row, int rows, T tau, T v2, T v3) {
    const T t2 = tau * v2, t3 = tau * v3;
    for (int j = k; j < columns; ++j) {
      T* const x = h.first + std::ptrdiff_t(j) * n + k;
      turn<size>(x, x + 1, x + 2, tau, v2, v3, t2, t3);
    }
    const auto right = [&](Columns<T> m, int from, int to) ZELM_INLINE_LAMBDA {
      T *const x = m.first + std::ptrdiff_t(k) * n, *const y = x + n, *const z = y + n;
      for (int r = from; r < to; ++r) turn<size>(x + r, y + r, z + r, tau, v2, v3, t2, t3);
    };
    right(h, first_row, rows);
    if constexpr (vectors) right(q, 0, n);
  }

  template <int size>
  static ZELM_INLINE void turn(T* x, T* y, T* z, T tau, T v2, T v3, T t2, T t3) {
    T sum = load(x) + v2 * load(y);
    if constexpr (size == 3) sum = sum + v3 * load(z);
    store(x, load(x) - sum * tau);
    store(y, load(y) - sum * t2);
    if constexpr (size == 3) store(z, load(z) - sum * t3);
  }
};

}  // namespace zelm::eigen::general
