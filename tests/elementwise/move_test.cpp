// Copies, packed blocks, identities and transposes: every form, type, layout and kernel, bit for bit.
#include "elementwise/transpose_strips.hpp"
#include "support/harness.hpp"
#include "zelm.h"

namespace zelm::test {
namespace {

/// Half of the elements are signalling NaNs, of which any arithmetic would make quiet ones.
template <class T>
std::vector<T> patterns(int n, Random& random) {
  using Bits = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
  constexpr int fraction = sizeof(T) == 4 ? 23 : 52;
  constexpr Bits quiet = Bits(1) << (fraction - 1), exponent = ~Bits(0) >> 1 >> fraction << fraction;
  std::vector<T> v(static_cast<std::size_t>(n));
  for (T& x : v) {
    Bits bits = Bits(std::uint64_t(random.next()) << 32 | random.next());
    if (random.below(2) == 0) bits = (bits | exponent | 1) & ~quiet;
    std::memcpy(&x, &bits, sizeof x);
  }
  return v;
}

template <class T>
void check(const Function& f, const Case& c, int in_place = -1) {
  const int w = c.width, h = c.height, count = f.array() ? c.count : 1, size = w * h;
  Random random(std::uint32_t(w * 64 + h * 8 + count));
  Data<T> data;
  for (const catalog::Operand& o : f.operands)
    data.operands.push_back(o.source ? patterns<T>(size * count, random) : std::vector<T>(std::size_t(size * count), T(-99)));
  const std::string_view operation = f.row->operation;
  if (operation == "Extract") data.arrays["pDst"].assign(std::size_t(size * count), T(-99));
  const auto model = [&](const Road&, Data<T>& d, int, int) {
    std::vector<T>& from = d.operands[0];
    std::vector<T>& to = operation == "Extract" ? d.arrays["pDst"] : d.operands.back();
    for (int k = 0; k < count; ++k)
      for (int i = 0; i < h; ++i)
        for (int j = 0; j < w; ++j) {
          const int by_rows = (k * h + i) * w + j, by_columns = (k * w + j) * h + i;
          if (operation == "LoadIdentity") to[by_rows] = T(i == j);
          else if (operation == "Transpose") to[by_columns] = from[by_rows];
          else to[by_rows] = from[f.form[0] == 't' ? by_columns : by_rows];
        }
    return zelStsOk;
  };
  expect_model(f, {{{"width", w}, {"height", h}, {"count", count}}}, c.memory, data, model, in_place, {}, true);
}

struct Moves : FunctionTest {};

TEST_P(Moves, EverySizeMemoryAndCount) {
  typed([&](auto t) {
    const Sides large = {{33, 33}, {5, 33}, {64, 64}, {100, 37}};
    int number = 0;
    for (const Case& c : cases(f, f.operands[0].matrix ? large : Sides{{300, 1}})) {
      check<decltype(t)>(f, c);
      if (f.layout == "SS" || f.layout == "LL" || f.layout == "PP")
        if (number++ % 5 == 0) check<decltype(t)>(f, c, 0);
      if (HasFailure()) return;
    }
  });
}

INSTANTIATE_TEST_SUITE_P(All, Moves, testing::ValuesIn(family("", "move")), FunctionTest::name);

TEST(Move, IsComplete) { EXPECT_EQ(family("", "move").size(), 36u + 30 + 6 + 10); }

/// A run across objects keeps their order: shifted up by one vector, the first one comes everywhere.
TEST(Move, CopyKeepsTheOrderOfObjects) {
  constexpr int width = 3, count = 9, row = width * sizeof(float);
  std::vector<float> up((count + 1) * width), down(up.size()), want(up.size());
  for (std::size_t e = 0; e < up.size(); ++e) up[e] = down[e] = float(e), want[e] = float(e % width);
  EXPECT_EQ(zelmCopy_va_32f_SS(up.data(), row, 4, up.data() + width, row, 4, width, count), zelStsOk);
  EXPECT_EQ(up, want);
  EXPECT_EQ(zelmCopy_va_32f_SS(down.data() + width, row, 4, down.data(), row, 4, width, count), zelStsOk);
  for (std::size_t e = 0; e < count * width; ++e) EXPECT_EQ(down[e], float(e + width));
}

/// Arrays of structures to structures of arrays and back, of more objects than go together and some.
template <class T, class To, class From>
void change_layout(To to_elements, From from_elements) {
  constexpr int E = sizeof(T), count = 1003, gap = 5;
  for (const int n : {1, 3, 5, 6}) {
    const std::size_t size = std::size_t(n * n);
    std::vector<T> objects(size * count), planes(size * (count + gap), T(-1)), back(objects.size());
    std::vector<T> want = planes;
    std::vector<T*> table;
    for (std::size_t e = 0; e < objects.size(); ++e) {
      objects[e] = T(e);
      want[e % size * (count + gap) + e / size] = T(e);
    }
    for (std::size_t e = 0; e < size; ++e) table.push_back(&planes[e * (count + gap)]);
    const int row = n * E, object = n * row;
    EXPECT_EQ(to_elements(objects.data(), object, row, E, table.data(), 0, E, n, n, count), zelStsOk);
    EXPECT_EQ(planes, want) << n;
    EXPECT_EQ(from_elements(table.data(), 0, E, back.data(), object, row, E, n, n, count), zelStsOk);
    EXPECT_EQ(back, objects) << n;
  }
}
TEST(Move, LayoutsOfManyObjects) {
  change_layout<float>(zelmCopy_ma_32f_SP, zelmCopy_ma_32f_PS);
  change_layout<double>(zelmCopy_ma_64f_SP, zelmCopy_ma_64f_PS);
}

/// The strip kernels by their names; dst begins at every place in a register.
TEST(Move, Strips) {
  constexpr int widths[] = {1, 2, 3, 4, 5, 7, 8, 13, 32}, gap = 3;
  for (const auto transpose : {p8_ownm_Transpose_32s, p8_owniTranspose_32s_asm, p8_owniTranspose_32s_NT})
    for (const int width : widths)
      for (const int rows : {1, 2, 3, 4, 6, 31, 32, 33, 70})
        for (int place = 0; place < 4; ++place) {
          if (rows > 32 && transpose != p8_ownm_Transpose_32s) continue;
          const int src_row = width + place, dst_row = rows + gap;
          std::vector<std::int32_t> src(std::size_t(rows * src_row + 4)), dst(std::size_t(width * dst_row + 4), -1);
          for (std::size_t e = 0; e < src.size(); ++e) src[e] = int(e);
          std::vector<std::int32_t> want = dst;
          for (int i = 0; i < rows; ++i)
            for (int j = 0; j < width; ++j) want[place + j * dst_row + i] = src[place + i * src_row + j];
          transpose(&src[place], 4 * src_row, &dst[place], 4 * dst_row, width, rows);
          ASSERT_EQ(dst, want) << width << " x " << rows << " at " << place;
        }
}

}  // namespace
}  // namespace zelm::test
