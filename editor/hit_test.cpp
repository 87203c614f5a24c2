#include "editor/hit_test.h"

#include <iterator>

namespace mardel {
namespace {

bool Contains(const rectangle& area, point at) {
  return area.x <= at.x && at.x < area.x + area.width && area.y <= at.y &&
         at.y < area.y + area.height;
}

template <class T>
T* HitLast(cursor_list<T>& list, point at) {
  for (auto each = list.rbegin(); each != list.rend(); ++each) {
    if (!Contains({each->x, each->y, each->width, each->height}, at)) continue;
    list.MoveToEnd(std::prev(each.base()));
    return &list.Last();
  }
  return nullptr;
}

}  // namespace

dvblock* HitBlock(design& document, point at) {
  return HitLast(document.blocks, at);
}

textblock* HitNote(design& document, point at) {
  return HitLast(document.texts, at);
}

std::optional<pin_hit> HitPin(const dvblock& block, point at) {
  for (const pin& each : block.pins) {
    if (!Contains({block.x + each.pin_x, block.y + each.pin_y, kPinSize, kPinSize}, at)) continue;
    return pin_hit{block.id, each.pin_num, each.pin_name, each.pin_type, each.pin_desc, at};
  }
  return std::nullopt;
}

}  // namespace mardel
