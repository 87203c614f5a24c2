#include "editor/deletion.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

#include "editor/selected_nets.h"

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

using blocks_by_id =
    std::unordered_map<std::int64_t, std::vector<cursor_list<dvblock>::iterator>, id_hash>;

// Also blocks that are not selected but share the id of one that is.
blocks_by_id BlocksOfSelection(design& document) {
  blocks_by_id found;
  for (const dvblock& block : document.blocks) {
    if (block.selected) found.try_emplace(block.id);
  }
  for (auto block = document.blocks.begin(); block != document.blocks.end(); ++block) {
    const auto with = found.find(block->id);
    if (with != found.end()) with->second.push_back(block);
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
  blocks_by_id doomed = BlocksOfSelection(document);
  nets_by_block touching = NetsOfSelection(document);
  std::vector<bool> is_gone(document.nets.size());  // with the block at its other end
  for (const std::int64_t id : SelectedIds(document)) {
    // Nothing is left of an id that several blocks had.
    for (const auto block : std::exchange(doomed.at(id), {})) {
      Push(undo, *block, block_action::kDeleted);
      document.blocks.Delete(block);
    }
    for (const auto& [wire, place] : std::exchange(touching.at(id), {})) {
      if (is_gone[place]) continue;
      is_gone[place] = true;
      Push(undo, *wire, net_action::kDeleted);
      document.nets.Delete(wire);
    }
  }
}

void DeleteSelectedNotes(design& document, undo_stack& undo) {
  cursor_list<textblock>& notes = document.texts;
  for (auto found = notes.begin();
       (found = std::ranges::find_if(notes, &textblock::selected)) != notes.end();) {
    DeleteNote(document, undo, found->id, recording::kOn);
  }
}

void DeleteBlock(design& document, undo_stack& undo, std::int64_t id, recording record) {
  const bool is_recorded = record == recording::kOn;
  DeleteEach(
      document.blocks, [id](const dvblock& block) { return block.id == id; },
      [&](const dvblock& block) {
        if (is_recorded) Push(undo, block, block_action::kDeleted);
      });
  DeleteEach(
      document.nets, [id](const net& wire) { return Touches(wire, id); },
      [&](const net& wire) {
        if (is_recorded) Push(undo, wire, net_action::kDeleted);
      });
}

void DeleteNet(design& document, std::int64_t net_id) {
  DeleteEach(
      document.nets, [net_id](const net& wire) { return wire.net_id == net_id; },
      [](const net& /*wire*/) {});
}

void DeleteNets(design& document, undo_stack& undo,
                const std::unordered_set<std::int64_t, id_hash>& net_ids) {
  DeleteEach(
      document.nets, [&](const net& wire) { return net_ids.contains(wire.net_id); },
      [&](const net& wire) {
        Push(undo, wire, net_action::kDeleted);
        CloseGroup(undo);
      });
}

void DeleteNote(design& document, undo_stack& undo, std::int64_t id, recording record) {
  DeleteEach(
      document.texts, [id](const textblock& note) { return note.id == id; },
      [&](const textblock& note) {
        if (record == recording::kOn) Push(undo, note, note_action::kDeleted);
      });
}

}  // namespace mardel
