// Backward errors of the QR family on random, graded and nearly singular matrices against the bounds of Higham, Accuracy and
// Stability of Numerical Algorithms, 2nd ed., theorems 19.4 and 20.3, with their constants counted out; Eigen's HouseholderQR stands
// beside them under the same bounds.
#include <Eigen/QR>
#include <cmath>

#include "support/accuracy.hpp"

namespace zelm::test {
namespace {

template <class T>
Matrix<T> matrix(Kind kind, int w, int h, Random& random) {
  Matrix<T> a(h, w);
  for (T& x : a.reshaped()) x = random.uniform<T>() * T(0x1p20);  // far above the absolute limit
  if (kind == Kind::graded) {
    for (int i = 0; i < h; ++i) a.row(i) *= std::ldexp(T(1), random.below(16) - 8);
    for (int j = 0; j < w; ++j) a.col(j) *= std::ldexp(T(1), random.below(16) - 8);
  }
  if (kind == Kind::nearly_singular && w > 1) a.col(w - 1) = a.leftCols(w - 1).rowwise().mean() + a.col(w - 1) * T(0x1p-12);
  return a;
}

/// Q^T M or Q M, with the reflections as they are packed in f and their scales exact.
Exact reflected(const Exact& f, Exact m, bool transposed) {
  const int w = int(f.cols()), h = int(f.rows()), steps = w == h ? w - 1 : w;
  for (int s = 0; s < steps; ++s) {
    const int k = transposed ? s : steps - 1 - s;
    Exact v = Exact::Zero(h, 1);
    v(k) = 1;
    v.bottomRows(h - 1 - k) = f.col(k).tail(h - 1 - k);
    m -= v * (2 / v.squaredNorm()) * (v.transpose() * m);
  }
  return m;
}

/// Roundings that one reflection adds to a column of h elements, in norm: in its own column h / 2 + 5 for each element of the vector,
/// which come in thrice, and the two sums; in the others less.
template <class T>
long double reflections(int w, int h) {
  return w * gamma<T>(5 * h + 25);
}

/// The worst column of A - Q R over its bound.
template <class T>
long double error_of_factors(const Matrix<T>& a, const Exact& f) {
  Exact R = f;
  R.triangularView<Eigen::StrictlyLower>().setZero();
  const Exact A = a.template cast<long double>(), error = A - reflected(f, R, false);
  long double worst = 0;
  for (int j = 0; j < A.cols(); ++j)
    worst = std::max(worst, error.col(j).norm() / (reflections<T>(int(A.cols()), int(A.rows())) * A.col(j).norm()));
  return worst;
}

/// x solves a problem whose columns and right-hand side are off by so much each: what that can do to A^T (b - A x), and of a square
/// matrix to b - A x, to which substitution adds n roundings of |R| |x|.
template <class T>
long double error_of_solution(const Matrix<T>& a, const Exact& f, const Exact& b, const Exact& x) {
  const int w = int(a.cols()), h = int(a.rows());
  const Exact A = a.template cast<long double>(), r = b - A * x;
  Exact R = f.topRows(w).cwiseAbs();
  R.triangularView<Eigen::StrictlyLower>().setZero();
  const long double g = reflections<T>(w, h);
  const long double moved =
      2 * g * (A.colwise().norm() * x.cwiseAbs()).value() + g * b.norm() + gamma<T>(w + 2) * (R * x.cwiseAbs()).norm();
  if (w == h) return r.norm() / moved;
  return (A.transpose() * r).norm() / (A.norm() * (moved + 2 * g * r.norm()));
}

template <class T>
void check(const std::string& type, Kind kind, int w, int h, Random& random) {
  struct Worst {
    long double factors = 0, solution = 0;
  } ours, eigens;
  constexpr int count = 5;  // a group in lanes and what is left
  const Sizes sizes = {{{"width", w}, {"height", h}, {"count", count}}};
  for (int repeat = 0; repeat < 8; ++repeat) {
    std::vector<Matrix<T>> as;
    Data<T> d{{{}, std::vector<T>(w * h * count)}, {}, {{"pBuffer", std::vector<T>(h)}}, {}};
    for (int k = 0; k < count; ++k) {
      as.push_back(matrix<T>(kind, w, h, random));
      const auto elements = values(as[k]);
      d.operands[0].insert(d.operands[0].end(), elements.begin(), elements.end());
    }
    ASSERT_EQ(call("zelmQRDecomp_ma_" + type, sizes, d), zelStsOk);
    Data<T> s{{d.operands[1], random.uniforms<T>(h * count), std::vector<T>(w * count)}, {}, d.arrays, {}};
    ASSERT_EQ(call("zelmQRBackSubst_mava_" + type, sizes, s), zelStsOk);
    for (int k = 0; k < count; ++k) {
      const auto part = [&](int operand, int rows, int columns) {
        return Matrix<T>(Eigen::Map<const Matrix<T>>(&s.operands[operand][k * rows * columns], rows, columns));
      };
      const auto exact = [](const Matrix<T>& m) -> Exact { return m.template cast<long double>(); };
      const Exact f = exact(part(0, h, w)), b = exact(part(1, h, 1));
      ours.factors = std::max(ours.factors, error_of_factors(as[k], f));
      ours.solution = std::max(ours.solution, error_of_solution(as[k], f, b, exact(part(2, w, 1))));

      const Eigen::HouseholderQR<Matrix<T>> qr(as[k]);
      const Exact g = exact(qr.matrixQR());
      eigens.factors = std::max(eigens.factors, error_of_factors(as[k], g));
      eigens.solution = std::max(eigens.solution, error_of_solution(as[k], g, b, exact(qr.solve(part(1, h, 1)))));
    }
  }
  SCOPED_TRACE(trace(type, w, kind) + " height " + std::to_string(h));
  EXPECT_LE(ours.factors, 1);
  EXPECT_LE(ours.solution, 1);
  EXPECT_LE(eigens.factors, 1) << "the bound does not hold";
  EXPECT_LE(eigens.solution, 1) << "the bound does not hold";
  EXPECT_LE(ours.factors, 4 * eigens.factors + 0.01L) << "far from what is usual";
}

TEST(QRAccuracy, BackwardErrors) {
  Random random(1);
  for (const Kind kind : kKinds)
    for (const auto& [w, h] : {std::pair{1, 3}, {2, 2}, {2, 5}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {6, 25}, {9, 9}, {23, 40}}) {
      check<float>("32f", kind, w, h, random);
      check<double>("64f", kind, w, h, random);
    }
}

}  // namespace
}  // namespace zelm::test
