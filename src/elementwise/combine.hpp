// combine.hpp: dst = src1 op src2, element by element, for every form of sum and difference.
// Each element is one operation of the element type, first operand first, on every path: only the way through memory differs.
// dst may be a source of the same layout, strides and sizes; a source read as its transpose must lie apart from it.
#pragma once
#include "elementwise/run.hpp"
#include "frame/views.hpp"
#include "zelm_types.h"

namespace zelm::elementwise {

struct Plus {
  template <class V>
  ZELM_INLINE V operator()(V a, V b) const {
    return a + b;
  }
};
struct Minus {
  template <class V>
  ZELM_INLINE V operator()(V a, V b) const {
    return a - b;
  }
};

/// Objects without gaps are one run, along which a single operand repeats.
template <class Op, class A, class B, class D>
bool combine_tight(const A& a, const B& b, const D& d, int rows, int columns, int count) {
  using T = typename D::T;
  const std::ptrdiff_t size = std::ptrdiff_t(rows) * columns;
  const auto fits = [&](const auto& v) { return !v.array || v.tight(rows, columns); };
  if constexpr (!D::plain || !D::array || (A::array && !A::plain) || (B::array && !B::plain)) return false;
  else if (!d.tight(rows, columns) || !fits(a) || !fits(b)) return false;
  else if constexpr (A::array && B::array) {
    run(Op{}, Elements{a.first}, Elements{b.first}, d.first, size * count);
    return true;
  } else {
    if (size > Pattern<T>::limit || count < Pattern<T>::L) return false;
    if constexpr (A::array)
      run_repeated<Op, false>(Op{}, a.first, Pattern<T>(b.object(0), rows, columns), d.first, size * count);
    else run_repeated<Op, true>(Op{}, b.first, Pattern<T>(a.object(0), rows, columns), d.first, size * count);
    return true;
  }
}

/// Where equal elements of neighbouring objects lie side by side, each element of the objects is a run over all of them.
template <class Op, class A, class B, class D>
bool combine_interleaved(const A& a, const B& b, const D& d, int rows, int columns, int count) {
  if (count < 2 * Pack<typename D::T>::lanes || !d.interleaved() || (A::array && !a.interleaved()) ||
      (B::array && !b.interleaved()))
    return false;
  for (int i = 0; i < rows; ++i)
    for (int j = 0; j < columns; ++j)
      run(Op{}, along<A::array>(a.object(0).at(i, j)), along<B::array>(b.object(0).at(i, j)), d.object(0).at(i, j), count);
  return true;
}

template <class Op, int R, int C, class A, class B, class D>
void combine_fixed(const A& a, const B& b, const D& d, int count) {
  const auto first = held<R, C>(a);
  const auto second = held<R, C>(b);
  for (int k = 0; k < count; ++k) {
    const auto& x = rows_of<R, C>(first.object(k));
    const auto& y = rows_of<R, C>(second.object(k));
    const auto z = d.object(k);
    const auto row = [&](int i) { z.template set_row<C>(i, lanewise(Op{}, x.template row<C>(i), y.template row<C>(i))); };
    // Element by element the rows gain nothing from standing one after the other, and the library would be twice as large.
    if constexpr (std::decay_t<decltype(x)>::plain && std::decay_t<decltype(y)>::plain && z.plain) {
      ZELM_UNROLL for (int i = 0; i < R; ++i) row(i);
    } else {
      ZELM_AS_IT_STANDS for (int i = 0; i < R; ++i) row(i);
    }
  }
}

template <class Op, class A, class B, class D>
void combine_any(const A& a, const B& b, const D& d, int rows, int columns, int count) {
  for (int k = 0; k < count; ++k) {
    const auto x = a.object(k);
    const auto y = b.object(k);
    const auto z = d.object(k);
    for (int i = 0; i < rows; ++i) {
      if constexpr (x.plain && y.plain && z.plain) {
        run_packs(Op{}, Elements{x.at(i, 0)}, Elements{y.at(i, 0)}, z.at(i, 0), columns);
      } else {
        ZELM_AS_IT_STANDS for (int j = 0; j < columns; ++j) store(z.at(i, j), Op{}(load(x.at(i, j)), load(y.at(i, j))));
      }
    }
  }
}

template <class Op, class A, class B, class D>
ZELM_INLINE ZelStatus combine(A a, B b, D d, int width, int height, int count) {
  if (combine_tight<Op>(a, b, d, height, width, count)) return zelStsOk;
  if (combine_interleaved<Op>(a, b, d, height, width, count)) return zelStsOk;
  if (width != height || width < 3 || width > 6) combine_any<Op>(a, b, d, height, width, count);
  else if (width == 3) combine_fixed<Op, 3, 3>(a, b, d, count);
  else if (width == 4) combine_fixed<Op, 4, 4>(a, b, d, count);
  else if (width == 5) combine_fixed<Op, 5, 5>(a, b, d, count);
  else combine_fixed<Op, 6, 6>(a, b, d, count);
  return zelStsOk;
}

/// Vectors are matrices of one row.
template <class Op, class A, class B, class D>
ZELM_INLINE ZelStatus combine(A a, B b, D d, int width, int count) {
  if (combine_tight<Op>(a, b, d, 1, width, count)) return zelStsOk;
  if (combine_interleaved<Op>(a, b, d, 1, width, count)) return zelStsOk;
  if (width == 3) combine_fixed<Op, 1, 3>(a, b, d, count);
  else if (width == 4) combine_fixed<Op, 1, 4>(a, b, d, count);
  else if (width == 5) combine_fixed<Op, 1, 5>(a, b, d, count);
  else if (width == 6) combine_fixed<Op, 1, 6>(a, b, d, count);
  else combine_any<Op>(a, b, d, 1, width, count);
  return zelStsOk;
}

}  // namespace zelm::elementwise
