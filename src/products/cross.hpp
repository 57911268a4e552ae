// cross.hpp: cross products of vectors of three elements. Every element is a product, rounded, less another.
#pragma once
#include "products/reduce.hpp"
#include "zelm_types.h"

namespace zelm::products {

template <class V>
ZELM_INLINE void cross_of(const V (&a)[3], const V (&b)[3], V (&d)[3]) {
  d[0] = a[1] * b[2] - a[2] * b[1];
  d[1] = a[2] * b[0] - a[0] * b[2];
  d[2] = a[0] * b[1] - a[1] * b[0];
}

/// How as many vectors as a register has lanes get there: as a run without gaps, element by element where those of neighbours lie
/// side by side, or row by row.
enum class Way { packed, interleaved, rows };

template <Way way, class View>
ZELM_INLINE auto to_lanes(const View& view) {
  using T = typename View::T;
  using P = Pack<T>;
  constexpr int L = P::lanes;
  if constexpr (!View::array) {
    P held[3];
    ZELM_UNROLL for (int j = 0; j < 3; ++j) held[j] = beside(view, 0, 0, j);
    return [x = held[0], y = held[1], z = held[2]](std::ptrdiff_t, P(&e)[3])
               ZELM_INLINE_LAMBDA { e[0] = x, e[1] = y, e[2] = z; };
  } else {
    return [=](std::ptrdiff_t k, P(&e)[3]) ZELM_INLINE_LAMBDA {
      if constexpr (way == Way::packed) {
        packed_to_lanes(e, view.object(k).base);
      } else if constexpr (way == Way::interleaved) {
        ZELM_UNROLL for (int j = 0; j < 3; ++j) e[j] = beside(view, k, 0, j);
      } else {
        typename View::Object objects[L];
        view.objects(k, L, objects);
        load_row(e, objects, [](int) { return 0; });
      }
    };
  }
}

template <Way way, class View, class P>
ZELM_INLINE void from_lanes(const View& view, std::ptrdiff_t k, const P (&e)[3]) {
  if constexpr (way == Way::packed) {
    lanes_to_packed(e, view.object(k).base);
  } else if constexpr (way == Way::interleaved) {
    ZELM_UNROLL for (int j = 0; j < 3; ++j) e[j].store(view.object(k).at(0, j));
  } else {
    typename View::Object objects[P::lanes];
    view.objects(k, P::lanes, objects);
    store_row(e, objects, [](int) { return 0; });
  }
}

/// From object k on, one at a time.
template <class A, class B, class D>
__attribute__((noinline)) void cross_each(A a, B b, D d, std::ptrdiff_t k, std::ptrdiff_t count) {
  using T = typename D::T;
  for (; k < count; ++k) {
    const auto row = [k](const auto& view, T(&e)[3]) {
      ZELM_UNROLL for (int j = 0; j < 3; ++j) e[j] = view.object(k).element(0, j);
    };
    T x[3], y[3], z[3];
    row(a, x);
    row(b, y);
    cross_of(x, y, z);
    ZELM_UNROLL for (int j = 0; j < 3; ++j) store(d.object(k).at(0, j), z[j]);
  }
}

template <Way way, class A, class B, class D>
__attribute__((noinline)) void cross_blocks(A a, B b, D d, std::ptrdiff_t count) {
  using P = Pack<typename D::T>;
  const auto first = to_lanes<way>(a);
  const auto second = to_lanes<way>(b);
  std::ptrdiff_t k = 0;
  for (; k + P::lanes <= count; k += P::lanes) {
    P x[3], y[3], z[3];
    first(k, x);
    second(k, y);
    cross_of(x, y, z);
    from_lanes<way>(d, k, z);
  }
  if (k < count) cross_each(a, b, d, k, count);
}

template <class A, class B, class D>
ZELM_INLINE ZelStatus cross(A a, B b, D d, int count) {
  const auto all = [&](auto holds) { return (!A::array || holds(a)) && (!B::array || holds(b)) && holds(d); };
  if constexpr (D::array && D::Object::plain) {
    if constexpr (D::plain && std::is_same_v<typename D::T, float>) {
      if (all([](const auto& view) { return view.tight(1, 3); })) {
        cross_blocks<Way::packed>(a, b, d, count);
        return zelStsOk;
      }
    }
    cross_blocks<Way::rows>(a, b, d, count);
  } else {
    if constexpr (D::array) {
      if (all([](const auto& view) { return view.interleaved(); })) {
        cross_blocks<Way::interleaved>(a, b, d, count);
        return zelStsOk;
      }
    }
    cross_each(a, b, d, 0, count);
  }
  return zelStsOk;
}

}  // namespace zelm::products
