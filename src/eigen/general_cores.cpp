#include "eigen/general_cores.hpp"

#include "eigen/general_vectors.hpp"

const int iPivot[4][4] = {{0, 1, 2, 3}, {1, 0, 3, 2}, {2, 3, 0, 1}, {3, 2, 1, 0}};

namespace zelm::eigen::general {
namespace {

template <bool vectors, class S>
ZELM_INLINE ZelStatus schur(Columns<S> h, Columns<S> q, S* scratch, S* re, S* im, int n) {
  using T = ElementOf<S>;
  if constexpr (vectors)
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < n; ++i) q.put(i, j, S(T(i == j)));
  reduce<vectors>(h, q, n, scratch);
  return Iteration<vectors, S>{h, q, n, re, im}.run();
}

}  // namespace

template <class T>
ZelStatus values_of_one(T* buffer, T* re, T* im, int n) {
  const Columns<T> h = {buffer, n};
  return schur<false>(h, h, h.at(0, n), re, im, n);
}

template <class T>
Outcome vectors_of_one(T* buffer, T* re, T* im, int n, int sides) {
  const Columns<T> h = {buffer, n}, q = {h.at(0, n), n};
  if (const ZelStatus status = schur<true>(h, q, q.at(0, 2 * n), re, im, n)) return {status, false};
  return vectors_of_form(buffer, re, im, n, sides);
}

template <class T>
Outcome vectors_of_form(T* buffer, const T* re, const T* im, int n, int sides) {
  const Columns<T> h = {buffer, n}, q = {h.at(0, n), n}, other = {q.at(0, n), n};
  T* const scratch = other.at(0, n);
  const bool both_sides = sides == right + left;
  if (both_sides) std::memcpy(other.first, q.first, sizeof(T) * std::size_t(n) * std::size_t(n));
  Outcome outcome = {zelStsOk, true};
  if (sides & right) outcome = substitute_all<right>(h, q, re, im, scratch);
  if (outcome.complete && (sides & left)) outcome = substitute_all<left>(h, both_sides ? other : q, re, im, scratch);
  return outcome;
}

template <class T, int order, bool vectors>
bool solve_together(Block<T, order, vectors>& block, int n) {
  using B = Block<T, order, vectors>;
  if constexpr (order > 0) n = order;
  typename B::S scratch[B::largest];
  const Columns<typename B::S> h = {block.h, n}, q = {block.q, n};
  return schur<vectors>(h, q, scratch, block.re, block.im, n) == zelStsOk;
}

#define ZELM_GENERAL_ORDER(T, order)                          \
  template bool solve_together(Block<T, order, false>&, int); \
  template bool solve_together(Block<T, order, true>&, int);
#define ZELM_GENERAL(T)                                               \
  template ZelStatus values_of_one(T*, T*, T*, int);                  \
  template Outcome vectors_of_one(T*, T*, T*, int, int);              \
  template Outcome vectors_of_form(T*, const T*, const T*, int, int); \
  ZELM_GENERAL_ORDER(T, 0)                                            \
  ZELM_GENERAL_ORDER(T, 3)

ZELM_GENERAL(float)
ZELM_GENERAL(double)

}  // namespace zelm::eigen::general
