// rivals/det_invert.cpp: determinants and inverses of tight matrices.
#include <Eigen/LU>
#include <cmath>
#include <utility>

#include "rivals/eigen_types.hpp"
#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

constexpr auto eigen_det = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    at[1].of<T>()[k] = Eigen::Map<const Matrix<T, N>>(at[0].of<T>() + k * N * N).determinant();
};

/// Elimination with partial pivoting.
template <int N, class T>
T plain_det_one(const T* __restrict source) {
  if constexpr (N == 3) {
    const T* const a = source;
    return a[0] * (a[4] * a[8] - a[5] * a[7]) - a[1] * (a[3] * a[8] - a[5] * a[6]) + a[2] * (a[3] * a[7] - a[4] * a[6]);
  }
  T a[N][N], det = 1;
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) a[i][j] = source[i * N + j];
  for (int k = 0; k < N; ++k) {
    int r = k;
    for (int i = k + 1; i < N; ++i)
      if (std::abs(a[i][k]) > std::abs(a[r][k])) r = i;
    if (a[r][k] == 0) return 0;
    if (r != k) {
      std::swap(a[r], a[k]);
      det = -det;
    }
    det *= a[k][k];
    const T inverse = 1 / a[k][k];
    for (int i = k + 1; i < N; ++i) {
      const T m = a[i][k] * inverse;
      for (int j = k + 1; j < N; ++j) a[i][j] -= m * a[k][j];
    }
  }
  return det;
}

constexpr auto plain_det = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k) at[1].of<T>()[k] = plain_det_one<N>(at[0].of<T>() + k * N * N);
};

constexpr auto eigen_invert = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using M = Matrix<T, N>;
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    Eigen::Map<M>(at[1].of<T>() + k * N * N) = Eigen::Map<const M>(at[0].of<T>() + k * N * N).inverse();
};

/// Gauss-Jordan elimination in place with partial pivoting; false if a column has no pivot.
template <int N, class T>
bool plain_invert_one(const T* __restrict source, T* __restrict inverse) {
  T a[N][N];
  int from[N];
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) a[i][j] = source[i * N + j];
  for (int k = 0; k < N; ++k) {
    int r = k;
    for (int i = k + 1; i < N; ++i)
      if (std::abs(a[i][k]) > std::abs(a[r][k])) r = i;
    if (a[r][k] == 0) return false;
    from[k] = r;
    if (r != k) std::swap(a[r], a[k]);
    const T p = 1 / a[k][k];
    a[k][k] = 1;
    for (int j = 0; j < N; ++j) a[k][j] *= p;
    for (int i = 0; i < N; ++i) {
      if (i == k) continue;
      const T m = a[i][k];
      a[i][k] = 0;
      for (int j = 0; j < N; ++j) a[i][j] -= m * a[k][j];
    }
  }
  for (int k = N - 1; k >= 0; --k)
    for (int i = 0; i < N; ++i) std::swap(a[i][k], a[i][from[k]]);
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) inverse[i * N + j] = a[i][j];
  return true;
}

constexpr auto plain_invert = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    if (!plain_invert_one<N>(at[0].of<T>() + k * N * N, at[1].of<T>() + k * N * N)) return;
};

/// Set::call: the same object again and again.
template <auto each>
constexpr auto one = []<class T, int N>(const Array* at, std::ptrdiff_t, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    each.template operator()<T, N>(at, 0, 1);
    asm volatile("" ::: "memory");
  }
};

const bool all = enroll<3, 4, 5, 6>("Det_ma", "Eigen", eigen_det) && enroll<3, 4, 5, 6>("Det_ma", "plain", plain_det) &&
                 enroll<3, 4, 5, 6>("Invert_ma", "Eigen", eigen_invert) &&
                 enroll<3, 4, 5, 6>("Invert_ma", "plain", plain_invert) &&
                 enroll<3, 4>("Invert_m", "Eigen", one<eigen_invert>) && enroll<3, 4>("Invert_m", "plain", one<plain_invert>);

}  // namespace
}  // namespace zelm::bench::rivals
