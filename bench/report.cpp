// report.cpp: the table on standard output, the limits, and the JSON file.
#include "report.hpp"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <fstream>
#include <map>
#include <stdexcept>

namespace zelm::bench {
namespace {

std::string now() {
  char text[32];
  const std::time_t t = std::time(nullptr);
  std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", std::gmtime(&t));
  return text;
}

/// What follows the first "name :" of a file like /proc/cpuinfo.
std::string field(const char* file, const std::string& name) {
  std::ifstream in(file);
  for (std::string line; std::getline(in, line);)
    if (line.starts_with(name))
      if (const auto colon = line.find(": "); colon != std::string::npos) return line.substr(colon + 2);
  return "unknown";
}

std::string first_line(const char* file) {
  std::ifstream in(file);
  std::string line;
  std::getline(in, line);
  return line;
}

std::string bytes(std::size_t n) {
  char text[32];
  if (n < (1 << 20)) std::snprintf(text, sizeof text, "%zu KiB", n >> 10);
  else std::snprintf(text, sizeof text, "%zu MiB", n >> 20);
  return text;
}

const Timing* best(const Row& row, const char* isa) {
  const Timing* best = nullptr;
  for (const Timing& t : row.rivals)
    if (t.isa == isa && !t.aside && (!best || t.ns < best->ns)) best = &t;
  return best;
}

/// Whether all numbers that a row prints are to be relied on.
bool steady(const Row& row) {
  const Timing *const sse = best(row, "SSE4.2"), *const native = best(row, "native");
  return row.steady && (!sse || sse->steady) && (!native || native->steady);
}

}  // namespace

Report::Report(const std::string& json_file)
    : json_file_(json_file),
      json_(std::fopen(json_file.c_str(), "w")),
      when_(now()),
      processor_(field("/proc/cpuinfo", "model name")) {
  if (!json_) throw std::runtime_error("cannot write " + json_file + ": " + std::strerror(errno));
  const Sizes s = sizes();
  double load = 0;
  getloadavg(&load, 1);
  std::printf("%s, %ld processors, load %.2f, %s\n", processor_.c_str(), sysconf(_SC_NPROCESSORS_ONLN), load, when_.c_str());
  std::printf("caches: %s first level, %s second, %s last; transparent huge pages: %s\n", bytes(s.l1).c_str(),
              bytes(s.l2).c_str(), bytes(s.llc).c_str(), first_line("/sys/kernel/mm/transparent_hugepage/enabled").c_str());
  std::printf("working sets, all arrays of a call together: L1 %s, LLC %s, memory %s\n", bytes(s.set[int(Set::l1)]).c_str(),
              bytes(s.set[int(Set::llc)]).c_str(), bytes(s.set[int(Set::memory)]).c_str());
  std::printf(
      "rivals: Eigen's fixed-size types over Map, GLM, plain loops; compiled by clang %s with -O2, for SSE4.2 with\n"
      "  -msse4.2, native with -march=native; all on tight arrays in standard layout, also beside _L and _P\n",
      __clang_version__);
  std::printf(
      "times: medians of interleaved repetitions, processor time with one thread and wall time with two; ratio: time "
      "of\n"
      "  zelm over that of the faster rival\n");
}

Report::~Report() { std::fclose(json_); }

void Report::bandwidth(std::vector<Bandwidth> measured) {
  bandwidth_ = std::move(measured);
  if (bandwidth_.empty()) return;
  std::printf("\nBandwidth in GB/s, bytes read and written, native code\n");
  const Bandwidth* line = nullptr;
  for (const Bandwidth& b : bandwidth_) {
    if (!line || line->set != b.set || line->threads != b.threads)
      std::printf("%s  %-7s %d thread%s", line ? "\n" : "", zelm::bench::name(b.set), b.threads, b.threads == 1 ? " " : "s");
    std::printf("  %s %5.1f", b.name.c_str(), b.bytes_per_ns);
    line = &b;
  }
  std::printf("\n");
  std::fflush(stdout);
}

double Report::reference(const Row& row, const std::string& rival) const {
  if (rival == "ns") return 1;
  for (const Bandwidth& b : bandwidth_)
    if (b.name == rival && b.set == row.set && b.threads == row.threads &&
        (rival == "read" || rival == "copy" || rival == "triad"))
      return row.bytes / b.bytes_per_ns;
  double ns = 0;
  const auto candidate = [&](double t) { ns = ns == 0 ? t : std::min(ns, t); };
  for (const Timing& t : row.rivals)
    if (!t.aside && (rival == "any" || rival == t.isa || rival == t.name || rival == t.name + " " + t.isa)) candidate(t.ns);
  return ns;
}

std::vector<Report::Verdict> Report::verdicts(const Row& row) const {
  std::vector<Verdict> list;
  for (const Limit& limit : row.of->limits) {
    if (std::find(limit.sets.begin(), limit.sets.end(), row.set) == limit.sets.end()) continue;
    if (row.threads != 1 && row.set != Set::many) continue;
    const double reference_ns = reference(row, limit.rival);
    if (reference_ns == 0) continue;
    char text[64];
    std::snprintf(text, sizeof text, limit.rival == "ns" ? "%g %s" : "%g of %s", limit.ratio, limit.rival.c_str());
    const double share = row.ns / reference_ns;
    const bool near = !limit.or_near.empty() && row.ns <= 1.15 * reference(row, limit.or_near);
    list.push_back({text + (limit.or_near.empty() ? "" : " or 1.15 of " + limit.or_near), share, share <= limit.ratio || near});
  }
  return list;
}

void Report::row(const Row& row) {
  const std::string function = row.of->function();
  if (function != last_function_) {
    std::printf("\n%-38s zelm  best SSE4.2 rival      ratio  best native rival      ratio\n", function.c_str());
    std::printf(
        "   n  arrays  threads    objects       ns         ns                            ns                    GB/s  "
        "limits\n");
    last_function_ = function;
  }
  std::printf("%4d  %-7s %6d %10td %8.2f", row.of->n, zelm::bench::name(row.set), row.threads, row.count, row.ns);
  const auto rival = [&](const Timing* t) {
    if (t) std::printf("   %8.2f %-10s %5.2f", t->ns, t->name.c_str(), row.ns / t->ns);
    else std::printf("   %8s %-10s %5s", "-", "", "");
  };
  if (row.set == Set::many) {
    rival(&row.rivals[0]);
    rival(nullptr);
  } else {
    rival(best(row, "SSE4.2"));
    rival(best(row, "native"));
  }
  if (row.bytes > 0) std::printf("   %6.1f", row.bytes / row.ns);
  else std::printf("   %6s", "-");
  for (const Verdict& v : verdicts(row)) std::printf("  %s%s", v.text.c_str(), v.kept ? "" : " MISSED");
  std::printf("%s\n", steady(row) ? "" : "  unsteady");
  for (const Timing& t : row.rivals)
    if (t.aside)
      std::printf("      aside: %s for %s %.2f ns; residual %.1e, of zelm %.1e\n", t.name.c_str(), t.isa.c_str(), t.ns,
                  t.residual, row.residual);
  std::fflush(stdout);
  rows_.push_back(row);
}

void Report::finish() {
  struct Tally {
    int rows = 0, kept = 0;
    double worst = 0;
    std::string where;
  };
  // By function, limit and working set, in the order of the table.
  std::vector<std::pair<std::string, Tally>> tallies;
  for (const Row& row : rows_)
    for (const Verdict& v : verdicts(row)) {
      char key[120];
      std::snprintf(key, sizeof key, "%-28s %-7s at most %s", row.of->function().c_str(), zelm::bench::name(row.set),
                    v.text.c_str());
      auto at = std::find_if(tallies.begin(), tallies.end(), [&](const auto& t) { return t.first == key; });
      if (at == tallies.end()) at = tallies.insert(at, {key, {}});
      Tally& tally = at->second;
      ++tally.rows;
      tally.kept += v.kept;
      if (v.share > tally.worst) {
        tally.worst = v.share;
        tally.where = "size " + std::to_string(row.of->n);
      }
    }
  if (!tallies.empty()) std::printf("\nLimits, one thread unless told otherwise\n");
  int kept = 0;
  for (const auto& [key, tally] : tallies) {
    const bool all = tally.kept == tally.rows;
    kept += all;
    std::printf("  %-68s worst %6.2f at %s  %s", key.c_str(), tally.worst, tally.where.c_str(), all ? "kept" : "MISSED");
    if (!all) std::printf(" in %d of %d", tally.rows - tally.kept, tally.rows);
    std::printf("\n");
  }
  if (!tallies.empty()) std::printf("%d of %zu limits kept\n", kept, tallies.size());
  write_json();
  if (const auto n = std::count_if(rows_.begin(), rows_.end(), [](const Row& row) { return !steady(row); }))
    std::printf("%td of %zu rows unsteady: the median of the repetitions more than 10 %% above the shortest\n", n,
                rows_.size());
  std::printf("\n%zu rows in %s\n", rows_.size(), json_file_.c_str());
}

void Report::write_json() const {
  const Sizes s = sizes();
  std::fprintf(json_, "{\n\"context\": {\"date\": \"%s\", \"processor\": \"%s\", \"compiler\": \"clang %s\",\n", when_.c_str(),
               processor_.c_str(), __clang_version__);
  std::fprintf(json_, "  \"cache_bytes\": [%zu, %zu, %zu], \"set_bytes\": {\"L1\": %zu, \"LLC\": %zu, \"memory\": %zu}},\n",
               s.l1, s.l2, s.llc, s.set[int(Set::l1)], s.set[int(Set::llc)], s.set[int(Set::memory)]);
  std::fprintf(json_, "\"bandwidth\": [");
  const char* separator = "\n";
  for (const Bandwidth& b : bandwidth_) {
    std::fprintf(json_, "%s{\"name\": \"%s\", \"arrays\": \"%s\", \"threads\": %d, \"bytes_per_ns\": %.4g}", separator,
                 b.name.c_str(), zelm::bench::name(b.set), b.threads, b.bytes_per_ns);
    separator = ",\n";
  }
  std::fprintf(json_, "],\n\"rows\": [");
  separator = "\n";
  for (const Row& row : rows_) {
    std::fprintf(json_,
                 "%s{\"function\": \"%s\", \"n\": %d, \"arrays\": \"%s\", \"threads\": %d, \"objects\": %td, "
                 "\"bytes_per_object\": %g, \"ns_per_object\": %.5g, \"steady\": %s, \"rivals\": [",
                 separator, row.of->function().c_str(), row.of->n, zelm::bench::name(row.set), row.threads, row.count,
                 row.bytes, row.ns, steady(row) ? "true" : "false");
    separator = ",\n";
    const char* comma = "";
    for (const Timing& t : row.rivals) {
      std::fprintf(json_, "%s{\"name\": \"%s\", \"isa\": \"%s\", \"ns_per_object\": %.5g", comma, t.name.c_str(), t.isa.c_str(),
                   t.ns);
      if (t.aside) std::fprintf(json_, ", \"residual\": %.3g", t.residual);
      std::fprintf(json_, "}");
      comma = ", ";
    }
    std::fprintf(json_, "], \"limits\": [");
    comma = "";
    for (const Verdict& v : verdicts(row)) {
      std::fprintf(json_, "%s{\"at_most\": \"%s\", \"measured\": %.4g, \"kept\": %s}", comma, v.text.c_str(), v.share,
                   v.kept ? "true" : "false");
      comma = ", ";
    }
    std::fprintf(json_, "]}");
  }
  std::fprintf(json_, "]\n}\n");
  if (std::fflush(json_) != 0 || std::ferror(json_)) throw std::runtime_error("cannot write " + json_file_);
}

}  // namespace zelm::bench
