// The call lines of a source file, which the preprocessor expands.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "codegen/netlist.h"
#include "editor/design.h"

namespace mardel {

// Appends one line for each block; none of them stands for a register. Ends at the first parameter
// without a value, leaving that block's line out, and returns what to report of it.
[[nodiscard]] std::optional<report> AppendCalls(std::string& text,
                                                std::span<const dvblock* const> blocks,
                                                const std::vector<net_node>& nodes);

}  // namespace mardel
