// companions.hpp: functions that the geometry shares among its members, under the names they have inside the library.
#pragma once
#include "zelm_types.h"

extern "C" {
/// *pDst = the dot product of two v3.
ZelStatus p8_zelmMul_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/// D = A * B of 4 x 4 matrices; D may be A or B.
ZelStatus p8_ownMulMat_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/// D = inverse of A, 4 x 4 with rows that many bytes apart. *pDet, where pDet is not null: the determinant, 0 for a singular matrix,
/// of which D is left alone.
ZelStatus p8_own3dzelmInvert_m_32f_4x4(const float* pSrc, int srcStride1, float* pDet, float* pDst, int dstStride1);

/// Rounds 16 consecutive numbers.
ZelStatus p8_own3dConvert64f32f_16(const double* pSrc, float* pDst);

/// The identity.
extern const float mId[16];
}
