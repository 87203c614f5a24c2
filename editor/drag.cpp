#include "editor/drag.h"

#include "editor/status_line.h"

namespace mardel {
namespace {

point OffsetOf(const auto& dragged, point at) {
  return {at.x - dragged.x, at.y - dragged.y};
}

void Follow(auto& dragged, point offset, point at) {
  dragged.x = at.x - offset.x;
  dragged.y = at.y - offset.y;
}

}  // namespace

void BeginBlockDrag(workspace& work, const dvblock& block, point at) {
  work.hand = block_drag{OffsetOf(block, at)};
  work.document.unsaved_changes = true;
  Push(work.undo, block, block_action::kChanged);
  for (const net& wire : work.document.nets) {
    if (Touches(wire, block.id)) Push(work.undo, wire, net_action::kMoved);
  }
  CloseGroup(work.undo);
}

void DragBlock(workspace& work, const block_drag& hand, point at) {
  if (work.document.blocks.empty()) return;
  dvblock& block = work.document.blocks.Last();
  Follow(block, hand.offset, at);
  UpdateNetEnds(work.document, block);
  work.canvas.Redraw();
  ShowPosition(work.canvas, {block.x, block.y});
}

void BeginNoteDrag(workspace& work, const textblock& note, point at) {
  work.hand = note_drag{OffsetOf(note, at)};
  work.document.unsaved_changes = true;
  Push(work.undo, note, note_action::kMoved);
  CloseGroup(work.undo);
}

void DragNote(workspace& work, const note_drag& hand, point at) {
  if (work.document.texts.empty()) return;
  textblock& note = work.document.texts.Last();
  Follow(note, hand.offset, at);
  work.canvas.Redraw();
  ShowPosition(work.canvas, {note.x, note.y});
}

}  // namespace mardel
