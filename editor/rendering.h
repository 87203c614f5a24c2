// The one way a design is drawn: on the screen, into a picture file, or for a test.
#pragma once

#include "editor/design.h"
#include "library/library_set.h"
#include "platform/painter.h"

namespace mardel {

enum class grid { kHidden, kShown };

struct drawing_context {
  const library_set& libraries;
  const text_metrics& metrics;
  grid lines = grid::kHidden;
};

// Bottom to top: background, grid, blocks, nets, notes.
void DrawDesign(painter& canvas, const design& document, const drawing_context& context);

}  // namespace mardel
