// The whole selection follows the mouse or the arrow keys, and stops at the edges of the canvas.
#pragma once

#include "editor/workspace.h"
#include "platform/event.h"

namespace mardel {

void BeginGroupMove(workspace& work, point at);
void MoveGroup(workspace& work, group_move& hand, point at);

// A pixel, with Shift ten. As long as the key is held all belongs to one undo step.
void MoveByArrow(workspace& work, const canvas_arrow& arrow);

// Moves the selection of a design by that much, as far as the canvas goes. Returns its new top-left
// corner, where that is on the canvas.
point MoveSelection(design& document, point by);

}  // namespace mardel
