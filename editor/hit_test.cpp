#include "editor/hit_test.h"

#include <iterator>

namespace mardel {
namespace {

bool Contains(const rectangle& area, point at) {
  return area.x <= at.x && at.x < area.x + area.width && area.y <= at.y &&
         at.y < area.y + area.height;
}

template <class record>
raised<record> RaiseLastAt(cursor_list<record>& list, point at) {
  for (auto each = list.rbegin(); each != list.rend(); ++each) {
    if (!Contains({each->x, each->y, each->width, each->height}, at)) continue;
    const bool is_moved = each != list.rbegin();
    list.MoveToEnd(std::prev(each.base()));
    return {&list.Last(), is_moved};
  }
  return {};
}

}  // namespace

raised<dvblock> RaiseBlockAt(design& document, point at) {
  return RaiseLastAt(document.blocks, at);
}

raised<textblock> RaiseNoteAt(design& document, point at) {
  return RaiseLastAt(document.texts, at);
}

std::optional<pin_hit> HitPin(const dvblock& block, point at) {
  for (const pin& each : block.pins) {
    if (!Contains({block.x + each.pin_x, block.y + each.pin_y, kPinSize, kPinSize}, at)) continue;
    return pin_hit{block.id, each.pin_num, each.pin_name, each.pin_type, each.pin_desc, at};
  }
  return std::nullopt;
}

}  // namespace mardel
