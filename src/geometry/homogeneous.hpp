// homogeneous.hpp: points by one 4 x 4 matrix, column vectors: (x', y', z', w') = M (x, y, z, 1), and (x', y', z') / w' by the
// reciprocal of w'. Where |w'| is no more than the smallest normal number, or a NaN, the result is the largest number three times
// over, and the status tells it; the other points are done all the same. A destination may be its source.
#pragma once
#include <cfloat>

#include "frame/lanes.hpp"
#include "zelm_types.h"

namespace zelm::geometry {

// Orders of the four terms, which the kernels have each of their own.

struct InPairs {
  static ZELM_INLINE Pack<float> row(const Pack<float> (&m)[4], const Pack<float> (&v)[3]) {
    return (v[0] * m[0] + v[1] * m[1]) + (v[2] * m[2] + m[3]);
  }
  static ZELM_INLINE Pack<float> last_row(const Pack<float> (&m)[4], const Pack<float> (&v)[3]) { return row(m, v); }
};
struct InTurn {
  static ZELM_INLINE Pack<float> row(const Pack<float> (&m)[4], const Pack<float> (&v)[3]) {
    return v[0] * m[0] + m[3] + v[1] * m[1] + v[2] * m[2];
  }
  static ZELM_INLINE Pack<float> last_row(const Pack<float> (&m)[4], const Pack<float> (&v)[3]) {
    return m[0] * v[0] + m[1] * v[1] + m[2] * v[2] + m[3];
  }
};

namespace homogeneous {

using P = Pack<float>;

template <class Order, bool beside, class V, class D>
__attribute__((noinline)) ZelStatus by_four(const P (&matrix)[4][4], V v, D d, int count) {
  P m[4][4];  // copies that no store to d can change
  ZELM_UNROLL for (int i = 0; i < 4; ++i) { ZELM_UNROLL for (int j = 0; j < 4; ++j) m[i][j] = matrix[i][j]; }
  int good_lanes = 15;
  const auto block = [&](std::ptrdiff_t k, auto valid) ZELM_INLINE_LAMBDA {
    Lanes<float, 1, 3> p, r;
    p.template load<beside>(v, k, valid);
    const P w = Order::last_row(m[3], p.e[0]);
    const P good = abs(w) > P::splat(FLT_MIN), inverse = P::splat(1) / w;
    ZELM_UNROLL for (int i = 0; i < 3; ++i) r.e[0][i] = select(good, Order::row(m[i], p.e[0]) * inverse, P::splat(FLT_MAX));
    r.template store<beside>(d, k, valid);
    good_lanes &= lane_bits(good);
  };
  std::ptrdiff_t k = 0;
  for (; k + 4 <= count; k += 4) block(k, std::integral_constant<int, 4>{});
  if (k < count) block(k, int(count - k));
  return good_lanes == 15 ? zelStsOk : zelStsDivideByZero;
}

template <class Order, class M, class V, class D>
ZELM_INLINE ZelStatus transform(M matrix, V v, D d, int count) {
  P m[4][4];
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) m[i][j] = P::splat(matrix.object(0).element(i, j));
  if (v.interleaved() || d.interleaved()) return by_four<Order, true>(m, v, d, count);
  return by_four<Order, false>(m, v, d, count);
}

}  // namespace homogeneous
}  // namespace zelm::geometry
