#include "geometry/fixed.hpp"

#include <sys/mman.h>
#include <unistd.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace zelm::test {
namespace {

constexpr std::size_t kRoom = 1 << 16;

unsigned char* room() {
  static unsigned char* const begin = [] {
    const auto page = std::size_t(sysconf(_SC_PAGESIZE));
    void* const all = mmap(nullptr, kRoom + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    unsigned char* const inner = static_cast<unsigned char*>(all) + page;
    if (all == MAP_FAILED || mprotect(inner, kRoom, PROT_READ | PROT_WRITE) != 0) throw std::runtime_error("no memory");
    return inner;
  }();
  return begin;
}

float float_at(const unsigned char* p) {
  float x;
  std::memcpy(&x, p, 4);
  return x;
}

}  // namespace

void expect_same(const std::string& name, const std::vector<Span>& spans, const std::vector<double>& numbers, int turn,
                 const Fill& fill, const Model& model) {
  const Function& f = function(name);
  // Spans one after the other, beginning with another one every turn.
  const int n = int(spans.size());
  std::vector<std::size_t> at(spans.size());
  std::vector<unsigned char> before;
  Random random(std::uint32_t(turn + 1));
  for (int i = 0; i < n; ++i) {
    const int s = (i + turn) % n;
    if (spans[s].of >= 0) continue;
    if (!before.empty()) before.resize(before.size() + random.below(20), 0x7b);
    at[s] = before.size();
    before.resize(before.size() + spans[s].bytes, 0x7b);
    std::vector<float> values(std::size_t(spans[s].bytes + 3) / 4);
    fill(values.data(), int(values.size()), s);
    std::memcpy(before.data() + at[s], values.data(), std::size_t(spans[s].bytes));
  }
  for (int s = 0; s < n; ++s)
    if (spans[s].of >= 0) at[s] = at[spans[s].of] + spans[s].shift;
  unsigned char* const memory = turn % 2 ? room() : room() + kRoom - before.size();
  std::memcpy(memory, before.data(), before.size());

  std::vector<unsigned char> want = before;
  std::vector<unsigned char*> written;
  std::vector<Elements> operands;
  std::vector<Value> values;
  std::size_t pointer = 0, number = 0;
  for (const catalog::Argument& a : f.arguments) {
    Value v;
    if (a.kind == catalog::Kind::pointer) {
      const std::size_t place = at[pointer] + std::size_t(spans[pointer].origin);
      v.p = memory + place;
      operands.emplace_back(want.data() + place, &written);
      ++pointer;
    } else if (a.kind == catalog::Kind::value) {
      v.x = numbers[number++];
    } else {
      v.i = int(numbers[number++]);
    }
    values.push_back(v);
  }
  const ZelStatus expected = model(operands), status = find(f.exported()).call(values.data());
  EXPECT_EQ(status, expected) << name << ", turn " << turn;
  for (unsigned char* const p : written) {
    unsigned char* const got = memory + (p - want.data());
    const float x = float_at(got), y = float_at(p);
    if (x != x && y != y) std::memcpy(got, p, 4);  // a NaN is a NaN
    if (std::memcmp(got, p, 4) != 0) {
      ADD_FAILURE() << name << ", turn " << turn << ", byte " << p - want.data() << ": " << x << ", expected " << y;
      return;
    }
  }
  EXPECT_EQ(std::memcmp(memory, want.data(), want.size()), 0) << name << ", turn " << turn << ": something else was written";
}

Fill numbers(Random& random, bool special) {
  return [&random, special](float* all, int n, int) {
    using Limits = std::numeric_limits<float>;
    const float list[] = {0,     -0.f, Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(), Limits::denorm_min(),
                          3e19f, 1};
    for (int i = 0; i < n; ++i) all[i] = special && random.below(6) == 0 ? list[random.below(8)] : random.uniform<float>();
  };
}

}  // namespace zelm::test
