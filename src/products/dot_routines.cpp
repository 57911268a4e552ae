#include "products/dot.hpp"

namespace zelm::products {
namespace {

template <int N, class A, class B>
ZELM_INLINE ZelStatus dot_paired(A a, B b, float* d, int count) {
  reduce_fixed<N>(Products<A, B>{a, b}, d, count, Sums<Paired, Paired>{});
  return zelStsOk;
}

}  // namespace
}  // namespace zelm::products

using namespace zelm;
using zelm::products::dot_paired;

ZelStatus p8_ownmDotProduct_vava_32f_4x1(const float* pSrc1, int src1Stride0, const float* pSrc2, int src2Stride0, float* pDst,
                                         int count) {
  return dot_paired<4>(vectors(pSrc1, src1Stride0), vectors(pSrc2, src2Stride0), pDst, count);
}
ZelStatus p8_ownmDotProduct_vava_32f_5x1(const float* pSrc1, int src1Stride0, const float* pSrc2, int src2Stride0, float* pDst,
                                         int count) {
  return dot_paired<5>(vectors(pSrc1, src1Stride0), vectors(pSrc2, src2Stride0), pDst, count);
}
ZelStatus p8_ownmDotProduct_vava_32f_6x1(const float* pSrc1, int src1Stride0, const float* pSrc2, int src2Stride0, float* pDst,
                                         int count) {
  return dot_paired<6>(vectors(pSrc1, src1Stride0), vectors(pSrc2, src2Stride0), pDst, count);
}
ZelStatus p8_ownmDotProduct_vav_32f_5x1_P8(const float* pSrc1, int src1Stride0, const float* pSrc2, float* pDst, int count) {
  return dot_paired<5>(vectors(pSrc1, src1Stride0), vector(pSrc2), pDst, count);
}
ZelStatus p8_ownmDotProduct_vav_32f_6x1_P8(const float* pSrc1, int src1Stride0, const float* pSrc2, float* pDst, int count) {
  return dot_paired<6>(vectors(pSrc1, src1Stride0), vector(pSrc2), pDst, count);
}
