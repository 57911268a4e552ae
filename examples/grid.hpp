// grid.hpp: an elevation grid, read from a file in the ESRI ASCII format.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace terrain {

struct CellSize {
  double east, north;  // metres
};

struct Grid {
  int columns = 0, rows = 0;
  double south = 0;            // southern edge of the last row: degrees if geographic, else metres
  double cell = 0;             // edge of a cell, in the unit of `south`
  bool geographic = false;     // longitude and latitude on WGS84; otherwise projected, in metres
  std::vector<float> heights;  // metres, row by row, the northernmost first; NaN where there is no data

  std::size_t cells() const { return heights.size(); }
  CellSize cell_size(int row) const;
};

/// Throws std::runtime_error with "path:line: reason" or "path: reason" if the file cannot be read or is not such a
/// grid. Geographic: cells of at most 1 whose extent fits longitudes and latitudes. Everything else is taken as metres.
Grid read_grid(const std::string& path);

}  // namespace terrain
