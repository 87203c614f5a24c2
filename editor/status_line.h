// What the editor says in fields 0 to 2 of the status bar.
#pragma once

#include "editor/workspace.h"
#include "platform/ui.h"

namespace mardel {

void ClearStatus(ui& desk);
void ShowPosition(ui& desk, point at);
void ShowPin(ui& desk, const pin_hit& hit);

}  // namespace mardel
