// calls.cpp: calls that do nothing, for scale beside the calls for single objects.
#include "frame.hpp"

namespace zelm::bench {
namespace {

ZelStatus nothing() { return zelStsOk; }

/// With the arguments of zelmAdd_mm_32f.
ZelStatus nothing_of_eleven(const float*, int, int, const float*, int, int, float*, int, int, int, int) { return zelStsOk; }

// Through pointers of which the compiler cannot know where they lead: calls to another library.
ZelStatus (*volatile call_nothing)() = nothing;
decltype(nothing_of_eleven)* volatile call_nothing_of_eleven = nothing_of_eleven;

bool call(const char* name, std::function<ZelStatus(const Array*, int)> calls) {
  Case c{.operation = name, .type = "", .n = 4};
  c.operands = {single(in<float>(16)), single(in<float>(16)), single(out<float>(16))};
  c.call = calls;
  c.sets = {Set::call};
  c.threads = {1};
  return measure(c);
}

const bool all =
    call("(empty function)", repeated([](const Array*) { return call_nothing(); })) &&
    call("(empty function of 11 arguments)", repeated([](const Array* at) {
           return call_nothing_of_eleven(at[0].of<float>(), 16, 4, at[1].of<float>(), 16, 4, at[2].of<float>(), 16, 4, 4, 4);
         }));

}  // namespace
}  // namespace zelm::bench
