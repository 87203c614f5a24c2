#include "editor/canvas_input.h"

#include <algorithm>
#include <utility>

#include "editor/dialogs.h"
#include "editor/drag.h"
#include "editor/group_move.h"
#include "editor/hit_test.h"
#include "editor/selection.h"
#include "editor/status_line.h"
#include "editor/wiring.h"

namespace mardel {
namespace {

constexpr int kWheelStep = -10;  // canvas pixels

using mouse_handler = void (*)(workspace& work, const surroundings& outside, point at);

void DoNothing(workspace& /*work*/, const surroundings& /*outside*/, point /*at*/) {}

struct drag_steps {
  drag_mode mode;
  mouse_handler move, release;
};

constexpr drag_steps kDrags[] = {
    {drag_mode::kNone, DoNothing, DoNothing},
    {drag_mode::kBlock, DragBlock, DoNothing},
    {drag_mode::kWire, StretchWire, FinishWire},
    {drag_mode::kRubberBand, StretchRubberBand, FinishRubberBand},
    {drag_mode::kNote, DragNote, DoNothing},
    {drag_mode::kGroup, MoveGroup, DoNothing},
};

const drag_steps& StepsOf(drag_mode mode) {
  return *std::ranges::find(kDrags, mode, &drag_steps::mode);
}

void LetGo(interaction& hand) {
  hand.mode = drag_mode::kNone;
  hand.wire_start.reset();
}

void LeaveMode(workspace& work, const surroundings& outside) {
  LetGo(work.hand);
  outside.desk.SetPointer(pointer_shape::kNormal);
  ClearStatus(outside.desk);
}

// kept: a wire that is being drawn does not hide what the pins under it are.
bool ShowsPins(const workspace& work) {
  const drag_mode mode = work.hand.mode;
  return !work.document.has_selection && mode != drag_mode::kRubberBand &&
         mode != drag_mode::kBlock && mode != drag_mode::kNote;
}

void Hover(workspace& work, const surroundings& outside, point at) {
  const dvblock* block = HitBlock(work.document, at);
  if (block == nullptr || !ShowsPins(work)) return;
  const std::optional<pin_hit> pin = HitPin(*block, at);
  outside.desk.SetPointer(pin ? pointer_shape::kCross : pointer_shape::kNormal);
  if (pin) return ShowPin(outside.desk, *pin);
  ClearStatus(outside.desk);
}

void Move(workspace& work, const surroundings& outside, point at) {
  StepsOf(work.hand.mode).move(work, outside, at);
  Hover(work, outside, at);
}

void PressBlock(workspace& work, const dvblock& block, point at) {
  const std::optional<pin_hit> pin = HitPin(block, at);
  if (pin) return BeginWire(work, *pin);
  BeginBlockDrag(work, at);
}

// A press beside the selection drops it; one on it, even on a pin, moves it.
void LeftPress(workspace& work, const surroundings& outside, point at) {
  LetGo(work.hand);
  const dvblock* block = HitBlock(work.document, at);
  const textblock* note = HitNote(work.document, at);
  if (work.document.has_selection) {
    const bool is_on_it = block != nullptr ? block->selected : note != nullptr && note->selected;
    if (is_on_it) return BeginGroupMove(work, at);
    ClearSelection(work.document);
  }
  if (block != nullptr) return PressBlock(work, *block, at);
  if (note != nullptr) return BeginNoteDrag(work, at);
  BeginRubberBand(work, outside, at);
}

void LeftRelease(workspace& work, const surroundings& outside, point at) {
  const drag_mode ended = std::exchange(work.hand.mode, drag_mode::kNone);
  StepsOf(ended).release(work, outside, at);
  LeaveMode(work, outside);
}

void RightPress(workspace& work, const surroundings& outside, point at) {
  ResetInteraction(work, outside);
  outside.desk.Redraw();
  const dvblock* block = HitBlock(work.document, at);
  const textblock* note = block != nullptr ? nullptr : HitNote(work.document, at);
  if (note != nullptr) return OpenEditNote(work, outside, *note);
  if (block == nullptr) return;
  const std::optional<pin_hit> pin = HitPin(*block, at);
  if (pin) return OpenPinDialog(work, outside, *pin);
  OpenDeviceDialog(work, outside, *block);
}

struct mouse_step {
  mouse_action action;
  mouse_handler handle;
};

constexpr mouse_step kMouseSteps[] = {
    {mouse_action::kMove, Move},
    {mouse_action::kLeftPress, LeftPress},
    {mouse_action::kLeftRelease, LeftRelease},
    {mouse_action::kRightPress, RightPress},
};

}  // namespace

void HandleMouse(workspace& work, const surroundings& outside, const canvas_mouse& mouse) {
  std::ranges::find(kMouseSteps, mouse.action, &mouse_step::action)
      ->handle(work, outside, mouse.at);
}

void HandleKey(workspace& work, const surroundings& outside, const canvas_key& key) {
  if (key.code == kDeleteKeyCode) DeleteSelection(work, outside);
}

void HandleWheel(const surroundings& outside, const canvas_wheel& wheel) {
  outside.desk.ScrollBy(wheel.steps * kWheelStep);
}

void HandleInterruption(workspace& work, const surroundings& outside) {
  if (work.hand.mode == drag_mode::kNone) return;
  LeaveMode(work, outside);
  outside.desk.Redraw();
}

void ResetInteraction(workspace& work, const surroundings& outside) {
  LeaveMode(work, outside);
  ClearSelection(work.document);
}

void PlaceBlock(workspace& work, const surroundings& outside, const blockdef& definition) {
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
  PushBlock(work.undo, placed, undo_action::kBlockPlaced);
  CloseGroup(work.undo);
  document.unsaved_changes = true;
  outside.desk.Redraw();
}

void Undo(workspace& work, const surroundings& outside) {
  if (UndoLastGroup(work.undo, work.document) == undo_result::kStackEmpty) {
    outside.desk.SetStatus(1, "Undo stack empty");
    return;
  }
  outside.desk.Redraw();
}

}  // namespace mardel
