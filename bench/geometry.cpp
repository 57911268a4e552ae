// geometry.cpp: transforms of packed vectors, and calls for single matrices and vectors.
#include <zelm.h>

#include "frame.hpp"

namespace zelm::bench {
namespace {

/// Near the identity, w from 2 to 4 for the points of the default fill: nothing is divided by almost zero. Row vectors, or column
/// vectors if `transposed`.
void fill_matrix(float* m, bool transposed = false) {
  fill_uniform(m, 16);
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) {
      float& e = m[transposed ? 4 * j + i : 4 * i + j];
      e = .3f * e + (i != j ? 0.f : j < 3 ? 1.f : 3.f);
    }
}

/// Operands of all: vectors, matrices, results.
Case vectors(const char* operation, int in_floats, int out_floats, int matrices, double ratio) {
  Case c{.operation = operation, .type = "32f", .n = in_floats};
  c.operands = {in<float>(in_floats), single(in<float>(16 * matrices)), out<float>(out_floats)};
  c.fill = [=](const Array* at, int count) {
    fill_uniform(at[0].of<float>(), std::size_t(count) * std::size_t(in_floats));
    for (int m = 0; m < matrices; ++m) fill_matrix(at[1].of<float>() + 16 * m);
  };
  c.tolerance = 1e-5;
  c.limits = {{ratio, "SSE4.2", {Set::l1}}, {1.15, "copy", {Set::memory}}};
  return c;
}

template <class F>
bool transform(const char* operation, int in_floats, int out_floats, double ratio, F f) {
  Case c = vectors(operation, in_floats, out_floats, 1, ratio);
  c.call = [=](const Array* at, int count) {
    return f(at[1].of<float>(), at[0].of<float>(), 4 * in_floats, at[2].of<float>(), 4 * out_floats, count);
  };
  return measure(c);
}

template <class F>
bool screen(const char* operation, F f) {
  Case c = vectors(operation, 3, 3, 3, .75);
  c.call = [=](const Array* at, int count) {
    const float* const m = at[1].of<float>();
    return f(m, m + 16, m + 32, at[0].of<float>(), 12, 800, 600, 0, 1, at[2].of<float>(), 12, count);
  };
  return measure(c);
}

bool homogeneous() {
  Case c = vectors("AffineTransform3DH_mva", 3, 3, 1, .75);
  const auto fill = c.fill;
  c.fill = [=](const Array* at, int count) {
    fill(at, count);
    fill_matrix(at[1].of<float>(), true);
  };
  c.call = [](const Array* at, int count) {
    return zelmAffineTransform3DH_mva_32f(at[1].of<float>(), 16, 4, at[0].of<float>(), 12, 4, at[2].of<float>(), 12, 4, count);
  };
  return measure(c);
}

/// A call for one object, against GLM inlined.
template <class One>
bool one(const char* operation, int n, int sources, int in_floats, int out_floats, One call) {
  Case c{.operation = operation, .type = "32f", .n = n};
  for (int s = 0; s < sources; ++s) c.operands.push_back(single(in<float>(in_floats)));
  c.operands.push_back(single(out<float>(out_floats)));
  if (in_floats == 16)
    c.fill = [=](const Array* at, int) {
      for (int s = 0; s < sources; ++s) fill_matrix(at[s].of<float>());
    };
  c.call = repeated(call);
  c.tolerance = 1e-5;
  c.limits = {{1.2, "GLM SSE4.2", {Set::call}}};
  c.sets = {Set::call};
  c.threads = {1};
  return measure(c);
}

const bool all =
    transform("AffineTransform_m4v3a", 3, 4, .95, zelmAffineTransform_m4v3a_32f) &&
    transform("AffineTransform_m4v4a", 4, 4, .95, zelmAffineTransform_m4v4a_32f) &&
    transform("AffineTransformCoord_m4v2a", 2, 2, 1.05, zelmAffineTransformCoord_m4v2a_32f) &&
    transform("AffineTransformCoord_m4v3a", 3, 3, .75, zelmAffineTransformCoord_m4v3a_32f) &&
    transform("AffineTransformNormal_m4v3a", 3, 3, .95, zelmAffineTransformNormal_m4v3a_32f) &&
    screen("Project_m4v3a", zelmProject_m4v3a_32f) && homogeneous() &&
    one("LookAtLH_m4", 3, 3, 3, 16,
        [](const Array* at) {
          return zelmLookAtLH_m4_32f(at[0].of<float>(), at[1].of<float>(), at[2].of<float>(), at[3].of<float>());
        }) &&
    one("Mul_mm4x4", 4, 2, 16, 16,
        [](const Array* at) { return zelmMul_mm4x4_32f(at[0].of<float>(), at[1].of<float>(), at[2].of<float>()); }) &&
    one("Invert_m4", 4, 1, 16, 16,
        [](const Array* at) { return zelmInvert_m4_32f(at[0].of<float>(), nullptr, at[1].of<float>()); }) &&
    one("Normalize_v3", 3, 1, 3, 3, [](const Array* at) { return zelmNormalize_v3_32f(at[0].of<float>(), at[1].of<float>()); });

}  // namespace
}  // namespace zelm::bench
