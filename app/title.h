// The title of the main window.
#pragma once

#include <string>

namespace mardel {

// `design_file` is the full path; "" gives the bare prefix.
std::string Title(const std::string& design_file);

}  // namespace mardel
