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

/// sqrt(a^2 + b^2) without a large square. The root and its product are taken in double and rounded once.
template <class S>
ZELM_INLINE S length(const S& a, const S& b) {
  using T = ElementOf<S>;
  using Wide = typename Wider<S>::Type;
  const S w = larger(magnitude(b), magnitude(a)), z = smaller(magnitude(b), magnitude(a));
  return select(exceeds(S(Limits<T>::safe), z), w, S(Wide(w) * root(Wide(z * z / (w * w) + S(T(1))))));
}

/// I - tau v v^T with v = (1, scale x) turns (alpha, x) into (beta, 0), xnorm being the length of x, which is not tiny.
template <class S>
struct Reflector {
  S beta, tau, scale;
  ZELM_INLINE Reflector(const S& alpha, const S& xnorm) {
    using T = ElementOf<S>;
    const S norm = length(alpha, xnorm), zero = T(0);
    beta = select(exceeds(zero, alpha), norm, zero - norm);
    tau = (beta - alpha) / beta;
    scale = S(T(1)) / (alpha - beta);
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

/// The Schur form of a Hessenberg matrix, or, without `vectors`, no more of it than its eigenvalues take. S: a number, or Many,
/// whose lanes each work on their own block: a sweep covers the rows of all of them, and leaves alone what lies outside a lane's.
template <bool vectors, class S>
struct Iteration {
  using T = ElementOf<S>;
  using M = MaskOf<S>;
  static constexpr int lanes = NumberOf<S>::lanes;
  Columns<S> h, q;
  int n;
  S *re, *im;

  ZELM_INLINE ZelStatus run() {
    int bottom[lanes], its[lanes], budget[lanes];
    for (int l = 0; l < lanes; ++l) {
      bottom[l] = n - 1;
      its[l] = 0;
      budget[l] = 30 * n;  // what one block takes the next ones do not have
    }
    const S zero = T(0);
    for (;;) {
      Extent extent = {zero, zero, n, n, -1};
      Shifts s = {zero, zero, zero};
      for (int l = 0; l < lanes; ++l) {
        if (its[l] > 0 && budget[l] == 0) return zelStsNoConvergence;
        const int top = deflate(l, bottom[l], its[l]);
        store_lane(&extent.tops, l, T(top));
        store_lane(&extent.bottoms, l, T(bottom[l]));
        if (bottom[l] < 0) continue;
        extent.top = std::min(extent.top, top);
        extent.least_bottom = std::min(extent.least_bottom, bottom[l]);
        extent.bottom = std::max(extent.bottom, bottom[l]);
        set_shifts(s, l, bottom[l], its[l]);
        ++its[l];
        --budget[l];
      }
      if (extent.bottom < 0) return zelStsOk;
      sweep(extent, s);
    }
  }

 private:
  /// Rows of the lanes' blocks.
  struct Extent {
    S tops, bottoms;  // as numbers; below 0 where nothing is left to do
    int top, least_bottom, bottom;
  };
  struct Shifts {
    S h44, h33, h43h34;
  };
  struct Reflection {
    int k;
    S tau, v2, v3;
    M still, short_or_still;  // lanes that it leaves alone, and those of which it turns two rows or none
    bool idle, mixed, every;
  };

  ZELM_INLINE T get(int l, int i, int j) const { return load_lane(h.at(i, j), l); }
  static ZELM_INLINE M is(const S& number, int k) { return equals(number, S(T(k))); }

  /// Finishes blocks of order 1 and 2 at the end of lane l and returns the first row of the one that `bottom` ends then.
  ZELM_INLINE int deflate(int l, int& bottom, int& its) const {
    while (bottom >= 0) {
      int top = bottom;
      for (; top > 0; --top)
        if (Limits<T>::epsilon >= std::fabs(get(l, top, top - 1))) {
          store_lane(h.at(top, top - 1), l, T(0));
          break;
        }
      const int size = bottom - top + 1;
      if (size > 2) return top;
      if (size == 2) {
        close_pair(l, bottom);
      } else {
        store_lane(re + bottom, l, get(l, bottom, bottom));
        store_lane(im + bottom, l, T(0));
      }
      bottom -= size;
      its = 0;
    }
    return -1;
  }

  ZELM_INLINE void close_pair(int l, int i) const {
    Pair<T> p = {get(l, i - 1, i - 1), get(l, i - 1, i), get(l, i, i - 1), get(l, i, i)};
    p.standardise();
    store_lane(h.at(i - 1, i - 1), l, p.a);
    store_lane(h.at(i - 1, i), l, p.b);
    store_lane(h.at(i, i - 1), l, p.c);
    store_lane(h.at(i, i), l, p.d);
    store_lane(re + i - 1, l, p.a);
    store_lane(im + i - 1, l, p.wi);
    store_lane(re + i, l, p.d);
    store_lane(im + i, l, 0 - p.wi);
    if constexpr (vectors) {
      const auto rotate = [&](S* to_x, S* to_y) ZELM_INLINE_LAMBDA {
        const T x = load_lane(to_x, l), y = load_lane(to_y, l);
        store_lane(to_x, l, p.cs * x + p.sn * y);
        store_lane(to_y, l, p.cs * y - p.sn * x);
      };
      for (int j = i + 1; j < n; ++j) rotate(h.at(i - 1, j), h.at(i, j));
      for (int r = 0; r < i - 1; ++r) rotate(h.at(r, i - 1), h.at(r, i));
      for (int r = 0; r < n; ++r) rotate(q.at(r, i - 1), q.at(r, i));
    }
  }

  ZELM_INLINE void set_shifts(Shifts& s, int l, int i, int its) const {
    T h44 = get(l, i, i), h33 = get(l, i - 1, i - 1), h43h34 = get(l, i, i - 1) * get(l, i - 1, i);
    if (its == 10 || its == 20) {
      const T size = std::fabs(get(l, i, i - 1)) + std::fabs(get(l, i - 1, i - 2));
      h44 = h33 = T(0.75) * size + h44;
      h43h34 = T(-0.4375) * size * size;
    } else {
      const T half = (h33 - h44) * T(0.5), disc = half * half + h43h34;
      if (disc > 0) {  // two real eigenvalues: the one closer to h44, twice
        const T ave = (h44 + h33) * T(0.5), distance = root(disc), t = ave + (ave < 0 ? -distance : distance);
        h44 = h33 = std::fabs(h33) - std::fabs(h44) > 0 ? (h44 * h33 - h43h34) / t : t;
        h43h34 = 0;
      }
    }
    store_lane(&s.h44, l, h44);
    store_lane(&s.h33, l, h33);
    store_lane(&s.h43h34, l, h43h34);
  }

  /// One double-shift sweep over the block of each lane.
  ZELM_INLINE void sweep(const Extent& extent, const Shifts& s) {
    using Wide = typename Wider<S>::Type;
    const auto size = [](const S& x) ZELM_INLINE_LAMBDA { return magnitude(Wide(x)); };  // in double whatever T is
    const S zero = T(0), one = T(1);
    S q1 = zero, q2 = zero, q3 = zero, starts = zero;
    M searching = everywhere<S>(false);
    int m = extent.bottom - 2;
    for (;; --m) {
      searching = either(searching, is(extent.bottoms, m + 2));
      const S h11 = h.get(m, m), h22 = h.get(m + 1, m + 1), h44s = s.h44 - h11, h33s = s.h33 - h11;
      const S u1 = (h33s * h44s - s.h43h34) / h.get(m + 1, m) + h.get(m, m + 1), u2 = h22 - h11 - h44s - h33s;
      const S u3 = h.get(m + 2, m + 1);
      const Wide sum = size(u1) + size(u2) + size(u3);
      q1 = select(searching, S(Wide(u1) / sum), q1);
      q2 = select(searching, S(Wide(u2) / sum), q2);
      q3 = select(searching, S(Wide(u3) / sum), q3);
      M stop = is(extent.tops, m);
      if (m > extent.top) {
        const Wide small = size(q1) * Wide(Limits<T>::epsilon) * (size(h11) + size(h22) + size(h.get(m - 1, m - 1)));
        stop = either(stop, Wider<S>::mask(reaches(small, (size(q2) + size(q3)) * size(h.get(m, m - 1)))));
      }
      stop = both(searching, stop);
      starts = select(stop, S(T(m)), starts);
      searching = but_not(searching, stop);
      if (m == extent.top || (m <= extent.least_bottom - 2 && !any(searching))) break;
    }

    const auto reflection = [&](int k) ZELM_INLINE_LAMBDA {
      const S here = T(k);
      const bool three = k < extent.bottom - 1;
      const M moving = both(reaches(here, starts), exceeds(extent.bottoms, here)),
              starting = both(moving, equals(starts, here));
      const M ending = is(extent.bottoms, k + 1);  // of two rows
      S v1 = q1, v2 = q2, v3 = three ? q3 : zero;
      if (k > m) {
        v1 = select(starting, q1, h.get(k, k - 1));
        v2 = select(starting, q2, h.get(k + 1, k - 1));
        if (three) v3 = unless(ending, select(starting, q3, h.get(k + 2, k - 1)));
      }
      const S xnorm = root(three ? v2 * v2 + v3 * v3 : v2 * v2);
      const M still = either(but_not(everywhere<S>(true), moving), exceeds(S(Limits<T>::safe), xnorm));
      const Reflector<S> r(v1, xnorm);
      if (k > m) {
        const M carried = but_not(moving, starting);
        h.put(k, k - 1, select(carried, select(still, v1, r.beta), h.get(k, k - 1)));
        h.put(k + 1, k - 1, unless(carried, h.get(k + 1, k - 1)));
        if (three) h.put(k + 2, k - 1, unless(carried, h.get(k + 2, k - 1)));
      }
      const S tau = select(still, zero, r.tau);
      if (k > extent.top && three) {
        const M above = but_not(starting, is(extent.tops, k));
        if (any(above)) h.put(k, k - 1, select(above, h.get(k, k - 1) * (one - tau), h.get(k, k - 1)));
      }
      return Reflection{
          k, tau, v2 * r.scale, v3 * r.scale, still, either(still, ending), all(still), any(both(moving, ending)), !any(still)};
    };
    // Each reflection is made of what the one before leaves in one column: that comes first, so that divisions and roots go on
    // beside the rest. Below row k + 3 the columns are still zero.
    const int first_row = vectors ? 0 : extent.top, columns = vectors ? n : extent.bottom + 1;
    Reflection r = reflection(m);
    for (int k = m; k < extent.bottom - 1; ++k) {
      const int rows = std::min(k + 3, extent.bottom) + 1;
      turn_three(r, k, k + 3, k + 1, rows, 0);
      const Reflection next = reflection(k + 1);
      turn_three(r, k + 3, columns, first_row, k + 1, n);
      r = next;
    }
    if (!r.idle) turn<Rows::two>(r, r.k, columns, first_row, extent.bottom + 1, n);
  }

  enum class Rows { two, three, mixed, every };

  ZELM_INLINE void turn_three(const Reflection& r, int column, int columns, int row, int rows, int vector_rows) const {
    if (r.idle) return;
    if (r.mixed) turn<Rows::mixed>(r, column, columns, row, rows, vector_rows);
    else if (r.every) turn<Rows::every>(r, column, columns, row, rows, vector_rows);
    else turn<Rows::three>(r, column, columns, row, rows, vector_rows);
  }

  /// Columns column, ..., columns - 1 of three rows, rows row, ..., rows - 1 of three columns, and so many rows of q.
  template <Rows size>
  __attribute__((noinline)) void turn(const Reflection& r, int column, int columns, int row, int rows, int vector_rows) const {
    const S tau = r.tau, v2 = r.v2, v3 = r.v3, t2 = tau * v2, t3 = tau * v3;
    const M still = size == Rows::every ? everywhere<S>(false) : r.still,
            stays = size == Rows::mixed ? r.short_or_still : still;
    const std::ptrdiff_t length = n;
    const auto turn = [&](S* x, std::ptrdiff_t across) ZELM_INLINE_LAMBDA {
      S *const y = x + across, *const z = y + across;
      const S a = load(x), b = load(y);
      S sum = a + v2 * b;
      if constexpr (size == Rows::two) {
        store(x, a - unless(still, sum * tau));
        store(y, b - unless(still, sum * t2));
      } else {
        const S c = load(z);
        // -0 changes nothing, be it added to a zero of either sign.
        sum = sum + (size == Rows::mixed ? select(stays, S(T(-0.0)), v3 * c) : v3 * c);
        store(x, a - unless(still, sum * tau));
        store(y, b - unless(still, sum * t2));
        store(z, c - unless(stays, sum * t3));
      }
    };
    for (S *x = h.at(r.k, column), *const end = h.at(r.k, columns); x < end; x += length) turn(x, 1);
    for (S *x = h.at(row, r.k), *const end = h.at(rows, r.k); x < end; ++x) turn(x, length);
    if constexpr (vectors)
      for (S *x = q.at(0, r.k), *const end = q.at(vector_rows, r.k); x < end; ++x) turn(x, length);
  }
};

}  // namespace zelm::eigen::general
