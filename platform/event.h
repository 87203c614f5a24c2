// What happened, as plain values. The desktop delivers each event to one function of the program,
// which handles it to completion before the next is taken.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "platform/geometry.h"

namespace mardel {

struct menu_chosen {
  int id = 0;  // also for shortcuts
};

// A double click follows the release of the second press of a quick pair without a motion.
enum class mouse_action { kMove, kLeftPress, kLeftRelease, kRightPress, kDoubleClick };

struct canvas_mouse {
  mouse_action action = mouse_action::kMove;
  point at;  // canvas pixels; outside the canvas while a button is held
};

struct canvas_wheel {
  point tenths;  // of a wheel's step; positive away from the user, or to the left
};

struct canvas_key {
  int code = 0;
};
// The key that deletes backwards; the Delete key sends the same code.
constexpr int kDeleteKeyCode = 127;

struct canvas_arrow {
  point direction;  // (-1, 0), (1, 0), (0, -1) or (0, 1)
  bool with_shift = false;
  bool is_repeat = false;  // the key is still held
};

enum class edit_shortcut { kSelectAll, kCut, kCopy, kPaste };

struct canvas_shortcut {
  edit_shortcut what = edit_shortcut::kSelectAll;
};

// The window lost the mouse in the middle of a drag (focus lost, a modal window of the desktop).
struct canvas_interrupted {};

struct gadget_used {
  int window = 0;  // as given by ui::OpenWindow
  int gadget = 0;  // gadget::id
};

struct window_close_requested {
  int window = 0;
};

// Something was dropped on the main window.
struct files_dropped {
  std::vector<std::string> paths;  // "" for what is no file of this machine
};

struct main_window_resized {};

struct main_window_close_requested {};

using event =
    std::variant<menu_chosen, canvas_mouse, canvas_wheel, canvas_key, canvas_arrow, canvas_shortcut,
                 canvas_interrupted, files_dropped, gadget_used, window_close_requested,
                 main_window_resized, main_window_close_requested>;

}  // namespace mardel
