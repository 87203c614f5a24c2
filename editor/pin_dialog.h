// "Pin Info and Nets": lists the nets of a pin in their colours, and deletes some of them.
#pragma once

#include "editor/workspace.h"

namespace mardel {

// Highlights the nets of the pin until the window is closed.
void OpenPinDialog(workspace& work, const pin_hit& hit);

}  // namespace mardel
