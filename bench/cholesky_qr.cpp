// cholesky_qr.cpp: Cholesky and QR decompositions, and solution from their factors.
#include <zelm.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame.hpp"

namespace zelm::bench {
namespace {

template <class T>
struct Functions {
  static constexpr auto cholesky_one = of_type<T>(zelmCholeskyDecomp_m_32f, zelmCholeskyDecomp_m_64f);
  static constexpr auto cholesky = of_type<T>(zelmCholeskyDecomp_ma_32f, zelmCholeskyDecomp_ma_64f);
  static constexpr auto cholesky_list = of_type<T>(zelmCholeskyDecomp_ma_32f_L, zelmCholeskyDecomp_ma_64f_L);
  static constexpr auto cholesky_elements = of_type<T>(zelmCholeskyDecomp_ma_32f_P, zelmCholeskyDecomp_ma_64f_P);
  static constexpr auto cholesky_solve_each = of_type<T>(zelmCholeskyBackSubst_mava_32f, zelmCholeskyBackSubst_mava_64f);
  static constexpr auto cholesky_solve_vectors = of_type<T>(zelmCholeskyBackSubst_mva_32f, zelmCholeskyBackSubst_mva_64f);
  static constexpr auto qr_one = of_type<T>(zelmQRDecomp_m_32f, zelmQRDecomp_m_64f);
  static constexpr auto qr = of_type<T>(zelmQRDecomp_ma_32f, zelmQRDecomp_ma_64f);
  static constexpr auto qr_list = of_type<T>(zelmQRDecomp_ma_32f_L, zelmQRDecomp_ma_64f_L);
  static constexpr auto qr_elements = of_type<T>(zelmQRDecomp_ma_32f_P, zelmQRDecomp_ma_64f_P);
  static constexpr auto qr_solve_each = of_type<T>(zelmQRBackSubst_mava_32f, zelmQRBackSubst_mava_64f);
  static constexpr auto qr_solve_vectors = of_type<T>(zelmQRBackSubst_mva_32f, zelmQRBackSubst_mva_64f);
};

/// Well-conditioned systems, whose results can be compared.
template <class T>
double tolerance(int n) {
  return 100 * n * double(std::numeric_limits<T>::epsilon());
}

/// Scratch for one object; a team takes its own.
template <class T>
T* buffer() {
  static T elements[16];
  return elements;
}

/// Symmetric, or not; dominated by the diagonal.
template <class T>
void fill_dominant(T* a, int matrices, int n, bool symmetric) {
  fill_uniform(a, std::size_t(matrices * n * n));
  for (int k = 0; k < matrices; ++k, a += n * n)
    for (int i = 0; i < n; ++i) {
      a[i * n + i] += symmetric ? T(n + 1) : std::copysign(T(n), a[i * n + i]);
      for (int j = 0; symmetric && j < i; ++j) a[j * n + i] = a[i * n + j];
    }
}

// Cholesky. A factor has L's diagonal, all of it above 1, or the reciprocals.

std::vector<double> lower_triangle(const Results& results, std::ptrdiff_t object, int n) {
  std::vector<double> elements;
  for (int i = 0; i < n; ++i)
    for (int j = 0; j <= i; ++j) {
      const double x = results.at(1, object, i * n + j);
      elements.push_back(i == j ? std::max(x, 1 / x) : x);
    }
  return elements;
}

template <class T>
Case cholesky(int n, Layout layout) {
  constexpr int E = sizeof(T);
  const int row = n * E, matrix = n * row;
  Case c{.operation = "CholeskyDecomp_ma", .type = kTypeTag<T>, .n = n, .layout = layout};
  c.operands = {in<T>(n * n, layout), out<T>(n * n, layout)};
  c.fill = [=](const Array* at, int count) { fill_dominant(at[0].of<T>(), count, n, true); };
  c.meaning = [n](const Results& results, std::ptrdiff_t object) { return lower_triangle(results, object, n); };
  c.tolerance = tolerance<T>(n);
  using F = Functions<T>;
  switch (layout) {
    case Layout::standard:
      c.call = [=](const Array* at, int count) {
        return F::cholesky(at[0].of<T>(), matrix, row, E, at[1].of<T>(), matrix, row, E, n, count);
      };
      break;
    case Layout::list:
      c.call = [=](const Array* at, int count) {
        return F::cholesky_list(at[0].table_of<T>(), 0, row, E, at[1].table_of<T>(), 0, row, E, n, count);
      };
      break;
    case Layout::elements:
      c.call = [=](const Array* at, int count) {
        return F::cholesky_elements(at[0].table_of<T>(), 0, E, at[1].table_of<T>(), 0, E, n, count);
      };
      break;
  }
  return c;
}

template <class T>
Case cholesky_one(int n) {
  constexpr int E = sizeof(T);
  Case c{.operation = "CholeskyDecomp_m", .type = kTypeTag<T>, .n = n};
  c.operands = {single(in<T>(n * n)), single(out<T>(n * n))};
  c.fill = [=](const Array* at, int) { fill_dominant(at[0].of<T>(), 1, n, true); };
  c.meaning = [n](const Results& results, std::ptrdiff_t object) { return lower_triangle(results, object, n); };
  c.tolerance = tolerance<T>(n);
  c.call = repeated(
      [=](const Array* at) { return Functions<T>::cholesky_one(at[0].of<T>(), n * E, E, at[1].of<T>(), n * E, E, n); });
  c.sets = {Set::call};
  c.threads = {1};
  return c;
}

/// Operands: zelm's factors, right-hand sides, solutions, factors with L's own diagonal.
template <class T>
void fill_cholesky(const Array* at, int count, int n, bool one_matrix) {
  const int row = n * int(sizeof(T)), matrices = one_matrix ? 1 : count;
  T *const factors = at[0].of<T>(), *const own = at[3].of<T>();
  fill_uniform(at[1].of<T>(), std::size_t(count * n));
  fill_dominant(factors, matrices, n, true);
  Functions<T>::cholesky(factors, n * row, row, sizeof(T), factors, n * row, row, sizeof(T), n, matrices);
  std::copy(factors, factors + matrices * n * n, own);
  for (int k = 0; k < matrices; ++k)
    for (int i = 0; i < n; ++i) own[k * n * n + i * n + i] = 1 / own[k * n * n + i * n + i];
}

template <class T>
Case cholesky_solve(int n, bool one_matrix) {
  constexpr int E = sizeof(T);
  const int row = n * E, matrix = n * row;
  Case c{.operation = one_matrix ? "CholeskyBackSubst_mva" : "CholeskyBackSubst_mava", .type = kTypeTag<T>, .n = n};
  const auto factors = [=](Operand o) { return one_matrix ? single(o) : o; };
  c.operands = {factors(in<T>(n * n)), in<T>(n), out<T>(n), for_rivals(factors(in<T>(n * n)))};
  c.fill = [=](const Array* at, int count) { fill_cholesky<T>(at, count, n, one_matrix); };
  c.tolerance = tolerance<T>(n);
  c.call = [=](const Array* at, int count) {
    const T *const a = at[0].of<T>(), *const b = at[1].of<T>();
    T* const x = at[2].of<T>();
    return one_matrix ? Functions<T>::cholesky_solve_vectors(a, row, E, b, row, E, x, row, E, n, count)
                      : Functions<T>::cholesky_solve_each(a, matrix, row, E, b, row, E, x, row, E, n, count);
  };
  return c;
}

// QR. All competitors scale reflections so that the leading element is 1, and choose the same sign.

template <class T>
Case qr(int n, Layout layout) {
  constexpr int E = sizeof(T);
  const int row = n * E, matrix = n * row;
  Case c{.operation = "QRDecomp_ma", .type = kTypeTag<T>, .n = n, .layout = layout};
  c.operands = {in<T>(n * n, layout), out<T>(n * n, layout)};
  c.fill = [=](const Array* at, int count) { fill_dominant(at[0].of<T>(), count, n, false); };
  c.tolerance = tolerance<T>(n);
  using F = Functions<T>;
  switch (layout) {
    case Layout::standard:
      c.call = [=](const Array* at, int count) {
        return F::qr(at[0].of<T>(), matrix, row, E, buffer<T>(), at[1].of<T>(), matrix, row, E, n, n, count);
      };
      break;
    case Layout::list:
      c.call = [=](const Array* at, int count) {
        return F::qr_list(at[0].table_of<T>(), 0, row, E, buffer<T>(), at[1].table_of<T>(), 0, row, E, n, n, count);
      };
      break;
    case Layout::elements:
      c.call = [=](const Array* at, int count) {
        return F::qr_elements(at[0].table_of<T>(), 0, E, buffer<T>(), at[1].table_of<T>(), 0, E, n, n, count);
      };
      break;
  }
  return c;
}

template <class T>
Case qr_one(int n) {
  constexpr int E = sizeof(T);
  Case c{.operation = "QRDecomp_m", .type = kTypeTag<T>, .n = n};
  c.operands = {single(in<T>(n * n)), single(out<T>(n * n))};
  c.fill = [=](const Array* at, int) { fill_dominant(at[0].of<T>(), 1, n, false); };
  c.tolerance = tolerance<T>(n);
  c.call = repeated([=](const Array* at) {
    return Functions<T>::qr_one(at[0].of<T>(), n * E, E, buffer<T>(), at[1].of<T>(), n * E, E, n, n);
  });
  c.sets = {Set::call};
  c.threads = {1};
  return c;
}

/// Operands: factors, right-hand sides, solutions, and for the rivals 2 / (v . v) of each reflection.
template <class T>
void fill_qr(const Array* at, int count, int n, bool one_matrix) {
  const int row = n * int(sizeof(T)), matrices = one_matrix ? 1 : count;
  T* const factors = at[0].of<T>();
  fill_uniform(at[1].of<T>(), std::size_t(count * n));
  fill_dominant(factors, matrices, n, false);
  Functions<T>::qr(factors, n * row, row, sizeof(T), buffer<T>(), factors, n * row, row, sizeof(T), n, n, matrices);
  for (int k = 0; k < matrices; ++k)
    for (int j = 0; j < n; ++j) {
      T square = 1;
      for (int i = j + 1; i < n; ++i) square += factors[(k * n + i) * n + j] * factors[(k * n + i) * n + j];
      at[3].of<T>()[k * n + j] = j < n - 1 ? 2 / square : 0;
    }
}

template <class T>
Case qr_solve(int n, bool one_matrix) {
  constexpr int E = sizeof(T);
  const int row = n * E, matrix = n * row;
  Case c{.operation = one_matrix ? "QRBackSubst_mva" : "QRBackSubst_mava", .type = kTypeTag<T>, .n = n};
  const auto factors = [=](Operand o) { return one_matrix ? single(o) : o; };
  c.operands = {factors(in<T>(n * n)), in<T>(n), out<T>(n), for_rivals(factors(in<T>(n)))};
  c.fill = [=](const Array* at, int count) { fill_qr<T>(at, count, n, one_matrix); };
  c.tolerance = tolerance<T>(n);
  c.call = [=](const Array* at, int count) {
    const T *const a = at[0].of<T>(), *const b = at[1].of<T>();
    T* const x = at[2].of<T>();
    return one_matrix ? Functions<T>::qr_solve_vectors(a, row, E, buffer<T>(), b, row, E, x, row, E, n, n, count)
                      : Functions<T>::qr_solve_each(a, matrix, row, E, buffer<T>(), b, row, E, x, row, E, n, n, count);
  };
  return c;
}

template <class T>
bool all_of_type() {
  constexpr bool narrow = sizeof(T) == 4;
  const auto limited = [](Case c, double ratio) {
    c.limits = {{ratio, "SSE4.2", {Set::l1, Set::memory}}};
    measure(c);
  };
  for (const int n : {3, 4}) measure(cholesky_one<T>(n)), measure(qr_one<T>(n));
  for (const int n : {3, 4, 5, 6}) {
    limited(cholesky<T>(n, Layout::standard), narrow ? 0.4 : 0.75);
    limited(cholesky_solve<T>(n, false), narrow ? 0.4 : 0.75);
    limited(cholesky_solve<T>(n, true), narrow ? 0.4 : 0.75);
    limited(qr<T>(n, Layout::standard), narrow ? 0.4 : 0.7);
    limited(qr_solve<T>(n, false), narrow ? 0.4 : 0.7);
    limited(qr_solve<T>(n, true), narrow ? 0.4 : 0.7);
  }
  return true;
}

const bool all = all_of_type<float>() && all_of_type<double>() && measure_other_layouts({cholesky<float>, qr<float>});

}  // namespace
}  // namespace zelm::bench
