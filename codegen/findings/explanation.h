// How a design becomes its source: which register each wire is, and which line each block.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "codegen/findings/node_explanation.h"
#include "codegen/settings.h"
#include "codegen/source_lines.h"

namespace mardel {

struct explained_block {
  const dvblock* block = nullptr;
  std::vector<std::string> lines;  // of the source; none for a constant, say
  std::string problem;             // why a call is missing; "" when none is
};

struct explanation {
  std::vector<explained_node> nodes;
  std::string source;  // the declarations and calls that the blocks' lines are parts of
  std::vector<explained_block> blocks;
  std::vector<std::string_view> used;  // memory registers
  std::size_t free = 0;                // how many are left
};

// `nodes` and `pool` as BuildNetlist left them, which with the design must outlive the explanation.
// A block with a parameter without a value has no line; those after it have theirs all the same.
explanation ExplainDesign(const design& document, const std::vector<net_node>& nodes,
                          const register_pool& pool, expert_mode mode);

std::string ExplanationText(const explanation& of);
// An object of "nodes", "blocks" and "registers".
std::string ExplanationJson(const explanation& of);

}  // namespace mardel
