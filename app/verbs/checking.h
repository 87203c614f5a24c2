// What --check and --generate share, so that they agree.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/headless_program.h"
#include "app/report_formats.h"
#include "codegen/netlist.h"

namespace mardel {

struct checked_design {
  load_status status = load_status::kLoaded;
  design document;
  std::vector<net_node> nodes;  // refer to the document
  std::vector<found_report> errors, warnings;
};

// Reads, links and checks the design that the command line names so. Takes all memory registers
// back first. Reports get their lines in the file where the format tells them.
[[nodiscard]] checked_design CheckInput(headless_program& run, const std::string& path,
                                        report_format format = report_format::kText);

// Why the design is refused, as the window would say it: all blocks that no library has, else the
// first problem.
void PrintRefusal(const checked_design& checked);

// As its reports say, and whether warnings refuse.
exit_status StatusOf(const checked_design& checked, warning_effect warnings);

exit_status Run(const check_request& asked);

}  // namespace mardel
