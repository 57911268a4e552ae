// reference_sums.hpp: sums of terms in the orders of the reductions, in plain scalar code.
#pragma once
#include <cstdint>
#include <vector>

#include "support/harness.hpp"

namespace zelm::test {

template <class T>
T ascending(const std::vector<T>& p) {
  T sum = p[0];
  for (std::size_t j = 1; j < p.size(); ++j) sum += p[j];
  return sum;
}

/// Of three to six terms.
template <class T>
T paired(const std::vector<T>& p) {
  T sum = p[0] + p[1];
  if (p.size() == 3) return sum + p[2];
  sum += p[2] + p[3];
  return p.size() == 4 ? sum : p.size() == 5 ? sum + p[4] : sum + (p[4] + p[5]);
}

/// `start`: the address that leading terms are counted from.
template <class T>
T by_eights(const std::vector<T>& p, std::uintptr_t start) {
  const std::size_t n = p.size(), lead = (16 - start % 16) % 16 / sizeof(T);
  T sum = 0;
  std::size_t j = 0;
  if (start % sizeof(T) == 0 && n >= lead + 8) {
    T l[8] = {};
    for (; j < lead; ++j) l[0] += p[j];
    for (; j + 8 <= n; ++j) {
      for (std::size_t m = 0; m < 8; ++m) l[m] += p[j + m];
      j += 7;
    }
    if (sizeof(T) == 4) sum = ((l[0] + l[4]) + (l[2] + l[6])) + ((l[1] + l[5]) + (l[3] + l[7]));
    else sum = ((l[0] + l[2]) + (l[4] + l[6])) + ((l[1] + l[3]) + (l[5] + l[7]));
  }
  for (; j < n; ++j) sum += p[j];
  return sum;
}

/// Pointer tables end where a page does.
inline std::uintptr_t table_of(int entries) { return 0 - std::uintptr_t(entries) * sizeof(void*); }

/// Addresses that leading elements of object k are counted from: its own, or its table's; 0 where no elements lead.
inline std::uintptr_t start_of(const Function& f, const Road& road, int operand, int k, int entries) {
  if (f.layout == "P") return table_of(entries);
  return road.kernel->contiguous ? road.scene->address(operand, f.operands[std::size_t(operand)].array ? k : 0) : 0;
}

/// Address of the first result, or what is left of it when whole pages are taken off.
inline std::uintptr_t results_of(const Memory& memory, std::size_t bytes) {
  const Place& place = memory.back();
  return place.at_end ? 0 - bytes - std::size_t(place.offset) : std::size_t(place.offset);
}

/// All of 1, or scaled so that squares leave the range.
template <class T>
std::vector<T> scaled(std::vector<T> v, int turn) {
  const T factor = turn % 3 == 0 ? T(1) : turn % 3 == 1 ? std::numeric_limits<T>::max() / 4 : std::numeric_limits<T>::min() * 4;
  for (T& x : v) x *= factor;
  return v;
}

}  // namespace zelm::test
