// minors.hpp: minors of the first or the last rows of a small matrix, each built once from those of one row less, and the
// cofactors made of them. V is any number: a pack, a long double.
#pragma once
#include <array>
#include <bit>
#include <utility>

#include "simd/pack.hpp"

namespace zelm::solvers {

constexpr int choose(int n, int m) { return m == 0 ? 1 : choose(n - 1, m - 1) * n / m; }

/// The sets of m of N columns as bits, in rising order.
template <int N, int m>
struct Sets {
  static constexpr int count = choose(N, m);
  static constexpr std::array<unsigned, count> of = [] {
    std::array<unsigned, count> sets{};
    int i = 0;
    for (unsigned s = 0; s < 1u << N; ++s)
      if (std::popcount(s) == m) sets[i++] = s;
    return sets;
  }();
  static constexpr std::array<int, 1 << N> place = [] {
    std::array<int, 1 << N> places{};
    for (int i = 0; i < count; ++i) places[of[i]] = i;
    return places;
  }();
};

/// One term of an expansion: minus or plus first[i] second[j].
struct Term {
  int i, j;
  bool minus;
};

/// The first positive term, and then every other one in its order: no sum begins with a change of sign, so that no zero gets
/// one.
template <int n>
constexpr std::array<Term, n> positive_first(std::array<Term, n> terms) {
  int first = 0;
  while (terms[first].minus) ++first;
  for (; first > 0; --first) std::swap(terms[first], terms[first - 1]);
  return terms;
}

/// Calls body with 0, ..., n - 1 as constants.
template <int n, class Body>
ZELM_INLINE void for_constants(Body body) {
  [&]<int... i>(std::integer_sequence<int, i...>) ZELM_INLINE_LAMBDA { (body(std::integral_constant<int, i>{}), ...); }
  (std::make_integer_sequence<int, n>{});
}

/// The sum of expansion s of a table of them.
template <const auto& table, int s, class First, class V>
ZELM_INLINE V sum_of(const First& first, const V* second) {
  constexpr int n = int(table[s].size());
  V sum = first[table[s][0].i] * second[table[s][0].j];
  for_constants<n - 1>([&](auto t) ZELM_INLINE_LAMBDA {
    constexpr Term term = table[s][t + 1];
    const V product = first[term.i] * second[term.j];
    sum = term.minus ? sum - product : sum + product;
  });
  return sum;
}

/// All minors of p + q rows out of those of the upper p and of the lower q, by Laplace's expansion: for each set of columns the
/// terms in which p of them go to the upper rows. Where the lower part is a single row, its last column comes first.
template <int N, int p, int q>
inline constexpr auto kExpansion = [] {
  constexpr int m = p + q, terms = choose(m, p);
  std::array<std::array<Term, terms>, Sets<N, m>::count> all{};
  for (int s = 0; s < Sets<N, m>::count; ++s) {
    const unsigned columns = Sets<N, m>::of[s];
    int n = 0;
    for (const unsigned upper : Sets<N, p>::of) {
      if ((upper & columns) != upper) continue;
      int exchanges = 0;  // to sort the columns of the upper part in front
      for (int c = 0; c < N; ++c)
        if (upper >> c & 1) exchanges += std::popcount(columns & ~upper & ((1u << c) - 1));
      all[s][n++] = {Sets<N, p>::place[upper], Sets<N, q>::place[columns & ~upper], exchanges % 2 == 1};
    }
    all[s] = positive_first<terms>(all[s]);
  }
  return all;
}();

template <int N, int p, int q, class V>
ZELM_INLINE void expand(const V* upper, const V* lower, V (&minors)[choose(N, p + q)]) {
  for_constants<choose(N, p + q)>([&](auto s) ZELM_INLINE_LAMBDA { minors[s] = sum_of<kExpansion<N, p, q>, s>(upper, lower); });
}

/// Minors of m rows for every set of columns, and of every smaller number of rows: the last m of a matrix, or the first.
template <int N, int m, class V>
struct LastRows {
  LastRows<N, m - 1, V> fewer;
  V minors[choose(N, m)];
  explicit ZELM_INLINE LastRows(const V (&a)[N][N]) : fewer(a) { expand<N, 1, m - 1>(a[N - m], fewer.minors, minors); }
  template <int r>
  ZELM_INLINE const V* of() const {
    if constexpr (r == m) return minors;
    else return fewer.template of<r>();
  }
};
template <int N, class V>
struct LastRows<N, 1, V> {
  const V* minors;
  explicit ZELM_INLINE LastRows(const V (&a)[N][N]) : minors(a[N - 1]) {}
  template <int>
  ZELM_INLINE const V* of() const {
    return minors;
  }
};

template <int N, int m, class V>
struct FirstRows {
  FirstRows<N, m - 1, V> fewer;
  V minors[choose(N, m)];
  explicit ZELM_INLINE FirstRows(const V (&a)[N][N]) : fewer(a) { expand<N, m - 1, 1>(fewer.minors, a[m - 1], minors); }
  template <int r>
  ZELM_INLINE const V* of() const {
    if constexpr (r == m) return minors;
    else return fewer.template of<r>();
  }
};
template <int N, class V>
struct FirstRows<N, 1, V> {
  const V* minors;
  explicit ZELM_INLINE FirstRows(const V (&a)[N][N]) : minors(a[0]) {}
  template <int>
  ZELM_INLINE const V* of() const {
    return minors;
  }
};

/// The cofactors of row i out of the p rows above and the q below it, or all but one of them: the minors of all other rows with
/// alternating signs. Cofactor j has no column j, and the set without that one stands at place N - 1 - j.
template <int N, int i, int p, int q>
inline constexpr auto kCofactors = [] {
  auto all = kExpansion<N, p, q>;
  for (int j = 0; j < N; ++j) {
    auto& terms = all[N - 1 - j];
    if ((i + j) % 2)
      for (Term& t : terms) t.minus = !t.minus;
    terms = positive_first<choose(N - 1, p)>(terms);
  }
  return all;
}();

template <int N, int i, int p, int q, class V>
ZELM_INLINE void cofactor_row(const V* upper, const V* lower, V (&c)[N]) {
  for_constants<N>([&](auto j) ZELM_INLINE_LAMBDA { c[j] = sum_of<kCofactors<N, i, p, q>, N - 1 - j>(upper, lower); });
}

/// c[i][j] = (-1)^(i+j) times the minor of a without row i and column j. The two outermost rows on either side extend the
/// minors of all rows beyond them; a row in the middle takes its cofactors from the minors above and below it.
template <int N, class V>
ZELM_INLINE void cofactors(const V (&a)[N][N], V (&c)[N][N]) {
  const LastRows<N, N - 2, V> last(a);
  cofactor_row<N, 0, 1, N - 2>(a[1], last.template of<N - 2>(), c[0]);
  cofactor_row<N, 1, 1, N - 2>(a[0], last.template of<N - 2>(), c[1]);
  const FirstRows<N, N - 2, V> first(a);
  if constexpr (N >= 5) cofactor_row<N, 2, 2, N - 3>(first.template of<2>(), last.template of<N - 3>(), c[2]);
  if constexpr (N >= 6) cofactor_row<N, 3, 3, 2>(first.template of<3>(), last.template of<2>(), c[3]);
  if constexpr (N >= 4) cofactor_row<N, N - 2, N - 2, 1>(first.template of<N - 2>(), a[N - 1], c[N - 2]);
  cofactor_row<N, N - 1, N - 2, 1>(first.template of<N - 2>(), a[N - 2], c[N - 1]);
}

}  // namespace zelm::solvers
