// What lies under the mouse.
#pragma once

#include <optional>

#include "editor/workspace.h"

namespace mardel {

template <class record>
struct raised {
  record* hit = nullptr;  // null when there is none
  bool is_moved = false;  // it was not on top before, so that the design must be redrawn
};

// The topmost block or note at that point is brought to the end of its list, where it is drawn on
// top; the design counts as unchanged.
raised<dvblock> RaiseBlockAt(design& document, point at);
raised<textblock> RaiseNoteAt(design& document, point at);

// The first pin there in pin order.
std::optional<pin_hit> HitPin(const dvblock& block, point at);

}  // namespace mardel
