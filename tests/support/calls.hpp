// calls.hpp: every exported function, driver and kernel by its name, with the arguments as an array of values. The
// table is generated from the catalog.
#pragma once
#include <iterator>
#include <string>
#include <string_view>

#include "zelm_types.h"

namespace zelm::test {

union Value {
  void* p;
  int i;
  double x;
};

struct Call {
  const char* name;
  ZelStatus (*call)(const Value*);
};
extern const Call kCalls[];
extern const int kCallCount;

/// The call of that name; the test program stops where there is none.
const Call& find(std::string_view name);

}  // namespace zelm::test
