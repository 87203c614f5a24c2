// The folder to start from: sample designs, their libraries, and a configuration that names these.
#pragma once

#include "app/headless.h"

namespace mardel {

// Names the folder made on standard output. What stands there already is left as it is, and is a
// refusal.
exit_status Run(const init_request& asked);

// The same for the programs folder, unless something stands there.
void MakeSamplesOnce();

}  // namespace mardel
