// Sums, differences, products with constants, linear combinations: every form, type, layout and kernel against the
// formula, bit for bit.
#include <cmath>
#include <limits>

#include "support/harness.hpp"

namespace zelm::test {
namespace {

template <class T>
std::vector<T> numbers(int n, Random& random, bool nans) {
  using Limits = std::numeric_limits<T>;
  const T nan = nans ? T(-std::nan("0x2468000000000")) : T(1);  // a payload that a float can hold
  const T special[] = {-T(0), T(0), Limits::infinity(), -Limits::infinity(), Limits::denorm_min(), Limits::max(), nan};
  std::vector<T> v = random.uniforms<T>(n);
  for (T& x : v)
    if (random.below(8) == 0) x = special[random.below(7)];
  return v;
}

using Values = std::map<std::string_view, double>;

/// Calls body(formula) with the function's own: behind a choice the compiler would make a - b a + -b, and turn the sign
/// of a NaN.
template <class T, class Body>
void with_formula(const Function& f, const Values& values, Body body) {
  const T v = T(values.at("val")), v1 = T(values.at("val1")), v2 = T(values.at("val2"));
  const std::string_view operation = f.row->operation;
  if (operation == "Add") body([](T a, T b) { return a + b; });
  else if (operation == "Mul") body([](T a, T b) { return a * b; });
  else if (operation == "Saxpy") body([=](T a, T b) { return a * v + b; });
  else if (operation == "LComb") body([=](T a, T b) { return a * v1 + b * v2; });
  else if (f.form[0] == 'c') body([](T a, T c) { return c - a; });
  else body([](T a, T b) { return a - b; });
}

template <class T>
void check(const Function& f, const Case& c, int in_place = -1, const std::vector<int>& teams = {}) {
  const int w = c.width, h = c.height, count = f.array() ? c.count : 1;
  std::string letters;  // of the sources
  for (const char letter : f.form)
    if (letter != 'a' && letter != 'c') letters += letter;
  Random random(std::uint32_t(w * 64 + h * 8 + count));
  // One operand alone has NaNs: which of two goes through is the processor's choice.
  const int with_nans = random.below(2);
  Data<T> data;
  for (const catalog::Operand& o : f.operands) {
    const int n = (o.constants ? 1 : w * h) * (o.array ? count : 1);
    data.operands.push_back(o.source ? numbers<T>(n, random, int(data.operands.size()) == with_nans)
                                     : std::vector<T>(std::size_t(n), T(-99)));
  }
  for (const char* name : {"val", "val1", "val2"}) data.values[name] = double(numbers<T>(1, random, with_nans == 1)[0]);
  with_formula<T>(f, data.values, [&](auto formula) {
    const auto model = [&](const Road&, Data<T>& d, int first, int n) {
      const auto element = [&](std::size_t o, int k, int i, int j) {
        if (o + 1 == d.operands.size()) return T(d.values.at("val"));
        if (!f.operands[o].array) k = 0;
        if (f.operands[o].constants) return d.operands[o][k];
        return d.operands[o][k * w * h + (letters[o] == 't' ? j * h + i : i * w + j)];
      };
      for (int k = first; k < first + n; ++k)
        for (int i = 0; i < h; ++i)
          for (int j = 0; j < w; ++j)
            d.operands.back()[(k * h + i) * w + j] = formula(element(0, k, i, j), element(1, k, i, j));
      return zelStsOk;
    };
    // A sum of products can meet two NaNs.
    const bool nan_bits = f.row->operation != "Saxpy" && f.row->operation != "LComb";
    const Sizes sizes = {{{"width", w}, {"height", h}, {"count", count}}};
    expect_model(f, sizes, c.memory, data, model, in_place, teams, nan_bits);
  });
}

struct Combine : FunctionTest {
  /// Every n-th case for which body(case, its number) is true.
  template <class Body>
  void each(int step, Body body) {
    const std::vector<Case> all = cases(f);
    for (int c = 0; c < int(all.size()) && !HasFailure(); c += step) body(all[std::size_t(c)]);
  }
};

TEST_P(Combine, EverySizeMemoryAndCount) {
  typed([&](auto t) { each(1, [&](const Case& c) { check<decltype(t)>(f, c); }); });
}

TEST_P(Combine, InPlace) {
  for (int source = 0; source + 1 < int(f.operands.size()); ++source) {
    const catalog::Operand& o = f.operands[std::size_t(source)];
    if (o.transposed || o.constants || o.array != f.array()) continue;
    typed([&](auto t) { each(5, [&](const Case& c) { check<decltype(t)>(f, c, source); }); });
  }
}

TEST_P(Combine, Teams) {
  if (f.driver().empty()) return;
  typed([&](auto t) {
    each(7, [&](const Case& c) {
      if (c.width <= 4 && c.count <= 13) check<decltype(t)>(f, c, -1, {1, 2, 3, 5});
    });
  });
}

/// A single vector whose operands begin anywhere in the same memory: the loop from the first element to the last counts.
TEST_P(Combine, OverlapOfSingleVectors) {
  if (f.array() || f.operands[0].matrix) return;
  typed([&](auto t) {
    using T = decltype(t);
    constexpr int widths[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 16, 33, 100};
    const Values constants = {{"val", .75}, {"val1", -.5}, {"val2", .625}};
    Random random(1);
    for (int turn = 0; turn < 2000 && !HasFailure(); ++turn) {
      const int width = widths[turn % 12], last = int(f.operands.size()) - 1;
      const std::vector<T> before = random.uniforms<T>(600);
      std::vector<T> want = before, got;
      int first[3], step[3];
      std::vector<T*> tables[3];
      const bool dense = random.below(2) == 0;
      for (int o = 0; o <= last; ++o) first[o] = random.below(2 * width), step[o] = dense ? 1 : 1 + random.below(3);
      with_formula<T>(f, constants, [&](auto formula) {
        for (int j = 0; j < width; ++j)
          want[first[last] + j * step[last]] =
              formula(want[first[0] + j * step[0]], last == 1 ? T(.75) : want[first[1] + j * step[1]]);
      });
      const auto run = [&](const std::string& name, const catalog::Kernel* kernel) {
        got = before;
        std::vector<Value> values;
        for (const catalog::Argument& a : f.arguments) {
          if (kernel && !kernel->takes(a)) continue;
          Value v;
          if (a.kind == catalog::Kind::value) v.x = constants.at(a.name);
          else if (a.kind == catalog::Kind::pointer) v.p = &got[first[a.operand]];
          else
            v.i = a.kind == catalog::Kind::size ? width : a.kind == catalog::Kind::shift ? 0 : step[a.operand] * int(sizeof(T));
          if (a.type.ends_with("const*")) {
            for (int j = 0; j < width; ++j) tables[a.operand].push_back(&got[first[a.operand] + j * step[a.operand]]);
            v.p = tables[a.operand].data();
          }
          values.push_back(v);
        }
        EXPECT_EQ(find(name).call(values.data()), zelStsOk);
        EXPECT_EQ(got, want) << name << ", width " << width << ", destination at " << first[last] << ", sources at " << first[0]
                             << " and " << first[1] << ", dense " << dense;
      };
      run(f.exported(), nullptr);
      for (const catalog::Kernel& k : f.kernels)
        if (dense || !k.contiguous) run(k.symbol, &k);
    }
  });
}

INSTANTIATE_TEST_SUITE_P(All, Combine, testing::ValuesIn(family("", "combine")), FunctionTest::name);

// Of objects 24 forms with an array and 9 without, with constants 14 and 6, linear combinations 5 and 2; in two types.
TEST(CombineFamily, IsComplete) { EXPECT_EQ(family("", "combine").size(), 2u * ((24 + 14 + 5) * 3 + (9 + 6 + 2) * 2)); }

}  // namespace
}  // namespace zelm::test
