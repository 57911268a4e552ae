// trace.hpp: sums of the diagonals of square matrices, from 0 on in ascending order.
#pragma once
#include "products/reduce.hpp"
#include "zelm_types.h"

namespace zelm::products {

/// N: the order, or 0 for any.
template <int N, class View>
__attribute__((noinline)) void sum_diagonals(View a, typename View::T* d, int order, std::ptrdiff_t count) {
  using P = Pack<typename View::T>;
  const int n = N > 0 ? N : order;
  const auto sum = [=](auto start, auto element) ZELM_INLINE_LAMBDA {
    for (int i = 0; i < n; ++i) start = start + element(i);
    return start;
  };
  std::ptrdiff_t k = 0;
  if (a.interleaved())
    for (; k + P::lanes <= count; k += P::lanes)
      sum(P::zero(), [&](int i) ZELM_INLINE_LAMBDA { return beside(a, k, i, i); }).store(d + k);
  for (; k < count; ++k) {
    const auto object = a.object(k);
    store(d + k, sum(typename View::T(0), [&](int i) ZELM_INLINE_LAMBDA { return object.element(i, i); }));
  }
}

template <class View>
ZELM_INLINE ZelStatus trace(View a, int order, typename View::T* d, int count) {
  const auto fixed = [&]<int N>() {
    if constexpr (View::plain && View::array) {
      if (a.tight(N, N)) return sum_diagonals<N>(a.template as_tight<N, N>(), d, order, count);
    }
    sum_diagonals<N>(a, d, order, count);
  };
  switch (order) {
    case 3: fixed.template operator()<3>(); break;
    case 4: fixed.template operator()<4>(); break;
    case 5: fixed.template operator()<5>(); break;
    case 6: fixed.template operator()<6>(); break;
    default: sum_diagonals<0>(a, d, order, count);
  }
  return zelStsOk;
}

}  // namespace zelm::products
