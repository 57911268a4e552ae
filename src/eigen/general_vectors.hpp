// general_vectors.hpp: eigenvectors of a real Schur form by substitution, turned back by Q and normalised, as LAPACK's xTREVC does
// it. The left vectors of T are the right ones of T^T, which is quasi-triangular again once rows and columns are reversed: one
// substitution serves both sides.
#pragma once
#include "eigen/general_cores.hpp"
#include "eigen/general_steps.hpp"

/// Where pivot, its column's, its row's and the opposite element of a 2 x 2 matrix stand, for each place of the pivot.
extern "C" const int iPivot[4][4];

namespace zelm::eigen::general {

template <class T>
struct Complex {
  T re, im;
  friend ZELM_INLINE Complex operator+(Complex a, Complex b) { return {a.re + b.re, a.im + b.im}; }
  friend ZELM_INLINE Complex operator-(Complex a, Complex b) { return {a.re - b.re, a.im - b.im}; }
  friend ZELM_INLINE Complex operator*(Complex a, Complex b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
  friend ZELM_INLINE Complex operator*(Complex a, T b) { return {a.re * b, a.im * b}; }
  friend ZELM_INLINE Complex operator/(Complex a, T b) { return {a.re / b, a.im / b}; }
  /// Smith's division: no square that could overflow.
  friend ZELM_INLINE Complex operator/(Complex a, Complex b) {
    if (std::fabs(b.im) < std::fabs(b.re)) {
      const T e = b.im / b.re, f = b.re + b.im * e;
      return {(a.re + a.im * e) / f, (a.im - a.re * e) / f};
    }
    const T e = b.re / b.im, f = b.im + b.re * e;
    return {(a.im + a.re * e) / f, (a.im * e - a.re) / f};
  }
};

template <class T>
ZELM_INLINE T size_of(T x) {
  return std::fabs(x);
}
template <class T>
ZELM_INLINE T size_of(Complex<T> x) {
  return std::fabs(x.re) + std::fabs(x.im);
}

/// T itself, or T^T with rows and columns reversed.
template <Side side, class T>
struct Triangle {
  Columns<T> t;
  ZELM_INLINE int place(int i) const { return side == right ? i : t.n - 1 - i; }
  ZELM_INLINE T get(int i, int j) const { return side == right ? t.get(i, j) : t.get(place(j), place(i)); }
};

/// A vector of numbers, or of complex numbers in two places.
template <class N, class T>
struct Work {
  T *re, *im;
  ZELM_INLINE N get(int k) const {
    if constexpr (std::is_same_v<N, T>) return load(re + k);
    else return {load(re + k), load(im + k)};
  }
  ZELM_INLINE void put(int k, N x) const {
    if constexpr (std::is_same_v<N, T>) {
      store(re + k, x);
    } else {
      store(re + k, x.re);
      store(im + k, x.im);
    }
  }
};

/// Solves (T - lambda) y = 0 for the elements of y above a known end. N: T, or Complex<T>.
template <Side side, class N, class T>
struct Substitution {
  using L = Limits<T>;
  static constexpr T big2 = 1 / L::safe2;
  static constexpr bool complex = !std::is_same_v<N, T>;

  Triangle<side, T> t;
  Work<N, T> work;
  const T* colnorm;
  int end;  // elements of work that are in use
  T wr, wi, smini, bignum;

  /// Elements last, ..., 0. False where a 2 x 2 system is too small to be solved.
  ZELM_INLINE bool run(int last) {
    for (int j = last; j >= 0;) {
      if (j > 0 && std::fabs(t.get(j, j - 1)) > L::safe) {
        if (!solve_two(j)) return false;
        j -= 2;
      } else {
        solve_one(j);
        j -= 1;
      }
    }
    return true;
  }

 private:
  ZELM_INLINE N diagonal(int j) const {
    if constexpr (complex) return {t.get(j, j) - wr, 0 - wi};
    else return t.get(j, j) - wr;
  }
  static ZELM_INLINE N number(T x) {
    if constexpr (complex) return {x, 0};
    else return x;
  }
  ZELM_INLINE void rescale(T scale) {
    if (std::fabs(scale - 1) > L::safe) ZELM_AS_IT_STANDS for (int k = 0; k < end; ++k) work.put(k, work.get(k) * scale);
  }

  ZELM_INLINE void solve_one(int j) {
    N c = diagonal(j);
    if (smini > size_of(c)) c = number(smini);
    const N b = work.get(j);
    const T cn = size_of(c), bn = size_of(b);
    T scale = 1;
    if (1 > cn && bn > 1 && bn > cn * big2) scale = 1 / bn;
    N x = (b * scale) / c;
    const T xn = size_of(x);
    if (xn > 1 && load(colnorm + j) > bignum / xn) {
      x = x / xn;
      scale = scale / xn;
    }
    rescale(scale);
    work.put(j, x);
    ZELM_AS_IT_STANDS for (int k = 0; k < j; ++k) work.put(k, work.get(k) - x * t.get(k, j));
  }

  /// Elimination with complete pivoting.
  ZELM_INLINE bool solve_two(int j) {
    const N c[4] = {diagonal(j - 1), number(t.get(j, j - 1)), number(t.get(j - 1, j)), diagonal(j)};
    int m = 0;
    for (int e = 1; e < 4; ++e)
      if (size_of(c[e]) > size_of(c[m])) m = e;
    const T cmax = size_of(c[m]);
    if (smini > cmax) return false;
    const int* const place = iPivot[m];
    const N u11r = number(1) / c[m], l21 = c[place[1]] * u11r, u12 = c[place[2]];
    N u22 = c[place[3]] - u12 * l21;
    if (smini > size_of(u22)) u22 = number(smini);
    const bool swapped = m % 2 == 1;
    const N b1 = work.get(j - 1), b2 = work.get(j), br1 = swapped ? b2 : b1, br2 = (swapped ? b1 : b2) - l21 * br1;
    const T bbnd =
        std::max(complex ? size_of(br1) * (size_of(u22) * size_of(u11r)) : size_of(br1 * (u22 * u11r)), size_of(br2));
    T scale = 1;
    if (bbnd > 1 && 1 > size_of(u22) && bbnd > size_of(u22) * big2) scale = 1 / bbnd;
    const N xr2 = (br2 * scale) / u22, xr1 = (br1 * scale - u12 * xr2) * u11r;
    N x1 = m >= 2 ? xr2 : xr1, x2 = m >= 2 ? xr1 : xr2;
    T xn = std::max(size_of(xr1), size_of(xr2));
    if (xn > 1 && cmax > 1 && xn > big2 / cmax) {
      const T s = cmax / big2;
      x1 = x1 * s;
      x2 = x2 * s;
      xn = xn * s;
      scale = scale * s;
    }
    if (xn > 1 && std::max(load(colnorm + j - 1), load(colnorm + j)) > bignum / xn) {
      x1 = x1 / xn;
      x2 = x2 / xn;
      scale = scale / xn;
    }
    rescale(scale);
    work.put(j - 1, x1);
    work.put(j, x2);
    ZELM_AS_IT_STANDS for (int k = 0; k < j - 1; ++k) work.put(k, work.get(k) - x1 * t.get(k, j - 1) - x2 * t.get(k, j));
    return true;
  }
};

/// One number where the others are packs.
template <class T>
struct Single {
  T raw;
  static ZELM_INLINE Single splat(T x) { return {x}; }
  static ZELM_INLINE Single load(const T* p) { return {zelm::load(p)}; }
  ZELM_INLINE void store(T* p) const { zelm::store(p, raw); }
  friend ZELM_INLINE Single operator+(Single a, Single b) { return {a.raw + b.raw}; }
  friend ZELM_INLINE Single operator*(Single a, Single b) { return {a.raw * b.raw}; }
};

/// Elements i, ..., of as many as S holds, of x = Q y. `end`: elements of y that are in use; the last of them comes first.
template <class S, Side side, class T>
ZELM_INLINE void product(const Triangle<side, T>& t, Columns<T> q, const T* y, int end, T* x, int i) {
  const auto term = [&](int k) ZELM_INLINE_LAMBDA { return S::splat(load(y + k)) * S::load(q.at(i, t.place(k))); };
  S sum = term(end - 1);
  ZELM_AS_IT_STANDS for (int k = 0; k < end - 1; ++k) sum = sum + term(k);
  sum.store(x + i);
}
template <Side side, class T>
ZELM_INLINE void product(const Triangle<side, T>& t, Columns<T> q, const T* y, int end, T* x) {
  int i = 0;
  for (; i + Pack<T>::lanes <= q.n; i += Pack<T>::lanes) product<Pack<T>>(t, q, y, end, x, i);
  for (; i < q.n; ++i) product<Single<T>>(t, q, y, end, x, i);
}

/// x = Q y, largest element 1, for the `end` first elements of y. False where the vector has vanished.
template <Side side, class N, class T>
ZELM_INLINE bool turn_back(const Triangle<side, T>& t, Columns<T> q, Work<N, T> y, int end, Work<N, T> x) {
  const int n = q.n;
  product(t, q, y.re, end, x.re);
  if constexpr (!std::is_same_v<N, T>) product(t, q, y.im, end, x.im);
  T emax = 0;
  ZELM_AS_IT_STANDS for (int i = 0; i < n; ++i) emax = std::max(emax, size_of(x.get(i)));
  if (!(emax > Limits<T>::epsilon)) return false;
  const T scale = 1 / emax;
  ZELM_AS_IT_STANDS for (int i = 0; i < n; ++i) x.put(i, x.get(i) * scale);
  return true;
}

/// To length 1.
template <class T>
ZELM_INLINE void normalise(Work<T, T> x, int n) {
  T sum = 0;
  ZELM_AS_IT_STANDS for (int i = 0; i < n; ++i) sum = sum + x.get(i) * x.get(i);
  const T scale = 1 / root(sum);
  ZELM_AS_IT_STANDS for (int i = 0; i < n; ++i) x.put(i, x.get(i) * scale);
}

/// To length 1, and turned so that the element of largest modulus is real.
template <class T>
ZELM_INLINE void normalise(Work<Complex<T>, T> x, int n) {
  const auto square = [&](int i) { return x.get(i).re * x.get(i).re + x.get(i).im * x.get(i).im; };
  T sum = 0;
  ZELM_AS_IT_STANDS for (int i = 0; i < n; ++i) sum = sum + square(i);
  const T scale = 1 / root(sum);
  ZELM_AS_IT_STANDS for (int i = 0; i < n; ++i) x.put(i, x.get(i) * scale);
  int k = 0;
  for (int i = 1; i < n; ++i)
    if (square(i) > square(k)) k = i;
  const Complex<T> largest = x.get(k);
  const T r = root(square(k));
  T cs = largest.re / r, sn = largest.im / r;
  if (std::fabs(largest.re) > std::fabs(largest.im) && cs < 0) {
    cs = -cs;
    sn = -sn;
  }
  ZELM_AS_IT_STANDS for (int i = 0; i < n; ++i) {
    const Complex<T> e = x.get(i);
    x.put(i, {cs * e.re + sn * e.im, cs * e.im - sn * e.re});
  }
  x.put(k, {x.get(k).re, 0});
}

/// All vectors of one side, into the columns of q. `scratch`: five vectors.
template <Side side, class T>
ZELM_INLINE Outcome substitute_all(Columns<T> h, Columns<T> q, const T* re, const T* im, T* scratch) {
  using L = Limits<T>;
  const int n = h.n;
  const Triangle<side, T> t = {h};
  const T smlnum = L::safe * (T(n) / L::epsilon), bignum = (1 - L::epsilon) / smlnum;
  T *const colnorm = scratch, *const y_re = scratch + n, *const y_im = y_re + n, *const x_re = y_im + n, *const x_im = x_re + n;
  for (int j = 0; j < n; ++j) {
    T sum = 0;
    ZELM_AS_IT_STANDS for (int i = 0; i < j; ++i) sum = sum + std::fabs(t.get(i, j));
    store(colnorm + j, sum);
  }
  for (int ki = n - 1; ki >= 0; --ki) {
    const bool pair = ki > 0 && std::fabs(t.get(ki, ki - 1)) > L::safe;
    const T wr = load(re + t.place(ki)), wi = pair ? std::fabs(load(im + t.place(ki))) : T(0);
    const T smini = std::max(std::max((std::fabs(wr) + std::fabs(wi)) * L::epsilon, smlnum), L::safe2);
    const int end = ki + 1;
    if (!pair) {
      const Work<T, T> y = {y_re, nullptr}, x = {x_re, nullptr};
      y.put(ki, 1);
      ZELM_AS_IT_STANDS for (int k = 0; k < ki; ++k) y.put(k, 0 - t.get(k, ki));
      Substitution<side, T, T> s = {t, y, colnorm, end, wr, 0, smini, bignum};
      if (!s.run(ki - 1)) return {zelStsOk, false};
      if (!turn_back(t, q, y, end, x)) return {zelStsNoConvergence, false};
      normalise(x, n);
      ZELM_AS_IT_STANDS for (int i = 0; i < n; ++i) q.put(i, t.place(ki), x.get(i));
      continue;
    }
    // The two elements of the block itself: one real, the other imaginary. Left vectors belong to the conjugate value.
    const bool upper = std::fabs(t.get(ki - 1, ki)) >= std::fabs(t.get(ki, ki - 1));
    const T first = upper ? T(1) : -wi / t.get(ki, ki - 1), second = upper ? wi / t.get(ki - 1, ki) : T(1);
    const Work<Complex<T>, T> y = side == right ? Work<Complex<T>, T>{y_re, y_im} : Work<Complex<T>, T>{y_im, y_re};
    const Work<Complex<T>, T> x = {x_re, x_im}, straight = {y_re, y_im};
    y.put(ki - 1, {first, 0});
    y.put(ki, {0, second});
    ZELM_AS_IT_STANDS for (int k = 0; k < ki - 1; ++k) y.put(k, {-first * t.get(k, ki - 1), -second * t.get(k, ki)});
    Substitution<side, Complex<T>, T> s = {t, straight, colnorm, end, wr, side == right ? wi : -wi, smini, bignum};
    if (!s.run(ki - 2)) return {zelStsFailure, false};
    if (!turn_back(t, q, straight, end, x)) return {zelStsNoConvergence, false};
    normalise(x, n);
    const int column = std::min(t.place(ki), t.place(ki - 1));
    ZELM_AS_IT_STANDS for (int i = 0; i < n; ++i) {
      q.put(i, column, x.get(i).re);
      q.put(i, column + 1, x.get(i).im);
    }
    --ki;
  }
  return {zelStsOk, true};
}

}  // namespace zelm::eigen::general
