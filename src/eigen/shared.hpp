// shared.hpp: what the symmetric and the general eigenproblem have in common.
#pragma once
#include "frame/views.hpp"
#include "simd/many.hpp"

namespace zelm::eigen {

inline constexpr int kLargestTogether = 16;  // order of matrices that are computed together, one in each lane

/// Row by row without a gap.
template <class Object, class T>
ZELM_INLINE void copy_in(const Object& source, T* buffer, int n) {
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) store(buffer + std::ptrdiff_t(i) * n + j, source.element(i, j));
}

/// The same with object k + l in lane l; the last of `valid` objects fills the lanes behind it.
template <class A, class S>
ZELM_INLINE void copy_in(const A& a, std::ptrdiff_t k, int valid, S* block, int n) {
  typename A::Object objects[S::lanes];
  a.objects(k, valid, objects);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) block[i * n + j] = S::gather([&](int l) { return objects[l].at(i, j); });
}

}  // namespace zelm::eigen
