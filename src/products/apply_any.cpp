// apply_any.cpp: products of contiguous elements in blocks of destination elements.
#include "products/apply_any.hpp"

#include <algorithm>
#include <cstdint>

namespace zelm::products::apply {
namespace {

/// The elements k that are summed in lanes; those before go to lane 0, those behind follow one by one.
struct Packed {
  int begin, end;
};

/// From the first multiple of 16 bytes on, as far as whole steps go. An address that is no multiple of the element size never
/// reaches one.
template <class T>
Packed from_alignment(const T* x, int step, int length) {
  const auto past = reinterpret_cast<std::uintptr_t>(x) % 16;
  if (past % sizeof(T) != 0) return {0, 0};
  const int begin = std::min(int((16 - past) % 16 / sizeof(T)), length);
  return {begin, begin + (length - begin) / step * step};
}

/// S packs of partial sums become one.
template <int S, class V>
ZELM_INLINE V joined(const V* part) {
  if constexpr (S == 1) return part[0];
  else if constexpr (S == 2) return part[0] + part[1];
  else return (part[0] + part[1]) + (part[2] + part[3]);
}

/// R rows of A with x, in steps of S packs.
template <int R, int S, class T>
ZELM_INLINE void rows_with(const T* a, Bytes row_stride, const T* x, T* d, Packed packed, int length) {
  using P = Pack<T>;
  constexpr int L = P::lanes;
  const T* row[R];
  P part[R][S];
  ZELM_UNROLL for (int r = 0; r < R; ++r) {
    row[r] = moved(a, r * row_stride);
    ZELM_UNROLL for (int s = 0; s < S; ++s) part[r][s] = P::zero();
  }
  int k = 0;
  ZELM_AS_IT_STANDS for (; k < packed.begin; ++k) {
    const P first = P::template load_first<1>(x + k);
    ZELM_UNROLL for (int r = 0; r < R; ++r) part[r][0] = part[r][0] + P::template load_first<1>(row[r] + k) * first;
  }
  ZELM_AS_IT_STANDS for (; k < packed.end; k += S * L) {
    ZELM_UNROLL for (int s = 0; s < S; ++s) {
      const P factor = P::load(x + k + s * L);
      ZELM_UNROLL for (int r = 0; r < R; ++r) part[r][s] = part[r][s] + P::load(row[r] + k + s * L) * factor;
    }
  }
  P whole[R];
  ZELM_UNROLL for (int r = 0; r < R; ++r) whole[r] = joined<S>(part[r]);
  if constexpr (R % L == 0) {
    P sum[R / L];
    ZELM_UNROLL for (int q = 0; q < R / L; ++q) {
      P some[L];
      ZELM_UNROLL for (int l = 0; l < L; ++l) some[l] = whole[q * L + l];
      sum[q] = sums_of_lanes(some);
    }
    ZELM_AS_IT_STANDS for (; k < length; ++k) {
      const P factor = P::splat(load(x + k));
      ZELM_UNROLL for (int q = 0; q < R / L; ++q) sum[q] =
          sum[q] + P::template gather<L>([&](int l) { return row[q * L + l] + k; }) * factor;
    }
    ZELM_UNROLL for (int q = 0; q < R / L; ++q) sum[q].store(d + q * L);
  } else {
    T sum = sum_of_lanes(whole[0]);
    for (; k < length; ++k) sum += load(row[0] + k) * load(x + k);
    store(d, sum);
  }
}

/// R columns of A with x. Here the lanes are destination elements, and a partial sum for each phase of k stands for a lane.
template <int R, int S, class T>
ZELM_INLINE void columns_with(const T* a, Bytes row_stride, const T* x, T* d, Packed packed, int length) {
  using V = Row<T, R>;
  constexpr int L = Pack<T>::lanes, packs = V::packs;
  Pack<T> part[packs][L][S];
  ZELM_UNROLL for (int q = 0; q < packs; ++q) {
    ZELM_UNROLL for (int l = 0; l < L; ++l) { ZELM_UNROLL for (int s = 0; s < S; ++s) part[q][l][s] = Pack<T>::zero(); }
  }
  const auto add = [&](int k, auto sum_of) ZELM_INLINE_LAMBDA {
    const V row = V::load(moved(a, k * row_stride));
    const Pack<T> factor = Pack<T>::splat(load(x + k));
    ZELM_UNROLL for (int q = 0; q < packs; ++q) {
      Pack<T>& sum = sum_of(q);
      sum = sum + row.pack[q] * factor;
    }
  };
  int k = 0;
  ZELM_AS_IT_STANDS for (; k < packed.begin; ++k) add(
      k, [&](int q) -> auto& { return part[q][0][0]; });
  ZELM_AS_IT_STANDS for (; k < packed.end; k += S * L) {
    ZELM_UNROLL for (int s = 0; s < S; ++s) {
      ZELM_UNROLL for (int l = 0; l < L; ++l) add(
          k + s * L + l, [&](int q) -> auto& { return part[q][l][s]; });
    }
  }
  V sum;
  ZELM_UNROLL for (int q = 0; q < packs; ++q) {
    Pack<T> lane[L];
    ZELM_UNROLL for (int l = 0; l < L; ++l) lane[l] = joined<S>(part[q][l]);
    if constexpr (L == 4) sum.pack[q] = (lane[0] + lane[2]) + (lane[1] + lane[3]);
    else sum.pack[q] = lane[0] + lane[1];
  }
  ZELM_AS_IT_STANDS for (; k < length; ++k) add(
      k, [&](int q) -> auto& { return sum.pack[q]; });
  sum.store(d);
}

template <bool turned, int R, int S, class T>
__attribute__((noinline)) void elements_with(const T* a, Bytes row_stride, const T* x, T* d, Packed packed, int length) {
  if constexpr (turned) columns_with<R, S>(a, row_stride, x, d, packed, length);
  else rows_with<R, S>(a, row_stride, x, d, packed, length);
}

}  // namespace

template <bool turned, class T>
void in_blocks(const T* a, Bytes row_stride, const T* x, T* d, int rows, int length) {
  constexpr int L = Pack<T>::lanes;
  const Bytes next = turned ? Bytes(sizeof(T)) : row_stride;  // from the sum of one destination element to that of the next
  Packed packed = from_alignment(x, L, length);
  int i = 0;
  for (; i + 8 <= rows; i += 8) elements_with<turned, 8, 1>(moved(a, i * next), row_stride, x, d + i, packed, length);
  if (rows - i >= 4) {
    elements_with<turned, 4, 1>(moved(a, i * next), row_stride, x, d + i, packed, length);
    for (i += 4; i < rows; ++i) elements_with<turned, 1, 1>(moved(a, i * next), row_stride, x, d + i, packed, length);
  }
  packed = {0, length / 8 * 8};
  for (; i < rows; ++i) elements_with<turned, 1, 8 / L>(moved(a, i * next), row_stride, x, d + i, packed, length);
}
template void in_blocks<false>(const float*, Bytes, const float*, float*, int, int);
template void in_blocks<true>(const float*, Bytes, const float*, float*, int, int);
template void in_blocks<false>(const double*, Bytes, const double*, double*, int, int);
template void in_blocks<true>(const double*, Bytes, const double*, double*, int, int);

void in_rows(const float* a, Bytes row_stride, const float* x, float* d, int rows, int length) {
  const Packed packed = from_alignment(x, 8, length);
  int i = 0;
  for (; i + 4 <= rows; i += 4) elements_with<false, 4, 2>(moved(a, i * row_stride), row_stride, x, d + i, packed, length);
  for (; i < rows; ++i) elements_with<false, 1, 2>(moved(a, i * row_stride), row_stride, x, d + i, packed, length);
}

}  // namespace zelm::products::apply
