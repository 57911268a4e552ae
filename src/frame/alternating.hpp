// alternating.hpp: solutions of many systems, several registers of objects at a time, each of which takes a step in turn.
#pragma once
#include "frame/lanes.hpp"
#include "simd/many.hpp"

namespace zelm {

/// A view of vectors that are written past the caches (worth_streaming).
template <class View>
struct Streamed : View {};
template <class View>
inline constexpr bool is_streamed = false;
template <class View>
inline constexpr bool is_streamed<Streamed<View>> = true;
template <class View>
inline constexpr bool is_tight<Streamed<View>> = is_tight<View>;

/// Systems of order N are solved in so many registers of objects at once, a step of each in turn: the chain of one alone leaves the
/// processor waiting, which looks only so far ahead. Four are up to 1.5 times as fast as one, but larger objects then only fill the
/// stack. Arrays with gaps spend their time elsewhere; `shared`: on one matrix for all, which need not be loaded.
template <int N, class View, bool shared>
inline constexpr int kAlternating = is_tight<View> ? (N < 5 ? 4 : 3) : (shared ? 2 : 1);

/// As for_blocks, but body(k, registers, valid) takes R registers of objects at a time as long as there are so many, and then one.
template <int R, int L, class Body>
ZELM_INLINE void for_alternating(std::ptrdiff_t count, Body body) {
  std::ptrdiff_t k = 0;
  if constexpr (R > 1)
    for (; k + R * L <= count; k += R * L) body(k, std::integral_constant<int, R>{}, std::integral_constant<int, L>{});
  for_blocks<L>(count - k, [=](std::ptrdiff_t more, auto valid)
                               ZELM_INLINE_LAMBDA { body(k + more, std::integral_constant<int, 1>{}, valid); });
}

/// Vectors k, ... of N elements, in as many registers as Many has; `valid` objects in each.
template <bool beside, class T, int M, int N, class View>
ZELM_INLINE void load_vectors(Many<T, M> (&x)[N], const View& view, std::ptrdiff_t k, int valid) {
  ZELM_UNROLL for (int q = 0; q < Many<T, M>::packs; ++q) {
    Lanes<T, 1, N> part;
    part.template load<beside>(view, k + q * part.L, valid);
    ZELM_UNROLL for (int i = 0; i < N; ++i) x[i].part[q] = part.e[0][i];
  }
}
template <bool beside, class T, int M, int N, class View>
ZELM_INLINE void store_vectors(const Many<T, M> (&x)[N], const View& view, std::ptrdiff_t k, int valid) {
  ZELM_UNROLL for (int q = 0; q < Many<T, M>::packs; ++q) {
    Lanes<T, 1, N> part;
    ZELM_UNROLL for (int i = 0; i < N; ++i) part.e[0][i] = x[i].part[q];
    if constexpr (is_streamed<View>) {
      if (valid == part.L) {
        T* const to = view.object(k + q * part.L).base;
        if constexpr (N == 3) lanes_to_packed<true>(part.e[0], to);
        else lanes_to_rows<true>(part.e[0], [=](int l) { return to + l * N; });
        continue;
      }
    }
    part.template store<beside>(view, k + q * part.L, valid);
  }
}

/// Calls body with the tight vectors x of A x = b: one that writes them past the caches where one A serves them all, they are many,
/// not the source, and of an order whose blocks fill registers. Else the lines of x are read only to be overwritten: 15 to 25 % of
/// the time where nothing fits a cache. With a matrix for each vector the reading of those decides.
template <int N, class A, class B, class D, class Body>
ZELM_INLINE void with_stores(const A&, const B& b, const D& x, int count, Body body) {
  if constexpr (!A::array && (N == 3 || N * sizeof(typename D::T) % 16 == 0)) {
    if (worth_streaming(x.first, std::ptrdiff_t(count) * N) && b.first != x.first) {
      body(Streamed<D>{x});
      return _mm_sfence();
    }
  }
  body(x);
}

}  // namespace zelm
