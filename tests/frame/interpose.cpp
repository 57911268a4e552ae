#include "frame/interpose.hpp"

#include <dlfcn.h>

#include "companion/companion.hpp"

namespace zelm::test {
Imports imports;
}

using zelm::test::imports;

extern "C" {

int ownGetNumThreads() {
  static const auto next = reinterpret_cast<int (*)()>(dlsym(RTLD_NEXT, "ownGetNumThreads"));
  const int call = imports.asked++;
  const std::lock_guard hold(imports.lock);
  const auto& answers = imports.threads;
  return answers.empty() ? next() : answers[std::min(std::size_t(call), answers.size() - 1)];
}

int ownGetFeature(int mask, int reserved) {
  static const auto next = reinterpret_cast<int (*)(int, int)>(dlsym(RTLD_NEXT, "ownGetFeature"));
  imports.feature_mask = mask;
  return imports.feature ? *imports.feature : next(mask, reserved);
}

int zelGetMaxCacheSizeB(int* pSizeByte) {
  static const auto next = reinterpret_cast<int (*)(int*)>(dlsym(RTLD_NEXT, "zelGetMaxCacheSizeB"));
  ++imports.cache_asked;
  return next(pSizeByte);
}

void* kmpc_malloc(std::size_t size) {
  static const auto next = reinterpret_cast<void* (*)(std::size_t)>(dlsym(RTLD_NEXT, "kmpc_malloc"));
  imports.block_bytes = size;
  ++imports.blocks;
  return imports.block = next(size);
}

void kmpc_free(void* block) {
  static const auto next = reinterpret_cast<void (*)(void*)>(dlsym(RTLD_NEXT, "kmpc_free"));
  if (block == imports.block) ++imports.freed;
  next(block);
}

/// LeakSanitizer asks this. libomp 14 loses 4320 bytes of its own where a team of 3 is followed by one of 8; what the
/// library allocates through it is counted above.
const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions() { return "leak:libomp.so"; }
}
