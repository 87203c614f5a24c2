// What the editor says in fields 0 to 2 of the status bar.
#pragma once

#include "editor/workspace.h"
#include "platform/ui.h"

namespace mardel {

void ClearStatus(canvas_view& canvas);
void ShowPosition(canvas_view& canvas, point at);
void ShowPin(canvas_view& canvas, const pin_hit& hit);

}  // namespace mardel
