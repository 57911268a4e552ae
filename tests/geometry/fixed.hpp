// fixed.hpp: calls a function on plain pointers and compares all memory with what a model leaves there. Operands stand close
// together in any order and at any alignment, from one unmapped page on or up to one, and may lie in each other: the model works on
// the same picture of memory, element by element.
#pragma once
#include <functional>

#include "support/harness.hpp"

namespace zelm::test {

/// Floats at an address of any alignment. Remembers what was written.
class Elements {
 public:
  Elements(unsigned char* at, std::vector<unsigned char*>* log) : p(at), written(log) {}
  class Element {
   public:
    Element(unsigned char* at, std::vector<unsigned char*>* log) : p(at), written(log) {}
    Element(const Element&) = default;
    operator float() const {
      float x;
      std::memcpy(&x, p, 4);
      return x;
    }
    Element& operator=(float x) {
      std::memcpy(p, &x, 4);
      written->push_back(p);
      return *this;
    }
    Element& operator=(const Element& x) { return *this = float(x); }

   private:
    unsigned char* p;
    std::vector<unsigned char*>* written;
  };
  Element operator[](int i) const { return {p + 4 * i, written}; }
  Elements moved(std::ptrdiff_t bytes) const { return {p + bytes, written}; }
  template <int N>
  std::array<float, N> copy() const {
    std::array<float, N> c;
    std::memcpy(c.data(), p, sizeof c);
    return c;
  }

 private:
  unsigned char* p;
  std::vector<unsigned char*>* written;
};

/// The memory of a pointer argument. `of`: it lies in the memory of an earlier one, `shift` bytes from where that begins.
struct Span {
  int bytes;
  int origin = 0;  // where the pointer points
  int of = -1, shift = 0;
};
inline Span floats(int n) { return {4 * n}; }
inline Span in_place(int of) { return {0, 0, of, 0}; }

using Model = std::function<ZelStatus(const std::vector<Elements>&)>;
using Fill = std::function<void(float* all, int floats, int span)>;  // writes what a span holds before the call

/// `numbers`: the arguments that are no pointers. `turn` picks order, alignment and page.
void expect_same(const std::string& name, const std::vector<Span>& spans, const std::vector<double>& numbers, int turn,
                 const Fill& fill, const Model& model);

/// From -1 to 1, and now and then a zero, an infinity, a NaN, a subnormal or a huge number.
Fill numbers(Random& random, bool special);

}  // namespace zelm::test
