/* zelm.h: small-matrix and small-vector mathematics; one call processes a whole array of objects.
 *
 * Generated from the catalog; do not edit.
 *
 * A name is the operation, one tag for each operand, the element type and the memory layout: zelmAdd_mam_32f_L.
 *   m matrix, t transposed matrix, v vector, c constant; `a` behind a letter: an array of `count` such objects
 *   32f float, 64f double
 *   nothing behind the type: standard layout; _L: a list of pointers to objects; _P: a table of pointers to elements
 *
 * Element (i, j), row i and column j, of object k lies at
 *   standard  pSrc + k*stride0 + i*stride1 + j*stride2
 *   _L        ppSrc[k] + byteShift + i*stride1 + j*stride2
 *   _P        ppSrc[i*columns + j] + byteShift + k*stride0     columns: those of the stored object
 * A vector is its only row; an operand without `a` has no stride0, and in _L functions keeps the standard layout.
 * Strides and byte shifts count BYTES. Strides are positive multiples of the element size, byte shifts multiples of it from 0
 * up; there is no other demand on them, nor on the alignment of any pointer.
 *
 * Every function returns zelStsOk or a negative status. Bad arguments (a null pointer, a count or size below 1, a bad stride or
 * byte shift, sizes that do not agree) are refused with nothing written; the docstrings name what else can be returned.
 * In formulas k runs over the objects, i over rows, j over columns; A and B (a and b) are the sources, D (d) the destination.
 * All functions may be called from any thread at any time. Large arrays are divided among the threads that zelcore.h sets.
 */
#ifndef ZELM_H
#define ZELM_H

#include "zelm_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Add ---- */

/** D[k](i, j) = A[k](i, j) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mam_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mam_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* pSrc2, int src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mam_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mam_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const double* pSrc2,
    int src2Stride1, int src2Stride2, double* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mam_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mam_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) + B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mama_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride0, int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2,
    int width, int height, int count);

/** D[k](i, j) = A[k](i, j) + B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mama_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, float* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) + B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mama_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) + B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mama_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, double* pDst, int dstStride0,
    int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) + B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mama_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, double* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) + B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mama_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mat_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mat_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* pSrc2, int src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mat_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mat_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const double* pSrc2,
    int src2Stride1, int src2Stride2, double* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mat_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mat_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D(i, j) = A(i, j) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mm_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride1,
    int src2Stride2, float* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(i, j) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mm_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, float* const* ppDst, int dstByteShift, int width, int height);

/** D(i, j) = A(i, j) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mm_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2, int src2Stride1,
    int src2Stride2, double* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(i, j) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_mm_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, double* const* ppDst, int dstByteShift, int width, int height);

/** D[k](i, j) = A[k](j, i) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tam_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tam_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* pSrc2, int src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tam_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tam_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const double* pSrc2,
    int src2Stride1, int src2Stride2, double* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tam_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tam_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) + B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tama_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride0, int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2,
    int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tama_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, float* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tama_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tama_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, double* pDst, int dstStride0,
    int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tama_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, double* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tama_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tat_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tat_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* pSrc2, int src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tat_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tat_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const double* pSrc2,
    int src2Stride1, int src2Stride2, double* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tat_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tat_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) + B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tata_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride0, int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2,
    int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tata_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, float* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tata_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tata_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, double* pDst, int dstStride0,
    int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tata_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, double* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) + B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tata_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D(i, j) = A(j, i) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tm_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride1,
    int src2Stride2, float* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(j, i) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tm_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, float* const* ppDst, int dstByteShift, int width, int height);

/** D(i, j) = A(j, i) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tm_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2, int src2Stride1,
    int src2Stride2, double* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(j, i) + B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tm_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, double* const* ppDst, int dstByteShift, int width, int height);

/** D(i, j) = A(j, i) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tt_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride1,
    int src2Stride2, float* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(j, i) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tt_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, float* const* ppDst, int dstByteShift, int width, int height);

/** D(i, j) = A(j, i) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tt_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2, int src2Stride1,
    int src2Stride2, double* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(j, i) + B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmAdd_tt_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, double* const* ppDst, int dstByteShift, int width, int height);

/** d[k](j) = a[k](j) + b(j); vectors of width elements. */
ZelStatus zelmAdd_vav_32f(const float* pSrc1, int src1Stride0, int src1Stride2, const float* pSrc2, int src2Stride2,
    float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + b(j); vectors of width elements. */
ZelStatus zelmAdd_vav_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2, const float* pSrc2,
    int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + b(j); vectors of width elements. */
ZelStatus zelmAdd_vav_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int width,
    int count);

/** d[k](j) = a[k](j) + b(j); vectors of width elements. */
ZelStatus zelmAdd_vav_64f(const double* pSrc1, int src1Stride0, int src1Stride2, const double* pSrc2, int src2Stride2,
    double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + b(j); vectors of width elements. */
ZelStatus zelmAdd_vav_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride2, const double* pSrc2,
    int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + b(j); vectors of width elements. */
ZelStatus zelmAdd_vav_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int dstStride0, int width,
    int count);

/** d[k](j) = a[k](j) + b[k](j); vectors of width elements. */
ZelStatus zelmAdd_vava_32f(const float* pSrc1, int src1Stride0, int src1Stride2, const float* pSrc2, int src2Stride0,
    int src2Stride2, float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + b[k](j); vectors of width elements. */
ZelStatus zelmAdd_vava_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* const* ppDst, int dstByteShift,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + b[k](j); vectors of width elements. */
ZelStatus zelmAdd_vava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int count);

/** d[k](j) = a[k](j) + b[k](j); vectors of width elements. */
ZelStatus zelmAdd_vava_64f(const double* pSrc1, int src1Stride0, int src1Stride2, const double* pSrc2,
    int src2Stride0, int src2Stride2, double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + b[k](j); vectors of width elements. */
ZelStatus zelmAdd_vava_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride2,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst, int dstByteShift,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + b[k](j); vectors of width elements. */
ZelStatus zelmAdd_vava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int count);

/** d(j) = a(j) + b(j); vectors of width elements. */
ZelStatus zelmAdd_vv_32f(const float* pSrc1, int src1Stride2, const float* pSrc2, int src2Stride2, float* pDst,
    int dstStride2, int width);

/** d(j) = a(j) + b(j); vectors of width elements. */
ZelStatus zelmAdd_vv_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, float* const* ppDst, int dstByteShift, int width);

/** d(j) = a(j) + b(j); vectors of width elements. */
ZelStatus zelmAdd_vv_64f(const double* pSrc1, int src1Stride2, const double* pSrc2, int src2Stride2, double* pDst,
    int dstStride2, int width);

/** d(j) = a(j) + b(j); vectors of width elements. */
ZelStatus zelmAdd_vv_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, double* const* ppDst, int dstByteShift, int width);

/* ---- GetLibVersion ---- */

/** the version record of the library; never null. */
const ZelLibVersion* zelmGetLibVersion(void);

/* ---- LUBackSubst ---- */

/** solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; A of order widthHeight; b and
    x widthHeight elements. */
ZelStatus zelmLUBackSubst_mava_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const int* pSrcIndex, const float* pSrc2, int src2Stride0, int src2Stride2, float* pDst, int dstStride0,
    int dstStride2, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; A of order widthHeight; b and
    x widthHeight elements. */
ZelStatus zelmLUBackSubst_mava_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const int* pSrcIndex, const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* const* ppDst,
    int dstByteShift, int dstStride2, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; A of order widthHeight; b and
    x widthHeight elements. */
ZelStatus zelmLUBackSubst_mava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const int* pSrcIndex, const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst,
    int dstByteShift, int dstStride0, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; A of order widthHeight; b and
    x widthHeight elements. */
ZelStatus zelmLUBackSubst_mava_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const int* pSrcIndex, const double* pSrc2, int src2Stride0, int src2Stride2, double* pDst, int dstStride0,
    int dstStride2, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; A of order widthHeight; b and
    x widthHeight elements. */
ZelStatus zelmLUBackSubst_mava_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const int* pSrcIndex, const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst,
    int dstByteShift, int dstStride2, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; A of order widthHeight; b and
    x widthHeight elements. */
ZelStatus zelmLUBackSubst_mava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const int* pSrcIndex, const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst,
    int dstByteShift, int dstStride0, int widthHeight, int count);

/** solves A x = b from the factors and the row order that zelmLUDecomp wrote; A of order widthHeight; b and x
    widthHeight elements. */
ZelStatus zelmLUBackSubst_mv_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex,
    const float* pSrc2, int src2Stride2, float* pDst, int dstStride2, int widthHeight);

/** solves A x = b from the factors and the row order that zelmLUDecomp wrote; A of order widthHeight; b and x
    widthHeight elements. */
ZelStatus zelmLUBackSubst_mv_32f_P(const float* const* ppSrc1, int src1ByteShift, const int* pSrcIndex,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int widthHeight);

/** solves A x = b from the factors and the row order that zelmLUDecomp wrote; A of order widthHeight; b and x
    widthHeight elements. */
ZelStatus zelmLUBackSubst_mv_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex,
    const double* pSrc2, int src2Stride2, double* pDst, int dstStride2, int widthHeight);

/** solves A x = b from the factors and the row order that zelmLUDecomp wrote; A of order widthHeight; b and x
    widthHeight elements. */
ZelStatus zelmLUBackSubst_mv_64f_P(const double* const* ppSrc1, int src1ByteShift, const int* pSrcIndex,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int widthHeight);

/** solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; A of order widthHeight; b and x
    widthHeight elements. */
ZelStatus zelmLUBackSubst_mva_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex,
    const float* pSrc2, int src2Stride0, int src2Stride2, float* pDst, int dstStride0, int dstStride2,
    int widthHeight, int count);

/** solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; A of order widthHeight; b and x
    widthHeight elements. */
ZelStatus zelmLUBackSubst_mva_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* const* ppDst, int dstByteShift,
    int dstStride2, int widthHeight, int count);

/** solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; A of order widthHeight; b and x
    widthHeight elements. */
ZelStatus zelmLUBackSubst_mva_32f_P(const float* const* ppSrc1, int src1ByteShift, const int* pSrcIndex,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int widthHeight, int count);

/** solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; A of order widthHeight; b and x
    widthHeight elements. */
ZelStatus zelmLUBackSubst_mva_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex,
    const double* pSrc2, int src2Stride0, int src2Stride2, double* pDst, int dstStride0, int dstStride2,
    int widthHeight, int count);

/** solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; A of order widthHeight; b and x
    widthHeight elements. */
ZelStatus zelmLUBackSubst_mva_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst, int dstByteShift,
    int dstStride2, int widthHeight, int count);

/** solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; A of order widthHeight; b and x
    widthHeight elements. */
ZelStatus zelmLUBackSubst_mva_64f_P(const double* const* ppSrc1, int src1ByteShift, const int* pSrcIndex,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int widthHeight, int count);

/* ---- LUDecomp ---- */

/** P A = L U with partial pivoting by rows. D holds both factors in A's row order: with p the object's n entries of
    pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L; square matrices of order
    widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_m_32f(const float* pSrc, int srcStride1, int srcStride2, int* pDstIndex, float* pDst,
    int dstStride1, int dstStride2, int widthHeight);

/** P A = L U with partial pivoting by rows. D holds both factors in A's row order: with p the object's n entries of
    pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L; square matrices of order
    widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_m_32f_P(const float* const* ppSrc, int srcByteShift, int* pDstIndex, float* const* ppDst,
    int dstByteShift, int widthHeight);

/** P A = L U with partial pivoting by rows. D holds both factors in A's row order: with p the object's n entries of
    pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L; square matrices of order
    widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_m_64f(const double* pSrc, int srcStride1, int srcStride2, int* pDstIndex, double* pDst,
    int dstStride1, int dstStride2, int widthHeight);

/** P A = L U with partial pivoting by rows. D holds both factors in A's row order: with p the object's n entries of
    pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L; square matrices of order
    widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_m_64f_P(const double* const* ppSrc, int srcByteShift, int* pDstIndex, double* const* ppDst,
    int dstByteShift, int widthHeight);

/** P A = L U with partial pivoting by rows. D holds both factors in A's row order: with p the object's n entries of
    pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L; square matrices of order
    widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, int* pDstIndex,
    float* pDst, int dstStride0, int dstStride1, int dstStride2, int widthHeight, int count);

/** P A = L U with partial pivoting by rows. D holds both factors in A's row order: with p the object's n entries of
    pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L; square matrices of order
    widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    int* pDstIndex, float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int widthHeight, int count);

/** P A = L U with partial pivoting by rows. D holds both factors in A's row order: with p the object's n entries of
    pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L; square matrices of order
    widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, int* pDstIndex,
    float* const* ppDst, int dstByteShift, int dstStride0, int widthHeight, int count);

/** P A = L U with partial pivoting by rows. D holds both factors in A's row order: with p the object's n entries of
    pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L; square matrices of order
    widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, int* pDstIndex,
    double* pDst, int dstStride0, int dstStride1, int dstStride2, int widthHeight, int count);

/** P A = L U with partial pivoting by rows. D holds both factors in A's row order: with p the object's n entries of
    pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L; square matrices of order
    widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    int* pDstIndex, double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int widthHeight, int count);

/** P A = L U with partial pivoting by rows. D holds both factors in A's row order: with p the object's n entries of
    pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L; square matrices of order
    widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, int* pDstIndex,
    double* const* ppDst, int dstByteShift, int dstStride0, int widthHeight, int count);

/* ---- Sub ---- */

/** D[k](i, j) = A[k](i, j) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mam_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mam_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* pSrc2, int src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mam_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mam_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const double* pSrc2,
    int src2Stride1, int src2Stride2, double* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mam_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mam_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mama_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride0, int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2,
    int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mama_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, float* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mama_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mama_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, double* pDst, int dstStride0,
    int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mama_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, double* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mama_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mat_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mat_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* pSrc2, int src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mat_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mat_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const double* pSrc2,
    int src2Stride1, int src2Stride2, double* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mat_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mat_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](i, j) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mata_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride0, int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2,
    int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mata_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, float* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mata_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mata_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, double* pDst, int dstStride0,
    int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mata_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, double* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mata_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D(i, j) = A(i, j) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mm_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride1,
    int src2Stride2, float* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(i, j) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mm_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, float* const* ppDst, int dstByteShift, int width, int height);

/** D(i, j) = A(i, j) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mm_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2, int src2Stride1,
    int src2Stride2, double* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(i, j) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mm_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, double* const* ppDst, int dstByteShift, int width, int height);

/** D[k](i, j) = A(i, j) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mma_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride0,
    int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A(i, j) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mma_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A(i, j) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mma_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift, int dstStride0, int width, int height,
    int count);

/** D[k](i, j) = A(i, j) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mma_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2, int src2Stride0,
    int src2Stride1, int src2Stride2, double* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A(i, j) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mma_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A(i, j) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mma_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift, int dstStride0, int width, int height,
    int count);

/** D(i, j) = A(i, j) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mt_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride1,
    int src2Stride2, float* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(i, j) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mt_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, float* const* ppDst, int dstByteShift, int width, int height);

/** D(i, j) = A(i, j) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mt_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2, int src2Stride1,
    int src2Stride2, double* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(i, j) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mt_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, double* const* ppDst, int dstByteShift, int width, int height);

/** D[k](i, j) = A(i, j) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mta_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride0,
    int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A(i, j) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mta_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A(i, j) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mta_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift, int dstStride0, int width, int height,
    int count);

/** D[k](i, j) = A(i, j) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mta_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2, int src2Stride0,
    int src2Stride1, int src2Stride2, double* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A(i, j) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mta_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A(i, j) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_mta_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift, int dstStride0, int width, int height,
    int count);

/** D[k](i, j) = A[k](j, i) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tam_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tam_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* pSrc2, int src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tam_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tam_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const double* pSrc2,
    int src2Stride1, int src2Stride2, double* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tam_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tam_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tama_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride0, int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2,
    int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tama_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, float* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tama_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tama_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, double* pDst, int dstStride0,
    int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tama_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, double* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tama_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tat_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tat_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* pSrc2, int src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tat_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tat_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const double* pSrc2,
    int src2Stride1, int src2Stride2, double* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tat_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tat_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int dstStride0, int width,
    int height, int count);

/** D[k](i, j) = A[k](j, i) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tata_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride0, int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2,
    int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tata_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, float* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tata_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tata_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, double* pDst, int dstStride0,
    int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tata_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, double* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tata_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** D(i, j) = A(j, i) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tm_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride1,
    int src2Stride2, float* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(j, i) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tm_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, float* const* ppDst, int dstByteShift, int width, int height);

/** D(i, j) = A(j, i) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tm_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2, int src2Stride1,
    int src2Stride2, double* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(j, i) - B(i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tm_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, double* const* ppDst, int dstByteShift, int width, int height);

/** D[k](i, j) = A(j, i) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tma_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride0,
    int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A(j, i) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tma_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A(j, i) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tma_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift, int dstStride0, int width, int height,
    int count);

/** D[k](i, j) = A(j, i) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tma_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2, int src2Stride0,
    int src2Stride1, int src2Stride2, double* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A(j, i) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tma_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A(j, i) - B[k](i, j); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tma_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift, int dstStride0, int width, int height,
    int count);

/** D(i, j) = A(j, i) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tt_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride1,
    int src2Stride2, float* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(j, i) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tt_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, float* const* ppDst, int dstByteShift, int width, int height);

/** D(i, j) = A(j, i) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tt_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2, int src2Stride1,
    int src2Stride2, double* pDst, int dstStride1, int dstStride2, int width, int height);

/** D(i, j) = A(j, i) - B(j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tt_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, double* const* ppDst, int dstByteShift, int width, int height);

/** D[k](i, j) = A(j, i) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tta_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride0,
    int src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A(j, i) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tta_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A(j, i) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tta_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift, int dstStride0, int width, int height,
    int count);

/** D[k](i, j) = A(j, i) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tta_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2, int src2Stride0,
    int src2Stride1, int src2Stride2, double* pDst, int dstStride0, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = A(j, i) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tta_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1,
    int dstStride2, int width, int height, int count);

/** D[k](i, j) = A(j, i) - B[k](j, i); D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmSub_tta_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift, int dstStride0, int width, int height,
    int count);

/** d[k](j) = a[k](j) - b(j); vectors of width elements. */
ZelStatus zelmSub_vav_32f(const float* pSrc1, int src1Stride0, int src1Stride2, const float* pSrc2, int src2Stride2,
    float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - b(j); vectors of width elements. */
ZelStatus zelmSub_vav_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2, const float* pSrc2,
    int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - b(j); vectors of width elements. */
ZelStatus zelmSub_vav_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int width,
    int count);

/** d[k](j) = a[k](j) - b(j); vectors of width elements. */
ZelStatus zelmSub_vav_64f(const double* pSrc1, int src1Stride0, int src1Stride2, const double* pSrc2, int src2Stride2,
    double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - b(j); vectors of width elements. */
ZelStatus zelmSub_vav_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride2, const double* pSrc2,
    int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - b(j); vectors of width elements. */
ZelStatus zelmSub_vav_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int dstStride0, int width,
    int count);

/** d[k](j) = a[k](j) - b[k](j); vectors of width elements. */
ZelStatus zelmSub_vava_32f(const float* pSrc1, int src1Stride0, int src1Stride2, const float* pSrc2, int src2Stride0,
    int src2Stride2, float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - b[k](j); vectors of width elements. */
ZelStatus zelmSub_vava_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* const* ppDst, int dstByteShift,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - b[k](j); vectors of width elements. */
ZelStatus zelmSub_vava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int count);

/** d[k](j) = a[k](j) - b[k](j); vectors of width elements. */
ZelStatus zelmSub_vava_64f(const double* pSrc1, int src1Stride0, int src1Stride2, const double* pSrc2,
    int src2Stride0, int src2Stride2, double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - b[k](j); vectors of width elements. */
ZelStatus zelmSub_vava_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride2,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst, int dstByteShift,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - b[k](j); vectors of width elements. */
ZelStatus zelmSub_vava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int count);

/** d(j) = a(j) - b(j); vectors of width elements. */
ZelStatus zelmSub_vv_32f(const float* pSrc1, int src1Stride2, const float* pSrc2, int src2Stride2, float* pDst,
    int dstStride2, int width);

/** d(j) = a(j) - b(j); vectors of width elements. */
ZelStatus zelmSub_vv_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, float* const* ppDst, int dstByteShift, int width);

/** d(j) = a(j) - b(j); vectors of width elements. */
ZelStatus zelmSub_vv_64f(const double* pSrc1, int src1Stride2, const double* pSrc2, int src2Stride2, double* pDst,
    int dstStride2, int width);

/** d(j) = a(j) - b(j); vectors of width elements. */
ZelStatus zelmSub_vv_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, double* const* ppDst, int dstByteShift, int width);

/** d[k](j) = a(j) - b[k](j); vectors of width elements. */
ZelStatus zelmSub_vva_32f(const float* pSrc1, int src1Stride2, const float* pSrc2, int src2Stride0, int src2Stride2,
    float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a(j) - b[k](j); vectors of width elements. */
ZelStatus zelmSub_vva_32f_L(const float* pSrc1, int src1Stride2, const float* const* ppSrc2, int src2ByteShift,
    int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a(j) - b[k](j); vectors of width elements. */
ZelStatus zelmSub_vva_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a(j) - b[k](j); vectors of width elements. */
ZelStatus zelmSub_vva_64f(const double* pSrc1, int src1Stride2, const double* pSrc2, int src2Stride0, int src2Stride2,
    double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a(j) - b[k](j); vectors of width elements. */
ZelStatus zelmSub_vva_64f_L(const double* pSrc1, int src1Stride2, const double* const* ppSrc2, int src2ByteShift,
    int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a(j) - b[k](j); vectors of width elements. */
ZelStatus zelmSub_vva_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

#ifdef __cplusplus
}
#endif

#endif
