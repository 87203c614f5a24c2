// Mouse and keys on the canvas: hover, drag, select, wire, delete.
#pragma once

#include "editor/workspace.h"
#include "platform/event.h"

namespace mardel {

constexpr int kScrollStep = 30;  // canvas pixels, of the arrow keys and the scroll bars

void HandleMouse(workspace& work, const canvas_mouse& mouse);
void HandleKey(workspace& work, const canvas_key& key);
// Moves the selection; scrolls when there is none.
void HandleArrow(workspace& work, const canvas_arrow& arrow);
void HandleWheel(canvas_view& canvas, const canvas_wheel& wheel);
// Whether the left button is down, so that the keys are to wait.
bool IsDragging(const gesture& hand);
// Ends any gesture where it is; nothing is wired or selected.
void HandleInterruption(workspace& work);

// Ends any gesture and drops the selection, as before each menu command and on Escape. Does not
// redraw: the caller does.
void ResetInteraction(workspace& work);

}  // namespace mardel
