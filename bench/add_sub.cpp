// add_sub.cpp: sums and differences of objects.
#include <zelm.h>

#include "frame.hpp"

namespace zelm::bench {
namespace {

const std::vector<Limit> kBeyondL1 = {{1.05, "native", {Set::llc, Set::memory}}};

/// One size stands for all where two threads are compared with one.
std::vector<Limit> with_threads(std::vector<Limit> limits, int n) {
  if (n == 6) limits.push_back({0.6, "one thread", {Set::many}});
  return limits;
}

/// mama, tama, mata: all have one signature, as have mam, vava, vav of their own.
template <class T, class F>
bool matrices(const char* operation, F f, const std::vector<Limit>& limits) {
  for (const int n : {3, 4, 5, 6}) {
    constexpr int E = sizeof(T);
    const int row = n * E, matrix = n * row;
    const auto call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), matrix, row, E, at[1].of<T>(), matrix, row, E, at[2].of<T>(), matrix, row, E, n, n, count);
    };
    measure({.operation = operation,
             .type = kTypeTag<T>,
             .n = n,
             .operands = {in<T>(n * n), in<T>(n * n), out<T>(n * n)},
             .call = call,
             .limits = with_threads(limits, n)});
  }
  return true;
}

template <class T, class F>
bool matrices_and_one(const char* operation, F f) {
  for (const int n : {3, 4, 5, 6}) {
    constexpr int E = sizeof(T);
    const int row = n * E, matrix = n * row;
    const auto call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), matrix, row, E, at[1].of<T>(), row, E, at[2].of<T>(), matrix, row, E, n, n, count);
    };
    measure({.operation = operation,
             .type = kTypeTag<T>,
             .n = n,
             .operands = {in<T>(n * n), single(in<T>(n * n)), out<T>(n * n)},
             .call = call,
             .limits = with_threads(kStream, n)});
  }
  return true;
}

template <class T, class F>
bool vectors(const char* operation, F f) {
  for (const int n : {3, 4, 5, 6}) {
    constexpr int E = sizeof(T);
    const int vector = n * E;
    const auto call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), vector, E, at[1].of<T>(), vector, E, at[2].of<T>(), vector, E, n, count);
    };
    measure({.operation = operation,
             .type = kTypeTag<T>,
             .n = n,
             .operands = {in<T>(n), in<T>(n), out<T>(n)},
             .call = call,
             .limits = kStream});
  }
  return true;
}

template <class T, class F>
bool vectors_and_one(const char* operation, F f) {
  for (const int n : {3, 4, 5, 6}) {
    constexpr int E = sizeof(T);
    const int vector = n * E;
    const auto call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), vector, E, at[1].of<T>(), E, at[2].of<T>(), vector, E, n, count);
    };
    measure({.operation = operation,
             .type = kTypeTag<T>,
             .n = n,
             .operands = {in<T>(n), single(in<T>(n)), out<T>(n)},
             .call = call,
             .limits = kBeyondL1});
  }
  return true;
}

bool other_layouts() {
  constexpr int E = sizeof(float);
  for (const Layout layout : {Layout::list, Layout::elements})
    for (const int n : {3, 4, 5, 6}) {
      const int row = n * E;
      Case c{.operation = "Add_mama", .type = "32f", .n = n, .layout = layout};
      c.operands = {in<float>(n * n, layout), in<float>(n * n, layout), out<float>(n * n, layout)};
      c.call = [=](const Array* at, int count) {
        const auto a = at[0].table_of<float>(), b = at[1].table_of<float>(), d = at[2].table_of<float>();
        return layout == Layout::list ? zelmAdd_mama_32f_L(a, 0, row, E, b, 0, row, E, d, 0, row, E, n, n, count)
                                      : zelmAdd_mama_32f_P(a, 0, E, b, 0, E, d, 0, E, n, n, count);
      };
      c.threads = {1};
      measure(c);
    }
  return true;
}

template <class T, class F>
bool one_object(F f) {
  for (const int n : {3, 4}) {
    constexpr int E = sizeof(T);
    Case c{.operation = "Add_mm", .type = kTypeTag<T>, .n = n};
    c.operands = {single(in<T>(n * n)), single(in<T>(n * n)), single(out<T>(n * n))};
    c.call = repeated(
        [=](const Array* at) { return f(at[0].of<T>(), n * E, E, at[1].of<T>(), n * E, E, at[2].of<T>(), n * E, E, n, n); });
    if (n == 4 && E == 4) c.limits = {{12, "ns", {Set::call}}};
    c.sets = {Set::call};
    c.threads = {1};
    measure(c);
  }
  return true;
}

const bool all =
    one_object<float>(zelmAdd_mm_32f) && one_object<double>(zelmAdd_mm_64f) &&  //
    matrices<float>("Add_mama", zelmAdd_mama_32f, kStream) && matrices<double>("Add_mama", zelmAdd_mama_64f, kStream) &&
    other_layouts() &&  //
    matrices_and_one<float>("Add_mam", zelmAdd_mam_32f) && matrices_and_one<double>("Add_mam", zelmAdd_mam_64f) &&
    matrices<float>("Add_tama", zelmAdd_tama_32f, kBeyondL1) && matrices<double>("Add_tama", zelmAdd_tama_64f, kBeyondL1) &&
    vectors<float>("Add_vava", zelmAdd_vava_32f) && vectors<double>("Add_vava", zelmAdd_vava_64f) &&
    vectors_and_one<float>("Add_vav", zelmAdd_vav_32f) && vectors_and_one<double>("Add_vav", zelmAdd_vav_64f) &&
    matrices<float>("Sub_mama", zelmSub_mama_32f, kStream) && matrices<double>("Sub_mama", zelmSub_mama_64f, kStream) &&
    matrices_and_one<float>("Sub_mam", zelmSub_mam_32f) && matrices_and_one<double>("Sub_mam", zelmSub_mam_64f) &&
    matrices<float>("Sub_mata", zelmSub_mata_32f, kBeyondL1) && matrices<double>("Sub_mata", zelmSub_mata_64f, kBeyondL1) &&
    vectors<float>("Sub_vava", zelmSub_vava_32f) && vectors<double>("Sub_vava", zelmSub_vava_64f);

}  // namespace
}  // namespace zelm::bench
