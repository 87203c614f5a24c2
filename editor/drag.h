// One block or one note follows the mouse.
#pragma once

#include "editor/workspace.h"

namespace mardel {

// What is dragged is the last of its list, where the hit test of the press has put it.
void BeginBlockDrag(workspace& work, const dvblock& block, point at);
void DragBlock(workspace& work, const block_drag& hand, point at);
void BeginNoteDrag(workspace& work, const textblock& note, point at);
void DragNote(workspace& work, const note_drag& hand, point at);

}  // namespace mardel
