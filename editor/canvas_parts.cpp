#include "editor/canvas_parts.h"

#include <string_view>
#include <unordered_map>

#include "platform/hash.h"
#include "platform/text.h"

namespace mardel {
namespace {

constexpr std::size_t kMostText = 1000;  // bytes of one name

using wire_ends = std::unordered_map<std::string, std::string, text_hash>;

std::string End(std::int64_t block_id, std::string_view pin_name) {
  return std::to_string(block_id) + ' ' + std::string(pin_name);
}

void AddEnd(std::string& wired, const std::string& other) {
  if (wired.size() > kMostText) return;
  wired += (wired.empty() ? ", wired to " : ", ") + other;
}

// By each end, what is at the others.
wire_ends EndsOf(const design& document) {
  std::unordered_map<std::int64_t, std::string_view, id_hash> subs;
  for (const dvblock& block : document.blocks) subs.emplace(block.id, block.sub);
  const auto named = [&subs](std::int64_t id, const std::string& pin_name) {
    const auto found = subs.find(id);
    return (found == subs.end() ? std::string() : std::string(found->second)) + ' ' +
           std::to_string(id) + " pin " + pin_name;
  };
  wire_ends ends;
  for (const net& wire : document.nets) {
    AddEnd(ends[End(wire.id_1, wire.pin_1_name)], named(wire.id_2, wire.pin_2_name));
    AddEnd(ends[End(wire.id_2, wire.pin_2_name)], named(wire.id_1, wire.pin_1_name));
  }
  return ends;
}

}  // namespace

std::vector<canvas_part> CanvasParts(const design& document) {
  wire_ends ends = EndsOf(document);
  std::vector<canvas_part> parts;
  for (const dvblock& block : document.blocks) {
    parts.push_back({canvas_part::kind::kBlock,
                     "Block " + block.sub + ' ' + std::to_string(block.id) + " of " + block.lib,
                     {block.x, block.y, block.width, block.height}});
    for (const pin& each : block.pins) {
      const std::string& wired = ends[End(block.id, each.pin_name)];
      parts.push_back({canvas_part::kind::kPin,
                       "Pin " + each.pin_name + (wired.empty() ? ", not wired" : wired),
                       {block.x + each.pin_x, block.y + each.pin_y, kPinSize, kPinSize}});
    }
  }
  for (const textblock& note : document.texts) {
    parts.push_back({canvas_part::kind::kNote,
                     "Note " + CutMiddle(note.text_str, kMostText),
                     {note.x, note.y, note.width, note.height}});
  }
  return parts;
}

}  // namespace mardel
