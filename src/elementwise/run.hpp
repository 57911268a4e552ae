// run.hpp: d[e] = op(a[e], b[e]) over a run of elements, a register at a time. What every element-wise formula comes down to
// where memory allows.
#pragma once
#include <algorithm>
#include <cstdint>

#include "simd/pack.hpp"

namespace zelm::elementwise {

/// A run of memory. `aligned`: its packs lie at multiples of 16 bytes, so that a load can be part of the operation.
template <class E, bool aligned = false>
struct Elements {
  using T = std::remove_const_t<E>;
  E* p;
  ZELM_INLINE auto pack(std::ptrdiff_t e) const {
    if constexpr (aligned) return Pack<T>::load_aligned(p + e);
    else return Pack<T>::load(p + e);
  }
  ZELM_INLINE auto one(std::ptrdiff_t e) const { return load(p + e); }
  ZELM_INLINE bool is_aligned() const { return reinterpret_cast<std::uintptr_t>(p) % 16 == 0; }
  ZELM_INLINE Elements<E, true> as_aligned() const { return {p}; }
};
template <class E>
Elements(E*) -> Elements<E>;

/// One value for the whole run.
template <class V>
struct Same {
  using T = V;
  V value;
  ZELM_INLINE auto pack(std::ptrdiff_t) const { return Pack<V>::splat(value); }
  ZELM_INLINE auto one(std::ptrdiff_t) const { return value; }
  ZELM_INLINE bool is_aligned() const { return false; }
  ZELM_INLINE Same as_aligned() const { return *this; }
};

template <bool array, class E>
ZELM_INLINE auto along(E* p) {
  if constexpr (array) return Elements<E>{p};
  else return Same<std::remove_const_t<E>>{load(p)};
}

/// Four registers in flight; the loads of a step stand before its stores, as d may be a or b.
template <class Op, class A, class B, class T>
ZELM_INLINE void run_packs(Op op, A a, B b, T* d, std::ptrdiff_t n) {
  constexpr int L = Pack<T>::lanes;
  const std::ptrdiff_t in_fours = n / (4 * L) * (4 * L), in_packs = n / L * L;
  std::ptrdiff_t e = 0;
  ZELM_AS_IT_STANDS for (; e < in_fours; e += 4 * L) {
    Pack<T> r[4];
    ZELM_UNROLL for (int q = 0; q < 4; ++q) r[q] = op(a.pack(e + q * L), b.pack(e + q * L));
    ZELM_UNROLL for (int q = 0; q < 4; ++q) r[q].store(d + e + q * L);
  }
  ZELM_AS_IT_STANDS for (; e < in_packs; e += L) op(a.pack(e), b.pack(e)).store(d + e);
  ZELM_AS_IT_STANDS for (; e < n; ++e) store(d + e, op(a.one(e), b.one(e)));
}

/// A run long enough to be worth a call.
template <class Op, class A, class B, class T>
__attribute__((noinline)) void run(Op op, A a, B b, T* d, std::ptrdiff_t n) {
  if (b.is_aligned()) run_packs(op, a, b.as_aligned(), d, n);
  else run_packs(op, a, b, d, n);
}

/// An object repeated until its copies fill whole registers, and often enough that the loop over them is short of branches.
template <class T>
struct Pattern {
  static constexpr int limit = 36;                     // 6 x 6, the largest of the small sizes
  static constexpr int capacity = 4 * limit;           // lanes x limit elements at the least
  static constexpr int worth = 2 * Pack<T>::lanes;     // below, building it costs more than it saves
  alignas(16) T elements[capacity];
  std::ptrdiff_t period;

  template <class Object>
  Pattern(const Object& object, int rows, int columns) {
    const int size = rows * columns;
    constexpr int L = Pack<T>::lanes;
    period = size * std::max(capacity / size / L * L, L);
    int filled = 0;
    for (int i = 0; i < rows; ++i)
      ZELM_AS_IT_STANDS for (int j = 0; j < columns; ++j) elements[filled++] = load(object.at(i, j));
    ZELM_AS_IT_STANDS for (std::ptrdiff_t e = size; e < period; ++e) elements[e] = elements[e - size];
  }
  /// Calls body(first element, number of elements) for each stretch of one period and for the rest.
  template <class Body>
  ZELM_INLINE void repeat(std::ptrdiff_t n, Body body) const {
    std::ptrdiff_t from = 0;
    for (; from + period <= n; from += period) body(from, period);
    if (from < n) body(from, n - from);
  }
};

}  // namespace zelm::elementwise
