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
template <class V, class S, class Z>
ZELM_INLINE void rotate(const Z& z, int n, int i, int j, const V& c, const V& s, const MaskOf<V>& where) {
  for (int k = 0; k < n; ++k) {
    const V zi = V(z.get(k, i)), zj = V(z.get(k, j));
    z.put(k, i, S(select(where, c * zi + s * zj, zi)));
    z.put(k, j, S(select(where, c * zj - s * zi, zj)));
  }
}

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
        if constexpr (vectors) rotate<V, T>(z, n, place(i), place(i + 1), c, s, where);
      });
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
  const Runs<S> z = {block.z, n};
  S u[B::largest], d[B::largest], e[B::largest];
  if constexpr (vectors) {
    load_identity(z, n, S(T(1)), S(T(0)));
    reduce(a, u, n, rules, z);
  } else {
    reduce(a, u, n, rules, NoVectors{});
  }
  const MaskOf<S> reversed = exceeds(magnitude(a.get(n - 1, n - 1)), magnitude(a.get(0, 0)));
  for (int i = 0; i < n; ++i) {
    d[i] = select(reversed, a.get(n - 1 - i, n - 1 - i), a.get(i, i));
    if (i > 0) e[i] = select(reversed, a.get(n - i, n - i - 1), a.get(i, i - 1));
  }
  const auto reverse_vectors = [&] {
    for (int i = 0; i < n / 2; ++i)
      for (int k = 0; k < n; ++k) {
        const S zi = z.get(k, i), zj = z.get(k, n - 1 - i);
        z.put(k, i, select(reversed, zj, zi));
        z.put(k, n - 1 - i, select(reversed, zi, zj));
      }
  };
  if constexpr (vectors) reverse_vectors();
  V stops = ElementOf<V>(1);
  if (!sweep<V, B::largest>(
          d, e, n, stops, [](int, const V&) {},
          [&](int i, const V& c, const V& s, const V& where) ZELM_INLINE_LAMBDA {
            if constexpr (vectors) rotate<V, S>(z, n, i, i + 1, c, s, where);
          }))
    return false;
  if constexpr (vectors) reverse_vectors();
  // The product of all of them in their order, where the form was the ascending one; else of those at the stops, and the first.
  V all_of_them = ElementOf<V>(1);
  for (int i = n - 1; i >= 0; --i) all_of_them = all_of_them * V(d[i]);
  const V product = V(select(reversed, S(T(0)), S(T(1))));
  const V stopped = stops * V(d[0]), limit = ElementOf<V>(kEpsilon<T>);
  if (any(reaches(limit, magnitude(select(exceeds(product, V(ElementOf<V>(0))), stopped, all_of_them))))) return false;
  for (int i = 0; i < n; ++i) block.values[i] = select(reversed, d[n - 1 - i], d[i]);
  sort(block.values, n, [&](int i, int j, const S& where) ZELM_INLINE_LAMBDA {
    if constexpr (vectors)
      for (int k = 0; k < n; ++k) {
        const S zi = z.get(k, i), zj = z.get(k, j);
        z.put(k, i, select(where, zj, zi));
        z.put(k, j, select(where, zi, zj));
      }
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
  using V = Many<std::conditional_t<vectors, double, T>, kTogether<T>>;
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
