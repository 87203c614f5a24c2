// The whole selection follows the mouse, and stops at the edges of the canvas.
#pragma once

#include "editor/workspace.h"

namespace mardel {

void BeginGroupMove(workspace& work, point at);
void MoveGroup(workspace& work, group_move& hand, point at);

}  // namespace mardel
