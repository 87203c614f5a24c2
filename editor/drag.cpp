#include "editor/drag.h"

#include "editor/status_line.h"

namespace mardel {
namespace {

template <class T>
void Begin(workspace& work, drag_mode mode, const T& dragged, point at) {
  work.hand.mode = mode;
  work.hand.offset = {at.x - dragged.x, at.y - dragged.y};
  work.document.unsaved_changes = true;
}

template <class T>
void Follow(const interaction& hand, T& dragged, point at) {
  dragged.x = at.x - hand.offset.x;
  dragged.y = at.y - hand.offset.y;
}

}  // namespace

void BeginBlockDrag(workspace& work, point at) {
  const dvblock& block = work.document.blocks.Last();
  Begin(work, drag_mode::kBlock, block, at);
  PushBlock(work.undo, block, undo_action::kBlockChanged);
  for (const net& wire : work.document.nets) {
    if (Touches(wire, block.id)) PushNet(work.undo, wire, undo_action::kNetMoved);
  }
  CloseGroup(work.undo);
}

void DragBlock(workspace& work, const surroundings& outside, point at) {
  if (work.document.blocks.empty()) return;
  dvblock& block = work.document.blocks.Last();
  Follow(work.hand, block, at);
  UpdateNetEnds(work.document, block);
  outside.desk.Redraw();
  ShowPosition(outside.desk, {block.x, block.y});
}

void BeginNoteDrag(workspace& work, point at) {
  const textblock& note = work.document.texts.Last();
  Begin(work, drag_mode::kNote, note, at);
  PushNote(work.undo, note, undo_action::kNoteMoved);
  CloseGroup(work.undo);
}

void DragNote(workspace& work, const surroundings& outside, point at) {
  if (work.document.texts.empty()) return;
  textblock& note = work.document.texts.Last();
  Follow(work.hand, note, at);
  outside.desk.Redraw();
  ShowPosition(outside.desk, {note.x, note.y});
}

}  // namespace mardel
