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

/// The same of each of as many packs as a register has lanes.
ZELM_INLINE Pack<float> sums_of_lanes(const Pack<float> (&p)[4]) {
  const auto halves = [](Pack<float> a, Pack<float> b) {
    return _mm_add_ps(shuffle<0x44>(a.raw, b.raw), shuffle<0xee>(a.raw, b.raw));
  };
  const __m128 low = halves(p[0], p[1]), high = halves(p[2], p[3]);
  return {_mm_add_ps(shuffle<0x88>(low, high), shuffle<0xdd>(low, high))};
}
ZELM_INLINE Pack<double> sums_of_lanes(const Pack<double> (&p)[2]) {
  return {_mm_add_pd(shuffle<0>(p[0].raw, p[1].raw), shuffle<3>(p[0].raw, p[1].raw))};
}

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

  /// Adds terms that are products already.
  template <class Term>
  ZELM_INLINE void add(int k, Term term) {
    ZELM_UNROLL for (int p = 0; p < packs; ++p) part[p] = part[p] + term(k + p * L);
  }
  /// The first of them, in place of +0: adding +0 to the sum gives a sum of zeros its sign back.
  template <class Term>
  ZELM_INLINE void start(int k, Term term) {
    ZELM_UNROLL for (int p = 0; p < packs; ++p) part[p] = term(k + p * L);
  }

  /// The packs added up.
  ZELM_INLINE Pack<T> lanes() const {
    if constexpr (packs == 2) return part[0] + part[1];
    else return (part[0] + part[1]) + (part[2] + part[3]);
  }
  ZELM_INLINE T sum() const { return sum_of_lanes(lanes()); }
};

/// Term k in place k mod `step` of as many packs as that takes, for terms that do not come in packs; summed as EightLanes are.
/// V: an element, or a pack with one object in each lane.
template <class T, int step, class V>
struct StepSums {
  static constexpr int L = Pack<T>::lanes, packs = step / L;
  V part[step];

  template <class Term>
  ZELM_INLINE void add(std::ptrdiff_t k, Term term) {
    ZELM_UNROLL for (int l = 0; l < step; ++l) part[l] = part[l] + term(k + l);
  }
  /// Lane l of the packs added up.
  ZELM_INLINE V lane(int l) const {
    if constexpr (packs == 1) return part[l];
    else if constexpr (packs == 2) return part[l] + part[l + L];
    else return (part[l] + part[l + L]) + (part[l + 2 * L] + part[l + 3 * L]);
  }
  ZELM_INLINE V sum() const {
    if constexpr (L == 2) return lane(0) + lane(1);
    else return (lane(0) + lane(2)) + (lane(1) + lane(3));
  }
};

/// Leading terms one by one, but only if a whole step remains behind them; then steps; then the rest. A lead of -1: one by one.
/// steps(first, k) adds whole steps from k on to what lane 0 starts from, and moves k behind them.
template <int step, class V, class Term, class Steps>
ZELM_INLINE V sum_in_steps(int length, int lead, V zero, Term term, Steps steps) {
  V sum = zero;
  int k = 0;
  if (lead >= 0 && length - lead >= step) {
    for (; k < lead; ++k) sum = sum + term(k);
    sum = steps(sum, k);
  }
  for (; k < length; ++k) sum = sum + term(k);
  return sum;
}
template <class T, int step, class V, class Term>
ZELM_INLINE V sum_in_steps(int length, int lead, V zero, Term term) {
  return sum_in_steps<step>(length, lead, zero, term, [&](V first, int& k) ZELM_INLINE_LAMBDA {
    const auto from = [&] {
      std::ptrdiff_t e = k;
      __asm__("" : "+r"(e));  // a compiler that knows it to be a multiple forms every address apart, with OR
      return e;
    };
    // Only lane 0 starts from +0, which is enough for the sign of a sum of zeros.
    StepSums<T, step, V> sums;
    const std::ptrdiff_t start = from();
    sums.part[0] = first + term(start);
    ZELM_UNROLL for (int l = 1; l < step; ++l) sums.part[l] = term(start + l);
    k += step;
    const auto turn = [&]<int n>(std::integral_constant<int, n>) ZELM_INLINE_LAMBDA {
      ZELM_AS_IT_STANDS for (; k + n <= length; k += n) {
        const std::ptrdiff_t e = from();
        ZELM_UNROLL for (int s = 0; s < n; s += step) sums.add(e + s, term);
      }
    };
    if constexpr (step < 8) turn(std::integral_constant<int, 8>{});
    turn(std::integral_constant<int, step>{});
    return sums.sum();
  });
}

}  // namespace zelm::products
