// dot.hpp: dot products of vectors.
//
// Sums of widths 4 to 6 stand in ascending order, but in aligned batches of arrays whose elements are adjacent: there neighbours are
// added first. Every kernel has its own idea of a batch, so the last bit of a result can depend on alignment, count and place.
// |result - exact| <= n u / (1 - n u) * (|a| . |b|), u half an epsilon (Higham, Accuracy and Stability of Numerical Algorithms,
// 2nd ed., section 3.1).
#pragma once
#include "products/reduce.hpp"
#include "zelm_types.h"

extern "C" {
/// Whole arrays of aligned vectors; the sums of all of them are paired.
ZelStatus p8_ownmDotProduct_vava_32f_4x1(const float* pSrc1, int src1Stride0, const float* pSrc2, int src2Stride0, float* pDst,
                                         int count);
ZelStatus p8_ownmDotProduct_vava_32f_5x1(const float* pSrc1, int src1Stride0, const float* pSrc2, int src2Stride0, float* pDst,
                                         int count);
ZelStatus p8_ownmDotProduct_vava_32f_6x1(const float* pSrc1, int src1Stride0, const float* pSrc2, int src2Stride0, float* pDst,
                                         int count);
ZelStatus p8_ownmDotProduct_vav_32f_5x1_P8(const float* pSrc1, int src1Stride0, const float* pSrc2, float* pDst, int count);
ZelStatus p8_ownmDotProduct_vav_32f_6x1_P8(const float* pSrc1, int src1Stride0, const float* pSrc2, float* pDst, int count);
}

namespace zelm::products {

/// Arrays below this number of vectors are no batch, however they lie.
inline constexpr int kLeastBatch = 5;

// Policies of the kernels: the sums of width N. Those of width 3 are the same in every order.

struct InOrder {
  template <int N, class Terms, class T>
  static ZELM_INLINE void run(const Terms& terms, T* d, int count) {
    reduce_fixed<N>(terms, d, count, Sums<Ascending, Ascending>{});
  }
};

/// Arrays of pairs: full blocks of aligned vectors.
struct AlignedPairs {
  template <int N, class Terms, class T>
  static ZELM_INLINE void run(const Terms& terms, T* d, int count) {
    const bool batch = N > 3 && count >= kLeastBatch && aligned_objects(terms.a) && aligned_objects(terms.b) && aligned(d);
    if (!batch) return InOrder::run<N>(terms, d, count);
    if constexpr (std::is_same_v<T, double>) {
      reduce_fixed<N>(terms, d, count, Sums<Paired, Ascending>{});
    } else {
      constexpr auto routine = N == 4   ? p8_ownmDotProduct_vava_32f_4x1
                               : N == 5 ? p8_ownmDotProduct_vava_32f_5x1
                                        : p8_ownmDotProduct_vava_32f_6x1;
      routine(terms.a.first, int(terms.a.stride0), terms.b.first, int(terms.b.stride0), d, count);
    }
  }
};

/// Vectors with one: of width 4 every full block of floats, and of doubles where the result is aligned.
struct AlignedVectors {
  template <int N, class Terms, class T>
  static ZELM_INLINE void run(const Terms& terms, T* d, int count) {
    constexpr bool single = std::is_same_v<T, float>;
    if (N == 4 && (single || aligned(d))) return reduce_fixed<N>(terms, d, count, Sums<Paired, Ascending>{});
    const bool batch = N > 4 && count >= kLeastBatch && aligned_objects(terms.a) && aligned(d);
    if (!batch) return InOrder::run<N>(terms, d, count);
    if constexpr (!single) {
      reduce_fixed<N>(terms, d, count, Sums<Paired, Ascending>{});
    } else {
      constexpr auto routine = N == 5 ? p8_ownmDotProduct_vav_32f_5x1_P8 : p8_ownmDotProduct_vav_32f_6x1_P8;
      routine(terms.a.first, int(terms.a.stride0), terms.b.first, d, count);
    }
  }
};

/// Listed vectors with one, of widths 5 and 6: those full blocks in which every vector is aligned.
struct AlignedBlocks {
  template <class View>
  struct Sum : Sums<Ascending, Ascending> {
    View view;
    template <class V, int N>
    ZELM_INLINE V block(const V (&p)[N], std::ptrdiff_t k) const {
      bool paired = true;
      for (int l = 0; l < V::lanes; ++l) paired &= aligned(view.object(k + l).base);
      return paired ? Paired::of(p) : Ascending::of(p);
    }
  };
  template <int N, class Terms, class T>
  static ZELM_INLINE void run(const Terms& terms, T* d, int count) {
    if (N < 5 || count < kLeastBatch || !aligned(d)) return InOrder::run<N>(terms, d, count);
    reduce_fixed<N>(terms, d, count, Sum<decltype(terms.a)>{{}, terms.a});
  }
};

template <class Policy = InOrder, class A, class B>
ZELM_INLINE ZelStatus dot(A a, B b, typename A::T* d, int width, int count) {
  const Products<A, B> terms{a, b};
  switch (width) {
    case 3: Policy::template run<3>(terms, d, count); break;
    case 4: Policy::template run<4>(terms, d, count); break;
    case 5: Policy::template run<5>(terms, d, count); break;
    case 6: Policy::template run<6>(terms, d, count); break;
    default: reduce_wide(terms, d, width, count, [](auto sum) ZELM_INLINE_LAMBDA { return sum; });
  }
  return zelStsOk;
}

}  // namespace zelm::products
