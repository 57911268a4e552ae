// rivals/lu.cpp: LU decomposition with partial pivoting, and substitution. The factors lie with their rows in pivot
// order beside the index array: row i of L U is row index[i] of the source.
#include <Eigen/LU>
#include <cmath>
#include <utility>

#include "rivals/eigen_types.hpp"
#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

// Operands of LUDecomp_ma: source, index, factors.

constexpr auto eigen_decompose = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using M = Matrix<T, N>;
  for (std::ptrdiff_t k = first; k < first + count; ++k) {
    const Eigen::PartialPivLU<M> lu(Eigen::Map<const M>(at[0].of<T>() + k * N * N));
    Eigen::Map<M>(at[2].of<T>() + k * N * N) = lu.matrixLU();
    int* const index = at[1].of<int>() + k * N;
    for (int i = 0; i < N; ++i) index[lu.permutationP().indices()[i]] = i;
  }
};

/// false if a column has no pivot.
template <int N, class T>
bool plain_decompose_one(const T* __restrict source, int* __restrict index, T* __restrict factors) {
  T a[N][N];
  int p[N];
  for (int i = 0; i < N; ++i) {
    p[i] = i;
    for (int j = 0; j < N; ++j) a[i][j] = source[i * N + j];
  }
  for (int k = 0; k < N; ++k) {
    int r = k;
    for (int i = k + 1; i < N; ++i)
      if (std::abs(a[i][k]) > std::abs(a[r][k])) r = i;
    if (a[r][k] == 0) return false;
    if (r != k) {
      std::swap(p[r], p[k]);
      std::swap(a[r], a[k]);
    }
    const T inverse = 1 / a[k][k];
    for (int i = k + 1; i < N; ++i) {
      a[i][k] *= inverse;
      for (int j = k + 1; j < N; ++j) a[i][j] -= a[i][k] * a[k][j];
    }
  }
  for (int i = 0; i < N; ++i) {
    index[i] = p[i];
    for (int j = 0; j < N; ++j) factors[i * N + j] = a[i][j];
  }
  return true;
}

constexpr auto plain_decompose = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    if (!plain_decompose_one<N>(at[0].of<T>() + k * N * N, at[1].of<int>() + k * N, at[2].of<T>() + k * N * N)) return;
};

// Operands of LUBackSubst: zelm's factors, index, right-hand sides, solutions, factors with their rows in pivot order.

/// What PartialPivLU::solve does, with factors that lie in an array.
template <int N, class T, class LU>
void eigen_solve_one(const LU& lu, const int* index, const T* b, T* solution) {
  Vector<T, N> x;
  for (int i = 0; i < N; ++i) x[i] = b[index[i]];
  lu.template triangularView<Eigen::UnitLower>().solveInPlace(x);
  lu.template triangularView<Eigen::Upper>().solveInPlace(x);
  Eigen::Map<Vector<T, N>>{solution} = x;
}

constexpr auto eigen_solve_each = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    eigen_solve_one<N>(Eigen::Map<const Matrix<T, N>>(at[4].of<T>() + k * N * N), at[1].of<int>() + k * N,
                       at[2].of<T>() + k * N, at[3].of<T>() + k * N);
};

template <int N, class T>
void plain_solve_one(const T* __restrict a, const int* __restrict index, const T* __restrict b, T* __restrict solution) {
  T x[N];
  for (int i = 0; i < N; ++i) {
    x[i] = b[index[i]];
    for (int j = 0; j < i; ++j) x[i] -= a[i * N + j] * x[j];
  }
  for (int i = N - 1; i >= 0; --i) {
    for (int j = i + 1; j < N; ++j) x[i] -= a[i * N + j] * x[j];
    x[i] /= a[i * N + i];
  }
  for (int i = 0; i < N; ++i) solution[i] = x[i];
}

constexpr auto plain_solve_each = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    plain_solve_one<N>(at[4].of<T>() + k * N * N, at[1].of<int>() + k * N, at[2].of<T>() + k * N, at[3].of<T>() + k * N);
};

constexpr auto eigen_solve_vectors = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const Matrix<T, N> lu = Eigen::Map<const Matrix<T, N>>(at[4].of<T>());
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    eigen_solve_one<N>(lu, at[1].of<int>(), at[2].of<T>() + k * N, at[3].of<T>() + k * N);
};

/// One matrix: its elements and the reciprocals of its pivots stay in registers.
template <int N, class T>
void plain_solve_many(const T* __restrict lu, const int* __restrict index, const T* __restrict b, T* __restrict solution,
                      std::ptrdiff_t count) {
  T a[N][N], inverse[N];
  int p[N];
  for (int i = 0; i < N; ++i) {
    p[i] = index[i];
    inverse[i] = 1 / lu[i * N + i];
    for (int j = 0; j < N; ++j) a[i][j] = lu[i * N + j];
  }
  for (std::ptrdiff_t k = 0; k < count * N; k += N) {
    T x[N];
    for (int i = 0; i < N; ++i) {
      x[i] = b[k + p[i]];
      for (int j = 0; j < i; ++j) x[i] -= a[i][j] * x[j];
    }
    for (int i = N - 1; i >= 0; --i) {
      for (int j = i + 1; j < N; ++j) x[i] -= a[i][j] * x[j];
      x[i] *= inverse[i];
    }
    for (int i = 0; i < N; ++i) solution[k + i] = x[i];
  }
}

constexpr auto plain_solve_vectors = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  plain_solve_many<N>(at[4].of<T>(), at[1].of<int>(), at[2].of<T>() + first * N, at[3].of<T>() + first * N, count);
};

const bool all = enroll<3, 4, 5, 6>("LUDecomp_ma", "Eigen", eigen_decompose) &&
                 enroll<3, 4, 5, 6>("LUDecomp_ma", "plain", plain_decompose) &&
                 enroll<3, 4, 5, 6>("LUBackSubst_mava", "Eigen", eigen_solve_each) &&
                 enroll<3, 4, 5, 6>("LUBackSubst_mava", "plain", plain_solve_each) &&
                 enroll<3, 4, 5, 6>("LUBackSubst_mva", "Eigen", eigen_solve_vectors) &&
                 enroll<3, 4, 5, 6>("LUBackSubst_mva", "plain", plain_solve_vectors);

}  // namespace
}  // namespace zelm::bench::rivals
