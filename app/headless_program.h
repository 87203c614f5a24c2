// The program without a window: what the verbs of the command line share.
#pragma once

#include <string>

#include "app/console_ui.h"
#include "app/headless.h"
#include "app/program.h"

namespace mardel {

struct headless_program {
  // With settings and libraries read. `output` answers the save requester; `measures` must outlive
  // the program.
  headless_program(const std::string& output, const text_metrics& measures);

  console_ui desk;
  host_process_runner runner;
  host_clock time;
  program app;
};

// Says why on standard error; returns `status`.
exit_status Fail(exit_status status, const std::string& line);

// Opens the design. A block that no library has refuses it whole, so that nothing is made with a
// hole.
exit_status LoadWhole(program& app, const std::string& path);

}  // namespace mardel
