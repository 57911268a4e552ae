// constants.cpp: objects with constants.
#include <zelm.h>

#include "frame.hpp"

namespace zelm::bench {
namespace {

/// Operands of all: objects, constants, results. vac and cva have one signature.
template <class T, class F>
bool vectors_and_one(const char* operation, F f) {
  for (const int n : {3, 4, 16, 100}) {
    constexpr int E = sizeof(T);
    const int vector = n * E;
    const auto call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), vector, E, *at[1].of<T>(), at[2].of<T>(), vector, E, n, count);
    };
    measure({.operation = operation,
             .type = kTypeTag<T>,
             .n = n,
             .operands = {in<T>(n), single(in<T>(1)), out<T>(n)},
             .call = call,
             .limits = kStream});
  }
  return true;
}

template <class T, class F>
bool vectors_and_each(const char* operation, F f) {
  for (const int n : {3, 4, 16, 100}) {
    constexpr int E = sizeof(T);
    const int vector = n * E;
    const auto call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), vector, E, at[1].of<T>(), E, at[2].of<T>(), vector, E, n, count);
    };
    measure({.operation = operation,
             .type = kTypeTag<T>,
             .n = n,
             .operands = {in<T>(n), in<T>(1), out<T>(n)},
             .call = call,
             .limits = kStream});
  }
  return true;
}

template <class T, class F>
bool vector_and_each(const char* operation, F f) {
  for (const int n : {3, 4, 16, 100}) {
    constexpr int E = sizeof(T);
    const auto call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), E, at[1].of<T>(), E, at[2].of<T>(), n * E, E, n, count);
    };
    measure({.operation = operation,
             .type = kTypeTag<T>,
             .n = n,
             .operands = {single(in<T>(n)), in<T>(1), out<T>(n)},
             .call = call,
             .limits = kStream});
  }
  return true;
}

/// mac and tac.
template <class T, class F>
bool matrices_and_one(const char* operation, F f) {
  for (const int n : {3, 4, 5, 6}) {
    constexpr int E = sizeof(T);
    const int row = n * E, matrix = n * row;
    const auto call = [=](const Array* at, int count) {
      return f(at[0].of<T>(), matrix, row, E, *at[1].of<T>(), at[2].of<T>(), matrix, row, E, n, n, count);
    };
    measure({.operation = operation,
             .type = kTypeTag<T>,
             .n = n,
             .operands = {in<T>(n * n), single(in<T>(1)), out<T>(n * n)},
             .call = call,
             .limits = kStream});
  }
  return true;
}

/// Short vectors, a call for each, and a long one, whose elements are the objects.
template <class T, class F>
bool one_vector(const char* operation, F f) {
  constexpr int E = sizeof(T);
  for (const int n : {3, 4, 16, 100}) {
    Case c{.operation = operation, .type = kTypeTag<T>, .n = n};
    c.operands = {single(in<T>(n)), single(in<T>(1)), single(out<T>(n))};
    c.call = repeated([=](const Array* at) { return f(at[0].of<T>(), E, *at[1].of<T>(), at[2].of<T>(), E, n); });
    c.sets = {Set::call};
    c.threads = {1};
    measure(c);
  }
  const auto call = [=](const Array* at, int count) { return f(at[0].of<T>(), E, *at[1].of<T>(), at[2].of<T>(), E, count); };
  return measure({.operation = operation,
                  .type = kTypeTag<T>,
                  .n = 1,
                  .operands = {in<T>(1), single(in<T>(1)), out<T>(1)},
                  .call = call,
                  .limits = kStream});
}

const bool all = one_vector<float>("Add_vc", zelmAdd_vc_32f) && one_vector<double>("Add_vc", zelmAdd_vc_64f) &&
                 vectors_and_one<float>("Add_vac", zelmAdd_vac_32f) && vectors_and_one<double>("Add_vac", zelmAdd_vac_64f) &&
                 vectors_and_one<float>("Sub_cva", zelmSub_cva_32f) && vectors_and_one<double>("Sub_cva", zelmSub_cva_64f) &&
                 vectors_and_each<float>("Mul_vaca", zelmMul_vaca_32f) &&
                 vectors_and_each<double>("Mul_vaca", zelmMul_vaca_64f) && vector_and_each<float>("Add_vca", zelmAdd_vca_32f) &&
                 vector_and_each<double>("Add_vca", zelmAdd_vca_64f) && matrices_and_one<float>("Mul_mac", zelmMul_mac_32f) &&
                 matrices_and_one<double>("Mul_mac", zelmMul_mac_64f) && matrices_and_one<float>("Mul_tac", zelmMul_tac_32f) &&
                 matrices_and_one<double>("Mul_tac", zelmMul_tac_64f);

}  // namespace
}  // namespace zelm::bench
