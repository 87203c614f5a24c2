// The program's work without a window or a display.
#pragma once

#include "app/command_line.h"

namespace mardel {

enum exit_status : int {
  kDone = 0,
  kRefused = 1,  // the design, or a tool
  kWrongUsage = 2,
  kFileOrToolMissing = 3,  // not read, not written, not started
};

// Does what was asked for (not verb::kWindow) and returns the process's exit status. Messages go to
// standard error.
int RunHeadless(const command_line& asked);

int ReportWrongUsage(const usage_error& error);

}  // namespace mardel
