// determinant_kernels.cpp: the closed forms on the x87 unit.
#include "solvers/determinant_kernels.hpp"

#include "frame/views.hpp"
#include "solvers/minors.hpp"

namespace zelm::solvers::determinant {
namespace {

using Extended = long double;

// Order 3 has a grouping of its own for each element type.

Extended expanded(const Extended (&a)[3][3], float) {
  return (a[2][0] * a[1][2] - a[1][0] * a[2][2]) * a[0][1] + (a[2][1] * a[1][0] - a[2][0] * a[1][1]) * a[0][2] +
         (a[1][1] * a[2][2] - a[1][2] * a[2][1]) * a[0][0];
}
Extended expanded(const Extended (&a)[3][3], double) {
  return (a[1][2] * a[0][1] - a[1][1] * a[0][2]) * a[2][0] + (a[1][1] * a[2][2] - a[1][2] * a[2][1]) * a[0][0] +
         (a[2][1] * a[0][2] - a[0][1] * a[2][2]) * a[1][0];
}
template <int N, class T>
Extended expanded(const Extended (&a)[N][N], T) {
  return LastRows<N, N, Extended>(a).minors[0];
}

template <int N, class T>
ZELM_INLINE ZelStatus closed_form(const T* p, int stride1, T* dst) {
  const auto s = matrix(p, stride1).object(0);
  Extended a[N][N];
  ZELM_UNROLL for (int i = 0; i < N; ++i) { ZELM_UNROLL for (int j = 0; j < N; ++j) a[i][j] = s.element(i, j); }
  store(dst, T(expanded(a, T())));
  return zelStsOk;
}

}  // namespace
}  // namespace zelm::solvers::determinant

#define ZELM_DETERMINANT(name, T, n)                                           \
  ZelStatus p8_a6_Det_m_##name(const T* pSrc, int srcStride1, T* pDst) {       \
    return zelm::solvers::determinant::closed_form<n>(pSrc, srcStride1, pDst); \
  }

ZELM_DETERMINANT(32f_3x3, float, 3)
ZELM_DETERMINANT(32f_4x4, float, 4)
ZELM_DETERMINANT(32f_5x5, float, 5)
ZELM_DETERMINANT(32f_6x6, float, 6)
ZELM_DETERMINANT(64f_3x3, double, 3)
ZELM_DETERMINANT(64f_4x4, double, 4)
ZELM_DETERMINANT(64f_5x5, double, 5)
ZELM_DETERMINANT(64f_6x6, double, 6)
