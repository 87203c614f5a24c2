// One block or one note follows the mouse.
#pragma once

#include "editor/workspace.h"

namespace mardel {

// The dragged one is the last of its list, where the hit test of the press has put it.
void BeginBlockDrag(workspace& work, point at);
void DragBlock(workspace& work, const surroundings& outside, point at);
void BeginNoteDrag(workspace& work, point at);
void DragNote(workspace& work, const surroundings& outside, point at);

}  // namespace mardel
