// lu_cores.hpp: elimination and substitution for any order, on one object. Used for the orders 1, 2, and 7 upward.
#pragma once
#include <cstdint>

#include "frame/views.hpp"
#include "zelm_types.h"

extern "C" {
ZelStatus p8_ownzelmLUDecomp_m_32f_S_com(const float* pSrc, int srcStride1, int* pDstIndex, float* pDst, int dstStride1,
                                         int widthHeight);
ZelStatus p8_ownzelmLUDecomp_m_32f_S2_com(const float* pSrc, int srcStride1, int srcStride2, int* pDstIndex, float* pDst,
                                          int dstStride1, int dstStride2, int widthHeight);
ZelStatus p8_ownzelmLUDecomp_m_32f_P_com(const float* const* ppSrc, zelm::Bytes srcByteShift, int* pDstIndex,
                                         float* const* ppDst, zelm::Bytes dstByteShift, int widthHeight);
ZelStatus p8_ownzelmLUDecomp_m_64f_S_com(const double* pSrc, int srcStride1, int* pDstIndex, double* pDst, int dstStride1,
                                         int widthHeight);
ZelStatus p8_ownzelmLUDecomp_m_64f_S2_com(const double* pSrc, int srcStride1, int srcStride2, int* pDstIndex, double* pDst,
                                          int dstStride1, int dstStride2, int widthHeight);
ZelStatus p8_ownzelmLUDecomp_m_64f_P_com(const double* const* ppSrc, zelm::Bytes srcByteShift, int* pDstIndex,
                                         double* const* ppDst, zelm::Bytes dstByteShift, int widthHeight);
}

namespace zelm::solvers::lu {

/// Picks the core for the object's memory and element type.
template <class S, class D>
ZELM_INLINE ZelStatus decompose_core(const S& s, int* index, const D& d, int n) {
  constexpr bool single = std::is_same_v<typename D::T, float>;
  if constexpr (requires { s.table; }) {
    constexpr auto core = [] {
      if constexpr (single) return p8_ownzelmLUDecomp_m_32f_P_com;
      else return p8_ownzelmLUDecomp_m_64f_P_com;
    }();
    return core(s.table, s.shift, index, d.table, d.shift, n);
  } else if constexpr (S::plain) {
    constexpr auto core = [] {
      if constexpr (single) return p8_ownzelmLUDecomp_m_32f_S_com;
      else return p8_ownzelmLUDecomp_m_64f_S_com;
    }();
    return core(s.base, int(s.row_stride), index, d.base, int(d.row_stride), n);
  } else {
    constexpr auto core = [] {
      if constexpr (single) return p8_ownzelmLUDecomp_m_32f_S2_com;
      else return p8_ownzelmLUDecomp_m_64f_S2_com;
    }();
    return core(s.base, int(s.row_stride), int(s.element_stride), index, d.base, int(d.row_stride), int(d.element_stride), n);
  }
}

// Sums of a(row, from + m) x(from + m) over m < n, in the order that each kernel has.

/// One term after the other.
struct PlainSum {
  template <class A, class X>
  static auto of(const A& a, int row, const X& x, int from, int n) {
    typename A::T sum = 0;
    for (int m = 0; m < n; ++m) sum += load(a.at(row, from + m)) * load(x.at(0, from + m));
    return sum;
  }
};

/// Even and odd terms apart, then the odd one out.
struct PairedSum {
  template <class A, class X>
  static auto of(const A& a, int row, const X& x, int from, int n) {
    typename A::T even = 0, odd = 0;
    const auto term = [&](int m) { return load(a.at(row, from + m)) * load(x.at(0, from + m)); };
    for (int m = 0; m + 1 < n; m += 2) {
      even += term(m);
      odd += term(m + 1);
    }
    const auto sum = even + odd;
    return n % 2 ? sum + term(n - 1) : sum;
  }
};

/// Eight at a time in two registers, once a lead-in has brought x to a multiple of 16 bytes: what lies elsewhere, or has fewer
/// than eight terms left then, is summed one by one.
struct BlockedSum {
  template <class A, class X>
  static float of(const A& a, int row, const X& x, int from, int n) {
    using P = Pack<float>;
    const float *const p = a.at(row, from), *const q = x.at(0, from);
    const auto address = reinterpret_cast<std::uintptr_t>(q);
    const int lead = int((16 - address % 16) / 4) % 4;
    if (address % 4 != 0 || n - lead < 8) return PlainSum::of(a, row, x, from, n);
    float sum = 0;
    int m = 0;
    for (; m < lead; ++m) sum += load(p + m) * load(q + m);
    P even = {_mm_set_ss(sum)}, odd = P::zero();
    for (; m + 8 <= n; m += 8) {
      even = even + P::load(p + m) * P::load(q + m);
      odd = odd + P::load(p + m + 4) * P::load(q + m + 4);
    }
    alignas(16) float c[4];
    (even + odd).store(c);
    sum = (c[0] + c[2]) + (c[1] + c[3]);
    for (; m < n; ++m) sum += load(p + m) * load(q + m);
    return sum;
  }
};

/// Writes y to x and solves there, so x must lie apart from b. Each sum is formed first and subtracted once.
template <class Sum, class A, class B, class X>
void solve_core(const A& a, const int* index, const B& b, const X& x, int n) {
  for (int i = 0; i < n; ++i) {
    const int row = load(index + i);
    const auto right = load(b.at(0, row));
    store(x.at(0, i), i == 0 ? right : right - Sum::of(a, row, x, 0, i));
  }
  for (int i = n - 1; i >= 0; --i) {
    const int row = load(index + i);
    auto y = load(x.at(0, i));
    if (i < n - 1) y = y - Sum::of(a, row, x, i + 1, n - 1 - i);
    store(x.at(0, i), y / load(a.at(row, i)));
  }
}

}  // namespace zelm::solvers::lu
