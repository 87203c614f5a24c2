// What lies under the mouse.
#pragma once

#include <optional>

#include "editor/workspace.h"

namespace mardel {

// The topmost block or note at that point is brought to the end of its list, where it is drawn on
// top; the design counts as unchanged. Null when there is none.
dvblock* RaiseBlockAt(design& document, point at);
textblock* RaiseNoteAt(design& document, point at);

// The first pin there in pin order.
std::optional<pin_hit> HitPin(const dvblock& block, point at);

}  // namespace mardel
