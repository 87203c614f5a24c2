#include <algorithm>
#include <utility>

#include "codegen/findings/warnings.h"

namespace mardel {
namespace {

struct covered {
  rectangle box;
  std::size_t order = 0;  // of drawing
};

bool IsWithin(const rectangle& inner, const rectangle& outer) {
  return inner.x >= outer.x && inner.y >= outer.y &&
         inner.x + inner.width <= outer.x + outer.width &&
         inner.y + inner.height <= outer.y + outer.height;
}

// Of the boxes in drawing order, the positions of those that lie wholly under a later one.
std::vector<std::size_t> FindHidden(const std::vector<rectangle>& boxes) {
  std::vector<covered> by_left;
  std::int64_t widest = 0;
  for (const rectangle& box : boxes) {
    by_left.push_back({box, by_left.size()});
    widest = std::max(widest, box.width);
  }
  const auto left = [](const covered& of) { return of.box.x; };
  // Of a pile the last drawn comes first, which covers all others.
  std::ranges::sort(by_left, {}, [](const covered& of) {
    return std::pair(of.box.x, -static_cast<std::int64_t>(of.order));
  });
  std::vector<std::size_t> hidden;
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    auto first = std::ranges::lower_bound(by_left, boxes[i].x + boxes[i].width - widest, {}, left);
    for (; first != by_left.end() && first->box.x <= boxes[i].x; ++first) {
      if (first->order <= i || !IsWithin(boxes[i], first->box)) continue;
      hidden.push_back(i);
      break;
    }
  }
  return hidden;
}

template <class record>
std::vector<rectangle> Boxes(const cursor_list<record>& records) {
  std::vector<rectangle> boxes;
  for (const record& each : records) boxes.push_back({each.x, each.y, each.width, each.height});
  return boxes;
}

bool IsOnCanvas(const dvblock& block) {
  return block.x < kCanvasWidth && block.y < kCanvasHeight && block.x + block.width > 0 &&
         block.y + block.height > 0;
}

// One report for each hidden record.
template <class record, class function>
void WarnOfHidden(const cursor_list<record>& records, std::vector<report>& found, function warn) {
  auto each = records.begin();
  std::size_t position = 0;
  for (const std::size_t hidden : FindHidden(Boxes(records))) {
    for (; position < hidden; ++position) ++each;
    found.push_back(warn(*each));
  }
}

}  // namespace

std::vector<report> PlaceWarnings(const design& document) {
  constexpr const char* kTitle = "Place Warning";
  std::vector<report> found;
  for (const dvblock& block : document.blocks) {
    if (IsOnCanvas(block)) continue;
    found.push_back(Warning(rule::kOffCanvas, kTitle, "Off the canvas lies " + BlockName(block),
                            PlaceOf(block)));
  }
  WarnOfHidden(document.blocks, found, [](const dvblock& block) {
    return Warning(rule::kHidden, kTitle, "Wholly under another block lies " + BlockName(block),
                   PlaceOf(block));
  });
  WarnOfHidden(document.texts, found, [](const textblock& note) {
    return Warning(rule::kHidden, kTitle, "Wholly under another note lies \"" + note.text_str + '"',
                   {.at = point{note.x, note.y}});
  });
  return found;
}

}  // namespace mardel
