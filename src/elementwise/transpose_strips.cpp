#include "elementwise/transpose_strips.hpp"

#include <algorithm>

#include "frame/views.hpp"

namespace {

using zelm::Bytes;
using zelm::load;
using zelm::moved;
using zelm::store;
using P = zelm::Pack<float>;

/// Columns [from, to) and rows [top, bottom), a source column at a time.
void transpose_plain(const std::int32_t* src, Bytes src_row, std::int32_t* dst, Bytes dst_row, int from, int to, int top,
                     int bottom) {
  for (int j = from; j < to; ++j) {
    std::int32_t* const row = moved(dst, j * dst_row);
    ZELM_AS_IT_STANDS for (int i = top; i < bottom; ++i) store(row + i, load(moved(src, i * src_row) + j));
  }
}

}  // namespace

extern "C" {

void p8_ownm_Transpose_32s(const std::int32_t* pSrc, int srcStride1, std::int32_t* pDst, int dstStride1, int width,
                           int height) {
  constexpr int kStrip = 32;
  for (int i = 0; i < height; i += kStrip)
    p8_owniTranspose_32s_asm(moved(pSrc, Bytes(i) * srcStride1), srcStride1, pDst + i, dstStride1, width,
                             std::min(kStrip, height - i));
}

void p8_owniTranspose_32s_asm(const std::int32_t* pSrc, int srcStride1, std::int32_t* pDst, int dstStride1, int width,
                              int rows) {
  constexpr int kBand = 16;  // columns: a cache line of every source row
  const int bands = width / 4 * 4, blocks = rows / 4 * 4;
  for (int band = 0; band < bands; band += kBand) {
    for (int i = 0; i < blocks; i += 4) {
      for (int j = band; j < std::min(band + kBand, bands); j += 4) {
        P tile[4];
        ZELM_UNROLL for (int l = 0; l < 4; ++l) tile[l] =
            P::load(reinterpret_cast<const float*>(moved(pSrc, Bytes(i + l) * srcStride1) + j));
        zelm::transpose(tile);
        ZELM_UNROLL for (int l = 0; l < 4; ++l) tile[l].store(
            reinterpret_cast<float*>(moved(pDst, Bytes(j + l) * dstStride1) + i));
      }
    }
  }
  transpose_plain(pSrc, srcStride1, pDst, dstStride1, 0, bands, blocks, rows);
  transpose_plain(pSrc, srcStride1, pDst, dstStride1, bands, width, 0, rows);
}

void p8_owniTranspose_32s_NT(const std::int32_t* pSrc, int srcStride1, std::int32_t* pDst, int dstStride1, int width,
                             int rows) {
  const auto stream = [](std::int32_t* p, std::int32_t value) { _mm_stream_si32(p, value); };
  for (int j = 0; j < width; j += 2) {
    for (int i = 0; i < rows; ++i) {
      const std::int32_t* const row = moved(pSrc, Bytes(i) * srcStride1);
      stream(moved(pDst, Bytes(j) * dstStride1) + i, load(row + j));
      if (j + 1 < width) stream(moved(pDst, Bytes(j + 1) * dstStride1) + i, load(row + j + 1));
    }
  }
  _mm_sfence();
}
}
