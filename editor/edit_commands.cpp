#include "editor/edit_commands.h"

namespace mardel {

void PlaceBlock(workspace& work, const blockdef& definition) {
  design& document = work.document;
  const dvblock& placed = document.blocks.Append({.id = document.next_block_id++,
                                                  .lib = definition.lib,
                                                  .sub = definition.sub,
                                                  .x = 10,
                                                  .y = 10,
                                                  .width = definition.width,
                                                  .height = definition.height,
                                                  .pins = definition.pins,
                                                  .params = definition.params});
  Push(work.undo, placed, block_action::kPlaced);
  CloseGroup(work.undo);
  document.unsaved_changes = true;
  work.canvas.Redraw();
  work.canvas.ScrollTo({placed.x, placed.y, placed.width, placed.height});
}

void Undo(workspace& work) {
  switch (UndoLastGroup(work.undo, work.document)) {
    case undo_result::kStackEmpty:
      return work.canvas.SetStatus(1, "Undo stack empty");
    case undo_result::kRestored:
      return work.canvas.Redraw();
  }
}

}  // namespace mardel
