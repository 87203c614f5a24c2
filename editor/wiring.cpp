#include "editor/wiring.h"

#include <utility>

#include "editor/hit_test.h"

namespace mardel {
namespace {

constexpr stroke kWirePen = {kNetColour, kNetWidth};

std::optional<pin_hit> HitPinOfTopBlock(design& document, point at) {
  const dvblock* block = RaiseBlockAt(document, at).hit;
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
  Push(work.undo, work.document.nets.Append(std::move(wire)), net_action::kMade);
  CloseGroup(work.undo);
}

void Connect(workspace& work, const pin_hit& start, const pin_hit& end) {
  const std::string start_type = PinType(work.document, start.id, start.pin_name);
  const std::string end_type = PinType(work.document, end.id, end.pin_name);
  if (start_type == end_type) return AddNet(work, NetBetween(start, end));
  // kept: the spelling and the two blanks are the program's own.
  work.boxes.ShowMessage({"Net Error", "Pin type mismatch, attempting to connecct an  " +
                                           start_type + " to an " + end_type});
}

bool IsOnPin(const net& wire, const pin_hit& hit) {
  return (wire.id_1 == hit.id && wire.pin_1_name == hit.pin_name) ||
         (wire.id_2 == hit.id && wire.pin_2_name == hit.pin_name);
}

}  // namespace

void BeginWire(workspace& work, const pin_hit& start) {
  work.hand = wire_drag{start};
  work.document.unsaved_changes = true;
}

void StretchWire(canvas_view& canvas, const wire_drag& hand, point at) {
  canvas.Redraw();
  canvas.ShowOverlay({overlay::shape::kLine, {hand.start.at, at}, kWirePen});
}

void FinishWire(workspace& work, const wire_drag& hand, point at) {
  work.canvas.SetPointer(pointer_shape::kNormal);
  const std::optional<pin_hit> end = HitPinOfTopBlock(work.document, at);
  if (end) Connect(work, hand.start, *end);
  work.canvas.Redraw();
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
