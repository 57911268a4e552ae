// curvature.hpp: principal curvatures of the fitted surfaces and a picture of the forms of the ground that they tell apart.
#pragma once

#include "picture.hpp"
#include "surface.hpp"

namespace terrain {

/// Of one cell, in 1/m, for the normal that points up: a hollow bends upwards, above 0, a ridge downwards.
struct Bend {
  float most, least;  // most >= least; NaN where nothing was fitted
};

struct Curvatures {
  std::vector<Bend> bends;
  double plane_ms, space_ms;  // of the two calls
  double disagreement;        // largest difference between them, as a share of the largest curvature
};

/// Two calls of zelm on all cells: eigenvalues of the shape operators, symmetric 2 x 2 matrices in an orthonormal basis of
/// the tangent plane; and eigenvalues and vectors of the same in space, symmetric 3 x 3, whose third vector is the normal.
Curvatures principal_curvatures(const Grid& grid, const NormalEquations& equations, const std::vector<float>& coefficients);

/// Every cell coloured by the shape index of Koenderink and van Doorn (1992), from pit over valley, saddle and ridge to peak,
/// the paler the flatter.
Picture draw_forms(const Grid& grid, const std::vector<Bend>& bends);

}  // namespace terrain
