// general_cores.hpp: eigenvalues and eigenvectors of one general real matrix that lies in a buffer. Compiled once, whatever
// memory the matrices come from.
#pragma once
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

}  // namespace zelm::eigen::general
