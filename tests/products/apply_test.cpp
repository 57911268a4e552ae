// A matrix with vectors against scalar sums in the order that each kernel has, bit for bit.
#include <algorithm>
#include <cmath>
#include <set>

#include "support/harness.hpp"

namespace zelm::test {
namespace {

/// Adds products as a text says: their indices from left to right, a group in brackets first. "(014)(23)" is
/// ((p0 + p1) + p4) + (p2 + p3).
template <class P>
auto sum_of(std::string_view& text, P p) -> decltype(p(0)) {
  const auto next = [&] {
    const char c = text[0];
    text.remove_prefix(1);
    return c == '(' ? sum_of(text, p) : p(c - '0');
  };
  auto sum = next();
  while (!text.empty() && text[0] != ')') sum += next();
  if (!text.empty()) text.remove_prefix(1);
  return sum;
}

constexpr int kOneByOne = 1000;  // a step that no sum of the tests reaches

/// Sums from `begin` on in steps of `step` elements, a partial sum for each place in a step; what lies before goes to the first.
template <class T, class P>
T stepped(P p, int length, int begin, int step) {
  if (length - begin < step) step = 8, begin = length;
  std::vector<T> part(std::size_t(step), T(0));
  int k = 0;
  for (; k < begin; ++k) part[0] += p(k);
  for (; k + step <= length; k += step)
    for (int m = 0; m < step; ++m) part[m] += p(k + m);
  constexpr int lanes = 16 / sizeof(T);
  for (int width = step / 2; width >= lanes; width /= 2)  // neighbouring registers first
    for (int r = 0; r < width / lanes; ++r)
      for (int l = 0; l < lanes; ++l) part[r * lanes + l] = part[2 * r * lanes + l] + part[(2 * r + 1) * lanes + l];
  T sum = lanes == 4 ? (part[0] + part[2]) + (part[1] + part[3]) : part[0] + part[1];
  for (; k < length; ++k) sum += p(k);
  return sum;
}

/// How the kernel of a road sums; everything is told by names and addresses.
template <class T>
struct Order {
  Order(const Function& function, const Road& road, int objects)
      : f(function), scene(*road.scene), kernel(road.kernel->symbol.substr(10)), count(objects), adds(f.operands.size() == 4) {
    path = kernel.substr(kernel.find(single ? "32f" : "64f") + 3);
    plain = path.empty() || path == "_L";
    turned = f.form[0] == 't';
    array_of_matrices = f.operands[0].array;
  }

  /// Of a matrix of n x n, or "" where the kernel has no path of its own for it.
  std::string_view fixed(int n, int i) const {
    static constexpr std::string_view ascending[] = {"012", "0123", "01234", "012345"};
    static constexpr std::string_view even_odd[] = {"012", "(02)(13)", "(024)(13)", "(024)(135)"};
    static const std::set<std::string> none = {"Mul_mva_32f_L", "Mul_tva_32f_L", "Mul_tva_64f_L", "Mul_tava_64f_L"};
    if (n < 3 || n > 6 || none.count(kernel)) return "";
    if (kernel == "Mul_mva_32f" && n == 5 && count >= 5 && aligned()) return "(01)(23)4";
    if (kernel == "Gaxpy_mvav_32f" && n == 4 && count >= 12 && aligned()) return "(01)(23)";
    const bool pairs = single ? adds || f.array() : array_of_matrices && !turned;
    if (!plain || !pairs) return ascending[n - 3];
    if (n == 5 && i < 4 && !array_of_matrices) return "(014)(23)";
    return even_odd[n - 3];
  }

  template <class P>
  T general(P p, int rows, int i, int length, int object) const {
    constexpr int lanes = 16 / sizeof(T);
    if (!plain || adds) return stepped<T>(p, length, 0, path != "_P" && path != "" && path != "_L" && !turned ? 8 : kOneByOne);
    int step = lanes, begin = 0;
    if (kernel == "Mul_mva_32f") step = 8;
    else if (i >= rows / 8 * 8 && rows % 8 < 4) return stepped<T>(p, length, 0, 8);
    const auto x = scene.address(1, f.operands[1].array ? object : 0);
    if (x % sizeof(T) != 0) return stepped<T>(p, length, 0, kOneByOne);
    while ((x + begin * sizeof(T)) % 16 != 0) ++begin;
    return stepped<T>(p, length, begin, step);
  }

 private:
  static constexpr bool single = sizeof(T) == 4;
  bool aligned() const {
    std::uintptr_t all = 0;
    for (const int o : {1, int(f.operands.size()) - 1})
      all |= scene.address(o, 0) | (scene.address(o, 1) - scene.address(o, 0));
    return all % 16 == 0;
  }

  const Function& f;
  const Scene& scene;
  std::string kernel, path;  // "Mul_mva_32f_S2", "_S2"
  int count;
  bool adds, plain, turned, array_of_matrices;
};

template <class T>
void check(const Function& f, const Case& c, const std::vector<int>& teams = {}) {
  const int w = c.width, h = c.height, count = f.array() ? c.count : 1;
  const bool turned = f.form[0] == 't';
  const int rows = turned ? w : h, length = turned ? h : w;
  Random random(std::uint32_t(w * 100 + h * 10 + count));
  Data<T> data;
  for (const catalog::Operand& o : f.operands) {
    const int size = &o == &f.operands[0] ? w * h : &o == &f.operands[1] ? length : rows;
    data.operands.push_back(random.uniforms<T>(size * (o.array ? count : 1)));
  }
  // Sums of negative zeros stay so unless they start from zero.
  if (random.below(4) == 0) {
    for (T& e : data.operands[0]) e = -T(0);
    for (T& e : data.operands[1]) e = std::abs(e);
    if (data.operands.size() == 4)
      for (T& e : data.operands[2]) e = -T(0);
  }
  const auto model = [&](const Road& road, Data<T>& d, int first, int objects) {
    const Order<T> order(f, road, objects);
    const auto of = [&](std::size_t o, int k, int size) { return &d.operands[o][f.operands[o].array ? k * size : 0]; };
    for (int k = first; k < first + objects; ++k)
      for (int i = 0; i < rows; ++i) {
        const T *const a = of(0, k, w * h), *const x = of(1, k, length);
        const auto p = [&](int m) -> T { return (turned ? a[m * w + i] : a[i * w + m]) * x[m]; };
        std::string_view text = w == h ? order.fixed(w, i) : "";
        T sum = text.empty() ? order.general(p, rows, i, length, k) : sum_of(text, p);
        if (d.operands.size() == 4) sum += of(2, k, rows)[i];
        d.operands.back()[k * rows + i] = sum;
      }
    return zelStsOk;
  };
  const Sizes sizes = {{{"width", w}, {"height", h}, {"src2Len", length}, {"src3Len", rows}, {"count", count}}};
  expect_model(f, sizes, c.memory, data, model, -1, teams);
}

struct Apply : FunctionTest {
  template <class Body>
  void each(int step, Body body) {
    const std::vector<Case> all =
        cases(f, {{33, 33}, {5, 33}, {12, 9}, {9, 12}, {4, 13}, {15, 6}, {8, 3}, {3, 8}, {6, 8}, {14, 10}, {10, 14}});
    for (int c = 0; c < int(all.size()) && !HasFailure(); c += step) body(all[std::size_t(c)]);
  }
};

TEST_P(Apply, EverySizeMemoryAndCount) {
  typed([&](auto t) { each(1, [&](const Case& c) { check<decltype(t)>(f, c); }); });
}

TEST_P(Apply, Teams) {
  if (f.driver().empty()) return;
  typed([&](auto t) {
    each(13, [&](const Case& c) {
      if (c.width <= 6 && c.count <= 13) check<decltype(t)>(f, c, {1, 2, 3, 5});
    });
  });
}

// Sums of contiguous elements depend on where the vector lies.
TEST_P(Apply, EveryAlignmentOfTheVectors) {
  typed([&](auto t) {
    for (int offset = 0; offset < 16 && !HasFailure(); ++offset)
      for (int length = 1; length <= 21; ++length)
        for (const int rows : {1, 3, 4, 6, 8, 13}) {
          Place place{length % 2 ? Spread::tight : Spread::padded, offset};
          const bool turned = f.form[0] == 't';
          check<decltype(t)>(f, {turned ? rows : length, turned ? length : rows, 3, {Place{}, place, Place{}, Place{}}});
        }
  });
}

// Batches of which all vectors begin at multiples of 16 bytes, and of which all but the first operands do.
TEST_P(Apply, EveryCountOfAlignedVectors) {
  if (!f.array()) return;
  typed([&](auto t) {
    const Place slots{Spread::slots}, off{Spread::slots, 4};
    for (const int n : {3, 4, 5, 6})
      for (int count = 1; count <= 14; ++count)
        for (const Memory& memory : {Memory{slots, slots, slots, slots}, Memory{Place{}, slots, Place{}, slots},
                                     Memory{slots, slots, off, off}, Memory{slots, off, slots, slots}})
          check<decltype(t)>(f, {n, n, count, memory}, count == 14 ? std::vector{1, 2} : std::vector<int>{});
  });
}

// One matrix, vectors enough to hold it with every element in all lanes, and sizes on both sides of what is held so.
TEST_P(Apply, ManyVectors) {
  if (f.form != "mva" && f.form != "tva") return;
  constexpr int sizes[][2] = {{1, 1},   {3, 3},  {5, 5},   {7, 7},   {8, 8},   {9, 8}, {4, 13},
                              {12, 12}, {13, 7}, {15, 17}, {16, 16}, {17, 16}, {2, 33}};
  typed([&](auto t) {
    for (const auto& [rows, length] : sizes)
      for (const int offset : {0, 2, 4, 8, 12})
        for (const Spread spread : {Spread::tight, Spread::padded, Spread::slots}) {
          const Place place{spread, offset};
          const bool turned = f.form[0] == 't';
          check<decltype(t)>(
              f, {turned ? rows : length, turned ? length : rows, 15 + (rows + offset) % 9, {Place{}, place, Place{}, place}});
          if (HasFailure()) return;
        }
  });
}

INSTANTIATE_TEST_SUITE_P(All, Apply, testing::ValuesIn(family("", "apply")), FunctionTest::name);

TEST(ApplyFamily, IsComplete) { EXPECT_EQ(family("", "apply").size(), 60u); }

/// Results of 64 MiB and more go past the caches. They are those of the same vectors in several calls.
TEST(ApplyStreamed, LargeResultsAreThoseOfSmallOnes) {
  constexpr int count = (64 << 20) / 16 + 1;
  const auto check_large = [](const char* name, auto zero, int n) {
    using T = decltype(zero);
    const int E = sizeof(T), objects = count * 16 / (n * E);
    const std::vector<T> a = Random(1).uniforms<T>(n * n), x = Random(2).uniforms<T>(n * objects);
    std::vector<T> got(x.size() + 1), want(x.size() + 1);
    const auto run = [&](std::vector<T>& to, int first, int vectors) {
      const auto bytes = [&](const T* p) { return const_cast<T*>(p); };
      const Value values[] = {{.p = bytes(a.data())},
                              {.i = n * E},
                              {.i = E},
                              {.i = n},
                              {.i = n},
                              {.p = bytes(&x[std::size_t(first * n)])},
                              {.i = n * E},
                              {.i = E},
                              {.i = n},
                              {.p = &to[std::size_t(first * n)]},
                              {.i = n * E},
                              {.i = E},
                              {.i = vectors}};
      EXPECT_EQ(find(name).call(values), zelStsOk);
    };
    use_threads(1);
    run(got, 0, objects);
    for (int first = 0; first < objects; first += 1 << 20) run(want, first, std::min(1 << 20, objects - first));
    EXPECT_TRUE(got == want) << name;
  };
  check_large("zelmMul_mva_32f", float(), 4);
  check_large("zelmMul_tva_64f", double(), 6);
}

/// Where an element of the destination stands within as many elements from the start of a row of A or of the vector as are added,
/// counted without gaps, the _S2 kernels of stored matrices add one by one, and else in steps of eight. Here the destination's one
/// element stands in a gap, so no source is changed.
TEST(ApplyStrided, OverlapWithAStretchDecidesTheOrder) {
  constexpr int length = 9, gap = 2;  // elements 2 E apart
  for (const std::string name : {"Mul_mv_32f_S2", "Gaxpy_mv_32f_S2", "Mul_mv_64f_S2", "Gaxpy_mv_64f_S2"}) {
    const auto run = [&](auto zero) {
      using T = decltype(zero);
      Random random(7);
      for (const bool vector : {false, true})
        for (int place = -4; place < 2 * length + 4; ++place) {
          if (place % 2 == 0) continue;
          std::vector<T> memory = random.uniforms<T>(100), other = random.uniforms<T>(40);
          T *const near = &memory[20], *const d = near + place, *const a = vector ? other.data() : near,
                   *const x = vector ? near : other.data(), y = 0.25;
          const auto p = [&](int k) -> T { return a[gap * k] * x[gap * k]; };
          T want = stepped<T>(p, length, 0, place >= 0 && place < length ? kOneByOne : 8);
          if (name[0] == 'G') want += y;
          const int step = gap * int(sizeof(T));
          std::vector<Value> values = {{.p = a}, {.i = 8}, {.i = step}, {.i = length},
                                       {.i = 1}, {.p = x}, {.i = step}, {.i = length}};
          T addend = y;
          if (name[0] == 'G') values.insert(values.end(), {{.p = &addend}, {.i = int(sizeof(T))}, {.i = 1}});
          values.insert(values.end(), {{.p = d}, {.i = int(sizeof(T))}});
          EXPECT_EQ(find("p8_ownzelm" + name).call(values.data()), zelStsOk);
          EXPECT_EQ(*d, want) << name << ", destination at element " << place << (vector ? " of the vector" : " of the row");
        }
    };
    if (name.find("32f") != name.npos) run(float());
    else run(double());
  }
}

}  // namespace
}  // namespace zelm::test
