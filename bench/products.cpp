// products.cpp: products of two matrices.
#include <zelm.h>

#include "frame.hpp"

namespace zelm::bench {
namespace {

/// Rivals fuse, or sum in another order.
template <class T>
constexpr double kTolerance = sizeof(T) == 4 ? 0x1p-18 : 0x1p-46;

/// Against rivals for SSE4.2. For float of order 4 a shuffle for each broadcast is the floor of both.
std::vector<Limit> limits(int n, bool single_precision) {
  if (n > 6) return {{1.2, "SSE4.2", {Set::l1}}};
  if (!single_precision) return {{0.9, "SSE4.2", {Set::l1}}};
  if (n == 4) return {{1.0, "SSE4.2", {Set::l1}}, {1.6, "native", {Set::l1}}};
  return {{0.75, "SSE4.2", {Set::l1}}, {1.0, "native", {Set::l1}}};
}

template <class T, class Call>
void product(const char* operation, int n, Operand a, Operand b, Operand d, Call call, std::vector<Limit> kept,
             const char* layouts = "", int slot = 0, int step = 1) {
  Case c{.operation = operation, .type = kTypeTag<T>, .n = n, .layout = d.layout, .layouts = layouts};
  c.operands = {a, b, d};
  c.call = call;
  c.tolerance = kTolerance<T>;
  c.terms = 1;
  c.limits = kept;
  c.threads = {1};
  if (slot > 0) {  // gaps: compare only what belongs to a matrix
    c.meaning = [=](const Results& r, std::ptrdiff_t object) {
      std::vector<double> values;
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) values.push_back(r.at(2, object, i * slot + j * step));
      return values;
    };
  }
  if (slot > 0 || d.layout != Layout::standard) c.sets = {Set::l1};
  measure(c);
}

/// mama, mata, tama have one signature.
template <class T, class F>
bool both_arrays(const char* operation, F f, std::initializer_list<int> sizes) {
  for (const int n : sizes) {
    constexpr int E = sizeof(T);
    const int r = n * E, m = n * r;
    const auto call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), m, r, E, n, n, at[1].of<T>(), m, r, E, n, n, at[2].of<T>(), m, r, E, count);
    };
    auto kept = limits(n, E == 4);
    if (n == 4) kept.push_back({1.15, "triad", {Set::memory}});
    product<T>(operation, n, in<T>(n * n), in<T>(n * n), out<T>(n * n), call, kept);
  }
  return true;
}

template <class T, class F>
bool one_right(const char* operation, F f) {
  for (const int n : {3, 4, 5, 6}) {
    constexpr int E = sizeof(T);
    const int r = n * E, m = n * r;
    const auto call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), m, r, E, n, n, at[1].of<T>(), r, E, n, n, at[2].of<T>(), m, r, E, count);
    };
    product<T>(operation, n, in<T>(n * n), single(in<T>(n * n)), out<T>(n * n), call, limits(n, E == 4));
  }
  return true;
}

template <class T, class F>
bool one_left(const char* operation, F f) {
  for (const int n : {3, 4, 5, 6}) {
    constexpr int E = sizeof(T);
    const int r = n * E, m = n * r;
    const auto call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), r, E, n, n, at[1].of<T>(), m, r, E, n, n, at[2].of<T>(), m, r, E, count);
    };
    product<T>(operation, n, single(in<T>(n * n)), in<T>(n * n), out<T>(n * n), call, limits(n, E == 4));
  }
  return true;
}

/// Every second element of memory, and rows of three in 16 bytes: rivals of their own.
template <class T, class F>
bool spaced(F f) {
  constexpr int E = sizeof(T);
  for (const int n : {3, 4, 5, 6}) {
    const int r = 2 * n * E, m = n * r;
    const auto call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), m, r, 2 * E, n, n, at[1].of<T>(), m, r, 2 * E, n, n, at[2].of<T>(), m, r, 2 * E, count);
    };
    const std::vector<Limit> kept = n == 4 ? std::vector<Limit>{{0.7, "SSE4.2", {Set::l1}}} : std::vector<Limit>{};
    product<T>("Mul_mama", n, in<T>(2 * n * n), in<T>(2 * n * n), out<T>(2 * n * n), call, kept, "S2", 2 * n, 2);
  }
  const int r = 4 * E, m = 3 * r;
  const auto call = [=](const Array* at, int count) {
    return f(at[0].of<T>(), m, r, E, 3, 3, at[1].of<T>(), m, r, E, 3, 3, at[2].of<T>(), m, r, E, count);
  };
  if (E == 4) product<T>("Mul_mama", 3, in<T>(12), in<T>(12), out<T>(12), call, limits(3, true), "slots", 4);
  return true;
}

template <class T, class List, class Elements>
bool other_layouts(List list, Elements elements) {
  constexpr int E = sizeof(T);
  for (const Layout layout : {Layout::list, Layout::elements})
    for (const int n : {3, 4, 5, 6}) {
      const int r = n * E;
      const auto call = [=](const Array* at, int count) {
        const auto a = at[0].table_of<T>(), b = at[1].table_of<T>(), d = at[2].table_of<T>();
        return layout == Layout::list ? list(a, 0, r, E, n, n, b, 0, r, E, n, n, d, 0, r, E, count)
                                      : elements(a, 0, E, n, n, b, 0, E, n, n, d, 0, E, count);
      };
      product<T>("Mul_mama", n, in<T>(n * n, layout), in<T>(n * n, layout), out<T>(n * n, layout), call, {});
    }
  return true;
}

template <class T, class F>
bool one_object(F f) {
  for (const int n : {3, 4}) {
    constexpr int E = sizeof(T);
    Case c{.operation = "Mul_mm", .type = kTypeTag<T>, .n = n};
    c.tolerance = kTolerance<T>;
    c.terms = 1;
    c.operands = {single(in<T>(n * n)), single(in<T>(n * n)), single(out<T>(n * n))};
    c.call = repeated([=](const Array* at) {
      return f(at[0].of<T>(), n * E, E, n, n, at[1].of<T>(), n * E, E, n, n, at[2].of<T>(), n * E, E);
    });
    c.sets = {Set::call};
    c.threads = {1};
    measure(c);
  }
  return true;
}

const bool all = both_arrays<float>("Mul_mama", zelmMul_mama_32f, {3, 4, 5, 6, 8, 12, 16}) &&
                 both_arrays<double>("Mul_mama", zelmMul_mama_64f, {3, 4, 5, 6, 8, 12, 16}) &&
                 both_arrays<float>("Mul_mata", zelmMul_mata_32f, {3, 4, 5, 6}) &&
                 both_arrays<double>("Mul_mata", zelmMul_mata_64f, {3, 4, 5, 6}) &&
                 both_arrays<float>("Mul_tama", zelmMul_tama_32f, {3, 4, 5, 6}) &&
                 both_arrays<double>("Mul_tama", zelmMul_tama_64f, {3, 4, 5, 6}) &&
                 one_right<float>("Mul_mam", zelmMul_mam_32f) && one_right<double>("Mul_mam", zelmMul_mam_64f) &&
                 one_left<float>("Mul_mma", zelmMul_mma_32f) && one_left<double>("Mul_mma", zelmMul_mma_64f) &&
                 spaced<float>(zelmMul_mama_32f) && spaced<double>(zelmMul_mama_64f) &&
                 other_layouts<float>(zelmMul_mama_32f_L, zelmMul_mama_32f_P) &&
                 other_layouts<double>(zelmMul_mama_64f_L, zelmMul_mama_64f_P) && one_object<float>(zelmMul_mm_32f) &&
                 one_object<double>(zelmMul_mm_64f);

}  // namespace
}  // namespace zelm::bench
