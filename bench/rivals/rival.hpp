// rivals/rival.hpp: the loops that zelm is measured against, and how they are enrolled.
//
// Everything in this folder is compiled twice, for SSE4.2 and for the processor at hand, into a shared library each
// that exports one function. Two libraries, since a linker that saw both would keep one copy of every inline function
// of Eigen.
#pragma once
#include <cstddef>
#include <string>
#include <vector>

namespace zelm::bench {

/// One operand. `data` is tight in every layout: objects, rows and elements follow each other without a gap.
struct Array {
  void* data;
  void** table = nullptr;  // _L: a pointer to each object in `data`; _P: to each element, in a copy of `data`

  template <class T>
  T* of() const {
    return static_cast<T*>(data);
  }
  template <class T>
  T* const* table_of() const {
    return reinterpret_cast<T* const*>(table);
  }
};

/// Does the work for `count` objects from `first` on.
using Loop = void (*)(const Array* operands, std::ptrdiff_t first, std::ptrdiff_t count);

struct Rival {
  std::string operation;  // "Add_mama"
  std::string type;       // "32f", "64f"
  int n;
  std::string name;
  Loop loop;
  bool aside = false;  // printed beside the others and never the best of them, since its results are less accurate
};

template <class T>
inline const char* const kTypeTag = sizeof(T) == 4 ? "32f" : "64f";

namespace rivals {

std::vector<Rival>& enrolled();

template <class Kernel, class T, int N>
void loop_of(const Array* operands, std::ptrdiff_t first, std::ptrdiff_t count) {
  Kernel{}.template operator()<T, N>(operands, first, count);
}

/// Enrolls a generic lambda <class T, int N>(operands, first, count) for float and double and each N.
template <int... N, class Kernel>
bool enroll(const std::string& operation, const char* name, Kernel, bool aside = false) {
  (enrolled().push_back({operation, "32f", N, name, loop_of<Kernel, float, N>, aside}), ...);
  (enrolled().push_back({operation, "64f", N, name, loop_of<Kernel, double, N>, aside}), ...);
  return true;
}

}  // namespace rivals
}  // namespace zelm::bench

/// Exported by the two libraries.
const std::vector<zelm::bench::Rival>& zelm_bench_rivals_sse();
const std::vector<zelm::bench::Rival>& zelm_bench_rivals_native();
