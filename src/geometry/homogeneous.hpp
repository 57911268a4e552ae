// homogeneous.hpp: points by one 4 x 4 matrix, column vectors: (x', y', z', w') = M (x, y, z, 1), and (x', y', z') / w' by the
// reciprocal of w'. Where |w'| is no more than the smallest normal number, or a NaN, the result is the largest number three times
// over, and the status tells it; the other points are done all the same. A destination may be its source.
#pragma once
#include <cfloat>

#include "geometry/transform.hpp"

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

template <class Order>
struct Divided {
  P m[4][4];

  ZELM_INLINE int operator()(const P (&v)[3], P (&r)[3]) const {
    const P w = Order::last_row(m[3], v);
    const P good = abs(w) > P::splat(FLT_MIN), inverse = P::splat(1) / w;
    ZELM_UNROLL for (int i = 0; i < 3; ++i) r[i] = Order::row(m[i], v) * inverse;
    const int bad = lane_bits(good) ^ 15;
    if (__builtin_expect(bad, 0)) ZELM_UNROLL for (int i = 0; i < 3; ++i) r[i] = select(good, r[i], P::splat(FLT_MAX));
    return bad;
  }
};

/// Elements at any distance from each other.
template <class Order, class V, class D>
__attribute__((noinline)) int by_four(const Divided<Order>& body, V v, D d, std::ptrdiff_t count) {
  const Divided<Order> held = body;
  int bad = 0;
  const auto block = [&](std::ptrdiff_t k, auto valid) ZELM_INLINE_LAMBDA {
    Lanes<float, 1, 3> p, r;
    p.load(v, k, valid);
    bad |= held(p.e[0], r.e[0]);
    r.store(d, k, valid);
  };
  std::ptrdiff_t k = 0;
  for (; k + 4 <= count; k += 4) block(k, std::integral_constant<int, 4>{});
  if (k < count) block(k, int(count - k));
  return bad;
}

template <class Order, class M, class V, class D>
ZELM_INLINE ZelStatus transform(M matrix, V v, D d, int count) {
  Divided<Order> body;
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) body.m[i][j] = P::splat(matrix.object(0).element(i, j));
  int bad;
  if constexpr (V::plain) bad = geometry::transform::for_vectors<3>(body, {v.first, v.stride0}, {d.first, d.stride0}, count);
  else bad = by_four(body, v, d, count);
  return bad ? zelStsDivideByZero : zelStsOk;
}

}  // namespace homogeneous
}  // namespace zelm::geometry
