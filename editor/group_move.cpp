#include "editor/group_move.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "editor/status_line.h"
#include "platform/hash.h"

namespace mardel {
namespace {

constexpr std::int64_t kLastColumn = kCanvasWidth - 1;
constexpr std::int64_t kLastRow = kCanvasHeight - 1;

// The edges start at those of the canvas and only move outwards.
struct extent {
  std::int64_t left = 0, right = kLastColumn, top = 0, bottom = kLastRow;
  point corner = {kLastColumn, kLastRow};  // top-left of the selection, where it is on the canvas
};

template <class Visit>
void ForEachSelected(design& document, Visit visit) {
  for (dvblock& block : document.blocks) {
    if (block.selected) visit(block);
  }
  for (textblock& note : document.texts) {
    if (note.selected) visit(note);
  }
}

extent Shift(design& document, point by) {
  extent moved;
  ForEachSelected(document, [&](auto& each) {
    each.x += by.x;
    each.y += by.y;
    moved.left = std::min(moved.left, each.x);
    moved.right = std::max(moved.right, each.x + each.width);
    moved.top = std::min(moved.top, each.y);
    moved.bottom = std::max(moved.bottom, each.y + each.height);
    moved.corner = {std::min(moved.corner.x, each.x), std::min(moved.corner.y, each.y)};
  });
  return moved;
}

// 0 along an axis where both edges of the canvas hold, or where both were crossed equally far.
point WayBack(const extent& moved) {
  return {kLastColumn - (moved.left + moved.right), kLastRow - (moved.top + moved.bottom)};
}

using nets_by_block = std::unordered_map<std::int64_t, std::vector<const net*>, id_hash>;

// Of the selected blocks.
nets_by_block IndexNets(const design& document) {
  nets_by_block touching;
  for (const dvblock& block : document.blocks) {
    if (block.selected) touching.try_emplace(block.id);
  }
  for (const net& wire : document.nets) {
    const auto first = touching.find(wire.id_1);
    if (first != touching.end()) first->second.push_back(&wire);
    if (wire.id_2 == wire.id_1) continue;
    const auto second = touching.find(wire.id_2);
    if (second != touching.end()) second->second.push_back(&wire);
  }
  return touching;
}

}  // namespace

void BeginGroupMove(workspace& work, point at) {
  const nets_by_block touching = IndexNets(work.document);
  for (const dvblock& block : work.document.blocks) {
    if (!block.selected) continue;
    PushBlock(work.undo, block, undo_action::kBlockChanged);
    for (const net* wire : touching.at(block.id)) {
      PushNet(work.undo, *wire, undo_action::kNetMoved);
    }
  }
  for (const textblock& note : work.document.texts) {
    if (note.selected) PushNote(work.undo, note, undo_action::kNoteMoved);
  }
  CloseGroup(work.undo);
  work.hand.mode = drag_mode::kGroup;
  work.hand.last = at;
}

void MoveGroup(workspace& work, const surroundings& outside, point at) {
  design& document = work.document;
  if (!document.has_selection) return;
  const extent moved = Shift(document, {at.x - work.hand.last.x, at.y - work.hand.last.y});
  const point back = WayBack(moved);
  Shift(document, back);
  UpdateNetEndsOfSelection(document);
  outside.desk.Redraw();
  ShowPosition(outside.desk, {moved.corner.x + back.x, moved.corner.y + back.y});
  work.hand.last = at;
  document.unsaved_changes = true;
}

}  // namespace mardel
