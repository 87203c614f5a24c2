#include "editor/dialog_parts.h"

namespace mardel {

void OpenDialog(workspace& work, const window& contents, const dialog_steps& steps) {
  const auto cancel = [&work, steps](int number) {
    work.windows.Close(number);
    steps.after_cancel();
  };
  // kept: after OK the design counts as changed even when nothing was typed or checked.
  const auto confirm = [&work, steps](int number) {
    steps.apply(number);
    work.windows.Close(number);
    work.document.unsaved_changes = true;
    steps.after_ok();
  };
  const auto use = [confirm, cancel](const gadget_used& used) {
    if (used.gadget == kOkGadget) confirm(used.window);
    if (used.gadget == kCancelGadget) cancel(used.window);
  };
  work.windows.Open(contents, {.use = use, .close = cancel});
}

}  // namespace mardel
