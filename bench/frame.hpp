// frame.hpp: what a family says to be measured.
//
// A family is two small files: here the calls of zelm, and in rivals/ the loops that they are measured against, under
// the name of the operation without "zelm" ("Add_mama"). The frame makes the working sets, compares the results of all
// competitors, times them in turn, and reports.
#pragma once
#include <zelm_types.h>

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "rivals/rival.hpp"

namespace zelm::bench {

/// Working sets: how much memory all arrays of a call take together.
enum class Set {
  call,    // one object again and again
  l1,      // half of the first-level cache
  llc,     // far above the second-level, far below the last-level cache
  memory,  // twice the last-level cache, as long as that is bearable
  many     // 100,000 objects, zelm alone with one thread and two
};
inline constexpr Set kSets[] = {Set::call, Set::l1, Set::llc, Set::memory, Set::many};
const char* name(Set);

enum class Layout { standard, list, elements };  // "", _L, _P

struct Operand {
  int elements;  // of one object
  int element_bytes;
  bool array = true;
  bool output = false;
  bool index = false;        // elements are int
  bool rivals_only = false;  // another form of another operand, not part of the working set
  bool for_all = false;      // rivals use the table as well
  Layout layout = Layout::standard;
};

template <class T>
Operand in(int elements, Layout layout = Layout::standard) {
  return {.elements = elements, .element_bytes = sizeof(T), .layout = layout};
}
template <class T>
Operand out(int elements, Layout layout = Layout::standard) {
  return {.elements = elements, .element_bytes = sizeof(T), .output = true, .layout = layout};
}
inline Operand index(Operand operand) {
  operand.index = true;
  return operand;
}
inline Operand single(Operand operand) {
  operand.array = false;
  return operand;
}
inline Operand for_rivals(Operand operand) {
  operand.rivals_only = true;
  return operand;
}

inline Operand for_all(Operand operand) {
  operand.for_all = true;
  return operand;
}

/// What a competitor has left in memory.
class Results {
 public:
  virtual ~Results() = default;
  virtual double at(int operand, std::ptrdiff_t object, int element) const = 0;
  virtual bool of_zelm() const = 0;
};

/// The time of zelm is to be at most `ratio` of that of `rival`: "SSE4.2" or "native" for the best rival of the kind,
/// "any" for the best of both, "Eigen native" and so on for one of them, "read", "copy" and "triad" for what the bandwidth of
/// these makes of the bytes, "memcpy" for copying as many bytes and "memset" for clearing them, "one thread" in the set
/// `many`, "ns" for the nanosecond. It holds with one thread, elsewhere than in `many`.
struct Limit {
  double ratio;
  std::string rival;
  std::vector<Set> sets;
  std::string or_near = {};  // it also holds within 15 % of the time of this
};

/// What bandwidth decides: a tie.
inline const std::vector<Limit> kStream = {{1.05, "SSE4.2", {Set::l1}}, {1.05, "native", {Set::llc, Set::memory}}};

struct Case {
  std::string operation;  // "Add_mama"
  std::string type;       // "32f"; empty: `operation` is no function of zelm
  int n;
  Layout layout = Layout::standard;
  std::string layouts;  // "SP": of a copy, which has rivals of its own
  std::vector<Operand> operands;
  /// Works on `count` objects; in Set::call `count` times on the same.
  std::function<ZelStatus(const Array*, int count)> call;
  /// Writes the inputs of the first `count` objects; default: floating-point numbers from -1 to 1.
  std::function<void(const Array*, int count)> fill;
  /// What competitors have to agree on for one object, to within `tolerance` of the largest number, or of `terms` if that is
  /// more; default: all outputs.
  std::function<std::vector<double>(const Results&, std::ptrdiff_t object)> meaning;
  double tolerance = 0;
  double terms = 0;  // the size of what the numbers are sums of, where all may cancel
  /// How wrong the results of one object are, where rivals are printed aside.
  std::function<double(const Results&, std::ptrdiff_t object)> residual;
  std::vector<Limit> limits;
  std::vector<Set> sets = {Set::l1, Set::llc, Set::memory};  // and those of the limits
  std::vector<int> threads = {1, 2};                         // in Set::memory two only at size 4, which stands for all

  std::string function() const;         // "zelmAdd_mama_32f_P"
  std::string rival_operation() const;  // "Add_mama"
};

std::vector<Case>& cases();
bool measure(Case);  // true

/// Cases of sizes 3 to 6 in lists and element tables, with one thread.
inline bool measure_other_layouts(std::initializer_list<Case (*)(int n, Layout)> makers) {
  for (const auto make : makers)
    for (const Layout layout : {Layout::list, Layout::elements})
      for (const int n : {3, 4, 5, 6}) {
        Case c = make(n, layout);
        c.threads = {1};
        measure(c);
      }
  return true;
}

/// The one of a pair of functions that is for element type T.
template <class T, class Single, class Double>
constexpr auto of_type(Single single, Double twice) {
  if constexpr (sizeof(T) == 4) return single;
  else return twice;
}

/// The call of a Case in Set::call: `one` inlined into the loop over the calls, which are all made.
template <class One>
std::function<ZelStatus(const Array*, int)> repeated(One one) {
  return [one](const Array* at, int count) {
    ZelStatus status = zelStsOk;
    for (int k = 0; k < count; ++k) {
      status |= one(at);
      asm volatile("" ::: "memory");
    }
    return status;
  };
}

/// Deterministic numbers, uniform from -1 to 1.
template <class T>
void fill_uniform(T* to, std::size_t elements);

struct Timing {
  std::string name, isa;  // "Eigen", "native"
  double ns;              // per object
  bool steady;            // the median repetition within 10 % of the shortest
  bool aside = false;
  double residual = 0;  // the largest, where the case has one
};

/// One line of the table.
struct Row {
  const Case* of;  // outlives the row
  Set set;
  int threads;
  std::ptrdiff_t count;
  double bytes;  // per object
  double ns;     // per object, zelm
  bool steady;
  std::vector<Timing> rivals;
  double residual = 0;  // of zelm
};

struct Bandwidth {
  std::string name;
  Set set;
  int threads;
  double bytes_per_ns;
};

struct Sizes {
  std::size_t l1, l2, llc;            // of this processor's caches, in bytes
  std::size_t set[std::size(kSets)];  // of the working sets, where they have one
};
Sizes sizes();

std::vector<Bandwidth> measure_bandwidth(const std::vector<Set>&);

/// Calls `done` with every row. Throws std::runtime_error where competitors disagree.
void measure_case(const Case&, const std::vector<Set>&, const std::function<void(const Row&)>& done);

}  // namespace zelm::bench
