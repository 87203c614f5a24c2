// "Device Info and Parameters": sets the parameters of a block, or deletes it.
#pragma once

#include "editor/workspace.h"

namespace mardel {

window DeviceWindow(const dvblock& block);

// On OK, while the window is open.
void ApplyDevice(workspace& work, const surroundings& outside);

}  // namespace mardel
