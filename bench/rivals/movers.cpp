// rivals/movers.cpp: transposes, copies, packed blocks, identities. Operands: source, destination.
#include <Eigen/Core>
#include <algorithm>

#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

template <class T, int Rows, int Columns>
using Matrix = Eigen::Matrix<T, Rows, Columns, Eigen::RowMajor>;

/// What a copy takes of an object and what it makes of it: Rows x Columns of stored objects of StoredRows x StoredColumns.
template <int R, int C, int SR, int SC, bool T = false>
struct Shape {
  static constexpr int rows = R, columns = C, stored_rows = SR, stored_columns = SC;
  static constexpr bool transposed = T;
};
template <int N>
using Transposed = Shape<N, N, N, N, true>;
template <int N>
using PaddedRows = Shape<N, N, N, N + 1>;
template <int N>
using PaddedVector = Shape<1, N, 1, N + 1>;
template <int N>
using Corner = Shape<N, N, N + 1, N + 1>;
template <int N>
using TransposedCorner = Shape<N, N, N + 1, N + 1, true>;

template <template <int> class Of>
constexpr auto eigen_copy = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using S = Of<N>;
  constexpr std::ptrdiff_t from = S::stored_rows * S::stored_columns, to = S::rows * S::columns;
  for (std::ptrdiff_t k = first; k < first + count; ++k) {
    const Eigen::Map<const Matrix<T, S::stored_rows, S::stored_columns>> s(at[0].of<T>() + k * from);
    Eigen::Map<Matrix<T, S::rows, S::columns>> d(at[1].of<T>() + k * to);
    const auto taken = s.template topLeftCorner<S::rows, S::columns>();
    if constexpr (S::transposed) d = taken.transpose();
    else d = taken;
  }
};

template <template <int> class Of>
constexpr auto plain_copy = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using S = Of<N>;
  constexpr int from = S::stored_rows * S::stored_columns, row = S::stored_columns, to = S::rows * S::columns;
  const T* __restrict s = at[0].of<T>() + first * from;
  T* __restrict d = at[1].of<T>() + first * to;
  for (std::ptrdiff_t k = 0; k < count; ++k, s += from, d += to)
    for (int i = 0; i < S::rows; ++i)
      for (int j = 0; j < S::columns; ++j) d[i * S::columns + j] = S::transposed ? s[j * row + i] : s[i * row + j];
};

constexpr auto eigen_large_transpose = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using M = Matrix<T, Eigen::Dynamic, Eigen::Dynamic>;
  for (std::ptrdiff_t k = first * N * N; k < (first + count) * N * N; k += N * N)
    Eigen::Map<M>(at[1].of<T>() + k, N, N) = Eigen::Map<const M>(at[0].of<T>() + k, N, N).transpose();
};

/// In tiles that are lines on both sides.
constexpr auto plain_large_transpose = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  constexpr int tile = 64 / sizeof(T);
  for (std::ptrdiff_t k = first * N * N; k < (first + count) * N * N; k += N * N) {
    const T* __restrict const s = at[0].of<T>() + k;
    T* __restrict const d = at[1].of<T>() + k;
    for (int top = 0; top < N; top += tile)
      for (int left = 0; left < N; left += tile)
        for (int j = left; j < std::min(left + tile, N); ++j)
          for (int i = top; i < std::min(top + tile, N); ++i) d[j * N + i] = s[i * N + j];
  }
};

// Operand of LoadIdentity_ma: destination.

constexpr auto eigen_identity = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first * N * N; k < (first + count) * N * N; k += N * N)
    Eigen::Map<Matrix<T, N, N>>(at[0].of<T>() + k).setIdentity();
};

constexpr auto plain_identity = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  T* __restrict d = at[0].of<T>() + first * N * N;
  for (std::ptrdiff_t k = 0; k < count; ++k, d += N * N)
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j) d[i * N + j] = i == j;
};

// Between an array of structures and a structure of arrays.

template <class T, int Size>
struct Planes {
  explicit Planes(const Array& a) { std::copy_n(a.table_of<T>(), Size, plane); }
  T* plane[Size];
};

constexpr auto to_planes = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const T* __restrict const s = at[0].of<T>();
  const Planes<T, N * N> d(at[1]);
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    for (int e = 0; e < N * N; ++e) d.plane[e][k] = s[k * N * N + e];
};

constexpr auto from_planes = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const Planes<T, N * N> s(at[0]);
  T* __restrict const d = at[1].of<T>();
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    for (int e = 0; e < N * N; ++e) d[k * N * N + e] = s.plane[e][k];
};

/// As many objects as fit the first-level cache, plane by plane.
constexpr std::ptrdiff_t kChunk = 64;

constexpr auto to_planes_in_turn = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; k += kChunk)
    for (int e = 0; e < N * N; ++e) {
      const T* __restrict const s = at[0].of<T>() + e;
      T* __restrict const d = at[1].table_of<T>()[e];
      for (std::ptrdiff_t l = k; l < std::min(k + kChunk, first + count); ++l) d[l] = s[l * N * N];
    }
};

constexpr auto from_planes_in_turn = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; k += kChunk)
    for (int e = 0; e < N * N; ++e) {
      const T* __restrict const s = at[0].table_of<T>()[e];
      T* __restrict const d = at[1].of<T>() + e;
      for (std::ptrdiff_t l = k; l < std::min(k + kChunk, first + count); ++l) d[l * N * N] = s[l];
    }
};

const bool all = enroll<3, 4, 5, 6>("Transpose_ma", "Eigen", eigen_copy<Transposed>) &&
                 enroll<3, 4, 5, 6>("Transpose_ma", "plain", plain_copy<Transposed>) &&
                 enroll<1000>("Transpose_m", "Eigen", eigen_large_transpose) &&
                 enroll<1000>("Transpose_m", "plain", plain_large_transpose) &&
                 enroll<3, 4, 5, 6>("LoadIdentity_ma", "Eigen", eigen_identity) &&
                 enroll<3, 4, 5, 6>("LoadIdentity_ma", "plain", plain_identity) &&
                 enroll<3, 4, 5, 6>("Copy_ma_SS", "Eigen", eigen_copy<PaddedRows>) &&
                 enroll<3, 4, 5, 6>("Copy_ma_SS", "plain", plain_copy<PaddedRows>) &&
                 enroll<3, 4, 5, 6>("Copy_ma_SP", "plain", to_planes) &&
                 enroll<3, 4, 5, 6>("Copy_ma_SP", "by planes", to_planes_in_turn) &&
                 enroll<3, 4, 5, 6>("Copy_ma_PS", "plain", from_planes) &&
                 enroll<3, 4, 5, 6>("Copy_ma_PS", "by planes", from_planes_in_turn) &&
                 enroll<3, 4, 16, 100>("Copy_va_SS", "Eigen", eigen_copy<PaddedVector>) &&
                 enroll<3, 4, 16, 100>("Copy_va_SS", "plain", plain_copy<PaddedVector>) &&
                 enroll<3, 4, 5, 6>("Extract_ma", "Eigen", eigen_copy<Corner>) &&
                 enroll<3, 4, 5, 6>("Extract_ma", "plain", plain_copy<Corner>) &&
                 enroll<3, 4, 5, 6>("Extract_ta", "Eigen", eigen_copy<TransposedCorner>) &&
                 enroll<3, 4, 5, 6>("Extract_ta", "plain", plain_copy<TransposedCorner>);

}  // namespace
}  // namespace zelm::bench::rivals
