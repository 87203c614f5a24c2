// Parts of designs as designs of their own.
#pragma once

#include "editor/workspace.h"

namespace mardel {

// The selected blocks and notes, and the nets between two of those blocks.
design CopyOfSelection(const design& document);

// Adds all of `pasted` with new ids, beside what lies at the same places, as the selection, on top.
// One undo step.
void PasteDesign(workspace& work, design pasted);

}  // namespace mardel
