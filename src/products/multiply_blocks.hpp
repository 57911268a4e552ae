// multiply_blocks.hpp: matrix products of any size on contiguous elements.
//
// Rows of the product in fours: term k belongs to partial sum k mod L, L being the number of lanes of a register, and the sums are
// added as sum_of_lanes does. The one to three rows that are left have eight partial sums where there are eight terms, and one
// otherwise. Terms that fill no further set are added one by one at the end, and all sums start from +0.
//
// The partial sums of an element need not be the lanes of one register. Where memory gives neighbours along a row of B, or along a
// column of A, those are the lanes, and each partial sum is a register of its own: no shuffle is spent on adding lanes. Only a
// product of rows with rows has its terms in the lanes.
//
// No sum starts from a register of zeros: leaving out +0 + x changes nothing but the sign of a zero whose terms are all -0, and
// adding +0 at the end gives that sign back.
#pragma once
#include <algorithm>

#include "products/multiply_cells.hpp"

namespace zelm::products {

/// The total of S partial sums: of one set of lanes, or of eight.
template <int S, class T>
ZELM_INLINE Pack<T> total(const Pack<T> (&p)[S]) {
  constexpr int L = Pack<T>::lanes;
  if constexpr (S == 1) {
    return p[0];
  } else if constexpr (S == L) {
    if constexpr (L == 4) return (p[0] + p[2]) + (p[1] + p[3]);
    else return p[0] + p[1];
  } else {
    Pack<T> lanes[L];
    ZELM_UNROLL for (int l = 0; l < L; ++l) {
      if constexpr (L == 4) lanes[l] = p[l] + p[l + 4];
      else lanes[l] = (p[l] + p[l + 2]) + (p[l + 4] + p[l + 6]);
    }
    return total<L, T>(lanes);
  }
}

/// Q registers of sums in S partial sums. x(k): the factor of all lanes; y(k, q): the other factors.
template <int S, int Q, class T, class X, class Y>
ZELM_INLINE void sum_terms(Pack<T> (&sum)[Q], int terms, X x, Y y) {
  Pack<T> part[Q][S];
  const auto add = [&](int k, bool first) ZELM_INLINE_LAMBDA {
    ZELM_UNROLL for (int s = 0; s < S; ++s) {
      const Pack<T> factor = x(k + s);
      ZELM_UNROLL for (int q = 0; q < Q; ++q) {
        const Pack<T> term = factor * y(k + s, q);
        part[q][s] = first ? term : part[q][s] + term;
      }
    }
  };
  int k = 1;
  if (terms >= S) {
    add(0, true);
    k = S;
    ZELM_AS_IT_STANDS for (; k + S <= terms; k += S) add(k, false);
    ZELM_UNROLL for (int q = 0; q < Q; ++q) sum[q] = total<S, T>(part[q]);
  } else {
    ZELM_UNROLL for (int q = 0; q < Q; ++q) sum[q] = x(0) * y(0, q);
  }
  ZELM_AS_IT_STANDS for (; k < terms; ++k) {
    const Pack<T> factor = x(k);
    ZELM_UNROLL for (int q = 0; q < Q; ++q) sum[q] = sum[q] + factor * y(k, q);
  }
  ZELM_UNROLL for (int q = 0; q < Q; ++q) sum[q] = sum[q] + Pack<T>::zero();
}

/// Elements from, ..., to - 1 of a line of the product that runs along the lanes.
///   x(k)       factor of the whole line
///   y(k, e)    address of the factor of element e
///   z(sum, e, n)  stores n elements from e on; n is a constant
template <int S, class T, class X, class Y, class Z>
__attribute__((noinline)) void sum_line(int from, int to, int terms, X x, Y y, Z z) {
  using P = Pack<T>;
  constexpr int L = P::lanes, Q = S == 8 ? 1 : 8 / L;
  const auto factor = [&](int k) ZELM_INLINE_LAMBDA { return P::splat(load(x(k))); };
  const auto some = [&]<int q, int n>(int e, std::integral_constant<int, q>,
                                      std::integral_constant<int, n>) ZELM_INLINE_LAMBDA {
    P sum[q];
    sum_terms<S, q, T>(sum, terms, factor, [&](int k, int p) { return P::template load_first<n>(y(k, e) + p * L); });
    ZELM_UNROLL for (int p = 0; p < q; ++p) z(sum[p], e + p * L, std::integral_constant<int, n>());
  };
  const auto packs = [&](int e, auto q) ZELM_INLINE_LAMBDA { some(e, q, std::integral_constant<int, L>()); };
  const auto rest = [&](int e, auto n) ZELM_INLINE_LAMBDA { some(e, std::integral_constant<int, 1>(), n); };
  int e = from;
  for (; e + Q * L <= to; e += Q * L) packs(e, std::integral_constant<int, Q>());
  for (; e < to; e += L) {
    if (to - from >= L) packs(std::min(e, to - L), std::integral_constant<int, 1>());  // some elements twice
    else if (to - e == 1) rest(e, std::integral_constant<int, 1>());
    else if (to - e == 2 || L == 2) rest(e, std::integral_constant<int, 2>());
    else rest(e, std::integral_constant < int, 3 <= L ? 3 : L > ());
  }
}

/// B is read row by row: the lanes are columns.
template <class A, class B, class D>
ZELM_INLINE void multiply_rows(const A& a, const B& b, const D& d, Shape s) {
  using T = typename D::T;
  for (int i = 0; i < s.rows; ++i) {
    const auto x = [=](int k) { return a.at(i, k); };
    const auto y = [=](int k, int j) { return b.at(k, j); };
    const auto z = [=](Pack<T> sum, int j, auto n) { sum.template store_first<n>(d.at(i, j)); };
    if (i < s.rows / 4 * 4) sum_line<Pack<T>::lanes, T>(0, s.columns, s.terms, x, y, z);
    else if (s.terms >= 8) sum_line<8, T>(0, s.columns, s.terms, x, y, z);
    else sum_line<1, T>(0, s.columns, s.terms, x, y, z);
  }
}

/// Both are transposed, and A is read row by row as stored: the lanes are rows.
template <class A, class B, class D>
ZELM_INLINE void multiply_columns(const A& a, const B& b, const D& d, Shape s) {
  using T = typename D::T;
  const int in_fours = s.rows / 4 * 4;
  for (int j = 0; j < s.columns; ++j) {
    const auto x = [=](int k) { return b.at(k, j); };
    const auto y = [=](int k, int i) { return a.at(i, k); };
    const auto z = [=](Pack<T> sum, int i, auto n) { sum.template scatter<n>([&](int l) { return d.at(i + l, j); }); };
    if (in_fours > 0) sum_line<Pack<T>::lanes, T>(0, in_fours, s.terms, x, y, z);
    if (in_fours == s.rows) continue;
    if (s.terms >= 8) sum_line<8, T>(in_fours, s.rows, s.terms, x, y, z);
    else sum_line<1, T>(in_fours, s.rows, s.terms, x, y, z);
  }
}

/// The sums of the lanes of L registers.
ZELM_INLINE Pack<float> sums_of_lanes(const Pack<float> (&p)[4]) {
  const auto halves = [](Pack<float> a, Pack<float> b) {
    return _mm_add_ps(shuffle<0x44>(a.raw, b.raw), shuffle<0xee>(a.raw, b.raw));
  };
  const __m128 low = halves(p[0], p[1]), high = halves(p[2], p[3]);
  return {_mm_add_ps(shuffle<0x88>(low, high), shuffle<0xdd>(low, high))};
}
ZELM_INLINE Pack<double> sums_of_lanes(const Pack<double> (&p)[2]) {
  return {_mm_add_pd(shuffle<0>(p[0].raw, p[1].raw), shuffle<3>(p[0].raw, p[1].raw))};
}

/// Rows i, i + 1 and four columns from j on, of which `columns` there are: the terms in the lanes.
template <class A, class B, class D>
ZELM_INLINE void multiply_tile(const A& a, const B& b, const D& d, int i, int j, int columns, int terms) {
  using T = typename D::T;
  using P = Pack<T>;
  constexpr int L = P::lanes;
  const T* right[4];
  ZELM_UNROLL for (int c = 0; c < 4; ++c) right[c] = b.at(0, j + std::min(c, columns - 1));
  const T* left[2] = {a.at(i, 0), a.at(i + 1, 0)};
  P part[2][4], sum[2][4 / L];
  const auto add = [&](int k, bool first) ZELM_INLINE_LAMBDA {
    const P x[2] = {P::load(left[0] + k), P::load(left[1] + k)};
    ZELM_UNROLL for (int c = 0; c < 4; ++c) {
      const P y = P::load(right[c] + k);
      ZELM_UNROLL for (int r = 0; r < 2; ++r) part[r][c] = first ? x[r] * y : part[r][c] + x[r] * y;
    }
  };
  int k = 0;
  ZELM_UNROLL for (int r = 0; r < 2; ++r) { ZELM_UNROLL for (int q = 0; q < 4 / L; ++q) sum[r][q] = P::zero(); }
  if (terms >= L) {
    add(0, true);
    ZELM_AS_IT_STANDS for (k = L; k + L <= terms; k += L) add(k, false);
    ZELM_UNROLL for (int r = 0; r < 2; ++r) {
      ZELM_UNROLL for (int q = 0; q < 4 / L; ++q) {
        P some[L];
        ZELM_UNROLL for (int l = 0; l < L; ++l) some[l] = part[r][q * L + l];
        sum[r][q] = sums_of_lanes(some) + P::zero();
      }
    }
  }
  ZELM_AS_IT_STANDS for (; k < terms; ++k) {
    ZELM_UNROLL for (int q = 0; q < 4 / L; ++q) {
      const P y = P::template gather<L>([&](int l) { return right[q * L + l] + k; });
      ZELM_UNROLL for (int r = 0; r < 2; ++r) sum[r][q] = sum[r][q] + P::splat(load(left[r] + k)) * y;
    }
  }
  ZELM_UNROLL for (int r = 0; r < 2; ++r) {
    T* const to = d.at(i + r, j);
    if (columns >= 4) {
      ZELM_UNROLL for (int q = 0; q < 4 / L; ++q) sum[r][q].store(to + q * L);
    } else {
      T all[4];
      ZELM_UNROLL for (int q = 0; q < 4 / L; ++q) sum[r][q].store(all + q * L);
      std::memcpy(to, all, std::size_t(columns) * sizeof(T));
    }
  }
}

/// A row of A times a column of B whose elements are neighbours.
template <class T>
T sum_of_row(const T* x, const T* y, int terms) {
  int k = 0;
  T sum = 0;
  if (terms >= 8) {
    EightLanes<T> sums;
    for (; k + 8 <= terms; k += 8)
      sums.add(
          k, [&](int m) { return Pack<T>::load(x + m); }, [&](int m) { return Pack<T>::load(y + m); });
    sum = sums.sum();
  }
  for (; k < terms; ++k) sum += load(x + k) * load(y + k);
  return sum;
}

/// B alone is transposed: rows with rows.
template <class A, class B, class D>
ZELM_INLINE void multiply_dots(const A& a, const B& b, const D& d, Shape s) {
  int i = 0;
  for (; i < s.rows / 4 * 4; i += 2)
    for (int j = 0; j < s.columns; j += 4)
      multiply_tile(a, b, d, i, s.columns < 4 ? j : std::min(j, s.columns - 4), s.columns, s.terms);
  for (; i < s.rows; ++i)
    for (int j = 0; j < s.columns; ++j) store(d.at(i, j), sum_of_row(a.at(i, 0), b.at(0, j), s.terms));
}

template <class A, class B, class D>
__attribute__((noinline)) void multiply_blocks(A a, B b, D d, Shape s) {
  if constexpr (B::plain) multiply_rows(a, b, d, s);
  else if constexpr (A::plain) multiply_dots(a, b, d, s);
  else multiply_columns(a, b, d, s);
}

}  // namespace zelm::products
