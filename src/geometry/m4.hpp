// m4.hpp: 4 x 4 float matrices, 16 consecutive elements row by row, at a pointer of any alignment. Sources are in registers as a
// whole before the first store, so a destination may be a source.
#pragma once
#include "frame/views.hpp"
#include "geometry/companions.hpp"
#include "geometry/vec.hpp"

namespace zelm::geometry::m4 {

using P = Pack<float>;
using vec::splat;
using vec::turned;
using Matrix = Block<float, 4, 4>;

ZELM_INLINE Matrix get(const float* p, int row_bytes = 16) {
  return block_of<4, 4>(StridedObject<const float, true>{p, row_bytes, sizeof(float)});
}
ZELM_INLINE ZelStatus set(float* d, const Matrix& m, int row_bytes = 16) {
  ZELM_UNROLL for (int i = 0; i < 4; ++i) m.rows[i].store(moved(d, Bytes(i) * row_bytes));
  return zelStsOk;
}
ZELM_INLINE P row(const Matrix& m, int i) { return m.rows[i].pack[0]; }

ZELM_INLINE Matrix product(const Matrix& a, const Matrix& b) {
  Matrix d;
  ZELM_UNROLL for (int i = 0; i < 4; ++i) {
    const P r = row(a, i);
    d.rows[i].pack[0] = splat<0>(r) * row(b, 0) + splat<1>(r) * row(b, 1) + splat<2>(r) * row(b, 2) + splat<3>(r) * row(b, 3);
  }
  return d;
}

ZELM_INLINE ZelStatus mul(const float* a, const float* b, float* d) {
  if (!a || !b || !d) return zelStsNullPointer;
  return set(d, product(get(a), get(b)));
}
ZELM_INLINE ZelStatus mul_transposed(const float* a, const float* b, float* d) {
  return set(d, transposed(product(get(a), get(b))));
}
ZELM_INLINE ZelStatus transpose(const float* a, float* d) { return set(d, transposed(get(a))); }

/// Along the first row, through the 2 x 2 minors of the last two.
ZELM_INLINE ZelStatus determinant(const float* m, float* d) {
  float e[4][4];
  std::memcpy(e, m, sizeof e);
  const auto minor = [&](int i, int j) { return e[2][i] * e[3][j] - e[2][j] * e[3][i]; };
  const auto term = [&](int i, int j, int k, int l) {
    return (minor(j, k) * e[1][i] - minor(i, k) * e[1][j] + minor(i, j) * e[1][k]) * e[0][l];
  };
  store(d, (term(1, 2, 3, 0) - term(0, 2, 3, 1)) + (term(0, 1, 3, 2) - term(0, 1, 2, 3)));
  return zelStsOk;
}

/// For two rows c and d: the six products of neighbours and opposites of which 2 x 2 minors are differences, and from them the
/// determinants of c, d and a third row without column j in lane j, each the sum of six triple products. Counting columns from j
/// on around the end, their signs alternate with j.
struct Minors {
  P product12, product21, product23, product32, product31, product13;
  ZELM_INLINE Minors(P c, P d) {
    const P forward = c * turned<1>(d), backward = turned<1>(c) * d, across = c * turned<2>(d);
    product12 = turned<1>(forward), product21 = turned<1>(backward);
    product23 = turned<2>(forward), product32 = turned<2>(backward);
    product31 = turned<3>(across), product13 = turned<1>(across);
  }
  ZELM_INLINE P with(P b) const {
    const P b1 = turned<1>(b), b2 = turned<2>(b), b3 = turned<3>(b);
    return (b1 * product23 + b2 * product31 + b3 * product12) - (b1 * product32 + b2 * product13 + b3 * product21);
  }
};

/// A determinant below 128 * 2^-126 is that of a singular matrix; a NaN is not.
inline constexpr float kSmallestDeterminant = 0x1p-119f;

/// Transposed cofactors times the reciprocal of the determinant: the processor's approximation, and one Newton step.
ZELM_INLINE ZelStatus invert_rows(const float* s, int src_row_bytes, float* det, float* d, int dst_row_bytes) {
  const Matrix m = get(s, src_row_bytes);
  const P odd = {_mm_castsi128_ps(_mm_setr_epi32(0, INT32_MIN, 0, INT32_MIN))};
  const P even = {_mm_castsi128_ps(_mm_setr_epi32(INT32_MIN, 0, INT32_MIN, 0))};
  const auto negated = [](P a, P where) { return P{_mm_xor_ps(a.raw, where.raw)}; };
  const Minors lower(row(m, 2), row(m, 3)), upper(row(m, 0), row(m, 1));
  Matrix cofactors;
  cofactors.rows[0].pack[0] = negated(lower.with(row(m, 1)), odd);
  cofactors.rows[1].pack[0] = negated(lower.with(row(m, 0)), even);
  cofactors.rows[2].pack[0] = negated(upper.with(row(m, 3)), odd);
  cofactors.rows[3].pack[0] = negated(upper.with(row(m, 2)), even);
  Matrix adjugate = transposed(cofactors);

  // (d0 C30 + b0 C10) + (c0 C20 + a0 C00)
  const P terms = row(transposed(m), 0) * row(adjugate, 0);
  const P pairs = terms + turned<2>(terms);
  const P determinant = splat<1>(pairs) + splat<0>(pairs);
  const float value = _mm_cvtss_f32(determinant.raw);
  if (__builtin_fabsf(value) < kSmallestDeterminant) {
    if (det) store(det, 0.f);
    return zelStsSingular;
  }
  if (det) store(det, value);
  const P estimate = {_mm_rcp_ps(determinant.raw)};
  const P reciprocal = estimate + estimate - determinant * (estimate * estimate);
  ZELM_UNROLL for (int i = 0; i < 4; ++i) adjugate.rows[i].pack[0] = row(adjugate, i) * reciprocal;
  return set(d, adjugate, dst_row_bytes);
}

ZELM_INLINE ZelStatus invert(const float* s, float* det, float* d) { return p8_own3dzelmInvert_m_32f_4x4(s, 16, det, d, 16); }

}  // namespace zelm::geometry::m4
