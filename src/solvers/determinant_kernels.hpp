// determinant_kernels.hpp: determinants of one contiguous matrix of fixed order in extended precision, rounded once, at the
// end.
#pragma once
#include "zelm_types.h"

extern "C" {
ZelStatus p8_a6_Det_m_32f_3x3(const float* pSrc, int srcStride1, float* pDst);
ZelStatus p8_a6_Det_m_32f_4x4(const float* pSrc, int srcStride1, float* pDst);
ZelStatus p8_a6_Det_m_32f_5x5(const float* pSrc, int srcStride1, float* pDst);
ZelStatus p8_a6_Det_m_32f_6x6(const float* pSrc, int srcStride1, float* pDst);
ZelStatus p8_a6_Det_m_64f_3x3(const double* pSrc, int srcStride1, double* pDst);
ZelStatus p8_a6_Det_m_64f_4x4(const double* pSrc, int srcStride1, double* pDst);
ZelStatus p8_a6_Det_m_64f_5x5(const double* pSrc, int srcStride1, double* pDst);
ZelStatus p8_a6_Det_m_64f_6x6(const double* pSrc, int srcStride1, double* pDst);
}
