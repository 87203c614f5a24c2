// What happened, as plain values. The desktop delivers each event to one function of the program,
// which handles it to completion before the next is taken.
#pragma once

#include <cstdint>
#include <variant>

#include "platform/geometry.h"

namespace mardel {

struct menu_chosen {
  int id = 0;  // also for shortcuts
};

enum class mouse_action { kMove, kLeftPress, kLeftRelease, kRightPress };

struct canvas_mouse {
  mouse_action action = mouse_action::kMove;
  point at;  // canvas pixels; outside the canvas while a button is held
};

struct canvas_wheel {
  int steps = 0;  // positive away from the user
};

struct canvas_key {
  int code = 0;
};
// The key that deletes backwards; the Delete key sends the same code.
constexpr int kDeleteKeyCode = 127;

// The window lost the mouse in the middle of a drag (focus lost, a modal window of the desktop).
struct canvas_interrupted {};

struct gadget_used {
  int window = 0;  // as given by ui::OpenWindow
  int gadget = 0;  // gadget::id
};

struct window_close_requested {
  int window = 0;
};

struct main_window_resized {};

struct main_window_close_requested {};

using event = std::variant<menu_chosen, canvas_mouse, canvas_wheel, canvas_key, canvas_interrupted,
                           gadget_used, window_close_requested, main_window_resized,
                           main_window_close_requested>;

}  // namespace mardel
