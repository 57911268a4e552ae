// sums.hpp: sums of products along one index k, in the orders that products and reductions share. Which kernel sums in which order
// is part of its contract, since the order decides the rounding.
#pragma once
#include <cstdint>

#include "simd/pack.hpp"

namespace zelm::products {

/// (l0 + l2) + (l1 + l3), or l0 + l1.
ZELM_INLINE float sum_of_lanes(Pack<float> a) {
  const Pack<float> pairs = a + Pack<float>{_mm_movehl_ps(a.raw, a.raw)};
  return _mm_cvtss_f32(_mm_add_ss(pairs.raw, _mm_movehdup_ps(pairs.raw)));
}
ZELM_INLINE double sum_of_lanes(Pack<double> a) { return _mm_cvtsd_f64(_mm_add_sd(a.raw, _mm_unpackhi_pd(a.raw, a.raw))); }

/// Elements in front of the first one that lies at a multiple of 16 bytes; -1 if none ever does.
template <class T>
ZELM_INLINE int elements_to_alignment(const void* start) {
  const auto address = reinterpret_cast<std::uintptr_t>(start);
  return address % sizeof(T) ? -1 : int((0 - address) % 16 / sizeof(T));
}

/// Term k in lane k mod 8: two packs of floats or four of doubles, which are added pairwise before their lanes are.
template <class T>
struct EightLanes {
  static constexpr int L = Pack<T>::lanes, packs = 8 / L;
  Pack<T> part[packs];

  /// `first`: what lane 0 starts from.
  explicit ZELM_INLINE EightLanes(T first = 0) {
    part[0] = Pack<T>::template load_first<1>(&first);
    ZELM_UNROLL for (int p = 1; p < packs; ++p) part[p] = Pack<T>::zero();
  }

  /// Adds the products of elements k, ..., k + 7; a(k) and b(k) give the pack of elements from k on.
  template <class A, class B>
  ZELM_INLINE void add(int k, A a, B b) {
    ZELM_UNROLL for (int p = 0; p < packs; ++p) part[p] = part[p] + a(k + p * L) * b(k + p * L);
  }
  template <class A, class B>
  ZELM_INLINE void subtract(int k, A a, B b) {
    ZELM_UNROLL for (int p = 0; p < packs; ++p) part[p] = part[p] - a(k + p * L) * b(k + p * L);
  }

  /// The same of terms that are products already.
  template <class Term>
  ZELM_INLINE void add(int k, Term term) {
    ZELM_UNROLL for (int p = 0; p < packs; ++p) part[p] = part[p] + term(k + p * L);
  }

  /// The packs added up.
  ZELM_INLINE Pack<T> lanes() const {
    if constexpr (packs == 2) return part[0] + part[1];
    else return (part[0] + part[1]) + (part[2] + part[3]);
  }
  ZELM_INLINE T sum() const { return sum_of_lanes(lanes()); }
};

}  // namespace zelm::products
