// The "Configuration" window.
#pragma once

#include <string>

#include "app/program.h"

namespace mardel {

window ConfigurationWindow(const settings& options, const std::string& configuration_path);

void OpenConfiguration(program& app);

}  // namespace mardel
