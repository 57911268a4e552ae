// Norms and traces against plain scalar code in the order that each kernel has, bit for bit; and norms against the exact ones.
#include <algorithm>
#include <cmath>
#include <limits>

#include "products/reference_sums.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

/// Runs one operand of the function, `results` of which one value comes for each object. value(road, elements, k): the model.
template <class T, class Value>
void check(const Function& f, int width, int height, int objects, const Memory& memory, int turn, Value value) {
  const int count = f.array() ? objects : 1, size = width * height;
  Data<T> data;
  data.operands = {scaled(Random(std::uint32_t(size * 16 + count)).uniforms<T>(size * count), turn)};
  data.arrays["pDst"] = std::vector<T>(std::size_t(count), T(-99));
  const auto model = [&](const Road& road, Data<T>& d, int first, int n) {
    for (int k = first; k < first + n; ++k)
      d.arrays["pDst"][k] = value(road, std::vector<T>(&d.operands[0][k * size], &d.operands[0][k * size] + size), k);
    return zelStsOk;
  };
  expect_model(f, {{{"width", width}, {"height", height}, {"widthHeight", width}, {"count", count}}}, memory, data, model, -1,
               turn % 5 == 0 ? std::vector{1, 2, 3} : std::vector<int>{});
}

template <class T>
std::vector<T> squares(std::vector<T> v) {
  for (T& x : v) x *= x;
  return v;
}

struct Norm : FunctionTest {
  /// value(road, elements, k, width, height)
  template <class Value>
  void every_case(Value value, const Sides& larger = {}) const {
    typed([&](auto t) {
      using T = decltype(t);
      int turn = 0;
      for (const Case& c : cases(f, larger)) {
        if (f.row->operation == "Trace" && c.width != c.height) continue;
        if (HasFailure()) return;
        check<T>(f, c.width, c.height, c.count, c.memory, turn++,
                 [&](const Road& road, const std::vector<T>& v, int k) { return value(road, v, k, c.width, c.height); });
      }
    });
  }
};

struct L2Norm : Norm {};

TEST_P(L2Norm, EverySizeMemoryAndCount) {
  every_case([&](const Road& road, auto v, int k, int width, int) {
    return std::sqrt(width >= 3 && width <= 6 ? paired(squares(v)) : by_eights(squares(v), start_of(f, road, 0, k, width)));
  });
}

struct FrobNorm : Norm {};

/// One accumulator of as many lanes as a register has.
template <class T>
class Lanes {
 public:
  void add(const std::vector<T>& p, std::uintptr_t start) {
    std::size_t e = 0;
    const std::size_t lead = (16 - start % 16) % 16 / sizeof(T);
    while (e < p.size())
      if (e >= lead && e + 8 <= p.size())
        for (int m = 0; m < 8; ++m) lane[m % int(16 / sizeof(T))] += p[e++];
      else lane[0] += p[e++];
  }
  T sum() const { return (lane[0] + lane[2]) + (lane[1] + lane[3]); }

 private:
  T lane[4] = {};
};

/// Columns first, rows ascending.
template <class T>
T by_columns(const std::vector<T>& p, int order) {
  std::vector<T> columns(std::size_t(order), T(0));
  for (std::size_t e = 0; e < p.size(); ++e) columns[e % std::size_t(order)] += p[e];
  return order < 3 ? ascending(columns) : paired(columns);
}

/// A run without gaps.
template <class T>
T by_lanes(const std::vector<T>& p) {
  T lane[4] = {};
  for (std::size_t e = 0; e < p.size(); ++e) lane[e % (16 / sizeof(T))] += p[e];
  return (lane[0] + lane[2]) + (lane[1] + lane[3]);
}

TEST_P(FrobNorm, EverySizeMemoryAndCount) {
  const auto value = [&](const Road& road, auto v, int k, int width, int height) {
    using T = typename decltype(v)::value_type;
    const auto& [stride0, stride1, stride2] = road.scene->strides(0);
    const std::uintptr_t address = road.scene->address(0, k);
    const auto p = squares(v);
    const bool square = width == height, table = f.layout == "P",
               adjacent = f.array() ? road.kernel->contiguous : stride2 == sizeof(T);
    if (table && square && width == 3) return std::sqrt(ascending(p));
    if (!table && square && (f.array() ? adjacent && width >= 3 && width <= 6 : width <= 5))
      return std::sqrt(f.array() && stride1 == width * int(sizeof(T)) ? by_lanes(p) : by_columns(p, width));
    Lanes<T> lanes;
    if (table || (width * stride2 == stride1 && address % sizeof(T) == 0)) {
      lanes.add(p, !table && adjacent ? address : 0);
    } else {
      for (int i = 0; i < height; ++i)
        lanes.add(std::vector<T>(&p[std::size_t(i * width)], &p[std::size_t(i * width)] + width), 0);
    }
    return std::sqrt(lanes.sum());
  };
  every_case(value, {{1, 9}, {8, 1}, {11, 1}, {9, 3}, {16, 2}});
}

struct Trace : Norm {};

TEST_P(Trace, EverySizeMemoryAndCount) {
  every_case([](const Road&, auto v, int, int order, int) {
    typename decltype(v)::value_type sum = 0;
    for (int i = 0; i < order; ++i) sum += v[std::size_t(i * order + i)];
    return sum;
  });
}

INSTANTIATE_TEST_SUITE_P(All, L2Norm, testing::ValuesIn(family("L2Norm", "norm")), FunctionTest::name);
INSTANTIATE_TEST_SUITE_P(All, FrobNorm, testing::ValuesIn(family("FrobNorm", "norm")), FunctionTest::name);
INSTANTIATE_TEST_SUITE_P(All, Trace, testing::ValuesIn(family("Trace", "trace")), FunctionTest::name);

// n - 1 additions and a root, relative to a sum of squares: all terms are positive.
TEST(NormAccuracy, IsThatOfASum) {
  Random random(1);
  for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 13, 36, 100}) {
    const std::vector<float> v = random.uniforms<float>(n * n);
    const auto exact = [&](int terms) {
      double sum = 0;
      for (int e = 0; e < terms; ++e) sum += double(v[std::size_t(e)]) * v[std::size_t(e)];
      return std::sqrt(sum);
    };
    float norm;
    ASSERT_EQ(zelmL2Norm_v_32f(v.data(), 4, &norm, n), zelStsOk);
    EXPECT_NEAR(norm, exact(n), (n / 2.0 + 1) * 0x1p-24 * exact(n));
    ASSERT_EQ(zelmFrobNorm_m_32f(v.data(), 4 * n, 4, n, n, &norm), zelStsOk);
    EXPECT_NEAR(norm, exact(n * n), (n * n / 2.0 + 1) * 0x1p-24 * exact(n * n));
  }
}

TEST(NormOverflow, IsInfinityAndUnderflowZero) {
  const float large[] = {0, 0x1p64f, 0, 0}, small[] = {0x1p-76f, 0x1p-76f, 0x1p-76f, 0x1p-76f}, fits[] = {0, 0x1p63f, 0, 0};
  float norm[3];
  for (int n = 2; n <= 4; ++n) {
    zelmL2Norm_v_32f(large, 4, norm, n);
    zelmL2Norm_v_32f(small, 4, norm + 1, n);
    zelmL2Norm_v_32f(fits, 4, norm + 2, n);
    EXPECT_EQ(norm[0], std::numeric_limits<float>::infinity());
    EXPECT_EQ(norm[1], 0);
    EXPECT_EQ(norm[2], 0x1p63f);
  }
}

// Results in the midst of interleaved vectors: every object is read after the result of the one before it was written.
TEST(L2NormOverlap, GoesObjectByObject) {
  constexpr int n = 3, count = 11;
  for (int place = 0; place < n * count; ++place)
    for (const bool table : {false, true}) {
      Random random(std::uint32_t(place) + 1);
      std::vector<float> got = random.uniforms<float>((n + 1) * count), want = got;
      for (int k = 0; k < count; ++k)
        want[std::size_t(place + k)] = std::sqrt(
            (want[std::size_t(k)] * want[std::size_t(k)] + want[std::size_t(count + k)] * want[std::size_t(count + k)]) +
            want[std::size_t(2 * count + k)] * want[std::size_t(2 * count + k)]);
      const float* const elements[] = {&got[0], &got[count], &got[2 * count]};
      float* const results = &got[std::size_t(place)];
      ASSERT_EQ(table ? zelmL2Norm_va_32f_P(elements, 0, 4, results, n, count)
                      : zelmL2Norm_va_32f(got.data(), 4, 4 * count, results, n, count),
                zelStsOk);
      EXPECT_EQ(got, want) << place << ' ' << table;
    }
}

}  // namespace
}  // namespace zelm::test
