// determinant.hpp: determinants of square matrices.
//
// Orders 3 to 6 have closed forms, cofactors along a row, without a pivot or a comparison; all others are eliminated in the
// caller's scratch. Which kernel computes in extended precision and which in the element type, and in what order, is settled
// kernel by kernel (the policies below). |det - exact| <= gamma(k) times the permanent of |A|, k the roundings on the way to
// one product: Higham, Accuracy and Stability of Numerical Algorithms, 2nd ed., section 3.1; measured in
// tests/solvers/determinant_test.cpp.
#pragma once
#include "frame/lanes.hpp"
#include "solvers/determinant_kernels.hpp"
#include "solvers/elimination.hpp"
#include "solvers/minors.hpp"

namespace zelm::solvers::determinant {

enum class Precision {
  extended,  // one object after the other, rounded once
  element,   // several at once, every operation rounded
  paired     // pairs in the element type where all rows begin at multiples of 16 bytes, else and for an odd last one extended
};

struct Extended {
  static constexpr Precision of(int) { return Precision::extended; }
};
struct Element {
  static constexpr Precision of(int) { return Precision::element; }
};
struct ByOrder {
  static constexpr Precision of(int n) {
    return n == 3 ? Precision::element : n == 4 ? Precision::paired : Precision::extended;
  }
};

template <class T, int N>
inline constexpr ZelStatus (*kExtended)(const T*, int, T*) = nullptr;
template <>
inline constexpr auto kExtended<float, 3> = p8_a6_Det_m_32f_3x3;
template <>
inline constexpr auto kExtended<float, 4> = p8_a6_Det_m_32f_4x4;
template <>
inline constexpr auto kExtended<float, 5> = p8_a6_Det_m_32f_5x5;
template <>
inline constexpr auto kExtended<float, 6> = p8_a6_Det_m_32f_6x6;
template <>
inline constexpr auto kExtended<double, 3> = p8_a6_Det_m_64f_3x3;
template <>
inline constexpr auto kExtended<double, 4> = p8_a6_Det_m_64f_4x4;
template <>
inline constexpr auto kExtended<double, 5> = p8_a6_Det_m_64f_5x5;
template <>
inline constexpr auto kExtended<double, 6> = p8_a6_Det_m_64f_6x6;

/// From the first two rows, in this order.
template <class T>
ZELM_INLINE Pack<T> closed_form(const Pack<T> (&a)[3][3]) {
  return (a[0][0] * a[1][1] - a[0][1] * a[1][0]) * a[2][2] - (a[0][0] * a[1][2] - a[1][0] * a[0][2]) * a[2][1] +
         (a[0][1] * a[1][2] - a[1][1] * a[0][2]) * a[2][0];
}
template <class T>
ZELM_INLINE Pack<T> closed_form(const Pack<T> (&a)[4][4]) {
  return LastRows<4, 4, Pack<T>>(a).minors[0];
}
/// One copy for all layouts: the elements do not fit the registers anyway.
template <class T, int N>
__attribute__((noinline)) Pack<T> closed_form(const Pack<T> (&a)[N][N]) {
  return LastRows<N, N, Pack<T>>(a).minors[0];
}

template <int N, Memory memory, class A>
void in_lanes(A a, typename A::T* dst, int count) {
  using T = typename A::T;
  constexpr int L = Pack<T>::lanes;
  if constexpr (!A::array) {
    Lanes<T, N, N> m;
    m.splat(a.object(0));
    closed_form(m.e).template store_first<1>(dst);
  } else {
    for_blocks<L>(count, [=](std::ptrdiff_t k, auto valid) ZELM_INLINE_LAMBDA {
      Lanes<T, N, N> m;
      if constexpr (std::is_same_v<decltype(valid), int>) m.template load<false>(a, k, valid);
      else m.template load_block<memory>(a, k);
      const Pack<T> det = closed_form(m.e);
      if (valid == L) return det.store(dst + k);
      alignas(16) T lanes[L];
      det.store(lanes);
      for (int l = 0; l < valid; ++l) store(dst + k + l, lanes[l]);
    });
  }
}

template <int N, class A>
ZELM_INLINE void in_element_type(const A& a, typename A::T* dst, int count) {
  by_memory<N>([&](auto memory) { in_lanes<N, memory()>(a, dst, count); }, a);
}

/// Extended determinants of four float matrices without the x87 unit. In double precision |det - exact| <= gamma(k) times the
/// permanent of |A|, which is at most the product of the rows' sums; k <= 20 roundings, and a fraction of one for the extended
/// value. Where the whole interval rounds to one float, that is the float to which the extended value rounds. Sets that lane's
/// bit; a zero never does, since its sign is not known. Six floats neither overflow nor underflow in double precision.
template <int N>
__attribute__((noinline)) int certain(const Pack<float> (&a)[N][N], Pack<float>& det) {
  using P = Pack<double>;
  __m128 low[2], high[2];
  for (int half = 0; half < 2; ++half) {
    P e[N][N], size = P::splat(0x1p-47);
    ZELM_UNROLL for (int i = 0; i < N; ++i) {
      P sum = P::zero();
      ZELM_UNROLL for (int j = 0; j < N; ++j) {
        const float* const two = reinterpret_cast<const float*>(&a[i][j]) + 2 * half;
        e[i][j].raw = _mm_cvtps_pd(Pack<float>::load_first<2>(two).raw);
        sum = sum + abs(e[i][j]);
      }
      size = size * sum;
    }
    const P d = LastRows<N, N, P>(e).minors[0];
    low[half] = _mm_cvtpd_ps((d - size).raw);
    high[half] = _mm_cvtpd_ps((d + size).raw);
  }
  det.raw = _mm_movelh_ps(low[0], low[1]);
  const __m128 same = _mm_cmpeq_ps(det.raw, _mm_movelh_ps(high[0], high[1]));
  return _mm_movemask_ps(_mm_and_ps(same, _mm_cmpneq_ps(det.raw, _mm_setzero_ps())));
}

template <int N, class A>
void in_extended(A a, typename A::T* dst, std::ptrdiff_t k, int count) {
  using T = typename A::T;
  const auto alone = [=](std::ptrdiff_t at) {
    const auto object = a.object(at);
    kExtended<T, N>(object.base, int(object.row_stride), dst + at);
  };
  if constexpr (A::array && N > 3 && std::is_same_v<T, float>) {
    for (; k + 4 <= count; k += 4) {
      Lanes<T, N, N> m;
      Pack<T> det;
      m.template load<false>(a, k, 4);
      const int lanes = certain(m.e, det);
      det.store(dst + k);
      for (int l = 0; l < 4; ++l)
        if (!(lanes >> l & 1)) alone(k + l);
    }
  }
  for (; k < count; ++k) alone(k);
}

template <class How, int N, class A>
ZELM_INLINE ZelStatus small(const A& a, typename A::T* dst, int count) {
  constexpr Precision precision = How::of(N);
  if constexpr (precision == Precision::element) {
    in_element_type<N>(a, dst, count);
  } else if constexpr (precision == Precision::extended) {
    in_extended<N>(a, dst, 0, count);
  } else {
    const bool slots = aligned_objects(a) && a.row_stride % 16 == 0;
    const int pairs = slots ? count & ~1 : 0;
    in_element_type<N>(a, dst, pairs);
    in_extended<N>(a, dst, pairs, count);
  }
  return zelStsOk;
}

/// A pivot below the limit, and a last one that does not exceed it, give 0.
template <class T>
T eliminated(const Scratch<T>& d, int n) {
  const T limit = smallest_determinant<T>(n);
  const Elimination<T> e = eliminate<ByDivision>(d, n, limit);
  const T last = load(d.ordered_row(n - 1) + n - 1);
  return !e.stopped && std::abs(last) > limit ? e.product * (last * e.sign) : T(0);
}

template <class How, class A>
ZELM_INLINE ZelStatus compute(A a, int order, void* buffer, typename A::T* dst, int count) {
  switch (order) {
    case 3: return small<How, 3>(a, dst, count);
    case 4: return small<How, 4>(a, dst, count);
    case 5: return small<How, 5>(a, dst, count);
    case 6: return small<How, 6>(a, dst, count);
  }
  const Scratch<typename A::T> d(buffer, order);
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    const auto object = a.object(k);
    for (int i = 0; i < order; ++i)
      for (int j = 0; j < order; ++j) store(d.row(i) + j, object.element(i, j));
    store(dst + k, eliminated(d, order));
  }
  return zelStsOk;
}

}  // namespace zelm::solvers::determinant
