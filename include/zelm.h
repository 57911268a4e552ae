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

/** d[k](j) = a[k](j) + val; vectors of width elements. */
ZelStatus zelmAdd_vac_32f(const float* pSrc, int srcStride0, int srcStride2, float val, float* pDst, int dstStride0,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + val; vectors of width elements. */
ZelStatus zelmAdd_vac_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride2, float val,
    float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + val; vectors of width elements. */
ZelStatus zelmAdd_vac_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float val,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j) + val; vectors of width elements. */
ZelStatus zelmAdd_vac_64f(const double* pSrc, int srcStride0, int srcStride2, double val, double* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + val; vectors of width elements. */
ZelStatus zelmAdd_vac_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride2, double val,
    double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + val; vectors of width elements. */
ZelStatus zelmAdd_vac_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double val,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j) + val[k]; vectors of width elements. */
ZelStatus zelmAdd_vaca_32f(const float* pSrc, int srcStride0, int srcStride2, const float* pVal, int valStride0,
    float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + val[k]; vectors of width elements. */
ZelStatus zelmAdd_vaca_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride2, const float* const* ppVal,
    int valByteShift, float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + val[k]; vectors of width elements. */
ZelStatus zelmAdd_vaca_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, const float* pVal,
    int valStride0, float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j) + val[k]; vectors of width elements. */
ZelStatus zelmAdd_vaca_64f(const double* pSrc, int srcStride0, int srcStride2, const double* pVal, int valStride0,
    double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + val[k]; vectors of width elements. */
ZelStatus zelmAdd_vaca_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride2, const double* const* ppVal,
    int valByteShift, double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) + val[k]; vectors of width elements. */
ZelStatus zelmAdd_vaca_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, const double* pVal,
    int valStride0, double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

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

/** d(j) = a(j) + val; vectors of width elements. */
ZelStatus zelmAdd_vc_32f(const float* pSrc, int srcStride2, float val, float* pDst, int dstStride2, int width);

/** d(j) = a(j) + val; vectors of width elements. */
ZelStatus zelmAdd_vc_32f_P(const float* const* ppSrc, int srcByteShift, float val, float* const* ppDst,
    int dstByteShift, int width);

/** d(j) = a(j) + val; vectors of width elements. */
ZelStatus zelmAdd_vc_64f(const double* pSrc, int srcStride2, double val, double* pDst, int dstStride2, int width);

/** d(j) = a(j) + val; vectors of width elements. */
ZelStatus zelmAdd_vc_64f_P(const double* const* ppSrc, int srcByteShift, double val, double* const* ppDst,
    int dstByteShift, int width);

/** d[k](j) = a(j) + val[k]; vectors of width elements. */
ZelStatus zelmAdd_vca_32f(const float* pSrc, int srcStride2, const float* pVal, int valStride0, float* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a(j) + val[k]; vectors of width elements. */
ZelStatus zelmAdd_vca_32f_L(const float* pSrc, int srcStride2, const float* const* ppVal, int valByteShift,
    float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a(j) + val[k]; vectors of width elements. */
ZelStatus zelmAdd_vca_32f_P(const float* const* ppSrc, int srcByteShift, const float* pVal, int valStride0,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a(j) + val[k]; vectors of width elements. */
ZelStatus zelmAdd_vca_64f(const double* pSrc, int srcStride2, const double* pVal, int valStride0, double* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a(j) + val[k]; vectors of width elements. */
ZelStatus zelmAdd_vca_64f_L(const double* pSrc, int srcStride2, const double* const* ppVal, int valByteShift,
    double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a(j) + val[k]; vectors of width elements. */
ZelStatus zelmAdd_vca_64f_P(const double* const* ppSrc, int srcByteShift, const double* pVal, int valStride0,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

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

/* ---- Copy ---- */

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_32f_LL(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_32f_LP(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_32f_LS(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_32f_PL(const float* const* ppSrc, int srcByteShift, int srcStride0, float* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_32f_PP(const float* const* ppSrc, int srcByteShift, int srcStride0, float* const* ppDst,
    int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_32f_PS(const float* const* ppSrc, int srcByteShift, int srcStride0, float* pDst, int dstStride0,
    int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_32f_SL(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, float* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_32f_SP(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, float* const* ppDst,
    int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_32f_SS(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_64f_LL(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_64f_LP(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_64f_LS(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    double* pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_64f_PL(const double* const* ppSrc, int srcByteShift, int srcStride0, double* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_64f_PP(const double* const* ppSrc, int srcByteShift, int srcStride0, double* const* ppDst,
    int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_64f_PS(const double* const* ppSrc, int srcByteShift, int srcStride0, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_64f_SL(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, double* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_64f_SP(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, double* const* ppDst,
    int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j); objects of height x width. */
ZelStatus zelmCopy_ma_64f_SS(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_32f_LL(const float* const* ppSrc, int srcByteShift, int srcStride2, float* const* ppDst,
    int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_32f_LP(const float* const* ppSrc, int srcByteShift, int srcStride2, float* const* ppDst,
    int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_32f_LS(const float* const* ppSrc, int srcByteShift, int srcStride2, float* pDst, int dstStride0,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_32f_PL(const float* const* ppSrc, int srcByteShift, int srcStride0, float* const* ppDst,
    int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_32f_PP(const float* const* ppSrc, int srcByteShift, int srcStride0, float* const* ppDst,
    int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_32f_PS(const float* const* ppSrc, int srcByteShift, int srcStride0, float* pDst, int dstStride0,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_32f_SL(const float* pSrc, int srcStride0, int srcStride2, float* const* ppDst, int dstByteShift,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_32f_SP(const float* pSrc, int srcStride0, int srcStride2, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_32f_SS(const float* pSrc, int srcStride0, int srcStride2, float* pDst, int dstStride0,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_64f_LL(const double* const* ppSrc, int srcByteShift, int srcStride2, double* const* ppDst,
    int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_64f_LP(const double* const* ppSrc, int srcByteShift, int srcStride2, double* const* ppDst,
    int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_64f_LS(const double* const* ppSrc, int srcByteShift, int srcStride2, double* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_64f_PL(const double* const* ppSrc, int srcByteShift, int srcStride0, double* const* ppDst,
    int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_64f_PP(const double* const* ppSrc, int srcByteShift, int srcStride0, double* const* ppDst,
    int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_64f_PS(const double* const* ppSrc, int srcByteShift, int srcStride0, double* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_64f_SL(const double* pSrc, int srcStride0, int srcStride2, double* const* ppDst,
    int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_64f_SP(const double* pSrc, int srcStride0, int srcStride2, double* const* ppDst,
    int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j); objects of height x width. */
ZelStatus zelmCopy_va_64f_SS(const double* pSrc, int srcStride0, int srcStride2, double* pDst, int dstStride0,
    int dstStride2, int width, int count);

/* ---- EigenValuesGetBufSize ---- */

/** *pSize = bytes of pBuffer for zelmEigenValues of order widthHeight. */
ZelStatus zelmEigenValuesGetBufSize_32f(int widthHeight, int* pSize);

/** *pSize = bytes of pBuffer for zelmEigenValues of order widthHeight. */
ZelStatus zelmEigenValuesGetBufSize_64f(int widthHeight, int* pSize);

/* ---- EigenValuesSym ---- */

/** eigenvalues of the symmetric A, n for every object, the largest first; of order 2 the one of larger magnitude.
    Elements off the diagonal count as zero from twice the epsilon down: scale matrices to about 1. zelStsSingular:
    the product of the values is at most epsilon; they are there all the same but not sorted (order 2: nothing is
    written), and an array ends with that object; square matrices of order n = widthHeight; pBuffer n * n elements
    of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesSym_m_32f(const float* pSrc, int srcStride1, int srcStride2, void* pBuffer, float* pDst,
    int widthHeight);

/** eigenvalues of the symmetric A, n for every object, the largest first; of order 2 the one of larger magnitude.
    Elements off the diagonal count as zero from twice the epsilon down: scale matrices to about 1. zelStsSingular:
    the product of the values is at most epsilon; they are there all the same but not sorted (order 2: nothing is
    written), and an array ends with that object; square matrices of order n = widthHeight; pBuffer n * n elements
    of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesSym_m_32f_P(const float* const* ppSrc, int srcByteShift, void* pBuffer, float* pDst,
    int widthHeight);

/** eigenvalues of the symmetric A, n for every object, the largest first; of order 2 the one of larger magnitude.
    Elements off the diagonal count as zero from twice the epsilon down: scale matrices to about 1. zelStsSingular:
    the product of the values is at most epsilon; they are there all the same but not sorted (order 2: nothing is
    written), and an array ends with that object; square matrices of order n = widthHeight; pBuffer n * n elements
    of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesSym_m_64f(const double* pSrc, int srcStride1, int srcStride2, void* pBuffer, double* pDst,
    int widthHeight);

/** eigenvalues of the symmetric A, n for every object, the largest first; of order 2 the one of larger magnitude.
    Elements off the diagonal count as zero from twice the epsilon down: scale matrices to about 1. zelStsSingular:
    the product of the values is at most epsilon; they are there all the same but not sorted (order 2: nothing is
    written), and an array ends with that object; square matrices of order n = widthHeight; pBuffer n * n elements
    of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesSym_m_64f_P(const double* const* ppSrc, int srcByteShift, void* pBuffer, double* pDst,
    int widthHeight);

/** eigenvalues of the symmetric A[k], n for every object, the largest first; of order 2 the one of larger magnitude.
    Elements off the diagonal count as zero from twice the epsilon down: scale matrices to about 1. zelStsSingular:
    the product of the values is at most epsilon; they are there all the same but not sorted (order 2: nothing is
    written), and an array ends with that object; square matrices of order n = widthHeight; pBuffer n * n elements
    of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesSym_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, void* pBuffer,
    float* pDst, int widthHeight, int count);

/** eigenvalues of the symmetric A[k], n for every object, the largest first; of order 2 the one of larger magnitude.
    Elements off the diagonal count as zero from twice the epsilon down: scale matrices to about 1. zelStsSingular:
    the product of the values is at most epsilon; they are there all the same but not sorted (order 2: nothing is
    written), and an array ends with that object; square matrices of order n = widthHeight; pBuffer n * n elements
    of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesSym_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    void* pBuffer, float* pDst, int widthHeight, int count);

/** eigenvalues of the symmetric A[k], n for every object, the largest first; of order 2 the one of larger magnitude.
    Elements off the diagonal count as zero from twice the epsilon down: scale matrices to about 1. zelStsSingular:
    the product of the values is at most epsilon; they are there all the same but not sorted (order 2: nothing is
    written), and an array ends with that object; square matrices of order n = widthHeight; pBuffer n * n elements
    of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesSym_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, void* pBuffer,
    float* pDst, int widthHeight, int count);

/** eigenvalues of the symmetric A[k], n for every object, the largest first; of order 2 the one of larger magnitude.
    Elements off the diagonal count as zero from twice the epsilon down: scale matrices to about 1. zelStsSingular:
    the product of the values is at most epsilon; they are there all the same but not sorted (order 2: nothing is
    written), and an array ends with that object; square matrices of order n = widthHeight; pBuffer n * n elements
    of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesSym_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, void* pBuffer,
    double* pDst, int widthHeight, int count);

/** eigenvalues of the symmetric A[k], n for every object, the largest first; of order 2 the one of larger magnitude.
    Elements off the diagonal count as zero from twice the epsilon down: scale matrices to about 1. zelStsSingular:
    the product of the values is at most epsilon; they are there all the same but not sorted (order 2: nothing is
    written), and an array ends with that object; square matrices of order n = widthHeight; pBuffer n * n elements
    of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesSym_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    void* pBuffer, double* pDst, int widthHeight, int count);

/** eigenvalues of the symmetric A[k], n for every object, the largest first; of order 2 the one of larger magnitude.
    Elements off the diagonal count as zero from twice the epsilon down: scale matrices to about 1. zelStsSingular:
    the product of the values is at most epsilon; they are there all the same but not sorted (order 2: nothing is
    written), and an array ends with that object; square matrices of order n = widthHeight; pBuffer n * n elements
    of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesSym_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, void* pBuffer,
    double* pDst, int widthHeight, int count);

/* ---- EigenValuesVectorsGetBufSize ---- */

/** *pSize = bytes of pBuffer for zelmEigenValuesVectors, ...Left and ...Right of order widthHeight. */
ZelStatus zelmEigenValuesVectorsGetBufSize_32f(int widthHeight, int* pSize);

/** *pSize = bytes of pBuffer for zelmEigenValuesVectors, ...Left and ...Right of order widthHeight. */
ZelStatus zelmEigenValuesVectorsGetBufSize_64f(int widthHeight, int* pSize);

/* ---- EigenValuesVectorsLeft ---- */

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A: u^H A^T = lambda u^H, so for a real value
    A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_m_32f(const float* pSrc, int srcStride1, int srcStride2, float* pDstVectors,
    int dstStride1, int dstStride2, float* pDstValuesRe, float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A: u^H A^T = lambda u^H, so for a real value
    A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_m_32f_P(const float* const* ppSrc, int srcByteShift, float* const* ppDstVectors,
    int dstByteShift, float* pDstValuesRe, float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A: u^H A^T = lambda u^H, so for a real value
    A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_m_64f(const double* pSrc, int srcStride1, int srcStride2, double* pDstVectors,
    int dstStride1, int dstStride2, double* pDstValuesRe, double* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A: u^H A^T = lambda u^H, so for a real value
    A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_m_64f_P(const double* const* ppSrc, int srcByteShift,
    double* const* ppDstVectors, int dstByteShift, double* pDstValuesRe, double* pDstValuesIm, int widthHeight,
    void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A[k]: u^H A^T = lambda u^H, so for a real
    value A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector
    of the first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize
    gives. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2,
    float* pDstVectors, int dstStride0, int dstStride1, int dstStride2, float* pDstValuesRe, float* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A[k]: u^H A^T = lambda u^H, so for a real
    value A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector
    of the first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize
    gives. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1,
    int srcStride2, float* const* ppDstVectors, int dstByteShift, int dstStride1, int dstStride2, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A[k]: u^H A^T = lambda u^H, so for a real
    value A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector
    of the first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize
    gives. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0,
    float* const* ppDstVectors, int dstByteShift, int dstStride0, float* pDstValuesRe, float* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A[k]: u^H A^T = lambda u^H, so for a real
    value A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector
    of the first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize
    gives. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2,
    double* pDstVectors, int dstStride0, int dstStride1, int dstStride2, double* pDstValuesRe, double* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A[k]: u^H A^T = lambda u^H, so for a real
    value A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector
    of the first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize
    gives. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1,
    int srcStride2, double* const* ppDstVectors, int dstByteShift, int dstStride1, int dstStride2,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A[k]: u^H A^T = lambda u^H, so for a real
    value A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector
    of the first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize
    gives. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0,
    double* const* ppDstVectors, int dstByteShift, int dstStride0, double* pDstValuesRe, double* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/* ---- EigenValuesVectorsRight ---- */

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. May return zelStsFailure,
    zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_m_32f(const float* pSrc, int srcStride1, int srcStride2, float* pDstVectors,
    int dstStride1, int dstStride2, float* pDstValuesRe, float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. May return zelStsFailure,
    zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_m_32f_P(const float* const* ppSrc, int srcByteShift, float* const* ppDstVectors,
    int dstByteShift, float* pDstValuesRe, float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. May return zelStsFailure,
    zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_m_64f(const double* pSrc, int srcStride1, int srcStride2, double* pDstVectors,
    int dstStride1, int dstStride2, double* pDstValuesRe, double* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. May return zelStsFailure,
    zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_m_64f_P(const double* const* ppSrc, int srcByteShift,
    double* const* ppDstVectors, int dstByteShift, double* pDstValuesRe, double* pDstValuesIm, int widthHeight,
    void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. May return zelStsFailure,
    zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2,
    float* pDstVectors, int dstStride0, int dstStride1, int dstStride2, float* pDstValuesRe, float* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. May return zelStsFailure,
    zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1,
    int srcStride2, float* const* ppDstVectors, int dstByteShift, int dstStride1, int dstStride2, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. May return zelStsFailure,
    zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0,
    float* const* ppDstVectors, int dstByteShift, int dstStride0, float* pDstValuesRe, float* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. May return zelStsFailure,
    zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2,
    double* pDstVectors, int dstStride0, int dstStride1, int dstStride2, double* pDstValuesRe, double* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. May return zelStsFailure,
    zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1,
    int srcStride2, double* const* ppDstVectors, int dstByteShift, int dstStride1, int dstStride2,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. May return zelStsFailure,
    zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0,
    double* const* ppDstVectors, int dstByteShift, int dstStride0, double* pDstValuesRe, double* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/* ---- EigenValuesVectorsSym ---- */

/** eigenvalues of the symmetric A as from zelmEigenValuesSym, and orthonormal eigenvectors: column j belongs to value
    j. zelStsSingular: the product of the values is at most epsilon; values and vectors are there all the same
    (order 2: nothing is written), and an array ends with that object; square matrices of order n = widthHeight;
    pBuffer n * n elements of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsSym_m_32f(const float* pSrc, int srcStride1, int srcStride2, void* pBuffer,
    float* pDstVectors, int dstStride1, int dstStride2, float* pDstValues, int widthHeight);

/** eigenvalues of the symmetric A as from zelmEigenValuesSym, and orthonormal eigenvectors: column j belongs to value
    j. zelStsSingular: the product of the values is at most epsilon; values and vectors are there all the same
    (order 2: nothing is written), and an array ends with that object; square matrices of order n = widthHeight;
    pBuffer n * n elements of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsSym_m_32f_P(const float* const* ppSrc, int srcByteShift, void* pBuffer,
    float* const* ppDstVectors, int dstByteShift, float* pDstValues, int widthHeight);

/** eigenvalues of the symmetric A as from zelmEigenValuesSym, and orthonormal eigenvectors: column j belongs to value
    j. zelStsSingular: the product of the values is at most epsilon; values and vectors are there all the same
    (order 2: nothing is written), and an array ends with that object; square matrices of order n = widthHeight;
    pBuffer n * n elements of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsSym_m_64f(const double* pSrc, int srcStride1, int srcStride2, void* pBuffer,
    double* pDstVectors, int dstStride1, int dstStride2, double* pDstValues, int widthHeight);

/** eigenvalues of the symmetric A as from zelmEigenValuesSym, and orthonormal eigenvectors: column j belongs to value
    j. zelStsSingular: the product of the values is at most epsilon; values and vectors are there all the same
    (order 2: nothing is written), and an array ends with that object; square matrices of order n = widthHeight;
    pBuffer n * n elements of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsSym_m_64f_P(const double* const* ppSrc, int srcByteShift, void* pBuffer,
    double* const* ppDstVectors, int dstByteShift, double* pDstValues, int widthHeight);

/** eigenvalues of the symmetric A[k] as from zelmEigenValuesSym, and orthonormal eigenvectors: column j belongs to
    value j. zelStsSingular: the product of the values is at most epsilon; values and vectors are there all the same
    (order 2: nothing is written), and an array ends with that object; square matrices of order n = widthHeight;
    pBuffer n * n elements of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsSym_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2,
    void* pBuffer, float* pDstVectors, int dstStride0, int dstStride1, int dstStride2, float* pDstValues,
    int widthHeight, int count);

/** eigenvalues of the symmetric A[k] as from zelmEigenValuesSym, and orthonormal eigenvectors: column j belongs to
    value j. zelStsSingular: the product of the values is at most epsilon; values and vectors are there all the same
    (order 2: nothing is written), and an array ends with that object; square matrices of order n = widthHeight;
    pBuffer n * n elements of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsSym_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1,
    int srcStride2, void* pBuffer, float* const* ppDstVectors, int dstByteShift, int dstStride1, int dstStride2,
    float* pDstValues, int widthHeight, int count);

/** eigenvalues of the symmetric A[k] as from zelmEigenValuesSym, and orthonormal eigenvectors: column j belongs to
    value j. zelStsSingular: the product of the values is at most epsilon; values and vectors are there all the same
    (order 2: nothing is written), and an array ends with that object; square matrices of order n = widthHeight;
    pBuffer n * n elements of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsSym_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0,
    void* pBuffer, float* const* ppDstVectors, int dstByteShift, int dstStride0, float* pDstValues, int widthHeight,
    int count);

/** eigenvalues of the symmetric A[k] as from zelmEigenValuesSym, and orthonormal eigenvectors: column j belongs to
    value j. zelStsSingular: the product of the values is at most epsilon; values and vectors are there all the same
    (order 2: nothing is written), and an array ends with that object; square matrices of order n = widthHeight;
    pBuffer n * n elements of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsSym_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2,
    void* pBuffer, double* pDstVectors, int dstStride0, int dstStride1, int dstStride2, double* pDstValues,
    int widthHeight, int count);

/** eigenvalues of the symmetric A[k] as from zelmEigenValuesSym, and orthonormal eigenvectors: column j belongs to
    value j. zelStsSingular: the product of the values is at most epsilon; values and vectors are there all the same
    (order 2: nothing is written), and an array ends with that object; square matrices of order n = widthHeight;
    pBuffer n * n elements of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsSym_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1,
    int srcStride2, void* pBuffer, double* const* ppDstVectors, int dstByteShift, int dstStride1, int dstStride2,
    double* pDstValues, int widthHeight, int count);

/** eigenvalues of the symmetric A[k] as from zelmEigenValuesSym, and orthonormal eigenvectors: column j belongs to
    value j. zelStsSingular: the product of the values is at most epsilon; values and vectors are there all the same
    (order 2: nothing is written), and an array ends with that object; square matrices of order n = widthHeight;
    pBuffer n * n elements of the matrices' type. May return zelStsSingular, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsSym_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0,
    void* pBuffer, double* const* ppDstVectors, int dstByteShift, int dstStride0, double* pDstValues, int widthHeight,
    int count);

/* ---- EigenValuesVectors ---- */

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_m_32f(const float* pSrc, int srcStride1, int srcStride2, float* pDstVectorsRight,
    int dstRightStride1, int dstRightStride2, float* pDstVectorsLeft, int dstLeftStride1, int dstLeftStride2,
    float* pDstValuesRe, float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_m_32f_P(const float* const* ppSrc, int srcByteShift, float* const* ppDstVectorsRight,
    int dstRightByteShift, float* const* ppDstVectorsLeft, int dstLeftByteShift, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_m_64f(const double* pSrc, int srcStride1, int srcStride2, double* pDstVectorsRight,
    int dstRightStride1, int dstRightStride2, double* pDstVectorsLeft, int dstLeftStride1, int dstLeftStride2,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_m_64f_P(const double* const* ppSrc, int srcByteShift,
    double* const* ppDstVectorsRight, int dstRightByteShift, double* const* ppDstVectorsLeft, int dstLeftByteShift,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2,
    float* pDstVectorsRight, int dstRightStride0, int dstRightStride1, int dstRightStride2, float* pDstVectorsLeft,
    int dstLeftStride0, int dstLeftStride1, int dstLeftStride2, float* pDstValuesRe, float* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    float* const* ppDstVectorsRight, int dstRightByteShift, int dstRightStride1, int dstRightStride2,
    float* const* ppDstVectorsLeft, int dstLeftByteShift, int dstLeftStride1, int dstLeftStride2, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0,
    float* const* ppDstVectorsRight, int dstRightByteShift, int dstRightStride0, float* const* ppDstVectorsLeft,
    int dstLeftByteShift, int dstLeftStride0, float* pDstValuesRe, float* pDstValuesIm, int widthHeight, int count,
    void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2,
    double* pDstVectorsRight, int dstRightStride0, int dstRightStride1, int dstRightStride2, double* pDstVectorsLeft,
    int dstLeftStride0, int dstLeftStride1, int dstLeftStride2, double* pDstValuesRe, double* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1,
    int srcStride2, double* const* ppDstVectorsRight, int dstRightByteShift, int dstRightStride1, int dstRightStride2,
    double* const* ppDstVectorsLeft, int dstLeftByteShift, int dstLeftStride1, int dstLeftStride2,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0,
    double* const* ppDstVectorsRight, int dstRightByteShift, int dstRightStride0, double* const* ppDstVectorsLeft,
    int dstLeftByteShift, int dstLeftStride0, double* pDstValuesRe, double* pDstValuesIm, int widthHeight, int count,
    void* pBuffer);

/* ---- EigenValues ---- */

/** eigenvalues of the general A: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first. A subdiagonal element of at most epsilon counts as
    zero whatever the size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of
    the bytes that zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_m_32f(const float* pSrc, int srcStride1, int srcStride2, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues of the general A: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first. A subdiagonal element of at most epsilon counts as
    zero whatever the size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of
    the bytes that zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_m_32f_P(const float* const* ppSrc, int srcByteShift, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues of the general A: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first. A subdiagonal element of at most epsilon counts as
    zero whatever the size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of
    the bytes that zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_m_64f(const double* pSrc, int srcStride1, int srcStride2, double* pDstValuesRe,
    double* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues of the general A: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first. A subdiagonal element of at most epsilon counts as
    zero whatever the size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of
    the bytes that zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_m_64f_P(const double* const* ppSrc, int srcByteShift, double* pDstValuesRe,
    double* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues of the general A[k]: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first. A subdiagonal element of at most epsilon counts as
    zero whatever the size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of
    the bytes that zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2,
    float* pDstValuesRe, float* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues of the general A[k]: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first. A subdiagonal element of at most epsilon counts as
    zero whatever the size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of
    the bytes that zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    float* pDstValuesRe, float* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues of the general A[k]: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first. A subdiagonal element of at most epsilon counts as
    zero whatever the size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of
    the bytes that zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues of the general A[k]: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first. A subdiagonal element of at most epsilon counts as
    zero whatever the size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of
    the bytes that zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues of the general A[k]: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first. A subdiagonal element of at most epsilon counts as
    zero whatever the size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of
    the bytes that zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues of the general A[k]: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first. A subdiagonal element of at most epsilon counts as
    zero whatever the size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of
    the bytes that zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double* pDstValuesRe,
    double* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/* ---- Extract ---- */

/** pDst[(k*height + i)*width + j] = A(i, j); packed block: height x width. */
ZelStatus zelmExtract_m_32f(const float* pSrc, int srcStride1, int srcStride2, float* pDst, int width, int height);

/** pDst[(k*height + i)*width + j] = A(i, j); packed block: height x width. */
ZelStatus zelmExtract_m_32f_P(const float* const* ppSrc, int srcByteShift, float* pDst, int width, int height);

/** pDst[(k*height + i)*width + j] = A(i, j); packed block: height x width. */
ZelStatus zelmExtract_m_64f(const double* pSrc, int srcStride1, int srcStride2, double* pDst, int width, int height);

/** pDst[(k*height + i)*width + j] = A(i, j); packed block: height x width. */
ZelStatus zelmExtract_m_64f_P(const double* const* ppSrc, int srcByteShift, double* pDst, int width, int height);

/** pDst[(k*height + i)*width + j] = A[k](i, j); packed block: height x width. */
ZelStatus zelmExtract_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, float* pDst,
    int width, int height, int count);

/** pDst[(k*height + i)*width + j] = A[k](i, j); packed block: height x width. */
ZelStatus zelmExtract_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    float* pDst, int width, int height, int count);

/** pDst[(k*height + i)*width + j] = A[k](i, j); packed block: height x width. */
ZelStatus zelmExtract_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float* pDst, int width,
    int height, int count);

/** pDst[(k*height + i)*width + j] = A[k](i, j); packed block: height x width. */
ZelStatus zelmExtract_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, double* pDst,
    int width, int height, int count);

/** pDst[(k*height + i)*width + j] = A[k](i, j); packed block: height x width. */
ZelStatus zelmExtract_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    double* pDst, int width, int height, int count);

/** pDst[(k*height + i)*width + j] = A[k](i, j); packed block: height x width. */
ZelStatus zelmExtract_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double* pDst, int width,
    int height, int count);

/** pDst[(k*height + i)*width + j] = A(j, i); packed block: height x width; stored source: width x height. */
ZelStatus zelmExtract_t_32f(const float* pSrc, int srcStride1, int srcStride2, float* pDst, int width, int height);

/** pDst[(k*height + i)*width + j] = A(j, i); packed block: height x width; stored source: width x height. */
ZelStatus zelmExtract_t_32f_P(const float* const* ppSrc, int srcByteShift, float* pDst, int width, int height);

/** pDst[(k*height + i)*width + j] = A(j, i); packed block: height x width; stored source: width x height. */
ZelStatus zelmExtract_t_64f(const double* pSrc, int srcStride1, int srcStride2, double* pDst, int width, int height);

/** pDst[(k*height + i)*width + j] = A(j, i); packed block: height x width; stored source: width x height. */
ZelStatus zelmExtract_t_64f_P(const double* const* ppSrc, int srcByteShift, double* pDst, int width, int height);

/** pDst[(k*height + i)*width + j] = A[k](j, i); packed block: height x width; stored source: width x height. */
ZelStatus zelmExtract_ta_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, float* pDst,
    int width, int height, int count);

/** pDst[(k*height + i)*width + j] = A[k](j, i); packed block: height x width; stored source: width x height. */
ZelStatus zelmExtract_ta_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    float* pDst, int width, int height, int count);

/** pDst[(k*height + i)*width + j] = A[k](j, i); packed block: height x width; stored source: width x height. */
ZelStatus zelmExtract_ta_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float* pDst, int width,
    int height, int count);

/** pDst[(k*height + i)*width + j] = A[k](j, i); packed block: height x width; stored source: width x height. */
ZelStatus zelmExtract_ta_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, double* pDst,
    int width, int height, int count);

/** pDst[(k*height + i)*width + j] = A[k](j, i); packed block: height x width; stored source: width x height. */
ZelStatus zelmExtract_ta_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    double* pDst, int width, int height, int count);

/** pDst[(k*height + i)*width + j] = A[k](j, i); packed block: height x width; stored source: width x height. */
ZelStatus zelmExtract_ta_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double* pDst, int width,
    int height, int count);

/** pDst[k*width + j] = a(j); vectors of width elements. */
ZelStatus zelmExtract_v_32f(const float* pSrc, int srcStride2, float* pDst, int width);

/** pDst[k*width + j] = a(j); vectors of width elements. */
ZelStatus zelmExtract_v_32f_P(const float* const* ppSrc, int srcByteShift, float* pDst, int width);

/** pDst[k*width + j] = a(j); vectors of width elements. */
ZelStatus zelmExtract_v_64f(const double* pSrc, int srcStride2, double* pDst, int width);

/** pDst[k*width + j] = a(j); vectors of width elements. */
ZelStatus zelmExtract_v_64f_P(const double* const* ppSrc, int srcByteShift, double* pDst, int width);

/** pDst[k*width + j] = a[k](j); vectors of width elements. */
ZelStatus zelmExtract_va_32f(const float* pSrc, int srcStride0, int srcStride2, float* pDst, int width, int count);

/** pDst[k*width + j] = a[k](j); vectors of width elements. */
ZelStatus zelmExtract_va_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride2, float* pDst, int width,
    int count);

/** pDst[k*width + j] = a[k](j); vectors of width elements. */
ZelStatus zelmExtract_va_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float* pDst, int width,
    int count);

/** pDst[k*width + j] = a[k](j); vectors of width elements. */
ZelStatus zelmExtract_va_64f(const double* pSrc, int srcStride0, int srcStride2, double* pDst, int width, int count);

/** pDst[k*width + j] = a[k](j); vectors of width elements. */
ZelStatus zelmExtract_va_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride2, double* pDst, int width,
    int count);

/** pDst[k*width + j] = a[k](j); vectors of width elements. */
ZelStatus zelmExtract_va_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double* pDst, int width,
    int count);

/* ---- GetLibVersion ---- */

/** the version record of the library; never null. */
const ZelLibVersion* zelmGetLibVersion(void);

/* ---- LComb ---- */

/** d[k](j) = a[k](j) * val1 + b(j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vav_32f(const float* pSrc1, int src1Stride0, int src1Stride2, float val1, const float* pSrc2,
    int src2Stride2, float val2, float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val1 + b(j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vav_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2, float val1,
    const float* pSrc2, int src2Stride2, float val2, float* const* ppDst, int dstByteShift, int dstStride2, int width,
    int count);

/** d[k](j) = a[k](j) * val1 + b(j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vav_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, float val1,
    const float* const* ppSrc2, int src2ByteShift, float val2, float* const* ppDst, int dstByteShift, int dstStride0,
    int width, int count);

/** d[k](j) = a[k](j) * val1 + b(j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vav_64f(const double* pSrc1, int src1Stride0, int src1Stride2, double val1, const double* pSrc2,
    int src2Stride2, double val2, double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val1 + b(j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vav_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride2, double val1,
    const double* pSrc2, int src2Stride2, double val2, double* const* ppDst, int dstByteShift, int dstStride2,
    int width, int count);

/** d[k](j) = a[k](j) * val1 + b(j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vav_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, double val1,
    const double* const* ppSrc2, int src2ByteShift, double val2, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int count);

/** d[k](j) = a[k](j) * val1 + b[k](j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vava_32f(const float* pSrc1, int src1Stride0, int src1Stride2, float val1, const float* pSrc2,
    int src2Stride0, int src2Stride2, float val2, float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val1 + b[k](j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vava_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2, float val1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float val2, float* const* ppDst, int dstByteShift,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val1 + b[k](j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, float val1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float val2, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int count);

/** d[k](j) = a[k](j) * val1 + b[k](j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vava_64f(const double* pSrc1, int src1Stride0, int src1Stride2, double val1, const double* pSrc2,
    int src2Stride0, int src2Stride2, double val2, double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val1 + b[k](j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vava_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride2, double val1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double val2, double* const* ppDst,
    int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val1 + b[k](j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, double val1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double val2, double* const* ppDst,
    int dstByteShift, int dstStride0, int width, int count);

/** d(j) = a(j) * val1 + b(j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vv_32f(const float* pSrc1, int src1Stride2, float val1, const float* pSrc2, int src2Stride2,
    float val2, float* pDst, int dstStride2, int width);

/** d(j) = a(j) * val1 + b(j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vv_32f_P(const float* const* ppSrc1, int src1ByteShift, float val1, const float* const* ppSrc2,
    int src2ByteShift, float val2, float* const* ppDst, int dstByteShift, int width);

/** d(j) = a(j) * val1 + b(j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vv_64f(const double* pSrc1, int src1Stride2, double val1, const double* pSrc2, int src2Stride2,
    double val2, double* pDst, int dstStride2, int width);

/** d(j) = a(j) * val1 + b(j) * val2; vectors of width elements. */
ZelStatus zelmLComb_vv_64f_P(const double* const* ppSrc1, int src1ByteShift, double val1, const double* const* ppSrc2,
    int src2ByteShift, double val2, double* const* ppDst, int dstByteShift, int width);

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

/* ---- LoadIdentity ---- */

/** D[k](i, j) = 1 where i == j, else 0; D height x width. */
ZelStatus zelmLoadIdentity_ma_32f(float* pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height,
    int count);

/** D[k](i, j) = 1 where i == j, else 0; D height x width. */
ZelStatus zelmLoadIdentity_ma_32f_L(float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = 1 where i == j, else 0; D height x width. */
ZelStatus zelmLoadIdentity_ma_32f_P(float* const* ppDst, int dstByteShift, int dstStride0, int width, int height,
    int count);

/** D[k](i, j) = 1 where i == j, else 0; D height x width. */
ZelStatus zelmLoadIdentity_ma_64f(double* pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height,
    int count);

/** D[k](i, j) = 1 where i == j, else 0; D height x width. */
ZelStatus zelmLoadIdentity_ma_64f_L(double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = 1 where i == j, else 0; D height x width. */
ZelStatus zelmLoadIdentity_ma_64f_P(double* const* ppDst, int dstByteShift, int dstStride0, int width, int height,
    int count);

/* ---- Mul ---- */

/** D[k](i, j) = A[k](i, j) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_mac_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, float val, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_mac_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2, float val,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_mac_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float val,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_mac_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, double val,
    double* pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_mac_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2, double val,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_mac_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double val,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int height, int count);

/** D(i, j) = A(i, j) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_mc_32f(const float* pSrc, int srcStride1, int srcStride2, float val, float* pDst, int dstStride1,
    int dstStride2, int width, int height);

/** D(i, j) = A(i, j) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_mc_32f_P(const float* const* ppSrc, int srcByteShift, float val, float* const* ppDst,
    int dstByteShift, int width, int height);

/** D(i, j) = A(i, j) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_mc_64f(const double* pSrc, int srcStride1, int srcStride2, double val, double* pDst, int dstStride1,
    int dstStride2, int width, int height);

/** D(i, j) = A(i, j) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_mc_64f_P(const double* const* ppSrc, int srcByteShift, double val, double* const* ppDst,
    int dstByteShift, int width, int height);

/** D[k](i, j) = A[k](j, i) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_tac_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, float val, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_tac_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2, float val,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_tac_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float val,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_tac_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, double val,
    double* pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_tac_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2, double val,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](j, i) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_tac_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double val,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int height, int count);

/** D(i, j) = A(j, i) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_tc_32f(const float* pSrc, int srcStride1, int srcStride2, float val, float* pDst, int dstStride1,
    int dstStride2, int width, int height);

/** D(i, j) = A(j, i) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_tc_32f_P(const float* const* ppSrc, int srcByteShift, float val, float* const* ppDst,
    int dstByteShift, int width, int height);

/** D(i, j) = A(j, i) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_tc_64f(const double* pSrc, int srcStride1, int srcStride2, double val, double* pDst, int dstStride1,
    int dstStride2, int width, int height);

/** D(i, j) = A(j, i) * val; D height x width; a transposed operand is stored as width x height. */
ZelStatus zelmMul_tc_64f_P(const double* const* ppSrc, int srcByteShift, double val, double* const* ppDst,
    int dstByteShift, int width, int height);

/** d[k](j) = a[k](j) * val; vectors of width elements. */
ZelStatus zelmMul_vac_32f(const float* pSrc, int srcStride0, int srcStride2, float val, float* pDst, int dstStride0,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val; vectors of width elements. */
ZelStatus zelmMul_vac_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride2, float val,
    float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val; vectors of width elements. */
ZelStatus zelmMul_vac_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float val,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j) * val; vectors of width elements. */
ZelStatus zelmMul_vac_64f(const double* pSrc, int srcStride0, int srcStride2, double val, double* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val; vectors of width elements. */
ZelStatus zelmMul_vac_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride2, double val,
    double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val; vectors of width elements. */
ZelStatus zelmMul_vac_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double val,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j) * val[k]; vectors of width elements. */
ZelStatus zelmMul_vaca_32f(const float* pSrc, int srcStride0, int srcStride2, const float* pVal, int valStride0,
    float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val[k]; vectors of width elements. */
ZelStatus zelmMul_vaca_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride2, const float* const* ppVal,
    int valByteShift, float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val[k]; vectors of width elements. */
ZelStatus zelmMul_vaca_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, const float* pVal,
    int valStride0, float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j) * val[k]; vectors of width elements. */
ZelStatus zelmMul_vaca_64f(const double* pSrc, int srcStride0, int srcStride2, const double* pVal, int valStride0,
    double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val[k]; vectors of width elements. */
ZelStatus zelmMul_vaca_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride2, const double* const* ppVal,
    int valByteShift, double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val[k]; vectors of width elements. */
ZelStatus zelmMul_vaca_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, const double* pVal,
    int valStride0, double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d(j) = a(j) * val; vectors of width elements. */
ZelStatus zelmMul_vc_32f(const float* pSrc, int srcStride2, float val, float* pDst, int dstStride2, int width);

/** d(j) = a(j) * val; vectors of width elements. */
ZelStatus zelmMul_vc_32f_P(const float* const* ppSrc, int srcByteShift, float val, float* const* ppDst,
    int dstByteShift, int width);

/** d(j) = a(j) * val; vectors of width elements. */
ZelStatus zelmMul_vc_64f(const double* pSrc, int srcStride2, double val, double* pDst, int dstStride2, int width);

/** d(j) = a(j) * val; vectors of width elements. */
ZelStatus zelmMul_vc_64f_P(const double* const* ppSrc, int srcByteShift, double val, double* const* ppDst,
    int dstByteShift, int width);

/** d[k](j) = a(j) * val[k]; vectors of width elements. */
ZelStatus zelmMul_vca_32f(const float* pSrc, int srcStride2, const float* pVal, int valStride0, float* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a(j) * val[k]; vectors of width elements. */
ZelStatus zelmMul_vca_32f_L(const float* pSrc, int srcStride2, const float* const* ppVal, int valByteShift,
    float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a(j) * val[k]; vectors of width elements. */
ZelStatus zelmMul_vca_32f_P(const float* const* ppSrc, int srcByteShift, const float* pVal, int valStride0,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a(j) * val[k]; vectors of width elements. */
ZelStatus zelmMul_vca_64f(const double* pSrc, int srcStride2, const double* pVal, int valStride0, double* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a(j) * val[k]; vectors of width elements. */
ZelStatus zelmMul_vca_64f_L(const double* pSrc, int srcStride2, const double* const* ppVal, int valByteShift,
    double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a(j) * val[k]; vectors of width elements. */
ZelStatus zelmMul_vca_64f_P(const double* const* ppSrc, int srcByteShift, const double* pVal, int valStride0,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/* ---- Saxpy ---- */

/** d[k](j) = a[k](j) * val + b(j); vectors of width elements. */
ZelStatus zelmSaxpy_vav_32f(const float* pSrc1, int src1Stride0, int src1Stride2, float val, const float* pSrc2,
    int src2Stride2, float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val + b(j); vectors of width elements. */
ZelStatus zelmSaxpy_vav_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2, float val,
    const float* pSrc2, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val + b(j); vectors of width elements. */
ZelStatus zelmSaxpy_vav_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, float val,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int width,
    int count);

/** d[k](j) = a[k](j) * val + b(j); vectors of width elements. */
ZelStatus zelmSaxpy_vav_64f(const double* pSrc1, int src1Stride0, int src1Stride2, double val, const double* pSrc2,
    int src2Stride2, double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val + b(j); vectors of width elements. */
ZelStatus zelmSaxpy_vav_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride2, double val,
    const double* pSrc2, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val + b(j); vectors of width elements. */
ZelStatus zelmSaxpy_vav_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, double val,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int dstStride0, int width,
    int count);

/** d[k](j) = a[k](j) * val + b[k](j); vectors of width elements. */
ZelStatus zelmSaxpy_vava_32f(const float* pSrc1, int src1Stride0, int src1Stride2, float val, const float* pSrc2,
    int src2Stride0, int src2Stride2, float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val + b[k](j); vectors of width elements. */
ZelStatus zelmSaxpy_vava_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2, float val,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* const* ppDst, int dstByteShift,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val + b[k](j); vectors of width elements. */
ZelStatus zelmSaxpy_vava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, float val,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int count);

/** d[k](j) = a[k](j) * val + b[k](j); vectors of width elements. */
ZelStatus zelmSaxpy_vava_64f(const double* pSrc1, int src1Stride0, int src1Stride2, double val, const double* pSrc2,
    int src2Stride0, int src2Stride2, double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val + b[k](j); vectors of width elements. */
ZelStatus zelmSaxpy_vava_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride2, double val,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst, int dstByteShift,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j) * val + b[k](j); vectors of width elements. */
ZelStatus zelmSaxpy_vava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, double val,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int count);

/** d(j) = a(j) * val + b(j); vectors of width elements. */
ZelStatus zelmSaxpy_vv_32f(const float* pSrc1, int src1Stride2, float val, const float* pSrc2, int src2Stride2,
    float* pDst, int dstStride2, int width);

/** d(j) = a(j) * val + b(j); vectors of width elements. */
ZelStatus zelmSaxpy_vv_32f_P(const float* const* ppSrc1, int src1ByteShift, float val, const float* const* ppSrc2,
    int src2ByteShift, float* const* ppDst, int dstByteShift, int width);

/** d(j) = a(j) * val + b(j); vectors of width elements. */
ZelStatus zelmSaxpy_vv_64f(const double* pSrc1, int src1Stride2, double val, const double* pSrc2, int src2Stride2,
    double* pDst, int dstStride2, int width);

/** d(j) = a(j) * val + b(j); vectors of width elements. */
ZelStatus zelmSaxpy_vv_64f_P(const double* const* ppSrc1, int src1ByteShift, double val, const double* const* ppSrc2,
    int src2ByteShift, double* const* ppDst, int dstByteShift, int width);

/** d[k](j) = a(j) * val + b[k](j); vectors of width elements. */
ZelStatus zelmSaxpy_vva_32f(const float* pSrc1, int src1Stride2, float val, const float* pSrc2, int src2Stride0,
    int src2Stride2, float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a(j) * val + b[k](j); vectors of width elements. */
ZelStatus zelmSaxpy_vva_32f_L(const float* pSrc1, int src1Stride2, float val, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a(j) * val + b[k](j); vectors of width elements. */
ZelStatus zelmSaxpy_vva_32f_P(const float* const* ppSrc1, int src1ByteShift, float val, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a(j) * val + b[k](j); vectors of width elements. */
ZelStatus zelmSaxpy_vva_64f(const double* pSrc1, int src1Stride2, double val, const double* pSrc2, int src2Stride0,
    int src2Stride2, double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a(j) * val + b[k](j); vectors of width elements. */
ZelStatus zelmSaxpy_vva_64f_L(const double* pSrc1, int src1Stride2, double val, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a(j) * val + b[k](j); vectors of width elements. */
ZelStatus zelmSaxpy_vva_64f_P(const double* const* ppSrc1, int src1ByteShift, double val, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/* ---- Sub ---- */

/** d[k](j) = val[k] - a(j); vectors of width elements. */
ZelStatus zelmSub_cav_32f(const float* pSrc, int srcStride2, const float* pVal, int valStride0, float* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = val[k] - a(j); vectors of width elements. */
ZelStatus zelmSub_cav_32f_L(const float* pSrc, int srcStride2, const float* const* ppVal, int valByteShift,
    float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = val[k] - a(j); vectors of width elements. */
ZelStatus zelmSub_cav_32f_P(const float* const* ppSrc, int srcByteShift, const float* pVal, int valStride0,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = val[k] - a(j); vectors of width elements. */
ZelStatus zelmSub_cav_64f(const double* pSrc, int srcStride2, const double* pVal, int valStride0, double* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = val[k] - a(j); vectors of width elements. */
ZelStatus zelmSub_cav_64f_L(const double* pSrc, int srcStride2, const double* const* ppVal, int valByteShift,
    double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = val[k] - a(j); vectors of width elements. */
ZelStatus zelmSub_cav_64f_P(const double* const* ppSrc, int srcByteShift, const double* pVal, int valStride0,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = val[k] - a[k](j); vectors of width elements. */
ZelStatus zelmSub_cava_32f(const float* pSrc, int srcStride0, int srcStride2, const float* pVal, int valStride0,
    float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = val[k] - a[k](j); vectors of width elements. */
ZelStatus zelmSub_cava_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride2, const float* const* ppVal,
    int valByteShift, float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = val[k] - a[k](j); vectors of width elements. */
ZelStatus zelmSub_cava_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, const float* pVal,
    int valStride0, float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = val[k] - a[k](j); vectors of width elements. */
ZelStatus zelmSub_cava_64f(const double* pSrc, int srcStride0, int srcStride2, const double* pVal, int valStride0,
    double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = val[k] - a[k](j); vectors of width elements. */
ZelStatus zelmSub_cava_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride2, const double* const* ppVal,
    int valByteShift, double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = val[k] - a[k](j); vectors of width elements. */
ZelStatus zelmSub_cava_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, const double* pVal,
    int valStride0, double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d(j) = val - a(j); vectors of width elements. */
ZelStatus zelmSub_cv_32f(const float* pSrc, int srcStride2, float val, float* pDst, int dstStride2, int width);

/** d(j) = val - a(j); vectors of width elements. */
ZelStatus zelmSub_cv_32f_P(const float* const* ppSrc, int srcByteShift, float val, float* const* ppDst,
    int dstByteShift, int width);

/** d(j) = val - a(j); vectors of width elements. */
ZelStatus zelmSub_cv_64f(const double* pSrc, int srcStride2, double val, double* pDst, int dstStride2, int width);

/** d(j) = val - a(j); vectors of width elements. */
ZelStatus zelmSub_cv_64f_P(const double* const* ppSrc, int srcByteShift, double val, double* const* ppDst,
    int dstByteShift, int width);

/** d[k](j) = val - a[k](j); vectors of width elements. */
ZelStatus zelmSub_cva_32f(const float* pSrc, int srcStride0, int srcStride2, float val, float* pDst, int dstStride0,
    int dstStride2, int width, int count);

/** d[k](j) = val - a[k](j); vectors of width elements. */
ZelStatus zelmSub_cva_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride2, float val,
    float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = val - a[k](j); vectors of width elements. */
ZelStatus zelmSub_cva_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float val,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = val - a[k](j); vectors of width elements. */
ZelStatus zelmSub_cva_64f(const double* pSrc, int srcStride0, int srcStride2, double val, double* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = val - a[k](j); vectors of width elements. */
ZelStatus zelmSub_cva_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride2, double val,
    double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = val - a[k](j); vectors of width elements. */
ZelStatus zelmSub_cva_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double val,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

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

/** d[k](j) = a[k](j) - val; vectors of width elements. */
ZelStatus zelmSub_vac_32f(const float* pSrc, int srcStride0, int srcStride2, float val, float* pDst, int dstStride0,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - val; vectors of width elements. */
ZelStatus zelmSub_vac_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride2, float val,
    float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - val; vectors of width elements. */
ZelStatus zelmSub_vac_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float val,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j) - val; vectors of width elements. */
ZelStatus zelmSub_vac_64f(const double* pSrc, int srcStride0, int srcStride2, double val, double* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - val; vectors of width elements. */
ZelStatus zelmSub_vac_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride2, double val,
    double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - val; vectors of width elements. */
ZelStatus zelmSub_vac_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double val,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j) - val[k]; vectors of width elements. */
ZelStatus zelmSub_vaca_32f(const float* pSrc, int srcStride0, int srcStride2, const float* pVal, int valStride0,
    float* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - val[k]; vectors of width elements. */
ZelStatus zelmSub_vaca_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride2, const float* const* ppVal,
    int valByteShift, float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - val[k]; vectors of width elements. */
ZelStatus zelmSub_vaca_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, const float* pVal,
    int valStride0, float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j) - val[k]; vectors of width elements. */
ZelStatus zelmSub_vaca_64f(const double* pSrc, int srcStride0, int srcStride2, const double* pVal, int valStride0,
    double* pDst, int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - val[k]; vectors of width elements. */
ZelStatus zelmSub_vaca_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride2, const double* const* ppVal,
    int valByteShift, double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j) - val[k]; vectors of width elements. */
ZelStatus zelmSub_vaca_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, const double* pVal,
    int valStride0, double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

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

/** d(j) = a(j) - val; vectors of width elements. */
ZelStatus zelmSub_vc_32f(const float* pSrc, int srcStride2, float val, float* pDst, int dstStride2, int width);

/** d(j) = a(j) - val; vectors of width elements. */
ZelStatus zelmSub_vc_32f_P(const float* const* ppSrc, int srcByteShift, float val, float* const* ppDst,
    int dstByteShift, int width);

/** d(j) = a(j) - val; vectors of width elements. */
ZelStatus zelmSub_vc_64f(const double* pSrc, int srcStride2, double val, double* pDst, int dstStride2, int width);

/** d(j) = a(j) - val; vectors of width elements. */
ZelStatus zelmSub_vc_64f_P(const double* const* ppSrc, int srcByteShift, double val, double* const* ppDst,
    int dstByteShift, int width);

/** d[k](j) = a(j) - val[k]; vectors of width elements. */
ZelStatus zelmSub_vca_32f(const float* pSrc, int srcStride2, const float* pVal, int valStride0, float* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a(j) - val[k]; vectors of width elements. */
ZelStatus zelmSub_vca_32f_L(const float* pSrc, int srcStride2, const float* const* ppVal, int valByteShift,
    float* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a(j) - val[k]; vectors of width elements. */
ZelStatus zelmSub_vca_32f_P(const float* const* ppSrc, int srcByteShift, const float* pVal, int valStride0,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a(j) - val[k]; vectors of width elements. */
ZelStatus zelmSub_vca_64f(const double* pSrc, int srcStride2, const double* pVal, int valStride0, double* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a(j) - val[k]; vectors of width elements. */
ZelStatus zelmSub_vca_64f_L(const double* pSrc, int srcStride2, const double* const* ppVal, int valByteShift,
    double* const* ppDst, int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a(j) - val[k]; vectors of width elements. */
ZelStatus zelmSub_vca_64f_P(const double* const* ppSrc, int srcByteShift, const double* pVal, int valStride0,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int count);

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

/* ---- Transpose ---- */

/** D(j, i) = A(i, j) of every object; source height x width; destination width x height. */
ZelStatus zelmTranspose_m_32f(const float* pSrc, int srcStride1, int srcStride2, int width, int height, float* pDst,
    int dstStride1, int dstStride2);

/** D(j, i) = A(i, j) of every object; source height x width; destination width x height. */
ZelStatus zelmTranspose_m_32f_P(const float* const* ppSrc, int srcByteShift, int width, int height,
    float* const* ppDst, int dstByteShift);

/** D(j, i) = A(i, j) of every object; source height x width; destination width x height. */
ZelStatus zelmTranspose_m_64f(const double* pSrc, int srcStride1, int srcStride2, int width, int height, double* pDst,
    int dstStride1, int dstStride2);

/** D(j, i) = A(i, j) of every object; source height x width; destination width x height. */
ZelStatus zelmTranspose_m_64f_P(const double* const* ppSrc, int srcByteShift, int width, int height,
    double* const* ppDst, int dstByteShift);

/** D(j, i) = A(i, j) of every object; source height x width; destination width x height. */
ZelStatus zelmTranspose_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, int width,
    int height, float* pDst, int dstStride0, int dstStride1, int dstStride2, int count);

/** D(j, i) = A(i, j) of every object; source height x width; destination width x height. */
ZelStatus zelmTranspose_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    int width, int height, float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D(j, i) = A(i, j) of every object; source height x width; destination width x height. */
ZelStatus zelmTranspose_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, int width, int height,
    float* const* ppDst, int dstByteShift, int dstStride0, int count);

/** D(j, i) = A(i, j) of every object; source height x width; destination width x height. */
ZelStatus zelmTranspose_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, int width,
    int height, double* pDst, int dstStride0, int dstStride1, int dstStride2, int count);

/** D(j, i) = A(i, j) of every object; source height x width; destination width x height. */
ZelStatus zelmTranspose_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    int width, int height, double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D(j, i) = A(i, j) of every object; source height x width; destination width x height. */
ZelStatus zelmTranspose_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, int width, int height,
    double* const* ppDst, int dstByteShift, int dstStride0, int count);

#ifdef __cplusplus
}
#endif

#endif
