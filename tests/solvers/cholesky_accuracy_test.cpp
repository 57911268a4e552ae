// Backward errors of the Cholesky family on random, graded and nearly singular matrices against the bounds of Higham, Accuracy and
// Stability of Numerical Algorithms, 2nd ed., theorems 10.3 and 10.4; Eigen's LLT stands beside them under the same bounds.
#include <Eigen/Cholesky>
#include <cmath>

#include "support/accuracy.hpp"

namespace zelm::test {
namespace {

/// Roundings that a reciprocal of L's diagonal stands for. Of the approximation's 1.5 * 2^-12 a Newton step leaves 3/2 of its
/// square, less than 4 u, and adds five roundings; in double there are a root and a division.
template <class T>
constexpr int kReciprocal = sizeof(T) == 4 ? 9 : 2;

/// G G^T of a G with a dominant diagonal. nearly_singular: the last column of G almost vanishes, as far as no rounding can make the
/// last pivot negative (theorem 10.7).
template <class T>
Matrix<T> matrix(Kind kind, int n, Random& random) {
  Matrix<T> g(n, n), a;
  for (T& x : g.reshaped()) x = random.uniform<T>();
  g.diagonal().array() += n;
  if (kind == Kind::nearly_singular) g.col(n - 1) *= T(0x1p-5);
  a = Matrix<T>(g * g.transpose()).template selfadjointView<Eigen::Lower>();
  if (kind == Kind::graded)
    for (int i = 0; i < n; ++i) {
      const T power = std::ldexp(T(1), random.below(16) - 8);
      a.row(i) *= power;
      a.col(i) *= power;
    }
  return a;
}

/// The worst ratio of an error to its bound.
long double ratio(const Exact& error, const Exact& bound) { return (error.cwiseAbs().array() / bound.array()).maxCoeff(); }

/// |A - L L^T| <= gamma |L| |L^T|, with L's diagonal as the reciprocals give it: an element carries n + 1 roundings and, through a
/// multiplication by one of them instead of a division, the error of a reciprocal; an element of the diagonal twice.
template <class T>
long double error_of_factor(const Matrix<T>& a, const Exact& L) {
  const Exact bound = gamma<T>(int(a.rows()) + 2 + 2 * kReciprocal<T>) * L.cwiseAbs() * L.cwiseAbs().transpose();
  const Exact error = a.template cast<long double>() - L * L.transpose();
  return ratio(error, bound);
}

/// |b - A x| <= gamma |L| |L^T| |x|: the factor's error, and two substitutions.
template <class T>
long double error_of_solution(const Matrix<T>& a, const Exact& L, const Exact& b, const Exact& x) {
  const int n = int(a.rows());
  const Exact bound = gamma<T>(3 * n + 6 + 2 * kReciprocal<T>) * L.cwiseAbs() * L.cwiseAbs().transpose() * x.cwiseAbs();
  return ratio(b - a.template cast<long double>() * x, bound);
}

template <class T>
void check(const std::string& type, Kind kind, int n, Random& random) {
  struct Worst {
    long double factor = 0, solution = 0;
  } ours, eigens;
  constexpr int count = 5;  // a group of four and one alone
  for (int repeat = 0; repeat < 20; ++repeat) {
    const Sizes sizes = {{{"widthHeight", n}, {"count", count}}};
    std::vector<Matrix<T>> as;
    Data<T> d{{{}, std::vector<T>(n * n * count, std::numeric_limits<T>::quiet_NaN())}, {}, {}, {}};
    for (int k = 0; k < count; ++k) {
      as.push_back(matrix<T>(kind, n, random));
      d.operands[0].insert(d.operands[0].end(), as[k].data(), as[k].data() + n * n);
    }
    ASSERT_EQ(call("zelmCholeskyDecomp_ma_" + type, sizes, d), zelStsOk);
    Data<T> s{{d.operands[1], random.uniforms<T>(n * count), std::vector<T>(n * count)}, {}, {}, {}};
    ASSERT_EQ(call("zelmCholeskyBackSubst_mava_" + type, sizes, s), zelStsOk);
    for (int k = 0; k < count; ++k) {
      const auto vector = [&](int operand) -> Exact {
        return Eigen::Map<const Matrix<T>>(&s.operands[operand][k * n], n, 1).template cast<long double>();
      };
      Exact L = Eigen::Map<const Matrix<T>>(&d.operands[1][k * n * n], n, n).template cast<long double>();
      L.diagonal() = L.diagonal().cwiseInverse();
      L = L.triangularView<Eigen::Lower>().toDenseMatrix();
      ours.factor = std::max(ours.factor, error_of_factor(as[k], L));
      ours.solution = std::max(ours.solution, error_of_solution(as[k], L, vector(1), vector(2)));

      const Eigen::LLT<Matrix<T>> llt(as[k]);
      const Exact M = Matrix<T>(llt.matrixL()).template cast<long double>();
      const Matrix<T> b = vector(1).template cast<T>(), x = llt.solve(b);
      eigens.factor = std::max(eigens.factor, error_of_factor(as[k], M));
      eigens.solution = std::max(eigens.solution, error_of_solution<T>(as[k], M, vector(1), x.template cast<long double>()));
    }
  }
  SCOPED_TRACE(trace(type, n, kind));
  EXPECT_LE(ours.factor, 1);
  EXPECT_LE(ours.solution, 1);
  EXPECT_LE(eigens.factor, 1) << "the bound does not hold";
  EXPECT_LE(eigens.solution, 1) << "the bound does not hold";
  EXPECT_LE(ours.factor, 8 * eigens.factor + 0.1L) << "far from what is usual";
}

TEST(CholeskyAccuracy, BackwardErrors) {
  Random random(1);
  for (const Kind kind : kKinds)
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 9, 17, 33}) {
      check<float>("32f", kind, n, random);
      check<double>("64f", kind, n, random);
    }
}

}  // namespace
}  // namespace zelm::test
