// symmetric_cores.hpp: the symmetric eigenproblem of order 3 and up, of one matrix in a buffer or of several in lanes. Compiled
// once, whatever memory the matrices come from.
#pragma once
#include "eigen/symmetric_steps.hpp"
#include "zelm_types.h"

namespace zelm::eigen::symmetric {

/// Any element distance, so that one core serves all strides.
template <class Object>
ZELM_INLINE auto without_known_stride(const Object& z) {
  if constexpr (requires { z.table; }) return z;
  else
    return StridedObject<typename Object::T, false>{z.base, z.row_stride,
                                                    Object::plain ? Bytes(sizeof(*z.base)) : z.element_stride};
}

/// `buffer` holds the matrix, n * n elements, and serves as scratch.
template <class T>
ZelStatus values_of_one(T* buffer, T* values, int n, const Rules& rules);
template <class T, class Object>
ZelStatus vectors_of_one(T* buffer, Object z, T* values, int n, const Rules& rules);

/// Matrices that are computed together. More of them hide the latency of divisions and roots, fewer wait less for each other.
inline constexpr int kTogether = 8;

/// One matrix in each lane. Order 0 stands for any up to kLargestTogether. Eigenvectors stand one after the other, those of one
/// matrix before those of the next: rotations take no turns of lanes that have nothing to do.
template <class T, int order, bool vectors>
struct Block {
  static constexpr int largest = order ? order : kLargestTogether;
  using S = Many<T, kTogether>;
  S a[largest * largest];  // row by row without a gap
  S values[largest];
  S places[largest];                                                // of the vectors, as numbers
  T z[vectors ? S::lanes * largest * (largest + largest % 2) : 1];  // of an even number of elements each
  ZELM_INLINE T* vector(int lane, int place, int n) { return z + (lane * n + place) * (n + n % 2); }
};

/// False if the product of the eigenvalues is small in any lane, or if any takes too many sweeps: then the objects must be done
/// one by one. Else values and vectors are there, sorted.
template <class T, int order, bool vectors>
bool solve_together(Block<T, order, vectors>& block, int n, const Rules& rules);

}  // namespace zelm::eigen::symmetric
