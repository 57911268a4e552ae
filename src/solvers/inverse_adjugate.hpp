// inverse_adjugate.hpp: the inverse of any order as adj(A) / det(A). Used for the orders 2, and 7 upward.
#pragma once
#include "frame/views.hpp"
#include "zelm_types.h"

extern "C" {
ZelStatus p8_ownzelmInvert_m_32f_com(const float* pSrc, int srcStride1, void* pBuffer, float* pDst, int dstStride1,
                                     int widthHeight);
ZelStatus p8_ownzelmInvert_m_32f_S2_com(const float* pSrc, int srcStride1, int srcStride2, void* pBuffer, float* pDst,
                                        int dstStride1, int dstStride2, int widthHeight);
ZelStatus p8_ownzelmInvert_m_32f_P_com(const float* const* ppSrc, zelm::Bytes srcByteShift, void* pBuffer, float* const* ppDst,
                                       zelm::Bytes dstByteShift, int widthHeight);
ZelStatus p8_ownzelmInvert_m_64f_com(const double* pSrc, int srcStride1, void* pBuffer, double* pDst, int dstStride1,
                                     int widthHeight);
ZelStatus p8_ownzelmInvert_m_64f_S2_com(const double* pSrc, int srcStride1, int srcStride2, void* pBuffer, double* pDst,
                                        int dstStride1, int dstStride2, int widthHeight);
ZelStatus p8_ownzelmInvert_m_64f_P_com(const double* const* ppSrc, zelm::Bytes srcByteShift, void* pBuffer,
                                       double* const* ppDst, zelm::Bytes dstByteShift, int widthHeight);
}

namespace zelm::solvers::inverse {

/// Picks the core for the object's memory and element type.
template <class S, class D>
ZELM_INLINE ZelStatus adjugate(const S& s, void* buffer, const D& d, int n) {
  constexpr bool single = std::is_same_v<typename D::T, float>;
  if constexpr (requires { s.table; }) {
    constexpr auto core = [] {
      if constexpr (single) return p8_ownzelmInvert_m_32f_P_com;
      else return p8_ownzelmInvert_m_64f_P_com;
    }();
    return core(s.table, s.shift, buffer, d.table, d.shift, n);
  } else if constexpr (S::plain) {
    constexpr auto core = [] {
      if constexpr (single) return p8_ownzelmInvert_m_32f_com;
      else return p8_ownzelmInvert_m_64f_com;
    }();
    return core(s.base, int(s.row_stride), buffer, d.base, int(d.row_stride), n);
  } else {
    constexpr auto core = [] {
      if constexpr (single) return p8_ownzelmInvert_m_32f_S2_com;
      else return p8_ownzelmInvert_m_64f_S2_com;
    }();
    return core(s.base, int(s.row_stride), int(s.element_stride), buffer, d.base, int(d.row_stride), int(d.element_stride), n);
  }
}

}  // namespace zelm::solvers::inverse
