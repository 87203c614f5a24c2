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

struct source_text {
  std::string text;
  std::optional<report> problem;  // a parameter without a value, which ended the text
  bool was_sorted = false;        // the design's blocks
};

// The blocks in order of x: header, register declarations and one call line a block. Registers'
// declared flags in `pool` are set.
[[nodiscard]] source_text SourceText(const design& document, const std::vector<net_node>& nodes,
                                     register_pool& pool, const source_request& asked);

// Writes the text and sorts the design's blocks as it does. When nothing is written nothing
// changes.
[[nodiscard]] source_result WriteSource(design& document, const std::vector<net_node>& nodes,
                                        register_pool& pool, const source_request& asked);

}  // namespace mardel
