// The cost at which an array function asks for a team. The test program answers the question with 1 and counts it.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>

#include "frame/interpose.hpp"
#include "support/harness.hpp"

namespace zelm::test {
namespace {

struct Rule {
  std::string_view operations, forms;
  std::int64_t (*cost)(std::int64_t c, std::int64_t w, std::int64_t h);  // of square matrices: w == h
  std::array<int, 10> limits;                                            // 32f, 32f _S2, _L, _LS2, _P, then those of 64f
  bool square = false;
};

constexpr std::array kMatrix = {3000, 2000, 2000, 2000, 2000, 2000, 2000, 2000, 2000, 2000};
constexpr std::array kVector = {4801, 4801, 2501, 2501, 1501, 1401, 1401, 2501, 2501, 1501};
constexpr std::array<int, 10> everywhere(int limit) {
  std::array<int, 10> all{};
  all.fill(limit);
  return all;
}

const Rule kRules[] = {
    {"Add Sub", "mam mat tam tat", [](auto c, auto w, auto h) { return (2 * c + 1) * w * h; }, kMatrix},
    {"Sub", "mma mta tma tta", [](auto c, auto w, auto h) { return (2 * c + 1) * w * h; }, kMatrix},
    {"Add Sub", "mama mata tama tata", [](auto c, auto w, auto h) { return 3 * c * w * h; }, kMatrix},
    {"Add Sub", "vav vva", [](auto c, auto n, auto) { return (2 * c + 1) * n; }, kVector},
    {"Add Sub", "vava", [](auto c, auto n, auto) { return 3 * c * n; }, kVector},
    {"LUDecomp", "ma", [](auto c, auto n, auto) { return c * n * n; }, everywhere(1001), true},
    {"LUBackSubst", "mva", [](auto c, auto n, auto) { return n * n + 2 * c * n; }, everywhere(701), true},
    {"LUBackSubst", "mava", [](auto c, auto n, auto) { return (n + 2) * n * c; }, everywhere(1201), true},
};

const Rule* rule_of(const Function& f) {
  const auto in = [](std::string_view list, std::string_view word) {
    const auto all = catalog::words(list);
    return std::find(all.begin(), all.end(), word) != all.end();
  };
  for (const Rule& r : kRules)
    if (in(r.operations, f.row->operation) && in(r.forms, f.form)) return &r;
  return nullptr;
}

/// Calls `name` on objects that all lie in one place: how often it asked, for that many of them, and that large.
int asked(const std::string& name, int c, int w, int h, bool contiguous) {
  const Function& f = function("zelm" + name);
  alignas(8) static unsigned char bytes[4096 * 8 + 4096];
  static int index[4 * 4096];
  std::fill(std::begin(bytes), std::end(bytes), 0);
  std::vector<void*> table(4096, bytes);
  std::vector<Value> values;
  for (const auto& a : f.arguments) {
    Value v;
    if (a.name.starts_with("pp")) v.p = table.data();
    else if (a.name.ends_with("Index")) v.p = index;
    else if (a.name[0] == 'p') v.p = bytes;
    else if (a.name == "count") v.i = c;
    else if (a.name == "height") v.i = h;
    else if (a.name.starts_with("width")) v.i = w;
    else if (a.name.ends_with("Stride1")) v.i = 64;
    else if (a.name.ends_with("ByteShift")) v.i = 0;
    else v.i = f.element_size() * (a.name.ends_with("Stride2") && !contiguous ? 2 : 1);
    values.push_back(v);
  }
  const Threads one({1});
  find(f.exported()).call(values.data());
  return imports.asked;
}

TEST(Limits, EveryArrayFunctionAsksFromItsLimitOn) {
  int walked = 0, exact = 0;
  for (const Function& f : catalog::functions()) {
    if (!f.built() || !f.array() || !f.validates()) continue;
    const Rule* const rule = rule_of(f);
    ASSERT_NE(rule, nullptr) << f.name << ": no rule for its cost";
    for (const bool contiguous : {true, false}) {
      if (f.layout == "P" && !contiguous) continue;
      const int column = (f.element == "double" ? 5 : 0) + (f.layout == "P" ? 4 : (f.layout == "L" ? 2 : 0) + !contiguous);
      const int limit = rule->limits[std::size_t(column)];
      struct Size {
        int c, w, h;
      };
      for (const Size size : {Size{0, 1, 1}, {0, 2, 2}, {0, 3, 1}, {0, 4, 3}}) {
        const int h = rule->square ? size.w : size.h;
        int c = 1;
        while (rule->cost(c + 1, size.w, h) < limit) ++c;
        exact += rule->cost(c, size.w, h) == limit - 1;
        exact += rule->cost(c + 1, size.w, h) == limit;
        EXPECT_EQ(asked(f.name, c, size.w, h, contiguous), 0) << f.name << " " << c << " " << size.w << " " << h;
        if (f.name == "Sub_vva_64f_P") EXPECT_EQ(asked(f.name, 4000, size.w, h, contiguous), 0);
        else EXPECT_GE(asked(f.name, c + 1, size.w, h, contiguous), 1) << f.name << " " << c + 1 << " " << size.w << " " << h;
        ++walked;
      }
    }
  }
  EXPECT_GT(walked, 1000);
  EXPECT_GT(exact, 100);
}

TEST(Limits, CasesByHand) {
  EXPECT_EQ(asked("Add_mam_32f", 1499, 1, 1, true), 0);     // 2999
  EXPECT_EQ(asked("Add_mama_32f", 1000, 1, 1, true), 1);    // 3000
  EXPECT_EQ(asked("Add_mam_32f", 187, 4, 2, true), 1);      // 3000
  EXPECT_EQ(asked("Add_mam_32f", 999, 1, 1, false), 0);     // 1999
  EXPECT_EQ(asked("Add_mam_32f", 62, 4, 4, false), 1);      // 2000
  EXPECT_EQ(asked("LUDecomp_ma_32f", 250, 2, 2, true), 0);  // 1000
  EXPECT_EQ(asked("LUDecomp_ma_32f", 1001, 1, 1, true), 1);
  EXPECT_EQ(asked("Sub_vva_64f_P", 4000, 4, 1, true), 0);  // 32004, and yet always serial
  EXPECT_GE(asked("Sub_vva_32f_P", 4000, 4, 1, true), 1);
}

/// The first matrix is singular, so that a call for any number of objects ends at once.
TEST(Limits, CostsWrapIn32Bits) {
  for (const std::string name : {"LUDecomp_ma_32f", "LUDecomp_ma_32f_P", "LUDecomp_ma_64f"}) {
    EXPECT_GE(asked(name, (1 << 29) - 1, 2, 2, true), 1) << name;    // 2^31 - 4
    EXPECT_EQ(asked(name, 1 << 29, 2, 2, true), 0) << name;          // wraps to -2^31
    EXPECT_EQ(asked(name, 1 << 30, 2, 2, true), 0) << name;          // wraps to 0
    EXPECT_EQ(asked(name, (1 << 30) + 250, 2, 2, true), 0) << name;  // wraps to 1000
    EXPECT_GE(asked(name, (1 << 30) + 251, 2, 2, true), 1) << name;  // wraps to 1004
  }
}

}  // namespace
}  // namespace zelm::test
