// What an entry answers to bad arguments: a walk over all built functions with every argument made bad in every way,
// alone and in pairs, and cases written out by hand. Nothing may be written.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstring>

#include "support/harness.hpp"

namespace zelm::test {
namespace {

/// Arguments that every function takes: objects of 3 x 3 elements, two of them, strided, in an arena that remembers its
/// bytes.
class Arguments {
 public:
  explicit Arguments(const Function& function) : f(function), values(f.arguments.size()) {
    arena.bytes.fill(0x5a);
    std::memset(arena.index, 0, sizeof arena.index);
    std::fill(arena.bytes.begin() + kDst, arena.bytes.end(), 0xa5);
    for (int i = 0; i < 9; ++i) {
      arena.table[0][i] = arena.bytes.data() + 8 * i;
      arena.table[1][i] = arena.bytes.data() + kDst + 8 * i;
    }
    good = arena;
    const bool positive_definite = f.row->operation == "CholeskyDecomp";  // which equal elements are in order 1 alone
    for (std::size_t a = 0; a < values.size(); ++a) {
      const std::string& name = f.arguments[a].name;
      if (step(a) == 'P') values[a].p = pointer(name);
      else if (step(a) == 'S') values[a].i = name.ends_with("0") ? 512 : name.ends_with("1") ? 64 : 16;
      else if (step(a) == 'V') values[a].x = 1;
      else values[a].i = step(a) == 'C' ? 2 : step(a) == 'B' ? 8 : positive_definite ? 1 : 3;
    }
  }

  void* pointer(const std::string& name) {
    const bool destination = name.find("Dst") != name.npos;
    if (name.starts_with("pp")) return arena.table[destination];
    if (name.ends_with("Index")) return arena.index;
    return arena.bytes.data() + (destination ? kDst : 0);
  }

  /// What a check looks at, told by the argument's name: the letter of its step.
  char step(std::size_t a) const {
    const std::string& name = f.arguments[a].name;
    if (name[0] == 'p') return 'P';
    if (name == "count") return 'C';
    if (name.find("Stride") != name.npos) return 'S';
    if (name.ends_with("ByteShift")) return 'B';
    return f.arguments[a].type == "int" ? 'N' : 'V';
  }

  std::vector<Value> bad_values(std::size_t a) const {
    const int e = f.element == "double" ? 8 : 4;
    std::vector<int> list;
    switch (step(a)) {
      case 'P': return {Value{nullptr}};
      case 'S': list = {0, -1, -e, e / 2, 3 * e + 1, 5 * e / 2, INT_MIN, INT_MIN + e, INT_MAX}; break;
      case 'B': list = {-1, -e, e / 2, 3 * e + 1, 5 * e / 2, INT_MIN, INT_MIN + e, INT_MAX}; break;
      case 'C':
      case 'N': list = {0, -1, INT_MIN}; break;
    }
    std::vector<Value> out;
    for (const int i : list) out.push_back({.i = i});
    return out;
  }

  /// The answer if the arguments `a` and `b` are bad, by the function's order of steps.
  ZelStatus expected(std::size_t a, std::size_t b) const {
    for (const char s : f.order) {
      for (const std::size_t x : {a, b}) {
        const bool source = f.arguments[x].name.starts_with("src"), stride0 = f.arguments[x].name.ends_with("Stride0");
        const bool guarded = f.order.find('G') != std::string::npos;
        if (s == 'P' && step(x) == 'P') return zelStsNullPointer;
        if (s == 'C' && step(x) == 'C') return zelStsBadCount;
        if (s == 'N' && step(x) == 'N') return zelStsBadSize;
        if (s == 'S' && step(x) == 'S' && !(guarded && stride0)) return zelStsBadStride;
        if (s == 'G' && step(x) == 'S' && stride0) return zelStsBadStride;
        if (s == 's' && step(x) == 'S' && source) return zelStsBadStride;
        if (s == 'B' && step(x) == 'B') return zelStsBadByteShift;
        if (s == 'b' && step(x) == 'B' && source) return zelStsBadByteShift;
      }
    }
    return zelStsOk;
  }

  std::size_t place(std::string_view name) const {
    for (std::size_t a = 0; a < values.size(); ++a)
      if (f.arguments[a].name == name) return a;
    throw std::runtime_error("no argument " + std::string(name));
  }
  bool untouched() const { return std::memcmp(&arena, &good, sizeof arena) == 0; }

  const Function& f;
  std::vector<Value> values;

 private:
  static constexpr int kDst = 1024;  // where destinations begin
  struct Arena {
    std::array<unsigned char, 2 * kDst> bytes;
    void* table[2][9];
    int index[6];
  } arena, good;
};

TEST(Checks, EveryBadArgumentAloneAndInPairs) {
  int functions = 0;
  for (const Function& f : catalog::functions()) {
    if (!f.built() || !f.validates()) continue;
    ++functions;
    const Call& call = find(f.exported());
    Arguments arguments(f);
    std::vector<Value>& values = arguments.values;
    for (std::size_t a = 0; a < values.size(); ++a) {
      const Value good_a = values[a];
      for (const Value bad_a : arguments.bad_values(a)) {
        for (std::size_t b = a; b < values.size(); ++b) {
          const Value good_b = values[b];
          for (const Value bad_b : arguments.bad_values(b)) {
            values[a] = bad_a;
            values[b] = bad_b;  // b == a: alone
            ASSERT_EQ(call.call(values.data()), arguments.expected(a, b))
                << f.name << ": " << f.arguments[a].name << " " << bad_a.i << ", " << f.arguments[b].name << " " << bad_b.i;
          }
          values[b] = good_b;
        }
      }
      values[a] = good_a;
    }
    ASSERT_TRUE(arguments.untouched()) << f.name;
    const ZelStatus accepted = call.call(values.data());  // the good arguments are good, and were written to
    ASSERT_TRUE(accepted == zelStsOk || f.merges_status()) << f.name << " " << accepted;
    if (accepted == zelStsOk) {
      ASSERT_FALSE(arguments.untouched()) << f.name;
    }
  }
  EXPECT_GT(functions, 200);
}

struct Case {
  const char* function;
  std::vector<std::pair<const char*, int>> bad;  // pointers: any number stands for null
  ZelStatus expected;
};

TEST(Checks, CasesByHand) {
  const Case cases[] = {
      {"Add_mm_32f", {{"width", 0}}, zelStsBadSize},
      {"Add_mm_32f", {{"width", 0}, {"pDst", 0}}, zelStsNullPointer},
      {"Add_mm_32f", {{"height", 0}, {"src2Stride1", 2}}, zelStsBadSize},
      {"Add_mm_64f", {{"src1Stride2", 4}}, zelStsBadStride},
      {"Add_mm_32f", {{"src1Stride2", 4}}, zelStsOk},
      {"Add_mm_64f_P", {{"dstByteShift", 4}}, zelStsBadByteShift},
      {"Add_mm_64f_P", {{"dstByteShift", 0}}, zelStsOk},
      {"Add_mm_64f_P", {{"dstByteShift", 4}, {"width", -3}}, zelStsBadSize},
      {"Add_mam_32f", {{"width", 0}, {"src1Stride1", 3}}, zelStsBadStride},
      {"Add_mam_32f", {{"count", 0}, {"src1Stride1", 3}}, zelStsBadCount},
      {"Add_mam_32f_L", {{"width", 0}, {"src1Stride1", 3}}, zelStsBadSize},
      {"Add_mam_64f_P", {{"width", 0}, {"src1Stride0", 3}}, zelStsBadSize},
      {"Sub_mam_64f", {{"height", 0}, {"dstStride0", 4}}, zelStsBadStride},
      {"Sub_mma_64f", {{"height", 0}, {"src2Stride0", 4}}, zelStsBadStride},
      {"Sub_mma_32f_L", {{"height", 0}, {"src2Stride1", 2}}, zelStsBadSize},
      {"Sub_mta_32f", {{"height", 0}, {"src2Stride0", 2}}, zelStsBadSize},
      {"Add_tam_32f", {{"height", 0}, {"src2Stride1", 2}}, zelStsBadSize},
      {"Add_mama_32f", {{"count", 0}, {"width", 0}}, zelStsBadCount},
      {"Add_mama_32f", {{"count", 1}, {"src1Stride0", 0}}, zelStsBadStride},
      {"Add_mama_64f_L", {{"src1ByteShift", 4}, {"dstStride2", 4}}, zelStsBadStride},
      {"Add_vav_32f", {{"count", 0}, {"dstStride0", 3}}, zelStsBadStride},
      {"Add_vav_64f", {{"width", 0}, {"dstStride0", 4}}, zelStsBadSize},
      {"Sub_vav_64f_L", {{"count", 0}, {"src1ByteShift", 4}}, zelStsBadByteShift},
      {"Sub_vav_32f_L", {{"src2Stride2", -4}, {"src1ByteShift", -4}}, zelStsBadStride},
      {"Sub_vav_32f_P", {{"count", 0}, {"src1ByteShift", 2}}, zelStsBadCount},
      {"Add_vav_64f_P", {{"count", 0}, {"src1Stride0", 4}}, zelStsBadStride},
      {"Sub_vva_32f", {{"count", 0}, {"src2Stride0", 2}}, zelStsBadCount},
      {"Add_vava_32f_L", {{"count", 0}, {"width", 0}}, zelStsBadCount},
      {"Add_vca_32f", {{"valStride0", 0}}, zelStsBadStride},
      {"Sub_cav_64f_P", {{"valStride0", 4}, {"dstByteShift", 4}}, zelStsBadStride},
      {"Mul_vaca_32f_L", {{"valByteShift", 0}}, zelStsOk},
      {"Mul_vaca_64f_L", {{"valByteShift", 4}}, zelStsBadByteShift},
      {"Mul_vca_32f", {{"pVal", 0}, {"count", 0}}, zelStsNullPointer},
      {"Copy_ma_32f_SS", {{"count", 0}, {"width", 0}}, zelStsBadSize},
      {"Copy_ma_32f_SS", {{"count", 1}, {"srcStride0", 0}}, zelStsOk},
      {"Copy_ma_32f_SS", {{"count", 2}, {"srcStride0", 3}}, zelStsBadStride},
      {"Copy_ma_32f_SP", {{"count", 1}, {"srcStride0", 0}, {"dstStride0", 3}}, zelStsOk},
      {"Copy_va_32f_LP", {{"srcByteShift", 2}, {"srcStride2", 2}}, zelStsBadByteShift},
      {"Copy_va_64f_LP", {{"srcByteShift", 4}, {"srcStride2", 4}}, zelStsBadStride},
      {"Copy_va_64f_LP", {{"srcByteShift", 4}, {"dstStride0", 4}}, zelStsBadByteShift},
      {"Extract_m_32f_P", {{"ppSrc", 0}, {"width", 0}}, zelStsBadSize},
      {"Extract_v_32f_P", {{"ppSrc", 0}, {"width", 0}}, zelStsNullPointer},
      {"Extract_v_64f_P", {{"ppSrc", 0}, {"width", 0}}, zelStsBadSize},
      {"LoadIdentity_ma_32f_P", {{"count", 0}, {"dstByteShift", 2}}, zelStsBadByteShift},
      {"LoadIdentity_ma_64f_P", {{"count", 0}, {"dstByteShift", 4}}, zelStsBadCount},
      {"LUDecomp_ma_32f", {{"pDstIndex", 0}, {"count", 0}}, zelStsNullPointer},
      {"LUDecomp_ma_64f", {{"widthHeight", 0}, {"dstStride1", 4}}, zelStsBadSize},
      {"LUDecomp_ma_32f_P", {{"srcByteShift", 2}, {"dstStride0", 0}}, zelStsBadStride},
      {"LUBackSubst_mva_32f_L", {{"count", 0}, {"src1Stride1", 2}}, zelStsBadCount},
      {"LUBackSubst_mava_64f", {{"pSrcIndex", 0}, {"dstStride2", 4}}, zelStsNullPointer},
      {"QRDecomp_m_32f", {{"width", 4}}, zelStsSizeMismatch},
      {"QRDecomp_ma_64f", {{"width", 4}, {"dstStride2", 4}}, zelStsBadStride},
      {"QRDecomp_ma_32f_P", {{"width", 4}, {"dstByteShift", 2}}, zelStsBadByteShift},
      {"QRDecomp_ma_32f_L", {{"width", 0}, {"srcStride1", 2}}, zelStsBadSize},
      {"QRBackSubst_mva_32f", {{"pBuffer", 0}, {"count", 0}}, zelStsNullPointer},
      {"QRBackSubst_mava_32f", {{"width", 4}, {"count", 0}}, zelStsBadCount},
      {"CholeskyBackSubst_mva_32f_L", {{"count", 0}, {"src1Stride1", 2}}, zelStsBadStride},
      {"CholeskyBackSubst_mva_64f_L", {{"widthHeight", 0}, {"dstByteShift", 4}}, zelStsBadByteShift},
      {"CholeskyBackSubst_mva_32f", {{"count", 0}, {"src1Stride1", 2}}, zelStsBadCount},
      {"CholeskyBackSubst_mva_32f_P", {{"count", 0}, {"src1ByteShift", 2}}, zelStsBadCount},
  };
  for (const Case& c : cases) {
    const Function& f = function(std::string("zelm") + c.function);
    Arguments arguments(f);
    for (const auto& [name, value] : c.bad) {
      const std::size_t a = arguments.place(name);
      if (arguments.step(a) == 'P') arguments.values[a].p = nullptr;
      else arguments.values[a].i = value;
    }
    EXPECT_EQ(find(f.exported()).call(arguments.values.data()), c.expected)
        << c.function << ": " << c.bad.front().first << ", " << c.bad.back().first;
    EXPECT_EQ(arguments.untouched(), c.expected != zelStsOk) << c.function;
  }
}

}  // namespace
}  // namespace zelm::test
