// rivals/products.cpp: products of two matrices.
#include <Eigen/Core>

#include "rivals/rival.hpp"

#ifdef ZELM_LIBXSMM
#include <libxsmm.h>
#endif

namespace zelm::bench::rivals {
namespace {

/// Rows of `slot` elements, elements `step` apart.
template <class T, int N, int slot = N, int step = 1>
using Memory = Eigen::Map<Eigen::Matrix<T, N, N, Eigen::RowMajor>, 0, Eigen::Stride<slot, step>>;

template <bool Transposed>
decltype(auto) taken(const auto& m) {
  if constexpr (Transposed) return m.transpose();
  else return (m);
}

/// One: A or B is the same for all objects, and copied before the loop.
enum class One { none, left, right };

template <bool TA, bool TB, One one>
constexpr auto eigen_product = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using M = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  const M held = Eigen::Map<const M>(at[one == One::left ? 0 : 1].of<T>());
  for (std::ptrdiff_t k = first * N * N; k < (first + count) * N * N; k += N * N) {
    const auto map = [&](int o) { return Eigen::Map<M>(at[o].of<T>() + k); };
    if constexpr (one == One::left) map(2).noalias() = taken<TA>(held) * taken<TB>(map(1));
    else if constexpr (one == One::right) map(2).noalias() = taken<TA>(map(0)) * taken<TB>(held);
    else map(2).noalias() = taken<TA>(map(0)) * taken<TB>(map(1));
  }
};

template <int slot_of_3, int step>
constexpr auto eigen_spaced = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  constexpr int slot = slot_of_3 ? slot_of_3 : N * step;
  for (std::ptrdiff_t k = first * N * slot; k < (first + count) * N * slot; k += N * slot) {
    const auto map = [&](int o) { return Memory<T, N, slot, step>(at[o].of<T>() + k); };
    map(2).noalias() = map(0) * map(1);
  }
};

/// `slot`, `step` as above, 0 for a slot without gaps.
template <bool TA, bool TB, One one, int slot_of_3 = 0, int step = 1>
constexpr auto plain_product = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  constexpr std::ptrdiff_t slot = slot_of_3 ? slot_of_3 : N * step, size = N * slot;
  const T* __restrict a = at[0].of<T>() + (one == One::left ? 0 : first * size);
  const T* __restrict b = at[1].of<T>() + (one == One::right ? 0 : first * size);
  T* __restrict d = at[2].of<T>() + first * size;
  T held[N * N];
  if (one != One::none)
    for (int e = 0; e < N * N; ++e) held[e] = (one == One::left ? a : b)[e];
  for (std::ptrdiff_t k = 0; k < count * size; k += size)
    for (int i = 0; i < N; ++i) {
      T sum[N] = {};
      for (int m = 0; m < N; ++m)
        for (int j = 0; j < N; ++j) {
          const T* const x = one == One::left ? held : a + k;
          const T* const y = one == One::right ? held : b + k;
          sum[j] += x[TA ? m * slot + i * step : i * slot + m * step] * y[TB ? j * slot + m * step : m * slot + j * step];
        }
      for (int j = 0; j < N; ++j) d[k + i * slot + j * step] = sum[j];
    }
};

#ifdef ZELM_LIBXSMM
/// Code that it makes at run time for the size, for column-major matrices: D^T = B^T A^T.
template <One one>
constexpr auto libxsmm_product = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  static const auto kernel = [] {
    libxsmm_init();
    if (std::string(ZELM_LIBXSMM) != "native") libxsmm_set_target_arch(ZELM_LIBXSMM);
    const T alpha = 1, beta = 0;
    const int flags = LIBXSMM_GEMM_FLAG_NONE;
    if constexpr (sizeof(T) == 4)
      return libxsmm_smmdispatch(N, N, N, nullptr, nullptr, nullptr, &alpha, &beta, &flags, nullptr);
    else return libxsmm_dmmdispatch(N, N, N, nullptr, nullptr, nullptr, &alpha, &beta, &flags, nullptr);
  }();
  for (std::ptrdiff_t k = first * N * N; k < (first + count) * N * N; k += N * N)
    kernel(at[1].of<T>() + (one == One::right ? 0 : k), at[0].of<T>() + (one == One::left ? 0 : k), at[2].of<T>() + k);
};
#endif

/// The same pair again and again.
constexpr auto eigen_one = []<class T, int N>(const Array* at, std::ptrdiff_t, std::ptrdiff_t count) {
  using M = Eigen::Map<Eigen::Matrix<T, N, N, Eigen::RowMajor>>;
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    M(at[2].of<T>()).noalias() = M(at[0].of<T>()) * M(at[1].of<T>());
    asm volatile("" ::: "memory");
  }
};

template <One one>
bool untransposed(const char* operation) {
#ifdef ZELM_LIBXSMM
  enroll<3, 4, 5, 6, 8, 12, 16>(operation, "libxsmm", libxsmm_product<one>);
#endif
  return enroll<3, 4, 5, 6, 8, 12, 16>(operation, "Eigen", eigen_product<false, false, one>) &&
         enroll<3, 4, 5, 6, 8, 12, 16>(operation, "plain", plain_product<false, false, one>);
}

const bool all = untransposed<One::none>("Mul_mama") && untransposed<One::left>("Mul_mma") &&
                 untransposed<One::right>("Mul_mam") && enroll<3, 4>("Mul_mm", "Eigen", eigen_one) &&
                 enroll<3, 4, 5, 6>("Mul_mata", "Eigen", eigen_product<false, true, One::none>) &&
                 enroll<3, 4, 5, 6>("Mul_mata", "plain", plain_product<false, true, One::none>) &&
                 enroll<3, 4, 5, 6>("Mul_tama", "Eigen", eigen_product<true, false, One::none>) &&
                 enroll<3, 4, 5, 6>("Mul_tama", "plain", plain_product<true, false, One::none>) &&
                 enroll<3, 4, 5, 6>("Mul_mama_S2", "Eigen", eigen_spaced<0, 2>) &&
                 enroll<3, 4, 5, 6>("Mul_mama_S2", "plain", plain_product<false, false, One::none, 0, 2>) &&
                 enroll<3>("Mul_mama_slots", "Eigen", eigen_spaced<4, 1>) &&
                 enroll<3>("Mul_mama_slots", "plain", plain_product<false, false, One::none, 4, 1>);

}  // namespace
}  // namespace zelm::bench::rivals
