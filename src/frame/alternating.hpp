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

/// Not eight, as in 32 bits.
inline constexpr bool kSixteenRegisters = sizeof(void*) == 8;

/// Nothing to do halfway.
struct Nothing {
  ZELM_INLINE void operator()() const {}
};

/// Fills d with solutions: body(x, k, valid, halfway) makes x those from k on. Several registers of objects take a step each in
/// turn, since the chain of one alone leaves the processor waiting, which looks only so far ahead: up to 1.6 times as fast. Of
/// systems that `share` one matrix four, but two where memory has gaps; of those with a matrix each `own`, as measured for the
/// formula, but one where that is gathered element by element, which takes most of the time and much code, and where small systems
/// have gaps and eight registers.
/// halfway() is called once amid the arithmetic. There the registers before are stored, whose shuffles then have something to run
/// beside. It saves 2 to 20 % of the time, but costs as much for vectors of three, for interleaved ones, which take no shuffles,
/// for doubles that lie apart or have a matrix each, and with eight registers.
template <int N, bool share, int own, bool beside, class D, class Body>
ZELM_INLINE void for_alternating(D d, std::ptrdiff_t count, Body body) {
  using T = typename D::T;
  constexpr bool gaps = !is_tight<D>, gathered = !beside && !D::Object::plain;
  constexpr bool alone = !D::array || (!share && (gathered || (gaps && N < 5 && !kSixteenRegisters)));
  constexpr int L = Pack<T>::lanes, R = alone ? 1 : !share ? own : gaps ? 2 : 4;
  constexpr bool halfway_pays = R > 1 && N > 3 && kSixteenRegisters && !beside && (sizeof(T) == 4 || (share && !gaps));
  constexpr std::integral_constant<int, L> full{};
  std::ptrdiff_t k = 0;
  if constexpr (halfway_pays) {
    if (count >= R * L) {
      Many<T, R * L> solved[N];
      const auto store_solved = [&]() ZELM_INLINE_LAMBDA { store_vectors<beside>(solved, d, k - R * L, full); };
      const auto solve = [&](auto halfway) ZELM_INLINE_LAMBDA {
        Many<T, R * L> x[N];
        body(x, k, full, halfway);
        ZELM_UNROLL for (int i = 0; i < N; ++i) solved[i] = x[i];
        k += R * L;
      };
      solve(Nothing{});
      while (k + R * L <= count) solve(store_solved);
      store_solved();
    }
  } else if constexpr (R > 1) {
    for (; k + R * L <= count; k += R * L) {
      Many<T, R * L> x[N];
      body(x, k, full, Nothing{});
      store_vectors<beside>(x, d, k, full);
    }
  }
  for_blocks<L>(count - k, [=](std::ptrdiff_t more, auto valid) ZELM_INLINE_LAMBDA {
    Many<T, L> x[N];
    body(x, k + more, valid, Nothing{});
    store_vectors<beside>(x, d, k + more, valid);
  });
}

/// Calls body with the tight vectors x, the solutions for those of b: written past the caches where they are many, not the source,
/// and of an order whose blocks fill registers. Else the lines of x are read only to be overwritten: where nothing fits a cache, 15 to
/// 25 % of the time with one matrix for all, 8 to 25 % with a matrix of order 3 or 4 for each.
template <int N, class B, class D, class Body>
ZELM_INLINE void with_stores(const B& b, const D& x, int count, Body body) {
  if constexpr (N == 3 || N * sizeof(typename D::T) % 16 == 0) {
    if (worth_streaming(x.first, std::ptrdiff_t(count) * N) && b.first != x.first) {
      body(Streamed<D>{x});
      return _mm_sfence();
    }
  }
  body(x);
}

}  // namespace zelm
