// row.hpp: Row<T, N>, N consecutive elements in as few registers as it takes, and Block<T, R, C>, R such rows.
// The lanes behind the last element hold 0 after a load and are never stored.
#pragma once
#include "simd/pack.hpp"

namespace zelm {

template <class T, int N>
struct Row {
  using P = Pack<T>;
  static constexpr int full = N / P::lanes, rest = N % P::lanes, packs = full + (rest > 0);
  P pack[packs];

  static ZELM_INLINE Row load(const T* p) {
    Row r;
    ZELM_UNROLL for (int q = 0; q < full; ++q) r.pack[q] = P::load(p + q * P::lanes);
    if constexpr (rest > 0) r.pack[full] = P::template load_first<rest>(p + full * P::lanes);
    return r;
  }
  static ZELM_INLINE Row splat(T x) {
    Row r;
    ZELM_UNROLL for (int q = 0; q < packs; ++q) r.pack[q] = P::splat(x);
    return r;
  }
  ZELM_INLINE void store(T* p) const {
    ZELM_UNROLL for (int q = 0; q < full; ++q) pack[q].store(p + q * P::lanes);
    if constexpr (rest > 0) pack[full].template store_first<rest>(p + full * P::lanes);
  }
  /// From and to elements that lie apart; at(j) is the address of element j.
  template <class Address>
  static ZELM_INLINE Row gather(Address at) {
    Row r;
    ZELM_UNROLL for (int q = 0; q < full; ++q) r.pack[q] =
        P::template gather<P::lanes>([&](int l) { return at(q * P::lanes + l); });
    if constexpr (rest > 0) r.pack[full] = P::template gather<rest>([&](int l) { return at(full * P::lanes + l); });
    return r;
  }
  template <class Address>
  ZELM_INLINE void scatter(Address at) const {
    ZELM_UNROLL for (int q = 0; q < full; ++q) pack[q].template scatter<P::lanes>([&](int l) { return at(q * P::lanes + l); });
    if constexpr (rest > 0) pack[full].template scatter<rest>([&](int l) { return at(full * P::lanes + l); });
  }
};

struct Plus {
  template <class V>
  ZELM_INLINE V operator()(V a, V b) const {
    return a + b;
  }
};
struct Times {
  template <class V>
  ZELM_INLINE V operator()(V a, V b) const {
    return a * b;
  }
};

template <class Op, class T, int N>
ZELM_INLINE Row<T, N> lanewise(Op op, Row<T, N> a, Row<T, N> b) {
  ZELM_UNROLL for (int q = 0; q < Row<T, N>::packs; ++q) a.pack[q] = op(a.pack[q], b.pack[q]);
  return a;
}

template <class T, int R, int C>
struct Block {
  static constexpr bool plain = true, turned = false;  // as an object of contiguous rows
  Row<T, C> rows[R];
  template <int>
  ZELM_INLINE Row<T, C> row(int i) const {
    return rows[i];
  }
};

/// Transposes in tiles of lanes x lanes; rows missing in the last tile count as 0.
template <class T, int R, int C>
ZELM_INLINE Block<T, C, R> transposed(const Block<T, R, C>& s) {
  constexpr int L = Pack<T>::lanes;
  Block<T, C, R> d;
  ZELM_UNROLL for (int i = 0; i < R; i += L) {
    ZELM_UNROLL for (int j = 0; j < C; j += L) {
      Pack<T> tile[L];
      ZELM_UNROLL for (int l = 0; l < L; ++l) tile[l] = i + l < R ? s.rows[i + l < R ? i + l : 0].pack[j / L] : Pack<T>::zero();
      transpose(tile);
      ZELM_UNROLL for (int l = 0; l < L; ++l) if (j + l < C) d.rows[j + l < C ? j + l : 0].pack[i / L] = tile[l];
    }
  }
  return d;
}

}  // namespace zelm
