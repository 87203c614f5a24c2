// Select all, cut, copy and paste. The clipboard holds the text of a design file.
#pragma once

#include "app/program.h"
#include "platform/event.h"

namespace mardel {

// Does nothing while the mouse drags something. What can't be pasted says so in the status bar and
// changes nothing.
void RunShortcut(program& app, edit_shortcut shortcut);

}  // namespace mardel
