// apply.hpp: dst = op(A) x and dst = A x + y. One small matrix and very many vectors is the case that matters most.
//
// Which kernel sums in which order is part of its contract: `Sums` names the order of the sizes 3 x 3 to 6 x 6 and that of all
// others. dst must lie apart from the sources.
#pragma once
#include <utility>

#include "products/apply_fixed.hpp"
#include "zelm_types.h"

// Single objects of any stride, which the kernels of lists with strides call for each object.
extern "C" {
ZelStatus p8_ownzelmMul_mv_32f_S2(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
                                  const float* pSrc2, int src2Stride2, int src2Len, float* pDst, int dstStride2);
ZelStatus p8_ownzelmMul_tv_32f_S2(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
                                  const float* pSrc2, int src2Stride2, int src2Len, float* pDst, int dstStride2);
ZelStatus p8_ownzelmMul_mv_64f_S2(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
                                  const double* pSrc2, int src2Stride2, int src2Len, double* pDst, int dstStride2);
ZelStatus p8_ownzelmMul_tv_64f_S2(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
                                  const double* pSrc2, int src2Stride2, int src2Len, double* pDst, int dstStride2);

// Large batches whose vectors all begin at multiples of 16 bytes, in sum orders of their own.
void p8_ownmMul_mva_32f_5x5(const float* pSrc1, int src1Stride1, const float* pSrc2, int src2Stride0, float* pDst,
                            int dstStride0, int count);
void p8_ownmGaxpy_mvav_32f_4x4(const float* pSrc1, int src1Stride1, const float* pSrc2, int src2Stride0, const float* pSrc3,
                               float* pDst, int dstStride0, int count);
void p8_ownmGaxpy_mvav_32f_5x5(const float* pSrc1, int src1Stride1, const float* pSrc2, int src2Stride0, const float* pSrc3,
                               float* pDst, int dstStride0, int count);
void p8_ownmGaxpy_mvav_32f_6x6(const float* pSrc1, int src1Stride1, const float* pSrc2, int src2Stride0, const float* pSrc3,
                               float* pDst, int dstStride0, int count);
}

namespace zelm::products::apply {

/// Resident, and large aligned batches go to the routines above.
struct ResidentOrBatched : Resident {};

template <int N, class A, class B, class C, class D>
ZELM_INLINE bool batched(const A& a, const B& b, const C& c, const D& d, int count) {
  if (!aligned_objects(b) || !aligned_objects(d)) return false;
  if constexpr (std::is_same_v<C, None>) {
    if (N != 5 || count < 5) return false;
    p8_ownmMul_mva_32f_5x5(a.first, int(a.row_stride), b.first, int(b.stride0), d.first, int(d.stride0), count);
    return true;
  } else {
    if (N == 3 || count < 12) return false;
    constexpr auto routine = N == 4   ? p8_ownmGaxpy_mvav_32f_4x4
                             : N == 5 ? p8_ownmGaxpy_mvav_32f_5x5
                                      : p8_ownmGaxpy_mvav_32f_6x6;
    routine(a.first, int(a.row_stride), b.first, int(b.stride0), c.first, d.first, int(d.stride0), count);
    return true;
  }
}

/// The stored rows are op(A)'s columns or its rows.
template <bool turned, class A>
ZELM_INLINE auto columns_of(const A& a) {
  if constexpr (turned) return a;
  else return transposed(a);
}
template <bool turned, class A>
ZELM_INLINE auto rows_for(const A& a) {
  return columns_of<!turned>(a);
}

/// The fastest way for contiguous elements of whole arrays; the bits are the order's.
template <class Order, int N, bool turned, class A, class B, class C, class D>
ZELM_INLINE void fixed_contiguous(const A& a, const B& b, const C& c, const D& d, int count) {
  using T = typename D::T;
  const auto columns = columns_of<turned>(a);
  if constexpr (A::array && turned) in_columns<Order, N>(columns, b, c, d, count);
  else if constexpr (N % 2 == 0 && !std::is_same_v<Order, Ascending>) in_pairs<N>(rows_for<turned>(a), b, c, d, count);
  else if constexpr (std::is_same_v<T, double>) in_columns<Order, N>(columns, b, c, d, count);
  else in_lanes<Order, N, turned, false>(a, b, c, d, count);
}

template <class Order, int N, bool turned, class A, class B, class C, class D>
ZELM_INLINE void fixed(const A& a, const B& b, const C& c, const D& d, int count) {
  using T = typename D::T;
  constexpr bool contiguous = std::is_same_v<typename D::Object, StridedObject<T, true>>;
  if constexpr (std::is_same_v<Order, ResidentOrBatched>)
    if (batched<N>(a, b, c, d, count)) return;
  if constexpr (!D::array || std::is_same_v<Order, AsBlocks>) {
    in_columns<Order, N>(columns_of<turned>(a), b, c, d, count);
  } else if constexpr (!contiguous) {
    // Matrices column by column have vectors of adjacent elements all the same.
    if constexpr (!A::array && requires { b.as_adjacent(); }) {
      const auto adjacent = [](const auto& view) {
        if constexpr (requires { view.element_stride; }) return view.element_stride == Bytes(sizeof(T));
        else return true;
      };
      if (adjacent(b) && adjacent(c) && adjacent(d)) {
        if constexpr (std::is_same_v<C, None>)
          return in_columns<Order, N>(columns_of<turned>(a), b.as_adjacent(), c, d.as_adjacent(), count);
        else return in_columns<Order, N>(columns_of<turned>(a), b.as_adjacent(), c.as_adjacent(), d.as_adjacent(), count);
      }
    }
    in_any_memory<N, turned>(a, b, c, d, count);
  } else {
    // In whole registers, and if that is most of a cache, past the caches.
    if constexpr (N % Pack<T>::lanes == 0 && requires { d.first; }) {
      if (d.tight(1, N) && worth_streaming(d.first, std::ptrdiff_t(N) * count)) {
        fixed_contiguous<Order, N, turned>(a, b, c, Streamed<D>{d}, count);
        return _mm_sfence();
      }
    }
    fixed_contiguous<Order, N, turned>(a, b, c, d, count);
  }
}

// Sums of all other sizes: of one object, with the ways of apply_any.hpp

/// in_blocks
struct Blocks {
  using InLanes = LanesOfBlocks;
  template <class T>
  using InColumns = Led<0, Pack<T>::lanes>;
  template <bool turned, class A, class X, class D>
  static ZELM_INLINE void one(const A& a, const X& x, None, const D& d, int rows, int length) {
    in_blocks<turned>(a.base, a.row_stride, x.base, d.base, rows, length);
  }
};

/// in_rows
struct Rows {
  using InLanes = LanesOfRows;
  template <class T>
  using InColumns = Led<0, 8>;
  template <bool turned, class A, class X, class D>
  static ZELM_INLINE void one(const A& a, const X& x, None, const D& d, int rows, int length) {
    in_rows(a.base, a.row_stride, x.base, d.base, rows, length);
  }
};

/// one_by_one
struct OneByOne {
  template <bool turned, class A, class X, class Y, class D>
  static ZELM_INLINE void one(const A& a, const X& x, const Y& y, const D& d, int rows, int length) {
    if constexpr (turned) one_by_one<true>(TransposedObject<A>{a}, x, y, d, rows, length);
    else one_by_one<true>(a, x, y, d, rows, length);
  }
};

/// gathered
struct Gathered {
  template <bool turned, class A, class X, class Y, class D>
  static ZELM_INLINE void one(const A& a, const X& x, const Y& y, const D& d, int rows, int length) {
    static_assert(!turned);
    gathered(a, x, y, d, rows, length);
  }
};

/// The kernel of single objects of any stride.
template <bool turned, class T>
ZELM_INLINE constexpr auto single_strided() {
  if constexpr (std::is_same_v<T, float>) return turned ? p8_ownzelmMul_tv_32f_S2 : p8_ownzelmMul_mv_32f_S2;
  else return turned ? p8_ownzelmMul_tv_64f_S2 : p8_ownzelmMul_mv_64f_S2;
}

/// In sizes 3 x 3 to 6 x 6 `Fixed`, in all others `General`.
template <class Fixed, class General>
struct Sums {
  template <bool turned, class A, class B, class C, class D>
  static ZELM_INLINE void run(const A& a, int width, int height, const B& b, const C& c, const D& d, int count) {
    if (width == height) switch (width) {
        case 3: return fixed<Fixed, 3, turned>(a, b, c, d, count);
        case 4: return fixed<Fixed, 4, turned>(a, b, c, d, count);
        case 5: return fixed<Fixed, 5, turned>(a, b, c, d, count);
        case 6: return fixed<Fixed, 6, turned>(a, b, c, d, count);
      }
    const int rows = turned ? width : height, length = turned ? height : width;
    std::ptrdiff_t n = 0;
    if constexpr (std::is_same_v<General, OneByOne> && D::array && !D::plain) {
      const auto beside = [](const auto& view) { return !view.array || view.interleaved(); };
      if (beside(a) && beside(b) && beside(c) && beside(d)) {
        if constexpr (turned) n = one_by_one_beside(transposed(a), b, c, d, rows, length, count);
        else n = one_by_one_beside(a, b, c, d, rows, length, count);
      }
    }
    const auto one = [=](std::ptrdiff_t k) {
      General::template one<turned>(a.object(k), b.object(k), c.object(k), d.object(k), rows, length);
    };
    if constexpr (!A::array && D::array && requires { typename General::InLanes; }) {
      using T = typename D::T;
      if constexpr (B::plain && D::plain) {
        // Columns of 8 and 12 fill whole registers, all their rows are in blocks, and aligned vectors have no leading terms.
        if (rows == length && aligned_objects(b)) {
          using Order = typename General::template InColumns<T>;
          if (rows == 8) return in_columns<Order, 8>(columns_of<turned>(a), b, c, d, count);
          if (rows == 12) return in_columns<Order, 12>(columns_of<turned>(a), b, c, d, count);
        }
      }
      if (count >= kLeastVectors && length <= kMostHeld && rows <= kMostHeld / length)
        return in_object_lanes<typename General::InLanes>(rows_for<turned>(a).object(0), b, d, rows, length, count, one);
    }
    for (; n < count; ++n) one(n);
  }
};

/// Every object by the kernel of single objects of any stride.
struct Singles {
  template <bool turned, class A, class B, class C, class D>
  static ZELM_INLINE void run(const A& a, int width, int height, const B& b, const C&, const D& d, int count) {
    constexpr auto kernel = single_strided<turned, typename D::T>();
    for (std::ptrdiff_t n = 0; n < count; ++n) {
      const auto m = a.object(n);
      const auto x = b.object(n);
      const auto z = d.object(n);
      kernel(m.base, int(m.row_stride), int(m.element_stride), width, height, x.base, int(x.element_stride),
             turned ? height : width, z.base, int(z.element_stride));
    }
  }
};

// The formulas, as the kernels call them

template <class S, class A, class B, class D>
ZELM_INLINE ZelStatus mul(A a, int width, int height, B b, int /*length*/, D d, int count) {
  if constexpr (requires { a.stored.element_stride; } && !A::Object::turned && !std::is_same_v<S, Singles>) {
    // Of a matrix of any element stride the transpose is one with its strides exchanged.
    std::swap(a.stored.row_stride, a.stored.element_stride);
    S::template run<false>(a.stored, height, width, b, None{}, d, count);
  } else if constexpr (requires { a.stored; }) {
    S::template run<true>(a.stored, width, height, b, None{}, d, count);
  } else {
    S::template run<false>(a, width, height, b, None{}, d, count);
  }
  return zelStsOk;
}

template <class S, class A, class B, class C, class D>
ZELM_INLINE ZelStatus gaxpy(A a, int width, int height, B b, int /*length*/, C c, int /*length*/, D d, int count) {
  S::template run<false>(a, width, height, b, c, d, count);
  return zelStsOk;
}

}  // namespace zelm::products::apply
