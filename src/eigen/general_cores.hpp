// general_cores.hpp: eigenvalues and eigenvectors of one general real matrix that lies in a buffer. Compiled once, whatever
// memory the matrices come from.
#pragma once
#include "eigen/shared.hpp"
#include "zelm_types.h"

namespace zelm::eigen::general {

enum Side { right = 1, left = 2 };

/// `buffer`: the matrix row by row, then five vectors of n elements. The values go to re and im, in the order in which the
/// iteration leaves them.
template <class T>
ZelStatus values_of_one(T* buffer, T* re, T* im, int n);

struct Outcome {
  ZelStatus status;
  bool complete;  // the vectors are there
};

/// `buffer`: three matrices, of which the first holds the source, and five vectors. sides: the sum of those wanted. Afterwards
/// row j of the second matrix is eigenvector j; where both sides are wanted, of the right side, and the third has the left.
template <class T>
Outcome vectors_of_one(T* buffer, T* re, T* im, int n, int sides);

/// The second half of vectors_of_one: from the Schur form in the first matrix, its vectors in the second, and its eigenvalues.
template <class T>
Outcome vectors_of_form(T* buffer, const T* re, const T* im, int n, int sides);

/// One matrix in each lane. Order 0 stands for any up to kLargestTogether. Twice the lanes hide more of the
/// latency of divisions and roots, but wait longer for each other: 6 to 8 % at order 3, 2 % at 10, where many arrays fill no block.
template <class T, int order, bool vectors>
struct Block {
  static constexpr int largest = order ? order : kLargestTogether;
  static constexpr int lanes = (sizeof(T) == 4 ? 8 : 4) * (order ? 2 : 1);
  using S = Many<T, lanes>;
  S h[largest * largest];                // the source row by row without a gap; then its Schur form, column by column
  S q[vectors ? largest * largest : 1];  // column by column
  S re[largest], im[largest];

  ZELM_INLINE void store_values(int l, T* to_re, T* to_im, int n) const {
    for (int i = 0; i < n; ++i) {
      store(to_re + i, load_lane(re + i, l));
      store(to_im + i, load_lane(im + i, l));
    }
  }
};

/// Eigenvalues, or the whole Schur form. False if one of the matrices takes too many sweeps: then they must be done one by one.
template <class T, int order, bool vectors>
bool solve_together(Block<T, order, vectors>& block, int n);

}  // namespace zelm::eigen::general
