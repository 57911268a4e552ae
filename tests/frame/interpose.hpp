// interpose.hpp: stands between the library and what it imports. The test program defines the imported
// functions itself; they count their calls, answer what a test sets, and else pass on to the companion and to the
// OpenMP runtime.
#pragma once
#include <atomic>
#include <cstddef>
#include <mutex>
#include <optional>
#include <vector>

namespace zelm::test {

struct Imports {
  std::atomic<int> asked{0};                // calls of ownGetNumThreads
  std::atomic<int> blocks{0}, freed{0};     // calls of kmpc_malloc and kmpc_free
  std::atomic<std::size_t> block_bytes{0};  // of the last block
  std::atomic<void*> block{nullptr};
  std::atomic<int> cache_asked{0};   // calls of zelGetMaxCacheSizeB
  std::atomic<int> feature_mask{0};  // of the last call of ownGetFeature
  std::optional<int> feature;        // its answer
  std::mutex lock;
  std::vector<int> threads;  // answers of ownGetNumThreads in turn, the last one for ever; empty: passed on
};
extern Imports imports;

/// Sets the answers of ownGetNumThreads and the counts back for the length of a test.
class Threads {
 public:
  explicit Threads(std::vector<int> answers) {
    set(std::move(answers));
    imports.blocks = imports.freed = 0;
  }
  Threads(const Threads&) = delete;
  ~Threads() { set({}); }
  static void set(std::vector<int> answers) {
    const std::lock_guard hold(imports.lock);
    imports.threads = std::move(answers);
    imports.asked = 0;
  }
};

}  // namespace zelm::test
