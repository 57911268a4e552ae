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

/// Lines of the product that run along the lanes: rows, or columns where the lanes are rows. All steps count bytes.
///   x + line * x_line + k * x_term   factor of a whole line
///   y + k * y_term                   factors of its elements, neighbours in memory
///   d + line * d_line                its elements, `down` columns d_element apart, else neighbours
template <class T>
struct Lines {
  const T* x;
  Bytes x_line, x_term;
  const T* y;
  Bytes y_term;
  T* d;
  Bytes d_line, d_element;
  int terms;
};

/// Q registers of elements of each of the lines from element e on, of the last one n elements. `along`: x_term is one element.
template <int S, bool along, bool down, int Q, int n, class T>
ZELM_INLINE void sum_lines_here(const Lines<T>& of, int lines, int e) {
  using P = Pack<T>;
  constexpr int L = P::lanes;
  const T *x_start = of.x, *const y_start = of.y + e;
  T* d = moved(of.d, e * of.d_element);
  const Bytes x_term = along ? Bytes(sizeof(T)) : of.x_term, y_term = of.y_term;
  const Bytes x_line = of.x_line, d_line = of.d_line, d_element = of.d_element;  // no store to d can change these
  const int sets = of.terms / S, rest = of.terms % S;
  ZELM_AS_IT_STANDS for (; lines > 0; --lines, x_start = moved(x_start, x_line), d = moved(d, d_line)) {
    const T *x = x_start, *y = y_start;
    P part[Q][S], sum[Q];
    const auto add_set = [&](bool first) ZELM_INLINE_LAMBDA {
      P factor[S];
      ZELM_UNROLL for (int s = 0; s < S; ++s) {
        if constexpr (along && L == 4 && S > 1) factor[s] = spread_lane(P::load(x + s / 4 * 4), s % 4);
        else factor[s] = P::splat(load(moved(x, s * x_term)));
      }
      ZELM_UNROLL for (int s = 0; s < S; ++s) {
        ZELM_UNROLL for (int q = 0; q < Q; ++q) {
          const P term = factor[s] * P::template load_first<n>(moved(y, s * y_term) + q * L);
          part[q][s] = first ? term : part[q][s] + term;
        }
      }
      x = moved(x, S * x_term);
      y = moved(y, S * y_term);
      __asm__("" : "+r"(x), "+r"(y));  // two addresses to carry along, not one for each term
    };
    const auto add_one = [&](bool first) ZELM_INLINE_LAMBDA {
      const P factor = P::splat(load(x));
      ZELM_UNROLL for (int q = 0; q < Q; ++q) {
        const P term = factor * P::template load_first<n>(y + q * L);
        sum[q] = first ? term : sum[q] + term;
      }
      x = moved(x, x_term);
      y = moved(y, y_term);
    };
    int left = rest;
    if (sets > 0) {
      add_set(true);
      ZELM_AS_IT_STANDS for (int set = 1; set < sets; ++set) add_set(false);
      ZELM_UNROLL for (int q = 0; q < Q; ++q) sum[q] = total<S, T>(part[q]);
    } else {
      add_one(true);
      --left;
    }
    ZELM_AS_IT_STANDS for (; left > 0; --left) add_one(false);
    ZELM_UNROLL for (int q = 0; q < Q; ++q) {
      sum[q] = sum[q] + P::zero();
      if constexpr (down) sum[q].template scatter<n>([&](int l) { return moved(d, (q * L + l) * d_element); });
      else sum[q].template store_first<n>(d + q * L);
    }
  }
}

template <int S, bool along, bool down, int Q, int n, class T>
__attribute__((noinline)) void sum_lines(const Lines<T>& of, int lines, int e) {
  sum_lines_here<S, along, down, Q, n>(of, lines, e);
}

/// Elements from, ..., to - 1 of the lines.
template <int S, bool along, bool down, class T>
ZELM_INLINE void sum_lines(const Lines<T>& of, int lines, int from, int to) {
  constexpr int L = Pack<T>::lanes, Q = S == 8 ? 1 : 8 / L;
  int e = from;
  for (; e + Q * L <= to; e += Q * L) sum_lines<S, along, down, Q, L>(of, lines, e);
  for (; e < to; e += L) {
    if (to - from >= L) sum_lines<S, along, down, 1, L>(of, lines, std::min(e, to - L));  // some elements twice
    else if (to - e == 1) sum_lines<S, along, down, 1, 1>(of, lines, e);
    else if (to - e == 2) sum_lines<S, along, down, 1, 2>(of, lines, e);
    else sum_lines<S, along, down, 1, std::min(3, L)>(of, lines, e);
  }
}

template <class Object>
ZELM_INLINE Bytes row_step(const Object& o) {
  if constexpr (Object::turned) return sizeof(typename Object::T);
  else return o.row_stride;
}
template <class Object>
ZELM_INLINE Bytes column_step(const Object& o) {
  if constexpr (Object::turned) return o.stored.row_stride;
  else return sizeof(typename Object::T);
}

/// B is read row by row: the lanes are columns.
template <class A, class B, class D>
ZELM_INLINE void multiply_rows(const A& a, const B& b, const D& d, Shape s) {
  using T = typename D::T;
  const auto lines = [&](int i) {
    return Lines<T>{a.at(i, 0), row_step(a), column_step(a), b.at(0, 0), row_step(b),
                    d.at(i, 0), row_step(d), sizeof(T),      s.terms};
  };
  const int in_fours = s.rows / 4 * 4;
  if (in_fours > 0) sum_lines<Pack<T>::lanes, A::plain, false>(lines(0), in_fours, 0, s.columns);
  if (in_fours == s.rows) return;
  if (s.terms >= 8) sum_lines<8, A::plain, false>(lines(in_fours), s.rows - in_fours, 0, s.columns);
  else sum_lines<1, A::plain, false>(lines(in_fours), s.rows - in_fours, 0, s.columns);
}

/// Both are transposed, and A is read row by row as stored: the lanes are rows.
template <class A, class B, class D>
ZELM_INLINE void multiply_columns(const A& a, const B& b, const D& d, Shape s) {
  using T = typename D::T;
  const Lines<T> lines = {b.at(0, 0), column_step(b), row_step(b), a.at(0, 0), column_step(a),
                          d.at(0, 0), column_step(d), row_step(d), s.terms};
  const int in_fours = s.rows / 4 * 4;
  if (in_fours > 0) sum_lines<Pack<T>::lanes, true, true>(lines, s.columns, 0, in_fours);
  if (in_fours == s.rows) return;
  if (s.terms >= 8) sum_lines<8, true, true>(lines, s.columns, in_fours, s.rows);
  else sum_lines<1, true, true>(lines, s.columns, in_fours, s.rows);
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

/// All objects of an array of products of rows in fours and columns in whole registers. The way into sum_lines took a
/// quarter of the time of a product of order 8.
template <class A, class B, class D>
__attribute__((noinline)) void multiply_whole_registers(A a, B b, D d, Shape s, std::ptrdiff_t count) {
  using T = typename D::T;
  constexpr int L = Pack<T>::lanes, Q = 8 / L;
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    const auto x = a.object(k);
    const auto y = b.object(k);
    const auto z = d.object(k);
    const Lines<T> lines{x.base, x.row_stride, sizeof(T), y.base, y.row_stride, z.base, z.row_stride, sizeof(T), s.terms};
    int e = 0;
    for (; e + Q * L <= s.columns; e += Q * L) sum_lines_here<L, true, false, Q, L>(lines, s.rows, e);
    for (; e < s.columns; e += L) sum_lines_here<L, true, false, 1, L>(lines, s.rows, e);
  }
}

template <class A, class B, class D>
__attribute__((noinline)) void multiply_blocks(A a, B b, D d, Shape s) {
  if constexpr (B::plain) multiply_rows(a, b, d, s);
  else if constexpr (A::plain) multiply_dots(a, b, d, s);
  else multiply_columns(a, b, d, s);
}

}  // namespace zelm::products
