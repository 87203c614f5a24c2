// The undo stack: before an edit each block, net or note that it adds, changes or removes is
// recorded; one group of records is one user action. There is no redo.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "editor/design.h"

namespace mardel {

// What an edit did to a record; each kind of record has actions of its own, all numbered through.
enum class block_action { kPlaced = 0, kChanged = 1, kDeleted = 2, kEdited = 3 };
enum class net_action { kMade = 4, kMoved = 5, kDeleted = 6 };
enum class note_action { kAdded = 7, kEdited = 8, kMoved = 9, kDeleted = 10 };
using edit_action = std::variant<block_action, net_action, note_action>;

struct undo_record {
  std::int64_t undo_group = 0;
  edit_action undo_action;
  std::string undo_xml;  // the block, net or note as an XML document
};

struct undo_stack {
  std::vector<undo_record> records;  // pushed and popped at the end
  std::int64_t group = 0;            // of the records pushed now
  std::int64_t changes = 0;          // grows with each user action, undo, and step of an arrow key
};

void Push(undo_stack& stack, const dvblock& block, block_action action);
void Push(undo_stack& stack, const net& wire, net_action action);
void Push(undo_stack& stack, const textblock& note, note_action action);
void CloseGroup(undo_stack& stack);

enum class undo_result { kStackEmpty, kRestored };

// Takes back the most recent group, last record first.
undo_result UndoLastGroup(undo_stack& stack, design& document);

}  // namespace mardel
