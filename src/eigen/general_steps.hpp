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

#include "eigen/shared.hpp"
#include "zelm_types.h"

namespace zelm::eigen::general {

template <class T>
struct Limits {
  static constexpr T epsilon = std::numeric_limits<T>::epsilon();
  static constexpr T safe = 2 * std::numeric_limits<T>::min();  // what is below counts as zero where its size is divided by
  static constexpr T safe2 = 2 * safe;
};

/// A matrix column by column without a gap, at any address.
template <class S>
struct Columns {
  S* first;
  int n;
  ZELM_INLINE S* at(int i, int j) const { return first + std::ptrdiff_t(j) * n + i; }
  ZELM_INLINE S get(int i, int j) const { return load(at(i, j)); }
  ZELM_INLINE void put(int i, int j, const S& x) const { store(at(i, j), x); }
};

/// sqrt(a^2 + b^2) without a large square; never tiny. The root and its product are taken in double and rounded once.
template <class S>
ZELM_INLINE S length(const S& a, const S& b) {
  using T = ElementOf<S>;
  using Wide = typename Wider<S>::Type;
  const S safe = Limits<T>::safe, w = larger(magnitude(a), magnitude(b)), z = smaller(magnitude(a), magnitude(b));
  const S norm = select(exceeds(safe, z), w, S(Wide(w) * root(Wide(z * z / (w * w) + S(T(1))))));
  return select(exceeds(safe, norm), S(Limits<T>::safe2), norm);
}

/// I - tau v v^T with v = (1, scale x) turns (alpha, x) into (beta, 0), xnorm being the length of x.
template <class S>
struct Reflector {
  S beta, tau, scale;
  ZELM_INLINE Reflector(const S& alpha, const S& xnorm) {
    using T = ElementOf<S>;
    const S norm = length(alpha, xnorm), zero = T(0);
    beta = select(exceeds(zero, alpha), norm, zero - norm);
    tau = (beta - alpha) / beta;
    scale = S(T(1)) / (zero - (beta - alpha));
  }
};

/// Columns from + 1, ..., n - 1 of m, times I - tau v v^T from the right, but for the lanes that are skipped. v stands in
/// v(from + 2), ..., behind a leading 1; w is scratch.
template <class S, class V>
ZELM_INLINE void reflect_columns(Columns<S> m, int from, int n, const S& tau, V v, S* w, const MaskOf<S>& skipped) {
  for (int i = 0; i < n; ++i) store(w + i, m.get(i, from + 1));
  for (int j = from + 2; j < n; ++j) {
    const S vj = v(j);
    for (int i = 0; i < n; ++i) store(w + i, load(w + i) + vj * m.get(i, j));
  }
  for (int i = 0; i < n; ++i) {
    store(w + i, tau * load(w + i));
    m.put(i, from + 1, m.get(i, from + 1) - unless(skipped, load(w + i)));
  }
  for (int j = from + 2; j < n; ++j) {
    const S vj = v(j);
    for (int i = 0; i < n; ++i) m.put(i, j, m.get(i, j) - unless(skipped, load(w + i) * vj));
  }
}

/// To Hessenberg form; q is multiplied by the reflections.
template <bool vectors, class S>
ZELM_INLINE void reduce(Columns<S> h, Columns<S> q, int n, S* w) {
  using T = ElementOf<S>;
  const S zero = T(0);
  for (int k = 0; k < n - 2; ++k) {
    S squares = zero;
    for (int i = k + 2; i < n; ++i) squares = squares + h.get(i, k) * h.get(i, k);
    const S xnorm = root(squares), alpha = h.get(k + 1, k);
    const MaskOf<S> skipped = exceeds(S(Limits<T>::safe), xnorm);
    if (all(skipped)) continue;
    const Reflector<S> r(alpha, xnorm);
    for (int i = k + 2; i < n; ++i) h.put(i, k, h.get(i, k) * r.scale);
    h.put(k + 1, k, select(skipped, alpha, r.beta));
    const auto v = [&](int i) ZELM_INLINE_LAMBDA { return h.get(i, k); };
    reflect_columns(h, k, n, r.tau, v, w, skipped);
    for (int j = k + 1; j < n; ++j) {
      S s = h.get(k + 1, j);
      for (int i = k + 2; i < n; ++i) s = s + v(i) * h.get(i, j);
      s = r.tau * s;
      h.put(k + 1, j, h.get(k + 1, j) - unless(skipped, s));
      for (int i = k + 2; i < n; ++i) h.put(i, j, h.get(i, j) - unless(skipped, s * v(i)));
    }
    if constexpr (vectors) reflect_columns(q, k, n, r.tau, v, w, skipped);
  }
  for (int k = 0; k < n - 2; ++k)
    for (int i = k + 2; i < n; ++i) h.put(i, k, zero);
}

/// A 2 x 2 block, its eigenvalues a + i wi and d - i wi, and the rotation that turned it. Roots are taken in double, and what is
/// made of them in one step is rounded once: the eigenvalues of ((1, 2), (3, 1)) are 1 +- i sqrt(6) to the last bit.
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
      wi = mean(std::fabs(b), std::fabs(c));
      return;
    }
    const bool opposed = (b < 0) != (c < 0);
    const T p = temp * T(0.5), bcmax = std::max(std::fabs(b), std::fabs(c));
    const T smaller = std::min(std::fabs(b), std::fabs(c)), bcmis = opposed ? -smaller : smaller;
    const T scale = std::max(std::fabs(p), bcmax), z = (p / scale) * p + (bcmax / scale) * bcmis;
    if (z >= 4 * Limits<T>::epsilon) {
      const T radius = mean(scale, z), zz = p > 0 ? p + radius : p - radius;
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
  /// sqrt(x y) where the product might overflow.
  static ZELM_INLINE T mean(T x, T y) { return T(root(double(x)) * root(double(y))); }
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
      wi = mean(std::fabs(b), std::fabs(c));
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

/// x, y = cs x + sn y, cs y - sn x.
template <class S>
ZELM_INLINE void rotate(S* to_x, S* to_y, const S& cs, const S& sn, const MaskOf<S>& where) {
  const S x = load(to_x), y = load(to_y);
  store(to_x, select(where, cs * x + sn * y, x));
  store(to_y, select(where, cs * y - sn * x, y));
}

/// The Schur form of a Hessenberg matrix, or, without `vectors`, no more of it than its eigenvalues take. S: a number, or Many,
/// whose lanes share the rows that are being worked on and wait for each other where one has less to do.
template <bool vectors, class S, int order>
struct Iteration {
  using T = ElementOf<S>;
  using M = MaskOf<S>;
  Columns<S> h, q;
  int n;
  S *re, *im;

  ZELM_INLINE ZelStatus run() {
    // Deflation makes the block smaller from its end: what one block takes of the budget the next ones do not have. Of many
    // matrices the slowest counts, so that they may fail together where none would alone.
    int budget = 30 * n;
    M taken = everywhere<S>(false);  // by the pair above
    for (int i = n - 1; i >= 0; --i) {
      M live = but_not(everywhere<S>(true), taken), single = everywhere<S>(false), pair = single;
      for (int its = 0; any(live); ++its, --budget) {
        if (its > 0 && budget == 0) return zelStsNoConvergence;
        Starts<S, order> low;
        M going = live;
        int first = i;
        for (; first > 0; --first) {
          const S below = h.get(first, first - 1);
          const M hit = both(going, reaches(S(Limits<T>::epsilon), magnitude(below)));
          low.note(first, hit);
          if (!any(hit)) continue;
          h.put(first, first - 1, select(hit, S(T(0)), below));
          if (first == i) single = either(single, hit);
          if (first == i - 1) pair = either(pair, hit);
          going = but_not(going, hit);
          if (!any(going)) break;
        }
        if (first == 0) {
          low.note(0, going);
          if (i == 0) single = either(single, going);
          if (i == 1) pair = either(pair, going);
        }
        live = but_not(live, either(single, pair));
        if (!any(live)) break;
        sweep(first, i, its, live, low);
      }
      if (any(single)) {
        store(re + i, select(single, h.get(i, i), load(re + i)));
        store(im + i, select(single, S(T(0)), load(im + i)));
      }
      if (any(pair)) close_pair(i, pair);
      taken = pair;
    }
    return zelStsOk;
  }

 private:
  ZELM_INLINE void close_pair(int i, const M& where) {
    S cs = T(1), sn = T(0);
    for (int l = 0; l < NumberOf<S>::lanes; ++l) {
      if (!(lanes_set(where) >> l & 1)) continue;
      S *const a = h.at(i - 1, i - 1), *const b = h.at(i - 1, i), *const c = h.at(i, i - 1), *const d = h.at(i, i);
      Pair<T> p = {load_lane(a, l), load_lane(b, l), load_lane(c, l), load_lane(d, l)};
      p.standardise();
      store_lane(a, l, p.a);
      store_lane(b, l, p.b);
      store_lane(c, l, p.c);
      store_lane(d, l, p.d);
      store_lane(re + i - 1, l, p.a);
      store_lane(im + i - 1, l, p.wi);
      store_lane(re + i, l, p.d);
      store_lane(im + i, l, 0 - p.wi);
      store_lane(&cs, l, p.cs);
      store_lane(&sn, l, p.sn);
    }
    if constexpr (vectors) {
      for (int j = i + 1; j < n; ++j) rotate(h.at(i - 1, j), h.at(i, j), cs, sn, where);
      for (int r = 0; r < i - 1; ++r) rotate(h.at(r, i - 1), h.at(r, i), cs, sn, where);
      for (int r = 0; r < n; ++r) rotate(q.at(r, i - 1), q.at(r, i), cs, sn, where);
    }
  }

  struct Shifts {
    S h44, h33, h43h34;
  };

  ZELM_INLINE Shifts shifts(int i, int its) const {
    if (its == 10 || its == 20) {
      const S s = magnitude(h.get(i, i - 1)) + magnitude(h.get(i - 1, i - 2)), h44 = S(T(0.75)) * s + h.get(i, i);
      return {h44, h44, S(T(-0.4375)) * s * s};
    }
    const S zero = T(0), h44 = h.get(i, i), h33 = h.get(i - 1, i - 1), h43h34 = h.get(i, i - 1) * h.get(i - 1, i);
    const S half = (h33 - h44) * S(T(0.5)), disc = half * half + h43h34, distance = root(disc);
    // Two real eigenvalues: the one closer to h44, twice.
    const M real = exceeds(disc, zero);
    const S ave = (h44 + h33) * S(T(0.5)), t = ave + select(exceeds(zero, ave), zero - distance, distance);
    const S shift = select(exceeds(magnitude(h33) - magnitude(h44), zero), (h44 * h33 - h43h34) / t, t);
    return {select(real, shift, h44), select(real, shift, h33), select(real, zero, h43h34)};
  }

  /// One double-shift sweep over rows l, ..., i, l being where `low` says, nowhere below `first`.
  ZELM_INLINE void sweep(int first, int i, int its, const M& live, const Starts<S, order>& low) {
    using Wide = typename Wider<S>::Type;
    const auto size = [](const S& x) ZELM_INLINE_LAMBDA { return magnitude(Wide(x)); };  // in double whatever T is
    const Shifts s = shifts(i, its);
    const S zero = T(0), one = T(1);
    S q1 = zero, q2 = zero, q3 = zero;
    Starts<S, order> starts;
    M searching = live;
    int m = i - 2;
    for (;; --m) {
      const S h11 = h.get(m, m), h22 = h.get(m + 1, m + 1), h44s = s.h44 - h11, h33s = s.h33 - h11;
      const S u1 = (h33s * h44s - s.h43h34) / h.get(m + 1, m) + h.get(m, m + 1), u2 = h22 - h11 - h44s - h33s;
      const S u3 = h.get(m + 2, m + 1);
      const Wide sum = size(u1) + size(u2) + size(u3);
      q1 = select(searching, S(Wide(u1) / sum), q1);
      q2 = select(searching, S(Wide(u2) / sum), q2);
      q3 = select(searching, S(Wide(u3) / sum), q3);
      M stop = low.at(m);
      if (m > first) {
        const Wide small = size(q1) * Wide(Limits<T>::epsilon) * (size(h11) + size(h22) + size(h.get(m - 1, m - 1)));
        stop = either(stop, Wider<S>::mask(reaches(small, (size(q2) + size(q3)) * size(h.get(m, m - 1)))));
      }
      stop = both(searching, stop);
      starts.note(m, stop);
      searching = but_not(searching, stop);
      if (!any(searching) || m == first) break;
    }

    M active = everywhere<S>(false);
    const int lowest = m;
    for (int k = lowest; k < i; ++k) {
      const bool three = k < i - 1;
      // Above i - 2 nothing starts.
      const M starting = three ? starts.at(k) : everywhere<S>(false);
      S v1 = q1, v2 = q2, v3 = three ? q3 : zero;
      if (k > lowest) {
        v1 = select(active, h.get(k, k - 1), v1);
        v2 = select(active, h.get(k + 1, k - 1), v2);
        if (three) v3 = select(active, h.get(k + 2, k - 1), v3);
      }
      const M moving = either(active, starting);
      const S xnorm = root(three ? v2 * v2 + v3 * v3 : v2 * v2);
      const M still = either(but_not(everywhere<S>(true), moving), exceeds(S(Limits<T>::safe), xnorm));
      const Reflector<S> r(v1, xnorm);
      const S tau = select(still, zero, r.tau);
      v2 = v2 * r.scale;
      v3 = v3 * r.scale;
      if (k > lowest) {
        h.put(k, k - 1, select(active, select(still, v1, r.beta), h.get(k, k - 1)));
        h.put(k + 1, k - 1, select(active, zero, h.get(k + 1, k - 1)));
        if (three) h.put(k + 2, k - 1, select(active, zero, h.get(k + 2, k - 1)));
      }
      if (k > first && three) {
        const M above = but_not(starting, low.at(k));
        if (any(above)) h.put(k, k - 1, select(above, h.get(k, k - 1) * (one - tau), h.get(k, k - 1)));
      }
      active = moving;
      if (all(still)) continue;
      // Below row k + 3 the columns are still zero.
      const int first_row = vectors ? 0 : first, rows = std::min(k + 3, i) + 1, columns = vectors ? n : i + 1;
      if (three) reflect<3>(k, columns, first_row, rows, tau, v2, v3, still);
      else reflect<2>(k, columns, first_row, rows, tau, v2, v3, still);
    }
  }

  template <int size>
  ZELM_INLINE void reflect(int k, int columns, int first_row, int rows, const S& tau, const S& v2, const S& v3,
                           const M& still) {
    const S t2 = tau * v2, t3 = tau * v3;
    const auto turn = [&](S* x, S* y, S* z) ZELM_INLINE_LAMBDA {
      S sum = load(x) + v2 * load(y);
      if constexpr (size == 3) sum = sum + v3 * load(z);
      store(x, load(x) - unless(still, sum * tau));
      store(y, load(y) - unless(still, sum * t2));
      if constexpr (size == 3) store(z, load(z) - unless(still, sum * t3));
    };
    for (int j = k; j < columns; ++j) turn(h.at(k, j), h.at(k + 1, j), h.at(k, j) + 2);
    for (int r = first_row; r < rows; ++r) turn(h.at(r, k), h.at(r, k + 1), h.at(r, k) + 2 * n);
    if constexpr (vectors)
      for (int r = 0; r < n; ++r) turn(q.at(r, k), q.at(r, k + 1), q.at(r, k) + 2 * n);
  }
};

}  // namespace zelm::eigen::general
