#include "eigen/general_cores.hpp"

#include "eigen/general_vectors.hpp"

namespace zelm::eigen::general {
namespace {

template <class T>
ZELM_INLINE ZelStatus values_here(T* h, T* scratch, T* re, T* im, int n) {
  const Columns<T> source = {h, n};
  reduce<false>(source, source, n, scratch);
  return Iteration<false, T>{source, source, n, re, im}.run();
}

/// q: what becomes of the second matrix of the buffer, `other` of the third.
template <class T>
ZELM_INLINE Outcome vectors_here(T* h_at, T* q_at, T* other, T* scratch, T* re, T* im, int n, int sides) {
  const Columns<T> h = {h_at, n}, q = {q_at, n};
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < n; ++i) q.put(i, j, T(i == j));
  reduce<true>(h, q, n, scratch);
  if (const ZelStatus status = Iteration<true, T>{h, q, n, re, im}.run()) return {status, false};
  const bool both_sides = sides == right + left;
  if (both_sides) std::memcpy(other, q_at, sizeof(T) * std::size_t(n) * std::size_t(n));
  Outcome outcome = {zelStsOk, true};
  if (sides & right) outcome = substitute_all<right>(h, q, re, im, scratch);
  if (outcome.complete && (sides & left))
    outcome = substitute_all<left>(h, both_sides ? Columns<T>{other, n} : q, re, im, scratch);
  return outcome;
}

}  // namespace

template <class T>
ZelStatus values_of_one(T* buffer, T* re, T* im, int n) {
  return values_here(buffer, buffer + std::ptrdiff_t(n) * n, re, im, n);
}

template <class T>
Outcome vectors_of_one(T* buffer, T* re, T* im, int n, int sides) {
  T* const q = buffer + std::ptrdiff_t(n) * n;
  T* const other = q + std::ptrdiff_t(n) * n;
  return vectors_here(buffer, q, other, other + std::ptrdiff_t(n) * n, re, im, n, sides);
}

template ZelStatus values_of_one(float*, float*, float*, int);
template ZelStatus values_of_one(double*, double*, double*, int);
template Outcome vectors_of_one(float*, float*, float*, int, int);
template Outcome vectors_of_one(double*, double*, double*, int, int);

}  // namespace zelm::eigen::general
