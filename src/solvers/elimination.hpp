// elimination.hpp: elimination with partial pivoting by rows in the caller's scratch, for determinants and for the cofactors of
// the adjugate. Rows stay where they are; their order is kept beside them. The scratch may lie at any address.
#pragma once
#include <cmath>
#include <cstdint>
#include <limits>

#include "frame/views.hpp"

namespace zelm::solvers {

/// The smallest magnitude of a determinant or pivot of order n: 2 n^3 times the smallest normal number. The integer is one of
/// 32 bits that wraps from n = 1024 on, where the limit turns negative and nothing lies below it.
template <class T>
constexpr T smallest_determinant(int n) {
  const auto m = std::uint32_t(n);
  return T(std::int32_t(2 * m * m * m)) * std::numeric_limits<T>::min();
}

/// A working matrix in rows of `pitch` elements, and the order of its rows directly behind that many of them.
template <class T>
struct Scratch {
  T* elements;
  int* order;
  int pitch;

  Scratch(void* buffer, int n)
      : elements(static_cast<T*>(buffer)), order(reinterpret_cast<int*>(elements + std::ptrdiff_t(n) * n)), pitch(n) {}
  T* row(int i) const { return elements + std::ptrdiff_t(i) * pitch; }
  T* ordered_row(int k) const { return row(load(order + k)); }
};

template <class T>
struct Elimination {
  T product, sign;  // of the pivots but the last; of the exchanges
  bool stopped;     // at a pivot below the limit
};

/// Divides by the pivot for every row.
struct ByDivision {
  template <class T>
  static auto of(T pivot) {
    return [pivot](T x) { return x / pivot; };
  }
};
/// Multiplies by its reciprocal.
struct ByReciprocal {
  template <class T>
  static auto of(T pivot) {
    return [inverse = 1 / pivot](T x) { return x * inverse; };
  }
};

/// Of equal magnitudes in a column the first in row order is the pivot; a NaN never wins.
template <class Multiplier, class T>
Elimination<T> eliminate(const Scratch<T>& d, int n, T limit) {
  using P = Pack<T>;
  Elimination<T> e = {1, 1, false};
  for (int i = 0; i < n; ++i) store(d.order + i, i);
  for (int k = 0; k + 1 < n; ++k) {
    int r = k;
    T best = std::abs(load(d.ordered_row(k) + k));
    for (int i = k + 1; i < n; ++i) {
      const T magnitude = std::abs(load(d.ordered_row(i) + k));
      if (magnitude > best) {
        best = magnitude;
        r = i;
      }
    }
    if (r != k) {
      const int row = load(d.order + r);
      store(d.order + r, load(d.order + k));
      store(d.order + k, row);
      e.sign = -e.sign;
    }
    if (limit > best) {
      e.stopped = true;
      return e;
    }
    const T* const from = d.ordered_row(k);
    const T pivot = load(from + k);
    const auto multiplier = Multiplier::of(pivot);
    for (int i = k + 1; i < n; ++i) {
      T* const to = d.ordered_row(i);
      const T m = multiplier(load(to + k));
      int j = k + 1;
      for (; j + P::lanes <= n; j += P::lanes) (P::load(to + j) - P::splat(m) * P::load(from + j)).store(to + j);
      ZELM_AS_IT_STANDS for (; j < n; ++j) store(to + j, load(to + j) - m * load(from + j));
    }
    e.product = e.product * pivot;
  }
  return e;
}

}  // namespace zelm::solvers
