// lanes.hpp: several objects at once. Lane l of every register belongs to object k + l of an array; each lane does what one
// object alone would do, in the same order, so its bits are the same. What is left at the end of an array fills the spare lanes
// with its last object, and only the valid ones are stored.
#pragma once
#include <algorithm>

#include "frame/views.hpp"

namespace zelm {

/// Element j of a row in each of four places, at(l) being the address of the row in lane l, to e[j].
template <int N, class Address>
ZELM_INLINE void rows_to_lanes(Pack<float> (&e)[N], Address at) {
  using P = Pack<float>;
  constexpr int full = N / 4 * 4, pairs = (N - full) / 2 * 2;
  ZELM_UNROLL for (int j = 0; j < full; j += 4) {
    P tile[4];
    ZELM_UNROLL for (int l = 0; l < 4; ++l) tile[l] = P::load(at(l) + j);
    transpose(tile);
    ZELM_UNROLL for (int l = 0; l < 4; ++l) e[j + l] = tile[l];
  }
  if constexpr (pairs > 0) {
    const auto two_of_each = [&](int l) {
      return _mm_loadh_pi(P::load_first<2>(at(l) + full).raw, reinterpret_cast<const __m64*>(at(l + 1) + full));
    };
    const __m128 low = two_of_each(0), high = two_of_each(2);
    e[full].raw = shuffle<0x88>(low, high);
    e[full + 1].raw = shuffle<0xdd>(low, high);
  }
  if constexpr (full + pairs < N) e[N - 1] = P::gather<4>([&](int l) { return at(l) + (N - 1); });
}

template <int N, class Address>
ZELM_INLINE void rows_to_lanes(Pack<double> (&e)[N], Address at) {
  // Two loads of eight bytes for each: whole registers would need a shuffle and half a copy more.
  ZELM_UNROLL for (int j = 0; j < N; ++j) e[j] = Pack<double>::gather<2>([&](int l) { return at(l) + j; });
}

/// The other way. Row by row, since neighbouring stores to one cache line are written as one. `streamed`: past the caches, rows of
/// whole registers.
template <bool streamed = false, int N, class Address>
ZELM_INLINE void lanes_to_rows(const Pack<float> (&e)[N], Address at) {
  using P = Pack<float>;
  constexpr int tiles = N / 4, full = 4 * tiles;
  P tile[tiles + 1][4];
  __m128 low, high;
  ZELM_UNROLL for (int t = 0; t < tiles; ++t) {
    ZELM_UNROLL for (int l = 0; l < 4; ++l) tile[t][l] = e[4 * t + l];
    transpose(tile[t]);
  }
  if constexpr (N % 4 >= 2) {
    low = interleave_low(e[full].raw, e[full + 1].raw);
    high = interleave_high(e[full].raw, e[full + 1].raw);
  }
  const P last = e[N - 1], even_lanes{shuffled<0xa0>(last.raw)};
  unroll<4>([&](auto l) ZELM_INLINE_LAMBDA {
    float* const row = at(l);
    // A last element without a partner is the second of two, the first of which is then written again: EXTRACTPS takes a shuffle.
    if constexpr (N == 1) last.template store_lane<l>(row);
    else if constexpr (N % 2) (l % 2 ? last : even_lanes).template store_half<l / 2>(row + (N - 2));
    ZELM_UNROLL for (int t = 0; t < tiles; ++t) put<streamed>(tile[t][l], row + 4 * t);
    if constexpr (N % 4 >= 2) P{l < 2 ? low : high}.template store_half<l % 2>(row + full);
  });
}

template <bool streamed = false, int N, class Address>
ZELM_INLINE void lanes_to_rows(const Pack<double> (&e)[N], Address at) {
  using P = Pack<double>;
  ZELM_UNROLL for (int j = 0; j + 1 < N; j += 2) {
    P tile[2] = {e[j], e[j + 1]};
    transpose(tile);
    put<streamed>(tile[0], at(0) + j);
    put<streamed>(tile[1], at(1) + j);
  }
  if constexpr (N % 2) e[N - 1].template scatter<2>([&](int l) { return at(l) + (N - 1); });
}

/// Vectors of three elements without gaps between them, as many as a register has lanes: three registers.
ZELM_INLINE void packed_to_lanes(Pack<float> (&e)[3], const Pack<float> (&run)[3]) {
  const __m128 a = run[0].raw, b = run[1].raw, c = run[2].raw;  // x0y0z0x1 y1z1x2y2 z2x3y3z3
  const __m128 y0z0y1z1 = shuffle<0x49>(a, b), x2y2x3y3 = shuffle<0x9e>(b, c);
  e[0].raw = shuffle<0x8c>(a, x2y2x3y3);
  e[1].raw = shuffle<0xd8>(y0z0y1z1, x2y2x3y3);
  e[2].raw = shuffle<0xcd>(y0z0y1z1, c);
}
ZELM_INLINE void packed_to_lanes(Pack<double> (&e)[3], const Pack<double> (&run)[3]) {
  const __m128d a = run[0].raw, b = run[1].raw, c = run[2].raw;  // x0y0 z0x1 y1z1
  e[0].raw = shuffle<2>(a, b);
  e[1].raw = shuffle<1>(a, c);
  e[2].raw = shuffle<2>(b, c);
}
/// From memory: two loads and a shuffle for each.
ZELM_INLINE void packed_to_lanes(Pack<float> (&e)[3], const float* p) {
  ZELM_UNROLL for (int j = 0; j < 3; ++j) e[j].raw = shuffle<0xcc>(_mm_loadu_ps(p + j), _mm_loadu_ps(p + 6 + j));
}
ZELM_INLINE void packed_to_lanes(Pack<double> (&e)[3], const double* p) {
  packed_to_lanes(e, {Pack<double>::load(p), Pack<double>::load(p + 2), Pack<double>::load(p + 4)});
}
template <bool streamed = false>
ZELM_INLINE void lanes_to_packed(const Pack<float> (&e)[3], float* p) {
  const __m128 x = e[0].raw, y = e[1].raw, z = e[2].raw;
  if constexpr (streamed) {
    const __m128 x0x2y0y2 = shuffle<0x88>(x, y), y1y3z1z3 = shuffle<0xdd>(y, z), z0z2x1x3 = shuffle<0xd8>(z, x);
    Pack<float>{shuffle<0x88>(x0x2y0y2, z0z2x1x3)}.stream(p);
    Pack<float>{shuffle<0xd8>(y1y3z1z3, x0x2y0y2)}.stream(p + 4);
    Pack<float>{shuffle<0xdd>(z0z2x1x3, y1y3z1z3)}.stream(p + 8);
  } else {  // z0 and z1, z2 and z3 in their places with anything between, which is then written again: two shuffles less
    Pack<float>{shuffled<0x40>(z)}.store(p + 2);
    Pack<float>{shuffled<0xea>(z)}.store(p + 8);
    const Pack<float> low{interleave_low(x, y)}, high{interleave_high(x, y)};
    low.store_half<0>(p);
    low.store_half<1>(p + 3);
    high.store_half<0>(p + 6);
    high.store_half<1>(p + 9);
  }
}
template <bool streamed = false>
ZELM_INLINE void lanes_to_packed(const Pack<double> (&e)[3], double* p) {
  const __m128d x = e[0].raw, y = e[1].raw, z = e[2].raw;
  put<streamed>(Pack<double>{shuffle<0>(x, y)}, p);
  put<streamed>(Pack<double>{shuffle<2>(z, x)}, p + 2);
  put<streamed>(Pack<double>{shuffle<3>(y, z)}, p + 4);
}

/// Four vectors of two elements.
ZELM_INLINE void packed_to_lanes(Pack<float> (&e)[2], const float* p) {
  const __m128 a = _mm_loadu_ps(p), b = _mm_loadu_ps(p + 4);
  e[0].raw = shuffle<0x88>(a, b);
  e[1].raw = shuffle<0xdd>(a, b);
}
template <bool streamed = false>
ZELM_INLINE void lanes_to_packed(const Pack<float> (&e)[2], float* p) {
  put<streamed>(Pack<float>{_mm_unpacklo_ps(e[0].raw, e[1].raw)}, p);
  put<streamed>(Pack<float>{_mm_unpackhi_ps(e[0].raw, e[1].raw)}, p + 4);
}

/// Row rows(l) of the object in lane l.
template <int N, class Object, class RowOf>
ZELM_INLINE void load_row(Pack<typename Object::T> (&e)[N], const Object* objects, RowOf row) {
  constexpr int L = Pack<typename Object::T>::lanes;
  if constexpr (Object::plain) {
    const typename Object::T* p[L];
    ZELM_UNROLL for (int l = 0; l < L; ++l) p[l] = objects[l].at(row(l), 0);
    rows_to_lanes(e, [&](int l) { return p[l]; });
  } else {
    ZELM_UNROLL for (int j = 0; j < N; ++j) e[j] =
        Pack<typename Object::T>::template gather<L>([&](int l) { return objects[l].at(row(l), j); });
  }
}

template <int N, class Object, class RowOf>
ZELM_INLINE void store_row(const Pack<typename Object::T> (&e)[N], const Object* objects, RowOf row) {
  constexpr int L = Pack<typename Object::T>::lanes;
  if constexpr (Object::plain) {
    typename Object::T* p[L];  // before the stores, which might change what row() reads
    ZELM_UNROLL for (int l = 0; l < L; ++l) p[l] = objects[l].at(row(l), 0);
    lanes_to_rows(e, [&](int l) { return p[l]; });
  } else {
    ZELM_UNROLL for (int j = 0; j < N; ++j) e[j].template scatter<L>([&](int l) { return objects[l].at(row(l), j); });
  }
}

/// True of views whose objects may be interleaved: not of those whose elements are known to lie side by side, nor of lists.
template <class View>
inline constexpr bool can_interleave = View::array && !View::Object::plain && requires(View v) {
  v.stride0;
};

template <class Body>
__attribute__((noinline)) void last_block(Body body, std::ptrdiff_t k, int n) {
  body(k, n);
}

/// Calls body(k, L) for every full block of L objects and body(k, n) for the n that are left. In the first the number is a
/// constant, so that what depends on it costs nothing. The body should be inlined, and hold views by value: the last call gets a
/// copy of it, so nothing that the loop uses is ever seen by another function, and it stays in registers.
template <int L, class Body>
ZELM_INLINE void for_blocks(std::ptrdiff_t count, Body body) {
  std::ptrdiff_t k = 0;
  for (; k + L <= count; k += L) body(k, std::integral_constant<int, L>{});
  if (k < count) last_block(body, k, int(count - k));
}

/// What a loop over arrays knows of them.
enum class Memory {
  rows,  // nothing: objects are taken row by row
  runs,  // every object is a run of elements without a gap
  lanes  // objects may be interleaved
};

/// Calls body with the Memory of arrays of C columns as a constant. Runs are of use where no row fills a register.
template <int C, class Body, class First, class... Views>
ZELM_INLINE auto by_memory(Body body, const First& first, const Views&... views) {
  constexpr Bytes row = C * sizeof(typename First::T);
  if constexpr (!First::Object::plain) {
    if (first.interleaved() || (... || views.interleaved())) return body(std::integral_constant<Memory, Memory::lanes>());
  } else if constexpr (row < 16) {
    if (first.row_stride == row && (... && (views.row_stride == row)))
      return body(std::integral_constant<Memory, Memory::runs>());
  }
  return body(std::integral_constant<Memory, Memory::rows>());
}

/// R x C elements of as many objects as a register has lanes.
template <class T, int R, int C>
struct Lanes {
  static constexpr int L = Pack<T>::lanes;
  Pack<T> e[R][C];

  /// Objects k, ..., k + valid - 1 of an array. `beside`: they may be interleaved. A loop over arrays that are not should say so:
  /// two ways into the same registers cost it a third of its speed.
  template <bool beside = true, class View>
  ZELM_INLINE void load(const View& view, std::ptrdiff_t k, int valid) {
    if (beside && view.interleaved() && valid == L) {
      const auto first = view.object(k);
      ZELM_UNROLL for (int i = 0; i < R; ++i) {
        ZELM_UNROLL for (int j = 0; j < C; ++j) e[i][j] = Pack<T>::load(first.at(i, j));
      }
      return;
    }
    if constexpr (packable<View>) {
      if (valid == L && view.tight(1, 3)) return packed_to_lanes(e[0], view.object(k).base);
    }
    typename View::Object objects[L];
    view.objects(k, valid, objects);
    if constexpr (is_tight<View> && R > 1) {
      load_run(objects);
    } else {
      ZELM_UNROLL for (int i = 0; i < R; ++i) load_row(e[i], objects, [&](int) { return i; });
    }
  }

  template <bool beside = true, class View>
  ZELM_INLINE void store(const View& view, std::ptrdiff_t k, int valid) const {
    if (valid < L) return store_some(view, k, valid);
    if (beside && view.interleaved()) {
      const auto first = view.object(k);
      ZELM_UNROLL for (int i = 0; i < R; ++i) { ZELM_UNROLL for (int j = 0; j < C; ++j) e[i][j].store(first.at(i, j)); }
      return;
    }
    if constexpr (packable<View>) {
      if (view.tight(1, 3)) return lanes_to_packed(e[0], view.object(k).base);
    }
    typename View::Object objects[L];
    view.objects(k, L, objects);
    ZELM_UNROLL for (int i = 0; i < R; ++i) {
      if constexpr (sizeof(T) == 8 && (R == 1 || C % 2 == 0)) {  // halves take no shuffle: up to 14 % of an inverse of order 4
        ZELM_UNROLL for (int j = 0; j < C; ++j) e[i][j].template scatter<L>([&](int l) { return objects[l].at(i, j); });
      } else {
        store_row(e[i], objects, [&](int) { return i; });
      }
    }
  }

  /// A full block.
  template <Memory memory, class View>
  ZELM_INLINE void load_block(const View& view, std::ptrdiff_t k) {
    if constexpr (memory == Memory::runs) {
      typename View::Object objects[L];
      view.objects(k, L, objects);
      load_run(objects);
    } else {
      load<memory == Memory::lanes>(view, k, L);
    }
  }
  template <Memory memory, class View>
  ZELM_INLINE void store_block(const View& view, std::ptrdiff_t k) const {
    if constexpr (memory == Memory::runs) {
      typename View::Object objects[L];
      Pack<T> run[R * C];
      view.objects(k, L, objects);
      ZELM_UNROLL for (int i = 0; i < R; ++i) { ZELM_UNROLL for (int j = 0; j < C; ++j) run[i * C + j] = e[i][j]; }
      store_row(run, objects, [](int) { return 0; });
    } else {
      store<memory == Memory::lanes>(view, k, L);
    }
  }

  /// One object in every lane.
  template <class Object>
  ZELM_INLINE void splat(const Object& object) {
    ZELM_UNROLL for (int i = 0; i < R; ++i) {
      ZELM_UNROLL for (int j = 0; j < C; ++j) e[i][j] = Pack<T>::splat(object.element(i, j));
    }
  }

  /// Element (i, j) of the object in lane l: for what goes element by element.
  T at(int l, int i, int j) const {
    alignas(16) T lanes[L];
    e[i][j].store(lanes);
    return lanes[l];
  }

 private:
  template <class Object>
  ZELM_INLINE void load_run(const Object* objects) {
    Pack<T> run[R * C];
    load_row(run, objects, [](int) { return 0; });
    ZELM_UNROLL for (int i = 0; i < R; ++i) { ZELM_UNROLL for (int j = 0; j < C; ++j) e[i][j] = run[i * C + j]; }
  }

  template <class View>
  static constexpr bool packable = View::plain&& View::array&& R == 1 && C == 3;

  template <class View>
  __attribute__((noinline)) void store_some(const View& view, std::ptrdiff_t k, int valid) const {
    for (int l = 0; l < valid; ++l) {
      const auto object = view.object(k + l);
      for (int i = 0; i < R; ++i)
        for (int j = 0; j < C; ++j) zelm::store(object.at(i, j), at(l, i, j));
    }
  }
};

}  // namespace zelm
