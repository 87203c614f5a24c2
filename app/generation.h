// From the design to a source file, and on through the chip maker's tools.
#pragma once

#include <optional>
#include <variant>
#include <vector>

#include "app/program.h"
#include "codegen/netlist.h"

namespace mardel {

// The nodes of a design that can become a program, or the first problem that keeps it from that.
[[nodiscard]] std::variant<std::vector<net_node>, report> ReadyNodes(const design& document,
                                                                     register_pool& pool);

// The window's commands; `location` is the program location, or nothing to run from RAM. kept: when
// the source file can't be created, the tools run on whatever stands under its name.
void Generate(program& app, std::optional<int> location);

}  // namespace mardel
