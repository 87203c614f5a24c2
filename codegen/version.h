// The version of the program, as users see it.
#pragma once

#include <string_view>

namespace mardel {

// As the build names it, such as "2.1".
std::string_view VersionText();

}  // namespace mardel
