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

/// Nothing that was loaded before is still known, and what is done before is not done later. The way of a number through memory
/// in ten bytes, five cycles out and two in, takes longer than loading its factors and multiplying them anew; the compiler left
/// alone would keep them all.
ZELM_INLINE Extended settled(Extended x) {
  __asm__ volatile("" : "+t"(x) : : "memory");
  return x;
}

template <class Object>
ZELM_INLINE Extended minor_of_two(const Object& s, int i, int a, int b) {
  const auto at = [&](int row, int column) ZELM_INLINE_LAMBDA { return Extended(s.element(i + row, column)); };
  return settled(at(0, a) * at(1, b) - at(0, b) * at(1, a));
}

template <class Object>
ZELM_INLINE Extended minor_of_three(const Object& s, int i, int a, int b, int c) {
  const auto term = [&](int j, int k, int l)
                        ZELM_INLINE_LAMBDA { return minor_of_two(s, i + 1, k, l) * Extended(s.element(i, j)); };
  return settled(settled(term(a, b, c) - term(b, a, c)) + term(c, a, b));
}

template <class Object>
struct RowOf {
  const Object& s;
  int i;
  ZELM_INLINE Extended operator[](int j) const { return s.element(i, j); }
};

/// The minor of the last m rows for a set of columns, out of those of one row less.
template <int N, int m, int set, class Object>
ZELM_INLINE Extended minor(const Object& s, const Extended* fewer) {
  if constexpr (m > 3) return settled(sum_of<kExpansion<N, 1, m - 1>, set>(RowOf<Object>{s, N - m}, fewer));
  constexpr unsigned columns = Sets<N, m>::of[set], two = columns & (columns - 1), one = two & (two - 1);
  return minor_of_three(s, N - 3, std::countr_zero(columns), std::countr_zero(two), std::countr_zero(one));
}

/// Those that are used more than once.
template <int N, int m, class Object>
ZELM_INLINE void keep_minors(const Object& s, Extended (&kept)[choose(N, m)]) {
  Extended fewer[choose(N, m - 1)];
  if constexpr (m > 3) keep_minors<N, m - 1>(s, fewer);
  for_constants<choose(N, m)>([&](auto set) ZELM_INLINE_LAMBDA { kept[set] = minor<N, m, set>(s, fewer); });
}

template <int N, class Object>
ZELM_INLINE Extended expanded(const Object& s) {
  Extended kept[choose(N, N - 2)], det;
  if constexpr (N > 4) keep_minors<N, N - 2>(s, kept);
  for_constants<N>([&](auto j) ZELM_INLINE_LAMBDA {
    const Extended term = minor<N, N - 1, N - 1 - j>(s, kept) * Extended(s.element(0, j));
    det = settled(j == 0 ? term : j % 2 ? det - term : det + term);
  });
  return det;
}

template <int N, class T>
ZELM_INLINE ZelStatus closed_form(const T* p, int stride1, T* dst) {
  const auto s = matrix(p, stride1).object(0);
  if constexpr (N == 3) {
    Extended a[3][3];
    ZELM_UNROLL for (int i = 0; i < 3; ++i) { ZELM_UNROLL for (int j = 0; j < 3; ++j) a[i][j] = s.element(i, j); }
    store(dst, T(expanded(a, T())));
  } else {
    store(dst, T(expanded<N>(s)));
  }
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
