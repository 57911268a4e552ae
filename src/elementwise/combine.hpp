// combine.hpp: dst = op(src1, src2), element by element: sums and differences of objects, objects with constants, and linear
// combinations. Each element is computed by the one formula, each operation rounded, on every path: only the way through
// memory differs.
// dst may be a source of the same layout, strides and sizes; a source read as its transpose must lie apart from it. Of a single
// vector the result is that of the ascending loop, however its memory overlaps.
#pragma once
#include "elementwise/run.hpp"
#include "frame/views.hpp"
#include "zelm_types.h"

namespace zelm::elementwise {

struct Minus {
  template <class V>
  ZELM_INLINE V operator()(V a, V b) const {
    return a - b;
  }
};
/// For the forms that name the constant first: their arguments have the vector first all the same.
struct SubtractedFrom {
  template <class V>
  ZELM_INLINE V operator()(V a, V b) const {
    return b - a;
  }
};
template <class T>
struct ScaledPlus {
  T val;
  ZELM_INLINE T operator()(T a, T b) const { return a * val + b; }
  ZELM_INLINE Pack<T> operator()(Pack<T> a, Pack<T> b) const { return a * Pack<T>::splat(val) + b; }
};
template <class T>
struct WeightedSum {
  T val1, val2;
  ZELM_INLINE T operator()(T a, T b) const { return a * val1 + b * val2; }
  ZELM_INLINE Pack<T> operator()(Pack<T> a, Pack<T> b) const { return a * Pack<T>::splat(val1) + b * Pack<T>::splat(val2); }
};

/// Objects without gaps are one run, along which a single operand repeats.
template <class Op, class A, class B, class D>
bool combine_tight(Op op, const A& a, const B& b, const D& d, int rows, int columns, int count) {
  using T = typename D::T;
  const std::ptrdiff_t size = std::ptrdiff_t(rows) * columns;
  const auto fits = [&](const auto& v) { return !v.array || v.tight(rows, columns); };
  if constexpr (!D::plain || !D::array || (A::array && !A::plain) || (B::array && !B::plain)) return false;
  else if (!d.tight(rows, columns) || !fits(a) || !fits(b)) return false;
  else if constexpr (A::array && B::array) {
    run(op, Elements{a.first}, Elements{b.first}, d.first, size * count);
    return true;
  } else if constexpr (B::constant) {
    run(op, Elements{a.first}, Same<T>{b.value}, d.first, size * count);
    return true;
  } else {
    // Long vectors of whole registers need no pattern, and making one takes a tenth of the time of 15 vectors of 100 doubles.
    constexpr int L = Pattern<T>::L, kHeld = 25;  // packs: the longest pattern that has a loop of its own
    if (rows == 1 && columns % L == 0 && columns > kHeld * L) return false;
    if (!Pattern<T>::fits(size) || count < L) return false;
    if constexpr (A::array) run_repeated<Op, false>(op, a.first, Pattern<T>(b.object(0), rows, columns), d.first, size * count);
    else run_repeated<Op, true>(op, b.first, Pattern<T>(a.object(0), rows, columns), d.first, size * count);
    return true;
  }
}

/// Vectors and constants without gaps, one for each: N registers hold the vectors of as many objects as a register has lanes. Of use
/// where some hold elements of two vectors, and of floats, where one shuffle of a register with four constants does for each.
template <int N, class Op, class A, class B, class D>
void combine_constants(Op op, A a, B b, D d, int count) {
  using P = Pack<typename D::T>;
  constexpr int L = P::lanes;
  P held[N];
  if constexpr (!A::array) {
    const Pattern<typename D::T> pattern(a.object(0), 1, N);
    ZELM_UNROLL for (int q = 0; q < N; ++q) held[q] = P::load(pattern.elements + q % pattern.packs * L);
  }
  std::ptrdiff_t k = 0;
  for (const std::ptrdiff_t blocks = count & -L; k < blocks; k += L) {
    P constants[N];
    unroll<N>([&](auto q) { constants[q] = spread<N, q>(b.first + k); });
    ZELM_UNROLL for (int q = 0; q < N; ++q) {
      if constexpr (A::array) held[q] = P::load(a.first + k * N + q * L);
      op(held[q], constants[q]).store(d.first + k * N + q * L);
    }
  }
  const auto last = zelm::held<1, N>(a);
  for (; k < count; ++k)
    d.object(k).template set_row<N>(0, lanewise(op, last.object(k).template row<N>(0), b.object(k).template row<N>(0)));
}

/// Where equal elements of neighbouring objects lie side by side, each element of the objects is a run over all of them.
template <class Op, class A, class B, class D>
bool combine_interleaved(Op op, const A& a, const B& b, const D& d, int rows, int columns, int count) {
  if (count < 2 * Pack<typename D::T>::lanes || !d.interleaved() || (A::array && !a.interleaved()) ||
      (B::array && !b.interleaved()))
    return false;
  for (int i = 0; i < rows; ++i)
    for (int j = 0; j < columns; ++j) run(op, along(a, i, j), along(b, i, j), d.object(0).at(i, j), count);
  return true;
}

template <int R, int C, class Op, class A, class B, class D>
void combine_fixed(Op op, A a, B b, D d, int count) {
  const auto first = held<R, C>(a);
  const auto second = held<R, C>(b);
  for (int k = 0; k < count; ++k) {
    const auto& x = rows_of<R, C>(first.object(k));
    const auto& y = rows_of<R, C>(second.object(k));
    const auto z = d.object(k);
    const auto row = [&](int i) { z.template set_row<C>(i, lanewise(op, x.template row<C>(i), y.template row<C>(i))); };
    // Element by element the rows gain nothing from standing one after the other, and the library would be twice as large.
    if constexpr (std::decay_t<decltype(x)>::plain && std::decay_t<decltype(y)>::plain && z.plain) {
      ZELM_UNROLL for (int i = 0; i < R; ++i) row(i);
    } else {
      ZELM_AS_IT_STANDS for (int i = 0; i < R; ++i) row(i);
    }
  }
}

/// N x N elements as one run (is_run).
template <int N, class Object>
ZELM_INLINE Row<typename Object::T, N * N> run_of(const Object& object) {
  using Run = Row<typename Object::T, N * N>;
  if constexpr (Object::turned) return run_of_columns<N>(object.stored);
  else if constexpr (requires { object.value; }) return Run::splat(object.value);
  else return Run::load(object.base);
}
template <int N, class Op, class A, class B, class D>
__attribute__((noinline)) void combine_runs(Op op, const A& first_a, const B& first_b, const D& first_d, int count) {
  const A a = first_a;
  const B b = first_b;
  const D d = first_d;
  for (int k = 0; k < count; ++k) {
    // What is transposed comes first: the other operand can be loaded where it is used.
    if constexpr (B::Object::turned) {
      const auto y = run_of<N>(b.object(k));
      lanewise(op, run_of<N>(a.object(k)), y).store(d.object(k).base);
    } else {
      const auto x = run_of<N>(a.object(k));
      lanewise(op, x, run_of<N>(b.object(k))).store(d.object(k).base);
    }
  }
}

/// One row in ascending order, each element stored before the next is read.
template <class Op, class X, class Y, class Z>
void combine_in_order(Op op, const X& x, const Y& y, const Z& z, int i, int columns) {
  ZELM_AS_IT_STANDS for (int j = 0; j < columns; ++j) store(z.at(i, j), op(x.element(i, j), y.element(i, j)));
}

/// Vectors have a loop of their own, whose addresses all stay in registers. Views are copied from memory word by word: as
/// arguments by value they would be copied in pairs of words just written one by one, for which a processor waits.
template <bool vectors, class Op, class A, class B, class D>
__attribute__((noinline)) void combine_any(Op op, const A& first_a, const B& first_b, const D& first_d, int rows, int columns,
                                           int count) {
  A a = first_a;
  B b = first_b;
  D d = first_d;
  if (vectors) rows = 1;
  for (int k = 0; k < count; ++k, a.next(), b.next(), d.next()) {
    const auto x = a.object(0);
    const auto y = b.object(0);
    const auto z = d.object(0);
    for (int i = 0; i < rows; ++i) {
      if constexpr (x.plain && y.plain && z.plain) run_packs(op, along_row(x, i), along_row(y, i), z.at(i, 0), columns);
      else combine_in_order(op, x, y, z, i, columns);
    }
  }
}

/// The same of row vectors; a constant is never changed.
template <class X, class Z>
ZELM_INLINE bool vector_runs_into(const X& x, const Z& z, int columns) {
  if constexpr (requires { x.at(0, 0); }) return runs_into<typename Z::T>(x.at(0, 0), z.at(0, 0), columns);
  else return false;
}

/// Views as arguments are memory. Copies of which the compiler cannot tell that they are copies keep it from being written on the
/// ways that need none: 12 stores at the head of a kernel.
template <bool vectors, class Op, class A, class B, class D>
ZELM_INLINE void combine_rest(Op op, const A& a, const B& b, const D& d, int rows, int columns, int count) {
  A x = a;
  B y = b;
  D z = d;
  __asm__("" : "+m"(x), "+m"(y), "+m"(z));
  combine_any<vectors>(op, x, y, z, rows, columns, count);
}

/// Vectors are matrices of one row.
template <class Op, class A, class B, class D>
ZELM_INLINE void combine_vectors(Op op, const A& a, const B& b, const D& d, int width, int count) {
  if constexpr (!D::array) {
    const auto x = a.object(0);
    const auto y = b.object(0);
    const auto z = d.object(0);
    if (!x.plain || !y.plain || !z.plain || vector_runs_into(x, z, width) || vector_runs_into(y, z, width))
      return combine_in_order(op, x, y, z, 0, width);
  } else {
    if (combine_tight(op, a, b, d, 1, width, count)) return;
    if (combine_interleaved(op, a, b, d, 1, width, count)) return;
    if constexpr (B::constant && B::array && D::plain && (A::plain || !A::array)) {
      const bool tight = d.tight(1, width) && (!A::array || a.tight(1, width)) && b.interleaved();
      if (tight && (sizeof(typename D::T) == 4 || width % 2 != 0)) {
        switch (width) {
          case 3: return combine_constants<3>(op, a, b, d, count);
          case 4: return combine_constants<4>(op, a, b, d, count);
          case 5: return combine_constants<5>(op, a, b, d, count);
          case 6: return combine_constants<6>(op, a, b, d, count);
        }
      }
    }
  }
  switch (width) {
    case 3: return combine_fixed<1, 3>(op, a, b, d, count);
    case 4: return combine_fixed<1, 4>(op, a, b, d, count);
    case 5: return combine_fixed<1, 5>(op, a, b, d, count);
    case 6: return combine_fixed<1, 6>(op, a, b, d, count);
  }
  if constexpr (A::Object::plain && B::Object::plain && D::Object::plain) {
    switch (width) {
      case 9: return combine_fixed<1, 9>(op, a, b, d, count);
      case 16: return combine_fixed<1, 16>(op, a, b, d, count);
      case 25: return combine_fixed<1, 25>(op, a, b, d, count);
    }
    if constexpr (sizeof(typename D::T) == 4)
      if (width == 36) return combine_fixed<1, 36>(op, a, b, d, count);
  }
  combine_rest<true>(op, a, b, d, 1, width, count);
}

template <class Op, class A, class B, class D>
ZELM_INLINE void combine_matrices(Op op, const A& a, const B& b, const D& d, int width, int height, int count) {
  if (combine_tight(op, a, b, d, height, width, count)) return;
  if (combine_interleaved(op, a, b, d, height, width, count)) return;
  if constexpr (D::array && A::Object::plain && B::Object::plain && D::Object::plain)
    if (better_as_vectors<typename D::T>(height, width, a, b, d)) return combine_vectors(op, a, b, d, width * width, count);
  constexpr bool turned = (A::Object::turned || B::Object::turned) && (A::array || A::constant) && (B::array || B::constant);
  if constexpr (turned && D::array && D::Object::plain) {
    const auto in_runs = [&](auto n) ZELM_INLINE_LAMBDA {
      if constexpr (better_as_run<typename D::T, n>) {
        if (width == n && height == n && is_run(a, n) && is_run(b, n) && is_run(d, n))
          return combine_runs<n>(op, a, b, d, count), true;
      }
      return false;
    };
    if (in_runs(std::integral_constant<int, 3>{}) || in_runs(std::integral_constant<int, 5>{})) return;
  }
  if (width != height || width < 3 || width > 6) combine_rest<false>(op, a, b, d, height, width, count);
  else if (width == 3) combine_fixed<3, 3>(op, a, b, d, count);
  else if (width == 4) combine_fixed<4, 4>(op, a, b, d, count);
  else if (width == 5) combine_fixed<5, 5>(op, a, b, d, count);
  else combine_fixed<6, 6>(op, a, b, d, count);
}

/// A constant by value is an operand like any other.
template <class V>
ZELM_INLINE auto operand(V v) {
  if constexpr (std::is_floating_point_v<V>) return ConstantView<V>{v};
  else return v;
}

// The formulas, as the kernels call them

template <class Op, class A, class B, class D>
ZELM_INLINE ZelStatus combine(A a, B b, D d, int width, int height, int count) {
  combine_matrices(Op{}, a, operand(b), d, width, height, count);
  return zelStsOk;
}
template <class Op, class A, class B, class D>
ZELM_INLINE ZelStatus combine(A a, B b, D d, int width, int count) {
  combine_vectors(Op{}, a, operand(b), d, width, count);
  return zelStsOk;
}

/// A single vector times the constant of its call, formed once for all objects: as long as a pattern may be.
template <class T>
struct ScaledVector {
  alignas(16) T elements[Pattern<T>::capacity];

  template <class Object>
  ScaledVector(const Object& v, T val, int width) {
    if constexpr (Object::plain) run_packs(Times{}, along_row(v, 0), Same<T>{val}, elements, width);
    else ZELM_AS_IT_STANDS for (int j = 0; j < width; ++j) elements[j] = v.element(0, j) * val;
  }
  StridedView<const T, true, false> view() const { return vector(elements); }
};

/// d = a * val + b
template <class A, class B, class D>
ZELM_INLINE ZelStatus combine_scaled(A a, typename D::T val, B b, D d, int width, int count) {
  using T = typename D::T;
  if constexpr (!A::array && B::array) {
    if (width <= Pattern<T>::capacity) {
      const ScaledVector<T> scaled(a.object(0), val, width);
      combine_vectors(Plus{}, scaled.view(), b, d, width, count);
      return zelStsOk;
    }
  }
  combine_vectors(ScaledPlus<T>{val}, a, b, d, width, count);
  return zelStsOk;
}

/// d = a * val1 + b * val2
template <class A, class B, class D>
ZELM_INLINE ZelStatus combine_weighted(A a, typename D::T val1, B b, typename D::T val2, D d, int width, int count) {
  combine_vectors(WeightedSum<typename D::T>{val1, val2}, a, b, d, width, count);
  return zelStsOk;
}

}  // namespace zelm::elementwise
