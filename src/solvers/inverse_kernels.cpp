// inverse_kernels.cpp: the inverses that have a name of their own.
#include "solvers/inverse_kernels.hpp"

#include "solvers/inverse.hpp"

namespace zelm::solvers::inverse {
namespace {

/// Up to the first pair with a singular object.
template <class A, class D>
__attribute__((noinline)) ZelStatus invert_pairs(A a, D d, std::ptrdiff_t k, int count) {
  for (; k < count; k += 2) {
    ByCofactors<float, 4, ContiguousArray32> f;
    f.m.load<false>(a, k, 2);
    if (lane_bits(f.run())) return zelStsSingular;
    f.m.store<false>(d, k, 2);
  }
  return zelStsOk;
}

/// Two pairs at a time.
template <class A, class D>
ZelStatus invert_both_pairs(A a, D d, int count) {
  std::ptrdiff_t k = 0;
  for (; k + 4 <= count; k += 4) {
    ByCofactors<float, 4, ContiguousArray32> f;
    f.m.load<false>(a, k, 4);
    if (lane_bits(f.run())) break;
    f.m.store<false>(d, k, 4);
  }
  return k < count ? invert_pairs(a, d, k, count) : zelStsOk;
}

template <int N, class How, class T>
ZelStatus invert_matrix(const T* s, int s_stride, T* d, int d_stride) {
  return invert_alone<N, How>(matrix(s, s_stride).object(0), matrix(d, d_stride).object(0));
}

}  // namespace
}  // namespace zelm::solvers::inverse

using namespace zelm::solvers::inverse;

ZelStatus p8_ownzelmInvert_m_32f_4x4_loop2(const float* pSrc, int srcStride0, float* pDst, int dstStride0, int count) {
  return invert_both_pairs(zelm::matrices(pSrc, srcStride0, 16), zelm::matrices(pDst, dstStride0, 16), count);
}

#define ZELM_INVERSE(name, T, n, how)                                                           \
  ZelStatus p8_ownzelmInvert_m_##name(const T* pSrc, int srcStride1, T* pDst, int dstStride1) { \
    return invert_matrix<n, how>(pSrc, srcStride1, pDst, dstStride1);                           \
  }

ZELM_INVERSE(32f_3x3, float, 3, Contiguous32)
ZELM_INVERSE(32f_4x4, float, 4, Contiguous32)
ZELM_INVERSE(32f_5x5, float, 5, Contiguous32)
ZELM_INVERSE(32f_6x6, float, 6, Contiguous32)
ZELM_INVERSE(64f_3x3, double, 3, Contiguous64)
ZELM_INVERSE(64f_4x4, double, 4, Contiguous64)
ZELM_INVERSE(64f_5x5_PX, double, 5, Contiguous64)
ZELM_INVERSE(64f_6x6_PX, double, 6, Contiguous64)
