// checks.hpp: the tests of the validated entries. No loop, no call: each folds into a few integer instructions.
#pragma once
#include <cstdint>

#include "zelm_types.h"

namespace zelm {

template <class... P>
bool any_null(const P*... pointers) {
  return (... | (pointers == nullptr));
}

template <class... N>
bool any_below_one(N... sizes) {
  return (... | (sizes < 1));
}

/// A stride is good when it is at least 1 and a multiple of the element size. `(s - 1) | s` has its sign set for 0, for
/// negative numbers and for INT_MIN, where s - 1 alone would wrap to a positive number.
template <class T, class... S>
bool bad_strides(S... strides) {
  const std::uint32_t not_positive = (0u | ... | ((std::uint32_t(strides) - 1) | std::uint32_t(strides)));
  const std::uint32_t all = (0u | ... | std::uint32_t(strides));
  return (((not_positive >> 31) | (all & (sizeof(T) - 1))) != 0);
}

/// A byte shift is good when it is at least 0 and a multiple of the element size.
template <class T, class... S>
bool bad_shifts(S... shifts) {
  return ((0u | ... | std::uint32_t(shifts)) & (0x80000000u | (sizeof(T) - 1))) != 0;
}

/// True if every element stride equals the element size, which is what the kernels without _S2 demand.
template <class T, class... S>
bool unit_strides(S... strides) {
  return (0u | ... | (std::uint32_t(strides) ^ std::uint32_t(sizeof(T)))) == 0;
}

}  // namespace zelm
