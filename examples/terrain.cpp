// terrain: slope and curvature of an elevation grid. Fits a quadric around every cell (surface.hpp) with two calls of
// zelm, one that decomposes the matrices of all cells and one that solves them all; times both beside the same work by
// Eigen, checks every solution, and draws the result as maps and in perspective (view.hpp).
#include <unistd.h>
#include <zelcore.h>
#include <zelm.h>

#include <Eigen/Cholesky>
#include <Eigen/LU>
#include <Eigen/QR>
#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <limits>
#include <memory>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "curvature.hpp"
#include "grid.hpp"
#include "maps.hpp"
#include "surface.hpp"
#include "view.hpp"

namespace terrain {
namespace {

constexpr char kUsage[] =
    "Usage: terrain [-o FILE] [--view FILE] [--pick X,Y] [--curvature FILE] [--method M] [--repeat N] [GRID]\n"
    "\n"
    "Fits a quadric around every cell of an elevation grid, reports how long that takes, and draws slope and\n"
    "mean curvature, and the terrain in perspective.\n"
    "\n"
    "  GRID        ESRI ASCII grid, in degrees or metres (default: " TERRAIN_GRID
    ")\n"
    "  -o FILE     the picture, a PNG file (default: terrain.png)\n"
    "  --view FILE the terrain in perspective, a PNG file of 900 x 600 pixels (default: view.png)\n"
    "  --pick X,Y  print which place of the terrain this pixel of the perspective shows\n"
    "  --curvature FILE\n"
    "              draw the forms that the principal curvatures tell apart, too\n"
    "  --method M  lu or cholesky of the 6 normal equations, or qr of the 25 equations behind them (default: lu)\n"
    "  --repeat N  time every call N times, 1 to 1000, and report the median (default: 9)\n"
    "  --help      print this and exit\n"
    "\n"
    "OMP_NUM_THREADS sets what \"all threads\" are.\n";

enum class Method { lu, cholesky, qr };

struct Pixel {
  int x, y;
};

struct Options {
  std::string grid = TERRAIN_GRID, picture = "terrain.png", view = "view.png", curvature;
  std::optional<Pixel> pick;
  Method method = Method::lu;
  int repeat = 9;
  bool help = false;
};

Pixel parse_pixel(const std::string& text) {
  Pixel pixel;
  const char* const end = text.data() + text.size();
  const auto [comma, error] = std::from_chars(text.data(), end, pixel.x);
  if (error == std::errc() && comma != end && *comma == ',') {
    const auto [rest, second] = std::from_chars(comma + 1, end, pixel.y);
    if (second == std::errc() && rest == end) return pixel;
  }
  throw std::runtime_error("--pick takes a column and a row of pixels, like 450,300, not '" + text + "'");
}

Options parse(int argc, char** argv) {
  Options options;
  bool grid_given = false;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    const auto value = [&] {
      if (++i == argc) throw std::runtime_error(argument + " needs a value");
      return std::string(argv[i]);
    };
    if (argument == "--help" || argument == "-h") {
      options.help = true;
    } else if (argument == "-o") {
      options.picture = value();
    } else if (argument == "--method") {
      const std::string text = value();
      if (text == "lu") options.method = Method::lu;
      else if (text == "cholesky") options.method = Method::cholesky;
      else if (text == "qr") options.method = Method::qr;
      else throw std::runtime_error("--method takes lu, cholesky or qr, not '" + text + "'");
    } else if (argument == "--view") {
      options.view = value();
    } else if (argument == "--pick") {
      options.pick = parse_pixel(value());
    } else if (argument == "--curvature") {
      options.curvature = value();
    } else if (argument == "--repeat") {
      const std::string text = value();
      const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), options.repeat);
      if (error != std::errc() || end != text.data() + text.size() || options.repeat < 1 || options.repeat > 1000)
        throw std::runtime_error("--repeat takes a number from 1 to 1000, not '" + text + "'");
    } else if (argument.starts_with('-') && argument != "-") {
      throw std::runtime_error("unknown option " + argument + "; try --help");
    } else if (std::exchange(grid_given, true)) {
      throw std::runtime_error("one grid at a time: " + options.grid + " or " + argument);
    } else {
      options.grid = argument;
    }
  }
  return options;
}

// One line on standard error that replaces itself, if somebody watches.
class Progress {
 public:
  ~Progress() { show(""); }
  void show(const std::string& text) const {
    if (watched_) std::fprintf(stderr, "\r\033[K%s", text.c_str());
  }

 private:
  const bool watched_ = isatty(STDERR_FILENO);
};

double milliseconds(auto&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
  const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return values.size() % 2 ? *middle : (*middle + *std::max_element(values.begin(), middle)) / 2;
}

// The systems of all cells as a method takes them.
struct Systems {
  Systems(Method m, const Grid& grid, const NormalEquations& equations) : method(m), count(int(equations.fitted.size())) {
    if (method == Method::qr) observed = observations(grid, equations);
    matrices = method == Method::qr ? observed.matrices.data() : equations.matrices.data();
    right_sides = method == Method::qr ? observed.right_sides.data() : equations.right_sides.data();
    rows = method == Method::qr ? kObservations : kTerms;
  }
  Systems(const Systems&) = delete;
  Systems& operator=(const Systems&) = delete;

  Method method;
  int count, rows;
  const float *matrices, *right_sides;

 private:
  Observations observed;
};

// Factors and solutions of all cells by zelm.
class Zelm {
 public:
  explicit Zelm(const Systems& systems)
      : systems_(systems),
        factors_(std::size_t(systems.count) * std::size_t(systems.rows * kTerms)),
        order_(systems.method == Method::lu ? std::size_t(systems.count) * kTerms : 0),
        solutions_(std::size_t(systems.count) * kTerms) {}

  void decompose() {
    const float* const a = systems_.matrices;
    float* const f = factors_.data();
    const int matrix = systems_.rows * kRow, count = systems_.count;
    switch (systems_.method) {
      case Method::lu:
        return require_ok("zelmLUDecomp_ma_32f", zelmLUDecomp_ma_32f(a, matrix, kRow, kElement, order_.data(), f, matrix, kRow,
                                                                     kElement, kTerms, count));
      case Method::cholesky:
        return require_ok("zelmCholeskyDecomp_ma_32f",
                          zelmCholeskyDecomp_ma_32f(a, matrix, kRow, kElement, f, matrix, kRow, kElement, kTerms, count));
      case Method::qr:
        return require_ok("zelmQRDecomp_ma_32f", zelmQRDecomp_ma_32f(a, matrix, kRow, kElement, buffer_, f, matrix, kRow,
                                                                     kElement, kTerms, kObservations, count));
    }
  }

  void solve() {
    const float *const f = factors_.data(), *const b = systems_.right_sides;
    float* const x = solutions_.data();
    const int matrix = systems_.rows * kRow, right_side = systems_.rows * kElement, count = systems_.count;
    switch (systems_.method) {
      case Method::lu:
        return require_ok("zelmLUBackSubst_mava_32f",
                          zelmLUBackSubst_mava_32f(f, matrix, kRow, kElement, order_.data(), b, right_side, kElement, x, kRow,
                                                   kElement, kTerms, count));
      case Method::cholesky:
        return require_ok("zelmCholeskyBackSubst_mava_32f",
                          zelmCholeskyBackSubst_mava_32f(f, matrix, kRow, kElement, b, right_side, kElement, x, kRow, kElement,
                                                         kTerms, count));
      case Method::qr:
        return require_ok("zelmQRBackSubst_mava_32f",
                          zelmQRBackSubst_mava_32f(f, matrix, kRow, kElement, buffer_, b, right_side, kElement, x, kRow,
                                                   kElement, kTerms, kObservations, count));
    }
  }

  const std::vector<float>& solutions() const { return solutions_; }

  // Of LU: the largest |A x - b| as a share of its bound; throws if one exceeds it. With L, U as computed, and u = 2^-24,
  // |A x - b| <= g |L| |U| |x| with g = k u / (1 - k u) and k = 3 n + 1: Higham, Accuracy and Stability of Numerical
  // Algorithms (2002), theorems 8.5 and 9.3, and one rounding more for multipliers formed by a reciprocal. It uses the
  // factors themselves, so no assumption on the growth of elements enters. Double precision adds nothing that counts.
  double check_residuals() const {
    constexpr double kRoundings = (3 * kTerms + 1) * 0x1p-24, kBound = kRoundings / (1 - kRoundings);
    constexpr double kUnderflow = std::numeric_limits<float>::min();  // far above what subnormal results can lose
    double largest = 0;
    for (std::size_t cell = 0; cell < std::size_t(systems_.count); ++cell) {
      const float* const matrix = systems_.matrices + cell * kTerms * kTerms;
      const float* const factors = &factors_[cell * kTerms * kTerms];
      const float* const b = systems_.right_sides + cell * kTerms;
      const float* const x = &solutions_[cell * kTerms];
      double upper[kTerms];  // |U| |x|
      for (int i = 0; i < kTerms; ++i) {
        const int row = order_[cell * kTerms + std::size_t(i)];
        double residual = -double(b[row]), size = upper[i] = 0;
        for (int j = 0; j < kTerms; ++j) {
          residual += double(matrix[row * kTerms + j]) * x[j];
          const double factor = std::abs(double(factors[row * kTerms + j]));
          if (j < i) size += factor * upper[j];
          else upper[i] += factor * std::abs(double(x[j]));
        }
        const double share = std::abs(residual) / (kBound * (size + upper[i]) + kUnderflow);
        if (!(share <= 1)) {
          char text[128];
          std::snprintf(text, sizeof text, "cell %zu, equation %d: the residual %g is %g times its bound", cell, row, residual,
                        share);
          throw std::runtime_error(text);
        }
        largest = std::max(largest, share);
      }
    }
    return largest;
  }

 private:
  static constexpr int kElement = sizeof(float), kRow = kTerms * kElement;  // strides

  static void require_ok(const char* function, ZelStatus status) {
    if (status != zelStsOk) throw std::runtime_error(std::string(function) + " returned " + std::to_string(status));
  }

  const Systems& systems_;
  std::vector<float> factors_;
  std::vector<int> order_;  // of the rows, for every cell
  std::vector<float> solutions_;
  float buffer_[kObservations];
};

// The same by Eigen, the cells divided evenly among `threads`.
class Rival {
 public:
  virtual ~Rival() = default;
  virtual void decompose(int threads) = 0;
  virtual void solve(int threads) = 0;
};

template <template <class> class Solver, int rows>
class EigenRival : public Rival {
 public:
  explicit EigenRival(const Systems& systems)
      : systems_(systems), factors_(std::size_t(systems.count)), solutions_(factors_.size() * kTerms) {}

  void decompose(int threads) override {
#pragma omp parallel for num_threads(threads) schedule(static)
    for (std::size_t cell = 0; cell < factors_.size(); ++cell)
      factors_[cell].compute(Eigen::Map<const Stored>(systems_.matrices + cell * rows * kTerms));
  }

  void solve(int threads) override {
#pragma omp parallel for num_threads(threads) schedule(static)
    for (std::size_t cell = 0; cell < factors_.size(); ++cell)
      Eigen::Map<Eigen::Matrix<float, kTerms, 1>>{&solutions_[cell * kTerms]} =
          factors_[cell].solve(Eigen::Map<const Eigen::Matrix<float, rows, 1>>(systems_.right_sides + cell * rows));
  }

 private:
  using Matrix = Eigen::Matrix<float, rows, kTerms>;
  using Stored = Eigen::Matrix<float, rows, kTerms, rows == kTerms ? Eigen::ColMajor : Eigen::RowMajor>;  // or symmetric

  const Systems& systems_;
  std::vector<Solver<Matrix>> factors_;
  std::vector<float> solutions_;
};

template <class Matrix>
using LowerLLT = Eigen::LLT<Matrix>;

std::unique_ptr<Rival> rival_of(const Systems& systems) {
  if (systems.method == Method::lu) return std::make_unique<EigenRival<Eigen::PartialPivLU, kTerms>>(systems);
  if (systems.method == Method::cholesky) return std::make_unique<EigenRival<LowerLLT, kTerms>>(systems);
  return std::make_unique<EigenRival<Eigen::HouseholderQR, kObservations>>(systems);
}

struct Times {
  int threads;
  double decompose, solve, rival_decompose, rival_solve;  // medians in milliseconds
};

// The four are timed in turn, so that what else the machine does falls on all alike; a first round only warms up.
Times time_with(int threads, Zelm& zelm, Rival& rival, int repeat, const Progress& progress) {
  zelSetNumThreads(threads);
  std::vector<double> samples[4];
  for (int round = 0; round <= repeat; ++round) {
    progress.show("Timing with " + std::to_string(threads) + (threads == 1 ? " thread: " : " threads: ") +
                  std::to_string(round) + " of " + std::to_string(repeat));
    const double round_times[] = {milliseconds([&] { zelm.decompose(); }), milliseconds([&] { zelm.solve(); }),
                                  milliseconds([&] { rival.decompose(threads); }), milliseconds([&] { rival.solve(threads); })};
    for (int i = 0; i < 4 && round > 0; ++i) samples[i].push_back(round_times[i]);
  }
  return {threads, median(samples[0]), median(samples[1]), median(samples[2]), median(samples[3])};
}

void print_times(const std::vector<Times>& times, std::size_t cells) {
  std::printf("\n%18s", "");
  for (const Times& t : times) std::printf("%12d thread%c", t.threads, t.threads == 1 ? ' ' : 's');
  std::printf("\n%18s", "");
  for (std::size_t i = 0; i < times.size(); ++i) std::printf("%9s%11s", "ms", "million/s");
  const auto row = [&](const char* work, const char* who, double Times::*time) {
    std::printf("\n%-10s  %-6s", work, who);
    for (const Times& t : times) std::printf("%9.2f%11.2f", t.*time, double(cells) / (t.*time * 1000));
  };
  const auto ratio = [&](double Times::*time, double Times::*rival_time) {
    std::printf("\n%12s%-6s", "", "ratio");
    for (const Times& t : times) std::printf("%9.2f%11s", t.*time / t.*rival_time, "");
  };
  row("decompose", "zelm", &Times::decompose);
  row("", "Eigen", &Times::rival_decompose);
  ratio(&Times::decompose, &Times::rival_decompose);
  row("solve", "zelm", &Times::solve);
  row("", "Eigen", &Times::rival_solve);
  ratio(&Times::solve, &Times::rival_solve);
  std::printf("\n\n");
}

void print_place(const View& view, Pixel pixel) {
  const auto place = view.pick(pixel.x, pixel.y);
  if (!place)
    throw std::runtime_error("pixel " + std::to_string(pixel.x) + "," + std::to_string(pixel.y) + " shows no terrain");
  std::printf("Pixel %d,%d: column %.2f, row %.2f of the grid, %.1f m high; %.2g m from the triangle that the pixel shows\n",
              pixel.x, pixel.y, place->column, place->row, place->height, std::abs(place->error));
}

void draw_curvature(const std::string& path, const Grid& grid, const NormalEquations& equations,
                    const std::vector<float>& coefficients) {
  const Curvatures curvatures = principal_curvatures(grid, equations, coefficients);
  const Picture picture = draw_forms(grid, curvatures.bends);
  picture.save_png(path);
  std::printf(
      "Principal curvatures: %s, %d x %d pixels. Eigenvalues of order 2 in %.1f ms,\n"
      "values and vectors of order 3 in %.1f ms; the two differ by at most %.1e of the largest curvature.\n",
      path.c_str(), picture.width(), picture.height(), curvatures.plane_ms, curvatures.space_ms, curvatures.disagreement);
}

void run(const Options& options) {
  const Progress progress;
  progress.show("Reading " + options.grid);
  const Grid grid = read_grid(options.grid);
  const CellSize cell = grid.cell_size(grid.rows / 2);
  NormalEquations equations;
  progress.show("Setting up the normal equations");
  const double set_up = milliseconds([&] { equations = normal_equations(grid); });
  const auto fitted = std::count(equations.fitted.begin(), equations.fitted.end(), true);
  progress.show("");
  std::printf("%s: %d x %d cells of %.1f m x %.1f m, %td of them with data enough to fit\n",
              std::filesystem::path(options.grid).filename().c_str(), grid.columns, grid.rows, cell.east, cell.north, fitted);
  const Systems systems(options.method, grid, equations);
  std::printf("%zu systems of %d equations; normal equations set up in %.1f ms by one thread\n", grid.cells(), systems.rows,
              set_up);
  std::fflush(stdout);

  const int all = zelGetNumThreads();
  Zelm zelm(systems);
  const std::unique_ptr<Rival> rival = rival_of(systems);
  std::vector<Times> times;
  double residual = 0;
  for (const int threads : {1, all}) {
    if (!times.empty() && threads == 1) break;
    times.push_back(time_with(threads, zelm, *rival, options.repeat, progress));
    if (options.method == Method::lu) residual = std::max(residual, zelm.check_residuals());
  }
  progress.show("");
  print_times(times, grid.cells());
  std::printf("Time of a call on all cells (median of %d) and millions of matrices per second.\n", options.repeat);
  constexpr const char* kSolvers[] = {"PartialPivLU", "LLT", "HouseholderQR"};
  std::printf("Eigen %d.%d.%d: %s<Matrix<float, %d, %d>>, compiled with %s.\n", EIGEN_WORLD_VERSION, EIGEN_MAJOR_VERSION,
              EIGEN_MINOR_VERSION, kSolvers[int(options.method)], systems.rows, kTerms, TERRAIN_FLAGS);
  if (options.method == Method::lu) {
    std::printf("All residuals keep their bound; the largest is %.2f of it.\n", residual);
  } else {
    progress.show("Solving by LU");
    const Systems normal(Method::lu, grid, equations);
    Zelm lu(normal);
    lu.decompose();
    lu.solve();
    const Distance d = largest_distance(equations, zelm.solutions(), lu.solutions());
    progress.show("");
    std::printf("The same surface as by LU: no coefficients are further apart than %.2g m, nor than %.2g of their bound.\n",
                d.metres, d.share);
  }

  progress.show("Drawing " + options.picture);
  const std::vector<Surface> fits = surfaces(grid, equations, zelm.solutions());
  const Picture picture = draw_maps(grid, fits);
  picture.save_png(options.picture);
  progress.show("Drawing " + options.view);
  const View view(grid, fits, 900);
  view.picture().save_png(options.view);
  progress.show("");
  std::printf("Slope and mean curvature: %s, %d x %d pixels\n", options.picture.c_str(), picture.width(), picture.height());
  std::printf("Perspective, heights times %g: %s; a call transformed its %zu vertices in %.2f ms\n", view.relief(),
              options.view.c_str(), view.vertices(), view.milliseconds());
  if (options.pick) print_place(view, *options.pick);
  if (!options.curvature.empty()) draw_curvature(options.curvature, grid, equations, zelm.solutions());
}

}  // namespace
}  // namespace terrain

int main(int argc, char** argv) {
  try {
    const terrain::Options options = terrain::parse(argc, argv);
    if (options.help) std::fputs(terrain::kUsage, stdout);
    else terrain::run(options);
    if (std::fflush(stdout) != 0) throw std::runtime_error("cannot write to standard output");
  } catch (const std::bad_alloc&) {
    std::fputs("terrain: not enough memory for a grid of this size\n", stderr);
    return 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "terrain: %s\n", error.what());
    return 1;
  }
}
