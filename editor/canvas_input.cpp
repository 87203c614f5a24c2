#include "editor/canvas_input.h"

#include <utility>

#include "editor/device_dialog.h"
#include "editor/drag.h"
#include "editor/group_move.h"
#include "editor/hit_test.h"
#include "editor/note_dialog.h"
#include "editor/pin_dialog.h"
#include "editor/selection.h"
#include "editor/status_line.h"
#include "editor/wiring.h"

namespace mardel {
namespace {

// One overload for each gesture: what a move of the mouse does, and what a release does.
struct gesture_move {
  workspace& work;
  point at;
  void operator()(const resting& /*hand*/) const {}
  void operator()(const block_drag& hand) const { DragBlock(work, hand, at); }
  void operator()(const wire_drag& hand) const { StretchWire(work.canvas, hand, at); }
  void operator()(const rubber_band& hand) const { StretchRubberBand(work.canvas, hand, at); }
  void operator()(const note_drag& hand) const { DragNote(work, hand, at); }
  void operator()(group_move& hand) const { MoveGroup(work, hand, at); }
  void operator()(const arrow_move& /*hand*/) const {}
};

struct gesture_release {
  workspace& work;
  point at;
  void operator()(const resting& /*hand*/) const {}
  void operator()(const block_drag& /*hand*/) const {}
  void operator()(const wire_drag& hand) const { FinishWire(work, hand, at); }
  void operator()(const rubber_band& hand) const { FinishRubberBand(work, hand, at); }
  void operator()(const note_drag& /*hand*/) const {}
  void operator()(const group_move& /*hand*/) const {}
  void operator()(const arrow_move& /*hand*/) const {}
};

// kept: a wire that is being drawn does not hide what the pins under it are.
struct shows_pins {
  bool operator()(const resting& /*hand*/) const { return true; }
  bool operator()(const block_drag& /*hand*/) const { return false; }
  bool operator()(const wire_drag& /*hand*/) const { return true; }
  bool operator()(const rubber_band& /*hand*/) const { return false; }
  bool operator()(const note_drag& /*hand*/) const { return false; }
  bool operator()(const group_move& /*hand*/) const { return true; }
  bool operator()(const arrow_move& /*hand*/) const { return true; }
};

void ComeToRest(workspace& work) {
  work.hand = resting{};
  work.canvas.SetPointer(pointer_shape::kNormal);
  ClearStatus(work.canvas);
}

// What is dragged has been redrawn already.
void Hover(workspace& work, point at) {
  const auto [block, is_moved] = RaiseBlockAt(work.document, at);
  if (is_moved && !IsDragging(work.hand)) work.canvas.Redraw();
  if (block == nullptr || work.document.has_selection) return;
  if (!std::visit(shows_pins(), work.hand)) return;
  const std::optional<pin_hit> pin = HitPin(*block, at);
  work.canvas.SetPointer(pin ? pointer_shape::kCross : pointer_shape::kNormal);
  if (pin) return ShowPin(work.canvas, *pin);
  ClearStatus(work.canvas);
}

void Move(workspace& work, point at) {
  std::visit(gesture_move{work, at}, work.hand);
  Hover(work, at);
}

void PressBlock(workspace& work, const dvblock& block, point at) {
  if (const std::optional<pin_hit> pin = HitPin(block, at)) return BeginWire(work, *pin);
  BeginBlockDrag(work, block, at);
}

// A press beside the selection drops it; one on it, even on a pin, moves it.
void LeftPress(workspace& work, point at) {
  design& document = work.document;
  work.hand = resting{};
  const auto [block, is_block_moved] = RaiseBlockAt(document, at);
  const auto [note, is_note_moved] = RaiseNoteAt(document, at);
  const bool is_on_it = block != nullptr ? block->selected : note != nullptr && note->selected;
  const bool is_dropped = document.has_selection && !is_on_it;
  if (is_dropped) ClearSelection(document);
  if (is_dropped || is_block_moved || is_note_moved) work.canvas.Redraw();
  if (document.has_selection) return BeginGroupMove(work, at);
  if (block != nullptr) return PressBlock(work, *block, at);
  if (note != nullptr) return BeginNoteDrag(work, *note, at);
  BeginRubberBand(work, at);
}

void LeftRelease(workspace& work, point at) {
  gesture ended = std::exchange(work.hand, resting{});
  std::visit(gesture_release{work, at}, ended);
  ComeToRest(work);
}

void OpenWindowAt(workspace& work, point at) {
  if (const dvblock* block = RaiseBlockAt(work.document, at).hit) {
    if (const std::optional<pin_hit> pin = HitPin(*block, at)) return OpenPinDialog(work, *pin);
    return OpenDeviceDialog(work, *block);
  }
  if (const textblock* note = RaiseNoteAt(work.document, at).hit) OpenEditNote(work, *note);
}

void RightPress(workspace& work, point at) {
  ResetInteraction(work);
  work.canvas.Redraw();
  OpenWindowAt(work, at);
}

}  // namespace

void HandleMouse(workspace& work, const canvas_mouse& mouse) {
  switch (mouse.action) {
    case mouse_action::kMove:
      return Move(work, mouse.at);
    case mouse_action::kLeftPress:
      return LeftPress(work, mouse.at);
    case mouse_action::kLeftRelease:
      return LeftRelease(work, mouse.at);
    case mouse_action::kRightPress:
    case mouse_action::kDoubleClick:
      return RightPress(work, mouse.at);
  }
}

void HandleKey(workspace& work, const canvas_key& key) {
  if (key.code == kDeleteKeyCode) DeleteSelection(work);
}

void HandleArrow(workspace& work, const canvas_arrow& arrow) {
  if (!work.document.has_selection) {
    return work.canvas.ScrollBy({arrow.direction.x * kScrollStep, arrow.direction.y * kScrollStep});
  }
  if (!IsDragging(work.hand)) MoveByArrow(work, arrow);
}

// A whole step scrolls by 10 pixels.
void HandleWheel(canvas_view& canvas, const canvas_wheel& wheel) {
  canvas.ScrollBy({-wheel.tenths.x, -wheel.tenths.y});
}

bool IsDragging(const gesture& hand) {
  return !std::holds_alternative<resting>(hand) && !std::holds_alternative<arrow_move>(hand);
}

void HandleInterruption(workspace& work) {
  if (std::holds_alternative<resting>(work.hand)) return;
  ComeToRest(work);
  work.canvas.Redraw();
}

void ResetInteraction(workspace& work) {
  ComeToRest(work);
  ClearSelection(work.document);
}

}  // namespace mardel
