#include "editor/design.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace mardel {

namespace {

const pin* FindPin(const dvblock& block, std::string_view name) {
  const auto found = std::ranges::find(block.pins, name, &pin::pin_name);
  return found == block.pins.end() ? nullptr : &*found;
}

auto* FindBlockIn(auto& blocks, std::int64_t id) {
  const auto found = std::ranges::find(blocks, id, &dvblock::id);
  return found == blocks.end() ? nullptr : &*found;
}

void FollowPin(std::int64_t& x, std::int64_t& y, const dvblock& block, std::string_view pin_name) {
  const pin* at = FindPin(block, pin_name);
  if (at == nullptr) return;
  const point centre = PinCentre(block, *at);
  x = centre.x;
  y = centre.y;
}

}  // namespace

const dvblock* FindBlock(const design& document, std::int64_t id) {
  return FindBlockIn(document.blocks, id);
}

dvblock* FindBlock(design& document, std::int64_t id) {
  return FindBlockIn(document.blocks, id);
}

std::string PinType(const design& document, std::int64_t block_id, std::string_view pin_name) {
  const dvblock* block = FindBlock(document, block_id);
  const pin* found = block == nullptr ? nullptr : FindPin(*block, pin_name);
  return found == nullptr ? std::string() : found->pin_type.Text();
}

point PinCentre(const dvblock& block, const pin& of) {
  return {block.x + of.pin_x + kPinCentre, block.y + of.pin_y + kPinCentre};
}

bool Touches(const net& wire, std::int64_t block_id) {
  return wire.id_1 == block_id || wire.id_2 == block_id;
}

void UpdateNetEnds(net& wire, const dvblock& block) {
  if (wire.id_1 == block.id) FollowPin(wire.x_1, wire.y_1, block, wire.pin_1_name);
  if (wire.id_2 == block.id) FollowPin(wire.x_2, wire.y_2, block, wire.pin_2_name);
}

void UpdateNetEnds(design& document, const dvblock& block) {
  for (net& wire : document.nets) UpdateNetEnds(wire, block);
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
  std::unordered_set<std::string_view> measured;  // a huge note repeats its short rows
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    const std::string_view row = std::string_view(text).substr(start, end - start);
    start = end + 1;
    if (!measured.insert(row).second) continue;
    note.width = std::max<std::int64_t>(note.width, std::llround(metrics.VisibleWidth(row) + 3));
  }
  note.height = std::llround(NoteHeight(text, note.width, metrics));
}

}  // namespace mardel
