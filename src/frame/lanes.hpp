// lanes.hpp: several objects at once. Lane l of every register belongs to object k + l of an array; each lane does what one
// object alone would do, in the same order, so its bits are the same. What is left at the end of an array fills the spare lanes
// with its last object, and only the valid ones are stored.
#pragma once
#include <algorithm>

#include "frame/views.hpp"

namespace zelm {

template <class T, int R, int C>
struct Lanes {
  Pack<T> e[R][C];
};

/// Gives body(l, row of the object in lane l) for L rows of N elements, from N registers whose lanes are objects.
template <int N, class T, class Body>
ZELM_INLINE void for_each_lane_row(const Pack<T> (&e)[N], Body body) {
  constexpr int L = Pack<T>::lanes;
  Row<T, N> rows[L];
  ZELM_UNROLL for (int j = 0; j < N; j += L) {
    Pack<T> tile[L];
    ZELM_UNROLL for (int l = 0; l < L; ++l) tile[l] = j + l < N ? e[j + l < N ? j + l : 0] : Pack<T>::zero();
    transpose(tile);
    ZELM_UNROLL for (int l = 0; l < L; ++l) rows[l].pack[j / L] = tile[l];
  }
  ZELM_UNROLL for (int l = 0; l < L; ++l) body(l, rows[l]);
}

/// The other way: row_of(l) is the row of the object in lane l.
template <int N, class T, class RowOf>
ZELM_INLINE void to_lanes(Pack<T> (&e)[N], RowOf row_of) {
  constexpr int L = Pack<T>::lanes;
  Row<T, N> rows[L];
  ZELM_UNROLL for (int l = 0; l < L; ++l) rows[l] = row_of(l);
  ZELM_UNROLL for (int j = 0; j < N; j += L) {
    Pack<T> tile[L];
    ZELM_UNROLL for (int l = 0; l < L; ++l) tile[l] = rows[l].pack[j / L];
    transpose(tile);
    ZELM_UNROLL for (int l = 0; l < L; ++l)
      if (j + l < N) e[j + l < N ? j + l : 0] = tile[l];
  }
}

/// Elements of objects k, ..., k + valid - 1.
template <int R, int C, class View>
ZELM_INLINE void load_lanes(Lanes<typename View::T, R, C>& to, const View& view, std::ptrdiff_t k, int valid) {
  constexpr int L = Pack<typename View::T>::lanes;
  if (view.interleaved() && valid == L) {
    const auto first = view.object(k);
    ZELM_UNROLL for (int i = 0; i < R; ++i) {
      ZELM_UNROLL for (int j = 0; j < C; ++j) to.e[i][j] = Pack<typename View::T>::load(first.at(i, j));
    }
    return;
  }
  typename View::Object objects[L];
  ZELM_UNROLL for (int l = 0; l < L; ++l) objects[l] = view.object(k + std::min(l, valid - 1));
  ZELM_UNROLL for (int i = 0; i < R; ++i) to_lanes<C>(to.e[i], [&](int l) { return objects[l].template row<C>(i); });
}

template <int R, int C, class View>
ZELM_INLINE void store_lanes(const Lanes<typename View::T, R, C>& from, const View& view, std::ptrdiff_t k, int valid) {
  if (view.interleaved() && valid == Pack<typename View::T>::lanes) {
    const auto first = view.object(k);
    ZELM_UNROLL for (int i = 0; i < R; ++i) {
      ZELM_UNROLL for (int j = 0; j < C; ++j) from.e[i][j].store(first.at(i, j));
    }
    return;
  }
  ZELM_UNROLL for (int i = 0; i < R; ++i)
    for_each_lane_row<C>(from.e[i], [&](int l, const auto& row) {
      if (l < valid) view.object(k + l).template set_row<C>(i, row);
    });
}

}  // namespace zelm
