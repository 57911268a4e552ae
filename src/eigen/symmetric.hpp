// symmetric.hpp: eigenvalues and eigenvectors of symmetric matrices. Orders 1 and 2 in closed form, all others by reduction and
// sweeps (symmetric_steps.hpp); the objects of an array several at once. dstVectors may be src.
//
// zelStsSingular says that the product of the eigenvalues is at most epsilon. From order 3 on the results are there all the same.
#pragma once
#include <algorithm>

#include "eigen/symmetric_cores.hpp"

namespace zelm::eigen::symmetric {

// Policies: which kernel has which rules.
struct Values {
  static constexpr Rules rules = {};
};
struct ValuesOfArray {
  static constexpr Rules rules = {.skips_small_columns = true};
};
struct ValuesOfContiguousArray {
  static constexpr Rules rules = {.skips_small_columns = true, .skips_aligned_heads = true};
};
struct ValuesAtSmallDeterminants {
  static constexpr Rules rules = {.skips_small_columns = true, .skips_aligned_heads = true, .allows_small_determinants = true};
};
struct VectorsSortedFirst {
  static constexpr Rules rules = {.skips_aligned_heads = true, .sorts_singular = true};
};
struct VectorsJudgedFirst {
  static constexpr Rules rules = {.skips_aligned_heads = true};
};
struct VectorsOfArray {
  static constexpr Rules rules = {.skips_small_columns = true, .skips_aligned_heads = true, .sweeps_in_double = true};
};

/// Order 2, of which a(1, 0) is not read. The eigenvalue of the larger magnitude comes first. put(i, j, x) takes the vectors.
template <class Object, class T, class Put>
ZelStatus solve_pair(const Object& source, T* values, const Rules& rules, Put put) {
  const T a = source.element(0, 0), b = source.element(0, 1), d = source.element(1, 1);
  const T epsilon = kEpsilon<T>, limit = rules.allows_small_determinants ? T(0x1p-52) : epsilon;
  const T det = d * a - b * b;
  if (limit >= std::fabs(det)) return zelStsSingular;
  const T sum = a + d, diff = a - d, q = 2 * b, length = root(diff * diff + q * q);
  const bool positive = sum > epsilon, negative = sum < -epsilon;
  const T first = T(0.5) * (positive ? sum + length : negative ? sum - length : length);
  store(values, first);
  store(values + 1, positive || negative ? (a * d - b * b) / first : T(-0.5) * length);

  const bool turned = diff < -epsilon;
  const T w = turned ? diff - length : diff + length;
  T u = 0, v = 1;  // reciprocals of roots in double, rounded once
  if (std::fabs(w) > std::fabs(q)) {
    const T t = (0 - q) / w;
    u = T(1 / root(double(t * t + 1)));
    v = t * u;
  } else if (!(epsilon >= std::fabs(q))) {
    const T t = (0 - w) / q;
    v = T(1 / root(double(t * t + 1)));
    u = t * v;
  }
  const bool differ = negative != turned;
  put(0, 0, differ ? v : 0 - u);
  put(1, 0, differ ? u : v);
  put(0, 1, differ ? 0 - u : 0 - v);
  put(1, 1, differ ? v : 0 - u);
  return zelStsOk;
}

template <class Source, class T>
ZelStatus values_of(const Source& source, T* buffer, T* values, int n, const Rules& rules) {
  if (n == 1) return store(values, source.element(0, 0)), zelStsOk;
  if (n == 2) return solve_pair(source, values, rules, [](int, int, T) {});
  copy_in(source, buffer, n);
  return values_of_one(buffer, values, n, rules);
}

template <class Source, class T, class Object>
ZelStatus vectors_of(const Source& source, T* buffer, const Object& z, T* values, int n, const Rules& rules) {
  if (n == 1) return store(values, source.element(0, 0)), store(z.at(0, 0), T(1)), zelStsOk;
  if (n == 2) return solve_pair(source, values, rules, [&](int i, int j, T x) { store(z.at(i, j), x); });
  copy_in(source, buffer, n);
  return vectors_of_one(buffer, without_known_stride(z), values, n, rules);
}

/// As many whole blocks as there are, until one holds an object that fails. Returns the number of objects done.
template <int order, class A, class T, class D>
__attribute__((noinline)) int solve_blocks(A a, D dst, T* values, int n, int count, const Rules& rules) {
  constexpr bool vectors = !std::is_same_v<D, NoVectors>;
  constexpr int L = kTogether;
  if constexpr (order > 0) n = order;
  Block<T, order, vectors> block;
  int k = 0;
  while (count - k > 1) {
    const int valid = std::min(count - k, L);
    copy_in(a, k, valid, block.a, n);
    if (!solve_together(block, n, rules)) return k;
    for (int l = 0; l < valid; ++l) {
      for (int i = 0; i < n; ++i) store(values + std::ptrdiff_t(k + l) * n + i, load_lane(block.values + i, l));
      if constexpr (vectors) {
        const auto z = dst.object(k + l);
        for (int j = 0; j < n; ++j) {
          const T* const x = block.vector(l, int(load_lane(block.places + j, l)), n);
          for (int i = 0; i < n; ++i) store(z.at(i, j), x[i]);
        }
      }
    }
    k += valid;
  }
  return k;
}

template <class A, class T, class D>
ZELM_INLINE int solve_some(const A& a, const D& dst, T* values, int n, int count, const Rules& rules) {
  if constexpr (A::array) {
    switch (n) {
      case 3: return solve_blocks<3>(a, dst, values, n, count, rules);
      case 4: return solve_blocks<4>(a, dst, values, n, count, rules);
      case 5: return solve_blocks<5>(a, dst, values, n, count, rules);
      case 6: return solve_blocks<6>(a, dst, values, n, count, rules);
    }
    if (n > 6 && n <= kLargestTogether) return solve_blocks<0>(a, dst, values, n, count, rules);
  }
  return 0;
}

template <class Policy, class A, class T>
ZelStatus values(A a, void* buffer, T* values, int n, int count) {
  for (std::ptrdiff_t k = solve_some(a, NoVectors{}, values, n, count, Policy::rules); k < count; ++k)
    if (const ZelStatus status = values_of(a.object(k), static_cast<T*>(buffer), values + k * n, n, Policy::rules))
      return status;
  return zelStsOk;
}

template <class Policy, class A, class D, class T>
ZelStatus vectors(A a, void* buffer, D dst, T* values, int n, int count) {
  for (std::ptrdiff_t k = solve_some(a, dst, values, n, count, Policy::rules); k < count; ++k)
    if (const ZelStatus status =
            vectors_of(a.object(k), static_cast<T*>(buffer), dst.object(k), values + k * n, n, Policy::rules))
      return status;
  return zelStsOk;
}

}  // namespace zelm::eigen::symmetric
