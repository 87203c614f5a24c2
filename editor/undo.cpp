#include "editor/undo.h"

#include <algorithm>
#include <utility>

#include "editor/deletion.h"
#include "editor/snapshot.h"

namespace mardel {

namespace {

enum class step { kDelete, kOverwrite, kInsert };

std::int64_t IdOf(const auto& record) {
  return record.id;
}
std::int64_t IdOf(const net& wire) {
  return wire.net_id;
}

// A list, with its records by their ids while none comes or goes: a group overwrites many.
template <class record>
class restored_list {
 public:
  explicit restored_list(cursor_list<record>& list) : list_(list) {}

  void Insert(record snapshot) {
    by_id_.clear();
    list_.InsertAfterCurrent(std::move(snapshot));
  }
  // False when there is no record of that id. The first in list order counts.
  bool Overwrite(record snapshot) {
    if (by_id_.empty()) FindPlaces();
    const std::int64_t id = IdOf(snapshot);
    const auto found = std::ranges::lower_bound(by_id_, id, {}, &place::id);
    if (found == by_id_.end() || found->id != id) return false;
    *found->at = std::move(snapshot);
    return true;
  }
  void ForgetPlaces() { by_id_.clear(); }

 private:
  struct place {
    std::int64_t id = 0;
    record* at = nullptr;
  };

  void FindPlaces() {
    by_id_.reserve(list_.size());
    for (record& each : list_) by_id_.push_back({IdOf(each), &each});
    std::ranges::stable_sort(by_id_, {}, &place::id);
  }

  cursor_list<record>& list_;
  std::vector<place> by_id_;
};

class restoration {
 public:
  restoration(undo_stack& stack, design& document)
      : stack_(stack),
        document_(document),
        blocks_(document.blocks),
        nets_(document.nets),
        texts_(document.texts) {}

  void Restore(const undo_record& record);

 private:
  void RestoreBlock(const undo_record& record, step how);
  void RestoreNet(const undo_record& record, step how);
  void RestoreNote(const undo_record& record, step how);

  undo_stack& stack_;
  design& document_;
  restored_list<dvblock> blocks_;
  restored_list<net> nets_;
  restored_list<textblock> texts_;
};

void restoration::RestoreBlock(const undo_record& record, step how) {
  dvblock block;
  if (!ReadSnapshot(record.undo_xml, block)) return;
  if (how == step::kDelete) {
    DeleteBlock(document_, stack_, block.id, recording::kOff);
    blocks_.ForgetPlaces();
    nets_.ForgetPlaces();
    CloseGroup(stack_);
    return;
  }
  const bool selected = block.selected;
  if (how == step::kInsert) {
    blocks_.Insert(std::move(block));
  } else if (!blocks_.Overwrite(std::move(block))) {
    return;
  }
  if (selected) document_.has_selection = true;
}

void restoration::RestoreNet(const undo_record& record, step how) {
  net wire;
  if (!ReadSnapshot(record.undo_xml, wire)) return;
  wire.color = kNetColour;
  wire.selected = false;
  if (how == step::kDelete) {
    DeleteNet(document_, stack_, wire.net_id, recording::kOff);
    nets_.ForgetPlaces();
  } else if (how == step::kInsert) {
    nets_.Insert(std::move(wire));
  } else {
    nets_.Overwrite(std::move(wire));
  }
}

void restoration::RestoreNote(const undo_record& record, step how) {
  textblock note;
  if (!ReadSnapshot(record.undo_xml, note)) return;
  if (how == step::kDelete) {
    DeleteNote(document_, stack_, note.id, recording::kOff);
    texts_.ForgetPlaces();
    return;
  }
  const bool selected = note.selected;
  if (how == step::kInsert) {
    texts_.Insert(std::move(note));
  } else if (!texts_.Overwrite(std::move(note))) {
    return;
  }
  if (selected) document_.has_selection = true;
}

void restoration::Restore(const undo_record& record) {
  document_.has_selection = false;
  switch (record.action) {
    case undo_action::kBlockPlaced:
      return RestoreBlock(record, step::kDelete);
    case undo_action::kBlockChanged:
    case undo_action::kBlockEdited:
      return RestoreBlock(record, step::kOverwrite);
    case undo_action::kBlockDeleted:
      return RestoreBlock(record, step::kInsert);
    case undo_action::kNetMade:
      return RestoreNet(record, step::kDelete);
    case undo_action::kNetMoved:
      return RestoreNet(record, step::kOverwrite);
    case undo_action::kNetDeleted:
      return RestoreNet(record, step::kInsert);
    case undo_action::kNoteAdded:
      return RestoreNote(record, step::kDelete);
    case undo_action::kNoteEdited:
    case undo_action::kNoteMoved:
      return RestoreNote(record, step::kOverwrite);
    case undo_action::kNoteDeleted:
      return RestoreNote(record, step::kInsert);
  }
}

}  // namespace

void PushBlock(undo_stack& stack, const dvblock& block, undo_action action) {
  stack.records.push_back({stack.group, action, WriteSnapshot(block)});
}

void PushNet(undo_stack& stack, const net& wire, undo_action action) {
  stack.records.push_back({stack.group, action, WriteSnapshot(wire)});
}

void PushNote(undo_stack& stack, const textblock& note, undo_action action) {
  stack.records.push_back({stack.group, action, WriteSnapshot(note)});
}

void CloseGroup(undo_stack& stack) {
  ++stack.group;
}

undo_result UndoLastGroup(undo_stack& stack, design& document) {
  if (stack.records.empty()) return undo_result::kStackEmpty;
  const std::int64_t group = stack.records.back().undo_group;
  restoration from_snapshots(stack, document);
  while (!stack.records.empty() && stack.records.back().undo_group == group) {
    const undo_record record = std::move(stack.records.back());
    stack.records.pop_back();
    from_snapshots.Restore(record);
  }
  document.unsaved_changes = true;
  return undo_result::kRestored;
}

}  // namespace mardel
