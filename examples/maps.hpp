// maps.hpp: maps of the fitted surfaces.
#pragma once

#include "picture.hpp"
#include "surface.hpp"

namespace terrain {

/// Slope and mean curvature side by side, each shaded by a light from the north-west, with colour bars and a scale.
Picture draw_maps(const Grid& grid, const std::vector<Surface>& surfaces);

}  // namespace terrain
