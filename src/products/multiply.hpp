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
  /// True if whole arrays go another way, and then done.
  template <class A, class B, class D>
  static ZELM_INLINE bool all(const A& a, const B& b, const D& d, Shape s, int count) {
    if constexpr (!A::Object::plain || !B::Object::plain || !D::Object::plain) {
      return false;
    } else {
      if (s.rows % 4 != 0 || s.columns % Pack<typename D::T>::lanes != 0) return false;
      multiply_whole_registers(a, b, d, s, count);
      return true;
    }
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

template <class View>
inline constexpr bool is_transposed = false;
template <class View>
inline constexpr bool is_transposed<TransposedView<View>> = true;

/// All elements of the one left operand of a call, each in all lanes of a register.
template <class T, int N>
struct Spread {
  Pack<T> e[N][N];
  ZELM_INLINE const Spread& object(std::ptrdiff_t) const { return *this; }
};

/// Row i of the left operand, one element at a time in all lanes: doubles by loads that broadcast, floats of a row in memory by
/// shuffles of as few loads as may be.
template <int N, class Object>
struct LeftRow {
  using T = typename Object::T;
  static constexpr bool by_shuffles = Object::plain && sizeof(T) == 4;
  static constexpr int full = N / 4, pairs = N % 4 / 2;
  const Object& a;
  int i;
  Pack<T> four[full + 1], two;

  ZELM_INLINE LeftRow(const Object& object, int row) : a(object), i(row) {
    if constexpr (by_shuffles) {
      ZELM_UNROLL for (int q = 0; q < full; ++q) four[q] = Pack<T>::load(a.at(i, 4 * q));
      if (pairs) two = Pack<T>::template load_first<2>(a.at(i, 4 * full));
    }
  }
  ZELM_INLINE Pack<T> spread(int k) const {
    if constexpr (by_shuffles) {
      if (k < 4 * full) return spread_lane(four[k / 4], k % 4);
      if (k < 4 * full + 2 * pairs) return spread_lane(two, k % 4);
    }
    return splat_of(a, i, k);
  }
};
template <int N, class T>
struct LeftRow<N, Spread<T, N>> {
  const Spread<T, N>& a;
  int i;
  ZELM_INLINE Pack<T> spread(int k) const { return a.e[i][k]; }
};

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

/// The operands as the loop over the objects takes them: what is single is read here, unless it has been read before.
template <int N, class D, class A>
ZELM_INLINE auto left_of(const A& a) {
  if constexpr (requires { a.e; }) return a;
  else if constexpr (!A::array && D::array) return spread_all<N>(a);
  else return a;
}
template <int N, class B>
ZELM_INLINE auto right_of(const B& b) {
  if constexpr (requires { b.block; }) return b;
  else return held<N, N>(b);
}

template <int N, class Object>
ZELM_INLINE decltype(auto) as_block(const Object& b) {
  if constexpr (requires { b.rows; }) return (b);
  else return block_of<N, N>(b);
}

/// Row i of the product.
template <int N, class T, class A>
ZELM_INLINE Row<T, N> row_of_product(const A& a, int i, const Block<T, N, N>& b) {
  const LeftRow<N, A> left{a, i};
  Row<T, N> sum;
  ZELM_UNROLL for (int k = 0; k < N; ++k) {
    const Pack<T> x = left.spread(k);
    ZELM_UNROLL for (int q = 0; q < Row<T, N>::packs; ++q) {
      const Pack<T> term = x * b.rows[k].pack[q];
      sum.pack[q] = k == 0 ? term : sum.pack[q] + term;
    }
  }
  return sum;
}

template <int N, class A, class B, class D>
ZELM_INLINE void multiply_each_here(const A& a, const B& b, const D& d, std::ptrdiff_t first, std::ptrdiff_t count) {
  const auto left = left_of<N, D>(a);
  const auto right = right_of<N>(b);
  for (std::ptrdiff_t k = first; k < count; ++k) {
    const auto& x = left.object(k);
    const auto& y = as_block<N>(right.object(k));
    const auto z = d.object(k);
    if constexpr (requires { d.table; }) {  // a few objects only
      ZELM_AS_IT_STANDS for (int i = 0; i < N; ++i) z.template set_row<N>(i, row_of_product<N>(x, i, y));
    } else {
      ZELM_UNROLL for (int i = 0; i < N; ++i) z.template set_row<N>(i, row_of_product<N>(x, i, y));
    }
  }
}

template <int N, class A, class B, class D>
__attribute__((noinline)) void multiply_each(const A& a, const B& b, D d, std::ptrdiff_t first, std::ptrdiff_t count) {
  multiply_each_here<N>(a, b, d, first, count);
}

/// Interleaved objects by the addresses of the first one's elements, looked up once for the whole array.
template <class Element, int N>
struct Planes {
  using T = std::remove_const_t<Element>;
  static constexpr bool array = true;
  Element* first[N][N];
  struct Object {
    static constexpr bool plain = false;
    const Planes& planes;
    std::ptrdiff_t k;
    ZELM_INLINE Element* at(int i, int j) const { return planes.first[i][j] + k; }
  };
  ZELM_INLINE Object object(std::ptrdiff_t k) const { return {*this, k}; }
};
template <class View>
inline constexpr bool is_planes = false;
template <class Element, int N>
inline constexpr bool is_planes<Planes<Element, N>> = true;

template <int N, class View>
ZELM_INLINE auto planes(const View& view) {
  if constexpr (!View::array) {
    return view;
  } else {
    Planes<std::remove_pointer_t<decltype(view.object(0).at(0, 0))>, N> p;
    ZELM_AS_IT_STANDS for (int i = 0; i < N; ++i) ZELM_AS_IT_STANDS for (int j = 0; j < N; ++j) p.first[i][j] =
        view.object(0).at(i, j);
    return p;
  }
}

/// Element (i, j) of as many objects as there are lanes, for all j.
template <int N, class View>
ZELM_INLINE void load_lanes(Pack<typename View::T> (&to)[N], const View& view, std::ptrdiff_t k, int i) {
  using P = Pack<typename View::T>;
  constexpr int L = P::lanes;
  if constexpr (View::Object::plain || requires { view.list; }) {
    typename View::Object objects[L];
    view.objects(k, L, objects);
    load_row(to, objects, [&](int) { return i; });
  } else {
    ZELM_UNROLL for (int j = 0; j < N; ++j) {
      const auto* const first = view.object(k).at(i, j);
      if constexpr (is_planes<View>) to[j] = P::load(first);
      else to[j] = P::template gather<L>([&](int l) { return moved(first, l * view.stride0); });
    }
  }
}

template <int N, class View>
ZELM_INLINE void store_lanes(const Pack<typename View::T> (&from)[N], const View& view, std::ptrdiff_t k, int i) {
  constexpr int L = Pack<typename View::T>::lanes;
  if constexpr (View::Object::plain || requires { view.list; }) {
    typename View::Object objects[L];
    view.objects(k, L, objects);
    store_row(from, objects, [&](int) { return i; });
  } else {
    ZELM_UNROLL for (int j = 0; j < N; ++j) {
      auto* const first = view.object(k).at(i, j);
      if constexpr (is_planes<View>) from[j].store(first);
      else from[j].template scatter<L>([&](int l) { return moved(first, l * view.stride0); });
    }
  }
}

/// All elements of as many objects as there are lanes, or of a single one in every lane; of a transposed view as stored.
template <class P, int N, class View>
ZELM_INLINE void load_all(P (&to)[N][N], const View& view, std::ptrdiff_t k) {
  if constexpr (is_transposed<View>) {
    load_all(to, view.stored, k);
  } else if constexpr (View::array) {
    ZELM_UNROLL for (int i = 0; i < N; ++i) load_lanes(to[i], view, k, i);
  } else {
    const auto object = view.object(0);
    ZELM_UNROLL for (int i = 0; i < N; ++i) {
      ZELM_UNROLL for (int j = 0; j < N; ++j) to[i][j] = P::splat(object.element(i, j));
    }
  }
}

/// The lanes are objects, which saves the shuffles of the broadcasts and fills all lanes. Returns the number of objects done.
template <int N, class A, class B, class D>
__attribute__((noinline)) std::ptrdiff_t multiply_lanes(A a, B b, D d, std::ptrdiff_t count) {
  using P = Pack<typename D::T>;
  P left[N][N], right[N][N];
  if constexpr (!A::array) load_all(left, a, 0);
  if constexpr (!B::array) load_all(right, b, 0);
  std::ptrdiff_t k = 0;
  for (; k + P::lanes <= count; k += P::lanes) {
    if constexpr (A::array && is_transposed<A>) load_all(left, a, k);
    if constexpr (B::array) load_all(right, b, k);
    ZELM_AS_IT_STANDS for (int i = 0; i < N; ++i) {
      P x[N], sum[N];
      if constexpr (A::array && !is_transposed<A>) {
        load_lanes(x, a, k, i);
      } else {
        ZELM_UNROLL for (int m = 0; m < N; ++m) x[m] = is_transposed<A> ? left[m][i] : left[i][m];
      }
      ZELM_UNROLL for (int j = 0; j < N; ++j) {
        const auto term = [&](int m) { return x[m] * (is_transposed<B> ? right[j][m] : right[m][j]); };
        sum[j] = term(0);
        ZELM_UNROLL for (int m = 1; m < N; ++m) sum[j] = sum[j] + term(m);
      }
      store_lanes(sum, d, k, i);
    }
  }
  return k;
}

template <int N, class A, class B, class D>
ZELM_INLINE void multiply_fixed(const A& a, const B& b, const D& d, int count) {
  constexpr bool tables = requires { d.table; };
  // Rows of five waste three lanes of eight; with B at hand in all lanes that is more than the way into lanes costs.
  constexpr bool wasteful = D::Object::plain && sizeof(typename D::T) == 4 && N == 5 && !B::array;
  if constexpr (D::array && (!D::Object::plain || wasteful)) {
    // Nothing single is read again for the objects that are left, whatever has been stored by then.
    const auto left = left_of<N, D>(a);
    const auto right = right_of<N>(b);
    std::ptrdiff_t done = 0;
    if (count >= Pack<typename D::T>::lanes) {
      if constexpr (!D::Object::plain) {
        if (d.interleaved() && (!A::array || a.interleaved()) && (!B::array || b.interleaved()))
          done = multiply_lanes<N>(planes<N>(a), planes<N>(b), planes<N>(d), count);
      }
      if constexpr (tables || wasteful) {
        if (done == 0) done = multiply_lanes<N>(a, b, d, count);
      }
    }
    if (done < count) multiply_each<N>(left, right, d, done, count);
  } else if constexpr (D::array) {
    multiply_each<N>(a, b, d, 0, count);
  } else {
    multiply_each_here<N>(a, b, d, 0, 1);  // a call, and views in memory for it, took 6 of 17 ns of an order 4
  }
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
    if constexpr (D::array && requires { Policy::all(x, y, z, shape, count); }) {
      if (Policy::all(x, y, z, shape, count)) return zelStsOk;
    }
    for (std::ptrdiff_t k = 0; k < count; ++k) Policy::one(x.object(k), y.object(k), z.object(k), shape);
  }
  return zelStsOk;
}

}  // namespace zelm::products
