// The "About Mardel" window.
#pragma once

#include <string>

#include "app/program.h"

namespace mardel {

window AboutWindow(int system_version_code, const std::string& processor);

void OpenAbout(program& app);

}  // namespace mardel
