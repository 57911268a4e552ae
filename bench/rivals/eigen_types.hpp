// rivals/eigen_types.hpp: Eigen's types for tight objects of compile-time size.
#pragma once
#include <Eigen/Core>

namespace zelm::bench::rivals {

template <class T, int N>
using Matrix = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
template <class T, int N>
using Vector = Eigen::Matrix<T, N, 1>;

}  // namespace zelm::bench::rivals
