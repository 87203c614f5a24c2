#include "editor/design.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <utility>

#include "platform/hash.h"

namespace mardel {

namespace {

const pin* FindPin(const dvblock& block, std::string_view name) {
  const auto found = std::find_if(block.pins.begin(), block.pins.end(),
                                  [name](const pin& p) { return p.pin_name == name; });
  return found == block.pins.end() ? nullptr : &*found;
}

void MoveFirstEnd(net& wire, const dvblock& block) {
  const pin* at = FindPin(block, wire.pin_1_name);
  if (at == nullptr) return;
  const point centre = PinCentre(block, *at);
  wire.x_1 = centre.x;
  wire.y_1 = centre.y;
}

void MoveSecondEnd(net& wire, const dvblock& block) {
  const pin* at = FindPin(block, wire.pin_2_name);
  if (at == nullptr) return;
  const point centre = PinCentre(block, *at);
  wire.x_2 = centre.x;
  wire.y_2 = centre.y;
}

}  // namespace

const dvblock* FindBlock(const design& document, std::int64_t id) {
  for (const dvblock& block : document.blocks) {
    if (block.id == id) return &block;
  }
  return nullptr;
}

dvblock* FindBlock(design& document, std::int64_t id) {
  return const_cast<dvblock*>(FindBlock(std::as_const(document), id));
}

std::string PinType(const design& document, std::int64_t block_id, std::string_view pin_name) {
  const dvblock* block = FindBlock(document, block_id);
  const pin* found = block == nullptr ? nullptr : FindPin(*block, pin_name);
  return found == nullptr ? std::string() : found->pin_type;
}

point PinCentre(const dvblock& block, const pin& of) {
  return {block.x + of.pin_x + kPinCentre, block.y + of.pin_y + kPinCentre};
}

bool Touches(const net& wire, std::int64_t block_id) {
  return wire.id_1 == block_id || wire.id_2 == block_id;
}

void UpdateNetEnds(design& document, const dvblock& block) {
  for (net& wire : document.nets) {
    if (wire.id_1 == block.id) MoveFirstEnd(wire, block);
    if (wire.id_2 == block.id) MoveSecondEnd(wire, block);
  }
}

void UpdateNetEndsOfSelection(design& document) {
  std::unordered_map<std::int64_t, const dvblock*, id_hash> selected;
  for (const dvblock& block : document.blocks) {
    if (block.selected) selected.insert_or_assign(block.id, &block);
  }
  if (selected.empty()) return;
  for (net& wire : document.nets) {
    const auto first = selected.find(wire.id_1);
    if (first != selected.end()) MoveFirstEnd(wire, *first->second);
    const auto second = selected.find(wire.id_2);
    if (second != selected.end()) MoveSecondEnd(wire, *second->second);
  }
}

void ClearSelection(design& document) {
  for (dvblock& block : document.blocks) block.selected = false;
  for (textblock& note : document.texts) note.selected = false;
  document.has_selection = false;
}

void ClearDesign(design& document) {
  document.blocks.Clear();
  document.nets.Clear();
  document.texts.Clear();
  document.next_block_id = document.next_net_id = document.next_text_id = 0;
  document.has_selection = false;
}

double NoteHeight(std::string_view text, std::int64_t width, const text_metrics& metrics) {
  const double height = metrics.ParagraphHeight(text, static_cast<double>(width));
  return std::min(height, static_cast<double>(kNoteBox));
}

void MeasureNote(textblock& note, const text_metrics& metrics) {
  std::string text = note.text_str;
  std::erase(text, '\r');
  note.width = 0;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    const std::string_view row = std::string_view(text).substr(start, end - start);
    note.width = std::max<std::int64_t>(note.width, std::llround(metrics.VisibleWidth(row) + 3));
    start = end + 1;
  }
  note.height = std::llround(NoteHeight(text, note.width, metrics));
}

}  // namespace mardel
