#include "fuzz/reference.h"

#include <algorithm>
#include <cmath>

namespace mardel {
namespace {

constexpr colour kDefaultNet = Rgba(102, 0, 102);
constexpr int kCanvasRight = 1919, kCanvasBottom = 1079;

bool IsOn(const auto& each, point at) {
  return each.x <= at.x && at.x < each.x + each.width && each.y <= at.y &&
         at.y < each.y + each.height;
}

template <class record>
record* TopAt(std::vector<record>& list, point at) {
  for (std::size_t i = list.size(); i > 0; --i) {
    if (!IsOn(list[i - 1], at)) continue;
    std::rotate(list.begin() + static_cast<long>(i) - 1, list.begin() + static_cast<long>(i),
                list.end());
    return &list.back();
  }
  return nullptr;
}

}  // namespace

void reference::Handle(const event& happened, const wild_tools& tools) {
  messages.clear();
  was_undone = was_replaced = is_unknown = was_configured = false;
  saved_path.clear();
  bool quits = std::holds_alternative<main_window_close_requested>(happened);
  if (const auto* mouse = std::get_if<canvas_mouse>(&happened)) Mouse(*mouse);
  if (const auto* key = std::get_if<canvas_key>(&happened)) {
    if (key->code == 127) DeleteSelection();
  }
  if (std::holds_alternative<canvas_interrupted>(happened)) hand = mode::kRest;
  if (const auto* chosen = std::get_if<menu_chosen>(&happened)) {
    Menu(chosen->id, tools);
    quits = chosen->id == ids_.quit;
  }
  if (const auto* used = std::get_if<gadget_used>(&happened)) UseGadget(*used);
  if (const auto* close = std::get_if<window_close_requested>(&happened)) {
    if (close->window == modal_ && modal_title != "About Mardel") CloseDialog();
  }
  if (quits) ended = Allows(false);
}

void reference::Mouse(const canvas_mouse& mouse) {
  switch (mouse.action) {
    case mouse_action::kMove:
      return Move(mouse.at);
    case mouse_action::kLeftPress:
      return LeftPress(mouse.at);
    case mouse_action::kLeftRelease:
      return LeftRelease(mouse.at);
    case mouse_action::kRightPress:
    case mouse_action::kDoubleClick:
      return RightPress(mouse.at);
  }
}

void reference::Move(point at) {
  if (hand == mode::kBlock) {
    dvblock& block = now.blocks.back();
    block.x = at.x - offset_.x;
    block.y = at.y - offset_.y;
    SnapEnds(block);
  }
  if (hand == mode::kNote) {
    textblock& note = now.notes.back();
    note.x = at.x - offset_.x;
    note.y = at.y - offset_.y;
  }
  if (hand == mode::kGroup && now.has_selection) MoveSelection(at);
  TopBlockAt(at);  // what the mouse is over comes to the top
}

void reference::MoveSelection(point at) {
  std::int64_t left = 0, right = kCanvasRight, top = 0, bottom = kCanvasBottom;
  const auto shift = [&](point by) {
    const auto each_one = [&](auto& each) {
      if (!each.selected) return;
      each.x += by.x;
      each.y += by.y;
      left = std::min(left, each.x);
      right = std::max(right, each.x + each.width);
      top = std::min(top, each.y);
      bottom = std::max(bottom, each.y + each.height);
    };
    for (dvblock& block : now.blocks) each_one(block);
    for (textblock& note : now.notes) each_one(note);
  };
  shift({at.x - last_.x, at.y - last_.y});
  if (left < 0 || right > kCanvasRight || top < 0 || bottom > kCanvasBottom) {
    shift({kCanvasRight - (left + right), kCanvasBottom - (top + bottom)});
  }
  for (const dvblock& block : now.blocks) {
    if (block.selected) SnapEnds(block);
  }
  last_ = at;
  unsaved = true;
}

void reference::LeftPress(point at) {
  hand = mode::kRest;
  const dvblock* block = TopBlockAt(at);
  const textblock* note = TopNoteAt(at);
  if (now.has_selection) {
    if (block != nullptr ? block->selected : note != nullptr && note->selected) {
      Remember();
      hand = mode::kGroup;
      last_ = at;
      return;
    }
    DropSelection();
  }
  if (block == nullptr && note == nullptr) {
    DropSelection();
    hand = mode::kBand;
    band_start_ = at;
    return;
  }
  unsaved = true;
  wire_start_ = block == nullptr ? std::nullopt : PinAt(at);
  if (wire_start_) {
    hand = mode::kWire;
    return;
  }
  Remember();
  hand = block != nullptr ? mode::kBlock : mode::kNote;
  offset_ = block != nullptr ? point{at.x - block->x, at.y - block->y}
                             : point{at.x - note->x, at.y - note->y};
}

void reference::LeftRelease(point at) {
  if (hand == mode::kWire) FinishWire(at);
  if (hand == mode::kBand) SelectInside(band_start_, at);
  hand = mode::kRest;
}

void reference::FinishWire(point at) {
  if (TopBlockAt(at) == nullptr) return;
  const auto to = PinAt(at);
  if (!to) return;
  const end& from = *wire_start_;
  if (PinType(from.id, from.on.pin_name) != PinType(to->id, to->on.pin_name)) {
    messages.emplace_back("Net Error");
    return;
  }
  Remember();
  now.nets.push_back({next_net_id++, kDefaultNet, false, from.id, from.on.pin_num, from.on.pin_name,
                      from.at.x, from.at.y, to->id, to->on.pin_num, to->on.pin_name, to->at.x,
                      to->at.y});
}

void reference::SelectInside(point a, point b) {
  const auto select = [&](auto& each) {
    if (each.x < std::min(a.x, b.x) || each.x + each.width > std::max(a.x, b.x) ||
        each.y < std::min(a.y, b.y) || each.y + each.height > std::max(a.y, b.y)) {
      return;
    }
    each.selected = true;
    now.has_selection = true;
  };
  for (dvblock& block : now.blocks) select(block);
  for (textblock& note : now.notes) select(note);
}

void reference::RightPress(point at) {
  Rest();
  if (const dvblock* block = TopBlockAt(at)) {
    if (const auto on = PinAt(at)) return OpenPinDialog(*on);
    return OpenDialog("Device Info and Parameters", block->id);
  }
  if (const textblock* note = TopNoteAt(at)) OpenDialog("Edit Text Item", note->id);
}

void reference::DeleteSelection() {
  if (!now.has_selection) return;
  Remember();
  std::vector<std::int64_t> ids;
  for (const dvblock& block : now.blocks) {
    if (block.selected) ids.push_back(block.id);
  }
  for (const std::int64_t id : ids) DeleteBlock(id);
  std::erase_if(now.notes, [](const textblock& note) { return note.selected; });
  now.has_selection = false;
  unsaved = true;
}

void reference::DeleteBlock(std::int64_t id) {
  std::erase_if(now.blocks, [id](const dvblock& block) { return block.id == id; });
  std::erase_if(now.nets, [id](const net& wire) { return wire.id_1 == id || wire.id_2 == id; });
}

void reference::Rest() {
  hand = mode::kRest;
  DropSelection();
}

void reference::DropSelection() {
  for (dvblock& block : now.blocks) block.selected = false;
  for (textblock& note : now.notes) note.selected = false;
  now.has_selection = false;
}

dvblock* reference::TopBlockAt(point at) {
  return TopAt(now.blocks, at);
}

textblock* reference::TopNoteAt(point at) {
  return TopAt(now.notes, at);
}

std::optional<reference::end> reference::PinAt(point at) {
  const dvblock& top = now.blocks.back();
  for (const pin& p : top.pins) {
    if (IsOn(rectangle{top.x + p.pin_x, top.y + p.pin_y, 6, 6}, at)) return end{top.id, p, at};
  }
  return std::nullopt;
}

void reference::SnapEnds(const dvblock& block) {
  const auto snap = [&block](const std::string& name, std::int64_t& x, std::int64_t& y) {
    for (const pin& p : block.pins) {
      if (p.pin_name != name) continue;
      x = block.x + p.pin_x + 3;
      y = block.y + p.pin_y + 3;
      return;
    }
  };
  for (net& wire : now.nets) {
    if (wire.id_1 == block.id) snap(wire.pin_1_name, wire.x_1, wire.y_1);
    if (wire.id_2 == block.id) snap(wire.pin_2_name, wire.x_2, wire.y_2);
  }
}

std::string reference::PinType(std::int64_t id, const std::string& name) const {
  for (const dvblock& block : now.blocks) {
    if (block.id != id) continue;
    for (const pin& p : block.pins) {
      if (p.pin_name == name) return p.pin_type;
    }
  }
  return "";
}

}  // namespace mardel
