// Solution from LU factors against substitution in plain scalar code, with the order of terms and the divisions that
// each kernel has: bit for bit, but for the inverse factors of orders 4 to 6, whose rounding is their own.
#include <cmath>
#include <limits>
#include <numeric>
#include <optional>

#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

/// One object: factors, row order and right-hand side; x is written.
template <class T>
struct System {
  int n;
  const T* factors;
  const int* p;
  const T* right;
  T* x;
  T a(int i, int j) const { return factors[p[i] * n + j]; }
  T b(int i) const { return right[p[i]]; }
};

// Orders 3 to 6: which term a row subtracts next, counted from column 0 of L and from the diagonal of U.
constexpr std::string_view kLower[] = {"", "0", "10", "120", "1230", "12340"};
constexpr std::string_view kUpper[] = {"", "1", "12", "312", "4123", "51234"};

template <class T>
void substitute(const System<T>& s, bool reciprocals) {
  std::vector<T> x(std::size_t(s.n));
  for (int i = 0; i < s.n; ++i) {
    T sum = s.b(i);
    for (const char c : kLower[i]) sum -= s.a(i, c - '0') * x[c - '0'];
    x[i] = sum;
  }
  for (int i = s.n - 1; i >= 0; --i) {
    T sum = x[i];
    for (const char c : kUpper[s.n - 1 - i]) sum -= s.a(i, i + c - '0') * x[i + c - '0'];
    x[i] = reciprocals ? sum * (1 / s.a(i, i)) : sum / s.a(i, i);
  }
  std::copy(x.begin(), x.end(), s.x);
}

template <class T>
void by_inverse_factors_of_order_3(const System<T>& s) {
  const T r0 = 1 / s.a(0, 0), r1 = 1 / s.a(1, 1), r2 = 1 / s.a(2, 2);
  const T m10 = 0 - s.a(1, 0), m21 = 0 - s.a(2, 1), m20 = s.a(1, 0) * s.a(2, 1) - s.a(2, 0);
  const T w12 = (0 - s.a(1, 2) * r1) * r2, w01 = (0 - s.a(0, 1) * r0) * r1;
  const T w02 = (0 - r0) * (((0 - s.a(0, 1) * r1) * s.a(1, 2) + s.a(0, 2)) * r2);
  const T c0 = s.b(0), y1 = m10 * c0 + s.b(1), y2 = m20 * c0 + m21 * s.b(1) + s.b(2);
  s.x[2] = r2 * y2;
  s.x[1] = r1 * y1 + w12 * y2;
  s.x[0] = c0 * r0 + y1 * w01 + y2 * w02;
}

enum class Sums { plain, pairs, blocks };

/// a(i, from + m) x(from + m), summed over m < terms.
template <class T>
T sum(const System<T>& s, Sums sums, std::uintptr_t x_address, int i, int from, int terms) {
  const auto term = [&](int m) { return s.a(i, from + m) * s.x[from + m]; };
  const std::uintptr_t address = x_address + std::uintptr_t(from) * sizeof(T);
  int m = 0;
  T total = 0;
  if (sums == Sums::pairs) {
    T odd = 0;
    for (; m < terms / 2 * 2; m += 2) total += term(m), odd += term(m + 1);
    total += odd;
  } else if (sums == Sums::blocks && address % 4 == 0) {
    int lead = 0;
    while ((address + 4 * std::uintptr_t(lead)) % 16 != 0) ++lead;
    if (terms - lead >= 8) {
      T lanes[8] = {};
      for (; m < lead; ++m) lanes[0] += term(m);
      for (; m + 8 <= terms; m += 8)
        for (int l = 0; l < 8; ++l) lanes[l] += term(m + l);
      for (int l = 0; l < 4; ++l) lanes[l] += lanes[l + 4];
      total = (lanes[0] + lanes[2]) + (lanes[1] + lanes[3]);
    }
  }
  for (; m < terms; ++m) total += term(m);
  return total;
}

template <class T>
void solve_any_order(const System<T>& s, Sums sums, std::uintptr_t x_address) {
  const std::vector<T> right = [&] {  // x may be where it was
    std::vector<T> v;
    for (int i = 0; i < s.n; ++i) v.push_back(s.b(i));
    return v;
  }();
  for (int i = 0; i < s.n; ++i) s.x[i] = i == 0 ? right[0] : right[i] - sum(s, sums, x_address, i, 0, i);
  for (int i = s.n - 1; i >= 0; --i) {
    if (i < s.n - 1) s.x[i] -= sum(s, sums, x_address, i, i + 1, s.n - 1 - i);
    s.x[i] /= s.a(i, i);
  }
}

struct Shape {
  explicit Shape(const Function& f) : vectors(f.form != "mv"), matrices(f.form == "mava") {}
  bool vectors, matrices;  // arrays of them
};

bool fixed(int n) { return n >= 3 && n <= 6; }

/// Only this kernel inverts the factors, and only for three vectors and more.
bool inverts(const Road& road, int n, int count) {
  return road.kernel->symbol == "p8_ownzelmLUBackSubst_mva_32f" && fixed(n) && count > 2;
}

template <class T>
struct Problem {
  Problem(const Function& function, int order, int vectors, bool tame, std::uint32_t seed)
      : f(function), n(order), count(Shape(function).vectors ? vectors : 1) {
    Random random(seed);
    const int matrices = Shape(f).matrices ? count : 1;
    data.operands = {random.uniforms<T>(n * n * matrices), random.uniforms<T>(n * count),
                     std::vector<T>(std::size_t(n * count), T(-99))};
    auto& index = data.indices["pSrcIndex"];
    for (int k = 0; k < matrices; ++k) {
      auto p = random.permutation(n);
      T* const a = &data.operands[0][k * n * n];
      for (int i = 0; i < n; ++i) a[p[i] * n + i] += a[p[i] * n + i] < 0 ? T(-1) : T(1);
      if (!tame && random.below(4) == 0) a[random.below(n * n)] = 0;
      if (!tame && random.below(4) == 0) a[p[0] * n] = 0;  // the first pivot
      if (!tame && random.below(4) == 0)
        for (int& i : p) i = random.below(n);  // no permutation, and taken as it stands
      index.insert(index.end(), p.begin(), p.end());
    }
  }

  /// The inverse factors' own result, from tight memory, for the orders that state no formula.
  void take_reference() {
    Scene scene(f, sizes(), memories()[0]);
    for (const Road& road : scene.roads({}))
      if (n > 3 && inverts(road, n, count)) {
        reference = data;
        scene.run(road, *reference);
      }
  }

  ZelStatus solve(const Road& road, Data<T>& d, int first, int objects) const {
    const Shape shape(f);
    for (int k = first; k < first + objects; ++k) {
      const auto part = [&](auto& v, int size, int object) { return &v[size * object]; };
      const int matrix = shape.matrices ? k : 0;
      const System<T> s{n, part(d.operands[0], n * n, matrix), part(d.indices["pSrcIndex"], n, matrix),
                        part(d.operands[1], n, k), part(d.operands[2], n, k)};
      if (inverts(road, n, objects)) {
        if (n == 3) by_inverse_factors_of_order_3(s);
        else std::copy_n(part(reference->operands[2], n, k), n, s.x);
      } else if (fixed(n)) {
        substitute(s, shape.vectors && !shape.matrices);
      } else {
        const bool blocks = road.kernel->symbol == "p8_ownzelmLUBackSubst_mv_32f";
        solve_any_order(s, shape.vectors ? Sums::pairs : blocks ? Sums::blocks : Sums::plain, road.scene->address(2, k));
      }
    }
    return zelStsOk;
  }

  void check(const Memory& memory, const std::vector<int>& teams = {}, int in_place = -1) const {
    const auto model = [this](const Road& r, Data<T>& d, int first, int objects) { return solve(r, d, first, objects); };
    expect_model(f, sizes(), memory, data, model, in_place, teams);
  }

  Sizes sizes() const { return {{{"widthHeight", n}, {"count", count}}}; }

  const Function& f;
  int n, count;
  Data<T> data;
  std::optional<Data<T>> reference;
};

struct LUBackSubst : FunctionTest {};

constexpr int kOrders[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 17, 33};

TEST_P(LUBackSubst, EveryOrderInEveryMemory) {
  typed([&](auto t) {
    std::uint32_t seed = 1;
    for (const int n : kOrders)
      for (const Memory& memory : memories())
        for (int turn = 0; turn < (n < 9 ? 4 : 1) && !HasFailure(); ++turn, ++seed) {
          Problem<decltype(t)> problem(f, n, Random(seed).objects(turn > 1 && fixed(n)), turn == 0, seed);
          problem.take_reference();
          problem.check(memory);
        }
  });
}

TEST_P(LUBackSubst, Teams) {
  typed([&](auto t) {
    std::uint32_t seed = 1;
    for (const int n : {2, 3, 4, 5, 6, 7})
      for (int count = 1; count <= 13 && Shape(f).vectors; ++count, ++seed) {
        Problem<decltype(t)> problem(f, n, count, true, seed);
        problem.take_reference();
        problem.check(memories()[seed % memories().size()], {1, 2, 3, 5});
      }
  });
}

// The sums of a single system depend on where the solution lies.
TEST_P(LUBackSubst, EveryAlignmentOfTheSolution) {
  typed([&](auto t) {
    for (const int n : {8, 9, 10, 12, 17, 33})
      for (int offset = 0; offset < 16; ++offset)
        Problem<decltype(t)>(f, n, 2, true, std::uint32_t(n + offset))
            .check({Place{}, Place{}, Place{Spread::tight, offset}, Place{}});
  });
}

// A single vector is read whole first in orders 3 to 6; in the others the row order must be the natural one.
TEST_P(LUBackSubst, InPlace) {
  if (Shape(f).vectors) return;
  typed([&](auto t) {
    for (const int n : kOrders)
      for (const Memory& memory : memories()) {
        Problem<decltype(t)> problem(f, n, 1, true, std::uint32_t(n));
        if (!fixed(n)) std::iota(problem.data.indices["pSrcIndex"].begin(), problem.data.indices["pSrcIndex"].end(), 0);
        problem.check(memory, {}, 1);
      }
  });
}

INSTANTIATE_TEST_SUITE_P(All, LUBackSubst, testing::ValuesIn(family("LUBackSubst", "")), FunctionTest::name);

// An index outside the matrix reads the row that would stand there: here those around a matrix of order 3 in 7 rows.
TEST(LUBackSubstIndex, IsUsedAsItStands) {
  Random random(1);
  const std::vector<float> rows = random.uniforms<float>(7 * 3), right = random.uniforms<float>(7 * 4);
  const int index[] = {4, -2, 1};
  const float* const a = &rows[2 * 3];
  for (int count = 1; count <= 4; ++count) {
    // Element j of vector k at b[j * 4 + k], so that every entry of the index has a value for all vectors.
    const float* const b = &right[2 * 4];
    std::vector<float> got(12, -99), want(12, -99);
    ASSERT_EQ(zelmLUBackSubst_mva_32f(a, 12, 4, index, b, 4, 16, got.data(), 4, 16, 3, count), zelStsOk);
    for (int k = 0; k < count; ++k) {
      float column[7], x[3];
      for (int i = 0; i < 7; ++i) column[i] = right[i * 4 + k];
      substitute<float>({3, a, index, column + 2, x}, true);
      for (int i = 0; i < 3; ++i) want[i * 4 + k] = x[i];
      float one[3];
      ASSERT_EQ(zelmLUBackSubst_mv_32f(a, 12, 4, index, column + 2, 4, one, 4, 3), zelStsOk);
      substitute<float>({3, a, index, column + 2, x}, false);
      EXPECT_TRUE(std::equal(x, x + 3, one)) << count;
      float tight[3];
      ASSERT_EQ(zelmLUBackSubst_mva_32f(a, 12, 4, index, column + 2, 12, 4, tight, 12, 4, 3, 1), zelStsOk);
      substitute<float>({3, a, index, column + 2, x}, true);
      EXPECT_TRUE(std::equal(x, x + 3, tight)) << count;
    }
    EXPECT_EQ(got, want) << count;
  }
}

}  // namespace
}  // namespace zelm::test
