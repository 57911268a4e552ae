// move.hpp: elements from one place to another as bit patterns: copies between the layouts, packed blocks, transposes,
// identities. No arithmetic touches an element.
// Source and destination lie apart, or coincide in a copy of like layout and strides.
#pragma once
#include <cstdint>
#include <cstring>

#include "companion/companion.hpp"
#include "elementwise/run.hpp"
#include "elementwise/transpose_strips.hpp"
#include "frame/lanes.hpp"
#include "zelm_types.h"

namespace zelm::elementwise::move {

/// A long run of elements, left to the C library, which knows the processor's fastest way. Where it would differ from the copy
/// of one element after the other it is that copy, so that a run across rows and objects keeps their order.
template <class T>
ZELM_INLINE void copy_run(const T* s, T* d, std::ptrdiff_t n) {
  if (runs_into(s, d, n)) {
    ZELM_AS_IT_STANDS for (std::ptrdiff_t e = 0; e < n; ++e) store(d + e, load(s + e));
  } else {
    std::memmove(d, s, std::size_t(n) * sizeof(T));
  }
}

template <class T>
ZELM_INLINE void fill_zero(T* d, int n) {
  constexpr int L = Pack<T>::lanes;
  int e = 0;
  ZELM_AS_IT_STANDS for (; e + L <= n; e += L) Pack<T>::zero().store(d + e);
  ZELM_AS_IT_STANDS for (; e < n; ++e) store(d + e, T(0));
}

// Loops of their own, which need all registers: inlined into the choice between them they would share them. Views come as
// references and are copied word by word: by value they would be copied in pairs of words, just written one by one, for which a
// processor waits.

template <int R, int C, class S, class D>
__attribute__((noinline)) void copy_fixed(const S& sources, const D& destinations, std::ptrdiff_t count) {
  S s = sources;
  D d = destinations;
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    const auto from = s.object(k);
    const auto to = d.object(k);
    ZELM_UNROLL for (int i = 0; i < R; ++i) to.template set_row<C>(i, from.template row<C>(i));
  }
}

/// The small sizes; false for all others.
template <class S, class D>
ZELM_INLINE bool copy_small(const S& s, const D& d, int rows, int columns, std::ptrdiff_t count) {
  if (rows != 1 && rows != columns) return false;
  if (better_as_vectors<typename D::T>(rows, columns, s, d)) columns *= rows, rows = 1;
  switch (rows == 1 ? -columns : columns) {
    case -9: copy_fixed<1, 9>(s, d, count); break;
    case -16: copy_fixed<1, 16>(s, d, count); break;
    case -25: copy_fixed<1, 25>(s, d, count); break;
    case -36:
      if constexpr (sizeof(typename D::T) == 8) return false;
      else copy_fixed<1, 36>(s, d, count);
      break;
    case -3: copy_fixed<1, 3>(s, d, count); break;
    case -4: copy_fixed<1, 4>(s, d, count); break;
    case -5: copy_fixed<1, 5>(s, d, count); break;
    case -6: copy_fixed<1, 6>(s, d, count); break;
    case 3: copy_fixed<3, 3>(s, d, count); break;
    case 4: copy_fixed<4, 4>(s, d, count); break;
    case 5: copy_fixed<5, 5>(s, d, count); break;
    case 6: copy_fixed<6, 6>(s, d, count); break;
    default: return false;
  }
  return true;
}

/// Calls body(j, number) with constant numbers that together are `columns`: 2 L as often as possible, and never a 1 where it can
/// be an L + 1, since one column costs as much as four.
template <int L, class Body>
ZELM_INLINE void for_tiles(int columns, Body body) {
  int j = 0;
  const auto tile = [&](auto number) ZELM_INLINE_LAMBDA {
    body(j, number);
    j += number;
  };
  const auto left = [&](int number) { return columns - j == number; };
  ZELM_AS_IT_STANDS while (columns - j >= 2 * L && !left(2 * L + 1)) tile(std::integral_constant<int, 2 * L>{});
  if (columns - j >= L && !left(L + 1)) tile(std::integral_constant<int, L>{});
  if (left(L + 1)) tile(std::integral_constant<int, L + 1>{});
  unroll<L>([&](auto number) ZELM_INLINE_LAMBDA {
    if constexpr (number > 0)
      if (left(number)) tile(number);
  });
}

/// N columns from element (i, j) on of objects [first, end), as many at once as a register has lanes. What is left of them goes
/// together with some before it, again.
template <bool gather, int N, class Rows, class Apart>
ZELM_INLINE void copy_tile(Rows by_rows, Apart apart, int i, int j, std::ptrdiff_t first, std::ptrdiff_t end) {
  using T = typename Rows::T;
  constexpr int L = Pack<T>::lanes;
  const Rows runs = by_rows.from(i, j);
  decltype(apart.object(0).at(0, 0)) lanes[N];
  ZELM_UNROLL for (int q = 0; q < N; ++q) lanes[q] = apart.object(0).at(i, j + q);
  const auto block = [=](std::ptrdiff_t k) ZELM_INLINE_LAMBDA {
    typename Rows::Object objects[L];
    runs.objects(k, L, objects);
    const auto run = [&](int l) { return objects[l].base; };
    Pack<T> e[N];
    if constexpr (gather) {
      rows_to_lanes(e, run);
      ZELM_UNROLL for (int q = 0; q < N; ++q) e[q].store(lanes[q] + k);
    } else {
      ZELM_UNROLL for (int q = 0; q < N; ++q) e[q] = Pack<T>::load(lanes[q] + k);
      lanes_to_rows(e, run);
    }
  };
  std::ptrdiff_t k = first;
  for (; k + L <= end; k += L) block(k);
  if (k < end) block(end - L);
}

/// Between objects whose rows are runs and objects that are interleaved, in tiles that are transposed in registers. A tile goes
/// through as many objects as the first-level cache holds together, so that its addresses stay in registers, too. `gather`: from
/// rows to interleaved elements. At least as many objects as a register has lanes.
template <bool gather, class Rows, class Apart>
void copy_interleaved(const Rows& by_rows, const Apart& apart, int rows, int columns, std::ptrdiff_t count) {
  using T = typename Rows::T;
  constexpr int L = Pack<T>::lanes;
  if constexpr (requires { apart.table; }) {  // element e of the table is element e of an object without gaps, too
    if (by_rows.row_stride == columns * Bytes(sizeof(T))) {
      columns *= rows;
      rows = 1;
    }
  }
  constexpr std::ptrdiff_t kTogether = 16384 / sizeof(T);
  const std::ptrdiff_t together = std::max<std::ptrdiff_t>(kTogether / (std::ptrdiff_t(rows) * columns) & -L, 4 * L);
  for (std::ptrdiff_t k = 0; k < count; k += together)
    for (int i = 0; i < rows; ++i)
      for_tiles<L>(columns, [&](int j, auto number) ZELM_INLINE_LAMBDA {
        copy_tile<gather, number>(by_rows, apart, i, j, k, std::min(k + together, count));
      });
}

/// Vectors have a loop of their own, whose addresses all stay in registers.
template <bool vectors, class S, class D, class CopyRow>
__attribute__((noinline)) void copy_rows(const S& sources, const D& destinations, int rows, std::ptrdiff_t count,
                                         CopyRow copy_row) {
  S s = sources;
  D d = destinations;
  if (vectors) rows = 1;
  for (std::ptrdiff_t k = 0; k < count; ++k, s.next(), d.next()) {
    const auto from = s.object(0);
    const auto to = d.object(0);
    ZELM_AS_IT_STANDS for (int i = 0; i < rows; ++i) copy_row(from, to, i);
  }
}

template <class S, class D>
void copy_any(const S& s, const D& d, int rows, int columns, std::ptrdiff_t count) {
  using T = typename D::T;
  if constexpr (S::Object::plain && D::Object::plain) {
    constexpr int kLong = 512 / sizeof(T);  // where the call costs less than it saves
    if (columns > kLong) {
      const auto copy_row = [=](const auto& from, const auto& to, int i)
                                ZELM_INLINE_LAMBDA { copy_run(from.at(i, 0), to.at(i, 0), columns); };
      if (rows == 1) copy_rows<true>(s, d, rows, count, copy_row);
      else copy_rows<false>(s, d, rows, count, copy_row);
    } else {
      const auto copy_row = [=](const auto& from, const auto& to, int i) ZELM_INLINE_LAMBDA {
        run_packs(First{}, Elements{from.at(i, 0)}, Same<T>{0}, to.at(i, 0), columns);
      };
      if (rows == 1) copy_rows<true>(s, d, rows, count, copy_row);
      else copy_rows<false>(s, d, rows, count, copy_row);
    }
  } else {
    copy_rows<false>(s, d, rows, count, [=](const auto& from, const auto& to, int i) ZELM_INLINE_LAMBDA {
      ZELM_AS_IT_STANDS for (int j = 0; j < columns; ++j) zelm::store(to.at(i, j), from.element(i, j));
    });
  }
}

template <class S, class D>
void copy_objects(const S& s, const D& d, int rows, int columns, std::ptrdiff_t count) {
  constexpr bool from_rows = S::Object::plain, to_rows = D::Object::plain;
  const bool side_by_side = count > 1 && s.interleaved() && d.interleaved();
  constexpr int L = Pack<typename D::T>::lanes;
  if (side_by_side) {
    for (int i = 0; i < rows; ++i)
      for (int j = 0; j < columns; ++j) copy_run(s.object(0).at(i, j), d.object(0).at(i, j), count);
    return;
  } else if constexpr (from_rows && to_rows) {
    if (count > 1 && s.tight(rows, columns) && d.tight(rows, columns))
      return copy_run(s.object(0).base, d.object(0).base, count * rows * columns);
    if (copy_small(s, d, rows, columns, count)) return;
  } else if constexpr (from_rows) {
    if (count >= L && d.interleaved()) return copy_interleaved<true>(s, d, rows, columns, count);
  } else if constexpr (to_rows) {
    if (count >= L && s.interleaved()) return copy_interleaved<false>(d, s, rows, columns, count);
  }
  copy_any(s, d, rows, columns, count);
}

template <int N, bool streamed = false, class S, class D>
__attribute__((noinline)) void transpose_fixed(const S& sources, const D& destinations, std::ptrdiff_t count) {
  S s = sources;
  D d = destinations;
  using T = typename D::T;
  // Rows of whole registers can go past the caches, since they all begin at multiples of 16 bytes.
  if constexpr (!streamed && N % Pack<T>::lanes == 0) {
    const bool apart = count > 1 && s.tight(N, N) && d.tight(N, N);
    if (apart && worth_streaming(d.object(0).base, count * N * N)) {
      if (Elements{s.object(0).base}.apart(d.object(0).base, count * N * N))
        return transpose_fixed<N, true>(sources, destinations, count);
    }
  }
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    const auto block = transposed(block_of<N, N>(s.object(k)));
    const auto to = d.object(k);
    ZELM_UNROLL for (int i = 0; i < N; ++i) {
      if constexpr (streamed) {
        ZELM_UNROLL for (int q = 0; q < Row<T, N>::packs; ++q) block.rows[i].pack[q].stream(to.at(i, q * Pack<T>::lanes));
      } else {
        to.template set_row<N>(i, block.rows[i]);
      }
    }
  }
  if constexpr (streamed) _mm_sfence();
}

/// 3 x 3 without gaps: nine elements in two registers and one.
inline void transpose_packed(const float* s, float* d, std::ptrdiff_t count) {
  for (; count > 0; --count, s += 9, d += 9) {
    const __m128 a = _mm_loadu_ps(s), b = _mm_loadu_ps(s + 4), last = _mm_load_ss(s + 8);  // 0 1 2 3, 4 5 6 7, 8
    const __m128 e6e1 = shuffle<0x5a>(b, a), e2e5 = shuffle<0x5a>(a, b);
    _mm_storeu_ps(d, shuffle<0x8c>(a, e6e1));      // 0 3 6 1
    _mm_storeu_ps(d + 4, shuffle<0x8c>(b, e2e5));  // 4 7 2 5
    _mm_store_ss(d + 8, last);
  }
}

/// N x N, rows anywhere, to a run of elements without gaps.
template <int N, class S, class T>
__attribute__((noinline)) void transpose_to_packed(const S& sources, T* d, std::ptrdiff_t count) {
  const S s = sources;
  for (std::ptrdiff_t k = 0; k < count; ++k, d += N * N) run_of_columns<N>(s.object(k)).store(d);
}

/// Object of height x width to object of width x height.
template <class S, class D>
void transpose_objects(const S& s, const D& d, int width, int height, std::ptrdiff_t count) {
  if constexpr (S::Object::plain && D::Object::plain) {
    if (width == height) {
      if constexpr (std::is_same_v<typename D::T, float>) {
        if (width == 3 && count > 1 && s.tight(3, 3) && d.tight(3, 3))
          return transpose_packed(s.object(0).base, d.object(0).base, count);
      }
      if (count > 1 && d.tight(width, width)) {
        if (width == 3) return transpose_to_packed<3>(s, d.object(0).base, count);
        if constexpr (better_as_run<typename D::T, 5>)
          if (width == 5) return transpose_to_packed<5>(s, d.object(0).base, count);
      }
      switch (width) {
        case 3: return transpose_fixed<3>(s, d, count);
        case 4: return transpose_fixed<4>(s, d, count);
        case 5: return transpose_fixed<5>(s, d, count);
        case 6: return transpose_fixed<6>(s, d, count);
      }
    }
  }
  if (count > 1 && s.interleaved() && d.interleaved()) return copy_objects(transposed(s), d, width, height, count);
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    const auto from = s.object(k);
    const auto to = d.object(k);
    if constexpr (S::Object::plain && D::Object::plain && std::is_same_v<typename D::T, float>) {
      p8_ownm_Transpose_32s(reinterpret_cast<const std::int32_t*>(from.base), int(from.row_stride),
                            reinterpret_cast<std::int32_t*>(to.base), int(to.row_stride), width, height);
    } else {
      for (int j = 0; j < width; ++j)
        ZELM_AS_IT_STANDS for (int i = 0; i < height; ++i) store(to.at(j, i), load(from.at(i, j)));
    }
  }
}

/// The block of `count` objects of height x width that starts at p, without gaps.
template <class T>
ZELM_INLINE StridedView<T, true, true> packed(T* p, int width, int height) {
  const Bytes row = width * Bytes(sizeof(T));
  return {p, height * row, row, sizeof(T)};
}

// The formulas, as entries and kernels call them

template <class S, class D>
ZELM_INLINE ZelStatus copy(S s, D d, int width, int height, int count) {
  with_adjacent(s, [&](const auto& from) ZELM_INLINE_LAMBDA {
    with_adjacent(d, [&](const auto& to) ZELM_INLINE_LAMBDA { copy_objects(from, to, height, width, count); });
  });
  return zelStsOk;
}
template <class S, class D>
ZELM_INLINE ZelStatus copy(S s, D d, int width, int count) {
  return copy(s, d, width, 1, count);
}

template <class S>
ZELM_INLINE ZelStatus extract(S s, typename S::T* pDst, int width, int height, int count) {
  with_adjacent(
      s, [&](const auto& from) ZELM_INLINE_LAMBDA { copy_objects(from, packed(pDst, width, height), height, width, count); });
  return zelStsOk;
}
template <class S>
ZELM_INLINE ZelStatus extract(TransposedView<S> s, typename S::T* pDst, int width, int height, int count) {
  with_adjacent(s.stored, [&](const auto& from) ZELM_INLINE_LAMBDA {
    transpose_objects(from, packed(pDst, width, height), height, width, count);
  });
  return zelStsOk;
}
template <class S>
ZELM_INLINE ZelStatus extract(S s, typename S::T* pDst, int width, int count) {
  return extract(s, pDst, width, 1, count);
}

/// The pattern again and again, from Q registers; Q = 0: from memory.
template <int Q, bool streamed, class T>
void fill_repeated(const Pattern<T>& pattern, T* d, std::ptrdiff_t n) {
  constexpr int L = Pack<T>::lanes;
  const int packs = Q > 0 ? Q : pattern.packs;
  Pack<T> held[std::max(Q, 1)];
  ZELM_UNROLL for (int q = 0; q < Q; ++q) {
    held[q] = Pack<T>::load_aligned(pattern.elements + q * L);
    __asm__("" : "+x"(held[q].raw));  // else a compiler takes all of it for a copy of memory, and leaves it there
  }
  std::ptrdiff_t e = 0;
  ZELM_AS_IT_STANDS for (const std::ptrdiff_t period = packs * L; e + period <= n; e += period) {
    if constexpr (Q > 0) {
      ZELM_UNROLL for (int q = 0; q < Q; ++q) put<streamed>(held[q], d + e + q * L);
    } else {
      ZELM_AS_IT_STANDS for (int q = 0; q < packs; ++q)
          put<streamed>(Pack<T>::load_aligned(pattern.elements + q * L), d + e + q * L);
    }
  }
  ZELM_AS_IT_STANDS for (int q = 0; e < n; ++e, ++q) store(d + e, pattern.elements[q]);
  if constexpr (streamed) _mm_sfence();
}

template <class T>
void fill_repeated(const Pattern<T>& pattern, T* d, std::ptrdiff_t n) {
  if (worth_streaming(d, n)) return fill_repeated<0, true>(pattern, d, n);
  switch (pattern.packs) {
    case 4: return fill_repeated<4, false>(pattern, d, n);    // 4 x 4 float
    case 8: return fill_repeated<8, false>(pattern, d, n);    // 4 x 4 double
    case 9: return fill_repeated<9, false>(pattern, d, n);    // 3 x 3, 6 x 6 float
    case 18: return fill_repeated<18, false>(pattern, d, n);  // 6 x 6 double
    case 25: return fill_repeated<25, false>(pattern, d, n);  // 5 x 5
    default: return fill_repeated<0, false>(pattern, d, n);
  }
}

template <class T>
struct IdentityObject {
  static constexpr bool plain = false;
  ZELM_INLINE T element(int i, int j) const { return T(i == j); }
};

/// Zeros and ones are stored as constants; nothing is read.
template <class D>
ZelStatus load_identity(D d, int width, int height, int count) {
  using T = typename D::T;
  with_adjacent(d, [&](auto to) {
    if constexpr (to.plain) {
      const std::ptrdiff_t size = std::ptrdiff_t(width) * height, n = size * count;
      if (count > 1 && Pattern<T>::fits(size) && to.tight(height, width)) {
        const Pattern<T> pattern(IdentityObject<T>{}, height, width);
        return fill_repeated(pattern, to.first, n);
      }
    }
    for (int k = 0; k < count; ++k) {
      const auto object = to.object(k);
      for (int i = 0; i < height; ++i) {
        if constexpr (object.plain) fill_zero(object.at(i, 0), width);
        else ZELM_AS_IT_STANDS for (int j = 0; j < width; ++j) store(object.at(i, j), T(0));
        if (i < width) store(object.at(i, i), T(1));
      }
    }
  });
  return zelStsOk;
}

/// Sizes are those of the source. On its way to the strips the contiguous float kernel of arrays asks for the cache size, with a
/// result that nothing depends on: the strips suit every size.
template <class S, class D>
ZELM_INLINE ZelStatus transpose(S s, int width, int height, D d, int count) {
  if constexpr (S::array && S::Object::plain && D::Object::plain && std::is_same_v<typename S::T, float>) {
    const bool fixed = width == height && width >= 3 && width <= 6;
    if (!fixed && int(unsigned(width) * 8 * (unsigned(height) * unsigned(count))) > 131072) {
      int cache = 0;
      zelGetMaxCacheSizeB(&cache);
    }
  }
  transpose_objects(s, d, width, height, count);
  return zelStsOk;
}

}  // namespace zelm::elementwise::move
