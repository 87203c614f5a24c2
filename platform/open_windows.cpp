#include "platform/open_windows.h"

#include <utility>

namespace mardel {

int open_windows::Open(const window& contents, window_steps steps) {
  if (contents.modality == window_modality::kModal) desk_.DisableMainWindow();
  const int number = desk_.OpenWindow(contents);
  open_.insert_or_assign(number, entry{contents.modality, std::move(steps)});
  return number;
}

void open_windows::Close(int number) {
  const auto closed = open_.extract(number);
  if (closed.empty()) return;
  desk_.CloseWindow(number);
  if (closed.mapped().modality == window_modality::kModal) desk_.EnableMainWindow();
}

// A step may close its window, so a copy of it runs.
void open_windows::Use(const gadget_used& used) {
  const auto found = open_.find(used.window);
  if (found == open_.end()) return;
  const auto use = found->second.steps.use;
  use(used);
}

void open_windows::RequestClose(const window_close_requested& request) {
  const auto found = open_.find(request.window);
  if (found == open_.end()) return;
  const auto close = found->second.steps.close;
  if (close) close(request.window);
}

}  // namespace mardel
