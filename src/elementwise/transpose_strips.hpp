// transpose_strips.hpp: the transpose of one large matrix of 32-bit elements, in strips that stay in the first-level cache.
#pragma once
#include <cstdint>

extern "C" {

/// dst(j, i) = src(i, j), strips of at most 32 source rows one after the other. Strides in bytes.
void p8_ownm_Transpose_32s(const std::int32_t* pSrc, int srcStride1, std::int32_t* pDst, int dstStride1, int width, int height);

/// One strip: `rows` rows of the source, in tiles of 4 x 4.
void p8_owniTranspose_32s_asm(const std::int32_t* pSrc, int srcStride1, std::int32_t* pDst, int dstStride1, int width,
                              int rows);

/// The same past the caches, two source columns at a time. For destinations that nobody reads soon.
void p8_owniTranspose_32s_NT(const std::int32_t* pSrc, int srcStride1, std::int32_t* pDst, int dstStride1, int width, int rows);
}
