#include "editor/undo.h"

#include <algorithm>
#include <utility>

#include "editor/deletion.h"
#include "editor/snapshot.h"

namespace mardel {

namespace {

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
  // The first record of that id in list order; false when there is none.
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

  void Restore(const undo_record& record) {
    document_.has_selection = false;
    std::visit([&](auto action) { TakeBack(action, record.undo_xml); }, record.undo_action);
  }

 private:
  void TakeBack(block_action action, const std::string& xml);
  void TakeBack(net_action action, const std::string& xml);
  void TakeBack(note_action action, const std::string& xml);

  template <class record>
  void Overwrite(restored_list<record>& list, record snapshot) {
    const bool selected = snapshot.selected;
    if (list.Overwrite(std::move(snapshot)) && selected) document_.has_selection = true;
  }
  template <class record>
  void Insert(restored_list<record>& list, record snapshot) {
    if (snapshot.selected) document_.has_selection = true;
    list.Insert(std::move(snapshot));
  }

  undo_stack& stack_;
  design& document_;
  restored_list<dvblock> blocks_;
  restored_list<net> nets_;
  restored_list<textblock> texts_;
};

void restoration::TakeBack(block_action action, const std::string& xml) {
  dvblock block;
  if (!ReadSnapshot(xml, block)) return;
  switch (action) {
    case block_action::kPlaced:
      DeleteBlock(document_, stack_, block.id, recording::kOff);
      blocks_.ForgetPlaces();
      nets_.ForgetPlaces();
      return CloseGroup(stack_);
    case block_action::kChanged:
    case block_action::kEdited:
      return Overwrite(blocks_, std::move(block));
    case block_action::kDeleted:
      return Insert(blocks_, std::move(block));
  }
}

void restoration::TakeBack(net_action action, const std::string& xml) {
  net wire;
  if (!ReadSnapshot(xml, wire)) return;
  wire.color = kNetColour;
  wire.selected = false;
  switch (action) {
    case net_action::kMade:
      DeleteNet(document_, wire.net_id);
      return nets_.ForgetPlaces();
    case net_action::kMoved:
      return Overwrite(nets_, std::move(wire));
    case net_action::kDeleted:
      return Insert(nets_, std::move(wire));
  }
}

void restoration::TakeBack(note_action action, const std::string& xml) {
  textblock note;
  if (!ReadSnapshot(xml, note)) return;
  switch (action) {
    case note_action::kAdded:
      DeleteNote(document_, stack_, note.id, recording::kOff);
      return texts_.ForgetPlaces();
    case note_action::kEdited:
    case note_action::kMoved:
      return Overwrite(texts_, std::move(note));
    case note_action::kDeleted:
      return Insert(texts_, std::move(note));
  }
}

}  // namespace

void Push(undo_stack& stack, const dvblock& block, block_action action) {
  stack.records.push_back({stack.group, action, WriteSnapshot(block)});
}

void Push(undo_stack& stack, const net& wire, net_action action) {
  stack.records.push_back({stack.group, action, WriteSnapshot(wire)});
}

void Push(undo_stack& stack, const textblock& note, note_action action) {
  stack.records.push_back({stack.group, action, WriteSnapshot(note)});
}

void CloseGroup(undo_stack& stack) {
  ++stack.group;
  ++stack.changes;
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
  ++stack.changes;
  return undo_result::kRestored;
}

}  // namespace mardel
