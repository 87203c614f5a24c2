// The one function that every event goes to.
#pragma once

#include "app/program.h"
#include "platform/event.h"

namespace mardel {

// False when the program is to end.
bool HandleEvent(program& app, const event& happened);

}  // namespace mardel
