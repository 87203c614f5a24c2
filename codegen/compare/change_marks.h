// Changes in the picture of a design.
#pragma once

#include <vector>

#include "codegen/compare/design_diff.h"
#include "platform/painter.h"

namespace mardel {

// Over the picture of the new design: green around what was added, orange around what was moved or
// changed, and in red, with dashes, what was removed.
void DrawMarks(painter& canvas, const std::vector<design_change>& changes);

}  // namespace mardel
