// picture.hpp: a picture in memory, small lettering, and its way into a PNG file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace terrain {

struct Colour {
  float red, green, blue;  // sRGB, 0 to 1
};

inline Colour mix(Colour a, Colour b, float t) {
  return {a.red + (b.red - a.red) * t, a.green + (b.green - a.green) * t, a.blue + (b.blue - a.blue) * t};
}

class Picture {
 public:
  Picture(int width, int height, Colour background);

  int width() const { return width_; }
  int height() const { return height_; }

  /// Sets one pixel; channels are clamped, and pixels outside the picture ignored.
  void set(int x, int y, Colour colour);
  void fill(int x, int y, int width, int height, Colour colour);

  /// Writes with its upper left corner at (x, y): letters in lower case, digits, and . - , : / ( ). A letter takes
  /// kAdvance x kLine points of `point` pixels each, and anything else a blank.
  void write(int x, int y, std::string_view text, int point, Colour colour);
  static constexpr int kAdvance = 6, kLine = 8;

  /// Throws std::runtime_error with "path: reason".
  void save_png(const std::string& path) const;

 private:
  int width_, height_;
  std::vector<std::uint8_t> rgb_;
};

}  // namespace terrain
