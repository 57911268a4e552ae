// frame.cpp: working sets, the comparison of results, and the clock.
#include "frame.hpp"

#include <benchmark/benchmark.h>
#include <omp.h>
#include <sys/mman.h>
#include <unistd.h>
#include <zelcore.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <utility>

namespace zelm::bench {
namespace {

constexpr std::size_t kLine = 64;

std::size_t round_up(std::size_t n, std::size_t to) { return (n + to - 1) / to * to; }

bool among(Set set, const std::vector<Set>& sets) { return std::find(sets.begin(), sets.end(), set) != sets.end(); }

// Memory

/// One mapping for all working sets, which grows: pages that were written once stay in place.
class Arena {
 public:
  /// Room for `bytes`; what was there before is lost.
  char* take(std::size_t bytes) {
    if (bytes > size_) {
      if (base_) munmap(base_, size_);
      size_ = 0;
      void* const base = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
      if (base == MAP_FAILED) throw std::runtime_error("no memory for a working set of " + std::to_string(bytes) + " bytes");
      base_ = static_cast<char*>(base);
      size_ = bytes;
    }
    return base_;
  }

 private:
  char* base_ = nullptr;
  std::size_t size_ = 0;
};

Arena& arena() {
  static Arena it;
  return it;
}

/// The operands of one case in one working set.
class Arrays {
 public:
  Arrays(const Case& c, std::ptrdiff_t count) : case_(c), count_(count) {
    std::size_t end = 0;
    // Neighbours begin at different thirds of a page: a load waits for an earlier store whose address has the same low 12
    // bits, and arrays of whole pages would compete for the same cache sets.
    constexpr std::size_t kPage = 4096, kThird = 21 * kLine;
    std::size_t placed = 0;
    const auto place = [&](std::size_t bytes) {
      const std::size_t at = round_up(end, kPage) + placed++ * kThird % kPage;
      end = at + bytes;
      return at;
    };
    std::vector<std::size_t> tight, planes;
    for (const Operand& o : c.operands) {
      tight.push_back(place(objects(o) * object_bytes(o)));
      planes.push_back(o.layout == Layout::elements ? place(std::size_t(o.elements) * plane_bytes(o)) : 0);
    }
    char* const base = arena().take(end);
    tables_.resize(c.operands.size());
    for (std::size_t i = 0; i < c.operands.size(); ++i) {
      const Operand& o = c.operands[i];
      Array a{base + tight[i]};
      auto& table = tables_[i];
      if (o.layout == Layout::list) {
        for (std::size_t k = 0; k < objects(o); ++k) table.push_back(base + tight[i] + k * object_bytes(o));
      } else if (o.layout == Layout::elements) {
        for (int e = 0; e < o.elements; ++e) table.push_back(base + planes[i] + std::size_t(e) * plane_bytes(o));
      }
      if (!table.empty()) a.table = table.data();
      arrays_.push_back(a);
    }
    fill();
  }
  Arrays(const Arrays&) = delete;
  Arrays& operator=(const Arrays&) = delete;

  const Array* data() const { return arrays_.data(); }
  std::ptrdiff_t count() const { return count_; }

  char* tight(std::size_t operand, std::ptrdiff_t object) const {
    const Operand& o = case_.operands[operand];
    return static_cast<char*>(arrays_[operand].data) + (o.array ? object : 0) * std::ptrdiff_t(object_bytes(o));
  }

  /// Where zelm finds and leaves an element.
  char* element(std::size_t operand, std::ptrdiff_t object, int e) const {
    const Operand& o = case_.operands[operand];
    if (o.layout != Layout::elements) return tight(operand, object) + e * o.element_bytes;
    return static_cast<char*>(arrays_[operand].table[e]) + (o.array ? object : 0) * o.element_bytes;
  }

  /// Overwrites the outputs of an object with NaN, or -1.
  void spoil(std::ptrdiff_t object) const {
    for (std::size_t i = 0; i < case_.operands.size(); ++i) {
      const Operand& o = case_.operands[i];
      if (!o.output) continue;
      std::memset(tight(i, object), 0xff, object_bytes(o));
      for (int e = 0; e < o.elements; ++e) std::memset(element(i, object, e), 0xff, std::size_t(o.element_bytes));
    }
  }

 private:
  static std::size_t object_bytes(const Operand& o) { return std::size_t(o.elements) * std::size_t(o.element_bytes); }
  std::size_t objects(const Operand& o) const { return o.array ? std::size_t(count_) : 1; }
  /// An odd number of lines, so that the planes spread over all sets of a cache.
  std::size_t plane_bytes(const Operand& o) const {
    return (round_up(objects(o) * std::size_t(o.element_bytes), kLine) / kLine | 1) * kLine;
  }

  /// A few thousand objects are different, then they repeat.
  void fill() const {
    constexpr std::ptrdiff_t kDifferent = 4093;
    const std::ptrdiff_t different = std::min(count_, kDifferent);
    if (case_.fill) {
      case_.fill(arrays_.data(), int(different));
    } else {
      for (std::size_t i = 0; i < arrays_.size(); ++i) {
        const Operand& o = case_.operands[i];
        const std::size_t elements = std::min(objects(o), std::size_t(different)) * std::size_t(o.elements);
        if (o.output) continue;
        if (o.element_bytes == 4) fill_uniform(arrays_[i].of<float>(), elements);
        else fill_uniform(arrays_[i].of<double>(), elements);
      }
    }
    for (std::size_t i = 0; i < arrays_.size(); ++i) {
      const Operand& o = case_.operands[i];
      const std::size_t all = objects(o) * object_bytes(o),
                        first = std::min(objects(o), std::size_t(different)) * object_bytes(o);
      if (o.output) std::memset(arrays_[i].data, 0, all);
      else
        for (std::size_t done = first; done < all; done += first)
          std::memcpy(tight(i, 0) + done, tight(i, 0), std::min(first, all - done));
      if (o.layout == Layout::elements) {
        if (o.element_bytes == 4) interleave<std::uint32_t>(i);
        else interleave<std::uint64_t>(i);
      }
    }
  }

  template <class Bits>
  void interleave(std::size_t operand) const {
    const Operand& o = case_.operands[operand];
    for (int e = 0; e < o.elements; ++e) {
      Bits* const plane = static_cast<Bits*>(arrays_[operand].table[e]);
      const Bits* const from = arrays_[operand].of<Bits>() + e;
      for (std::size_t k = 0; k < objects(o); ++k) plane[k] = from[k * std::size_t(o.elements)];
    }
  }

  const Case& case_;
  const std::ptrdiff_t count_;
  std::vector<Array> arrays_;
  std::vector<std::vector<void*>> tables_;
};

// Competitors

struct Competitor {
  std::string name, isa;
  std::function<void()> run;
  int threads;
  bool aside = false;
  double residual = 0;
};

/// The rivals divide an array like zelm: evenly, a stretch of consecutive objects for each thread.
void divided(Loop loop, const Array* operands, std::ptrdiff_t count, int threads) {
  if (threads == 1) return loop(operands, 0, count);
#pragma omp parallel num_threads(threads)
  {
    const std::ptrdiff_t team = omp_get_num_threads(), t = omp_get_thread_num();
    const std::ptrdiff_t first = count * t / team, last = count * (t + 1) / team;
    loop(operands, first, last - first);
  }
}

std::vector<Competitor> rivals_of(const std::string& operation, const std::string& type, int n, const Array* operands,
                                  std::ptrdiff_t count, int threads) {
  std::vector<Competitor> found;
  const auto take = [&](const std::vector<Rival>& list, const char* isa) {
    for (const Rival& r : list)
      if (r.operation == operation && r.type == type && r.n == n)
        found.push_back({r.name, isa, [=, loop = r.loop] { divided(loop, operands, count, threads); }, threads, r.aside});
  };
  take(zelm_bench_rivals_sse(), "SSE4.2");
  take(zelm_bench_rivals_native(), "native");
  return found;
}

/// "memcpy" from the first operand to the last, or "memset" of the last: what moving the bytes takes.
Competitor mover(const std::string& name, const Case& c, const Arrays& arrays, int threads) {
  const Array operands[] = {arrays.data()[0], {}, arrays.data()[c.operands.size() - 1]};
  const Operand& o = c.operands.back();
  const std::ptrdiff_t floats = arrays.count() * o.elements * o.element_bytes / std::ptrdiff_t(sizeof(float));
  for (const Rival& r : zelm_bench_rivals_native())
    if (r.operation == "bandwidth" && r.name == name)
      return {name, "bandwidth", [=, loop = r.loop] { divided(loop, operands, floats, threads); }, threads};
  throw std::runtime_error("no loop for " + name);
}

Competitor zelm_of(const Case& c, const Arrays& arrays, int threads) {
  const auto run = [&c, &arrays, threads] {
    zelSetNumThreads(threads);
    if (const ZelStatus status = c.call(arrays.data(), int(arrays.count())); status != zelStsOk)
      throw std::runtime_error(c.function() + " returned " + std::to_string(status));
  };
  return {"zelm", "", run, threads};
}

// Agreement

class Left : public Results {
 public:
  Left(const Case& c, const Arrays& arrays, bool of_zelm) : case_(c), arrays_(arrays), of_zelm_(of_zelm) {}

  double at(int operand, std::ptrdiff_t object, int element) const override {
    const Operand& o = case_.operands[std::size_t(operand)];
    const char* const at = of_zelm_ || o.for_all ? arrays_.element(std::size_t(operand), object, element)
                                                 : arrays_.tight(std::size_t(operand), object) + element * o.element_bytes;
    if (o.index) return value<int>(at);
    return o.element_bytes == 4 ? double(value<float>(at)) : value<double>(at);
  }
  bool of_zelm() const override { return of_zelm_; }

 private:
  template <class T>
  static T value(const char* at) {
    T v;
    std::memcpy(&v, at, sizeof v);
    return v;
  }

  const Case& case_;
  const Arrays& arrays_;
  const bool of_zelm_;
};

std::vector<double> all_outputs(const Case& c, const Results& results, std::ptrdiff_t object) {
  std::vector<double> values;
  for (int i = 0; i < int(c.operands.size()); ++i)
    for (int e = 0; c.operands[std::size_t(i)].output && e < c.operands[std::size_t(i)].elements; ++e)
      values.push_back(results.at(i, object, e));
  return values;
}

/// Runs every competitor once and compares what they leave, in a sample of the objects that reaches to the last. Of those aside it
/// only notes the residual.
void check(const Case& c, const Arrays& arrays, std::vector<Competitor>& competitors) {
  constexpr std::ptrdiff_t kSample = 500;
  std::vector<std::ptrdiff_t> sample;
  const std::ptrdiff_t last = arrays.count() - 1, wanted = std::min(arrays.count(), kSample);
  for (std::ptrdiff_t s = 0; s < wanted; ++s) sample.push_back(wanted == 1 ? 0 : last * s / (wanted - 1));

  std::vector<std::vector<double>> expected;
  for (Competitor& competitor : competitors) {
    const bool ours = competitor.isa.empty();
    for (const auto k : sample) arrays.spoil(k);
    competitor.run();
    const Left left(c, arrays, ours);
    for (std::size_t s = 0; s < sample.size(); ++s) {
      if (c.residual) competitor.residual = std::max(competitor.residual, c.residual(left, sample[s]));
      if (competitor.aside) continue;
      const auto values = c.meaning ? c.meaning(left, sample[s]) : all_outputs(c, left, sample[s]);
      if (ours) {
        expected.push_back(values);
        continue;
      }
      double largest = c.terms;
      for (const double v : expected[s]) largest = std::max(largest, std::abs(v));
      for (std::size_t e = 0; e < values.size(); ++e)
        if (!(std::abs(values[e] - expected[s][e]) <= c.tolerance * largest)) {
          char text[200];
          std::snprintf(text, sizeof text, "%s, size %d, object %td of %td, value %zu: zelm has %.17g, %s (%s) has %.17g",
                        c.function().c_str(), c.n, sample[s], arrays.count(), e, expected[s][e], competitor.name.c_str(),
                        competitor.isa.c_str(), values[e]);
          throw std::runtime_error(text);
        }
    }
  }
}

// Time

struct Patience {
  int repetitions;
  double seconds;  // that a repetition takes at least
};

Patience patience(Set set) {
  switch (set) {
    case Set::call:
    case Set::l1: return {9, 1.5e-3};
    case Set::llc: return {7, 5e-3};
    case Set::memory: return {3, 1e-9};  // one run each
    case Set::many: return {9, 5e-3};
  }
  return {};
}

double median(std::vector<double> values) {
  const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// Keeps the time of every repetition, of this thread or by the clock on the wall, by the benchmark's name, which is
/// the competitor's number.
class Collector : public benchmark::BenchmarkReporter {
 public:
  Collector(std::size_t competitors, bool wall) : wall_(wall), seconds_(competitors) {}
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs)
      if (run.run_type == Run::RT_Iteration)
        seconds_[std::stoul(run.run_name.function_name)].push_back(
            (wall_ ? run.real_accumulated_time : run.cpu_accumulated_time) / double(run.iterations));
  }
  const std::vector<std::vector<double>>& seconds() const { return seconds_; }

 private:
  const bool wall_;
  std::vector<std::vector<double>> seconds_;
};

struct Measured {
  double seconds;  // the median
  bool steady;
};

/// Times of one run of each, their repetitions interleaved at random: what else the machine does meets all alike. One
/// thread is timed by its own clock, which stands still while another program has the processor.
std::vector<Measured> time(const std::vector<Competitor>& competitors, Patience p) {
  benchmark::ClearRegisteredBenchmarks();
  const bool wall = std::any_of(competitors.begin(), competitors.end(), [](const Competitor& k) { return k.threads > 1; });
  for (std::size_t i = 0; i < competitors.size(); ++i) {
    const Competitor& competitor = competitors[i];
    const auto registered = benchmark::RegisterBenchmark(std::to_string(i).c_str(),
                                                         [&competitor](benchmark::State& state) {
                                                           // Threads of an earlier team spin for a while, and might
                                                           // share a core with this one.
                                                           if (competitor.threads == 1) omp_pause_resource_all(omp_pause_soft);
                                                           for (auto _ : state) competitor.run();
                                                         })
                                ->Repetitions(p.repetitions)
                                ->MinTime(p.seconds);
    if (wall) registered->UseRealTime();
  }
  Collector collector(competitors.size(), wall);
  benchmark::RunSpecifiedBenchmarks(&collector, ".");
  std::vector<Measured> measured;
  for (const auto& seconds : collector.seconds()) {
    const double middle = median(seconds);
    measured.push_back({middle, middle <= 1.1 * *std::min_element(seconds.begin(), seconds.end())});
  }
  return measured;
}

double working_bytes(const Case& c) {
  double bytes = 0;
  for (const Operand& o : c.operands)
    if (o.array && !o.rivals_only) bytes += o.elements * o.element_bytes;
  return bytes;
}

std::ptrdiff_t objects_in(Set set, double bytes_per_object) {
  switch (set) {
    case Set::call: return 1000;
    case Set::many: return 100000;
    default: return std::max(std::ptrdiff_t(double(sizes().set[int(set)]) / bytes_per_object), std::ptrdiff_t(1));
  }
}

}  // namespace

const char* name(Set set) {
  switch (set) {
    case Set::call: return "call";
    case Set::l1: return "L1";
    case Set::llc: return "LLC";
    case Set::memory: return "memory";
    case Set::many: return "100k";
  }
  return "";
}

std::string Case::function() const {
  const char* const suffix[] = {"", "_L", "_P"};
  if (type.empty()) return operation;
  return "zelm" + operation + "_" + type + (layouts.empty() ? suffix[int(layout)] : "_" + layouts);
}

std::string Case::rival_operation() const { return layouts.empty() ? operation : operation + "_" + layouts; }

std::vector<Case>& cases() {
  static std::vector<Case> list;
  return list;
}

bool measure(Case c) {
  for (const Limit& limit : c.limits)
    for (const Set set : limit.sets)
      if (!among(set, c.sets)) c.sets.push_back(set);
  cases().push_back(std::move(c));
  return true;
}

template <class T>
void fill_uniform(T* to, std::size_t elements) {
  static std::uint64_t state = 0x9e3779b97f4a7c15;
  for (std::size_t e = 0; e < elements; ++e) {
    state = state * 6364136223846793005 + 1442695040888963407;  // Knuth's MMIX generator
    to[e] = T(std::int64_t(state) >> 11) * T(0x1p-52);
  }
}
template void fill_uniform(float*, std::size_t);
template void fill_uniform(double*, std::size_t);

Sizes sizes() {
  static const Sizes known = [] {
    const auto ask = [](int what, std::size_t fallback) {
      const long size = sysconf(what);
      return size > 0 ? std::size_t(size) : fallback;
    };
    constexpr std::size_t kMiB = std::size_t(1) << 20;
    Sizes s{};
    s.l1 = ask(_SC_LEVEL1_DCACHE_SIZE, 32 << 10);
    s.l2 = ask(_SC_LEVEL2_CACHE_SIZE, 1 * kMiB);
    s.llc = std::max(ask(_SC_LEVEL3_CACHE_SIZE, 16 * kMiB), s.l2);
    const std::size_t ram = std::size_t(sysconf(_SC_PHYS_PAGES)) * std::size_t(sysconf(_SC_PAGESIZE));
    s.set[int(Set::l1)] = s.l1 / 2;
    s.set[int(Set::llc)] = std::min(6 * s.l2, s.llc / 2);
    s.set[int(Set::memory)] = std::min({std::max(2 * s.llc, 128 * kMiB), 768 * kMiB, ram / 6});
    return s;
  }();
  return known;
}

std::vector<Bandwidth> measure_bandwidth(const std::vector<Set>& sets) {
  std::vector<Bandwidth> found;
  for (const Set set : {Set::l1, Set::llc, Set::memory}) {
    if (!among(set, sets)) continue;
    for (const auto& [label, arrays_moved] : {std::pair("read", 1), {"copy", 2}, {"triad", 3}, {"memcpy", 2}, {"memset", 1}}) {
      // Each fills the working set with the arrays it has; the others are one float.
      const bool reads = std::string(label) != "memset", writes = std::string(label) != "read";
      Case c{.operation = "bandwidth", .type = "32f", .n = 1};
      c.operands = {in<float>(1), in<float>(1), out<float>(1)};
      c.operands[0].array = reads;
      c.operands[1].array = arrays_moved == 3;
      c.operands[2].array = writes;
      const double bytes = working_bytes(c);
      const Arrays arrays(c, objects_in(set, bytes));
      for (const int threads : {1, 2})
        for (const Competitor& k : rivals_of("bandwidth", "32f", 1, arrays.data(), arrays.count(), threads))
          if (k.isa == "native" && k.name == label) {
            k.run();
            found.push_back(
                {label, set, threads, bytes * double(arrays.count()) / (time({k}, patience(set))[0].seconds * 1e9)});
          }
    }
  }
  std::stable_sort(found.begin(), found.end(), [](const Bandwidth& a, const Bandwidth& b) {
    return std::pair(a.set, a.threads) < std::pair(b.set, b.threads);
  });
  return found;
}

void measure_case(const Case& c, const std::vector<Set>& sets, const std::function<void(const Row&)>& done) {
  const double bytes = working_bytes(c);
  for (const Set set : c.sets) {
    if (!among(set, sets)) continue;
    const Arrays arrays(c, objects_in(set, bytes));
    const auto row = [&](int threads, const std::vector<Competitor>& competitors) {
      const std::vector<Measured> measured = time(competitors, patience(set));
      const double scale = 1e9 / double(arrays.count());
      Row r{&c,
            set,
            threads,
            arrays.count(),
            bytes,
            measured[0].seconds * scale,
            measured[0].steady,
            {},
            competitors[0].residual};
      for (std::size_t i = 1; i < competitors.size(); ++i) {
        const Competitor& k = competitors[i];
        r.rivals.push_back({k.name, k.isa, measured[i].seconds * scale, measured[i].steady, k.aside, k.residual});
      }
      done(r);
    };
    if (set == Set::many) {
      std::vector<Competitor> both = {zelm_of(c, arrays, 2), zelm_of(c, arrays, 1)};
      both[1].name = "one thread";
      row(2, both);
      continue;
    }
    for (const int threads : c.threads) {
      if (threads > 1 && (set == Set::l1 || (set == Set::memory && c.n != 4))) continue;
      std::vector<Competitor> competitors = {zelm_of(c, arrays, threads)};
      for (Competitor& k : rivals_of(c.rival_operation(), c.type, c.n, arrays.data(), arrays.count(), threads))
        competitors.push_back(std::move(k));
      check(c, arrays, competitors);
      for (const Limit& limit : c.limits)
        if (among(set, limit.sets) && (limit.rival == "memcpy" || limit.rival == "memset"))
          competitors.push_back(mover(limit.rival, c, arrays, threads));
      row(threads, competitors);
    }
  }
}

}  // namespace zelm::bench
