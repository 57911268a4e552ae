// qr.hpp: A = Q R by Householder reflections, and the least-squares solution of A x = b from them.
//
// Q is never formed. Reflection k is I + beta v v^T with v[k] = 1, zeros before, and the rest of v in the place of the zeros that
// it makes; beta = -2 / (v . v) is computed again where it is needed. A square matrix has no reflection for its last column. One
// formula serves all shapes and layouts; small objects run several at once, one in each lane of a register, and a group in which
// a column vanishes goes through the serial road, which leaves the state that a failure is to leave. Sums run in rising order. The
// source may be the destination. Error bounds: Higham, Accuracy and Stability of Numerical Algorithms, 2nd ed., section 19.3;
// measured in tests/solvers/qr_accuracy_test.cpp.
#pragma once
#include <limits>

#include "frame/alternating.hpp"
#include "simd/many.hpp"
#include "zelm_types.h"

namespace zelm::solvers::qr {

/// A column whose tail has a squared norm below this one is not reflected; the limit itself passes, and a NaN. It is absolute.
template <class T>
inline constexpr T kSmallestSquare = std::numeric_limits<T>::epsilon();

inline int reflections(int width, int height) { return width == height ? width - 1 : width; }

/// Loops of all sizes. Of the known ones, square matrices of order N, nothing is left; N = 0 stands for sizes at run time.
template <int N, class Body>
ZELM_INLINE void each_reflection(int width, int height, Body body) {
  if constexpr (N > 0) unroll<N - 1>(body);
  else
    for (int k = 0; k < reflections(width, height); ++k) body(k);
}
template <bool fixed, class Body>
ZELM_INLINE void each(int from, int to, Body body) {
  if constexpr (fixed) {
    ZELM_UNROLL for (int i = from; i < to; ++i) body(i);
  } else {
    for (int i = from; i < to; ++i) body(i);
  }
}

// The formula, on registers. x(i), v(i): element i of a column and of the vector of reflection k.

template <bool fixed, class P, class V>
ZELM_INLINE P scale(V v, int k, int height) {
  P n = P::splat(1);
  each<fixed>(k + 1, height, [&](int i) ZELM_INLINE_LAMBDA { n = n + v(i) * v(i); });
  return P::splat(-2) / n;
}

/// Reflects a column but for its element k, to which the result is to be added.
template <bool fixed, class P, class X, class V>
ZELM_INLINE P reflect_below(const X& x, V v, P beta, int k, int height) {
  P p = x(k);
  each<fixed>(k + 1, height, [&](int i) ZELM_INLINE_LAMBDA { p = p + x(i) * v(i); });
  const P c = p * beta;
  each<fixed>(k + 1, height, [&](int i) ZELM_INLINE_LAMBDA { x.set(i, x(i) + v(i) * c); });
  return c;
}

/// Column j of a matrix.
template <class M>
struct Column {
  const M& m;
  int j;
  ZELM_INLINE auto operator()(int i) const { return m(i, j); }
  ZELM_INLINE void set(int i, auto x) const { m.set(i, j, x); }
};

template <bool fixed, class M>
ZELM_INLINE auto squared_norm(const M& m, int k, int height) {
  auto q = m(k, k) * m(k, k);
  each<fixed>(k + 1, height, [&](int i) ZELM_INLINE_LAMBDA { q = q + m(i, k) * m(i, k); });
  return q;
}

/// Makes reflection k in the place of its column and applies it to its diagonal element. Returns beta.
template <bool fixed, class M, class P>
ZELM_INLINE P make_reflection(const M& m, int k, int height, P square) {
  const P a = m(k, k), zero = P::zero(), root = sqrt(square);
  const P u = P::splat(1) / (a + select(a > zero, root, zero - root));
  P p = a, n = P::splat(1);
  each<fixed>(k + 1, height, [&](int i) ZELM_INLINE_LAMBDA {
    const P x = m(i, k), v = x * u;
    n = n + v * v;
    p = p + x * v;
    m.set(i, k, v);
  });
  const P beta = P::splat(-2) / n;
  m.set(k, k, a + p * beta);
  return beta;
}

/// y becomes the solution, in its first `width` elements. Known sizes are square and add the part of a reflection that goes to its
/// own row behind the terms of the substitution, but in row 0 ahead of them.
template <int N, class P, class Y, class M, class Scale, class Halfway = Nothing>
ZELM_INLINE void solve_in_place(const Y& y, const M& m, Scale beta, int width, int height, Halfway halfway = {}) {
  constexpr bool fixed = N > 0;
  P late[fixed ? N : 1];
  each_reflection<N>(width, height, [&](int k) ZELM_INLINE_LAMBDA {
    const P c = reflect_below<fixed, P>(y, Column<M>{m, k}, beta(k), k, height);
    if (fixed && k > 0) late[k] = c;
    else y.set(k, y(k) + c);
  });
  halfway();
  each<fixed>(0, width, [&](int from_last) ZELM_INLINE_LAMBDA {
    const int i = width - 1 - from_last;
    P s = y(i);
    each<fixed>(i + 1, width, [&](int j) ZELM_INLINE_LAMBDA { s = s - m(i, j) * y(j); });
    if (fixed && i > 0 && i < width - 1) s = s + late[i];
    y.set(i, s / m(i, i));
  });
}

// Where the elements are

/// An object in memory, in the first lane.
template <class Object>
struct InMemory {
  using P = Pack<typename Object::T>;
  Object object;
  ZELM_INLINE P operator()(int i, int j) const { return P::template load_first<1>(object.at(i, j)); }
  ZELM_INLINE void set(int i, int j, P x) const { x.template store_first<1>(object.at(i, j)); }
};

/// As many columns as a register has lanes, from column j on.
template <class Object>
struct ColumnsInMemory {
  using P = Pack<typename Object::T>;
  Object object;
  int j;
  ZELM_INLINE P operator()(int i) const { return P::load(object.at(i, j)); }
  ZELM_INLINE void set(int i, P x) const { x.store(object.at(i, j)); }
};

/// Objects in the lanes of registers.
template <class P>
struct InLanes {
  P* e;
  int columns;
  ZELM_INLINE P operator()(int i, int j) const { return e[i * columns + j]; }
  ZELM_INLINE void set(int i, int j, P x) const { e[i * columns + j] = x; }
};

/// Elements of an object that can be held in lanes where the sizes come at run time.
inline constexpr int kMost = 512;

/// The lanes of R x C elements, or for 0 x 0 of up to kMost elements of any shape.
template <class T, int R, int C>
struct Tile {
  using P = Pack<T>;
  static constexpr int L = P::lanes;
  static constexpr bool fixed = R > 0;
  std::conditional_t<fixed, Lanes<T, R, C>, P[kMost]> lanes;
  int height, width;  // of sizes at run time

  ZELM_INLINE Tile(int h, int w) : height(h), width(w) {}
  ZELM_INLINE int rows() const { return fixed ? R : height; }
  ZELM_INLINE int columns() const { return fixed ? C : width; }

  ZELM_INLINE InLanes<P> elements() {
    if constexpr (fixed) return {&lanes.e[0][0], C};
    else return {lanes, width};
  }
  ZELM_INLINE InLanes<const P> elements() const {
    if constexpr (fixed) return {&lanes.e[0][0], C};
    else return {lanes, width};
  }

  template <bool beside, class View>
  ZELM_INLINE void load(const View& view, std::ptrdiff_t k, int valid) {
    if constexpr (fixed) lanes.template load<beside>(view, k, valid);
    else load_any<beside>(view, k, valid);
  }
  template <bool beside, class View>
  ZELM_INLINE void store(const View& view, std::ptrdiff_t k, int valid) const {
    if constexpr (fixed) lanes.template store<beside>(view, k, valid);
    else store_any<beside>(view, k, valid);
  }
  /// One object, in all lanes.
  template <class Object>
  void spread(const Object& object) {
    for (int i = 0; i < rows(); ++i)
      for (int j = 0; j < columns(); ++j) elements().set(i, j, P::splat(object.element(i, j)));
  }

  /// Makes the factors. Returns the mask of the objects that have no reflection for some column.
  ZELM_INLINE P factor() {
    const auto m = elements();
    P failed = P::zero();
    each_reflection<R>(columns(), rows(), [&](int k) ZELM_INLINE_LAMBDA {
      const P square = squared_norm<fixed>(m, k, rows());
      failed = failed | (P::splat(kSmallestSquare<T>) > square);
      const P beta = make_reflection<fixed>(m, k, rows(), square);
      each<fixed>(k + 1, columns(), [&](int j) ZELM_INLINE_LAMBDA {
        const P c = reflect_below<fixed>(Column<InLanes<P>>{m, j}, Column<InLanes<P>>{m, k}, beta, k, rows());
        m.set(k, j, m(k, j) + c);
      });
    });
    return failed;
  }

 private:
  template <bool beside, class View>
  void load_any(const View& view, std::ptrdiff_t k, int valid) {
    const bool runs = beside && view.interleaved() && valid == L;
    typename View::Object objects[L];
    view.objects(k, valid, objects);
    for (int i = 0; i < rows(); ++i) {
      P* const row = lanes + i * columns();
      int j = 0;
      if constexpr (View::Object::plain) {
        for (; j + L <= columns(); j += L) {
          P tile[L];
          rows_to_lanes(tile, [&](int l) { return objects[l].at(i, j); });
          for (int l = 0; l < L; ++l) row[j + l] = tile[l];
        }
      }
      for (; j < columns(); ++j)
        row[j] = runs ? P::load(objects[0].at(i, j)) : P::template gather<L>([&](int l) { return objects[l].at(i, j); });
    }
  }
  template <bool beside, class View>
  void store_any(const View& view, std::ptrdiff_t k, int valid) const {
    const bool runs = beside && view.interleaved();
    typename View::Object objects[L];
    view.objects(k, valid, objects);
    for (int i = 0; i < rows(); ++i) {
      const P* const row = lanes + i * columns();
      int j = 0;
      if constexpr (View::Object::plain) {
        for (; j + L <= columns() && valid == L; j += L) {
          P tile[L];
          for (int l = 0; l < L; ++l) tile[l] = row[j + l];
          lanes_to_rows(tile, [&](int l) { return objects[l].at(i, j); });
        }
      }
      for (; j < columns(); ++j) {
        if (valid < L) {
          alignas(16) T elements_of[L];
          row[j].store(elements_of);
          for (int l = 0; l < valid; ++l) zelm::store(objects[l].at(i, j), elements_of[l]);
        } else if (runs) {
          row[j].store(objects[0].at(i, j));
        } else {
          row[j].template scatter<L>([&](int l) { return objects[l].at(i, j); });
        }
      }
    }
  }
};

// Decomposition

template <class S, class D>
ZelStatus decompose_one(const S& s, const D& d, int width, int height) {
  using T = typename D::T;
  using P = Pack<T>;
  for (int i = 0; i < height; ++i)
    for (int j = 0; j < width; ++j) store(d.at(i, j), s.element(i, j));
  const InMemory<D> m{d};
  for (int k = 0; k < reflections(width, height); ++k) {
    const P square = squared_norm<false>(m, k, height);
    if (lane_bits(P::splat(kSmallestSquare<T>) > square) & 1) return zelStsDivideByZero;
    const P beta = make_reflection<false>(m, k, height, square), betas = P::splat(beta.first());
    int j = k + 1;
    if constexpr (D::plain) {
      for (; j + P::lanes <= width; j += P::lanes) {
        const ColumnsInMemory<D> x{d, j};
        const P c = reflect_below<false>(
            x, [&](int i) { return P::splat(d.element(i, k)); }, betas, k, height);
        x.set(k, x(k) + c);
      }
    }
    for (; j < width; ++j) {
      const P c = reflect_below<false>(Column<InMemory<D>>{m, j}, Column<InMemory<D>>{m, k}, beta, k, height);
      m.set(k, j, m(k, j) + c);
    }
  }
  return zelStsOk;
}

template <class A, class D>
__attribute__((noinline)) ZelStatus decompose_each(A a, D d, int width, int height, std::ptrdiff_t first, std::ptrdiff_t last) {
  for (std::ptrdiff_t k = first; k < last; ++k)
    if (const ZelStatus status = decompose_one(a.object(k), d.object(k), width, height)) return status;
  return zelStsOk;
}

/// False if an object failed, and then nothing is written.
template <int N, bool beside, class A, class D>
ZELM_INLINE bool decompose_block(const A& a, const D& d, int width, int height, std::ptrdiff_t k, int valid) {
  Tile<typename D::T, N, N> tile(height, width);
  tile.template load<beside>(a, k, valid);
  if (lane_bits(tile.factor())) return false;
  tile.template store<beside>(d, k, valid);
  return true;
}
template <int N, class A, class D>
__attribute__((noinline)) bool decompose_last(A a, D d, int width, int height, std::ptrdiff_t k, int valid) {
  return decompose_block<N, false>(a, d, width, height, k, valid);
}

template <int N, bool beside, class A, class D>
ZelStatus decompose_lanes(A a, D d, int width, int height, int count) {
  constexpr int L = Pack<typename D::T>::lanes;
  std::ptrdiff_t k = 0;
  while (k + L <= count && decompose_block<N, beside>(a, d, width, height, k, L)) k += L;
  if (k == count || (count - k < L && decompose_last<N>(a, d, width, height, k, int(count - k)))) return zelStsOk;
  return decompose_each(a, d, width, height, k, count);
}

template <int N, class A, class D>
ZELM_INLINE ZelStatus decompose_small(A a, D d, int width, int height, int count) {
  if constexpr (can_interleave<A>)
    if (a.interleaved() && d.interleaved()) return decompose_lanes<N, true>(a, d, width, height, count);
  return decompose_lanes<N, false>(a, d, width, height, count);
}

/// Orders of square matrices that have code of their own.
ZELM_INLINE int known_order(int width, int height) { return width == height && width >= 3 && width <= 6 ? width : 0; }
ZELM_INLINE bool holdable(int width, int height) { return std::ptrdiff_t(width) * height <= kMost; }

/// The buffer stays as it is: the vectors are made where they are to stand.
template <class A, class D>
ZELM_INLINE ZelStatus decompose(A a, void*, D d, int width, int height, int count) {
  switch (known_order(width, height)) {
    case 3: return decompose_small<3>(a, d, width, height, count);
    case 4: return decompose_small<4>(a, d, width, height, count);
    case 5: return decompose_small<5>(a, d, width, height, count);
    case 6: return decompose_small<6>(a, d, width, height, count);
  }
  if constexpr (A::array)
    if (count > 1 && holdable(width, height)) return decompose_small<0>(a, d, width, height, count);
  return decompose_each(a, d, width, height, 0, count);
}

// Solution

/// Elements that follow each other, in the first lane.
template <class T>
struct Buffer {
  T* p;
  ZELM_INLINE Pack<T> operator()(int i) const { return Pack<T>::template load_first<1>(p + i); }
  ZELM_INLINE void set(int i, Pack<T> x) const { x.template store_first<1>(p + i); }
};
/// A vector in lanes.
template <class P>
struct Registers {
  InLanes<P> row;
  ZELM_INLINE P operator()(int i) const { return row(0, i); }
  ZELM_INLINE void set(int i, P x) const { row.set(0, i, x); }
};

template <class A, class B, class D, class T>
void solve_one(const A& a, T* buffer, const B& b, const D& d, int width, int height) {
  for (int i = 0; i < height; ++i) store(buffer + i, b.element(0, i));
  const InMemory<A> m{a};
  solve_in_place<0, Pack<T>>(
      Buffer<T>{buffer}, m,
      [&](int k) {
        return scale<false, Pack<T>>(Column<InMemory<A>>{m, k}, k, height);
      },
      width, height);
  for (int j = 0; j < width; ++j) store(d.at(0, j), load(buffer + j));
}

/// Numbers in an array.
template <class V>
struct Numbers {
  V* x;
  ZELM_INLINE V operator()(int i) const { return x[i]; }
  ZELM_INLINE void set(int i, V value) const { x[i] = value; }
};

/// The one matrix of a call in all lanes, and its scales.
template <class T, int N>
struct Factors {
  Lanes<T, N, N> lanes;
  Pack<T> beta[N - 1];
};

/// Known orders. `factors` is a view of as many matrices as there are right-hand sides, or the one of all.
template <int N, bool beside, class F, class B, class D>
ZELM_INLINE void solve_blocks(const F& factors, B b, D d, int count) {
  using T = typename D::T;
  constexpr int L = Pack<T>::lanes;
  constexpr bool shared = std::is_same_v<F, Factors<T, N>>;
  for_alternating<N, shared, 4, beside>(
      d, count, [=]<class V>(V(&x)[N], std::ptrdiff_t k, auto valid, auto halfway) ZELM_INLINE_LAMBDA {
        load_vectors<beside>(x, b, k, valid);
        if constexpr (shared) {
          const auto m = [&](int i, int j) ZELM_INLINE_LAMBDA { return V(factors.lanes.e[i][j]); };
          solve_in_place<N, V>(
              Numbers<V>{x}, m, [&](int r) ZELM_INLINE_LAMBDA { return V(factors.beta[r]); }, N, N, halfway);
        } else {
          Lanes<T, N, N> f[V::packs];
          ZELM_UNROLL for (int q = 0; q < V::packs; ++q) f[q].template load<beside>(factors, k + q * L, valid);
          const auto m = [&](int i, int j)
                             ZELM_INLINE_LAMBDA { return V::each([&](int q) ZELM_INLINE_LAMBDA { return f[q].e[i][j]; }); };
          const auto beta = [&](int r) ZELM_INLINE_LAMBDA { return scale<true, V>(Column<decltype(m)>{m, r}, r, N); };
          solve_in_place<N, V>(Numbers<V>{x}, m, beta, N, N, halfway);
        }
      });
}

template <int N, bool beside, class A, class W, class D>
void solve_known(A a, W b, D d, int count) {
  if constexpr (A::array || !W::array) {
    solve_blocks<N, beside>(a, b, d, count);
  } else {
    using T = typename D::T;
    Factors<T, N> f;
    f.lanes.splat(a.object(0));
    const auto m = [&](int i, int j) { return f.lanes.e[i][j]; };
    for (int r = 0; r < N - 1; ++r) f.beta[r] = scale<false, Pack<T>>(Column<decltype(m)>{m, r}, r, N);
    solve_blocks<N, beside>(f, b, d, count);
  }
}

/// Any shape that fits: right-hand sides k, ..., k + valid - 1, by the factors m.
template <bool beside, class M, class Scale, class B, class D>
ZELM_INLINE void solve_shape(const M& m, Scale beta, const B& b, const D& d, int width, int height, std::ptrdiff_t k,
                             int valid) {
  using T = typename D::T;
  Tile<T, 0, 0> y(1, height);
  y.template load<beside>(b, k, valid);
  solve_in_place<0, Pack<T>>(Registers<Pack<T>>{y.elements()}, m, beta, width, height);
  y.width = width;
  y.template store<beside>(d, k, valid);
}

template <bool beside, class A, class B, class D>
void solve_any(A a, B b, D d, int width, int height, int count) {
  using T = typename D::T;
  using P = Pack<T>;
  Tile<T, 0, 0> f(height, width);
  const auto m = f.elements();
  const auto beta = [&](int r) ZELM_INLINE_LAMBDA { return scale<false, P>(Column<InLanes<P>>{m, r}, r, height); };
  if constexpr (!A::array && B::array) {
    P betas[kMost];
    f.spread(a.object(0));
    for (int r = 0; r < reflections(width, height); ++r) betas[r] = beta(r);
    for_blocks<P::lanes>(count, [&](std::ptrdiff_t k, auto valid) ZELM_INLINE_LAMBDA {
      solve_shape<beside>(
          m, [&](int r) ZELM_INLINE_LAMBDA { return betas[r]; }, b, d, width, height, k, valid);
    });
  } else {
    for_blocks<P::lanes>(count, [&](std::ptrdiff_t k, auto valid) ZELM_INLINE_LAMBDA {
      f.template load<beside>(a, k, valid);
      solve_shape<beside>(m, beta, b, d, width, height, k, valid);
    });
  }
}

template <int N, bool beside, class A, class B, class D>
ZELM_INLINE ZelStatus solve_lanes(A a, B b, D d, int width, int height, int count) {
  if constexpr (N > 0) solve_known<N, beside>(a, b, d, count);
  else solve_any<beside>(a, b, d, width, height, count);
  return zelStsOk;
}

template <int N, class A, class B, class D>
ZELM_INLINE ZelStatus solve_small(A a, B b, D d, int width, int height, int count) {
  if constexpr (can_interleave<B>)
    if ((!A::array || a.interleaved()) && b.interleaved() && d.interleaved())
      return solve_lanes<N, true>(a, b, d, width, height, count);
  if constexpr (N > 0 && A::plain && B::array && B::plain && D::plain) {
    if ((!A::array || a.tight(N, N)) && b.tight(1, N) && d.tight(1, N)) {
      with_stores<N>(b, tight_array<1, N>(d), count, [&](const auto& to) ZELM_INLINE_LAMBDA {
        solve_known<N, false>(tight_array<N, N>(a), tight_array<1, N>(b), to, count);
      });
      return zelStsOk;
    }
  }
  return solve_lanes<N, false>(a, b, d, width, height, count);
}

/// Reads a right-hand side whole before it writes the solution, which may stand in its place.
template <class A, class B, class D>
ZELM_INLINE ZelStatus solve(A a, void* buffer, B b, D d, int width, int height, int count) {
  switch (known_order(width, height)) {
    case 3: return solve_small<3>(a, b, d, width, height, count);
    case 4: return solve_small<4>(a, b, d, width, height, count);
    case 5: return solve_small<5>(a, b, d, width, height, count);
    case 6: return solve_small<6>(a, b, d, width, height, count);
  }
  if constexpr (B::array)
    if (count > 1 && holdable(width, height)) return solve_small<0>(a, b, d, width, height, count);
  for (std::ptrdiff_t k = 0; k < count; ++k)
    solve_one(a.object(k), static_cast<typename D::T*>(buffer), b.object(k), d.object(k), width, height);
  return zelStsOk;
}

}  // namespace zelm::solvers::qr
