// What the user works on, what the hand on the mouse is doing, and what both reach of the outside.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "editor/design.h"
#include "editor/undo.h"
#include "platform/geometry.h"
#include "platform/open_windows.h"
#include "platform/ui.h"

namespace mardel {

struct pin_hit {
  std::int64_t id = 0;  // of the block
  std::int64_t pin_num = 0;
  std::string pin_name, pin_type, pin_desc;
  point at;  // of the mouse
};

struct resting {};
// `offset` is from the corner of what is dragged to the mouse, at the press.
struct block_drag {
  point offset;
};
struct wire_drag {
  pin_hit start;
};
struct rubber_band {
  point start;
};
struct note_drag {
  point offset;
};
struct group_move {
  point last;  // mouse position of the last step
};
// The arrow keys move the selection, until anything else happens.
struct arrow_move {};

// What the hand is at. But for the first and the last a press of the left button begins it and its
// release ends it.
using gesture =
    std::variant<resting, block_drag, wire_drag, rubber_band, note_drag, group_move, arrow_move>;

struct workspace {
  workspace(ui& desk, const text_metrics& measures)
      : windows(desk), canvas(desk), boxes(desk), metrics(measures) {}

  design document;
  undo_stack undo;
  gesture hand;
  open_windows windows;
  canvas_view& canvas;
  message_boxes& boxes;
  const text_metrics& metrics;
};

}  // namespace mardel
