// main.cpp: zelm_bench, every built family against its rivals.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "frame.hpp"
#include "report.hpp"

namespace zelm::bench {
namespace {

constexpr char kUsage[] =
    "Usage: zelm_bench [--arrays SET,...] [--json FILE] [--list] [FUNCTION...]\n"
    "\n"
    "Times zelm beside Eigen and plain loops, after comparing their results.\n"
    "\n"
    "  FUNCTION      only functions whose name contains it: LUDecomp, zelmAdd_mama_32f (default: all)\n"
    "  --arrays SET  only these working sets, of call, L1, LLC, memory, 100k\n"
    "  --json FILE   all numbers (default: " ZELM_BENCH_JSON
    ")\n"
    "  --list        print the names of the functions and exit\n"
    "  --help        print this and exit\n"
    "\n"
    "Exit status 1 where results differ; no time is an error.\n";

struct Options {
  std::vector<std::string> functions;
  std::vector<Set> sets{std::begin(kSets), std::end(kSets)};
  std::string json = ZELM_BENCH_JSON;
  bool list = false, help = false;
};

std::vector<Set> parse_sets(const std::string& text) {
  std::vector<Set> sets;
  for (std::size_t at = 0; at <= text.size();) {
    const std::size_t end = std::min(text.find(',', at), text.size());
    const std::string wanted = text.substr(at, end - at);
    const auto known = std::find_if(std::begin(kSets), std::end(kSets), [&](Set s) { return wanted == name(s); });
    if (known == std::end(kSets)) throw std::runtime_error("--arrays knows call, L1, LLC, memory, 100k, not '" + wanted + "'");
    sets.push_back(*known);
    at = end + 1;
  }
  return sets;
}

Options parse(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    const auto value = [&] {
      if (++i == argc) throw std::runtime_error(argument + " needs a value");
      return std::string(argv[i]);
    };
    if (argument == "--help" || argument == "-h") options.help = true;
    else if (argument == "--list") options.list = true;
    else if (argument == "--json") options.json = value();
    else if (argument == "--arrays") options.sets = parse_sets(value());
    else if (argument.starts_with('-')) throw std::runtime_error("unknown option " + argument + "; try --help");
    else options.functions.push_back(argument);
  }
  return options;
}

std::vector<const Case*> selected(const std::vector<std::string>& functions) {
  std::vector<const Case*> chosen;
  for (const Case& c : cases())
    if (functions.empty() || std::any_of(functions.begin(), functions.end(),
                                         [&](const std::string& f) { return c.function().find(f) != std::string::npos; }))
      chosen.push_back(&c);
  for (const std::string& f : functions)
    if (std::none_of(chosen.begin(), chosen.end(), [&](const Case* c) { return c->function().find(f) != std::string::npos; }))
      throw std::runtime_error("no function's name contains '" + f + "'; try --list");
  return chosen;
}

void run(const Options& options) {
  const auto chosen = selected(options.functions);
  if (options.list) {
    std::string last;
    for (const Case* c : chosen)
      if (const std::string function = c->function(); function != last) std::puts((last = function).c_str());
    return;
  }
  char interleaved[] = "--benchmark_enable_random_interleaving=true", program[] = "zelm_bench";
  char* arguments[] = {program, interleaved, nullptr};
  int count = 2;
  benchmark::Initialize(&count, arguments);

  Report report(options.json);
  report.bandwidth(measure_bandwidth(options.sets));
  for (const Case* c : chosen) measure_case(*c, options.sets, [&](const Row& row) { report.row(row); });
  report.finish();
}

}  // namespace
}  // namespace zelm::bench

int main(int argc, char** argv) {
  try {
    const auto options = zelm::bench::parse(argc, argv);
    if (options.help) std::fputs(zelm::bench::kUsage, stdout);
    else zelm::bench::run(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "zelm_bench: %s\n", error.what());
    return 1;
  }
}
