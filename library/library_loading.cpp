#include "library/library_loading.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/text.h"

namespace mardel {

namespace {

constexpr std::int64_t kPinPitch = 10;
constexpr std::int64_t kPinInset = 2;  // from the block's edge to its pins
constexpr std::int64_t kMargin = 24;

struct side_counts {
  std::int64_t left = 0, right = 0, top = 0, bottom = 0;

  std::int64_t* Of(std::string_view side) {
    if (side == "L") return &left;
    if (side == "R") return &right;
    if (side == "T") return &top;
    return side == "B" ? &bottom : nullptr;
  }
};

void PlacePin(pin& placed, const blockdef& block, side_counts& counts) {
  std::int64_t* count = counts.Of(placed.pin_side);
  if (count == nullptr) return;
  const std::int64_t along = kPinPitch * ++*count;
  const bool is_on_upright_edge = count == &counts.left || count == &counts.right;
  const std::int64_t extent = is_on_upright_edge ? block.width : block.height;
  const bool is_on_near_edge = count == &counts.left || count == &counts.top;
  const std::int64_t across = is_on_near_edge ? kPinInset : extent - kPinInset - kPinSize;
  placed.pin_x = is_on_upright_edge ? across : along;
  placed.pin_y = is_on_upright_edge ? along : across;
}

}  // namespace

void LayOut(blockdef& block, const text_metrics& metrics) {
  side_counts totals;
  for (const pin& p : block.pins) {
    if (std::int64_t* count = totals.Of(p.pin_side)) ++*count;
  }
  const std::int64_t text_width = std::llround(metrics.Width(block.sub));
  const std::int64_t text_height = std::llround(metrics.LineHeight());
  const std::int64_t across = kPinPitch * std::max(totals.top, totals.bottom);
  const std::int64_t down = kPinPitch * std::max(totals.left, totals.right);
  block.width = std::max(text_width, across) + kMargin;
  block.height = std::max(text_height, down) + kMargin;

  side_counts counts;
  for (pin& p : block.pins) PlacePin(p, block, counts);
}

library& CurrentLibrary(library_loading& so_far) {
  return so_far.records.libraries[so_far.current];
}

void AddLibrary(library_loading& so_far, library added) {
  so_far.current = so_far.records.libraries.size();
  so_far.library_by_upper_name.try_emplace(UpperCase(added.name), so_far.current);
  so_far.records.libraries.push_back(std::move(added));
}

const library* SelectIgnoringCase(library_loading& so_far, std::string_view name) {
  const auto found = so_far.library_by_upper_name.find(UpperCase(name));
  if (found == so_far.library_by_upper_name.end()) return nullptr;
  so_far.current = found->second;
  return &CurrentLibrary(so_far);
}

void RegisterStaged(library_loading& so_far, const std::string& title) {
  so_far.records.groups.push_back({title, so_far.staged.size()});
  for (blockdef& block : so_far.staged) {
    block.id = so_far.next_id++;
    LayOut(block, so_far.metrics);
    so_far.records.definitions.push_back(std::move(block));
  }
  so_far.staged.clear();
}

}  // namespace mardel
