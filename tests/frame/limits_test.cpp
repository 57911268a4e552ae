// The cost at which an array function asks for a team. The test program answers the question with 1 and counts it.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>

#include "frame/interpose.hpp"
#include "support/harness.hpp"

namespace zelm::test {
namespace {

using Cost = std::int64_t (*)(std::int64_t c, std::int64_t w, std::int64_t h);  // vectors: h = 1; square matrices: h = w
using Limits = std::array<int, 10>;                                             // 32f, 32f _S2, _L, _LS2, _P, then those of 64f

constexpr Cost kOneSingle = [](auto c, auto w, auto h) { return (2 * c + 1) * w * h; };
constexpr Cost kThreeArrays = [](auto c, auto w, auto h) { return 3 * c * w * h; };
constexpr Cost kTwoArrays = [](auto c, auto w, auto h) { return 2 * c * w * h; };
constexpr Cost kOneMatrix = [](auto c, auto w, auto h) { return w * h + c * w + c * h; };
constexpr Cost kOneAndConstants = [](auto c, auto n, auto) { return c * n + c + n; };
constexpr Cost kOneFactor = [](auto c, auto n, auto) { return n * n + 2 * c * n; };
constexpr Cost kOwnFactors = [](auto c, auto n, auto) { return (n + 2) * n * c; };
constexpr Cost kArrayAndConstants = [](auto c, auto n, auto) { return (2 * n + 1) * c; };

constexpr Limits kMatrix = {3000, 2000, 2000, 2000, 2000, 2000, 2000, 2000, 2000, 2000};
constexpr Limits kVector = {4801, 4801, 2501, 2501, 1501, 1401, 1401, 2501, 2501, 1501};
constexpr Limits kScale = {2101, 2101, 1201, 1201, 651, 2101, 2101, 1201, 1201, 651};
constexpr Limits kSaxpy = {3001, 2001, 1501, 1001, 1201, 3001, 1201, 1001, 1001, 1201};
constexpr Limits kWeighted = {4501, 4501, 4501, 3751, 4501, 4501, 4501, 4501, 4501, 4501};
constexpr Limits kProduct = {2501, 1441, 3601, 1441, 1441, 3601, 1441, 3601, 1441, 1441};
constexpr Limits kGaxpy = {7001, 5001, 7001, 501, 4501, 5001, 5001, 6001, 5001, 7001};
constexpr Limits kDot = {5001, 2621, 2401, 2401, 2401, 3501, 2001, 4201, 3301, 2001};
constexpr Limits kQR = {2801, 2801, 1801, 1801, 1801, 2801, 2801, 1801, 1801, 1801};
constexpr Limits everywhere(int limit) {
  Limits all{};
  all.fill(limit);
  return all;
}
constexpr Limits kNever = everywhere(0);

const struct Rule {
  std::string_view operations, forms;
  Cost cost;
  Limits limits;
} kRules[] = {
    {"Add Sub", "mam mat tam tat mma mta tma tta", kOneSingle, kMatrix},
    {"Add Sub", "mama mata tama tata", kThreeArrays, kMatrix},
    {"Add Sub", "vav vva vac", kOneSingle, kVector},
    {"Add Sub", "vava", kThreeArrays, kVector},
    {"Add Sub", "vca cav", kOneAndConstants, kVector},
    {"Add Sub", "vaca cava", kArrayAndConstants, kVector},
    {"Sub", "cva", [](auto c, auto, auto) { return 2 * c; }, {4800, 4800, 2500, 2500, 1500, 1400, 1400, 2500, 2500, 1500}},
    {"Mul", "mac tac", kTwoArrays, {3501, 3501, 3501, 1501, 1701, 3501, 3501, 3501, 3501, 1701}},
    {"Mul", "vac", kTwoArrays, kProduct},
    {"Mul", "vca", kOneAndConstants, kScale},
    {"Mul", "vaca", kArrayAndConstants, kScale},
    {"Saxpy", "vav", kOneSingle, kSaxpy},
    {"Saxpy", "vva", kOneSingle, {3001, 2001, 1501, 1501, 1201, 3001, 1201, 1001, 1001, 1201}},
    {"Saxpy", "vava", kThreeArrays, kSaxpy},
    {"LComb", "vav", kOneSingle, kWeighted},
    {"LComb", "vava", kThreeArrays, kWeighted},
    // The second matrix has the sizes of the first, exchanged where the product needs it.
    {"Mul", "mam mat mma mta", [](auto c, auto w, auto h) { return c * w * h + c * h * h + w * h; }, kProduct},
    {"Mul", "tam tat tma tta", [](auto c, auto w, auto h) { return c * w * h + c * w * w + w * h; }, kProduct},
    {"Mul", "mama mata", [](auto c, auto w, auto h) { return 2 * c * w * h + c * h * h; }, kProduct},
    {"Mul", "tama tata", [](auto c, auto w, auto h) { return 2 * c * w * h + c * w * w; }, kProduct},
    {"Mul", "mva tva", kOneMatrix, kProduct},
    {"Mul", "mav", [](auto c, auto w, auto h) { return c * w * h + c * h + w; }, kProduct},
    {"Mul", "tav", [](auto c, auto w, auto h) { return c * w * h + c * w + h; }, kProduct},
    {"Mul", "mava tava", [](auto c, auto w, auto h) { return c * w * h + c * w + c * h; }, kProduct},
    {"Gaxpy", "mva", [](auto c, auto w, auto h) { return (w + 2 * h) * c; }, kGaxpy},
    {"Gaxpy", "mvav", [](auto c, auto w, auto h) { return c * w + c * h + h; }, kGaxpy},
    {"Copy Extract LoadIdentity Transpose", "ma ta va", nullptr, kNever},
    {"DotProduct", "vav", [](auto c, auto n, auto) { return c * n + n; }, kDot},
    {"DotProduct", "vava", kTwoArrays, kDot},
    {"CrossProduct", "vav vva", [](auto c, auto, auto) { return 2 * c; }, everywhere(3000)},
    {"CrossProduct", "vava", [](auto c, auto, auto) { return 3 * c; }, everywhere(3001)},
    {"L2Norm", "va", [](auto c, auto n, auto) { return c * n; }, everywhere(1501)},
    {"FrobNorm",
     "ma",
     [](auto c, auto w, auto h) { return c * w * h; },
     {2501, 1801, 1601, 1601, 1501, 1801, 1501, 1601, 1601, 2501}},
    {"Trace", "ma", [](auto c, auto n, auto) { return c * n; }, everywhere(3601)},
    {"Det", "ma", [](auto c, auto n, auto) { return c * n; }, everywhere(14401)},
    {"Invert",
     "ma",
     [](auto c, auto n, auto) { return 2 * c * n; },
     {3601, 2501, 2501, 2501, 2501, 2501, 2501, 2501, 2501, 2501}},
    {"LUDecomp", "ma", [](auto c, auto n, auto) { return c * n * n; }, everywhere(1001)},
    {"LUBackSubst", "mva", kOneFactor, everywhere(701)},
    {"LUBackSubst", "mava", kOwnFactors, everywhere(1201)},
    {"CholeskyDecomp",
     "ma",
     [](auto c, auto n, auto) { return c * n * n; },
     {7501, 7501, 2001, 2001, 2001, 2001, 2001, 721, 2001, 2001}},
    {"QRDecomp", "ma", kTwoArrays, kQR},
    {"QRBackSubst", "mva", [](auto c, auto w, auto h) { return w * h + c * w + c * h; }, kQR},
    {"QRBackSubst", "mava", [](auto c, auto w, auto h) { return c * w * h + c * w + c * h; }, kQR},
    {"CholeskyBackSubst", "mva", kOneFactor, {1201, 1201, 721, 721, 721, 721, 721, 721, 721, 721}},
    {"CholeskyBackSubst", "mava", kOwnFactors, {2051, 1701, 1701, 1701, 1701, 1701, 1701, 1701, 1701, 2051}},
    {"EigenValues", "ma", [](auto c, auto n, auto) { return c * n * n + c * n; }, everywhere(251)},
    {"EigenValuesSym", "ma", [](auto c, auto n, auto) { return c * n * n + c * n; }, everywhere(1001)},
    {"EigenValuesVectors", "ma", [](auto c, auto n, auto) { return 3 * c * n * n + c * n; }, everywhere(501)},
    {"EigenValuesVectorsSym", "ma", [](auto c, auto n, auto) { return 2 * c * n * n + c * n; }, everywhere(701)},
    {"EigenValuesVectorsLeft EigenValuesVectorsRight", "ma", nullptr, kNever},
    {"AffineTransform3DH", "mva", [](auto c, auto, auto) { return 6 * c; }, {785, 785, 0, 0, 0, 0, 0, 0, 0, 0}},
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

/// Calls `name` on objects that all lie in one place. How often it asked for threads, for that many of them and that
/// large; for the size of the cache it asked imports.cache_asked times.
int asked(const std::string& name, int c, int w, int h, bool contiguous) {
  const Function& f = function("zelm" + name);
  const bool exchanged = f.operands.size() > 1 && f.operands[0].transposed == f.operands[1].transposed;
  alignas(8) static unsigned char bytes[2 << 20];
  static int index[4 * 4096];
  std::fill(bytes, bytes + 40000, 0);
  static std::vector<void*> table(20000, bytes);
  std::vector<Value> values;
  for (const auto& a : f.arguments) {
    Value v;
    if (a.name.starts_with("pp")) v.p = table.data();
    else if (a.name.ends_with("Index")) v.p = index;
    else if (a.name[0] == 'p') v.p = bytes;
    else if (a.name == "count") v.i = c;
    else if (a.name == "width2") v.i = exchanged ? h : w;
    else if (a.name == "height2") v.i = exchanged ? w : h;
    else if (a.name.starts_with("height")) v.i = h;
    else if (a.name.starts_with("width")) v.i = w;
    else if (a.name == "src2Len") v.i = f.operands[0].transposed ? h : w;
    else if (a.name == "src3Len") v.i = h;
    else if (a.kind == catalog::Kind::value) v.x = 0;
    else if (a.name.ends_with("Stride1")) v.i = 64;
    else if (a.name.ends_with("ByteShift")) v.i = 0;
    else v.i = f.element_size() * (a.name.ends_with("Stride2") && !contiguous ? 2 : 1);
    values.push_back(v);
  }
  const Threads one({1});
  imports.cache_asked = 0;
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
      const bool serial = f.name == "Sub_vva_64f_P" || f.name == "CrossProduct_vva_64f_P";
      const int limit = serial ? 0 : rule->limits[std::size_t(column)];
      if (limit == 0) {  // serial, whatever the cost
        EXPECT_EQ(asked(f.name, 4000, 4, 1, contiguous), 0) << f.name;
        continue;
      }
      for (const auto& [long_side, short_side] : {std::pair{1, 1}, {2, 2}, {3, 1}, {4, 3}}) {
        const bool tall = f.name.starts_with("QR");
        const int w = tall ? short_side : long_side, h = tall ? long_side : f.operands[0].matrix ? short_side : 1;
        int c = 1;
        while (rule->cost(c + 1, w, h) < limit) ++c;
        exact += rule->cost(c, w, h) == limit - 1;
        exact += rule->cost(c + 1, w, h) == limit;
        EXPECT_EQ(asked(f.name, c, w, h, contiguous), 0) << f.name << " " << c << " " << w << " " << h;
        if (w == 1 && !f.row->order_one.empty())  // answered by the entry, however many
          EXPECT_EQ(asked(f.name, c + 1, w, h, contiguous), 0) << f.name;
        else EXPECT_GE(asked(f.name, c + 1, w, h, contiguous), 1) << f.name << " " << c + 1 << " " << w << " " << h;
        ++walked;
      }
    }
  }
  EXPECT_GT(walked, 1000);
  EXPECT_GT(exact, 100);
}

TEST(Limits, CasesByHand) {
  EXPECT_EQ(asked("Add_mam_32f", 1499, 1, 1, true), 0);   // 2999
  EXPECT_EQ(asked("Add_mama_32f", 1000, 1, 1, true), 1);  // 3000
  EXPECT_EQ(asked("Add_mam_32f", 187, 4, 2, true), 1);    // 3000
  EXPECT_EQ(asked("Add_mam_32f", 999, 1, 1, false), 0);   // 1999
  EXPECT_EQ(asked("Add_mam_32f", 62, 4, 4, false), 1);    // 2000
  EXPECT_EQ(asked("Sub_cva_32f", 2399, 3, 1, true), 0);
  EXPECT_EQ(asked("Sub_cva_32f", 2400, 2, 1, true), 1);
  EXPECT_EQ(asked("LUDecomp_ma_32f", 250, 2, 2, true), 0);  // 1000
  EXPECT_EQ(asked("LUDecomp_ma_32f", 1001, 1, 1, true), 1);
  EXPECT_EQ(asked("Sub_vva_64f_P", 4000, 4, 1, true), 0);  // 32004, and yet always serial
  EXPECT_GE(asked("Sub_vva_32f_P", 4000, 4, 1, true), 1);
}

/// Transposes ask for the size of the cache above 131072 = 8 * width * height * count, a product that wraps too.
TEST(Limits, CacheSizeIsAskedForOnTheWayToTheStripsOnly) {
  const auto queries = [](const std::string& name, int c, int w, int h, bool contiguous = true) {
    asked(name, c, w, h, contiguous);
    return imports.cache_asked.load();
  };
  for (const std::string name : {"Transpose_ma_32f", "Transpose_ma_32f_L"}) {
    EXPECT_EQ(queries(name, 16384, 1, 1), 0) << name;
    EXPECT_EQ(queries(name, 16385, 1, 1), 1) << name;
    EXPECT_EQ(queries(name, 1024, 4, 4), 0) << name;
    EXPECT_EQ(queries(name, 1, 128, 128), 0) << name;
    EXPECT_EQ(queries(name, 1, 129, 128), 1) << name;
    EXPECT_EQ(queries(name, 2731, 3, 2), 1) << name;
    for (const int n : {3, 4, 5, 6}) EXPECT_EQ(queries(name, 16385, n, n), 0) << name << n;
    for (const int n : {2, 7}) EXPECT_EQ(queries(name, 16385, n, n), 1) << name << n;
    EXPECT_EQ(queries(name, 16385, 2, 2, false), 0) << name;
    EXPECT_EQ(queries(name, 1, 16384, 16384), 0) << name << ": 2^31 wraps";
  }
  for (const char* name : {"Transpose_m_32f", "Transpose_m_32f_P", "Transpose_ma_32f_P", "Transpose_m_64f", "Transpose_ma_64f",
                           "Transpose_ma_64f_L", "Extract_ta_32f", "Copy_ma_32f_SS"})
    EXPECT_EQ(queries(name, 16385, 7, 2), 0) << name;
  EXPECT_EQ(queries("Transpose_m_32f", 1, 200, 200), 0);
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
