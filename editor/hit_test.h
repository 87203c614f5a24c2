// What lies under the mouse. Hitting a block or a note brings it to the end of its list, where it
// is drawn on top; the design counts as unchanged.
#pragma once

#include <optional>

#include "editor/workspace.h"

namespace mardel {

// The topmost one at that point; null when there is none.
dvblock* HitBlock(design& document, point at);
textblock* HitNote(design& document, point at);

// The first in pin order.
std::optional<pin_hit> HitPin(const dvblock& block, point at);

}  // namespace mardel
