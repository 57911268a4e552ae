// reduce.hpp: one number from each vector, or from each pair of vectors: sums of squares and of products.
//
// Widths 3 to 6 go by blocks of objects where memory allows, one object in each lane: the terms are formed row by row, turned into
// lanes, and added there in the order that the kernel has. All other widths are summed by eights, object by object or, of
// interleaved arrays, in lanes again. What runs in lanes and what runs alone has the same order, so the same bits.
#pragma once
#include <cmath>

#include "frame/lanes.hpp"
#include "products/sums.hpp"

namespace zelm::products {

/// p0 + p1 + p2 ...
struct Ascending {
  template <class V, int N>
  static ZELM_INLINE V of(const V (&p)[N]) {
    V sum = p[0];
    ZELM_UNROLL for (int j = 1; j < N; ++j) sum = sum + p[j];
    return sum;
  }
};

/// (p0 + p1) + (p2 + p3) + ..., the last one alone where their number is odd.
struct Paired {
  template <class V, int N>
  static ZELM_INLINE V of(const V (&p)[N]) {
    V sum = p[0];
    if constexpr (N > 1) sum = sum + p[1];
    ZELM_UNROLL for (int j = 2; j + 1 < N; j += 2) sum = sum + (p[j] + p[j + 1]);
    if constexpr (N > 2 && N % 2) sum = sum + p[N - 1];
    return sum;
  }
};

/// The order of a width's sums, in a block of objects and of one object alone.
template <class Block, class One>
struct Sums {
  static constexpr bool pairs = std::is_same_v<Block, Paired>;
  template <class V, int N>
  ZELM_INLINE V block(const V (&p)[N], std::ptrdiff_t) const {
    return Block::of(p);
  }
  template <class T, int N>
  ZELM_INLINE T one(const T (&p)[N]) const {
    return One::of(p);
  }
};

/// Where the packed part of an object's sum begins.
template <class Object>
ZELM_INLINE int lead_of(const Object& object) {
  using T = typename Object::T;
  if constexpr (requires { object.table; }) return elements_to_alignment<T>(object.table);
  else if constexpr (Object::plain) return elements_to_alignment<T>(object.at(0, 0));
  else return 0;
}

/// Products of the elements of two objects, the second of which decides where packed sums begin.
template <class X, class Y>
struct ProductsOf {
  using T = typename X::T;
  static constexpr bool plain = X::plain;
  X x;
  Y y;
  ZELM_INLINE T one(int j) const { return x.element(0, j) * y.element(0, j); }
  ZELM_INLINE Pack<T> pack(int j) const { return Pack<T>::load(x.at(0, j)) * Pack<T>::load(y.at(0, j)); }
  /// The same where lead() is 0 and j a multiple of the lanes.
  ZELM_INLINE Pack<T> aligned_pack(int j) const { return Pack<T>::load(x.at(0, j)) * Pack<T>::load_aligned(y.at(0, j)); }
  /// Term j in lane 0.
  ZELM_INLINE Pack<T> first(int j) const {
    return Pack<T>::template load_first<1>(x.at(0, j)) * Pack<T>::template load_first<1>(y.at(0, j));
  }
  template <int N>
  ZELM_INLINE Row<T, N> row() const {
    return lanewise(Times{}, x.template row<N>(0), y.template row<N>(0));
  }
  ZELM_INLINE int lead() const { return lead_of(y); }
};

template <class X>
struct SquaresOf {
  using T = typename X::T;
  static constexpr bool plain = X::plain;
  X x;
  ZELM_INLINE T one(int j) const { return x.element(0, j) * x.element(0, j); }
  ZELM_INLINE Pack<T> pack(int j) const {
    const Pack<T> a = Pack<T>::load(x.at(0, j));
    return a * a;
  }
  ZELM_INLINE Pack<T> aligned_pack(int j) const { return pack(j); }
  ZELM_INLINE Pack<T> first(int j) const {
    const Pack<T> a = Pack<T>::template load_first<1>(x.at(0, j));
    return a * a;
  }
  template <int N>
  ZELM_INLINE Row<T, N> row() const {
    const Row<T, N> r = x.template row<N>(0);
    return lanewise(Times{}, r, r);
  }
  ZELM_INLINE int lead() const { return lead_of(x); }
};

/// Element j of the objects k, k + 1, ... of an interleaved array, or of the one object.
template <class View>
ZELM_INLINE auto beside(const View& view, std::ptrdiff_t k, int i, int j) {
  using T = typename View::T;
  if constexpr (View::array) return Pack<T>::load(view.object(k).at(i, j));
  else return Pack<T>::splat(view.object(0).element(i, j));
}

/// Pack q of the vectors of three elements that begin with object k of an array without gaps.
template <class View>
ZELM_INLINE auto packed(const View& view, std::ptrdiff_t k, int q) {
  return Pack<typename View::T>::load(view.first + k * 3 + q * Pack<typename View::T>::lanes);
}

/// Terms of a reduction: the products of two operands, of which the second may be one vector for all objects.
template <class A, class B>
struct Products {
  using T = typename A::T;
  using Object = ProductsOf<typename A::Object, typename B::Object>;
  static constexpr bool array = A::array, plain = A::Object::plain, packable = A::plain;
  A a;
  B b;

  ZELM_INLINE Object object(std::ptrdiff_t k) const { return {a.object(k), b.object(k)}; }
  template <int L>
  ZELM_INLINE void objects(std::ptrdiff_t k, Object (&to)[L]) const {
    typename A::Object x[L];
    a.objects(k, L, x);
    typename B::Object y[L];
    if constexpr (B::array) b.objects(k, L, y);
    ZELM_UNROLL for (int l = 0; l < L; ++l) to[l] = {x[l], B::array ? y[l] : b.object(0)};
  }
  ZELM_INLINE bool interleaved() const { return a.interleaved() && (!B::array || b.interleaved()); }
  ZELM_INLINE bool tight(int n) const { return a.tight(1, n) && (!B::array || b.tight(1, n)); }
  /// True if it is known that no object has leading terms.
  ZELM_INLINE bool led_by_none() const { return aligned_objects(b); }
  ZELM_INLINE Pack<T> lanes(std::ptrdiff_t k, int j) const { return beside(a, k, 0, j) * beside(b, k, 0, j); }

  /// Rows of the terms of N elements for as many objects as a register has lanes. The single vector is read once.
  template <int N>
  ZELM_INLINE auto rows() const {
    constexpr int L = Pack<T>::lanes;
    if constexpr (B::array) {
      return [self = *this](std::ptrdiff_t k, Block<T, L, N>& to) ZELM_INLINE_LAMBDA {
        Object pairs[L];
        self.objects(k, pairs);
        ZELM_UNROLL for (int l = 0; l < L; ++l) to.rows[l] = pairs[l].template row<N>();
      };
    } else {
      return [a = a, second = b.object(0).template row<N>(0)](std::ptrdiff_t k, Block<T, L, N>& to) ZELM_INLINE_LAMBDA {
        typename A::Object x[L];
        a.objects(k, L, x);
        ZELM_UNROLL for (int l = 0; l < L; ++l) to.rows[l] = lanewise(Times{}, x[l].template row<N>(0), second);
      };
    }
  }
  /// The same of vectors of three elements without gaps, in three packs.
  ZELM_INLINE auto runs() const {
    if constexpr (B::array) {
      return [a = a, b = b](std::ptrdiff_t k, int q) ZELM_INLINE_LAMBDA { return packed(a, k, q) * packed(b, k, q); };
    } else {
      const auto y = b.object(0);
      constexpr int L = Pack<T>::lanes;
      alignas(16) T repeated[3 * L];
      for (int e = 0; e < 3 * L; ++e) repeated[e] = y.element(0, e % 3);
      return [a = a, p0 = Pack<T>::load(repeated), p1 = Pack<T>::load(repeated + L), p2 = Pack<T>::load(repeated + 2 * L)](
                 std::ptrdiff_t k, int q) ZELM_INLINE_LAMBDA {
        return packed(a, k, q) * (q == 0 ? p0 : q == 1 ? p1 : p2);
      };
    }
  }
};

/// The squares of one operand.
template <class A>
struct Squares {
  using T = typename A::T;
  using Object = SquaresOf<typename A::Object>;
  static constexpr bool array = A::array, plain = A::Object::plain, packable = A::plain;
  A a;

  ZELM_INLINE Object object(std::ptrdiff_t k) const { return {a.object(k)}; }
  template <int L>
  ZELM_INLINE void objects(std::ptrdiff_t k, Object (&to)[L]) const {
    typename A::Object x[L];
    a.objects(k, L, x);
    ZELM_UNROLL for (int l = 0; l < L; ++l) to[l] = {x[l]};
  }
  ZELM_INLINE bool interleaved() const { return a.interleaved(); }
  ZELM_INLINE bool tight(int n) const { return a.tight(1, n); }
  ZELM_INLINE bool led_by_none() const { return aligned_objects(a); }
  ZELM_INLINE Pack<T> lanes(std::ptrdiff_t k, int j) const {
    const Pack<T> x = beside(a, k, 0, j);
    return x * x;
  }
  template <int N>
  ZELM_INLINE auto rows() const {
    constexpr int L = Pack<T>::lanes;
    return [self = *this](std::ptrdiff_t k, Block<T, L, N>& to) ZELM_INLINE_LAMBDA {
      Object squares[L];
      self.objects(k, squares);
      ZELM_UNROLL for (int l = 0; l < L; ++l) to.rows[l] = squares[l].template row<N>();
    };
  }
  ZELM_INLINE auto runs() const {
    return [a = a](std::ptrdiff_t k, int q) ZELM_INLINE_LAMBDA {
      const Pack<T> x = packed(a, k, q);
      return x * x;
    };
  }
};

// Fixed widths

/// From object k on, one at a time.
template <int N, class Terms, class Sum>
__attribute__((noinline)) void reduce_each(Terms terms, typename Terms::T* d, std::ptrdiff_t k, std::ptrdiff_t count, Sum sum) {
  for (; k < count; ++k) {
    const auto object = terms.object(k);
    typename Terms::T p[N];
    ZELM_UNROLL for (int j = 0; j < N; ++j) p[j] = object.one(j);
    store(d + k, sum.one(p));
  }
}

/// Blocks of as many objects as a register has lanes; lanes(k, e) fills them with the terms, or with sums of some.
template <int N, int summands = N, class Terms, class Sum, class ToLanes>
ZELM_INLINE void reduce_blocks(Terms terms, typename Terms::T* d, std::ptrdiff_t count, Sum sum, ToLanes lanes) {
  using P = Pack<typename Terms::T>;
  std::ptrdiff_t k = 0;
  for (; k + P::lanes <= count; k += P::lanes) {
    P e[summands];
    lanes(k, e);
    sum.block(e, k).store(d + k);
  }
  if (k < count) reduce_each<N>(terms, d, k, count, sum);
}

template <int N, class Terms, class Sum>
__attribute__((noinline)) void reduce_interleaved(Terms terms, typename Terms::T* d, std::ptrdiff_t count, Sum sum) {
  reduce_blocks<N>(terms, d, count, sum, [=](std::ptrdiff_t k, auto& e) ZELM_INLINE_LAMBDA {
    ZELM_UNROLL for (int j = 0; j < N; ++j) e[j] = terms.lanes(k, j);
  });
}

template <class Terms, class Sum>
__attribute__((noinline)) void reduce_packed(Terms terms, typename Terms::T* d, std::ptrdiff_t count, Sum sum) {
  const auto runs = terms.runs();
  reduce_blocks<3>(terms, d, count, sum, [=](std::ptrdiff_t k, auto& e) ZELM_INLINE_LAMBDA {
    packed_to_lanes(e, {runs(k, 0), runs(k, 1), runs(k, 2)});
  });
}

/// (p0 + p1) + (p2 + p3) of four rows: two shuffles fewer than with every term in a lane of its own.
ZELM_INLINE Pack<float> pairs_to_lanes(Pack<float> a, Pack<float> b, Pack<float> c, Pack<float> d) {
  const auto neighbours = [](Pack<float> x, Pack<float> y) ZELM_INLINE_LAMBDA {
    return Pack<float>{shuffle<0x88>(x.raw, y.raw)} + Pack<float>{shuffle<0xdd>(x.raw, y.raw)};
  };
  return neighbours(neighbours(a, b), neighbours(c, d));
}

template <int N, class Terms, class Sum>
__attribute__((noinline)) void reduce_rows(Terms terms, typename Terms::T* d, std::ptrdiff_t count, Sum sum) {
  using T = typename Terms::T;
  constexpr int L = Pack<T>::lanes;
  constexpr bool pairs = Sum::pairs && L == 4 && N >= 4;
  constexpr int summands = !pairs ? N : N == 4 ? 1 : 2;
  const auto rows = terms.template rows<N>();
  reduce_blocks<N, summands>(terms, d, count, sum, [=](std::ptrdiff_t k, auto& e) ZELM_INLINE_LAMBDA {
    Block<T, L, N> block;
    rows(k, block);
    const Block<T, N, L> turned = transposed(block);
    if constexpr (pairs) {
      e[0] = pairs_to_lanes(block.rows[0].pack[0], block.rows[1].pack[0], block.rows[2].pack[0], block.rows[3].pack[0]);
      if constexpr (N == 5) e[1] = turned.rows[4].pack[0];
      if constexpr (N == 6) e[1] = turned.rows[4].pack[0] + turned.rows[5].pack[0];
    } else {
      ZELM_UNROLL for (int j = 0; j < N; ++j) e[j] = turned.rows[j].pack[0];
    }
  });
}

template <int N, class Terms, class Sum>
ZELM_INLINE void reduce_fixed(const Terms& terms, typename Terms::T* d, int count, Sum sum) {
  if constexpr (Terms::array && Terms::plain) {
    if constexpr (N == 3 && Terms::packable) {
      if (terms.tight(3)) return reduce_packed(terms, d, count, sum);
    }
    reduce_rows<N>(terms, d, count, sum);
  } else {
    if constexpr (Terms::array) {
      if (terms.interleaved()) return reduce_interleaved<N>(terms, d, count, sum);
    }
    reduce_each<N>(terms, d, 0, count, sum);
  }
}

// Any width

template <class Object>
__attribute__((noinline)) typename Object::T sum_of(Object object, int width) {
  using T = typename Object::T;
  const auto one = [&](int j) ZELM_INLINE_LAMBDA { return object.one(j); };
  if constexpr (!Object::plain) return sum_in_steps<T, 8>(width, object.lead(), T(0), one);
  else
    return sum_in_steps<8>(width, object.lead(), T(0), one, [&](T first, int& j) ZELM_INLINE_LAMBDA {
      EightLanes<T> eight(first);
      for (; j + 8 <= width; j += 8) eight.add(j, [&](int e) ZELM_INLINE_LAMBDA { return object.pack(e); });
      return eight.sum();
    });
}

/// The same of as many objects as a register has lanes, none of which has leading terms: the lanes of all are added at once, and
/// what is left of each comes as columns.
template <class Object, int L>
ZELM_INLINE Pack<typename Object::T> sums_of(const Object (&objects)[L], int width) {
  using T = typename Object::T;
  using P = Pack<T>;
  P sum = P::zero(), columns[L];
  int j = 0;
  if (width >= 8) {
    const auto term = [&](int l) ZELM_INLINE_LAMBDA {
      return [&objects, l](int e) ZELM_INLINE_LAMBDA { return objects[l].aligned_pack(e); };
    };
    EightLanes<T> eight[L];
    ZELM_UNROLL for (int l = 0; l < L; ++l) eight[l].start(0, term(l));
    ZELM_AS_IT_STANDS for (j = 8; j + 8 <= width; j += 8) { ZELM_UNROLL for (int l = 0; l < L; ++l) eight[l].add(j, term(l)); }
    ZELM_UNROLL for (int l = 0; l < L; ++l) columns[l] = eight[l].lanes();
    sum = sum + sums_of_lanes(columns);
  }
  for (; j + L <= width; j += L) {
    ZELM_UNROLL for (int l = 0; l < L; ++l) columns[l] = objects[l].pack(j);
    transpose(columns);
    ZELM_UNROLL for (int l = 0; l < L; ++l) sum = sum + columns[l];
  }
  for (; j < width; ++j) {
    ZELM_UNROLL for (int l = 0; l < L; ++l) columns[l] = objects[l].first(j);
    transpose(columns);
    sum = sum + columns[0];
  }
  return sum;
}

/// finish(sum): the result, of an element or of a pack. W: the width if it is known, else 0.
template <int W = 0, class Terms, class Finish>
__attribute__((noinline)) void reduce_any(Terms terms, typename Terms::T* d, int any_width, std::ptrdiff_t count,
                                          Finish finish) {
  using P = Pack<typename Terms::T>;
  constexpr int L = P::lanes;
  const int width = W > 0 ? W : any_width;
  std::ptrdiff_t k = 0;
  if constexpr (Terms::array && Terms::plain) {
    const bool led_by_none = width < 8 || terms.led_by_none();
    for (; k + L <= count; k += L) {
      typename Terms::Object objects[L];
      terms.objects(k, objects);
      int leading = 0;
      if (!led_by_none) ZELM_UNROLL for (int l = 0; l < L; ++l) leading |= objects[l].lead();
      if (leading == 0) finish(sums_of(objects, width)).store(d + k);
      else
        for (int l = 0; l < L; ++l) store(d + k + l, finish(sum_of(terms.object(k + l), width)));
    }
  } else if constexpr (Terms::array) {
    if (terms.interleaved()) {
      const int lead = terms.object(0).lead();
      for (; k + L <= count; k += L) {
        const auto lanes = [&](int j) ZELM_INLINE_LAMBDA { return terms.lanes(k, j); };
        finish(sum_in_steps<typename Terms::T, 8>(width, lead, P::zero(), lanes)).store(d + k);
      }
    }
  }
  for (; k < count; ++k) store(d + k, finish(sum_of(terms.object(k), width)));
}

/// All widths but 3 to 6. Of vectors as short as 16 elements a loop of unknown length takes longer than the sums.
template <class Terms, class Finish>
ZELM_INLINE void reduce_wide(const Terms& terms, typename Terms::T* d, int width, int count, Finish finish) {
  if constexpr (Terms::array && Terms::plain) {
    if (width == 16) return reduce_any<16>(terms, d, width, count, finish);
  }
  reduce_any(terms, d, width, count, finish);
}

}  // namespace zelm::products
