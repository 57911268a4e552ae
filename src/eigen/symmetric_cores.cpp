#include "eigen/symmetric_cores.hpp"

namespace zelm::eigen::symmetric {
namespace {

/// Eigenvectors in the columns of the destination.
template <class Object>
struct Columns {
  using T = typename Object::T;
  Object object;
  ZELM_INLINE T get(int i, int j) const { return load(object.at(i, j)); }
  ZELM_INLINE void put(int i, int j, T x) const { store(object.at(i, j), x); }
};

/// The same in lanes: columns are runs.
template <class S>
struct Runs {
  S* first;
  int n;
  ZELM_INLINE const S& get(int i, int j) const { return first[j * n + i]; }
  ZELM_INLINE void put(int i, int j, const S& x) const { first[j * n + i] = x; }
};

template <class Z, class S>
ZELM_INLINE void load_identity(const Z& z, int n, S one, S zero) {
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) z.put(i, j, i == j ? one : zero);
}

/// Columns i and j, which rise with the sweep.
template <class V, class T, class Z>
ZELM_INLINE void rotate(const Z& z, int n, int i, int j, V c, V s) {
  for (int k = 0; k < n; ++k) {
    const V zi = V(z.get(k, i)), zj = V(z.get(k, j));
    z.put(k, i, T(c * zi + s * zj));
    z.put(k, j, T(c * zj - s * zi));
  }
}

/// Turns 2 * packs elements of columns, `height` elements each, by rotations first, ..., last - 1 of lane l.
template <int packs, class V, class T>
__attribute__((noinline)) void turn(const V* c, const V* s, int l, int first, int last, T* columns, int height) {
  using P = Pack<double>;
  T* at = columns + first * height;
  P zi[packs];
  ZELM_UNROLL for (int q = 0; q < packs; ++q) zi[q] = P::load(at + 2 * q);
  ZELM_AS_IT_STANDS for (int i = first; i < last; ++i, at += height) {
    const P ci = P::splat(load_lane(c + i, l)), si = P::splat(load_lane(s + i, l));
    ZELM_UNROLL for (int q = 0; q < packs; ++q) {
      const P zj = P::load(at + height + 2 * q);
      (ci * zi[q] + si * zj).store(at + 2 * q);
      zi[q] = (ci * zj - si * zi[q]).as(columns);
    }
  }
  ZELM_UNROLL for (int q = 0; q < packs; ++q) zi[q].store(at + 2 * q);
}

/// The rotations of one sweep, in lanes.
template <class V, int largest>
struct Rotations {
  V c[largest], s[largest];
  int where[largest];  // bit l: of lane l

  /// Turns the columns of lane l by those of rotations first, ..., last - 1 that it has: some in succession.
  template <class T>
  ZELM_INLINE void apply(int l, int first, int last, T* columns, int height) const {
    while (first < last && !(where[first] >> l & 1)) ++first;
    while (first < last && !(where[last - 1] >> l & 1)) --last;
    if (first == last) return;
    // As many at once as there are registers for: from one column to the next it takes 18 cycles, of float.
    int k = 0;
    for (; k + 10 <= height; k += 10) turn<5>(c, s, l, first, last, columns + k, height);
    switch ((height - k) / 2) {
      case 1: return turn<1>(c, s, l, first, last, columns + k, height);
      case 2: return turn<2>(c, s, l, first, last, columns + k, height);
      case 3: return turn<3>(c, s, l, first, last, columns + k, height);
      case 4: return turn<4>(c, s, l, first, last, columns + k, height);
    }
  }
};

/// The sweeps have two mirrored forms: the smaller end of the diagonal should be where they end. The ascending form is the
/// descending one on the matrix with its rows and columns in reverse.
template <class V, class T, class Z>
ZelStatus solve_one(T* buffer, const Z& z, T* values, int n, const Rules& rules) {
  constexpr bool vectors = !std::is_same_v<Z, NoVectors>;
  const Square<T> a = {buffer, n};
  if constexpr (vectors) load_identity(z, n, T(1), T(0));
  reduce(a, values, n, rules, z);
  const bool reversed = std::fabs(a.get(n - 1, n - 1)) > std::fabs(a.get(0, 0));
  const auto place = [=](int i) { return reversed ? n - 1 - i : i; };

  // The two diagonals move to the first two rows, of which nothing else is needed.
  T *const d = buffer, *const e = buffer + n;
  const T d0 = a.get(0, 0), e1 = a.get(1, 0);
  if (reversed) {
    // Rows from the end: what is still to be read lies below, or is d0 and e1.
    store(d, a.get(n - 1, n - 1));
    T last = a.get(n - 1, n - 2);
    for (int i = 1; i < n - 1; ++i) store(d + i, a.get(n - 1 - i, n - 1 - i));
    for (int i = 1; i < n - 1; ++i) {
      const T next = n - 1 - i == 1 ? e1 : a.get(n - 1 - i, n - 2 - i);
      store(e + i, last);
      last = next;
    }
    store(d + n - 1, d0);
    store(e + n - 1, e1);
  } else {
    for (int i = 1; i < n; ++i) {
      const T di = a.get(i, i), ei = a.get(i, i - 1);
      store(d + i, di);
      store(e + i, ei);
    }
  }
  V product = 1;
  const bool converged = sweep<V, 1>(
      d, e, n, product,
      [&](int m, bool hit) {
        if (hit && !reversed) store(values + m, load(d + m));
      },
      [&](int i, V c, V s, bool where) {
        if constexpr (vectors)
          if (where) rotate<V, T>(z, n, place(i), place(i + 1), c, s);
      },
      [](int, int) {});
  if (!converged) return zelStsNoConvergence;
  if (reversed) {
    product = 1;
    for (int i = 0; i < n; ++i) {
      store(values + i, load(d + place(i)));
      product = product * V(load(values + i));
    }
  } else {
    store(values, load(d));
    product = product * V(load(d));
  }
  const bool singular = V(kEpsilon<T>) >= std::fabs(product);
  if (singular && !rules.sorts_singular) return zelStsSingular;
  sort(values, n, [&](int i, int j, bool) {
    if constexpr (vectors)
      for (int k = 0; k < n; ++k) {
        const T x = z.get(k, i);
        z.put(k, i, z.get(k, j));
        z.put(k, j, x);
      }
  });
  return singular ? zelStsSingular : zelStsOk;
}

template <class V, class T, int order, bool vectors>
ZELM_INLINE bool solve_here(Block<T, order, vectors>& block, int n, const Rules& rules) {
  using B = Block<T, order, vectors>;
  using S = typename B::S;
  const Square<S> a = {block.a, n};
  MaskOf<S> reversed;
  S u[B::largest], d[B::largest], e[B::largest];
  if constexpr (vectors) {
    S columns[B::largest * B::largest];
    const Runs<S> z = {columns, n};
    load_identity(z, n, S(T(1)), S(T(0)));
    reduce(a, u, n, rules, z);
    reversed = exceeds(magnitude(a.get(n - 1, n - 1)), magnitude(a.get(0, 0)));
    for (int l = 0; l < S::lanes; ++l)
      for (int j = 0; j < n; ++j) {
        T* const x = block.vector(l, lanes_set(reversed) >> l & 1 ? n - 1 - j : j, n);
        if (n % 2 == 1) x[n] = 0;
        for (int i = 0; i < n; ++i) x[i] = load_lane(&z.get(i, j), l);
      }
  } else {
    reduce(a, u, n, rules, NoVectors{});
    reversed = exceeds(magnitude(a.get(n - 1, n - 1)), magnitude(a.get(0, 0)));
  }
  for (int i = 0; i < n; ++i) {
    d[i] = select(reversed, a.get(n - 1 - i, n - 1 - i), a.get(i, i));
    if (i > 0) e[i] = select(reversed, a.get(n - i, n - i - 1), a.get(i, i - 1));
  }
  V stops = ElementOf<V>(1);
  Rotations<V, vectors ? B::largest : 1> rotations;
  if (!sweep<V, B::largest>(
          d, e, n, stops, [](int, const V&) {},
          [&](int i, const V& c, const V& s, const V& where) ZELM_INLINE_LAMBDA {
            if constexpr (vectors) {
              rotations.c[i] = c;
              rotations.s[i] = s;
              rotations.where[i] = lanes_set(where);
            }
          },
          [&](int first, int last) ZELM_INLINE_LAMBDA {
            if constexpr (vectors)
              for (int l = 0; l < S::lanes; ++l) rotations.apply(l, first, last, block.vector(l, 0, n), n + n % 2);
          }))
    return false;
  // The product of all of them in their order, where the form was the ascending one; else of those at the stops, and the first.
  V all_of_them = ElementOf<V>(1);
  for (int i = n - 1; i >= 0; --i) all_of_them = all_of_them * V(d[i]);
  const V product = V(select(reversed, S(T(0)), S(T(1))));
  const V stopped = stops * V(d[0]), limit = ElementOf<V>(kEpsilon<T>);
  if (any(reaches(limit, magnitude(select(exceeds(product, V(ElementOf<V>(0))), stopped, all_of_them))))) return false;
  for (int i = 0; i < n; ++i) {
    block.values[i] = select(reversed, d[n - 1 - i], d[i]);
    block.places[i] = select(reversed, S(T(n - 1 - i)), S(T(i)));
  }
  sort(block.values, n, [&](int i, int j, const S& where) ZELM_INLINE_LAMBDA {
    const S pi = block.places[i], pj = block.places[j];
    block.places[i] = select(where, pj, pi);
    block.places[j] = select(where, pi, pj);
  });
  return true;
}

}  // namespace

template <class T>
ZelStatus values_of_one(T* buffer, T* values, int n, const Rules& rules) {
  return solve_one<T>(buffer, NoVectors{}, values, n, rules);
}

template <class T, class Object>
ZelStatus vectors_of_one(T* buffer, Object z, T* values, int n, const Rules& rules) {
  if (rules.sweeps_in_double) return solve_one<double>(buffer, Columns<Object>{z}, values, n, rules);
  return solve_one<T>(buffer, Columns<Object>{z}, values, n, rules);
}

template <class T, int order, bool vectors>
bool solve_together(Block<T, order, vectors>& block, int n, const Rules& rules) {
  // Of many matrices the vectors always come from sweeps in double.
  using V = Many<std::conditional_t<vectors, double, T>, kTogether>;
  return solve_here<V>(block, order ? order : n, rules);
}

#define ZELM_SYMMETRIC(T)                                                                \
  template ZelStatus values_of_one(T*, T*, int, const Rules&);                           \
  template ZelStatus vectors_of_one(T*, StridedObject<T, false>, T*, int, const Rules&); \
  template ZelStatus vectors_of_one(T*, TableObject<T>, T*, int, const Rules&);          \
  ZELM_SYMMETRIC_ORDERS(T, false)                                                        \
  ZELM_SYMMETRIC_ORDERS(T, true)
#define ZELM_SYMMETRIC_ORDERS(T, vectors)                                 \
  template bool solve_together(Block<T, 0, vectors>&, int, const Rules&); \
  template bool solve_together(Block<T, 3, vectors>&, int, const Rules&); \
  template bool solve_together(Block<T, 4, vectors>&, int, const Rules&); \
  template bool solve_together(Block<T, 5, vectors>&, int, const Rules&); \
  template bool solve_together(Block<T, 6, vectors>&, int, const Rules&);

ZELM_SYMMETRIC(float)
ZELM_SYMMETRIC(double)

}  // namespace zelm::eigen::symmetric
