// The program's work without a window or a display.
#pragma once

#include "app/command_line.h"

namespace mardel {

enum class [[nodiscard]] exit_status : int {
  kDone = 0,
  kRefused = 1,  // the design, or a tool
  kWrongUsage = 2,
  kFileOrToolMissing = 3,  // not read, not written, not started
};

// Messages go to standard error.
exit_status Run(const list_request& asked);
exit_status Run(const help_request& asked);
exit_status Run(const version_request& asked);
exit_status Run(const usage_error& wrong);

}  // namespace mardel
