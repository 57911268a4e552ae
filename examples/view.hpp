// view.hpp: the grid in perspective, and the way back from a pixel to the terrain.
#pragma once

#include <optional>
#include <vector>

#include "picture.hpp"
#include "surface.hpp"

namespace terrain {

struct Place {
  double column, row;  // from the centre of the north-western cell
  double height;       // metres
  double error;        // metres that the height differs from the triangle's that the pixel shows
};

/// Seen from the south. Rendered once, with two samples a pixel each way.
class View {
 public:
  /// `width`: of the picture in pixels.
  View(const Grid& grid, const std::vector<Surface>& surfaces, int width);

  Picture picture() const;

  /// Where the pixel's first sample meets the terrain; nothing where it shows none. Throws std::runtime_error if the place is not
  /// on the terrain, or not seen there.
  std::optional<Place> pick(int x, int y) const;

  double relief() const { return relief_; }              // by which heights are multiplied
  double milliseconds() const { return milliseconds_; }  // of the call that transformed all vertices
  std::size_t vertices() const { return vertices_.size() / 3; }
  std::size_t triangles() const { return corners_.size() / 3; }

 private:
  void place_vertices(const Grid& grid);
  void connect(const Grid& grid);
  void aim();
  void colour(const Grid& grid, const std::vector<Surface>& surfaces);
  void render();

  int width_, height_;  // in samples
  double relief_ = 1, east_, north_, radius_, base_, milliseconds_ = 0;
  int columns_, rows_;
  float view_[16], projection_[16];
  std::vector<float> vertices_, screen_;  // x, y, z: metres from the middle; samples and depth
  std::vector<Colour> colours_;           // of the vertices
  std::vector<int> corners_;              // vertices of the triangles
  std::size_t ground_ = 0;                // triangles that are terrain; behind them the block's sides
  std::vector<float> depth_;              // of every sample
  std::vector<int> shown_;                // triangle in every sample, -1: none
  std::vector<Colour> samples_;
};

}  // namespace terrain
