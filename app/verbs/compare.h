// Designs compared and merged as their files have them, without libraries.
#pragma once

#include "app/headless.h"

namespace mardel {

exit_status Run(const diff_request& asked);
exit_status Run(const merge_request& asked);

}  // namespace mardel
