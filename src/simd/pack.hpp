// pack.hpp: Pack<T>, one SSE register of T. One line per instruction; loads and stores touch exactly the elements they name,
// at any address.
#pragma once
#include <emmintrin.h>
#include <smmintrin.h>

#include <cstdint>
#include <cstring>
#include <utility>

// Loops over rows, columns and lanes of known number become straight-line code; arrays of packs then live in registers. Not under
// AddressSanitizer: its checks would be inlined a thousandfold, and a build would take five times as long.
#if __has_feature(address_sanitizer)
#define ZELM_UNROLL
#define ZELM_INLINE inline
#define ZELM_INLINE_LAMBDA
#else
#define ZELM_UNROLL _Pragma("clang loop unroll(full)")
#define ZELM_INLINE inline __attribute__((always_inline))
#define ZELM_INLINE_LAMBDA __attribute__((always_inline))
#endif
// Loops that the compiler would only blow up: their bodies are packs already, or they run a few times.
#define ZELM_AS_IT_STANDS _Pragma("clang loop vectorize(disable) unroll(disable)")

namespace zelm {

/// Calls body(0), ..., body(N - 1) with constants. For bodies in which ZELM_UNROLL is not enough, because a size depends on i.
template <int N, class Body>
ZELM_INLINE void unroll(Body body) {
  [&]<int... i>(std::integer_sequence<int, i...>) ZELM_INLINE_LAMBDA { (body(std::integral_constant<int, i>{}), ...); }
  (std::make_integer_sequence<int, N>{});
}

/// One element at an address of any alignment.
template <class T>
ZELM_INLINE T load(const T* p) {
  T value;
  std::memcpy(&value, p, sizeof(T));
  return value;
}

template <class T>
ZELM_INLINE void store(T* p, T value) {
  std::memcpy(p, &value, sizeof(T));
}

/// SHUFPS and SHUFPD by name: newer Intel processors run two a cycle, but only one of the unpack and half moves into which a
/// compiler turns the same shuffles (measured on a Sapphire Rapids: 0.5 against 1.0 cycles).
template <int control>
ZELM_INLINE __m128 shuffle(__m128 a, __m128 b) {
  __asm__("shufps %2, %1, %0" : "+x"(a) : "x"(b), "i"(control));
  return a;
}
template <int control>
ZELM_INLINE __m128d shuffle(__m128d a, __m128d b) {
  __asm__("shufpd %2, %1, %0" : "+x"(a) : "x"(b), "i"(control));
  return a;
}

/// PUNPCKLDQ and PUNPCKHDQ: a0 b0 a1 b1, and a2 b2 a3 b3. UNPCKLPS does the same on one port.
ZELM_INLINE __m128 interleave_low(__m128 a, __m128 b) {
  __asm__("punpckldq %1, %0" : "+x"(a) : "x"(b));
  return a;
}
ZELM_INLINE __m128 interleave_high(__m128 a, __m128 b) {
  __asm__("punpckhdq %1, %0" : "+x"(a) : "x"(b));
  return a;
}

template <class T>
struct Pack;

template <>
struct Pack<float> {
  static constexpr int lanes = 4;
  __m128 raw;

  static ZELM_INLINE Pack zero() { return {_mm_setzero_ps()}; }
  static ZELM_INLINE Pack splat(float x) { return {_mm_set1_ps(x)}; }
  static ZELM_INLINE Pack splat_from(const float* p) { return splat(zelm::load(p)); }
  static ZELM_INLINE Pack load(const float* p) { return {_mm_loadu_ps(p)}; }
  static ZELM_INLINE Pack load_aligned(const float* p) { return {_mm_load_ps(p)}; }
  ZELM_INLINE void store(float* p) const { _mm_storeu_ps(p, raw); }
  ZELM_INLINE float first() const { return _mm_cvtss_f32(raw); }
  /// Past the caches, to a multiple of 16 bytes.
  ZELM_INLINE void stream(float* p) const { _mm_stream_ps(p, raw); }

  /// Elements 0 0 2 2, and 1 1 3 3, from a multiple of 16 bytes: loads, of which a compiler would make one and two shuffles.
  static ZELM_INLINE Pack load_even_twice(const float* p) {
    Pack r;
    __asm__("movsldup %1, %0" : "=x"(r.raw) : "m"(*reinterpret_cast<const __m128*>(p)));
    return r;
  }
  static ZELM_INLINE Pack load_odd_twice(const float* p) {
    Pack r;
    __asm__("movshdup %1, %0" : "=x"(r.raw) : "m"(*reinterpret_cast<const __m128*>(p)));
    return r;
  }

  /// The first n elements; the other lanes are 0.
  template <int n>
  static ZELM_INLINE Pack load_first(const float* p) {
    if constexpr (n == 1) return {_mm_load_ss(p)};
    else if constexpr (n == 2) return {_mm_castpd_ps(_mm_load_sd(reinterpret_cast<const double*>(p)))};
    else if constexpr (n == 3) return {_mm_movelh_ps(load_first<2>(p).raw, _mm_load_ss(p + 2))};
    else return load(p);
  }
  template <int n>
  ZELM_INLINE void store_first(float* p) const {
    if constexpr (n == 1) _mm_store_ss(p, raw);
    else if constexpr (n == 2) _mm_storel_pi(reinterpret_cast<__m64*>(p), raw);
    else if constexpr (n == 3) store_first<2>(p), _mm_store_ss(p + 2, _mm_movehl_ps(raw, raw));
    else store(p);
  }
  /// Elements that lie apart, from up to four addresses.
  template <int n, class Address>
  static ZELM_INLINE Pack gather(Address at) {
    const __m128 first = _mm_load_ss(at(0));
    if constexpr (n == 1) return {first};
    else if constexpr (n == 2) return {_mm_insert_ps(first, _mm_load_ss(at(1)), 0x10)};
    else if constexpr (n == 3) return {_mm_insert_ps(gather<2>(at).raw, _mm_load_ss(at(2)), 0x20)};
    else return {shuffle<0x88>(shuffle<0>(first, _mm_load_ss(at(1))), shuffle<0>(_mm_load_ss(at(2)), _mm_load_ss(at(3))))};
  }
  /// Elements 0 and 1, or 2 and 3.
  template <int half>
  ZELM_INLINE void store_half(float* p) const {
    if constexpr (half == 0) _mm_storel_pi(reinterpret_cast<__m64*>(p), raw);
    else _mm_storeh_pi(reinterpret_cast<__m64*>(p), raw);
  }
  template <int lane>
  ZELM_INLINE void store_lane(float* p) const {
    if constexpr (lane == 0) _mm_store_ss(p, raw);
    else zelm::store(reinterpret_cast<int*>(p), _mm_extract_ps(raw, lane));
  }
  template <int n, class Address>
  ZELM_INLINE void scatter(Address at) const {
    unroll<n>([&](auto l) ZELM_INLINE_LAMBDA { store_lane<l>(at(l)); });
  }

  friend ZELM_INLINE Pack operator+(Pack a, Pack b) { return {_mm_add_ps(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack operator-(Pack a, Pack b) { return {_mm_sub_ps(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack operator*(Pack a, Pack b) { return {_mm_mul_ps(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack operator/(Pack a, Pack b) { return {_mm_div_ps(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack sqrt(Pack a) { return {_mm_sqrt_ps(a.raw)}; }
  /// 1 / sqrt(a) to a relative 1.5 * 2^-12, one lane as all four; infinite for 0 and for subnormal numbers.
  friend ZELM_INLINE Pack inverse_root_estimate(Pack a) { return {_mm_rsqrt_ps(a.raw)}; }
  /// 1 / a with a relative error of at most 1.5 * 2^-12; the bits are the processor's.
  friend ZELM_INLINE Pack approximate_reciprocal(Pack a) { return {_mm_rcp_ps(a.raw)}; }

  // Comparisons give a mask: all bits of a lane set where true, false for a NaN on either side.
  friend ZELM_INLINE Pack operator>(Pack a, Pack b) { return {_mm_cmpgt_ps(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack operator>=(Pack a, Pack b) { return {_mm_cmpge_ps(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack operator|(Pack a, Pack b) { return {_mm_or_ps(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack and_not(Pack a, Pack b) { return {_mm_andnot_ps(b.raw, a.raw)}; }
  friend ZELM_INLINE Pack select(Pack mask, Pack yes, Pack no) { return {_mm_blendv_ps(no.raw, yes.raw, mask.raw)}; }
  friend ZELM_INLINE Pack abs(Pack a) { return and_not(a, splat(-0.0f)); }
  /// The larger or smaller of each pair; b where either is a NaN or both are zeros.
  friend ZELM_INLINE Pack max_or_second(Pack a, Pack b) { return {_mm_max_ps(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack min_or_second(Pack a, Pack b) { return {_mm_min_ps(a.raw, b.raw)}; }
  /// One bit for each lane whose mask is set.
  friend ZELM_INLINE int lane_bits(Pack mask) { return _mm_movemask_ps(mask.raw); }
  /// Whole numbers held as elements, as 32-bit integers.
  friend ZELM_INLINE __m128i to_int32(Pack a) { return _mm_cvttps_epi32(a.raw); }
};

template <>
struct Pack<double> {
  static constexpr int lanes = 2;
  __m128d raw;

  static ZELM_INLINE Pack zero() { return {_mm_setzero_pd()}; }
  static ZELM_INLINE Pack splat(double x) { return {_mm_set1_pd(x)}; }
  /// One load. Without the barrier a compiler that finds a use of one lane alone makes a load and a shuffle of it.
  static ZELM_INLINE Pack splat_from(const double* p) {
    __m128d both = _mm_loaddup_pd(p);
    __asm__("" : "+x"(both));
    return {both};
  }
  static ZELM_INLINE Pack load(const double* p) { return {_mm_loadu_pd(p)}; }
  static ZELM_INLINE Pack load(const float* p) { return {_mm_cvtps_pd(_mm_castsi128_ps(_mm_loadu_si64(p)))}; }
  static ZELM_INLINE Pack load_aligned(const double* p) { return {_mm_load_pd(p)}; }
  ZELM_INLINE void store(double* p) const { _mm_storeu_pd(p, raw); }
  ZELM_INLINE void store(float* p) const { _mm_storeu_si64(p, _mm_castps_si128(_mm_cvtpd_ps(raw))); }
  /// What a store and a load would leave.
  ZELM_INLINE Pack as(const double*) const { return *this; }
  ZELM_INLINE Pack as(const float*) const { return {_mm_cvtps_pd(_mm_cvtpd_ps(raw))}; }
  ZELM_INLINE double first() const { return _mm_cvtsd_f64(raw); }
  ZELM_INLINE void stream(double* p) const { _mm_stream_pd(p, raw); }

  template <int n>
  static ZELM_INLINE Pack load_first(const double* p) {
    if constexpr (n == 1) return {_mm_load_sd(p)};
    else return load(p);
  }
  template <int n>
  ZELM_INLINE void store_first(double* p) const {
    if constexpr (n == 1) _mm_store_sd(p, raw);
    else store(p);
  }
  template <int n, class Address>
  static ZELM_INLINE Pack gather(Address at) {
    const __m128d low = _mm_load_sd(at(0));
    if constexpr (n > 1) return {_mm_loadh_pd(low, at(1))};
    else return {low};
  }
  template <int n, class Address>
  ZELM_INLINE void scatter(Address at) const {
    _mm_store_sd(at(0), raw);
    if constexpr (n > 1) _mm_storeh_pd(at(1), raw);
  }

  friend ZELM_INLINE Pack operator+(Pack a, Pack b) { return {_mm_add_pd(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack operator-(Pack a, Pack b) { return {_mm_sub_pd(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack operator*(Pack a, Pack b) { return {_mm_mul_pd(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack operator/(Pack a, Pack b) { return {_mm_div_pd(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack sqrt(Pack a) { return {_mm_sqrt_pd(a.raw)}; }

  friend ZELM_INLINE Pack operator>(Pack a, Pack b) { return {_mm_cmpgt_pd(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack operator>=(Pack a, Pack b) { return {_mm_cmpge_pd(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack operator|(Pack a, Pack b) { return {_mm_or_pd(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack and_not(Pack a, Pack b) { return {_mm_andnot_pd(b.raw, a.raw)}; }
  friend ZELM_INLINE Pack select(Pack mask, Pack yes, Pack no) { return {_mm_blendv_pd(no.raw, yes.raw, mask.raw)}; }
  friend ZELM_INLINE Pack abs(Pack a) { return and_not(a, splat(-0.0)); }
  friend ZELM_INLINE Pack max_or_second(Pack a, Pack b) { return {_mm_max_pd(a.raw, b.raw)}; }
  friend ZELM_INLINE Pack min_or_second(Pack a, Pack b) { return {_mm_min_pd(a.raw, b.raw)}; }
  friend ZELM_INLINE int lane_bits(Pack mask) { return _mm_movemask_pd(mask.raw); }
  friend ZELM_INLINE __m128i to_int32(Pack a) { return _mm_cvttpd_epi32(a.raw); }
};

/// PSHUFD by name, of numbers of either size: it leaves its source as it is, which saves a copy.
template <int control, class Raw>
ZELM_INLINE Raw shuffled(Raw a) {
  Raw r;
  __asm__("pshufd %2, %1, %0" : "=x"(r) : "x"(a), "i"(control));
  return r;
}

/// Lane l in all lanes; l is a constant once loops are unrolled.
ZELM_INLINE Pack<float> spread_lane(Pack<float> p, int l) {
  switch (l) {
    case 0: return {shuffled<0x00>(p.raw)};
    case 1: return {shuffled<0x55>(p.raw)};
    case 2: return {shuffled<0xaa>(p.raw)};
    default: return {shuffled<0xff>(p.raw)};
  }
}

/// A destination of this many bytes and more is written past the caches, where it is overwritten as a whole and no source lies in
/// it: no cache could keep it, and its old contents need not be read first (measured on a Sapphire Rapids with 260 MiB of cache:
/// copies of 180 MiB take half the time).
inline constexpr std::ptrdiff_t kStreamBytes = std::ptrdiff_t(64) << 20;

template <class T>
ZELM_INLINE bool worth_streaming(const T* d, std::ptrdiff_t n) {
  return n >= kStreamBytes / std::ptrdiff_t(sizeof(T)) && reinterpret_cast<std::uintptr_t>(d) % 16 == 0;
}

template <bool streamed, class T>
ZELM_INLINE void put(Pack<T> pack, T* d) {
  if constexpr (streamed) pack.stream(d);
  else pack.store(d);
}

/// Rows become columns: lane j of pack i goes to lane i of pack j.
ZELM_INLINE void transpose(Pack<float> (&r)[4]) {
  const __m128 a = shuffle<0x44>(r[0].raw, r[1].raw), b = shuffle<0xee>(r[0].raw, r[1].raw);
  const __m128 c = shuffle<0x44>(r[2].raw, r[3].raw), d = shuffle<0xee>(r[2].raw, r[3].raw);
  r[0].raw = shuffle<0x88>(a, c);
  r[1].raw = shuffle<0xdd>(a, c);
  r[2].raw = shuffle<0x88>(b, d);
  r[3].raw = shuffle<0xdd>(b, d);
}
ZELM_INLINE void transpose(Pack<double> (&r)[2]) {
  const __m128d a = r[0].raw, b = r[1].raw;
  r[0].raw = shuffle<0>(a, b);
  r[1].raw = shuffle<3>(a, b);
}

}  // namespace zelm
