#include "editor/deletion.h"

#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/hash.h"

namespace mardel {

namespace {

// Deletes from the first to the last what `is_doomed` holds for; `before` sees each one first.
template <class record, class condition, class step>
void DeleteEach(cursor_list<record>& list, condition is_doomed, step before) {
  for (auto element = list.begin(); element != list.end();) {
    if (!is_doomed(*element)) {
      ++element;
      continue;
    }
    before(*element);
    element = list.Delete(element);
  }
}

struct listed_net {
  cursor_list<net>::iterator at;
  std::size_t place = 0;  // in the list
};

// What goes with one id, in list order.
struct doomed {
  std::vector<cursor_list<dvblock>::iterator> blocks;
  std::vector<listed_net> nets;
};

// Of the selected blocks.
using doomed_by_id = std::unordered_map<std::int64_t, doomed, id_hash>;

doomed_by_id FindDoomed(design& document) {
  doomed_by_id found;
  for (const dvblock& block : document.blocks) {
    if (block.selected) found.try_emplace(block.id);
  }
  for (auto block = document.blocks.begin(); block != document.blocks.end(); ++block) {
    const auto with = found.find(block->id);
    if (with != found.end()) with->second.blocks.push_back(block);
  }
  std::size_t place = 0;
  for (auto wire = document.nets.begin(); wire != document.nets.end(); ++wire, ++place) {
    const auto first = found.find(wire->id_1);
    if (first != found.end()) first->second.nets.push_back({wire, place});
    if (wire->id_1 == wire->id_2) continue;
    const auto second = found.find(wire->id_2);
    if (second != found.end()) second->second.nets.push_back({wire, place});
  }
  return found;
}

std::vector<std::int64_t> SelectedIds(const design& document) {
  std::vector<std::int64_t> ids;
  for (const dvblock& block : document.blocks) {
    if (block.selected) ids.push_back(block.id);
  }
  return ids;
}

}  // namespace

void DeleteSelectedBlocks(design& document, undo_stack& undo) {
  doomed_by_id found = FindDoomed(document);
  std::vector<bool> is_gone(document.nets.size());  // with the block at its other end
  for (const std::int64_t id : SelectedIds(document)) {
    // Nothing is left of an id that several blocks had.
    const doomed together = std::exchange(found.at(id), {});
    for (const auto block : together.blocks) {
      PushBlock(undo, *block, undo_action::kBlockDeleted);
      document.blocks.Delete(block);
    }
    for (const auto& [wire, place] : together.nets) {
      if (is_gone[place]) continue;
      is_gone[place] = true;
      PushNet(undo, *wire, undo_action::kNetDeleted);
      document.nets.Delete(wire);
    }
  }
}

void DeleteBlock(design& document, undo_stack& undo, std::int64_t id, recording record) {
  const bool is_recorded = record == recording::kOn;
  DeleteEach(
      document.blocks, [id](const dvblock& block) { return block.id == id; },
      [&](const dvblock& block) {
        if (is_recorded) PushBlock(undo, block, undo_action::kBlockDeleted);
      });
  DeleteEach(
      document.nets, [id](const net& wire) { return Touches(wire, id); },
      [&](const net& wire) {
        if (is_recorded) PushNet(undo, wire, undo_action::kNetDeleted);
      });
}

void DeleteNet(design& document, undo_stack& undo, std::int64_t net_id, recording record) {
  DeleteEach(
      document.nets, [net_id](const net& wire) { return wire.net_id == net_id; },
      [&](const net& wire) {
        if (record == recording::kOff) return;
        PushNet(undo, wire, undo_action::kNetDeleted);
        CloseGroup(undo);
      });
}

void DeleteNote(design& document, undo_stack& undo, std::int64_t id, recording record) {
  DeleteEach(
      document.texts, [id](const textblock& note) { return note.id == id; },
      [&](const textblock& note) {
        if (record == recording::kOn) PushNote(undo, note, undo_action::kNoteDeleted);
      });
}

}  // namespace mardel
