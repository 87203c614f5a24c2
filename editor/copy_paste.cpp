#include "editor/copy_paste.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "editor/group_move.h"
#include "editor/selection.h"
#include "platform/hash.h"

namespace mardel {
namespace {

constexpr std::int64_t kPasteOffset = 20;  // to the right and down, from copy to copy

point CornerOf(const auto& placed) {
  return {placed.x, placed.y};
}

bool LiesAt(const design& document, point corner) {
  const auto lies_there = [corner](const auto& each) { return CornerOf(each) == corner; };
  return std::ranges::any_of(document.blocks, lies_there) ||
         std::ranges::any_of(document.texts, lies_there);
}

// From the place that it was copied from to the first free one beside it.
point WayToFreePlace(const design& document, const design& pasted) {
  const point corner =
      pasted.blocks.empty() ? CornerOf(*pasted.texts.begin()) : CornerOf(*pasted.blocks.begin());
  std::int64_t away = 0;
  while (LiesAt(document, {corner.x + away, corner.y + away})) away += kPasteOffset;
  return {away, away};
}

rectangle BoundsOf(const design& document) {
  std::int64_t left = kCanvasWidth, top = kCanvasHeight, right = 0, bottom = 0;
  const auto cover = [&](const auto& each) {
    left = std::min(left, each.x);
    top = std::min(top, each.y);
    right = std::max(right, each.x + each.width);
    bottom = std::max(bottom, each.y + each.height);
  };
  std::ranges::for_each(document.blocks, cover);
  std::ranges::for_each(document.texts, cover);
  return {left, top, right - left, bottom - top};
}

using new_ids = std::unordered_map<std::int64_t, std::int64_t, id_hash>;

// By the ids that they had. Where those repeat, the nets belong to the first block.
new_ids AddBlocks(workspace& work, design& pasted) {
  new_ids ids;
  for (dvblock& block : pasted.blocks) {
    const std::int64_t id = work.document.next_block_id++;
    ids.try_emplace(block.id, id);
    block.id = id;
    Push(work.undo, work.document.blocks.Append(std::move(block)), block_action::kPlaced);
  }
  return ids;
}

void AddNets(workspace& work, design& pasted, const new_ids& ids) {
  for (net& wire : pasted.nets) {
    const auto first = ids.find(wire.id_1), second = ids.find(wire.id_2);
    if (first == ids.end() || second == ids.end()) continue;
    wire.net_id = work.document.next_net_id++;
    wire.id_1 = first->second;
    wire.id_2 = second->second;
    Push(work.undo, work.document.nets.Append(std::move(wire)), net_action::kMade);
  }
}

void AddNotes(workspace& work, design& pasted) {
  for (textblock& note : pasted.texts) {
    note.id = work.document.next_text_id++;
    Push(work.undo, work.document.texts.Append(std::move(note)), note_action::kAdded);
  }
}

}  // namespace

design CopyOfSelection(const design& document) {
  design copy;
  std::unordered_set<std::int64_t, id_hash> ids;
  for (const dvblock& block : document.blocks) {
    if (!block.selected) continue;
    copy.blocks.Append(block);
    ids.insert(block.id);
  }
  for (const net& wire : document.nets) {
    if (ids.contains(wire.id_1) && ids.contains(wire.id_2)) copy.nets.Append(wire);
  }
  for (const textblock& note : document.texts) {
    if (note.selected) copy.texts.Append(note);
  }
  return copy;
}

void PasteDesign(workspace& work, design pasted) {
  if (pasted.blocks.empty() && pasted.texts.empty()) return;
  design& document = work.document;
  ClearSelection(document);
  SelectAll(pasted);
  MoveSelection(pasted, WayToFreePlace(document, pasted));
  const rectangle place = BoundsOf(pasted);
  AddNets(work, pasted, AddBlocks(work, pasted));
  AddNotes(work, pasted);
  CloseGroup(work.undo);
  document.has_selection = true;
  document.unsaved_changes = true;
  work.canvas.Redraw();
  work.canvas.ScrollTo(place);
}

}  // namespace mardel
