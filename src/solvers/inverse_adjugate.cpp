// inverse_adjugate.cpp: every cofactor by an elimination of its own, n^2 of them. A cofactor that vanishes comes out as the
// limit instead of 0, so that a diagonal matrix gets an inverse with tiny elements off the diagonal; that is part of the
// contract, and an inverse from one decomposition would not give it.
#include "solvers/inverse_adjugate.hpp"

#include "solvers/elimination.hpp"

namespace zelm::solvers::inverse {
namespace {

/// Column `without` is left out.
template <class Object, class T>
void copy_row(const Object& s, int row, int without, T* to, int n) {
  for (int j = 0; j < n; ++j)
    if (j != without) {
      store(to, s.element(row, j));
      ++to;
    }
}

/// The minor of s without row r and column c, at least the limit: order n - 1, rows n apart.
template <class S, class T>
T minor_of(const S& s, int r, int c, const Scratch<T>& d, int n, T limit) {
  for (int i = 0, to = 0; i < n; ++i)
    if (i != r) copy_row(s, i, c, d.row(to++), n);
  Elimination<T> e = eliminate<ByReciprocal>(d, n - 1, limit);
  if (e.stopped) e.product = limit;
  const T last = load(d.ordered_row(n - 2) + n - 2);
  return std::abs(last) > limit ? last * e.sign * e.product : limit;
}

template <class S, class D>
ZelStatus invert_any(const S& s, void* buffer, const D& dst, int n) {
  using T = typename D::T;
  const T limit = smallest_determinant<T>(n);
  const Scratch<T> d(buffer, n);
  for (int i = 0; i < n; ++i) copy_row(s, i, n, d.row(i), n);
  const Elimination<T> e = eliminate<ByReciprocal>(d, n, limit);
  if (e.stopped) {
    store(d.elements, T(0));
    return zelStsSingular;
  }
  const T det = e.sign * load(d.ordered_row(n - 1) + n - 1) * e.product;
  if (limit >= std::abs(det)) return zelStsSingular;
  const T inverse = 1 / det;
  for (int r = 0; r < n; ++r)
    for (int c = 0; c < n; ++c) {
      const T x = minor_of(s, r, c, d, n, limit) * inverse;
      store(dst.at(c, r), (r + c) % 2 ? -x : x);
    }
  return zelStsOk;
}

}  // namespace
}  // namespace zelm::solvers::inverse

using zelm::Bytes;
using zelm::solvers::inverse::invert_any;

#define ZELM_ADJUGATES(name, T)                                                                                          \
  ZelStatus p8_ownzelmInvert_m_##name##_com(const T* pSrc, int srcStride1, void* pBuffer, T* pDst, int dstStride1,       \
                                            int widthHeight) {                                                           \
    return invert_any(zelm::matrix(pSrc, srcStride1).object(0), pBuffer, zelm::matrix(pDst, dstStride1).object(0),       \
                      widthHeight);                                                                                      \
  }                                                                                                                      \
  ZelStatus p8_ownzelmInvert_m_##name##_S2_com(const T* pSrc, int srcStride1, int srcStride2, void* pBuffer, T* pDst,    \
                                               int dstStride1, int dstStride2, int widthHeight) {                        \
    return invert_any(zelm::matrix(pSrc, srcStride1, srcStride2).object(0), pBuffer,                                     \
                      zelm::matrix(pDst, dstStride1, dstStride2).object(0), widthHeight);                                \
  }                                                                                                                      \
  ZelStatus p8_ownzelmInvert_m_##name##_P_com(const T* const* ppSrc, Bytes srcByteShift, void* pBuffer, T* const* ppDst, \
                                              Bytes dstByteShift, int widthHeight) {                                     \
    return invert_any(zelm::table(ppSrc, srcByteShift, widthHeight).object(0), pBuffer,                                  \
                      zelm::table(ppDst, dstByteShift, widthHeight).object(0), widthHeight);                             \
  }

ZELM_ADJUGATES(32f, float)
ZELM_ADJUGATES(64f, double)
