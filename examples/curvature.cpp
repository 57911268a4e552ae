#include "curvature.hpp"

#include <zelcore.h>
#include <zelm.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iterator>
#include <limits>
#include <numbers>
#include <stdexcept>
#include <string>

namespace terrain {
namespace {

// An eigenvalue of 0, as level ground has it, would end a call on an array with zelStsSingular. Scaled into [-1/4, 1/4] and moved
// by this much all values lie between 1/4 and 3/4; much above 1 the limits of the iteration, which are absolute, would be too tight.
constexpr double kScale = 0.25, kShift = 0.5;

/// The shape operator L^-1 H L^-T / |(zx, zy, 1)|, where L L^T = [1 + zx^2, zx zy; zx zy, 1 + zy^2] is the first fundamental form
/// and H holds the second derivatives (do Carmo, Differential Geometry of Curves and Surfaces, sec. 3-3).
void set_plane(const Derivatives& z, double* m) {
  const double w = std::sqrt(1 + z.x * z.x + z.y * z.y), l11 = std::sqrt(1 + z.x * z.x), l21 = z.x * z.y / l11, l22 = w / l11;
  const double b11 = z.xx / l11, b12 = z.xy / l11;  // the first row of L^-1 H
  const double b21 = (z.xy - l21 * b11) / l22, b22 = (z.yy - l21 * b12) / l22;
  m[0] = b11 / (l11 * w);
  m[1] = m[2] = b21 / (l11 * w);
  m[3] = (b22 - l21 * b21 / l11) / (l22 * w);
}

/// The same in space: P H P / |(zx, zy, 1)|, where P projects along the normal and H has a row and a column of zeros for z.
void set_space(const Derivatives& z, double* m) {
  const double w2 = 1 + z.x * z.x + z.y * z.y, n[3] = {-z.x, -z.y, 1};
  const double h[3][3] = {{z.xx, z.xy, 0}, {z.xy, z.yy, 0}, {0, 0, 0}};
  double p[3][3], ph[3][3] = {};
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) p[i][j] = (i == j) - n[i] * n[j] / w2;
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j)
      for (int k = 0; k < 3; ++k) ph[i][j] += p[i][k] * h[k][j];
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) {
      double sum = 0;
      for (int k = 0; k < 3; ++k) sum += ph[i][k] * p[k][j];
      m[3 * i + j] = sum / std::sqrt(w2);
    }
}

/// Scales all matrices of order n and moves their eigenvalues by kShift.
void condition(std::vector<double>& matrices, int n, double scale) {
  for (double& x : matrices) x *= scale;
  for (std::size_t k = 0; k < matrices.size(); k += std::size_t(n * n))
    for (int i = 0; i < n; ++i) matrices[k + std::size_t(i * (n + 1))] += kShift;
}

/// The call on all cells. One matrix in some 70,000 comes to lie at the iteration's limits, does not converge, and ends the call: its
/// rows and columns are reversed, and the call goes on from there. One thread, whose last object is the one that failed.
ZelStatus values_and_vectors(std::vector<double>& matrices, std::vector<double>& values, std::vector<double>& vectors) {
  constexpr int E = sizeof(double);
  constexpr std::size_t kNone = std::size_t(-1);
  double buffer[9];
  std::fill(vectors.begin(), vectors.end(), std::numeric_limits<double>::quiet_NaN());
  const std::size_t cells = values.size() / 3;
  std::vector<std::size_t> reversed;
  const int threads = zelGetNumThreads();
  zelSetNumThreads(1);
  ZelStatus status = zelStsOk;
  for (std::size_t first = 0, last = kNone;; last = first) {
    status = zelmEigenValuesVectorsSym_ma_64f(&matrices[9 * first], 9 * E, 3 * E, E, buffer, &vectors[9 * first], 9 * E, 3 * E,
                                              E, &values[3 * first], 3, int(cells - first));
    if (status != zelStsNoConvergence) break;
    while (first + 1 < cells && !std::isnan(vectors[9 * (first + 1)])) ++first;  // the last one that was begun
    if (first == last) break;
    reversed.push_back(first);
    std::reverse(&matrices[9 * first], &matrices[9 * first] + 9);
  }
  zelSetNumThreads(threads);
  for (const std::size_t k : reversed) std::swap_ranges(&vectors[9 * k], &vectors[9 * k] + 3, &vectors[9 * k + 6]);
  return status;
}

double timed(const char* function, auto&& call) {
  const auto start = std::chrono::steady_clock::now();
  if (const ZelStatus status = call(); status != zelStsOk)
    throw std::runtime_error(std::string(function) + " returned " + std::to_string(status));
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

Curvatures principal_curvatures(const Grid& grid, const NormalEquations& equations, const std::vector<float>& coefficients) {
  constexpr int E = sizeof(double);
  const std::size_t cells = grid.cells();
  std::vector<double> plane(4 * cells), space(9 * cells), plane_values(2 * cells), space_values(3 * cells), vectors(9 * cells);
  double largest = std::numeric_limits<double>::min();
  for (std::size_t k = 0; k < cells; ++k) {
    if (!equations.fitted[k]) continue;
    const Derivatives z = derivatives(grid.cell_size(int(k) / grid.columns), &coefficients[k * kTerms]);
    set_plane(z, &plane[4 * k]);
    set_space(z, &space[9 * k]);
    for (std::size_t i = 0; i < 4; ++i) largest = std::max(largest, 2 * std::abs(plane[4 * k + i]));
  }
  condition(plane, 2, kScale / largest);
  condition(space, 3, kScale / largest);

  double buffer[4];
  Curvatures result{std::vector<Bend>(cells), 0, 0, 0};
  result.plane_ms = timed("zelmEigenValuesSym_ma_64f", [&] {
    return zelmEigenValuesSym_ma_64f(plane.data(), 4 * E, 2 * E, E, buffer, plane_values.data(), 2, int(cells));
  });
  result.space_ms = timed("zelmEigenValuesVectorsSym_ma_64f", [&] { return values_and_vectors(space, space_values, vectors); });

  constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
  for (std::size_t k = 0; k < cells; ++k) {
    result.bends[k] = {kNaN, kNaN};
    if (!equations.fitted[k]) continue;
    const double most = (plane_values[2 * k] - kShift) / kScale, least = (plane_values[2 * k + 1] - kShift) / kScale;
    result.bends[k] = {float(most * largest), float(least * largest)};
    // In space the value 0 of the normal stands above, between or below the two: its vector tells which it is.
    const Derivatives z = derivatives(grid.cell_size(int(k) / grid.columns), &coefficients[k * kTerms]);
    const double *const v = &space_values[3 * k], *const x = &vectors[9 * k];
    int normal = 0;
    const auto along = [&](int j) { return std::abs(x[6 + j] - z.x * x[j] - z.y * x[3 + j]); };
    for (int j = 1; j < 3; ++j)
      if (along(j) > along(normal)) normal = j;
    const double first = (v[normal == 0 ? 1 : 0] - kShift) / kScale, second = (v[normal == 2 ? 1 : 2] - kShift) / kScale;
    result.disagreement = std::max({result.disagreement, std::abs(first - most), std::abs(second - least)});
  }
  return result;
}

Picture draw_forms(const Grid& grid, const std::vector<Bend>& bends) {
  constexpr Colour kPaper{0.98f, 0.975f, 0.96f}, kInk{0.17f, 0.18f, 0.20f}, kNothing{0.86f, 0.86f, 0.85f};
  // From peak (index -1) to pit (1).
  constexpr Colour kForms[] = {{0.55f, 0.10f, 0.10f}, {0.85f, 0.40f, 0.10f}, {0.93f, 0.80f, 0.35f}, {0.30f, 0.62f, 0.35f},
                               {0.35f, 0.75f, 0.80f}, {0.15f, 0.45f, 0.75f}, {0.15f, 0.15f, 0.50f}};
  constexpr const char* kNames[] = {"peak", "ridge", "saddle", "valley", "pit"};
  constexpr int kStops = int(std::size(kForms)) - 1;
  const auto form = [&](float index) {  // -1 to 1
    const float place = std::clamp((index + 1) / 2, 0.0f, 1.0f) * kStops;
    const int stop = std::min(int(place), kStops - 1);
    return mix(kForms[stop], kForms[stop + 1], place - float(stop));
  };
  std::vector<float> strengths;
  for (const Bend& b : bends)
    if (!std::isnan(b.most)) strengths.push_back(std::hypot(b.most, b.least));
  float usual = 1;  // the strength that one cell in ten exceeds
  if (!strengths.empty()) {
    const auto place = strengths.begin() + std::ptrdiff_t(strengths.size() * 9 / 10);
    std::nth_element(strengths.begin(), place, strengths.end());
    usual = std::max(*place, std::numeric_limits<float>::min());
  }

  const CellSize cell = grid.cell_size(grid.rows / 2);
  const double stretch = std::clamp(cell.north / cell.east, 0.25, 4.0), scale = std::max(2.0, 800.0 / grid.columns);
  const int width = int(std::ceil(grid.columns * scale)), height = int(std::ceil(grid.rows * scale * stretch));
  const int point = std::max(2, width / 400), gap = 16 * point, title = 20 * point, legend = 32 * point;
  Picture picture(std::max(width, 260 * point) + 2 * gap, title + height + legend, kPaper);
  const int left = (picture.width() - width) / 2;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      const int row = std::min(int(y / (scale * stretch)), grid.rows - 1), column = std::min(int(x / scale), grid.columns - 1);
      const Bend& b = bends[std::size_t(row) * std::size_t(grid.columns) + std::size_t(column)];
      if (std::isnan(b.most)) {
        picture.set(left + x, title + y, kNothing);
        continue;
      }
      const float index = 2 / std::numbers::pi_v<float> * std::atan2(b.most + b.least, b.most - b.least);
      picture.set(left + x, title + y, mix(kPaper, form(index), std::min(1.0f, std::hypot(b.most, b.least) / usual)));
    }
  const auto centred = [&](int x, int y, std::string_view text) {
    picture.write(x - (int(text.size()) * Picture::kAdvance - 1) * point / 2, y, text, point, kInk);
  };
  centred(picture.width() / 2, 6 * point, "forms by principal curvatures, the paler the flatter");
  const int bar = 220 * point, from = (picture.width() - bar) / 2, top = title + height + 6 * point;
  for (int x = 0; x < bar; ++x) picture.fill(from + x, top, 1, 8 * point, form(2 * float(x) / float(bar - 1) - 1));
  for (int i = 0; i < 5; ++i) centred(from + bar * i / 4, top + 11 * point, kNames[i]);
  return picture;
}

}  // namespace terrain
