// norm.hpp: Euclidean norms of vectors and Frobenius norms of matrices: the root of the sum of the squares. Nothing is scaled:
// a square beyond the range makes the norm infinite, squares below it make it 0.
#pragma once
#include "products/reduce.hpp"
#include "zelm_types.h"

namespace zelm::products::norm {

struct Root {
  ZELM_INLINE float operator()(float x) const { return std::sqrt(x); }
  ZELM_INLINE double operator()(double x) const { return std::sqrt(x); }
  template <class T>
  ZELM_INLINE Pack<T> operator()(Pack<T> x) const {
    return sqrt(x);
  }
};

struct RootOfPairs {
  template <class V, int N>
  static ZELM_INLINE V of(const V (&p)[N]) {
    return Root{}(Paired::of(p));
  }
};
struct PairedRoots : Sums<RootOfPairs, RootOfPairs> {
  static constexpr bool pairs = true;
};

/// True if none of the results lies where an element of an array with any element stride does. Such an array is else read and its
/// results are written object by object.
template <class View>
ZELM_INLINE bool apart(const View& a, const typename View::T* d, int width, std::ptrdiff_t count) {
  using T = typename View::T;
  const auto address = [](const void* p) { return reinterpret_cast<std::uintptr_t>(p); };
  const auto last = a.object(count - 1);
  const auto meets = [&](const void* from, const void* to) {
    return address(from) < address(d + count) && address(d) < address(to) + sizeof(T);
  };
  if constexpr (requires { last.table; }) {
    bool any = false;
    for (int j = 0; j < width; ++j) any |= meets(a.object(0).at(0, j), last.at(0, j));
    return !any;
  } else {
    return !meets(a.object(0).at(0, 0), last.at(0, width - 1));
  }
}

template <int N, class View>
ZELM_INLINE void euclidean_fixed(const Squares<View>& squares, typename View::T* d, int count) {
  if constexpr (View::array && !View::Object::plain) {
    if (squares.interleaved() && !apart(squares.a, d, N, count)) return reduce_each<N>(squares, d, 0, count, PairedRoots{});
  }
  reduce_fixed<N>(squares, d, count, PairedRoots{});
}

template <class View>
ZELM_INLINE ZelStatus euclidean(View a, typename View::T* d, int width, int count) {
  const Squares<View> squares{a};
  switch (width) {
    case 3: euclidean_fixed<3>(squares, d, count); break;
    case 4: euclidean_fixed<4>(squares, d, count); break;
    case 5: euclidean_fixed<5>(squares, d, count); break;
    case 6: euclidean_fixed<6>(squares, d, count); break;
    default: reduce_wide(squares, d, width, count, Root{});
  }
  return zelStsOk;
}

// Frobenius norms. Fixed orders: the squares of every column are added, rows ascending, and then the sums of the columns in pairs; in
// arrays of matrices without gaps the elements are one run, of which every lane of a register adds its own.
// The others: one accumulator with as many lanes as a register, for the whole matrix; a square alone goes into lane 0, eight at once
// go into all of them.

/// Sums of the squares of the columns.
template <int N, class Object>
ZELM_INLINE Row<typename Object::T, N> column_sums(const Object& a) {
  const auto squares = [&](int i) ZELM_INLINE_LAMBDA {
    const auto r = a.template row<N>(i);
    return lanewise(Times{}, r, r);
  };
  auto sum = squares(0);
  ZELM_UNROLL for (int i = 1; i < N; ++i) sum = lanewise(Plus{}, sum, squares(i));
  return sum;
}

/// The squares of a run of n elements, added up in the lanes of one register.
template <int n, class T>
ZELM_INLINE Pack<T> run_sums(const T* p) {
  const auto run = Row<T, n>::load(p);
  Pack<T> sum = run.pack[0] * run.pack[0];
  ZELM_UNROLL for (int q = 1; q < Row<T, n>::packs; ++q) sum = sum + run.pack[q] * run.pack[q];
  return sum;
}

template <int N, class Object>
ZELM_INLINE typename Object::T norm_of(const Object& a) {
  using T = typename Object::T;
  T sums[N];
  const auto row = column_sums<N>(a);
  alignas(16) T lanes[Row<T, N>::packs * Pack<T>::lanes];
  ZELM_UNROLL for (int q = 0; q < Row<T, N>::packs; ++q) row.pack[q].store(lanes + q * Pack<T>::lanes);
  ZELM_UNROLL for (int j = 0; j < N; ++j) sums[j] = lanes[j];
  return RootOfPairs::of(sums);
}

/// Blocks of as many objects as a register has lanes. `run`: there are no gaps between rows.
template <int N, bool run, class View>
__attribute__((noinline)) void norms_fixed(View a, typename View::T* d, std::ptrdiff_t count) {
  using T = typename View::T;
  constexpr int L = Pack<T>::lanes;
  for_blocks<L>(count, [=](std::ptrdiff_t k, auto valid) ZELM_INLINE_LAMBDA {
    typename View::Object objects[L];
    a.objects(k, valid, objects);
    Pack<T> roots;
    if constexpr (run) {
      Pack<T> sums[L];
      ZELM_UNROLL for (int l = 0; l < L; ++l) sums[l] = run_sums<N * N>(objects[l].base);
      roots = Root{}(sums_of_lanes(sums));
    } else {
      Block<T, L, N> sums;
      ZELM_UNROLL for (int l = 0; l < L; ++l) sums.rows[l] = column_sums<N>(objects[l]);
      const Block<T, N, L> turned = transposed(sums);
      Pack<T> e[N];
      ZELM_UNROLL for (int j = 0; j < N; ++j) e[j] = turned.rows[j].pack[0];
      roots = RootOfPairs::of(e);
    }
    if constexpr (std::is_same_v<decltype(valid), int>) {
      alignas(16) T lanes[L];
      roots.store(lanes);
      for (int l = 0; l < valid; ++l) store(d + k + l, lanes[l]);
    } else {
      roots.store(d + k);
    }
  });
}

/// Squares of packs of one matrix.
template <class T>
struct PackAccumulator {
  static constexpr int L = Pack<T>::lanes;
  Pack<T> lanes = Pack<T>::zero();
  /// at(e): the address of element e.
  template <class At>
  ZELM_INLINE void one(std::ptrdiff_t e, At at) {
    add(Pack<T>::template load_first<1>(at(e)));
  }
  template <class At>
  ZELM_INLINE void eight(std::ptrdiff_t e, At at) {
    ZELM_UNROLL for (int p = 0; p < 8; p += L) add(Pack<T>::load(at(e + p)));
  }
  ZELM_INLINE void add(Pack<T> x) { lanes = lanes + x * x; }
  ZELM_INLINE T sum() const { return sum_of_lanes(lanes); }
};

/// The same of elements that lie apart. V: an element, or a pack with one matrix in each lane.
template <class T, class V>
struct Accumulator {
  static constexpr int L = Pack<T>::lanes;
  V lanes[L] = {};
  /// at(e): element e.
  template <class At>
  ZELM_INLINE void one(std::ptrdiff_t e, At at) {
    const V x = at(e);
    lanes[0] = lanes[0] + x * x;
  }
  template <class At>
  ZELM_INLINE void eight(std::ptrdiff_t e, At at) {
    ZELM_UNROLL for (int p = 0; p < 8; ++p) {
      const V x = at(e + p);
      lanes[p % L] = lanes[p % L] + x * x;
    }
  }
  ZELM_INLINE V sum() const {
    if constexpr (L == 2) return lanes[0] + lanes[1];
    else return (lanes[0] + lanes[2]) + (lanes[1] + lanes[3]);
  }
};

/// A run of n elements, of which the first `lead` go one by one.
template <class Sum, class At>
ZELM_INLINE void add_run(Sum& sum, std::ptrdiff_t n, int lead, At at) {
  std::ptrdiff_t e = 0;
  for (; e < lead && e < n; ++e) sum.one(e, at);
  for (; e + 8 <= n; e += 8) sum.eight(e, at);
  for (; e < n; ++e) sum.one(e, at);
}

/// True if element follows element from the first row to the last, at addresses that suit them.
template <class Object>
ZELM_INLINE bool unbroken(const Object& a, int width) {
  if constexpr (requires { a.table; }) return true;
  else return elements_to_alignment<typename Object::T>(a.base) >= 0 && width * a.element_stride == a.row_stride;
}

template <class Object>
ZELM_INLINE typename Object::T sum_of_squares(const Object& a, int width, int height) {
  using T = typename Object::T;
  std::conditional_t<Object::plain, PackAccumulator<T>, Accumulator<T, T>> sum;
  const auto at = [&](int i, std::ptrdiff_t e) ZELM_INLINE_LAMBDA {
    if constexpr (Object::plain) return a.at(i, int(e));
    else return a.element(i, int(e));
  };
  const bool stretch = unbroken(a, width);
  const std::ptrdiff_t rows = stretch ? 1 : height, n = stretch ? std::ptrdiff_t(width) * height : width;
  for (int i = 0; i < rows; ++i)
    add_run(sum, n, stretch && Object::plain ? lead_of(a) : 0, [&](std::ptrdiff_t e) ZELM_INLINE_LAMBDA { return at(i, e); });
  return sum.sum();
}

template <class View>
__attribute__((noinline)) void norms_any(View a, int width, int height, typename View::T* d, std::ptrdiff_t count) {
  using T = typename View::T;
  std::ptrdiff_t k = 0;
  if constexpr (View::array && !View::Object::plain) {
    if (a.interleaved()) {
      const bool stretch = unbroken(a.object(0), width);
      const std::ptrdiff_t rows = stretch ? 1 : height, n = stretch ? std::ptrdiff_t(width) * height : width;
      for (; k + Pack<T>::lanes <= count; k += Pack<T>::lanes) {
        Accumulator<T, Pack<T>> sum;
        for (int i = 0; i < rows; ++i)
          add_run(sum, n, 0, [&](std::ptrdiff_t e) ZELM_INLINE_LAMBDA { return beside(a, k, i, int(e)); });
        Root{}(sum.sum()).store(d + k);
      }
    }
  }
  for (; k < count; ++k) store(d + k, Root{}(sum_of_squares(a.object(k), width, height)));
}

// Policies of the kernels: the orders that are fixed.

/// All in one general way.
struct NoOrders {
  template <class View>
  static ZELM_INLINE bool run(const View&, int, typename View::T*, int) {
    return false;
  }
};

/// A single matrix.
struct To5 {
  template <class View>
  static ZELM_INLINE bool run(const View& a, int order, typename View::T* d, int) {
    const auto fixed = [&]<int N>() { store(d, norm_of<N>(a.object(0))); };
    switch (order) {
      case 1: return fixed.template operator()<1>(), true;
      case 2: return fixed.template operator()<2>(), true;
      case 3: return fixed.template operator()<3>(), true;
      case 4: return fixed.template operator()<4>(), true;
      case 5: return fixed.template operator()<5>(), true;
    }
    return false;
  }
};

/// Arrays.
struct From3To6 {
  template <class View>
  static ZELM_INLINE bool run(const View& a, int order, typename View::T* d, int count) {
    const auto fixed = [&]<int N>() {
      if (a.row_stride == N * Bytes(sizeof(typename View::T))) norms_fixed<N, true>(a, d, count);
      else norms_fixed<N, false>(a, d, count);
    };
    switch (order) {
      case 3: return fixed.template operator()<3>(), true;
      case 4: return fixed.template operator()<4>(), true;
      case 5: return fixed.template operator()<5>(), true;
      case 6: return fixed.template operator()<6>(), true;
    }
    return false;
  }
};

/// Tables of elements: as one vector of nine, in ascending order.
struct Only3 {
  using Sum = Sums<Ascending, Ascending>;
  struct RootOfSum {
    template <class V, int N>
    static ZELM_INLINE V of(const V (&p)[N]) {
      return Root{}(Ascending::of(p));
    }
  };
  template <class View>
  static ZELM_INLINE bool run(const View& a, int order, typename View::T* d, int count) {
    if (order != 3) return false;
    reduce_fixed<9>(Squares<View>{a}, d, count, Sums<RootOfSum, RootOfSum>{});
    return true;
  }
};

template <class Policy = NoOrders, class View>
ZELM_INLINE ZelStatus frobenius(View a, int width, int height, typename View::T* d, int count) {
  const auto run = [=](const auto& view) {
    if (width == height && Policy::run(view, width, d, count)) return;
    norms_any(view, width, height, d, count);
  };
  if constexpr (View::array) run(a);
  else with_adjacent(a, run);
  return zelStsOk;
}

}  // namespace zelm::products::norm
