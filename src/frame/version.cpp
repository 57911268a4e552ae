// version.cpp: the version query and the load-time hooks.
#include "companion/companion.hpp"
#include "zelm_types.h"

extern "C" {

extern const ZelLibVersion s_libVer_t = {
    7, 1, 1, 37466, {'p', '8', 0, 0}, "zelm SSE4.1/4.2 (p8)+", "7.1.1 (r37466)", "Sep 24 2012"};
extern const ZelLibVersion s_libVer = {
    7, 1, 1, 37466, {'p', '8', 0, 0}, "zelm SSE4.1/4.2 (p8)", "7.1.1 (r37466)", "Sep 24 2012"};

const ZelLibVersion* p8_zelmGetLibVersion() {
  constexpr int kSse42 = 128;
  return ownGetFeature(kSse42, 0) ? &s_libVer_t : &s_libVer;
}

int initialized = 0;

__attribute__((constructor)) void initializer() { initialized = 1; }
__attribute__((destructor)) void destructor() {}
}
