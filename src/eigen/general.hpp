// general.hpp: eigenvalues of general real matrices, and their right and left eigenvectors. The work goes on in pBuffer, so that
// destinations may be the source.
//
// A matrix is read as it lies and then taken for its transpose: the right vectors x satisfy A^T x = lambda x and the left ones
// u^H A^T = lambda u^H. The eigenvalues are the same.
#pragma once
#include "eigen/general_cores.hpp"
#include "frame/views.hpp"

namespace zelm::eigen::general {

template <class Object, class T>
ZELM_INLINE void copy_in(const Object& source, T* buffer, int n) {
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) store(buffer + std::ptrdiff_t(i) * n + j, source.element(i, j));
}

/// dst(i, j) = rows(j, i).
template <class Object, class T>
ZELM_INLINE void copy_out(const T* rows, const Object& dst, int n) {
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) store(dst.at(i, j), load(rows + std::ptrdiff_t(j) * n + i));
}

template <class A, class T>
ZelStatus values(A a, T* re, T* im, int n, int count, void* buffer) {
  T* const scratch = static_cast<T*>(buffer);
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    copy_in(a.object(k), scratch, n);
    if (const ZelStatus status = values_of_one(scratch, re + k * n, im + k * n, n)) return status;
  }
  return zelStsOk;
}

/// D...: destinations of the vectors, one for each of `sides`.
template <int sides, class T, class A, class... D>
ZELM_INLINE ZelStatus vectors(const A& a, T* re, T* im, int n, int count, void* buffer, const D&... dst) {
  T *const scratch = static_cast<T*>(buffer), *const found = scratch + std::ptrdiff_t(n) * n;
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    copy_in(a.object(k), scratch, n);
    const Outcome outcome = vectors_of_one(scratch, re + k * n, im + k * n, n, sides);
    // An object without vectors ends the call, even where its status is zelStsOk.
    if (!outcome.complete) return outcome.status;
    const T* rows = found;
    ((copy_out(rows, dst.object(k), n), rows += std::ptrdiff_t(n) * n), ...);
  }
  return zelStsOk;
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
