// The program without a window: what the verbs of the command line share.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/headless.h"
#include "app/report_formats.h"
#include "codegen/design_file.h"
#include "codegen/settings.h"
#include "library/library_set.h"
#include "library/register_pool.h"
#include "platform/painter.h"

namespace mardel {

struct headless_program {
  // Reads settings and libraries. `measures` must outlive the program.
  explicit headless_program(const text_metrics& measures, const setting_paths& from = {});

  const text_metrics& metrics;
  settings options;
  library_set libraries;
  register_pool registers;
  std::vector<found_report> reports;  // of the configuration and the libraries
  // Not kDone when a file or folder that the command line names is not there.
  exit_status status = exit_status::kDone;
};

// A line on standard error for each.
void PrintReports(std::span<const found_report> reports);

// Bytes to standard output.
exit_status WriteOut(std::string_view text);

// Says why on standard error; returns `status`.
exit_status Fail(exit_status status, const std::string& line);

// For designs of this host; refers to the program.
load_context LoadContext(const headless_program& run);

}  // namespace mardel
