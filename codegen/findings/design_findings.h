// All that is to be said of a design: what keeps it from becoming a program, and what looks like a
// mistake.
#pragma once

#include <vector>

#include "codegen/findings/raw_design.h"
#include "codegen/netlist.h"
#include "library/library_set.h"
#include "library/report.h"

namespace mardel {

struct design_findings {
  std::vector<report> errors, warnings;
  std::vector<net_node> nodes;  // refer to the design; none when a net joins pins of two types
};

// `linked` is the raw design with its blocks linked to their definitions; without those that no
// library has, which were reported before. No pin is called unconnected that the file has wired.
[[nodiscard]] design_findings FindAll(const raw_design& raw, const design& linked,
                                      const library_set& libraries, register_pool& pool);

}  // namespace mardel
