// Mouse and keys on the canvas: hover, drag, select, wire, delete.
#pragma once

#include "editor/workspace.h"
#include "library/records.h"
#include "platform/event.h"

namespace mardel {

void HandleMouse(workspace& work, const surroundings& outside, const canvas_mouse& mouse);
void HandleKey(workspace& work, const surroundings& outside, const canvas_key& key);
void HandleWheel(const surroundings& outside, const canvas_wheel& wheel);
// Ends any drag where it is; nothing is wired or selected.
void HandleInterruption(workspace& work, const surroundings& outside);

// Leaves every mode and drops the selection, as before each menu command and on Escape. Does
// not redraw: the caller does.
void ResetInteraction(workspace& work, const surroundings& outside);

// A new block of this definition at (10, 10), on top.
void PlaceBlock(workspace& work, const surroundings& outside, const blockdef& definition);

void Undo(workspace& work, const surroundings& outside);

}  // namespace mardel
