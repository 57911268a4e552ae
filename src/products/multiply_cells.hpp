// multiply_cells.hpp: matrix products on objects whose elements lie anywhere, one destination element after the other.
//
// Reading such an object as its transpose is a matter of exchanging two steps, so that one piece of code serves all forms.
#pragma once
#include <cstdint>

#include "frame/views.hpp"
#include "products/sums.hpp"

namespace zelm::products {

struct Shape {
  int rows, columns, terms;  // of the product; summed over `terms`
};

/// A pointer to each element, as TableObject, with a step between rows and one between columns.
template <class Element>
struct CellsObject {
  using T = std::remove_const_t<Element>;
  static constexpr bool plain = false, turned = false;
  Element* const* table;
  Bytes shift;
  std::ptrdiff_t row_step, column_step;

  ZELM_INLINE Element* at(int i, int j) const { return moved(table[i * row_step + j * column_step], shift); }
  ZELM_INLINE T element(int i, int j) const { return load(at(i, j)); }
  template <int N>
  ZELM_INLINE Row<T, N> row(int i) const {
    return Row<T, N>::gather([&](int j) { return at(i, j); });
  }
  template <int N>
  ZELM_INLINE void set_row(int i, const Row<T, N>& r) const {
    r.scatter([&](int j) { return at(i, j); });
  }
};

template <class Element, bool is_array>
struct CellsView {
  using T = std::remove_const_t<Element>;
  using Object = CellsObject<Element>;
  static constexpr bool array = is_array, plain = false;
  Element* const* table;
  Bytes shift, stride0;
  std::ptrdiff_t row_step, column_step;

  ZELM_INLINE Object object(std::ptrdiff_t k) const {
    return {table, array ? shift + k * stride0 : shift, row_step, column_step};
  }
  ZELM_INLINE bool interleaved() const { return array && stride0 == Bytes(sizeof(T)); }
};

/// A view of the same elements that is never a TransposedView, except of contiguous rows.
template <class View>
ZELM_INLINE View cells(const View& v) {
  return v;
}
template <class E, bool array>
ZELM_INLINE StridedView<E, false, array> cells(const TransposedView<StridedView<E, false, array>>& v) {
  return {v.stored.first, v.stored.stride0, v.stored.element_stride, v.stored.row_stride};
}
template <class E>
ZELM_INLINE ListView<E, false> cells(const TransposedView<ListView<E, false>>& v) {
  return {v.stored.list, v.stored.shift, v.stored.element_stride, v.stored.row_stride};
}
template <class E, bool array>
ZELM_INLINE CellsView<E, array> cells(const TableView<E, array>& v) {
  return {v.table, v.shift, v.stride0, v.columns, 1};
}
template <class E, bool array>
ZELM_INLINE CellsView<E, array> cells(const TransposedView<TableView<E, array>>& v) {
  return {v.stored.table, v.stored.shift, v.stored.stride0, 1, v.stored.columns};
}

/// An object as the view of a single one.
template <class E>
ZELM_INLINE StridedView<E, false, false> single(const StridedObject<E, false>& o) {
  return {o.base, 0, o.row_stride, o.element_stride};
}

/// d = x + the products of terms from, from + 1, ...: each partial sum is stored before the next elements are read, which shows
/// where memory overlaps.
template <class A, class B, class E, class T>
ZELM_INLINE void add_terms(const A& a, int i, const B& b, int j, int from, int terms, E* d, T x) {
  store(d, x);
  ZELM_AS_IT_STANDS for (int k = from; k < terms; ++k) store(d, x = x + a.element(i, k) * b.element(k, j));
}

template <class A, class B, class D>
__attribute__((noinline)) void sum_in_destination(A a, B b, D d, Shape s) {
  using T = typename D::T;
  for (int i = 0; i < s.rows; ++i)
    for (int j = 0; j < s.columns; ++j) add_terms(a, i, b, j, 0, s.terms, d.at(i, j), T(0));
}

/// True if the element at d has a byte in common with n elements side by side from `row` on.
template <class T>
ZELM_INLINE bool meets(const T* d, const T* row, int n) {
  const auto at = reinterpret_cast<std::uintptr_t>(d), from = reinterpret_cast<std::uintptr_t>(row);
  return at - from < n * sizeof(T) || from - at < sizeof(T);
}

/// Rows of both operands are walked along the terms. The test counts them as if their elements lay side by side, whatever their
/// distance: it only chooses the loop.
template <class A, class B, class D>
__attribute__((noinline)) void sum_gathered(A a, B b, D d, Shape s) {
  using T = typename D::T;
  constexpr int L = Pack<T>::lanes;
  for (int i = 0; i < s.rows; ++i)
    for (int j = 0; j < s.columns; ++j) {
      T* const to = d.at(i, j);
      int k = 0;
      T sum = 0;
      if (s.terms >= 8 && !meets(to, a.at(i, 0), s.terms) && !meets(to, b.at(0, j), s.terms)) {
        EightLanes<T> sums;
        for (; k + 8 <= s.terms; k += 8)
          sums.add(
              k, [&](int m) { return Pack<T>::template gather<L>([&](int l) { return a.at(i, m + l); }); },
              [&](int m) { return Pack<T>::template gather<L>([&](int l) { return b.at(m + l, j); }); });
        sum = sums.sum();
      }
      add_terms(a, i, b, j, k, s.terms, to, sum);
    }
}

}  // namespace zelm::products
