// cholesky.hpp: A = L L^T of symmetric positive definite matrices, row by row, and the solution of A x = b from L.
//
// The factor is stored with the reciprocals of L's diagonal on its diagonal: neither road divides by a pivot. Only the lower
// triangle of the source is read, and only that of the destination is written, which may be the source. Orders 3 to 6 run
// several objects at once, one in each lane of a register; a group with a pivot that fails goes through the serial road, which
// leaves the state that a failure is to leave. Every term of a sum is subtracted alone, in rising order, but where SplitSums says
// otherwise. Error bounds: Higham, Accuracy and Stability of Numerical Algorithms, 2nd ed., section 10.1; measured in
// tests/solvers/cholesky_accuracy_test.cpp.
#pragma once
#include "frame/alternating.hpp"
#include "products/sums.hpp"
#include "zelm_types.h"

extern "C" {

/// Orders 3 to 6 of contiguous elements, four objects in four lanes from the first one on, the last one to three alone. Returns 0,
/// or the lanes of the group that failed, of which the rows before the failing one are then written.
int p8_CholoDec_32f_V8(const float* pSrc, int srcStride0, int srcStride1, float* pDst, int dstStride0, int dstStride1,
                       int widthHeight, int count);

/// Orders 3 to 6, one factor for all vectors.
void p8_CholBackSubst_32f_V8(const float* pSrc1, int src1Stride1, const float* pSrc2, int src2Stride0, float* pDst,
                             int dstStride0, int widthHeight, int count);
void p8_CholBackSubst_32f_S2_V8(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride0,
                                int src2Stride2, float* pDst, int dstStride0, int dstStride2, int widthHeight, int count);

/// Four-lane constants of the first.
extern const struct ConstTable { alignas(16) float Half[4], Three[4], Zero[4]; } CONST_TABLE;
}

namespace zelm::solvers::cholesky {

// What the kernels differ in. A pivot of at most `limit` fails; a NaN passes.

/// The rule.
struct InOrder {
  static constexpr bool four_objects = false;  // orders 3 to 6 run by the four-object kernel
  static constexpr bool split = false;         // sums of eight and more terms in eight lanes
  static constexpr double limit(int) { return 0; }
  static constexpr int held(int) { return 0; }  // rows that are written only when all of them have passed
};
struct SplitSums : InOrder {
  static constexpr bool split = true;
};
struct FourObjects : SplitSums {
  static constexpr bool four_objects = true;
};
struct FourVectors : InOrder {
  static constexpr bool four_objects = true;
};
/// Order 3 has a path of its own.
struct ElementTables : InOrder {
  static constexpr double limit(int order) { return order == 3 ? 0x1p-23 : 0; }
  static constexpr int held(int order) { return order == 3 ? 2 : 0; }
};
/// The loops for any order have a limit, and order 6 shares it.
struct LimitedLoops : InOrder {
  static constexpr double limit(int order) { return order >= 3 && order <= 5 ? 0 : 0x1p-52; }
};

/// 1 / sqrt(d). In float one Newton step from the approximation and no division: a relative error of some 2^-22.
ZELM_INLINE Pack<float> inverse_root(Pack<float> d) {
  const Pack<float> r = inverse_root_estimate(d);
  return (r * Pack<float>::splat(-0.5f)) * ((d * r) * r - Pack<float>::splat(3));
}
ZELM_INLINE Pack<double> inverse_root(Pack<double> d) { return Pack<double>::splat(1) / sqrt(d); }

/// The same step as the four-object kernel groups it.
ZELM_INLINE Pack<float> inverse_root_of_four(Pack<float> d) {
  const Pack<float> r = inverse_root_estimate(d);
  return (r * (Pack<float>::load_aligned(CONST_TABLE.Three) - (r * r) * d)) * Pack<float>::load_aligned(CONST_TABLE.Half);
}

/// Lower triangle of order N in the lanes of registers, one object in each.
template <class T, int N>
struct Triangle {
  using P = Pack<T>;
  static constexpr int L = P::lanes;
  P e[N][N];

  template <class Object>
  ZELM_INLINE void load_row(const Object* objects, auto i) {
    P row[i + 1];
    zelm::load_row(row, objects, [=](int) ZELM_INLINE_LAMBDA { return int(i); });
    ZELM_UNROLL for (int j = 0; j <= i; ++j) e[i][j] = row[j];
  }
  template <class Object>
  ZELM_INLINE void store_row(const Object* objects, auto i) const {
    P row[i + 1];
    ZELM_UNROLL for (int j = 0; j <= i; ++j) row[j] = e[i][j];
    zelm::store_row(row, objects, [=](int) ZELM_INLINE_LAMBDA { return int(i); });
  }

  /// Objects k, ..., k + L - 1. `beside`: they are interleaved.
  template <bool beside, class View>
  ZELM_INLINE void load(const View& view, std::ptrdiff_t k, int valid = L) {
    if (beside && valid == L) {
      const auto first = view.object(k);
      ZELM_UNROLL for (int i = 0; i < N; ++i) { ZELM_UNROLL for (int j = 0; j <= i; ++j) e[i][j] = P::load(first.at(i, j)); }
    } else {
      typename View::Object objects[L];
      view.objects(k, valid, objects);
      unroll<N>([&](auto i) ZELM_INLINE_LAMBDA { load_row(objects, i); });
    }
  }
  template <bool beside, class View>
  ZELM_INLINE void store(const View& view, std::ptrdiff_t k) const {
    if constexpr (beside) {
      const auto first = view.object(k);
      ZELM_UNROLL for (int i = 0; i < N; ++i) { ZELM_UNROLL for (int j = 0; j <= i; ++j) e[i][j].store(first.at(i, j)); }
    } else {
      typename View::Object objects[L];
      view.objects(k, L, objects);
      unroll<N>([&](auto i) ZELM_INLINE_LAMBDA { store_row(objects, i); });
    }
  }
  /// One object, in the first lane.
  template <class Object>
  ZELM_INLINE void load_one(const Object& object) {
    ZELM_UNROLL for (int i = 0; i < N; ++i) {
      ZELM_UNROLL for (int j = 0; j <= i; ++j) e[i][j] = P::template load_first<1>(object.at(i, j));
    }
  }
  /// One object, in all lanes.
  template <class Object>
  void spread(const Object& object) {
    for (int i = 0; i < N; ++i)
      for (int j = 0; j <= i; ++j) e[i][j] = P::splat(object.element(i, j));
  }

  /// Row i of the factor from that of the source, up to the pivot, which is returned and of which the reciprocal root is due.
  ZELM_INLINE P factor_row(int i) {
    P pivot = e[i][i];
    ZELM_UNROLL for (int j = 0; j < i; ++j) {
      P s = e[i][j];
      ZELM_UNROLL for (int k = 0; k < j; ++k) s = s - e[i][k] * e[j][k];
      e[i][j] = s * e[j][j];
      pivot = pivot - e[i][j] * e[i][j];
    }
    return pivot;
  }
};

/// L L^T x = b, in place; factor(i, j) is an element of L.
template <int N, class V, class Factor, class Halfway = Nothing>
ZELM_INLINE void substitute(V (&x)[N], Factor factor, Halfway halfway = {}) {
  ZELM_UNROLL for (int i = 0; i < N; ++i) {
    ZELM_UNROLL for (int j = 0; j < i; ++j) x[i] = less_product(x[i], factor(i, j), x[j]);
    x[i] = x[i] * factor(i, i);
  }
  halfway();
  ZELM_UNROLL for (int i = N - 1; i >= 0; --i) {
    ZELM_UNROLL for (int j = i + 1; j < N; ++j) x[i] = less_product(x[i], factor(j, i), x[j]);
    x[i] = x[i] * factor(i, i);
  }
}

// Decomposition

/// Objects first, ..., last - 1 one after the other. Returns the lanes of the pivot that failed.
template <class Rules, int N, class A, class D>
__attribute__((noinline)) int decompose_each(A a, D d, std::ptrdiff_t first, std::ptrdiff_t last) {
  using T = typename D::T;
  using P = Pack<T>;
  constexpr int held = Rules::held(N);
  for (std::ptrdiff_t k = first; k < last; ++k) {
    const auto to = d.object(k);
    Triangle<T, N> f;
    f.load_one(a.object(k));
    bool failed = false;
    unroll<N>([&](auto i) ZELM_INLINE_LAMBDA {
      if (failed) return;
      const P pivot = f.factor_row(i);
      const auto put = [&](int row, int columns) ZELM_INLINE_LAMBDA {
        ZELM_UNROLL for (int j = 0; j < columns; ++j) f.e[row][j].template store_first<1>(to.at(row, j));
      };
      if (i >= held) put(i, i);
      failed = lane_bits(P::splat(T(Rules::limit(N))) >= pivot) & 1;
      if (failed) return;
      if constexpr (Rules::four_objects) f.e[i][i] = inverse_root_of_four(pivot);
      else f.e[i][i] = inverse_root(pivot);
      if (i >= held) f.e[i][i].template store_first<1>(to.at(i, i));
      if (i == held - 1) {
        ZELM_UNROLL for (int row = 0; row < held; ++row) put(row, row + 1);
      }
    });
    if (failed) return 1;
  }
  return 0;
}

/// A group in which a pivot failed is left to the serial road: nothing of it has been written.
template <class Rules, int N, bool beside, class A, class D>
ZelStatus decompose_lanes(A a, D d, int count) {
  using T = typename D::T;
  using P = Pack<T>;
  constexpr int L = P::lanes;
  std::ptrdiff_t k = 0;
  for (; k + L <= count; k += L) {
    Triangle<T, N> f;
    f.template load<beside>(a, k);
    P failed = P::zero();
    ZELM_UNROLL for (int i = 0; i < N; ++i) {
      const P pivot = f.factor_row(i);
      failed = failed | (P::splat(T(Rules::limit(N))) >= pivot);
      f.e[i][i] = inverse_root(pivot);
    }
    if (lane_bits(failed)) break;
    f.template store<beside>(d, k);
  }
  return decompose_each<Rules, N>(a, d, k, count) ? zelStsNotPositiveDefinite : zelStsOk;
}

/// Four objects stop together, at the first row in which one of them fails.
template <int N, class A, class D>
int decompose_groups(A a, D d, int count) {
  constexpr int L = 4;
  std::ptrdiff_t k = 0;
  for (; k + L <= count; k += L) {
    typename A::Object from[L];
    typename D::Object to[L];
    a.objects(k, L, from);
    d.objects(k, L, to);
    Triangle<float, N> f;
    int failed = 0;
    unroll<N>([&](auto i) ZELM_INLINE_LAMBDA {
      if (failed) return;
      f.load_row(from, i);
      const Pack<float> pivot = f.factor_row(i);
      failed = lane_bits(Pack<float>::load_aligned(CONST_TABLE.Zero) >= pivot);
      if (failed) return;
      f.e[i][i] = inverse_root_of_four(pivot);
      f.store_row(to, i);
    });
    if (failed) return failed;
  }
  return decompose_each<FourObjects, N>(a, d, k, count);
}

/// first - sum over k < terms of a(k) b(k).
template <class Sum, class T, class A, class B>
ZELM_INLINE T residual(T first, int terms, A a, B b) {
  int k = 0;
  if constexpr (Sum::split) {
    if (terms >= 8) {
      products::EightLanes<T> sum(first);
      for (; k + 8 <= terms; k += 8)
        sum.subtract(
            k, [&](int m) { return Pack<T>::load(a(m)); }, [&](int m) { return Pack<T>::load(b(m)); });
      first = sum.sum();
    }
  }
  for (; k < terms; ++k) first = first - load(a(k)) * load(b(k));
  return first;
}

/// Any order: as decompose_each, row by row in memory.
template <class Rules, class S, class D>
ZelStatus decompose_any(const S& s, const D& d, int n) {
  using T = typename D::T;
  using P = Pack<T>;
  for (int i = 0; i < n; ++i) {
    const auto left = [&](int j) {
      return residual<Rules>(
          s.element(i, j), j, [&](int k) { return d.at(i, k); }, [&](int k) { return d.at(j, k); });
    };
    for (int j = 0; j < i; ++j) store(d.at(i, j), left(j) * d.element(j, j));
    const T pivot = left(i);
    if (T(Rules::limit(n)) >= pivot) return zelStsNotPositiveDefinite;
    inverse_root(P::splat(pivot)).template store_first<1>(d.at(i, i));
  }
  return zelStsOk;
}

template <class Rules, int N, class A, class D>
ZELM_INLINE ZelStatus decompose_small(A a, D d, int count) {
  if constexpr (!A::array) return decompose_each<Rules, N>(a, d, 0, 1) ? zelStsNotPositiveDefinite : zelStsOk;
  else if constexpr (can_interleave<A>)
    if (a.interleaved() && d.interleaved()) return decompose_lanes<Rules, N, true>(a, d, count);
  return decompose_lanes<Rules, N, false>(a, d, count);
}

template <class Rules, class A, class D>
ZELM_INLINE ZelStatus decompose(A a, D d, int order, int count) {
  if constexpr (Rules::four_objects) {
    if (order >= 3 && order <= 6)
      return p8_CholoDec_32f_V8(a.first, int(a.stride0), int(a.row_stride), d.first, int(d.stride0), int(d.row_stride), order,
                                count)
                 ? zelStsNotPositiveDefinite
                 : zelStsOk;
  } else {
    switch (order) {
      case 3: return decompose_small<Rules, 3>(a, d, count);
      case 4: return decompose_small<Rules, 4>(a, d, count);
      case 5: return decompose_small<Rules, 5>(a, d, count);
      case 6: return decompose_small<Rules, 6>(a, d, count);
    }
  }
  for (std::ptrdiff_t k = 0; k < count; ++k)
    if (const ZelStatus status = decompose_any<Rules>(a.object(k), d.object(k), order)) return status;
  return zelStsOk;
}

// Solution

/// One object alone.
template <int N, class A, class B, class D>
__attribute__((noinline)) void solve_one(A a, B b, D d) {
  using T = typename D::T;
  using P = Pack<T>;
  const auto from = b.object(0);
  const auto to = d.object(0);
  Triangle<T, N> f;
  f.load_one(a.object(0));
  P x[N];
  ZELM_UNROLL for (int j = 0; j < N; ++j) x[j] = P::template load_first<1>(from.at(0, j));
  substitute(x, [&](int i, int j) ZELM_INLINE_LAMBDA { return f.e[i][j]; });
  ZELM_UNROLL for (int j = 0; j < N; ++j) x[j].template store_first<1>(to.at(0, j));
}

/// `factors` is a view of as many as there are vectors, or the triangle of the one for all.
template <int N, bool beside, class F, class B, class D>
ZELM_INLINE void solve_blocks(const F& factors, B b, D d, int count) {
  using T = typename D::T;
  constexpr int L = Pack<T>::lanes;
  constexpr bool shared = std::is_same_v<F, Triangle<T, N>>;
  constexpr int own = kSixteenRegisters ? 3 : 2;  // with four, order 4 takes up to a fifth more time
  for_alternating<N, shared, own, beside>(
      d, count, [=]<class V>(V(&x)[N], std::ptrdiff_t k, auto valid, auto halfway) ZELM_INLINE_LAMBDA {
        load_vectors<beside>(x, b, k, valid);
        if constexpr (shared) {
          substitute(
              x, [&](int i, int j) ZELM_INLINE_LAMBDA { return V(factors.e[i][j]); }, halfway);
        } else {
          Triangle<T, N> f[V::packs];
          ZELM_UNROLL for (int q = 0; q < V::packs; ++q) f[q].template load<beside>(factors, k + q * L, valid);
          substitute(
              x, [&](int i, int j) ZELM_INLINE_LAMBDA { return V::each([&](int q) { return f[q].e[i][j]; }); }, halfway);
        }
      });
}

/// A factor for each vector, or one for all.
template <int N, bool beside, class A, class B, class D>
void solve_vectors(A a, B b, D d, int count) {
  if constexpr (A::array) {
    solve_blocks<N, beside>(a, b, d, count);
  } else {
    Triangle<typename D::T, N> f;
    f.spread(a.object(0));
    solve_blocks<N, beside>(f, b, d, count);
  }
}

template <int N, class A, class B, class D>
ZELM_INLINE ZelStatus solve_small(A a, B b, D d, int count) {
  if constexpr (!B::array) return solve_one<N>(a, b, d), zelStsOk;
  if constexpr (can_interleave<B>) {
    if (A::array ? a.interleaved() && b.interleaved() && d.interleaved() : b.interleaved() || d.interleaved())
      return solve_vectors<N, true>(a, b, d, count), zelStsOk;
  }
  if constexpr (A::plain && B::plain && D::plain) {
    if ((!A::array || a.tight(N, N)) && b.tight(1, N) && d.tight(1, N)) {
      with_stores<N>(b, tight_array<1, N>(d), count, [&](const auto& to) ZELM_INLINE_LAMBDA {
        solve_vectors<N, false>(tight_array<N, N>(a), tight_array<1, N>(b), to, count);
      });
      return zelStsOk;
    }
  }
  solve_vectors<N, false>(a, b, d, count);
  return zelStsOk;
}

/// Terms before x reaches a multiple of 16 bytes, which stay outside the lanes; `most` where it never does.
ZELM_INLINE int lead_in(const float* x, int most) {
  const auto address = reinterpret_cast<std::uintptr_t>(x);
  return address % 4 ? most : int(-address / 4 % 4);
}

/// Any order: y goes to x, and x is finished there. Of a sum over a column, whose elements lie apart, no kernel makes lanes.
template <class Rules, class F, class B, class X>
void solve_any(const F& f, const B& b, const X& x, int n) {
  const auto at = [&](int j) { return x.at(0, j); };
  for (int i = 0; i < n; ++i) {
    auto s = b.element(0, i);
    int lead = i;
    if constexpr (Rules::split)
      if (const int before = lead_in(at(0), i); i - before >= 8) lead = before;
    s = residual<InOrder>(
        s, lead, [&](int j) { return f.at(i, j); }, at);
    s = residual<Rules>(
        s, i - lead, [&](int j) { return f.at(i, lead + j); }, [&](int j) { return at(lead + j); });
    store(at(i), s * f.element(i, i));
  }
  for (int i = n - 1; i >= 0; --i) {
    const auto s = residual<InOrder>(
        x.element(0, i), n - 1 - i, [&](int j) { return f.at(i + 1 + j, i); }, [&](int j) { return at(i + 1 + j); });
    store(at(i), s * f.element(i, i));
  }
}

template <class Rules, class A, class B, class D>
ZELM_INLINE ZelStatus solve(A a, B b, D d, int order, int count) {
  if constexpr (Rules::four_objects) {
    if (order >= 3 && order <= 6) {
      if constexpr (A::plain)
        p8_CholBackSubst_32f_V8(a.first, int(a.row_stride), b.first, int(b.stride0), d.first, int(d.stride0), order, count);
      else
        p8_CholBackSubst_32f_S2_V8(a.first, int(a.row_stride), int(a.element_stride), b.first, int(b.stride0),
                                   int(b.element_stride), d.first, int(d.stride0), int(d.element_stride), order, count);
      return zelStsOk;
    }
  } else {
    switch (order) {
      case 3: return solve_small<3>(a, b, d, count);
      case 4: return solve_small<4>(a, b, d, count);
      case 5: return solve_small<5>(a, b, d, count);
      case 6: return solve_small<6>(a, b, d, count);
    }
  }
  for (std::ptrdiff_t k = 0; k < count; ++k) solve_any<Rules>(a.object(k), b.object(k), d.object(k), order);
  return zelStsOk;
}

}  // namespace zelm::solvers::cholesky
