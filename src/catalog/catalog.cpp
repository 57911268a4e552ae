// catalog.cpp: expands the rows of the table into functions by the naming and argument rules.
#include "catalog/catalog.hpp"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace zelm::catalog {
namespace {

using std::string;
using std::string_view;

bool contains(string_view list, string_view word) {
  const auto all = words(list);
  return std::find(all.begin(), all.end(), word) != all.end();
}

bool covers(string_view list, string_view word) { return list.empty() || contains(list, word); }

/// One operand tag of a form: ma is {'m', array}.
struct Tag {
  char letter;
  bool array;
};

std::vector<Tag> tags_of(string_view form) {
  std::vector<Tag> tags;
  for (const char c : form) {
    if (c == 'a') tags.back().array = true;
    else tags.push_back({c, false});
  }
  return tags;
}

string lower_first(string s) {
  s[0] = char(std::tolower(s[0]));
  return s;
}

bool starts(string_view s, string_view with) { return s.substr(0, with.size()) == with; }

/// Builds one function; the fields are filled in the order of the steps below.
class Builder {
 public:
  Builder(const Row& row, string_view form, string_view type, string_view layout) {
    f.row = &row;
    f.form = form;
    f.element = type == "32f" ? "float" : type == "64f" ? "double" : "";
    f.layout = layout;
    f.name = string(row.operation);
    for (const string_view part : {form, type, layout})
      if (!part.empty()) f.name += "_" + string(part);
    f.fixed = row.room == "geometry" && row.operation != "AffineTransform3DH";
    tags = f.fixed ? std::vector<Tag>{} : tags_of(form);
    add_arguments();
    find_order();
    add_cost();
    add_kernels();
    if (row.mismatch == "inner") f.mismatch = inner_sizes();
    else f.mismatch = row.mismatch;
    if (!row.scratch.empty()) f.scratch = expression(row.scratch, "std::size_t");
  }

  Function f;

 private:
  bool any_array() const {
    return std::any_of(tags.begin(), tags.end(), [](Tag t) { return t.array; });
  }
  bool any_matrix() const {
    return std::any_of(tags.begin(), tags.end(), [](Tag t) { return t.letter == 'm' || t.letter == 't'; });
  }
  bool any_vector() const {
    return std::any_of(tags.begin(), tags.end(), [](Tag t) { return t.letter == 'v'; });
  }
  bool has(string_view argument) const { return contains(f.row->arguments, argument); }

  void add_arguments() {
    std::size_t next_source = 0;
    for (const string_view word : words(f.row->arguments)) {
      const string_view name = word.substr(0, word.find(':'));
      const string_view columns = word.size() > name.size() ? word.substr(name.size() + 1) : string_view{};
      if (f.fixed) add_plain(name);
      else if (name == "src" || name == "src1" || name == "src2" || name == "src3")
        add_operand(name, object_tag(next_source++, false), true, columns);
      else if (starts(name, "dst")) add_operand(name, {any_vector() ? 'v' : 'm', any_array()}, false, columns);
      else if (name == "val" && object_tag(0, true).array) add_operand(name, object_tag(0, true), true, {});
      else if (name == "height" && !any_matrix()) continue;
      else if (name == "count" && !any_array()) f.count_place = int(f.arguments.size());
      else add_plain(name);
    }
  }

  /// The index-th tag that is (or is not) a constant. Constants stand at a fixed place of the list, whatever the form's order.
  /// An operand without a tag of its own is like the one before it: the third of Gaxpy's mv and mva.
  Tag object_tag(std::size_t index, bool constant) const {
    Tag found{'c', false};
    for (const Tag t : tags) {
      if ((t.letter == 'c') != constant) continue;
      found = t;
      if (index-- == 0) break;
    }
    return found;
  }

  void push(string type, string name, Kind kind, int level = 0, bool source = false, int operand = -1) {
    f.arguments.push_back({std::move(type), std::move(name), kind, level, source, operand});
  }

  void add_plain(string_view name) {
    const string n(name);
    if (name[0] == 'p' && std::isupper(static_cast<unsigned char>(name[1]))) {
      const bool output = starts(name, "pDst") || name == "pDet" || name == "pResult" || name == "pSize";
      string type = f.element;
      if (name == "pDstIndex" || name == "pSrcIndex" || name == "pResult" || name == "pSize") type = "int";
      if (name == "pBuffer") type = "void";
      push((output || name == "pBuffer" ? "" : "const ") + type + "*", n, Kind::pointer, 0, !output);
      if (any_array()) f.arguments.back().per_object = entries_per_object(name);
    } else if (name == "count") {
      push("int", n, Kind::count);
    } else if (starts(name, "width") || starts(name, "height") || name == "src2Len" || name == "src3Len") {
      push("int", n, Kind::size);
    } else if (name == "srcStride0" || name == "dstStride0") {
      push("int", n, Kind::stride);
    } else {
      push(f.element, n, Kind::value);
    }
  }

  string entries_per_object(string_view name) const {
    if (name == "pBuffer" || (name == "pSrcIndex" && !tags[0].array)) return "";
    if (f.row->operation == "Extract") return any_matrix() ? "width*height" : "width";
    return has("widthHeight") && (f.row->room == "eigen" || name != "pDst") ? "widthHeight" : "1";
  }

  Store store_of(bool source, bool array, bool constants) const {
    const char mark = f.layout.size() == 2 ? f.layout[source ? 0 : 1] : f.layout.empty() ? 'S' : f.layout[0];
    if (mark == 'P') return constants ? Store::strided : Store::table;
    return mark == 'L' && array ? Store::list : Store::strided;
  }

  void add_operand(string_view name, Tag tag, bool source, string_view columns) {
    Operand o;
    // The eigenvector outputs have a stem of their own: pDstVectorsRight goes with dstRightStride1.
    o.stem = string(name);
    o.stem[0] = char(std::toupper(o.stem[0]));
    string prefix = lower_first(o.stem);
    if (const auto at = prefix.find("Vectors"); at != string::npos) prefix.erase(at, 7);
    o.matrix = tag.letter == 'm' || tag.letter == 't';
    o.transposed = tag.letter == 't';
    o.constants = tag.letter == 'c';
    o.array = tag.array;
    o.source = source;
    o.store = store_of(source, o.array, o.constants);
    set_shape(o, name, columns);
    o.first = int(f.arguments.size());
    const int index = int(f.operands.size());
    const string type = (source ? "const " : "") + f.element + "*";
    const auto part = [&](const char* suffix, Kind kind, int level) {
      push("int", prefix + suffix, kind, level, source, index);
    };
    if (o.store == Store::strided) push(type, "p" + o.stem, Kind::pointer, 0, source, index);
    else push(type + " const*", "pp" + o.stem, Kind::pointer, 0, source, index);
    if (o.store != Store::strided) part("ByteShift", Kind::shift, 0);
    if (o.array && o.store != Store::list) part("Stride0", Kind::stride, 0);
    if (o.matrix && o.store != Store::table) part("Stride1", Kind::stride, 1);
    if (!o.constants && o.store != Store::table) part("Stride2", Kind::stride, 2);
    o.arguments = int(f.arguments.size()) - o.first;
    f.operands.push_back(o);
  }

  /// The size arguments that the stored object has, as far as the list of arguments names them.
  void set_shape(Operand& o, string_view name, string_view columns) {
    if (f.row->operation == "AffineTransform3DH") {
      o.columns = o.matrix ? "4" : "3";
      o.rows = o.matrix ? "4" : "1";
      return;
    }
    if (f.row->operation == "CrossProduct") {
      o.columns = "3";
      o.rows = "1";
      return;
    }
    if (has("widthHeight")) {
      o.columns = "widthHeight";
      o.rows = o.matrix ? "widthHeight" : "1";
      return;
    }
    if (columns == "product") {
      o.columns = tags[1].letter == 'm' ? "width2" : "height2";
      o.rows = tags[0].letter == 'm' ? "height1" : "width1";
    } else if (!columns.empty()) {
      o.columns = columns;
      o.rows = columns == "width1" ? "height1" : columns == "width2" ? "height2" : "width";
    } else if (has("src2Len")) {
      const bool turned = tags[0].letter == 't';
      if (name == "src1") {
        o.columns = "width";
        o.rows = "height";
      } else {
        o.columns = name == "src2" ? "src2Len" : name == "src3" ? "src3Len" : turned ? "width" : "height";
        o.rows = "1";
      }
    } else if (starts(f.row->operation, "QRBack") && !o.matrix) {
      o.columns = name == "dst" ? "width" : "height";
      o.rows = "1";
    } else if (!o.matrix) {
      o.columns = "width";
      o.rows = "1";
    } else {
      o.columns = o.transposed ? "height" : "width";
      o.rows = o.transposed ? "width" : "height";
    }
  }

  void find_order() {
    f.order = kDefaultOrder;
    const string_view layout = f.layout.empty() ? "standard" : string_view(f.layout);
    for (const Deviation& d : kDeviations) {
      if (contains(d.operations, f.row->operation) && covers(d.forms, f.form) && covers(d.types, type()) &&
          covers(d.layouts, layout)) {
        f.order = d.order;
        return;
      }
    }
  }

  /// Replaces the letters of a cost or scratch formula by the arguments that they stand for.
  string expression(string_view text, const string& cast) const {
    const auto meaning = [&](char letter) -> string {
      switch (letter) {
        case 'c': return cast + "(count)";
        case 'w': return cast + "(width)";
        case 'h': return cast + "(height)";
        case 'E': return "sizeof(" + f.element + ")";
        default: return cast + (has("widthHeight") ? "(widthHeight)" : "(width)");
      }
    };
    string out;
    for (const char ch : text) out += std::isalpha(static_cast<unsigned char>(ch)) ? meaning(ch) : string(1, ch);
    return out;
  }

  /// Elements read and written by a product: each array operand counts for every object, a single one once.
  string product_cost() const {
    const auto times = [](bool array, const string& size) { return (array ? "unsigned(count)*" : "") + size; };
    string s1, s2, d;
    if (tags[1].letter == 'v') {
      s1 = "unsigned(width)*unsigned(height)";
      s2 = "unsigned(src2Len)";
      d = tags[0].letter == 'm' ? "unsigned(height)" : "unsigned(width)";
    } else {
      s1 = "unsigned(width1)*unsigned(height1)";
      s2 = "unsigned(width2)*unsigned(height2)";
      d = string(tags[0].letter == 'm' ? "unsigned(height1)" : "unsigned(width1)") + "*" +
          (tags[1].letter == 'm' ? "unsigned(width2)" : "unsigned(height2)");
    }
    return times(tags[0].array, s1) + " + " + times(true, d) + " + " + times(tags[1].array, s2);
  }

  string inner_sizes() const {
    if (tags[1].letter == 'v') return tags[0].letter == 'm' ? "width == src2Len" : "height == src2Len";
    return string(tags[0].letter == 'm' ? "width1" : "height1") + " == " + (tags[1].letter == 'm' ? "height2" : "width2");
  }

  void add_cost() {
    if (f.row->cost.empty() || !any_array()) return;
    if (std::find(std::begin(kSerial), std::end(kSerial), f.name) != std::end(kSerial)) return;
    f.cost = f.row->cost == "product" ? product_cost() : expression(f.row->cost, "unsigned");
    const auto cells = words(f.row->limits);
    const std::size_t layout = f.layout == "L" ? 1 : f.layout == "P" ? 2 : 0;
    const string cell(cells[layout + (f.element == "double" ? 3 : 0)]);
    f.limit[0] = std::stoi(cell);
    f.limit[1] = std::stoi(cell.substr(cell.find('/') + 1));
  }

  void add_kernels() {
    if (f.fixed || f.row->kernels == Kernels::none) return;
    if (f.row->kernels == Kernels::one || f.layout == "P") {
      add_kernel(f.layout.empty() ? "" : "_" + f.layout, false);
    } else {
      add_kernel(f.layout.empty() ? "" : "_L", true);
      add_kernel(f.layout.empty() ? "_S2" : "_LS2", false);
    }
  }

  void add_kernel(const string& path, bool contiguous) {
    const string kind = type() + path;
    f.kernels.push_back({"p8_ownzelm" + string(f.row->operation) + "_" + f.form + "_" + kind, contiguous, ""});
    for (const Variant& v : kVariants)
      if (v.operation == f.row->operation && covers(v.forms, f.form) && covers(v.kernels, kind)) {
        f.kernels.back().policy = v.policy;
        return;
      }
  }

  string type() const { return f.element == "double" ? "64f" : "32f"; }

  std::vector<Tag> tags;
};

void expand(const Row& row, std::vector<Function>& out) {
  const bool fixed = row.room == "geometry";
  const auto types = row.operation == "GetLibVersion" ? std::vector<string_view>{""}
                     : fixed                          ? std::vector<string_view>{"32f"}
                                                      : std::vector<string_view>{"32f", "64f"};
  auto forms = words(row.forms);
  if (forms.empty()) forms.push_back("");
  for (const string_view form : forms) {
    std::vector<string_view> layouts = {""};
    if (row.operation == "Copy") layouts = {"SS", "SL", "SP", "LS", "LL", "LP", "PS", "PL", "PP"};
    else if (!fixed && form.find('a') != string_view::npos) layouts = {"", "L", "P"};
    else if (!fixed && !form.empty()) layouts = {"", "P"};
    for (const string_view type : types)
      for (const string_view layout : layouts) out.push_back(Builder(row, form, type, layout).f);
  }
}

}  // namespace

std::vector<string_view> words(string_view text) {
  std::vector<string_view> out;
  while (!text.empty()) {
    const auto end = text.find(' ');
    if (end != 0) out.push_back(text.substr(0, end));
    text = end == string_view::npos ? string_view{} : text.substr(end + 1);
  }
  return out;
}

string Function::formula() const {
  string text(row->formula);
  if (const auto at = text.find("$n"); at != string::npos) text.replace(at, 2, form.substr(form.find('v') + 1, 1));
  return text;
}

const std::vector<Function>& functions() {
  static const std::vector<Function> all = [] {
    std::vector<Function> out;
    for (const Row& row : kRows) expand(row, out);
    std::sort(out.begin(), out.end(), [](const Function& a, const Function& b) { return a.name < b.name; });
    return out;
  }();
  return all;
}

}  // namespace zelm::catalog
