#include "editor/selection.h"

#include <algorithm>

#include "editor/deletion.h"

namespace mardel {
namespace {

constexpr stroke kBandPen = {kRed, 1.0, 10.0};

void ShowBand(canvas_view& canvas, point start, point at) {
  canvas.ShowOverlay({overlay::shape::kRectangle, {start, at}, kBandPen});
}

struct band {
  std::int64_t left, right, top, bottom;
};

band BandBetween(point a, point b) {
  return {std::min(a.x, b.x), std::max(a.x, b.x), std::min(a.y, b.y), std::max(a.y, b.y)};
}

bool SelectInside(auto& list, const band& area) {
  bool any = false;
  for (auto& each : list) {
    if (each.x < area.left || each.x + each.width > area.right || each.y < area.top ||
        each.y + each.height > area.bottom) {
      continue;
    }
    each.selected = true;
    any = true;
  }
  return any;
}

}  // namespace

void BeginRubberBand(workspace& work, point at) {
  ClearSelection(work.document);
  work.canvas.Redraw();
  work.hand = rubber_band{at};
  ShowBand(work.canvas, at, at);
}

void StretchRubberBand(canvas_view& canvas, const rubber_band& hand, point at) {
  canvas.Redraw();
  ShowBand(canvas, hand.start, at);
}

void FinishRubberBand(workspace& work, const rubber_band& hand, point at) {
  design& document = work.document;
  const band area = BandBetween(hand.start, at);
  const bool any_block = SelectInside(document.blocks, area);
  const bool any_note = SelectInside(document.texts, area);
  document.has_selection = any_block || any_note;
  work.canvas.Redraw();
}

void SelectAll(design& document) {
  for (dvblock& block : document.blocks) block.selected = true;
  for (textblock& note : document.texts) note.selected = true;
  document.has_selection = !document.blocks.empty() || !document.texts.empty();
}

void DeleteSelection(workspace& work) {
  design& document = work.document;
  if (!document.has_selection) return;
  DeleteSelectedBlocks(document, work.undo);
  DeleteSelectedNotes(document, work.undo);
  CloseGroup(work.undo);
  document.unsaved_changes = true;
  document.has_selection = false;
  work.canvas.Redraw();
}

}  // namespace mardel
