// rivals/enrolled.cpp: the list of a library's rivals, exported as ZELM_RIVALS, the name that the build gives it.
#include "rivals/rival.hpp"

namespace zelm::bench::rivals {

std::vector<Rival>& enrolled() {
  static std::vector<Rival> list;
  return list;
}

}  // namespace zelm::bench::rivals

const std::vector<zelm::bench::Rival>& ZELM_RIVALS() { return zelm::bench::rivals::enrolled(); }
