// report.hpp: the table on standard output, the limits, and the JSON file.
#pragma once
#include <cstdio>
#include <string>
#include <vector>

#include "frame.hpp"

namespace zelm::bench {

class Report {
 public:
  /// Prints what was measured on, and by what. Throws std::runtime_error where the JSON file cannot be written.
  explicit Report(const std::string& json_file);
  ~Report();
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;

  void bandwidth(std::vector<Bandwidth>);
  void row(const Row&);
  /// The limits and whether they were kept, and writes the JSON file.
  void finish();

 private:
  struct Verdict {
    std::string text;  // "0.35 of SSE4.2"
    double share;      // measured ratio
    bool kept;
  };
  std::vector<Verdict> verdicts(const Row&) const;
  double reference(const Row&, const std::string& rival) const;  // ns, 0 where it was not measured
  void write_json() const;

  const std::string json_file_;
  std::FILE* const json_;
  const std::string when_, processor_;
  std::vector<Bandwidth> bandwidth_;
  std::vector<Row> rows_;
  std::string last_function_;
};

}  // namespace zelm::bench
