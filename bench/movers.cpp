// movers.cpp: transposes, copies, packed blocks, identities.
#include <zelm.h>

#include <utility>

#include "frame.hpp"

namespace zelm::bench {
namespace {

/// Movers are never divided among threads.
bool measure_serial(Case c) {
  c.threads = {1};
  return measure(std::move(c));
}

/// In bytes, of matrices of rows x columns.
template <class T>
struct Strides {
  Strides(int rows, int columns) : row(columns * int(sizeof(T))), object(rows * row) {}
  int row, object;
  static constexpr int element = sizeof(T);
};

template <class T, class F>
bool transposes(F f) {
  for (const int n : {3, 4, 5, 6}) {
    const Strides<T> s(n, n);
    Case c{.operation = "Transpose_ma", .type = kTypeTag<T>, .n = n};
    c.operands = {in<T>(n * n), out<T>(n * n)};
    c.call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), s.object, s.row, s.element, n, n, at[1].of<T>(), s.object, s.row, s.element, count);
    };
    c.limits = kStream;
    if (sizeof(T) == 4) {
      if (n == 3 || n == 6) c.limits[0].ratio = 0.8;
      if (n == 4) {
        c.limits[0].ratio = 1;
        c.limits.push_back({1.15, "memcpy", {Set::memory}});
      }
    }
    measure_serial(c);
  }
  return true;
}

/// One matrix far larger than the first-level cache.
template <class T, class F>
bool large_transpose(F f) {
  constexpr int n = 1000;
  const Strides<T> s(n, n);
  Case c{.operation = "Transpose_m", .type = kTypeTag<T>, .n = n};
  c.operands = {in<T>(n * n), out<T>(n * n)};
  c.call = [=](const Array* at, int count) {
    ZelStatus status = zelStsOk;
    for (std::ptrdiff_t k = 0; k < count; ++k)
      status |= f(at[0].of<T>() + k * n * n, s.row, s.element, n, n, at[1].of<T>() + k * n * n, s.row, s.element);
    return status;
  };
  c.sets = {Set::llc};
  if (sizeof(T) == 4) c.limits = {{0.7, "Eigen", {Set::llc}}};
  return measure_serial(c);
}

template <class T, class F>
bool identities(F f) {
  for (const int n : {3, 4, 5, 6}) {
    const Strides<T> s(n, n);
    Case c{.operation = "LoadIdentity_ma", .type = kTypeTag<T>, .n = n};
    c.operands = {out<T>(n * n)};
    c.call = [=](const Array* at, int count) { return f(at[0].of<T>(), s.object, s.row, s.element, n, n, count); };
    c.limits = kStream;
    if (sizeof(T) == 4 && n == 4) c.limits.push_back({1.15, "memset", {Set::memory}});
    measure_serial(c);
  }
  return true;
}

/// From rows with a gap of one element to rows without.
template <class T, class F>
bool matrix_copies(F f) {
  for (const int n : {3, 4, 5, 6}) {
    const Strides<T> from(n, n + 1), to(n, n);
    Case c{.operation = "Copy_ma", .type = kTypeTag<T>, .n = n, .layouts = "SS"};
    c.operands = {in<T>(n * (n + 1)), out<T>(n * n)};
    c.call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), from.object, from.row, from.element, at[1].of<T>(), to.object, to.row, to.element, n, n, count);
    };
    c.limits = kStream;
    measure_serial(c);
  }
  return true;
}

template <class T, class F>
bool vector_copies(F f) {
  for (const int n : {3, 4, 16, 100}) {
    const Strides<T> from(1, n + 1), to(1, n);
    Case c{.operation = "Copy_va", .type = kTypeTag<T>, .n = n, .layouts = "SS"};
    c.operands = {in<T>(n + 1), out<T>(n)};
    c.call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), from.row, from.element, at[1].of<T>(), to.row, to.element, n, count);
    };
    c.limits = kStream;
    measure_serial(c);
  }
  return true;
}

// Between an array of structures and a structure of arrays.

Case change_of_layout(int n, const char* layouts) {
  return {.operation = "Copy_ma",
          .type = "32f",
          .n = n,
          .layouts = layouts,
          .limits = {{0.5, "native", {Set::l1, Set::llc, Set::memory}}}};
}

bool to_elements() {
  for (const int n : {3, 4, 5, 6}) {
    const Strides<float> s(n, n);
    Case c = change_of_layout(n, "SP");
    c.operands = {in<float>(n * n), for_all(out<float>(n * n, Layout::elements))};
    c.call = [=](const Array* at, int count) {
      return zelmCopy_ma_32f_SP(at[0].of<float>(), s.object, s.row, s.element, at[1].table_of<float>(), 0, s.element, n, n,
                                count);
    };
    measure_serial(c);
  }
  return true;
}

bool from_elements() {
  for (const int n : {3, 4, 5, 6}) {
    const Strides<float> s(n, n);
    Case c = change_of_layout(n, "PS");
    c.operands = {for_all(in<float>(n * n, Layout::elements)), out<float>(n * n)};
    c.call = [=](const Array* at, int count) {
      return zelmCopy_ma_32f_PS(at[0].table_of<float>(), 0, s.element, at[1].of<float>(), s.object, s.row, s.element, n, n,
                                count);
    };
    measure_serial(c);
  }
  return true;
}

/// The upper left n x n of matrices of one row and one column more: the linear part of affine maps.
template <class T, class F>
bool blocks(const char* operation, F f) {
  for (const int n : {3, 4, 5, 6}) {
    const Strides<T> from(n + 1, n + 1);
    Case c{.operation = operation, .type = kTypeTag<T>, .n = n};
    c.operands = {in<T>((n + 1) * (n + 1)), out<T>(n * n)};
    c.call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), from.object, from.row, from.element, at[1].of<T>(), n, n, count);
    };
    c.limits = kStream;
    measure_serial(c);
  }
  return true;
}

const bool all = transposes<float>(zelmTranspose_ma_32f) && transposes<double>(zelmTranspose_ma_64f) &&
                 large_transpose<float>(zelmTranspose_m_32f) && large_transpose<double>(zelmTranspose_m_64f) &&
                 identities<float>(zelmLoadIdentity_ma_32f) && identities<double>(zelmLoadIdentity_ma_64f) &&
                 matrix_copies<float>(zelmCopy_ma_32f_SS) && matrix_copies<double>(zelmCopy_ma_64f_SS) && to_elements() &&
                 from_elements() && vector_copies<float>(zelmCopy_va_32f_SS) && vector_copies<double>(zelmCopy_va_64f_SS) &&
                 blocks<float>("Extract_ma", zelmExtract_ma_32f) && blocks<double>("Extract_ma", zelmExtract_ma_64f) &&
                 blocks<float>("Extract_ta", zelmExtract_ta_32f) && blocks<double>("Extract_ta", zelmExtract_ta_64f);

}  // namespace
}  // namespace zelm::bench
