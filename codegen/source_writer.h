// Writes the chip's source file (".dvc").
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "codegen/netlist.h"
#include "codegen/settings.h"
#include "editor/design.h"
#include "library/register_pool.h"
#include "library/report.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace mardel {

// The path that a source is first proposed to be written to. `design_name` may be "".
std::string ProposedSourcePath(const std::string& folder, const std::string& design_name);

struct source_request {
  std::string path;
  date_time moment;
  expert_mode mode = expert_mode::kOff;
};

struct [[nodiscard]] source_result {
  write_status status = write_status::kWritten;
  // A parameter without a value, which ended the writing; or that the old file was kept.
  std::optional<report> problem;
};

// Sorts the blocks by x and writes header, register declarations and one call line per block.
// Registers' declared flags in `pool` are set. When nothing is written nothing else changes.
source_result WriteSource(design& document, const std::vector<net_node>& nodes, register_pool& pool,
                          const source_request& asked);

}  // namespace mardel
