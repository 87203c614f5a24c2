// What the menus do to the design: placing a block, taking back.
#pragma once

#include "editor/workspace.h"
#include "library/records.h"

namespace mardel {

// A new block of this definition at (10, 10), on top.
void PlaceBlock(workspace& work, const blockdef& definition);

void Undo(workspace& work);

}  // namespace mardel
