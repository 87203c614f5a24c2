// The lines of a source file: register declarations, then one call for each other block.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "codegen/pin_registers.h"
#include "codegen/settings.h"
#include "editor/design.h"
#include "library/register_pool.h"
#include "library/report.h"

namespace mardel {

using placed_blocks = std::vector<const dvblock*>;

// Each in order of x.
struct sorted_blocks {
  placed_blocks registers, others;
  bool was_sorted = false;  // the design's list
};

sorted_blocks SortByX(const design& document);

// A line without its end, in the text.
struct source_line {
  const dvblock* block = nullptr;
  std::size_t start = 0, size = 0;
};

struct source_lines {
  std::string text = {};
  std::vector<source_line> lines = {};
};

// Declared flags in `pool` are set.
void AppendDeclarations(source_lines& to, const placed_blocks& registers, register_pool& pool,
                        expert_mode mode);

// One line for each block; none of them stands for a register. Ends at the first parameter without
// a value, leaving that block's line out, and returns what to report of it.
[[nodiscard]] std::optional<report> AppendCalls(source_lines& to,
                                                std::span<const dvblock* const> blocks,
                                                const pin_registers& registers);

}  // namespace mardel
