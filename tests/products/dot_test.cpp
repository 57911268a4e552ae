// Dot products against sums in plain scalar code, in the order that each kernel has for this memory, bit for bit.
#include "products/reference_sums.hpp"

namespace zelm::test {
namespace {

struct DotProduct : FunctionTest {
  template <class T>
  void check(int width, int vectors, const Memory& memory, const std::vector<int>& teams = {}, bool zeros = false) const {
    const int count = f.array() ? vectors : 1;
    Random random(std::uint32_t(width * 100 + count));
    Data<T> data;
    for (const catalog::Operand& o : f.operands) data.operands.push_back(random.uniforms<T>(width * (o.array ? count : 1)));
    if (zeros) data.operands = {std::vector<T>(data.operands[0].size(), T(0)), std::vector<T>(data.operands[1].size(), T(-1))};
    data.arrays["pDst"] = std::vector<T>(std::size_t(count), T(-99));
    const std::uintptr_t results = results_of(memory, sizeof(T) * std::size_t(count));
    const auto model = [&](const Road& road, Data<T>& d, int first, int n) {
      for (int k = first; k < first + n; ++k) {
        std::vector<T> p;
        for (int j = 0; j < width; ++j)
          p.push_back(d.operands[0][k * width + j] * d.operands[1][(f.operands[1].array ? k * width : 0) + j]);
        T& result = d.arrays["pDst"][k];
        if (width < 3 || width > 6) result = by_eights(p, start_of(f, road, 1, k, width));
        else result = in_pairs(road, width, first, n, k, results + sizeof(T) * unsigned(first)) ? paired(p) : ascending(p);
      }
      return zelStsOk;
    };
    expect_model(f, {{{"width", width}, {"count", count}}}, memory, data, model, -1, teams);
  }

  /// Whether neighbours are added first in object k of a stretch of n.
  bool in_pairs(const Road& road, int width, int first, int n, int k, std::uintptr_t results) const {
    if (!road.kernel->contiguous || !f.array() || width == 3) return false;
    const bool single = f.element == "float", both = f.form == "vava", aligned_results = results % 16 == 0;
    const int block = single ? 4 : 2, place = k - first;
    const bool in_block = place < n / block * block;
    const auto aligned = [&](int operand, int object) { return road.scene->address(operand, object) % 16 == 0; };
    if (f.layout == "L") {
      if (both || !single || width < 5 || n < 5 || !aligned_results || !in_block) return false;
      for (int l = 0, o = first + place / 4 * 4; l < 4; ++l)
        if (!aligned(0, o + l)) return false;
      return true;
    }
    if (!both && width == 4) return in_block && (single || aligned_results);
    for (int operand = 0; operand < 1 + both; ++operand)
      if (!aligned(operand, first) || road.scene->strides(operand)[0] % 16 != 0) return false;
    return n >= 5 && aligned_results && (single || in_block);
  }
};

TEST_P(DotProduct, EverySizeMemoryAndCount) {
  typed([&](auto t) {
    for (const Case& c : cases(f)) {
      if (!HasFailure()) check<decltype(t)>(c.width, c.count, c.memory);
    }
  });
}

// Where batches begin and end: all parts aligned but one.
TEST_P(DotProduct, EveryAlignment) {
  typed([&](auto t) {
    for (const int width : {3, 4, 5, 6, 8, 9, 12, 15, 16, 19, 20})
      for (const Spread spread : {Spread::slots, Spread::tight})
        for (const int moved : {0, 1, 3})
          for (int offset = 0; offset < 16 && !HasFailure(); offset += offset % 4 ? 3 : 1)
            for (const int count : {1, 4, 5, 8, 11}) {
              Memory memory = {Place{spread}, {spread}, {spread}, {spread}};
              memory[std::size_t(moved)].offset = offset;
              check<decltype(t)>(width, count, memory);
            }
  });
}

TEST_P(DotProduct, Teams) {
  typed([&](auto t) {
    for (const int width : {2, 3, 4, 5, 6, 9})
      for (const Spread spread : {Spread::slots, Spread::tight, Spread::interleaved})
        for (int count = 1; count <= 24 && f.array() && !HasFailure(); ++count)
          check<decltype(t)>(width, count, {Place{spread}, {spread}, {spread}, {spread}}, {1, 2, 3, 5});
  });
}

// Sums of fixed widths start with their first term, all others with 0, so that the zeros differ in sign.
TEST_P(DotProduct, NegativeZeros) {
  typed([&](auto t) {
    for (const int width : {1, 2, 3, 4, 5, 6, 7, 8, 16, 21})
      for (const Memory& memory : memories()) check<decltype(t)>(width, 6, memory, {}, true);
  });
}

INSTANTIATE_TEST_SUITE_P(All, DotProduct, testing::ValuesIn(family("DotProduct", "dot")), FunctionTest::name);

}  // namespace
}  // namespace zelm::test
