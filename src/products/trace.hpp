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
  switch (order) {
    case 3: sum_diagonals<3>(a, d, order, count); break;
    case 4: sum_diagonals<4>(a, d, order, count); break;
    case 5: sum_diagonals<5>(a, d, order, count); break;
    case 6: sum_diagonals<6>(a, d, order, count); break;
    default: sum_diagonals<0>(a, d, order, count);
  }
  return zelStsOk;
}

}  // namespace zelm::products
