// The secondary windows that are open. Each is one entry that says what its gadgets do and what
// follows when the user asks to close it.
#pragma once

#include <functional>
#include <map>

#include "platform/event.h"
#include "platform/ui.h"

namespace mardel {

struct window_steps {
  std::function<void(const gadget_used& used)> use;
  // Without one the window's own gadgets are the only way out.
  std::function<void(int number)> close = nullptr;
};

class open_windows {
 public:
  explicit open_windows(secondary_windows& desk) : desk_(desk) {}

  // Disables the main window first when `contents` is modal. Returns the window's number.
  int Open(const window& contents, window_steps steps);
  // Enables the main window after a modal one.
  void Close(int number);

  // Events of windows that are closed already are dropped.
  void Use(const gadget_used& used);
  void RequestClose(const window_close_requested& request);

  // What was typed and checked in them.
  secondary_windows& Desk() const { return desk_; }

 private:
  struct entry {
    window_modality modality = window_modality::kModal;
    window_steps steps;
  };

  secondary_windows& desk_;
  std::map<int, entry> open_;
};

}  // namespace mardel
