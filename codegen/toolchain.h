// Runs the chip maker's preprocessor and assembler on a generated source.
#pragma once

#include <optional>
#include <string>

#include "codegen/settings.h"
#include "platform/process.h"
#include "platform/ui.h"

namespace mardel {

enum class toolchain_result { kDone, kToolFailed, kToolNotStarted };

struct toolchain_context {
  const settings& options;
  process_runner& runner;
  ui& desk;
};

// As far as the run option says. `location` is the program location 0 to 15, or nothing to run from
// RAM. A path of fewer than 6 characters runs nothing.
toolchain_result RunToolchain(const std::string& source_path, std::optional<int> location,
                              const toolchain_context& context);

}  // namespace mardel
