// harness.hpp: runs a function of the catalog on dense data, over every road into it, and compares each with a model.
//
// A test states sizes, a memory plan, the operands as dense arrays and a model over the same dense arrays. The harness
// lays the operands out between two unmapped pages with a canary in every byte that no element owns, calls the exported
// function, the kernels that take this memory and the drivers, reads the destinations back, and demands that nothing
// else has changed.
#pragma once
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "catalog/catalog.hpp"
#include "support/calls.hpp"

namespace zelm::test {

using catalog::Function;

/// Size arguments by name, `count` among them.
struct Sizes {
  std::vector<std::pair<std::string_view, int>> list;
  int of(std::string_view name) const;  // a number for a number; 1 for a name that is not listed
};

/// Distances of elements, rows and objects. E is the element size, everything else follows from the operand's shape.
enum class Spread {
  tight,        // no gaps
  slots,        // rows begin at multiples of 16 bytes
  padded,       // gaps behind rows and objects
  row_mixed,    // row i of all objects, then row i + 1
  spaced,       // elements 3 E apart, gaps behind rows and objects
  columns,      // column by column
  interleaved,  // element (i, j) of all objects, then the next element
};
/// Objects of a list are shuffled, and so are the elements of a table. `offset` counts bytes from an unmapped page to
/// the operand's first byte, or from its last one to the next such page.
struct Place {
  Spread spread = Spread::tight;
  int offset = 0;
  bool at_end = false;
};
using Memory = std::array<Place, 4>;  // operand by operand; the last one's offset is that of plain arrays too
const std::vector<Memory>& memories();

/// Sizes of an element-wise call: every size in every memory, and of the small ones every count besides.
struct Case {
  int width, height, count;
  Memory memory;
};
using Sides = std::vector<std::pair<int, int>>;
std::vector<Case> cases(const Function& f, const Sides& larger = {});

/// What goes into a call and what comes out, as dense arrays: operands object by object and row by row, as stored.
template <class T>
struct Data {
  std::vector<std::vector<T>> operands;
  std::map<std::string_view, std::vector<int>> indices;  // plain arguments of type int*, by name; scratch that holds indices
  std::map<std::string_view, std::vector<T>> arrays;     // plain arguments of type T*; scratch
  std::map<std::string_view, double> values;             // constants
};

class Scene;

/// One way into the library. `kernel` does the work in the end.
struct Road {
  const Call* call;
  const catalog::Kernel* kernel;
  bool direct;  // the kernel is called by its own name
  int team;     // threads
  const Scene* scene;
  bool driver = false;  // the driver is called by its own name
};

/// The operands of a function in memory.
class Scene {
 public:
  /// `in_place`: the source operand that the last operand coincides with, or -1.
  Scene(const Function& function, const Sizes& sizes, const Memory& memory, int in_place = -1);
  std::vector<Road> roads(const std::vector<int>& teams) const;
  template <class T>
  ZelStatus run(const Road& road, Data<T>& data);
  std::string describe(const Road& road) const;
  /// Address of the first element of object k.
  std::uintptr_t address(int operand, int k) const { return std::uintptr_t(at(placed[operand], k, 0)); }
  /// From object to object, row to row, element to element.
  const std::array<int, 3>& strides(int operand) const { return placed[operand].strides; }
  bool contiguous() const;

 private:
  struct Placed {
    unsigned char* base;
    std::size_t bytes;
    std::array<int, 3> strides;
    int shift, rows, columns, count;
    std::vector<int> objects, elements;  // order in memory
  };
  unsigned char* at(const Placed& p, int k, int element) const;
  Placed place(const catalog::Operand& operand, const Place& where, int region);

  const Function& f;
  Sizes sizes;
  Memory memory;
  int in_place;
  std::vector<Placed> placed;
};

struct Stretch {
  int first, count;
};
/// The stretches of a team, the first count % team of them longer by one. Fewer objects than threads are one stretch.
std::vector<Stretch> stretches(int count, int team);

/// Sets the number of threads that the library's drivers ask for.
void use_threads(int team);

/// Which element differs first, or an empty text. A NaN equals every NaN unless their bits are to agree.
template <class T>
std::string difference(const Data<T>& got, const Data<T>& want, bool nan_bits);

/// Runs all roads. model(road, data, first object, objects) does the same to the dense data and returns the status.
template <class T, class Model>
void expect_model(const Function& f, const Sizes& sizes, const Memory& memory, Data<T> input, Model model, int in_place = -1,
                  const std::vector<int>& teams = {}, bool nan_bits = false) {
  Scene scene(f, sizes, memory, in_place);
  if (in_place >= 0) input.operands.back() = input.operands[in_place];
  for (const Road& road : scene.roads(teams)) {
    Data<T> got = input, want = input;
    const ZelStatus status = scene.run(road, got);
    ZelStatus expected = zelStsOk;
    for (const auto [first, count] : stretches(sizes.of("count"), road.team))
      if (const ZelStatus s = model(road, want, first, count); expected == zelStsOk) expected = s;
    const std::string wrong = difference(got, want, nan_bits);
    if (status != expected || !wrong.empty())
      ADD_FAILURE() << scene.describe(road) << "\nstatus " << status << ", expected " << expected << "; " << wrong;
  }
}

/// The function behind an exported name; the test program stops where there is none.
const Function& function(std::string_view name);

/// All functions of an operation that a formula, such as combine<Plus>, computes. An empty operation stands for all.
std::vector<const Function*> family(std::string_view operation, std::string_view formula);

/// A test for each function of a family.
struct FunctionTest : testing::TestWithParam<const Function*> {
  const Function& f = *GetParam();
  template <class Body>
  void typed(Body body) const {  // body(a value of the element type)
    if (f.element == "float") body(float());
    else body(double());
  }
  static std::string name(const testing::TestParamInfo<const Function*>& info) { return info.param->name; }
};

/// Fixed seed, so that a red run repeats.
class Random {
 public:
  explicit Random(std::uint32_t seed) : state(seed * 2654435761u + 1) {}
  std::uint32_t next() { return state ^= state << 13, state ^= state >> 17, state ^= state << 5; }
  int below(int n) { return int(next() % std::uint32_t(n)); }
  template <class T>
  T uniform() {  // in [-1, 1)
    return T(std::int32_t(next())) / T(2147483648.0);
  }
  template <class T>
  std::vector<T> uniforms(int n) {
    std::vector<T> v(static_cast<std::size_t>(n));
    for (T& x : v) x = uniform<T>();
    return v;
  }
  std::vector<int> permutation(int n);
  /// Objects of a call: a few, or enough for two turns of a loop that takes sixteen at a time, and a rest.
  int objects(bool many) { return 1 + (many ? 32 : 0) + below(13); }

 private:
  std::uint32_t state;
};

}  // namespace zelm::test
