// views.hpp: typed operands. A view knows where element (i, j) of object k lies in one of the three layouts, and hands out
// objects; an object hands out elements and rows. Strides and shifts count bytes, and all addresses are formed in ptrdiff_t.
//
//   StridedView<T, adjacent, array>   one pointer and strides; a single object is the same without stride0
//   ListView<T, adjacent>             one pointer per object
//   TableView<T, array>               one pointer per element of an object
//   transposed(view)                  exchanges i and j
//
// `adjacent`: the element stride is known to be the element size. T is const for sources.
#pragma once
#include <cstddef>
#include <type_traits>

#include "simd/row.hpp"

namespace zelm {

using Bytes = std::ptrdiff_t;

template <class T>
ZELM_INLINE T* moved(T* p, Bytes bytes) {
  using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
  return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + bytes);
}

/// A matrix whose elements lie at fixed distances; of a vector, the one row. `columns`: if not 0, rows of so many elements follow
/// one another without a gap, and addresses are constants.
template <class Element, bool adjacent, int columns = 0>
struct StridedObject {
  using T = std::remove_const_t<Element>;
  static constexpr bool plain = adjacent;  // rows are runs of memory
  static constexpr bool turned = false;
  Element* base;
  Bytes row_stride, element_stride;

  ZELM_INLINE Element* at(int i, int j) const {
    if constexpr (columns > 0) return base + (std::ptrdiff_t(i) * columns + j);
    return moved(base, i * row_stride + j * (adjacent ? Bytes(sizeof(T)) : element_stride));
  }
  ZELM_INLINE T element(int i, int j) const { return load(at(i, j)); }
  template <int N>
  ZELM_INLINE Row<T, N> row(int i) const {
    if constexpr (adjacent) return Row<T, N>::load(at(i, 0));
    else return Row<T, N>::gather([&](int j) { return at(i, j); });
  }
  template <int N>
  ZELM_INLINE void set_row(int i, const Row<T, N>& r) const {
    if constexpr (adjacent) r.store(at(i, 0));
    else r.scatter([&](int j) { return at(i, j); });
  }
};

/// A matrix given by a pointer to each of its elements, row by row, all moved by `shift`.
template <class Element>
struct TableObject {
  using T = std::remove_const_t<Element>;
  static constexpr bool plain = false;
  static constexpr bool turned = false;
  Element* const* table;
  Bytes shift;
  int columns;

  ZELM_INLINE Element* at(int i, int j) const { return moved(table[std::ptrdiff_t(i) * columns + j], shift); }
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

template <class Object>
struct TransposedObject {
  using T = typename Object::T;
  static constexpr bool plain = false;
  static constexpr bool turned = Object::plain;  // rows are columns of runs, to be transposed in registers
  Object stored;

  ZELM_INLINE auto at(int i, int j) const { return stored.at(j, i); }
  ZELM_INLINE T element(int i, int j) const { return stored.element(j, i); }
  template <int N>
  ZELM_INLINE Row<T, N> row(int i) const {
    return Row<T, N>::gather([&](int j) { return at(i, j); });
  }
};

/// All elements are one constant.
template <class V>
struct ConstantObject {
  using T = V;
  static constexpr bool plain = true, turned = false;
  V value;

  ZELM_INLINE T element(int, int) const { return value; }
  template <int N>
  ZELM_INLINE Row<T, N> row(int) const {
    return Row<T, N>::splat(value);
  }
};

/// Element (i, j) in all lanes.
template <class Object>
ZELM_INLINE auto splat_of(const Object& object, int i, int j) {
  using P = Pack<typename Object::T>;
  if constexpr (requires { object.at(i, j); }) return P::splat_from(object.at(i, j));
  else return P::splat(object.element(i, j));
}

/// `rows`, `columns`: if not 0, the objects are of this size and without gaps (as_tight).
template <class Element, bool adjacent, bool is_array, int rows = 0, int columns = 0>
struct StridedView {
  using T = std::remove_const_t<Element>;
  using Object = StridedObject<Element, adjacent, columns>;
  static constexpr bool array = is_array, plain = adjacent, constant = false;
  Element* first;
  Bytes stride0, row_stride, element_stride;

  ZELM_INLINE Bytes offset(std::ptrdiff_t k) const {
    if constexpr (!array) return 0;
    else if constexpr (columns > 0) return k * Bytes(rows * columns * sizeof(T));
    else return k * stride0;
  }
  ZELM_INLINE Object object(std::ptrdiff_t k) const { return {moved(first, offset(k)), row_stride, element_stride}; }
  /// On to the next object of an array: where addresses formed from k would be multiplied in every turn of a loop.
  ZELM_INLINE void next() { first = moved(first, offset(1)); }
  /// The same objects from element (i, j) on.
  ZELM_INLINE StridedView from(int i, int j) const {
    return {moved(first, i * row_stride + j * element_stride), stride0, row_stride, element_stride};
  }
  /// Objects k, ..., k + valid - 1 and, in the places behind, the last of them. The address of the first is hidden from the
  /// compiler, which would else carry the address of every row of every object along in the loop over k.
  template <int L>
  ZELM_INLINE void objects(std::ptrdiff_t k, int valid, Object (&to)[L]) const {
    Object o = object(k);
    __asm__("" : "+r"(o.base));
    ZELM_UNROLL for (int l = 0; l < L; ++l)
        to[l] = {moved(o.base, offset(l < valid ? l : valid - 1)), row_stride, element_stride};
  }
  ZELM_INLINE StridedView<Element, true, is_array> as_adjacent() const { return {first, stride0, row_stride, sizeof(T)}; }
  template <int R, int C>
  ZELM_INLINE StridedView<Element, true, is_array, R, C> as_tight() const {
    return {first, stride0, row_stride, sizeof(T)};
  }
  /// True if all elements of all objects form one run of memory without a gap, row by row and object by object.
  ZELM_INLINE bool tight(int of_rows, int of_columns) const {
    if constexpr (!adjacent) return false;
    if constexpr (columns > 0)
      if (of_rows == rows && of_columns == columns) return true;
    const Bytes row = of_columns * Bytes(sizeof(T));
    return (of_rows == 1 || row_stride == row) && stride0 == of_rows * row;
  }
  /// True if equal elements of neighbouring objects lie side by side.
  ZELM_INLINE bool interleaved() const { return array && stride0 == Bytes(sizeof(T)); }
};

/// True of the views that as_tight gives.
template <class View>
inline constexpr bool is_tight = false;
template <class Element, int rows, int columns>
inline constexpr bool is_tight<StridedView<Element, true, true, rows, columns>> = columns > 0;

/// As as_tight, which a single object does not need.
template <int R, int C, class View>
ZELM_INLINE auto tight_array(const View& view) {
  if constexpr (View::array) return view.template as_tight<R, C>();
  else return view;
}

template <class Element, bool adjacent>
struct ListView {
  using T = std::remove_const_t<Element>;
  using Object = StridedObject<Element, adjacent>;
  static constexpr bool array = true, plain = false, constant = false;
  Element* const* list;
  Bytes shift, row_stride, element_stride;

  ZELM_INLINE Object object(std::ptrdiff_t k) const { return {moved(list[k], shift), row_stride, element_stride}; }
  ZELM_INLINE void next() { ++list; }
  ZELM_INLINE ListView from(int i, int j) const {
    return {list, shift + i * row_stride + j * element_stride, row_stride, element_stride};
  }
  ZELM_INLINE ListView<Element, true> as_adjacent() const { return {list, shift, row_stride, sizeof(T)}; }
  template <int L>
  ZELM_INLINE void objects(std::ptrdiff_t k, int valid, Object (&to)[L]) const {
    ZELM_UNROLL for (int l = 0; l < L; ++l) to[l] = object(k + (l < valid ? l : valid - 1));
  }
  ZELM_INLINE bool tight(int, int) const { return false; }
  ZELM_INLINE bool interleaved() const { return false; }
};

template <class Element, bool is_array>
struct TableView {
  using T = std::remove_const_t<Element>;
  using Object = TableObject<Element>;
  static constexpr bool array = is_array, plain = false, constant = false;
  Element* const* table;
  Bytes shift, stride0;
  int columns;

  ZELM_INLINE Object object(std::ptrdiff_t k) const { return {table, array ? shift + k * stride0 : shift, columns}; }
  ZELM_INLINE void next() { shift += array ? stride0 : 0; }
  template <int L>
  ZELM_INLINE void objects(std::ptrdiff_t k, int valid, Object (&to)[L]) const {
    ZELM_UNROLL for (int l = 0; l < L; ++l) to[l] = object(k + (l < valid ? l : valid - 1));
  }
  ZELM_INLINE bool tight(int, int) const { return false; }
  ZELM_INLINE bool interleaved() const { return array && stride0 == Bytes(sizeof(T)); }
};

/// A constant by value, the same for all objects.
template <class V>
struct ConstantView {
  using T = V;
  using Object = ConstantObject<V>;
  static constexpr bool array = false, plain = true, constant = true;
  V value;

  ZELM_INLINE Object object(std::ptrdiff_t) const { return {value}; }
  ZELM_INLINE void next() {}
  ZELM_INLINE bool tight(int, int) const { return false; }
  ZELM_INLINE bool interleaved() const { return false; }
};

/// A constant for each object, at a fixed distance or through a list of pointers.
template <class Element, bool list>
struct ConstantsView {
  using T = std::remove_const_t<Element>;
  using Object = ConstantObject<T>;
  static constexpr bool array = true, plain = false, constant = true;
  std::conditional_t<list, Element* const*, Element*> first;
  Bytes stride0;  // of a list: the shift of every pointer

  ZELM_INLINE Element* at(std::ptrdiff_t k) const {
    if constexpr (list) return moved(first[k], stride0);
    else return moved(first, k * stride0);
  }
  ZELM_INLINE Object object(std::ptrdiff_t k) const { return {load(at(k))}; }
  ZELM_INLINE void next() {
    if constexpr (list) ++first;
    else first = moved(first, stride0);
  }
  ZELM_INLINE bool tight(int, int) const { return false; }
  ZELM_INLINE bool interleaved() const { return !list && stride0 == Bytes(sizeof(T)); }
};

template <class View>
struct TransposedView {
  using T = typename View::T;
  using Object = TransposedObject<typename View::Object>;
  static constexpr bool array = View::array, plain = false, constant = false;
  View stored;

  ZELM_INLINE Object object(std::ptrdiff_t k) const { return {stored.object(k)}; }
  ZELM_INLINE void next() { stored.next(); }
  ZELM_INLINE bool tight(int, int) const { return false; }
  ZELM_INLINE bool interleaved() const { return stored.interleaved(); }
};

template <class View>
ZELM_INLINE TransposedView<View> transposed(View view) {
  return {view};
}

/// Calls body with the view, in the form that knows that its elements are adjacent where they are.
template <class View, class Body>
ZELM_INLINE void with_adjacent(const View& view, Body body) {
  if constexpr (requires { view.as_adjacent(); }) {
    if (view.element_stride == Bytes(sizeof(typename View::T))) return body(view.as_adjacent());
  }
  body(view);
}

// Makers, in the order of the argument groups. Without an element stride the elements are adjacent.

template <class E>
ZELM_INLINE StridedView<E, true, false> matrix(E* p, int stride1) {
  return {p, 0, stride1, sizeof(E)};
}
template <class E>
ZELM_INLINE StridedView<E, false, false> matrix(E* p, int stride1, int stride2) {
  return {p, 0, stride1, stride2};
}
template <class E>
ZELM_INLINE StridedView<E, true, true> matrices(E* p, int stride0, int stride1) {
  return {p, stride0, stride1, sizeof(E)};
}
template <class E>
ZELM_INLINE StridedView<E, false, true> matrices(E* p, int stride0, int stride1, int stride2) {
  return {p, stride0, stride1, stride2};
}
template <class E>
ZELM_INLINE StridedView<E, true, false> vector(E* p) {
  return {p, 0, 0, sizeof(E)};
}
template <class E>
ZELM_INLINE StridedView<E, false, false> vector(E* p, int stride2) {
  return {p, 0, 0, stride2};
}
template <class E>
ZELM_INLINE StridedView<E, true, true> vectors(E* p, int stride0) {
  return {p, stride0, 0, sizeof(E)};
}
template <class E>
ZELM_INLINE StridedView<E, false, true> vectors(E* p, int stride0, int stride2) {
  return {p, stride0, 0, stride2};
}

template <class E>
ZELM_INLINE ListView<E, true> matrix_list(E* const* pp, int shift, int stride1) {
  return {pp, shift, stride1, sizeof(E)};
}
template <class E>
ZELM_INLINE ListView<E, false> matrix_list(E* const* pp, int shift, int stride1, int stride2) {
  return {pp, shift, stride1, stride2};
}
template <class E>
ZELM_INLINE ListView<E, true> vector_list(E* const* pp, int shift) {
  return {pp, shift, 0, sizeof(E)};
}
template <class E>
ZELM_INLINE ListView<E, false> vector_list(E* const* pp, int shift, int stride2) {
  return {pp, shift, 0, stride2};
}

template <class E>
ZELM_INLINE TableView<E, false> table(E* const* pp, Bytes shift, int columns) {
  return {pp, shift, 0, columns};
}
template <class E>
ZELM_INLINE TableView<E, true> tables(E* const* pp, Bytes shift, int stride0, int columns) {
  return {pp, shift, stride0, columns};
}

template <class E>
ZELM_INLINE ConstantsView<E, false> constants(E* p, int stride0) {
  return {p, stride0};
}
template <class E>
ZELM_INLINE ConstantsView<E, true> constant_list(E* const* pp, int shift) {
  return {pp, shift};
}

ZELM_INLINE bool aligned(const void* p) { return reinterpret_cast<std::uintptr_t>(p) % 16 == 0; }

/// True if every object is known to begin at a multiple of 16 bytes: not of lists.
template <class View>
ZELM_INLINE bool aligned_objects(const View& view) {
  if constexpr (requires { view.first; }) return aligned(view.first) && (!View::array || view.stride0 % 16 == 0);
  else return false;
}

// Fixed sizes

/// All R x C elements of an object in registers. A transposed object of floats with contiguous rows is transposed there; doubles
/// come in halves with as many shuffles and fewer instructions.
template <int R, int C, class Object>
ZELM_INLINE Block<typename Object::T, R, C> block_of(const Object& object) {
  using T = typename Object::T;
  Block<T, R, C> b;
  if constexpr (Object::turned && sizeof(T) == 4) {
    b = transposed(block_of<C, R>(object.stored));
  } else if constexpr (Object::turned) {
    const T* columns[C];
    ZELM_UNROLL for (int j = 0; j < C; ++j) {
      columns[j] = object.at(0, j);
      __asm__("" : "+r"(columns[j]));  // else each address of an element is made from the one before
    }
    ZELM_UNROLL for (int i = 0; i < R; ++i) b.rows[i] = Row<T, C>::gather([&](int j) { return columns[j] + i; });
  } else {
    ZELM_UNROLL for (int i = 0; i < R; ++i) b.rows[i] = object.template row<C>(i);
  }
  return b;
}

/// A single operand read once, before the loop over the objects.
template <class B>
struct Held {
  B block;
  ZELM_INLINE const B& object(std::ptrdiff_t) const { return block; }
};

template <int R, int C, class View>
ZELM_INLINE auto held(const View& view) {
  if constexpr (View::array) return view;
  else return Held<Block<typename View::T, R, C>>{block_of<R, C>(view.object(0))};
}

/// What the rows of an object are taken from: itself, or a block where they are columns of runs.
template <int R, int C, class Object>
ZELM_INLINE auto rows_of(const Object& object) {
  if constexpr (Object::turned) return block_of<R, C>(object);
  else return object;
}

}  // namespace zelm
