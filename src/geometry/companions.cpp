#include "geometry/companions.hpp"

#include "geometry/m4.hpp"
#include "geometry/vec.hpp"

using namespace zelm::geometry;

extern "C" {

const float mId[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

ZelStatus p8_zelmMul_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst) {
  return vec::dot_product<3>(pSrc1, pSrc2, pDst);
}

ZelStatus p8_ownMulMat_32f(const float* pSrc1, const float* pSrc2, float* pDst) {
  return m4::set(pDst, m4::product(m4::get(pSrc1), m4::get(pSrc2)));
}

ZelStatus p8_own3dzelmInvert_m_32f_4x4(const float* pSrc, int srcStride1, float* pDet, float* pDst, int dstStride1) {
  return m4::invert_rows(pSrc, srcStride1, pDet, pDst, dstStride1);
}

ZelStatus p8_own3dConvert64f32f_16(const double* pSrc, float* pDst) {
  for (int e = 0; e < 16; ++e) zelm::store(pDst + e, float(zelm::load(pSrc + e)));
  return zelStsOk;
}
}
