// transform.hpp: vectors times 4 x 4 matrices, row vectors on the left: p' = p M. Nothing is checked but the determinant where a
// matrix is inverted.
//
// An array lies at any distance, of any sign, aligned or not. The matrix is read before the first vector, and the vectors are done
// as if one after the other; where they do not stand in each other's way four at a time, one in each lane. A destination may be its
// source, vector by vector.
#pragma once
#include "frame/lanes.hpp"
#include "geometry/m4.hpp"
#include "solvers/inverse_kernels.hpp"

namespace zelm::geometry {

// One column of p M, in the order of its terms: m[r] the column's element in row r, v the vector. Either lane c of m[r] is column c
// and every lane of v[j] is element j, or a lane belongs to one vector of four.

/// N elements to 4, with 1 for a missing fourth and 0 for a missing third.
template <int N>
struct Affine {
  static constexpr int in = N, out = 4;
  static ZELM_INLINE Pack<float> column(const Pack<float> (&m)[4], const Pack<float> (&v)[N]) {
    if constexpr (N == 2) return m[3] + m[0] * v[0] + m[1] * v[1];
    else if constexpr (N == 3) return m[3] + m[0] * v[0] + m[1] * v[1] + m[2] * v[2];
    else return (m[0] * v[0] + m[1] * v[1]) + (m[2] * v[2] + m[3] * v[3]);
  }
};

/// The same divided by the fourth element, of which N are left.
template <int N>
struct Coord {
  static constexpr int in = N, out = N;
  static ZELM_INLINE Pack<float> column(const Pack<float> (&m)[4], const Pack<float> (&v)[N]) {
    if constexpr (N == 2) return m[0] * v[0] + m[3] + m[1] * v[1];
    else return m[3] + m[2] * v[2] + (m[0] * v[0] + m[1] * v[1]);
  }
};

/// Without translation.
template <int N>
struct Normal {
  static constexpr int in = N, out = N;
  static ZELM_INLINE Pack<float> column(const Pack<float> (&m)[4], const Pack<float> (&v)[N]) {
    if constexpr (N == 2) return m[0] * v[0] + m[1] * v[1];
    else return m[0] * v[0] + m[1] * v[1] + m[2] * v[2];
  }
};

namespace transform {

using m4::P;
using m4::splat;

template <class Kind>
inline constexpr bool divides = false;
template <int N>
inline constexpr bool divides<Coord<N>> = true;

// One vector

/// The vector at `s` by all columns at once.
template <class Kind>
ZELM_INLINE P times(const float* s, const P (&rows)[4]) {
  P v[Kind::in];
  ZELM_UNROLL for (int j = 0; j < Kind::in; ++j) v[j] = P::splat(load(s + j));
  const P p = Kind::column(rows, v);
  if constexpr (divides<Kind>) return p / splat<3>(p);
  else return p;
}

struct Rows {
  P of[4];
  ZELM_INLINE explicit Rows(const float* m) { ZELM_UNROLL for (int r = 0; r < 4; ++r) of[r] = P::load(m + 4 * r); }
};

template <class Kind>
ZELM_INLINE ZelStatus one(const float* m, const float* s, float* d) {
  times<Kind>(s, Rows(m).of).template store_first<Kind::out>(d);
  return zelStsOk;
}

// Arrays

/// Vectors of N floats, `stride` bytes apart.
template <class E, int N>
struct Run {
  E* first;
  Bytes stride;
  static constexpr Bytes size = N * Bytes(sizeof(float));

  ZELM_INLINE E* at(std::ptrdiff_t k) const { return moved(first, k * stride); }
  bool packed() const { return stride == size; }
  std::uintptr_t begin(std::ptrdiff_t count) const { return std::uintptr_t(at(stride < 0 ? count - 1 : 0)); }
  std::uintptr_t end(std::ptrdiff_t count) const { return std::uintptr_t(at(stride < 0 ? 0 : count - 1)) + size; }
};

template <int N, int M>
bool apart(const Run<const float, N>& s, const Run<float, M>& d, std::ptrdiff_t count) {
  return s.end(count) <= d.begin(count) || d.end(count) <= s.begin(count);
}

/// True if any order of the vectors gives the same, as long as each is read before its place is written.
template <int N, int M>
bool independent(const Run<const float, N>& s, const Run<float, M>& d, std::ptrdiff_t count) {
  if (d.stride < d.size && -d.stride < d.size) return false;
  return apart(s, d, count) || (N == M && s.first == d.first && s.stride == d.stride);
}

/// Worth streaming: nothing lies between the results, and no source in them.
template <int N, int M>
bool streams(const Run<const float, N>& s, const Run<float, M>& d, std::ptrdiff_t count) {
  return d.packed() && worth_streaming(d.first, count * M) && apart(s, d, count);
}

/// What is read two pages further on: the processor's own prefetchers stop at the end of a page, and looking up the next one takes as
/// long as reading from it. It need not be there.
ZELM_INLINE void fetch_ahead(const float* p) { _mm_prefetch(reinterpret_cast<const char*>(p) + 8192, _MM_HINT_T0); }

/// Results of 4 elements fill a register each: vector after vector, all columns at once.
template <class Kind, bool streamed>
__attribute__((noinline)) void by_vector(Rows m, Run<const float, Kind::in> s, Run<float, 4> d, std::ptrdiff_t count) {
  ZELM_AS_IT_STANDS for (std::ptrdiff_t k = 0; k < count; ++k) {
    if constexpr (streamed) fetch_ahead(s.at(k));
    put<streamed>(times<Kind>(s.at(k), m.of), d.at(k));
  }
  if constexpr (streamed) _mm_sfence();
}

ZELM_INLINE P low_halves(P a, P b) { return {shuffle<0x44>(a.raw, b.raw)}; }
ZELM_INLINE P high_halves(P a, P b) { return {shuffle<0xee>(a.raw, b.raw)}; }

/// Vectors of 4 elements at multiples of 16 bytes: loads double their elements, (x, x, z, z) and (y, y, w, w), so that two shuffles
/// do instead of four. The same terms in the same order.
template <bool streamed>
__attribute__((noinline)) void by_aligned_vector(Rows m, Run<const float, 4> s, Run<float, 4> d, std::ptrdiff_t count) {
  const P xz_left = low_halves(m.of[0], m.of[2]), xz_right = high_halves(m.of[0], m.of[2]);
  const P yw_left = low_halves(m.of[1], m.of[3]), yw_right = high_halves(m.of[1], m.of[3]);
  ZELM_AS_IT_STANDS for (std::ptrdiff_t k = 0; k < count; ++k) {
    if constexpr (streamed) fetch_ahead(s.at(k));
    const P xz = P::load_even_twice(s.at(k)), yw = P::load_odd_twice(s.at(k));
    const P left = xz_left * xz + yw_left * yw, right = xz_right * xz + yw_right * yw;
    put<streamed>(low_halves(left, right) + high_halves(left, right), d.at(k));
  }
  if constexpr (streamed) _mm_sfence();
}

template <class Kind, bool streamed>
ZELM_INLINE void one_by_one(const float* m, Run<const float, Kind::in> s, Run<float, 4> d, std::ptrdiff_t count) {
  if constexpr (Kind::in == 4) {
    if ((std::uintptr_t(s.first) | std::uintptr_t(s.stride)) % 16 == 0)
      return by_aligned_vector<streamed>(Rows(m), s, d, count);
  }
  by_vector<Kind, streamed>(Rows(m), s, d, count);
}

template <class Kind>
ZELM_INLINE ZelStatus array(const float* m, const float* src, int src_stride, float* dst, int dst_stride,
                            int count) requires(Kind::out == 4) {
  const Run<const float, Kind::in> s{src, src_stride};
  const Run<float, 4> d{dst, dst_stride};
  if (count < 1) return zelStsOk;
  if (streams(s, d, count)) one_by_one<Kind, true>(m, s, d, count);
  else one_by_one<Kind, false>(m, s, d, count);
  return zelStsOk;
}

/// Four vectors in lanes: elements j of v to elements of r. Gives a bit for each lane whose vector has no result, here none.
template <class Kind>
struct Lanewise {
  P column[4][4];

  explicit Lanewise(const float* m) {
    for (int c = 0; c < 4; ++c)
      for (int r = 0; r < 4; ++r) column[c][r] = P::splat(load(m + 4 * r + c));
  }
  ZELM_INLINE int operator()(const P (&v)[Kind::in], P (&r)[Kind::out]) const {
    P w;
    if constexpr (divides<Kind>) {
      w = Kind::column(column[3], v);
      __asm__ volatile("" : "+x"(w.raw));  // first, since the divisions wait for it
    }
    ZELM_UNROLL for (int c = 0; c < Kind::out; ++c) {
      r[c] = Kind::column(column[c], v);
      if constexpr (divides<Kind>) r[c] = r[c] / w;
    }
    return 0;
  }
};

template <class Body, bool packed, bool streamed, int N>
__attribute__((noinline)) int by_four(const Body& body, Run<const float, N> s, Run<float, N> d, std::ptrdiff_t count) {
  const Body held = body;  // that no store to d can change
  int bad = 0;
  const auto block = [&](std::ptrdiff_t k, auto valid) ZELM_INLINE_LAMBDA {
    P v[N], r[N];
    constexpr bool full = !std::is_same_v<decltype(valid), int>;
    if constexpr (streamed) fetch_ahead(s.at(k));
    if constexpr (packed && full) packed_to_lanes(v, s.first + k * N);
    else rows_to_lanes(v, [&](int l) { return s.at(k + (l < valid ? l : valid - 1)); });
    bad |= held(v, r);
    if constexpr (packed && full) {
      lanes_to_packed<streamed>(r, d.first + k * N);
    } else if constexpr (full) {
      lanes_to_rows(r, [&](int l) { return d.at(k + l); });
    } else {
      alignas(16) float lanes[N][4];
      ZELM_UNROLL for (int j = 0; j < N; ++j) r[j].store(lanes[j]);
      for (int l = 0; l < valid; ++l) ZELM_UNROLL for (int j = 0; j < N; ++j) store(d.at(k + l) + j, lanes[j][l]);
    }
  };
  std::ptrdiff_t k = 0;
  ZELM_AS_IT_STANDS for (; k + 4 <= count; k += 4) block(k, std::integral_constant<int, 4>{});
  if (k < count) block(k, int(count - k));
  if constexpr (streamed) _mm_sfence();
  return bad;
}

/// Calls body(v, r) for all vectors; 0 if all have results.
template <int N, class Body>
ZELM_INLINE int for_vectors(const Body& body, const Run<const float, N>& s, const Run<float, N>& d, std::ptrdiff_t count) {
  if (count < 1) return 0;
  if (independent(s, d, count)) {
    if (!s.packed() || !d.packed()) return by_four<Body, false, false>(body, s, d, count);
    if (streams(s, d, count)) return by_four<Body, true, true>(body, s, d, count);
    return by_four<Body, true, false>(body, s, d, count);
  }
  int bad = 0;
  for (std::ptrdiff_t k = 0; k < count; ++k)
    bad |= by_four<Body, false, false>(body, Run<const float, N>{s.at(k), s.stride}, Run<float, N>{d.at(k), d.stride}, 1);
  return bad;
}

template <class Kind>
ZELM_INLINE ZelStatus array(const float* m, const float* src, int src_stride, float* dst, int dst_stride,
                            int count) requires(Kind::out < 4) {
  for_vectors<Kind::in>(Lanewise<Kind>(m), {src, src_stride}, {dst, dst_stride}, count);
  return zelStsOk;
}

// Between the world and the screen. A viewport begins at (0, 0); on the screen y points down.

/// Normalised x, y, z in -1 to 1, -1 to 1, 0 to 1 become n * scale + middle.
struct Viewport {
  float scale[3], middle[3];
  Viewport(float width, float height, float min_z, float max_z)
      : scale{width * .5f, 0 - height * .5f, max_z - min_z}, middle{width * .5f, height * .5f, min_z} {}
};

/// Three steps, each rounded.
ZELM_INLINE ZelStatus project(const float* projection, const float* view, const float* world, const float* s, float width,
                              float height, float min_z, float max_z, float* d) {
  const Viewport screen(width, height, min_z, max_z);
  const auto step = [](const float* m, P p) {
    return Affine<4>::column(Rows(m).of, {splat<0>(p), splat<1>(p), splat<2>(p), splat<3>(p)});
  };
  const P v[3] = {P::splat(load(s)), P::splat(load(s + 1)), P::splat(load(s + 2))};
  const P p = step(projection, step(view, Coord<3>::column(Rows(world).of, v)));
  const P n = p / splat<3>(p);
  (n * P::load_first<3>(screen.scale) + P::load_first<3>(screen.middle)).store_first<3>(d);
  return zelStsOk;
}

struct Projecting {
  Lanewise<Coord<3>> divided;
  P scale[3], middle[3];

  Projecting(const float* m, const Viewport& screen) : divided(m) {
    for (int j = 0; j < 3; ++j) scale[j] = P::splat(screen.scale[j]), middle[j] = P::splat(screen.middle[j]);
  }
  ZELM_INLINE int operator()(const P (&v)[3], P (&r)[3]) const {
    divided(v, r);
    ZELM_UNROLL for (int j = 0; j < 3; ++j) r[j] = r[j] * scale[j] + middle[j];
    return 0;
  }
};

/// One matrix, world (view projection), and one step.
ZELM_INLINE ZelStatus project_array(const float* projection, const float* view, const float* world, const float* src,
                                    int src_stride, float width, float height, float min_z, float max_z, float* dst,
                                    int dst_stride, int count) {
  float m[16];
  p8_ownMulMat_32f(view, projection, m);
  p8_ownMulMat_32f(world, m, m);
  for_vectors<3>(Projecting(m, Viewport(width, height, min_z, max_z)), {src, src_stride}, {dst, dst_stride}, count);
  return zelStsOk;
}

/// The inverse of (world view) projection, taken in double.
ZELM_INLINE ZelStatus inverse_view(const float* projection, const float* view, const float* world, float* d) {
  float m[16];
  p8_ownMulMat_32f(world, view, m);
  p8_ownMulMat_32f(m, projection, m);
  double wide[16];
  for (int e = 0; e < 16; ++e) wide[e] = m[e];
  double inverse[16];
  if (const ZelStatus status = p8_ownzelmInvert_m_64f_4x4(wide, 32, inverse, 32); status != zelStsOk) return status;
  return p8_own3dConvert64f32f_16(inverse, d);
}

struct Unprojecting {
  Lanewise<Coord<3>> divided;
  P width, height, min_z, depth;

  Unprojecting(const float* m, float w, float h, float near, float far)
      : divided(m), width(P::splat(w)), height(P::splat(h)), min_z(P::splat(near)), depth(P::splat(far - near)) {}
  ZELM_INLINE int operator()(const P (&v)[3], P (&r)[3]) const {
    const P n[3] = {(P::splat(2) * v[0]) / width - P::splat(1), (P::splat(-2) * v[1]) / height + P::splat(1),
                    (v[2] - min_z) / depth};
    return divided(n, r);
  }
};

/// The normalised coordinates go to d first and are transformed there; they stay where the inversion fails.
ZELM_INLINE ZelStatus unproject(const float* projection, const float* view, const float* world, const float* s, float width,
                                float height, float min_z, float max_z, float* d) {
  const float x = 2 * load(s) / width - 1, y = -2 * load(s + 1) / height + 1, z = (load(s + 2) - min_z) / (max_z - min_z);
  store(d, x), store(d + 1, y), store(d + 2, z);
  float m[16];
  if (const ZelStatus status = inverse_view(projection, view, world, m); status != zelStsOk) return status;
  return one<Coord<3>>(m, d, d);
}

ZELM_INLINE ZelStatus unproject_array(const float* projection, const float* view, const float* world, const float* src,
                                      int src_stride, float width, float height, float min_z, float max_z, float* dst,
                                      int dst_stride, int count) {
  float m[16];
  if (const ZelStatus status = inverse_view(projection, view, world, m); status != zelStsOk) return status;
  for_vectors<3>(Unprojecting(m, width, height, min_z, max_z), {src, src_stride}, {dst, dst_stride}, count);
  return zelStsOk;
}

}  // namespace transform
}  // namespace zelm::geometry
