// apply_any.hpp: dst = op(A) x (+ y) of any size, one object at a time, in the sum orders of the sizes that have no path of their
// own. Every sum starts from +0.
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
