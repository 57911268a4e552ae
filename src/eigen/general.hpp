// general.hpp: eigenvalues of general real matrices, and their right and left eigenvectors. The work goes on in pBuffer, so that
// destinations may be the source.
//
// A matrix is read as it lies and then taken for its transpose: the right vectors x satisfy A^T x = lambda x and the left ones
// u^H A^T = lambda u^H. The eigenvalues are the same.
#pragma once
#include <algorithm>

#include "eigen/general_cores.hpp"

namespace zelm::eigen::general {

/// dst(i, j) = rows(j, i).
template <class Object, class T>
ZELM_INLINE void copy_out(const T* rows, const Object& dst, int n) {
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) store(dst.at(i, j), load(rows + std::ptrdiff_t(j) * n + i));
}

/// Blocks, until one holds an object that fails. What is left is done one by one, and so is a rest that would leave most lanes idle.
///   done(k, l, block, n) takes object k out of lane l; false ends the call
template <int order, bool vectors, class T, class A, class Done>
ZELM_INLINE int solve_blocks(const A& a, int n, int count, Done done) {
  if constexpr (order > 0) n = order;
  Block<T, order, vectors> block;
  int k = 0;
  while (count - k > block.lanes / 3) {
    const int valid = std::min(count - k, block.lanes);
    copy_in(a, k, valid, block.h, n);
    if (!solve_together(block, n)) break;
    for (int l = 0; l < valid; ++l, ++k)
      if (!done(k, l, block, n)) return count;
  }
  return k;
}

template <bool vectors, class T, class A, class Done>
ZELM_INLINE int solve_some(const A& a, int n, int count, Done done) {
  if constexpr (A::array) {
    if (n == 3) return solve_blocks<3, vectors, T>(a, n, count, done);
    if (n > 1 && n <= kLargestTogether) return solve_blocks<0, vectors, T>(a, n, count, done);
  }
  return 0;
}

template <class A, class T>
ZelStatus values(A a, T* re, T* im, int n, int count, void* buffer) {
  T* const scratch = static_cast<T*>(buffer);
  std::ptrdiff_t k =
      solve_some<false, T>(a, n, count, [=](std::ptrdiff_t at, int l, const auto& block, int order) ZELM_INLINE_LAMBDA {
        block.store_values(l, re + at * order, im + at * order, order);
        return true;
      });
  for (; k < count; ++k) {
    copy_in(a.object(k), scratch, n);
    if (const ZelStatus status = values_of_one(scratch, re + k * n, im + k * n, n)) return status;
  }
  return zelStsOk;
}

/// D...: destinations of the vectors, one for each of `sides`.
template <int sides, class T, class A, class... D>
ZELM_INLINE ZelStatus vectors(const A& a, T* re, T* im, int n, int count, void* buffer, const D&... dst) {
  T *const scratch = static_cast<T*>(buffer), *const found = scratch + std::ptrdiff_t(n) * n;
  ZelStatus status = zelStsOk;
  // An object without vectors ends the call, even where its status is zelStsOk.
  const auto finish = [&](std::ptrdiff_t k, const Outcome& outcome) {
    status = outcome.status;
    if (!outcome.complete) return false;
    const T* rows = found;
    ((copy_out(rows, dst.object(k), n), rows += std::ptrdiff_t(n) * n), ...);
    return true;
  };
  std::ptrdiff_t k =
      solve_some<true, T>(a, n, count, [&](std::ptrdiff_t at, int l, const auto& block, int order) ZELM_INLINE_LAMBDA {
        T *const at_re = re + at * order, *const at_im = im + at * order;
        block.store_values(l, at_re, at_im, order);
        for (int e = 0; e < order * order; ++e) {
          store(scratch + e, load_lane(block.h + e, l));
          store(found + e, load_lane(block.q + e, l));
        }
        return finish(at, vectors_of_form(scratch, at_re, at_im, n, sides));
      });
  for (; k < count; ++k) {
    copy_in(a.object(k), scratch, n);
    if (!finish(k, vectors_of_one(scratch, re + k * n, im + k * n, n, sides))) break;
  }
  return status;
}

template <class A, class D, class T>
ZelStatus right_vectors(A a, D dst, T* re, T* im, int n, int count, void* buffer) {
  return vectors<right>(a, re, im, n, count, buffer, dst);
}
template <class A, class D, class T>
ZelStatus left_vectors(A a, D dst, T* re, T* im, int n, int count, void* buffer) {
  return vectors<left>(a, re, im, n, count, buffer, dst);
}
template <class A, class R, class L, class T>
ZelStatus both_vectors(A a, R right_dst, L left_dst, T* re, T* im, int n, int count, void* buffer) {
  return vectors<right + left>(a, re, im, n, count, buffer, right_dst, left_dst);
}

/// n * E * (matrices * n + 5): the matrices, and five vectors.
template <int matrices, class T>
ZelStatus buffer_size(int n, int* size) {
  store(size, int(unsigned(n) * unsigned(sizeof(T)) * (unsigned(matrices) * unsigned(n) + 5)));
  return zelStsOk;
}

}  // namespace zelm::eigen::general
