// inverse4.hpp: the inverse of a 4 x 4 matrix of doubles, rows one after the other: cofactors times the reciprocal of the
// determinant. Unproject inverts in double what it then rounds to float.
#pragma once
#include "zelm_types.h"

namespace zelm::geometry {

/// A determinant below 2 * (2 * 4^3) * 2^-1022 is that of a singular matrix; d is then left alone.
inline constexpr double kSmallestDeterminant64 = 0x1p-1014;

inline ZelStatus invert4(const double (&m)[16], double (&d)[16]) {
  // 2 x 2 minors of the upper two rows and of the lower two, by pairs of columns 01 02 03 12 13 23.
  constexpr int pair[6][2] = {{0, 1}, {0, 2}, {0, 3}, {1, 2}, {1, 3}, {2, 3}};
  double upper[6], lower[6];
  for (int p = 0; p < 6; ++p) {
    const int i = pair[p][0], j = pair[p][1];
    upper[p] = m[i] * m[4 + j] - m[j] * m[4 + i];
    lower[p] = m[8 + i] * m[12 + j] - m[8 + j] * m[12 + i];
  }
  // The determinant of a row and the two of the minors without column c, with the sign of its place.
  const auto cofactor = [&](int row, int c, const double(&minors)[6]) {
    const int i = c == 0, j = c < 2 ? 2 : 1, k = c == 3 ? 2 : 3;
    const auto of = [&](int a, int b) { return minors[a == 0 ? b - 1 : a + b]; };
    const double* r = m + 4 * row;
    const double value = r[i] * of(j, k) - r[j] * of(i, k) + r[k] * of(i, j);
    return c % 2 ? -value : value;
  };
  double c[16];
  for (int j = 0; j < 4; ++j) {
    c[j] = cofactor(1, j, lower);
    c[4 + j] = -cofactor(0, j, lower);
    c[8 + j] = cofactor(3, j, upper);
    c[12 + j] = -cofactor(2, j, upper);
  }
  const double determinant = m[0] * c[0] + m[4] * c[4] + m[8] * c[8] + m[12] * c[12];
  if (kSmallestDeterminant64 > __builtin_fabs(determinant)) return zelStsSingular;
  const double reciprocal = 1 / determinant;
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) d[4 * i + j] = c[4 * j + i] * reciprocal;
  return zelStsOk;
}

}  // namespace zelm::geometry
