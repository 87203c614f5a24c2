// "Device Info and Parameters": sets the parameters of a block, or deletes it.
#pragma once

#include "editor/workspace.h"

namespace mardel {

void OpenDeviceDialog(workspace& work, const dvblock& block);

}  // namespace mardel
