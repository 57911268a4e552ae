// apply_fixed.hpp: dst = op(A) x (+ y) of a known size, for whole arrays: 3 to 6, and 8 and 12. Three ways through the registers:
//   in_lanes     lanes are objects: any memory, any sum order
//   in_columns   lanes are elements of dst: columns of op(A), each scaled by an element of x
//   in_pairs     lanes are pairs of neighbouring k: even and odd k add up apart, and no element of x is ever shuffled
// Operands that are no arrays are read once, before the loop over the objects.
#pragma once
#include "frame/lanes.hpp"
#include "products/apply_any.hpp"

namespace zelm::products::apply {

// Sum orders: sum<N>(i, p) adds the products p(0), ..., p(N - 1) of destination element i.

/// ((p0 + p1) + p2) + ...
struct Ascending {
  template <int N, class Product>
  static ZELM_INLINE auto sum(int, Product p) {
    auto s = p(0);
    ZELM_UNROLL for (int k = 1; k < N; ++k) s = s + p(k);
    return s;
  }
};

/// ((p0 + p2) + p4) + ((p1 + p3) + p5), from four products on.
struct EvenOdd {
  template <int N, class Product>
  static ZELM_INLINE auto sum(int i, Product p) {
    if constexpr (N < 4) {
      return Ascending::sum<N>(i, p);
    } else {
      auto even = p(0), odd = p(1);
      ZELM_UNROLL for (int k = 2; k < N; k += 2) even = even + p(k);
      ZELM_UNROLL for (int k = 3; k < N; k += 2) odd = odd + p(k);
      return even + odd;
    }
  }
};

/// EvenOdd, but elements 0 to 3 of five ((p0 + p1) + p4) + (p2 + p3).
struct Resident {
  template <int N, class Product>
  static ZELM_INLINE auto sum(int i, Product p) {
    if (N == 5 && i < 4) return ((p(0) + p(1)) + p(4)) + (p(2) + p(3));
    return EvenOdd::sum<N>(i, p);
  }
};

/// ((p0 + p1) + (p2 + p3)) + p4
struct Batched {
  template <int N, class Product>
  static ZELM_INLINE auto sum(int, Product p) {
    static_assert(N == 5);
    return ((p(0) + p(1)) + (p(2) + p(3))) + p(4);
  }
};

/// The first `lead` products are added before the lanes of those that follow, a step of them at a time; then comes what is left. With
/// a lead of -1 there are no lanes.
template <int lead, int step>
struct Led {
  static constexpr bool from_zero = true;
  template <int N, class Product>
  static ZELM_INLINE auto sum(int i, Product p) {
    using P = decltype(p(0));
    constexpr int packed = lead < 0 ? 0 : (N - lead) / step * step;
    if constexpr (packed == 0) {
      return Ascending::sum<N>(i, p);
    } else {
      StepSums<decltype(P::zero().first()), step, P> sums;
      sums.part[0] = Ascending::sum<lead + 1>(i, p);
      ZELM_UNROLL for (int l = 1; l < step; ++l) sums.part[l] = p(lead + l);
      ZELM_UNROLL for (int k = step; k < packed; ++k) sums.part[k % step] = sums.part[k % step] + p(lead + k);
      P s = sums.sum();
      ZELM_UNROLL for (int k = lead + packed; k < N; ++k) s = s + p(k);
      return s;
    }
  }
};

/// The order that in_blocks has where x begins.
struct AsBlocks {
  static constexpr bool from_zero = true;
};

/// True of orders whose sums start from +0, not from the first product. They are given it at the end: all it changes is the sign of
/// a sum of zeros.
template <class Order>
inline constexpr bool from_zero = requires {
  Order::from_zero;
};

/// Calls body with the order itself, or with the one that AsBlocks is for the vector x.
template <class Order, int N, class X, class Body>
ZELM_INLINE void with_order(const X& x, Body body) {
  constexpr int L = Pack<typename X::T>::lanes;
  if constexpr (!std::is_same_v<Order, AsBlocks>) return body(Order{});
  else if constexpr (N < 4) return body(Led<-1, L>{});  // rows too few for a block, and products for a step of eight
  else switch (elements_to_alignment<typename X::T>(x.at(0, 0))) {
      case 0: return body(Led<0, L>{});
      case 1: return body(Led<1, L>{});
      case 2: return body(Led<2, L>{});
      default: return body(Led<-1, L>{});  // fewer than four remain behind three
    }
}

// Lanes are objects

/// The one operand of a call in every lane; of an array nothing yet.
template <int R, int C, class View>
struct Splats {
  Lanes<typename View::T, R, C> all;
  explicit Splats(const View& view) {
    const auto object = view.object(0);
    ZELM_AS_IT_STANDS for (int i = 0; i < R; ++i) {
      ZELM_UNROLL for (int j = 0; j < C; ++j) all.e[i][j] = Pack<typename View::T>::splat(object.element(i, j));
    }
  }
};
template <int R, int C, class View>
requires(View::array || std::is_same_v<View, None>) struct Splats<R, C, View> {
  explicit Splats(const View&) {}
};

/// R x C elements of several objects: a few words, to be copied. `beside`: arrays are interleaved.
template <int R, int C, bool beside, class View>
struct InLanes {
  View view;
  InLanes(const View& v, const Splats<R, C, View>&) : view(v) {}
  ZELM_INLINE auto at(std::ptrdiff_t n, int valid) const {
    Lanes<typename View::T, R, C> lanes;
    if constexpr (beside) {
      const auto first = view.object(n);
      ZELM_UNROLL for (int i = 0; i < R; ++i) {
        ZELM_UNROLL for (int j = 0; j < C; ++j) lanes.e[i][j] = Pack<typename View::T>::load(first.at(i, j));
      }
    } else {
      lanes.template load<false>(view, n, valid);
    }
    return lanes;
  }
};
template <int R, int C, bool beside, class View>
requires(!View::array) struct InLanes<R, C, beside, View> {
  const Lanes<typename View::T, R, C>* all;
  InLanes(const View&, const Splats<R, C, View>& splats) : all(&splats.all) {}
  ZELM_INLINE const auto& at(std::ptrdiff_t, int) const { return *all; }
};
template <int R, int C, bool beside>
struct InLanes<R, C, beside, None> {
  InLanes(None, const Splats<R, C, None>&) {}
  ZELM_INLINE None at(std::ptrdiff_t, int) const { return {}; }
};

/// `turned`: op(A) is the transpose of what `a` holds.
template <class Order, int N, bool turned, bool beside, class A, class B, class C, class D>
__attribute__((noinline)) void in_lanes(A a, B b, C c, D d, int count) {
  using P = Pack<typename D::T>;
  const Splats<N, N, A> matrix(a);
  const Splats<1, N, B> vector(b);
  const Splats<1, N, C> addend(c);
  const InLanes<N, N, beside, A> matrices(a, matrix);
  const InLanes<1, N, beside, B> vectors(b, vector);
  const InLanes<1, N, beside, C> addends(c, addend);
  const auto block = [=](std::ptrdiff_t n, auto valid) ZELM_INLINE_LAMBDA {
    const auto& m = matrices.at(n, valid);
    const auto& x = vectors.at(n, valid);
    const auto& y = addends.at(n, valid);
    Lanes<typename D::T, 1, N> z;
    ZELM_UNROLL for (int i = 0; i < N; ++i) {
      z.e[0][i] = Order::template sum<N>(i, [&](int k) { return (turned ? m.e[k][i] : m.e[i][k]) * x.e[0][k]; });
      if constexpr (!std::is_same_v<C, None>) z.e[0][i] = z.e[0][i] + y.e[0][i];
    }
    if constexpr (beside) {
      const auto first = d.object(n);
      ZELM_UNROLL for (int i = 0; i < N; ++i) z.e[0][i].store(first.at(0, i));
    } else {
      z.template store<false>(d, n, valid);
    }
  };
  if constexpr (std::is_same_v<Order, Ascending>)  // the caller does what is left
    for (std::ptrdiff_t n = 0; n + P::lanes <= count; n += P::lanes) block(n, std::integral_constant<int, P::lanes>{});
  else for_blocks<P::lanes>(count, block);
}

/// Any memory, in the order Ascending: lanes are objects for as many as fill them.
template <int N, bool turned, class A, class B, class C, class D>
ZELM_INLINE void in_any_memory(const A& a, const B& b, const C& c, const D& d, int count) {
  using T = typename D::T;
  constexpr int L = Pack<T>::lanes;
  const auto beside = [](const auto& view) { return !view.array || view.interleaved(); };
  if (count >= L) {
    if (beside(a) && beside(b) && beside(c) && beside(d)) in_lanes<Ascending, N, turned, true>(a, b, c, d, count);
    else in_lanes<Ascending, N, turned, false>(a, b, c, d, count);
  }
  for (std::ptrdiff_t n = count / L * L; n < count; ++n) {
    T elements[N];  // the whole vector first, as in lanes
    b.object(n).template row<N>(0).store(elements);
    const StridedObject<const T, true> vector{elements, 0, sizeof(T)};
    if constexpr (turned)
      one_by_one<false>(TransposedObject<typename A::Object>{a.object(n)}, vector, c.object(n), d.object(n), N, N);
    else one_by_one<false>(a.object(n), vector, c.object(n), d.object(n), N, N);
  }
}

// Lanes are elements of dst

/// Vectors without gaps, of whole registers, that are stored past the caches.
template <class View>
struct Streamed {
  using T = typename View::T;
  static constexpr bool array = true;
  View view;
  struct Object {
    T* base;
    template <int N>
    ZELM_INLINE void set_row(int, const Row<T, N>& r) const {
      ZELM_UNROLL for (int q = 0; q < Row<T, N>::packs; ++q) r.pack[q].stream(base + q * Pack<T>::lanes);
    }
  };
  ZELM_INLINE Object object(std::ptrdiff_t n) const { return {view.object(n).base}; }
};

/// Element k of a vector in every lane of column k.
template <int N, class View>
struct Factors {
  using P = Pack<typename View::T>;
  View view;
  struct Packs {
    P e[N];
  };
  ZELM_INLINE Packs at(std::ptrdiff_t n) const {
    const auto x = view.object(n);
    Packs splats;
    ZELM_UNROLL for (int k = 0; k < N; ++k) splats.e[k] = splat_of(x, 0, k);
    return splats;
  }
};
template <int N, class View>
requires(!View::array) struct Factors<N, View> {
  typename Factors<N, StridedView<const typename View::T, true, true>>::Packs all;
  explicit ZELM_INLINE Factors(const View& view) {
    const auto x = view.object(0);
    ZELM_UNROLL for (int k = 0; k < N; ++k) all.e[k] = Pack<typename View::T>::splat(x.element(0, k));
  }
  ZELM_INLINE const auto& at(std::ptrdiff_t) const { return all; }
};

/// Rows of `columns` are columns of op(A).
template <class Order, int N, class Columns, class B, class C, class D>
__attribute__((noinline)) void in_columns(Columns columns, B b, C c, D d, int count) {
  using R = Row<typename D::T, N>;
  const auto matrices = held<N, N>(columns);
  const Factors<N, B> factors{b};
  const auto addends = [&] {
    if constexpr (std::is_same_v<C, None>) return c;
    else return held<1, N>(c);
  }();
  for (std::ptrdiff_t n = 0; n < count; ++n) {
    const auto& m = rows_of<N, N>(matrices.object(n));
    const auto& x = factors.at(n);
    R column[N], z;
    ZELM_UNROLL for (int k = 0; k < N; ++k) column[k] = m.template row<N>(k);
    with_order<Order, N>(b.object(n), [&](auto order) ZELM_INLINE_LAMBDA {
      ZELM_UNROLL for (int q = 0; q < R::packs; ++q) z.pack[q] = decltype(order)::template sum<N>(
          q * Pack<typename D::T>::lanes, [&](int k) ZELM_INLINE_LAMBDA { return column[k].pack[q] * x.e[k]; });
    });
    if constexpr (from_zero<Order>) z = lanewise(Plus{}, z, R::splat(0));
    if constexpr (!std::is_same_v<C, None>) z = lanewise(Plus{}, z, addends.object(n).template row<N>(0));
    d.object(n).set_row(0, z);
  }
}

// Lanes are pairs of neighbouring k, N is even, the order EvenOdd

/// Elements e and e + 1 in all pairs of lanes: loads that cost no shuffle.
ZELM_INLINE Pack<float> pair(const float* p) { return {_mm_castpd_ps(_mm_loaddup_pd(reinterpret_cast<const double*>(p)))}; }
ZELM_INLINE Pack<double> pair(const double* p) { return Pack<double>::load(p); }

/// A pack is a pair of each of one or two rows.
template <class T, int N>
struct PairedRows {
  static constexpr int L = Pack<T>::lanes, rows = L / 2, groups = N / rows;
  Pack<T> e[groups][N / 2];

  template <class Object>
  static ZELM_INLINE PairedRows of(const Object& a) {
    PairedRows m;
    ZELM_UNROLL for (int g = 0; g < groups; ++g) {
      ZELM_UNROLL for (int k = 0; k < N; k += 2) {
        if constexpr (!Object::plain)
          m.e[g][k / 2] = Pack<T>::template gather<L>([&](int l) { return a.at(g * rows + l / 2, k + l % 2); });
        else if constexpr (rows == 1) m.e[g][k / 2] = Pack<T>::load(a.at(g, k));
        else
          m.e[g][k / 2] = {_mm_loadh_pi(Pack<T>::template load_first<2>(a.at(2 * g, k)).raw,
                                        reinterpret_cast<const __m64*>(a.at(2 * g + 1, k)))};
      }
    }
    return m;
  }
};

template <class T, int N>
struct PairedVector {
  Pack<T> e[N / 2];

  template <class Object>
  static ZELM_INLINE PairedVector of(const Object& x) {
    PairedVector v;
    ZELM_UNROLL for (int k = 0; k < N; k += 2) v.e[k / 2] = pair(x.at(0, k));
    return v;
  }
};

/// What `Form` makes of an operand, once where it is no array.
template <class Form, class View>
struct Formed {
  View view;
  ZELM_INLINE Form at(std::ptrdiff_t n) const { return Form::of(view.object(n)); }
};
template <class Form, class View>
requires(!View::array) struct Formed<Form, View> {
  Form form;
  explicit ZELM_INLINE Formed(const View& view) : form(Form::of(view.object(0))) {}
  ZELM_INLINE const Form& at(std::ptrdiff_t) const { return form; }
};

ZELM_INLINE Pack<float> evens_and_odds(Pack<float> a, Pack<float> b) {
  return Pack<float>{shuffle<0x88>(a.raw, b.raw)} + Pack<float>{shuffle<0xdd>(a.raw, b.raw)};
}
ZELM_INLINE Pack<double> evens_and_odds(Pack<double> a, Pack<double> b) {
  return Pack<double>{shuffle<0>(a.raw, b.raw)} + Pack<double>{shuffle<3>(a.raw, b.raw)};
}

template <int N, class A, class B, class C, class D>
__attribute__((noinline)) void in_pairs(A a, B b, C c, D d, int count) {
  using T = typename D::T;
  using M = PairedRows<T, N>;
  using R = Row<T, N>;
  const Formed<M, A> matrices{a};
  const Formed<PairedVector<T, N>, B> vectors{b};
  const auto addends = [&] {
    if constexpr (std::is_same_v<C, None>) return c;
    else return held<1, N>(c);
  }();
  for (std::ptrdiff_t n = 0; n < count; ++n) {
    const auto& x = vectors.at(n);
    const auto& m = matrices.at(n);
    Pack<T> s[M::groups];
    ZELM_UNROLL for (int g = 0; g < M::groups; ++g) s[g] = Ascending::sum<N / 2>(g, [&](int k) { return m.e[g][k] * x.e[k]; });
    R z;
    ZELM_UNROLL for (int q = 0; q < R::packs; ++q) z.pack[q] =
        evens_and_odds(s[2 * q], s[2 * q + 1 < M::groups ? 2 * q + 1 : 2 * q]);
    if constexpr (!std::is_same_v<C, None>) z = lanewise(Plus{}, z, addends.object(n).template row<N>(0));
    d.object(n).set_row(0, z);
  }
}

}  // namespace zelm::products::apply
