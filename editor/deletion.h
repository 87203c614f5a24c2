// Removing items from a design.
#pragma once

#include <cstdint>
#include <unordered_set>

#include "editor/design.h"
#include "editor/undo.h"
#include "platform/hash.h"

namespace mardel {

enum class recording { kOff, kOn };

// Each removes every record of that id, in list order; a block's nets follow it. The caller closes
// the undo group.
void DeleteBlock(design& document, undo_stack& undo, std::int64_t id, recording record);
void DeleteNote(design& document, undo_stack& undo, std::int64_t id, recording record);
void DeleteNet(design& document, std::int64_t net_id);
// Every net that has one of the ids, in list order; each is an undo step of its own.
void DeleteNets(design& document, undo_stack& undo,
                const std::unordered_set<std::int64_t, id_hash>& net_ids);

// Every selected block or note in list order, recorded, with all others of its id. Blocks are
// deleted as by DeleteBlock, but in one pass.
void DeleteSelectedBlocks(design& document, undo_stack& undo);
void DeleteSelectedNotes(design& document, undo_stack& undo);

}  // namespace mardel
