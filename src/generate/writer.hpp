// writer.hpp: what the generator's parts share. Each part returns the text of a file.
#pragma once
#include <string>
#include <vector>

#include "catalog/catalog.hpp"

namespace zelm::generate {

using catalog::Function;

/// The functions of one row and element type: one translation unit of entries and kernels, one of drivers.
struct Unit {
  std::string name;
  std::vector<const Function*> functions;
  bool drivers() const;
};

std::vector<Unit> built_units();

std::string header();                        // zelm.h
std::string exports();                       // version script
std::string stubs();                         // stubs and slots, assembly for both targets
std::string unit_declarations(const Unit&);  // entries, drivers, kernels
std::string unit_code(const Unit&);          // entries and kernels
std::string unit_drivers(const Unit&);
std::string internals(const std::vector<Unit>&);   // all declarations, for the tests
std::string test_calls(const std::vector<Unit>&);  // every function callable by name, for the tests

/// `const float* pSrc1, int src1Stride0, ...` of the entry.
std::string parameters(const Function& f);

template <class Range, class Text>
std::string joined(const Range& range, const char* separator, Text text) {
  std::string out;
  for (const auto& item : range) {
    const std::string part = text(item);
    if (part.empty()) continue;
    if (!out.empty()) out += separator;
    out += part;
  }
  return out;
}

}  // namespace zelm::generate
