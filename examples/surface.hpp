// surface.hpp: a quadric z = a x² + b xy + c y² + d x + e y + f through the 5 x 5 cells around every cell of a grid, by
// weighted least squares. x points east and y north, in metres from the cell's center.
//
// The normal equations are set up in u = x / (2 cells) and v = y / (2 cells), both within [-1, 1], and in heights above
// the cell's own: their matrices are then well conditioned in single precision whatever the cells' size and altitude.
//
// A neighbor whose height differs by dz from the cell's own weighs 1 / (1 + dz² / mean dz²), Cauchy's weight function
// (Holland and Welsch 1977) with the window's own spread as its scale: a cliff's far side counts little, and no unit or
// tuning enters. No dz² exceeds 25 times the mean, so all weights lie within [1/26, 1], and the weights can spoil the
// condition of a matrix by no more than a factor of 26. A surface that is a quadric is found exactly under any weights.
// Cells outside the grid and those without data weigh 0. A cell is fitted if it has data itself and its window
// determines all six terms, as any 3 x 3 block of data does.
#pragma once

#include <vector>

#include "grid.hpp"

namespace terrain {

inline constexpr int kTerms = 6;  // coefficients, in the order of the formula above

struct NormalEquations {
  std::vector<float> matrices;     // kTerms x kTerms for every cell; the identity where there is nothing to fit
  std::vector<float> right_sides;  // kTerms for every cell; 0 where there is nothing to fit
  std::vector<float> squares;      // weighted sum of the squared heights, for every cell
  std::vector<bool> fitted;
};

NormalEquations normal_equations(const Grid& grid);

// What the normal equations are made of: a row for every cell of the window and its height, both times the root of its weight.
inline constexpr int kObservations = 25;
struct Observations {
  std::vector<float> matrices;     // kObservations x kTerms for every cell; ones on the diagonal where there is nothing to fit
  std::vector<float> right_sides;  // kObservations for every cell; 0 where there is nothing to fit
};

Observations observations(const Grid& grid, const NormalEquations& equations);

// How far apart two solutions of the same least-squares problems are: the largest distance of two sets of coefficients, in metres,
// and as a share of its bound. Throws if one exceeds it. Solutions that satisfy normal equations A x = b up to residuals r and s
// are at most |inverse of A| (|r| + |s|) apart. With u = 2^-24, |r| <= 1900 u (trace A |x| + root(trace A) |heights|), all in
// 2-norms: of A and b themselves 26 u for each sum; and QR, whose six reflections of 25 elements turn the rows M, with |M|^2 at
// most trace A, into those of a problem that differs by 6 * 150 u |M| (Higham, Accuracy and Stability of Numerical Algorithms
// (2002), theorem 20.3 with its constant counted out), which comes in twice, and roots and substitution, a few u. LU and Cholesky
// stay far below that.
struct Distance {
  double metres, share;
};
Distance largest_distance(const NormalEquations& equations, const std::vector<float>& x, const std::vector<float>& y);

struct Derivatives {  // of a fitted quadric at its cell's center, per metre
  double x, y, xx, xy, yy;
};

/// From the solution of the cell's normal equations.
Derivatives derivatives(CellSize size, const float* coefficients);

struct Surface {         // of one cell; NaN where nothing was fitted
  float east, north;     // slope: rise per metre eastward and northward
  float mean_curvature;  // 1/m, for the normal that points up: above 0 in a hollow, below 0 on a ridge
};

/// Metric properties of the fitted quadrics at the cells' centers; `coefficients` solve the normal equations.
std::vector<Surface> surfaces(const Grid& grid, const NormalEquations& equations, const std::vector<float>& coefficients);

}  // namespace terrain
