// Cross products against the formula, bit for bit.
#include "support/harness.hpp"

namespace zelm::test {
namespace {

struct CrossProduct : FunctionTest {
  template <class T>
  void check(int vectors, const Memory& memory, const std::vector<int>& teams = {}) const {
    const int count = f.array() ? vectors : 1;
    Random random{std::uint32_t(count)};
    Data<T> data;
    for (const catalog::Operand& o : f.operands) data.operands.push_back(random.uniforms<T>(3 * (o.array ? count : 1)));
    data.operands[0][0] = std::numeric_limits<T>::infinity();
    data.operands[1][1] = T(-0.0);
    const auto model = [&](const Road&, Data<T>& d, int first, int n) {
      for (int k = first; k < first + n; ++k) {
        const T* const a = &d.operands[0][f.operands[0].array ? 3 * k : 0];
        const T* const b = &d.operands[1][f.operands[1].array ? 3 * k : 0];
        for (int i = 0; i < 3; ++i) {
          const int u = (i + 1) % 3, v = (i + 2) % 3;
          d.operands[2][3 * k + i] = a[u] * b[v] - a[v] * b[u];
        }
      }
      return zelStsOk;
    };
    expect_model(f, {{{"count", count}}}, memory, data, model, -1, teams);
  }
};

TEST_P(CrossProduct, EveryMemoryAndCount) {
  typed([&](auto t) {
    for (const Memory& memory : memories())
      for (int count = 1; count <= 13 && !HasFailure(); ++count) check<decltype(t)>(count, memory, {1, 2, 3});
  });
}

INSTANTIATE_TEST_SUITE_P(All, CrossProduct, testing::ValuesIn(family("CrossProduct", "cross")), FunctionTest::name);

}  // namespace
}  // namespace zelm::test
