// Writes the chip's source file (".dvc").
#pragma once

#include <string>
#include <vector>

#include "codegen/netlist.h"
#include "codegen/settings.h"
#include "editor/design.h"
#include "library/register_pool.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/ui.h"

namespace mardel {

struct source_result {
  std::string path;  // as chosen; "" when cancelled, or when the writing failed
  write_status status = write_status::kWritten;
  bool is_complete = true;  // false when a parameter without a value ended the writing
};

struct source_context {
  const settings& options;
  const clock& time;
  ui& desk;
};

// Asks for the file, sorts the blocks by x and writes header, register declarations and one call
// line per block. Registers' declared flags in `pool` are set. A file that can't be created changes
// nothing and its path is returned all the same.
source_result WriteSource(design& document, const std::vector<net_node>& nodes, register_pool& pool,
                          const source_context& context);

}  // namespace mardel
