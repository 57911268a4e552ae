// rivals/reductions.cpp: dot and cross products, norms, traces. Operands: sources, results.
#include <Eigen/Core>
#include <Eigen/Geometry>
#include <cmath>

#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

template <class T, int N>
using Vector = Eigen::Map<const Eigen::Matrix<T, N, 1>>;
template <class T, int N>
using Square = Eigen::Map<const Eigen::Matrix<T, N, N, Eigen::RowMajor>>;

constexpr auto eigen_dot_pairs = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    at[2].of<T>()[k] = Vector<T, N>(at[0].of<T>() + k * N).dot(Vector<T, N>(at[1].of<T>() + k * N));
};

constexpr auto eigen_dot_one = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const Eigen::Matrix<T, N, 1> b = Vector<T, N>(at[1].of<T>());
  for (std::ptrdiff_t k = first; k < first + count; ++k) at[2].of<T>()[k] = Vector<T, N>(at[0].of<T>() + k * N).dot(b);
};

constexpr auto eigen_cross = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first * N; k < (first + count) * N; k += N)
    Eigen::Map<Eigen::Matrix<T, N, 1>>(at[2].of<T>() + k) =
        Vector<T, N>(at[0].of<T>() + k).cross(Vector<T, N>(at[1].of<T>() + k));
};

constexpr auto eigen_norm = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k) at[1].of<T>()[k] = Vector<T, N>(at[0].of<T>() + k * N).norm();
};

constexpr auto eigen_frobenius = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k) at[1].of<T>()[k] = Square<T, N>(at[0].of<T>() + k * N * N).norm();
};

constexpr auto eigen_trace = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k) at[1].of<T>()[k] = Square<T, N>(at[0].of<T>() + k * N * N).trace();
};

/// step: from object to object of the second vectors.
template <int N, int step, class T>
void plain_dots(const T* __restrict a, const T* __restrict b, T* __restrict d, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    T sum = 0;
    for (int j = 0; j < N; ++j) sum += a[k * N + j] * b[k * step + j];
    d[k] = sum;
  }
}

constexpr auto plain_dot_pairs = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  plain_dots<N, N>(at[0].of<T>() + first * N, at[1].of<T>() + first * N, at[2].of<T>() + first, count);
};

constexpr auto plain_dot_one = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  plain_dots<N, 0>(at[0].of<T>() + first * N, at[1].of<T>(), at[2].of<T>() + first, count);
};

constexpr auto plain_cross = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const T* __restrict const a = at[0].of<T>(), * __restrict const b = at[1].of<T>();
  T* __restrict const d = at[2].of<T>();
  for (std::ptrdiff_t k = first * N; k < (first + count) * N; k += N) {
    d[k] = a[k + 1] * b[k + 2] - a[k + 2] * b[k + 1];
    d[k + 1] = a[k + 2] * b[k] - a[k] * b[k + 2];
    d[k + 2] = a[k] * b[k + 1] - a[k + 1] * b[k];
  }
};

template <int size, class T>
void plain_norms(const T* __restrict a, T* __restrict d, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    T sum = 0;
    for (int e = 0; e < size; ++e) sum += a[k * size + e] * a[k * size + e];
    d[k] = std::sqrt(sum);
  }
}

constexpr auto plain_norm = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  plain_norms<N>(at[0].of<T>() + first * N, at[1].of<T>() + first, count);
};

constexpr auto plain_frobenius = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  plain_norms<N * N>(at[0].of<T>() + first * N * N, at[1].of<T>() + first, count);
};

constexpr auto plain_trace = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const T* __restrict const a = at[0].of<T>();
  T* __restrict const d = at[1].of<T>();
  for (std::ptrdiff_t k = first; k < first + count; ++k) {
    T sum = 0;
    for (int i = 0; i < N; ++i) sum += a[k * N * N + i * (N + 1)];
    d[k] = sum;
  }
};

const bool all = enroll<3, 4, 5, 6, 16, 100>("DotProduct_vava", "Eigen", eigen_dot_pairs) &&
                 enroll<3, 4, 5, 6, 16, 100>("DotProduct_vava", "plain", plain_dot_pairs) &&
                 enroll<3, 4, 5, 6, 16, 100>("DotProduct_vav", "Eigen", eigen_dot_one) &&
                 enroll<3, 4, 5, 6, 16, 100>("DotProduct_vav", "plain", plain_dot_one) &&
                 enroll<3>("CrossProduct_vava", "Eigen", eigen_cross) && enroll<3>("CrossProduct_vava", "plain", plain_cross) &&
                 enroll<3, 4, 5, 6, 16, 100>("L2Norm_va", "Eigen", eigen_norm) &&
                 enroll<3, 4, 5, 6, 16, 100>("L2Norm_va", "plain", plain_norm) &&
                 enroll<3, 4, 5, 6>("FrobNorm_ma", "Eigen", eigen_frobenius) &&
                 enroll<3, 4, 5, 6>("FrobNorm_ma", "plain", plain_frobenius) &&
                 enroll<3, 4, 5, 6>("Trace_ma", "Eigen", eigen_trace) && enroll<3, 4, 5, 6>("Trace_ma", "plain", plain_trace);

}  // namespace
}  // namespace zelm::bench::rivals
