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
  std::vector<bool> fitted;
};

NormalEquations normal_equations(const Grid& grid);

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
