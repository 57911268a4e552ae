// The public headers: zelm.h is what the catalog gives, and all compile on their own without a warning.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

namespace zelm::test {
namespace {

std::string text_of(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

TEST(Header, IsTheGeneratedOne) {
  const std::string committed = text_of(ZELM_SOURCE_DIR "/include/zelm.h");
  ASSERT_NE(committed.find("zelmAdd_mm_32f("), std::string::npos);
  EXPECT_TRUE(committed == text_of(ZELM_GENERATED_DIR "/zelm.h")) << "run `make header`";
}

TEST(Header, CompilesAsC99AndCxx11) {
  for (const std::string header : {"zelm.h", "zelm_types.h", "zelcore.h"}) {
    for (const std::string compiler : {ZELM_C_COMPILER " -std=c99 -x c", ZELM_CXX_COMPILER " -std=c++11 -x c++"}) {
      const std::string command = "echo '#include \"" + header + "\"' | " + compiler +
                                  " -Wall -Wextra -pedantic -Werror -fsyntax-only -I" ZELM_SOURCE_DIR "/include -";
      EXPECT_EQ(std::system(command.c_str()), 0) << command;
    }
  }
}

}  // namespace
}  // namespace zelm::test
