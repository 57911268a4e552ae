// det_invert.cpp: determinants and inverses.
#include <zelm.h>

#include <cmath>
#include <limits>

#include "frame.hpp"

namespace zelm::bench {
namespace {

template <class T>
struct Functions {
  static constexpr auto det = of_type<T>(zelmDet_ma_32f, zelmDet_ma_64f);
  static constexpr auto det_list = of_type<T>(zelmDet_ma_32f_L, zelmDet_ma_64f_L);
  static constexpr auto det_elements = of_type<T>(zelmDet_ma_32f_P, zelmDet_ma_64f_P);
  static constexpr auto invert_one = of_type<T>(zelmInvert_m_32f, zelmInvert_m_64f);
  static constexpr auto invert = of_type<T>(zelmInvert_ma_32f, zelmInvert_ma_64f);
  static constexpr auto invert_list = of_type<T>(zelmInvert_ma_32f_L, zelmInvert_ma_64f_L);
  static constexpr auto invert_elements = of_type<T>(zelmInvert_ma_32f_P, zelmInvert_ma_64f_P);
};

/// Diagonally dominant: results that can be compared.
template <class T>
void fill_dominant(const Array* at, int count, int n) {
  T* const a = at[0].of<T>();
  fill_uniform(a, std::size_t(count) * n * n);
  for (int k = 0; k < count; ++k)
    for (int i = 0; i < n; ++i) {
      T& x = a[(std::ptrdiff_t(k) * n + i) * n + i];
      x += std::copysign(T(n), x);
    }
}

template <class T>
Case prepared(std::string operation, int n, Layout layout) {
  Case c{.operation = std::move(operation), .type = kTypeTag<T>, .n = n, .layout = layout};
  c.fill = [n](const Array* at, int count) { fill_dominant<T>(at, count, n); };
  c.tolerance = 100 * n * double(std::numeric_limits<T>::epsilon());
  return c;
}

/// Scratch for one object; its orders do not use it.
double buffer[64];

template <class T>
Case det(int n, Layout layout) {
  constexpr int E = sizeof(T);
  const int row = n * E, matrix = n * row;
  Case c = prepared<T>("Det_ma", n, layout);
  c.operands = {in<T>(n * n, layout), out<T>(1)};
  using F = Functions<T>;
  switch (layout) {
    case Layout::standard:
      c.call = [=](const Array* at, int count) {
        return F::det(at[0].of<T>(), matrix, row, E, n, buffer, at[1].of<T>(), count);
      };
      break;
    case Layout::list:
      c.call = [=](const Array* at, int count) {
        return F::det_list(at[0].table_of<T>(), 0, row, E, n, buffer, at[1].of<T>(), count);
      };
      break;
    case Layout::elements:
      c.call = [=](const Array* at, int count) {
        return F::det_elements(at[0].table_of<T>(), 0, E, n, buffer, at[1].of<T>(), count);
      };
      break;
  }
  return c;
}

template <class T>
Case invert(int n, Layout layout) {
  constexpr int E = sizeof(T);
  const int row = n * E, matrix = n * row;
  Case c = prepared<T>("Invert_ma", n, layout);
  c.operands = {in<T>(n * n, layout), out<T>(n * n, layout)};
  using F = Functions<T>;
  switch (layout) {
    case Layout::standard:
      c.call = [=](const Array* at, int count) {
        return F::invert(at[0].of<T>(), matrix, row, E, buffer, at[1].of<T>(), matrix, row, E, n, count);
      };
      break;
    case Layout::list:
      c.call = [=](const Array* at, int count) {
        return F::invert_list(at[0].table_of<T>(), 0, row, E, buffer, at[1].table_of<T>(), 0, row, E, n, count);
      };
      break;
    case Layout::elements:
      c.call = [=](const Array* at, int count) {
        return F::invert_elements(at[0].table_of<T>(), 0, E, buffer, at[1].table_of<T>(), 0, E, n, count);
      };
      break;
  }
  return c;
}

template <class T>
Case invert_one(int n) {
  constexpr int E = sizeof(T);
  Case c = prepared<T>("Invert_m", n, Layout::standard);
  c.operands = {single(in<T>(n * n)), single(out<T>(n * n))};
  c.fill = [n](const Array* at, int) { fill_dominant<T>(at, 1, n); };
  c.call = repeated(
      [=](const Array* at) { return Functions<T>::invert_one(at[0].of<T>(), n * E, E, buffer, at[1].of<T>(), n * E, E, n); });
  c.sets = {Set::call};
  c.threads = {1};
  return c;
}

template <class T>
bool all_of_type() {
  constexpr bool narrow = sizeof(T) == 4;
  constexpr double kNarrow[] = {0.65, 0.85, 0.2, 0.2}, kWide[] = {1, 1, 0.4, 0.4};
  for (const int n : {3, 4}) measure(invert_one<T>(n));
  for (const int n : {3, 4, 5, 6}) {
    Case c = invert<T>(n, Layout::standard);
    c.limits = {{(narrow ? kNarrow : kWide)[n - 3], "SSE4.2", {Set::l1, Set::memory}}};
    if (n == 6) c.limits.push_back({0.6, "one thread", {Set::many}});
    measure(c);
  }
  for (const int n : {3, 4, 5, 6}) {
    Case c = det<T>(n, Layout::standard);
    // The others are computed in extended precision, whatever that costs.
    if (narrow && n <= 4) c.limits = {{1, "SSE4.2", {Set::l1, Set::memory}}};
    measure(c);
  }
  return true;
}

bool other_layouts() {
  for (const int n : {3, 4, 5, 6})
    for (const Layout layout : {Layout::list, Layout::elements}) {
      Case i = invert<float>(n, layout), d = det<float>(n, layout);
      i.threads = d.threads = {1};
      if (layout == Layout::elements) d.limits = {{1, "SSE4.2", {Set::l1}}};
      measure(i);
      measure(d);
    }
  return true;
}

const bool all = all_of_type<float>() && all_of_type<double>() && other_layouts();

}  // namespace
}  // namespace zelm::bench
