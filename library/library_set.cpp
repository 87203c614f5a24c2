#include "library/library_set.h"

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

const library* library_set::FindLibrary(std::string_view name) const {
  const auto found = library_by_name_.find(name);
  return found == library_by_name_.end() ? nullptr : &libraries_[found->second];
}

std::span<const std::size_t> library_set::FindDefinitions(std::string_view lib,
                                                          std::string_view sub) const {
  const auto in_library = definitions_by_name_.find(lib);
  if (in_library == definitions_by_name_.end()) return {};
  const auto found = in_library->second.find(sub);
  if (found == in_library->second.end()) return {};
  return found->second;
}

const blockdef* library_set::FindDefinition(int menu_id) const {
  // Ids grow along the list.
  const auto found = std::lower_bound(definitions_.begin(), definitions_.end(), menu_id,
                                      [](const blockdef& block, int id) { return block.id < id; });
  return found != definitions_.end() && found->id == menu_id ? &*found : nullptr;
}

void library_set::AddLibrary(library added) {
  current_ = libraries_.size();
  library_by_name_.try_emplace(added.name, current_);
  library_by_upper_name_.try_emplace(UpperCase(added.name), current_);
  libraries_.push_back(std::move(added));
}

const library* library_set::SelectIgnoringCase(std::string_view name) {
  const auto found = library_by_upper_name_.find(UpperCase(name));
  if (found == library_by_upper_name_.end()) return nullptr;
  current_ = found->second;
  return &libraries_[current_];
}

void library_set::RegisterStaged(const std::string& title, menu_builder& builder) {
  menu_item submenu;
  submenu.kind = menu_item_kind::kSubmenu;
  submenu.text = title;
  for (blockdef& block : staged) {
    block.id = builder.next_id++;
    LayOut(block, builder.metrics);
    menu_item& place = submenu.items.emplace_back();
    place.text = block.sub;
    place.id = block.id;
    definitions_by_name_[block.lib][block.sub].push_back(definitions_.size());
    definitions_.push_back(std::move(block));
  }
  staged.clear();
  builder.libraries.items.push_back(std::move(submenu));
}

}  // namespace mardel
