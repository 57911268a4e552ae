// cholesky.cpp: the four-object kernels, which have arguments of their own.
#include "solvers/cholesky.hpp"

using namespace zelm;
using namespace zelm::solvers::cholesky;

const ConstTable CONST_TABLE = {{0.5f, 0.5f, 0.5f, 0.5f}, {3, 3, 3, 3}, {0, 0, 0, 0}};

int p8_CholoDec_32f_V8(const float* pSrc, int srcStride0, int srcStride1, float* pDst, int dstStride0, int dstStride1,
                       int widthHeight, int count) {
  const auto a = matrices(pSrc, srcStride0, srcStride1);
  const auto d = matrices(pDst, dstStride0, dstStride1);
  switch (widthHeight) {
    case 3: return decompose_groups<3>(a, d, count);
    case 4: return decompose_groups<4>(a, d, count);
    case 5: return decompose_groups<5>(a, d, count);
    default: return decompose_groups<6>(a, d, count);
  }
}

template <class A, class B, class D>
static void solve_four(A a, B b, D d, int order, int count) {
  switch (order) {
    case 3: solve_small<3>(a, b, d, count); break;
    case 4: solve_small<4>(a, b, d, count); break;
    case 5: solve_small<5>(a, b, d, count); break;
    default: solve_small<6>(a, b, d, count); break;
  }
}

void p8_CholBackSubst_32f_V8(const float* pSrc1, int src1Stride1, const float* pSrc2, int src2Stride0, float* pDst,
                             int dstStride0, int widthHeight, int count) {
  solve_four(matrix(pSrc1, src1Stride1), vectors(pSrc2, src2Stride0), vectors(pDst, dstStride0), widthHeight, count);
}

void p8_CholBackSubst_32f_S2_V8(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride0,
                                int src2Stride2, float* pDst, int dstStride0, int dstStride2, int widthHeight, int count) {
  solve_four(matrix(pSrc1, src1Stride1, src1Stride2), vectors(pSrc2, src2Stride0, src2Stride2),
             vectors(pDst, dstStride0, dstStride2), widthHeight, count);
}
