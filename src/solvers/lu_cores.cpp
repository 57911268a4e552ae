// lu_cores.cpp: the decomposition of any order, once for each kind of memory.
#include "solvers/lu_cores.hpp"

#include <cmath>
#include <limits>
#include <utility>

namespace zelm::solvers::lu {
namespace {

/// A pivot of at most the machine epsilon is singular.
template <class T>
constexpr T kCoreLimit = std::numeric_limits<T>::epsilon();

/// Row by row, in place where dst is src. Rows that overlap otherwise see ascending copies of single elements.
template <class S, class D>
void copy(const S& s, const D& d, int n) {
  using T = typename D::T;
  for (int i = 0; i < n; ++i) {
    if constexpr (S::plain && D::plain) {
      const std::size_t row = std::size_t(n) * sizeof(T);
      const auto from = reinterpret_cast<std::uintptr_t>(s.at(i, 0)), to = reinterpret_cast<std::uintptr_t>(d.at(i, 0));
      if (from == to) continue;
      if (std::max(from, to) - std::min(from, to) >= row) {
        std::memcpy(d.at(i, 0), s.at(i, 0), row);
        continue;
      }
    }
    for (int j = 0; j < n; ++j) store(d.at(i, j), load(s.at(i, j)));
  }
}

/// Row `to` minus m times row `from`, columns from `first` on.
template <class D, class T>
void subtract_row(const D& d, int to, int from, T m, int first, int n) {
  int j = first;
  if constexpr (D::plain) {
    using P = Pack<T>;
    for (; j + P::lanes <= n; j += P::lanes) (P::load(d.at(to, j)) - P::load(d.at(from, j)) * P::splat(m)).store(d.at(to, j));
  }
  for (; j < n; ++j) store(d.at(to, j), load(d.at(to, j)) - load(d.at(from, j)) * m);
}

template <class S, class D>
ZelStatus decompose_any(const S& s, int* index, const D& d, int n) {
  using T = typename D::T;
  constexpr T limit = kCoreLimit<T>;
  const auto row = [&](int i) { return load(index + i); };
  copy(s, d, n);
  for (int i = 0; i < n; ++i) store(index + i, i);
  for (int k = 0; k + 1 < n; ++k) {
    T best = std::abs(load(d.at(row(k), k)));
    int r = k;
    for (int i = k + 1; i < n; ++i) {
      const T magnitude = std::abs(load(d.at(row(i), k)));
      if (magnitude > best) {
        best = magnitude;
        r = i;
      }
    }
    if (limit >= best) return zelStsSingular;
    const int pivot = row(r);
    store(index + r, row(k));
    store(index + k, pivot);
    const T inverse = T(1) / load(d.at(pivot, k));
    for (int i = k + 1; i < n; ++i) {
      const T m = load(d.at(row(i), k)) * inverse;
      store(d.at(row(i), k), m);
      subtract_row(d, row(i), pivot, m, k + 1, n);
    }
  }
  return std::abs(load(d.at(row(n - 1), n - 1))) <= limit ? zelStsSingular : zelStsOk;
}

}  // namespace
}  // namespace zelm::solvers::lu

using zelm::Bytes;
using zelm::solvers::lu::decompose_any;

#define ZELM_LU_CORES(name, T)                                                                                              \
  ZelStatus p8_ownzelmLUDecomp_m_##name##_S_com(const T* pSrc, int srcStride1, int* pDstIndex, T* pDst, int dstStride1,     \
                                                int widthHeight) {                                                          \
    return decompose_any(zelm::matrix(pSrc, srcStride1).object(0), pDstIndex, zelm::matrix(pDst, dstStride1).object(0),     \
                         widthHeight);                                                                                      \
  }                                                                                                                         \
  ZelStatus p8_ownzelmLUDecomp_m_##name##_S2_com(const T* pSrc, int srcStride1, int srcStride2, int* pDstIndex, T* pDst,    \
                                                 int dstStride1, int dstStride2, int widthHeight) {                         \
    return decompose_any(zelm::matrix(pSrc, srcStride1, srcStride2).object(0), pDstIndex,                                   \
                         zelm::matrix(pDst, dstStride1, dstStride2).object(0), widthHeight);                                \
  }                                                                                                                         \
  ZelStatus p8_ownzelmLUDecomp_m_##name##_P_com(const T* const* ppSrc, Bytes srcByteShift, int* pDstIndex, T* const* ppDst, \
                                                Bytes dstByteShift, int widthHeight) {                                      \
    return decompose_any(zelm::table(ppSrc, srcByteShift, widthHeight).object(0), pDstIndex,                                \
                         zelm::table(ppDst, dstByteShift, widthHeight).object(0), widthHeight);                             \
  }

ZELM_LU_CORES(32f, float)
ZELM_LU_CORES(64f, double)
