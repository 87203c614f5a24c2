// All that is to be said of a design: what keeps it from becoming a program, and what looks like a
// mistake.
#pragma once

#include <vector>

#include "codegen/design_reader.h"
#include "codegen/netlist.h"
#include "library/report.h"

namespace mardel {

struct [[nodiscard]] design_findings {
  design document;  // linked, without the blocks that no library has
  std::vector<report> errors, warnings;
  std::vector<net_node> nodes;  // refer to the design; none when a net joins pins of two types
};

// No pin is called unconnected that the file has wired.
design_findings FindAll(raw_design raw, const load_context& context, register_pool& pool);

// The warnings of a design that has become a program; `nodes` as BuildNetlist made them.
[[nodiscard]] std::vector<report> FindWarnings(const design& document,
                                               const std::vector<net_node>& nodes);

}  // namespace mardel
