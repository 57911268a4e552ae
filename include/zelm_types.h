/* zelm_types.h: status codes and the version record of zelm, the library of small-matrix and small-vector mathematics. */
#ifndef ZELM_TYPES_H
#define ZELM_TYPES_H

#include <stdint.h>

/** Result of every function: 0 for success, all failures negative. */
typedef int32_t ZelStatus;

enum {
  zelStsOk = 0,                     /**< success */
  zelStsFailure = -2,               /**< an eigenvector computation failed */
  zelStsBadSize = -6,               /**< a width, height, length or order below 1 */
  zelStsNullPointer = -8,           /**< a required pointer is null */
  zelStsDivideByZero = -10,         /**< division by zero */
  zelStsNotPositiveDefinite = -179, /**< a Cholesky pivot is not positive */
  zelStsBadStride = -182,           /**< a stride below 1 or not a multiple of the element size */
  zelStsSingular = -195,            /**< singular matrix */
  zelStsBadByteShift = -202,        /**< a byte shift below 0 or not a multiple of the element size */
  zelStsBadCount = -203,            /**< an object count below 1 */
  zelStsSizeMismatch = -204,        /**< sizes of the operands do not agree */
  zelStsNoConvergence = -205        /**< an iteration did not converge */
};

/** What zelmGetLibVersion returns. */
typedef struct ZelLibVersion {
  int32_t versionMajor;
  int32_t versionMinor;
  int32_t versionPatch;
  int32_t revision;
  char targetTag[4]; /**< instruction set that the library was built for: "p8" is SSE4.1 and SSE4.2 */
  const char* libraryName;
  const char* versionText;
  const char* buildDate;
} ZelLibVersion;

#endif
