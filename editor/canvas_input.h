// Mouse and keys on the canvas: hover, drag, select, wire, delete.
#pragma once

#include "editor/workspace.h"
#include "platform/event.h"

namespace mardel {

void HandleMouse(workspace& work, const canvas_mouse& mouse);
void HandleKey(workspace& work, const canvas_key& key);
void HandleWheel(canvas_view& canvas, const canvas_wheel& wheel);
// Ends any gesture where it is; nothing is wired or selected.
void HandleInterruption(workspace& work);

// Ends any gesture and drops the selection, as before each menu command and on Escape. Does not
// redraw: the caller does.
void ResetInteraction(workspace& work);

}  // namespace mardel
