// The folder to start from: sample designs and their libraries, and in a folder of the user's
// choice a configuration that names these.
#pragma once

#include "app/headless.h"

namespace mardel {

// Names the folder made on standard output. What stands there already is left as it is, and is a
// refusal.
exit_status Run(const init_request& asked);

// Makes the programs folder for a user who has neither that nor a configuration. Says what it made,
// or why it could not, and returns it; nothing where there was nothing to do.
std::string MakeSamplesOnce();

}  // namespace mardel
