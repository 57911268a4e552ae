// run.hpp: d[e] = op(a[e], b[e]) over a run of elements, a register at a time. What every element-wise formula comes down to
// where memory allows.
#pragma once
#include <algorithm>
#include <cstdint>
#include <utility>

#include "frame/views.hpp"

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
  ZELM_INLINE bool is_aligned() const { return zelm::aligned(p); }
  ZELM_INLINE Elements<E, true> as_aligned() const { return {p}; }
  /// True if no element of a run of n is one of the n elements from d on.
  ZELM_INLINE bool apart(const T* d, std::ptrdiff_t n) const { return p + n <= d || d + n <= p; }
};
template <class E>
Elements(E*) -> Elements<E>;

/// True if a store to a run of n elements from d on could change one of the n from s on that is still to be read: d starts inside
/// them, behind s.
template <class T>
ZELM_INLINE bool runs_into(const T* s, const T* d, std::ptrdiff_t n) {
  const auto distance = reinterpret_cast<std::uintptr_t>(d) - reinterpret_cast<std::uintptr_t>(s);
  return distance - 1 < std::size_t(n) * sizeof(T) - 1;
}

/// One value for the whole run.
template <class V>
struct Same {
  using T = V;
  Pack<V> value;
  explicit ZELM_INLINE Same(V v) : value(Pack<V>::splat(v)) {}
  ZELM_INLINE auto pack(std::ptrdiff_t) const { return value; }
  ZELM_INLINE auto one(std::ptrdiff_t) const { return value.first(); }
  ZELM_INLINE bool is_aligned() const { return false; }
  ZELM_INLINE Same as_aligned() const { return *this; }
  ZELM_INLINE bool apart(const V*, std::ptrdiff_t) const { return true; }
};

/// Element (i, j) of all objects of an interleaved array, or of a single one.
template <class View>
ZELM_INLINE auto along(const View& view, int i, int j) {
  if constexpr (View::constant && View::array) return Elements{view.at(0)};
  else if constexpr (View::array) return Elements{view.object(0).at(i, j)};
  else return Same<typename View::T>{view.object(0).element(i, j)};
}

/// Row i of an object whose rows are runs.
template <class Object>
ZELM_INLINE auto along_row(const Object& object, int i) {
  if constexpr (requires { object.at(i, 0); }) return Elements{object.at(i, 0)};
  else return Same<typename Object::T>{object.element(i, 0)};
}

/// An operand of n x n elements as one run, where it is one or can be made one in registers.
template <class View>
ZELM_INLINE bool is_run(const View& v, int n) {
  if constexpr (View::constant || View::Object::turned) return true;
  else if constexpr (View::Object::plain) return v.row_stride == n * Bytes(sizeof(typename View::T));
  else return false;
}
/// True of small square matrices whose rows follow each other, whatever lies between the matrices: as vectors 3 x 3 floats take three
/// stores instead of six and six shuffles. Rows of doubles that fill their registers gain nothing, and 36 doubles do not fit them.
template <class T, class... Views>
ZELM_INLINE bool better_as_vectors(int rows, int columns, const Views&... views) {
  return rows == columns && rows >= 3 && rows <= 6 && (sizeof(T) == 4 || rows % 2 != 0) && (... && is_run(views, columns));
}

/// The transpose of N x N elements as one run: fewer stores than its rows take, which is what loops wait for. Of 3 x 3 floats
/// three instead of six, of 3 x 3 and 5 x 5 doubles five instead of six and 13 instead of 15.
template <class T, int N>
inline constexpr bool better_as_run = N == 3 || (N == 5 && sizeof(T) == 8);

template <int N, class Object>
ZELM_INLINE Row<float, 9> run_of_columns(const Object& from, Row<float, 9>) {
  const auto two = [&](int i) { return Pack<float>::load_first<2>(from.at(i, 0)).raw; };
  const auto third = [&](int i) { return Pack<float>::load_first<1>(from.at(i, 2)); };
  const __m128 e00e01e10e11 = shuffle<0x44>(two(0), two(1)), e20e21 = two(2);
  const __m128 e20e01 = shuffle<0x50>(e20e21, e00e01e10e11), e11e21 = shuffle<0x5f>(e00e01e10e11, e20e21);
  const __m128 e02e12 = shuffle<0x00>(third(0).raw, third(1).raw);
  return {{{shuffle<0x88>(e00e01e10e11, e20e01)}, {shuffle<0x88>(e11e21, e02e12)}, third(2)}};
}
template <int N, class Object>
ZELM_INLINE Row<double, N * N> run_of_columns(const Object& from, Row<double, N * N> run) {
  Row<double, N> rows[N];
  ZELM_UNROLL for (int i = 0; i < N; ++i) rows[i] = from.template row<N>(i);
  const auto place = [&](int e) { return rows[e % N].pack[e / N / 2].raw; };  // with its neighbour below or above
  unroll<N * N / 2>([&](auto q) ZELM_INLINE_LAMBDA {
    constexpr int first = 2 * q, second = first + 1;
    run.pack[q].raw = shuffle<(first / N % 2 | second / N % 2 << 1)>(place(first), place(second));
  });
  run.pack[N * N / 2].raw = place(N * N - 1);
  return run;
}
template <int N, class Object>
ZELM_INLINE Row<typename Object::T, N * N> run_of_columns(const Object& from) {
  return run_of_columns<N>(from, Row<typename Object::T, N * N>());
}

/// Of objects of N elements one after the other, register q: the constant of each element's object. c: the first's.
template <int N, int q>
ZELM_INLINE Pack<float> spread(const float* c) {
  constexpr auto lane = [](int l) { return (4 * q + l) / N; };
  return {shuffled<lane(0) | lane(1) << 2 | lane(2) << 4 | lane(3) << 6>(Pack<float>::load(c).raw)};
}
/// Doubles come by loads alone, which take no shuffle.
template <int N, int q>
ZELM_INLINE Pack<double> spread(const double* c) {
  constexpr int object = 2 * q / N;
  if constexpr ((2 * q + 1) / N > object) return Pack<double>::load(c + object);
  else return Pack<double>::splat(load(c + object));
}

/// d may be a or b: each pack is read before it is written. Four registers in flight keep a long run busy; eight leave short
/// ones, the rows of an object, fewer turns.
template <bool streamed = false, class Op, class A, class B, class T>
ZELM_INLINE void run_packs(Op op, A a, B b, T* d, std::ptrdiff_t n) {
  constexpr int L = Pack<T>::lanes;
  std::ptrdiff_t e = 0;
  const auto step = [&](auto packs) ZELM_INLINE_LAMBDA {
    __asm__("" : "+r"(e));  // one index for all addresses, which a compiler that knows more of it would form apart
    ZELM_UNROLL for (int q = 0; q < packs; ++q) put<streamed>(op(a.pack(e + q * L), b.pack(e + q * L)), d + e + q * L);
    e += packs * L;
  };
  const std::ptrdiff_t in_eights = n & -(8 * L), in_packs = n & -L;
  ZELM_AS_IT_STANDS while (e < in_eights) step(std::integral_constant<int, 8>{});
  if (n & (4 * L)) step(std::integral_constant<int, 4>{});
  ZELM_AS_IT_STANDS while (e < in_packs) step(std::integral_constant<int, 1>{});
  ZELM_AS_IT_STANDS for (; e < n; ++e) store(d + e, op(a.one(e), b.one(e)));
  if constexpr (streamed) _mm_sfence();
}

/// A run long enough to be worth a call.
template <class Op, class A, class B, class T>
__attribute__((noinline)) void run(Op op, A a, B b, T* d, std::ptrdiff_t n) {
  if (worth_streaming(d, n) && a.apart(d, n) && b.apart(d, n)) run_packs<true>(op, a, b, d, n);
  else if (b.is_aligned()) run_packs(op, a, b.as_aligned(), d, n);
  else run_packs(op, a, b, d, n);
}

/// For run_packs: a copy of its first operand.
struct First {
  template <class V>
  ZELM_INLINE V operator()(V a, V) const {
    return a;
  }
};

/// A single object, repeated until its copies fill whole registers: what it combines with is then one run of memory.
template <class T>
struct Pattern {
  static constexpr int L = Pack<T>::lanes;
  static constexpr std::ptrdiff_t capacity = 144;  // elements: four copies of 6 x 6, the largest of the small sizes
  alignas(16) T elements[capacity];
  int packs;

  static bool fits(std::ptrdiff_t size) { return copies_of(size) * size <= capacity; }
  static std::ptrdiff_t copies_of(std::ptrdiff_t size) { return size % L == 0 ? 1 : size % 2 == 0 ? L / 2 : L; }

  template <class Object>
  Pattern(const Object& object, int rows, int columns) {
    const int size = rows * columns;
    const int copies = int(copies_of(size));
    packs = copies * size / L;
    const bool tight = [&] {
      if constexpr (Object::plain) return object.at(1, 0) == object.at(0, columns);
      else return false;
    }();
    if (tight) rows = 1, columns = size;
    T* filled = elements;
    for (int c = 0; c < copies; ++c) {
      for (int i = 0; i < rows; ++i) {
        if constexpr (Object::plain) run_packs(First{}, along_row(object, i), Same<T>{T()}, filled, columns), filled += columns;
        else ZELM_AS_IT_STANDS for (int j = 0; j < columns; ++j)* filled++ = object.element(i, j);
      }
    }
  }
};

/// d = op(a, pattern), or op(pattern, a) if `first`, with Q registers of the pattern a turn; Q = 0: as many as it has.
template <class Op, bool first, int Q, bool streamed = false, class T>
__attribute__((noinline)) void run_repeated(Op op, const T* a, const Pattern<T>& pattern, T* d, std::ptrdiff_t n) {
  constexpr int L = Pack<T>::lanes;
  const auto combined = [&](auto x, auto y) { return first ? op(y, x) : op(x, y); };
  const int packs = Q > 0 ? Q : pattern.packs;
  Pack<T> held[std::max(Q, 1)];  // copies that no store to d can change, in registers where there are enough
  ZELM_UNROLL for (int q = 0; q < Q; ++q) held[q] = Pack<T>::load_aligned(pattern.elements + q * L);
  std::ptrdiff_t e = 0;
  ZELM_AS_IT_STANDS for (const std::ptrdiff_t end = n / (packs * L) * (packs * L); e < end; e += packs * L) {
    if constexpr (Q > 0) {
      ZELM_UNROLL for (int q = 0; q < Q; ++q) put<streamed>(combined(Pack<T>::load(a + e + q * L), held[q]), d + e + q * L);
    } else {
      std::ptrdiff_t q = 0;
      const auto step = [&](auto some) ZELM_INLINE_LAMBDA {
        ZELM_UNROLL for (int p = 0; p < some; ++p)
            put<streamed>(combined(Pack<T>::load(a + e + (q + p) * L), Pack<T>::load_aligned(pattern.elements + (q + p) * L)),
                          d + e + (q + p) * L);
        q += some;
        __asm__("" : "+r"(q));
      };
      ZELM_AS_IT_STANDS while (q + 5 <= packs) step(std::integral_constant<int, 5>{});
      ZELM_AS_IT_STANDS while (q < packs) step(std::integral_constant<int, 1>{});
    }
  }
  ZELM_AS_IT_STANDS for (int q = 0; e < n; ++e, ++q) store(d + e, combined(load(a + e), pattern.elements[q]));
  if constexpr (streamed) _mm_sfence();
}

/// The small sizes have loops of their own: 1 to 9 registers are vectors of 3 to 6 elements and matrices of 3 x 3, 4 x 4, 6 x 6.
template <class Op, bool first, class T>
void run_repeated(Op op, const T* a, const Pattern<T>& pattern, T* d, std::ptrdiff_t n) {
  if (worth_streaming(d, n) && Elements{a}.apart(d, n)) return run_repeated<Op, first, 0, true>(op, a, pattern, d, n);
  switch (pattern.packs) {
    case 1: return run_repeated<Op, first, 1>(op, a, pattern, d, n);
    case 2: return run_repeated<Op, first, 2>(op, a, pattern, d, n);
    case 3: return run_repeated<Op, first, 3>(op, a, pattern, d, n);
    case 4: return run_repeated<Op, first, 4>(op, a, pattern, d, n);
    case 5: return run_repeated<Op, first, 5>(op, a, pattern, d, n);
    case 8: return run_repeated<Op, first, 8>(op, a, pattern, d, n);
    case 9: return run_repeated<Op, first, 9>(op, a, pattern, d, n);
    case 18: return run_repeated<Op, first, 18>(op, a, pattern, d, n);
    case 25: return run_repeated<Op, first, 25>(op, a, pattern, d, n);
    default: return run_repeated<Op, first, 0>(op, a, pattern, d, n);
  }
}

}  // namespace zelm::elementwise
