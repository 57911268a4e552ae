// rivals/geometry.cpp: vectors by one 4 x 4 matrix, which Eigen and GLM, whose columns lie together, read as its transpose.
// Operands of the arrays: vectors, matrices, results.
#define GLM_FORCE_DEPTH_ZERO_TO_ONE
#include <Eigen/Core>
#include <glm/glm.hpp>
#include <glm/gtc/matrix_transform.hpp>
#include <glm/gtc/type_ptr.hpp>

#include "rivals/rival.hpp"

namespace zelm::bench::rivals {
namespace {

// What becomes of the four sums.
enum class Then { all_four, divide, direction, project };
constexpr int results(Then then) { return then == Then::all_four ? 4 : 3; }

constexpr float kWidth = 800, kHeight = 600;

template <class T>
using Matrix = glm::mat<4, 4, T>;
template <class T>
Matrix<T> matrix(const Array& a, int index = 0) {
  return glm::make_mat4(a.of<T>() + 16 * index);
}

/// The one matrix of projection, view and world.
template <Then then, class T>
Matrix<T> composed(const Array& a) {
  if constexpr (then == Then::project) return matrix<T>(a) * matrix<T>(a, 1) * matrix<T>(a, 2);
  else return matrix<T>(a);
}

template <Then then>
constexpr auto glm_loop = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  constexpr int out = then == Then::divide ? N : results(then);
  const Matrix<T> m = composed<then, T>(at[1]);
  const T* const s = at[0].of<T>();
  T* const d = at[2].of<T>();
  for (std::ptrdiff_t k = first; k < first + count; ++k) {
    glm::vec<4, T> v(0, 0, 0, then == Then::direction ? 0 : 1);
    for (int j = 0; j < N; ++j) v[j] = s[N * k + j];
    glm::vec<4, T> p = m * v;
    if constexpr (then == Then::divide || then == Then::project) p /= p.w;
    if constexpr (then == Then::project)
      p = glm::vec<4, T>((p.x * T(.5) + T(.5)) * kWidth, (T(.5) - p.y * T(.5)) * kHeight, p.z, 1);
    for (int j = 0; j < out; ++j) d[out * k + j] = p[j];
  }
};

template <Then then>
constexpr auto eigen_loop = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  using V4 = Eigen::Matrix<T, 4, 1>;
  constexpr int out = then == Then::divide ? N : results(then);
  const Matrix<T> glm_m = composed<then, T>(at[1]);
  const Eigen::Matrix<T, 4, 4> m = Eigen::Map<const Eigen::Matrix<T, 4, 4>>(glm::value_ptr(glm_m));
  for (std::ptrdiff_t k = first; k < first + count; ++k) {
    V4 v(0, 0, 0, then == Then::direction ? 0 : 1);
    v.template head<N>() = Eigen::Map<const Eigen::Matrix<T, N, 1>>(at[0].of<T>() + N * k);
    V4 p = m * v;
    if constexpr (then == Then::divide || then == Then::project) p /= p[3];
    if constexpr (then == Then::project)
      p = V4(kWidth / 2, kHeight / 2, 0, 0) + V4(kWidth / 2, -kHeight / 2, 1, 0).cwiseProduct(p);
    Eigen::Map<Eigen::Matrix<T, out, 1>>(at[2].of<T>() + out * k) = p.template head<out>();
  }
};

template <Then then>
constexpr auto plain_loop = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  constexpr int out = then == Then::divide ? N : results(then);
  constexpr bool divides = then == Then::divide || then == Then::project;
  const Matrix<T> glm_m = composed<then, T>(at[1]);
  T m[16];
  for (int e = 0; e < 16; ++e) m[e] = glm::value_ptr(glm_m)[e];
  const T* __restrict const s = at[0].of<T>();
  T* __restrict const d = at[2].of<T>();
  for (std::ptrdiff_t k = first; k < first + count; ++k) {
    T sum[4];
    for (int c = 0; c < 4; ++c) {
      sum[c] = N == 4 || then == Then::direction ? 0 : m[12 + c];
      for (int j = 0; j < N; ++j) sum[c] += s[N * k + j] * m[4 * j + c];
    }
    if constexpr (then == Then::project) {
      d[3 * k] = kWidth / 2 * (sum[0] / sum[3] + 1);
      d[3 * k + 1] = kHeight / 2 * (1 - sum[1] / sum[3]);
      d[3 * k + 2] = sum[2] / sum[3];
    } else {
      for (int j = 0; j < out; ++j) d[out * k + j] = divides ? sum[j] / sum[3] : sum[j];
    }
  }
};

/// Column vectors: the same with the matrix transposed.
template <auto loop>
constexpr auto by_columns = []<class T, int N>(const Array* at, std::ptrdiff_t first, std::ptrdiff_t count) {
  Matrix<T> m = glm::transpose(matrix<T>(at[1]));
  const Array turned[] = {at[0], {glm::value_ptr(m)}, at[2]};
  loop.template operator()<T, N>(turned, first, count);
};

void forget() { asm volatile("" ::: "memory"); }

template <class T>
glm::vec<3, T> vector(const Array& a) {
  return glm::make_vec3(a.of<T>());
}
template <class T>
void put(const Matrix<T>& m, const Array& to) {
  *reinterpret_cast<Matrix<T>*>(to.of<T>()) = m;
}

constexpr auto glm_look_at = []<class T, int>(const Array* at, std::ptrdiff_t, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = 0; k < count; ++k, forget())
    put<T>(glm::lookAtLH(vector<T>(at[0]), vector<T>(at[1]), vector<T>(at[2])), at[3]);
};
constexpr auto glm_product = []<class T, int>(const Array* at, std::ptrdiff_t, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = 0; k < count; ++k, forget()) put<T>(matrix<T>(at[1]) * matrix<T>(at[0]), at[2]);
};
constexpr auto glm_inverse = []<class T, int>(const Array* at, std::ptrdiff_t, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = 0; k < count; ++k, forget()) put<T>(glm::inverse(matrix<T>(at[0])), at[1]);
};
constexpr auto glm_normalize = []<class T, int>(const Array* at, std::ptrdiff_t, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = 0; k < count; ++k, forget())
    *reinterpret_cast<glm::vec<3, T>*>(at[1].of<T>()) = glm::normalize(vector<T>(at[0]));
};

template <Then then, int N>
bool loops(const char* operation) {
  return enroll<N>(operation, "Eigen", eigen_loop<then>) && enroll<N>(operation, "GLM", glm_loop<then>) &&
         enroll<N>(operation, "plain", plain_loop<then>);
}

const bool all = loops<Then::all_four, 3>("AffineTransform_m4v3a") && loops<Then::all_four, 4>("AffineTransform_m4v4a") &&
                 loops<Then::divide, 2>("AffineTransformCoord_m4v2a") && loops<Then::divide, 3>("AffineTransformCoord_m4v3a") &&
                 loops<Then::direction, 3>("AffineTransformNormal_m4v3a") && loops<Then::project, 3>("Project_m4v3a") &&
                 enroll<3>("AffineTransform3DH_mva", "Eigen", by_columns<eigen_loop<Then::divide>>) &&
                 enroll<3>("AffineTransform3DH_mva", "GLM", by_columns<glm_loop<Then::divide>>) &&
                 enroll<3>("AffineTransform3DH_mva", "plain", by_columns<plain_loop<Then::divide>>) &&
                 enroll<3>("LookAtLH_m4", "GLM", glm_look_at) && enroll<4>("Mul_mm4x4", "GLM", glm_product) &&
                 enroll<4>("Invert_m4", "GLM", glm_inverse) && enroll<3>("Normalize_v3", "GLM", glm_normalize);

}  // namespace
}  // namespace zelm::bench::rivals
