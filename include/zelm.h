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
 * Constant k of an array of constants lies at pVal + k*valStride0, in _L functions at ppVal[k] + valByteShift.
 * Strides and byte shifts count BYTES. Strides are positive multiples of the element size, byte shifts multiples of it from 0
 * up; there is no other demand on them, nor on the alignment of any pointer.
 *
 * Every function returns zelStsOk or a negative status. Bad arguments (a null pointer, a count or size below 1, a bad stride or
 * byte shift, sizes that do not agree) are refused with nothing written; the docstrings name what else can be returned.
 * The destination lies apart from the sources where the docstring does not say more. In Add, Sub, Saxpy, LComb and products with
 * constants it may also be an untransposed source, with the same layout, strides and sizes.
 * In formulas k runs over the objects, i over rows, j over columns; A and B (a and b) are the sources, D (d) the destination.
 *
 * Fixed sizes: v2, v3, v4 are 2, 3, 4 consecutive floats, m4 is a matrix of 16 floats row by row, M[4*i + j]. These functions check
 * nothing, null pointers included, and return zelStsOk unless their text says otherwise. Points are row vectors, p' = p M: a
 * translation is in M[12], M[13], M[14], and A * B is A first, then B.
 *
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

/** d(j) = a(j) + b(j); D may be a source. */
ZelStatus zelmAdd_v2_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** d(j) = a(j) + b(j); D may be a source. */
ZelStatus zelmAdd_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** d(j) = a(j) + b(j); D may be a source. */
ZelStatus zelmAdd_v4_32f(const float* pSrc1, const float* pSrc2, float* pDst);

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

/* ---- AffineTransform3DH ---- */

/** column vectors: (x', y', z', w') = M (x, y, z, 1), D[k] = (x', y', z') * (1 / w'). Where |w'| is not above 2^-126,
    D[k] is three times the largest float, and the status tells it at the end; D may be src2; M 4 x 4; points of 3
    elements. May return zelStsDivideByZero. */
ZelStatus zelmAffineTransform3DH_mva_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride0, int src2Stride2, float* pDst, int dstStride0, int dstStride2, int count);

/* ---- AffineTransformCoord ---- */

/** the point A * M divided by its fourth element w, as many floats as A has; v2 counts as (x, y, 0, 1), v3 as (x, y,
    z, 1). w = 0 gives infinities or NaNs; D may be A. */
ZelStatus zelmAffineTransformCoord_m4v2_32f(const float* pMatrix, const float* pSrc, float* pDst);

/** the points A[k] * M divided by their fourth elements w, as many floats as A[k] has; v2 counts as (x, y, 0, 1), v3
    as (x, y, z, 1). w = 0 gives infinities or NaNs; strides of any size and sign; a count below 1 does nothing;
    D[k] may be A[k]. */
ZelStatus zelmAffineTransformCoord_m4v2a_32f(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
    int dstStride0, int count);

/** the point A * M divided by its fourth element w, as many floats as A has; v2 counts as (x, y, 0, 1), v3 as (x, y,
    z, 1). w = 0 gives infinities or NaNs; D may be A. */
ZelStatus zelmAffineTransformCoord_m4v3_32f(const float* pMatrix, const float* pSrc, float* pDst);

/** the points A[k] * M divided by their fourth elements w, as many floats as A[k] has; v2 counts as (x, y, 0, 1), v3
    as (x, y, z, 1). w = 0 gives infinities or NaNs; strides of any size and sign; a count below 1 does nothing;
    D[k] may be A[k]. */
ZelStatus zelmAffineTransformCoord_m4v3a_32f(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
    int dstStride0, int count);

/* ---- AffineTransformNormal ---- */

/** the direction A times the upper left block of M as it stands, as many floats as A has: no translation, no inverse
    transpose, no unit length; D may be A. */
ZelStatus zelmAffineTransformNormal_m4v2_32f(const float* pMatrix, const float* pSrc, float* pDst);

/** the directions A[k] times the upper left block of M as it stands, as many floats as A[k] has: no translation, no
    inverse transpose, no unit length; strides of any size and sign; a count below 1 does nothing; D[k] may be A[k]. */
ZelStatus zelmAffineTransformNormal_m4v2a_32f(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
    int dstStride0, int count);

/** the direction A times the upper left block of M as it stands, as many floats as A has: no translation, no inverse
    transpose, no unit length; D may be A. */
ZelStatus zelmAffineTransformNormal_m4v3_32f(const float* pMatrix, const float* pSrc, float* pDst);

/** the directions A[k] times the upper left block of M as it stands, as many floats as A[k] has: no translation, no
    inverse transpose, no unit length; strides of any size and sign; a count below 1 does nothing; D[k] may be A[k]. */
ZelStatus zelmAffineTransformNormal_m4v3a_32f(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
    int dstStride0, int count);

/* ---- AffineTransform ---- */

/** D = A * M, 4 floats; v2 counts as (x, y, 0, 1), v3 as (x, y, z, 1). */
ZelStatus zelmAffineTransform_m4v2_32f(const float* pMatrix, const float* pSrc, float* pDst);

/** D[k] = A[k] * M, 4 floats each; v2 counts as (x, y, 0, 1), v3 as (x, y, z, 1); strides of any size and sign; a
    count below 1 does nothing; D[k] may be A[k]. */
ZelStatus zelmAffineTransform_m4v2a_32f(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
    int dstStride0, int count);

/** D = A * M, 4 floats; v2 counts as (x, y, 0, 1), v3 as (x, y, z, 1). */
ZelStatus zelmAffineTransform_m4v3_32f(const float* pMatrix, const float* pSrc, float* pDst);

/** D[k] = A[k] * M, 4 floats each; v2 counts as (x, y, 0, 1), v3 as (x, y, z, 1); strides of any size and sign; a
    count below 1 does nothing; D[k] may be A[k]. */
ZelStatus zelmAffineTransform_m4v3a_32f(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
    int dstStride0, int count);

/** D = A * M, 4 floats; v2 counts as (x, y, 0, 1), v3 as (x, y, z, 1). */
ZelStatus zelmAffineTransform_m4v4_32f(const float* pMatrix, const float* pSrc, float* pDst);

/** D[k] = A[k] * M, 4 floats each; v2 counts as (x, y, 0, 1), v3 as (x, y, z, 1); strides of any size and sign; a
    count below 1 does nothing; D[k] may be A[k]. */
ZelStatus zelmAffineTransform_m4v4a_32f(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst,
    int dstStride0, int count);

/* ---- BaryCentric ---- */

/** D = (B - A) weight1 + A + (C - A) weight2, summed in this order; D may be a source. */
ZelStatus zelmBaryCentric_v2_32f(const float* pSrc1, const float* pSrc2, const float* pSrc3, float weight1,
    float weight2, float* pDst);

/** D = (B - A) weight1 + A + (C - A) weight2, summed in this order; D may be a source. */
ZelStatus zelmBaryCentric_v3_32f(const float* pSrc1, const float* pSrc2, const float* pSrc3, float weight1,
    float weight2, float* pDst);

/** D = (B - A) weight1 + A + (C - A) weight2, summed in this order; D may be a source. */
ZelStatus zelmBaryCentric_v4_32f(const float* pSrc1, const float* pSrc2, const float* pSrc3, float weight1,
    float weight2, float* pDst);

/* ---- CholeskyBackSubst ---- */

/** solves A[k] x[k] = b[k] from the factors that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mava_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const float* pSrc2, int src2Stride0, int src2Stride2, float* pDst, int dstStride0, int dstStride2,
    int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mava_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1,
    int src1Stride2, const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* const* ppDst,
    int dstByteShift, int dstStride2, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mava_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const double* pSrc2, int src2Stride0, int src2Stride2, double* pDst, int dstStride0, int dstStride2,
    int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mava_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1,
    int src1Stride2, const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst,
    int dstByteShift, int dstStride2, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int widthHeight, int count);

/** solves A x = b from the factor that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order widthHeight;
    b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mv_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride2, float* pDst, int dstStride2, int widthHeight);

/** solves A x = b from the factor that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order widthHeight;
    b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mv_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, float* const* ppDst, int dstByteShift, int widthHeight);

/** solves A x = b from the factor that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order widthHeight;
    b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mv_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2,
    int src2Stride2, double* pDst, int dstStride2, int widthHeight);

/** solves A x = b from the factor that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order widthHeight;
    b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mv_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, double* const* ppDst, int dstByteShift, int widthHeight);

/** solves A x[k] = b[k] from the factor that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mva_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2,
    int src2Stride0, int src2Stride2, float* pDst, int dstStride0, int dstStride2, int widthHeight, int count);

/** solves A x[k] = b[k] from the factor that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mva_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* const* ppDst, int dstByteShift,
    int dstStride2, int widthHeight, int count);

/** solves A x[k] = b[k] from the factor that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mva_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift, int dstStride0, int widthHeight,
    int count);

/** solves A x[k] = b[k] from the factor that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mva_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const double* pSrc2,
    int src2Stride0, int src2Stride2, double* pDst, int dstStride0, int dstStride2, int widthHeight, int count);

/** solves A x[k] = b[k] from the factor that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mva_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst, int dstByteShift,
    int dstStride2, int widthHeight, int count);

/** solves A x[k] = b[k] from the factor that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmCholeskyBackSubst_mva_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift, int dstStride0, int widthHeight,
    int count);

/* ---- CholeskyDecomp ---- */

/** A = L L^T, A symmetric positive definite, of which the lower triangle is read. D, which may be A, gets the lower
    triangle of L with the reciprocals of L's diagonal on its diagonal, and nothing above. A pivot of 0 or less
    fails; of 2^-23 or less in order 3 of _P, of 2^-52 or less in strided double arrays of orders 1, 2, and 6 up;
    square matrices of order widthHeight. May return zelStsNotPositiveDefinite. */
ZelStatus zelmCholeskyDecomp_m_32f(const float* pSrc, int srcStride1, int srcStride2, float* pDst, int dstStride1,
    int dstStride2, int widthHeight);

/** A = L L^T, A symmetric positive definite, of which the lower triangle is read. D, which may be A, gets the lower
    triangle of L with the reciprocals of L's diagonal on its diagonal, and nothing above. A pivot of 0 or less
    fails; of 2^-23 or less in order 3 of _P, of 2^-52 or less in strided double arrays of orders 1, 2, and 6 up;
    square matrices of order widthHeight. May return zelStsNotPositiveDefinite. */
ZelStatus zelmCholeskyDecomp_m_32f_P(const float* const* ppSrc, int srcByteShift, float* const* ppDst,
    int dstByteShift, int widthHeight);

/** A = L L^T, A symmetric positive definite, of which the lower triangle is read. D, which may be A, gets the lower
    triangle of L with the reciprocals of L's diagonal on its diagonal, and nothing above. A pivot of 0 or less
    fails; of 2^-23 or less in order 3 of _P, of 2^-52 or less in strided double arrays of orders 1, 2, and 6 up;
    square matrices of order widthHeight. May return zelStsNotPositiveDefinite. */
ZelStatus zelmCholeskyDecomp_m_64f(const double* pSrc, int srcStride1, int srcStride2, double* pDst, int dstStride1,
    int dstStride2, int widthHeight);

/** A = L L^T, A symmetric positive definite, of which the lower triangle is read. D, which may be A, gets the lower
    triangle of L with the reciprocals of L's diagonal on its diagonal, and nothing above. A pivot of 0 or less
    fails; of 2^-23 or less in order 3 of _P, of 2^-52 or less in strided double arrays of orders 1, 2, and 6 up;
    square matrices of order widthHeight. May return zelStsNotPositiveDefinite. */
ZelStatus zelmCholeskyDecomp_m_64f_P(const double* const* ppSrc, int srcByteShift, double* const* ppDst,
    int dstByteShift, int widthHeight);

/** A = L L^T, A symmetric positive definite, of which the lower triangle is read. D, which may be A, gets the lower
    triangle of L with the reciprocals of L's diagonal on its diagonal, and nothing above. A pivot of 0 or less
    fails; of 2^-23 or less in order 3 of _P, of 2^-52 or less in strided double arrays of orders 1, 2, and 6 up;
    square matrices of order widthHeight. May return zelStsNotPositiveDefinite. */
ZelStatus zelmCholeskyDecomp_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int widthHeight, int count);

/** A = L L^T, A symmetric positive definite, of which the lower triangle is read. D, which may be A, gets the lower
    triangle of L with the reciprocals of L's diagonal on its diagonal, and nothing above. A pivot of 0 or less
    fails; of 2^-23 or less in order 3 of _P, of 2^-52 or less in strided double arrays of orders 1, 2, and 6 up;
    square matrices of order widthHeight. May return zelStsNotPositiveDefinite. */
ZelStatus zelmCholeskyDecomp_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int widthHeight, int count);

/** A = L L^T, A symmetric positive definite, of which the lower triangle is read. D, which may be A, gets the lower
    triangle of L with the reciprocals of L's diagonal on its diagonal, and nothing above. A pivot of 0 or less
    fails; of 2^-23 or less in order 3 of _P, of 2^-52 or less in strided double arrays of orders 1, 2, and 6 up;
    square matrices of order widthHeight. May return zelStsNotPositiveDefinite. */
ZelStatus zelmCholeskyDecomp_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0,
    float* const* ppDst, int dstByteShift, int dstStride0, int widthHeight, int count);

/** A = L L^T, A symmetric positive definite, of which the lower triangle is read. D, which may be A, gets the lower
    triangle of L with the reciprocals of L's diagonal on its diagonal, and nothing above. A pivot of 0 or less
    fails; of 2^-23 or less in order 3 of _P, of 2^-52 or less in strided double arrays of orders 1, 2, and 6 up;
    square matrices of order widthHeight. May return zelStsNotPositiveDefinite. */
ZelStatus zelmCholeskyDecomp_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int widthHeight, int count);

/** A = L L^T, A symmetric positive definite, of which the lower triangle is read. D, which may be A, gets the lower
    triangle of L with the reciprocals of L's diagonal on its diagonal, and nothing above. A pivot of 0 or less
    fails; of 2^-23 or less in order 3 of _P, of 2^-52 or less in strided double arrays of orders 1, 2, and 6 up;
    square matrices of order widthHeight. May return zelStsNotPositiveDefinite. */
ZelStatus zelmCholeskyDecomp_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int widthHeight, int count);

/** A = L L^T, A symmetric positive definite, of which the lower triangle is read. D, which may be A, gets the lower
    triangle of L with the reciprocals of L's diagonal on its diagonal, and nothing above. A pivot of 0 or less
    fails; of 2^-23 or less in order 3 of _P, of 2^-52 or less in strided double arrays of orders 1, 2, and 6 up;
    square matrices of order widthHeight. May return zelStsNotPositiveDefinite. */
ZelStatus zelmCholeskyDecomp_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0,
    double* const* ppDst, int dstByteShift, int dstStride0, int widthHeight, int count);

/* ---- Copy ---- */

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_32f_LL(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_32f_LP(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_32f_LS(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_32f_PL(const float* const* ppSrc, int srcByteShift, int srcStride0, float* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_32f_PP(const float* const* ppSrc, int srcByteShift, int srcStride0, float* const* ppDst,
    int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_32f_PS(const float* const* ppSrc, int srcByteShift, int srcStride0, float* pDst, int dstStride0,
    int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_32f_SL(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, float* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_32f_SP(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, float* const* ppDst,
    int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_32f_SS(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_64f_LL(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_64f_LP(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_64f_LS(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    double* pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_64f_PL(const double* const* ppSrc, int srcByteShift, int srcStride0, double* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_64f_PP(const double* const* ppSrc, int srcByteShift, int srcStride0, double* const* ppDst,
    int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_64f_PS(const double* const* ppSrc, int srcByteShift, int srcStride0, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_64f_SL(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, double* const* ppDst,
    int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_64f_SP(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, double* const* ppDst,
    int dstByteShift, int dstStride0, int width, int height, int count);

/** D[k](i, j) = A[k](i, j), bit for bit; matrices of height x width. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_ma_64f_SS(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_32f_LL(const float* const* ppSrc, int srcByteShift, int srcStride2, float* const* ppDst,
    int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_32f_LP(const float* const* ppSrc, int srcByteShift, int srcStride2, float* const* ppDst,
    int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_32f_LS(const float* const* ppSrc, int srcByteShift, int srcStride2, float* pDst, int dstStride0,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_32f_PL(const float* const* ppSrc, int srcByteShift, int srcStride0, float* const* ppDst,
    int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_32f_PP(const float* const* ppSrc, int srcByteShift, int srcStride0, float* const* ppDst,
    int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_32f_PS(const float* const* ppSrc, int srcByteShift, int srcStride0, float* pDst, int dstStride0,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_32f_SL(const float* pSrc, int srcStride0, int srcStride2, float* const* ppDst, int dstByteShift,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_32f_SP(const float* pSrc, int srcStride0, int srcStride2, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_32f_SS(const float* pSrc, int srcStride0, int srcStride2, float* pDst, int dstStride0,
    int dstStride2, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_64f_LL(const double* const* ppSrc, int srcByteShift, int srcStride2, double* const* ppDst,
    int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_64f_LP(const double* const* ppSrc, int srcByteShift, int srcStride2, double* const* ppDst,
    int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_64f_LS(const double* const* ppSrc, int srcByteShift, int srcStride2, double* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_64f_PL(const double* const* ppSrc, int srcByteShift, int srcStride0, double* const* ppDst,
    int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_64f_PP(const double* const* ppSrc, int srcByteShift, int srcStride0, double* const* ppDst,
    int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_64f_PS(const double* const* ppSrc, int srcByteShift, int srcStride0, double* pDst,
    int dstStride0, int dstStride2, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_64f_SL(const double* pSrc, int srcStride0, int srcStride2, double* const* ppDst,
    int dstByteShift, int dstStride2, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_64f_SP(const double* pSrc, int srcStride0, int srcStride2, double* const* ppDst,
    int dstByteShift, int dstStride0, int width, int count);

/** d[k](j) = a[k](j), bit for bit; vectors of width elements. With count 1 no stride0 is looked at. */
ZelStatus zelmCopy_va_64f_SS(const double* pSrc, int srcStride0, int srcStride2, double* pDst, int dstStride0,
    int dstStride2, int width, int count);

/* ---- CrossProduct ---- */

/** *pDst = a(0) b(1) - a(1) b(0), one float. */
ZelStatus zelmCrossProduct_v2_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** D = A x B; D must not be a source: each element is stored before the next is computed. */
ZelStatus zelmCrossProduct_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** D orthogonal to A, B and C: d(0) = det of elements 1 2 3 of the three, d(1) = - det of 0 2 3, d(2) = det of 0 1 3,
    d(3) = - det of 0 1 2; D must not be a source: each element is stored before the next is computed. */
ZelStatus zelmCrossProduct_v4_32f(const float* pSrc1, const float* pSrc2, const float* pSrc3, float* pDst);

/** d[k] = a[k] x b; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vav_32f(const float* pSrc1, int src1Stride0, int src1Stride2, const float* pSrc2,
    int src2Stride2, float* pDst, int dstStride0, int dstStride2, int count);

/** d[k] = a[k] x b; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vav_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2,
    const float* pSrc2, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride2, int count);

/** d[k] = a[k] x b; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vav_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int count);

/** d[k] = a[k] x b; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vav_64f(const double* pSrc1, int src1Stride0, int src1Stride2, const double* pSrc2,
    int src2Stride2, double* pDst, int dstStride0, int dstStride2, int count);

/** d[k] = a[k] x b; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vav_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride2,
    const double* pSrc2, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride2, int count);

/** d[k] = a[k] x b; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vav_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int dstStride0, int count);

/** d[k] = a[k] x b[k]; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vava_32f(const float* pSrc1, int src1Stride0, int src1Stride2, const float* pSrc2,
    int src2Stride0, int src2Stride2, float* pDst, int dstStride0, int dstStride2, int count);

/** d[k] = a[k] x b[k]; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vava_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* const* ppDst, int dstByteShift,
    int dstStride2, int count);

/** d[k] = a[k] x b[k]; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int count);

/** d[k] = a[k] x b[k]; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vava_64f(const double* pSrc1, int src1Stride0, int src1Stride2, const double* pSrc2,
    int src2Stride0, int src2Stride2, double* pDst, int dstStride0, int dstStride2, int count);

/** d[k] = a[k] x b[k]; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vava_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride2,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst, int dstByteShift,
    int dstStride2, int count);

/** d[k] = a[k] x b[k]; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int count);

/** d = a x b; d must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vv_32f(const float* pSrc1, int src1Stride2, const float* pSrc2, int src2Stride2,
    float* pDst, int dstStride2);

/** d = a x b; d must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vv_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, float* const* ppDst, int dstByteShift);

/** d = a x b; d must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vv_64f(const double* pSrc1, int src1Stride2, const double* pSrc2, int src2Stride2,
    double* pDst, int dstStride2);

/** d = a x b; d must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vv_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, double* const* ppDst, int dstByteShift);

/** d[k] = a x b[k]; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vva_32f(const float* pSrc1, int src1Stride2, const float* pSrc2, int src2Stride0,
    int src2Stride2, float* pDst, int dstStride0, int dstStride2, int count);

/** d[k] = a x b[k]; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vva_32f_L(const float* pSrc1, int src1Stride2, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride2, int count);

/** d[k] = a x b[k]; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vva_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift, int dstStride0, int count);

/** d[k] = a x b[k]; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vva_64f(const double* pSrc1, int src1Stride2, const double* pSrc2, int src2Stride0,
    int src2Stride2, double* pDst, int dstStride0, int dstStride2, int count);

/** d[k] = a x b[k]; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vva_64f_L(const double* pSrc1, int src1Stride2, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride2, int count);

/** d[k] = a x b[k]; d[k] must overlap neither; vectors of 3 elements. */
ZelStatus zelmCrossProduct_vva_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift, int dstStride0, int count);

/* ---- Det ---- */

/** *pDst = det(A), one float, expanded along the first row. */
ZelStatus zelmDet_m4_32f(const float* pSrc, float* pDst);

/** *pDst = det(A), which need not be exactly 0 where A is singular; square matrices of order n = widthHeight; pBuffer
    n*n elements and n ints, at any address. */
ZelStatus zelmDet_m_32f(const float* pSrc, int srcStride1, int srcStride2, int widthHeight, void* pBuffer, float* pDst);

/** *pDst = det(A), which need not be exactly 0 where A is singular; square matrices of order n = widthHeight; pBuffer
    n*n elements and n ints, at any address. */
ZelStatus zelmDet_m_32f_P(const float* const* ppSrc, int srcByteShift, int widthHeight, void* pBuffer, float* pDst);

/** *pDst = det(A), which need not be exactly 0 where A is singular; square matrices of order n = widthHeight; pBuffer
    n*n elements and n ints, at any address. */
ZelStatus zelmDet_m_64f(const double* pSrc, int srcStride1, int srcStride2, int widthHeight, void* pBuffer,
    double* pDst);

/** *pDst = det(A), which need not be exactly 0 where A is singular; square matrices of order n = widthHeight; pBuffer
    n*n elements and n ints, at any address. */
ZelStatus zelmDet_m_64f_P(const double* const* ppSrc, int srcByteShift, int widthHeight, void* pBuffer, double* pDst);

/** pDst[k] = det(A[k]), which need not be exactly 0 where A[k] is singular; square matrices of order n = widthHeight;
    pBuffer n*n elements and n ints, at any address. */
ZelStatus zelmDet_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, int widthHeight,
    void* pBuffer, float* pDst, int count);

/** pDst[k] = det(A[k]), which need not be exactly 0 where A[k] is singular; square matrices of order n = widthHeight;
    pBuffer n*n elements and n ints, at any address. */
ZelStatus zelmDet_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    int widthHeight, void* pBuffer, float* pDst, int count);

/** pDst[k] = det(A[k]), which need not be exactly 0 where A[k] is singular; square matrices of order n = widthHeight;
    pBuffer n*n elements and n ints, at any address. */
ZelStatus zelmDet_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, int widthHeight,
    void* pBuffer, float* pDst, int count);

/** pDst[k] = det(A[k]), which need not be exactly 0 where A[k] is singular; square matrices of order n = widthHeight;
    pBuffer n*n elements and n ints, at any address. */
ZelStatus zelmDet_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, int widthHeight,
    void* pBuffer, double* pDst, int count);

/** pDst[k] = det(A[k]), which need not be exactly 0 where A[k] is singular; square matrices of order n = widthHeight;
    pBuffer n*n elements and n ints, at any address. */
ZelStatus zelmDet_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    int widthHeight, void* pBuffer, double* pDst, int count);

/** pDst[k] = det(A[k]), which need not be exactly 0 where A[k] is singular; square matrices of order n = widthHeight;
    pBuffer n*n elements and n ints, at any address. */
ZelStatus zelmDet_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, int widthHeight,
    void* pBuffer, double* pDst, int count);

/* ---- DotProduct ---- */

/** *pDst = a(0) b(0) + a(1) b(1) + ..., one float, summed in this order. */
ZelStatus zelmDotProduct_v2_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** *pDst = a(0) b(0) + a(1) b(1) + ..., one float, summed in this order. */
ZelStatus zelmDotProduct_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** *pDst = a(0) b(0) + a(1) b(1) + ..., one float, summed in this order. */
ZelStatus zelmDotProduct_v4_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** pDst[k] = sum over j of a[k](j) * b(j); vectors of width elements. */
ZelStatus zelmDotProduct_vav_32f(const float* pSrc1, int src1Stride0, int src1Stride2, const float* pSrc2,
    int src2Stride2, float* pDst, int width, int count);

/** pDst[k] = sum over j of a[k](j) * b(j); vectors of width elements. */
ZelStatus zelmDotProduct_vav_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2, const float* pSrc2,
    int src2Stride2, float* pDst, int width, int count);

/** pDst[k] = sum over j of a[k](j) * b(j); vectors of width elements. */
ZelStatus zelmDotProduct_vav_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, float* pDst, int width, int count);

/** pDst[k] = sum over j of a[k](j) * b(j); vectors of width elements. */
ZelStatus zelmDotProduct_vav_64f(const double* pSrc1, int src1Stride0, int src1Stride2, const double* pSrc2,
    int src2Stride2, double* pDst, int width, int count);

/** pDst[k] = sum over j of a[k](j) * b(j); vectors of width elements. */
ZelStatus zelmDotProduct_vav_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride2,
    const double* pSrc2, int src2Stride2, double* pDst, int width, int count);

/** pDst[k] = sum over j of a[k](j) * b(j); vectors of width elements. */
ZelStatus zelmDotProduct_vav_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, double* pDst, int width, int count);

/** pDst[k] = sum over j of a[k](j) * b[k](j); vectors of width elements. */
ZelStatus zelmDotProduct_vava_32f(const float* pSrc1, int src1Stride0, int src1Stride2, const float* pSrc2,
    int src2Stride0, int src2Stride2, float* pDst, int width, int count);

/** pDst[k] = sum over j of a[k](j) * b[k](j); vectors of width elements. */
ZelStatus zelmDotProduct_vava_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* pDst, int width, int count);

/** pDst[k] = sum over j of a[k](j) * b[k](j); vectors of width elements. */
ZelStatus zelmDotProduct_vava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* pDst, int width, int count);

/** pDst[k] = sum over j of a[k](j) * b[k](j); vectors of width elements. */
ZelStatus zelmDotProduct_vava_64f(const double* pSrc1, int src1Stride0, int src1Stride2, const double* pSrc2,
    int src2Stride0, int src2Stride2, double* pDst, int width, int count);

/** pDst[k] = sum over j of a[k](j) * b[k](j); vectors of width elements. */
ZelStatus zelmDotProduct_vava_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride2,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* pDst, int width, int count);

/** pDst[k] = sum over j of a[k](j) * b[k](j); vectors of width elements. */
ZelStatus zelmDotProduct_vava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* pDst, int width, int count);

/** *pDst = sum over j of a(j) * b(j); vectors of width elements. */
ZelStatus zelmDotProduct_vv_32f(const float* pSrc1, int src1Stride2, const float* pSrc2, int src2Stride2, float* pDst,
    int width);

/** *pDst = sum over j of a(j) * b(j); vectors of width elements. */
ZelStatus zelmDotProduct_vv_32f_P(const float* const* ppSrc1, int src1ByteShift, const float* const* ppSrc2,
    int src2ByteShift, float* pDst, int width);

/** *pDst = sum over j of a(j) * b(j); vectors of width elements. */
ZelStatus zelmDotProduct_vv_64f(const double* pSrc1, int src1Stride2, const double* pSrc2, int src2Stride2,
    double* pDst, int width);

/** *pDst = sum over j of a(j) * b(j); vectors of width elements. */
ZelStatus zelmDotProduct_vv_64f_P(const double* const* ppSrc1, int src1ByteShift, const double* const* ppSrc2,
    int src2ByteShift, double* pDst, int width);

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
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_m_32f(const float* pSrc, int srcStride1, int srcStride2, float* pDstVectors,
    int dstStride1, int dstStride2, float* pDstValuesRe, float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A: u^H A^T = lambda u^H, so for a real value
    A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_m_32f_P(const float* const* ppSrc, int srcByteShift, float* const* ppDstVectors,
    int dstByteShift, float* pDstValuesRe, float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A: u^H A^T = lambda u^H, so for a real value
    A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_m_64f(const double* pSrc, int srcStride1, int srcStride2, double* pDstVectors,
    int dstStride1, int dstStride2, double* pDstValuesRe, double* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A: u^H A^T = lambda u^H, so for a real value
    A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_m_64f_P(const double* const* ppSrc, int srcByteShift,
    double* const* ppDstVectors, int dstByteShift, double* pDstValuesRe, double* pDstValuesIm, int widthHeight,
    void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A[k]: u^H A^T = lambda u^H, so for a real
    value A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector
    of the first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize
    gives. Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values
    are there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk
    for a real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2,
    float* pDstVectors, int dstStride0, int dstStride1, int dstStride2, float* pDstValuesRe, float* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A[k]: u^H A^T = lambda u^H, so for a real
    value A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector
    of the first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize
    gives. Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values
    are there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk
    for a real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1,
    int srcStride2, float* const* ppDstVectors, int dstByteShift, int dstStride1, int dstStride2, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A[k]: u^H A^T = lambda u^H, so for a real
    value A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector
    of the first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize
    gives. Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values
    are there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk
    for a real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0,
    float* const* ppDstVectors, int dstByteShift, int dstStride0, float* pDstValuesRe, float* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A[k]: u^H A^T = lambda u^H, so for a real
    value A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector
    of the first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize
    gives. Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values
    are there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk
    for a real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2,
    double* pDstVectors, int dstStride0, int dstStride1, int dstStride2, double* pDstValuesRe, double* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A[k]: u^H A^T = lambda u^H, so for a real
    value A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector
    of the first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize
    gives. Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values
    are there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk
    for a real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1,
    int srcStride2, double* const* ppDstVectors, int dstByteShift, int dstStride1, int dstStride2,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit left eigenvectors, in columns, of the transposed A[k]: u^H A^T = lambda u^H, so for a real
    value A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector
    of the first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize
    gives. Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values
    are there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk
    for a real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsLeft_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0,
    double* const* ppDstVectors, int dstByteShift, int dstStride0, double* pDstValuesRe, double* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/* ---- EigenValuesVectorsRight ---- */

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. Where an eigenvalue meets a
    complex pair to within rounding, the call ends with that object: its values are there, its vectors are left
    alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a real one. May return
    zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_m_32f(const float* pSrc, int srcStride1, int srcStride2, float* pDstVectors,
    int dstStride1, int dstStride2, float* pDstValuesRe, float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. Where an eigenvalue meets a
    complex pair to within rounding, the call ends with that object: its values are there, its vectors are left
    alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a real one. May return
    zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_m_32f_P(const float* const* ppSrc, int srcByteShift, float* const* ppDstVectors,
    int dstByteShift, float* pDstValuesRe, float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. Where an eigenvalue meets a
    complex pair to within rounding, the call ends with that object: its values are there, its vectors are left
    alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a real one. May return
    zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_m_64f(const double* pSrc, int srcStride1, int srcStride2, double* pDstVectors,
    int dstStride1, int dstStride2, double* pDstValuesRe, double* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. Where an eigenvalue meets a
    complex pair to within rounding, the call ends with that object: its values are there, its vectors are left
    alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a real one. May return
    zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_m_64f_P(const double* const* ppSrc, int srcByteShift,
    double* const* ppDstVectors, int dstByteShift, double* pDstValuesRe, double* pDstValuesIm, int widthHeight,
    void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. Where an eigenvalue meets a
    complex pair to within rounding, the call ends with that object: its values are there, its vectors are left
    alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a real one. May return
    zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2,
    float* pDstVectors, int dstStride0, int dstStride1, int dstStride2, float* pDstValuesRe, float* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. Where an eigenvalue meets a
    complex pair to within rounding, the call ends with that object: its values are there, its vectors are left
    alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a real one. May return
    zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1,
    int srcStride2, float* const* ppDstVectors, int dstByteShift, int dstStride1, int dstStride2, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. Where an eigenvalue meets a
    complex pair to within rounding, the call ends with that object: its values are there, its vectors are left
    alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a real one. May return
    zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0,
    float* const* ppDstVectors, int dstByteShift, int dstStride0, float* pDstValuesRe, float* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. Where an eigenvalue meets a
    complex pair to within rounding, the call ends with that object: its values are there, its vectors are left
    alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a real one. May return
    zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2,
    double* pDstVectors, int dstStride0, int dstStride1, int dstStride2, double* pDstValuesRe, double* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. Where an eigenvalue meets a
    complex pair to within rounding, the call ends with that object: its values are there, its vectors are left
    alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a real one. May return
    zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectorsRight_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1,
    int srcStride2, double* const* ppDstVectors, int dstByteShift, int dstStride1, int dstStride2,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues and unit right eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x. The vector of a
    complex pair takes its two columns: real and imaginary part of the vector of the first; square matrices of order
    widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. Where an eigenvalue meets a
    complex pair to within rounding, the call ends with that object: its values are there, its vectors are left
    alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a real one. May return
    zelStsFailure, zelStsNoConvergence. */
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
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_m_32f(const float* pSrc, int srcStride1, int srcStride2, float* pDstVectorsRight,
    int dstRightStride1, int dstRightStride2, float* pDstVectorsLeft, int dstLeftStride1, int dstLeftStride2,
    float* pDstValuesRe, float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_m_32f_P(const float* const* ppSrc, int srcByteShift, float* const* ppDstVectorsRight,
    int dstRightByteShift, float* const* ppDstVectorsLeft, int dstLeftByteShift, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_m_64f(const double* pSrc, int srcStride1, int srcStride2, double* pDstVectorsRight,
    int dstRightStride1, int dstRightStride2, double* pDstVectorsLeft, int dstLeftStride1, int dstLeftStride2,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_m_64f_P(const double* const* ppSrc, int srcByteShift,
    double* const* ppDstVectorsRight, int dstRightByteShift, double* const* ppDstVectorsLeft, int dstLeftByteShift,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2,
    float* pDstVectorsRight, int dstRightStride0, int dstRightStride1, int dstRightStride2, float* pDstVectorsLeft,
    int dstLeftStride0, int dstLeftStride1, int dstLeftStride2, float* pDstValuesRe, float* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    float* const* ppDstVectorsRight, int dstRightByteShift, int dstRightStride1, int dstRightStride2,
    float* const* ppDstVectorsLeft, int dstLeftByteShift, int dstLeftStride1, int dstLeftStride2, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0,
    float* const* ppDstVectorsRight, int dstRightByteShift, int dstRightStride0, float* const* ppDstVectorsLeft,
    int dstLeftByteShift, int dstLeftStride0, float* pDstValuesRe, float* pDstValuesIm, int widthHeight, int count,
    void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2,
    double* pDstVectorsRight, int dstRightStride0, int dstRightStride1, int dstRightStride2, double* pDstVectorsLeft,
    int dstLeftStride0, int dstLeftStride1, int dstLeftStride2, double* pDstValuesRe, double* pDstValuesIm,
    int widthHeight, int count, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1,
    int srcStride2, double* const* ppDstVectorsRight, int dstRightByteShift, int dstRightStride1, int dstRightStride2,
    double* const* ppDstVectorsLeft, int dstLeftByteShift, int dstLeftStride1, int dstLeftStride2,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues and both sets of unit eigenvectors, in columns, of the transposed A[k]: A^T x = lambda x and u^H A^T =
    lambda u^H. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the
    first; square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives.
    Where an eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are
    there, its vectors are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a
    real one. May return zelStsFailure, zelStsNoConvergence. */
ZelStatus zelmEigenValuesVectors_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0,
    double* const* ppDstVectorsRight, int dstRightByteShift, int dstRightStride0, double* const* ppDstVectorsLeft,
    int dstLeftByteShift, int dstLeftStride0, double* pDstValuesRe, double* pDstValuesIm, int widthHeight, int count,
    void* pBuffer);

/* ---- EigenValues ---- */

/** eigenvalues of the general A: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first; a 2 x 2 block with equal diagonal elements counts as
    one even where its eigenvalues are real. A subdiagonal element of at most epsilon counts as zero whatever the
    size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of the bytes that
    zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_m_32f(const float* pSrc, int srcStride1, int srcStride2, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues of the general A: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first; a 2 x 2 block with equal diagonal elements counts as
    one even where its eigenvalues are real. A subdiagonal element of at most epsilon counts as zero whatever the
    size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of the bytes that
    zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_m_32f_P(const float* const* ppSrc, int srcByteShift, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues of the general A: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first; a 2 x 2 block with equal diagonal elements counts as
    one even where its eigenvalues are real. A subdiagonal element of at most epsilon counts as zero whatever the
    size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of the bytes that
    zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_m_64f(const double* pSrc, int srcStride1, int srcStride2, double* pDstValuesRe,
    double* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues of the general A: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first; a 2 x 2 block with equal diagonal elements counts as
    one even where its eigenvalues are real. A subdiagonal element of at most epsilon counts as zero whatever the
    size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of the bytes that
    zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_m_64f_P(const double* const* ppSrc, int srcByteShift, double* pDstValuesRe,
    double* pDstValuesIm, int widthHeight, void* pBuffer);

/** eigenvalues of the general A[k]: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first; a 2 x 2 block with equal diagonal elements counts as
    one even where its eigenvalues are real. A subdiagonal element of at most epsilon counts as zero whatever the
    size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of the bytes that
    zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2,
    float* pDstValuesRe, float* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues of the general A[k]: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first; a 2 x 2 block with equal diagonal elements counts as
    one even where its eigenvalues are real. A subdiagonal element of at most epsilon counts as zero whatever the
    size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of the bytes that
    zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    float* pDstValuesRe, float* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues of the general A[k]: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first; a 2 x 2 block with equal diagonal elements counts as
    one even where its eigenvalues are real. A subdiagonal element of at most epsilon counts as zero whatever the
    size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of the bytes that
    zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float* pDstValuesRe,
    float* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues of the general A[k]: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first; a 2 x 2 block with equal diagonal elements counts as
    one even where its eigenvalues are real. A subdiagonal element of at most epsilon counts as zero whatever the
    size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of the bytes that
    zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues of the general A[k]: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first; a 2 x 2 block with equal diagonal elements counts as
    one even where its eigenvalues are real. A subdiagonal element of at most epsilon counts as zero whatever the
    size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of the bytes that
    zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
ZelStatus zelmEigenValues_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    double* pDstValuesRe, double* pDstValuesIm, int widthHeight, int count, void* pBuffer);

/** eigenvalues of the general A[k]: real and imaginary parts, n each for every object, unsorted. A complex pair takes
    two neighbouring places, the positive imaginary part first; a 2 x 2 block with equal diagonal elements counts as
    one even where its eigenvalues are real. A subdiagonal element of at most epsilon counts as zero whatever the
    size of the matrix: scale it to about 1; square matrices of order n = widthHeight; pBuffer of the bytes that
    zelmEigenValuesGetBufSize gives. May return zelStsNoConvergence. */
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

/* ---- FrobNorm ---- */

/** *pDst = sqrt(sum over i, j of A(i, j)^2); infinite or 0 where the squares leave the range; A height x width. */
ZelStatus zelmFrobNorm_m_32f(const float* pSrc, int srcStride1, int srcStride2, int width, int height, float* pDst);

/** *pDst = sqrt(sum over i, j of A(i, j)^2); infinite or 0 where the squares leave the range; A height x width. */
ZelStatus zelmFrobNorm_m_32f_P(const float* const* ppSrc, int srcByteShift, int width, int height, float* pDst);

/** *pDst = sqrt(sum over i, j of A(i, j)^2); infinite or 0 where the squares leave the range; A height x width. */
ZelStatus zelmFrobNorm_m_64f(const double* pSrc, int srcStride1, int srcStride2, int width, int height, double* pDst);

/** *pDst = sqrt(sum over i, j of A(i, j)^2); infinite or 0 where the squares leave the range; A height x width. */
ZelStatus zelmFrobNorm_m_64f_P(const double* const* ppSrc, int srcByteShift, int width, int height, double* pDst);

/** pDst[k] = sqrt(sum over i, j of A[k](i, j)^2); infinite or 0 where the squares leave the range; A height x width. */
ZelStatus zelmFrobNorm_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, int width,
    int height, float* pDst, int count);

/** pDst[k] = sqrt(sum over i, j of A[k](i, j)^2); infinite or 0 where the squares leave the range; A height x width. */
ZelStatus zelmFrobNorm_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    int width, int height, float* pDst, int count);

/** pDst[k] = sqrt(sum over i, j of A[k](i, j)^2); infinite or 0 where the squares leave the range; A height x width. */
ZelStatus zelmFrobNorm_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, int width, int height,
    float* pDst, int count);

/** pDst[k] = sqrt(sum over i, j of A[k](i, j)^2); infinite or 0 where the squares leave the range; A height x width. */
ZelStatus zelmFrobNorm_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, int width,
    int height, double* pDst, int count);

/** pDst[k] = sqrt(sum over i, j of A[k](i, j)^2); infinite or 0 where the squares leave the range; A height x width. */
ZelStatus zelmFrobNorm_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    int width, int height, double* pDst, int count);

/** pDst[k] = sqrt(sum over i, j of A[k](i, j)^2); infinite or 0 where the squares leave the range; A height x width. */
ZelStatus zelmFrobNorm_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, int width, int height,
    double* pDst, int count);

/* ---- Gaxpy ---- */

/** d = A * b + c; d must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mv_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const float* pSrc2, int src2Stride2, int src2Len, const float* pSrc3, int src3Stride2, int src3Len, float* pDst,
    int dstStride2);

/** d = A * b + c; d must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mv_32f_P(const float* const* ppSrc1, int src1ByteShift, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Len, const float* const* ppSrc3, int src3ByteShift,
    int src3Len, float* const* ppDst, int dstByteShift);

/** d = A * b + c; d must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mv_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const double* pSrc2, int src2Stride2, int src2Len, const double* pSrc3, int src3Stride2, int src3Len,
    double* pDst, int dstStride2);

/** d = A * b + c; d must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mv_64f_P(const double* const* ppSrc1, int src1ByteShift, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Len, const double* const* ppSrc3, int src3ByteShift,
    int src3Len, double* const* ppDst, int dstByteShift);

/** d[k] = A * b[k] + c[k]; d[k] must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mva_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const float* pSrc2, int src2Stride0, int src2Stride2, int src2Len, const float* pSrc3, int src3Stride0,
    int src3Stride2, int src3Len, float* pDst, int dstStride0, int dstStride2, int count);

/** d[k] = A * b[k] + c[k]; d[k] must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mva_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, int src2Len, const float* const* ppSrc3,
    int src3ByteShift, int src3Stride2, int src3Len, float* const* ppDst, int dstByteShift, int dstStride2, int count);

/** d[k] = A * b[k] + c[k]; d[k] must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mva_32f_P(const float* const* ppSrc1, int src1ByteShift, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int src2Len, const float* const* ppSrc3,
    int src3ByteShift, int src3Stride0, int src3Len, float* const* ppDst, int dstByteShift, int dstStride0, int count);

/** d[k] = A * b[k] + c[k]; d[k] must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mva_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const double* pSrc2, int src2Stride0, int src2Stride2, int src2Len, const double* pSrc3, int src3Stride0,
    int src3Stride2, int src3Len, double* pDst, int dstStride0, int dstStride2, int count);

/** d[k] = A * b[k] + c[k]; d[k] must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mva_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, int src2Len, const double* const* ppSrc3,
    int src3ByteShift, int src3Stride2, int src3Len, double* const* ppDst, int dstByteShift, int dstStride2, int count);

/** d[k] = A * b[k] + c[k]; d[k] must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mva_64f_P(const double* const* ppSrc1, int src1ByteShift, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int src2Len, const double* const* ppSrc3,
    int src3ByteShift, int src3Stride0, int src3Len, double* const* ppDst, int dstByteShift, int dstStride0, int count);

/** d[k] = A * b[k] + c; d[k] must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mvav_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const float* pSrc2, int src2Stride0, int src2Stride2, int src2Len, const float* pSrc3, int src3Stride2,
    int src3Len, float* pDst, int dstStride0, int dstStride2, int count);

/** d[k] = A * b[k] + c; d[k] must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mvav_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, int src2Len, const float* pSrc3, int src3Stride2,
    int src3Len, float* const* ppDst, int dstByteShift, int dstStride2, int count);

/** d[k] = A * b[k] + c; d[k] must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mvav_32f_P(const float* const* ppSrc1, int src1ByteShift, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int src2Len, const float* const* ppSrc3,
    int src3ByteShift, int src3Len, float* const* ppDst, int dstByteShift, int dstStride0, int count);

/** d[k] = A * b[k] + c; d[k] must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mvav_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const double* pSrc2, int src2Stride0, int src2Stride2, int src2Len, const double* pSrc3, int src3Stride2,
    int src3Len, double* pDst, int dstStride0, int dstStride2, int count);

/** d[k] = A * b[k] + c; d[k] must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mvav_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, int src2Len, const double* pSrc3,
    int src3Stride2, int src3Len, double* const* ppDst, int dstByteShift, int dstStride2, int count);

/** d[k] = A * b[k] + c; d[k] must overlap none of them; A height x width; b src2Len, c src3Len elements. */
ZelStatus zelmGaxpy_mvav_64f_P(const double* const* ppSrc1, int src1ByteShift, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int src2Len, const double* const* ppSrc3,
    int src3ByteShift, int src3Len, double* const* ppDst, int dstByteShift, int dstStride0, int count);

/* ---- GetLibVersion ---- */

/** the version record of the library; never null. */
const ZelLibVersion* zelmGetLibVersion(void);

/* ---- Hermite ---- */

/** the point at s = weight, 0 to 1, of the cubic from p0 to p1 with tangents t0 and t1: D = (p0 - p1) (2 s^3 - 3 s^2)
    + ((p0 + t0 (s - 2 s^2 + s^3)) + t1 (s^3 - s^2)), which is p0 exactly at s = 0; D may be a source. */
ZelStatus zelmHermite_v2_32f(const float* pPoint0, const float* pTangent0, const float* pPoint1,
    const float* pTangent1, float weight, float* pDst);

/** the point at s = weight, 0 to 1, of the cubic from p0 to p1 with tangents t0 and t1: D = (p0 - p1) (2 s^3 - 3 s^2)
    + ((p0 + t0 (s - 2 s^2 + s^3)) + t1 (s^3 - s^2)), which is p0 exactly at s = 0; D may be a source. */
ZelStatus zelmHermite_v3_32f(const float* pPoint0, const float* pTangent0, const float* pPoint1,
    const float* pTangent1, float weight, float* pDst);

/** the point at s = weight, 0 to 1, of the cubic from p0 to p1 with tangents t0 and t1: D = (p0 - p1) (2 s^3 - 3 s^2)
    + ((p0 + t0 (s - 2 s^2 + s^3)) + t1 (s^3 - s^2)), which is p0 exactly at s = 0; D may be a source. */
ZelStatus zelmHermite_v4_32f(const float* pPoint0, const float* pTangent0, const float* pPoint1,
    const float* pTangent1, float weight, float* pDst);

/* ---- Identity ---- */

/** D = I. */
ZelStatus zelmIdentity_m4_32f(float* pDst);

/* ---- InterpolationCatmullRom ---- */

/** the point at weight, 0 to 1, of the Hermite curve from pSrc2 to pSrc3 with the tangents (pSrc3 - pSrc1) / 2 and
    (pSrc4 - pSrc2) / 2; D may be a source. */
ZelStatus zelmInterpolationCatmullRom_v2_32f(const float* pSrc1, const float* pSrc2, const float* pSrc3,
    const float* pSrc4, float weight, float* pDst);

/** the point at weight, 0 to 1, of the Hermite curve from pSrc2 to pSrc3 with the tangents (pSrc3 - pSrc1) / 2 and
    (pSrc4 - pSrc2) / 2; D may be a source. */
ZelStatus zelmInterpolationCatmullRom_v3_32f(const float* pSrc1, const float* pSrc2, const float* pSrc3,
    const float* pSrc4, float weight, float* pDst);

/** the point at weight, 0 to 1, of the Hermite curve from pSrc2 to pSrc3 with the tangents (pSrc3 - pSrc1) / 2 and
    (pSrc4 - pSrc2) / 2; D may be a source. */
ZelStatus zelmInterpolationCatmullRom_v4_32f(const float* pSrc1, const float* pSrc2, const float* pSrc3,
    const float* pSrc4, float weight, float* pDst);

/* ---- InterpolationLinear ---- */

/** D = A + (B - A) weight, which is A exactly at weight 0; D may be a source. */
ZelStatus zelmInterpolationLinear_v2_32f(const float* pSrc1, const float* pSrc2, float weight, float* pDst);

/** D = A + (B - A) weight, which is A exactly at weight 0; D may be a source. */
ZelStatus zelmInterpolationLinear_v3_32f(const float* pSrc1, const float* pSrc2, float weight, float* pDst);

/** D = A + (B - A) weight, which is A exactly at weight 0; D may be a source. */
ZelStatus zelmInterpolationLinear_v4_32f(const float* pSrc1, const float* pSrc2, float weight, float* pDst);

/* ---- Invert ---- */

/** D = inverse of A, by cofactors, and *pDet = det(A) unless pDet is null; D may be A. Singular if |det(A)| < 2^-119:
    then *pDet = 0 and D is left alone. May return zelStsSingular. */
ZelStatus zelmInvert_m4_32f(const float* pSrc, float* pDet, float* pDst);

/** D = inverse of A, which D may be in orders 1 and 3 to 6. Singular where |det| or a pivot is below an absolute
    limit, about 2 n^3 times the smallest normal number. In orders 2 and 7 upward each vanishing cofactor counts as
    that limit, not as 0; square matrices of order n = widthHeight; pBuffer n*n elements and n ints, at any address.
    May return zelStsSingular. */
ZelStatus zelmInvert_m_32f(const float* pSrc, int srcStride1, int srcStride2, void* pBuffer, float* pDst,
    int dstStride1, int dstStride2, int widthHeight);

/** D = inverse of A, which D may be in orders 1 and 3 to 6. Singular where |det| or a pivot is below an absolute
    limit, about 2 n^3 times the smallest normal number. In orders 2 and 7 upward each vanishing cofactor counts as
    that limit, not as 0; square matrices of order n = widthHeight; pBuffer n*n elements and n ints, at any address.
    May return zelStsSingular. */
ZelStatus zelmInvert_m_32f_P(const float* const* ppSrc, int srcByteShift, void* pBuffer, float* const* ppDst,
    int dstByteShift, int widthHeight);

/** D = inverse of A, which D may be in orders 1 and 3 to 6. Singular where |det| or a pivot is below an absolute
    limit, about 2 n^3 times the smallest normal number. In orders 2 and 7 upward each vanishing cofactor counts as
    that limit, not as 0; square matrices of order n = widthHeight; pBuffer n*n elements and n ints, at any address.
    May return zelStsSingular. */
ZelStatus zelmInvert_m_64f(const double* pSrc, int srcStride1, int srcStride2, void* pBuffer, double* pDst,
    int dstStride1, int dstStride2, int widthHeight);

/** D = inverse of A, which D may be in orders 1 and 3 to 6. Singular where |det| or a pivot is below an absolute
    limit, about 2 n^3 times the smallest normal number. In orders 2 and 7 upward each vanishing cofactor counts as
    that limit, not as 0; square matrices of order n = widthHeight; pBuffer n*n elements and n ints, at any address.
    May return zelStsSingular. */
ZelStatus zelmInvert_m_64f_P(const double* const* ppSrc, int srcByteShift, void* pBuffer, double* const* ppDst,
    int dstByteShift, int widthHeight);

/** D[k] = inverse of A[k], which D may be in orders 1 and 3 to 6. Singular where |det| or a pivot is below an
    absolute limit, about 2 n^3 times the smallest normal number. In orders 2 and 7 upward each vanishing cofactor
    counts as that limit, not as 0; square matrices of order n = widthHeight; pBuffer n*n elements and n ints, at
    any address. May return zelStsSingular. */
ZelStatus zelmInvert_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, void* pBuffer,
    float* pDst, int dstStride0, int dstStride1, int dstStride2, int widthHeight, int count);

/** D[k] = inverse of A[k], which D may be in orders 1 and 3 to 6. Singular where |det| or a pivot is below an
    absolute limit, about 2 n^3 times the smallest normal number. In orders 2 and 7 upward each vanishing cofactor
    counts as that limit, not as 0; square matrices of order n = widthHeight; pBuffer n*n elements and n ints, at
    any address. May return zelStsSingular. */
ZelStatus zelmInvert_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    void* pBuffer, float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int widthHeight, int count);

/** D[k] = inverse of A[k], which D may be in orders 1 and 3 to 6. Singular where |det| or a pivot is below an
    absolute limit, about 2 n^3 times the smallest normal number. In orders 2 and 7 upward each vanishing cofactor
    counts as that limit, not as 0; square matrices of order n = widthHeight; pBuffer n*n elements and n ints, at
    any address. May return zelStsSingular. */
ZelStatus zelmInvert_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, void* pBuffer,
    float* const* ppDst, int dstByteShift, int dstStride0, int widthHeight, int count);

/** D[k] = inverse of A[k], which D may be in orders 1 and 3 to 6. Singular where |det| or a pivot is below an
    absolute limit, about 2 n^3 times the smallest normal number. In orders 2 and 7 upward each vanishing cofactor
    counts as that limit, not as 0; square matrices of order n = widthHeight; pBuffer n*n elements and n ints, at
    any address. May return zelStsSingular. */
ZelStatus zelmInvert_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, void* pBuffer,
    double* pDst, int dstStride0, int dstStride1, int dstStride2, int widthHeight, int count);

/** D[k] = inverse of A[k], which D may be in orders 1 and 3 to 6. Singular where |det| or a pivot is below an
    absolute limit, about 2 n^3 times the smallest normal number. In orders 2 and 7 upward each vanishing cofactor
    counts as that limit, not as 0; square matrices of order n = widthHeight; pBuffer n*n elements and n ints, at
    any address. May return zelStsSingular. */
ZelStatus zelmInvert_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    void* pBuffer, double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int widthHeight, int count);

/** D[k] = inverse of A[k], which D may be in orders 1 and 3 to 6. Singular where |det| or a pivot is below an
    absolute limit, about 2 n^3 times the smallest normal number. In orders 2 and 7 upward each vanishing cofactor
    counts as that limit, not as 0; square matrices of order n = widthHeight; pBuffer n*n elements and n ints, at
    any address. May return zelStsSingular. */
ZelStatus zelmInvert_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, void* pBuffer,
    double* const* ppDst, int dstByteShift, int dstStride0, int widthHeight, int count);

/* ---- IsIdentity ---- */

/** *pResult = 1 if A(0, 0) is 1 and at least one column of A, whichever, equals that of the identity exactly; else 0.
    True of the identity, but not of it alone. */
ZelStatus zelmIsIdentity_m4_32f(const float* pSrc, int* pResult);

/* ---- L2Norm ---- */

/** *pDst = sqrt(sum over j of a(j)^2); infinite or 0 where the squares leave the range; vectors of width elements. */
ZelStatus zelmL2Norm_v_32f(const float* pSrc, int srcStride2, float* pDst, int width);

/** *pDst = sqrt(sum over j of a(j)^2); infinite or 0 where the squares leave the range; vectors of width elements. */
ZelStatus zelmL2Norm_v_32f_P(const float* const* ppSrc, int srcByteShift, float* pDst, int width);

/** *pDst = sqrt(sum over j of a(j)^2); infinite or 0 where the squares leave the range; vectors of width elements. */
ZelStatus zelmL2Norm_v_64f(const double* pSrc, int srcStride2, double* pDst, int width);

/** *pDst = sqrt(sum over j of a(j)^2); infinite or 0 where the squares leave the range; vectors of width elements. */
ZelStatus zelmL2Norm_v_64f_P(const double* const* ppSrc, int srcByteShift, double* pDst, int width);

/** pDst[k] = sqrt(sum over j of a[k](j)^2); infinite or 0 where the squares leave the range; vectors of width
    elements. */
ZelStatus zelmL2Norm_va_32f(const float* pSrc, int srcStride0, int srcStride2, float* pDst, int width, int count);

/** pDst[k] = sqrt(sum over j of a[k](j)^2); infinite or 0 where the squares leave the range; vectors of width
    elements. */
ZelStatus zelmL2Norm_va_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride2, float* pDst, int width,
    int count);

/** pDst[k] = sqrt(sum over j of a[k](j)^2); infinite or 0 where the squares leave the range; vectors of width
    elements. */
ZelStatus zelmL2Norm_va_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float* pDst, int width,
    int count);

/** pDst[k] = sqrt(sum over j of a[k](j)^2); infinite or 0 where the squares leave the range; vectors of width
    elements. */
ZelStatus zelmL2Norm_va_64f(const double* pSrc, int srcStride0, int srcStride2, double* pDst, int width, int count);

/** pDst[k] = sqrt(sum over j of a[k](j)^2); infinite or 0 where the squares leave the range; vectors of width
    elements. */
ZelStatus zelmL2Norm_va_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride2, double* pDst, int width,
    int count);

/** pDst[k] = sqrt(sum over j of a[k](j)^2); infinite or 0 where the squares leave the range; vectors of width
    elements. */
ZelStatus zelmL2Norm_va_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double* pDst, int width,
    int count);

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

/** solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; in orders 3 to 6 x may be b;
    A of order widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mava_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const int* pSrcIndex, const float* pSrc2, int src2Stride0, int src2Stride2, float* pDst, int dstStride0,
    int dstStride2, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; in orders 3 to 6 x may be b;
    A of order widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mava_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const int* pSrcIndex, const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* const* ppDst,
    int dstByteShift, int dstStride2, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; in orders 3 to 6 x may be b;
    A of order widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const int* pSrcIndex, const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst,
    int dstByteShift, int dstStride0, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; in orders 3 to 6 x may be b;
    A of order widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mava_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    const int* pSrcIndex, const double* pSrc2, int src2Stride0, int src2Stride2, double* pDst, int dstStride0,
    int dstStride2, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; in orders 3 to 6 x may be b;
    A of order widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mava_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    const int* pSrcIndex, const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst,
    int dstByteShift, int dstStride2, int widthHeight, int count);

/** solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; in orders 3 to 6 x may be b;
    A of order widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0,
    const int* pSrcIndex, const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst,
    int dstByteShift, int dstStride0, int widthHeight, int count);

/** solves A x = b from the factors and the row order that zelmLUDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mv_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex,
    const float* pSrc2, int src2Stride2, float* pDst, int dstStride2, int widthHeight);

/** solves A x = b from the factors and the row order that zelmLUDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mv_32f_P(const float* const* ppSrc1, int src1ByteShift, const int* pSrcIndex,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int widthHeight);

/** solves A x = b from the factors and the row order that zelmLUDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mv_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex,
    const double* pSrc2, int src2Stride2, double* pDst, int dstStride2, int widthHeight);

/** solves A x = b from the factors and the row order that zelmLUDecomp wrote; in orders 3 to 6 x may be b; A of order
    widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mv_64f_P(const double* const* ppSrc1, int src1ByteShift, const int* pSrcIndex,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int widthHeight);

/** solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; in orders 3 to 6 x may be b; A of
    order widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mva_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex,
    const float* pSrc2, int src2Stride0, int src2Stride2, float* pDst, int dstStride0, int dstStride2,
    int widthHeight, int count);

/** solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; in orders 3 to 6 x may be b; A of
    order widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mva_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* const* ppDst, int dstByteShift,
    int dstStride2, int widthHeight, int count);

/** solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; in orders 3 to 6 x may be b; A of
    order widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mva_32f_P(const float* const* ppSrc1, int src1ByteShift, const int* pSrcIndex,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int widthHeight, int count);

/** solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; in orders 3 to 6 x may be b; A of
    order widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mva_64f(const double* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex,
    const double* pSrc2, int src2Stride0, int src2Stride2, double* pDst, int dstStride0, int dstStride2,
    int widthHeight, int count);

/** solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; in orders 3 to 6 x may be b; A of
    order widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mva_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst, int dstByteShift,
    int dstStride2, int widthHeight, int count);

/** solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; in orders 3 to 6 x may be b; A of
    order widthHeight; b and x widthHeight elements. */
ZelStatus zelmLUBackSubst_mva_64f_P(const double* const* ppSrc1, int src1ByteShift, const int* pSrcIndex,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int widthHeight, int count);

/* ---- LUDecomp ---- */

/** P A = L U with partial pivoting by rows. D, which may be A, holds both factors in A's row order: with p the
    object's n entries of pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L.
    Singular where a pivot is below 2^-125 (2^-1021 in double) in orders 3 to 6, or not above 2^-23 (2^-52) in the
    others; square matrices of order widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_m_32f(const float* pSrc, int srcStride1, int srcStride2, int* pDstIndex, float* pDst,
    int dstStride1, int dstStride2, int widthHeight);

/** P A = L U with partial pivoting by rows. D, which may be A, holds both factors in A's row order: with p the
    object's n entries of pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L.
    Singular where a pivot is below 2^-125 (2^-1021 in double) in orders 3 to 6, or not above 2^-23 (2^-52) in the
    others; square matrices of order widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_m_32f_P(const float* const* ppSrc, int srcByteShift, int* pDstIndex, float* const* ppDst,
    int dstByteShift, int widthHeight);

/** P A = L U with partial pivoting by rows. D, which may be A, holds both factors in A's row order: with p the
    object's n entries of pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L.
    Singular where a pivot is below 2^-125 (2^-1021 in double) in orders 3 to 6, or not above 2^-23 (2^-52) in the
    others; square matrices of order widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_m_64f(const double* pSrc, int srcStride1, int srcStride2, int* pDstIndex, double* pDst,
    int dstStride1, int dstStride2, int widthHeight);

/** P A = L U with partial pivoting by rows. D, which may be A, holds both factors in A's row order: with p the
    object's n entries of pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L.
    Singular where a pivot is below 2^-125 (2^-1021 in double) in orders 3 to 6, or not above 2^-23 (2^-52) in the
    others; square matrices of order widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_m_64f_P(const double* const* ppSrc, int srcByteShift, int* pDstIndex, double* const* ppDst,
    int dstByteShift, int widthHeight);

/** P A = L U with partial pivoting by rows. D, which may be A, holds both factors in A's row order: with p the
    object's n entries of pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L.
    Singular where a pivot is below 2^-125 (2^-1021 in double) in orders 3 to 6, or not above 2^-23 (2^-52) in the
    others; square matrices of order widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, int* pDstIndex,
    float* pDst, int dstStride0, int dstStride1, int dstStride2, int widthHeight, int count);

/** P A = L U with partial pivoting by rows. D, which may be A, holds both factors in A's row order: with p the
    object's n entries of pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L.
    Singular where a pivot is below 2^-125 (2^-1021 in double) in orders 3 to 6, or not above 2^-23 (2^-52) in the
    others; square matrices of order widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    int* pDstIndex, float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int widthHeight, int count);

/** P A = L U with partial pivoting by rows. D, which may be A, holds both factors in A's row order: with p the
    object's n entries of pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L.
    Singular where a pivot is below 2^-125 (2^-1021 in double) in orders 3 to 6, or not above 2^-23 (2^-52) in the
    others; square matrices of order widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, int* pDstIndex,
    float* const* ppDst, int dstByteShift, int dstStride0, int widthHeight, int count);

/** P A = L U with partial pivoting by rows. D, which may be A, holds both factors in A's row order: with p the
    object's n entries of pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L.
    Singular where a pivot is below 2^-125 (2^-1021 in double) in orders 3 to 6, or not above 2^-23 (2^-52) in the
    others; square matrices of order widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, int* pDstIndex,
    double* pDst, int dstStride0, int dstStride1, int dstStride2, int widthHeight, int count);

/** P A = L U with partial pivoting by rows. D, which may be A, holds both factors in A's row order: with p the
    object's n entries of pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L.
    Singular where a pivot is below 2^-125 (2^-1021 in double) in orders 3 to 6, or not above 2^-23 (2^-52) in the
    others; square matrices of order widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    int* pDstIndex, double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int widthHeight, int count);

/** P A = L U with partial pivoting by rows. D, which may be A, holds both factors in A's row order: with p the
    object's n entries of pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L.
    Singular where a pivot is below 2^-125 (2^-1021 in double) in orders 3 to 6, or not above 2^-23 (2^-52) in the
    others; square matrices of order widthHeight. May return zelStsSingular. */
ZelStatus zelmLUDecomp_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, int* pDstIndex,
    double* const* ppDst, int dstByteShift, int dstStride0, int widthHeight, int count);

/* ---- LenSqr ---- */

/** *pDst = a(0)^2 + a(1)^2 + ..., one float, summed in this order. */
ZelStatus zelmLenSqr_v2_32f(const float* pSrc, float* pDst);

/** *pDst = a(0)^2 + a(1)^2 + ..., one float, summed in this order. */
ZelStatus zelmLenSqr_v3_32f(const float* pSrc, float* pDst);

/** *pDst = a(0)^2 + a(1)^2 + ..., one float, summed in this order. */
ZelStatus zelmLenSqr_v4_32f(const float* pSrc, float* pDst);

/* ---- Len ---- */

/** *pDst = sqrt(a(0)^2 + a(1)^2 + ...), one float; infinity where a square exceeds the float range. */
ZelStatus zelmLen_v2_32f(const float* pSrc, float* pDst);

/** *pDst = sqrt(a(0)^2 + a(1)^2 + ...), one float; infinity where a square exceeds the float range. */
ZelStatus zelmLen_v3_32f(const float* pSrc, float* pDst);

/** *pDst = sqrt(a(0)^2 + a(1)^2 + ...), one float; infinity where a square exceeds the float range. */
ZelStatus zelmLen_v4_32f(const float* pSrc, float* pDst);

/* ---- LoadIdentity ---- */

/** D[k](i, j) = 1 where i == j, else 0; D height x width. With count 1 stride0 is not looked at. */
ZelStatus zelmLoadIdentity_ma_32f(float* pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height,
    int count);

/** D[k](i, j) = 1 where i == j, else 0; D height x width. With count 1 stride0 is not looked at. */
ZelStatus zelmLoadIdentity_ma_32f_L(float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = 1 where i == j, else 0; D height x width. With count 1 stride0 is not looked at. */
ZelStatus zelmLoadIdentity_ma_32f_P(float* const* ppDst, int dstByteShift, int dstStride0, int width, int height,
    int count);

/** D[k](i, j) = 1 where i == j, else 0; D height x width. With count 1 stride0 is not looked at. */
ZelStatus zelmLoadIdentity_ma_64f(double* pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height,
    int count);

/** D[k](i, j) = 1 where i == j, else 0; D height x width. With count 1 stride0 is not looked at. */
ZelStatus zelmLoadIdentity_ma_64f_L(double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width,
    int height, int count);

/** D[k](i, j) = 1 where i == j, else 0; D height x width. With count 1 stride0 is not looked at. */
ZelStatus zelmLoadIdentity_ma_64f_P(double* const* ppDst, int dstByteShift, int dstStride0, int width, int height,
    int count);

/* ---- LookAtLH ---- */

/** left-handed view: the eye (3 floats) goes to the origin, the direction from it to pAt to +z, pUp to the half plane
    of +y. NaNs where pAt is the eye or pUp lies along the view. */
ZelStatus zelmLookAtLH_m4_32f(const float* pEye, const float* pAt, const float* pUp, float* pDst);

/* ---- LookAtRH ---- */

/** right-handed view: the eye (3 floats) goes to the origin, the direction from it to pAt to -z, pUp to the half
    plane of +y. NaNs where pAt is the eye or pUp lies along the view. */
ZelStatus zelmLookAtRH_m4_32f(const float* pEye, const float* pAt, const float* pUp, float* pDst);

/* ---- Max ---- */

/** d(j) = a(j) > b(j) ? a(j) : b(j), so b(j) where either is a NaN; D may be a source. */
ZelStatus zelmMax_v2_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** d(j) = a(j) > b(j) ? a(j) : b(j), so b(j) where either is a NaN; D may be a source. */
ZelStatus zelmMax_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** d(j) = a(j) > b(j) ? a(j) : b(j), so b(j) where either is a NaN; D may be a source. */
ZelStatus zelmMax_v4_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/* ---- Min ---- */

/** d(j) = a(j) < b(j) ? a(j) : b(j), so b(j) where either is a NaN; D may be a source. */
ZelStatus zelmMin_v2_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** d(j) = a(j) < b(j) ? a(j) : b(j), so b(j) where either is a NaN; D may be a source. */
ZelStatus zelmMin_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** d(j) = a(j) < b(j) ? a(j) : b(j), so b(j) where either is a NaN; D may be a source. */
ZelStatus zelmMin_v4_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/* ---- MulC ---- */

/** d(j) = a(j) * val; D may be A. */
ZelStatus zelmMulC_v2_32f(const float* pSrc, float val, float* pDst);

/** d(j) = a(j) * val; D may be A. */
ZelStatus zelmMulC_v3_32f(const float* pSrc, float val, float* pDst);

/** d(j) = a(j) * val; D may be A. */
ZelStatus zelmMulC_v4_32f(const float* pSrc, float val, float* pDst);

/* ---- MulTranspose ---- */

/** D = (A * B)^T, the transpose of the product; D may be a source. */
ZelStatus zelmMulTranspose_m4_32f(const float* pSrc1, const float* pSrc2, float* pDst);

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

/** D[k] = A[k] * B; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mam_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const float* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mam_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const float* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mam_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int width2, int height2, float* const* ppDst, int dstByteShift,
    int dstStride0, int count);

/** D[k] = A[k] * B; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mam_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const double* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mam_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const double* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mam_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int width2, int height2, double* const* ppDst, int dstByteShift,
    int dstStride0, int count);

/** D[k] = A[k] * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mama_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const float* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2,
    float* pDst, int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mama_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2,
    int width2, int height2, float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mama_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, float* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** D[k] = A[k] * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mama_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2,
    double* pDst, int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mama_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2,
    int width2, int height2, double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mama_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, double* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** D[k] = A[k] * B^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mat_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const float* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mat_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const float* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mat_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int width2, int height2, float* const* ppDst, int dstByteShift,
    int dstStride0, int count);

/** D[k] = A[k] * B^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mat_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const double* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mat_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const double* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mat_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int width2, int height2, double* const* ppDst, int dstByteShift,
    int dstStride0, int count);

/** D[k] = A[k] * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mata_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const float* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2,
    float* pDst, int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mata_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2,
    int width2, int height2, float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mata_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, float* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** D[k] = A[k] * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mata_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2,
    double* pDst, int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mata_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2,
    int width2, int height2, double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k] * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mata_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, double* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** d[k] = A[k] * b; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mav_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width,
    int height, const float* pSrc2, int src2Stride2, int src2Len, float* pDst, int dstStride0, int dstStride2,
    int count);

/** d[k] = A[k] * b; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mav_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width, int height, const float* pSrc2, int src2Stride2, int src2Len, float* const* ppDst, int dstByteShift,
    int dstStride2, int count);

/** d[k] = A[k] * b; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mav_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Len, float* const* ppDst, int dstByteShift, int dstStride0,
    int count);

/** d[k] = A[k] * b; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mav_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width,
    int height, const double* pSrc2, int src2Stride2, int src2Len, double* pDst, int dstStride0, int dstStride2,
    int count);

/** d[k] = A[k] * b; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mav_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width, int height, const double* pSrc2, int src2Stride2, int src2Len, double* const* ppDst, int dstByteShift,
    int dstStride2, int count);

/** d[k] = A[k] * b; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mav_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Len, double* const* ppDst, int dstByteShift,
    int dstStride0, int count);

/** d[k] = A[k] * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mava_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width,
    int height, const float* pSrc2, int src2Stride0, int src2Stride2, int src2Len, float* pDst, int dstStride0,
    int dstStride2, int count);

/** d[k] = A[k] * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mava_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width, int height, const float* const* ppSrc2, int src2ByteShift, int src2Stride2, int src2Len,
    float* const* ppDst, int dstByteShift, int dstStride2, int count);

/** d[k] = A[k] * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int src2Len, float* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** d[k] = A[k] * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mava_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width,
    int height, const double* pSrc2, int src2Stride0, int src2Stride2, int src2Len, double* pDst, int dstStride0,
    int dstStride2, int count);

/** d[k] = A[k] * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mava_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width, int height, const double* const* ppSrc2, int src2ByteShift, int src2Stride2, int src2Len,
    double* const* ppDst, int dstByteShift, int dstStride2, int count);

/** d[k] = A[k] * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int src2Len, double* const* ppDst,
    int dstByteShift, int dstStride0, int count);

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

/** D = A * B, which as a transform applies A first; D may be a source. Null pointers are refused. */
ZelStatus zelmMul_mm4x4_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** D = A * B; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mm_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const float* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, float* pDst, int dstStride1,
    int dstStride2);

/** D = A * B; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mm_32f_P(const float* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int width2, int height2, float* const* ppDst, int dstByteShift);

/** D = A * B; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mm_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const double* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, double* pDst, int dstStride1,
    int dstStride2);

/** D = A * B; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mm_64f_P(const double* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int width2, int height2, double* const* ppDst, int dstByteShift);

/** D[k] = A * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mma_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const float* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mma_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, int width2, int height2,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mma_32f_P(const float* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, float* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** D[k] = A * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mma_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mma_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, int width2, int height2,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mma_64f_P(const double* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, double* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** D = A * B^T; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mt_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const float* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, float* pDst, int dstStride1,
    int dstStride2);

/** D = A * B^T; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mt_32f_P(const float* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int width2, int height2, float* const* ppDst, int dstByteShift);

/** D = A * B^T; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mt_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const double* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, double* pDst, int dstStride1,
    int dstStride2);

/** D = A * B^T; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mt_64f_P(const double* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int width2, int height2, double* const* ppDst, int dstByteShift);

/** D[k] = A * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mta_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const float* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mta_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, int width2, int height2,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mta_32f_P(const float* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, float* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** D[k] = A * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mta_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mta_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, int width2, int height2,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_mta_64f_P(const double* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, double* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** d = A * b; d must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mv_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const float* pSrc2, int src2Stride2, int src2Len, float* pDst, int dstStride2);

/** d = A * b; d must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mv_32f_P(const float* const* ppSrc1, int src1ByteShift, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Len, float* const* ppDst, int dstByteShift);

/** d = A * b; d must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mv_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const double* pSrc2, int src2Stride2, int src2Len, double* pDst, int dstStride2);

/** d = A * b; d must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mv_64f_P(const double* const* ppSrc1, int src1ByteShift, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Len, double* const* ppDst, int dstByteShift);

/** d[k] = A * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mva_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const float* pSrc2, int src2Stride0, int src2Stride2, int src2Len, float* pDst, int dstStride0, int dstStride2,
    int count);

/** d[k] = A * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mva_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, int src2Len, float* const* ppDst,
    int dstByteShift, int dstStride2, int count);

/** d[k] = A * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mva_32f_P(const float* const* ppSrc1, int src1ByteShift, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int src2Len, float* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** d[k] = A * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mva_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const double* pSrc2, int src2Stride0, int src2Stride2, int src2Len, double* pDst, int dstStride0, int dstStride2,
    int count);

/** d[k] = A * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mva_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, int src2Len, double* const* ppDst,
    int dstByteShift, int dstStride2, int count);

/** d[k] = A * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_mva_64f_P(const double* const* ppSrc1, int src1ByteShift, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int src2Len, double* const* ppDst,
    int dstByteShift, int dstStride0, int count);

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

/** D[k] = A[k]^T * B; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tam_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const float* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tam_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const float* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tam_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int width2, int height2, float* const* ppDst, int dstByteShift,
    int dstStride0, int count);

/** D[k] = A[k]^T * B; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tam_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const double* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tam_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const double* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tam_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int width2, int height2, double* const* ppDst, int dstByteShift,
    int dstStride0, int count);

/** D[k] = A[k]^T * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tama_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const float* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2,
    float* pDst, int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tama_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2,
    int width2, int height2, float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tama_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, float* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** D[k] = A[k]^T * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tama_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2,
    double* pDst, int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tama_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2,
    int width2, int height2, double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tama_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, double* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** D[k] = A[k]^T * B^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tat_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const float* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tat_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const float* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tat_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int width2, int height2, float* const* ppDst, int dstByteShift,
    int dstStride0, int count);

/** D[k] = A[k]^T * B^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tat_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const double* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tat_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const double* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tat_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int width2, int height2, double* const* ppDst, int dstByteShift,
    int dstStride0, int count);

/** D[k] = A[k]^T * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tata_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const float* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2,
    float* pDst, int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tata_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2,
    int width2, int height2, float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tata_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, float* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** D[k] = A[k]^T * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tata_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width1,
    int height1, const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2,
    double* pDst, int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tata_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width1, int height1, const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2,
    int width2, int height2, double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A[k]^T * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tata_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, double* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** d[k] = A[k]^T * b; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tav_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width,
    int height, const float* pSrc2, int src2Stride2, int src2Len, float* pDst, int dstStride0, int dstStride2,
    int count);

/** d[k] = A[k]^T * b; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tav_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width, int height, const float* pSrc2, int src2Stride2, int src2Len, float* const* ppDst, int dstByteShift,
    int dstStride2, int count);

/** d[k] = A[k]^T * b; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tav_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Len, float* const* ppDst, int dstByteShift, int dstStride0,
    int count);

/** d[k] = A[k]^T * b; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tav_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width,
    int height, const double* pSrc2, int src2Stride2, int src2Len, double* pDst, int dstStride0, int dstStride2,
    int count);

/** d[k] = A[k]^T * b; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tav_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width, int height, const double* pSrc2, int src2Stride2, int src2Len, double* const* ppDst, int dstByteShift,
    int dstStride2, int count);

/** d[k] = A[k]^T * b; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tav_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Len, double* const* ppDst, int dstByteShift,
    int dstStride0, int count);

/** d[k] = A[k]^T * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tava_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width,
    int height, const float* pSrc2, int src2Stride0, int src2Stride2, int src2Len, float* pDst, int dstStride0,
    int dstStride2, int count);

/** d[k] = A[k]^T * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tava_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width, int height, const float* const* ppSrc2, int src2ByteShift, int src2Stride2, int src2Len,
    float* const* ppDst, int dstByteShift, int dstStride2, int count);

/** d[k] = A[k]^T * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int src2Len, float* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** d[k] = A[k]^T * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tava_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width,
    int height, const double* pSrc2, int src2Stride0, int src2Stride2, int src2Len, double* pDst, int dstStride0,
    int dstStride2, int count);

/** d[k] = A[k]^T * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tava_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    int width, int height, const double* const* ppSrc2, int src2ByteShift, int src2Stride2, int src2Len,
    double* const* ppDst, int dstByteShift, int dstStride2, int count);

/** d[k] = A[k]^T * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int src2Len, double* const* ppDst,
    int dstByteShift, int dstStride0, int count);

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

/** D = A^T * B; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tm_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const float* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, float* pDst, int dstStride1,
    int dstStride2);

/** D = A^T * B; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tm_32f_P(const float* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int width2, int height2, float* const* ppDst, int dstByteShift);

/** D = A^T * B; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tm_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const double* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, double* pDst, int dstStride1,
    int dstStride2);

/** D = A^T * B; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tm_64f_P(const double* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int width2, int height2, double* const* ppDst, int dstByteShift);

/** D[k] = A^T * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tma_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const float* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A^T * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tma_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, int width2, int height2,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A^T * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tma_32f_P(const float* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, float* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** D[k] = A^T * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tma_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A^T * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tma_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, int width2, int height2,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A^T * B[k]; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tma_64f_P(const double* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, double* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** D = A^T * B^T; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tt_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const float* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, float* pDst, int dstStride1,
    int dstStride2);

/** D = A^T * B^T; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tt_32f_P(const float* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int width2, int height2, float* const* ppDst, int dstByteShift);

/** D = A^T * B^T; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tt_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const double* pSrc2, int src2Stride1, int src2Stride2, int width2, int height2, double* pDst, int dstStride1,
    int dstStride2);

/** D = A^T * B^T; D must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tt_64f_P(const double* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int width2, int height2, double* const* ppDst, int dstByteShift);

/** D[k] = A^T * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tta_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const float* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2, float* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A^T * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tta_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, int width2, int height2,
    float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A^T * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tta_32f_P(const float* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, float* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** D[k] = A^T * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tta_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const double* pSrc2, int src2Stride0, int src2Stride1, int src2Stride2, int width2, int height2, double* pDst,
    int dstStride0, int dstStride1, int dstStride2, int count);

/** D[k] = A^T * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tta_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, int width2, int height2,
    double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count);

/** D[k] = A^T * B[k]^T; D[k] must overlap neither; sources as stored: height1 x width1, height2 x width2. */
ZelStatus zelmMul_tta_64f_P(const double* const* ppSrc1, int src1ByteShift, int width1, int height1,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int width2, int height2, double* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** d = A^T * b; d must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tv_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const float* pSrc2, int src2Stride2, int src2Len, float* pDst, int dstStride2);

/** d = A^T * b; d must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tv_32f_P(const float* const* ppSrc1, int src1ByteShift, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Len, float* const* ppDst, int dstByteShift);

/** d = A^T * b; d must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tv_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const double* pSrc2, int src2Stride2, int src2Len, double* pDst, int dstStride2);

/** d = A^T * b; d must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tv_64f_P(const double* const* ppSrc1, int src1ByteShift, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Len, double* const* ppDst, int dstByteShift);

/** d[k] = A^T * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tva_32f(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const float* pSrc2, int src2Stride0, int src2Stride2, int src2Len, float* pDst, int dstStride0, int dstStride2,
    int count);

/** d[k] = A^T * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tva_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, int src2Len, float* const* ppDst,
    int dstByteShift, int dstStride2, int count);

/** d[k] = A^T * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tva_32f_P(const float* const* ppSrc1, int src1ByteShift, int width, int height,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, int src2Len, float* const* ppDst,
    int dstByteShift, int dstStride0, int count);

/** d[k] = A^T * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tva_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const double* pSrc2, int src2Stride0, int src2Stride2, int src2Len, double* pDst, int dstStride0, int dstStride2,
    int count);

/** d[k] = A^T * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tva_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, int src2Len, double* const* ppDst,
    int dstByteShift, int dstStride2, int count);

/** d[k] = A^T * b[k]; d[k] must overlap neither; A height x width as stored; b src2Len elements. */
ZelStatus zelmMul_tva_64f_P(const double* const* ppSrc1, int src1ByteShift, int width, int height,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, int src2Len, double* const* ppDst,
    int dstByteShift, int dstStride0, int count);

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

/* ---- Normalize ---- */

/** d(j) = a(j) / length of A, by division; D may be A. A vector of length 0 gives NaNs. */
ZelStatus zelmNormalize_v2_32f(const float* pSrc, float* pDst);

/** d(j) = a(j) / length of A, by division; D may be A. A vector of length 0 gives NaNs. */
ZelStatus zelmNormalize_v3_32f(const float* pSrc, float* pDst);

/** d(j) = a(j) / length of A, by division; D may be A. A vector of length 0 gives NaNs. */
ZelStatus zelmNormalize_v4_32f(const float* pSrc, float* pDst);

/* ---- OrthoLH ---- */

/** left-handed parallel projection of a box of viewWidth x viewHeight; z = zNear to zFar becomes 0 to 1. */
ZelStatus zelmOrthoLH_m4_32f(float viewWidth, float viewHeight, float zNear, float zFar, float* pDst);

/* ---- OrthoOffCenterLH ---- */

/** left-handed parallel projection of the box left to right, bottom to top; z = zNear to zFar becomes 0 to 1. */
ZelStatus zelmOrthoOffCenterLH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar,
    float* pDst);

/* ---- OrthoOffCenterRH ---- */

/** right-handed parallel projection of the box left to right, bottom to top; z = -zNear to -zFar becomes 0 to 1. */
ZelStatus zelmOrthoOffCenterRH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar,
    float* pDst);

/* ---- OrthoRH ---- */

/** right-handed parallel projection of a box of viewWidth x viewHeight; z = -zNear to -zFar becomes 0 to 1. */
ZelStatus zelmOrthoRH_m4_32f(float viewWidth, float viewHeight, float zNear, float zFar, float* pDst);

/* ---- PerspectiveFovLH ---- */

/** left-handed perspective by the full vertical angle fovY in radians and aspect = width / height; z = zNear to zFar
    becomes 0 to 1 after the division by w = z. */
ZelStatus zelmPerspectiveFovLH_m4_32f(float fovY, float aspect, float zNear, float zFar, float* pDst);

/* ---- PerspectiveFovRH ---- */

/** right-handed perspective by the full vertical angle fovY in radians and aspect = width / height; z = -zNear to
    -zFar becomes 0 to 1 after the division by w = -z. */
ZelStatus zelmPerspectiveFovRH_m4_32f(float fovY, float aspect, float zNear, float zFar, float* pDst);

/* ---- PerspectiveLH ---- */

/** left-handed perspective of a near plane of viewWidth x viewHeight; z = zNear to zFar becomes 0 to 1 after the
    division by w = z. */
ZelStatus zelmPerspectiveLH_m4_32f(float viewWidth, float viewHeight, float zNear, float zFar, float* pDst);

/* ---- PerspectiveOffCenterLH ---- */

/** left-handed perspective of the window left to right, bottom to top of the near plane; z = zNear to zFar becomes 0
    to 1 after the division by w = z. */
ZelStatus zelmPerspectiveOffCenterLH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar,
    float* pDst);

/* ---- PerspectiveOffCenterRH ---- */

/** right-handed perspective of the window left to right, bottom to top of the near plane; z = -zNear to -zFar becomes
    0 to 1 after the division by w = -z. */
ZelStatus zelmPerspectiveOffCenterRH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar,
    float* pDst);

/* ---- PerspectiveRH ---- */

/** right-handed perspective of a near plane of viewWidth x viewHeight; z = -zNear to -zFar becomes 0 to 1 after the
    division by w = -z. */
ZelStatus zelmPerspectiveRH_m4_32f(float viewWidth, float viewHeight, float zNear, float zFar, float* pDst);

/* ---- Project ---- */

/** a point of the world to the screen: n = A * World * View * Projection, step by step, divided by its fourth
    element; D = (vpWidth (1 + n0) / 2, vpHeight (1 - n1) / 2, vpMinZ + (vpMaxZ - vpMinZ) n2), y down; D may be A. */
ZelStatus zelmProject_m4v3_32f(const float* pProjection, const float* pView, const float* pWorld, const float* pSrc,
    float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ, float* pDst);

/** points of the world to the screen: n = A[k] * (World * (View * Projection)) divided by its fourth element; D[k] =
    (vpWidth (1 + n0) / 2, vpHeight (1 - n1) / 2, vpMinZ + (vpMaxZ - vpMinZ) n2), y down; strides of any size and
    sign; a count below 1 does nothing; D[k] may be A[k]. */
ZelStatus zelmProject_m4v3a_32f(const float* pProjection, const float* pView, const float* pWorld, const float* pSrc,
    int srcStride0, float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ, float* pDst, int dstStride0, int count);

/* ---- QRBackSubst ---- */

/** least-squares solution of A[k] x[k] = b[k] from the results of zelmQRDecomp; A height x width; b height, x width
    elements; pBuffer height elements. */
ZelStatus zelmQRBackSubst_mava_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    void* pBuffer, const float* pSrc2, int src2Stride0, int src2Stride2, float* pDst, int dstStride0, int dstStride2,
    int width, int height, int count);

/** least-squares solution of A[k] x[k] = b[k] from the results of zelmQRDecomp; A height x width; b height, x width
    elements; pBuffer height elements. */
ZelStatus zelmQRBackSubst_mava_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    void* pBuffer, const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* const* ppDst,
    int dstByteShift, int dstStride2, int width, int height, int count);

/** least-squares solution of A[k] x[k] = b[k] from the results of zelmQRDecomp; A height x width; b height, x width
    elements; pBuffer height elements. */
ZelStatus zelmQRBackSubst_mava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, void* pBuffer,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** least-squares solution of A[k] x[k] = b[k] from the results of zelmQRDecomp; A height x width; b height, x width
    elements; pBuffer height elements. */
ZelStatus zelmQRBackSubst_mava_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2,
    void* pBuffer, const double* pSrc2, int src2Stride0, int src2Stride2, double* pDst, int dstStride0,
    int dstStride2, int width, int height, int count);

/** least-squares solution of A[k] x[k] = b[k] from the results of zelmQRDecomp; A height x width; b height, x width
    elements; pBuffer height elements. */
ZelStatus zelmQRBackSubst_mava_64f_L(const double* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2,
    void* pBuffer, const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst,
    int dstByteShift, int dstStride2, int width, int height, int count);

/** least-squares solution of A[k] x[k] = b[k] from the results of zelmQRDecomp; A height x width; b height, x width
    elements; pBuffer height elements. */
ZelStatus zelmQRBackSubst_mava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, void* pBuffer,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** least-squares solution of A x = b from the result of zelmQRDecomp; A height x width; b height, x width elements;
    pBuffer height elements. */
ZelStatus zelmQRBackSubst_mv_32f(const float* pSrc1, int src1Stride1, int src1Stride2, void* pBuffer,
    const float* pSrc2, int src2Stride2, float* pDst, int dstStride2, int width, int height);

/** least-squares solution of A x = b from the result of zelmQRDecomp; A height x width; b height, x width elements;
    pBuffer height elements. */
ZelStatus zelmQRBackSubst_mv_32f_P(const float* const* ppSrc1, int src1ByteShift, void* pBuffer,
    const float* const* ppSrc2, int src2ByteShift, float* const* ppDst, int dstByteShift, int width, int height);

/** least-squares solution of A x = b from the result of zelmQRDecomp; A height x width; b height, x width elements;
    pBuffer height elements. */
ZelStatus zelmQRBackSubst_mv_64f(const double* pSrc1, int src1Stride1, int src1Stride2, void* pBuffer,
    const double* pSrc2, int src2Stride2, double* pDst, int dstStride2, int width, int height);

/** least-squares solution of A x = b from the result of zelmQRDecomp; A height x width; b height, x width elements;
    pBuffer height elements. */
ZelStatus zelmQRBackSubst_mv_64f_P(const double* const* ppSrc1, int src1ByteShift, void* pBuffer,
    const double* const* ppSrc2, int src2ByteShift, double* const* ppDst, int dstByteShift, int width, int height);

/** least-squares solution of A x[k] = b[k] from the result of zelmQRDecomp; A height x width; b height, x width
    elements; pBuffer height elements. */
ZelStatus zelmQRBackSubst_mva_32f(const float* pSrc1, int src1Stride1, int src1Stride2, void* pBuffer,
    const float* pSrc2, int src2Stride0, int src2Stride2, float* pDst, int dstStride0, int dstStride2, int width,
    int height, int count);

/** least-squares solution of A x[k] = b[k] from the result of zelmQRDecomp; A height x width; b height, x width
    elements; pBuffer height elements. */
ZelStatus zelmQRBackSubst_mva_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, void* pBuffer,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride2, float* const* ppDst, int dstByteShift,
    int dstStride2, int width, int height, int count);

/** least-squares solution of A x[k] = b[k] from the result of zelmQRDecomp; A height x width; b height, x width
    elements; pBuffer height elements. */
ZelStatus zelmQRBackSubst_mva_32f_P(const float* const* ppSrc1, int src1ByteShift, void* pBuffer,
    const float* const* ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/** least-squares solution of A x[k] = b[k] from the result of zelmQRDecomp; A height x width; b height, x width
    elements; pBuffer height elements. */
ZelStatus zelmQRBackSubst_mva_64f(const double* pSrc1, int src1Stride1, int src1Stride2, void* pBuffer,
    const double* pSrc2, int src2Stride0, int src2Stride2, double* pDst, int dstStride0, int dstStride2, int width,
    int height, int count);

/** least-squares solution of A x[k] = b[k] from the result of zelmQRDecomp; A height x width; b height, x width
    elements; pBuffer height elements. */
ZelStatus zelmQRBackSubst_mva_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, void* pBuffer,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst, int dstByteShift,
    int dstStride2, int width, int height, int count);

/** least-squares solution of A x[k] = b[k] from the result of zelmQRDecomp; A height x width; b height, x width
    elements; pBuffer height elements. */
ZelStatus zelmQRBackSubst_mva_64f_P(const double* const* ppSrc1, int src1ByteShift, void* pBuffer,
    const double* const* ppSrc2, int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift,
    int dstStride0, int width, int height, int count);

/* ---- QRDecomp ---- */

/** A = Q R by Householder reflections. D, which may be A, gets R and, below its diagonal, the reflection vectors
    (leading 1 left out). A column whose rest has a squared norm below 2^-23 (2^-52 in double) fails, but for the
    last of a square A; A and D height x width, width <= height; pBuffer height elements. May return
    zelStsDivideByZero. */
ZelStatus zelmQRDecomp_m_32f(const float* pSrc, int srcStride1, int srcStride2, void* pBuffer, float* pDst,
    int dstStride1, int dstStride2, int width, int height);

/** A = Q R by Householder reflections. D, which may be A, gets R and, below its diagonal, the reflection vectors
    (leading 1 left out). A column whose rest has a squared norm below 2^-23 (2^-52 in double) fails, but for the
    last of a square A; A and D height x width, width <= height; pBuffer height elements. May return
    zelStsDivideByZero. */
ZelStatus zelmQRDecomp_m_32f_P(const float* const* ppSrc, int srcByteShift, void* pBuffer, float* const* ppDst,
    int dstByteShift, int width, int height);

/** A = Q R by Householder reflections. D, which may be A, gets R and, below its diagonal, the reflection vectors
    (leading 1 left out). A column whose rest has a squared norm below 2^-23 (2^-52 in double) fails, but for the
    last of a square A; A and D height x width, width <= height; pBuffer height elements. May return
    zelStsDivideByZero. */
ZelStatus zelmQRDecomp_m_64f(const double* pSrc, int srcStride1, int srcStride2, void* pBuffer, double* pDst,
    int dstStride1, int dstStride2, int width, int height);

/** A = Q R by Householder reflections. D, which may be A, gets R and, below its diagonal, the reflection vectors
    (leading 1 left out). A column whose rest has a squared norm below 2^-23 (2^-52 in double) fails, but for the
    last of a square A; A and D height x width, width <= height; pBuffer height elements. May return
    zelStsDivideByZero. */
ZelStatus zelmQRDecomp_m_64f_P(const double* const* ppSrc, int srcByteShift, void* pBuffer, double* const* ppDst,
    int dstByteShift, int width, int height);

/** A = Q R by Householder reflections. D, which may be A, gets R and, below its diagonal, the reflection vectors
    (leading 1 left out). A column whose rest has a squared norm below 2^-23 (2^-52 in double) fails, but for the
    last of a square A; A and D height x width, width <= height; pBuffer height elements. May return
    zelStsDivideByZero. */
ZelStatus zelmQRDecomp_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, void* pBuffer,
    float* pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** A = Q R by Householder reflections. D, which may be A, gets R and, below its diagonal, the reflection vectors
    (leading 1 left out). A column whose rest has a squared norm below 2^-23 (2^-52 in double) fails, but for the
    last of a square A; A and D height x width, width <= height; pBuffer height elements. May return
    zelStsDivideByZero. */
ZelStatus zelmQRDecomp_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    void* pBuffer, float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width, int height,
    int count);

/** A = Q R by Householder reflections. D, which may be A, gets R and, below its diagonal, the reflection vectors
    (leading 1 left out). A column whose rest has a squared norm below 2^-23 (2^-52 in double) fails, but for the
    last of a square A; A and D height x width, width <= height; pBuffer height elements. May return
    zelStsDivideByZero. */
ZelStatus zelmQRDecomp_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, void* pBuffer,
    float* const* ppDst, int dstByteShift, int dstStride0, int width, int height, int count);

/** A = Q R by Householder reflections. D, which may be A, gets R and, below its diagonal, the reflection vectors
    (leading 1 left out). A column whose rest has a squared norm below 2^-23 (2^-52 in double) fails, but for the
    last of a square A; A and D height x width, width <= height; pBuffer height elements. May return
    zelStsDivideByZero. */
ZelStatus zelmQRDecomp_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, void* pBuffer,
    double* pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);

/** A = Q R by Householder reflections. D, which may be A, gets R and, below its diagonal, the reflection vectors
    (leading 1 left out). A column whose rest has a squared norm below 2^-23 (2^-52 in double) fails, but for the
    last of a square A; A and D height x width, width <= height; pBuffer height elements. May return
    zelStsDivideByZero. */
ZelStatus zelmQRDecomp_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    void* pBuffer, double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width, int height,
    int count);

/** A = Q R by Householder reflections. D, which may be A, gets R and, below its diagonal, the reflection vectors
    (leading 1 left out). A column whose rest has a squared norm below 2^-23 (2^-52 in double) fails, but for the
    last of a square A; A and D height x width, width <= height; pBuffer height elements. May return
    zelStsDivideByZero. */
ZelStatus zelmQRDecomp_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, void* pBuffer,
    double* const* ppDst, int dstByteShift, int dstStride0, int width, int height, int count);

/* ---- RotationAxis ---- */

/** rotation by angle radians about the axis of 3 floats, of any length but 0 (NaNs); about (0, 0, 1) it is that of
    zelmRotationZ_m4_32f. Rodrigues' formula. */
ZelStatus zelmRotationAxis_v3m4_32f(const float* pAxis, float angle, float* pDst);

/* ---- RotationX ---- */

/** rotation about the x axis by angle radians, from y towards z. */
ZelStatus zelmRotationX_m4_32f(float angle, float* pDst);

/* ---- RotationY ---- */

/** rotation about the y axis by angle radians, from z towards x. */
ZelStatus zelmRotationY_m4_32f(float angle, float* pDst);

/* ---- RotationYawPitchRoll ---- */

/** D = RotationZ(roll) * RotationX(pitch) * RotationY(yaw), that is roll first; radians. */
ZelStatus zelmRotationYawPitchRoll_m4_32f(float yaw, float pitch, float roll, float* pDst);

/* ---- RotationZ ---- */

/** rotation about the z axis by angle radians, from x towards y: (1, 0, 0) becomes (cos, sin, 0). */
ZelStatus zelmRotationZ_m4_32f(float angle, float* pDst);

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

/* ---- Scaling ---- */

/** D = diag(x, y, z, 1). */
ZelStatus zelmScaling_m4_32f(float x, float y, float z, float* pDst);

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

/** d(j) = a(j) - b(j); D may be a source. */
ZelStatus zelmSub_v2_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** d(j) = a(j) - b(j); D may be a source. */
ZelStatus zelmSub_v3_32f(const float* pSrc1, const float* pSrc2, float* pDst);

/** d(j) = a(j) - b(j); D may be a source. */
ZelStatus zelmSub_v4_32f(const float* pSrc1, const float* pSrc2, float* pDst);

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

/* ---- Trace ---- */

/** *pDst = sum over i of A(i, i); square matrices of order widthHeight. */
ZelStatus zelmTrace_m_32f(const float* pSrc, int srcStride1, int srcStride2, int widthHeight, float* pDst);

/** *pDst = sum over i of A(i, i); square matrices of order widthHeight. */
ZelStatus zelmTrace_m_32f_P(const float* const* ppSrc, int srcByteShift, int widthHeight, float* pDst);

/** *pDst = sum over i of A(i, i); square matrices of order widthHeight. */
ZelStatus zelmTrace_m_64f(const double* pSrc, int srcStride1, int srcStride2, int widthHeight, double* pDst);

/** *pDst = sum over i of A(i, i); square matrices of order widthHeight. */
ZelStatus zelmTrace_m_64f_P(const double* const* ppSrc, int srcByteShift, int widthHeight, double* pDst);

/** pDst[k] = sum over i of A[k](i, i); square matrices of order widthHeight. */
ZelStatus zelmTrace_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, int widthHeight,
    float* pDst, int count);

/** pDst[k] = sum over i of A[k](i, i); square matrices of order widthHeight. */
ZelStatus zelmTrace_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    int widthHeight, float* pDst, int count);

/** pDst[k] = sum over i of A[k](i, i); square matrices of order widthHeight. */
ZelStatus zelmTrace_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, int widthHeight,
    float* pDst, int count);

/** pDst[k] = sum over i of A[k](i, i); square matrices of order widthHeight. */
ZelStatus zelmTrace_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, int widthHeight,
    double* pDst, int count);

/** pDst[k] = sum over i of A[k](i, i); square matrices of order widthHeight. */
ZelStatus zelmTrace_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2,
    int widthHeight, double* pDst, int count);

/** pDst[k] = sum over i of A[k](i, i); square matrices of order widthHeight. */
ZelStatus zelmTrace_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, int widthHeight,
    double* pDst, int count);

/* ---- Translation ---- */

/** p D = p + (x, y, z): the identity with x, y, z in M[12], M[13], M[14]. */
ZelStatus zelmTranslation_m4_32f(float x, float y, float z, float* pDst);

/* ---- Transpose ---- */

/** D = A^T; D may be A. */
ZelStatus zelmTranspose_m4_32f(const float* pSrc, float* pDst);

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

/* ---- Unproject ---- */

/** a point of the screen, y down, to the world: n = (2 x / vpWidth - 1, -2 y / vpHeight + 1, (z - vpMinZ) / (vpMaxZ -
    vpMinZ)) times the inverse, taken in double, of (World * View) * Projection, divided by its fourth element. D
    may be A; where there is no inverse D is n. May return zelStsSingular. */
ZelStatus zelmUnproject_m4v3_32f(const float* pProjection, const float* pView, const float* pWorld, const float* pSrc,
    float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ, float* pDst);

/** points of the screen, y down, to the world: n = (2 x / vpWidth - 1, -2 y / vpHeight + 1, (z - vpMinZ) / (vpMaxZ -
    vpMinZ)) times the inverse, taken in double, of (World * View) * Projection, divided by its fourth element.
    Where there is no inverse nothing is written, and the status tells it whatever count is; strides of any size and
    sign; a count below 1 does nothing; D[k] may be A[k]. May return zelStsSingular. */
ZelStatus zelmUnproject_m4v3a_32f(const float* pProjection, const float* pView, const float* pWorld,
    const float* pSrc, int srcStride0, float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ, float* pDst,
    int dstStride0, int count);

#ifdef __cplusplus
}
#endif

#endif
