#include "view.hpp"

#include <zelm.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <numbers>
#include <stdexcept>
#include <string>

namespace terrain {
namespace {

constexpr int kSamples = 2;                     // of a pixel, each way
constexpr float kField = 0.5f, kAspect = 1.5f;  // vertical angle in radians; width over height
constexpr Colour kSky{0.93f, 0.95f, 0.97f}, kEarth{0.42f, 0.37f, 0.33f};

// From the valleys to the summits.
constexpr Colour kHeights[] = {{0.42f, 0.56f, 0.39f}, {0.62f, 0.69f, 0.46f}, {0.82f, 0.77f, 0.57f},
                               {0.74f, 0.60f, 0.44f}, {0.72f, 0.63f, 0.57f}, {0.96f, 0.95f, 0.94f}};

constexpr float kIdentity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

void require_ok(const char* function, ZelStatus status) {
  if (status != zelStsOk) throw std::runtime_error(std::string(function) + " returned " + std::to_string(status));
}

Colour height_colour(float t) {  // t from 0 to 1
  constexpr int last = int(std::size(kHeights)) - 1;
  const float place = std::clamp(t, 0.0f, 1.0f) * last;
  const int stop = std::min(int(place), last - 1);
  return mix(kHeights[stop], kHeights[stop + 1], place - float(stop));
}

}  // namespace

View::View(const Grid& grid, const std::vector<Surface>& surfaces, int width)
    : width_(kSamples * width),
      height_(kSamples * int(std::lround(float(width) / kAspect))),
      columns_(grid.columns),
      rows_(grid.rows) {
  place_vertices(grid);
  connect(grid);
  aim();
  colour(grid, surfaces);
  render();
}

// Cells' centres, and below the border those of a base: x east, y north, z up.
void View::place_vertices(const Grid& grid) {
  const CellSize cell = grid.cell_size(grid.rows / 2);
  east_ = cell.east, north_ = cell.north;
  float low = std::numeric_limits<float>::infinity(), high = -low;
  for (const float h : grid.heights)
    if (!std::isnan(h)) low = std::min(low, h), high = std::max(high, h);
  if (!(low <= high)) throw std::runtime_error("a grid without data cannot be viewed");
  const double width = (columns_ - 1) * east_, depth = (rows_ - 1) * north_, extent = std::max({width, depth, east_});
  // The relief a tenth of the ground's extent, in a whole number and within reason.
  relief_ = high > low ? std::clamp(std::round(0.1 * extent / double(high - low)), 1.0, 20.0) : 1;
  base_ = -0.08 * extent;
  radius_ = std::hypot(width, depth) / 2 + 0.1 * extent;
  vertices_.reserve(3 * (grid.cells() + 4 * std::size_t(columns_ + 2 * rows_)));
  const auto vertex = [&](int column, int row, double z) {
    vertices_.push_back(float(column * east_ - width / 2));
    vertices_.push_back(float(depth / 2 - row * north_));
    vertices_.push_back(float(z));
  };
  for (int row = 0; row < rows_; ++row)
    for (int column = 0; column < columns_; ++column) {
      const float h = grid.heights[std::size_t(row) * std::size_t(columns_) + std::size_t(column)];
      vertex(column, row, std::isnan(h) ? 0 : (h - low) * relief_);
    }
}

// Two triangles between four cells that have data, and the block's southern, western and eastern sides.
void View::connect(const Grid& grid) {
  const auto at = [&](int column, int row) { return row * columns_ + column; };
  const auto data = [&](int v) { return !std::isnan(grid.heights[std::size_t(v)]); };
  const auto triangle = [&](int a, int b, int c) { corners_.insert(corners_.end(), {a, b, c}); };
  for (int row = 0; row + 1 < rows_; ++row)
    for (int column = 0; column + 1 < columns_; ++column) {
      const int nw = at(column, row), ne = nw + 1, sw = at(column, row + 1), se = sw + 1;
      if (data(nw) && data(sw) && data(se)) triangle(nw, sw, se);
      if (data(nw) && data(se) && data(ne)) triangle(nw, se, ne);
    }
  ground_ = corners_.size() / 3;
  const auto side = [&](int a, int b) {
    if (!data(a) || !data(b)) return;
    const int first = int(vertices());
    for (const bool below : {false, true})
      for (const int v : {a, b}) {
        const float* const p = &vertices_[3 * std::size_t(v)];
        const float place[3] = {p[0], p[1], below ? float(base_) : p[2]};
        vertices_.insert(vertices_.end(), place, place + 3);
      }
    triangle(first, first + 2, first + 3);
    triangle(first, first + 3, first + 1);
  };
  for (int column = 0; column + 1 < columns_; ++column) side(at(column, rows_ - 1), at(column + 1, rows_ - 1));
  for (int row = 0; row + 1 < rows_; ++row) {
    side(at(0, row), at(0, row + 1));
    side(at(columns_ - 1, row), at(columns_ - 1, row + 1));
  }
}

// From the south and 32 degrees above the horizon, as near as the whole block fits the picture.
void View::aim() {
  constexpr float kUp[3] = {0, 0, 1};
  const float angle = 32 * std::numbers::pi_v<float> / 180, turn = -0.32f;
  const float at[3] = {0, float(-0.24 * radius_), 0};  // the near half is the larger one
  float transform[16];
  const auto all_inside = [&](double distance) {
    const float away = float(distance * std::cos(angle));
    const float eye[3] = {away * std::sin(turn), at[1] - away * std::cos(turn), float(distance * std::sin(angle))};
    zelmLookAtRH_m4_32f(eye, at, kUp, view_);
    zelmPerspectiveFovRH_m4_32f(kField, kAspect, float(distance - 1.2 * radius_), float(distance + 1.2 * radius_), projection_);
    // On into samples, so that one transform of all vertices does everything.
    float scale[16], shift[16];
    zelmScaling_m4_32f(float(width_) / 2, -float(height_) / 2, 1, scale);
    zelmTranslation_m4_32f(float(width_) / 2, float(height_) / 2, 0, shift);
    require_ok("zelmMul_mm4x4_32f", zelmMul_mm4x4_32f(view_, projection_, transform));
    require_ok("zelmMul_mm4x4_32f", zelmMul_mm4x4_32f(transform, scale, transform));
    require_ok("zelmMul_mm4x4_32f", zelmMul_mm4x4_32f(transform, shift, transform));
    zelmAffineTransformCoord_m4v3a_32f(transform, vertices_.data(), 12, screen_.data(), 12, int(vertices()));
    const float edge = 0.02f * float(width_);
    for (std::size_t v = 0; v < screen_.size(); v += 3)
      if (screen_[v] < edge || screen_[v] > float(width_) - edge || screen_[v + 1] < edge ||
          screen_[v + 1] > float(height_) - edge)
        return false;
    return true;
  };
  screen_.resize(vertices_.size());
  double near = 1.4 * radius_, far = 8 * radius_;
  for (int step = 0; step < 20; ++step) (all_inside((near + far) / 2) ? far : near) = (near + far) / 2;
  all_inside(far);
  const auto start = std::chrono::steady_clock::now();
  zelmAffineTransformCoord_m4v3a_32f(transform, vertices_.data(), 12, screen_.data(), 12, int(vertices()));
  milliseconds_ = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// By height, shaded by a light from the north-west on the fitted surfaces' normals.
void View::colour(const Grid& grid, const std::vector<Surface>& surfaces) {
  const float light[3] = {-0.60f, 0.45f, 0.66f};
  float top = 0;
  for (std::size_t v = 0; v < grid.cells(); ++v) top = std::max(top, vertices_[3 * v + 2]);
  colours_.assign(vertices(), kEarth);
  constexpr Colour kShade{0.13f, 0.14f, 0.22f}, kSun{1.0f, 0.98f, 0.91f};
  for (std::size_t v = 0; v < grid.cells(); ++v) {
    const Surface& s = surfaces[v];
    const bool fitted = !std::isnan(s.east);
    const float slope[3] = {fitted ? -float(relief_) * s.east : 0, fitted ? -float(relief_) * s.north : 0, 1};
    float normal[3], lit;
    zelmNormalize_v3_32f(slope, normal);
    zelmDotProduct_v3_32f(normal, light, &lit);
    const float against_level = std::max(lit, 0.0f) / light[2];
    const Colour own = height_colour(vertices_[3 * v + 2] / std::max(top, 1e-6f));
    colours_[v] =
        against_level < 1 ? mix(own, kShade, 0.75f * (1 - against_level)) : mix(own, kSun, 0.55f * (against_level - 1));
  }
}

// A sample is covered by the nearest triangle around its centre; depth and colour are linear over a triangle.
void View::render() {
  const std::size_t all = std::size_t(width_) * std::size_t(height_);
  depth_.assign(all, 1);
  shown_.assign(all, -1);
  samples_.assign(all, kSky);
  for (std::size_t t = 0; t < triangles(); ++t) {
    const float* p[3];
    const Colour* c[3];
    for (std::size_t i = 0; i < 3; ++i) {
      const auto v = std::size_t(corners_[3 * t + i]);
      p[i] = &screen_[3 * v];
      c[i] = &colours_[v];
    }
    const auto cross = [](float ax, float ay, float bx, float by) { return ax * by - ay * bx; };
    const float area = cross(p[1][0] - p[0][0], p[1][1] - p[0][1], p[2][0] - p[0][0], p[2][1] - p[0][1]);
    if (area == 0) continue;
    const auto range = [&](int axis, int size) {
      const auto [low, high] = std::minmax({p[0][axis], p[1][axis], p[2][axis]});
      return std::pair(std::max(0, int(std::ceil(low - 0.5f))), std::min(size - 1, int(std::floor(high - 0.5f))));
    };
    const auto [left, right] = range(0, width_);
    const auto [top, bottom] = range(1, height_);
    for (int y = top; y <= bottom; ++y)
      for (int x = left; x <= right; ++x) {
        const float sx = float(x) + 0.5f, sy = float(y) + 0.5f;
        float w[3];
        for (int i = 0; i < 3; ++i) {
          const float *const a = p[(i + 1) % 3], *const b = p[(i + 2) % 3];
          w[i] = cross(b[0] - a[0], b[1] - a[1], sx - a[0], sy - a[1]) / area;
        }
        if (w[0] < 0 || w[1] < 0 || w[2] < 0) continue;
        const float z = w[0] * p[0][2] + w[1] * p[1][2] + w[2] * p[2][2];
        const std::size_t sample = std::size_t(y) * std::size_t(width_) + std::size_t(x);
        if (z >= depth_[sample]) continue;
        depth_[sample] = z;
        shown_[sample] = int(t);
        const float sum = w[0] + w[1];
        samples_[sample] = mix(sum > 0 ? mix(*c[0], *c[1], w[1] / sum) : *c[2], *c[2], w[2]);
      }
  }
}

Picture View::picture() const {
  Picture picture(width_ / kSamples, height_ / kSamples, kSky);
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) {
      Colour mean{0, 0, 0};
      for (int j = 0; j < kSamples; ++j)
        for (int i = 0; i < kSamples; ++i)
          mean = mix(mean, samples_[std::size_t(y * kSamples + j) * std::size_t(width_) + std::size_t(x * kSamples + i)],
                     1.0f / float(j * kSamples + i + 1));
      picture.set(x, y, mean);
    }
  return picture;
}

std::optional<Place> View::pick(int x, int y) const {
  if (x < 0 || y < 0 || x >= width_ / kSamples || y >= height_ / kSamples) return {};
  const std::size_t sample = std::size_t(y * kSamples) * std::size_t(width_) + std::size_t(x * kSamples);
  const int shown = shown_[sample];
  if (shown < 0 || std::size_t(shown) >= ground_) return {};
  const auto width = float(width_), height = float(height_);
  const float seen[3] = {float(x * kSamples) + 0.5f, float(y * kSamples) + 0.5f, depth_[sample]};
  float place[3], back[3];
  require_ok("zelmUnproject_m4v3_32f", zelmUnproject_m4v3_32f(projection_, view_, kIdentity, seen, width, height, 0, 1, place));
  zelmProject_m4v3_32f(projection_, view_, kIdentity, place, width, height, 0, 1, back);
  const float missed = std::hypot(back[0] - seen[0], back[1] - seen[1]);
  if (!(missed < 0.05f))
    throw std::runtime_error("the picked place is seen " + std::to_string(missed) + " samples beside its pixel");

  // Height of the triangle's plane there.
  const float* p[3];
  for (std::size_t i = 0; i < 3; ++i) p[i] = &vertices_[3 * std::size_t(corners_[3 * std::size_t(shown) + i])];
  float edge[2][3], normal[3];
  for (int i = 0; i < 2; ++i) zelmSub_v3_32f(p[i + 1], p[0], edge[i]);
  zelmCrossProduct_v3_32f(edge[0], edge[1], normal);
  const double plane =
      p[0][2] - (double(normal[0]) * (place[0] - p[0][0]) + double(normal[1]) * (place[1] - p[0][1])) / normal[2];
  const Place found{place[0] / east_ + (columns_ - 1) / 2.0, (rows_ - 1) / 2.0 - place[1] / north_, place[2] / relief_,
                    (place[2] - plane) / relief_};
  // Rounding of the depth moves the place along the line of sight.
  if (!(std::abs(place[2] - plane) < 0x1p-14 * radius_))
    throw std::runtime_error("the picked place lies " + std::to_string(found.error) + " m off the terrain");
  return found;
}

}  // namespace terrain
