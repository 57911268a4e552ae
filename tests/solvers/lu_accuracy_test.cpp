// Backward errors of the LU family on random, graded and nearly singular matrices against the bounds of Higham,
// Accuracy and Stability of Numerical Algorithms, 2nd ed., theorems 9.3 and 9.4; Eigen's PartialPivLU stands beside
// them under the same bounds.
#include <Eigen/LU>
#include <cmath>

#include "support/accuracy.hpp"

namespace zelm::test {
namespace {

template <class T>
using Vector = Eigen::Matrix<T, Eigen::Dynamic, 1>;

template <class T>
Matrix<T> matrix(Kind kind, int n, Random& random) {
  Matrix<T> a(n, n);
  for (T& x : a.reshaped()) x = random.uniform<T>() * T(0x1p20);  // far above the absolute limits
  if (kind == Kind::graded)
    for (int i = 0; i < n; ++i) {
      a.row(i) *= std::ldexp(T(1), random.below(16) - 8);
      a.col(i) *= std::ldexp(T(1), random.below(16) - 8);
    }
  if (kind == Kind::nearly_singular && n > 1) a.col(n - 1) = a.leftCols(n - 1).rowwise().mean() + a.col(n - 1) * T(0x1p-12);
  return a;
}

/// Row i of L U is row p[i] of A.
struct Factors {
  Factors(const Exact& packed, std::vector<int> rows)
      : L(packed.triangularView<Eigen::UnitLower>()), U(packed.triangularView<Eigen::Upper>()), p(std::move(rows)) {}
  /// P^T M, or P^T b.
  Exact in_rows_of_a(const Exact& m) const {
    Exact out(m.rows(), m.cols());
    for (Eigen::Index i = 0; i < m.rows(); ++i) out.row(p[i]) = m.row(i);
    return out;
  }
  Exact growth() const { return in_rows_of_a(L.cwiseAbs() * U.cwiseAbs()); }

  Exact L, U;
  std::vector<int> p;
};

/// The worst ratio of an error to its bound; a bound of 0 demands an error of 0.
long double ratio(const Exact& error, const Exact& bound) {
  long double worst = 0;
  for (Eigen::Index i = 0; i < error.size(); ++i) {
    const long double e = std::abs(error.reshaped()[i]), b = bound.reshaped()[i];
    if (e != 0) worst = std::max(worst, e <= b * 1e9L ? e / b : 1e9L);
  }
  return worst;
}

/// |A - P^T L U| <= gamma(n) P^T |L| |U|, one rounding more where multipliers come from a reciprocal.
template <class T>
long double error_of_factors(const Matrix<T>& a, const Factors& f) {
  return ratio(a.template cast<long double>() - f.in_rows_of_a(f.L * f.U), gamma<T>(int(a.rows()) + 1) * f.growth());
}

/// |b - A x| <= gamma(3 n) P^T |L| |U| |x|, two roundings more for the reciprocals of pivots. Where x = W (M c) is made
/// with explicit inverses of U and L, c = P b, each of them and each product adds n roundings, carried on by what
/// follows.
template <class T>
long double error_of_solution(const Matrix<T>& a, const Factors& f, const Vector<T>& b, const Vector<T>& x, bool inverses) {
  const int n = int(a.rows());
  const Exact exact = x.template cast<long double>(), growth = f.growth();
  Exact bound = gamma<T>(3 * n + 2) * growth * exact.cwiseAbs();
  if (inverses) {
    const Exact one = Exact::Identity(n, n);
    const Exact M = f.L.triangularView<Eigen::UnitLower>().solve(one).cwiseAbs();
    const Exact W = f.U.triangularView<Eigen::Upper>().solve(one).cwiseAbs();
    Exact c(n, 1);
    for (int i = 0; i < n; ++i) c(i) = std::abs(b(f.p[i]));
    bound += gamma<T>(4 * n) * growth * (W * f.U.cwiseAbs() * W * M * f.L.cwiseAbs() * M * c);
  }
  return ratio(b.template cast<long double>() - a.template cast<long double>() * exact, bound);
}

template <class T>
void check(const std::string& type, Kind kind, int n, Random& random) {
  struct Worst {
    long double factors = 0, solution = 0;
  } ours, eigens;
  for (int repeat = 0; repeat < 40; ++repeat) {
    const Matrix<T> a = matrix<T>(kind, n, random);
    Data<T> lu{{values(a), std::vector<T>(n * n)}, {{"pDstIndex", std::vector<int>(std::size_t(n))}}, {}, {}};
    ASSERT_EQ(call("zelmLUDecomp_m_" + type, {{{"widthHeight", n}}}, lu), zelStsOk);
    const std::vector<int>& p = lu.indices["pDstIndex"];
    Exact packed(n, n);
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j) packed(i, j) = lu.operands[1][p[i] * n + j];
    const Factors f(packed, p);
    ours.factors = std::max(ours.factors, error_of_factors(a, f));

    const Eigen::PartialPivLU<Matrix<T>> eigen(a);
    const Eigen::VectorXi order = eigen.permutationP().transpose().eval().indices();
    const Factors g(eigen.matrixLU().template cast<long double>(), {order.begin(), order.end()});
    eigens.factors = std::max(eigens.factors, error_of_factors(a, g));

    for (const int count : {1, 5}) {
      const bool inverses = type == "32f" && count > 2 && n >= 3 && n <= 6;
      Data<T> s{{lu.operands[1], random.uniforms<T>(n * count), std::vector<T>(n * count)}, {{"pSrcIndex", p}}, {}, {}};
      ASSERT_EQ(call("zelmLUBackSubst_mva_" + type, {{{"widthHeight", n}, {"count", count}}}, s), zelStsOk);
      for (int k = 0; k < count; ++k) {
        const Vector<T> b = Eigen::Map<const Vector<T>>(&s.operands[1][k * n], n);
        const Vector<T> x = Eigen::Map<const Vector<T>>(&s.operands[2][k * n], n);
        ours.solution = std::max(ours.solution, error_of_solution(a, f, b, x, inverses));
        eigens.solution = std::max(eigens.solution, error_of_solution<T>(a, g, b, eigen.solve(b), false));
      }
    }
  }
  SCOPED_TRACE(trace(type, n, kind));
  EXPECT_LE(ours.factors, 1);
  EXPECT_LE(ours.solution, 1);
  EXPECT_LE(eigens.factors, 1) << "the bound does not hold";
  EXPECT_LE(eigens.solution, 1) << "the bound does not hold";
  EXPECT_LE(ours.factors, 4 * eigens.factors);
}

TEST(LUAccuracy, BackwardErrors) {
  Random random(1);
  for (const Kind kind : kKinds)
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 17, 33}) {
      check<float>("32f", kind, n, random);
      check<double>("64f", kind, n, random);
    }
}

}  // namespace
}  // namespace zelm::test
