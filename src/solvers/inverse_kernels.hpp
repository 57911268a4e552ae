// inverse_kernels.hpp: inverses of one contiguous matrix of fixed order, and of pairs of them. dst may be src.
#pragma once
#include "zelm_types.h"

extern "C" {
ZelStatus p8_ownzelmInvert_m_32f_3x3(const float* pSrc, int srcStride1, float* pDst, int dstStride1);
ZelStatus p8_ownzelmInvert_m_32f_4x4(const float* pSrc, int srcStride1, float* pDst, int dstStride1);
ZelStatus p8_ownzelmInvert_m_32f_5x5(const float* pSrc, int srcStride1, float* pDst, int dstStride1);
ZelStatus p8_ownzelmInvert_m_32f_6x6(const float* pSrc, int srcStride1, float* pDst, int dstStride1);
ZelStatus p8_ownzelmInvert_m_64f_3x3(const double* pSrc, int srcStride1, double* pDst, int dstStride1);
ZelStatus p8_ownzelmInvert_m_64f_4x4(const double* pSrc, int srcStride1, double* pDst, int dstStride1);
ZelStatus p8_ownzelmInvert_m_64f_5x5_PX(const double* pSrc, int srcStride1, double* pDst, int dstStride1);
ZelStatus p8_ownzelmInvert_m_64f_6x6_PX(const double* pSrc, int srcStride1, double* pDst, int dstStride1);

/// Rows of 16 bytes, an even number of objects. A singular one fails its pair: neither of the two is written.
ZelStatus p8_ownzelmInvert_m_32f_4x4_loop2(const float* pSrc, int srcStride0, float* pDst, int dstStride0, int count);
}
