// header.cpp: the public header, every built function with its argument names and a docstring.
#include <algorithm>

#include "generate/writer.hpp"

namespace zelm::generate {
namespace {

using namespace catalog;
using std::string;

const char* const kPreamble =
    R"(/* zelm.h: small-matrix and small-vector mathematics; one call processes a whole array of objects.
 *
 * Generated from the catalog; do not edit.
 *
 * A name is the operation, one tag for each operand, the element type and the memory layout: zelmAdd_mam_32f_L.
 *   m matrix, t transposed matrix, v vector, c constant; `a` behind a letter: an array of `count` such objects
 *   32f float, 64f double
 *   nothing behind the type: standard layout; _L: a list of pointers to objects; _P: a table of pointers to elements
 *
 * Element (i, j), row i and column j, of object k lies at
 *   standard  pSrc + k*stride0 + i*stride1 + j*stride2
 *   _L        ppSrc[k] + byteShift + i*stride1 + j*stride2
 *   _P        ppSrc[i*columns + j] + byteShift + k*stride0     columns: those of the stored object
 * A vector is its only row; an operand without `a` has no stride0, and in _L functions keeps the standard layout.
 * Constant k of an array of constants lies at pVal + k*valStride0, in _L functions at ppVal[k] + valByteShift.
 * Strides and byte shifts count BYTES. Strides are positive multiples of the element size, byte shifts multiples of it from 0
 * up; there is no other demand on them, nor on the alignment of any pointer.
 *
 * Every function returns zelStsOk or a negative status. Bad arguments (a null pointer, a count or size below 1, a bad stride or
 * byte shift, sizes that do not agree) are refused with nothing written; the docstrings name what else can be returned.
 * The destination lies apart from the sources where the docstring does not say more. In Add, Sub, Saxpy, LComb and products with
 * constants it may also be an untransposed source, with the same layout, strides and sizes.
 * In formulas k runs over the objects, i over rows, j over columns; A and B (a and b) are the sources, D (d) the destination.
 *
 * Fixed sizes: v2, v3, v4 are 2, 3, 4 consecutive floats, m4 is a matrix of 16 floats row by row, M[4*i + j]. These functions check
 * nothing, null pointers included, and return zelStsOk unless their text says otherwise. Points are row vectors, p' = p M: a
 * translation is in M[12], M[13], M[14], and A * B is A first, then B.
 *
 * All functions may be called from any thread at any time. Large arrays are divided among the threads that zelcore.h sets.
 */
#ifndef ZELM_H
#define ZELM_H

#include "zelm_types.h"

#ifdef __cplusplus
extern "C" {
#endif
)";

string object_name(const Operand& o, char letter) {
  return string(1, o.matrix ? char(letter - 'a' + 'A') : letter) + (o.array ? "[k]" : "");
}

/// `A[k](i, j)`, with the indices exchanged for a transposed operand, or `a[k](j)`.
string element_name(const Operand& o, char letter) {
  return object_name(o, letter) + (!o.matrix ? "(j)" : o.transposed ? "(j, i)" : "(i, j)");
}

string filled(const Function& f) {
  string out;
  const string text(f.row->meaning);
  const Operand* destination = nullptr;
  std::vector<const Operand*> sources;
  for (const Operand& o : f.operands) {
    if (o.source && !o.constants) sources.push_back(&o);
    if (!o.source) destination = &o;
  }
  const bool constant_form = f.form.find('c') != string::npos;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '$') {
      out += text[i];
      continue;
    }
    const char letter = text[++i];
    const bool element = i + 1 < text.size() && text[i + 1] == '_';
    i += element;
    if (letter == 'b' && constant_form) {
      out += std::any_of(f.operands.begin(), f.operands.end(), [](const Operand& o) { return o.constants; }) ? "val[k]" : "val";
      continue;
    }
    const Operand& o = letter == 'd' ? *destination : *sources[std::size_t(letter - 'a')];
    if (element) out += element_name(o, letter);
    else out += object_name(o, letter) + (o.transposed ? "^T" : "");
  }
  return out;
}

string wrapped(const string& text, std::size_t width) {
  string out = " ";
  std::size_t column = 1;
  for (const std::string_view word : words(text)) {
    if (column + word.size() + 1 > width) {
      out += "\n   ";
      column = 3;
    }
    out += " " + string(word);
    column += word.size() + 1;
  }
  return out;
}

string docstring(const Function& f) {
  string text = filled(f);
  if (!f.row->shapes.empty()) text += "; " + string(f.row->shapes);
  text += ".";
  if (!f.row->statuses.empty())
    text += " May return " + joined(words(f.row->statuses), ", ", [](auto w) { return string(w); }) + ".";
  return "/**" + wrapped(text, 116).substr(1) + " */\n";
}

string prototype(const Function& f) {
  const string head = f.result() + " " + f.exported() + "(";
  string out = head, line;
  std::size_t column = head.size();
  for (std::size_t a = 0; a < f.arguments.size(); ++a) {
    const string part = f.arguments[a].type + " " + f.arguments[a].name + (a + 1 < f.arguments.size() ? "," : "");
    if (a > 0 && column + part.size() + 1 > 118) {
      out += "\n    ";
      column = 4;
    } else if (a > 0) {
      out += " ";
      ++column;
    }
    out += part;
    column += part.size();
  }
  return out + (f.arguments.empty() ? "void);\n" : ");\n");
}

}  // namespace

string header() {
  string out = kPreamble;
  std::string_view family;
  for (const Function& f : functions()) {
    if (!f.built()) continue;
    if (f.row->operation != family) out += "\n/* ---- " + string(family = f.row->operation) + " ---- */\n";
    out += "\n" + docstring(f) + prototype(f);
  }
  return out + "\n#ifdef __cplusplus\n}\n#endif\n\n#endif\n";
}

}  // namespace zelm::generate
