// apply_any.hpp: dst = op(A) x (+ y) of any size, in the sum orders of the sizes that have no path of their own: one object at a
// time, or with one matrix as many vectors as a register has lanes. Every sum starts from +0.
#pragma once
#include "frame/views.hpp"
#include "products/sums.hpp"

namespace zelm::products::apply {

/// Contiguous elements, all `rows` elements of dst. Blocks of eight, and a rest of four to seven, sum along k in the lanes of one
/// register, from where x reaches a multiple of 16 bytes: what lies before goes to lane 0, what is left behind follows one by one.
/// A rest of one to three goes in steps of eight from the start of x. `turned`: op(A) is the transpose of the stored matrix.
template <bool turned, class T>
void in_blocks(const T* a, Bytes row_stride, const T* x, T* d, int rows, int length);

/// The same with steps of eight for all elements of dst, from where x reaches a multiple of 16 bytes.
void in_rows(const float* a, Bytes row_stride, const float* x, float* d, int rows, int length);

// The sums of in_blocks and of in_rows in lanes: that of element i of `rows` in each of several objects, whose vectors all have `lead`
// elements before a multiple of 16 bytes. `step`: below so many elements behind them there are none.

struct LanesOfBlocks {
  template <class T>
  static constexpr int step = Pack<T>::lanes;
  template <class T, class Term>
  static ZELM_INLINE Pack<T> sum(int i, int rows, int length, int lead, Term term) {
    const int rest = rows % 8;
    if (rest < 4 && i >= rows - rest) return sum_in_steps<T, 8>(length, 0, Pack<T>::zero(), term);
    return sum_in_steps<T, Pack<T>::lanes>(length, lead, Pack<T>::zero(), term);
  }
};
struct LanesOfRows {
  template <class T>
  static constexpr int step = 8;
  template <class T, class Term>
  static ZELM_INLINE Pack<T> sum(int, int, int length, int lead, Term term) {
    return sum_in_steps<T, 8>(length, lead, Pack<T>::zero(), term);
  }
};

/// Matrices of up to so many elements are held with every element in all lanes, if there are vectors enough to pay for that.
inline constexpr int kMostHeld = 256, kLeastVectors = 16;

/// One matrix and many vectors, several at once if their sums have the same leading terms, or no steps; the others by one(k).
template <class Sum, class A, class B, class D, class One>
__attribute__((noinline)) void in_object_lanes(A matrix, B b, D d, int rows, int length, std::ptrdiff_t count, One one) {
  using T = typename D::T;
  using P = Pack<T>;
  constexpr int L = P::lanes;
  P held[kMostHeld], x[kMostHeld], z[kMostHeld];
  for (int i = 0; i < rows; ++i)
    for (int k = 0; k < length; ++k) held[i * length + k] = P::splat(matrix.element(i, k));
  std::ptrdiff_t n = 0;
  for (; n + L <= count; n += L) {
    typename B::Object from[L];
    typename D::Object to[L];
    b.objects(n, L, from);
    const auto lead_of = [=](const auto& x) ZELM_INLINE_LAMBDA {
      const int elements = elements_to_alignment<T>(x.base);
      return length - elements < Sum::template step<T> ? -1 : elements;
    };
    const int lead = lead_of(from[0]);
    bool alike = true;
    ZELM_UNROLL for (int l = 1; l < L; ++l) alike &= lead_of(from[l]) == lead;
    if (!alike) {
      for (int l = 0; l < L; ++l) one(n + l);
      continue;
    }
    int k = 0;
    for (; k + L <= length; k += L) {
      P tile[L];
      ZELM_UNROLL for (int l = 0; l < L; ++l) tile[l] = P::load(from[l].base + k);
      transpose(tile);
      ZELM_UNROLL for (int l = 0; l < L; ++l) x[k + l] = tile[l];
    }
    for (; k < length; ++k) x[k] = P::template gather<L>([&](int l) { return from[l].base + k; });
    for (int i = 0; i < rows; ++i) {
      const P* const row = held + i * length;
      z[i] = Sum::template sum<T>(i, rows, length, lead, [&](std::ptrdiff_t e) ZELM_INLINE_LAMBDA { return row[e] * x[e]; });
    }
    d.objects(n, L, to);
    int i = 0;
    for (; i + L <= rows; i += L) {
      P tile[L];
      ZELM_UNROLL for (int l = 0; l < L; ++l) tile[l] = z[i + l];
      transpose(tile);
      ZELM_UNROLL for (int l = 0; l < L; ++l) tile[l].store(to[l].base + i);
    }
    for (; i < rows; ++i) z[i].template scatter<L>([&](int l) { return to[l].base + i; });
  }
  for (; n < count; ++n) one(n);
}

/// y of a product to which nothing is added.
struct None {
  static constexpr bool array = false, plain = true;
  ZELM_INLINE None object(std::ptrdiff_t) const { return {}; }
  ZELM_INLINE bool interleaved() const { return false; }
};

/// sum + y(i)
template <class V, class Y>
ZELM_INLINE V plus_element(V sum, const Y& y, int i) {
  if constexpr (std::is_same_v<Y, None>) return sum;
  else return sum + y.element(0, i);
}

/// One by one. `zero`: from +0 on, else from the first product.
template <bool zero, class A, class X, class Y, class D>
__attribute__((noinline)) void one_by_one(A a, X x, Y y, D d, int rows, int length) {
  for (int i = 0; i < rows; ++i) {
    const auto product = [&](int k) { return a.element(i, k) * x.element(0, k); };
    typename D::T sum = zero ? 0 : product(0);
    ZELM_AS_IT_STANDS for (int k = !zero; k < length; ++k) sum += product(k);
    store(d.at(0, i), plus_element(sum, y, i));
  }
}

/// In steps of eight, lanes gathered. Where an element of dst meets the `length` elements from the start of its row of A or of x
/// as they would lie without gaps, its sum goes one by one, and through memory.
template <class A, class X, class Y, class D>
__attribute__((noinline)) void gathered(A a, X x, Y y, D d, int rows, int length) {
  using T = typename D::T;
  using P = Pack<T>;
  constexpr int L = P::lanes;
  const bool strides = a.element_stride != 0 && x.element_stride != 0;
  for (int i = 0; i < rows; ++i) {
    T* const to = d.at(0, i);
    const auto meets = [&](const T* start) {
      const auto s = reinterpret_cast<std::uintptr_t>(start), e = reinterpret_cast<std::uintptr_t>(to);
      return s < e + sizeof(T) && e < s + std::uintptr_t(length) * sizeof(T);
    };
    if (meets(a.at(i, 0)) || meets(x.at(0, 0))) {
      store(to, T(0));
      for (int k = 0; k < length; ++k) store(to, load(to) + a.element(i, k) * x.element(0, k));
      store(to, plus_element(load(to), y, i));
      continue;
    }
    EightLanes<T> eight;
    int k = 0;
    if (strides)
      for (; k + 8 <= length; k += 8)
        eight.add(
            k, [&](int e) { return P::template gather<L>([&](int l) { return a.at(i, e + l); }); },
            [&](int e) { return P::template gather<L>([&](int l) { return x.at(0, e + l); }); });
    T sum = eight.sum();
    for (; k < length; ++k) sum += a.element(i, k) * x.element(0, k);
    store(to, plus_element(sum, y, i));
  }
}

/// Where equal elements of neighbouring objects lie side by side: as many objects as a register has lanes, one by one.
template <class A, class B, class C, class D>
__attribute__((noinline)) std::ptrdiff_t one_by_one_beside(A a, B b, C c, D d, int rows, int length, int count) {
  using P = Pack<typename D::T>;
  const auto pack = [](const auto& view, const auto& object, int i, int j)
                        ZELM_INLINE_LAMBDA { return view.array ? P::load(object.at(i, j)) : P::splat(object.element(i, j)); };
  std::ptrdiff_t n = 0;
  for (; n + P::lanes <= count; n += P::lanes) {
    const auto m = a.object(n);
    const auto x = b.object(n);
    const auto y = c.object(n);
    const auto z = d.object(n);
    for (int i = 0; i < rows; ++i) {
      P sum = P::zero();
      ZELM_AS_IT_STANDS for (int k = 0; k < length; ++k) sum = sum + pack(a, m, i, k) * pack(b, x, 0, k);
      if constexpr (!std::is_same_v<C, None>) sum = sum + pack(c, y, 0, i);
      sum.store(z.at(0, i));
    }
  }
  return n;
}

}  // namespace zelm::products::apply
