// build.hpp: 4 x 4 matrices out of angles, distances and vectors, for row vectors: p' = p M, translation in the last row. Angles in
// radians. Nothing is checked: what divides by zero leaves infinities and NaNs, and every status is zelStsOk. A zero that comes of
// `0 - x` is +0.
#pragma once
#include <cmath>

#include "geometry/m4.hpp"
#include "geometry/vec.hpp"

namespace zelm::geometry {

/// Left-handed: the viewer looks along +z; right-handed: along -z.

struct LeftHanded {
  static constexpr float w = 1;  // of z, in the homogeneous w of a perspective
  static Pack<float> direction(Pack<float> eye, Pack<float> at) { return at - eye; }
  static float depth(float near, float far) { return far - near; }
  static float minus_depth(float near, float far) { return 0 - (far - near); }
};
struct RightHanded {
  static constexpr float w = -1;
  static Pack<float> direction(Pack<float> eye, Pack<float> at) { return eye - at; }
  static float depth(float near, float far) { return near - far; }
  static float minus_depth(float near, float far) { return near - far; }
};

namespace build {

using m4::P;
using m4::splat;
using Elements = float[16];

ZELM_INLINE ZelStatus set(float* d, const Elements& m) {
  std::memcpy(d, m, sizeof m);
  return zelStsOk;
}

ZELM_INLINE ZelStatus identity(float* d) { return m4::set(d, m4::get(mId)); }

/// 1 if the first element is 1 and at least one column is that of the identity: less than the whole matrix.
ZELM_INLINE ZelStatus is_identity(const float* m, int* result) {
  bool any = false;
  for (int c = 0; c < 4; ++c) {
    bool right = true;
    for (int r = 0; r < 4; ++r) right &= load(m + 4 * r + c) == mId[4 * r + c];
    any |= right;
  }
  store(result, int(load(m) == 1 && any));
  return zelStsOk;
}

ZELM_INLINE ZelStatus translation(float x, float y, float z, float* d) {
  return set(d, {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, x, y, z, 1});
}
ZELM_INLINE ZelStatus scaling(float x, float y, float z, float* d) {
  return set(d, {x, 0, 0, 0, 0, y, 0, 0, 0, 0, z, 0, 0, 0, 0, 1});
}

// Rotations

/// sinf and cosf, each by itself: nothing promises that sincosf, which the compiler would make of them, rounds as they do.
struct Angle {
  float sine, cosine;
  ZELM_INLINE explicit Angle(float radians) : sine(std::sin(radians)) {
    __asm__("" : "+x"(radians));
    cosine = std::cos(radians);
  }
};

ZELM_INLINE ZelStatus rotation_x(float angle, float* d) {
  const auto [s, c] = Angle(angle);
  return set(d, {1, 0, 0, 0, 0, c, s, 0, 0, 0 - s, c, 0, 0, 0, 0, 1});
}
ZELM_INLINE ZelStatus rotation_y(float angle, float* d) {
  const auto [s, c] = Angle(angle);
  return set(d, {c, 0, 0 - s, 0, 0, 1, 0, 0, s, 0, c, 0, 0, 0, 0, 1});
}
ZELM_INLINE ZelStatus rotation_z(float angle, float* d) {
  const auto [s, c] = Angle(angle);
  return set(d, {c, s, 0, 0, 0 - s, c, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1});
}

/// Rodrigues' formula, transposed for row vectors; the axis is normalised here.
ZELM_INLINE ZelStatus rotation_axis(const float* axis, float angle, float* d) {
  const auto [s, c] = Angle(angle);
  float unit[3];
  vec::normalize<3>(axis, unit);
  const float x = unit[0], y = unit[1], z = unit[2];
  const float t = 1 - c, tx = t * x, ty = t * y, tz = t * z;
  return set(d, {tx * x + c, ty * x + s * z, tz * x - s * y, 0,  //
                 tx * y - s * z, ty * y + c, y * tz + s * x, 0,  //
                 s * y + tx * z, ty * z - s * x, c + z * tz, 0,  //
                 0, 0, 0, 1});
}

/// Roll about z, then pitch about x, then yaw about y.
ZELM_INLINE ZelStatus rotation_yaw_pitch_roll(float yaw, float pitch, float roll, float* d) {
  const auto [sy, cy] = Angle(yaw);
  const auto [sp, cp] = Angle(pitch);
  const auto [sr, cr] = Angle(roll);
  const float u = sy * sp, v = sp * cy;
  return set(d, {sr * u + cy * cr, sr * cp, sr * v - sy * cr, 0,  //
                 u * cr - cy * sr, cr * cp, sy * sr + cr * v, 0,  //
                 sy * cp, 0 - sp, cy * cp, 0,                     //
                 0, 0, 0, 1});
}

// Views and projections

/// The axes in columns, and the eye in the origin. A direction of length 0, or along `up`, leaves NaNs.
template <class Hand>
ZELM_INLINE ZelStatus look_at(const float* eye, const float* at, const float* up, float* d) {
  const P from = vec::get<3>(eye), z = vec::unit<3>(Hand::direction(from, vec::get<3>(at)));
  const P x = vec::unit<3>(vec::cross(vec::get<3>(up), z)), y = vec::cross(z, x);
  P rows[4] = {x, y, z, P::zero()};
  transpose(rows);
  const P origin = rows[0] * splat<0>(from) + rows[1] * splat<1>(from) + rows[2] * splat<2>(from);
  rows[3] = {_mm_blend_ps((P::zero() - origin).raw, _mm_set1_ps(1), 8)};
  ZELM_UNROLL for (int i = 0; i < 4; ++i) rows[i].store(d + 4 * i);
  return zelStsOk;
}

/// What maps z from near to far onto 0 to 1 after the division by w.
template <class Hand>
ZELM_INLINE ZelStatus set_perspective(float* d, float m0, float m5, float m8, float m9, float near, float far, float m14) {
  return set(d, {m0, 0, 0, 0, 0, m5, 0, 0, m8, m9, far / Hand::depth(near, far), Hand::w, 0, 0, m14, 0});
}
template <class Hand>
ZELM_INLINE ZelStatus perspective(float width, float height, float near, float far, float* d) {
  const float m14 = near * far / Hand::minus_depth(near, far);
  return set_perspective<Hand>(d, (near + near) / width, (near + near) / height, 0, 0, near, far, m14);
}
template <class Hand>
ZELM_INLINE ZelStatus perspective_fov(float fov, float aspect, float near, float far, float* d) {
  const auto [s, c] = Angle(fov * .5f);
  const float scale = c / s;
  const float numerator = Hand::w > 0 ? 0 - near * far : near * far;
  return set_perspective<Hand>(d, scale / aspect, scale, 0, 0, near, far, numerator / Hand::depth(near, far));
}
template <class Hand>
ZELM_INLINE ZelStatus perspective_off_center(float l, float r, float b, float t, float near, float far, float* d) {
  const float width = r - l, height = t - b, m14 = near * far / Hand::minus_depth(near, far);
  const bool left = Hand::w > 0;
  return set_perspective<Hand>(d, (near + near) / width, (near + near) / height, (l + r) / (left ? 0 - width : width),
                               (b + t) / (left ? 0 - height : height), near, far, m14);
}

template <class Hand>
ZELM_INLINE ZelStatus set_ortho(float* d, float width, float height, float m12, float m13, float near, float far) {
  return set(d, {2 / width, 0, 0, 0, 0, 2 / height, 0, 0, 0, 0, 1 / Hand::depth(near, far), 0, m12, m13,
                 near / Hand::minus_depth(near, far), 1});
}
template <class Hand>
ZELM_INLINE ZelStatus ortho(float width, float height, float near, float far, float* d) {
  return set_ortho<Hand>(d, width, height, 0, 0, near, far);
}
template <class Hand>
ZELM_INLINE ZelStatus ortho_off_center(float l, float r, float b, float t, float near, float far, float* d) {
  const float width = r - l, height = t - b;
  return set_ortho<Hand>(d, width, height, (l + r) / (0 - width), (b + t) / (0 - height), near, far);
}

}  // namespace build
}  // namespace zelm::geometry
