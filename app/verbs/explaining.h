// Which register each wire becomes and why.
#pragma once

#include "app/headless.h"

namespace mardel {

exit_status Run(const explain_request& asked);

}  // namespace mardel
