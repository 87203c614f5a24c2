// The question before unsaved changes would be lost.
#pragma once

#include "editor/design.h"
#include "platform/ui.h"

namespace mardel {

enum class guarded_command { kNew, kOpen, kQuit };

message UnsavedChangesQuestion(guarded_command command);

// Whether the command goes on after this answer. kept: quitting asks the other way round and goes
// on unless the answer is No, so that an odd answer never traps the user in the program.
bool GoesOn(guarded_command command, answer given);

// Asks only when there are unsaved changes.
bool MayLoseChanges(const design& document, guarded_command command, ui& desk);

}  // namespace mardel
