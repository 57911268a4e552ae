// accuracy.hpp: what the tests of numerical soundness share: matrices of Eigen, roundings, and kinds of matrices.
#pragma once
#include <Eigen/Core>
#include <limits>

#include "support/harness.hpp"

namespace zelm::test {

using Exact = Eigen::Matrix<long double, Eigen::Dynamic, Eigen::Dynamic>;
template <class T>
using Matrix = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

/// k u / (1 - k u), the bound on k roundings in a row.
template <class T>
long double gamma(int k) {
  const long double u = std::numeric_limits<T>::epsilon() / 2.0L;
  return k * u / (1 - k * u);
}

enum class Kind { random, graded, nearly_singular };
inline constexpr Kind kKinds[] = {Kind::random, Kind::graded, Kind::nearly_singular};

inline std::string trace(const std::string& type, int n, Kind kind) {
  return type + " order " + std::to_string(n) + " kind " + std::to_string(int(kind));
}

template <class T>
std::vector<T> values(const Matrix<T>& a) {
  return {a.data(), a.data() + a.size()};
}

/// The exported function, on tight memory.
template <class T>
ZelStatus call(const std::string& name, const Sizes& sizes, Data<T>& data) {
  Scene scene(function(name), sizes, memories()[0]);
  return scene.run(scene.roads({})[0], data);
}

}  // namespace zelm::test
