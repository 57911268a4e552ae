// eigen.cpp: eigenvalues and eigenvectors, symmetric and general.
#include <zelm.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>

#include "frame.hpp"

namespace zelm::bench {
namespace {

template <class T>
struct Functions {
  static constexpr auto symmetric_values = of_type<T>(zelmEigenValuesSym_ma_32f, zelmEigenValuesSym_ma_64f);
  static constexpr auto symmetric_vectors = of_type<T>(zelmEigenValuesVectorsSym_ma_32f, zelmEigenValuesVectorsSym_ma_64f);
  static constexpr auto symmetric_vectors_one = of_type<T>(zelmEigenValuesVectorsSym_m_32f, zelmEigenValuesVectorsSym_m_64f);
  static constexpr auto values = of_type<T>(zelmEigenValues_ma_32f, zelmEigenValues_ma_64f);
  static constexpr auto right = of_type<T>(zelmEigenValuesVectorsRight_ma_32f, zelmEigenValuesVectorsRight_ma_64f);
  static constexpr auto right_one = of_type<T>(zelmEigenValuesVectorsRight_m_32f, zelmEigenValuesVectorsRight_m_64f);
};

/// zelm's limits are absolute: what lies below them is dropped.
template <class T>
constexpr double kTolerance = sizeof(T) == 4 ? 1e-3 : 1e-8;

/// Uniform matrices, but for those that would end the call: a product of eigenvalues near zero, or too many sweeps.
template <class T, bool symmetric>
void fill(const Array* at, int count, int n) {
  constexpr int E = sizeof(T);
  const auto elements = [](int number) { return std::vector<T>(std::size_t(number)); };
  std::vector<T> buffer = elements(n * (3 * n + 5)), re = elements(n), im = re, z = elements(n * n);
  T* const all = at[0].of<T>();
  fill_uniform(all, std::size_t(count) * n * n);
  for (int k = 0; k < count; ++k) {
    T* const a = all + std::ptrdiff_t(k) * n * n;
    for (int spare = 0;; ++spare) {
      if constexpr (symmetric) {
        for (int i = 0; i < n; ++i)
          for (int j = 0; j < i; ++j) a[i * n + j] = a[j * n + i];
        if (Functions<T>::symmetric_vectors_one(a, n * E, E, buffer.data(), z.data(), n * E, E, re.data(), n) == 0) break;
      } else {
        if (Functions<T>::right_one(a, n * E, E, z.data(), n * E, E, re.data(), im.data(), n, buffer.data()) == 0) break;
      }
      for (int e = 0; e < n * n; ++e) a[e] = T(std::sin(double(k + 1) * (e + 1) * (spare + 1)));
    }
  }
}

// Operands: source, values, vectors.

/// Ascending: zelm sorts the other way.
std::vector<double> sorted_values(const Results& results, std::ptrdiff_t object, int n) {
  std::vector<double> v;
  for (int i = 0; i < n; ++i) v.push_back(results.at(1, object, i));
  std::sort(v.begin(), v.end());
  return v;
}

/// The source again.
std::vector<double> product_of_vectors(const Results& results, std::ptrdiff_t object, int n) {
  std::vector<double> a(std::size_t(n * n));
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j)
      for (int m = 0; m < n; ++m)
        a[std::size_t(i * n + j)] +=
            results.at(2, object, i * n + m) * results.at(1, object, m) * results.at(2, object, j * n + m);
  return a;
}

/// The largest element of A V - V Lambda; of values alone the largest |det(A - lambda I)|, which only order 3 asks for.
double symmetric_residual(const Results& results, std::ptrdiff_t object, bool vectors) {
  constexpr int n = 3;
  double largest = 0;
  for (int j = 0; j < n; ++j) {
    const double lambda = results.at(1, object, j);
    const auto shifted = [&](int i, int m) { return results.at(0, object, i * n + m) - (i == m ? lambda : 0); };
    if (vectors) {
      for (int i = 0; i < n; ++i) {
        double sum = 0;
        for (int m = 0; m < n; ++m) sum += shifted(i, m) * results.at(2, object, m * n + j);
        largest = std::max(largest, std::abs(sum));
      }
    } else {
      double det = 0;
      for (int m = 0; m < n; ++m) {
        const int p = (m + 1) % n, q = (m + 2) % n;
        det += shifted(0, m) * (shifted(1, p) * shifted(2, q) - shifted(1, q) * shifted(2, p));
      }
      largest = std::max(largest, std::abs(det));
    }
  }
  return largest;
}

// Operands: source, real parts, imaginary parts, vectors.

/// Sums of powers, which do not ask for an order; and, where there are vectors, residuals.
std::vector<double> powers_and_residuals(const Results& results, std::ptrdiff_t object, int n, bool vectors) {
  using Complex = std::complex<double>;
  std::vector<Complex> values, sums(std::size_t(n), 0);
  for (int i = 0; i < n; ++i) values.emplace_back(results.at(1, object, i), results.at(2, object, i));
  for (const Complex& v : values) {
    Complex power = 1;
    for (int m = 0; m < std::min(n, 4); ++m) sums[std::size_t(m)] += power *= v;
  }
  std::vector<double> out;
  for (const Complex& s : sums) out.push_back(s.real());
  if (!vectors) return out;
  for (int j = 0; j < n; ++j) {
    const bool pair = results.at(2, object, j) > 0;
    const auto x = [&](int i) {
      return Complex(results.at(3, object, i * n + j), pair ? results.at(3, object, i * n + j + 1) : 0);
    };
    double sum = 0, length = 0;
    for (int i = 0; i < n; ++i) {
      Complex residual = -values[std::size_t(j)] * x(i);
      for (int m = 0; m < n; ++m) residual += results.at(0, object, results.of_zelm() ? m * n + i : i * n + m) * x(m);
      sum += std::norm(residual);
      length += std::norm(x(i));
    }
    out.push_back(std::sqrt(sum));
    out.push_back(std::sqrt(length));
    if (pair) ++j;
  }
  return out;
}

template <class T>
Case symmetric(int n, bool vectors) {
  constexpr int E = sizeof(T);
  const int row = n * E, matrix = n * row;
  Case c{.operation = vectors ? "EigenValuesVectorsSym_ma" : "EigenValuesSym_ma", .type = kTypeTag<T>, .n = n};
  c.operands = {in<T>(n * n), out<T>(n)};
  if (vectors) c.operands.push_back(out<T>(n * n));
  c.fill = [n](const Array* at, int count) { fill<T, true>(at, count, n); };
  c.meaning = [=](const Results& r, std::ptrdiff_t k) {
    return vectors ? product_of_vectors(r, k, n) : sorted_values(r, k, n);
  };
  c.tolerance = kTolerance<T>;
  if (n == 3) c.residual = [=](const Results& r, std::ptrdiff_t k) { return symmetric_residual(r, k, vectors); };
  c.call = [=](const Array* at, int count) {
    static std::vector<double> buffer;
    buffer.resize(std::size_t(n * n));
    using F = Functions<T>;
    if (vectors)
      return F::symmetric_vectors(at[0].of<T>(), matrix, row, E, buffer.data(), at[2].of<T>(), matrix, row, E, at[1].of<T>(), n,
                                  count);
    return F::symmetric_values(at[0].of<T>(), matrix, row, E, buffer.data(), at[1].of<T>(), n, count);
  };
  return c;
}

template <class T>
Case general(int n, bool vectors) {
  constexpr int E = sizeof(T);
  const int row = n * E, matrix = n * row;
  Case c{.operation = vectors ? "EigenValuesVectorsRight_ma" : "EigenValues_ma", .type = kTypeTag<T>, .n = n};
  c.operands = {in<T>(n * n), out<T>(n), out<T>(n)};
  if (vectors) c.operands.push_back(out<T>(n * n));
  c.fill = [n](const Array* at, int count) { fill<T, false>(at, count, n); };
  c.meaning = [=](const Results& r, std::ptrdiff_t k) { return powers_and_residuals(r, k, n, vectors); };
  c.tolerance = 10 * kTolerance<T>;
  c.call = [=](const Array* at, int count) {
    static std::vector<double> buffer;
    buffer.resize(std::size_t(n * (3 * n + 5)));
    using F = Functions<T>;
    if (vectors)
      return F::right(at[0].of<T>(), matrix, row, E, at[3].of<T>(), matrix, row, E, at[1].of<T>(), at[2].of<T>(), n, count,
                      buffer.data());
    return F::values(at[0].of<T>(), matrix, row, E, at[1].of<T>(), at[2].of<T>(), n, count, buffer.data());
  };
  return c;
}

template <class T>
bool all_of_type() {
  for (const auto make : {symmetric<T>, general<T>})
    for (const bool vectors : {false, true})
      for (const int n : {3, 4, 5, 6, 10}) {
        Case c = make(n, vectors);
        c.limits = {{0.5, "any", {Set::l1, Set::memory}}};
        c.sets = {Set::l1, Set::memory};
        c.threads = {1};
        measure(c);
      }
  return true;
}

const bool all = all_of_type<float>() && all_of_type<double>();

}  // namespace
}  // namespace zelm::bench
