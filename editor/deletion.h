// Removing items from a design.
#pragma once

#include <cstdint>

#include "editor/design.h"
#include "editor/undo.h"

namespace mardel {

enum class recording { kOff, kOn };

// Each removes every record of that id, in list order; a block's nets follow it. The caller closes
// the undo group.
void DeleteBlock(design& document, undo_stack& undo, std::int64_t id, recording record);
void DeleteNote(design& document, undo_stack& undo, std::int64_t id, recording record);
// Closes the undo group after each net that it records: nets are taken back one by one.
void DeleteNet(design& document, undo_stack& undo, std::int64_t net_id, recording record);

// Every selected block or note in list order, recorded, with all others of its id. Blocks are
// deleted as by DeleteBlock, but in one pass.
void DeleteSelectedBlocks(design& document, undo_stack& undo);
void DeleteSelectedNotes(design& document, undo_stack& undo);

}  // namespace mardel
