#include "editor/wiring.h"

#include <utility>

#include "editor/hit_test.h"

namespace mardel {
namespace {

constexpr stroke kWirePen = {kNetColour, 2.0};

std::optional<pin_hit> HitPinOfTopBlock(design& document, point at) {
  const dvblock* block = HitBlock(document, at);
  return block == nullptr ? std::nullopt : HitPin(*block, at);
}

// kept: the ends lie where the mouse was, not on the centres of the pins, until a block is moved.
net NetBetween(const pin_hit& start, const pin_hit& end) {
  return {.id_1 = start.id,
          .pin_1_num = start.pin_num,
          .pin_1_name = start.pin_name,
          .x_1 = start.at.x,
          .y_1 = start.at.y,
          .id_2 = end.id,
          .pin_2_num = end.pin_num,
          .pin_2_name = end.pin_name,
          .x_2 = end.at.x,
          .y_2 = end.at.y};
}

void AddNet(workspace& work, net wire) {
  wire.net_id = work.document.next_net_id++;
  PushNet(work.undo, work.document.nets.Append(std::move(wire)), undo_action::kNetMade);
  CloseGroup(work.undo);
}

void Connect(workspace& work, const surroundings& outside, const pin_hit& start,
             const pin_hit& end) {
  const std::string start_type = PinType(work.document, start.id, start.pin_name);
  const std::string end_type = PinType(work.document, end.id, end.pin_name);
  if (start_type == end_type) return AddNet(work, NetBetween(start, end));
  // kept: the spelling and the two blanks are the program's own.
  outside.desk.ShowMessage({"Net Error", "Pin type mismatch, attempting to connecct an  " +
                                             start_type + " to an " + end_type});
}

bool IsOnPin(const net& wire, const pin_hit& hit) {
  return (wire.id_1 == hit.id && wire.pin_1_name == hit.pin_name) ||
         (wire.id_2 == hit.id && wire.pin_2_name == hit.pin_name);
}

}  // namespace

void BeginWire(workspace& work, const pin_hit& start) {
  work.hand.mode = drag_mode::kWire;
  work.hand.wire_start = start;
  work.document.unsaved_changes = true;
}

void StretchWire(workspace& work, const surroundings& outside, point at) {
  if (!work.hand.wire_start) return;
  outside.desk.Redraw();
  outside.desk.ShowOverlay({overlay::shape::kLine, {work.hand.wire_start->at, at}, kWirePen});
}

void FinishWire(workspace& work, const surroundings& outside, point at) {
  outside.desk.SetPointer(pointer_shape::kNormal);
  const std::optional<pin_hit> start = std::exchange(work.hand.wire_start, std::nullopt);
  const std::optional<pin_hit> end = HitPinOfTopBlock(work.document, at);
  if (start && end) Connect(work, outside, *start, *end);
  outside.desk.Redraw();
}

void HighlightNets(design& document, const pin_hit& of) {
  ResetNets(document);
  std::size_t next = 0;
  for (net& wire : document.nets) {
    if (!IsOnPin(wire, of)) continue;
    wire.color = kNetPalette[next++ % kNetPalette.size()];
    wire.selected = true;
  }
}

void ResetNets(design& document) {
  for (net& wire : document.nets) {
    wire.color = kNetColour;
    wire.selected = false;
  }
}

}  // namespace mardel
