// saxpy_lcomb.cpp: scaled sums of vectors.
#include <zelm.h>

#include <limits>

#include "frame.hpp"

namespace zelm::bench {
namespace {

/// Operands: first vectors, second vectors, results, scale factors. `call`: of a size.
template <class T, class Call>
bool vectors(const char* operation, bool one_first, Call call) {
  for (const int n : {3, 4, 16, 100}) {
    Case c{.operation = operation, .type = kTypeTag<T>, .n = n};
    c.operands = {in<T>(n), in<T>(n), out<T>(n), single(in<T>(2))};
    if (one_first) c.operands[0] = single(c.operands[0]);
    c.call = call(n);
    c.tolerance = 100 * double(std::numeric_limits<T>::epsilon());  // rivals may use fused operations, terms may cancel
    c.limits = kStream;
    measure(c);
  }
  return true;
}

template <class T, class F>
bool saxpy_one(F f) {
  constexpr int E = sizeof(T);
  return vectors<T>("Saxpy_vva", true, [=](int n) {
    return [=](const Array* at, int count) {
      return f(at[0].of<T>(), E, *at[3].of<T>(), at[1].of<T>(), n * E, E, at[2].of<T>(), n * E, E, n, count);
    };
  });
}

template <class T, class F>
bool saxpy_pairs(F f) {
  constexpr int E = sizeof(T);
  return vectors<T>("Saxpy_vava", false, [=](int n) {
    return [=](const Array* at, int count) {
      return f(at[0].of<T>(), n * E, E, *at[3].of<T>(), at[1].of<T>(), n * E, E, at[2].of<T>(), n * E, E, n, count);
    };
  });
}

template <class T, class F>
bool combined_pairs(F f) {
  constexpr int E = sizeof(T);
  return vectors<T>("LComb_vava", false, [=](int n) {
    return [=](const Array* at, int count) {
      const T* const val = at[3].of<T>();
      return f(at[0].of<T>(), n * E, E, val[0], at[1].of<T>(), n * E, E, val[1], at[2].of<T>(), n * E, E, n, count);
    };
  });
}

const bool all = saxpy_one<float>(zelmSaxpy_vva_32f) && saxpy_one<double>(zelmSaxpy_vva_64f) &&
                 saxpy_pairs<float>(zelmSaxpy_vava_32f) && saxpy_pairs<double>(zelmSaxpy_vava_64f) &&
                 combined_pairs<float>(zelmLComb_vava_32f) && combined_pairs<double>(zelmLComb_vava_64f);

}  // namespace
}  // namespace zelm::bench
