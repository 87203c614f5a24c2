#include <algorithm>
#include <limits>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "codegen/design_reader.h"
#include "codegen/net_ends.h"

namespace mardel {
namespace {

// What all definitions of one (lib, sub) say together: of equal names the last one in list order.
struct linkage {
  const blockdef* last = nullptr;
  std::unordered_map<std::string_view, const pin*, text_hash> pins;
  std::unordered_map<std::string_view, const param*, text_hash> params;
};

linkage Link(const library_set& libraries, std::span<const std::size_t> definitions) {
  linkage link;
  for (const std::size_t index : definitions) {
    link.last = &libraries.Definitions()[index];
    for (const pin& p : link.last->pins) link.pins[p.pin_name] = &p;
    for (const param& p : link.last->params) link.params[p.param_name] = &p;
  }
  return link;
}

void Apply(const linkage& link, dvblock& block) {
  block.width = link.last->width;
  block.height = link.last->height;
  for (pin& p : block.pins) {
    const auto found = link.pins.find(p.pin_name);
    if (found == link.pins.end()) continue;
    const pin& defined = *found->second;
    p.pin_name = defined.pin_name;  // an equal text, but shared
    p.pin_desc = defined.pin_desc;
    p.pin_side = defined.pin_side;
    p.pin_type = defined.pin_type;
    p.pin_x = defined.pin_x;
    p.pin_y = defined.pin_y;
  }
  for (param& p : block.params) {
    const auto found = link.params.find(p.param_name);
    if (found == link.params.end()) continue;
    p.param_name = found->second->param_name;
    p.param_desc = found->second->param_desc;
    p.param_type = found->second->param_type;
  }
}

constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

void RaisePast(std::int64_t& next, std::int64_t id) {
  if (id >= next) next = id == kLargest ? kLargest : id + 1;
}

// Beside the largest number there is no room to go on: the ids then go on in the widest gap.
template <class record>
void LeaveRoom(std::int64_t& next, const cursor_list<record>& list, std::int64_t record::* id) {
  constexpr std::int64_t kRoom = std::int64_t{1} << 40U;
  if (next < kLargest - kRoom) return;
  std::vector<std::int64_t> taken{-1};
  for (const record& each : list) taken.push_back(std::max<std::int64_t>(each.*id, -1));
  std::ranges::sort(taken);
  std::int64_t widest = 0;
  for (std::size_t i = 1; i < taken.size(); ++i) {
    const std::int64_t gap = taken[i] - (taken[i - 1] + 1);
    if (gap <= widest) continue;
    widest = gap;
    next = taken[i - 1] + 1;
  }
}

report MissingBlock(const dvblock& block) {
  return {.kind = rule::kMissingBlock,
          .text = {"Library block Error",
                   "Block from library " + block.lib + " named " + block.sub +
                       " was not found, check you have the proper library in the directory. "
                       "Block has been removed from the design."},
          .where = {.block_id = block.id, .at = point{block.x, block.y}}};
}

template <class record, class predicate>
void DeleteWhere(cursor_list<record>& list, predicate is_meant) {
  for (auto element = list.begin(); element != list.end();) {
    element = is_meant(*element) ? list.Delete(element) : std::next(element);
  }
}

relinking RelinkBlocks(design& document, const library_set& libraries) {
  std::unordered_map<const std::size_t*, linkage> links;
  std::unordered_set<std::int64_t, id_hash> removed_ids;
  relinking done;
  DeleteWhere(document.blocks, [&](dvblock& block) {
    const auto definitions = libraries.FindDefinitions(block.lib, block.sub);
    if (definitions.empty()) {
      done.missing.push_back(MissingBlock(block));
      removed_ids.insert(block.id);
      return true;
    }
    const auto [link, is_new] = links.try_emplace(definitions.data());
    if (is_new) link->second = Link(libraries, definitions);
    Apply(link->second, block);
    RaisePast(document.next_block_id, block.id);
    return false;
  });
  if (removed_ids.empty()) return done;
  DeleteWhere(document.nets, [&](net& wire) {
    if (!removed_ids.contains(wire.id_1) && !removed_ids.contains(wire.id_2)) return false;
    done.removed.push_back(std::move(wire));
    return true;
  });
  return done;
}

// Where pins repeat, the last one of the last block of an id counts; ends on no pin stay.
void PlaceNetEnds(design& document) {
  const net_ends ends(document.nets);
  std::vector<std::optional<point>> centres(ends.Count());
  for (const dvblock& block : document.blocks) {
    for (const pin& p : block.pins) {
      const std::uint32_t end = ends.Find(block.id, p.pin_name);
      if (end != kNoNumber) centres[end] = PinCentre(block, p);
    }
  }
  auto pair = ends.Pairs().begin();
  for (net& wire : document.nets) {
    RaisePast(document.next_net_id, wire.net_id);
    if (const auto& centre = centres[pair->first]) {
      wire.x_1 = centre->x;
      wire.y_1 = centre->y;
    }
    if (const auto& centre = centres[pair->second]) {
      wire.x_2 = centre->x;
      wire.y_2 = centre->y;
    }
    ++pair;
  }
}

}  // namespace

relinking RelinkDesign(design& document, const load_context& context) {
  relinking done = RelinkBlocks(document, context.libraries);
  // kept: without blocks the nets are passed over, their ids too.
  if (!document.blocks.empty()) PlaceNetEnds(document);
  for (textblock& note : document.texts) {
    RaisePast(document.next_text_id, note.id);
    MeasureNote(note, context.metrics);
  }
  LeaveRoom(document.next_block_id, document.blocks, &dvblock::id);
  LeaveRoom(document.next_net_id, document.nets, &net::net_id);
  LeaveRoom(document.next_text_id, document.texts, &textblock::id);
  return done;
}

}  // namespace mardel
