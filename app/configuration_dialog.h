// The "Configuration" window.
#pragma once

#include <string>

#include "app/program.h"
#include "platform/event.h"

namespace mardel {

window ConfigurationWindow(const settings& options, const std::string& configuration_path);

void OpenConfiguration(program& app);
// For events of app.configuration_window only.
void HandleConfigurationGadget(program& app, const gadget_used& used);
void CloseConfiguration(program& app);

}  // namespace mardel
