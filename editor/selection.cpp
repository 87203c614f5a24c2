#include "editor/selection.h"

#include <algorithm>

#include "editor/deletion.h"

namespace mardel {
namespace {

constexpr stroke kBandPen = {kRed, 1.0, 10.0};

void ShowBand(ui& desk, point start, point at) {
  desk.ShowOverlay({overlay::shape::kRectangle, {start, at}, kBandPen});
}

struct band {
  std::int64_t left, right, top, bottom;
};

band BandBetween(point a, point b) {
  return {std::min(a.x, b.x), std::max(a.x, b.x), std::min(a.y, b.y), std::max(a.y, b.y)};
}

template <class T>
bool SelectInside(cursor_list<T>& list, const band& area) {
  bool any = false;
  for (T& each : list) {
    if (each.x < area.left || each.x + each.width > area.right || each.y < area.top ||
        each.y + each.height > area.bottom) {
      continue;
    }
    each.selected = true;
    any = true;
  }
  return any;
}

void DeleteSelectedNotes(design& document, undo_stack& undo) {
  const auto is_selected = [](const textblock& note) { return note.selected; };
  cursor_list<textblock>& notes = document.texts;
  for (auto found = std::find_if(notes.begin(), notes.end(), is_selected); found != notes.end();
       found = std::find_if(notes.begin(), notes.end(), is_selected)) {
    DeleteNote(document, undo, found->id, recording::kOn);
  }
}

}  // namespace

void BeginRubberBand(workspace& work, const surroundings& outside, point at) {
  ClearSelection(work.document);
  outside.desk.Redraw();
  work.hand.mode = drag_mode::kRubberBand;
  work.hand.band_start = at;
  ShowBand(outside.desk, at, at);
}

void StretchRubberBand(workspace& work, const surroundings& outside, point at) {
  outside.desk.Redraw();
  ShowBand(outside.desk, work.hand.band_start, at);
}

void FinishRubberBand(workspace& work, const surroundings& outside, point at) {
  design& document = work.document;
  const band area = BandBetween(work.hand.band_start, at);
  const bool any_block = SelectInside(document.blocks, area);
  const bool any_note = SelectInside(document.texts, area);
  document.has_selection = any_block || any_note;
  outside.desk.Redraw();
}

void DeleteSelection(workspace& work, const surroundings& outside) {
  design& document = work.document;
  if (!document.has_selection) return;
  DeleteSelectedBlocks(document, work.undo);
  DeleteSelectedNotes(document, work.undo);
  CloseGroup(work.undo);
  document.unsaved_changes = true;
  document.has_selection = false;
  outside.desk.Redraw();
}

}  // namespace mardel
