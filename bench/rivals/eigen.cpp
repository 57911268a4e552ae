// rivals/eigen.cpp: Eigen's eigenvalue solvers on fixed-size types.
#include <Eigen/Eigenvalues>

#include "rivals/eigen_types.hpp"
#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

// Operands: source, values, vectors.

/// `direct`: in closed form, by the roots of the characteristic polynomial.
template <bool vectors, bool direct = false>
constexpr auto symmetric = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  constexpr int what = vectors ? Eigen::ComputeEigenvectors : Eigen::EigenvaluesOnly;
  Eigen::SelfAdjointEigenSolver<Matrix<T, N>> solver;
  for (std::ptrdiff_t k = first; k < first + count; ++k) {
    const Eigen::Map<const Matrix<T, N>> source(at[0].of<T>() + k * N * N);
    if constexpr (direct) solver.computeDirect(source, what);
    else solver.compute(source, what);
    Eigen::Map<Vector<T, N>>(at[1].of<T>() + k * N) = solver.eigenvalues();
    if constexpr (vectors) Eigen::Map<Matrix<T, N>>(at[2].of<T>() + k * N * N) = solver.eigenvectors();
  }
};

// Operands: source, real parts, imaginary parts, vectors: of a pair the real and the imaginary part.

template <bool vectors>
constexpr auto general = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  Eigen::EigenSolver<Matrix<T, N>> solver;
  for (std::ptrdiff_t k = first; k < first + count; ++k) {
    solver.compute(Eigen::Map<const Matrix<T, N>>(at[0].of<T>() + k * N * N), vectors);
    const auto& values = solver.eigenvalues();
    Eigen::Map<Vector<T, N>>(at[1].of<T>() + k * N) = values.real();
    Eigen::Map<Vector<T, N>>(at[2].of<T>() + k * N) = values.imag();
    if constexpr (vectors) {
      const auto x = solver.eigenvectors();
      Eigen::Map<Matrix<T, N>> to(at[3].of<T>() + k * N * N);
      for (int j = 0; j < N; ++j) {
        to.col(j) = x.col(j).real();
        if (values[j].imag() > 0) to.col(j + 1) = x.col(j).imag(), ++j;
      }
    }
  }
};

const bool all = enroll<3, 4, 5, 6, 10>("EigenValuesSym_ma", "Eigen", symmetric<false>) &&
                 enroll<3, 4, 5, 6, 10>("EigenValuesVectorsSym_ma", "Eigen", symmetric<true>) &&
                 enroll<3>("EigenValuesSym_ma", "computeDirect", symmetric<false, true>, true) &&
                 enroll<3>("EigenValuesVectorsSym_ma", "computeDirect", symmetric<true, true>, true) &&
                 enroll<3, 4, 5, 6, 10>("EigenValues_ma", "Eigen", general<false>) &&
                 enroll<3, 4, 5, 6, 10>("EigenValuesVectorsRight_ma", "Eigen", general<true>);

}  // namespace
}  // namespace zelm::bench::rivals
