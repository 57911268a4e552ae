// symmetric_steps.hpp: the symmetric eigenproblem from order 3 on: Householder reduction to a tridiagonal matrix, QL sweeps with
// implicit shifts (Golub and Van Loan, Matrix Computations, 4th ed., sections 8.3.1 and 8.3.3; Dubrulle, Martin and Wilkinson,
// Numer. Math. 12, 1968), and the sort. Written once for one matrix and for many in lanes.
//
//   S   what matrices are stored in: a number, or Many
//   V   what sweeps compute with: S, or the same in double
//
// All limits are absolute: an off-diagonal element of at most twice the machine epsilon counts as zero whatever the size of the
// diagonal, so matrices are best scaled to about 1.
#pragma once
#include <limits>

#include "eigen/shared.hpp"

namespace zelm::eigen::symmetric {

/// What differs from kernel to kernel.
struct Rules {
  bool skips_small_columns = false;        // the reduction passes over a column whose sum of squares is at most epsilon
  bool skips_aligned_heads = false;        // and over one whose head is its length already
  bool sorts_singular = false;             // results are sorted even where their product says zelStsSingular
  bool allows_small_determinants = false;  // order 2 in float: singular from the limit of double on
  bool sweeps_in_double = false;           // of float matrices
};

template <class V>
inline constexpr ElementOf<V> kEpsilon = std::numeric_limits<ElementOf<V>>::epsilon();

inline constexpr int kSweeps = 30;  // for one eigenvalue

/// A dense square matrix, or rows of vectors, at any address.
template <class S>
struct Square {
  using Number = S;
  S* first;
  int order;
  ZELM_INLINE S get(int i, int j) const { return load(first + std::ptrdiff_t(i) * order + j); }
  ZELM_INLINE void put(int i, int j, const S& x) const { store(first + std::ptrdiff_t(i) * order + j, x); }
};

/// Where the block that is being worked on begins, in each lane.
template <class S, int order>
struct Starts {
  S begin[order];
  ZELM_INLINE void note(int i, const S& here) { begin[i] = here; }
  ZELM_INLINE S at(int i) const { return begin[i]; }
};
template <Number S, int order>
struct Starts<S, order> {
  int begin;
  ZELM_INLINE void note(int i, bool here) {
    if (here) begin = i;
  }
  ZELM_INLINE bool at(int i) const { return i == begin; }
};

/// In place of the eigenvectors where nobody asks for them.
struct NoVectors {};

/// Makes `a` tridiagonal: its diagonal and the elements below that are all that is valid afterwards. `u` receives the reflection's
/// vector; z is multiplied by the reflections.
template <class S, class Z>
ZELM_INLINE void reduce(Square<S> a, S* u, int n, const Rules& rules, const Z& z) {
  constexpr bool vectors = !std::is_same_v<Z, NoVectors>;
  using M = MaskOf<S>;
  const S epsilon = kEpsilon<S>, two = ElementOf<S>(2);
  for (int k = 0; k < n - 2; ++k) {
    const S head = a.get(k + 1, k);
    S squares = head * head;
    for (int i = k + 2; i < n; ++i) {
      const S x = a.get(i, k);
      store(u + i, x);
      squares = squares + x * x;
    }
    const S length = root(squares);
    const M positive = exceeds(head, epsilon), tiny = reaches(epsilon, magnitude(head));
    const S product = head * length;
    S u0 = select(positive, head + length, select(tiny, length, head - length));
    const S norm = select(positive, two * (squares + product), select(tiny, squares + squares, two * (squares - product)));
    M skipped = reaches(epsilon, norm);
    if (rules.skips_small_columns) {
      const M small = reaches(epsilon, squares);
      u0 = select(small, head, u0);
      skipped = either(skipped, small);
    }
    if (rules.skips_aligned_heads) skipped = either(skipped, reaches(epsilon, magnitude(S(ElementOf<S>(0)) - (head - length))));
    store(u + k + 1, u0);
    if (all(skipped)) continue;

    // A - u (beta u^T A) and then A - (beta A u) u^T. Of row and column k only the new head will be read; the rest of the row
    // serves for u^T A.
    const S beta = two / norm;
    S w = u0 * head;
    for (int i = k + 2; i < n; ++i) w = w + load(u + i) * a.get(i, k);
    a.put(k + 1, k, head - unless(skipped, u0 * (beta * w)));
    for (int j = k + 1; j < n; ++j) a.put(k, j, u0 * a.get(k + 1, j));
    for (int i = k + 2; i < n; ++i) {
      const S ui = load(u + i);
      for (int j = k + 1; j < n; ++j) a.put(k, j, a.get(k, j) + ui * a.get(i, j));
    }
    for (int j = k + 1; j < n; ++j) a.put(k, j, beta * a.get(k, j));
    for (int i = k + 1; i < n; ++i) {
      const S ui = load(u + i);
      for (int j = k + 1; j < n; ++j) a.put(i, j, a.get(i, j) - unless(skipped, ui * a.get(k, j)));
      w = a.get(i, k + 1) * u0;
      for (int j = k + 2; j < n; ++j) w = w + a.get(i, j) * load(u + j);
      w = beta * w;
      for (int j = k + 1; j < n; ++j) a.put(i, j, a.get(i, j) - unless(skipped, w * load(u + j)));
    }
    if constexpr (vectors) {
      // Row and column 0 stay those of the identity; the first reflection finds the identity.
      for (int i = 1; i < n; ++i) {
        w = k == 0 ? load(u + i) : z.get(i, k + 1) * u0;
        if (k > 0)
          for (int j = k + 2; j < n; ++j) w = w + z.get(i, j) * load(u + j);
        w = beta * w;
        for (int j = k + 1; j < n; ++j) z.put(i, j, z.get(i, j) - unless(skipped, w * load(u + j)));
      }
    }
  }
}

/// QL sweeps on the diagonal d[0 .. n-1] and the elements e[1 .. n-1] below it, until all of the latter count as zero; false if
/// that takes too many. `product` is multiplied by every d[m] at which a search stops, m > 0; stop(m, where) hears of it.
/// rotate(i, c, s, where) is to turn columns i and i + 1 of the eigenvectors; swept(first, l) hears of the end of a sweep over them.
template <class V, int order, class S, class Stop, class Rotate, class Swept>
ZELM_INLINE bool sweep(S* d_at, S* e_at, int n, V& product, Stop stop, Rotate rotate, Swept swept) {
  using M = MaskOf<V>;
  const V epsilon = ElementOf<V>(kEpsilon<S>);
  const V one = ElementOf<V>(1), two = ElementOf<V>(2), half = ElementOf<V>(0.5), zero = ElementOf<V>(0);
  const auto d = [&](int i) ZELM_INLINE_LAMBDA { return V(load(d_at + i)); };
  const auto e = [&](int i) ZELM_INLINE_LAMBDA { return V(load(e_at + i)); };
  const auto set_d = [&](int i, const V& x) ZELM_INLINE_LAMBDA { store(d_at + i, S(x)); };
  const auto set_e = [&](int i, const V& x) ZELM_INLINE_LAMBDA { store(e_at + i, S(x)); };
  for (int l = n - 1; l > 0; --l) {
    M live = everywhere<V>(true);
    for (int turn = 0;; ++turn) {
      Starts<V, order> starts;
      M going = live;
      int first = l;
      for (; first > 0; --first) {
        const M hit = both(going, reaches(epsilon, magnitude(e(first)) * half));
        if (any(hit)) {
          product = select(hit, product * d(first), product);
          stop(first, hit);
          if (first == l) live = but_not(live, hit);
          going = but_not(going, hit);
          starts.note(first, hit);
          if (!any(going)) break;
        } else {
          starts.note(first, hit);
        }
      }
      if (!any(live)) break;
      if (turn == kSweeps) return false;
      if (first == 0) starts.note(0, going);

      const V dl = d(l), el = e(l);
      const S ratio = (load(d_at + l - 1) - load(d_at + l)) / (S(ElementOf<S>(2)) * load(e_at + l));
      const V wide = V(ratio), length = root(V(ratio * ratio + S(ElementOf<S>(1))));
      V dm = d(first);
      if constexpr (NumberOf<V>::lanes > 1)
        for (int i = first + 1; i < l; ++i) dm = select(starts.at(i), d(i), dm);
      V g = (dm - dl) + el / select(exceeds(wide, epsilon), wide + length, wide - length);
      V s = one, c = one, p = zero, t = zero;
      M active = everywhere<V>(false);
      for (int i = first; i < l; ++i) {
        const M starting = starts.at(i);
        const V next = e(i + 1), f = s * next, b = c * next, r = root(f * f + g * g);
        if (i > first) set_e(i, select(active, r, e(i)));
        active = either(active, starting);
        const M early = both(active, reaches(epsilon, r));
        if (any(early)) {
          set_d(i, select(early, d(i) - p, d(i)));
          for (int m = first; m <= i; ++m) set_e(m + 1, select(both(early, starts.at(m)), zero, e(m + 1)));
          active = but_not(active, early);
          if constexpr (NumberOf<V>::lanes == 1) break;
        }
        const V cn = g / r, sn = f / r, gn = d(i) - p, tn = (d(i + 1) - gn) * sn + two * cn * b, pn = sn * tn;
        set_d(i, select(active, gn + pn, d(i)));
        rotate(i, cn, sn, active);
        c = select(active, cn, c);
        s = select(active, sn, s);
        t = select(active, tn, t);
        p = select(active, pn, p);
        g = select(active, cn * tn - b, g);
      }
      const M closing = both(active, exceeds(magnitude(t), epsilon));
      set_d(l, select(closing, d(l) - p, d(l)));
      set_e(l, select(closing, g, e(l)));
      swept(first, l);
    }
  }
  return true;
}

/// Descending, by selection, of equals the first. exchange(i, j, where) hears of every exchange.
template <class S, class Exchange>
ZELM_INLINE void sort(S* values, int n, Exchange exchange) {
  for (int i = 0; i < n - 1; ++i) {
    const S here = load(values + i);
    S best = here;
    for (int j = i + 1; j < n; ++j) best = select(exceeds(load(values + j), best), load(values + j), best);
    MaskOf<S> pending = exceeds(best, here);
    for (int j = i + 1; j < n && any(pending); ++j) {
      const S other = load(values + j);
      const MaskOf<S> hit = both(pending, reaches(other, best));
      if (!any(hit)) continue;
      store(values + i, select(hit, other, load(values + i)));
      store(values + j, select(hit, here, other));
      exchange(i, j, hit);
      pending = but_not(pending, hit);
    }
  }
}

}  // namespace zelm::eigen::symmetric
