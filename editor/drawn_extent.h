// How far a drawn design reaches.
#pragma once

#include <optional>

#include "editor/rendering.h"

namespace mardel {

// Canvas pixels; not rounded, and wide enough for any place that a file can name.
struct extent {
  double left = 0, top = 0, right = 0, bottom = 0;
  bool operator==(const extent&) const = default;
};

// Of all that is drawn but background and grid; nothing for an empty design.
std::optional<extent> DrawnExtent(const design& document, const drawing_context& context);

}  // namespace mardel
