// Unsaved work and earlier versions from the command line.
#pragma once

#include "app/headless.h"

namespace mardel {

exit_status Run(const recover_request& asked);
exit_status Run(const history_request& asked);

}  // namespace mardel
