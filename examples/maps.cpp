#include "maps.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <numbers>
#include <span>

namespace terrain {
namespace {

constexpr Colour kPaper{0.98f, 0.975f, 0.96f}, kInk{0.17f, 0.18f, 0.20f}, kNothing{0.86f, 0.86f, 0.85f};

// Evenly spaced stops; both scales grow darker away from their calm end or middle, so that they also read in grey.
constexpr Colour kSlopeScale[] = {
    {0.99f, 0.97f, 0.88f}, {0.98f, 0.84f, 0.56f}, {0.95f, 0.58f, 0.34f}, {0.76f, 0.28f, 0.36f}, {0.40f, 0.13f, 0.40f}};
constexpr Colour kCurvatureScale[] = {{0.60f, 0.22f, 0.04f}, {0.89f, 0.49f, 0.14f}, {0.98f, 0.80f, 0.55f},
                                      {0.96f, 0.95f, 0.92f}, {0.58f, 0.80f, 0.84f}, {0.18f, 0.56f, 0.68f},
                                      {0.04f, 0.29f, 0.47f}};

Colour at(std::span<const Colour> scale, float t) {  // t from 0 to 1
  const float place = std::clamp(t, 0.0f, 1.0f) * float(scale.size() - 1);
  const std::size_t stop = std::min(std::size_t(place), scale.size() - 2);
  return mix(scale[stop], scale[stop + 1], place - float(stop));
}

float slope_degrees(const Surface& s) { return std::atan(std::hypot(s.east, s.north)) * 180 / std::numbers::pi_v<float>; }

// Lambert's cosine against that of level ground: 1 on the level, up to 1.41 towards the light, 0 turned away from it.
// The light stands 45 degrees high in the north-west, the cartographers' habit; relief is doubled to show in plains
// too.
float light(const Surface& s) {
  constexpr float kRelief = 2;
  const float east = kRelief * s.east, north = kRelief * s.north;
  return std::max(0.0f, (east - north) * std::numbers::sqrt2_v<float> / 2 + 1) / std::hypot(east, north, 1.0f);
}

Colour shaded(Colour colour, const Surface& s) {
  const float l = light(s);
  constexpr Colour kShade{0.10f, 0.12f, 0.22f}, kSun{1.0f, 0.98f, 0.92f};
  return l < 1 ? mix(colour, kShade, 0.6f * (1 - l)) : mix(colour, kSun, 0.5f * (l - 1));
}

// The surfaces as a function of any place, bilinear between the cells' centers.
class Field {
 public:
  Field(const Grid& grid, const std::vector<Surface>& surfaces) : grid_(grid), surfaces_(surfaces) {}

  // (x, y) in cells from the north-west corner. Without data where the nearest cell has none; otherwise the mean of
  // the neighbors that have some.
  Surface operator()(double x, double y) const {
    const Surface nearest = cell(int(std::floor(x)), int(std::floor(y)));
    if (std::isnan(nearest.east)) return nearest;
    const int column = int(std::floor(x - 0.5)), row = int(std::floor(y - 0.5));
    const float u = float(x - 0.5 - column), v = float(y - 0.5 - row);
    Surface sum{0, 0, 0};
    float weights = 0;
    for (int j = 0; j < 2; ++j)
      for (int i = 0; i < 2; ++i) {
        const Surface s = cell(column + i, row + j);
        if (std::isnan(s.east)) continue;
        const float weight = (i ? u : 1 - u) * (j ? v : 1 - v);
        sum = {sum.east + weight * s.east, sum.north + weight * s.north, sum.mean_curvature + weight * s.mean_curvature};
        weights += weight;
      }
    return {sum.east / weights, sum.north / weights, sum.mean_curvature / weights};
  }

 private:
  const Surface& cell(int column, int row) const {
    return surfaces_[std::size_t(std::clamp(row, 0, grid_.rows - 1)) * std::size_t(grid_.columns) +
                     std::size_t(std::clamp(column, 0, grid_.columns - 1))];
  }

  const Grid& grid_;
  const std::vector<Surface>& surfaces_;
};

// The value that a share of 0.98 of the cells does not exceed: single spikes shall not fade the whole map.
template <class Value>
float usual_maximum(const std::vector<Surface>& surfaces, Value value) {
  std::vector<float> values;
  for (const Surface& s : surfaces)
    if (!std::isnan(s.east)) values.push_back(value(s));
  if (values.empty()) return 0;
  const auto place = values.begin() + std::ptrdiff_t(0.98 * double(values.size() - 1));
  std::nth_element(values.begin(), place, values.end());
  return *place;
}

double decade(double x) { return std::pow(10, std::floor(std::log10(x))); }

// The largest of 1, 2, 5 times a power of ten that does not exceed x.
double round_down(double x) {
  const double unit = decade(x);
  return x < 2 * unit ? unit : x < 5 * unit ? 2 * unit : 5 * unit;
}

std::string number(double x) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", x);
  return text;
}

struct Box {
  int x, y, width, height;
};

struct Map {
  const char* title;
  std::span<const Colour> scale;
  double low, high;  // values at the scale's ends
  int ticks;         // steps between the numbers at the colour bar
  const char *low_name, *high_name;
};

void write_centered(Picture& picture, int x, int y, std::string_view text, int point) {
  picture.write(x - (int(text.size()) * Picture::kAdvance - 1) * point / 2, y, text, point, kInk);
}

template <class Value>
void draw_map(Picture& picture, const Box& box, const Field& field, const Grid& grid, const Map& map, Value value) {
  for (int y = 0; y < box.height; ++y)
    for (int x = 0; x < box.width; ++x) {
      const Surface s = field((x + 0.5) * grid.columns / box.width, (y + 0.5) * grid.rows / box.height);
      const float t = float((value(s) - map.low) / (map.high - map.low));
      picture.set(box.x + x, box.y + y, std::isnan(t) ? kNothing : shaded(at(map.scale, t), s));
    }
}

void draw_legend(Picture& picture, const Box& bar, const Map& map, int point) {
  for (int x = 0; x < bar.width; ++x)
    picture.fill(bar.x + x, bar.y, 1, bar.height, at(map.scale, float(x) / float(std::max(1, bar.width - 1))));
  const int below = bar.y + bar.height;
  for (int i = 0; i <= map.ticks; ++i) {
    const int x = bar.x + (bar.width - point) * i / map.ticks;
    picture.fill(x, below, point, 2 * point, kInk);
    write_centered(picture, x + point / 2, below + 4 * point, number(map.low + (map.high - map.low) * i / map.ticks), point);
  }
  const int names = below + (4 + Picture::kLine + 3) * point;
  picture.write(bar.x, names, map.low_name, point, kInk);
  const int end = (int(std::string_view(map.high_name).size()) * Picture::kAdvance - 1) * point;
  picture.write(bar.x + bar.width - end, names, map.high_name, point, kInk);
}

// A bar of a round length, at most `longest` pixels, with its length in words below.
void draw_scale(Picture& picture, int x, int y, int longest, double metres_per_pixel, int point) {
  const double metres = round_down(longest * metres_per_pixel);
  const int length = int(std::lround(metres / metres_per_pixel));
  picture.fill(x, y - point, length, point, kInk);
  for (const int end : {x, x + length - point}) picture.fill(end, y - 3 * point, point, 3 * point, kInk);
  picture.write(x, y + 4 * point, metres < 1000 ? number(metres) + " m" : number(metres / 1000) + " km", point, kInk);
}

}  // namespace

Picture draw_maps(const Grid& grid, const std::vector<Surface>& surfaces) {
  const Field field(grid, surfaces);
  const CellSize cell = grid.cell_size(grid.rows / 2);
  // Square ground in the middle of the grid is square on the map, but for extreme latitudes.
  const double stretch = std::clamp(cell.north / cell.east, 0.25, 4.0);
  constexpr double kSmallest = 800;  // pixels along the longer edge of a map; large grids take one per cell
  const double scale = std::max(1.0, kSmallest / std::max(double(grid.columns), grid.rows * stretch));
  const int width = int(std::ceil(grid.columns * scale)), height = int(std::ceil(grid.rows * scale * stretch));
  const int point = std::max(2, std::max(width, height) / 400), gap = 16 * point;
  const int title = 20 * point, legend = 44 * point;
  // Narrow maps are spread out, so that titles and colour bars have room.
  const int panel = std::max(width, 270 * point);
  Picture picture(2 * panel + 3 * gap, title + height + legend + gap, kPaper);

  const auto slope = [](const Surface& s) { return slope_degrees(s); };
  const auto curvature = [](const Surface& s) { return 1000 * s.mean_curvature; };
  const double steepest = 5 * std::max(1.0, std::ceil(usual_maximum(surfaces, slope) / 5.0));
  const double sharp = std::max(1e-3f, usual_maximum(surfaces, [&](const Surface& s) { return std::abs(curvature(s)); }));
  const double sharpest = decade(sharp) * std::ceil(sharp / decade(sharp));
  const Map slope_map{"slope in degrees", kSlopeScale, 0, steepest, 5, "level", "steep"};
  const Map curvature_map{"mean curvature per km", kCurvatureScale, -sharpest, sharpest, 4, "ridge", "hollow"};

  const int bar = 180 * point, bar_top = title + height + 8 * point;
  const auto panel_box = [&](int i) { return Box{gap + i * (panel + gap) + (panel - width) / 2, title, width, height}; };
  const auto finish = [&](const Box& box, const Map& map) {
    const int middle = box.x + box.width / 2;
    write_centered(picture, middle, (title - 7 * point) / 2, map.title, point);
    draw_legend(picture, {middle - bar / 2, bar_top, bar, 8 * point}, map, point);
  };
  draw_map(picture, panel_box(0), field, grid, slope_map, slope);
  finish(panel_box(0), slope_map);
  draw_map(picture, panel_box(1), field, grid, curvature_map, curvature);
  finish(panel_box(1), curvature_map);
  draw_scale(picture, gap, bar_top + 8 * point, (panel - bar) / 2 - gap, cell.east * grid.columns / width, point);
  return picture;
}

}  // namespace terrain
