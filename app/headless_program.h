// The program without a window: what the verbs of the command line share.
#pragma once

#include <string>

#include "app/headless.h"
#include "codegen/design_file.h"
#include "codegen/settings.h"
#include "library/library_set.h"
#include "library/register_pool.h"
#include "platform/painter.h"

namespace mardel {

struct headless_program {
  // Reads settings and libraries. `measures` must outlive the program.
  explicit headless_program(const text_metrics& measures);

  const text_metrics& metrics;
  settings options;
  library_set libraries;
  register_pool registers;
};

// A line on standard error. `prefix` goes before the report, such as "echo.mrd: ".
void Print(const report& told, const std::string& prefix = {});

// Says why on standard error; returns `status`.
exit_status Fail(exit_status status, const std::string& line);

// Lines of text to standard output.
exit_status WriteOut(std::string text);

// What is wrong with the file is printed.
loaded_design Load(const headless_program& run, const std::string& path,
                   const std::string& prefix = {});

// A block that no library has refuses the design whole, so that nothing is made with a hole.
exit_status StatusOf(const loaded_design& loaded);

}  // namespace mardel
