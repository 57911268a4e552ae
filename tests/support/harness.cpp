#include "support/harness.hpp"

#include <omp.h>
#include <signal.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <unordered_map>

#include "zelcore.h"

namespace zelm::test {
namespace {

using catalog::Kind;
using catalog::Store;
using Byte = unsigned char;

constexpr Byte kCanary = 0x7b;  // as an element 1e36 or 1e286: a pivot or a sum that takes it in shows it
constexpr std::size_t kMargin = 64;

[[noreturn]] void stop(const char* reason, std::string_view name) {
  std::fprintf(stderr, "%s: %.*s\n", reason, int(name.size()), name.data());
  std::abort();
}

/// Memory between two unmapped pages.
struct Region {
  static constexpr std::size_t size = std::size_t(1) << 22;
  Byte* begin;
  Region() {
    const auto page = std::size_t(sysconf(_SC_PAGESIZE));
    void* const all = mmap(nullptr, size + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    begin = static_cast<Byte*>(all) + page;
    if (all == MAP_FAILED || mprotect(begin, size, PROT_READ | PROT_WRITE) != 0) stop("no memory", "region");
  }
  Byte* place(std::size_t bytes, int offset, bool at_end) const {
    if (bytes + std::size_t(offset) > size) stop("too large", "region");
    return at_end ? begin + size - offset - bytes : begin + offset;
  }
};

/// Regions are used again and again: those of the operands first, then their pointer tables, then plain arguments.
constexpr int kTables = 4, kPlain = 8;
const Region& region(int index) {
  static const std::array<Region, 16> all;
  return all.at(std::size_t(index));
}

/// The part of a region that a call may see, and what it held.
struct Window {
  Byte *from, *to;
  std::vector<Byte> before;
  Window(int index, const Byte* first, std::size_t bytes) {
    const Region& r = region(index);
    from = r.begin + (std::size_t(first - r.begin) > kMargin ? std::size_t(first - r.begin) - kMargin : 0);
    to = r.begin + std::min(std::size_t(first - r.begin) + bytes + kMargin, Region::size);
    std::memset(from, kCanary, std::size_t(to - from));
  }
  void remember() { before.assign(from, to); }
  bool intact() const { return std::equal(from, to, before.begin()); }
};

int rounded_to_16(int bytes) { return (bytes + 15) / 16 * 16; }

/// Names the call that touched an unmapped page, and lets the fault happen again as if nobody had listened.
std::string running;
void report_faults() {
  static struct sigaction before;
  static const int installed = [] {
    struct sigaction action = {};
    action.sa_handler = [](int) {
      std::fprintf(stderr, "outside its operands: %s\n", running.c_str());
      sigaction(SIGSEGV, &before, nullptr);
    };
    return sigaction(SIGSEGV, &action, &before);
  }();
  static_cast<void>(installed);
}

template <class A>
Byte* bytes_of(std::vector<A>& v) {
  return reinterpret_cast<Byte*>(v.data());
}

}  // namespace

const Call& find(std::string_view name) {
  static const auto all = [] {
    std::unordered_map<std::string_view, const Call*> m;
    for (int i = 0; i < kCallCount; ++i) m[kCalls[i].name] = &kCalls[i];
    return m;
  }();
  const auto at = all.find(name);
  if (at == all.end()) stop("no such function", name);
  return *at->second;
}

const Function& function(std::string_view name) {
  for (const Function& f : catalog::functions())
    if (f.exported() == name) return f;
  stop("not in the catalog", name);
}

std::vector<const Function*> family(std::string_view operation, std::string_view formula) {
  std::vector<const Function*> list;
  for (const Function& f : catalog::functions())
    if ((operation.empty() || f.row->operation == operation) && f.row->formula.substr(0, formula.size()) == formula)
      list.push_back(&f);
  return list;
}

int Sizes::of(std::string_view name) const {
  if (std::isdigit(static_cast<unsigned char>(name[0]))) return std::atoi(std::string(name).c_str());
  for (const auto& [key, value] : list)
    if (key == name) return value;
  return 1;
}

const std::vector<Memory>& memories() {
  static const std::vector<Memory> all = [] {
    std::vector<Memory> list;
    const auto uniform = [&](Place p) { list.push_back({p, p, p, p}); };
    for (const Spread s : {Spread::tight, Spread::slots, Spread::padded, Spread::row_mixed, Spread::spaced, Spread::columns,
                           Spread::interleaved})
      for (const bool at_end : {false, true}) uniform({s, 0, at_end});
    for (const int offset : {3, 4, 8}) uniform({Spread::tight, offset});
    uniform({Spread::interleaved, 1});
    list.push_back({Place{Spread::slots}, {Spread::slots, 8}, {Spread::slots}, {Spread::slots}});
    list.push_back({Place{Spread::tight, 4}, {Spread::padded}, {Spread::row_mixed, 5}, {Spread::slots}});
    list.push_back({Place{Spread::interleaved}, {Spread::columns}, {Spread::spaced, 7}, {Spread::tight}});
    list.push_back({Place{Spread::padded}, {Spread::spaced, 0, true}, {Spread::tight, 0, true}, {Spread::tight}});
    list.push_back({Place{Spread::interleaved}, {Spread::tight}, {Spread::interleaved}, {Spread::tight}});
    return list;
  }();
  return all;
}

std::vector<Case> cases(const Function& f, const Sides& larger) {
  static const Sides matrices = {{1, 1},   {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7}, {8, 8}, {9, 9},
                                 {12, 12}, {3, 4}, {6, 5}, {5, 6}, {2, 5}, {7, 3}, {1, 4}, {4, 1}, {33, 5}};
  static const Sides vectors = {{1, 1}, {2, 1}, {3, 1}, {4, 1},  {5, 1},  {6, 1},
                                {7, 1}, {8, 1}, {9, 1}, {16, 1}, {33, 1}, {100, 1}};
  constexpr int counts[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 17, 64};
  Sides sides = f.operands[0].matrix ? matrices : vectors;
  sides.insert(sides.end(), larger.begin(), larger.end());
  std::vector<Case> list;
  for (const auto& [w, h] : sides) {
    for (const Memory& memory : memories())
      list.push_back({w, h, w * h > 200 ? 1 + int(list.size()) % 3 : counts[list.size() * 4 % std::size(counts)], memory});
    if (w > 6 || h > 6 || !f.array()) continue;
    for (const int count : counts)
      for (const std::size_t m : {std::size_t(0), list.size() % memories().size()})
        list.push_back({w, h, count, memories()[m]});
  }
  return list;
}

Scene::Scene(const Function& function, const Sizes& s, const Memory& m, int source)
    : f(function), sizes(s), memory(m), in_place(source) {
  for (std::size_t o = 0; o < f.operands.size(); ++o) placed.push_back(place(f.operands[o], memory.at(o), int(o)));
  if (in_place >= 0) placed.back() = placed[in_place];
}

Scene::Placed Scene::place(const catalog::Operand& operand, const Place& where, int index) {
  Placed p;
  const int E = f.element_size();
  const int r = p.rows = operand.constants ? 1 : sizes.of(operand.rows);
  const int c = p.columns = operand.constants ? 1 : sizes.of(operand.columns);
  const int n = p.count = operand.array ? sizes.of("count") : 1;
  const auto strides = [&]() -> std::array<int, 3> {
    const int slot = rounded_to_16(c * E);
    switch (where.spread) {
      case Spread::tight: return {r * c * E, c * E, E};
      case Spread::slots: return {r * slot, slot, E};
      case Spread::padded: return {r * (c + 3) * E + 5 * E, (c + 3) * E, E};
      case Spread::row_mixed: return {c * E, n * c * E, E};
      case Spread::spaced: return {r * (3 * c + 1) * E + 2 * E, (3 * c + 1) * E, 3 * E};
      case Spread::columns: return {r * c * E, E, r * E};
      default:  // interleaved; a single column is contiguous all the same
        return {E, c * n * E, c == 1 ? E : n * E};
    }
  };
  p.strides = strides();
  // With one object these functions do not look at the distance to the next.
  if (n == 1 && f.order.find('G') != f.order.npos) p.strides[0] = std::array{0, 3, E, -1}[std::size_t(r + c) % 4];
  p.shift = operand.store == Store::strided ? 0 : (3 + 2 * index) * E;
  if (operand.store == Store::list) p.objects = Random(n + index).permutation(n);
  if (operand.store == Store::table) p.elements = Random(r * c + index).permutation(r * c);
  p.bytes = std::size_t(n - 1) * p.strides[0] + (r - 1) * p.strides[1] + (c - 1) * p.strides[2] + E;
  p.base = region(index).place(p.bytes, where.offset, where.at_end);
  return p;
}

Byte* Scene::at(const Placed& p, int k, int element) const {
  if (!p.objects.empty()) k = p.objects[k];
  if (!p.elements.empty()) element = p.elements[element];
  return p.base + k * p.strides[0] + element / p.columns * p.strides[1] + element % p.columns * p.strides[2];
}

bool Scene::contiguous() const {
  return std::all_of(f.arguments.begin(), f.arguments.end(), [&](const catalog::Argument& a) {
    return a.kind != Kind::stride || a.level != 2 || placed[a.operand].strides[2] == f.element_size();
  });
}

std::vector<Road> Scene::roads(const std::vector<int>& teams) const {
  std::vector<Road> list;
  const bool first = contiguous();
  const catalog::Kernel* const chosen = f.kernels.empty() ? nullptr : first ? &f.kernels.front() : &f.kernels.back();
  list.push_back({&find(f.exported()), chosen, false, 1, this});
  for (const catalog::Kernel& k : f.kernels)
    if (first || !k.contiguous) list.push_back({&find(k.symbol), &k, true, 1, this});
  if (!f.driver().empty())
    for (const int team : teams) list.push_back({&find(f.driver()), chosen, false, team, this});
  return list;
}

template <class T>
ZelStatus Scene::run(const Road& road, Data<T>& data) {
  std::vector<Window> windows;
  struct Output {
    Byte *memory, *data;
    std::size_t bytes;
  };
  std::vector<Output> outputs;
  std::vector<T> scratch;
  int plain = 0;

  std::vector<Byte*> pointers;  // of the operands: first element or table
  for (std::size_t o = 0; o < placed.size(); ++o) {
    const Placed& p = placed[o];
    const Store store = f.operands[o].store;
    const int size = p.rows * p.columns;
    if (data.operands[o].size() != std::size_t(size) * p.count) stop("wrong number of elements for", f.name);
    if (in_place < 0 || o + 1 < placed.size()) windows.emplace_back(int(o), p.base, p.bytes);
    for (int e = 0; e < size * p.count; ++e) {
      Byte* const element = at(p, e / size, e % size);
      std::memcpy(element, &data.operands[o][e], sizeof(T));
      if (!f.operands[o].source) outputs.push_back({element, bytes_of(data.operands[o]) + e * sizeof(T), sizeof(T)});
    }
    pointers.push_back(p.base);
    if (store == Store::strided) continue;
    const std::size_t entries = store == Store::list ? p.count : size, bytes = entries * sizeof(void*);
    pointers.back() = region(kTables + o).place(bytes, 0, true);
    windows.emplace_back(int(kTables + o), pointers.back(), bytes);
    for (std::size_t e = 0; e < entries; ++e) {
      const Byte* const entry = (store == Store::list ? at(p, int(e), 0) : at(p, 0, int(e))) - p.shift;
      std::memcpy(pointers.back() + e * sizeof entry, &entry, sizeof entry);
    }
  }

  const auto put = [&](const catalog::Argument& a, auto& array) {
    const std::size_t bytes = array.size() * sizeof(array[0]);
    const int index = kPlain + plain++;
    Byte* const first = region(index).place(bytes, memory[0].offset, memory[0].at_end);
    windows.emplace_back(index, first, bytes);
    std::memcpy(first, array.data(), bytes);
    if (!a.source || a.name == "pBuffer") outputs.push_back({first, bytes_of(array), bytes});
    return first;
  };
  std::vector<Value> values;
  for (const catalog::Argument& a : f.arguments) {
    if (road.direct && !road.kernel->takes(a)) continue;
    Value v;
    if (a.kind == Kind::pointer && a.operand >= 0) v.p = pointers[a.operand];
    else if (a.name == "pBuffer") v.p = put(a, scratch = data.arrays.at(a.name));
    else if (a.type.find("int*") != a.type.npos) v.p = put(a, data.indices.at(a.name));
    else if (a.kind == Kind::pointer) v.p = put(a, data.arrays.at(a.name));
    else if (a.kind == Kind::value) v.x = data.values.at(a.name);
    else if (a.kind == Kind::shift) v.i = placed[a.operand].shift;
    else if (a.kind == Kind::stride) v.i = placed[a.operand].strides[a.level];
    else v.i = sizes.of(a.name);
    values.push_back(v);
  }

  for (Window& w : windows) w.remember();
  use_threads(road.team);
  report_faults();
  running = describe(road);
  const ZelStatus status = road.call->call(values.data());
  // The results go to the data, and what stood there back to memory, which must then be as it was.
  for (const Output& o : outputs) std::swap_ranges(o.memory, o.memory + o.bytes, o.data);
  for (const Window& w : windows)
    if (!w.intact()) ADD_FAILURE() << describe(road) << "\nmemory that belongs to no destination element was written";
  return status;
}

std::string Scene::describe(const Road& road) const {
  std::string text = road.call->name;
  for (const auto& [name, value] : sizes.list) text += " " + std::string(name) + "=" + std::to_string(value);
  text += ", threads " + std::to_string(road.team) + (in_place >= 0 ? ", in place of " + std::to_string(in_place) : "");
  for (const Placed& p : placed)
    text += "; strides " + std::to_string(p.strides[0]) + " " + std::to_string(p.strides[1]) + " " +
            std::to_string(p.strides[2]) + " at " + std::to_string(std::uintptr_t(p.base) % 64) + " mod 64";
  return text;
}

std::vector<Stretch> stretches(int count, int team) {
  if (count < team) return {{0, count}};
  std::vector<Stretch> list;
  for (int t = 0, first = 0; t < team; ++t) {
    const int n = count / team + (t < count % team);
    list.push_back({first, n});
    first += n;
  }
  return list;
}

void use_threads(int team) {
  // A team larger than the machine must not spin while it waits.
  static const bool passive = [] { return kmp_set_blocktime(0), true; }();
  static_cast<void>(passive);
  zelSetNumThreads(team);
}

namespace {

template <class T>
void compare(const std::string& name, const std::vector<T>& got, const std::vector<T>& want, bool nan_bits, std::string& out) {
  for (std::size_t e = 0; e < want.size() && out.empty(); ++e) {
    if (std::memcmp(&got[e], &want[e], sizeof(T)) == 0) continue;
    if (!nan_bits && got[e] != got[e] && want[e] != want[e]) continue;
    char text[160];
    std::snprintf(text, sizeof text, "%s, element %zu: %a (%.9g), expected %a (%.9g)", name.c_str(), e, double(got[e]),
                  double(got[e]), double(want[e]), double(want[e]));
    out = text;
  }
}

}  // namespace

template <class T>
std::string difference(const Data<T>& got, const Data<T>& want, bool nan_bits) {
  std::string out;
  for (std::size_t o = 0; o < want.operands.size(); ++o)
    compare("operand " + std::to_string(o), got.operands[o], want.operands[o], nan_bits, out);
  for (const auto& [name, array] : want.indices) compare(std::string(name), got.indices.at(name), array, true, out);
  for (const auto& [name, array] : want.arrays) compare(std::string(name), got.arrays.at(name), array, nan_bits, out);
  return out;
}

std::vector<int> Random::permutation(int n) {
  std::vector<int> p(static_cast<std::size_t>(n));
  std::iota(p.begin(), p.end(), 0);
  for (int i = n - 1; i > 0; --i) std::swap(p[i], p[below(i + 1)]);
  return p;
}

template ZelStatus Scene::run(const Road&, Data<float>&);
template ZelStatus Scene::run(const Road&, Data<double>&);
template std::string difference(const Data<float>&, const Data<float>&, bool);
template std::string difference(const Data<double>&, const Data<double>&, bool);

}  // namespace zelm::test
