// "Pin Info and Nets": lists the nets of a pin in their colours, and deletes some of them.
#pragma once

#include "editor/workspace.h"

namespace mardel {

// The highlighted nets are those that are listed.
window PinWindow(const design& document, const pin_hit& hit);

// On OK, while the window is open. Each deleted net is an undo step of its own.
void DeleteCheckedNets(workspace& work, const surroundings& outside);

}  // namespace mardel
