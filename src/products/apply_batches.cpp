// apply_batches.cpp: one matrix and a large batch of vectors that all begin at multiples of 16 bytes.
#include "products/apply.hpp"

namespace zelm::products::apply {
namespace {

/// ((p0 + p1) + (p2 + p3)) + y: x comes as (x0, x0, x2, x2) and (x1, x1, x3, x3), loads that cost no shuffle.
void four_by_four(const float* a, Bytes row_stride, const float* b, Bytes b_stride, const float* c, float* d, Bytes d_stride,
                  std::ptrdiff_t count) {
  using P = Pack<float>;
  const StridedObject<const float, true> m{a, row_stride, 0};
  P even[2], odd[2];
  for (int g = 0; g < 2; ++g) {
    even[g] = P::gather<4>([&](int l) { return m.at(2 * g + l % 2, l / 2 * 2); });
    odd[g] = P::gather<4>([&](int l) { return m.at(2 * g + l % 2, l / 2 * 2 + 1); });
  }
  const P y = P::load(c);
  for (std::ptrdiff_t n = 0; n < count; ++n) {
    const __m128 x = _mm_load_ps(moved(b, n * b_stride));
    const P x02 = {_mm_moveldup_ps(x)}, x13 = {_mm_movehdup_ps(x)};
    const P s = even[0] * x02 + odd[0] * x13, t = even[1] * x02 + odd[1] * x13;
    const P z = (P{shuffle<0x44>(s.raw, t.raw)} + P{shuffle<0xee>(s.raw, t.raw)}) + y;
    _mm_store_ps(moved(d, n * d_stride), z.raw);
  }
}

}  // namespace
}  // namespace zelm::products::apply

using namespace zelm;
using namespace zelm::products::apply;

void p8_ownmMul_mva_32f_5x5(const float* pSrc1, int src1Stride1, const float* pSrc2, int src2Stride0, float* pDst,
                            int dstStride0, int count) {
  in_lanes<Batched, 5, false, false>(matrix(pSrc1, src1Stride1), vectors(pSrc2, src2Stride0), None{}, vectors(pDst, dstStride0),
                                     count);
}

void p8_ownmGaxpy_mvav_32f_4x4(const float* pSrc1, int src1Stride1, const float* pSrc2, int src2Stride0, const float* pSrc3,
                               float* pDst, int dstStride0, int count) {
  four_by_four(pSrc1, src1Stride1, pSrc2, src2Stride0, pSrc3, pDst, dstStride0, count);
}

void p8_ownmGaxpy_mvav_32f_5x5(const float* pSrc1, int src1Stride1, const float* pSrc2, int src2Stride0, const float* pSrc3,
                               float* pDst, int dstStride0, int count) {
  in_lanes<Resident, 5, false, false>(matrix(pSrc1, src1Stride1), vectors(pSrc2, src2Stride0), vector(pSrc3),
                                      vectors(pDst, dstStride0), count);
}

void p8_ownmGaxpy_mvav_32f_6x6(const float* pSrc1, int src1Stride1, const float* pSrc2, int src2Stride0, const float* pSrc3,
                               float* pDst, int dstStride0, int count) {
  in_pairs<6>(matrix(pSrc1, src1Stride1), vectors(pSrc2, src2Stride0), vector(pSrc3), vectors(pDst, dstStride0), count);
}
