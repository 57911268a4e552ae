// multiply.hpp: D = A B of one pair or an array of pairs of matrices, either of them read as its transpose.
//
// Every product is rounded and then added; what differs between kernels is the order of the sums, and it is part of their contract
// (the policies below). Square products of small order sum from left to right and start with the first product, so that negative
// zeros stay negative; all others start from +0.
// dst must lie apart from the sources, except that square products of order 3 to 6 read B whole before they store, and row i of an
// untransposed A before row i of dst.
#pragma once
#include <utility>

#include "frame/lanes.hpp"
#include "products/multiply_blocks.hpp"
#include "products/multiply_cells.hpp"
#include "zelm_types.h"

namespace zelm::products {

// Policies: in which order a kernel sums, and which orders of square products, from `From` to `To`, have a path of their own.

/// Contiguous elements. Rows in fours: as many partial sums as a register has lanes, term k in sum k mod lanes. The rows that are
/// left: eight partial sums where there are eight terms. See multiply_blocks.hpp.
template <int From, int To>
struct Blocked {
  static constexpr int from = From, to = To;
  template <class A, class B, class D>
  static ZELM_INLINE void one(const A& a, const B& b, const D& d, Shape shape) {
    multiply_blocks(a, b, d, shape);
  }
};

/// One term after the other, summed in the destination. See multiply_cells.hpp.
template <int From, int To>
struct Plain {
  static constexpr int from = From, to = To;
  template <class A, class B, class D>
  static ZELM_INLINE void one(const A& a, const B& b, const D& d, Shape shape) {
    sum_in_destination(a, b, d, shape);
  }
};

/// Eight terms at a time where the destination element lies apart from both rows.
template <int From, int To>
struct Gathering {
  static constexpr int from = From, to = To;
  template <class A, class B, class D>
  static ZELM_INLINE void one(const A& a, const B& b, const D& d, Shape shape) {
    sum_gathered(a, b, d, shape);
  }
};

/// As the kernel of single objects does it, called for one object after the other: a single operand is read again for each.
template <class Single>
struct Each : Single {};

template <class Policy>
inline constexpr bool alone = false;
template <class Single>
inline constexpr bool alone<Each<Single>> = true;

// Fixed sizes

/// All elements of the one left operand of a call, each in all lanes of a register.
template <class T, int N>
struct Spread {
  Pack<T> e[N][N];
  ZELM_INLINE const Spread& object(std::ptrdiff_t) const { return *this; }
  ZELM_INLINE Pack<T> spread(int i, int k) const { return e[i][k]; }
};

template <class Object>
ZELM_INLINE auto spread(const Object& a, int i, int k) {
  if constexpr (requires { a.spread(i, k); }) return a.spread(i, k);
  else return Pack<typename Object::T>::splat(a.element(i, k));
}

template <int N, class View>
ZELM_INLINE auto spread_all(const View& view) {
  using T = typename View::T;
  Spread<T, N> all;
  const auto a = view.object(0);
  ZELM_UNROLL for (int i = 0; i < N; ++i) {
    ZELM_UNROLL for (int k = 0; k < N; ++k) all.e[i][k] = Pack<T>::splat(a.element(i, k));
  }
  return all;
}

template <int N, class Object>
ZELM_INLINE decltype(auto) as_block(const Object& b) {
  if constexpr (requires { b.rows; }) return (b);
  else return block_of<N, N>(b);
}

/// Row i of the product.
template <int N, class T, class A>
ZELM_INLINE Row<T, N> row_of_product(const A& a, int i, const Block<T, N, N>& b) {
  Row<T, N> sum;
  ZELM_UNROLL for (int k = 0; k < N; ++k) {
    const Pack<T> x = spread(a, i, k);
    ZELM_UNROLL for (int q = 0; q < Row<T, N>::packs; ++q) {
      const Pack<T> term = x * b.rows[k].pack[q];
      sum.pack[q] = k == 0 ? term : sum.pack[q] + term;
    }
  }
  return sum;
}

template <int N, class A, class B, class D>
__attribute__((noinline)) void multiply_each(A a, B b, D d, std::ptrdiff_t first, std::ptrdiff_t count) {
  const auto left = [&] {
    if constexpr (!A::array && B::array) return spread_all<N>(a);
    else return a;
  }();
  const auto right = held<N, N>(b);
  for (std::ptrdiff_t k = first; k < count; ++k) {
    const auto& x = left.object(k);
    const auto& y = as_block<N>(right.object(k));
    const auto z = d.object(k);
    ZELM_UNROLL for (int i = 0; i < N; ++i) z.template set_row<N>(i, row_of_product<N>(x, i, y));
  }
}

/// Interleaved arrays: the lanes are objects. Returns the number of objects done.
template <int N, class A, class B, class D>
__attribute__((noinline)) std::ptrdiff_t multiply_beside(A a, B b, D d, std::ptrdiff_t count) {
  using P = Pack<typename D::T>;
  P left[N][N], right[N][N];
  const auto load_all = [](P(&to)[N][N], const auto& view, std::ptrdiff_t k) ZELM_INLINE_LAMBDA {
    const auto object = view.object(k);
    ZELM_UNROLL for (int i = 0; i < N; ++i) {
      ZELM_UNROLL for (int j = 0; j < N; ++j) to[i][j] = view.array ? P::load(object.at(i, j)) : P::splat(object.element(i, j));
    }
  };
  if constexpr (!A::array) load_all(left, a, 0);
  if constexpr (!B::array) load_all(right, b, 0);
  std::ptrdiff_t k = 0;
  for (; k + P::lanes <= count; k += P::lanes) {
    if constexpr (B::array) load_all(right, b, k);
    const auto z = d.object(k);
    ZELM_AS_IT_STANDS for (int i = 0; i < N; ++i) {
      P x[N];
      ZELM_UNROLL for (int m = 0; m < N; ++m) x[m] = A::array ? P::load(a.object(k).at(i, m)) : left[i][m];
      ZELM_UNROLL for (int j = 0; j < N; ++j) {
        P sum = x[0] * right[0][j];
        ZELM_UNROLL for (int m = 1; m < N; ++m) sum = sum + x[m] * right[m][j];
        sum.store(z.at(i, j));
      }
    }
  }
  return k;
}

template <int N, class A, class B, class D>
ZELM_INLINE void multiply_fixed(const A& a, const B& b, const D& d, int count) {
  std::ptrdiff_t done = 0;
  if constexpr (D::array && !D::plain) {
    if (d.interleaved() && (!A::array || a.interleaved()) && (!B::array || b.interleaved()))
      done = multiply_beside<N>(a, b, d, count);
  }
  multiply_each<N>(a, b, d, done, count);
}

/// True if the product is square and of one of the policy's fixed orders, and then done.
template <class Policy, class A, class B, class D>
ZELM_INLINE bool multiply_small(const A& a, const B& b, const D& d, Shape s, int count) {
  if (s.rows != s.terms || s.columns != s.terms || s.terms < Policy::from || s.terms > Policy::to) return false;
  if constexpr (Policy::to >= 3) {
    if (s.terms == 3) return multiply_fixed<3>(a, b, d, count), true;
  }
  if constexpr (Policy::to >= 4) {
    if (s.terms == 4) return multiply_fixed<4>(a, b, d, count), true;
  }
  if constexpr (Policy::to >= 5) {
    if (s.terms == 5) return multiply_fixed<5>(a, b, d, count), true;
  }
  if constexpr (Policy::to >= 6) multiply_fixed<6>(a, b, d, count);
  return true;
}

template <class View>
inline constexpr bool is_transposed = false;
template <class View>
inline constexpr bool is_transposed<TransposedView<View>> = true;

/// The formula, as the kernels call it. Sizes are those of the sources as stored.
template <class Policy, class A, class B, class D>
ZELM_INLINE ZelStatus multiply(A a, int width1, int height1, B b, int width2, int height2, D d, int count) {
  const Shape shape = {is_transposed<A> ? width1 : height1, is_transposed<B> ? height2 : width2,
                       is_transposed<A> ? height1 : width1};
  const auto x = cells(a);
  const auto y = cells(b);
  const auto z = cells(d);
  if constexpr (alone<Policy>) {
    for (std::ptrdiff_t k = 0; k < count; ++k) {
      const auto p = single(x.object(k)), q = single(y.object(k));
      const auto r = single(z.object(k));
      if (!multiply_small<Policy>(p, q, r, shape, 1)) Policy::one(p.object(0), q.object(0), r.object(0), shape);
    }
  } else if (!multiply_small<Policy>(x, y, z, shape, count)) {
    for (std::ptrdiff_t k = 0; k < count; ++k) Policy::one(x.object(k), y.object(k), z.object(k), shape);
  }
  return zelStsOk;
}

}  // namespace zelm::products
