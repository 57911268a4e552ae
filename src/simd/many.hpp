// many.hpp: Many<T, L>, L numbers in the lanes of several registers, and the operations that let an algorithm with branches be
// written once for a number and for many: a condition is a bool for a number and a mask for many, select() takes the place of an
// if, and any() asks whether the work is worth doing.
#pragma once
#include <cmath>
#include <type_traits>

#include "simd/pack.hpp"

namespace zelm {

template <class Element, int L>
struct Many {
  using T = Element;
  using P = Pack<T>;
  static constexpr int lanes = L, packs = L / P::lanes;
  P part[packs];

  Many() = default;
  /// The same number in all lanes.
  ZELM_INLINE Many(T x) { ZELM_UNROLL for (int q = 0; q < packs; ++q) part[q] = P::splat(x); }
  static ZELM_INLINE Many splat(T x) { return x; }
  /// The same register in all places.
  explicit ZELM_INLINE Many(P x) { ZELM_UNROLL for (int q = 0; q < packs; ++q) part[q] = x; }
  /// Widens or rounds.
  template <class U>
  explicit ZELM_INLINE Many(const Many<U, L>& from) {
    if constexpr (std::is_same_v<U, float>) {
      ZELM_UNROLL for (int q = 0; q < packs; q += 2) {
        const __m128 four = from.part[q / 2].raw;
        part[q].raw = _mm_cvtps_pd(four);
        part[q + 1].raw = _mm_cvtps_pd(_mm_movehl_ps(four, four));
      }
    } else {
      ZELM_UNROLL for (int q = 0; q < packs; ++q) part[q].raw =
          _mm_movelh_ps(_mm_cvtpd_ps(from.part[2 * q].raw), _mm_cvtpd_ps(from.part[2 * q + 1].raw));
    }
  }
  /// at(l) is the address of the number of lane l.
  template <class Address>
  static ZELM_INLINE Many gather(Address at) {
    Many m;
    ZELM_UNROLL for (int q = 0; q < packs; ++q) m.part[q] =
        P::template gather<P::lanes>([&](int l) { return at(q * P::lanes + l); });
    return m;
  }
  template <class Address>
  ZELM_INLINE void scatter(Address at) const {
    ZELM_UNROLL for (int q = 0; q < packs; ++q) part[q].template scatter<P::lanes>([&](int l) { return at(q * P::lanes + l); });
  }

  template <class Op>
  static ZELM_INLINE Many each(Op op) {
    Many m;
    ZELM_UNROLL for (int q = 0; q < packs; ++q) m.part[q] = op(q);
    return m;
  }
  friend ZELM_INLINE Many operator+(const Many& a, const Many& b) {
    return each([&](int q) { return a.part[q] + b.part[q]; });
  }
  friend ZELM_INLINE Many operator-(const Many& a, const Many& b) {
    return each([&](int q) { return a.part[q] - b.part[q]; });
  }
  friend ZELM_INLINE Many operator*(const Many& a, const Many& b) {
    return each([&](int q) { return a.part[q] * b.part[q]; });
  }
  friend ZELM_INLINE Many operator/(const Many& a, const Many& b) {
    return each([&](int q) { return a.part[q] / b.part[q]; });
  }
};

/// a - b c. Of many numbers register by register: else the products of all wait in registers of their own.
template <class V>
ZELM_INLINE V less_product(const V& a, const V& b, const V& c) {
  return a - b * c;
}
template <class T, int L>
ZELM_INLINE Many<T, L> less_product(const Many<T, L>& a, const Many<T, L>& b, const Many<T, L>& c) {
  return Many<T, L>::each([&](int q) { return a.part[q] - b.part[q] * c.part[q]; });
}

template <class V>
struct NumberOf {
  using Element = V;
  using Mask = bool;
  static constexpr int lanes = 1;
};
template <class T, int L>
struct NumberOf<Many<T, L>> {
  using Element = T;
  using Mask = Many<T, L>;
  static constexpr int lanes = L;
};
template <class V>
using MaskOf = typename NumberOf<V>::Mask;
template <class V>
using ElementOf = typename NumberOf<V>::Element;

// Numbers

template <class T> concept Number = std::is_floating_point_v<T>;

template <Number T>
ZELM_INLINE T magnitude(T a) {
  return std::fabs(a);
}
ZELM_INLINE float root(float a) { return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(a))); }
ZELM_INLINE double root(double a) { return _mm_cvtsd_f64(_mm_sqrt_pd(_mm_set1_pd(a))); }
template <Number T>
ZELM_INLINE bool exceeds(T a, T b) {
  return a > b;
}
template <Number T>
ZELM_INLINE bool reaches(T a, T b) {
  return a >= b;
}
template <Number T>
ZELM_INLINE bool equals(T a, T b) {
  return a == b;
}
template <Number T>
ZELM_INLINE T select(bool mask, T yes, T no) {
  return mask ? yes : no;
}
/// a, or +0 where the mask is set.
template <Number T>
ZELM_INLINE T unless(bool mask, T a) {
  return mask ? T(0) : a;
}

ZELM_INLINE bool any(bool mask) { return mask; }
ZELM_INLINE bool all(bool mask) { return mask; }
ZELM_INLINE bool both(bool a, bool b) { return a && b; }
ZELM_INLINE bool either(bool a, bool b) { return a || b; }
ZELM_INLINE bool but_not(bool a, bool b) { return a && !b; }

// Many

#define ZELM_PACKS(T, L, expression) Many<T, L>::each([&](int q) -> Pack<T> { return expression; })

template <class T, int L>
ZELM_INLINE Many<T, L> magnitude(const Many<T, L>& a) {
  return ZELM_PACKS(T, L, abs(a.part[q]));
}
ZELM_INLINE Pack<float> root(Pack<float> a) { return {_mm_sqrt_ps(a.raw)}; }
ZELM_INLINE Pack<double> root(Pack<double> a) { return {_mm_sqrt_pd(a.raw)}; }
template <class T, int L>
ZELM_INLINE Many<T, L> root(const Many<T, L>& a) {
  return ZELM_PACKS(T, L, root(a.part[q]));
}
template <class T, int L>
ZELM_INLINE Many<T, L> exceeds(const Many<T, L>& a, const Many<T, L>& b) {
  return ZELM_PACKS(T, L, a.part[q] > b.part[q]);
}
ZELM_INLINE Pack<float> reaches(Pack<float> a, Pack<float> b) { return {_mm_cmpge_ps(a.raw, b.raw)}; }
ZELM_INLINE Pack<double> reaches(Pack<double> a, Pack<double> b) { return {_mm_cmpge_pd(a.raw, b.raw)}; }
template <class T, int L>
ZELM_INLINE Many<T, L> reaches(const Many<T, L>& a, const Many<T, L>& b) {
  return ZELM_PACKS(T, L, reaches(a.part[q], b.part[q]));
}
ZELM_INLINE Pack<float> equals(Pack<float> a, Pack<float> b) { return {_mm_cmpeq_ps(a.raw, b.raw)}; }
ZELM_INLINE Pack<double> equals(Pack<double> a, Pack<double> b) { return {_mm_cmpeq_pd(a.raw, b.raw)}; }
template <class T, int L>
ZELM_INLINE Many<T, L> equals(const Many<T, L>& a, const Many<T, L>& b) {
  return ZELM_PACKS(T, L, equals(a.part[q], b.part[q]));
}
template <class T, int L>
ZELM_INLINE Many<T, L> select(const Many<T, L>& mask, const Many<T, L>& yes, const Many<T, L>& no) {
  return ZELM_PACKS(T, L, select(mask.part[q], yes.part[q], no.part[q]));
}
template <class T, int L>
ZELM_INLINE Many<T, L> unless(const Many<T, L>& mask, const Many<T, L>& a) {
  return ZELM_PACKS(T, L, and_not(a.part[q], mask.part[q]));
}
template <class T, int L>
ZELM_INLINE int lanes_set(const Many<T, L>& mask) {
  int bits = 0;
  ZELM_UNROLL for (int q = 0; q < mask.packs; ++q) bits |= lane_bits(mask.part[q]) << (q * Pack<T>::lanes);
  return bits;
}
template <class T, int L>
ZELM_INLINE bool any(const Many<T, L>& mask) {
  Pack<T> m = mask.part[0];
  ZELM_UNROLL for (int q = 1; q < mask.packs; ++q) m = m | mask.part[q];
  return lane_bits(m) != 0;
}
template <class T, int L>
ZELM_INLINE bool all(const Many<T, L>& mask) {
  return lanes_set(mask) == (1 << L) - 1;
}
ZELM_INLINE Pack<float> both(Pack<float> a, Pack<float> b) { return {_mm_and_ps(a.raw, b.raw)}; }
ZELM_INLINE Pack<double> both(Pack<double> a, Pack<double> b) { return {_mm_and_pd(a.raw, b.raw)}; }
template <class T, int L>
ZELM_INLINE Many<T, L> both(const Many<T, L>& a, const Many<T, L>& b) {
  return ZELM_PACKS(T, L, both(a.part[q], b.part[q]));
}
template <class T, int L>
ZELM_INLINE Many<T, L> either(const Many<T, L>& a, const Many<T, L>& b) {
  return ZELM_PACKS(T, L, a.part[q] | b.part[q]);
}
template <class T, int L>
ZELM_INLINE Many<T, L> but_not(const Many<T, L>& a, const Many<T, L>& b) {
  return ZELM_PACKS(T, L, and_not(a.part[q], b.part[q]));
}

#undef ZELM_PACKS

/// The second where one is no number.
template <Number T>
ZELM_INLINE T larger(T a, T b) {
  return a > b ? a : b;
}
template <Number T>
ZELM_INLINE T smaller(T a, T b) {
  return a < b ? a : b;
}
template <class T, int L>
ZELM_INLINE Many<T, L> larger(const Many<T, L>& a, const Many<T, L>& b) {
  return Many<T, L>::each([&](int q) { return max_or_second(a.part[q], b.part[q]); });
}
template <class T, int L>
ZELM_INLINE Many<T, L> smaller(const Many<T, L>& a, const Many<T, L>& b) {
  return Many<T, L>::each([&](int q) { return min_or_second(a.part[q], b.part[q]); });
}

/// The same in double, and the mask of a comparison there.
template <class S>
struct Wider {
  using Type = double;
  static ZELM_INLINE bool mask(bool m) { return m; }
};
template <int L>
struct Wider<Many<double, L>> {
  using Type = Many<double, L>;
  static ZELM_INLINE const Type& mask(const Type& m) { return m; }
};
template <int L>
struct Wider<Many<float, L>> {
  using Type = Many<double, L>;
  static ZELM_INLINE Many<float, L> mask(const Type& m) {
    return Many<float, L>::each([&](int q) -> Pack<float> {
      return {shuffle<0x88>(_mm_castpd_ps(m.part[2 * q].raw), _mm_castpd_ps(m.part[2 * q + 1].raw))};
    });
  }
};

/// Bit l: the mask of lane l.
ZELM_INLINE int lanes_set(bool mask) { return mask; }

/// The number of lane l, in memory.
template <class S>
ZELM_INLINE ElementOf<S> load_lane(const S* p, int l) {
  return load(reinterpret_cast<const ElementOf<S>*>(p) + l);
}
template <class S>
ZELM_INLINE void store_lane(S* p, int l, ElementOf<S> x) {
  store(reinterpret_cast<ElementOf<S>*>(p) + l, x);
}

/// A mask for all lanes.
template <class V>
ZELM_INLINE MaskOf<V> everywhere(bool set) {
  if constexpr (std::is_same_v<MaskOf<V>, bool>) return set;
  else return set ? reaches(V(0), V(0)) : V(0);
}

}  // namespace zelm
