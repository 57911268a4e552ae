// rivals/add_sub.cpp: sums and differences of objects.
#include "rivals/eigen_types.hpp"
#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

// By type, so that every lambda below has an operation of its own.
struct Plus {
  static constexpr char name[] = "Add";
  static auto of(const auto& a, const auto& b) { return a + b; }
};
struct Minus {
  static constexpr char name[] = "Sub";
  static auto of(const auto& a, const auto& b) { return a - b; }
};

/// Without gaps, arrays of any objects are one long array.
template <class Op, class T>
void plain_run(const T* __restrict a, const T* __restrict b, T* __restrict d, std::ptrdiff_t elements) {
  for (std::ptrdiff_t e = 0; e < elements; ++e) d[e] = Op::of(a[e], b[e]);
}

/// Every object with the same b.
template <class Op, int Size, class T>
void plain_each(const T* __restrict a, const T* __restrict b, T* __restrict d, std::ptrdiff_t count) {
  T held[Size];
  for (int e = 0; e < Size; ++e) held[e] = b[e];
  for (std::ptrdiff_t k = 0; k < count; ++k)
    for (int e = 0; e < Size; ++e) d[k * Size + e] = Op::of(a[k * Size + e], held[e]);
}

/// TA, TB: whether the operand is taken transposed.
template <class Op, int N, bool TA, bool TB, class T>
void plain_transposed(const T* __restrict a, const T* __restrict b, T* __restrict d, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = 0; k < count * N * N; k += N * N)
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j)
        d[k + i * N + j] = Op::of(a[k + (TA ? j * N + i : i * N + j)], b[k + (TB ? j * N + i : i * N + j)]);
}

template <bool Transposed>
decltype(auto) taken(const auto& m) {
  if constexpr (Transposed) return m.transpose();
  else return (m);
}

template <class Op, bool TA, bool TB>
constexpr auto eigen_matrices = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using M = Matrix<T, N>;
  for (std::ptrdiff_t k = first * N * N; k < (first + count) * N * N; k += N * N) {
    const Eigen::Map<const M> a(at[0].of<T>() + k), b(at[1].of<T>() + k);
    Eigen::Map<M>(at[2].of<T>() + k) = Op::of(taken<TA>(a), taken<TB>(b));
  }
};

template <class Op, bool TA, bool TB>
constexpr auto plain_matrices = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const std::ptrdiff_t k = first * N * N;
  plain_transposed<Op, N, TA, TB>(at[0].of<T>() + k, at[1].of<T>() + k, at[2].of<T>() + k, count);
};

/// Shape<T, N>: the type of an object.
template <class Op, template <class, int> class Shape>
constexpr auto eigen_each = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using S = Shape<T, N>;
  constexpr std::ptrdiff_t size = S::SizeAtCompileTime;
  const S b = Eigen::Map<const S>(at[1].of<T>());
  for (std::ptrdiff_t k = first * size; k < (first + count) * size; k += size)
    Eigen::Map<S>(at[2].of<T>() + k) = Op::of(Eigen::Map<const S>(at[0].of<T>() + k), b);
};

template <class Op, template <class, int> class Shape>
constexpr auto plain_one = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  constexpr int size = Shape<T, N>::SizeAtCompileTime;
  plain_each<Op, size>(at[0].of<T>() + first * size, at[1].of<T>(), at[2].of<T>() + first * size, count);
};

template <class Op, template <class, int> class Shape>
constexpr auto eigen_pairs = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using S = Shape<T, N>;
  constexpr std::ptrdiff_t size = S::SizeAtCompileTime;
  for (std::ptrdiff_t k = first * size; k < (first + count) * size; k += size)
    Eigen::Map<S>(at[2].of<T>() + k) = Op::of(Eigen::Map<const S>(at[0].of<T>() + k), Eigen::Map<const S>(at[1].of<T>() + k));
};

template <class Op, template <class, int> class Shape>
constexpr auto plain_pairs = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  constexpr int size = Shape<T, N>::SizeAtCompileTime;
  const std::ptrdiff_t k = first * size;
  plain_run<Op>(at[0].of<T>() + k, at[1].of<T>() + k, at[2].of<T>() + k, count * size);
};

template <class Op>
bool both() {
  const std::string name = Op::name;
  enroll<3, 4, 5, 6>(name + "_mama", "Eigen", eigen_pairs<Op, Matrix>);
  enroll<3, 4, 5, 6>(name + "_mama", "plain", plain_pairs<Op, Matrix>);
  enroll<3, 4, 5, 6>(name + "_vava", "Eigen", eigen_pairs<Op, Vector>);
  enroll<3, 4, 5, 6>(name + "_vava", "plain", plain_pairs<Op, Vector>);
  enroll<3, 4, 5, 6>(name + "_mam", "Eigen", eigen_each<Op, Matrix>);
  enroll<3, 4, 5, 6>(name + "_mam", "plain", plain_one<Op, Matrix>);
  enroll<3, 4, 5, 6>(name + "_vav", "Eigen", eigen_each<Op, Vector>);
  enroll<3, 4, 5, 6>(name + "_vav", "plain", plain_one<Op, Vector>);
  return true;
}

const bool all = both<Plus>() && both<Minus>() && enroll<3, 4, 5, 6>("Add_tama", "Eigen", eigen_matrices<Plus, true, false>) &&
                 enroll<3, 4, 5, 6>("Add_tama", "plain", plain_matrices<Plus, true, false>) &&
                 enroll<3, 4, 5, 6>("Sub_mata", "Eigen", eigen_matrices<Minus, false, true>) &&
                 enroll<3, 4, 5, 6>("Sub_mata", "plain", plain_matrices<Minus, false, true>);

}  // namespace
}  // namespace zelm::bench::rivals
