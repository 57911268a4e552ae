// main.cpp: writes everything that the catalog yields into one directory. Files whose text did not change are left alone, so
// that only what a change of the catalog touches is compiled again.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "generate/writer.hpp"

namespace {

using namespace zelm;

class Directory {
 public:
  explicit Directory(std::filesystem::path to) : path(std::move(to)) { std::filesystem::create_directories(path); }

  void write(const std::string& name, const std::string& text) {
    written.insert(name);
    std::ifstream old(path / name, std::ios::binary);
    if (old && std::string(std::istreambuf_iterator<char>(old), {}) == text) return;
    std::ofstream out(path / name, std::ios::binary);
    if (!(out << text).flush()) throw std::runtime_error("cannot write " + (path / name).string());
  }
  /// Removes what an earlier catalog left.
  void sweep() const {
    for (const auto& file : std::filesystem::directory_iterator(path))
      if (file.is_regular_file() && !written.count(file.path().filename().string())) std::filesystem::remove(file);
  }

 private:
  std::filesystem::path path;
  std::set<std::string> written;
};

void generate_all(const char* target) {
  Directory out(target);
  const auto units = generate::built_units();
  std::string sources = "stubs.S", drivers;
  for (const auto& u : units) {
    out.write(u.name + ".hpp", generate::unit_declarations(u));
    out.write(u.name + ".cpp", generate::unit_code(u));
    sources += " " + u.name + ".cpp";
    if (!u.drivers()) continue;
    out.write(u.name + "_drivers.cpp", generate::unit_drivers(u));
    drivers += " " + u.name + "_drivers.cpp";
  }
  int built = 0;
  for (const auto& f : catalog::functions()) built += f.built();
  out.write("zelm.h", generate::header());
  out.write("exports.map", generate::exports());
  out.write("stubs.S", generate::stubs());
  out.write("internals.hpp", generate::internals(units));
  out.write("calls.cpp", generate::test_calls(units));
  out.write("units.cmake", "set(ZELM_GENERATED_SOURCES " + sources + ")\nset(ZELM_GENERATED_DRIVERS" + drivers +
                               ")\nset(ZELM_GENERATED_TEST_SOURCES calls.cpp)\nset(ZELM_BUILT " + std::to_string(built) +
                               ")\nset(ZELM_TOTAL " + std::to_string(catalog::kExports) + ")\n");
  out.sweep();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s DIRECTORY\n", argv[0]);
    return 1;
  }
  try {
    generate_all(argv[1]);
  } catch (const std::exception& e) {
    std::fprintf(stderr, "%s: %s\n", argv[0], e.what());
    return 1;
  }
}
