// apply.cpp: a matrix applied to vectors, and gaxpy.
#include <zelm.h>

#include <limits>

#include "frame.hpp"

namespace zelm::bench {
namespace {

template <class T>
struct Functions {
  static constexpr auto one_matrix = of_type<T>(zelmMul_mva_32f, zelmMul_mva_64f);
  static constexpr auto one_matrix_list = of_type<T>(zelmMul_mva_32f_L, zelmMul_mva_64f_L);
  static constexpr auto one_matrix_elements = of_type<T>(zelmMul_mva_32f_P, zelmMul_mva_64f_P);
  static constexpr auto one_vector = of_type<T>(zelmMul_mav_32f, zelmMul_mav_64f);
  static constexpr auto pairs = of_type<T>(zelmMul_mava_32f, zelmMul_mava_64f);
  static constexpr auto turned = of_type<T>(zelmMul_tva_32f, zelmMul_tva_64f);
  static constexpr auto turned_pairs = of_type<T>(zelmMul_tava_32f, zelmMul_tava_64f);
  static constexpr auto gaxpy = of_type<T>(zelmGaxpy_mva_32f, zelmGaxpy_mva_64f);
  static constexpr auto gaxpy_one = of_type<T>(zelmGaxpy_mvav_32f, zelmGaxpy_mvav_64f);
  static constexpr auto single = of_type<T>(zelmMul_mv_32f, zelmMul_mv_64f);
};

/// Operands: matrices, vectors, results; of gaxpy the addends before the results.
template <class T>
Case product(const char* operation, int n, std::vector<Operand> operands) {
  Case c{.operation = operation, .type = kTypeTag<T>, .n = n};
  c.operands = std::move(operands);
  c.tolerance = 4 * n * double(std::numeric_limits<T>::epsilon());
  c.terms = 1;
  c.limits = {{0.9, "SSE4.2", {Set::l1}}};
  return c;
}

/// One matrix; the transposed forms take it as it is stored.
template <class T, class F>
void one_matrix(const char* operation, F f, int n) {
  constexpr int E = sizeof(T);
  Case c = product<T>(operation, n, {single(in<T>(n * n)), in<T>(n), out<T>(n)});
  c.call = [=](const Array* at, int count) {
    return f(at[0].of<T>(), n * E, E, n, n, at[1].of<T>(), n * E, E, n, at[2].of<T>(), n * E, E, count);
  };
  if (n == 4) c.limits.push_back({1.15, "copy", {Set::memory}});
  measure(c);
}

template <class T, class F>
void each_matrix(const char* operation, F f, int n) {
  constexpr int E = sizeof(T);
  Case c = product<T>(operation, n, {in<T>(n * n), in<T>(n), out<T>(n)});
  c.call = [=](const Array* at, int count) {
    return f(at[0].of<T>(), n * n * E, n * E, E, n, n, at[1].of<T>(), n * E, E, n, at[2].of<T>(), n * E, E, count);
  };
  measure(c);
}

template <class T>
void one_vector(int n) {
  constexpr int E = sizeof(T);
  Case c = product<T>("Mul_mav", n, {in<T>(n * n), single(in<T>(n)), out<T>(n)});
  c.call = [=](const Array* at, int count) {
    return Functions<T>::one_vector(at[0].of<T>(), n * n * E, n * E, E, n, n, at[1].of<T>(), E, n, at[2].of<T>(), n * E, E,
                                    count);
  };
  measure(c);
}

template <class T>
void gaxpies(int n) {
  constexpr int E = sizeof(T);
  Case c = product<T>("Gaxpy_mva", n, {single(in<T>(n * n)), in<T>(n), in<T>(n), out<T>(n)});
  c.call = [=](const Array* at, int count) {
    return Functions<T>::gaxpy(at[0].of<T>(), n * E, E, n, n, at[1].of<T>(), n * E, E, n, at[2].of<T>(), n * E, E, n,
                               at[3].of<T>(), n * E, E, count);
  };
  measure(c);
  c = product<T>("Gaxpy_mvav", n, {single(in<T>(n * n)), in<T>(n), single(in<T>(n)), out<T>(n)});
  c.call = [=](const Array* at, int count) {
    return Functions<T>::gaxpy_one(at[0].of<T>(), n * E, E, n, n, at[1].of<T>(), n * E, E, n, at[2].of<T>(), E, n,
                                   at[3].of<T>(), n * E, E, count);
  };
  measure(c);
}

/// Vectors through a list, and interleaved: element j of all vectors side by side.
template <class T>
void other_layouts(int n) {
  constexpr int E = sizeof(T);
  Case c = product<T>("Mul_mva", n, {single(in<T>(n * n)), in<T>(n, Layout::list), out<T>(n, Layout::list)});
  c.layout = Layout::list;
  c.call = [=](const Array* at, int count) {
    return Functions<T>::one_matrix_list(at[0].of<T>(), n * E, E, n, n, at[1].table_of<T>(), 0, E, n, at[2].table_of<T>(), 0, E,
                                         count);
  };
  measure(c);
  c = product<T>("Mul_mva", n,
                 {single(in<T>(n * n, Layout::elements)), in<T>(n, Layout::elements), out<T>(n, Layout::elements)});
  c.layout = Layout::elements;
  c.call = [=](const Array* at, int count) {
    return Functions<T>::one_matrix_elements(at[0].table_of<T>(), 0, n, n, at[1].table_of<T>(), 0, E, n, at[2].table_of<T>(), 0,
                                             E, count);
  };
  measure(c);
}

template <class T>
bool all_of_type() {
  using F = Functions<T>;
  constexpr int E = sizeof(T);
  for (const int n : {3, 4}) {
    Case c = product<T>("Mul_mv", n, {single(in<T>(n * n)), single(in<T>(n)), single(out<T>(n))});
    c.call = repeated(
        [=](const Array* at) { return F::single(at[0].of<T>(), n * E, E, n, n, at[1].of<T>(), E, n, at[2].of<T>(), E); });
    c.sets = {Set::call};
    c.threads = {1};
    c.limits = {};
    measure(c);
  }
  for (const int n : {3, 4, 5, 6, 8, 12}) one_matrix<T>("Mul_mva", F::one_matrix, n);
  for (const int n : {3, 4, 5, 6, 8, 12}) each_matrix<T>("Mul_mava", F::pairs, n);
  for (const int n : {3, 4, 5, 6, 12}) one_matrix<T>("Mul_tva", F::turned, n);
  for (const int n : {3, 4, 5, 6}) each_matrix<T>("Mul_tava", F::turned_pairs, n);
  for (const int n : {3, 4, 5, 6}) one_vector<T>(n);
  for (const int n : {3, 4, 5, 6}) gaxpies<T>(n);
  for (const int n : {3, 4, 6}) other_layouts<T>(n);
  return true;
}

const bool all = all_of_type<float>() && all_of_type<double>();

}  // namespace
}  // namespace zelm::bench
