#include "editor/group_move.h"

#include <algorithm>

#include "editor/selected_nets.h"
#include "editor/status_line.h"

namespace mardel {
namespace {

constexpr std::int64_t kLastColumn = kCanvasWidth - 1;
constexpr std::int64_t kLastRow = kCanvasHeight - 1;

// The edges start at those of the canvas and only move outwards.
struct moved_extent {
  std::int64_t left = 0, right = kLastColumn, top = 0, bottom = kLastRow;
  point corner = {kLastColumn, kLastRow};  // top-left of the selection, where it is on the canvas
};

template <class visitor>
void ForEachSelected(design& document, visitor visit) {
  for (dvblock& block : document.blocks) {
    if (block.selected) visit(block);
  }
  for (textblock& note : document.texts) {
    if (note.selected) visit(note);
  }
}

moved_extent Shift(design& document, point by) {
  moved_extent moved;
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

// The way is 0 along an axis where both edges of the canvas hold, or where both were crossed
// equally far.
point WayBack(const moved_extent& moved) {
  return {kLastColumn - (moved.left + moved.right), kLastRow - (moved.top + moved.bottom)};
}

// As an undo step.
void RecordSelection(workspace& work) {
  const nets_by_block touching = NetsOfSelection(work.document);
  for (const dvblock& block : work.document.blocks) {
    if (!block.selected) continue;
    Push(work.undo, block, block_action::kChanged);
    for (const listed_net& wire : touching.at(block.id)) {
      Push(work.undo, *wire.at, net_action::kMoved);
    }
  }
  for (const textblock& note : work.document.texts) {
    if (note.selected) Push(work.undo, note, note_action::kMoved);
  }
  CloseGroup(work.undo);
}

void MoveAndShow(workspace& work, point by) {
  const point corner = MoveSelection(work.document, by);
  work.canvas.Redraw();
  ShowPosition(work.canvas, corner);
  work.document.unsaved_changes = true;
  ++work.undo.changes;  // those of a key held down are one undo step
}

}  // namespace

point MoveSelection(design& document, point by) {
  const moved_extent moved = Shift(document, by);
  const point back = WayBack(moved);
  Shift(document, back);
  UpdateNetEndsOfSelection(document);
  return {moved.corner.x + back.x, moved.corner.y + back.y};
}

void BeginGroupMove(workspace& work, point at) {
  RecordSelection(work);
  work.hand = group_move{at};
}

void MoveGroup(workspace& work, group_move& hand, point at) {
  if (!work.document.has_selection) return;
  MoveAndShow(work, {at.x - hand.last.x, at.y - hand.last.y});
  hand.last = at;
}

void MoveByArrow(workspace& work, const canvas_arrow& arrow) {
  const bool goes_on = arrow.is_repeat && std::holds_alternative<arrow_move>(work.hand);
  if (!goes_on) RecordSelection(work);
  work.hand = arrow_move{};
  const std::int64_t step = arrow.with_shift ? 10 : 1;
  MoveAndShow(work, {arrow.direction.x * step, arrow.direction.y * step});
}

}  // namespace mardel
