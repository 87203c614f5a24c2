#include "library/records.h"

#include <algorithm>
#include <array>

namespace mardel {

bool IsRegisterClass(std::string_view name) {
  constexpr std::array<std::string_view, 4> kClasses = {"MREG", "SFR", "CREG", "CONST"};
  return std::ranges::find(kClasses, name) != kClasses.end();
}

}  // namespace mardel
