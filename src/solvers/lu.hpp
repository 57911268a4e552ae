// lu.hpp: P A = L U by elimination with partial pivoting, and the solution of A x = b from its factors.
//
// Rows are never moved in dst: row k of both factors stands in row p[k], p being the object's part of the index array. Orders 3
// to 6 run several objects at once, one in each lane; all others run the cores of lu_cores.cpp. The two differ in their limits
// and in the rounding of multipliers on purpose, and both are absolute: nothing scales them by the size of the matrix.
// Growth and error bounds: Higham, Accuracy and Stability of Numerical Algorithms, 2nd ed., sections 9.3 and 8.2; measured in
// tests/solvers/lu_accuracy_test.cpp.
#pragma once
#include <array>
#include <limits>

#include "frame/alternating.hpp"
#include "simd/many.hpp"
#include "solvers/lu_cores.hpp"
#include "zelm_types.h"

namespace zelm::solvers::lu {

/// Orders 3 to 6: a pivot below twice the smallest normal number is singular, 2^-125 and 2^-1021; the limit itself passes.
template <class T>
inline constexpr T kSmallestPivot = 2 * std::numeric_limits<T>::min();

/// Elimination of one object in each lane. `tracked`: a lane that meets a singular pivot keeps the state it then has; without,
/// it only shows in `singular`.
template <class T, int N, bool tracked>
struct Elimination {
  using P = Pack<T>;
  Lanes<T, N, N> w;  // rows in pivot order
  P p[N];            // row order, whole numbers
  P singular;        // mask
  P finished;        // if tracked: rows of the factors that stand, N where the object succeeded

  ZELM_INLINE void run() {
    if constexpr (tracked) run_apart();
    else run_here();
  }

 private:
  /// Seldom needed, so one copy serves all layouts.
  __attribute__((noinline)) void run_apart() { run_here(); }

  ZELM_INLINE void run_here() {
    singular = finished = P::zero();
    ZELM_UNROLL for (int i = 0; i < N; ++i) p[i] = P::splat(T(i));
    ZELM_UNROLL for (int k = 0; k < N - 1; ++k) step(k);
    judge(abs(w.e[N - 1][N - 1]));
  }

  ZELM_INLINE void judge(P magnitude) {
    singular = singular | (P::splat(kSmallestPivot<T>) > magnitude);
    if constexpr (tracked) finished = finished + and_not(P::splat(T(1)), singular);
  }

  /// Masks of the lanes in which row i has the largest magnitude of column k, the first of equals; a NaN never wins. Where row k
  /// itself has it, no mask is set. Returns the magnitude.
  ZELM_INLINE P find_pivot(int k, P (&here)[N]) const {
    P best = abs(w.e[k][k]);
    ZELM_UNROLL for (int i = k + 1; i < N; ++i) {
      const P magnitude = abs(w.e[i][k]);
      here[i] = magnitude > best;
      best = max_or_second(magnitude, best);
    }
    P later = tracked ? singular : P::zero();  // of the rows larger than all before them the last is the largest
    ZELM_UNROLL for (int i = N - 1; i > k; --i) {
      const P larger = here[i];
      if (tracked || i < N - 1) here[i] = and_not(larger, later);
      later = later | larger;
    }
    return best;
  }

  /// Exchanges row k with the pivot's and eliminates column k. The pivot's row is put together first, so that every row below is
  /// read and written once. One reciprocal serves two and more multipliers, the last one alone is a division.
  ZELM_INLINE void step(int k) {
    P here[N];
    judge(find_pivot(k, here));
    P old[N], old_p = p[k];
    ZELM_UNROLL for (int j = 0; j < N; ++j) old[j] = w.e[k][j];
    ZELM_UNROLL for (int i = k + 1; i < N; ++i) {
      ZELM_UNROLL for (int j = 0; j < N; ++j) w.e[k][j] = select(here[i], w.e[i][j], w.e[k][j]);
      p[k] = select(here[i], p[i], p[k]);
    }
    const P pivot = w.e[k][k], inverse = k < N - 2 ? P::splat(T(1)) / pivot : pivot;
    ZELM_UNROLL for (int i = k + 1; i < N; ++i) {
      ZELM_UNROLL for (int j = 0; j < N; ++j) w.e[i][j] = select(here[i], old[j], w.e[i][j]);
      p[i] = select(here[i], old_p, p[i]);
      const P m = k < N - 2 ? w.e[i][k] * inverse : w.e[i][k] / pivot;
      w.e[i][k] = m;
      ZELM_UNROLL for (int j = k + 1; j < N; ++j) w.e[i][j] = w.e[i][j] - w.e[k][j] * m;
    }
  }
};

/// A block with a singular object, or one that does not fill the lanes: objects are written in order, up to and including the
/// first that failed, of which only the finished rows.
template <int N, class A, class D>
__attribute__((noinline)) ZelStatus decompose_some(const A& a, int* index, const D& d, std::ptrdiff_t k, int valid) {
  using T = typename A::T;
  Elimination<T, N, true> f;
  f.w.load(a, k, valid);
  f.run();
  constexpr int L = Pack<T>::lanes;
  alignas(16) T order[N][L], rows[L], row[L][N];
  ZELM_UNROLL for (int i = 0; i < N; ++i) f.p[i].store(order[i]);
  f.finished.store(rows);
  int written = 0;
  while (written < valid && rows[written++] == T(N)) {
  }
  for (int l = 0; l < written; ++l)
    ZELM_AS_IT_STANDS for (int i = 0; i < N; ++i) store(index + (k + l) * N + i, int(order[i][l]));
  ZELM_UNROLL for (int i = 0; i < N; ++i) {
    lanes_to_rows(f.w.e[i], [&](int l) { return row[l]; });
    ZELM_AS_IT_STANDS for (int l = 0; l < written; ++l) if (T(i) < rows[l]) d.object(k + l).set_row(int(order[i][l]),
                                                                                                    Row<T, N>::load(row[l]));
  }
  return rows[written - 1] == T(N) ? zelStsOk : zelStsSingular;
}

/// Row orders of L objects, whose lanes hold whole numbers as integers.
template <int L, int N>
ZELM_INLINE void store_order(const Pack<float> (&entries)[N], int* order) {
  float* const bits = reinterpret_cast<float*>(order);
  if constexpr (L == 4) {
    lanes_to_rows(entries, [&](int l) { return bits + l * N; });
  } else {
    ZELM_UNROLL for (int i = 0; i < N; ++i) entries[i].template scatter<L>([&](int l) { return bits + l * N + i; });
  }
}

template <int N, bool beside, class A, class D>
ZelStatus decompose_fixed(A a, int* index, D d, int count) {
  using T = typename A::T;
  constexpr int L = Pack<T>::lanes;
  std::ptrdiff_t k = 0;
  for (; k + L <= count; k += L) {
    Elimination<T, N, false> f;
    f.w.template load<beside>(a, k, L);
    f.run();
    if (lane_bits(f.singular)) return decompose_some<N>(a, index, d, k, L);
    // The row order goes to the index array and comes back as addresses: without the barrier the compiler takes each entry out
    // of its register a second time, which costs more than a load.
    int* const order = index + k * N;
    Pack<float> entries[N];
    ZELM_UNROLL for (int i = 0; i < N; ++i) entries[i] = {_mm_castsi128_ps(to_int32(f.p[i]))};
    store_order<L>(entries, order);
    __asm__ volatile("" ::: "memory");
    typename D::Object objects[L];
    d.objects(k, L, objects);
    ZELM_UNROLL for (int i = 0; i < N; ++i) store_row(f.w.e[i], objects, [&](int l) { return load(order + l * N + i); });
  }
  return k < count ? decompose_some<N>(a, index, d, k, int(count - k)) : zelStsOk;
}

template <int N, class A, class D>
ZELM_INLINE ZelStatus decompose_small(A a, int* index, D d, int count) {
  return a.interleaved() ? decompose_fixed<N, true>(a, index, d, count) : decompose_fixed<N, false>(a, index, d, count);
}

template <class A, class D>
ZELM_INLINE ZelStatus decompose(A a, int* index, D d, int order, int count) {
  switch (order) {
    case 3: return decompose_small<3>(a, index, d, count);
    case 4: return decompose_small<4>(a, index, d, count);
    case 5: return decompose_small<5>(a, index, d, count);
    case 6: return decompose_small<6>(a, index, d, count);
  }
  for (std::ptrdiff_t k = 0; k < count; ++k)
    if (const ZelStatus status = decompose_core(a.object(k), index + k * order, d.object(k), order)) return status;
  return zelStsOk;
}

// Solution

/// Forward and back substitution on lanes, in place, every term subtracted alone: of row i of L the terms 1, ..., i - 1, 0; of
/// row i of U ascending terms, but the last one first where there are three or more.
///   factor(i, j)   element of the factors, rows in pivot order
///   by_pivot(x, i) x over the i-th pivot
template <int N, class P, class Factor, class ByPivot, class Halfway>
ZELM_INLINE void substitute(P (&x)[N], Factor factor, ByPivot by_pivot, Halfway halfway) {
  ZELM_UNROLL for (int i = 1; i < N; ++i) {
    ZELM_UNROLL for (int j = 1; j < i; ++j) x[i] = less_product(x[i], factor(i, j), x[j]);
    x[i] = less_product(x[i], factor(i, 0), x[0]);
  }
  halfway();
  ZELM_UNROLL for (int i = N - 1; i >= 0; --i) {
    const bool last_first = N - 1 - i >= 3;
    if (last_first) x[i] = less_product(x[i], factor(i, N - 1), x[N - 1]);
    ZELM_UNROLL for (int j = i + 1; j < (last_first ? N - 1 : N); ++j) x[i] = less_product(x[i], factor(i, j), x[j]);
    x[i] = by_pivot(x[i], i);
  }
}

/// Every vector with a matrix of its own, or one vector: division by the pivots.
template <int N, bool beside, class A, class B, class D>
void solve_each(A a, const int* index, B b, D d, int count) {
  using T = typename D::T;
  constexpr int L = Pack<T>::lanes;
  constexpr int own = N < 5 ? 4 : 3;
  for_alternating<N, false, own, beside>(
      d, count, [=]<class V>(V(&x)[N], std::ptrdiff_t first, auto valid, auto halfway) ZELM_INLINE_LAMBDA {
        V f[N][N];
        ZELM_UNROLL for (int q = 0; q < V::packs; ++q) {
          const std::ptrdiff_t k = first + q * L;
          typename A::Object matrices[L];
          typename B::Object vectors[L];
          const int* order[L];
          a.objects(k, valid, matrices);
          b.objects(k, valid, vectors);
          ZELM_UNROLL for (int l = 0; l < L; ++l) order[l] = index + (k + std::min<int>(l, valid - 1)) * N;
          ZELM_UNROLL for (int i = 0; i < N; ++i) {
            Pack<T> row[N];
            load_row(row, matrices, [&](int l) { return load(order[l] + i); });
            ZELM_UNROLL for (int j = 0; j < N; ++j) f[i][j].part[q] = row[j];
            x[i].part[q] = Pack<T>::template gather<L>([&](int l) { return vectors[l].at(0, load(order[l] + i)); });
          }
        }
        substitute<N>(
            x, [&](int i, int j) { return f[i][j]; }, [&](const V& v, int i) { return v / f[i][i]; }, halfway);
      });
}

/// The factors of the one matrix of a call, every element in all lanes, rows in pivot order.
template <class T, int N>
struct Broadcast {
  Pack<T> e[N][N], inverse[N];  // inverse: of the pivots

  template <class Object>
  Broadcast(const Object& a, const int* order) {
    for (int i = 0; i < N; ++i) {
      const int row = load(order + i);
      for (int j = 0; j < N; ++j) e[i][j] = Pack<T>::splat(load(a.at(row, j)));
      inverse[i] = Pack<T>::splat(T(1)) / e[i][i];
    }
  }
};

/// Explicit inverses of both factors: two products with triangular matrices for each vector, no chain of substitutions.
template <class T, int N>
struct InverseFactors {
  using P = Pack<T>;
  P lower[N][N], upper[N][N];  // lower without its unit diagonal

  explicit InverseFactors(const Broadcast<T, N>& f) {
    const P zero = P::zero();
    const auto& a = f.e;
    const auto& r = f.inverse;
    for (int j = 0; j < N; ++j)
      for (int i = j + 1; i < N; ++i) {
        P s = i == j + 1 ? zero - a[i][j] : a[j + 1][j] * a[i][j + 1] - a[i][j];
        for (int m = j + 2; m < i; ++m) s = s - a[i][m] * lower[m][j];
        lower[i][j] = s;
      }
    // Row i of the inverse of U is -r[i] times h[j] r[j], with h a row of the elimination of U's rows above the diagonal.
    for (int i = 0; i < N; ++i) {
      P h[N];
      upper[i][i] = r[i];
      for (int j = i + 1; j < N; ++j) {
        h[j] = a[i][j];
        if (j > i + 1) {
          P s = (zero - h[i + 1] * r[i + 1]) * a[i + 1][j];
          for (int m = i + 2; m < j; ++m) s = s + (zero - h[m] * r[m]) * a[m][j];
          h[j] = s + a[i][j];
        }
        upper[i][j] = j == i + 1 ? (zero - a[i][j] * r[i]) * r[j] : (zero - r[i]) * (h[j] * r[j]);
      }
    }
  }

  template <class V, class Halfway>
  ZELM_INLINE void apply(V (&x)[N], Halfway halfway) const {
    V y[N];
    y[0] = x[0];
    ZELM_UNROLL for (int i = 1; i < N; ++i) {
      V s = V(lower[i][0]) * x[0];
      ZELM_UNROLL for (int j = 1; j < i; ++j) s = s + V(lower[i][j]) * x[j];
      y[i] = s + x[i];
    }
    halfway();
    ZELM_UNROLL for (int i = 0; i < N; ++i) {
      V s = V(upper[i][i]) * y[i];
      ZELM_UNROLL for (int j = i + 1; j < N; ++j) s = s + V(upper[i][j]) * y[j];
      x[i] = s;
    }
  }
};

/// Many vectors with one matrix; apply(x, halfway) solves for the vectors in the lanes of x, which come in pivot order.
template <int N, bool beside, class B, class D, class Apply>
ZELM_INLINE void solve_vectors(B b, const int* index, D d, int count, Apply apply) {
  using T = typename D::T;
  constexpr int L = Pack<T>::lanes;
  bool permutation = true;
  for (int i = 0; i < N; ++i) permutation &= unsigned(load(index + i)) < unsigned(N);
  if (permutation) {
    std::array<int, N> order;
    for (int i = 0; i < N; ++i) order[i] = load(index + i);
    for_alternating<N, true, 0, beside>(d, count,
                                        [=]<class V>(V(&x)[N], std::ptrdiff_t k, auto valid, auto halfway) ZELM_INLINE_LAMBDA {
                                          V natural[N];
                                          load_vectors<beside>(natural, b, k, valid);
                                          ZELM_UNROLL for (int i = 0; i < N; ++i) x[i] = natural[order[i]];
                                          apply(x, halfway);
                                        });
  } else {
    // Entries are used as they stand: elsewhere than 0 to N - 1 they are read from memory.
    for (std::ptrdiff_t k = 0; k < count; ++k)
      last_block(
          [=](std::ptrdiff_t at, int) {
            Many<T, L> x[N];
            for (int i = 0; i < N; ++i) x[i] = load(b.object(at).at(0, load(index + i)));
            apply(x, Nothing{});
            store_vectors<beside>(x, d, at, 1);
          },
          k, 1);
  }
}

template <int N, bool beside, class A, class B, class D>
void solve_one_matrix(A a, const int* index, B b, D d, int count) {
  using T = typename D::T;
  const Broadcast<T, N> f(a.object(0), index);
  // Inverting the factors pays from three vectors on; only float in the contiguous standard layout does it.
  if constexpr (std::is_same_v<T, float> && A::plain && B::plain && D::plain) {
    if (count > 2) {
      const InverseFactors<T, N> inverse(f);
      solve_vectors<N, beside>(b, index, d, count,
                               [&](auto& x, auto halfway) ZELM_INLINE_LAMBDA { inverse.apply(x, halfway); });
      return;
    }
  }
  solve_vectors<N, beside>(b, index, d, count, [&]<class V>(V(&x)[N], auto halfway) ZELM_INLINE_LAMBDA {
    substitute<N>(
        x, [&](int i, int j) { return V(f.e[i][j]); }, [&](const V& v, int i) { return v * V(f.inverse[i]); }, halfway);
  });
}

template <int N, bool beside, class A, class B, class D>
ZELM_INLINE void solve_fixed(const A& a, const int* index, const B& b, const D& d, int count) {
  if constexpr (!A::array && B::array) solve_one_matrix<N, beside>(a, index, b, d, count);
  else solve_each<N, beside>(a, index, b, d, count);
}

/// Contiguous elements in the standard layout.
template <class... Views>
inline constexpr bool all_strided = (Views::plain && ...);

template <int N, class A, class B, class D>
ZELM_INLINE ZelStatus solve_small(const A& a, const int* index, const B& b, const D& d, int count) {
  if (b.interleaved() || d.interleaved()) {
    solve_fixed<N, true>(a, index, b, d, count);
    return zelStsOk;
  }
  if constexpr (all_strided<A, B, D>) {
    if (B::array && (!A::array || a.tight(N, N)) && b.tight(1, N) && d.tight(1, N)) {
      with_stores<N>(b, tight_array<1, N>(d), count, [&](const auto& to) ZELM_INLINE_LAMBDA {
        solve_fixed<N, false>(tight_array<N, N>(a), index, tight_array<1, N>(b), to, count);
      });
      return zelStsOk;
    }
  }
  solve_fixed<N, false>(a, index, b, d, count);
  return zelStsOk;
}

template <class A, class B, class D>
ZELM_INLINE ZelStatus solve(A a, const int* index, B b, D d, int order, int count) {
  switch (order) {
    case 3: return solve_small<3>(a, index, b, d, count);
    case 4: return solve_small<4>(a, index, b, d, count);
    case 5: return solve_small<5>(a, index, b, d, count);
    case 6: return solve_small<6>(a, index, b, d, count);
  }
  using Sum = std::conditional_t<
      B::array, PairedSum,
      std::conditional_t<std::is_same_v<typename D::T, float> && A::plain && B::plain && D::plain, BlockedSum, PlainSum>>;
  for (std::ptrdiff_t k = 0; k < count; ++k)
    solve_core<Sum>(a.object(k), A::array ? index + k * order : index, b.object(k), d.object(k), order);
  return zelStsOk;
}

}  // namespace zelm::solvers::lu
