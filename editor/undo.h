// The undo stack: before an edit each item that it adds, changes or removes is recorded; one group
// of records is one user action. There is no redo.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "editor/design.h"

namespace mardel {

enum class undo_action {
  kBlockPlaced = 0,
  kBlockChanged = 1,
  kBlockDeleted = 2,
  kBlockEdited = 3,  // restored like kBlockChanged
  kNetMade = 4,
  kNetMoved = 5,
  kNetDeleted = 6,
  kNoteAdded = 7,
  kNoteEdited = 8,
  kNoteMoved = 9,
  kNoteDeleted = 10,
};

struct undo_record {
  std::int64_t undo_group = 0;
  undo_action action = undo_action::kBlockPlaced;
  std::string undo_xml;  // the item as an XML document, root named after its type
};

struct undo_stack {
  std::vector<undo_record> records;  // pushed and popped at the end
  std::int64_t group = 0;            // of the records pushed now
};

void PushBlock(undo_stack& stack, const dvblock& block, undo_action action);
void PushNet(undo_stack& stack, const net& wire, undo_action action);
void PushNote(undo_stack& stack, const textblock& note, undo_action action);
void CloseGroup(undo_stack& stack);

enum class undo_result { kStackEmpty, kRestored };

// Takes back the most recent group, last record first.
undo_result UndoLastGroup(undo_stack& stack, design& document);

}  // namespace mardel
