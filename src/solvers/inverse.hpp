// inverse.hpp: the inverse of square matrices. dst may be src, but for orders 2 and 7 upward.
//
// Orders 3 to 6 invert several objects at once, one in each lane: by cofactors, or, contiguous float matrices of orders 5 and
// 6, by column pivoting down to a block of order 4. A block with a singular object is done again object by object. All other
// orders take every cofactor from an elimination of its own (inverse_adjugate.cpp). Which kernel takes its reciprocals how, and
// which limit it sets for a determinant, is settled kernel by kernel (the policies below); all limits are absolute. The error
// of adj(A) / det(A) is bounded by those of the determinants, not by a residual; tests/solvers/inverse_test.cpp derives the
// bounds and measures them beside Eigen's. Cofactors: Horn and Johnson, Matrix Analysis, 2nd ed., sections 0.3 and 0.8.2.
#pragma once
#include "frame/lanes.hpp"
#include "solvers/elimination.hpp"
#include "solvers/inverse_adjugate.hpp"
#include "solvers/inverse_kernels.hpp"
#include "solvers/minors.hpp"

namespace zelm::solvers::inverse {

// What the kernels do not have in common

enum class Method {
  division,  // cofactors times 1 / det
  newton,    // the same with an approximate reciprocal and one step of Newton's
  pivoting   // column pivoting down to order 4, all reciprocals as before
};

struct AnyStride {
  static constexpr Method method(int) { return Method::division; }
  static constexpr int limit_factor(int) { return 1; }
  static constexpr bool kernel(int) { return false; }  // has its function in inverse_kernels.hpp
  static constexpr bool pairs = false;                 // inverts aligned 4 x 4 matrices in pairs
};
struct Contiguous64 : AnyStride {
  static constexpr int limit_factor(int n) { return n <= 4 ? 2 : 1; }
  static constexpr bool kernel(int) { return true; }
};
struct Contiguous32 : AnyStride {
  static constexpr Method method(int n) { return n <= 4 ? Method::newton : Method::pivoting; }
  static constexpr bool kernel(int) { return true; }
};
struct ContiguousArray32 : Contiguous32 {
  static constexpr Method method(int n) { return n == 3 ? Method::division : Contiguous32::method(n); }
  static constexpr bool kernel(int n) { return n != 3; }
  static constexpr bool pairs = true;
};

template <class T, int N>
inline constexpr ZelStatus (*kKernel)(const T*, int, T*, int) = nullptr;
template <>
inline constexpr auto kKernel<float, 3> = p8_ownzelmInvert_m_32f_3x3;
template <>
inline constexpr auto kKernel<float, 4> = p8_ownzelmInvert_m_32f_4x4;
template <>
inline constexpr auto kKernel<float, 5> = p8_ownzelmInvert_m_32f_5x5;
template <>
inline constexpr auto kKernel<float, 6> = p8_ownzelmInvert_m_32f_6x6;
template <>
inline constexpr auto kKernel<double, 3> = p8_ownzelmInvert_m_64f_3x3;
template <>
inline constexpr auto kKernel<double, 4> = p8_ownzelmInvert_m_64f_4x4;
template <>
inline constexpr auto kKernel<double, 5> = p8_ownzelmInvert_m_64f_5x5_PX;
template <>
inline constexpr auto kKernel<double, 6> = p8_ownzelmInvert_m_64f_6x6_PX;

// One object in each lane

template <Method method, class T>
ZELM_INLINE Pack<T> reciprocal(Pack<T> x) {
  if constexpr (method == Method::division) {
    return Pack<T>::splat(T(1)) / x;
  } else {
    const Pack<T> r = approximate_reciprocal(x);
    return r + r - x * r * r;
  }
}

/// e becomes its inverse. Returns the mask of the singular lanes, whose e is of no use.
template <Method method, class T, int N>
ZELM_INLINE Pack<T> invert_by_cofactors(Pack<T> (&e)[N][N], T limit) {
  Pack<T> c[N][N];
  cofactors(e, c);
  Pack<T> det = e[0][0] * c[0][0];
  ZELM_UNROLL for (int i = 1; i < N; ++i) det = det + e[i][0] * c[i][0];
  const Pack<T> r = reciprocal<method>(det);
  ZELM_UNROLL for (int i = 0; i < N; ++i) { ZELM_UNROLL for (int j = 0; j < N; ++j) e[i][j] = c[j][i] * r; }
  return Pack<T>::splat(limit) > abs(det);
}

/// One copy for all layouts where the elements do not fit the registers anyway.
template <Method method, class T, int N>
__attribute__((noinline)) Pack<T> invert_apart(Pack<T> (&e)[N][N], T limit) {
  return invert_by_cofactors<method>(e, limit);
}

template <class T, int N, class How>
struct ByCofactors {
  static constexpr T limit = How::limit_factor(N) * smallest_determinant<T>(N);
  Lanes<T, N, N> m;

  ZELM_INLINE Pack<T> run() {
    if constexpr (N <= 4) return invert_by_cofactors<How::method(N)>(m.e, limit);
    else return invert_apart<How::method(N)>(m.e, limit);
  }
  template <Memory memory, class View>
  ZELM_INLINE void store(const View& view, std::ptrdiff_t k) const {
    m.template store_block<memory>(view, k);
  }
  template <class Object>
  ZELM_INLINE void store_first(const Object& d, bool singular) const {
    if (singular) return;
    ZELM_UNROLL for (int i = 0; i < N; ++i) {
      ZELM_UNROLL for (int j = 0; j < N; ++j) m.e[i][j].template scatter<1>([&](int) { return d.at(i, j); });
    }
  }
};

/// With pivot a, row b and column c beside it, and T the inverse of the Schur complement of a, the inverse is
///   [ r + r b T c r   -r b T ]
///   [ -T c r           T     ],   r = 1 / a   (Horn and Johnson, section 0.7.3).
template <class T, int N>
struct ByPivoting {
  using P = Pack<T>;
  static constexpr int steps = N - 4;
  static constexpr T limit = smallest_determinant<T>(N);
  Lanes<T, N, N> m;  // columns exchanged; behind step k rows and columns above k are those of the complement
  P x[N][N];         // the inverse, row i of which belongs into row p[i]
  P p[N], r[steps];
  P singular[steps + 1];  // masks: up to each pivot, at the determinant

  __attribute__((noinline)) P run() {
    ZELM_UNROLL for (int j = 0; j < N; ++j) p[j] = P::splat(T(j));
    ZELM_UNROLL for (int k = 0; k < steps; ++k) step(k);
    P block[4][4];
    ZELM_UNROLL for (int i = 0; i < 4; ++i) { ZELM_UNROLL for (int j = 0; j < 4; ++j) block[i][j] = m.e[steps + i][steps + j]; }
    singular[steps] = invert_by_cofactors<Method::newton>(block, limit);
    ZELM_UNROLL for (int i = 0; i < 4; ++i) { ZELM_UNROLL for (int j = 0; j < 4; ++j) x[steps + i][steps + j] = block[i][j]; }
    ZELM_UNROLL for (int k = steps - 1; k >= 0; --k) border(k);
    return singular[steps - 1] | singular[steps];
  }

  template <Memory, class View>
  ZELM_INLINE void store(const View& view, std::ptrdiff_t k) const {
    constexpr int L = P::lanes;
    alignas(16) int rows[N][4];
    ZELM_UNROLL for (int i = 0; i < N; ++i) _mm_store_si128(reinterpret_cast<__m128i*>(rows[i]), to_int32(p[i]));
    typename View::Object objects[L];
    view.objects(k, L, objects);
    ZELM_UNROLL for (int i = 0; i < N; ++i) store_row(x[i], objects, [&](int l) { return rows[i][l]; });
  }

  /// A failure leaves the rows that were pivot rows.
  template <class Object>
  void store_first(const Object& d, bool failed) const {
    const auto put = [&](int row, const P(&elements)[N]) {
      ZELM_UNROLL for (int j = 0; j < N; ++j) elements[j].template scatter<1>([&](int) { return d.at(row, j); });
    };
    if (failed) {
      bool reached = true;
      for (int k = 0; k < steps && reached; ++k) {
        put(k, m.e[k]);
        reached = !(lane_bits(singular[k]) & 1);
      }
    } else {
      for (int i = 0; i < N; ++i) put(_mm_cvtsi128_si32(to_int32(p[i])), x[i]);
    }
  }

 private:
  /// The pivot is the element of row k with the largest magnitude, the last of equals; but in order 5 the last column wins no
  /// tie.
  ZELM_INLINE void step(int k) {
    P here[N], best = abs(m.e[k][k]);
    ZELM_UNROLL for (int j = k + 1; j < N; ++j) {
      const P magnitude = abs(m.e[k][j]);
      here[j] = N == 5 && j == 4 ? magnitude > best : magnitude >= best;
      best = max_or_second(magnitude, best);
    }
    singular[k] = P::splat(limit) > best;
    if (k > 0) singular[k] = singular[k] | singular[k - 1];
    P later = singular[k];  // a singular object is left before the exchange
    ZELM_UNROLL for (int j = N - 1; j > k; --j) {
      const P chosen = here[j];
      here[j] = and_not(chosen, later);
      later = later | chosen;
    }
    ZELM_UNROLL for (int i = 0; i < N; ++i) exchange(m.e[i], here, k);
    exchange(p, here, k);
    r[k] = reciprocal<Method::newton>(m.e[k][k]);
    ZELM_UNROLL for (int i = k + 1; i < N; ++i) {
      const P f = m.e[i][k] * r[k];
      ZELM_UNROLL for (int j = k + 1; j < N; ++j) m.e[i][j] = m.e[i][j] - f * m.e[k][j];
    }
  }

  static ZELM_INLINE void exchange(P (&row)[N], const P (&here)[N], int k) {
    const P old = row[k];
    ZELM_UNROLL for (int j = k + 1; j < N; ++j) {
      row[k] = select(here[j], row[j], row[k]);
      row[j] = select(here[j], old, row[j]);
    }
  }

  ZELM_INLINE void border(int k) {
    const P minus_r = P::zero() - r[k];
    P b[N];
    ZELM_UNROLL for (int j = k + 1; j < N; ++j) b[j] = minus_r * m.e[k][j];
    ZELM_UNROLL for (int i = k + 1; i < N; ++i) {
      P column = x[i][k + 1] * m.e[k + 1][k], row = b[k + 1] * x[k + 1][i];
      ZELM_UNROLL for (int j = k + 2; j < N; ++j) {
        column = column + x[i][j] * m.e[j][k];
        row = row + b[j] * x[j][i];
      }
      x[i][k] = column * minus_r;
      x[k][i] = row;
    }
    P corner = x[k][k + 1] * m.e[k + 1][k];
    ZELM_UNROLL for (int j = k + 2; j < N; ++j) corner = corner + x[k][j] * m.e[j][k];
    x[k][k] = r[k] - corner * r[k];
  }
};

template <class T, int N, class How>
using Inversion = std::conditional_t<How::method(N) == Method::pivoting, ByPivoting<T, N>, ByCofactors<T, N, How>>;

/// One object, in all lanes.
template <int N, class How, class S, class D>
__attribute__((noinline)) ZelStatus invert_alone(const S& s, const D& d) {
  using T = typename S::T;
  Inversion<T, N, How> f;
  f.m.splat(s);
  const bool singular = lane_bits(f.run()) & 1;
  f.store_first(d, singular);
  return singular ? zelStsSingular : zelStsOk;
}

template <int N, class How, class S, class D>
ZELM_INLINE ZelStatus invert_one(const S& s, const D& d) {
  if constexpr (How::kernel(N)) return kKernel<typename S::T, N>(s.base, int(s.row_stride), d.base, int(d.row_stride));
  else return invert_alone<N, How>(s, d);
}

template <int N, class How, class A, class D>
__attribute__((noinline)) ZelStatus invert_in_order(const A& a, const D& d, std::ptrdiff_t k, int count) {
  for (; k < count; ++k)
    if (const ZelStatus status = invert_one<N, How>(a.object(k), d.object(k))) return status;
  return zelStsOk;
}

/// Blocks up to the first with a singular object; that one, and what fills no block, in order.
template <int N, class How, Memory memory, class A, class D>
ZelStatus invert_blocks(A a, D d, int count) {
  using T = typename A::T;
  constexpr int L = Pack<T>::lanes;
  std::ptrdiff_t k = 0;
  for (; k + L <= count; k += L) {
    Inversion<T, N, How> f;
    f.m.template load_block<memory>(a, k);
    if (lane_bits(f.run())) break;
    f.template store<memory>(d, k);
  }
  return k < count ? invert_in_order<N, How>(a, d, k, count) : zelStsOk;
}

template <int N, class How, class A, class D>
ZELM_INLINE ZelStatus invert_small(const A& a, const D& d, int count) {
  if constexpr (!A::array) {
    return invert_one<N, How>(a.object(0), d.object(0));
  } else {
    if constexpr (How::pairs && N == 4) {
      const auto in_slots = [](const auto& view) { return aligned_objects(view) && view.row_stride == 16; };
      if (in_slots(a) && in_slots(d)) {
        const int even = count & ~1;
        const ZelStatus status = p8_ownzelmInvert_m_32f_4x4_loop2(a.first, int(a.stride0), d.first, int(d.stride0), even);
        return status || even == count ? status : invert_one<N, How>(a.object(even), d.object(even));
      }
    }
    return by_memory<N>([&](auto memory) { return invert_blocks<N, How, memory()>(a, d, count); }, a, d);
  }
}

template <class How, class A, class D>
ZELM_INLINE ZelStatus invert(A a, void* buffer, D d, int order, int count) {
  switch (order) {
    case 3: return invert_small<3, How>(a, d, count);
    case 4: return invert_small<4, How>(a, d, count);
    case 5: return invert_small<5, How>(a, d, count);
    case 6: return invert_small<6, How>(a, d, count);
  }
  for (std::ptrdiff_t k = 0; k < count; ++k)
    if (const ZelStatus status = adjugate(a.object(k), buffer, d.object(k), order)) return status;
  return zelStsOk;
}

/// Order 1, for every kernel.
template <class A, class D>
ZelStatus reciprocals(A a, void*, D d, int, int count) {
  using T = typename A::T;
  for (std::ptrdiff_t k = 0; k < count; ++k) {
    const T x = a.object(k).element(0, 0);
    if (!(std::abs(x) > smallest_determinant<T>(1))) return zelStsSingular;
    store(d.object(k).at(0, 0), T(1) / x);
  }
  return zelStsOk;
}

}  // namespace zelm::solvers::inverse
