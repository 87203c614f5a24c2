// "Add Text Item" and "Edit Text Item": the text of a note.
#pragma once

#include "editor/workspace.h"

namespace mardel {

void OpenAddNote(workspace& work);
void OpenEditNote(workspace& work, const textblock& note);

}  // namespace mardel
