// companion/companion.hpp: what the library imports, from its companion and from the OpenMP runtime. All five are
// dynamic imports, so that a program can put its own definition in front.
#pragma once

#include <cstddef>

extern "C" {

/// Number of threads a parallel driver is to use, 1 or more. Two calls may differ.
int ownGetNumThreads();

/// Non-zero if the processor has the features of `mask` (128 is SSE4.2, the only one known). `reserved` is 0.
int ownGetFeature(int mask, int reserved);

/// Stores the size in bytes of the largest cache, 0 where the system does not tell it.
///   returns 0, or -8 (null pointer) if `pSizeByte` is null
int zelGetMaxCacheSizeB(int* pSizeByte);

/// The OpenMP runtime's allocator, which no header of it declares.
void* kmpc_malloc(std::size_t size);
void kmpc_free(void* ptr);
}
