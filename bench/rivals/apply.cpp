// rivals/apply.cpp: a matrix applied to vectors, and gaxpy. Operands: matrices, vectors, (addends,) results.
#include "rivals/eigen_types.hpp"
#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

/// Which operands are one object for all, which matrix is turned, and whether there is an addend.
struct Form {
  bool one_matrix, one_vector, turned, adds, one_addend;
};

template <Form form>
constexpr auto eigen = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using V = Vector<T, N>;
  using M = Matrix<T, N>;
  const M same = Eigen::Map<const M>(at[0].of<T>());
  const V same_x = Eigen::Map<const V>(at[1].of<T>()), same_y = Eigen::Map<const V>(at[2].of<T>());
  for (std::ptrdiff_t k = first; k < first + count; ++k) {
    const auto apply = [&](const auto& a, const auto& x) {
      Eigen::Map<V> d(at[form.adds ? 3 : 2].of<T>() + k * N);
      const auto put = [&](const auto& product) {
        if constexpr (!form.adds) d.noalias() = product;
        else if constexpr (form.one_addend) d = product + same_y;
        else d = product + Eigen::Map<const V>(at[2].of<T>() + k * N);
      };
      if constexpr (form.turned) put(a.transpose() * x);
      else put(a * x);
    };
    const Eigen::Map<const V> x(at[1].of<T>() + (form.one_vector ? 0 : k * N));
    if constexpr (form.one_matrix) apply(same, x);
    else if constexpr (form.one_vector) apply(Eigen::Map<const M>(at[0].of<T>() + k * N * N), same_x);
    else apply(Eigen::Map<const M>(at[0].of<T>() + k * N * N), x);
  }
};

/// op(A) by columns, which a compiler makes wide where the columns are contiguous; one matrix is turned to that once.
template <Form form>
constexpr auto plain = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  T columns[N][N];
  const auto fill = [&](const T* __restrict a) {
    for (int k = 0; k < N; ++k)
      for (int i = 0; i < N; ++i) columns[k][i] = form.turned ? a[k * N + i] : a[i * N + k];
  };
  if (form.one_matrix) fill(at[0].of<T>());
  T* __restrict const d = at[form.adds ? 3 : 2].of<T>();
  for (std::ptrdiff_t n = first; n < first + count; ++n) {
    if (!form.one_matrix) fill(at[0].of<T>() + n * N * N);
    const T* __restrict const x = at[1].of<T>() + (form.one_vector ? 0 : n * N);
    T z[N];
    for (int i = 0; i < N; ++i) z[i] = columns[0][i] * x[0];
    for (int k = 1; k < N; ++k)
      for (int i = 0; i < N; ++i) z[i] += columns[k][i] * x[k];
    if constexpr (form.adds) {
      const T* __restrict const y = at[2].of<T>() + (form.one_addend ? 0 : n * N);
      for (int i = 0; i < N; ++i) z[i] += y[i];
    }
    for (int i = 0; i < N; ++i) d[n * N + i] = z[i];
  }
};

template <int... N, Form form>
bool both(const char* operation, std::integral_constant<Form, form>) {
  return enroll<N...>(operation, "Eigen", eigen<form>) && enroll<N...>(operation, "plain", plain<form>);
}
template <Form form>
constexpr std::integral_constant<Form, form> of;

const bool all =
    both<3, 4, 5, 6, 8, 12>("Mul_mva", of<Form{.one_matrix = true}>) && both<3, 4, 5, 6, 8, 12>("Mul_mava", of<Form{}>) &&
    both<3, 4, 5, 6, 12>("Mul_tva", of<Form{.one_matrix = true, .turned = true}>) &&
    both<3, 4, 5, 6>("Mul_tava", of<Form{.turned = true}>) && both<3, 4, 5, 6>("Mul_mav", of<Form{.one_vector = true}>) &&
    both<3, 4, 5, 6>("Gaxpy_mva", of<Form{.one_matrix = true, .adds = true}>) &&
    both<3, 4, 5, 6>("Gaxpy_mvav", of<Form{.one_matrix = true, .adds = true, .one_addend = true}>);

}  // namespace
}  // namespace zelm::bench::rivals
