// rivals/constants.cpp: objects with constants. Operands: objects, constants, results.
#include <Eigen/Core>

#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

template <class T, int Size>
using Elements = Eigen::Array<T, Size, 1>;

// By type, so that every lambda below has an operation of its own.
struct Plus {
  static auto of(const auto& a, auto c) { return a + c; }
};
struct SubtractedFrom {
  static auto of(const auto& a, auto c) { return c - a; }
};
struct Times {
  static auto of(const auto& a, auto c) { return a * c; }
};

/// Without gaps, arrays of any objects are one long array.
template <class Op, class T>
void plain_run(const T* __restrict a, T c, T* __restrict d, std::ptrdiff_t elements) {
  for (std::ptrdiff_t e = 0; e < elements; ++e) d[e] = Op::of(a[e], c);
}

/// Size: elements of an object of size N.
constexpr auto vector = [](int n) { return n; };
constexpr auto matrix = [](int n) { return n * n; };

template <class Op, auto Size>
constexpr auto eigen_one = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  constexpr int size = Size(N);
  const T c = *at[1].of<T>();
  for (std::ptrdiff_t k = first * size; k < (first + count) * size; k += size)
    Eigen::Map<Elements<T, size>>(at[2].of<T>() + k) = Op::of(Eigen::Map<const Elements<T, size>>(at[0].of<T>() + k), c);
};

template <class Op, auto Size>
constexpr auto plain_one = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  constexpr int size = Size(N);
  plain_run<Op>(at[0].of<T>() + first * size, *at[1].of<T>(), at[2].of<T>() + first * size, count * size);
};

template <class Op>
constexpr auto eigen_long = []<class T, int>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using A = Elements<T, Eigen::Dynamic>;
  Eigen::Map<A>(at[2].of<T>() + first, count) = Op::of(Eigen::Map<const A>(at[0].of<T>() + first, count), *at[1].of<T>());
};

/// The same vector again and again. Memory may have changed, so that nothing of the work can be left out.
template <class Op>
constexpr auto eigen_again = []<class T, int N>(const Array* at, std::ptrdiff_t, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    Eigen::Map<Elements<T, N>>(at[2].of<T>()) = Op::of(Eigen::Map<const Elements<T, N>>(at[0].of<T>()), *at[1].of<T>());
    asm volatile("" ::: "memory");
  }
};

template <class Op>
constexpr auto eigen_each = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    Eigen::Map<Elements<T, N>>(at[2].of<T>() + k * N) =
        Op::of(Eigen::Map<const Elements<T, N>>(at[0].of<T>() + k * N), at[1].of<T>()[k]);
};

template <class Op>
constexpr auto plain_each = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const T* __restrict const a = at[0].of<T>(), * __restrict const c = at[1].of<T>();
  T* __restrict const d = at[2].of<T>();
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    for (int e = 0; e < N; ++e) d[k * N + e] = Op::of(a[k * N + e], c[k]);
};

template <class Op>
constexpr auto eigen_same = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const Elements<T, N> a = Eigen::Map<const Elements<T, N>>(at[0].of<T>());
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    Eigen::Map<Elements<T, N>>(at[2].of<T>() + k * N) = Op::of(a, at[1].of<T>()[k]);
};

template <class Op>
constexpr auto plain_same = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const T* __restrict const c = at[1].of<T>();
  T* __restrict const d = at[2].of<T>();
  T a[N];
  for (int e = 0; e < N; ++e) a[e] = at[0].of<T>()[e];
  for (std::ptrdiff_t k = first; k < first + count; ++k)
    for (int e = 0; e < N; ++e) d[k * N + e] = Op::of(a[e], c[k]);
};

constexpr auto eigen_transposed = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using M = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  const T c = *at[1].of<T>();
  for (std::ptrdiff_t k = first * N * N; k < (first + count) * N * N; k += N * N)
    Eigen::Map<M>(at[2].of<T>() + k) = Eigen::Map<const M>(at[0].of<T>() + k).transpose() * c;
};

constexpr auto plain_transposed = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  const T* __restrict const a = at[0].of<T>();
  T* __restrict const d = at[2].of<T>();
  const T c = *at[1].of<T>();
  for (std::ptrdiff_t k = first * N * N; k < (first + count) * N * N; k += N * N)
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j) d[k + i * N + j] = a[k + j * N + i] * c;
};

const bool all = enroll<1>("Add_vc", "Eigen", eigen_long<Plus>) &&               //
                 enroll<1>("Add_vc", "plain", plain_one<Plus, vector>) &&        //
                 enroll<3, 4, 16, 100>("Add_vc", "Eigen", eigen_again<Plus>) &&  //
                 enroll<3, 4, 16, 100>("Add_vac", "Eigen", eigen_one<Plus, vector>) &&
                 enroll<3, 4, 16, 100>("Add_vac", "plain", plain_one<Plus, vector>) &&
                 enroll<3, 4, 16, 100>("Sub_cva", "Eigen", eigen_one<SubtractedFrom, vector>) &&
                 enroll<3, 4, 16, 100>("Sub_cva", "plain", plain_one<SubtractedFrom, vector>) &&
                 enroll<3, 4, 16, 100>("Mul_vaca", "Eigen", eigen_each<Times>) &&
                 enroll<3, 4, 16, 100>("Mul_vaca", "plain", plain_each<Times>) &&
                 enroll<3, 4, 16, 100>("Add_vca", "Eigen", eigen_same<Plus>) &&
                 enroll<3, 4, 16, 100>("Add_vca", "plain", plain_same<Plus>) &&
                 enroll<3, 4, 5, 6>("Mul_mac", "Eigen", eigen_one<Times, matrix>) &&
                 enroll<3, 4, 5, 6>("Mul_mac", "plain", plain_one<Times, matrix>) &&
                 enroll<3, 4, 5, 6>("Mul_tac", "Eigen", eigen_transposed) &&
                 enroll<3, 4, 5, 6>("Mul_tac", "plain", plain_transposed);

}  // namespace
}  // namespace zelm::bench::rivals
