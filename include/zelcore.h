/* zelcore.h: how many threads the functions of zelm.h may use. Library libzelcore-7.1, C99 and C++11.
 *
 * Both functions may be called from any thread at any time.
 */
#ifndef ZELCORE_H
#define ZELCORE_H

#ifdef __cplusplus
extern "C" {
#endif

/* Sets the number of threads for calls from every thread of the process that begin after it.
 *   numThreads  1 or more; below 1 returns to the default of zelGetNumThreads
 */
void zelSetNumThreads(int numThreads);

/* Number of threads that a call from this thread may use, 1 or more.
 *   returns 1 inside an active OpenMP parallel region; else what zelSetNumThreads has set; else what an OpenMP
 *           parallel region would use here: OMP_NUM_THREADS, or the processors that the process may run on.
 * A call whose work is too small to divide runs on its caller's thread whatever this number is.
 */
int zelGetNumThreads(void);

#ifdef __cplusplus
}
#endif

#endif
