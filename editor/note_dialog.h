// "Add Text Item" and "Edit Text Item": the text of a note.
#pragma once

#include "editor/workspace.h"

namespace mardel {

window AddNoteWindow();
window EditNoteWindow(const textblock& note);

// On OK, while the window is open. Nothing but line breaks is no text: adding it does nothing,
// editing a note to it deletes the note.
void AddTypedNote(workspace& work, const surroundings& outside);
void ApplyTypedNote(workspace& work, const surroundings& outside);

}  // namespace mardel
