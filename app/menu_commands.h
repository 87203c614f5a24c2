// What the menu items do.
#pragma once

#include "app/program.h"

namespace mardel {

// Leaves every mode and drops the selection first. An id that belongs to nothing does no more.
void RunMenuCommand(program& app, int id);

}  // namespace mardel
