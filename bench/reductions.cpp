// reductions.cpp: dot and cross products, norms, traces.
#include <zelm.h>

#include <cmath>
#include <limits>

#include "frame.hpp"

namespace zelm::bench {
namespace {

std::vector<Limit> limits(double l1) { return {{l1, "SSE4.2", {Set::l1}}, {1.05, "native", {Set::llc, Set::memory}, "read"}}; }

template <class T, class Call>
bool reduction(const char* operation, int n, std::vector<Operand> operands, std::vector<Limit> limits, Call call,
               Layout layout = Layout::standard) {
  Case c{.operation = operation, .type = kTypeTag<T>, .n = n, .layout = layout};
  c.operands = std::move(operands);
  c.call = call;
  c.tolerance = 100 * n * double(std::numeric_limits<T>::epsilon());  // rivals add in other orders
  if (c.operands.back().elements == 1)                                // sums: positive terms, which do not cancel
    c.fill = [inputs = c.operands](const Array* at, int count) {
      for (std::size_t o = 0; o + 1 < inputs.size(); ++o) {
        const std::size_t size = std::size_t(inputs[o].elements) * (inputs[o].array ? std::size_t(count) : 1);
        fill_uniform(at[o].of<T>(), size);
        for (std::size_t e = 0; e < size; ++e) at[o].of<T>()[e] = std::abs(at[o].of<T>()[e]);
      }
    };
  c.limits = std::move(limits);
  return measure(c);
}

/// Two operands, the second of which may be one vector, and numbers.
template <class T, class F>
bool dot_pairs(F f) {
  constexpr int E = sizeof(T);
  for (const int n : {3, 4, 5, 6, 16, 100})
    reduction<T>("DotProduct_vava", n, {in<T>(n), in<T>(n), out<T>(1)}, limits(0.9), [=](const Array* at, int count) {
      return f(at[0].of<T>(), n * E, E, at[1].of<T>(), n * E, E, at[2].of<T>(), n, count);
    });
  return true;
}

template <class T, class F>
bool dot_elements(F f) {
  constexpr int E = sizeof(T);
  constexpr Layout layout = Layout::elements;
  for (const int n : {3, 6, 16})
    reduction<T>(
        "DotProduct_vava", n, {in<T>(n, layout), in<T>(n, layout), out<T>(1)}, {},
        [=](const Array* at, int count) {
          return f(at[0].table_of<T>(), 0, E, at[1].table_of<T>(), 0, E, at[2].of<T>(), n, count);
        },
        layout);
  return true;
}

template <class T, class F>
bool dot_one(F f) {
  constexpr int E = sizeof(T);
  for (const int n : {3, 4, 5, 6, 16, 100})
    reduction<T>("DotProduct_vav", n, {in<T>(n), single(in<T>(n)), out<T>(1)}, limits(0.9), [=](const Array* at, int count) {
      return f(at[0].of<T>(), n * E, E, at[1].of<T>(), E, at[2].of<T>(), n, count);
    });
  return true;
}

template <class T, class F>
bool cross(F f) {
  constexpr int E = sizeof(T);
  return reduction<T>("CrossProduct_vava", 3, {in<T>(3), in<T>(3), out<T>(3)}, limits(0.9), [=](const Array* at, int count) {
    return f(at[0].of<T>(), 3 * E, E, at[1].of<T>(), 3 * E, E, at[2].of<T>(), 3 * E, E, count);
  });
}

template <class T, class F>
bool euclidean(F f) {
  constexpr int E = sizeof(T);
  for (const int n : {3, 4, 5, 6, 16, 100})
    reduction<T>("L2Norm_va", n, {in<T>(n), out<T>(1)}, limits(0.9),
                 [=](const Array* at, int count) { return f(at[0].of<T>(), n * E, E, at[1].of<T>(), n, count); });
  return true;
}

template <class T, class F>
bool frobenius(F f) {
  constexpr int E = sizeof(T);
  for (const int n : {3, 4, 5, 6})
    reduction<T>("FrobNorm_ma", n, {in<T>(n * n), out<T>(1)}, limits(n <= 4 ? 0.5 : 1.05),
                 [=](const Array* at, int count) { return f(at[0].of<T>(), n * n * E, n * E, E, n, n, at[1].of<T>(), count); });
  return true;
}

template <class T, class F>
bool trace(F f) {
  constexpr int E = sizeof(T);
  for (const int n : {3, 4, 5, 6})
    reduction<T>("Trace_ma", n, {in<T>(n * n), out<T>(1)}, kStream,
                 [=](const Array* at, int count) { return f(at[0].of<T>(), n * n * E, n * E, E, n, at[1].of<T>(), count); });
  return true;
}

const bool all = dot_pairs<float>(zelmDotProduct_vava_32f) && dot_pairs<double>(zelmDotProduct_vava_64f) &&
                 dot_elements<float>(zelmDotProduct_vava_32f_P) && dot_one<float>(zelmDotProduct_vav_32f) &&
                 dot_one<double>(zelmDotProduct_vav_64f) && cross<float>(zelmCrossProduct_vava_32f) &&
                 cross<double>(zelmCrossProduct_vava_64f) && euclidean<float>(zelmL2Norm_va_32f) &&
                 euclidean<double>(zelmL2Norm_va_64f) && frobenius<float>(zelmFrobNorm_ma_32f) &&
                 frobenius<double>(zelmFrobNorm_ma_64f) && trace<float>(zelmTrace_ma_32f) && trace<double>(zelmTrace_ma_64f);

}  // namespace
}  // namespace zelm::bench
