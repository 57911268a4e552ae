// rivals/saxpy_lcomb.cpp: scaled sums of vectors. Operands: first vectors, second vectors, results, scale factors.
#include "rivals/eigen_types.hpp"
#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

// By type, so that every lambda below has a formula of its own.
struct Saxpy {
  static auto of(const auto& a, const auto& b, const auto* val) { return a * val[0] + b; }
};
struct Combination {
  static auto of(const auto& a, const auto& b, const auto* val) { return a * val[0] + b * val[1]; }
};

template <class Formula>
constexpr auto eigen_pairs = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using V = Vector<T, N>;
  const T val[] = {at[3].of<T>()[0], at[3].of<T>()[1]};
  for (std::ptrdiff_t k = first * N; k < (first + count) * N; k += N)
    Eigen::Map<V>(at[2].of<T>() + k) =
        Formula::of(Eigen::Map<const V>(at[0].of<T>() + k), Eigen::Map<const V>(at[1].of<T>() + k), val);
};

/// Without gaps, arrays of vectors are one long vector.
template <class Formula>
constexpr auto plain_pairs = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const T* __restrict const a = at[0].of<T>(), * __restrict const b = at[1].of<T>();
  T* __restrict const d = at[2].of<T>();
  const T val[] = {at[3].of<T>()[0], at[3].of<T>()[1]};
  for (std::ptrdiff_t e = first * N; e < (first + count) * N; ++e) d[e] = Formula::of(a[e], b[e], val);
};

/// The product is the same for all.
constexpr auto eigen_one = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using V = Vector<T, N>;
  const V scaled = Eigen::Map<const V>(at[0].of<T>()) * *at[3].of<T>();
  for (std::ptrdiff_t k = first * N; k < (first + count) * N; k += N)
    Eigen::Map<V>(at[2].of<T>() + k) = scaled + Eigen::Map<const V>(at[1].of<T>() + k);
};

constexpr auto plain_one = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const T* __restrict const b = at[1].of<T>();
  T* __restrict const d = at[2].of<T>();
  T scaled[N];
  for (int e = 0; e < N; ++e) scaled[e] = at[0].of<T>()[e] * *at[3].of<T>();
  for (std::ptrdiff_t k = first * N; k < (first + count) * N; k += N)
    for (int e = 0; e < N; ++e) d[k + e] = scaled[e] + b[k + e];
};

const bool all = enroll<3, 4, 16, 100>("Saxpy_vva", "Eigen", eigen_one) &&
                 enroll<3, 4, 16, 100>("Saxpy_vva", "plain", plain_one) &&
                 enroll<3, 4, 16, 100>("Saxpy_vava", "Eigen", eigen_pairs<Saxpy>) &&
                 enroll<3, 4, 16, 100>("Saxpy_vava", "plain", plain_pairs<Saxpy>) &&
                 enroll<3, 4, 16, 100>("LComb_vava", "Eigen", eigen_pairs<Combination>) &&
                 enroll<3, 4, 16, 100>("LComb_vava", "plain", plain_pairs<Combination>);

}  // namespace
}  // namespace zelm::bench::rivals
