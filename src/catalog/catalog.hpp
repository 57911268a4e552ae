// catalog.hpp: the functions that the rows of table.hpp stand for, with their arguments, checks, kernels and drivers.
// The generator and the tests read the library from here; nothing else knows a function's name or argument list.
#pragma once
#include <string>
#include <vector>

#include "catalog/table.hpp"

namespace zelm::catalog {

enum class Kind { pointer, count, size, stride, shift, value };

struct Argument {
  std::string type, name;  // C declaration: `type name`
  Kind kind;
  int level = 0;                // of a stride: 0 from object to object, 1 from row to row, 2 from element to element
  bool source = false;          // belongs to an operand that is read
  int operand = -1;             // index into Function::operands; -1 for plain arguments
  std::string per_object = "";  // of a plain array: entries for each object, as a C expression; "" where it is not an array
};

enum class Store { strided, list, table };  // one pointer and strides, a pointer per object, a pointer per element

/// An object argument: its group of arguments, and how its memory is to be read.
struct Operand {
  std::string stem;  // Src1, Dst: the part of the names behind p or pp
  Store store = Store::strided;
  bool matrix = false, transposed = false, array = false, source = true;
  bool constants = false;        // array of constants, one per object
  std::string rows, columns;     // size arguments of the stored object, "" where the formula knows them
  int first = 0, arguments = 0;  // place in Function::arguments
};

/// A serial kernel. `contiguous`: its element strides are known to be the element size and are not passed.
struct Kernel {
  std::string symbol;
  bool contiguous;
  std::string policy;  // first template argument of the formula, "" for none
  bool takes(const Argument& a) const { return !(contiguous && a.kind == Kind::stride && a.level == 2); }
};

struct Function {
  const Row* row;
  std::string name;     // behind `zelm`: Add_mam_32f_L
  std::string form;     // mam; empty where the name has none
  std::string element;  // float, double, or empty
  std::string layout;   // "", "L", "P", "SS" ...
  std::vector<Argument> arguments;
  std::vector<Operand> operands;
  int count_place = -1;   // of a form without count: where its formula takes the number of objects, which is 1
  std::string order;      // of the checks, see kDefaultOrder
  bool fixed = false;     // geometry on plain pointers: no checks, no kernels
  std::string cost;       // C expression over the argument names, wrapping in unsigned; empty: always serial
  int limit[2] = {0, 0};  // contiguous, strided
  std::string scratch;    // bytes for each thread, C expression in std::size_t
  std::string mismatch;   // C condition under which the sizes agree
  std::vector<Kernel> kernels;

  bool built() const { return !row->formula.empty(); }
  std::string formula() const;  // of the row, with $n filled in
  bool array() const { return form.find('a') != std::string::npos; }
  bool validates() const { return !fixed && row->operation != "GetLibVersion"; }
  bool merges_status() const { return !row->statuses.empty(); }
  int element_size() const { return element == "double" ? 8 : 4; }
  std::string exported() const { return "zelm" + name; }
  std::string entry() const { return "p8_zelm" + name; }
  /// A driver does without the sizes that its entry has proved equal to others.
  bool driver_takes(const Argument& a) const { return equal_size(a).empty(); }
  std::string equal_size(const Argument& a) const {
    return row->operation != "Gaxpy" ? "" : a.name == "src2Len" ? "width" : a.name == "src3Len" ? "height" : "";
  }
  std::string driver() const { return cost.empty() ? "" : "p8_ownOMP_zelm" + name; }
  bool contiguous_kernel() const { return kernels.size() == 2; }
  std::string result() const { return row->operation == "GetLibVersion" ? "const ZelLibVersion*" : "ZelStatus"; }
};

/// All functions, sorted by exported name.
const std::vector<Function>& functions();

std::vector<std::string_view> words(std::string_view text);

// Counts at compile time, so that a slip in the table does not build.

constexpr int count_words(std::string_view text) {
  int n = 0;
  for (std::size_t i = 0; i < text.size(); ++i) n += text[i] != ' ' && (i == 0 || text[i - 1] == ' ');
  return n;
}

constexpr int count_array_forms(std::string_view forms) {
  int n = 0;
  while (!forms.empty()) {
    const auto end = forms.find(' ');
    n += forms.substr(0, end).find('a') != std::string_view::npos;
    forms = end == std::string_view::npos ? std::string_view{} : forms.substr(end + 1);
  }
  return n;
}

constexpr int count_exports(const Row& row) {
  const int forms = count_words(row.forms), arrays = count_array_forms(row.forms);
  if (row.operation == "GetLibVersion") return 1;
  if (row.room == "geometry") return forms;           // 32f, one layout
  if (row.forms.empty()) return 2;                    // two types
  if (row.operation == "Copy") return forms * 2 * 9;  // two types, nine pairs of layouts
  return 2 * (arrays * 3 + (forms - arrays) * 2);     // two types; three layouts, or two for single objects
}

constexpr int count_drivers(const Row& row) {
  if (row.cost.empty()) return 0;
  return row.room == "geometry" ? 1 : 2 * 3 * count_array_forms(row.forms);
}

template <int (*count)(const Row&)>
constexpr int total() {
  int n = 0;
  for (const Row& row : kRows) n += count(row);
  return n;
}

inline constexpr int kExports = total<count_exports>();
static_assert(kExports == 874);
static_assert(total<count_drivers>() - int(std::size(kSerial)) == 515);

}  // namespace zelm::catalog
