// The picture of a design as a file.
#pragma once

#include "app/command_line.h"

namespace mardel {

// Does verb::kRender; returns the process's exit status.
int RenderFile(const command_line& asked);

}  // namespace mardel
