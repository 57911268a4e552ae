// rivals/cholesky_qr.cpp: Cholesky and QR decompositions, and solution from their factors.
#include <Eigen/Cholesky>
#include <Eigen/QR>
#include <cmath>

#include "rivals/eigen_types.hpp"
#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

// Operands of CholeskyDecomp_ma: source, factor, with L's diagonal or its reciprocals.

constexpr auto eigen_cholesky = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using M = Matrix<T, N>;
  for (std::ptrdiff_t k = first; k < first + count; ++k) {
    const Eigen::LLT<M> llt(Eigen::Map<const M>(at[0].of<T>() + k * N * N));
    if (llt.info() != Eigen::Success) return;
    Eigen::Map<M>(at[1].of<T>() + k * N * N) = llt.matrixLLT();
  }
};

template <int N, class T>
bool plain_cholesky_one(const T* __restrict source, T* __restrict factor) {
  T a[N][N];
  for (int i = 0; i < N; ++i) {
    for (int j = 0; j < i; ++j) {
      T s = source[i * N + j];
      for (int k = 0; k < j; ++k) s -= a[i][k] * a[j][k];
      a[i][j] = s * a[j][j];
    }
    T s = source[i * N + i];
    for (int k = 0; k < i; ++k) s -= a[i][k] * a[i][k];
    if (!(s > 0)) return false;
    a[i][i] = 1 / std::sqrt(s);
  }
  for (int i = 0; i < N; ++i)
    for (int j = 0; j <= i; ++j) factor[i * N + j] = a[i][j];
  return true;
}

constexpr auto plain_cholesky = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    if (!plain_cholesky_one<N>(at[0].of<T>() + k * N * N, at[1].of<T>() + k * N * N)) return;
};

// Operands of CholeskyBackSubst: factors with reciprocals, right-hand sides, solutions, factors with L's own diagonal.

/// What LLT::solve does, with a factor that lies in an array.
template <int N, class T, class L>
void eigen_cholesky_solve_one(const L& factor, const T* b, T* solution) {
  Vector<T, N> x = Eigen::Map<const Vector<T, N>>(b);
  factor.template triangularView<Eigen::Lower>().solveInPlace(x);
  factor.adjoint().template triangularView<Eigen::Upper>().solveInPlace(x);
  Eigen::Map<Vector<T, N>>{solution} = x;
}

constexpr auto eigen_cholesky_solve_each = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    eigen_cholesky_solve_one<N>(Eigen::Map<const Matrix<T, N>>(at[3].of<T>() + k * N * N), at[1].of<T>() + k * N,
                                at[2].of<T>() + k * N);
};

constexpr auto eigen_cholesky_solve_vectors = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const Matrix<T, N> factor = Eigen::Map<const Matrix<T, N>>(at[3].of<T>());
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    eigen_cholesky_solve_one<N>(factor, at[1].of<T>() + k * N, at[2].of<T>() + k * N);
};

template <int N, class T>
void plain_cholesky_solve_one(const T* __restrict a, const T* __restrict b, T* __restrict solution) {
  T x[N];
  for (int i = 0; i < N; ++i) {
    x[i] = b[i];
    for (int j = 0; j < i; ++j) x[i] -= a[i * N + j] * x[j];
    x[i] *= a[i * N + i];
  }
  for (int i = N - 1; i >= 0; --i) {
    for (int j = i + 1; j < N; ++j) x[i] -= a[j * N + i] * x[j];
    x[i] *= a[i * N + i];
  }
  for (int i = 0; i < N; ++i) solution[i] = x[i];
}

constexpr auto plain_cholesky_solve_each = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    plain_cholesky_solve_one<N>(at[0].of<T>() + k * N * N, at[1].of<T>() + k * N, at[2].of<T>() + k * N);
};

constexpr auto plain_cholesky_solve_vectors = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  T a[N * N];
  for (int e = 0; e < N * N; ++e) a[e] = at[0].of<T>()[e];
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    plain_cholesky_solve_one<N>(a, at[1].of<T>() + k * N, at[2].of<T>() + k * N);
};

// Operands of QRDecomp_ma: source, factors.

constexpr auto eigen_qr = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using M = Matrix<T, N>;
  for (std::ptrdiff_t k = first; k < first + count; ++k) {
    const Eigen::HouseholderQR<M> qr(Eigen::Map<const M>(at[0].of<T>() + k * N * N));
    Eigen::Map<M>(at[1].of<T>() + k * N * N) = qr.matrixQR();
  }
};

template <int N, class T>
bool plain_qr_one(const T* __restrict source, T* __restrict factors) {
  T a[N][N];
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) a[i][j] = source[i * N + j];
  for (int k = 0; k < N - 1; ++k) {
    T tail = 0;
    for (int i = k + 1; i < N; ++i) tail += a[i][k] * a[i][k];
    const T square = a[k][k] * a[k][k] + tail;
    if (square == 0) return false;
    const T root = a[k][k] > 0 ? std::sqrt(square) : -std::sqrt(square), u = 1 / (a[k][k] + root);
    const T beta = 2 / (1 + tail * u * u);
    for (int i = k + 1; i < N; ++i) a[i][k] *= u;
    a[k][k] = -root;
    for (int j = k + 1; j < N; ++j) {
      T p = a[k][j];
      for (int i = k + 1; i < N; ++i) p += a[i][j] * a[i][k];
      p *= beta;
      a[k][j] -= p;
      for (int i = k + 1; i < N; ++i) a[i][j] -= a[i][k] * p;
    }
  }
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) factors[i * N + j] = a[i][j];
  return true;
}

constexpr auto plain_qr = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    if (!plain_qr_one<N>(at[0].of<T>() + k * N * N, at[1].of<T>() + k * N * N)) return;
};

// Operands of QRBackSubst: factors, right-hand sides, solutions, 2 / (v . v) of each reflection.

/// What HouseholderQR::solve does, with factors that lie in an array.
template <int N, class T, class F>
void eigen_qr_solve_one(const F& qr, const Vector<T, N>& coefficients, const T* b, T* solution) {
  Vector<T, N> x = Eigen::Map<const Vector<T, N>>(b);
  x.applyOnTheLeft(Eigen::householderSequence(qr, coefficients).adjoint());
  qr.template triangularView<Eigen::Upper>().solveInPlace(x);
  Eigen::Map<Vector<T, N>>{solution} = x;
}

constexpr auto eigen_qr_solve_each = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    eigen_qr_solve_one<N, T>(Matrix<T, N>(Eigen::Map<const Matrix<T, N>>(at[0].of<T>() + k * N * N)),
                             Eigen::Map<const Vector<T, N>>(at[3].of<T>() + k * N), at[1].of<T>() + k * N,
                             at[2].of<T>() + k * N);
};

constexpr auto eigen_qr_solve_vectors = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const Matrix<T, N> qr = Eigen::Map<const Matrix<T, N>>(at[0].of<T>());
  const Vector<T, N> coefficients = Eigen::Map<const Vector<T, N>>(at[3].of<T>());
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    eigen_qr_solve_one<N, T>(qr, coefficients, at[1].of<T>() + k * N, at[2].of<T>() + k * N);
};

template <int N, class T>
void plain_qr_solve_one(const T* __restrict a, const T* __restrict beta, const T* __restrict b, T* __restrict solution) {
  T x[N];
  for (int i = 0; i < N; ++i) x[i] = b[i];
  for (int k = 0; k < N - 1; ++k) {
    T p = x[k];
    for (int i = k + 1; i < N; ++i) p += a[i * N + k] * x[i];
    p *= beta[k];
    x[k] -= p;
    for (int i = k + 1; i < N; ++i) x[i] -= a[i * N + k] * p;
  }
  for (int i = N - 1; i >= 0; --i) {
    for (int j = i + 1; j < N; ++j) x[i] -= a[i * N + j] * x[j];
    x[i] /= a[i * N + i];
  }
  for (int i = 0; i < N; ++i) solution[i] = x[i];
}

constexpr auto plain_qr_solve_each = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    plain_qr_solve_one<N>(at[0].of<T>() + k * N * N, at[3].of<T>() + k * N, at[1].of<T>() + k * N, at[2].of<T>() + k * N);
};

constexpr auto plain_qr_solve_vectors = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  T a[N * N], beta[N];
  for (int e = 0; e < N * N; ++e) a[e] = at[0].of<T>()[e];
  for (int k = 0; k < N; ++k) beta[k] = at[3].of<T>()[k];
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    plain_qr_solve_one<N>(a, beta, at[1].of<T>() + k * N, at[2].of<T>() + k * N);
};

const bool all = enroll<3, 4, 5, 6>("CholeskyDecomp_ma", "Eigen", eigen_cholesky) &&
                 enroll<3, 4, 5, 6>("CholeskyDecomp_ma", "plain", plain_cholesky) &&
                 enroll<3, 4, 5, 6>("CholeskyBackSubst_mava", "Eigen", eigen_cholesky_solve_each) &&
                 enroll<3, 4, 5, 6>("CholeskyBackSubst_mava", "plain", plain_cholesky_solve_each) &&
                 enroll<3, 4, 5, 6>("CholeskyBackSubst_mva", "Eigen", eigen_cholesky_solve_vectors) &&
                 enroll<3, 4, 5, 6>("CholeskyBackSubst_mva", "plain", plain_cholesky_solve_vectors) &&
                 enroll<3, 4, 5, 6>("QRDecomp_ma", "Eigen", eigen_qr) && enroll<3, 4, 5, 6>("QRDecomp_ma", "plain", plain_qr) &&
                 enroll<3, 4, 5, 6>("QRBackSubst_mava", "Eigen", eigen_qr_solve_each) &&
                 enroll<3, 4, 5, 6>("QRBackSubst_mava", "plain", plain_qr_solve_each) &&
                 enroll<3, 4, 5, 6>("QRBackSubst_mva", "Eigen", eigen_qr_solve_vectors) &&
                 enroll<3, 4, 5, 6>("QRBackSubst_mva", "plain", plain_qr_solve_vectors);

}  // namespace
}  // namespace zelm::bench::rivals
