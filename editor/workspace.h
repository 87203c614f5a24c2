// What the user works on, and what the hand on the mouse is doing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "editor/design.h"
#include "editor/undo.h"
#include "platform/geometry.h"
#include "platform/ui.h"

namespace mardel {

enum class drag_mode { kNone, kBlock, kWire, kRubberBand, kNote, kGroup };

struct pin_hit {
  std::int64_t id = 0;  // of the block
  std::int64_t pin_num = 0;
  std::string pin_name, pin_type, pin_desc;
  point at;  // of the mouse
};

struct interaction {
  drag_mode mode = drag_mode::kNone;
  point offset;  // from the corner of the block or note that is dragged to the mouse, at the press
  point band_start;
  point last;  // mouse position of the last step of a group move
  std::optional<pin_hit> wire_start;
};

// The modal window over the design; number 0 while none is open.
enum class dialog_kind { kAddNote, kEditNote, kDevice, kPin };

struct open_dialog {
  dialog_kind kind = dialog_kind::kAddNote;
  int number = 0;            // as given by ui::OpenWindow
  std::int64_t subject = 0;  // id of the note or block that the window is about
};

struct workspace {
  design document;
  undo_stack undo;
  interaction hand;
  open_dialog dialog;
};

// What editing reaches of the outside.
struct surroundings {
  ui& desk;
  const text_metrics& metrics;
};

}  // namespace mardel
