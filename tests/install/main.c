/* A user's first program: asks the version, adds two matrices. */
#include <stdio.h>
#include <zelcore.h>
#include <zelm.h>

int main(void) {
  const float a[4] = {1, 2, 3, 4}, b[4] = {10, 20, 30, 40};
  float sum[4];
  if (zelmAdd_mm_32f(a, 8, 4, b, 8, 4, sum, 8, 4, 2, 2) != zelStsOk || sum[3] != 44) return 1;
  return printf("%s, %d threads\n", zelmGetLibVersion()->libraryName, zelGetNumThreads()) < 0;
}
