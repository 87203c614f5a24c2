// The picture of a design as a file.
#pragma once

#include "app/headless.h"

namespace mardel {

exit_status Run(const render_request& asked);

}  // namespace mardel
