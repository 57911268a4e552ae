// Products of two matrices against the sums in plain scalar code, bit for bit: every form, type, layout and kernel, each in the
// order and with the fixed sizes that are its own.
#include <cmath>

#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

enum class Order { blocked, plain, gathering };
struct Way {
  Order order;
  int from, to;  // square products of these orders: left to right
};

/// `kind`: "32f_S2", ...
Way way_of(std::string_view form, std::string_view kind) {
  const std::string_view type = kind.substr(0, 3), path = kind.substr(3);
  const auto one_of = [](std::string_view word, auto... words) { return (... || (word == words)); };
  if (one_of(path, "", "_L")) {
    if (form == "mata" && kind == "64f") return {Order::plain, 3, 6};
    if (form == "tm" && kind == "32f") return {Order::blocked, 3, 5};
    if (kind == "32f_L" && one_of(form, "mta", "tta")) return {Order::blocked, 7, 0};
    if (kind == "64f_L" && form == "tta") return {Order::blocked, 7, 0};
    return {Order::blocked, 3, 6};
  }
  const bool rows_with_rows = one_of(form, "mt", "mat", "mta", "mata");
  if (path == "_LS2") {
    if (type == "32f" && one_of(form, "mam", "mat", "tam", "tat")) return {Order::plain, 3, 3};
    return {rows_with_rows ? Order::gathering : Order::plain, 3, 6};
  }
  if (path == "_S2") {
    const int to = type == "64f" ? 6 : one_of(form, "mat", "tam") ? 3 : form == "mama" ? 5 : 6;
    return {rows_with_rows ? Order::gathering : Order::plain, 3, to};
  }
  return {Order::plain, 3, type == "32f" && one_of(form, "mam", "mat", "tam") ? 3 : 6};
}

Way way_of(const Function& f, const catalog::Kernel& kernel) {
  return way_of(f.form, std::string_view(kernel.symbol).substr(std::string_view("p8_ownzelmMul_").size() + f.form.size() + 1));
}

/// Term k in sum k mod S as far as there are S terms to a turn, and the rest one by one.
template <int S, class T, class Term>
T sum_apart(int terms, Term term) {
  T p[8] = {}, sum;
  int k = 0;
  for (; k < terms / S * S; ++k) p[k % S] += term(k);
  if constexpr (sizeof(T) == 4) {
    for (int l = 0; l < 4; ++l) p[l] += p[l + 4];
    sum = (p[0] + p[2]) + (p[1] + p[3]);
  } else {
    for (int l = 0; l < 2; ++l) p[l] = (p[l] + p[l + 2]) + (p[l + 4] + p[l + 6]);
    sum = p[0] + p[1];
  }
  for (; k < terms; ++k) sum += term(k);
  return sum;
}

template <class T, class Term>
T sum_of(const Way& way, int i, int rows, int columns, int terms, Term term) {
  if (rows == terms && columns == terms && terms >= way.from && terms <= way.to) {
    T sum = term(0);
    for (int k = 1; k < terms; ++k) sum += term(k);
    return sum;
  }
  if (way.order == Order::blocked && i < rows / 4 * 4) return sum_apart<16 / sizeof(T), T>(terms, term);
  if (way.order == Order::plain) return sum_apart<1 << 20, T>(terms, term);
  return sum_apart<8, T>(terms, term);
}

struct Size {
  int rows, columns, terms;
};
constexpr Size kSizes[] = {{1, 1, 1},   {2, 2, 2},   {3, 3, 3},    {4, 4, 4},    {5, 5, 5}, {6, 6, 6},  {7, 7, 7},
                           {8, 8, 8},   {9, 9, 9},   {3, 4, 3},    {3, 3, 7},    {4, 4, 5}, {4, 1, 4},  {1, 4, 9},
                           {5, 2, 6},   {6, 6, 1},   {2, 3, 8},    {7, 5, 4},    {9, 3, 2}, {8, 10, 3}, {11, 6, 7},
                           {10, 13, 9}, {3, 17, 16}, {12, 12, 12}, {33, 33, 33}, {4, 7, 1}, {13, 9, 10}};

Sizes sizes_of(const Function& f, const Size& s, int count) {
  const bool a = f.operands[0].transposed, b = f.operands[1].transposed;
  return {{{"width1", a ? s.rows : s.terms},
           {"height1", a ? s.terms : s.rows},
           {"width2", b ? s.terms : s.columns},
           {"height2", b ? s.columns : s.terms},
           {"count", f.array() ? count : 1}}};
}

/// Sources have many zeros of both signs: a sum of negative zeros shows what it started from.
template <class T>
std::vector<T> numbers(int n, Random& random) {
  std::vector<T> v = random.uniforms<T>(n);
  for (T& x : v)
    if (random.below(4) == 0) x = random.below(2) ? T(0) : -T(0);
  return v;
}

template <class T>
void check(const Function& f, const Size& size, int count, const Memory& memory, Random& random,
           const std::vector<int>& teams = {}) {
  const int rows = size.rows, columns = size.columns, terms = size.terms;
  const bool turned[] = {f.operands[0].transposed, f.operands[1].transposed};
  const Sizes sizes = sizes_of(f, size, count);
  Data<T> data;
  for (const catalog::Operand& o : f.operands) {
    const int n = sizes.of(o.rows) * sizes.of(o.columns) * (o.array ? sizes.of("count") : 1);
    data.operands.push_back(o.source ? numbers<T>(n, random) : std::vector<T>(std::size_t(n), T(-99)));
  }
  const auto model = [&](const Road& road, Data<T>& d, int first, int n) {
    const Way way = way_of(f, *road.kernel);
    for (int k = first; k < first + n; ++k) {
      const auto element = [&](int o, int i, int j) {
        const int h = sizes.of(f.operands[o].rows), w = sizes.of(f.operands[o].columns);
        return d.operands[o][(f.operands[o].array ? k * h * w : 0) + (turned[o] ? j * w + i : i * w + j)];
      };
      for (int i = 0; i < rows; ++i)
        for (int j = 0; j < columns; ++j)
          d.operands[2][(k * rows + i) * columns + j] =
              sum_of<T>(way, i, rows, columns, terms, [&](int m) { return element(0, i, m) * element(1, m, j); });
    }
    return zelStsOk;
  };
  expect_model(f, sizes, memory, data, model, -1, teams);
}

struct Multiply : FunctionTest {};

TEST_P(Multiply, EverySizeInEveryMemory) {
  typed([&](auto t) {
    Random random(1);
    for (const Size& size : kSizes)
      for (std::size_t m = 0; m < memories().size() && !HasFailure(); m += size.terms < 10 ? 1 : 4)
        check<decltype(t)>(f, size, 1 + random.below(size.rows < 9 ? 13 : 2), memories()[m], random);
  });
}

TEST_P(Multiply, EveryCountAndTeams) {
  if (!f.array()) return;
  typed([&](auto t) {
    Random random(2);
    for (int n = 2; n <= 7; ++n)
      for (int count = 1; count <= 13 && !HasFailure(); ++count)
        check<decltype(t)>(f, {n, n, n}, count, memories()[random.next() % memories().size()], random, {1, 2, 3, 5});
  });
}

/// Operands anywhere in the same memory, also half an element apart: the kernels for any stride store every partial sum, and what
/// they read is what stands there. Rows with rows are summed eight terms at a time only where the destination element lies apart
/// from both rows, as far as these would reach if their elements were neighbours.
TEST_P(Multiply, OverlapInKernelsOfAnyStride) {
  if (f.kernels.size() < 2) return;
  const catalog::Kernel& kernel = f.kernels.back();
  typed([&](auto t) {
    using T = decltype(t);
    constexpr int E = sizeof(T);
    Random random(3);
    for (int turn = 0; turn < 1500 && !HasFailure(); ++turn) {
      const int rows = 1 + random.below(3), columns = 1 + random.below(3),
                terms = std::max(rows, columns) + 1 + random.below(18);
      const bool turned[] = {f.operands[0].transposed, f.operands[1].transposed};
      const Sizes sizes = sizes_of(f, {rows, columns, terms}, 1);
      std::vector<T> memory = numbers<T>(400, random), want = memory;
      int at[3], stride[3][2];
      for (int o = 0; o < 3; ++o) {
        at[o] = random.below(60) * E + (random.below(4) == 0 ? E / 2 : 0);
        for (int& s : stride[o]) s = (1 + random.below(4)) * E;
      }
      const auto address = [&](int o, int i, int j) {
        if (o < 2 && turned[o]) std::swap(i, j);
        return reinterpret_cast<char*>(want.data()) + at[o] + i * stride[o][0] + j * stride[o][1];
      };
      const auto get = [](const char* p) {
        T x;
        std::memcpy(&x, p, E);
        return x;
      };
      for (int i = 0; i < rows; ++i)
        for (int j = 0; j < columns; ++j) {
          char* const d = address(2, i, j);
          const auto term = [&](int k) { return get(address(0, i, k)) * get(address(1, k, j)); };
          const auto meets = [&](const char* row) { return row < d + E && d < row + terms * E; };
          T sum = 0;
          int k = 0;
          if (way_of(f, kernel).order == Order::gathering && terms >= 8 && !meets(address(0, i, 0)) &&
              !meets(address(1, 0, j))) {
            k = terms / 8 * 8;
            sum = sum_apart<8, T>(k, term);
          }
          std::memcpy(d, &sum, E);
          for (; k < terms; ++k) {
            sum += term(k);
            std::memcpy(d, &sum, E);
          }
        }
      std::vector<Value> values;
      char* list[3];
      for (const catalog::Argument& a : f.arguments) {
        Value v;
        if (a.kind == catalog::Kind::pointer) {
          v.p = list[a.operand] = reinterpret_cast<char*>(memory.data()) + at[a.operand];
          if (a.type.ends_with("const*")) v.p = &list[a.operand];
        } else if (a.kind == catalog::Kind::stride) {
          v.i = a.level == 0 ? E : stride[a.operand][a.level - 1];
        } else {
          v.i = a.kind == catalog::Kind::shift ? 0 : sizes.of(a.name);
        }
        values.push_back(v);
      }
      EXPECT_EQ(find(kernel.symbol).call(values.data()), zelStsOk);
      for (std::size_t e = 0; e < want.size(); ++e)
        EXPECT_TRUE(std::memcmp(&memory[e], &want[e], E) == 0 || (std::isnan(memory[e]) && std::isnan(want[e])))
            << kernel.symbol << ", " << rows << " x " << columns << " of " << terms << ", element " << e << ": " << memory[e]
            << ", expected " << want[e];
    }
  });
}

INSTANTIATE_TEST_SUITE_P(All, Multiply, testing::ValuesIn(family("Mul", "multiply")), FunctionTest::name);

/// The single operand of an array of products of fixed order is read once, before anything is stored: the first product may replace it.
TEST(MultiplyFixed, FirstProductOntoTheSingleOperand) {
  Random random(4);
  constexpr int E = sizeof(float), n = 5, cells = n * n, count = 7;
  const auto array = numbers<float>(cells * count, random), single = numbers<float>(cells * count, random);
  const auto onto = [&](int object, int row, int element, auto multiply) {
    std::vector<float> apart(single.size()), over = single;
    multiply(single.data(), apart.data(), object, row, element);
    multiply(over.data(), over.data(), object, row, element);
    EXPECT_EQ(over, apart);
  };
  onto(cells * E, n * E, E, [&](const float* b, float* d, int s0, int s1, int s2) {
    return zelmMul_mam_32f(array.data(), s0, s1, s2, n, n, b, s1, s2, n, n, d, s0, s1, s2, count);
  });
  onto(E, n * count * E, count * E, [&](const float* a, float* d, int s0, int s1, int s2) {
    return zelmMul_mma_32f(a, s1, s2, n, n, array.data(), s0, s1, s2, n, n, d, s0, s1, s2, count);
  });
}

TEST(MultiplyFamily, IsComplete) { EXPECT_EQ(family("Mul", "multiply").size(), 88u); }

}  // namespace
}  // namespace zelm::test
