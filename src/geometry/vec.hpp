// vec.hpp: vectors of 2, 3 and 4 floats at a pointer of any alignment. Nothing is checked, and every status is zelStsOk.
// The destination may be a source, except for the cross products. All sums run in index order, each operation rounded to float.
#pragma once
#include "simd/pack.hpp"
#include "zelm_types.h"

namespace zelm::geometry::vec {

using P = Pack<float>;

template <int N>
ZELM_INLINE P get(const float* p) {
  return P::load_first<N>(p);
}
template <int N>
ZELM_INLINE ZelStatus set(float* d, P v) {
  v.store_first<N>(d);
  return zelStsOk;
}

// Element by element

template <int N>
ZELM_INLINE ZelStatus add(const float* a, const float* b, float* d) {
  return set<N>(d, get<N>(a) + get<N>(b));
}
template <int N>
ZELM_INLINE ZelStatus subtract(const float* a, const float* b, float* d) {
  return set<N>(d, get<N>(a) - get<N>(b));
}
template <int N>
ZELM_INLINE ZelStatus scale(const float* a, float value, float* d) {
  return set<N>(d, get<N>(a) * P::splat(value));
}
template <int N>
ZELM_INLINE ZelStatus smaller(const float* a, const float* b, float* d) {
  return set<N>(d, min_or_second(get<N>(a), get<N>(b)));
}
template <int N>
ZELM_INLINE ZelStatus larger(const float* a, const float* b, float* d) {
  return set<N>(d, max_or_second(get<N>(a), get<N>(b)));
}

// Products and lengths

/// Lane j of the result is lane j + by of a, around the end.
template <int by>
ZELM_INLINE P turned(P a) {
  constexpr auto from = [](int lane) { return (lane + by) % 4 << 2 * lane; };
  return {shuffle<from(0) | from(1) | from(2) | from(3)>(a.raw, a.raw)};
}
template <int lane>
ZELM_INLINE P splat(P a) {
  return {shuffle<lane * 0x55>(a.raw, a.raw)};
}

/// a(0) b(0) + a(1) b(1) + ... in the first lane.
template <int N>
ZELM_INLINE P dot(P a, P b) {
  const P products = a * b;
  P sum = products + turned<1>(products);
  if constexpr (N > 2) sum = sum + turned<2>(products);
  if constexpr (N > 3) sum = sum + turned<3>(products);
  return sum;
}
/// The root in double, rounded to float, is the root in float: 53 bits are at least 2*24 + 2 (Figueroa, When is double rounding
/// innocuous?, SIGNUM 1995). The squares overflow in float all the same.
template <int N>
ZELM_INLINE P norm(P a) {
  return {_mm_sqrt_ss(dot<N>(a, a).raw)};
}
template <int N>
ZELM_INLINE P unit(P a) {
  return a / splat<0>(norm<N>(a));
}

template <int N>
ZELM_INLINE ZelStatus dot_product(const float* a, const float* b, float* d) {
  return set<1>(d, dot<N>(get<N>(a), get<N>(b)));
}
template <int N>
ZELM_INLINE ZelStatus square(const float* a, float* d) {
  return dot_product<N>(a, a, d);
}
template <int N>
ZELM_INLINE ZelStatus length(const float* a, float* d) {
  return set<1>(d, norm<N>(get<N>(a)));
}
template <int N>
ZELM_INLINE ZelStatus normalize(const float* a, float* d) {
  return set<N>(d, unit<N>(get<N>(a)));
}

/// a x b of 3 elements.
ZELM_INLINE P cross(P a, P b) {
  const auto yzx = [](P v) ZELM_INLINE_LAMBDA { return P{shuffle<0xc9>(v.raw, v.raw)}; };
  const auto zxy = [](P v) ZELM_INLINE_LAMBDA { return P{shuffle<0xd2>(v.raw, v.raw)}; };
  return yzx(a) * zxy(b) - zxy(a) * yzx(b);
}

ZELM_INLINE float minor(const float* a, const float* b, int i, int j) {
  return load(a + i) * load(b + j) - load(a + j) * load(b + i);
}

/// Every element of a cross product is stored before anything is read for the next: a destination that is a source shows it.
ZELM_INLINE ZelStatus cross2(const float* a, const float* b, float* d) {
  store(d, minor(a, b, 0, 1));
  return zelStsOk;
}
ZELM_INLINE ZelStatus cross3(const float* a, const float* b, float* d) {
  store(d, minor(a, b, 1, 2));
  store(d + 1, minor(a, b, 2, 0));
  store(d + 2, minor(a, b, 0, 1));
  return zelStsOk;
}
ZELM_INLINE ZelStatus cross4(const float* a, const float* b, const float* c, float* d) {
  // 3 x 3 determinant of the columns i, j, k along a.
  const auto expand = [=](int i, int j, int k) {
    return minor(b, c, j, k) * load(a + i) - minor(b, c, i, k) * load(a + j) + minor(b, c, i, j) * load(a + k);
  };
  store(d, expand(1, 2, 3));
  store(d + 1, 0 - expand(0, 2, 3));
  store(d + 2, expand(0, 1, 3));
  store(d + 3, 0 - expand(0, 1, 2));
  return zelStsOk;
}

// Interpolation

template <int N>
ZELM_INLINE ZelStatus barycentric(const float* a, const float* b, const float* c, float weight1, float weight2, float* d) {
  const P origin = get<N>(a);
  return set<N>(d, (get<N>(b) - origin) * P::splat(weight1) + origin + (get<N>(c) - origin) * P::splat(weight2));
}
template <int N>
ZELM_INLINE ZelStatus linear(const float* a, const float* b, float weight, float* d) {
  const P origin = get<N>(a);
  return set<N>(d, origin + (get<N>(b) - origin) * P::splat(weight));
}

/// p0 + (3 s^2 - 2 s^3) (p1 - p0) + (s - 2 s^2 + s^3) t0 + (s^3 - s^2) t1, written around p0, which s = 0 gives exactly. Powers of s
/// in float, their sums in double.
ZELM_INLINE P curve(P p0, P t0, P p1, P t1, float s) {
  const float square = s * s, cube = square * s;
  const double s1 = s, s2 = square, s3 = cube;
  const P first = P::splat(float(s1 - s2 - s2 + s3)), ends = P::splat(float(s3 - 3.0 * s2 + s3)),
          second = P::splat(float(s3 - s2));
  return (p0 - p1) * ends + ((p0 + t0 * first) + t1 * second);
}
template <int N>
ZELM_INLINE ZelStatus hermite(const float* p0, const float* t0, const float* p1, const float* t1, float weight, float* d) {
  return set<N>(d, curve(get<N>(p0), get<N>(t0), get<N>(p1), get<N>(t1), weight));
}
template <int N>
ZELM_INLINE ZelStatus catmull_rom(const float* p1, const float* p2, const float* p3, const float* p4, float weight, float* d) {
  const P from = get<N>(p2), to = get<N>(p3), half = P::splat(.5f);
  return set<N>(d, curve(from, (to - get<N>(p1)) * half, to, (get<N>(p4) - from) * half, weight));
}

}  // namespace zelm::geometry::vec
