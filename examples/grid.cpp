#include "grid.hpp"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <memory>
#include <numbers>
#include <optional>
#include <stdexcept>
#include <string_view>

namespace terrain {
namespace {

// Beyond this a height is a mistake, most often a NODATA value that the header does not name.
constexpr double kHighest = 1e6;
constexpr double kSmallestCell = 1e-6, kLargestCell = 1e6;

std::string load(const std::string& path) {
  const auto fail = [&](int error) { throw std::runtime_error(path + ": " + std::strerror(error)); };
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
  if (!file) fail(errno);
  std::string text;
  for (std::size_t got = 1; got > 0;) {
    constexpr std::size_t kBlock = 1 << 20;
    const std::size_t size = text.size();
    text.resize(size + kBlock);
    got = std::fread(text.data() + size, 1, kBlock, file.get());
    text.resize(size + got);
  }
  if (std::ferror(file.get())) fail(errno);
  return text;
}

bool is_blank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

std::string lower(std::string_view text) {
  std::string result(text);
  for (char& c : result) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return result;
}

// Words and numbers of a text; remembers where the last one began, so that a complaint can name its line.
class Tokens {
 public:
  Tokens(const std::string& path, std::string_view text) : path_(path), text_(text) {}

  std::string_view next() {
    while (end_ < text_.size() && is_blank(text_[end_])) ++end_;
    begin_ = end_;
    while (end_ < text_.size() && !is_blank(text_[end_])) ++end_;
    return text_.substr(begin_, end_ - begin_);
  }

  std::size_t unread() const { return text_.size() - end_; }

  double number(std::string_view token) const {
    double value = 0;
    const char* const end = token.data() + token.size();
    const auto [stop, error] = std::from_chars(token.data(), end, value);
    if (error != std::errc() || stop != end) fail(quoted(token) + " is not a number");
    return value;
  }

  [[noreturn]] void fail(const std::string& reason) const {
    const auto line = 1 + std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(begin_), '\n');
    throw std::runtime_error(path_ + ":" + std::to_string(line) + ": " + reason);
  }
  [[noreturn]] void fail_header(const std::string& reason) const {  // about the whole of it, so no line
    throw std::runtime_error(path_ + ": " + reason);
  }

  static std::string quoted(std::string_view token) {  // short and printable, whatever the file holds
    std::string result(token.substr(0, 24));
    for (char& c : result)
      if (!std::isprint(static_cast<unsigned char>(c))) c = '?';
    return "'" + result + (token.size() > 24 ? "...'" : "'");
  }

 private:
  const std::string& path_;
  std::string_view text_;
  std::size_t begin_ = 0, end_ = 0;
};

struct Header {
  std::optional<double> columns, rows, west, west_center, south, south_center, cell, no_data;
};

// Reads the header and returns the first token behind it.
std::string_view read_header(Tokens& tokens, Header& header) {
  const struct {
    const char* name;
    std::optional<double>& value;
  } keys[] = {{"ncols", header.columns},         {"nrows", header.rows},          {"xllcorner", header.west},
              {"xllcenter", header.west_center}, {"yllcorner", header.south},     {"yllcenter", header.south_center},
              {"cellsize", header.cell},         {"nodata_value", header.no_data}};
  std::string_view token = tokens.next();
  for (; !token.empty() && std::isalpha(static_cast<unsigned char>(token[0])); token = tokens.next()) {
    const std::string name = lower(token);
    if (name == "nan" || name == "inf") break;  // heights
    const auto key = std::find_if(std::begin(keys), std::end(keys), [&](const auto& k) { return name == k.name; });
    if (key == std::end(keys)) tokens.fail(Tokens::quoted(token) + " is not a key of an ESRI ASCII grid");
    if (key->value) tokens.fail(name + " is given twice");
    token = tokens.next();
    if (token.empty()) tokens.fail(name + " has no value");
    key->value = tokens.number(token);
    if (!std::isfinite(*key->value) && name != "nodata_value") tokens.fail(name + " is not finite");
  }
  return token;
}

int size_of(const Tokens& tokens, const std::optional<double>& value, const char* name) {
  if (!value) tokens.fail_header(std::string("the header does not give ") + name);
  if (!(*value >= 1 && *value <= INT_MAX && *value == std::floor(*value)))
    tokens.fail_header(std::string(name) + " must be a whole number from 1 to " + std::to_string(INT_MAX));
  return static_cast<int>(*value);
}

double edge_of(const Tokens& tokens, const std::optional<double>& corner, const std::optional<double>& center, double cell,
               const std::string& axis) {
  if (corner.has_value() == center.has_value())
    tokens.fail_header("the header must give one of " + axis + "llcorner and " + axis + "llcenter");
  return corner ? *corner : *center - cell / 2;
}

}  // namespace

Grid read_grid(const std::string& path) {
  const std::string text = load(path);
  Tokens tokens(path, text);
  Header header;
  std::string_view token = read_header(tokens, header);

  Grid grid;
  grid.columns = size_of(tokens, header.columns, "ncols");
  grid.rows = size_of(tokens, header.rows, "nrows");
  if (!header.cell || !(*header.cell >= kSmallestCell && *header.cell <= kLargestCell))
    tokens.fail_header("the header must give a cellsize from 1e-6 to 1e6");
  grid.cell = *header.cell;
  grid.south = edge_of(tokens, header.south, header.south_center, grid.cell, "y");
  const double west = edge_of(tokens, header.west, header.west_center, grid.cell, "x");
  const double first = grid.south + grid.cell / 2, last = first + (grid.rows - 1) * grid.cell;  // rows' centers
  grid.geographic = grid.cell <= 1 && first > -90 && last < 90 && west >= -360 && west + grid.columns * grid.cell <= 720;

  const std::int64_t cells = std::int64_t{grid.columns} * grid.rows;
  const std::string size = std::to_string(grid.columns) + " x " + std::to_string(grid.rows);
  if (cells > INT_MAX) tokens.fail_header(size + " cells are more than " + std::to_string(INT_MAX));
  // A height takes two characters at least: a short file that promises many of them gets no memory for them.
  grid.heights.reserve(std::min(static_cast<std::size_t>(cells), tokens.unread() / 2 + 1));
  const double no_data = header.no_data.value_or(-9999);  // the format's default
  for (std::int64_t i = 0; i < cells; ++i, token = tokens.next()) {
    if (token.empty()) tokens.fail("the file ends after " + std::to_string(i) + " of " + size + " heights");
    const double height = tokens.number(token);
    const bool missing = height == no_data || (std::isnan(height) && std::isnan(no_data));
    if (!missing && !(std::abs(height) <= kHighest)) tokens.fail(Tokens::quoted(token) + " is no height in metres");
    grid.heights.push_back(missing ? std::numeric_limits<float>::quiet_NaN() : static_cast<float>(height));
  }
  if (!token.empty()) tokens.fail(Tokens::quoted(token) + " follows the last of " + size + " heights");
  return grid;
}

// Meridian and prime vertical radii of curvature on the WGS84 ellipsoid; Snyder, Map Projections: A Working Manual
// (USGS Professional Paper 1395, 1987), section 4.
CellSize Grid::cell_size(int row) const {
  if (!geographic) return {cell, cell};
  constexpr double kEquatorial = 6378137.0, kFlattening = 1 / 298.257223563;
  constexpr double kEccentricity2 = kFlattening * (2 - kFlattening), kRadian = std::numbers::pi / 180;
  const double latitude = (south + (rows - row - 0.5) * cell) * kRadian;
  const double w = 1 - kEccentricity2 * std::pow(std::sin(latitude), 2);
  const double across = kEquatorial / std::sqrt(w), along = across * (1 - kEccentricity2) / w;
  return {cell * kRadian * across * std::cos(latitude), cell * kRadian * along};
}

}  // namespace terrain
