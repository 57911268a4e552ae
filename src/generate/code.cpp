// code.cpp: stubs, slots, entries, drivers and kernels of the built families.
#include <algorithm>
#include <map>

#include "generate/writer.hpp"

namespace zelm::generate {
namespace {

using namespace catalog;
using std::string;

constexpr const char* kFirstLine = "// Generated from the catalog; do not edit.\n";

/// Names of the arguments that `pick` accepts, separated by commas.
template <class Pick>
string names(const Function& f, Pick pick) {
  return joined(f.arguments, ", ", [&](const Argument& a) { return pick(a) ? a.name : string(); });
}

// Kernels: the _P kernels take their shifts as Bytes, since a driver moves them by whole stretches of objects.

string kernel_parameters(const Function& f, const Kernel& k) {
  return joined(f.arguments, ", ", [&](const Argument& a) {
    if (!k.takes(a)) return string();
    return (a.kind == Kind::shift && f.layout == "P" ? string("Bytes") : a.type) + " " + a.name;
  });
}

string view(const Function& f, const Operand& o, const Kernel& k) {
  string arguments = joined(std::vector(f.arguments.begin() + o.first, f.arguments.begin() + o.first + o.arguments), ", ",
                            [&](const Argument& a) { return k.takes(a) ? a.name : string(); });
  string maker;
  if (o.constants) {
    maker = o.store == Store::list ? "constant_list" : "constants";
  } else if (o.store == Store::table) {
    maker = o.array ? "tables" : "table";
    arguments += ", " + o.columns;
  } else {
    maker = o.matrix ? (o.array ? "matrices" : "matrix") : (o.array ? "vectors" : "vector");
    if (o.store == Store::list) maker = o.matrix ? "matrix_list" : "vector_list";
  }
  const string made = maker + "(" + arguments + ")";
  return o.transposed ? "transposed(" + made + ")" : made;
}

/// A formula on views of the arguments that the kernel takes.
string formula_call(const Function& f, string formula, const Kernel& k) {
  string call;
  const auto add = [&](const string& part) { call += (call.empty() ? "" : ", ") + part; };
  int last_operand = -1;
  for (int a = 0; a <= int(f.arguments.size()); ++a) {
    if (a == f.count_place) add("1");
    if (a == int(f.arguments.size())) break;
    const Argument& argument = f.arguments[std::size_t(a)];
    if (argument.operand < 0) add(argument.name);
    else if (argument.operand != last_operand) add(view(f, f.operands[std::size_t(last_operand = argument.operand)], k));
  }
  const string& policy = f.form.empty() ? f.element : k.policy;  // without operands nothing else names the type
  if (!policy.empty()) {
    if (formula.back() == '>') formula.insert(formula.size() - 1, ", " + policy);
    else formula += "<" + policy + ">";
  }
  return formula + "(" + call + ")";
}

string driver_parameters(const Function& f) {
  return joined(f.arguments, ", ", [&](const Argument& a) { return f.driver_takes(a) ? a.type + " " + a.name : string(); });
}

string kernel(const Function& f, const Kernel& k) {
  return "ZelStatus " + k.symbol + "(" + kernel_parameters(f, k) + ") {\n  return " + formula_call(f, f.formula(), k) +
         ";\n}\n";
}

// Entries

string test(const string& condition, const char* status) {
  return condition.empty() ? "" : "  if (" + condition + ") return " + status + ";\n";
}

/// The checks in the function's order. A step takes the arguments of its kind that no step before it has tested.
string checks(const Function& f) {
  std::vector<bool> done(f.arguments.size());
  const bool guarded = f.order.find('G') != string::npos;
  const auto take = [&](Kind kind, auto accept) {
    string list;
    for (std::size_t a = 0; a < f.arguments.size(); ++a) {
      const Argument& argument = f.arguments[a];
      if (done[a] || argument.kind != kind || !accept(argument)) continue;
      done[a] = true;
      list += (list.empty() ? "" : ", ") + argument.name;
    }
    return list;
  };
  const auto call = [&](const char* function, const string& list) {
    const bool typed = string(function).find("bad") == 0;
    return list.empty() ? "" : function + (typed ? "<" + f.element + ">" : string()) + "(" + list + ")";
  };
  const auto all = [](const Argument&) { return true; };
  const auto source = [](const Argument& a) { return a.source; };
  const auto plain_stride = [&](const Argument& a) { return !guarded || a.level != 0; };
  const bool product = f.row->operation == "Mul" || f.row->operation == "Gaxpy";
  string out;
  for (const char step : f.order) {
    switch (step) {
      case 'P': out += test(call("any_null", take(Kind::pointer, all)), "zelStsNullPointer"); break;
      case 'C': out += test(call("any_below_one", take(Kind::count, all)), "zelStsBadCount"); break;
      case 'N': out += test(call("any_below_one", take(Kind::size, all)), "zelStsBadSize"); break;
      case 'S': out += test(call("bad_strides", take(Kind::stride, plain_stride)), "zelStsBadStride"); break;
      case 's': out += test(call("bad_strides", take(Kind::stride, source)), "zelStsBadStride"); break;
      case 'B': out += test(call("bad_shifts", take(Kind::shift, all)), "zelStsBadByteShift"); break;
      case 'b': out += test(call("bad_shifts", take(Kind::shift, source)), "zelStsBadByteShift"); break;
      case 'G': {
        const string bad = call("bad_strides", take(Kind::stride, all));
        out += test(bad.empty() ? bad : "count > 1 && " + bad, "zelStsBadStride");
        break;
      }
      case 'M':
        if (product && !f.mismatch.empty()) out += test("!(" + f.mismatch + ")", "zelStsSizeMismatch");
        break;
      case 'W':
        if (!product && !f.mismatch.empty()) out += test("!(" + f.mismatch + ")", "zelStsSizeMismatch");
        break;
    }
  }
  return out;
}

string contiguity(const Function& f) {
  return "  const bool contiguous = unit_strides<" + f.element + ">(" +
         names(f, [](const Argument& a) { return a.kind == Kind::stride && a.level == 2; }) + ");\n";
}

string kernel_call(const Function& f, const Kernel& k) {
  return k.symbol + "(" + names(f, [&](const Argument& a) { return k.takes(a); }) + ")";
}

string entry(const Function& f) {
  string out = "ZelStatus " + f.entry() + "(" + parameters(f) + ") {\n" + (f.validates() ? checks(f) : "");
  if (f.kernels.empty()) return out + "  return " + formula_call(f, f.formula(), {}) + ";\n}\n";
  if (!f.row->order_one.empty())
    out += "  if (widthHeight == 1) return " + formula_call(f, string(f.row->order_one), {}) + ";\n";
  const bool choice = f.contiguous_kernel();
  if (choice) out += contiguity(f);
  if (!f.cost.empty()) {
    string limit = std::to_string(f.limit[choice ? 0 : 1]);
    if (choice && f.limit[0] != f.limit[1]) limit = "(contiguous ? " + limit + " : " + std::to_string(f.limit[1]) + ")";
    out += "  if (int(" + f.cost + ") >= " + limit + ") return " + f.driver() + "(" +
           names(f, [&](const Argument& a) { return f.driver_takes(a); }) + ");\n";
  }
  if (choice) out += "  if (contiguous) return " + kernel_call(f, f.kernels[0]) + ";\n";
  return out + "  return " + kernel_call(f, f.kernels.back()) + ";\n}\n";
}

// Drivers

/// The kernel's arguments for the stretch of `n` objects from `first` on.
string stretch_call(const Function& f, const Kernel& k) {
  return k.symbol + "(" +
         joined(f.arguments, ", ",
                [&](const Argument& a) -> string {
                  if (!k.takes(a)) return "";
                  if (a.kind == Kind::count) return "n";
                  if (!f.driver_takes(a)) return f.equal_size(a);
                  if (a.name == "pBuffer") return "scratch";
                  if (a.operand < 0)
                    return a.per_object.empty() ? a.name : a.name + " + std::ptrdiff_t(first) * " + a.per_object;
                  const Operand& o = f.operands[std::size_t(a.operand)];
                  if (!o.array) return a.name;
                  const auto stride0 = [&] {
                    for (const Argument& s : f.arguments)
                      if (s.operand == a.operand && s.kind == Kind::stride && s.level == 0) return s.name;
                    return string();
                  };
                  if (o.store == Store::list) return a.kind == Kind::pointer ? a.name + " + first" : a.name;
                  if (o.store == Store::table)
                    return a.kind == Kind::shift ? a.name + " + Bytes(first) * " + stride0() : a.name;
                  return a.kind == Kind::pointer ? "moved(" + a.name + ", Bytes(first) * " + stride0() + ")" : a.name;
                }) +
         ")";
}

string driver(const Function& f) {
  const bool scratch = !f.scratch.empty();
  string out = "ZelStatus " + f.driver() + "(" + driver_parameters(f) + ") {\n";
  if (f.contiguous_kernel()) out += contiguity(f);
  out += scratch             ? "  return parallel::divide_with_scratch(count, pBuffer, " + f.scratch + ", "
         : f.merges_status() ? "  return parallel::divide_merging(count, "
                             : "  return parallel::divide(count, ";
  out += string("[=](int first, int n") + (scratch ? ", void* scratch" : "") + ") {\n";
  if (f.contiguous_kernel()) out += "    if (contiguous) return " + stretch_call(f, f.kernels[0]) + ";\n";
  return out + "    return " + stretch_call(f, f.kernels.back()) + ";\n  });\n}\n";
}

/// Breaks long lines behind a comma.
string wrapped(const string& text) {
  string out;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(text.find('\n', from), text.size());
    string line = text.substr(from, end - from), indent;
    const std::size_t margin = line.find_first_not_of(' ');
    while (line.size() > 120) {
      const std::size_t cut = line.rfind(", ", 118);
      if (cut == string::npos || cut < margin + 8) break;
      out += line.substr(0, cut + 1) + "\n";
      line = string(margin + 4, ' ') + line.substr(cut + 2);
    }
    out += line + "\n";
    from = end + 1;
  }
  return out;
}

string formula_header(const Function& f) {
  const string formula(f.row->formula);
  return string(f.row->room) + "/" + formula.substr(0, formula.find_first_of("<:_")) + ".hpp";
}

}  // namespace

string parameters(const Function& f) {
  return joined(f.arguments, ", ", [](const Argument& a) { return a.type + " " + a.name; });
}

bool Unit::drivers() const {
  for (const Function* f : functions)
    if (!f->driver().empty()) return true;
  return false;
}

std::vector<Unit> built_units() {
  std::vector<Unit> units;
  std::map<std::pair<const Row*, string>, std::size_t> place;
  for (const Function& f : functions()) {
    if (!f.built() || f.row->room == "frame") continue;
    const auto [at, fresh] = place.try_emplace({f.row, f.element}, units.size());
    if (fresh) {
      const auto forms = words(f.row->forms);
      const string first_form = forms.empty() ? "" : "_" + string(forms[0]);
      units.push_back({string(f.row->operation) + first_form + (f.element == "double" ? "_64f" : "_32f"), {}});
    }
    units[at->second].functions.push_back(&f);
  }
  return units;
}

string exports() {
  return "{\n  global:\n" +
         joined(functions(), "", [](const Function& f) { return f.built() ? "    " + f.exported() + ";\n" : string(); }) +
         "  local: *;\n};\n";
}

string stubs() {
  string out =
      "// Generated from the catalog; do not edit.\n"
      "// Every exported function is one jump through word 0 of its slot. A slot is four words, of which nothing reads the "
      "last three.\n"
      "#ifdef __x86_64__\n"
      "#define STUB(name) .globl name; .type name, @function; .p2align 4; name: jmp *name##_arraddr(%rip); .size name, . - "
      "name\n"
      "#define SLOT(name, entry) .globl name##_arraddr; .hidden name##_arraddr; .type name##_arraddr, @object; \\\n"
      "  name##_arraddr: .quad entry, 0, 0, 0; .size name##_arraddr, 32\n"
      "#else\n"
      "#define STUB(name) .globl name; .type name, @function; .p2align 4; name: call zelm_own_address; \\\n"
      "  1: jmp *(name##_arraddr - 1b)(%eax); .size name, . - name\n"
      "#define SLOT(name, entry) .globl name##_arraddr; .hidden name##_arraddr; .type name##_arraddr, @object; \\\n"
      "  name##_arraddr: .long entry, 0, 0, 0; .size name##_arraddr, 16\n"
      "#endif\n\n"
      "  .text\n"
      "#ifndef __x86_64__\n"
      "  .hidden zelm_own_address\n"
      "  .type zelm_own_address, @function\n"
      "zelm_own_address: movl (%esp), %eax; ret\n"
      "  .size zelm_own_address, . - zelm_own_address\n"
      "#endif\n";
  for (const Function& f : functions())
    if (f.built()) out += "STUB(" + f.exported() + ")\n";
  out += "\n  .section .data.rel.ro, \"aw\", @progbits\n  .p2align 5\n";
  for (const Function& f : functions())
    if (f.built()) out += "  .hidden " + f.entry() + "\nSLOT(" + f.exported() + ", " + f.entry() + ")\n";
  return out +
         "\n  .section .rodata\n  .globl zelJumpIndexForMergedDLL\n  .hidden zelJumpIndexForMergedDLL\n"
         "  .type zelJumpIndexForMergedDLL, @object\n  .p2align 2\nzelJumpIndexForMergedDLL: .long 0\n"
         "  .size zelJumpIndexForMergedDLL, 4\n\n  .section .note.GNU-stack, \"\", @progbits\n";
}

string unit_declarations(const Unit& unit) {
  string out = string(kFirstLine) +
               "#pragma once\n#include \"frame/views.hpp\"\n#include \"zelm_types.h\"\n\nextern \"C\" {\n" +
               "using zelm::Bytes;\n";
  for (const Function* f : unit.functions) {
    out += "ZelStatus " + f->entry() + "(" + parameters(*f) + ");\n";
    if (!f->driver().empty()) out += "ZelStatus " + f->driver() + "(" + driver_parameters(*f) + ");\n";
    for (const Kernel& k : f->kernels) out += "ZelStatus " + k.symbol + "(" + kernel_parameters(*f, k) + ");\n";
  }
  return wrapped(out + "}\n");
}

string unit_code(const Unit& unit) {
  string out = string(kFirstLine) + "#include \"" + unit.name + ".hpp\"\n\n#include \"frame/checks.hpp\"\n#include \"" +
               formula_header(*unit.functions[0]) +
               "\"\n\nusing namespace zelm;\nusing namespace zelm::" + string(unit.functions[0]->row->room) + ";\n";
  for (const Function* f : unit.functions) {
    for (const Kernel& k : f->kernels) out += "\n" + kernel(*f, k);
    out += "\n" + entry(*f);
  }
  return wrapped(out);
}

string unit_drivers(const Unit& unit) {
  string out = string(kFirstLine) + "#include \"" + unit.name + ".hpp\"\n\n#include \"frame/checks.hpp\"\n" +
               "#include \"frame/parallel.hpp\"\n\nusing namespace zelm;\n";
  for (const Function* f : unit.functions)
    if (!f->driver().empty()) out += "\n" + driver(*f);
  return wrapped(out);
}

string internals(const std::vector<Unit>& units) {
  return string(kFirstLine) + "#pragma once\n" +
         joined(units, "", [](const Unit& u) { return "#include \"" + u.name + ".hpp\"\n"; });
}

string test_calls(const std::vector<Unit>& units) {
  string code, table;
  const auto add = [&](const Function& f, const string& symbol, auto takes) {
    string arguments;
    int place = 0;
    for (const Argument& a : f.arguments) {
      if (!takes(a)) continue;
      const string value = "a[" + std::to_string(place++) + "]";
      const bool pointer = a.kind == Kind::pointer;
      arguments += (arguments.empty() ? "" : ", ") + (pointer                 ? "static_cast<" + a.type + ">(" + value + ".p)"
                                                      : a.kind == Kind::value ? f.element + "(" + value + ".x)"
                                                                              : value + ".i");
    }
    table += "    {\"" + symbol + "\", [](const Value* a) -> ZelStatus { return " + symbol + "(" + arguments + "); }},\n";
  };
  const auto all = [](const Argument&) { return true; };
  for (const Unit& u : units)
    for (const Function* f : u.functions) {
      add(*f, f->exported(), all);
      if (!f->driver().empty()) add(*f, f->driver(), [&](const Argument& a) { return f->driver_takes(a); });
      for (const Kernel& k : f->kernels) add(*f, k.symbol, [&](const Argument& a) { return k.takes(a); });
    }
  return string(kFirstLine) + "#include \"internals.hpp\"\n#include \"support/calls.hpp\"\n#include \"zelm.h\"\n\n" +
         "namespace zelm::test {\n\nconst Call kCalls[] = {\n" + table +
         "};\nconst int kCallCount = int(std::size(kCalls));\n\n}\n";
}

}  // namespace zelm::generate
