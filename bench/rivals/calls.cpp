// rivals/calls.cpp: one object at a time, inlined into the program as Eigen does it.
#include <Eigen/LU>

#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

/// Memory may have changed, so nothing of the work can be kept from one round to the next, and none be left out.
void forget() { asm volatile("" ::: "memory"); }

constexpr auto eigen_add = []<class T, int N>(const Array* at, std::ptrdiff_t, std::ptrdiff_t count) {
  using M = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  for (std::ptrdiff_t k = 0; k < count; ++k, forget())
    Eigen::Map<M>(at[2].of<T>()) = Eigen::Map<const M>(at[0].of<T>()) + Eigen::Map<const M>(at[1].of<T>());
};

constexpr auto eigen_decompose = []<class T, int N>(const Array* at, std::ptrdiff_t, std::ptrdiff_t count) {
  using M = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  for (std::ptrdiff_t k = 0; k < count; ++k, forget()) {
    const Eigen::PartialPivLU<M> lu(Eigen::Map<const M>(at[0].of<T>()));
    Eigen::Map<M>(at[2].of<T>()) = lu.matrixLU();
    for (int i = 0; i < N; ++i) at[1].of<int>()[lu.permutationP().indices()[i]] = i;
  }
};

const bool all = enroll<3, 4>("Add_mm", "Eigen", eigen_add) && enroll<3, 4>("LUDecomp_m", "Eigen", eigen_decompose);

}  // namespace
}  // namespace zelm::bench::rivals
