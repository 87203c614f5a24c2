// The source of a design, and the tools run on it.
#pragma once

#include "app/headless.h"

namespace mardel {

exit_status Run(const generate_request& asked);

}  // namespace mardel
