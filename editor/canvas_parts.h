// The design in words, for a screen reader.
#pragma once

#include <vector>

#include "editor/design.h"
#include "platform/canvas_part.h"

namespace mardel {

// Each block followed by its pins, which say what they are wired to; then the notes.
std::vector<canvas_part> CanvasParts(const design& document);

}  // namespace mardel
