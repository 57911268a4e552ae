// Sums and differences of objects: every form, type, layout and kernel against the formula, bit for bit.
#include <cmath>
#include <functional>
#include <limits>

#include "support/harness.hpp"

namespace zelm::test {
namespace {

/// An operand as its letters in the name say.
struct Tag {
  bool transposed, vector, array;
};
std::vector<Tag> tags_of(std::string_view form) {
  std::vector<Tag> tags;
  for (const char c : form) {
    if (c == 'a') tags.back().array = true;
    else tags.push_back({c == 't', c == 'v', false});
  }
  return tags;
}

struct Form {
  explicit Form(const Function& f) : tags(tags_of(f.form)), minus(f.name.substr(0, 3) == "Sub") {}
  std::vector<Tag> tags;
  bool minus;
  bool vector() const { return tags[0].vector; }
  bool array() const { return tags[0].array || tags[1].array; }
};

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

template <class T>
struct Combination {
  Combination(const Function& function, int width, int height, int count) : f(function), form(f), w(width), h(height) {
    sizes.list = {{"width", w}, {"height", h}, {"count", form.array() ? count : 1}};
    Random random(std::uint32_t(w * 64 + h * 8 + count));
    // One operand alone has NaNs: which of two goes through is the processor's choice.
    const int with_nans = random.below(2), size = w * h;
    for (int o = 0; o < 2; ++o)
      data.operands.push_back(numbers<T>(size * (form.tags[o].array ? count : 1), random, o == with_nans));
    data.operands.push_back(std::vector<T>(std::size_t(size * sizes.of("count")), T(-99)));
  }

  void check(const Memory& memory, int in_place = -1, const std::vector<int>& teams = {}) const {
    if (form.minus) check_with(std::minus<T>(), memory, in_place, teams);
    else check_with(std::plus<T>(), memory, in_place, teams);
  }

  template <class Op>  // the compiler would make a - b a + -b behind a choice, and turn the sign of a NaN
  void check_with(Op op, const Memory& memory, int in_place, const std::vector<int>& teams) const {
    const auto model = [&](const Road&, Data<T>& d, int first, int n) {
      const auto element = [&](int o, int k, int i, int j) {
        const Tag& tag = form.tags[o];
        return d.operands[o][(tag.array ? k : 0) * w * h + (tag.transposed ? j * h + i : i * w + j)];
      };
      for (int k = first; k < first + n; ++k)
        for (int i = 0; i < h; ++i)
          for (int j = 0; j < w; ++j) d.operands[2][(k * h + i) * w + j] = op(element(0, k, i, j), element(1, k, i, j));
      return zelStsOk;
    };
    expect_model(f, sizes, memory, data, model, in_place, teams, true);
  }

  const Function& f;
  Form form;
  int w, h;
  Sizes sizes;
  Data<T> data;
};

constexpr std::pair<int, int> kMatrices[] = {{1, 1}, {2, 2},   {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7}, {8, 8},
                                             {9, 9}, {12, 12}, {3, 4}, {6, 5}, {2, 5}, {7, 3}, {1, 4}, {4, 1}};
constexpr std::pair<int, int> kVectors[] = {{1, 1}, {2, 1}, {3, 1}, {4, 1},  {5, 1},  {6, 1},
                                            {7, 1}, {8, 1}, {9, 1}, {16, 1}, {33, 1}, {100, 1}};
constexpr int kCounts[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 17, 64};

/// body(width, height, serial number) for the sizes of a form.
template <class Body>
void for_sizes(const Form& form, Body body) {
  int n = 0;
  if (form.vector())
    for (const auto& [w, h] : kVectors) body(w, h, n++);
  else
    for (const auto& [w, h] : kMatrices) body(w, h, n++);
}

struct Combine : FunctionTest {};

TEST_P(Combine, EverySizeInEveryMemory) {
  typed([&](auto t) {
    const Form form(f);
    int turn = 0;
    for_sizes(form, [&](int w, int h, int) {
      for (const Memory& memory : memories()) {
        const int count = kCounts[std::size_t(turn++ * 4) % std::size(kCounts)];
        Combination<decltype(t)>(f, w, h, count).check(memory);
        if (HasFailure()) return;
      }
    });
  });
}

TEST_P(Combine, EveryCount) {
  typed([&](auto t) {
    const Form form(f);
    if (!form.array()) return;
    int turn = 0;
    for_sizes(form, [&](int w, int h, int) {
      if (w > 6 || w * h > 36) return;
      for (const int count : kCounts) {
        const Combination<decltype(t)> c(f, w, h, count);
        c.check(memories()[0]);
        c.check(memories()[std::size_t(turn++) % memories().size()]);
        if (HasFailure()) return;
      }
    });
  });
}

TEST_P(Combine, InPlace) {
  typed([&](auto t) {
    const Form form(f);
    for_sizes(form, [&](int w, int h, int n) {
      for (int source = 0; source < 2; ++source) {
        const Tag& tag = form.tags[source];
        if (tag.transposed || tag.array != form.array()) continue;
        for (int m = n % 3; m < int(memories().size()); m += 3)
          Combination<decltype(t)>(f, w, h, kCounts[(n + m) % 15]).check(memories()[m], source);
      }
    });
  });
}

TEST_P(Combine, Teams) {
  if (f.driver().empty()) return;
  typed([&](auto t) {
    int turn = 0;
    const Form form(f);
    for (const auto& [w, h] : {std::pair{3, 3}, {4, 4}, {2, 5}})
      for (int count = 1; count <= 13; count += 1 + (turn % 2))
        Combination<decltype(t)>(f, w, form.vector() ? 1 : h, count)
            .check(memories()[std::size_t(turn++) % memories().size()], -1, {1, 2, 3, 5});
  });
}

INSTANTIATE_TEST_SUITE_P(All, Combine, testing::ValuesIn(family("", "combine")), FunctionTest::name);

// 13 forms of Add and 20 of Sub, 24 of them with an array, in two types.
TEST(CombineFamily, IsComplete) { EXPECT_EQ(family("", "combine").size(), 2u * (24 * 3 + 9 * 2)); }

}  // namespace
}  // namespace zelm::test
