#include "surface.hpp"

#include <Eigen/Cholesky>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <stdexcept>

namespace terrain {
namespace {

constexpr int kReach = 2, kSide = 2 * kReach + 1, kWindow = kSide * kSide;

constexpr int kPowers[kTerms][2] = {{2, 0}, {1, 1}, {0, 2}, {1, 0}, {0, 1}, {0, 0}};  // of u and v in every term

// An entry of a normal matrix is the weighted sum of some u^p v^q with p + q <= 4: only 15 of the 36 differ.
constexpr int kMoments = 15;
constexpr int moment(int p, int q) { return (p + q) * (p + q + 1) / 2 + q; }
constexpr int entry(int i, int j) { return moment(kPowers[i][0] + kPowers[j][0], kPowers[i][1] + kPowers[j][1]); }

constexpr auto kMonomials = [] {  // u^p v^q at every cell of the window; exact in single precision
  std::array<std::array<float, kMoments>, kWindow> table{};
  for (int k = 0; k < kWindow; ++k) {
    const float u = float(k % kSide - kReach) / kReach, v = float(kReach - k / kSide) / kReach;
    for (int q = 0; q <= 4; ++q)
      for (int p = 0; p + q <= 4; ++p) {
        float& value = table[k][moment(p, q)] = 1;
        for (int n = 0; n < p; ++n) value *= u;
        for (int n = 0; n < q; ++n) value *= v;
      }
  }
  return table;
}();

// The grid with a margin of cells without data, so that no window leaves it.
class Padded {
 public:
  explicit Padded(const Grid& grid)
      : stride_(std::size_t(grid.columns) + 2 * kReach),
        heights_(stride_ * (std::size_t(grid.rows) + 2 * kReach), std::numeric_limits<float>::quiet_NaN()) {
    for (int row = 0; row < grid.rows; ++row)
      for (int column = 0; column < grid.columns; ++column)
        heights_[(std::size_t(row) + kReach) * stride_ + std::size_t(column) + kReach] =
            grid.heights[std::size_t(row) * std::size_t(grid.columns) + std::size_t(column)];
  }

  const float* window(int row, int column) const { return &heights_[std::size_t(row) * stride_ + std::size_t(column)]; }
  std::size_t stride() const { return stride_; }

 private:
  std::size_t stride_;
  std::vector<float> heights_;
};

// Do the cells of the window determine all terms? Eliminates in turn: a pivot is the part of a term that the terms
// before it leave unexplained, and 0 if a conic goes through all cells. In trials with random weights a 3 x 3 block in
// a corner of the window left 1/140 of each term or more, and the condition stayed below 5e4 wherever 1/1000 was left;
// single precision bears that.
bool determined(const float* matrix) {
  constexpr float kLeast = 1e-3f;
  float rest[kTerms][kTerms];
  std::copy_n(matrix, kTerms * kTerms, &rest[0][0]);
  for (int k = 0; k < kTerms; ++k) {
    if (!(rest[k][k] > kLeast * matrix[k * kTerms + k])) return false;
    for (int i = k + 1; i < kTerms; ++i)
      for (int j = k + 1; j < kTerms; ++j) rest[i][j] -= rest[i][k] * rest[k][j] / rest[k][k];
  }
  return true;
}

struct Window {
  float rise[kWindow], weight[kWindow];  // 0 where there are no data
  int count = 0;                         // 0 if the center has no data
};

Window look(const float* heights, std::size_t stride) {
  Window window;
  const float center = heights[kReach * stride + kReach];
  if (std::isnan(center)) return window;
  float squares = 0;
  for (int k = 0; k < kWindow; ++k) {
    const float height = heights[std::size_t(k / kSide) * stride + std::size_t(k % kSide)];
    const bool here = !std::isnan(height);
    window.rise[k] = here ? height - center : 0;
    window.weight[k] = here;
    squares += window.rise[k] * window.rise[k];
    window.count += here;
  }
  const float mean = squares / float(window.count);
  for (int k = 0; k < kWindow; ++k)
    if (window.weight[k] > 0 && mean > 0) window.weight[k] = mean / (mean + window.rise[k] * window.rise[k]);
  return window;
}

// One cell's equations; false if the window does not determine them.
bool set_up(const Window& window, float* matrix, float* right_side, float& squares) {
  if (window.count == 0) return false;
  float moments[kMoments] = {}, sums[kTerms] = {};
  squares = 0;
  for (int k = 0; k < kWindow; ++k) {
    const float weight = window.weight[k], rise = window.rise[k];
    if (weight == 0) continue;
    for (int m = 0; m < kMoments; ++m) moments[m] += weight * kMonomials[k][m];
    for (int i = 0; i < kTerms; ++i) sums[i] += weight * rise * kMonomials[k][entry(i, kTerms - 1)];
    squares += weight * rise * rise;
  }
  for (int i = 0; i < kTerms; ++i) {
    right_side[i] = sums[i];
    for (int j = 0; j < kTerms; ++j) matrix[i * kTerms + j] = moments[entry(i, j)];
  }
  return window.count == kWindow || determined(matrix);
}

}  // namespace

NormalEquations normal_equations(const Grid& grid) {
  NormalEquations equations{std::vector<float>(grid.cells() * kTerms * kTerms), std::vector<float>(grid.cells() * kTerms),
                            std::vector<float>(grid.cells()), std::vector<bool>(grid.cells())};
  const Padded padded(grid);
  std::size_t cell = 0;
  for (int row = 0; row < grid.rows; ++row)
    for (int column = 0; column < grid.columns; ++column, ++cell) {
      float* const matrix = &equations.matrices[cell * kTerms * kTerms];
      float* const right_side = &equations.right_sides[cell * kTerms];
      const Window window = look(padded.window(row, column), padded.stride());
      equations.fitted[cell] = set_up(window, matrix, right_side, equations.squares[cell]);
      if (equations.fitted[cell]) continue;
      for (int i = 0; i < kTerms; ++i) {
        right_side[i] = 0;
        for (int j = 0; j < kTerms; ++j) matrix[i * kTerms + j] = i == j;
      }
    }
  return equations;
}

Observations observations(const Grid& grid, const NormalEquations& equations) {
  static_assert(kWindow == kObservations);
  Observations result{std::vector<float>(grid.cells() * kWindow * kTerms), std::vector<float>(grid.cells() * kWindow)};
  const Padded padded(grid);
  std::size_t cell = 0;
  for (int row = 0; row < grid.rows; ++row)
    for (int column = 0; column < grid.columns; ++column, ++cell) {
      float* const matrix = &result.matrices[cell * kWindow * kTerms];
      if (!equations.fitted[cell]) {
        for (int i = 0; i < kTerms; ++i) matrix[i * kTerms + i] = 1;
        continue;
      }
      const Window window = look(padded.window(row, column), padded.stride());
      for (int k = 0; k < kWindow; ++k) {
        const float root = std::sqrt(window.weight[k]);
        for (int i = 0; i < kTerms; ++i) matrix[k * kTerms + i] = root * kMonomials[k][entry(i, kTerms - 1)];
        result.right_sides[cell * kWindow + std::size_t(k)] = root * window.rise[k];
      }
    }
  return result;
}

Distance largest_distance(const NormalEquations& equations, const std::vector<float>& x, const std::vector<float>& y) {
  using Matrix = Eigen::Matrix<float, kTerms, kTerms>;
  using Vector = Eigen::Matrix<float, kTerms, 1>;
  constexpr double kRoundings = 1900 * 0x1p-24;
  Distance largest{0, 0};
  for (std::size_t cell = 0; cell < equations.fitted.size(); ++cell) {
    if (!equations.fitted[cell]) continue;
    const auto matrix = Eigen::Map<const Matrix>(&equations.matrices[cell * kTerms * kTerms]).cast<double>().eval();
    const auto p = Eigen::Map<const Vector>(&x[cell * kTerms]).cast<double>().eval();
    const auto q = Eigen::Map<const Vector>(&y[cell * kTerms]).cast<double>().eval();
    const double trace = matrix.trace(), heights = std::sqrt(double(equations.squares[cell]));
    const double residuals = kRoundings * (trace * (p.norm() + q.norm()) + 2 * std::sqrt(trace) * heights);
    const double inverse = matrix.llt().solve(decltype(matrix)::Identity()).trace();  // no less than its norm
    const double metres = (p - q).norm(), share = metres > 0 ? metres / (inverse * residuals) : 0;
    if (!(share <= 1)) {
      char text[128];
      std::snprintf(text, sizeof text, "cell %zu: the methods differ by %g m, %g times the bound", cell, metres, share);
      throw std::runtime_error(text);
    }
    largest = {std::max(largest.metres, metres), std::max(largest.share, share)};
  }
  return largest;
}

Derivatives derivatives(CellSize size, const float* c) {
  const double east = kReach * size.east, north = kReach * size.north;  // metres per unit of u and v
  return {c[3] / east, c[4] / north, 2 * c[0] / (east * east), c[1] / (east * north), 2 * c[2] / (north * north)};
}

std::vector<Surface> surfaces(const Grid& grid, const NormalEquations& equations, const std::vector<float>& coefficients) {
  constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
  std::vector<Surface> result(grid.cells(), Surface{kNaN, kNaN, kNaN});
  std::size_t cell = 0;
  for (int row = 0; row < grid.rows; ++row) {
    const CellSize size = grid.cell_size(row);
    for (int column = 0; column < grid.columns; ++column, ++cell) {
      if (!equations.fitted[cell]) continue;
      const auto [zx, zy, zxx, zxy, zyy] = derivatives(size, &coefficients[cell * kTerms]);
      // do Carmo, Differential Geometry of Curves and Surfaces, sec. 3-3, for the graph of a function
      const double mean_curvature =
          ((1 + zy * zy) * zxx - 2 * zx * zy * zxy + (1 + zx * zx) * zyy) / (2 * std::pow(1 + zx * zx + zy * zy, 1.5));
      result[cell] = {float(zx), float(zy), float(mean_curvature)};
    }
  }
  return result;
}

}  // namespace terrain
