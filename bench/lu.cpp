// lu.cpp: LU decomposition and substitution.
#include <zelm.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame.hpp"

namespace zelm::bench {
namespace {

const Limit kTwoThreads = {0.6, "one thread", {Set::many}};

/// The source again, from its factors: competitors may choose another of two pivots that differ by a rounding.
/// Operands of the decompositions: source, index, factors.
std::vector<double> product_of_factors(const Results& results, std::ptrdiff_t object, int n) {
  std::vector<double> source(std::size_t(n * n));
  for (int i = 0; i < n; ++i) {
    const auto row = [&](int r) { return int(results.at(1, object, r)); };
    const auto factor = [&](int r, int j) {
      // zelm leaves row r of the factors where row r's source stood, the rivals bring it to its place.
      return results.at(2, object, (results.of_zelm() ? row(r) : r) * n + j);
    };
    if (row(i) < 0 || row(i) >= n) return {std::numeric_limits<double>::quiet_NaN()};
    for (int j = 0; j < n; ++j) {
      double sum = 0;
      for (int m = 0; m <= std::min(i, j); ++m) sum += (m == i ? 1 : factor(i, m)) * factor(m, j);
      source[std::size_t(row(i) * n + j)] = sum;
    }
  }
  return source;
}

template <class T>
struct Functions {
  static constexpr auto decompose_one = of_type<T>(zelmLUDecomp_m_32f, zelmLUDecomp_m_64f);
  static constexpr auto decompose = of_type<T>(zelmLUDecomp_ma_32f, zelmLUDecomp_ma_64f);
  static constexpr auto decompose_list = of_type<T>(zelmLUDecomp_ma_32f_L, zelmLUDecomp_ma_64f_L);
  static constexpr auto decompose_elements = of_type<T>(zelmLUDecomp_ma_32f_P, zelmLUDecomp_ma_64f_P);
  static constexpr auto solve_each = of_type<T>(zelmLUBackSubst_mava_32f, zelmLUBackSubst_mava_64f);
  static constexpr auto solve_each_list = of_type<T>(zelmLUBackSubst_mava_32f_L, zelmLUBackSubst_mava_64f_L);
  static constexpr auto solve_each_elements = of_type<T>(zelmLUBackSubst_mava_32f_P, zelmLUBackSubst_mava_64f_P);
  static constexpr auto solve_vectors = of_type<T>(zelmLUBackSubst_mva_32f, zelmLUBackSubst_mva_64f);
};

/// Backward errors of n operations for each element, and growth of the elements.
template <class T>
double tolerance(int n) {
  return 100 * n * double(std::numeric_limits<T>::epsilon());
}

template <class T>
Case decompose(int n, Layout layout) {
  constexpr int E = sizeof(T);
  const int row = n * E, matrix = n * row;
  Case c{.operation = "LUDecomp_ma", .type = kTypeTag<T>, .n = n, .layout = layout};
  c.operands = {in<T>(n * n, layout), index(out<int>(n)), out<T>(n * n, layout)};
  c.meaning = [n](const Results& results, std::ptrdiff_t object) { return product_of_factors(results, object, n); };
  c.tolerance = tolerance<T>(n);
  using F = Functions<T>;
  switch (layout) {
    case Layout::standard:
      c.call = [=](const Array* at, int count) {
        return F::decompose(at[0].of<T>(), matrix, row, E, at[1].of<int>(), at[2].of<T>(), matrix, row, E, n, count);
      };
      break;
    case Layout::list:
      c.call = [=](const Array* at, int count) {
        return F::decompose_list(at[0].table_of<T>(), 0, row, E, at[1].of<int>(), at[2].table_of<T>(), 0, row, E, n, count);
      };
      break;
    case Layout::elements:
      c.call = [=](const Array* at, int count) {
        return F::decompose_elements(at[0].table_of<T>(), 0, E, at[1].of<int>(), at[2].table_of<T>(), 0, E, n, count);
      };
      break;
  }
  return c;
}

template <class T>
Case decompose_one(int n) {
  constexpr int E = sizeof(T);
  Case c{.operation = "LUDecomp_m", .type = kTypeTag<T>, .n = n};
  c.operands = {single(in<T>(n * n)), single(index(out<int>(n))), single(out<T>(n * n))};
  c.meaning = [n](const Results& results, std::ptrdiff_t object) { return product_of_factors(results, object, n); };
  c.tolerance = tolerance<T>(n);
  c.call = repeated([=](const Array* at) {
    return Functions<T>::decompose_one(at[0].of<T>(), n * E, E, at[1].of<int>(), at[2].of<T>(), n * E, E, n);
  });
  c.sets = {Set::call};
  c.threads = {1};
  return c;
}

/// Operands of the solvers: zelm's factors, index, right-hand sides, solutions, and the factors as the rivals have
/// them. The matrices are diagonally dominant before their rows are mixed: condition below 2n, so that solutions can be
/// compared.
template <class T>
void fill_systems(const Array* at, int count, int n, bool one_matrix) {
  constexpr int E = sizeof(T);
  const int row = n * E, matrix = n * row, matrices = one_matrix ? 1 : count;
  std::vector<T> source(std::size_t(matrices * n * n));
  fill_uniform(source.data(), source.size());
  fill_uniform(at[2].of<T>(), std::size_t(count * n));
  for (int k = 0; k < matrices; ++k) {
    T* const a = &source[std::size_t(k * n * n)];
    for (int i = 0; i < n; ++i) a[i * n + i] += std::copysign(T(n), a[i * n + i]);
    for (int i = 1; i < n; ++i) {
      const int other = (k * 7 + i * 5) % (i + 1);
      std::swap_ranges(a + i * n, a + (i + 1) * n, a + other * n);
    }
  }
  Functions<T>::decompose(source.data(), matrix, row, E, at[1].of<int>(), at[0].of<T>(), matrix, row, E, n, matrices);
  for (int k = 0; k < matrices; ++k)
    for (int i = 0; i < n; ++i) {
      const T* const from = at[0].of<T>() + (k * n + at[1].of<int>()[k * n + i]) * n;
      std::copy(from, from + n, at[4].of<T>() + (k * n + i) * n);
    }
}

template <class T>
Case solve_each(int n, Layout layout) {
  constexpr int E = sizeof(T);
  const int row = n * E, matrix = n * row;
  Case c{.operation = "LUBackSubst_mava", .type = kTypeTag<T>, .n = n, .layout = layout};
  c.operands = {in<T>(n * n, layout), index(in<int>(n)), in<T>(n, layout), out<T>(n, layout), for_rivals(in<T>(n * n))};
  c.fill = [=](const Array* at, int count) { fill_systems<T>(at, count, n, false); };
  c.tolerance = tolerance<T>(n);
  using F = Functions<T>;
  switch (layout) {
    case Layout::standard:
      c.call = [=](const Array* at, int count) {
        return F::solve_each(at[0].of<T>(), matrix, row, E, at[1].of<int>(), at[2].of<T>(), row, E, at[3].of<T>(), row, E, n,
                             count);
      };
      break;
    case Layout::list:
      c.call = [=](const Array* at, int count) {
        return F::solve_each_list(at[0].table_of<T>(), 0, row, E, at[1].of<int>(), at[2].table_of<T>(), 0, E,
                                  at[3].table_of<T>(), 0, E, n, count);
      };
      break;
    case Layout::elements:
      c.call = [=](const Array* at, int count) {
        return F::solve_each_elements(at[0].table_of<T>(), 0, E, at[1].of<int>(), at[2].table_of<T>(), 0, E,
                                      at[3].table_of<T>(), 0, E, n, count);
      };
      break;
  }
  return c;
}

template <class T>
Case solve_vectors(int n) {
  constexpr int E = sizeof(T);
  const int row = n * E;
  Case c{.operation = "LUBackSubst_mva", .type = kTypeTag<T>, .n = n};
  c.operands = {single(in<T>(n * n)), single(index(in<int>(n))), in<T>(n), out<T>(n), for_rivals(single(in<T>(n * n)))};
  c.fill = [=](const Array* at, int count) { fill_systems<T>(at, count, n, true); };
  c.tolerance = tolerance<T>(n);
  c.call = [=](const Array* at, int count) {
    return Functions<T>::solve_vectors(at[0].of<T>(), row, E, at[1].of<int>(), at[2].of<T>(), row, E, at[3].of<T>(), row, E, n,
                                       count);
  };
  return c;
}

template <class T>
bool all_of_type() {
  constexpr bool narrow = sizeof(T) == 4;
  for (const int n : {3, 4}) measure(decompose_one<T>(n));
  for (const int n : {3, 4, 5, 6}) {
    Case c = decompose<T>(n, Layout::standard);
    c.limits = {{narrow ? 0.35 : 0.65, "SSE4.2", {Set::l1}}, {narrow ? 0.5 : 0.85, "native", {Set::llc, Set::memory}}};
    if (n == 6) c.limits.push_back(kTwoThreads);
    measure(c);
  }
  for (const int n : {3, 4, 5, 6}) {
    Case c = solve_each<T>(n, Layout::standard);
    c.limits = {{narrow ? 0.6 : 0.9, "SSE4.2", {Set::l1}}};
    if (n == 6) c.limits.push_back(kTwoThreads);
    measure(c);
  }
  for (const int n : {3, 4, 5, 6}) {
    Case c = solve_vectors<T>(n);
    if (narrow) c.limits = {{0.4, "SSE4.2", {Set::l1}}};
    measure(c);
  }
  return true;
}

const bool all = all_of_type<float>() && all_of_type<double>() && measure_other_layouts({decompose<float>, solve_each<float>});

}  // namespace
}  // namespace zelm::bench
